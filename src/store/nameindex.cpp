// The name index of the global store.
#include "store/nameindex.h"

NameIndex *NameIndex::s_global = nullptr;

void NameIndex::createFor(const ChBandStore *store)
{
    if (store != &G_CHSTD)
        return;
    // Built during G_CHSTD's own construction, so it is destroyed after it.
    static NameIndex global;
    s_global = &global;
}
