// Searches of the whole store: every band holding a frequency, every band holding a channel.
#include "typedapi/typedapi_p.h"

#include <algorithm>
#include <cmath>

namespace saiskuko {

QList<SearchHit> search(double mhz)
{
    QList<SearchHit> hits;
    if (!std::isfinite(mhz))
        return hits;
    const ChBandStore &s = typed::store();
    for (const ChInfo &info : s.GetChInfoFromFreq(mhz)) {
        const auto t = s.TechIndexMap.constFind(info.techName);
        if (t == s.TechIndexMap.constEnd() || info.channelNo < 0)
            continue;
        const QMap<QString, int> &bandMap = s.Technologies[t.value()].BandIndexMap;
        const auto b = bandMap.constFind(info.bandName);
        if (b == bandMap.constEnd())
            continue;
        const Band band = BandAccess::make(t.value(), b.value());
        if (band.isGlobal())
            continue;
        // A TDD band holds the frequency in both directions, however many
        // records the store found it in.
        QList<Link> links{info.linkDirection == 1 ? Link::Up : Link::Down};
        if (band.duplex() == Duplex::Tdd)
            links = {Link::Up, Link::Down};
        for (Link link : links) {
            // A band can hold the frequency in several records of one link;
            // the first hit is the nearest, the others add nothing.
            const bool seen = std::any_of(hits.begin(), hits.end(), [&](const SearchHit &h) {
                return h.band == band && h.link == link;
            });
            const Result<double> centre = band.frequency(link, info.channelNo);
            if (!seen && centre.ok())
                hits.append(SearchHit{band, link, info.channelNo, centre.value(), info.freqOffset});
        }
    }
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
