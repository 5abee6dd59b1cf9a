// The program's commands: arguments turned into typed API queries, answers into rows.
#include "commands.h"

#include "chartsvg.h"

#include <saiskuko/saiskuko.h>

#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QMap>
#include <QtCore/QRegularExpression>

#include <algorithm>
#include <climits>
#include <cmath>
#include <utility>

using saiskuko::Band;
using saiskuko::Duplex;
using saiskuko::Link;
using saiskuko::Record;

namespace {

using Range = std::pair<double, double>;

// A channel is a whole number of digits: "1e2" and "300.0" are not, however
// whole the value they stand for.
int parseChannel(const QString &text)
{
    const QString digits = text.trimmed();
    bool ok = false;
    const int channel = digits.toInt(&ok, 10);
    if (ok && channel >= 0)
        return channel;
    static const QRegularExpression digitsOnly(QStringLiteral("^[+-]?[0-9]+$"));
    const bool whole = digitsOnly.match(digits).hasMatch();
    const QString what = QLatin1String("channel ") + echoed(text);
    if (!whole)
        throw BadInput{what + QLatin1String(" is not a whole number")};
    if (digits.startsWith(QLatin1Char('-')))
        throw BadInput{what + QLatin1String(" must not be negative")};
    throw BadInput{what + QStringLiteral(" is out of range (0 to %1)").arg(INT_MAX)};
}

double parseMHz(const QString &text)
{
    bool ok = false;
    const double mhz = text.trimmed().toDouble(&ok);
    const QString what = QLatin1String("frequency ") + echoed(text);
    if (!ok)
        throw BadInput{what + QLatin1String(" is not a number of MHz")};
    if (mhz < 0)
        throw BadInput{what + QLatin1String(" must be positive")};
    if (!std::isfinite(mhz))
        throw BadInput{what + QLatin1String(" is out of range")};
    return mhz;
}

// Every argument parsed, before any is looked up: bad input answers nothing.
template <typename T>
QList<T> parseEach(const QStringList &args, T (*parse)(const QString &))
{
    QList<T> values;
    for (const QString &arg : args)
        values << parse(arg);
    return values;
}

QList<Link> linksFor(const Band &band, const CommandOptions &options)
{
    return options.links.isEmpty() ? band.links() : options.links;
}

// A range as a JSON pair, and as text ("1-799").
Cell rangeCell(double first, double last)
{
    return {QJsonArray{first, last}, formatMHz(first) + QLatin1Char('-') + formatMHz(last)};
}

// A list as a JSON array, and as text joined by separator (none for an empty one).
Cell listCell(const QStringList &list, const char *separator, const char *none = "-")
{
    return {QJsonArray::fromStringList(list),
            list.isEmpty() ? QLatin1String(none) : list.join(QLatin1String(separator))};
}

// Sorted, with overlapping ranges (and, for channels, adjacent ones) merged:
// as JSON pairs, and as text ("1-799,991-1023", "-" for none).
Cell ranges(QList<Range> list, double adjacency)
{
    std::sort(list.begin(), list.end());
    QList<Range> merged;
    for (const Range &r : list) {
        if (!merged.isEmpty() && r.first <= merged.last().second + adjacency)
            merged.last().second = std::max(merged.last().second, r.second);
        else
            merged.append(r);
    }
    QJsonArray json;
    QStringList text;
    for (const Range &r : merged) {
        const Cell cell = rangeCell(r.first, r.second);
        json.append(cell.json);
        text << cell.text;
    }
    return {json, listCell(text, ",").text};
}

// "uplink"/"downlink" for JSON, and the cell that shows it as linkShort.
QString linkWord(Link link)
{
    return link == Link::Up ? QStringLiteral("uplink") : QStringLiteral("downlink");
}

Cell linkCell(Link link)
{
    return {linkWord(link), linkShort(link)};
}

// A band's rows start with its title ("LTE-FDD - Band 1 (2100) [201]"), and
// its JSON with the band.
Outcome bandOutcome(const Band &band, const char *rowsKey,
                    std::initializer_list<const char *> columnSpecs)
{
    Outcome out(rowsKey, columnSpecs);
    out.heading = band.standard() + QStringLiteral(" [%1]").arg(band.code());
    out.json.insert(QStringLiteral("band"),
                    QJsonObject{{QStringLiteral("code"), band.code()},
                                {QStringLiteral("technology"), band.technologyName()},
                                {QStringLiteral("band"), band.name()},
                                {QStringLiteral("duplex"), saiskuko::duplexName(band.duplex())}});
    return out;
}

// The band and link of a row of search or which.
Row bandLinkCells(const Band &band, Link link)
{
    return {band.code(), band.technologyName(), band.name(), linkCell(link)};
}

// ---------------------------------------------------------------- commands

Outcome runTechs(const QStringList &, const CommandOptions &)
{
    Outcome out("technologies", {">SLOT|slot", "TECH|name", ">BANDS|bands",
                                 ">INT BW HZ|defaultIntegrationBandwidthHz", "SHORT|shortForms"});
    for (saiskuko::Technology tech : saiskuko::technologies())
        out.rows << Row{int(tech), saiskuko::technologyName(tech), saiskuko::bands(tech).size(),
                        saiskuko::defaultIntegrationBandwidthHz(tech),
                        listCell(saiskuko::technologyShortForms(tech), ",")};
    return out;
}

Outcome runBands(const QStringList &args, const CommandOptions &)
{
    const saiskuko::Technology tech = valueOrBadInput(saiskuko::findTechnology(args[0]));
    Outcome out("bands", {">CODE|code", "BAND|band", "UL CHANNELS|uplink", "UL MHZ|",
                          "DL CHANNELS|downlink", "DL MHZ|", ">RECORDS|records", "DUPLEX|duplex",
                          "|technology", "|standard", "|global"});
    out.json.insert(QStringLiteral("technology"), saiskuko::technologyName(tech));
    for (const Band &band : saiskuko::bands(tech)) {
        Row row{band.code(), band.name()};
        for (Link link : {Link::Up, Link::Down}) {
            QList<Range> channels, edges;
            for (const Record &r : band.records(link)) {
                channels.append({r.firstChannel, r.lastChannel});
                edges.append({r.lowEdgeMHz, r.highEdgeMHz});
            }
            const Cell channelCell = ranges(channels, 1), edgeCell = ranges(edges, 0);
            const QJsonObject json{{QStringLiteral("channels"), channelCell.json},
                                   {QStringLiteral("mhz"), edgeCell.json}};
            // A global band repeats every band; its dozens of ranges would
            // only widen the table (JSON keeps them).
            const bool global = band.isGlobal() && !channels.isEmpty();
            row << Cell{channels.isEmpty() ? QJsonValue() : json,
                        global ? QStringLiteral("(all bands)") : channelCell.text}
                << Cell{QJsonValue(), global ? QStringLiteral("(all bands)") : edgeCell.text};
        }
        row << band.recordCount() << saiskuko::duplexName(band.duplex()) << band.technologyName()
            << band.standard() << band.isGlobal();
        out.rows << row;
    }
    return out;
}

Outcome runBand(const QStringList &args, const CommandOptions &)
{
    const Band band = valueOrBadInput(saiskuko::findBand(args[0]));
    Outcome out = bandOutcome(band, "records",
                              {"DIR|direction", "CHANNELS|channels", "EDGES MHZ|edgesMHz",
                               "FIRST MHZ|firstMHz", "LAST MHZ|lastMHz", "STEP MHZ|stepMHz",
                               "DUPLEX|", ">PAIR OFFSET|pairOffset"});
    for (const Record &r : band.records()) {
        const saiskuko::Result<int> paired = band.pairedChannel(r.link, r.firstChannel);
        const int offset = (paired.value() - r.firstChannel) * (r.link == Link::Up ? -1 : 1);
        out.rows << Row{linkCell(r.link),
                        rangeCell(r.firstChannel, r.lastChannel),
                        rangeCell(r.lowEdgeMHz, r.highEdgeMHz),
                        r.firstMHz,
                        r.lastMHz,
                        r.lastChannel > r.firstChannel ? QJsonValue(decimalMHz(r.stepMHz))
                                                       : QJsonValue(),
                        saiskuko::duplexName(band.duplex()),
                        paired.ok() ? QJsonValue(offset) : QJsonValue()};
    }
    return out;
}

// The channels of the other link paired with a channel, for text ("UL 18300
// 1950") and JSON; nothing where the band is not paired.
void addPair(const Band &band, Link link, int channel, QStringList *text, QJsonArray *json)
{
    const saiskuko::Result<int> other = band.pairedChannel(link, channel);
    if (!other.ok())
        return;
    const Link otherLink = link == Link::Up ? Link::Down : Link::Up;
    const saiskuko::Result<double> mhz = band.frequency(otherLink, other.value());
    *text << linkShort(otherLink) + QLatin1Char(' ') + QString::number(other.value())
                 + QLatin1Char(' ') + (mhz.ok() ? formatMHz(mhz.value()) : QStringLiteral("-"));
    json->append(
        QJsonObject{{QStringLiteral("direction"), linkWord(otherLink)},
                    {QStringLiteral("channel"), other.value()},
                    {QStringLiteral("mhz"), mhz.ok() ? QJsonValue(mhz.value()) : QJsonValue()}});
}

// A note where a channel's centre lies outside the band's stated edges (the
// band plan has such records; they convert all the same).
void noteOutsideEdges(const Band &band, Link link, int channel, double centre, Outcome *out)
{
    if (!band.withinEdges(link, centre))
        out->notes << QStringLiteral("%1 channel %2 (%3 MHz) lies outside the stated edges of %4")
                          .arg(linkShort(link), QString::number(channel), formatMHz(centre),
                               band.standard());
}

Outcome runFreq(const QStringList &args, const CommandOptions &options)
{
    const Band band = valueOrBadInput(saiskuko::findBand(args[0]));
    const QList<int> channels = parseEach(args.mid(1), parseChannel);
    const QList<Link> links = linksFor(band, options);
    const bool paired = band.duplex() == Duplex::Fdd;

    Outcome out = bandOutcome(band, "results", {"CHANNEL|channel"});
    QStringList words;
    for (Link link : links) {
        out.columns << Column{linkShort(link) + QLatin1String(" MHZ"), linkWord(link)};
        words << linkWord(link);
    }
    if (paired)
        out.columns << columns({"PAIRED|paired"});
    bool any = false;
    for (int channel : channels) {
        Row row{channel};
        QStringList pairText;
        QJsonArray pairs;
        bool found = false;
        for (Link link : links) {
            const saiskuko::Result<double> mhz = band.frequency(link, channel);
            found = found || mhz.ok();
            row << (mhz.ok() ? QJsonValue(mhz.value()) : QJsonValue());
            if (mhz.ok()) {
                addPair(band, link, channel, &pairText, &pairs);
                noteOutsideEdges(band, link, channel, mhz.value(), &out);
            }
        }
        if (paired)
            row << Cell{pairs, listCell(pairText, ", ").text};
        out.rows << row;
        any = any || found;
        if (!found)
            out.noResult(QStringLiteral("channel %1 is not in %2 (%3)")
                             .arg(QString::number(channel), band.standard(),
                                  words.join(QLatin1String(" or "))));
    }
    if (!any) // nothing to show but dashes
        out.rows.clear();
    return out;
}

// The centre of a channel nearest to mhz: a channel two records hold with
// different formulas has a centre in each.
double centreNear(const Band &band, Link link, int channel, double mhz)
{
    double best = HUGE_VAL;
    for (double centre : band.frequencies(link, channel)) {
        if (std::fabs(centre - mhz) < std::fabs(best - mhz))
            best = centre;
    }
    return best;
}

Outcome runChannel(const QStringList &args, const CommandOptions &options)
{
    const Band band = valueOrBadInput(saiskuko::findBand(args[0]));
    const QList<double> freqs = parseEach(args.mid(1), parseMHz);
    const QList<Link> links = linksFor(band, options);

    Outcome out = bandOutcome(band, "results", {"MHZ|mhz"});
    out.json.insert(QStringLiteral("preferred"),
                    options.preferred ? QJsonValue(*options.preferred) : QJsonValue());
    out.json.insert(QStringLiteral("nearest"), options.nearest);
    for (Link link : links) {
        out.columns << Column{linkShort(link) + QLatin1String(" CHANNEL"), linkWord(link)};
        if (options.nearest)
            out.columns << Column{linkShort(link) + QLatin1String(" OFFSET MHZ"), QString()};
    }
    bool any = false;
    for (int i = 0; i < freqs.size(); ++i) {
        Row row{{freqs[i], args[i + 1].trimmed()}};
        bool answered = false;
        for (Link link : links) {
            // Every channel of the link centred there, or the nearest one.
            QList<int> found;
            if (!options.nearest)
                found = band.channelsAt(link, freqs[i]).value();
            else if (const saiskuko::Result<int> n = band.nearestChannel(link, freqs[i]); n.ok())
                found = {n.value()};
            if (found.isEmpty()) {
                row << QJsonValue();
                if (options.nearest)
                    row << QJsonValue();
                continue;
            }
            answered = true;
            // --preferred N: N alone where it is among several (JSON lists them all).
            const bool preferred = options.preferred && found.contains(*options.preferred);
            const int channel = preferred ? *options.preferred : found[0];
            const double centre = centreNear(band, link, channel, freqs[i]);
            const bool inside = band.withinEdges(link, centre);
            noteOutsideEdges(band, link, channel, centre, &out);
            QJsonArray all;
            QStringList text;
            for (int c : found) {
                all.append(c);
                text << QString::number(c);
            }
            const QJsonObject match{{QStringLiteral("channel"), channel},
                                    {QStringLiteral("channels"), all},
                                    {QStringLiteral("channelMHz"), centre},
                                    {QStringLiteral("offsetMHz"), decimalMHz(centre - freqs[i])},
                                    {QStringLiteral("insideEdges"), inside}};
            row << Cell{match, preferred ? QString::number(channel) : text.join(QLatin1Char(','))};
            if (options.nearest)
                row << decimalMHz(centre - freqs[i]);
        }
        out.rows << row;
        any = any || answered;
        if (!answered)
            out.noResult(
                cut(args[i + 1].trimmed())
                + (options.nearest ? QLatin1String(" MHz is not within ")
                                   : QLatin1String(" MHz is not a channel centre of "))
                + band.standard()
                + (options.nearest ? QLatin1String("") : QLatin1String(" (try: --nearest)")));
    }
    if (!any)
        out.rows.clear();
    return out;
}

// Every band and link holding each frequency, nearest channel first.
Outcome runSearch(const QStringList &args, const CommandOptions &options)
{
    Outcome out("results", {"MHZ|mhz", ">CODE|code", "TECH|technology", "BAND|band",
                            "DIR|direction", ">CHANNEL|channel", "CHANNEL MHZ|channelMHz",
                            "OFFSET MHZ|offsetMHz", "|offRaster"});
    const QList<double> freqs = parseEach(args, parseMHz);
    for (int i = 0; i < freqs.size(); ++i) {
        const int before = out.rows.size();
        for (const saiskuko::SearchHit &hit : saiskuko::search(freqs[i])) {
            if (linksFor(hit.band, options).contains(hit.link))
                out.rows << Row{{freqs[i], args[i].trimmed()}} + bandLinkCells(hit.band, hit.link)
                                + Row{hit.channel,
                                      hit.channelMHz,
                                      {decimalMHz(hit.offsetMHz),
                                       formatMHz(hit.offsetMHz)
                                           + QLatin1String(hit.offRaster ? " off-raster" : "")},
                                      hit.offRaster};
        }
        if (out.rows.size() == before)
            out.noResult(QStringLiteral("no band holds %1 MHz").arg(cut(args[i].trimmed())));
    }
    return out;
}

Outcome runWhich(const QStringList &args, const CommandOptions &options)
{
    Outcome out("results", {">CHANNEL|channel", ">CODE|code", "TECH|technology", "BAND|band",
                            "DIR|direction", "MHZ|mhz"});
    for (int channel : parseEach(args, parseChannel)) {
        const int before = out.rows.size();
        for (const Band &band : saiskuko::bandsWithChannel(channel)) {
            for (Link link : linksFor(band, options)) {
                for (double mhz : band.frequencies(link, channel))
                    out.rows << Row{channel} + bandLinkCells(band, link) + Row{mhz};
            }
        }
        if (out.rows.size() == before)
            out.noResult(QStringLiteral("no band has a channel %1").arg(channel));
    }
    return out;
}

Outcome runChannels(const QStringList &args, const CommandOptions &options)
{
    const Band band = valueOrBadInput(saiskuko::findBand(args[0]));
    const double low = parseMHz(args[1]);
    const double high = parseMHz(args[2]);
    if (low > high)
        throw BadInput{QStringLiteral("the window %1 to %2 MHz is empty: LOW exceeds HIGH")
                           .arg(cut(args[1].trimmed()), cut(args[2].trimmed()))};

    Outcome out = bandOutcome(band, "runs",
                              {"DIR|direction", ">FIRST|first", ">LAST|last", ">COUNT|count",
                               "FIRST MHZ|firstMHz", "LAST MHZ|lastMHz"});
    out.heading += QStringLiteral(", %1 to %2 MHz").arg(formatMHz(low), formatMHz(high));
    out.json.insert(QStringLiteral("lowMHz"), low);
    out.json.insert(QStringLiteral("highMHz"), high);
    for (Link link : linksFor(band, options)) {
        // Every record of the link, not only the first: E-GSM 900's uplink
        // has two channel ranges.
        QMap<int, double> inside;
        for (const Record &r : band.records(link)) {
            for (qint64 channel = r.firstChannel; channel <= r.lastChannel; ++channel) {
                for (double mhz : band.frequencies(link, int(channel))) {
                    if (mhz >= low && mhz <= high && !inside.contains(int(channel)))
                        inside.insert(int(channel), mhz);
                }
            }
        }
        // Runs of consecutive channels.
        for (auto start = inside.constBegin(), it = start; it != inside.constEnd(); ++it) {
            const auto next = std::next(it);
            if (next != inside.constEnd() && next.key() == it.key() + 1)
                continue;
            out.rows << Row{linkCell(link), start.key(), it.key(), it.key() - start.key() + 1,
                            start.value(),  it.value()};
            start = next;
        }
    }
    if (out.rows.isEmpty())
        out.noResult(QStringLiteral("no channel of %1 lies between %2 and %3 MHz")
                         .arg(band.standard(), cut(args[1].trimmed()), cut(args[2].trimmed())));
    return out;
}

// The library's screen ranges, one a line; it marks a band without ranges (a
// global band) with a lone blank.
Cell rangeLines(const QString &text)
{
    return listCell(text.trimmed().isEmpty() ? QStringList()
                                             : text.split(QLatin1Char('\n'), Qt::SkipEmptyParts),
                    "\n", "");
}

constexpr int kFirstMode = 1;
constexpr int kLastMode = 23;

// Every mode code, named for what its band table lists, and the technologies.
Outcome runModes(const CommandOptions &options)
{
    Outcome out("modes", {">MODE|mode", "NAME|name", "TECHNOLOGIES|technologies"});
    for (int mode = kFirstMode; mode <= kLastMode; ++mode) {
        QStringList techs = ChStd::GetBandListByMode(mode, 0, options.link).techList;
        techs.removeDuplicates();
        const QString name = techs.isEmpty() ? QStringLiteral("unused")
                             : techs.size() == 1
                                 ? techs[0]
                                 : QStringLiteral("%1 technologies").arg(techs.size());
        out.rows << Row{mode, name, listCell(techs, ", ")};
    }
    return out;
}

// An instrument mode's band table, through the compatible interface: the
// typed API has no modes.
Outcome runTable(const QStringList &args, const CommandOptions &options)
{
    if (args.isEmpty())
        return runModes(options);
    bool ok = false;
    const int mode = args[0].trimmed().toInt(&ok, 10);
    if (!ok || mode < kFirstMode || mode > kLastMode)
        throw BadInput{
            QStringLiteral("mode %1 is not an instrument mode (%2 to %3)")
                .arg(echoed(args[0]), QString::number(kFirstMode), QString::number(kLastMode))};
    const stCHList list = ChStd::GetBandListByMode(mode, 0, options.link);

    Outcome out("rows",
                {"TECH|technology", "BAND|band", "CHANNELS|channelRanges", "MHZ|frequencyRanges"});
    out.json.insert(QStringLiteral("mode"), mode);
    out.json.insert(QStringLiteral("link"), options.link);
    const int count =
        std::min({list.techList.size(), list.bandList.size(), list.chRangeList.size()});
    for (int i = 0; i < count; ++i) {
        const QString &tech = list.techList[i];
        const QString &band = list.bandList[i];
        out.rows << Row{
            tech, band, rangeLines(list.chRangeList[i]),
            rangeLines(ChStd::GetChStdPointer()->GetFreqRefString_List(tech, band, options.link))};
    }
    if (count == 0)
        out.noResult(QStringLiteral("mode %1 has no band table").arg(mode));
    return out;
}

Outcome runChart(const QStringList &args, const CommandOptions &options)
{
    ChartRequest request;
    request.lowMHz = parseMHz(args[0]);
    request.highMHz = parseMHz(args[1]);
    if (!(request.lowMHz < request.highMHz))
        throw BadInput{QStringLiteral("chart: LOW must be below HIGH")};
    for (const QString &tech : options.techs)
        request.techs << valueOrBadInput(saiskuko::findTechnology(tech));
    for (const QString &mark : options.marks) {
        request.marksMHz << parseMHz(mark);
        if (request.marksMHz.last() < request.lowMHz || request.marksMHz.last() > request.highMHz)
            throw BadInput{QLatin1String("mark ") + echoed(mark)
                           + QLatin1String(" lies outside the chart's window")};
    }

    Outcome out;
    const ChartLayout layout = layoutChart(request);
    out.json = QJsonObject{{QStringLiteral("lowMHz"), request.lowMHz},
                           {QStringLiteral("highMHz"), request.highMHz},
                           {QStringLiteral("bands"), layout.rows.size()},
                           {QStringLiteral("bars"), layout.barCount()}};
    if (layout.rows.isEmpty()) {
        out.noResult(QStringLiteral("no band has a record between %1 and %2 MHz")
                         .arg(formatMHz(request.lowMHz), formatMHz(request.highMHz)));
        return out;
    }
    const QByteArray svg = chartSvg(layout);
    if (options.outputFile.isEmpty()) {
        out.heading = QString::fromUtf8(svg);
        out.json.insert(QStringLiteral("svg"), out.heading);
        return out;
    }
    QFile file(options.outputFile);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(svg) != svg.size()
        || !file.flush())
        throw BadInput{QLatin1String("cannot write ") + echoed(options.outputFile)};
    out.json.insert(QStringLiteral("file"), options.outputFile);
    return out;
}

} // namespace

