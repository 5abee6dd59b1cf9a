// The typed API: conversions held to GetFreq and to a walk over every channel,
// the names it reads, duplex, paired channels and the searches of the store.
#include "testsupport.h"

#include "store/recordrules.h"

#include <cmath>

using namespace saiskuko;

namespace {

constexpr double kHalfHertz = 0.5e-6;

const char *const kCodeNames[] = {
    "UnknownTechnology", "UnknownBand",      "AmbiguousName",      "BadName",
    "LinkNotServed",     "ChannelNotInBand", "FrequencyNotInBand", "NotAChannelCentre",
    "NoPairedChannel",   "NotFinite"};

// An answer as one string: the value, or "!" and the error's code.
template <typename T>
QString shown(const Result<T> &r)
{
    if (!r.ok())
        return QLatin1String("!") + QLatin1String(kCodeNames[int(r.error().code)]);
    if constexpr (std::is_same_v<T, Band>)
        return r.value().standard();
    else if constexpr (std::is_same_v<T, int>)
        return QString::number(r.value());
    else if constexpr (std::is_same_v<T, Technology>)
        return technologyName(r.value());
    else
        return nums(r.value()); // the channels of a list
}

Band band(const char *name)
{
    return findBand(QString::fromUtf8(name)).value();
}

// The definitions walked: every channel of the link's real records in order,
// those centred within half a hertz of mhz, and the nearest (the first on a tie).
struct Walked
{
    QList<int> at;
    int nearest = -1;
};
Walked walk(const Band &b, Link link, double mhz)
{
    const ChBand &data = G_CHSTD.Technologies[int(b.technology())].Bands[b.code() % 100];
    Walked w;
    double best = HUGE_VAL;
    for (int i = 0; i < data.NumSubBand; ++i) {
        const stSubBand &r = data.SubBands[i];
        if (isPlaceholder(r) || !servesLinkOfBand(r, int(link), b.duplex() == Duplex::Tdd))
            continue;
        for (qint64 ch = r.StartChannelNo; ch <= r.StopChannelNo; ++ch) {
            const double d = std::fabs(recordFreq(r, int(ch)) - mhz);
            if (d <= kHalfHertz && !w.at.contains(int(ch)))
                w.at << int(ch);
            if (d < best) {
                best = d;
                w.nearest = int(ch);
            }
        }
    }
    return w;
}

QString recordText(const Record &r)
{
    return nums({int(r.link), r.firstChannel, r.lastChannel, r.lowEdgeMHz, r.highEdgeMHz,
                 r.firstMHz, r.lastMHz, r.stepMHz});
}

} // namespace

