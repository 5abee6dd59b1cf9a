#ifndef SAISKUKO_NAMELOOKUP_H
#define SAISKUKO_NAMELOOKUP_H

// The lenient lookups of names: an unknown name selects slot 0, silently.
// Inline, because every query by names starts with them.

#include <saiskuko/chbandstore.h>

#include "store/nameindex.h"

inline int techSlotNamed(const ChBandStore &store, const QString &tech)
{
    const NameIndex *index = NameIndex::of(&store);
    const int slot = index ? index->tech(tech, 0) : store.TechIndexMap.value(tech, 0);
    return (slot >= 0 && slot < ChBandStore::MaxTechnologies) ? slot : 0;
}

inline int bandSlotNamed(const ChBandStore &store, int techSlot, const QString &band)
{
    if (techSlot < 0 || techSlot >= ChBandStore::MaxTechnologies)
        return 0;
    const NameIndex *index = NameIndex::of(&store);
    const int slot = index ? index->band(techSlot, band, 0)
                           : store.Technologies[techSlot].BandIndexMap.value(band, 0);
    return (slot >= 0 && slot < ChTechnology::MaxBands) ? slot : 0;
}

inline const ChBand &bandNamed(const ChBandStore &store, const QString &tech, const QString &band)
{
    const int t = techSlotNamed(store, tech);
    return store.Technologies[t].Bands[bandSlotNamed(store, t, band)];
}

#endif
