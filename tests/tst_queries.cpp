#include "querytest.h"

#include <climits>

class TestQueries : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void limits_data();
    void limits();
    void recordZero_data();
    void recordZero();
    void defaultIntBW_data();
    void defaultIntBW();
    void channelToFreq_data();
    void channelToFreq();
    void stopInSample_data();
    void stopInSample();

private:
    const ChBandStore &global = *ChStd::GetChStdPointer();
    std::unique_ptr<ChBandStore> own;
    const ChBandStore &pick(bool ownStore) const { return ownStore ? *own : global; }
};

// Bands that the real plan lacks, added to a private store under GSM:
// "Hundred" fills all 100 records (uplink/downlink pairs, channels 1000+10i
// to 1005+10i), "Negative" has negative channels, "Empty" has no record.
void TestQueries::initTestCase()
{
    own = makeStore();
    for (int i = 0; i < ChBand::MaxSubBands; ++i)
        own->SetBandInfo(str("GSM"), str("Hundred"), 1000 + 10 * i, 1005 + 10 * i, 100.0 + i, 101.0 + i,
                         100.0 + i, 1, i % 2 == 0 ? 1 : 0, &ChBandStore::chstdGetGSM_900, false);
    own->SetBandInfo(str("GSM"), str("Negative"), -10, -5, 50.0, 51.0, 50.0, 1, 1, &ChBandStore::chstdGetGSM_900, false);
    own->SetBandInfo(str("GSM"), str("Negative"), -3, 4, 60.0, 61.0, 60.0, 1, 0, &ChBandStore::chstdGetGSM_900, false);
    own->Technologies[1].BandIndexMap.insert(str("Empty"), 11);
    QCOMPARE(own->GetNumSubBand(str("GSM"), str("Hundred")), 100);
}

void TestQueries::limits_data()
{
    QTest::addColumn<bool>("ownStore");
    QTest::addColumn<QString>("tech");
    QTest::addColumn<QString>("band");
    QTest::addColumn<int>("link");
    QTest::addColumn<double>("lowMHz");
    QTest::addColumn<double>("highMHz");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("stop");

    const QString gsm = str("GSM"), fdd = str("LTE-FDD"), nr = str("5G NR");
    QTest::newRow("GSM 850 up") << false << gsm << str("GSM 850") << 1 << 824.0 << 849.0 << 128 << 251;
    QTest::newRow("GSM 850 down") << false << gsm << str("GSM 850") << 0 << 869.0 << 894.0 << 128 << 251;
    // Channel 0 is a real answer: no fallback to the other link.
    QTest::newRow("E-GSM up") << false << gsm << str("E-GSM 900") << 1 << 880.0 << 915.0 << 0 << 1023;
    QTest::newRow("band 1 down") << false << fdd << str("Band 1 (2100)") << 0 << 2110.0 << 2170.0 << 0 << 599;
    QTest::newRow("global down") << false << fdd << str("Band Global") << 0 << 461.0 << 3590.0 << 0 << 68985;
    // Placeholders count for the frequency edges but never for channels:
    // the other link answers instead.
    QTest::newRow("global up") << false << fdd << str("Band Global") << 1 << 1.0 << 3490.0 << 18000 << 133521;
    QTest::newRow("placeholder up") << false << fdd << str("Band 29 (900)") << 1 << 1.0 << 1.0 << 9660 << 9769;
    QTest::newRow("placeholder down") << false << nr << str("Band n80 (UL 1800)") << 0 << 1.0 << 1.0 << 342000 << 357000;
    QTest::newRow("n41 up") << false << nr << str("Band n41 (TD 2500)") << 1 << 1.0 << 1.0 << 499200 << 537999;
    // Any link but 0 falls back to the downlink.
    QTest::newRow("link 2") << false << fdd << str("Band 3 (1800)") << 2 << 0.0 << 0.0 << 1200 << 1949;
    QTest::newRow("link -1") << false << fdd << str("Band 3 (1800)") << -1 << 0.0 << 0.0 << 1200 << 1949;
    QTest::newRow("empty band name") << false << gsm << QString() << 1 << 450.4 << 457.6 << 259 << 293;
    QTest::newRow("unknown names") << false << str("Foo") << str("Bar") << 1 << 824.0 << 849.0 << 1 << 1023;
    // Negative stop channels never win; the other link's maximum does.
    QTest::newRow("negative up") << true << gsm << str("Negative") << 1 << 50.0 << 51.0 << -10 << 4;
    QTest::newRow("negative link 2") << true << gsm << str("Negative") << 2 << 0.0 << 0.0 << -3 << 4;
    QTest::newRow("no records") << true << gsm << str("Empty") << 1 << 0.0 << 0.0 << 0 << 0;
}

