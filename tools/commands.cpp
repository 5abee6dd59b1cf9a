// The program's commands: each turns its arguments into a query and its answer into text or JSON.
#include "commands.h"

#include "bandname.h"
#include "messagecapture.h"

#include <QtCore/QJsonArray>
#include <QtCore/QMap>
#include <QtCore/QSet>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

using Range = std::pair<double, double>;

int parseChannel(const QString &text)
{
    bool ok = false;
    const int channel = text.trimmed().toInt(&ok, 10);
    if (!ok)
        throw BadInput(QLatin1String("channel \"") + text
                       + QLatin1String("\" is not a whole number"));
    return channel;
}

double parseMHz(const QString &text)
{
    bool ok = false;
    const double mhz = text.trimmed().toDouble(&ok);
    if (!ok || !std::isfinite(mhz) || mhz < 0)
        throw BadInput(QLatin1String("frequency \"") + text
                       + QLatin1String("\" is not a number of MHz"));
    return mhz;
}

QJsonArray toJsonArray(const QList<Range> &ranges)
{
    QJsonArray out;
    for (const Range &r : ranges)
        out.append(QJsonArray{r.first, r.second});
    return out;
}

// Sorted, with overlapping ranges (and, for channels, adjacent ones) merged.
QList<Range> merged(QList<Range> ranges, double adjacency)
{
    std::sort(ranges.begin(), ranges.end());
    QList<Range> out;
    for (const Range &r : ranges) {
        if (!out.isEmpty() && r.first <= out.last().second + adjacency)
            out.last().second = std::max(out.last().second, r.second);
        else
            out.append(r);
    }
    return out;
}

QString rangesText(const QList<Range> &ranges, bool channels)
{
    if (ranges.isEmpty())
        return QStringLiteral("-");
    QStringList parts;
    for (const Range &r : ranges) {
        parts << (channels ? QString::number(qint64(r.first)) + QLatin1Char('-')
                                 + QString::number(qint64(r.second))
                           : formatMHz(r.first) + QLatin1Char('-') + formatMHz(r.second));
    }
    return parts.join(QLatin1Char(','));
}

QList<int> linksFor(const BandRef &band, const CommandOptions &options)
{
    return options.links.isEmpty() ? linksOf(band) : options.links;
}

QString bandTitle(const BandRef &band)
{
    return band.standard() + QStringLiteral(" [%1]").arg(band.code());
}

// The channel whose centre is mhz, or -1. The library matches only the exact
// double its formula yields; a decimal typed by a person is the nearest double
// to that decimal, which can differ from the formula's result in the last bits
// (2140.2 against 2140.2000000000003). So the neighbouring doubles are tried
// too; they all print as the same decimal.
int channelAt(const BandRef &band, int link, double mhz, int preferred)
{
    // Skip the call (and its "Not supported" line) where no record of the
    // link reaches the frequency.
    const ChBand &data = band.data();
    bool reachable = false;
    for (int i = 0; i < data.NumSubBand && !reachable; ++i) {
        const stSubBand &r = data.SubBands[i];
        reachable = !isPlaceholder(r) && servesLink(r, link) && r.StartFreq - 1e-6 <= mhz
                    && mhz <= r.StopFreq + 1e-6;
    }
    if (!reachable)
        return -1;

    QList<double> tries{mhz};
    double up = mhz, down = mhz;
    for (int step = 0; step < 4; ++step) {
        up = std::nextafter(up, HUGE_VAL);
        down = std::nextafter(down, -HUGE_VAL);
        tries << up << down;
    }
    QString firstMiss;
    for (int i = 0; i < tries.size(); ++i) {
        int channel = -1;
        {
            StandardOutputCapture capture; // the library reports a miss on standard output
            channel = store().GetChNumFromFreq(band.techName(), band.bandName(), link, tries[i],
                                               preferred);
            if (i == 0)
                firstMiss = capture.text();
        }
        double check = 0;
        if (channel != -1 && channelFreq(band, link, channel, &check))
            return channel;
    }
    libraryDiagnostic(firstMiss);
    return -1;
}

// ---------------------------------------------------------------- commands

