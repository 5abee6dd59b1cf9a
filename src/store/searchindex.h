#ifndef SAISKUKO_SEARCHINDEX_H
#define SAISKUKO_SEARCHINDEX_H

// What the frequency searches need to know of each record of G_CHSTD, worked
// out when the record is set rather than on every query. A record's fields
// are public: an entry holds the fields it was worked out from, and a query
// whose record no longer matches works the facts out again.

#include <saiskuko/chstd.h>

#include "bandplan/channelsearch.h"

#include <algorithm>
#include <iterator>
#include <vector>

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

#endif
