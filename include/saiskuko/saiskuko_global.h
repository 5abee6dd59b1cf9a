#ifndef SAISKUKO_GLOBAL_H
#define SAISKUKO_GLOBAL_H

/// @file
/// Export macro and header version shared by every public header.

#include <QtCore/qglobal.h>

/// Marks the library's public classes, records and the global store as
/// exported (when building the library) or imported (when using it); every
/// other symbol stays hidden.
#if defined(SAISKUKO_BUILDING_LIBRARY)
#  define SAISKUKO_EXPORT Q_DECL_EXPORT
#else
#  define SAISKUKO_EXPORT Q_DECL_IMPORT
#endif

/// Version of these headers, "1.0.1". The loaded library announces its own
/// version in the banner it writes while loading (see @ref messages).
#define SAISKUKO_VERSION_STR "1.0.1"

#endif