class TestTypedApi : public QObject
{
    Q_OBJECT

private slots:
    // For every band, real record, link, and the record's first, middle and
    // last channel: the frequency is GetFreq's, and converts back. records() is
    // the band's table less its placeholders, in order (the global bands
    // interleave their links irregularly); records(link) keeps that order;
    // recordCount() counts the placeholders too.
    void everyRecord()
    {
        LogCapture log;
        int checked = 0, placeholders = 0;
        QCOMPARE(allBands().size(), 172);
        for (const Band &b : allBands()) {
            // Named by its code and by its short name, which every GSM band has.
            QCOMPARE(bandByCode(b.code()).value(), b);
            QVERIFY(b.shortName().isEmpty() || findBand(b.shortName()).value() == b);
            QVERIFY2(b.technology() != Technology::Gsm || !b.shortName().isEmpty(),
                     qPrintable(b.standard()));
            const ChBand &data = G_CHSTD.Technologies[int(b.technology())].Bands[b.code() % 100];
            QStringList table;
            for (int i = 0; i < data.NumSubBand; ++i) {
                const stSubBand &r = data.SubBands[i];
                const qint64 first = r.StartChannelNo, last = r.StopChannelNo;
                const double step =
                    first < last ? recordFreq(r, int(first) + 1) - recordFreq(r, int(first)) : 0.0;
                if (isPlaceholder(r)) {
                    // Never answers, but a real record holding the channel may.
                    bool real = false;
                    for (const Record &held : b.records(Link(r.Link)))
                        real = real || (held.firstChannel <= first && first <= held.lastChannel);
                    QCOMPARE(b.frequency(Link(r.Link), int(first)).ok(), real);
                    ++placeholders;
                    continue;
                }
                table << nums({r.Link, r.StartChannelNo, r.StopChannelNo, r.StartFreq, r.StopFreq,
                               recordFreq(r, r.StartChannelNo), recordFreq(r, r.StopChannelNo),
                               step});
                for (Link link : {Link::Up, Link::Down}) {
                    for (const qint64 ch : {first, first + (last - first) / 2, last}) {
                        const QString where =
                            b.standard() + QLatin1Char(' ') + nums({int(link), int(ch)});
                        const Result<double> f = b.frequency(link, int(ch));
                        if (servesLinkOfBand(r, int(link), b.duplex() == Duplex::Tdd))
                            QVERIFY2(f.ok(), qPrintable(where));
                        if (!f.ok())
                            continue;
                        const double old = G_CHSTD.GetFreq(b.code(), int(link), int(ch));
                        // GetFreq reads every "Band Global" as time-division, and so
                        // answers a link of the paired ones from the other's records.
                        if (old != -1.0 && (!b.isGlobal() || b.duplex() == Duplex::Tdd))
                            QVERIFY2(old == f.value(), qPrintable(where));
                        QVERIFY2(b.frequencies(link, int(ch)).contains(f.value()),
                                 qPrintable(where));
                        QVERIFY2(b.channelsAt(link, f.value()).value().contains(int(ch)),
                                 qPrintable(where));
                        // On the centre, off it, halfway to the next and either side of
                        // the half hertz that counts as the centre, as the walk finds.
                        const double off = step ? step : 0.001;
                        for (double mhz :
                             {f.value(), f.value() + 0.37 * off, f.value() + 0.5 * off,
                              f.value() - 0.9 * kHalfHertz, f.value() + 1.1 * kHalfHertz}) {
                            const Walked w = walk(b, link, mhz);
                            const Result<QList<int>> at = b.channelsAt(link, mhz);
                            QCOMPARE(at.ok() ? at.value() : QList<int>(), w.at);
                            const Result<int> near = b.nearestChannel(link, mhz);
                            if (near.ok() || mhz == f.value())
                                QCOMPARE(near.value(), w.nearest);
                        }
                        ++checked;
                    }
                }
            }
            QStringList listed;
            for (const Record &r : b.records())
                listed << recordText(r);
            QCOMPARE(listed, table);
            QCOMPARE(b.recordCount(), data.NumSubBand);
            for (const int ch : {300, 18300, 630000}) { // the bands that hold a channel
                bool holds = false;
                for (Link link : b.links())
                    for (const Record &r : b.records(link))
                        holds = holds || (r.firstChannel <= ch && ch <= r.lastChannel);
                QCOMPARE(bandsWithChannel(ch).contains(b), holds && !b.isGlobal());
            }
            for (Link link : {Link::Up, Link::Down}) {
                int at = 0;
                for (const Record &r : b.records(link)) {
                    while (at < listed.size() && listed[at] != recordText(r))
                        ++at;
                    QVERIFY2(at++ < listed.size(), qPrintable(b.standard()));
                }
            }
        }
        QVERIFY(checked > 2000 && placeholders > 0);
        QCOMPARE(log.take(), QStringList());
        QCOMPARE(nums({Band().recordCount(), Band().records().size()}), str("0 0"));
    }

