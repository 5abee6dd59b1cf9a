#ifndef SAISKUKO_SUPPORT_LITERALWALKS_H
#define SAISKUKO_SUPPORT_LITERALWALKS_H

// Reference implementations of the channel scans: every channel of a record
// walked through its formula, exactly as the searches are defined. The
// library answers the same questions by binary search; tests and benchmarks
// compare the two.

#include <saiskuko/saiskuko.h>

#include <QtCore/QList>
#include <QtCore/QString>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

namespace literal {

inline const ChBand &band(const ChBandStore &store, const QString &tech, const QString &band)
{
    const int t = store.TechIndexMap.value(tech, 0);
    return store.Technologies[t].Bands[store.Technologies[t].BandIndexMap.value(band, 0)];
}

inline double freqAt(const stSubBand &r, qint64 ch)
{
    return r.FreqFunc(static_cast<int>(ch), r.BaseFreq, r.StartChannelNo);
}

// The first ten exact matches GetChNumFromFreq chooses from.
inline QList<int> exactCandidates(const ChBandStore &store, const QString &tech,
                                  const QString &bandName, int link, double freqMHz)
{
    const ChBand &b = band(store, tech, bandName);
    QList<int> candidates;
    for (int i = 0; i < b.NumSubBand; ++i) {
        const stSubBand &r = b.SubBands[i];
        if (!((r.Link == link || r.UplinkOnly) && r.StartFreq <= freqMHz && freqMHz <= r.StopFreq))
            continue;
        for (qint64 ch = r.StartChannelNo; ch <= r.StopChannelNo; ++ch) {
            if (std::abs(freqAt(r, ch) - freqMHz) < std::numeric_limits<double>::epsilon()
                && candidates.size() < 10)
                candidates.append(static_cast<int>(ch));
        }
    }
    return candidates;
}

inline int chooseCandidate(const QList<int> &candidates, int preferred)
{
    if (candidates.isEmpty())
        return -1;
    return candidates.contains(preferred) ? preferred : candidates.first();
}

// GetChNumFromFreq by names, without its console line.
inline int chNumFromFreq(const ChBandStore &store, const QString &tech, const QString &bandName,
                         int link, double freqMHz, int preferred)
{
    return chooseCandidate(exactCandidates(store, tech, bandName, link, freqMHz), preferred);
}

// GetChInfoFromFreq, including its selection-pass ordering.
inline QList<ChInfo> chInfoFromFreq(const ChBandStore &store, double f)
{
    QList<ChInfo> work;
    for (const ChTechnology &tech : store.Technologies) {
        for (int b = 0; b < tech.NumBand; ++b) {
            const ChBand &band = tech.Bands[b];
            if (band.IsGlobal)
                continue;
            for (int i = 0; i < band.NumSubBand; ++i) {
                const stSubBand &r = band.SubBands[i];
                if (!(r.StartFreq <= f && r.StopFreq >= f))
                    continue;
                ChInfo hit;
                hit.techName = tech.TechName;
                hit.bandName = band.BandName;
                for (qint64 ch = r.StartChannelNo; ch <= r.StopChannelNo; ++ch) {
                    const double offset = freqAt(r, ch) - f;
                    if (std::abs(offset) < std::abs(hit.freqOffset)) {
                        hit.freqOffset = offset;
                        hit.channelNo = static_cast<int>(ch);
                        hit.linkDirection = r.Link;
                    }
                }
                work.append(hit);
            }
        }
    }
    QList<ChInfo> sorted;
    while (!work.isEmpty()) {
        int pick = 0;
        double bound = 2000000000.0;
        for (int i = 0; i < work.size(); ++i) {
            if (std::abs(work[i].freqOffset) < bound) {
                bound = std::abs(work[i].freqOffset);
                pick = i;
            }
        }
        sorted.append(work.takeAt(pick));
    }
    return sorted;
}

// GetAvailableChannels for an already split standard and a link.
inline QList<int> availableChannels(const ChBandStore &store, const QString &tech,
                                    const QString &bandName, int link, double low, double high)
{
    const ChBand &b = band(store, tech, bandName);
    QList<int> channels;
    for (int i = 0; i < b.NumSubBand; ++i) {
        const stSubBand &r = b.SubBands[i];
        if (r.Link != link)
            continue;
        for (qint64 ch = r.StartChannelNo; ch <= r.StopChannelNo; ++ch) {
            const double freq = freqAt(r, ch);
            if (freq >= low && freq <= high)
                channels.append(static_cast<int>(ch));
        }
        break;
    }
    return channels;
}

// The same hits in the same order, offsets equal to the last bit.
inline bool sameHits(const QList<ChInfo> &a, const QList<ChInfo> &b)
{
    if (a.size() != b.size())
        return false;
    for (int i = 0; i < a.size(); ++i) {
        if (a[i].techName != b[i].techName || a[i].bandName != b[i].bandName
            || a[i].linkDirection != b[i].linkDirection || a[i].channelNo != b[i].channelNo
            || a[i].reserved != b[i].reserved
            || std::memcmp(&a[i].freqOffset, &b[i].freqOffset, sizeof(double)) != 0)
            return false;
    }
    return true;
}

} // namespace literal

#endif
