// Prints the library's answers and messages to a fixed set of queries, one per line, for diffing
// two builds.

#include <saiskuko/saiskuko.h>

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QtGlobal>

#include <climits>
#include <cstdio>
#include <iostream>
#include <limits>
#include <set>
#include <sstream>
#include <string>

namespace {

// The library writes one diagnostic to std::cout; it is caught here and shown
// in order with the Qt messages and the answers.
std::ostringstream &capturedCout()
{
    static std::ostringstream buffer;
    return buffer;
}

std::string quoted(const QString &text)
{
    std::string out = "\"";
    for (const char c : text.toStdString()) {
        if (c == '"' || c == '\\') {
            out += '\\';
            out += c;
        } else if (c == '\n') {
            out += "\\n";
        } else if (static_cast<unsigned char>(c) < 0x20) {
            char hex[8];
            std::snprintf(hex, sizeof hex, "\\x%02x", static_cast<unsigned char>(c));
            out += hex;
        } else {
            out += c;
        }
    }
    return out + '"';
}

void drainCout()
{
    const std::string text = capturedCout().str();
    if (text.empty())
        return;
    capturedCout().str(std::string());
    std::printf("  cout %s\n", quoted(QString::fromStdString(text)).c_str());
}

void onMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    drainCout();
    const char *kind = type == QtDebugMsg      ? "debug"
                       : type == QtInfoMsg     ? "info"
                       : type == QtWarningMsg  ? "warning"
                       : type == QtCriticalMsg ? "critical"
                                               : "fatal";
    std::printf("  msg %s %s\n", kind, quoted(text).c_str());
}

template <typename... Values>
std::string text(const char *format, Values... values)
{
    char buffer[512];
    std::snprintf(buffer, sizeof buffer, format, values...);
    return buffer;
}

// Hexadecimal floats: a change in the last bit shows.
std::string fmt(double v)
{
    return text("%a", v);
}
std::string fmt(int v)
{
    return std::to_string(v);
}
std::string fmt(bool v)
{
    return v ? "true" : "false";
}
std::string fmt(const QString &v)
{
    return quoted(v);
}

std::string fmt(const QList<int> &v)
{
    std::string out = text("%d[", int(v.size()));
    for (int x : v)
        out += ' ' + std::to_string(x);
    return out + " ]";
}

std::string fmt(const QList<QString> &v)
{
    std::string out = text("%d[", int(v.size()));
    for (const QString &s : v)
        out += ' ' + quoted(s);
    return out + " ]";
}

std::string fmt(const QList<ChInfo> &hits)
{
    std::string out = text("%d[", int(hits.size()));
    for (const ChInfo &h : hits)
        out += text(" {%d ", h.reserved) + quoted(h.techName) + ' ' + quoted(h.bandName)
               + text(" %d %d %a}", h.linkDirection, h.channelNo, h.freqOffset);
    return out + " ]";
}

std::string fmt(const stCHList &t)
{
    return "tech " + fmt(t.techList) + " band " + fmt(t.bandList) + " ch " + fmt(t.chRangeList)
           + " freq " + fmt(t.freqRangeList);
}

// Runs one query and prints its answer after whatever it logged.
template <typename Query>
void ask(const std::string &label, Query query)
{
    const std::string answer = fmt(query());
    drainCout();
    std::printf("%s = %s\n", label.c_str(), answer.c_str());
}

QString standardOf(const QString &tech, const QString &band)
{
    return tech + QStringLiteral(" - ") + band;
}

QString directionOf(int link)
{
    return link == 0 ? QStringLiteral("Forward") : QStringLiteral("Reverse");
}

double freqAt(const stSubBand &r, int channel)
{
    return r.FreqFunc ? r.FreqFunc(channel, r.BaseFreq, r.StartChannelNo) : -1.0;
}

int middleOf(const stSubBand &r)
{
    return int((qint64(r.StartChannelNo) + r.StopChannelNo) / 2);
}

