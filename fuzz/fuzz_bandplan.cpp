// The typed API: finding bands by arbitrary text, and every conversion of a Band with
// arbitrary channels and frequencies, each answer checked against the others and against
// the compatible interface's GetFreq.
#include "fuzzinput.h"

#include <saiskuko/bandplan.h>

#include <cmath>

namespace {

using saiskuko::Band;
using saiskuko::Link;

// Every band, and the names the typed API itself writes for them, with the forms
// engineers type, so that mutations start near a real name.
struct Typed
{
    QList<Band> bands = saiskuko::allBands();
    QStringList names;

    Typed()
    {
        for (const Band &b : bands)
            names << b.standard() << b.shortName() << QString::number(b.code());
        for (const saiskuko::Technology t : saiskuko::technologies())
            for (const QString &form : saiskuko::technologyShortForms(t))
                names << form + QLatin1String(":1");
        names << QStringLiteral("B7") << QStringLiteral("b1") << QStringLiteral("band1")
              << QStringLiteral("N78") << QStringLiteral("n78") << QStringLiteral("bc0")
              << QStringLiteral("WCDMA:IV") << QStringLiteral("LTE:07") << QStringLiteral("GSM:900")
              << QStringLiteral("WCDMA:2-additional") << QStringLiteral("GSM:dcs1800");
    }
};

const Typed &typed()
{
    static const Typed t;
    return t;
}

bool sameBand(const saiskuko::Result<Band> &found, const Band &band)
{
    return found.ok() && found.value() == band;
}

// A found band names itself back: by its standard text, its code and its short name.
void checkFound(const saiskuko::Result<Band> &found)
{
    if (!found.ok()) {
        FUZZ_CHECK(!found.error().message.isEmpty());
        return;
    }
    const Band &b = found.value();
    FUZZ_CHECK(b.isValid());
    FUZZ_CHECK(sameBand(saiskuko::findBand(b.standard()), b));
    FUZZ_CHECK(sameBand(saiskuko::bandByCode(b.code()), b));
    const QString shortName = b.shortName();
    FUZZ_CHECK(shortName.isEmpty() || sameBand(saiskuko::findBand(shortName), b));
}

Link linkOf(fuzz::Input &in)
{
    return in.pick(16) ? Link(in.pick(2)) : Link(in.link()); // now and then no link at all
}

// A channel may have several centres (records with their own formulas): true when one
// of them is within half a hertz of mhz.
bool centredAt(const Band &b, Link link, int channel, double mhz)
{
    for (const double centre : b.frequencies(link, channel))
        if (std::fabs(centre - mhz) <= 0.5e-6)
            return true;
    return false;
}

// frequency() agrees with frequencies() and, wherever both answer, with GetFreq bit for bit.
void checkFrequency(const Band &b, Link link, int channel)
{
    const saiskuko::Result<double> f = b.frequency(link, channel);
    const QList<double> all = b.frequencies(link, channel);
    FUZZ_CHECK(f.ok() == !all.isEmpty());
    if (!f.ok())
        return;
    FUZZ_CHECK(std::isfinite(f.value()) && fuzz::bitsOf(all.first()) == fuzz::bitsOf(f.value()));
    // In an FDD "Band Global" GetFreq takes the first record of either link, which in WCDMA
    // can be another band's uplink for a downlink channel: the typed API keeps to the link.
    if (b.isGlobal() && b.duplex() != saiskuko::Duplex::Tdd)
        return;
    const double legacy = G_CHSTD.GetFreq(b.technologyName(), b.name(), int(link), channel);
    FUZZ_CHECK(legacy == -1.0 || fuzz::bitsOf(legacy) == fuzz::bitsOf(f.value()));
}

// Every channel listed at a frequency is centred there; the nearest channel is a channel.
void checkChannelsAt(const Band &b, Link link, double mhz)
{
    const saiskuko::Result<QList<int>> at = b.channelsAt(link, mhz);
    const saiskuko::Result<int> nearest = b.nearestChannel(link, mhz);
    if (!std::isfinite(mhz))
        FUZZ_CHECK(!at.ok() && !nearest.ok());
    if (at.ok()) {
        FUZZ_CHECK(!at.value().isEmpty());
        for (const int channel : at.value())
            FUZZ_CHECK(centredAt(b, link, channel, mhz));
        FUZZ_CHECK(nearest.ok() && at.value().contains(nearest.value()));
    }
    if (nearest.ok())
        FUZZ_CHECK(b.frequency(link, nearest.value()).ok());
}

// A paired channel is a channel of the other link, paired back with the first.
void checkPaired(const Band &b, Link link, int channel)
{
    const saiskuko::Result<int> paired = b.pairedChannel(link, channel);
    if (!paired.ok())
        return;
    const Link other = link == Link::Up ? Link::Down : Link::Up;
    FUZZ_CHECK(b.duplex() == saiskuko::Duplex::Fdd);
    FUZZ_CHECK(b.frequency(link, channel).ok() && b.frequency(other, paired.value()).ok());
    // "Band Global" repeats every band of its technology and pairs by the offset of the first
    // one holding the channel, which need not be the band the pair lies in.
    if (b.isGlobal())
        return;
    const saiskuko::Result<int> back = b.pairedChannel(other, paired.value());
    FUZZ_CHECK(back.ok() && back.value() == channel);
}

// Every hit converts back to its own channel frequency, nearest first to the
// hertz (offsets equal to the hertz keep band order).
void checkSearch(double mhz)
{
    const QList<saiskuko::SearchHit> hits = saiskuko::search(mhz);
    FUZZ_CHECK(std::isfinite(mhz) || hits.isEmpty());
    long long previous = 0;
    for (const saiskuko::SearchHit &hit : hits) {
        FUZZ_CHECK(hit.band.isValid() && !hit.band.isGlobal());
        FUZZ_CHECK(hit.band.frequencies(hit.link, hit.channel).contains(hit.channelMHz));
        FUZZ_CHECK(hit.offsetMHz == hit.channelMHz - mhz);
        const long long hertz = std::llround(std::fabs(hit.offsetMHz) * 1e6);
        FUZZ_CHECK(hertz >= previous);
        previous = hertz;
    }
}

// The bands listed for a channel hold it, and a band that holds it is listed.
void checkBandsWithChannel(const Band &b, int channel)
{
    const QList<Band> listed = saiskuko::bandsWithChannel(channel);
    for (const Band &with : listed) {
        FUZZ_CHECK(!with.isGlobal());
        FUZZ_CHECK(with.frequency(Link::Down, channel).ok()
                   || with.frequency(Link::Up, channel).ok());
    }
    if (b.isValid() && !b.isGlobal()
        && (b.frequency(Link::Down, channel).ok() || b.frequency(Link::Up, channel).ok()))
        FUZZ_CHECK(listed.contains(b));
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    fuzz::silence();
    typed();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    fuzz::Input in(data, size);
    const QList<Band> &bands = typed().bands;
    while (in.more()) {
        // Now and then the invalid band, which must answer every query with UnknownBand.
        const Band b = in.pick(32) ? bands.value(in.pick(bands.size())) : Band();
        const Link link = linkOf(in);
        switch (in.pick(8)) {
        case 0:
            checkFound(saiskuko::findBand(in.flag() ? in.text(96) : in.name(typed().names)));
            break;
        case 1:
            checkFound(saiskuko::findBand(in.standard()));
            checkFound(saiskuko::bandByCode(in.code()));
            break;
        case 2:
            checkFrequency(b, link, in.channel());
            break;
        case 3:
            checkChannelsAt(b, link, in.freq());
            break;
        case 4:
            checkPaired(b, link, in.channel());
            break;
        case 5:
            checkSearch(in.freq());
            break;
        case 6:
            checkBandsWithChannel(b, in.channel());
            break;
        default: {
            const double mhz = in.freq();
            b.withinEdges(link, mhz);
            b.records(link);
            b.links();
            b.duplex();
            if (!b.isValid())
                FUZZ_CHECK(b.frequency(link, 1).error().code == saiskuko::ErrorCode::UnknownBand
                           && b.nearestChannel(link, mhz).error().code
                                  == saiskuko::ErrorCode::UnknownBand);
            break;
        }
        }
    }
    return 0;
}
