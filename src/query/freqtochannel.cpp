// Frequency to channel: exact raster matches, and the uplink/downlink channel offset.
#include <saiskuko/chbandstore.h>

#include "bandplan/channelsearch.h"
#include "query/bandqueries.h"
#include "query/exactmatches.h"
#include "store/diagnostics.h"
#include "store/namelookup.h"
#include "store/recordrules.h"
#include "store/standardtext.h"
#include "store/technologies.h"
#include "store/wrapping.h"

#include <cmath>

namespace {

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

} // namespace

int answerOf(const ExactMatches &found, double freqMHz)
{
    if (found.count > 0)
        return found.preferredFound ? found.preferred : found.first;
    reportUnsupportedFrequency(freqMHz);
    return -1;
}

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