void dumpMaps(ChBandStore &s)
{
    std::printf("section maps\n");
    for (auto it = s.TechIndexMap.cbegin(); it != s.TechIndexMap.cend(); ++it)
        std::printf("tech %s -> %d\n", quoted(it.key()).c_str(), it.value());
    for (int c = 0; c < ChBandStore::NumCatalogs; ++c)
        for (auto it = s.BandNameCatalog[c].cbegin(); it != s.BandNameCatalog[c].cend(); ++it)
            std::printf("catalog %d %s -> %d\n", c, quoted(it.key()).c_str(), it.value());
    std::printf("index names %d\n", int(s.IndexNameMap.size()));
    std::printf("pointer is G_CHSTD %s\n", fmt(ChStd::GetChStdPointer() == &G_CHSTD).c_str());
    for (int t = 0; t < ChBandStore::MaxTechnologies; ++t) {
        const ChTechnology &tech = s.Technologies[t];
        std::printf("slot %d %s bands %d\n", t, quoted(tech.TechName).c_str(), tech.NumBand);
        for (auto it = tech.BandIndexMap.cbegin(); it != tech.BandIndexMap.cend(); ++it)
            std::printf("  band %s -> %d\n", quoted(it.key()).c_str(), it.value());
    }
}

void sweepBandLevel(ChBandStore &s, const QString &tech, const ChBand &band, int code)
{
    const QString name = band.BandName;
    const QString standard = standardOf(tech, name);
    std::printf("band %s code %d global %s records %d\n", quoted(standard).c_str(), code,
                fmt(band.IsGlobal).c_str(), band.NumSubBand);
    for (int i = 0; i < band.NumSubBand; ++i) {
        const stSubBand &r = band.SubBands[i];
        std::printf(
            "  record %d: ch %d..%d freq %a..%a base %a param %d link %d formula %s up %s\n", i,
            r.StartChannelNo, r.StopChannelNo, r.StartFreq, r.StopFreq, r.BaseFreq, r.SubBandParam,
            r.Link, r.FreqFunc ? "set" : "null", fmt(r.UplinkOnly).c_str());
    }
    ask("GetEnumulator(names)", [&] { return s.GetEnumulator(tech, name); });
    ask("GetEnumulator(code)", [&] { return s.GetEnumulator(code); });
    ask("GetTech(code)", [&] { return s.GetTech(code); });
    ask("GetBand(code)", [&] { return s.GetBand(code); });
    ask("GetBandName(code)", [&] { return s.GetBandName(code); });
    ask("IsChannelStandard(text)", [&] { return s.IsChannelStandard(standard); });
    ask("IsChannelStandard(code)", [&] { return s.IsChannelStandard(code); });
    ask("IsLTETDD", [&] { return s.CheckChannelStandardIsLTETDD(name); });
    ask("IsTDS", [&] { return s.CheckChannelStandardIsTDS(name); });
    ask("IsWiMax", [&] { return s.CheckChannelStandardIsWiMax(name); });
    ask("GetStartFreq(names)", [&] { return s.GetStartFreq(tech, name); });
    ask("GetStartFreq(code)", [&] { return s.GetStartFreq(code); });
    ask("GetNumSubBand(names)", [&] { return s.GetNumSubBand(tech, name); });
    ask("GetNumSubBand(code)", [&] { return s.GetNumSubBand(code); });
    ask("IsUplinkOnly(names)", [&] { return s.IsUplinkOnly(tech, name); });
    ask("IsUplinkOnly(code)", [&] { return s.IsUplinkOnly(code); });
    ask("GetDefaultIntBW(tech)", [&] { return s.GetDefaultIntBW(tech); });
    ask("GetDefaultIntBW(code)", [&] { return s.GetDefaultIntBW(code); });
    for (int link = 0; link <= 2; ++link) {
        ask(text("GetStartFreq(names,%d)", link), [&] { return s.GetStartFreq(tech, name, link); });
        ask(text("GetStartFreq(code,%d)", link), [&] { return s.GetStartFreq(code, link); });
        ask(text("GetStopFreq(names,%d)", link), [&] { return s.GetStopFreq(tech, name, link); });
        ask(text("GetStopFreq(code,%d)", link), [&] { return s.GetStopFreq(code, link); });
        ask(text("GetStartChannelNo(names,%d)", link),
            [&] { return s.GetStartChannelNo(tech, name, link); });
        ask(text("GetStartChannelNo(code,%d)", link),
            [&] { return s.GetStartChannelNo(code, link); });
        ask(text("GetStopChannelNo(names,%d)", link),
            [&] { return s.GetStopChannelNo(tech, name, link); });
        ask(text("GetStopChannelNo(code,%d)", link),
            [&] { return s.GetStopChannelNo(code, link); });
    }
    for (int sel = 0; sel <= 1; ++sel) {
        ask(text("GetChNumRefString(%d)", sel),
            [&] { return s.GetChNumRefString(tech, name, sel); });
        ask(text("GetChNumRefString_List(%d)", sel),
            [&] { return s.GetChNumRefString_List(tech, name, sel); });
        ask(text("GetFreqRefString_List(%d)", sel),
            [&] { return s.GetFreqRefString_List(tech, name, sel); });
    }
    // A small window in the middle and one at the lower edge of every record.
    for (int i = 0; i < band.NumSubBand; ++i) {
        const stSubBand &r = band.SubBands[i];
        const int mid = middleOf(r);
        const double windows[2][2] = {{freqAt(r, mid - 2), freqAt(r, mid + 2)},
                                      {r.StartFreq, freqAt(r, r.StartChannelNo + 1)}};
        for (const auto &w : windows)
            for (int link = 0; link <= 1; ++link)
                ask(text("GetAvailableChannels(%d,%a,%a)", link, w[0], w[1]), [&] {
                    return s.GetAvailableChannels(standard, directionOf(link), w[0], w[1]);
                });
    }
}