Outcome runTechs(const QStringList &, const CommandOptions &)
{
    Outcome out;
    TextTable table({QStringLiteral("SLOT"), QStringLiteral("TECH"), QStringLiteral("BANDS"),
                     QStringLiteral("INT BW HZ"), QStringLiteral("SHORT")});
    table.alignRight(0);
    table.alignRight(2);
    table.alignRight(3);
    QJsonArray list;
    for (int t : techSlots()) {
        const QString name = techName(t);
        const int bands = store().Technologies[t].NumBand;
        const double bandwidth = store().GetDefaultIntBW(name);
        const QStringList aliases = techAliases(t);
        table.addRow({QString::number(t), name, QString::number(bands),
                      QString::number(bandwidth, 'f', 0),
                      aliases.isEmpty() ? QStringLiteral("-") : aliases.join(QLatin1Char(','))});
        list.append(
            QJsonObject{{QStringLiteral("slot"), t},
                        {QStringLiteral("name"), name},
                        {QStringLiteral("bands"), bands},
                        {QStringLiteral("defaultIntegrationBandwidthHz"), bandwidth},
                        {QStringLiteral("shortForms"), QJsonArray::fromStringList(aliases)}});
    }
    out.text = table.render();
    out.json.insert(QStringLiteral("technologies"), list);
    return out;
}

Outcome runBands(const QStringList &args, const CommandOptions &)
{
    const int t = resolveTech(args[0]);
    const ChTechnology &tech = store().Technologies[t];
    Outcome out;
    TextTable table({QStringLiteral("CODE"), QStringLiteral("BAND"), QStringLiteral("UL CHANNELS"),
                     QStringLiteral("UL MHZ"), QStringLiteral("DL CHANNELS"),
                     QStringLiteral("DL MHZ"), QStringLiteral("RECORDS"),
                     QStringLiteral("UL ONLY")});
    table.alignRight(0);
    table.alignRight(6);
    QJsonArray list;
    for (int b = 0; b < tech.NumBand; ++b) {
        const BandRef band{t, b};
        const ChBand &data = band.data();
        QStringList row{QString::number(band.code()), data.BandName};
        QJsonObject entry{{QStringLiteral("code"), band.code()},
                          {QStringLiteral("band"), data.BandName},
                          {QStringLiteral("standard"), band.standard()}};
        for (int link : {1, 0}) {
            QList<Range> channels, edges;
            for (int i = 0; i < data.NumSubBand; ++i) {
                const stSubBand &r = data.SubBands[i];
                if (r.Link != link || isPlaceholder(r))
                    continue;
                channels.append({r.StartChannelNo, r.StopChannelNo});
                edges.append({r.StartFreq, r.StopFreq});
            }
            channels = merged(channels, 1);
            edges = merged(edges, 0);
            // A global band repeats every band; its dozens of ranges would
            // only widen the table (JSON keeps them).
            if (data.IsGlobal && !channels.isEmpty())
                row << QStringLiteral("(all bands)") << QStringLiteral("(all bands)");
            else
                row << rangesText(channels, true) << rangesText(edges, false);
            entry.insert(linkWord(link),
                         channels.isEmpty()
                             ? QJsonValue(QJsonValue::Null)
                             : QJsonObject{{QStringLiteral("channels"), toJsonArray(channels)},
                                           {QStringLiteral("mhz"), toJsonArray(edges)}});
        }
        const bool uplinkOnly = store().IsUplinkOnly(tech.TechName, data.BandName);
        row << QString::number(data.NumSubBand)
            << (uplinkOnly ? QStringLiteral("yes") : QStringLiteral("no"));
        entry.insert(QStringLiteral("global"), data.IsGlobal);
        entry.insert(QStringLiteral("records"), data.NumSubBand);
        entry.insert(QStringLiteral("uplinkOnly"), uplinkOnly);
        table.addRow(row);
        list.append(entry);
    }
    out.text = table.render();
    out.json.insert(QStringLiteral("technology"), tech.TechName);
    out.json.insert(QStringLiteral("bands"), list);
    return out;
}

Outcome runFreq(const QStringList &args, const CommandOptions &options)
{
    const BandRef band = resolveBand(args[0]);
    QList<int> channels;
    for (int i = 1; i < args.size(); ++i)
        channels << parseChannel(args[i]);
    const QList<int> links = linksFor(band, options);

    Outcome out;
    QStringList header{QStringLiteral("CHANNEL")};
    for (int link : links)
        header << linkShort(link) + QLatin1String(" MHZ");
    TextTable table(header);
    QJsonArray results;
    bool any = false;
    for (int channel : channels) {
        QStringList row{QString::number(channel)};
        QJsonObject entry{{QStringLiteral("channel"), channel}};
        for (int link : links) {
            double mhz = 0;
            const bool found = channelFreq(band, link, channel, &mhz);
            any = any || found;
            row << (found ? formatMHz(mhz) : QStringLiteral("-"));
            entry.insert(linkWord(link), jsonNumberOrNull(found, mhz));
        }
        table.addRow(row);
        results.append(entry);
    }
    out.json.insert(QStringLiteral("band"), band.toJson());
    out.json.insert(QStringLiteral("results"), results);
    if (!any) {
        out.status = ExitNoResult;
        QStringList words;
        for (int link : links)
            words << linkWord(link);
        out.notes << (channels.size() == 1 ? QStringLiteral("channel %1 is not").arg(channels[0])
                                           : QStringLiteral("none of these channels is"))
                         + QLatin1String(" in ") + band.standard() + QLatin1String(" (")
                         + words.join(QLatin1String(" or ")) + QLatin1Char(')');
        return out;
    }
    out.text = bandTitle(band) + QLatin1Char('\n') + table.render();
    return out;
}

