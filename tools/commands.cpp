// The program's commands: each turns its arguments into a query and its answer into text or JSON.
#include "commands.h"

#include "bandname.h"
#include "chartsvg.h"
#include "lookup.h"

#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QMap>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

using Range = std::pair<double, double>;

int parseChannel(const QString &text)
{
    bool ok = false;
    const int channel = text.trimmed().toInt(&ok, 10);
    if (ok && channel >= 0)
        return channel;
    const QString what = QLatin1String("channel ") + echoed(text);
    if (ok)
        throw BadInput(what + QLatin1String(" must not be negative"));
    bool number = false;
    const double value = text.trimmed().toDouble(&number);
    if (number && value == std::floor(value))
        throw BadInput(what
                       + (value < 0 ? QLatin1String(" must not be negative")
                                    : QLatin1String(" is out of range")));
    throw BadInput(what + QLatin1String(" is not a whole number"));
}

double parseMHz(const QString &text)
{
    bool ok = false;
    const double mhz = text.trimmed().toDouble(&ok);
    const QString what = QLatin1String("frequency ") + echoed(text);
    if (!ok)
        throw BadInput(what + QLatin1String(" is not a number of MHz"));
    if (mhz < 0)
        throw BadInput(what + QLatin1String(" must be positive"));
    if (!std::isfinite(mhz))
        throw BadInput(what + QLatin1String(" is out of range"));
    return mhz;
}

QList<int> parseChannels(const QStringList &args)
{
    QList<int> channels;
    for (const QString &arg : args)
        channels << parseChannel(arg);
    return channels;
}

