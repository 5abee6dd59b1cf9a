#include "querytest.h"

#include <climits>
#include <cmath>
#include <limits>

namespace {

// Maps every channel of a record onto its base frequency.
double flat(int, double base, int)
{
    return base;
}

QString missLine(const char *value)
{
    return QStringLiteral("GetChNumFromFreq Not supported value : %1\n").arg(str(value));
}

const double kInf = std::numeric_limits<double>::infinity();
const double kNaN = std::numeric_limits<double>::quiet_NaN();

} // namespace

class TestReverse : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void channelOfFreq_data();
    void channelOfFreq();
    void offset_data();
    void offset();
    void textForms_data();
    void textForms();

private:
    const ChBandStore &global = *ChStd::GetChStdPointer();
    std::unique_ptr<ChBandStore> own;
    const ChBandStore &pick(bool ownStore) const { return ownStore ? *own : global; }
};

// Private bands under GSM: "Flat" maps channel 900 and then channels 0 to 19
// onto 500 MHz (21 matches for a list of 10), "Near" sits next to the
// tolerance, "Top" ends at INT_MAX, "DownFirst" has its pair reversed, "Empty"
// has a slot but no record. ProfR1 of WIMAX gains a downlink record.
void TestReverse::initTestCase()
{
    own = makeStore();
    const QString gsm = str("GSM");
    own->SetBandInfo(gsm, str("Flat"), 900, 900, 400.0, 600.0, 500.0, 1, 1, &flat, false);
    own->SetBandInfo(gsm, str("Flat"), 0, 19, 400.0, 600.0, 500.0, 1, 1, &flat, false);
    own->SetBandInfo(gsm, str("Near"), 1, 1, 0.5, 2.0, 0.75, 1, 1, &flat, false);
    own->SetBandInfo(gsm, str("Near"), 2, 2, 0.5, 2.0, 1.5, 1, 1, &flat, false);
    own->SetBandInfo(gsm, str("Top"), INT_MAX - 2, INT_MAX, 600.0, 800.0, 700.0, 1, 1, &flat, false);
    own->SetBandInfo(gsm, str("DownFirst"), 100, 200, 900.0, 920.0, 900.0, 1, 0, &ChBandStore::chstdGetGSM_900, false);
    own->SetBandInfo(gsm, str("DownFirst"), 300, 400, 950.0, 970.0, 950.0, 1, 1, &ChBandStore::chstdGetGSM_900, false);
    own->SetBandInfo(str("WIMAX"), str("ProfR1 (1.25 2150)"), 100, 107, 2250.625, 2259.375, 2250.625, 3, 0,
                     &ChBandStore::chstdGetWIMAX_Common1, false);
    own->Technologies[1].BandIndexMap.insert(str("Empty"), 13);
}

void TestReverse::channelOfFreq_data()
{
    QTest::addColumn<bool>("ownStore");
    QTest::addColumn<QString>("tech");
    QTest::addColumn<QString>("band");
    QTest::addColumn<int>("link");
    QTest::addColumn<double>("mhz");
    QTest::addColumn<int>("preferred");
    QTest::addColumn<int>("channel");
    QTest::addColumn<QString>("printed");

    const QString gsm = str("GSM"), b850 = str("GSM 850"), fdd = str("LTE-FDD"), all = str("Band Global");
    const QString wimax = str("WIMAX"), r26 = str("ProfR26 (10 5275)");
    // The unused entries of the list (-1) are no candidates.
    QTest::newRow("first channel") << false << gsm << b850 << 1 << 824.2 << -1 << 128 << QString();
    QTest::newRow("last channel") << false << gsm << b850 << 0 << 869.2 + 123 * 0.2 << 251 << 251 << QString();
    QTest::newRow("off raster") << false << gsm << b850 << 1 << 824.3 << -1 << -1 << missLine("824.3");
    QTest::newRow("one ulp off") << false << gsm << b850 << 1 << std::nextafter(824.2, 900.0) << 128 << -1
                                 << missLine("824.2");
    QTest::newRow("other link") << false << gsm << b850 << 1 << 869.2 << -1 << -1 << missLine("869.2");
    QTest::newRow("upper edge") << false << wimax << r26 << 1 << 5335.0 << -1 << 67 << QString();
    QTest::newRow("uplink-only, down") << false << wimax << r26 << 0 << 5335.0 << -1 << 67 << QString();
    // Channel 55 maps to 3698 MHz, beyond the record's upper edge.
    QTest::newRow("beyond the edge") << false << wimax << str("ProfR9 (3.5 3651)") << 1 << 3698.0 << -1 << -1
                                     << missLine("3698");
    QTest::newRow("placeholder") << false << fdd << str("Band 29 (900)") << 1 << 1.0 << 1 << -1 << missLine("1");
    QTest::newRow("shared, no preference") << false << fdd << all << 0 << 2140.0 << -1 << 300 << QString();
    QTest::newRow("shared, preferred") << false << fdd << all << 0 << 2140.0 << 66736 << 66736 << QString();
    QTest::newRow("shared, stale preference") << false << fdd << all << 0 << 2140.0 << 18300 << 300 << QString();
    QTest::newRow("NaN") << false << gsm << b850 << 1 << kNaN << -1 << -1 << missLine("nan");
    QTest::newRow("+inf") << false << gsm << b850 << 1 << kInf << -1 << -1 << missLine("inf");
    QTest::newRow("-inf") << false << gsm << b850 << 1 << -kInf << -1 << -1 << missLine("-inf");
    QTest::newRow("-0.0") << false << gsm << b850 << 1 << -0.0 << 0 << -1 << missLine("-0");
    QTest::newRow("six digits") << false << gsm << b850 << 1 << 1234567.5 << -1 << -1 << missLine("1.23457e+06");

    QTest::newRow("earliest record first") << true << gsm << str("Flat") << 1 << 500.0 << -1 << 900 << QString();
    QTest::newRow("tenth kept") << true << gsm << str("Flat") << 1 << 500.0 << 8 << 8 << QString();
    QTest::newRow("eleventh dropped") << true << gsm << str("Flat") << 1 << 500.0 << 9 << 900 << QString();
    QTest::newRow("within epsilon") << true << gsm << str("Near") << 1 << std::nextafter(0.75, 1.0) << -1 << 1 << QString();
    QTest::newRow("at epsilon") << true << gsm << str("Near") << 1 << std::nextafter(1.5, 2.0) << -1 << -1 << missLine("1.5");
    QTest::newRow("up to INT_MAX") << true << gsm << str("Top") << 1 << 700.0 << -1 << INT_MAX - 2 << QString();
    QTest::newRow("INT_MAX preferred") << true << gsm << str("Top") << 1 << 700.0 << INT_MAX << INT_MAX << QString();
    QTest::newRow("no records") << true << gsm << str("Empty") << 1 << 500.0 << -1 << -1 << missLine("500");
}

