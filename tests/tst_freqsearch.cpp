#include "logcapture.h"
#include "testsupport.h"

#include <climits>
#include <limits>
#include <memory>

namespace {

const double kNaN = std::numeric_limits<double>::quiet_NaN();
const double kInf = std::numeric_limits<double>::infinity();

// One hit as "tech|band|link|channel|offset", so a failing list shows the
// whole ordering at a glance.
QStringList render(const QList<ChInfo> &hits)
{
    QStringList out;
    for (const ChInfo &h : hits)
        out << QString::asprintf("%s|%s|%d|%d|%.6f", qPrintable(h.techName),
                                 qPrintable(h.bandName), h.linkDirection, h.channelNo,
                                 h.freqOffset);
    return out;
}

QStringList renderLog(const LogCapture &log)
{
    QStringList out;
    for (const LogLine &line : log.all())
        out << (line.type == QtDebugMsg     ? QStringLiteral("debug: ")
                : line.type == QtWarningMsg ? QStringLiteral("warning: ")
                                            : QStringLiteral("other: "))
                + line.text;
    return out;
}

} // namespace

class TestFreqSearch : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void chInfoFromFreq_data();
    void chInfoFromFreq();
    void chInfoFromFreqOwnRecords_data();
    void chInfoFromFreqOwnRecords();
    void availableChannels_data();
    void availableChannels();
    void availableChannelsOwnRecords();

private:
    void check(const ChBandStore &store, double freq, const QStringList &expected);

    std::unique_ptr<ChBandStore> m_store;
};

// A private store with records no real band has: above 40 GHz, so nothing of
// the band plan interferes.
void TestFreqSearch::initTestCase()
{
    m_store = std::make_unique<ChBandStore>();
    ChBandStore &s = *m_store;
    const auto step125 = &ChBandStore::chstdGetWIMAX_Common1; // base + ch x 1.25, exact
    const QString gsm = QStringLiteral("GSM"), band = QStringLiteral("Test band");
    s.SetBandInfo(gsm, band, 10, 5, 50000.0, 50100.0, 50000.0, 0, 0, step125, false);
    s.SetBandInfo(gsm, band, 0, 8, 50000.0, 50010.0, 50000.0, 0, 1, step125, false);
    s.SetBandInfo(gsm, band, 0, 8, 50000.0, 50010.0, 50000.0, 0, 0, step125, false);
    s.SetBandInfo(gsm, band, 0, 3, 50000.0, 50100.0, 50004.5, 0, 1, step125, false);
    // Registered later but in an earlier technology slot.
    s.SetBandInfo(QStringLiteral("CDMA"), band, 0, 8, 50000.0, 50010.0, 50000.0, 0, 0, step125,
                  false);
    // The global band repeats others' records; it must never be reported.
    s.SetBandInfo(QStringLiteral("LTE-FDD"), QStringLiteral("Band Global"), 0, 8, 50000.0,
                  50010.0, 50000.0, 0, 0, step125, false);
    // Channels up to INT_MAX: channel INT_MAX - 1 lies at exactly 60000 MHz.
    s.SetBandInfo(gsm, QStringLiteral("Edge band"), INT_MAX - 2, INT_MAX, 59990.0, 60010.0,
                  60000.0 - 2147483646.0 * 1.25, 0, 1, step125, false);
}

void TestFreqSearch::check(const ChBandStore &store, double freq, const QStringList &expected)
{
    LogCapture log;
    const QList<ChInfo> hits = store.GetChInfoFromFreq(freq);
    QCOMPARE(render(hits), expected);
    for (const ChInfo &h : hits)
        QCOMPARE(h.reserved, 0);
    QVERIFY(log.all().isEmpty());
    QVERIFY(log.standardOutput().empty());
}