    // Each row: what the names read as (a channel standard or "!" and the error), then the names.
    void names_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        const char *const rows[][2] = {
            {"LTE-FDD - Band 1 (2100)", "201| 0201 |LTE-FDD - Band 1 (2100)|LTE:1|lte:1|FDD:1|"
                                        "lte-fdd:B1|LTE:band1|B1|b1|Band1"},
            {"5G NR - Band n78 (TD 3500)",
             "5G NR - Band n78 (TD 3500)|NR:n78|5g:78|NR:n078|N78|n78 "},
            // clang-format off
            {"LTE-FDD - Band 7 (2600)", "LTE:07"},        {"LTE-TDD - Band 33 (1900)", "LTE:33"},
            {"CDMA - Band 0 (800)", "bc0"},               {"CDMA - Band 10 (2nd 800)", "CDMA:bc10"},
            {"WCDMA - Band 8 (900-General)", "WCDMA:VIII"},
            {"WCDMA - Band 1 (2100-General)", "umts:i"},  {"LTE-TDD - Band Global", "TDD:global"},
            {"WCDMA - Band 2 (1900-Additional)", "WCDMA:2-additional"},
            {"WCDMA - Band 21 (3500-General)", "WCDMA:21-3500"},
            {"GSM - DCS 1800", "GSM:dcs1800|GSM:dcs"},    {"GSM - E-GSM 900", "GSM:e900"},
            {"GSM - R-GSM 900 (China)", "GSM:r900china"}, {"GSM - GSM 450", "GSM:450"},
            {"GSM - GSM 480", "GSM:480"},                 {"GSM - GSM 850", "GSM:850"},
            {"TD-SCDMA - FBN 3", "TDS:3"},                {"WIMAX - ProfR12 (7 3463)", "WIMAX:r12"},
            // clang-format on
            {"!AmbiguousName", "WCDMA:IV|GSM:900|LTE:global"},
            {"!UnknownBand",
             "LTE-FDD - band 1 (2100)|LTE:IV|LTE:1x|LTE:1:2|238|99999999999999999999"},
            {"!UnknownTechnology", "LTE - Band 1 (2100)|FOO:1"},
            {"!BadName", "LTE:|n78x||-1"},
        };
        for (const auto &row : rows)
            for (const QString &name : str(row[1]).split(QLatin1Char('|')))
                QTest::newRow(qPrintable(name)) << name << str(row[0]);
    }
    void names()
    {
        QFETCH(QString, text);
        QFETCH(QString, expected);
        QCOMPARE(shown(findBand(text)), expected);
    }

    void technologiesAndMessages()
    {
        const auto tech = [](const char *text) { return shown(findTechnology(str(text))); };
        QCOMPARE(tech("fdd") + tech(" NR ") + tech("umts") + tech("tds") + tech("lte") + tech(""),
                 str("LTE-FDD5G NRWCDMATD-SCDMA!AmbiguousName!UnknownTechnology"));
        QCOMPARE(findTechnology(u"lte").error().message,
                 str("technology \"lte\" is ambiguous; it matches: LTE-FDD, LTE-TDD"));
        QCOMPARE(
            findTechnology(u"foo").error().message,
            str("unknown technology \"foo\"; technologies: CDMA, GSM, LTE-FDD, LTE-TDD, "
                "TD-SCDMA, WCDMA, WIMAX, 5G NR (short forms: fdd, lte, tdd, tds, umts, nr, 5g)"));
        QCOMPARE(
            bandByCode(-5).error().message,
            str("no band has code -5; codes: 0-10 CDMA, 100-108 GSM, 200-237 LTE-FDD, "
                "300-316 LTE-TDD, 400-408 TD-SCDMA, 500-532 WCDMA, 600-618 WIMAX, 700-735 5G NR"));
        QCOMPARE(findBand(u"LTE:global").error().message,
                 str("band \"LTE:global\" is ambiguous; it matches: LTE-FDD - Band Global [200], "
                     "LTE-TDD - Band Global [300]"));
        QCOMPARE(findBand(QString(50, QLatin1Char('x'))).error().message,
                 QLatin1String("cannot read band \"") + QString(40, QLatin1Char('x'))
                     + str("...\": give a code (201), a channel standard (\"LTE-FDD - Band 1 "
                           "(2100)\") or TECH:BAND (LTE:1, NR:n78)"));
        QCOMPARE(technologyShortForms(Technology::Nr), QStringList({str("nr"), str("5g")}));
        // As GetDefaultIntBW answers for the name: its fallback for 5G NR and a free slot.
        QStringList bandwidths;
        for (int t = 0; t <= kNumTechSlots; ++t)
            bandwidths << nums({defaultIntegrationBandwidthHz(Technology(t))});
        QCOMPARE(bandwidths.join(QLatin1Char(' ')),
                 str("1230000 300000 10000000 10000000 1280000 3840000 10000000 1000000 1000000"));
        QCOMPARE(band("n78").shortName(), str("NR:n78"));
    }

    void duplexAndLinks()
    {
        const char *const rows[][2] = {
            {"LTE:1", "FDD 1 0"},     {"NR:n78", "TDD 1 0"},     {"NR:n41", "TDD 1 0"},
            {"NR:n77", "TDD 1 0"},    {"NR:n257", "TDD 1 0"},    {"NR:n75", "SDL 0"},
            {"NR:n80", "SUL 1"},      {"TDD:global", "TDD 1 0"}, {"FDD:global", "FDD 1 0"},
            {"NR:global", "FDD 1 0"}, {"WIMAX:1", "TDD 1 0"},    {"WIMAX:6", "FDD 1 0"},
            {"TDS:0", "TDD 1 0"},     {"GSM:dcs", "FDD 1 0"}};
        for (const auto &row : rows) {
            const Band b = band(row[0]);
            QStringList got = {duplexName(b.duplex())};
            for (Link link : b.links())
                got << QString::number(int(link));
            QCOMPARE(got.join(QLatin1Char(' ')), str(row[1]));
        }
        QVERIFY(band("FDD:global").isGlobal() && !band("LTE:1").isGlobal());
    }

    void conversionsThatFail()
    {
        const Band lte1 = band("LTE:1"), n75 = band("NR:n75"), nr1 = band("NR:n1");
        const auto paired = [](const Band &b, Link link, int ch) {
            return shown(b.pairedChannel(link, ch));
        };
        QCOMPARE(paired(lte1, Link::Down, 300) + paired(lte1, Link::Up, 18300)
                     + paired(nr1, Link::Down, 422000) + paired(lte1, Link::Down, 700),
                 str("18300300384000!ChannelNotInBand"));
        QCOMPARE(paired(lte1, Link::Up, 300) + paired(band("NR:n78"), Link::Down, 630000)
                     + paired(n75, Link::Down, 290000) + paired(band("bc0"), Link::Down, 300)
                     + paired(Band(), Link::Down, 300) + paired(n75, Link::Up, 290000),
                 str("!ChannelNotInBand!NoPairedChannel!NoPairedChannel!NoPairedChannel"
                     "!UnknownBand!ChannelNotInBand"));
        QCOMPARE(lte1.frequency(Link::Down, 700).error().message,
                 str("channel 700 is not a downlink channel of LTE-FDD - Band 1 (2100); "
                     "channels: 0-599"));
        QCOMPARE(shown(n75.channelsAt(Link::Up, 1500.0)) + shown(lte1.channelsAt(Link::Down, kNaN))
                     + shown(lte1.channelsAt(Link::Down, 100.0))
                     + shown(lte1.channelsAt(Link::Down, 2140.05))
                     + shown(lte1.nearestChannel(Link::Down, kInf))
                     + shown(lte1.nearestChannel(Link::Down, 2200.0))
                     + shown(lte1.nearestChannel(Link::Down, 2110.04)),
                 str("!LinkNotServed!NotFinite!FrequencyNotInBand!NotAChannelCentre!NotFinite"
                     "!FrequencyNotInBand0"));
        QCOMPARE(shown(band("bc5").channelsAt(Link::Up, 455.65)), str("227 1256"));
        QVERIFY(!Band().frequency(Link::Down, 0).ok() && Band().standard().isEmpty());
        QVERIFY(lte1.withinEdges(Link::Down, 2110.0) && !lte1.withinEdges(Link::Down, 2170.1));
        // A Result holds a value or an error, never both: copies and moves across the two.
        Result<QList<int>> at = band("bc5").channelsAt(Link::Up, 455.65),
                           none = n75.channelsAt(Link::Up, 1500.0);
        Result<QList<int>> copy = at;
        copy = none;
        QVERIFY(!copy.ok() && copy.value().isEmpty()
                && copy.error().message == none.error().message);
        copy = std::move(at);
        QVERIFY(copy.ok() && copy.value() == (QList<int>{227, 1256})
                && copy.error().message.isEmpty());
    }

    void searches()
    {
        QStringList hits;
        double lastOffset = 0.0;
        for (const SearchHit &hit : search(1950.0)) {
            hits << nums({hit.band.code(), int(hit.link), hit.channel});
            QVERIFY(!hit.band.isGlobal() && std::fabs(hit.offsetMHz) > lastOffset - 1e-6);
            lastOffset = std::fabs(hit.offsetMHz);
            QCOMPARE(hit.channelMHz, hit.band.frequency(hit.link, hit.channel).value());
            QVERIFY(std::fabs(hit.channelMHz - 1950.0 - hit.offsetMHz) < 1e-9);
        }
        for (const char *hit :
             {"201 1 18300", "304 1 37150", "304 0 37150", "501 1 9750", "701 1 390000"})
            QVERIFY2(hits.contains(str(hit)), hit);
        QVERIFY(search(kNaN).isEmpty() && search(100000.0).isEmpty());
    }

    // Last: it registers records into G_CHSTD. A formula the library does not
    // know over four million channels, and a duplex that follows new records.
    void recordsRegisteredLater()
    {
        LogCapture quiet;
        const auto formula = [](int ch, double base, int) { return base + ch * 0.001; };
        G_CHSTD.SetBandInfo(str("GSM"), str("Test 1 (DL 900)"), 0, 1 << 22, 900.0, 5100.0, 900.0, 3,
                            0, formula, false);
        const Band b = findBand(u"GSM:test1dl900").value();
        QCOMPARE(duplexName(b.duplex()), str("SDL"));
        QCOMPARE(shown(b.channelsAt(Link::Down, 900.0 + 3000000 * 0.001)), str("3000000"));
        QCOMPARE(shown(b.nearestChannel(Link::Down, 900.0 + 1234567.4 * 0.001)), str("1234567"));
        G_CHSTD.SetBandInfo(str("GSM"), str("Test 1 (DL 900)"), 0, 10, 800.0, 801.0, 800.0, 3, 1,
                            formula, false);
        QCOMPARE(duplexName(b.duplex()), str("FDD"));
        QCOMPARE(shown(b.channelsAt(Link::Up, 800.004)), str("4"));
    }
};

QTEST_APPLESS_MAIN(TestTypedApi)
#include "tst_typedapi.moc"