// A miss writes its one line to standard output, never to the Qt log.
void TestReverse::channelOfFreq()
{
    QFETCH(bool, ownStore);
    QFETCH(QString, tech);
    QFETCH(QString, band);
    QFETCH(int, link);
    QFETCH(double, mhz);
    QFETCH(int, preferred);
    QFETCH(QString, printed);
    LogCapture log;
    QTEST(pick(ownStore).GetChNumFromFreq(tech, band, link, mhz, preferred), "channel");
    COMPARE_LOG(log, QStringList(), printed);
}

void TestReverse::offset_data()
{
    QTest::addColumn<bool>("ownStore");
    QTest::addColumn<QString>("tech");
    QTest::addColumn<QString>("band");
    QTest::addColumn<int>("channel");
    QTest::addColumn<int>("link");
    QTest::addColumn<int>("offset");

    const QString fdd = str("LTE-FDD"), b1 = str("Band 1 (2100)"), b3 = str("Band 3 (1800)");
    QTest::newRow("down channel") << false << fdd << b1 << 300 << 0 << 18000;
    QTest::newRow("up channel, link not consulted") << false << fdd << b1 << 18300 << 7 << 18000;
    QTest::newRow("band 3") << false << fdd << b3 << 1300 << 0 << 18000;
    QTest::newRow("channel and link swapped") << false << fdd << b3 << 0 << 1300 << 0;
    QTest::newRow("in no record") << false << str("GSM") << str("GSM 850") << 5 << 1 << 0;
    QTest::newRow("INT_MIN") << false << fdd << b1 << INT_MIN << 0 << 0;
    QTest::newRow("LTE-TDD") << false << str("LTE-TDD") << str("Band 40 (2300)") << 38650 << 1 << 0;
    QTest::newRow("TD-SCDMA") << false << str("TD-SCDMA") << str("FBN 3") << 10 << 0 << 0;
    // Pairs are read as they stand, placeholders and all.
    QTest::newRow("placeholder down") << false << str("5G NR") << str("Band n80 (UL 1800)") << 342000 << 1 << 341999;
    QTest::newRow("placeholder up") << false << fdd << str("Band 29 (900)") << 9700 << 0 << 1 - 9660;
    QTest::newRow("global, two downlinks") << false << fdd << str("Band Global") << 9700 << 0 << 9210 - 9660;
    QTest::newRow("global, last pair") << false << fdd << str("Band Global") << 68950 << 0 << 133472 - 68936;
    QTest::newRow("down record first") << true << str("GSM") << str("DownFirst") << 150 << 0 << 0;
    QTest::newRow("up record last") << true << str("GSM") << str("DownFirst") << 350 << 1 << 0;
    QTest::newRow("listed WiMAX") << true << str("WIMAX") << str("ProfR1 (1.25 2150)") << 0 << 1 << 0;
    // The exemption goes by the name given, not by the band it selects.
    QTest::newRow("unlisted name, same band") << true << str("WIMAX") << str("ProfR1") << 0 << 1 << -100;
    QTest::newRow("unlisted name, down") << true << str("WIMAX") << QString() << 105 << 0 << -100;
}

