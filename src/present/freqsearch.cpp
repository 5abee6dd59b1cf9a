#include <saiskuko/chbandstore.h>

#include "query/rastersearch.h"
#include "store/bandaccess.h"
#include "store/standardtext.h"

#include <QtCore/QDebug>

#include <algorithm>
#include <cmath>

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
        if (r.Link == link) {
            channels = channelsInWindow(r, lowMHz, highMHz);
            break;
        }
    }
    qDebug() << "AvailableChannels : " << channels.size();
    return channels;
}
