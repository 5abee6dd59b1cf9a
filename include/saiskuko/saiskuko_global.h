#ifndef SAISKUKO_GLOBAL_H
#define SAISKUKO_GLOBAL_H

/// @file
/// Export macro and version shared by every public header.

#include <saiskuko/saiskuko_version.h>

#include <QtCore/qglobal.h>

/// Marks the library's public classes, records and the global store as
/// exported (when building the library) or imported (when using it); every
/// other symbol stays hidden.
#if defined(SAISKUKO_BUILDING_LIBRARY)
#define SAISKUKO_EXPORT Q_DECL_EXPORT
#else
#define SAISKUKO_EXPORT Q_DECL_IMPORT
#endif

#endif
