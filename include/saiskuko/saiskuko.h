#ifndef SAISKUKO_H
#define SAISKUKO_H

// Umbrella header: every public type of the library.
#include <saiskuko/chband.h>
#include <saiskuko/chbandstore.h>
#include <saiskuko/chstd.h>
#include <saiskuko/records.h>
#include <saiskuko/saiskuko_global.h>

#endif