void TestReverse::offset()
{
    QFETCH(bool, ownStore);
    QFETCH(QString, tech);
    QFETCH(QString, band);
    QFETCH(int, channel);
    QFETCH(int, link);
    LogCapture log;
    QTEST(pick(ownStore).GetOffsetChUpDown(tech, band, channel, link), "offset");
    COMPARE_LOG(log, QStringList(), QString());
}

void TestReverse::textForms_data()
{
    QTest::addColumn<QString>("standard");
    QTest::addColumn<bool>("byDirection");
    QTest::addColumn<QString>("direction");
    QTest::addColumn<int>("link");
    QTest::addColumn<int>("channel"); // also the preferred channel
    QTest::addColumn<double>("mhz");
    QTest::addColumn<double>("freq");
    QTest::addColumn<int>("found");
    QTest::addColumn<int>("offset");
    QTest::addColumn<QString>("warned"); // once per member
    QTest::addColumn<QString>("printed");

    const QString s850 = str("GSM - GSM 850"), s3 = str("LTE-FDD - Band 3 (1800)");
    QTest::newRow("link 0") << s850 << false << QString() << 0 << 128 << 869.2 << 869.2 << 128 << 0 << QString() << QString();
    QTest::newRow("Forward") << s850 << true << str("Forward") << 9 << 128 << 869.2 << 869.2 << 128 << 0 << QString()
                             << QString();
    QTest::newRow("forward") << s850 << true << str("forward") << 0 << 128 << 869.2 << 824.2 << -1 << 0 << QString()
                             << missLine("869.2");
    QTest::newRow("empty direction") << s850 << true << QString() << 0 << 128 << 824.2 << 824.2 << 128 << 0
                                     << QString() << QString();
    QTest::newRow("empty band part") << str("GSM -  - GSM 850") << false << QString() << 1 << 259 << 450.6 << 450.6
                                     << 259 << 0 << QString() << QString();
    QTest::newRow("link form, band 3") << s3 << false << QString() << 0 << 1300 << 1805.0 + 100 * 0.1
                                       << 1805.0 + 100 * 0.1 << 1300 << 18000 << QString() << QString();
    QTest::newRow("Reverse, band 3") << s3 << true << str("Reverse") << 0 << 19300 << 1710.0 + 100 * 0.1
                                     << 1710.0 + 100 * 0.1 << 19300 << 18000 << QString() << QString();
    QTest::newRow("no separator") << str("GSM 850") << false << QString() << 1 << 128 << 824.2 << -1.0 << -1 << -1
                                  << str(R"w(Channel Standard is invalid.( "GSM 850" ))w") << QString();
    QTest::newRow("no separator, Forward") << str("GSM 850") << true << str("Forward") << 1 << 128 << 869.2 << -1.0
                                           << -1 << -1 << str(R"w(Channel Standard is invalid.( "GSM 850" ))w")
                                           << QString();
    // The split fails before the frequency is looked at.
    QTest::newRow("hyphen alone, NaN") << str("GSM-GSM 850") << true << str("Reverse") << 1 << 128 << kNaN << -1.0
                                       << -1 << -1 << str(R"w(Channel Standard is invalid.( "GSM-GSM 850" ))w")
                                       << QString();
}

// GetFreq, GetChNumFromFreq and GetOffsetChUpDown on a channel standard text,
// with the link as a number or as a direction word.
void TestReverse::textForms()
{
    QFETCH(QString, standard);
    QFETCH(bool, byDirection);
    QFETCH(QString, direction);
    QFETCH(int, link);
    QFETCH(int, channel);
    QFETCH(double, mhz);
    QFETCH(QString, warned);
    QFETCH(QString, printed);
    const ChBandStore &s = global;
    LogCapture log;
    if (byDirection) {
        QTEST_BITS(s.GetFreq(standard, direction, channel), "freq");
        QTEST(s.GetChNumFromFreq(standard, direction, mhz, channel), "found");
        QTEST(s.GetOffsetChUpDown(standard, direction, channel), "offset");
    } else {
        QTEST_BITS(s.GetFreq(standard, link, channel), "freq");
        QTEST(s.GetChNumFromFreq(standard, link, mhz, channel), "found");
        QTEST(s.GetOffsetChUpDown(standard, link, channel), "offset");
    }
    COMPARE_LOG(log, (warned.isEmpty() ? QStringList() : QStringList{warned, warned, warned}), printed);
}

QTEST_APPLESS_MAIN(TestReverse)
#include "tst_reverse.moc"
