// Frequency to channel: exact raster matches, and the uplink/downlink channel offset.
#include <saiskuko/chbandstore.h>

#include "bandplan/channelsearch.h"
#include "query/bandqueries.h"
#include "store/diagnostics.h"
#include "store/namelookup.h"
#include "store/recordrules.h"
#include "store/standardtext.h"
#include "store/technologies.h"
#include "store/wrapping.h"

#include <cmath>
#include <limits>

namespace {

constexpr double kTolerance = std::numeric_limits<double>::epsilon();

// Up to ten channels whose frequency equals the searched one, in the order a
// walk would meet them; later matches can never be returned, so they are not
// kept.
struct ExactMatches
{
    static constexpr int Capacity = 10;
    int channels[Capacity] = {-1, -1, -1, -1, -1, -1, -1, -1, -1, -1};
    int count = 0;

    void add(int channel)
    {
        if (count < Capacity)
            channels[count++] = channel;
    }
    bool contains(int channel) const
    {
        for (int i = 0; i < count; ++i) {
            if (channels[i] == channel)
                return true;
        }
        return false;
    }
};

// Appends the record's channels whose frequency lies within the double
// epsilon (as an absolute number of MHz) of freqMHz.
void collectExactMatches(const stSubBand &r, const RecordSearch &facts, double freqMHz,
                         ExactMatches *found)
{
    if (facts.spaced && std::isfinite(freqMHz)) {
        // A raster frequency is its nearest channel's, and then no other
        // channel of the record can match.
        const qint64 nearest = facts.nearestChannel(freqMHz);
        if (std::abs(freqAt(r, nearest) - freqMHz) < kTolerance) {
            found->add(static_cast<int>(nearest));
            return;
        }
    }
    const qint64 stop = r.StopChannelNo;
    qint64 channel = r.StartChannelNo;
    const FormulaTraits *traits = monotonicTraits(r);
    const bool fast = traits && std::isfinite(freqMHz);
    if (fast) {
        // Differences grow with the channel: the matches form one run that
        // starts at the first difference above -epsilon.
        channel = firstTrueNear(channel, stop, estimateChannel(*traits, r, freqMHz),
                                [&](qint64 ch) { return freqAt(r, ch) - freqMHz > -kTolerance; });
    }
    for (; channel <= stop && found->count < ExactMatches::Capacity; ++channel) {
        const double difference = freqAt(r, channel) - freqMHz;
        if (std::abs(difference) < kTolerance)
            found->add(static_cast<int>(channel));
        else if (fast && difference >= kTolerance)
            break;
    }
}

} // namespace

int chNumFromFreqIn(const ChBand &b, KnownRecords known, int link, double freqMHz, int preferred)
{
    ExactMatches found;
    RecordSearch scratch;
    const int n = recordCount(b);
    for (int i = 0; i < n; ++i) {
        const stSubBand &r = b.SubBands[i];
        if (servesLink(r, link) && r.StartFreq <= freqMHz && freqMHz <= r.StopFreq)
            collectExactMatches(r, known.of(i, r, &scratch), freqMHz, &found);
    }
    if (found.count > 0)
        return found.contains(preferred) ? preferred : found.channels[0];

    reportUnsupportedFrequency(freqMHz);
    return -1;
}

int offsetChUpDownIn(int t, const ChBand &b, const QString &bandText, int channel)
{
    // Time-division standards share channel numbers between the directions.
    if (t == SlotLteTdd || t == SlotTdScdma)
        return 0;
    if (t == SlotWimax && knowsBandAs(SlotWimax, bandText, TimeDivision))
        return 0;

    const int n = recordCount(b);
    for (int i = 0; i < n; ++i) {
        const stSubBand &r = b.SubBands[i];
        if (!holdsChannel(r, channel))
            continue;
        // Pairs stand uplink first, downlink second; a record without its
        // partner has no offset.
        if (r.Link == 1)
            return i + 1 < n ? wrappedDifference(r.StartChannelNo, b.SubBands[i + 1].StartChannelNo)
                             : 0;
        return i > 0 ? wrappedDifference(b.SubBands[i - 1].StartChannelNo, r.StartChannelNo) : 0;
    }
    return 0;
}

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

int ChBandStore::GetOffsetChUpDown(QString tech, QString band, int channel, int /*link*/) const
{
    const int t = techSlotNamed(*this, tech);
    return offsetChUpDownIn(t, Technologies[t].Bands[bandSlotNamed(*this, t, band)], band, channel);
}

int ChBandStore::GetOffsetChUpDown(QString standard, int link, int channel) const
{
    return answerForStandard(standard, -1, [&](const QString &tech, const QString &band) {
        return GetOffsetChUpDown(tech, band, channel, link);
    });
}

int ChBandStore::GetOffsetChUpDown(QString standard, QString direction, int channel) const
{
    return GetOffsetChUpDown(standard, linkOfDirection(direction), channel);
}
