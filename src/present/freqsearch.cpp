// Frequency search: every band and record that holds a frequency, nearest channel first.
#include <saiskuko/chbandstore.h>

#include "bandplan/channelsearch.h"
#include "store/recordrules.h"

#include <algorithm>
#include <cmath>

namespace {

// The record's channel nearest to freqMHz: the lowest of equally near ones,
// and none (channel -1, offset 2e9) when no channel is nearer than 2e9 MHz.
struct NearestChannel
{
    int channel = -1;
    int link = -1;
    double offset = 2000000000.0; // channel frequency minus freqMHz
};

NearestChannel nearestChannel(const stSubBand &r, double freqMHz)
{
    NearestChannel best;
    const qint64 start = r.StartChannelNo;
    const qint64 stop = r.StopChannelNo;
    auto consider = [&](qint64 ch, double offset) {
        if (std::abs(offset) < std::abs(best.offset)) {
            best.offset = offset;
            best.channel = static_cast<int>(ch);
            best.link = r.Link;
        }
    };
    // From an infinite or NaN frequency every offset is infinite or NaN, so
    // no channel is ever nearer than the bound: nothing to walk.
    if (!std::isfinite(freqMHz))
        return best;
    const FormulaTraits *traits = monotonicTraits(r);
    if (!traits) {
        for (qint64 ch = start; ch <= stop; ++ch)
            consider(ch, freqAt(r, ch) - freqMHz);
        return best;
    }
    if (start > stop)
        return best;
    // Offsets grow with the channel, so |offset| falls until the first
    // channel at or above freqMHz and rises from there. The nearest is that
    // channel or the first channel of the plateau just below it; on a tie the
    // lower one wins, as in a walk that only takes strictly better channels.
    auto offsetAt = [&](qint64 ch) { return freqAt(r, ch) - freqMHz; };
    const qint64 above = firstTrueNear(start, stop, estimateChannel(*traits, r, freqMHz),
                                       [&](qint64 ch) { return offsetAt(ch) >= 0.0; });
    if (above > start) {
        const double below = offsetAt(above - 1);
        consider(firstTrueNear(start, above - 1, above - 1,
                               [&](qint64 ch) { return offsetAt(ch) >= below; }),
                 below);
    }
    if (above <= stop)
        consider(above, offsetAt(above));
    return best;
}

} // namespace

QList<ChInfo> ChBandStore::GetChInfoFromFreq(double freqMHz) const
{
    QList<ChInfo> hits;
    for (const ChTechnology &technology : Technologies) {
        const int numBands = qBound(0, technology.NumBand, ChTechnology::MaxBands);
        for (int b = 0; b < numBands; ++b) {
            const ChBand &band = technology.Bands[b];
            if (band.IsGlobal) // the global bands repeat the others' records
                continue;
            for (int i = 0; i < recordCount(band); ++i) {
                const stSubBand &r = band.SubBands[i];
                if (!(r.StartFreq <= freqMHz && r.StopFreq >= freqMHz))
                    continue;
                const NearestChannel nearest = nearestChannel(r, freqMHz);
                ChInfo hit;
                hit.reserved = 0;
                hit.techName = technology.TechName;
                hit.bandName = band.BandName;
                hit.linkDirection = nearest.link;
                hit.channelNo = nearest.channel;
                hit.freqOffset = nearest.offset;
                hits.append(hit);
            }
        }
    }
    // Nearest first; equal distances keep technology, band and record order,
    // and hits without a channel (offset 2e9) end up last.
    std::stable_sort(hits.begin(), hits.end(), [](const ChInfo &a, const ChInfo &b) {
        return std::abs(a.freqOffset) < std::abs(b.freqOffset);
    });
    return hits;
}
