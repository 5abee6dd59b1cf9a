// The name index of the global store.
#include "store/nameindex.h"

#include <saiskuko/chstd.h>

NameIndex *NameIndex::of(const ChBandStore *store)
{
    // Built on first use, which is G_CHSTD's own construction, so it outlives
    // the store it serves.
    static NameIndex global;
    return store == &G_CHSTD ? &global : nullptr;
}
