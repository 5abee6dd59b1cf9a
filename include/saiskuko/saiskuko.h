#ifndef SAISKUKO_H
#define SAISKUKO_H

/// @file
/// Umbrella header: every public type of the library and #G_CHSTD.
#include <saiskuko/bandplan.h>
#include <saiskuko/bandplanmodel.h>
#include <saiskuko/chband.h>
#include <saiskuko/chbandstore.h>
#include <saiskuko/chstd.h>
#include <saiskuko/records.h>
#include <saiskuko/saiskuko_global.h>

#endif
