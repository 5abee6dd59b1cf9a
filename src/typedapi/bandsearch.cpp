// Searches of the whole store: every band holding a frequency, every band holding a channel.
#include "typedapi/typedapi_p.h"

#include <algorithm>
#include <cmath>

namespace saiskuko {

namespace {

// Half a hertz: every raster is a whole number of hertz.
constexpr double kHalfHzMHz = 0.5e-6;

// The hit of a band's link whose records span mhz: its nearest channel, that
// channel's centre nearest to mhz, and whether it lies off the raster of the
// record holding it. False where no record spans mhz.
bool hitOf(const Band &band, Link link, double mhz, SearchHit *hit)
{
    // Most bands have no channel near mhz: their records are never built.
    double low, high;
    const int nearest = typed::nearestChannelOrNone(band, link, mhz, &low, &high);
    if (nearest < 0)
        return false;
    const QList<Record> records = band.records(link);
    const bool spanned = std::any_of(records.begin(), records.end(), [&](const Record &r) {
        return r.spanLowMHz - kHalfHzMHz <= mhz && mhz <= r.spanHighMHz + kHalfHzMHz;
    });
    if (!spanned)
        return false;
    *hit = SearchHit{band, link, nearest, HUGE_VAL, HUGE_VAL, false};
    for (double centre : band.frequencies(link, hit->channel)) {
        if (std::fabs(centre - mhz) < std::fabs(hit->offsetMHz)) {
            hit->channelMHz = centre;
            hit->offsetMHz = centre - mhz;
        }
    }
    const auto holder = std::find_if(records.begin(), records.end(), [&](const Record &r) {
        return r.firstChannel <= hit->channel && hit->channel <= r.lastChannel;
    });
    const double halfStep = holder == records.end() ? 0.0 : std::fabs(holder->stepMHz) / 2;
    hit->offRaster = std::fabs(hit->offsetMHz) > halfStep + kHalfHzMHz;
    return true;
}

} // namespace

QList<SearchHit> search(double mhz)
{
    QList<SearchHit> hits;
    if (!std::isfinite(mhz))
        return hits;
    for (const Band &band : allBands()) {
        if (band.isGlobal())
            continue;
        SearchHit hit;
        for (Link link : band.links()) {
            if (hitOf(band, link, mhz, &hit))
                hits.append(hit);
        }
    }
    // Nearest first to the hertz, as the offsets print; else by code.
    const auto hertz = [](const SearchHit &h) {
        return std::llround(std::fabs(h.offsetMHz) * 1e6);
    };
    std::stable_sort(hits.begin(), hits.end(),
                     [&](const SearchHit &a, const SearchHit &b) { return hertz(a) < hertz(b); });
    return hits;
}

QList<Band> bandsWithChannel(int channel)
{
    QList<Band> out;
    for (const Band &band : allBands()) {
        const ChBand *data = typed::bandData(band);
        if (band.isGlobal())
            continue;
        const Duplex duplex = band.duplex();
        const auto holds = [&](const stSubBand &r) { return holdsChannel(r, channel); };
        if (typed::anyRecord(*data, Link::Up, duplex, holds)
            || typed::anyRecord(*data, Link::Down, duplex, holds))
            out << band;
    }
    return out;
}

} // namespace saiskuko
