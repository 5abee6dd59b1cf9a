#ifndef SAISKUKO_GLOBAL_H
#define SAISKUKO_GLOBAL_H

#include <QtCore/qglobal.h>

// The one export macro: everything public carries it, the rest stays hidden.
#if defined(SAISKUKO_BUILDING_LIBRARY)
#  define SAISKUKO_EXPORT Q_DECL_EXPORT
#else
#  define SAISKUKO_EXPORT Q_DECL_IMPORT
#endif

// Version of these headers; the loaded library announces its own at load.
#define SAISKUKO_VERSION_STR "1.0.1"

#endif