void TestQueries::limits()
{
    QFETCH(bool, ownStore);
    QFETCH(QString, tech);
    QFETCH(QString, band);
    QFETCH(int, link);
    const ChBandStore &s = pick(ownStore);
    LogCapture log;
    QTEST_BITS(s.GetStartFreq(tech, band, link), "lowMHz");
    QTEST_BITS(s.GetStopFreq(tech, band, link), "highMHz");
    QTEST(s.GetStartChannelNo(tech, band, link), "start");
    QTEST(s.GetStopChannelNo(tech, band, link), "stop");
    COMPARE_LOG(log, QStringList(), QString());
}

void TestQueries::recordZero_data()
{
    QTest::addColumn<bool>("ownStore");
    QTest::addColumn<QString>("tech");
    QTest::addColumn<QString>("band");
    QTest::addColumn<int>("records");
    QTest::addColumn<double>("startMHz");
    QTest::addColumn<bool>("uplinkOnly");

    QTest::newRow("GSM 850") << false << str("GSM") << str("GSM 850") << 2 << 824.0 << false;
    QTest::newRow("TDD") << false << str("LTE-TDD") << str("Band 33 (1900)") << 2 << 1900.0 << true;
    QTest::newRow("WiMAX single") << false << str("WIMAX") << str("ProfR29 (8.75 2304)") << 1 << 2304.375 << true;
    // Only record 0 answers; n41's flag sits on record 1.
    QTest::newRow("n41") << false << str("5G NR") << str("Band n41 (TD 2500)") << 2 << 1.0 << false;
    QTest::newRow("unknown names") << false << str("LTE") << str("Band 1 (2100)") << 4 << 824.0 << false;
    QTest::newRow("no records") << true << str("GSM") << str("Empty") << 0 << 0.0 << false;
}

void TestQueries::recordZero()
{
    QFETCH(bool, ownStore);
    QFETCH(QString, tech);
    QFETCH(QString, band);
    LogCapture log;
    QTEST(pick(ownStore).GetNumSubBand(tech, band), "records");
    QTEST_BITS(pick(ownStore).GetStartFreq(tech, band), "startMHz");
    QTEST(pick(ownStore).IsUplinkOnly(tech, band), "uplinkOnly");
    COMPARE_LOG(log, QStringList(), QString());
}

void TestQueries::defaultIntBW_data()
{
    QTest::addColumn<QString>("tech");
    QTest::addColumn<double>("hertz");

    const char *const names[] = {"CDMA", "GSM", "WCDMA", "LTE-FDD", "LTE-TDD", "TD-SCDMA", "WIMAX",
                                 "5G NR", "gsm", "GSM ", ""};
    const double hertz[] = {1230000.0, 300000.0, 3840000.0, 10000000.0, 10000000.0, 1280000.0, 10000000.0,
                            1000000.0, 1000000.0, 1000000.0, 1000000.0};
    for (int i = 0; i < int(std::size(names)); ++i)
        QTest::newRow(names[i]) << str(names[i]) << hertz[i];
}

void TestQueries::defaultIntBW()
{
    QFETCH(QString, tech);
    LogCapture log;
    QTEST_BITS(global.GetDefaultIntBW(tech), "hertz");
    COMPARE_LOG(log, QStringList(), QString());
}

