#include <saiskuko/chbandstore.h>

#include "store/bandaccess.h"
#include "store/standardtext.h"

#include <QtCore/QDebug>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kNoOffset = 2000000000.0;

// The channel of a record nearest to freqMHz; among equally near channels the
// lowest wins (strict comparison while walking upward).
ChInfo nearestChannel(const stSubBand &r, double freqMHz)
{
    ChInfo hit;
    hit.reserved = 0;
    hit.linkDirection = -1;
    hit.channelNo = -1;
    hit.freqOffset = kNoOffset;
    for (qint64 ch = r.StartChannelNo; ch <= r.StopChannelNo; ++ch) {
        const double offset = recordFreq(r, static_cast<int>(ch)) - freqMHz;
        if (std::abs(offset) < std::abs(hit.freqOffset)) {
            hit.freqOffset = offset;
            hit.channelNo = static_cast<int>(ch);
            hit.linkDirection = r.Link;
        }
    }
    return hit;
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
                ChInfo hit = nearestChannel(r, freqMHz);
                hit.techName = technology.TechName;
                hit.bandName = band.BandName;
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

QList<int> ChBandStore::GetAvailableChannels(QString channelStandard, QString direction,
                                             double lowMHz, double highMHz) const
{
    QString tech, band;
    if (!splitStandardOrWarn(channelStandard, &tech, &band))
        return QList<int>();

    const ChBand &b = BandOf(tech, band);
    const int link = linkOfDirection(direction);
    QList<int> channels;
    // Only the band's first record of the direction is offered.
    for (int i = 0; i < recordCount(b); ++i) {
        const stSubBand &r = b.SubBands[i];
        if (r.Link != link)
            continue;
        for (qint64 ch = r.StartChannelNo; ch <= r.StopChannelNo; ++ch) {
            const double freq = recordFreq(r, static_cast<int>(ch));
            if (freq >= lowMHz && freq <= highMHz)
                channels.append(static_cast<int>(ch));
        }
        break;
    }
    qDebug() << "AvailableChannels : " << channels.size();
    return channels;
}
