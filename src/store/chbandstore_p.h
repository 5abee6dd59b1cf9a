#ifndef SAISKUKO_CHBANDSTORE_P_H
#define SAISKUKO_CHBANDSTORE_P_H

// The private side of ChBandStore, in one place: what the store keeps beside
// its public arrays and maps (facts of band names, name indexes, search
// facts of records), the lenient name lookups, and the member templates that
// take the queries by channel standard enumerator to their band. Inline
// where a query calls it on every call.

#include <saiskuko/chstd.h>

#include "bandplan/channelsearch.h"
#include "store/nametable.h"
#include "store/technologies.h"

#include <algorithm>
#include <iterator>
#include <vector>

// Facts of a band's name that the queries ask on every call, worked out once
// when the name is set instead of on every query.
struct ChBandNameFacts
{
    enum : quint8 {
        TimeDivisionName = 1, // one of the time-division families' names
        PlainName = 2,        // non-empty and without " - ": a channel standard
                              // text built from it splits back to it
    };

    static quint8 of(const QString &name)
    {
        quint8 facts = 0;
        if (isTimeDivisionBand(name))
            facts |= TimeDivisionName;
        if (!name.isEmpty() && !name.contains(QLatin1String(" - ")))
            facts |= PlainName;
        return facts;
    }
    static void set(ChBand &band, quint8 facts) { band.NameFacts = facts; }
    static bool isTimeDivision(const ChBand &band) { return band.NameFacts & TimeDivisionName; }
    static bool isPlain(const ChBand &band) { return band.NameFacts & PlainName; }
};

// Hash indexes over the name maps of G_CHSTD, so that a query finds a slot in
// one inline hash lookup instead of a walk down an ordered map of strings.
// Only G_CHSTD has one: it is the store applications query, and its layout is
// fixed by the interface, so the index lives beside it. The index mirrors the
// maps exactly; it is filled wherever the library fills them.
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

// The lenient lookups of names: an unknown name selects slot 0, silently.
// Inline, because every query by names starts with them.
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

// What the frequency searches need to know of each record of G_CHSTD, worked
// out when the record is set rather than on every query. A record's fields
// are public: an entry holds the fields it was worked out from, and a query
// whose record no longer matches works the facts out again.

// The facts of a band's first records; count 0 when the store keeps none.
struct KnownRecords
{
    const RecordSearch *records = nullptr;
    int count = 0;

    // The facts of record i, worked out into scratch when none are kept.
    const RecordSearch &of(int i, const stSubBand &r, RecordSearch *scratch) const
    {
        if (i < count && records[i].describes(r))
            return records[i];
        *scratch = RecordSearch::of(r);
        return *scratch;
    }
};

class Q_DECL_HIDDEN SearchIndex
{
public:
    // Called by every store's constructor: gives G_CHSTD its index.
    static void createFor(const ChBandStore *store);
    static SearchIndex *of(const ChBandStore *store)
    {
        return store == &G_CHSTD ? s_global : nullptr;
    }

    // Queries after the library unloads find nothing kept.
    ~SearchIndex()
    {
        for (auto &bands : s_known)
            std::fill(std::begin(bands), std::end(bands), KnownRecords{});
    }

    void set(int techSlot, int bandSlot, int record, const stSubBand &r)
    {
        std::vector<RecordSearch> &band = m_bands[techSlot][bandSlot];
        if (band.size() <= std::size_t(record))
            band.resize(std::size_t(record) + 1);
        band[std::size_t(record)] = RecordSearch::of(r);
        s_known[techSlot][bandSlot] = {band.data(), int(band.size())};
    }

    static KnownRecords find(const ChBandStore &store, int techSlot, int bandSlot)
    {
        return &store == &G_CHSTD ? s_known[techSlot][bandSlot] : KnownRecords{};
    }

private:
    static SearchIndex *s_global; // set while the library loads

    std::vector<RecordSearch> m_bands[ChBandStore::MaxTechnologies][ChTechnology::MaxBands];
    // The same, as the queries read them: a plain array, one load away.
    static KnownRecords s_known[ChBandStore::MaxTechnologies][ChTechnology::MaxBands];
};

// The uplink-to-downlink channel offset of a band in technology slot t
// (GetOffsetChUpDown); bandText is the band name as the caller gave it, by
// which the time-division WiMAX profiles are told.
int offsetChUpDownIn(int t, const ChBand &b, const QString &bandText, int channel);

// How the queries by channel standard enumerator reach their band. Their
// failure values (after the warning) differ from the name forms' empty
// answers, so that callers can tell a bad code from an empty band.

// Splits a code into technology and band numbers. The remainder follows the
// sign of the code, so negative codes never name a band. The band is the
// remainder of the code by 100 x tech, which for tech 0 is the code itself
// and otherwise is always code - 100 x tech (the remainder by 100): no
// division needed.
inline void splitCode(int code, int *tech, int *band)
{
    *tech = code / 100;
    *band = code - 100 * *tech;
}

// Out of line, so that the quick path of AnswerForBand needs no stack frame.
template <typename Result, typename Query>
Q_NEVER_INLINE Result ChBandStore::AnswerForEnumerator(int code, Result failure, Query query) const
{
    QString tech, band;
    return NamesOfEnumerator(code, &tech, &band) ? query(tech, band) : failure;
}

// The text form of a code names its band's slots again whenever the band is
// in use and its name is plain (not empty, no " - "): then the band is taken
// by its slots directly. Every other code goes the way of the text, with its
// warnings.
template <typename Result, typename Query>
Result ChBandStore::AnswerForBand(int code, Result failure, Query query) const
{
    int t = 0;
    int b = 0;
    splitCode(code, &t, &b);
    if (t >= 0 && t < MaxTechnologies && b >= 0 && b < Technologies[t].NumBand
        && ChBandNameFacts::isPlain(Technologies[t].Bands[b]))
        return query(t, b, Technologies[t].Bands[b], Technologies[t].Bands[b].BandName);
    return AnswerForEnumerator(code, failure, [&](const QString &tech, const QString &band) {
        const int techSlot = LookupTechSlot(tech);
        const int bandSlot = LookupBandSlot(techSlot, band);
        return query(techSlot, bandSlot, Technologies[techSlot].Bands[bandSlot], band);
    });
}

#endif