void TestQueries::channelToFreq_data()
{
    QTest::addColumn<bool>("ownStore");
    QTest::addColumn<QString>("tech");
    QTest::addColumn<QString>("band");
    QTest::addColumn<int>("link");
    QTest::addColumn<int>("channel");
    QTest::addColumn<double>("freq");    // GetFreq
    QTest::addColumn<double>("noLimit"); // GetFreqNoLimit
    QTest::addColumn<bool>("exists");    // IsExistChannelNo

    const QString gsm = str("GSM"), b850 = str("GSM 850"), fdd = str("LTE-FDD"), nr = str("5G NR");
    const QString all = str("Band Global"), n41 = str("Band n41 (TD 2500)");
    QTest::newRow("first up") << false << gsm << b850 << 1 << 128 << 824.2 << 824.2 << true;
    QTest::newRow("last down") << false << gsm << b850 << 0 << 251 << 869.2 + 123 * 0.2 << 869.2 + 123 * 0.2 << true;
    QTest::newRow("above") << false << gsm << b850 << 1 << 252 << -1.0 << 824.2 + 124 * 0.2 << false;
    QTest::newRow("extrapolated") << false << gsm << b850 << 1 << 0 << -1.0 << 824.2 + (0 - 128) * 0.2 << false;
    QTest::newRow("INT_MAX") << false << gsm << b850 << 0 << INT_MAX << -1.0 << 869.2 + 2147483519.0 * 0.2 << false;
    QTest::newRow("FDD link 2") << false << gsm << b850 << 2 << 128 << -1.0 << -1.0 << false;
    QTest::newRow("FDD link -1, INT_MIN") << false << gsm << b850 << -1 << INT_MIN << -1.0 << -1.0 << false;
    // The first record of the link decides for GetFreqNoLimit.
    QTest::newRow("E-GSM second range") << false << gsm << str("E-GSM 900") << 1 << 1000
                                        << 890.0 + (1000 - 1024) * 0.2 << 890.0 + 1000 * 0.2 << true;
    QTest::newRow("down channel, up link") << false << fdd << str("Band 1 (2100)") << 1 << 300 << -1.0
                                           << 1920.0 + (300 - 18000) * 0.1 << false;
    // "Band Global" is time-division by its name: every record is eligible,
    // the first one holding the channel wins, even before a placeholder of
    // the asked link.
    QTest::newRow("global, up link") << false << fdd << all << 1 << 300 << 2110.0 + 300 * 0.1
                                     << 1920.0 + (300 - 18000) * 0.1 << false;
    QTest::newRow("global, link 2") << false << fdd << all << 2 << 300 << 2110.0 + 300 * 0.1 << -1.0 << false;
    QTest::newRow("global, placeholder later") << false << fdd << all << 1 << 1 << 2110.0 + 1 * 0.1
                                               << 1920.0 + (1 - 18000) * 0.1 << true;
    QTest::newRow("NR global, up link") << false << nr << all << 1 << 422000 << 2110.0
                                        << 1920.0 + (422000 - 384000) * 0.005 << false;
    QTest::newRow("placeholder") << false << fdd << str("Band 29 (900)") << 1 << 1 << 1.0 + (1 - 27660) * 0.1
                                 << 1.0 + (1 - 27660) * 0.1 << true;
    QTest::newRow("past placeholder") << false << fdd << str("Band 29 (900)") << 1 << 9660 << -1.0
                                      << 1.0 + (9660 - 27660) * 0.1 << false;
    // Uplink-only records serve every link, except for IsExistChannelNo.
    QTest::newRow("uplink-only record") << false << nr << n41 << -1 << 499400 << 2496.0 + 200 * 0.005
                                        << 2496.0 + 200 * 0.005 << false;
    QTest::newRow("link before flag") << false << nr << n41 << 1 << 499400 << 2496.0 + 200 * 0.005
                                      << 1.0 + (499400 - 1) * 0.005 << false;
    QTest::newRow("TDD link 2") << false << str("LTE-TDD") << str("Band 40 (2300)") << 2 << 38650 << 2300.0 << 2300.0 << false;
    QTest::newRow("TDS link 2") << false << str("TD-SCDMA") << str("FBN 3") << 2 << 0 << 1971.8 + 1 * 0.2
                                << 1971.8 + 1 * 0.2 << false;
    QTest::newRow("paired WiMAX link 2") << false << str("WIMAX") << str("ProfR6 (3.5 2598)") << 2 << 0 << -1.0 << -1.0 << false;
    QTest::newRow("single WiMAX down") << false << str("WIMAX") << str("ProfR1 (1.25 2150)") << 0 << 3
                                       << 2150.625 + 3 * 1.25 << 2150.625 + 3 * 1.25 << false;
    QTest::newRow("empty band name") << false << gsm << QString() << 1 << 259 << 450.6 << 450.6 << true;
    QTest::newRow("unknown tech") << false << str("Foo") << b850 << 1 << 128 << 825.0 + 128 * 0.03
                                  << 825.0 + 128 * 0.03 << true;
    QTest::newRow("no records") << true << gsm << str("Empty") << -9 << 0 << -1.0 << -1.0 << false;
}

