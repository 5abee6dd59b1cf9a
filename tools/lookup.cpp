// Channel and frequency lookups on a band's records, alike for both directions of a TDD band.
#include "lookup.h"

#include "duplex.h"

#include <algorithm>
#include <cmath>

namespace {

// Half a hertz: text rounds to 1 Hz, and every raster is a whole number of Hz.
constexpr double kSameCentreMHz = 0.5e-6;

bool insideEdges(const QList<const stSubBand *> &records, double mhz)
{
    for (const stSubBand *r : records) {
        if (r->StartFreq - kSameCentreMHz <= mhz && mhz <= r->StopFreq + kSameCentreMHz)
            return true;
    }
    return false;
}

// Calls visit(channel, centre) for every channel of the records, in order.
template <typename Visit>
void eachChannel(const QList<const stSubBand *> &records, Visit visit)
{
    for (const stSubBand *r : records) {
        for (qint64 ch = r->StartChannelNo; ch <= r->StopChannelNo; ++ch)
            visit(int(ch), recordFreq(*r, int(ch)));
    }
}

} // namespace

QList<const stSubBand *> recordsFor(const BandRef &band, int link)
{
    const ChBand &data = band.data();
    const bool shared = band.duplex() == Duplex::Tdd;
    QList<const stSubBand *> records;
    for (int i = 0; i < recordCount(data); ++i) {
        const stSubBand &r = data.SubBands[i];
        if (!isPlaceholder(r) && servesLinkOfBand(r, link, shared))
            records << &r;
    }
    return records;
}

QList<int> linksOf(const BandRef &band)
{
    QList<int> links;
    for (int link : {1, 0}) {
        if (!recordsFor(band, link).isEmpty())
            links << link;
    }
    return links;
}

bool channelFreq(const BandRef &band, int link, int channel, double *mhz)
{
    for (const stSubBand *r : recordsFor(band, link)) {
        if (holdsChannel(*r, channel)) {
            *mhz = recordFreq(*r, channel);
            return std::isfinite(*mhz);
        }
    }
    return false;
}

bool channelAt(const BandRef &band, int link, double mhz, int preferred, ChannelHit *hit)
{
    const QList<const stSubBand *> records = recordsFor(band, link);
    bool found = false;
    eachChannel(records, [&](int channel, double centre) {
        if (std::fabs(centre - mhz) > kSameCentreMHz)
            return;
        if (!found || channel == preferred)
            *hit = {channel, centre, insideEdges(records, centre)};
        found = true;
    });
    return found;
}

bool nearestChannel(const BandRef &band, int link, double mhz, ChannelHit *hit)
{
    const QList<const stSubBand *> records = recordsFor(band, link);
    double low = HUGE_VAL, high = -HUGE_VAL, best = HUGE_VAL;
    for (const stSubBand *r : records) {
        low = std::fmin(low, r->StartFreq);
        high = std::fmax(high, r->StopFreq);
    }
    eachChannel(records, [&](int channel, double centre) {
        low = std::fmin(low, centre);
        high = std::fmax(high, centre);
        if (std::fabs(centre - mhz) < best) {
            best = std::fabs(centre - mhz);
            *hit = {channel, centre, insideEdges(records, centre)};
        }
    });
    return low <= mhz && mhz <= high;
}

bool pairedChannel(const BandRef &band, int link, int channel, int *paired)
{
    if (band.duplex() != Duplex::Fdd)
        return false;
    const int offset = store().GetOffsetChUpDown(band.techName(), band.bandName(), channel, link);
    if (offset == 0)
        return false;
    *paired = link == 1 ? channel - offset : channel + offset;
    return true;
}

QList<SearchHit> searchHits(double mhz)
{
    QList<SearchHit> hits;
    for (const ChInfo &info : store().GetChInfoFromFreq(mhz)) {
        const BandRef band = bandByNames(info.techName, info.bandName);
        if (band.tech < 0 || info.channelNo < 0)
            continue;
        // A TDD band holds the frequency in both directions, however many
        // records the library found it in.
        QList<int> links{info.linkDirection};
        if (band.duplex() == Duplex::Tdd)
            links = {1, 0};
        for (int link : links) {
            // A band can hold the frequency in several records of one link;
            // the first hit is the nearest, the others add nothing.
            const bool seen = std::any_of(hits.begin(), hits.end(), [&](const SearchHit &h) {
                return h.band.code() == band.code() && h.link == link;
            });
            SearchHit hit{band, link, info.channelNo, 0, info.freqOffset};
            if (!seen && channelFreq(band, link, info.channelNo, &hit.centreMHz))
                hits.append(hit);
        }
    }
    return hits;
}
