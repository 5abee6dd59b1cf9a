// A band's records, links, and its conversions between channels and frequencies.
#include "typedapi/typedapi_p.h"

#include "bandplan/channelsearch.h"
#include "store/chbandstore_p.h"

#include <cmath>
#include <limits>

namespace saiskuko {
namespace typed {

QString linkWord(Link link)
{
    switch (link) {
    case Link::Down:
        return QStringLiteral("downlink");
    case Link::Up:
        return QStringLiteral("uplink");
    }
    return QStringLiteral("link %1").arg(int(link));
}

} // namespace typed

namespace {

using namespace typed;

// Half a hertz: text rounds to 1 Hz, and every raster is a whole number of Hz.
constexpr double kSameCentreMHz = 0.5e-6;

// Records of formulas the library does not know are walked channel by channel
// up to this many channels; longer ones are bisected as if their frequencies
// grew from the first channel to the last (or, falling, walked this far).
constexpr qint64 kWalkLimit = qint64(1) << 20;

struct Range
{
    double low, high;
};

double centreOf(const stSubBand &r, qint64 channel)
{
    return recordFreq(r, int(channel));
}

// "a downlink", "an uplink".
QString withArticle(Link link)
{
    return (link == Link::Up ? QLatin1String("an ") : QLatin1String("a ")) + linkWord(link);
}

Error invalidBand()
{
    return failure(ErrorCode::UnknownBand, QStringLiteral("not a band of the library"));
}

Error linkNotServed(const Band &band, Link link)
{
    return failure(ErrorCode::LinkNotServed, band.standard() + QLatin1String(" has no ")
                                                 + linkWord(link) + QLatin1String(" channels"));
}

Error notFinite()
{
    return failure(ErrorCode::NotFinite,
                   QStringLiteral("the frequency is not a finite number of MHz"));
}

// "0-599, 18000-18599": the channels of the link's records.
QString channelRangesText(const ChBand &data, Link link, Duplex duplex)
{
    QStringList ranges;
    anyRecord(data, link, duplex, [&](const stSubBand &r) {
        ranges << (r.StartChannelNo == r.StopChannelNo
                       ? QString::number(r.StartChannelNo)
                       : QStringLiteral("%1-%2").arg(r.StartChannelNo).arg(r.StopChannelNo));
        return false;
    });
    return ranges.join(QLatin1String(", "));
}

Error channelNotInBand(const Band &band, const ChBand &data, Link link, Duplex duplex, int channel)
{
    const QString ranges = channelRangesText(data, link, duplex);
    return failure(ErrorCode::ChannelNotInBand,
                   QStringLiteral("channel %1 is not %2 channel of %3; %4")
                       .arg(channel)
                       .arg(withArticle(link), band.standard(),
                            ranges.isEmpty() ? QLatin1String("it has none")
                                             : QLatin1String("channels: ") + ranges));
}

// Calls visit(record, its search facts) for every real record of the link
// that holds channels, in registration order.
template <typename Visit>
void eachSearchedRecord(int tech, int slot, const ChBand &data, Link link, Duplex duplex,
                        Visit visit)
{
    const KnownRecords known = SearchIndex::find(store(), tech, slot);
    RecordSearch scratch;
    const int n = recordCount(data);
    for (int i = 0; i < n; ++i) {
        const stSubBand &r = data.SubBands[i];
        if (answers(r, link, duplex) && r.StartChannelNo <= r.StopChannelNo)
            visit(r, known.of(i, r, &scratch));
    }
}

// Widens [low, high] to the lowest and highest channel centre of a record.
void centreSpan(const stSubBand &r, const RecordSearch &facts, double *low, double *high)
{
    if (facts.spaced) {
        *low = std::fmin(*low, facts.freqAtSteps(facts.firstSteps));
        *high = std::fmax(*high, facts.freqAtSteps(facts.lastSteps));
        return;
    }
    const qint64 start = r.StartChannelNo;
    const qint64 stop = r.StopChannelNo;
    if (monotonicTraits(r) || stop - start >= kWalkLimit) {
        *low = std::fmin(*low, std::fmin(centreOf(r, start), centreOf(r, stop)));
        *high = std::fmax(*high, std::fmax(centreOf(r, start), centreOf(r, stop)));
        return;
    }
    for (qint64 ch = start; ch <= stop; ++ch) {
        *low = std::fmin(*low, centreOf(r, ch));
        *high = std::fmax(*high, centreOf(r, ch));
    }
}

// The first channel of a record, from `from` on, whose centre is at least
// mhz, for a record whose centres do not fall; stop + 1 when none is.
qint64 firstAtLeast(const stSubBand &r, qint64 from, double mhz)
{
    const FormulaTraits *traits = monotonicTraits(r);
    const qint64 guess = traits ? estimateChannel(*traits, r, mhz) : from;
    return firstTrueNear(from, r.StopChannelNo, guess,
                         [&](qint64 ch) { return centreOf(r, ch) >= mhz; });
}

// Whether a record is searched by bisection rather than walked.
bool bisected(const stSubBand &r)
{
    if (monotonicTraits(r))
        return true;
    return qint64(r.StopChannelNo) - r.StartChannelNo >= kWalkLimit
           && centreOf(r, r.StartChannelNo) <= centreOf(r, r.StopChannelNo);
}

void addOnce(QList<int> *channels, qint64 channel)
{
    if (!channels->contains(int(channel)))
        channels->append(int(channel));
}

// Appends the record's channels centred within half a hertz of mhz, ascending.
void collectChannelsAt(const stSubBand &r, const RecordSearch &facts, double mhz,
                       QList<int> *channels)
{
    const auto near = [&](double centre) { return std::fabs(centre - mhz) <= kSameCentreMHz; };
    if (facts.spaced) {
        const double nearest = facts.nearestSteps(mhz);
        if (!near(facts.freqAtSteps(nearest)))
            return;
        double low = nearest;
        while (low > facts.firstSteps && near(facts.freqAtSteps(low - 1)))
            low -= 1;
        double steps = low;
        do {
            addOnce(channels, facts.channelAt(steps));
            steps += 1;
        } while (steps <= facts.lastSteps && near(facts.freqAtSteps(steps)));
        return;
    }
    // Bisected: the run of matches starts at the first centre not below the
    // window; walked: every channel. Either way no more than the limit.
    const bool bisect = bisected(r);
    qint64 ch = r.StartChannelNo;
    if (bisect)
        ch = firstAtLeast(r, ch, mhz - kSameCentreMHz);
    const qint64 last = qMin(qint64(r.StopChannelNo), ch + kWalkLimit - 1);
    for (; ch <= last; ++ch) {
        if (near(centreOf(r, ch)))
            addOnce(channels, ch);
        else if (bisect)
            break;
    }
}

// The nearest channel found so far, and its distance from the frequency.
struct Nearest
{
    qint64 channel = -1;
    double distance = HUGE_VAL;

