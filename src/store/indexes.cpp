// The indexes G_CHSTD keeps beside its maps: slots by name, and search facts by record.
#include "store/chbandstore_p.h"

NameIndex *NameIndex::s_global = nullptr;

void NameIndex::createFor(const ChBandStore *store)
{
    if (store != &G_CHSTD)
        return;
    // Built during G_CHSTD's own construction, so it is destroyed after it.
    static NameIndex global;
    s_global = &global;
}

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