void sweepChannel(ChBandStore &s, const QString &tech, const QString &name, int code, int ch,
                  int link)
{
    const QString standard = standardOf(tech, name);
    const QString direction = directionOf(link);
    const std::string at = text("(%d,%d)", link, ch);
    double f = -1.0;
    ask("GetFreq(names)" + at, [&] { return f = s.GetFreq(tech, name, link, ch); });
    ask("GetFreq(text,link)" + at, [&] { return s.GetFreq(standard, link, ch); });
    ask("GetFreq(text,dir)" + at, [&] { return s.GetFreq(standard, direction, ch); });
    ask("GetFreq(code)" + at, [&] { return s.GetFreq(code, link, ch); });
    ask("GetFreqNoLimit" + at, [&] { return s.GetFreqNoLimit(tech, name, link, ch); });
    ask("IsExistChannelNo(names)" + at, [&] { return s.IsExistChannelNo(tech, name, link, ch); });
    ask("IsExistChannelNo(code)" + at, [&] { return s.IsExistChannelNo(code, link, ch); });
    ask("GetStopChannelNo_InSample" + at,
        [&] { return s.GetStopChannelNo_InSample(tech, name, ch, link); });
    ask("GetOffsetChUpDown(names)" + at, [&] { return s.GetOffsetChUpDown(tech, name, ch, link); });
    ask("GetOffsetChUpDown(text,link)" + at,
        [&] { return s.GetOffsetChUpDown(standard, link, ch); });
    ask("GetOffsetChUpDown(text,dir)" + at,
        [&] { return s.GetOffsetChUpDown(standard, direction, ch); });
    ask("GetOffsetChUpDown(code)" + at, [&] { return s.GetOffsetChUpDown(code, link, ch); });
    if (f == -1.0)
        return;
    ask("GetChNumFromFreq(names,-1)" + at,
        [&] { return s.GetChNumFromFreq(tech, name, link, f, -1); });
    ask("GetChNumFromFreq(names,ch)" + at,
        [&] { return s.GetChNumFromFreq(tech, name, link, f, ch); });
    ask("GetChNumFromFreq(text,link)" + at,
        [&] { return s.GetChNumFromFreq(standard, link, f, ch); });
    ask("GetChNumFromFreq(text,dir)" + at,
        [&] { return s.GetChNumFromFreq(standard, direction, f, -1); });
    ask("GetChNumFromFreq(code)" + at, [&] { return s.GetChNumFromFreq(code, link, f, ch); });
}