void TestQueries::channelToFreq()
{
    QFETCH(bool, ownStore);
    QFETCH(QString, tech);
    QFETCH(QString, band);
    QFETCH(int, link);
    QFETCH(int, channel);
    const ChBandStore &s = pick(ownStore);
    LogCapture log;
    QTEST_BITS(s.GetFreq(tech, band, link, channel), "freq");
    QTEST_BITS(s.GetFreqNoLimit(tech, band, link, channel), "noLimit");
    QTEST(s.IsExistChannelNo(tech, band, link, channel), "exists");
    COMPARE_LOG(log, QStringList(), QString());
}

void TestQueries::stopInSample_data()
{
    QTest::addColumn<bool>("ownStore");
    QTest::addColumn<QString>("tech");
    QTest::addColumn<QString>("band");
    QTest::addColumn<int>("channel");
    QTest::addColumn<int>("link");
    QTest::addColumn<int>("stop");

    const QString gsm = str("GSM"), cdma = str("CDMA"), b0 = str("Band 0 (800)"), fdd = str("LTE-FDD");
    QTest::newRow("GSM 850") << false << gsm << str("GSM 850") << 128 << 1 << 251;
    QTest::newRow("in no record") << false << gsm << str("GSM 850") << 300 << 1 << 251;
    QTest::newRow("second pair, down") << false << cdma << b0 << 1000 << 0 << 1023;
    QTest::newRow("channel and link swapped") << false << cdma << b0 << 1 << 1000 << 799;
    QTest::newRow("other link's record") << false << fdd << str("Band 3 (1800)") << 1300 << 1 << 1949;
    // A downlink record is replaced by the uplink record after it, except
    // the last one, whose neighbour was never written.
    QTest::newRow("shadowed") << false << fdd << str("Band Global") << 300 << 1 << 18599;
    QTest::newRow("not shadowed") << false << fdd << str("Band Global") << 300 << 0 << 599;
    QTest::newRow("last record") << false << fdd << str("Band Global") << 68950 << 1 << 68985;
    // The unwritten neighbour (link -9, channels 0 to 0) is a candidate too.
    QTest::newRow("unwritten neighbour") << false << gsm << str("GSM 850") << 0 << -9 << 0;
    QTest::newRow("100: pair") << true << gsm << str("Hundred") << 1982 << 1 << 1985;
    QTest::newRow("100: shadowed") << true << gsm << str("Hundred") << 1012 << 1 << 1005;
    QTest::newRow("100: down") << true << gsm << str("Hundred") << 1012 << 0 << 1015;
    QTest::newRow("100: last record") << true << gsm << str("Hundred") << 1992 << 1 << 1995;
    QTest::newRow("100: beyond the array") << true << gsm << str("Hundred") << 0 << -9 << 0;
    QTest::newRow("no records") << true << gsm << str("Empty") << 0 << -9 << 0;
}

void TestQueries::stopInSample()
{
    QFETCH(bool, ownStore);
    QFETCH(QString, tech);
    QFETCH(QString, band);
    QFETCH(int, channel);
    QFETCH(int, link);
    LogCapture log;
    QTEST(pick(ownStore).GetStopChannelNo_InSample(tech, band, channel, link), "stop");
    COMPARE_LOG(log, QStringList(), QString());
}

QTEST_APPLESS_MAIN(TestQueries)
#include "tst_queries.moc"
