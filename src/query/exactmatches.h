#ifndef SAISKUKO_EXACTMATCHES_H
#define SAISKUKO_EXACTMATCHES_H

// Frequency to channel on one band. The usual band is answered inline, so
// that the forms by names and by enumerator pay no call for it; every other
// band takes the general search in freqtochannel.cpp.

#include <saiskuko/chband.h>

#include "bandplan/channelsearch.h"
#include "store/recordrules.h"
#include "store/searchindex.h"

#include <cmath>
#include <limits>

// A channel matches when its frequency lies within the double epsilon, as an
// absolute number of MHz, of the searched one.
constexpr double kExactMatchTolerance = std::numeric_limits<double>::epsilon();

// The channels whose frequency equals the searched one, in the order a walk
// would meet them: the first, and whether the caller's preferred channel is
// among the first ten (later matches can never be returned).
struct ExactMatches
{
    static constexpr int Capacity = 10;
    int preferred;
    int first = -1;
    int count = 0;
    bool preferredFound = false;

    explicit ExactMatches(int preferredChannel) : preferred(preferredChannel) {}

    void add(int channel)
    {
        if (count == Capacity)
            return;
        if (count++ == 0)
            first = channel;
        preferredFound = preferredFound || channel == preferred;
    }
};

inline bool takesPartInSearch(const stSubBand &r, int link, double freqMHz)
{
    return servesLink(r, link) && r.StartFreq <= freqMHz && freqMHz <= r.StopFreq;
}

// A spaced record's one match, if any: a raster frequency is its nearest
// channel's, and then no other channel of the record can match; an infinite
// one matches none.
inline void addNearestMatch(const RecordSearch &facts, double freqMHz, ExactMatches *found)
{
    const double steps = facts.nearestSteps(freqMHz);
    if (std::abs(facts.freqAtSteps(steps) - freqMHz) < kExactMatchTolerance)
        found->add(static_cast<int>(facts.channelAt(steps)));
}

// The answer once every record has been searched; writes the console line
// when nothing matched.
int answerOf(const ExactMatches &found, double freqMHz);

// Searches every record in order, working its facts out again wherever none
// are kept or the record changed since.
int chNumFromFreqByRecords(const ChBand &band, KnownRecords known, int link, double freqMHz,
                           int preferred);

// known: what the store keeps of the band's records for the search.
inline int chNumFromFreqIn(const ChBand &band, KnownRecords known, int link, double freqMHz,
                           int preferred)
{
    // The usual band: the store keeps every record as it stands, and each
    // that takes part is spaced.
    const int n = recordCount(band);
    if (n > known.count)
        return chNumFromFreqByRecords(band, known, link, freqMHz, preferred);
    ExactMatches found(preferred);
    const RecordSearch *facts = known.records;
    for (const stSubBand *r = band.SubBands, *end = r + n; r != end; ++r, ++facts) {
        if (!takesPartInSearch(*r, link, freqMHz))
            continue;
        if (!facts->spaced || !facts->describes(*r))
            return chNumFromFreqByRecords(band, known, link, freqMHz, preferred);
        addNearestMatch(*facts, freqMHz, &found);
    }
    return answerOf(found, freqMHz);
}

#endif