void TestFreqSearch::chInfoFromFreq_data()
{
    QTest::addColumn<double>("freq");
    QTest::addColumn<QStringList>("expected");

    // Exact hits across technologies keep technology order; the 0.1 MHz
    // misses of GSM and WCDMA tie as well and follow.
    QTest::newRow("1842.5, ties across technologies") << 1842.5 << QStringList{
        QStringLiteral("CDMA|Band 4 (KR PCS)|0|50|0.000000"),
        QStringLiteral("CDMA|Band 8 (1800)|0|750|0.000000"),
        QStringLiteral("LTE-FDD|Band 3 (1800)|0|1575|0.000000"),
        QStringLiteral("5G NR|Band n3 (1800)|0|368500|0.000000"),
        QStringLiteral("GSM|DCS 1800|0|698|-0.100000"),
        QStringLiteral("WCDMA|Band 3 (1800-General)|0|1337|-0.100000")};
    // Both LTE-TDD directions hold 3500: uplink record first. The 1.25 MHz
    // WiMAX raster puts 3500 halfway between channels 79 and 80: 79 wins.
    QTest::newRow("3500, TDD directions and halfway") << 3500.0 << QStringList{
        QStringLiteral("LTE-TDD|Band 42 (3400)|1|42590|0.000000"),
        QStringLiteral("LTE-TDD|Band 42 (3400)|0|42590|0.000000"),
        QStringLiteral("5G NR|Band n77 (TD 3700)|0|633333|-0.005000"),
        QStringLiteral("5G NR|Band n78 (TD 3500)|0|633333|-0.005000"),
        QStringLiteral("WIMAX|ProfR5 (1.25 3400)|1|79|-0.625000")};
    // Sorted by magnitude, not value; ties keep band slot order, not
    // registration order (LTE-TDD registers every uplink record first).
    QTest::newRow("2600, sorted by magnitude") << 2600.0 << QStringList{
        QStringLiteral("LTE-FDD|Band 69 (2500)|0|68136|0.000000"),
        QStringLiteral("LTE-TDD|Band 38 (2570)|1|38050|0.000000"),
        QStringLiteral("LTE-TDD|Band 38 (2570)|0|38050|0.000000"),
        QStringLiteral("LTE-TDD|Band 41 (2496)|1|40690|0.000000"),
        QStringLiteral("LTE-TDD|Band 41 (2496)|0|40690|0.000000"),
        QStringLiteral("5G NR|Band n38 (TD 2600)|0|520000|0.000000"),
        QStringLiteral("5G NR|Band n41 (TD 2500)|0|520000|0.000000"),
        QStringLiteral("WIMAX|ProfR6 (3.5 2598)|0|1|0.500000"),
        QStringLiteral("WIMAX|ProfR4 (1.25 2500)|1|79|-0.625000"),
        QStringLiteral("WIMAX|ProfR12 (7 3463)|1|0|813.500000")};

    QTest::newRow("NaN") << kNaN << QStringList();
    QTest::newRow("+inf") << kInf << QStringList();
    QTest::newRow("-inf") << -kInf << QStringList();
    QTest::newRow("zero") << 0.0 << QStringList();
    QTest::newRow("negative") << -1842.5 << QStringList();
    QTest::newRow("just above every band") << 40000.001 << QStringList();
}

void TestFreqSearch::chInfoFromFreq()
{
    QFETCH(double, freq);
    QFETCH(QStringList, expected);
    check(G_CHSTD, freq, expected);
}

void TestFreqSearch::chInfoFromFreqOwnRecords_data()
{
    QTest::addColumn<double>("freq");
    QTest::addColumn<QStringList>("expected");

    // The record with its first channel above its last matches but chooses no
    // channel, so it comes last though it was scanned first.
    QTest::newRow("exact ties, then -0.5, then no channel") << 50005.0 << QStringList{
        QStringLiteral("CDMA|Test band|0|4|0.000000"),
        QStringLiteral("GSM|Test band|1|4|0.000000"),
        QStringLiteral("GSM|Test band|0|4|0.000000"),
        QStringLiteral("GSM|Test band|1|0|-0.500000"),
        QStringLiteral("GSM|Test band|-1|-1|2000000000.000000")};
    QTest::newRow("lower limit") << 50000.0 << QStringList{
        QStringLiteral("CDMA|Test band|0|0|0.000000"),
        QStringLiteral("GSM|Test band|1|0|0.000000"),
        QStringLiteral("GSM|Test band|0|0|0.000000"),
        QStringLiteral("GSM|Test band|1|0|4.500000"),
        QStringLiteral("GSM|Test band|-1|-1|2000000000.000000")};
    QTest::newRow("upper limit, far from every channel") << 50100.0 << QStringList{
        QStringLiteral("GSM|Test band|1|3|-91.750000"),
        QStringLiteral("GSM|Test band|-1|-1|2000000000.000000")};
    QTest::newRow("channels up to INT_MAX") << 60000.0 << QStringList{
        QStringLiteral("GSM|Edge band|1|2147483646|0.000000")};
    QTest::newRow("NaN") << kNaN << QStringList();
}

void TestFreqSearch::chInfoFromFreqOwnRecords()
{
    QFETCH(double, freq);
    QFETCH(QStringList, expected);
    check(*m_store, freq, expected);
}