Outcome runChannel(const QStringList &args, const CommandOptions &options)
{
    const BandRef band = resolveBand(args[0]);
    QList<double> freqs;
    for (int i = 1; i < args.size(); ++i)
        freqs << parseMHz(args[i]);
    const QList<int> links = linksFor(band, options);

    Outcome out;
    QStringList header{QStringLiteral("MHZ")};
    for (int link : links)
        header << linkShort(link) + QLatin1String(" CHANNEL");
    TextTable table(header);
    QJsonArray results;
    bool any = false;
    for (int i = 0; i < freqs.size(); ++i) {
        QStringList row{args[i + 1].trimmed()};
        QJsonObject entry{{QStringLiteral("mhz"), freqs[i]}};
        for (int link : links) {
            const int channel = channelAt(band, link, freqs[i], options.preferred);
            any = any || channel != -1;
            row << (channel != -1 ? QString::number(channel) : QStringLiteral("-"));
            entry.insert(linkWord(link), jsonNumberOrNull(channel != -1, channel));
        }
        table.addRow(row);
        results.append(entry);
    }
    out.json.insert(QStringLiteral("band"), band.toJson());
    out.json.insert(QStringLiteral("preferred"),
                    jsonNumberOrNull(options.hasPreferred, options.preferred));
    out.json.insert(QStringLiteral("results"), results);
    if (!any) {
        out.status = ExitNoResult;
        out.notes << (freqs.size() == 1 ? args[1].trimmed() + QLatin1String(" MHz is not")
                                        : QStringLiteral("none of these frequencies is"))
                         + QLatin1String(" a channel centre of ") + band.standard()
                         + QLatin1String(" (try: saiskuko search MHZ)");
        return out;
    }
    out.text = bandTitle(band) + QLatin1Char('\n') + table.render();
    return out;
}

Outcome runSearch(const QStringList &args, const CommandOptions &options)
{
    QList<double> freqs;
    for (const QString &arg : args)
        freqs << parseMHz(arg);

    Outcome out;
    TextTable table({QStringLiteral("MHZ"), QStringLiteral("CODE"), QStringLiteral("TECH"),
                     QStringLiteral("BAND"), QStringLiteral("DIR"), QStringLiteral("CHANNEL"),
                     QStringLiteral("CHANNEL MHZ"), QStringLiteral("OFFSET MHZ")});
    table.alignRight(1);
    table.alignRight(5);
    QJsonArray results;
    for (int i = 0; i < freqs.size(); ++i) {
        const double f = freqs[i];
        QJsonArray hits;
        QSet<QString> seen;
        for (const ChInfo &info : store().GetChInfoFromFreq(f)) {
            const BandRef band = bandByNames(info.techName, info.bandName);
            if (band.tech < 0 || info.channelNo < 0)
                continue;
            if (!options.links.isEmpty() && !options.links.contains(info.linkDirection))
                continue;
            // A band can hold the frequency in several records of one link
            // (channel ranges that share the band edges); the first hit is the
            // nearest, the others add nothing.
            const QString key = QStringLiteral("%1/%2").arg(band.code()).arg(info.linkDirection);
            if (seen.contains(key))
                continue;
            double centre = 0;
            if (!channelFreq(band, info.linkDirection, info.channelNo, &centre))
                continue; // a placeholder record, not a real channel
            seen.insert(key);
            table.addRow({args[i].trimmed(), QString::number(band.code()), band.techName(),
                          band.bandName(), linkShort(info.linkDirection),
                          QString::number(info.channelNo), formatMHz(centre),
                          formatMHz(info.freqOffset)});
            QJsonObject hit = band.toJson();
            hit.insert(QStringLiteral("direction"), linkWord(info.linkDirection));
            hit.insert(QStringLiteral("channel"), info.channelNo);
            hit.insert(QStringLiteral("channelMHz"), centre);
            hit.insert(QStringLiteral("offsetMHz"), info.freqOffset);
            hits.append(hit);
        }
        if (hits.isEmpty())
            out.notes << QLatin1String("no band holds ") + args[i].trimmed()
                             + QLatin1String(" MHz");
        results.append(QJsonObject{{QStringLiteral("mhz"), f}, {QStringLiteral("hits"), hits}});
    }
    out.json.insert(QStringLiteral("results"), results);
    if (table.rowCount() == 0) {
        out.status = ExitNoResult;
        return out;
    }
    out.text = table.render();
    return out;
}

