// The name index of the global store.
#include "store/nameindex.h"

// Zero-initialised: empty before the store fills it, and never destroyed.
NameIndex NameIndex::s_global;