void sweepBands(ChBandStore &s)
{
    std::printf("section bands\n");
    for (int t = 0; t < ChBandStore::MaxTechnologies; ++t) {
        const ChTechnology &technology = s.Technologies[t];
        const QString tech = technology.TechName;
        ask("GetNumBand " + quoted(tech), [&] { return s.GetNumBand(tech); });
        ask("GetBandList " + quoted(tech), [&] { return s.GetBandList(tech); });
        for (int b = 0; b < technology.NumBand; ++b) {
            const ChBand &band = technology.Bands[b];
            const int code = 100 * t + b;
            sweepBandLevel(s, tech, band, code);
            // First, middle and last channel of each record and one past each end.
            std::set<int> channels;
            for (int i = 0; i < band.NumSubBand; ++i) {
                const stSubBand &r = band.SubBands[i];
                for (qint64 ch :
                     {qint64(r.StartChannelNo) - 1, qint64(r.StartChannelNo), qint64(middleOf(r)),
                      qint64(r.StopChannelNo), qint64(r.StopChannelNo) + 1})
                    channels.insert(int(qBound(qint64(INT_MIN), ch, qint64(INT_MAX))));
            }
            for (int ch : channels)
                for (int link = 0; link <= 2; ++link)
                    sweepChannel(s, tech, band.BandName, code, ch, link);
        }
    }
}

void sweepSearch(ChBandStore &s)
{
    std::printf("section search\n");
    std::set<double> freqs;
    for (const ChTechnology &technology : s.Technologies)
        for (int b = 0; b < technology.NumBand; ++b)
            for (int i = 0; i < technology.Bands[b].NumSubBand; ++i) {
                const stSubBand &r = technology.Bands[b].SubBands[i];
                const int mid = middleOf(r);
                for (double f :
                     {r.StartFreq, r.StopFreq, freqAt(r, r.StartChannelNo), freqAt(r, mid),
                      freqAt(r, r.StopChannelNo), (freqAt(r, mid) + freqAt(r, mid + 1)) / 2})
                    freqs.insert(f);
            }
    for (double f : freqs)
        ask(text("GetChInfoFromFreq(%a)", f), [&] { return s.GetChInfoFromFreq(f); });
}

void sweepScreens(ChBandStore &s)
{
    std::printf("section screens\n");
    for (int mode = -1; mode <= 24; ++mode)
        for (int sel = 0; sel <= 1; ++sel)
            ask(text("GetBandListByMode(%d,0,%d)", mode, sel),
                [&] { return ChStd::GetBandListByMode(mode, 0, sel); });
    ask("GetBandListByMode(1,7,1)", [&] { return ChStd::GetBandListByMode(1, 7, 1); });
    QList<QString> techs = s.TechIndexMap.keys();
    techs << QStringLiteral("LTE") << QString();
    for (const QString &tech : techs) {
        stCHList names;
        ChStd::SetBandListName(tech, names);
        ask("SetBandListName " + quoted(tech), [&] { return names; });
        for (int sel = 0; sel <= 1; ++sel) {
            stCHList ranges;
            ChStd::SetBandListRange(tech, sel, ranges);
            ask(text("SetBandListRange %d ", sel) + quoted(tech), [&] { return ranges; });
        }
    }
}