Outcome runChannels(const QStringList &args, const CommandOptions &options)
{
    const BandRef band = resolveBand(args[0]);
    const double low = parseMHz(args[1]);
    const double high = parseMHz(args[2]);
    if (low > high)
        throw BadInput(QLatin1String("the window ") + args[1].trimmed() + QLatin1String(" to ")
                       + args[2].trimmed() + QLatin1String(" MHz is empty: LOW exceeds HIGH"));

    Outcome out;
    TextTable table({QStringLiteral("DIR"), QStringLiteral("FIRST"), QStringLiteral("LAST"),
                     QStringLiteral("COUNT"), QStringLiteral("FIRST MHZ"),
                     QStringLiteral("LAST MHZ")});
    table.alignRight(1);
    table.alignRight(2);
    table.alignRight(3);
    QJsonArray directions;
    const ChBand &data = band.data();
    for (int link : linksFor(band, options)) {
        // Every record of the link, not only the first: E-GSM 900's uplink
        // has two channel ranges.
        QMap<int, double> inside;
        for (int i = 0; i < data.NumSubBand; ++i) {
            const stSubBand &r = data.SubBands[i];
            if (r.Link != link || isPlaceholder(r))
                continue;
            for (qint64 ch = r.StartChannelNo; ch <= r.StopChannelNo; ++ch) {
                const double mhz = r.FreqFunc(int(ch), r.BaseFreq, r.StartChannelNo);
                if (mhz >= low && mhz <= high && !inside.contains(int(ch)))
                    inside.insert(int(ch), mhz);
            }
        }
        if (inside.isEmpty())
            continue;
        QJsonArray runs, list;
        auto start = inside.constBegin();
        for (auto it = inside.constBegin(); it != inside.constEnd(); ++it) {
            list.append(it.key());
            auto next = std::next(it);
            if (next != inside.constEnd() && next.key() == it.key() + 1)
                continue;
            const int count = it.key() - start.key() + 1;
            table.addRow({linkShort(link), QString::number(start.key()), QString::number(it.key()),
                          QString::number(count), formatMHz(start.value()), formatMHz(it.value())});
            runs.append(QJsonObject{{QStringLiteral("first"), start.key()},
                                    {QStringLiteral("last"), it.key()},
                                    {QStringLiteral("count"), count},
                                    {QStringLiteral("firstMHz"), start.value()},
                                    {QStringLiteral("lastMHz"), it.value()}});
            start = next;
        }
        directions.append(QJsonObject{{QStringLiteral("direction"), linkWord(link)},
                                      {QStringLiteral("runs"), runs},
                                      {QStringLiteral("channels"), list}});
    }
    out.json.insert(QStringLiteral("band"), band.toJson());
    out.json.insert(QStringLiteral("lowMHz"), low);
    out.json.insert(QStringLiteral("highMHz"), high);
    out.json.insert(QStringLiteral("directions"), directions);
    if (directions.isEmpty()) {
        out.status = ExitNoResult;
        out.notes << QLatin1String("no channel of ") + band.standard()
                         + QLatin1String(" lies between ") + args[1].trimmed()
                         + QLatin1String(" and ") + args[2].trimmed() + QLatin1String(" MHz");
        return out;
    }
    out.text = bandTitle(band) + QLatin1String(", ") + formatMHz(low) + QLatin1String(" to ")
               + formatMHz(high) + QLatin1String(" MHz\n") + table.render();
    return out;
}

