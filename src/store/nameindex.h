#ifndef SAISKUKO_NAMEINDEX_H
#define SAISKUKO_NAMEINDEX_H

// Hash indexes over the name maps of G_CHSTD, so that a query finds a slot in
// one inline hash lookup instead of a walk down an ordered map of strings.
// Only G_CHSTD has one: it is the store applications query, and its layout is
// fixed by the interface, so the index lives beside it. The index mirrors the
// maps exactly; it is filled wherever the library fills them.

#include <saiskuko/chstd.h>

#include "store/nametable.h"

class Q_DECL_HIDDEN NameIndex
{
public:
    // Called first thing by every store's constructor: gives G_CHSTD its
    // index, which outlives the store.
    static void createFor(const ChBandStore *store);
    // The index of the store, or null when it has none.
    static NameIndex *of(const ChBandStore *store)
    {
        return store == &G_CHSTD ? s_global : nullptr;
    }

    void addTech(const QString &name, int slot) { m_techs.insert(name, slot); }
    void addBand(int techSlot, const QString &name, int slot)
    {
        m_bands[techSlot].insert(name, slot);
    }

    // The slot a name maps to, or fallback, as QMap::value gives it.
    int tech(const QString &name, int fallback) const { return m_techs.value(name, fallback); }
    int band(int techSlot, const QString &name, int fallback) const
    {
        return m_bands[techSlot].value(name, fallback);
    }

private:
    // Set while the library loads, before any thread can query.
    static NameIndex *s_global;

    static constexpr int kTechSlots = 8;
    // At least twice the names each map ever gets: the eight technology
    // names, and a technology's band slots.
    static constexpr int kBandCapacity = 128;
    static_assert(kBandCapacity >= 2 * ChTechnology::MaxBands, "band tables must stay half empty");
    NameTable<2 * kTechSlots> m_techs;
    NameTable<kBandCapacity> m_bands[kTechSlots];
};

#endif