    void consider(qint64 ch, double centre, double mhz)
    {
        const double d = std::fabs(centre - mhz);
        if (d < distance) {
            distance = d;
            channel = ch;
        }
    }
};

// Offers the record's channels nearest to mhz, ascending, so that a tie goes
// to the lower channel.
void offerNearest(const stSubBand &r, const RecordSearch &facts, double mhz, Nearest *best)
{
    if (facts.spaced) {
        const double steps = facts.nearestSteps(mhz);
        for (int offset = -1; offset <= 1; ++offset) {
            const double s = steps + offset;
            if (s >= facts.firstSteps && s <= facts.lastSteps)
                best->consider(facts.channelAt(s), facts.freqAtSteps(s), mhz);
        }
        return;
    }
    if (bisected(r)) {
        const qint64 above = firstAtLeast(r, r.StartChannelNo, mhz);
        if (above > r.StartChannelNo) {
            // The lowest channel sharing the centre just below.
            const qint64 below = firstAtLeast(r, r.StartChannelNo, centreOf(r, above - 1));
            best->consider(below, centreOf(r, below), mhz);
        }
        if (above <= r.StopChannelNo)
            best->consider(above, centreOf(r, above), mhz);
        return;
    }
    const qint64 last = qMin(qint64(r.StopChannelNo), r.StartChannelNo + kWalkLimit - 1);
    for (qint64 ch = r.StartChannelNo; ch <= last; ++ch)
        best->consider(ch, centreOf(r, ch), mhz);
}

// The record's channel centres, widened by half a raster step each way.
Range centreRange(const stSubBand &r)
{
    const double first = recordFreq(r, r.StartChannelNo);
    const double last = recordFreq(r, r.StopChannelNo);
    const double halfStep = r.StartChannelNo < r.StopChannelNo
                                ? std::fabs(recordFreq(r, r.StartChannelNo + 1) - first) / 2
                                : 0.0;
    return {std::fmin(first, last) - halfStep, std::fmax(first, last) + halfStep};
}

// The record as the typed API reports it. Its span reaches out to its edges
// on a side where no other record of the band stating the same edges lies
// further out: edges shared by records hold nothing between them.
Record reported(const ChBand &data, const stSubBand &r)
{
    Record record;
    record.link = r.Link == 1 ? Link::Up : Link::Down;
    record.firstChannel = r.StartChannelNo;
    record.lastChannel = r.StopChannelNo;
    record.lowEdgeMHz = r.StartFreq;
    record.highEdgeMHz = r.StopFreq;
    record.firstMHz = recordFreq(r, r.StartChannelNo);
    record.lastMHz = recordFreq(r, r.StopChannelNo);
    if (r.StartChannelNo < r.StopChannelNo)
        record.stepMHz = recordFreq(r, r.StartChannelNo + 1) - record.firstMHz;
    const Range own = centreRange(r);
    bool lowest = true, highest = true;
    const int n = ::recordCount(data);
    for (int i = 0; i < n; ++i) {
        const stSubBand &other = data.SubBands[i];
        if (isPlaceholder(other) || other.StartFreq != r.StartFreq || other.StopFreq != r.StopFreq)
            continue;
        const Range span = centreRange(other);
        lowest = lowest && span.low >= own.low;
        highest = highest && span.high <= own.high;
    }
    record.spanLowMHz = lowest ? std::fmin(own.low, r.StartFreq) : own.low;
    record.spanHighMHz = highest ? std::fmax(own.high, r.StopFreq) : own.high;
    return record;
}

// Why Band::frequency has no answer (out of line: the answer's path stays short).
// Why Band::channelsAt (or, before its search, Band::nearestChannel) has no answer.
Q_NEVER_INLINE Error noChannelAt(const Band &band, Link link, double mhz)
{
    const ChBand *data = bandData(band);
    if (!data)
        return invalidBand();
    if (!std::isfinite(mhz))
        return notFinite();
    const Duplex duplex = band.duplex();
    if (!anyRecord(*data, link, duplex, [](const stSubBand &) { return true; }))
        return linkNotServed(band, link);
    double low = HUGE_VAL, high = -HUGE_VAL;
    eachSearchedRecord(
        BandAccess::tech(band), BandAccess::slot(band), *data, link, duplex,
        [&](const stSubBand &r, const RecordSearch &facts) { centreSpan(r, facts, &low, &high); });
    if (!(mhz >= low - kSameCentreMHz && mhz <= high + kSameCentreMHz))
        return failure(ErrorCode::FrequencyNotInBand,
                       QStringLiteral("%1 MHz lies outside the %2 channels of %3 (%4 to %5 MHz)")
                           .arg(formatMHz(mhz), linkWord(link), band.standard(), formatMHz(low),
                                formatMHz(high)));
    return failure(ErrorCode::NotAChannelCentre,
                   QStringLiteral("%1 MHz is not %2 channel centre of %3")
                       .arg(formatMHz(mhz), withArticle(link), band.standard()));
}

} // namespace

QList<Link> Band::links() const
{
    QList<Link> out;
    const ChBand *data = bandData(*this);
    if (!data)
        return out;
    const Duplex duplex = cachedDuplex(m_tech, m_band, *data);
    for (Link link : {Link::Up, Link::Down}) {
        if (anyRecord(*data, link, duplex, [](const stSubBand &) { return true; }))
            out << link;
    }
    return out;
}

QList<Record> Band::records(Link link) const
{
    QList<Record> out;
    const ChBand *data = bandData(*this);
    if (!data)
        return out;
    anyRecord(*data, link, cachedDuplex(m_tech, m_band, *data), [&](const stSubBand &r) {
        out << reported(*data, r);
        return false;
    });
    return out;
}

QList<Record> Band::records() const
{
    QList<Record> out;
    const ChBand *data = bandData(*this);
    const int n = data ? ::recordCount(*data) : 0;
    for (int i = 0; i < n; ++i) {
        if (!isPlaceholder(data->SubBands[i]))
            out << reported(*data, data->SubBands[i]);
    }
    return out;
}

int Band::recordCount() const
{
    const ChBand *data = bandData(*this);
    return data ? ::recordCount(*data) : 0;
}

bool Band::withinEdges(Link link, double mhz) const
{
    const ChBand *data = bandData(*this);
    return data
           && anyRecord(*data, link, cachedDuplex(m_tech, m_band, *data), [&](const stSubBand &r) {
                  return r.StartFreq - kSameCentreMHz <= mhz && mhz <= r.StopFreq + kSameCentreMHz;
              });
}

namespace {

// The centre of the channel from the first real record of the link that
// holds it; NaN when none does.
inline double firstCentre(const ChBand &data, int records, Link link, int channel, Duplex duplex)
{
    for (int i = 0; i < records; ++i) {
        const stSubBand &r = data.SubBands[i];
        if (holdsChannel(r, channel) && servesLinkOfBand(r, int(link), duplex == Duplex::Tdd)
            && !isPlaceholder(r))
            return recordFreq(r, channel);
    }
    return std::numeric_limits<double>::quiet_NaN();
}

// Band::centreOrNaN for a band whose duplex is not decided yet: out of line,
// so that the quick path makes no call but the formula's.
Q_NEVER_INLINE double centreOnceDecided(int tech, int slot, const ChBand &data, int records,
                                        Link link, int channel)
{
    return firstCentre(data, records, link, channel, decideDuplex(tech, slot, data));
}

} // namespace

double Band::centreOrNaN(Link link, int channel) const
{
    if (Q_UNLIKELY(!m_data))
        return std::numeric_limits<double>::quiet_NaN();
    const int n = ::recordCount(*m_data);
    Duplex duplex;
    if (Q_UNLIKELY(!keptDuplex(m_tech, m_band, n, &duplex)))
        return centreOnceDecided(m_tech, m_band, *m_data, n, link, channel);
    return firstCentre(*m_data, n, link, channel, duplex);
}

Result<double> Band::noFrequency(Link link, int channel) const
{
    const ChBand *data = bandData(*this);
    if (!data)
        return invalidBand();
    const Duplex duplex = this->duplex();
    if (!anyRecord(*data, link, duplex, [](const stSubBand &) { return true; }))
        return linkNotServed(*this, link);
    return channelNotInBand(*this, *data, link, duplex, channel);
}

QList<double> Band::frequencies(Link link, int channel) const
{
    QList<double> out;
    const ChBand *data = bandData(*this);
    if (!data)
        return out;
    anyRecord(*data, link, cachedDuplex(m_tech, m_band, *data), [&](const stSubBand &r) {
        const double mhz = recordFreq(r, channel);
        if (holdsChannel(r, channel) && std::isfinite(mhz) && !out.contains(mhz))
            out << mhz;
        return false;
    });
    return out;
}

Result<QList<int>> Band::channelsAt(Link link, double mhz) const
{
    const ChBand *data = bandData(*this);
    if (Q_UNLIKELY(!data || !std::isfinite(mhz)))
        return noChannelAt(*this, link, mhz);
    QList<int> channels;
    eachSearchedRecord(m_tech, m_band, *data, link, cachedDuplex(m_tech, m_band, *data),
                       [&](const stSubBand &r, const RecordSearch &facts) {
                           collectChannelsAt(r, facts, mhz, &channels);
                       });
    if (Q_LIKELY(!channels.isEmpty()))
        return channels;
    return noChannelAt(*this, link, mhz);
}

namespace typed {

int nearestChannelOrNone(const Band &band, Link link, double mhz, double *low, double *high)
{
    const ChBand *data = bandData(band);
    *low = HUGE_VAL;
    *high = -HUGE_VAL;
    if (!data || !std::isfinite(mhz))
        return -1;
    const int tech = BandAccess::tech(band), slot = BandAccess::slot(band);
    Nearest best;
    eachSearchedRecord(tech, slot, *data, link, cachedDuplex(tech, slot, *data),
                       [&](const stSubBand &r, const RecordSearch &facts) {
                           *low = std::fmin(*low, r.StartFreq);
                           *high = std::fmax(*high, r.StopFreq);
                           centreSpan(r, facts, low, high);
                           offerNearest(r, facts, mhz, &best);
                       });
    // A channel centred on an edge counts from half a hertz away, as in channelsAt().
    const bool within = *low - kSameCentreMHz <= mhz && mhz <= *high + kSameCentreMHz;
    return within && best.channel >= 0 ? int(best.channel) : -1;
}

} // namespace typed

Result<int> Band::nearestChannel(Link link, double mhz) const
{
    double low, high;
    const int channel = typed::nearestChannelOrNone(*this, link, mhz, &low, &high);
    if (Q_LIKELY(channel >= 0))
        return channel;
    const ChBand *data = bandData(*this);
    if (Q_UNLIKELY(!data || !std::isfinite(mhz)))
        return noChannelAt(*this, link, mhz);
    if (!anyRecord(*data, link, cachedDuplex(m_tech, m_band, *data),
                   [](const stSubBand &) { return true; }))
        return linkNotServed(*this, link);
    return failure(
        ErrorCode::FrequencyNotInBand,
        QStringLiteral("%1 MHz lies outside the %2 range of %3 (%4 to %5 MHz)")
            .arg(formatMHz(mhz), linkWord(link), standard(), formatMHz(low), formatMHz(high)));
}

Result<int> Band::pairedChannel(Link link, int channel) const
{
    const ChBand *data = bandData(*this);
    if (!data)
        return invalidBand();
    const Duplex duplex = cachedDuplex(m_tech, m_band, *data);
    const auto holds = [&](Link which, qint64 ch) {
        return anyRecord(*data, which, duplex,
                         [&](const stSubBand &r) { return holdsChannel(r, int(ch)); });
    };
    if (!holds(link, channel))
        return channelNotInBand(*this, *data, link, duplex, channel);
    if (duplex != Duplex::Fdd)
        return failure(ErrorCode::NoPairedChannel,
                       standard() + QLatin1String(" is ") + duplexName(duplex)
                           + QLatin1String(": it has no paired channels"));
    const int offset = offsetChUpDownIn(m_tech, *data, data->BandName, channel);
    const qint64 paired = link == Link::Up ? qint64(channel) - offset : qint64(channel) + offset;
    const Link other = link == Link::Up ? Link::Down : Link::Up;
    if (offset == 0 || paired < std::numeric_limits<int>::min()
        || paired > std::numeric_limits<int>::max() || !holds(other, paired))
        return failure(ErrorCode::NoPairedChannel,
                       QStringLiteral("%1 channel %2 of %3 has no paired %4 channel")
                           .arg(linkWord(link))
                           .arg(channel)
                           .arg(standard(), linkWord(other)));
    return int(paired);
}

} // namespace saiskuko