// The library marks a band without ranges (a global band) with a lone blank.
QStringList rangeLines(const QString &text)
{
    return text.trimmed().isEmpty() ? QStringList()
                                    : text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

Outcome runTable(const QStringList &args, const CommandOptions &options)
{
    bool ok = false;
    const int mode = args[0].trimmed().toInt(&ok, 10);
    if (!ok || mode < 1 || mode > 23)
        throw BadInput(QLatin1String("mode \"") + args[0]
                       + QLatin1String("\" is not an instrument mode (1 to 23)"));
    const stCHList list = ChStd::GetBandListByMode(mode, 0, options.link);

    Outcome out;
    TextTable table({QStringLiteral("TECH"), QStringLiteral("BAND"), QStringLiteral("CHANNELS"),
                     QStringLiteral("MHZ")});
    QJsonArray rows;
    const int count =
        std::min({list.techList.size(), list.bandList.size(), list.chRangeList.size()});
    for (int i = 0; i < count; ++i) {
        const QString &tech = list.techList[i];
        const QString &bandName = list.bandList[i];
        const QStringList channels = rangeLines(list.chRangeList[i]);
        const QStringList freqs =
            rangeLines(store().GetFreqRefString_List(tech, bandName, options.link));
        const int lines = std::max({1, int(channels.size()), int(freqs.size())});
        for (int line = 0; line < lines; ++line) {
            table.addRow({line == 0 ? tech : QString(), line == 0 ? bandName : QString(),
                          channels.value(line), freqs.value(line)});
        }
        rows.append(
            QJsonObject{{QStringLiteral("technology"), tech},
                        {QStringLiteral("band"), bandName},
                        {QStringLiteral("channelRanges"), QJsonArray::fromStringList(channels)},
                        {QStringLiteral("frequencyRanges"), QJsonArray::fromStringList(freqs)}});
    }
    out.json.insert(QStringLiteral("mode"), mode);
    out.json.insert(QStringLiteral("link"), options.link);
    out.json.insert(QStringLiteral("rows"), rows);
    if (count == 0) {
        out.status = ExitNoResult;
        out.notes << QStringLiteral("mode %1 has no band table").arg(mode);
        return out;
    }
    out.text = table.render();
    return out;
}

Outcome runWhich(const QStringList &args, const CommandOptions &options)
{
    const int channel = parseChannel(args[0]);
    Outcome out;
    TextTable table({QStringLiteral("CODE"), QStringLiteral("TECH"), QStringLiteral("BAND"),
                     QStringLiteral("DIR"), QStringLiteral("MHZ")});
    table.alignRight(0);
    QJsonArray matches;
    for (int t : techSlots()) {
        const ChTechnology &tech = store().Technologies[t];
        for (int b = 0; b < tech.NumBand; ++b) {
            const BandRef band{t, b};
            const ChBand &data = band.data();
            if (data.IsGlobal)
                continue; // it repeats the records of the other bands
            QList<std::pair<int, double>> shown;
            for (int i = 0; i < data.NumSubBand; ++i) {
                const stSubBand &r = data.SubBands[i];
                if (isPlaceholder(r) || channel < r.StartChannelNo || channel > r.StopChannelNo)
                    continue;
                if (!options.links.isEmpty() && !options.links.contains(r.Link))
                    continue;
                double mhz = 0;
                if (!channelFreq(band, r.Link, channel, &mhz) || shown.contains({r.Link, mhz}))
                    continue;
                shown.append({r.Link, mhz});
                table.addRow({QString::number(band.code()), tech.TechName, data.BandName,
                              linkShort(r.Link), formatMHz(mhz)});
                QJsonObject match = band.toJson();
                match.insert(QStringLiteral("direction"), linkWord(r.Link));
                match.insert(QStringLiteral("mhz"), mhz);
                matches.append(match);
            }
        }
    }
    out.json.insert(QStringLiteral("channel"), channel);
    out.json.insert(QStringLiteral("matches"), matches);
    if (matches.isEmpty()) {
        out.status = ExitNoResult;
        out.notes << QStringLiteral("no band has a channel %1").arg(channel);
        return out;
    }
    out.text = table.render();
    return out;
}

} // namespace

const QList<Command> &commands()
{
    static const QList<Command> list{
        {"techs", "", "technologies, band counts, integration bandwidths", 0, 0, false, false,
         false, runTechs},
        {"bands", "TECH", "codes, channel and MHz ranges, records, UL-only", 1, 1, false, false,
         false, runBands},
        {"freq", "BAND CHANNEL...", "centre frequency of each channel, per direction", 2, -1, true,
         false, false, runFreq},
        {"channel", "BAND MHZ...", "channel whose centre is exactly MHZ, per direction", 2, -1,
         true, true, false, runChannel},
        {"search", "MHZ...", "bands holding MHZ, nearest channel first", 1, -1, true, false, false,
         runSearch},
        {"channels", "BAND LOW HIGH", "channels of a band centred in LOW..HIGH MHz", 3, 3, true,
         false, false, runChannels},
        {"table", "MODE", "band table of an instrument mode (1 to 23)", 1, 1, false, false, true,
         runTable},
        {"which", "CHANNEL", "every band and direction that has CHANNEL", 1, 1, true, false, false,
         runWhich},
    };
    return list;
}