void TestFreqSearch::availableChannels_data()
{
    QTest::addColumn<QString>("standard");
    QTest::addColumn<QString>("direction");
    QTest::addColumn<double>("low");
    QTest::addColumn<double>("high");
    QTest::addColumn<QList<int>>("expected");
    QTest::addColumn<QStringList>("logged");

    const QString gsm850 = QStringLiteral("GSM - GSM 850");
    const QString fwd = QStringLiteral("Forward"), rev = QStringLiteral("Reverse");
    auto count = [](int n) { return QStringList{QStringLiteral("debug: AvailableChannels :  %1").arg(n)}; };

    QTest::newRow("both bounds inclusive") << gsm850 << fwd << 869.2 << 869.6
                                           << QList<int>{128, 129, 130} << count(3);
    QTest::newRow("exact raster, inclusive")
        << QStringLiteral("WIMAX - ProfR1 (1.25 2150)") << rev << 2151.875 << 2155.625
        << QList<int>{1, 2, 3, 4} << count(4);
    QTest::newRow("just above a channel") << QStringLiteral("WIMAX - ProfR1 (1.25 2150)") << rev
                                          << 2151.8750001 << 2155.6249999 << QList<int>{2, 3}
                                          << count(2);
    QTest::newRow("lower-case forward is uplink") << gsm850 << QStringLiteral("forward") << 824.2
                                                  << 824.6 << QList<int>{128, 129, 130} << count(3);
    QTest::newRow("downlink has no channel there")
        << gsm850 << fwd << 824.2 << 824.6 << QList<int>() << count(0);
    // 991..1023 (824.04 to 825.00 MHz) is the second uplink record: not offered.
    QTest::newRow("first record of the direction only")
        << QStringLiteral("CDMA - Band 0 (800)") << rev << 824.0 << 825.1 << QList<int>{1, 2, 3}
        << count(3);
    QTest::newRow("unknown names select CDMA Band 0")
        << QStringLiteral("Foo - Bar") << fwd << 870.0 << 870.07 << QList<int>{1, 2} << count(2);
    QTest::newRow("parts after the second ignored")
        << QStringLiteral("LTE-FDD - Band 1 (2100) - extra") << fwd << 2110.0 << 2110.25
        << QList<int>{0, 1, 2} << count(3);
    QTest::newRow("formula counts from the first channel")
        << QStringLiteral("5G NR - Band n1 (2100)") << fwd << 2110.0 << 2110.012
        << QList<int>{422000, 422001, 422002} << count(3);
    QTest::newRow("record limits not consulted")
        << QStringLiteral("5G NR - Band n1 (2100)") << fwd << 2169.99 << 2170.0
        << QList<int>{433998, 433999, 434000} << count(3);
    QTest::newRow("no record of the direction")
        << QStringLiteral("WIMAX - ProfR1 (1.25 2150)") << fwd << 0.0 << 1e9 << QList<int>()
        << count(0);
    QTest::newRow("low above high") << gsm850 << fwd << 893.8 << 869.2 << QList<int>() << count(0);
    QTest::newRow("NaN low") << gsm850 << fwd << kNaN << 900.0 << QList<int>() << count(0);
    QList<int> all;
    for (int ch = 128; ch <= 251; ++ch)
        all << ch;
    QTest::newRow("infinite window") << gsm850 << fwd << -kInf << kInf << all << count(124);
    QTest::newRow("no separator")
        << QStringLiteral("GSM 850") << fwd << 0.0 << 1e9 << QList<int>()
        << QStringList{QStringLiteral("warning: Channel Standard is invalid.( \"GSM 850\" )")};
}

void TestFreqSearch::availableChannels()
{
    QFETCH(QString, standard);
    QFETCH(QString, direction);
    QFETCH(double, low);
    QFETCH(double, high);
    QFETCH(QList<int>, expected);
    QFETCH(QStringList, logged);

    LogCapture log;
    QCOMPARE(G_CHSTD.GetAvailableChannels(standard, direction, low, high), expected);
    QCOMPARE(renderLog(log), logged);
    if (!log.all().isEmpty() && log.all().first().type == QtWarningMsg)
        QCOMPARE(log.all().first().category, QStringLiteral("default"));
    QVERIFY(log.standardOutput().empty());
}

void TestFreqSearch::availableChannelsOwnRecords()
{
    LogCapture log;
    // The first downlink record is the one whose first channel exceeds its
    // last; the later, well-formed downlink record is not offered.
    QCOMPARE(m_store->GetAvailableChannels(QStringLiteral("GSM - Test band"),
                                           QStringLiteral("Forward"), 0.0, 1e9),
             QList<int>());
    QCOMPARE(m_store->GetAvailableChannels(QStringLiteral("GSM - Edge band"),
                                           QStringLiteral("Reverse"), 59999.0, 60002.0),
             (QList<int>{INT_MAX - 1, INT_MAX}));
    QCOMPARE(renderLog(log), (QStringList{QStringLiteral("debug: AvailableChannels :  0"),
                                          QStringLiteral("debug: AvailableChannels :  2")}));
}

QTEST_GUILESS_MAIN(TestFreqSearch)
#include "tst_freqsearch.moc"