const QList<Command> &commands()
{
    static const QList<Command> list{
        {"techs", "", "technologies, band counts, integration bandwidths", "", runTechs},
        {"bands", "TECH", "codes, channel and MHz ranges, records, duplex", "", runBands},
        {"band", "BAND", "one band in detail: records, raster, duplex, pairing", "", runBand},
        {"freq", "BAND CHANNEL...", "centre frequency of each channel, per direction", "ul dl",
         runFreq},
        {"channel", "BAND MHZ...", "channels centred on MHZ (or nearest), per direction",
         "ul dl preferred nearest", runChannel},
        {"search", "MHZ...", "bands holding MHZ, nearest channel first", "ul dl", runSearch},
        {"channels", "BAND LOW HIGH", "channels of a band centred in LOW..HIGH MHz", "ul dl",
         runChannels},
        {"table", "[MODE]", "band table of a mode (without MODE: every mode)", "link", runTable},
        {"which", "CHANNEL...", "every band and direction that has CHANNEL", "ul dl", runWhich},
        {"chart", "LOW HIGH", "an SVG picture of the bands between LOW and HIGH MHz",
         "tech mark output", runChart},
        {"batch", "[FILE]", "one command per line of FILE (or standard input)", "", nullptr},
    };
    return list;
}

const QList<ProgramOption> &programOptions()
{
    // clang-format off
    static const QList<ProgramOption> list{
        {"ul", nullptr, "only uplink (freq, channel, search, channels, which);\n"
                        "default: every direction the band has"},
        {"dl", nullptr, "only downlink"},
        {"preferred", "N", "channel: only channel N where the frequency has several\n"
                            "(JSON still lists them all)"},
        {"nearest", nullptr, "channel: the nearest channel of each direction and its\n"
                             "offset, for a frequency off the raster"},
        {"link", "0|1", "table: 0 downlink ranges (default), 1 uplink ranges"},
        {"tech", "T", "chart: only technology T (repeatable; names as for bands)"},
        {"mark", "MHZ", "chart: a line at MHZ, labelled with the bands and channels\n"
                        "there (repeatable)"},
        {"o output", "FILE", "chart: write the SVG to FILE instead of stdout"},
        {"json", nullptr, "JSON on stdout, full precision; batch: one document a line", true},
        {"verbose", nullptr, "show the library's banner and diagnostics on stderr", true},
        {"q quiet", nullptr, "no library diagnostics (the default)", true},
        {"h help", nullptr, "this text", true},
        {"v version", nullptr, "the library's version", true},
        {"man", nullptr, "", true},
        {"completion", nullptr, "", true},
    };
    // clang-format on
    return list;
}
