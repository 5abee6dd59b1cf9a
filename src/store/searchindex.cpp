// The search index of the global store.
#include "store/searchindex.h"

SearchIndex *SearchIndex::s_global = nullptr;
KnownRecords SearchIndex::s_known[ChBandStore::MaxTechnologies][ChTechnology::MaxBands];

void SearchIndex::createFor(const ChBandStore *store)
{
    if (store != &G_CHSTD)
        return;
    // Built during G_CHSTD's own construction, so it is destroyed after it.
    static SearchIndex global;
    s_global = &global;
}
