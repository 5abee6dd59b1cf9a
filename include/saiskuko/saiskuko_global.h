#ifndef SAISKUKO_GLOBAL_H
#define SAISKUKO_GLOBAL_H

#include <saiskuko/saiskuko_version.h>

#include <QtCore/qglobal.h>

// The one export macro: everything public carries it, the rest stays hidden.
#if defined(SAISKUKO_BUILDING_LIBRARY)
#define SAISKUKO_EXPORT Q_DECL_EXPORT
#else
#define SAISKUKO_EXPORT Q_DECL_IMPORT
#endif

#endif