void sweepBadInput(ChBandStore &s)
{
    std::printf("section bad input\n");
    const QString names[][2] = {
        {QStringLiteral("LTE"), QStringLiteral("Band 1 (2100)")},
        {QStringLiteral("lte-fdd"), QStringLiteral("Band 1 (2100)")},
        {QStringLiteral("LTE-FDD"), QStringLiteral("Band 1 (2100-General)")},
        {QStringLiteral("GSM"), QStringLiteral("gsm 850")},
        {QStringLiteral("WIMAX"), QString()},
        {QString(), QString()},
    };
    for (const auto &n : names) {
        const QString &tech = n[0], &band = n[1];
        const std::string at = quoted(tech) + ',' + quoted(band);
        ask("GetEnumulator" + at, [&] { return s.GetEnumulator(tech, band); });
        ask("IsChannelStandard" + at, [&] { return s.IsChannelStandard(standardOf(tech, band)); });
        ask("GetNumBand" + at, [&] { return s.GetNumBand(tech); });
        ask("GetBandList" + at, [&] { return s.GetBandList(tech); });
        ask("GetNumSubBand" + at, [&] { return s.GetNumSubBand(tech, band); });
        ask("GetStartFreq" + at, [&] { return s.GetStartFreq(tech, band, 1); });
        ask("GetStopChannelNo" + at, [&] { return s.GetStopChannelNo(tech, band, 0); });
        ask("GetDefaultIntBW" + at, [&] { return s.GetDefaultIntBW(tech); });
        ask("GetFreq" + at, [&] { return s.GetFreq(tech, band, 0, 300); });
        ask("GetChNumFromFreq" + at, [&] { return s.GetChNumFromFreq(tech, band, 1, 824.2, -1); });
        ask("GetOffsetChUpDown" + at, [&] { return s.GetOffsetChUpDown(tech, band, 300, 1); });
        ask("GetChNumRefString" + at, [&] { return s.GetChNumRefString(tech, band, 1); });
        ask("GetFreqRefString_List" + at, [&] { return s.GetFreqRefString_List(tech, band, 0); });
    }

    const QString standards[] = {
        QStringLiteral("GSM"),
        QStringLiteral("GSM-GSM 850"),
        QString(),
        QStringLiteral("GSM - GSM 850 - extra"),
        QStringLiteral(" - "),
        QStringLiteral("Nope - Nope"),
    };
    for (const QString &st : standards) {
        const std::string at = quoted(st);
        ask("IsChannelStandard" + at, [&] { return s.IsChannelStandard(st); });
        ask("GetFreq(text,link)" + at, [&] { return s.GetFreq(st, 1, 128); });
        ask("GetFreq(text,dir)" + at,
            [&] { return s.GetFreq(st, QStringLiteral("Forward"), 128); });
        ask("GetChNumFromFreq(text,link)" + at,
            [&] { return s.GetChNumFromFreq(st, 1, 824.2, -1); });
        ask("GetChNumFromFreq(text,dir)" + at,
            [&] { return s.GetChNumFromFreq(st, QString(), 824.2, 128); });
        ask("GetOffsetChUpDown(text,link)" + at, [&] { return s.GetOffsetChUpDown(st, 1, 128); });
        ask("GetOffsetChUpDown(text,dir)" + at,
            [&] { return s.GetOffsetChUpDown(st, QStringLiteral("forward"), 128); });
        ask("GetAvailableChannels" + at,
            [&] { return s.GetAvailableChannels(st, QStringLiteral("Forward"), 800.0, 900.0); });
    }

    for (int code : {INT_MIN, -150, -1, 11, 99, 109, 238, 317, 736, 800, 900, 10000, INT_MAX}) {
        const std::string at = text("(%d)", code);
        ask("GetEnumulator" + at, [&] { return s.GetEnumulator(code); });
        ask("GetTech" + at, [&] { return s.GetTech(code); });
        ask("GetBand" + at, [&] { return s.GetBand(code); });
        ask("GetBandName" + at, [&] { return s.GetBandName(code); });
        ask("IsChannelStandard" + at, [&] { return s.IsChannelStandard(code); });
        ask("GetNumSubBand" + at, [&] { return s.GetNumSubBand(code); });
        ask("GetStartChannelNo" + at, [&] { return s.GetStartChannelNo(code, 1); });
        ask("GetStopChannelNo" + at, [&] { return s.GetStopChannelNo(code, 0); });
        ask("GetOffsetChUpDown" + at, [&] { return s.GetOffsetChUpDown(code, 1, 128); });
        ask("GetChNumFromFreq" + at, [&] { return s.GetChNumFromFreq(code, 1, 824.2, -1); });
        ask("GetDefaultIntBW" + at, [&] { return s.GetDefaultIntBW(code); });
        ask("IsUplinkOnly" + at, [&] { return s.IsUplinkOnly(code); });
        ask("GetStartFreq" + at, [&] { return s.GetStartFreq(code); });
        ask("GetStartFreq,link" + at, [&] { return s.GetStartFreq(code, 0); });
        ask("GetStopFreq" + at, [&] { return s.GetStopFreq(code, 1); });
        ask("IsExistChannelNo" + at, [&] { return s.IsExistChannelNo(code, 1, 128); });
        ask("GetFreq" + at, [&] { return s.GetFreq(code, 1, 128); });
    }

    const double inf = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const QString gsm = QStringLiteral("GSM"), gsm850 = QStringLiteral("GSM 850");
    const QString nr = QStringLiteral("5G NR"), n78 = QStringLiteral("Band n78 (TD 3500)");
    for (double f : {nan, inf, -inf, 0.0, -1.0, 1.0, 1e300, -0.0}) {
        const std::string at = text("(%a)", f);
        ask("GetChInfoFromFreq" + at, [&] { return s.GetChInfoFromFreq(f); });
        ask("GetChNumFromFreq gsm" + at, [&] { return s.GetChNumFromFreq(gsm, gsm850, 1, f, -1); });
        ask("GetChNumFromFreq nr" + at, [&] { return s.GetChNumFromFreq(nr, n78, 1, f, -1); });
        ask("GetAvailableChannels low" + at,
            [&] { return s.GetAvailableChannels(standardOf(gsm, gsm850), QString(), f, 849.0); });
        ask("GetAvailableChannels high" + at, [&] {
            return s.GetAvailableChannels(standardOf(gsm, gsm850), QStringLiteral("Forward"), 869.0,
                                          f);
        });
    }
    ask("GetAvailableChannels reversed",
        [&] { return s.GetAvailableChannels(standardOf(gsm, gsm850), QString(), 849.0, 824.0); });

    for (int ch : {INT_MIN, INT_MIN + 1, -1000000, INT_MAX - 1, INT_MAX})
        for (int link : {-1, 0, 1, 2}) {
            const std::string at = text("(%d,%d)", link, ch);
            ask("GetFreq gsm" + at, [&] { return s.GetFreq(gsm, gsm850, link, ch); });
            ask("GetFreqNoLimit gsm" + at, [&] { return s.GetFreqNoLimit(gsm, gsm850, link, ch); });
            ask("GetFreqNoLimit nr" + at, [&] { return s.GetFreqNoLimit(nr, n78, link, ch); });
            ask("IsExistChannelNo nr" + at, [&] { return s.IsExistChannelNo(nr, n78, link, ch); });
            ask("GetStopChannelNo_InSample gsm" + at,
                [&] { return s.GetStopChannelNo_InSample(gsm, gsm850, ch, link); });
            ask("GetOffsetChUpDown gsm" + at,
                [&] { return s.GetOffsetChUpDown(gsm, gsm850, ch, link); });
        }
}

} // namespace

int main()
{
    std::streambuf *realCout = std::cout.rdbuf(capturedCout().rdbuf());
    qInstallMessageHandler(onMessage);
    ChBandStore &store = *ChStd::GetChStdPointer();
    dumpMaps(store);
    sweepBands(store);
    sweepSearch(store);
    sweepScreens(store);
    sweepBadInput(store);
    drainCout();
    std::cout.rdbuf(realCout);
    std::printf("end\n");
    return 0;
}
