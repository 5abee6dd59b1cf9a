// Frequency to channel: GetChNumFromFreq and its search for exact raster matches.
#include <saiskuko/chbandstore.h>

#include "bandplan/channelsearch.h"
#include "store/chbandstore_p.h"
#include "store/diagnostics.h"
#include "store/recordrules.h"
#include "store/standardtext.h"

#include <cmath>
#include <limits>

namespace {

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

// Appends the record's matching channels.
void collectExactMatches(const stSubBand &r, const RecordSearch &facts, double freqMHz,
                         ExactMatches *found)
{
    if (facts.spaced) {
        addNearestMatch(facts, freqMHz, found);
        return;
    }
    const qint64 stop = r.StopChannelNo;
    qint64 channel = r.StartChannelNo;
    const FormulaTraits *traits = monotonicTraits(r);
    const bool fast = traits && std::isfinite(freqMHz);
    if (fast) {
        // Differences grow with the channel: the matches form one run that
        // starts at the first difference above -epsilon.
        channel =
            firstTrueNear(channel, stop, estimateChannel(*traits, r, freqMHz), [&](qint64 ch) {
                return freqAt(r, ch) - freqMHz > -kExactMatchTolerance;
            });
    }
    for (; channel <= stop && found->count < ExactMatches::Capacity; ++channel) {
        const double difference = freqAt(r, channel) - freqMHz;
        if (std::abs(difference) < kExactMatchTolerance)
            found->add(static_cast<int>(channel));
        else if (fast && difference >= kExactMatchTolerance)
            break;
    }
}

// The answer once every record has been searched; writes the console line
// when nothing matched.
int answerOf(const ExactMatches &found, double freqMHz)
{
    if (found.count > 0)
        return found.preferredFound ? found.preferred : found.first;
    reportUnsupportedFrequency(freqMHz);
    return -1;
}

// Searches every record in order, working its facts out again wherever none
// are kept or the record changed since.
int chNumFromFreqByRecords(const ChBand &b, KnownRecords known, int link, double freqMHz,
                           int preferred)
{
    ExactMatches found(preferred);
    RecordSearch scratch;
    const int n = recordCount(b);
    for (int i = 0; i < n; ++i) {
        const stSubBand &r = b.SubBands[i];
        if (takesPartInSearch(r, link, freqMHz))
            collectExactMatches(r, known.of(i, r, &scratch), freqMHz, &found);
    }
    return answerOf(found, freqMHz);
}

// One band; known: what the store keeps of its records for the search. The
// usual band is answered here, inline in the form by names; every other band
// takes the general search.
Q_ALWAYS_INLINE int chNumFromFreqIn(const ChBand &band, KnownRecords known, int link,
                                    double freqMHz, int preferred)
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

// The same search, called: the quick path of the form by enumerator then
// stays as small as that of the other forms by enumerator.
Q_NEVER_INLINE int chNumFromFreqInCalled(const ChBand &band, KnownRecords known, int link,
                                         double freqMHz, int preferred)
{
    return chNumFromFreqIn(band, known, link, freqMHz, preferred);
}

} // namespace

int ChBandStore::GetChNumFromFreq(QString tech, QString band, int link, double freqMHz,
                                  int preferred) const
{
    const int t = techSlotNamed(*this, tech);
    const int b = bandSlotNamed(*this, t, band);
    return chNumFromFreqIn(Technologies[t].Bands[b], SearchIndex::find(*this, t, b), link, freqMHz,
                           preferred);
}

int ChBandStore::GetChNumFromFreq(QString standard, int link, double freqMHz, int preferred) const
{
    return answerForStandard(standard, -1, [&](const QString &tech, const QString &band) {
        return GetChNumFromFreq(tech, band, link, freqMHz, preferred);
    });
}

int ChBandStore::GetChNumFromFreq(QString standard, QString direction, double freqMHz,
                                  int preferred) const
{
    return GetChNumFromFreq(standard, linkOfDirection(direction), freqMHz, preferred);
}

int ChBandStore::GetChNumFromFreq(int code, int link, double freqMHz, int preferred) const
{
    // Captured by value: the quick path then keeps them in registers.
    return AnswerForBand(code, -1, [=](int t, int slot, const ChBand &b, const QString &) {
        return chNumFromFreqInCalled(b, SearchIndex::find(*this, t, slot), link, freqMHz,
                                     preferred);
    });
}