QList<double> parseFrequencies(const QStringList &args)
{
    QList<double> freqs;
    for (const QString &arg : args)
        freqs << parseMHz(arg);
    return freqs;
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
                     QStringLiteral("DUPLEX")});
    table.alignRight(0);
    table.alignRight(6);
    QJsonArray list;
    for (int b = 0; b < tech.NumBand; ++b) {
        const BandRef band{t, b};
        const ChBand &data = band.data();
        QStringList row{QString::number(band.code()), data.BandName};
        QJsonObject entry = band.toJson();
        entry.insert(QStringLiteral("standard"), band.standard());
        for (int link : {1, 0}) {
            QList<Range> channels, edges;
            for (const stSubBand *r : recordsFor(band, link)) {
                channels.append({r->StartChannelNo, r->StopChannelNo});
                edges.append({r->StartFreq, r->StopFreq});
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
        row << QString::number(data.NumSubBand) << duplexName(band.duplex());
        entry.insert(QStringLiteral("global"), data.IsGlobal);
        entry.insert(QStringLiteral("records"), data.NumSubBand);
        table.addRow(row);
        list.append(entry);
    }
    out.text = table.render();
    out.json.insert(QStringLiteral("technology"), tech.TechName);
    out.json.insert(QStringLiteral("bands"), list);
    return out;
}

Outcome runBand(const QStringList &args, const CommandOptions &)
{
    const BandRef band = resolveBand(args[0]);
    const ChBand &data = band.data();
    const QString duplex = duplexName(band.duplex());
    Outcome out;
    TextTable table({QStringLiteral("DIR"), QStringLiteral("CHANNELS"), QStringLiteral("EDGES MHZ"),
                     QStringLiteral("FIRST MHZ"), QStringLiteral("LAST MHZ"),
                     QStringLiteral("STEP MHZ"), QStringLiteral("DUPLEX"),
                     QStringLiteral("PAIR OFFSET")});
    table.alignRight(7);
    QJsonArray records;
    for (int i = 0; i < recordCount(data); ++i) {
        const stSubBand &r = data.SubBands[i];
        if (isPlaceholder(r))
            continue;
        const double first = recordFreq(r, r.StartChannelNo);
        const double last = recordFreq(r, r.StopChannelNo);
        const bool stepped = r.StopChannelNo > r.StartChannelNo;
        const double step = stepped ? recordFreq(r, r.StartChannelNo + 1) - first : 0;
        int paired = 0;
        const bool hasPair = pairedChannel(band, r.Link, r.StartChannelNo, &paired);
        const int offset = r.Link == 1 ? r.StartChannelNo - paired : paired - r.StartChannelNo;
        table.addRow(
            {linkShort(r.Link), QStringLiteral("%1-%2").arg(r.StartChannelNo).arg(r.StopChannelNo),
             formatMHz(r.StartFreq) + QLatin1Char('-') + formatMHz(r.StopFreq), formatMHz(first),
             formatMHz(last), stepped ? formatMHz(step) : QStringLiteral("-"), duplex,
             hasPair ? QString::number(offset) : QStringLiteral("-")});
        records.append(
            QJsonObject{{QStringLiteral("direction"), linkWord(r.Link)},
                        {QStringLiteral("channels"), QJsonArray{r.StartChannelNo, r.StopChannelNo}},
                        {QStringLiteral("edgesMHz"), QJsonArray{r.StartFreq, r.StopFreq}},
                        {QStringLiteral("firstMHz"), first},
                        {QStringLiteral("lastMHz"), last},
                        {QStringLiteral("stepMHz"), jsonNumberOrNull(stepped, step)},
                        {QStringLiteral("pairOffset"), jsonNumberOrNull(hasPair, offset)}});
    }
    out.json.insert(QStringLiteral("band"), band.toJson());
    out.json.insert(QStringLiteral("records"), records);
    out.text = bandTitle(band) + QLatin1Char('\n') + table.render();
    return out;
}

// The channel of the other direction paired with a found channel, for text
// ("UL 18300 1950") and JSON; nothing where the band is not paired.
void addPair(const BandRef &band, int link, int channel, QStringList *text, QJsonArray *json)
{
    int other = 0;
    if (!pairedChannel(band, link, channel, &other))
        return;
    double mhz = 0;
    const bool found = channelFreq(band, 1 - link, other, &mhz);
    *text << linkShort(1 - link) + QLatin1Char(' ') + QString::number(other) + QLatin1Char(' ')
                 + (found ? formatMHz(mhz) : QStringLiteral("-"));
    json->append(QJsonObject{{QStringLiteral("direction"), linkWord(1 - link)},
                             {QStringLiteral("channel"), other},
                             {QStringLiteral("mhz"), jsonNumberOrNull(found, mhz)}});
}

Outcome runFreq(const QStringList &args, const CommandOptions &options)
{
    const BandRef band = resolveBand(args[0]);
    const QList<int> channels = parseChannels(args.mid(1));
    const QList<int> links = linksFor(band, options);
    const bool paired = band.duplex() == Duplex::Fdd;

    Outcome out;
    QStringList header{QStringLiteral("CHANNEL")};
    for (int link : links)
        header << linkShort(link) + QLatin1String(" MHZ");
    if (paired)
        header << QStringLiteral("PAIRED");
    TextTable table(header);
    QJsonArray results;
    bool any = false;
    for (int channel : channels) {
        QStringList row{QString::number(channel)}, pairs;
        QJsonObject entry{{QStringLiteral("channel"), channel}};
        QJsonArray pairList;
        for (int link : links) {
            double mhz = 0;
            const bool found = channelFreq(band, link, channel, &mhz);
            any = any || found;
            row << (found ? formatMHz(mhz) : QStringLiteral("-"));
            entry.insert(linkWord(link), jsonNumberOrNull(found, mhz));
            if (found)
                addPair(band, link, channel, &pairs, &pairList);
        }
        if (paired) {
            row << (pairs.isEmpty() ? QStringLiteral("-") : pairs.join(QLatin1String(", ")));
            entry.insert(QStringLiteral("paired"), pairList);
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
    const QList<double> freqs = parseFrequencies(args.mid(1));
    const QList<int> links = linksFor(band, options);

    Outcome out;
    QStringList header{QStringLiteral("MHZ")};
    for (int link : links) {
        header << linkShort(link) + QLatin1String(" CHANNEL");
        if (options.nearest)
            header << linkShort(link) + QLatin1String(" OFFSET MHZ");
    }
    TextTable table(header);
    QJsonArray results;
    bool any = false;
    for (int i = 0; i < freqs.size(); ++i) {
        const QString typed = args[i + 1].trimmed();
        QStringList row{typed};
        QJsonObject entry{{QStringLiteral("mhz"), freqs[i]}};
        for (int link : links) {
            ChannelHit hit;
            const bool found = options.nearest
                                   ? nearestChannel(band, link, freqs[i], &hit)
                                   : channelAt(band, link, freqs[i], options.preferred, &hit);
            any = any || found;
            const double offset = hit.mhz - freqs[i];
            row << (found ? QString::number(hit.channel) : QStringLiteral("-"));
            if (options.nearest)
                row << (found ? formatMHz(offset) : QStringLiteral("-"));
            QJsonObject match{{QStringLiteral("channel"), hit.channel},
                              {QStringLiteral("channelMHz"), hit.mhz},
                              {QStringLiteral("offsetMHz"), offset},
                              {QStringLiteral("insideEdges"), hit.insideEdges}};
            entry.insert(linkWord(link), found ? QJsonValue(match) : QJsonValue());
            if (found && !hit.insideEdges)
                out.notes << QStringLiteral("%1 channel %2 (%3 MHz) lies outside the stated "
                                            "edges of %4")
                                 .arg(linkShort(link))
                                 .arg(hit.channel)
                                 .arg(formatMHz(hit.mhz), band.standard());
        }
        table.addRow(row);
        results.append(entry);
    }
    out.json.insert(QStringLiteral("band"), band.toJson());
    out.json.insert(QStringLiteral("preferred"),
                    jsonNumberOrNull(options.hasPreferred, options.preferred));
    out.json.insert(QStringLiteral("nearest"), options.nearest);
    out.json.insert(QStringLiteral("results"), results);
    if (!any) {
        out.status = ExitNoResult;
        out.notes << (freqs.size() == 1 ? cut(args[1].trimmed()) + QLatin1String(" MHz is not")
                                        : QStringLiteral("none of these frequencies is"))
                         + (options.nearest ? QLatin1String(" within ")
                                            : QLatin1String(" a channel centre of "))
                         + band.standard()
                         + (options.nearest ? QLatin1String("")
                                            : QLatin1String(" (try: --nearest)"));
        return out;
    }
    out.text = bandTitle(band) + QLatin1Char('\n') + table.render();
    return out;
}

Outcome runSearch(const QStringList &args, const CommandOptions &options)
{
    const QList<double> freqs = parseFrequencies(args);

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
        for (const SearchHit &hit : searchHits(f)) {
            if (!options.links.isEmpty() && !options.links.contains(hit.link))
                continue;
            table.addRow({args[i].trimmed(), QString::number(hit.band.code()), hit.band.techName(),
                          hit.band.bandName(), linkShort(hit.link), QString::number(hit.channel),
                          formatMHz(hit.centreMHz), formatMHz(hit.offsetMHz)});
            QJsonObject item = hit.band.toJson();
            item.insert(QStringLiteral("direction"), linkWord(hit.link));
            item.insert(QStringLiteral("channel"), hit.channel);
            item.insert(QStringLiteral("channelMHz"), hit.centreMHz);
            item.insert(QStringLiteral("offsetMHz"), hit.offsetMHz);
            hits.append(item);
        }
        if (hits.isEmpty())
            out.notes << QLatin1String("no band holds ") + cut(args[i].trimmed())
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
        throw BadInput(QLatin1String("the window ") + cut(args[1].trimmed()) + QLatin1String(" to ")
                       + cut(args[2].trimmed()) + QLatin1String(" MHz is empty: LOW exceeds HIGH"));

    Outcome out;
    TextTable table({QStringLiteral("DIR"), QStringLiteral("FIRST"), QStringLiteral("LAST"),
                     QStringLiteral("COUNT"), QStringLiteral("FIRST MHZ"),
                     QStringLiteral("LAST MHZ")});
    table.alignRight(1);
    table.alignRight(2);
    table.alignRight(3);
    QJsonArray directions;
    for (int link : linksFor(band, options)) {
        // Every record of the link, not only the first: E-GSM 900's uplink
        // has two channel ranges.
        QMap<int, double> inside;
        for (const stSubBand *r : recordsFor(band, link)) {
            for (qint64 ch = r->StartChannelNo; ch <= r->StopChannelNo; ++ch) {
                const double mhz = recordFreq(*r, int(ch));
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
                         + QLatin1String(" lies between ") + cut(args[1].trimmed())
                         + QLatin1String(" and ") + cut(args[2].trimmed()) + QLatin1String(" MHz");
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

constexpr int kFirstMode = 1;
constexpr int kLastMode = 23;

// Every mode code and the technologies its band table lists.
Outcome runModes(const CommandOptions &options)
{
    Outcome out;
    TextTable table({QStringLiteral("MODE"), QStringLiteral("TECHNOLOGIES")});
    table.alignRight(0);
    QJsonArray modes;
    for (int mode = kFirstMode; mode <= kLastMode; ++mode) {
        QStringList techs = ChStd::GetBandListByMode(mode, 0, options.link).techList;
        techs.removeDuplicates();
        table.addRow({QString::number(mode),
                      techs.isEmpty() ? QStringLiteral("-") : techs.join(QLatin1String(", "))});
        modes.append(
            QJsonObject{{QStringLiteral("mode"), mode},
                        {QStringLiteral("technologies"), QJsonArray::fromStringList(techs)}});
    }
    out.json.insert(QStringLiteral("modes"), modes);
    out.text = table.render();
    return out;
}

Outcome runTable(const QStringList &args, const CommandOptions &options)
{
    if (args.isEmpty())
        return runModes(options);
    bool ok = false;
    const int mode = args[0].trimmed().toInt(&ok, 10);
    if (!ok || mode < kFirstMode || mode > kLastMode)
        throw BadInput(QLatin1String("mode ") + echoed(args[0])
                       + QLatin1String(" is not an instrument mode (1 to 23)"));
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
    const QList<int> channels = parseChannels(args);
    Outcome out;
    TextTable table({QStringLiteral("CHANNEL"), QStringLiteral("CODE"), QStringLiteral("TECH"),
                     QStringLiteral("BAND"), QStringLiteral("DIR"), QStringLiteral("MHZ")});
    table.alignRight(0);
    table.alignRight(1);
    QJsonArray results;
    for (int channel : channels) {
        QJsonArray matches;
        for (int t : techSlots()) {
            const ChTechnology &tech = store().Technologies[t];
            for (int b = 0; b < tech.NumBand; ++b) {
                const BandRef band{t, b};
                if (band.data().IsGlobal)
                    continue; // it repeats the records of the other bands
                for (int link : linksFor(band, options)) {
                    QList<double> shown;
                    for (const stSubBand *r : recordsFor(band, link)) {
                        const double mhz = recordFreq(*r, channel);
                        if (!holdsChannel(*r, channel) || shown.contains(mhz))
                            continue;
                        shown.append(mhz);
                        table.addRow({QString::number(channel), QString::number(band.code()),
                                      tech.TechName, band.bandName(), linkShort(link),
                                      formatMHz(mhz)});
                        QJsonObject match = band.toJson();
                        match.insert(QStringLiteral("direction"), linkWord(link));
                        match.insert(QStringLiteral("mhz"), mhz);
                        matches.append(match);
                    }
                }
            }
        }
        if (matches.isEmpty())
            out.notes << QStringLiteral("no band has a channel %1").arg(channel);
        results.append(QJsonObject{{QStringLiteral("channel"), channel},
                                   {QStringLiteral("matches"), matches}});
    }
    out.json.insert(QStringLiteral("results"), results);
    if (table.rowCount() == 0) {
        out.status = ExitNoResult;
        return out;
    }
    out.text = table.render();
    return out;
}

} // namespace

Outcome runChart(const QStringList &args, const CommandOptions &options)
{
    ChartRequest request;
    request.lowMHz = parseMHz(args[0]);
    request.highMHz = parseMHz(args[1]);
    if (!(request.lowMHz < request.highMHz))
        throw BadInput(QStringLiteral("chart: LOW must be below HIGH"));
    for (const QString &tech : options.techs)
        request.techSlots << resolveTech(tech);
    for (const QString &mark : options.marks) {
        request.marksMHz << parseMHz(mark);
        if (request.marksMHz.last() < request.lowMHz || request.marksMHz.last() > request.highMHz)
            throw BadInput(QLatin1String("mark ") + echoed(mark)
                           + QLatin1String(" lies outside the chart's window"));
    }

    Outcome out;
    const ChartLayout layout = layoutChart(request);
    out.json = QJsonObject{{QStringLiteral("lowMHz"), request.lowMHz},
                           {QStringLiteral("highMHz"), request.highMHz},
                           {QStringLiteral("bands"), layout.rows.size()},
                           {QStringLiteral("bars"), layout.barCount()}};
    if (layout.rows.isEmpty()) {
        out.status = ExitNoResult;
        out.notes << QStringLiteral("no band has a record between %1 and %2 MHz")
                         .arg(formatMHz(request.lowMHz), formatMHz(request.highMHz));
        return out;
    }
    const QByteArray svg = chartSvg(layout);
    if (options.outputFile.isEmpty()) {
        out.text = QString::fromUtf8(svg);
        out.json.insert(QStringLiteral("svg"), out.text);
        return out;
    }
    QFile file(options.outputFile);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(svg) != svg.size()
        || !file.flush())
        throw BadInput(QLatin1String("cannot write ") + echoed(options.outputFile));
    out.json.insert(QStringLiteral("file"), options.outputFile);
    return out;
}

const QList<Command> &commands()
{
    static const QList<Command> list{
        {"techs", "", "technologies, band counts, integration bandwidths", 0, 0, "", runTechs},
        {"bands", "TECH", "codes, channel and MHz ranges, records, duplex", 1, 1, "", runBands},
        {"band", "BAND", "one band in detail: every record, raster, duplex, pairing", 1, 1, "",
         runBand},
        {"freq", "BAND CHANNEL...", "centre frequency of each channel, per direction", 2, -1,
         "ul dl", runFreq},
        {"channel", "BAND MHZ...", "channel centred on MHZ (or the nearest), per direction", 2, -1,
         "ul dl preferred nearest", runChannel},
        {"search", "MHZ...", "bands holding MHZ, nearest channel first", 1, -1, "ul dl", runSearch},
        {"channels", "BAND LOW HIGH", "channels of a band centred in LOW..HIGH MHz", 3, 3, "ul dl",
         runChannels},
        {"table", "[MODE]", "band table of an instrument mode; the modes without MODE", 0, 1,
         "link", runTable},
        {"which", "CHANNEL...", "every band and direction that has CHANNEL", 1, -1, "ul dl",
         runWhich},
        {"chart", "LOW HIGH", "an SVG picture of the bands between LOW and HIGH MHz", 2, 2,
         "tech mark output", runChart},
        {"batch", "[FILE]", "one command per line of FILE (or standard input)", 0, 1, "", nullptr},
    };
    return list;
}

const QList<ProgramOption> &programOptions()
{
    // clang-format off
    static const QList<ProgramOption> list{
        {"ul", nullptr, "only uplink (freq, channel, search, channels, which);\n"
                        "default: every direction the band has", false, false},
        {"dl", nullptr, "only downlink", false, false},
        {"preferred", "N", "channel: keep channel N where the frequency has several", false, false},
        {"nearest", nullptr, "channel: the nearest channel of each direction and its\n"
                             "offset, for a frequency off the raster", false, false},
        {"link", "0|1", "table: 0 downlink ranges (default), 1 uplink ranges", false, false},
        {"tech", "T", "chart: only technology T (repeatable; short names as for bands)", false, false},
        {"mark", "MHZ", "chart: a line at MHZ, labelled with the bands and channels\n"
                        "there (repeatable)", false, false},
        {"o output", "FILE", "chart: write the SVG to FILE instead of stdout", false, false},
        {"json", nullptr, "JSON on stdout, full precision; in batch one document a line", true, false},
        {"verbose", nullptr, "show the library's banner and diagnostics on stderr", true, false},
        {"q quiet", nullptr, "no library diagnostics (the default)", true, false},
        {"h help", nullptr, "this text", true, false},
        {"v version", nullptr, "the library's version", true, false},
        {"man", nullptr, "", true, true},
        {"completion", nullptr, "", true, true},
    };
    // clang-format on
    return list;
}
