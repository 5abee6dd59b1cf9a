#ifndef SAISKUKO_NAMEINDEX_H
#define SAISKUKO_NAMEINDEX_H

// Hash indexes over the name maps of G_CHSTD, so that a query finds a slot in
// one inline hash lookup instead of a walk down an ordered map of strings.
// Only G_CHSTD has one: it is the store applications query, and its layout is
// fixed by the interface, so the index lives beside it, in static storage
// that needs no construction and outlives every store. The index mirrors the
// maps exactly for the names it holds; it is filled wherever the library
// fills them, and a name too long for it is always looked up in the map.

#include <saiskuko/chstd.h>

#include "store/nametable.h"

class Q_DECL_HIDDEN NameIndex
{
public:
    // The index of the store, or null when it has none.
    static NameIndex *of(const ChBandStore *store)
    {
        return store == &G_CHSTD ? &s_global : nullptr;
    }

    void addTech(const QString &name, int slot)
    {
        if (Techs::holds(name))
            m_techs.insert(name, slot);
    }
    void addBand(int techSlot, const QString &name, int slot)
    {
        if (Bands::holds(name))
            m_bands[techSlot].insert(name, slot);
    }

    // The slot a name maps to, or fallback, as QMap::value gives it; the map
    // answers for a name too long for the index.
    int tech(const QString &name, const QMap<QString, int> &map, int fallback) const
    {
        return Techs::holds(name) ? m_techs.value(name, fallback) : map.value(name, fallback);
    }
    int band(int techSlot, const QString &name, const QMap<QString, int> &map, int fallback) const
    {
        return Bands::holds(name) ? m_bands[techSlot].value(name, fallback)
                                  : map.value(name, fallback);
    }

private:
    static NameIndex s_global;

    static constexpr int kTechSlots = 8;
    // At least twice the names each map ever gets: the eight technology
    // names, and a technology's band slots.
    static constexpr int kBandCapacity = 128;
    static_assert(kBandCapacity >= 2 * ChTechnology::MaxBands, "band tables must stay half empty");
    using Techs = NameTable<2 * kTechSlots>;
    using Bands = NameTable<kBandCapacity>;
    Techs m_techs;
    Bands m_bands[kTechSlots];
};

#endif
