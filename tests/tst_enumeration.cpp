#include "querytest.h"

#include <climits>

class TestEnumeration : public QObject
{
    Q_OBJECT

private slots:
    void names_data();
    void names();
    void separator_data();
    void separator();
    void byCode_data();
    void byCode();
    void everyBandRoundTrips();
    void handEditedMaps();
    void classifiers_data();
    void classifiers();
    void classifiersAgreeWithBandPlan();

private:
    const ChBandStore &store = *ChStd::GetChStdPointer();
};

void TestEnumeration::names_data()
{
    QTest::addColumn<QString>("tech");
    QTest::addColumn<QString>("band");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("warned");

    QTest::newRow("first band") << str("CDMA") << str("Band 0 (800)") << 0 << QString();
    QTest::newRow("LTE band 20") << str("LTE-FDD") << str("Band 20 (800)") << 217 << QString();
    QTest::newRow("bare LTE") << str("LTE") << str("Band 1 (2100)") << -1 << str(R"w(Tech Name is invalid.( "LTE" ))w");
    // The band is not looked at once the technology failed.
    QTest::newRow("both unknown") << str("LTE") << str("x") << -1 << str(R"w(Tech Name is invalid.( "LTE" ))w");
    QTest::newRow("tech case") << str("lte-fdd") << str("Band 1 (2100)") << -1
                               << str(R"w(Tech Name is invalid.( "lte-fdd" ))w");
    QTest::newRow("band of WCDMA") << str("LTE-FDD") << str("Band 1 (2100-General)") << -1
                                   << str(R"w(Band Name is invalid.( "Band 1 (2100-General)" ))w");
    QTest::newRow("LTE band in GSM") << str("GSM") << str("Band 1 (2100)") << -1
                                     << str(R"w(Band Name is invalid.( "Band 1 (2100)" ))w");
    QTest::newRow("band case") << str("GSM") << str("gsm 850") << -1 << str(R"w(Band Name is invalid.( "gsm 850" ))w");
    QTest::newRow("trailing blank") << str("GSM") << str("GSM 850 ") << -1
                                    << str(R"w(Band Name is invalid.( "GSM 850 " ))w");
    QTest::newRow("empty band") << str("GSM") << QString() << -1 << str(R"w(Band Name is invalid.( "" ))w");
    QTest::newRow("quotes escaped") << str("say \"GSM\\") << str("GSM 850") << -1
                                    << str(R"w(Tech Name is invalid.( "say \"GSM\\" ))w");
    QTest::newRow("tab escaped, non-ASCII kept") << str("GSM") << str("Bänd\t€") << -1
                                                 << str("Band Name is invalid.( \"Bänd\\t€\" )");
}

// The strict lookup and the check of the text form fail alike, with one
// warning naming the first part that is wrong.
void TestEnumeration::names()
{
    QFETCH(QString, tech);
    QFETCH(QString, band);
    QFETCH(int, code);
    QFETCH(QString, warned);
    const QStringList lines = warned.isEmpty() ? QStringList() : QStringList{warned};
    LogCapture log;
    QCOMPARE(store.GetEnumulator(tech, band), code);
    COMPARE_LOG(log, lines, QString());
    log.clear();
    QCOMPARE(store.IsChannelStandard(tech + str(" - ") + band), code >= 0);
    COMPARE_LOG(log, lines, QString());
}

void TestEnumeration::separator_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<QStringList>("warned");

    QTest::newRow("third part ignored") << str("GSM - GSM 850 - x") << true << QStringList();
    QTest::newRow("hyphen alone") << str("LTE-TDD-Band 40 (2300)") << false
                                  << warnings({R"w(Channel Standard is invalid.( "LTE-TDD-Band 40 (2300)" ))w"});
    QTest::newRow("band only") << str("GSM 850") << false
                               << warnings({R"w(Channel Standard is invalid.( "GSM 850" ))w"});
    QTest::newRow("empty") << QString() << false << warnings({R"w(Channel Standard is invalid.( "" ))w"});
    QTest::newRow("empty middle part") << str("GSM -  - GSM 850") << false
                                       << warnings({R"w(Band Name is invalid.( "" ))w"});
}

void TestEnumeration::separator()
{
    QFETCH(QString, text);
    QFETCH(QStringList, warned);
    LogCapture log;
    QTEST(store.IsChannelStandard(text), "valid");
    COMPARE_LOG(log, warned, QString());
}

void TestEnumeration::byCode_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("text"); // empty: not an enumerator
    QTest::addColumn<int>("tech");
    QTest::addColumn<int>("band");

    QTest::newRow("0") << 0 << str("CDMA - Band 0 (800)") << 0 << 0;
    QTest::newRow("10") << 10 << str("CDMA - Band 10 (2nd 800)") << 0 << 10;
    QTest::newRow("100") << 100 << str("GSM - GSM 450") << 1 << 0;
    QTest::newRow("108") << 108 << str("GSM - PCS 1900") << 1 << 8;
    QTest::newRow("217") << 217 << str("LTE-FDD - Band 20 (800)") << 2 << 17;
    QTest::newRow("700") << 700 << str("5G NR - Band Global") << 7 << 0;
    QTest::newRow("735") << 735 << str("5G NR - Band n261 (28 GHz)") << 7 << 35;
    for (const int code : {11, 109, 238, 317, 736, 800, 900, -1, -100, -150, INT_MIN, INT_MAX})
        QTest::newRow(qPrintable(QString::number(code))) << code << QString() << -1 << -1;
}

// The reverse conversion never warns; GetTech, GetBand, GetBandName and
// IsChannelStandard(int) each warn once for a number that is no enumerator.
void TestEnumeration::byCode()
{
    QFETCH(int, code);
    QFETCH(QString, text);
    LogCapture log;
    QCOMPARE(store.GetEnumulator(code), text);
    COMPARE_LOG(log, QStringList(), QString());

    const bool valid = !text.isEmpty();
    QTEST(store.GetTech(code), "tech");
    QTEST(store.GetBand(code), "band");
    QCOMPARE(store.GetBandName(code), valid ? text.section(str(" - "), 1) : str("None"));
    QCOMPARE(store.IsChannelStandard(code), valid);
    const QString line = QStringLiteral("Channel Standard Enum is invalid.( %1 )").arg(code);
    COMPARE_LOG(log, (valid ? QStringList() : QStringList{line, line, line, line}), QString());
}

// Names and numbers agree for every band of the plan, in both directions.
void TestEnumeration::everyBandRoundTrips()
{
    LogCapture log;
    int bands = 0;
    for (auto it = store.TechIndexMap.constBegin(); it != store.TechIndexMap.constEnd(); ++it) {
        const QList<QString> list = store.GetBandList(it.key());
        QCOMPARE(list.size(), store.GetNumBand(it.key()));
        for (int slot = 0; slot < list.size(); ++slot, ++bands) {
            const int code = 100 * it.value() + slot;
            QCOMPARE(store.GetEnumulator(it.key(), list[slot]), code);
            QCOMPARE(store.GetEnumulator(code), it.key() + str(" - ") + list[slot]);
            QCOMPARE(store.GetTech(code), it.value());
            QCOMPARE(store.GetBand(code), slot);
            QCOMPARE(store.GetBandName(code), list[slot]);
            QVERIFY(store.IsChannelStandard(code));
        }
    }
    QCOMPARE(bands, 172);
    // Unknown technology names quietly answer for CDMA.
    for (const char *unknown : {"LTE", "gsm", ""}) {
        QCOMPARE(store.GetNumBand(str(unknown)), 11);
        QCOMPARE(store.GetBandList(str(unknown)), store.GetBandList(str("CDMA")));
    }
    COMPARE_LOG(log, QStringList(), QString());
}

// Maps edited by hand reach the rules a regular band plan never exercises:
// the truncating split of negative numbers, negative slots, empty names and
// a slot that no name maps to.
void TestEnumeration::handEditedMaps()
{
    const auto own = makeStore();
    own->SetBandInfo(str("GSM"), QString(), 1, 2, 10.0, 20.0, 10.0, 1, 1, &ChBandStore::chstdGetGSM_900, false);
    own->Technologies[0].BandIndexMap.insert(str("Neg"), -5);
    own->Technologies[0].BandIndexMap.insert(str("Gap"), 12); // slot 11 has no name

    LogCapture log;
    // -5 / 100 truncates to technology 0 and leaves band -5; a flooring split
    // would give technology -1 and no text at all.
    QCOMPARE(own->GetEnumulator(-5), str("CDMA - Neg"));
    QCOMPARE(own->GetEnumulator(-105), QString());
    QCOMPARE(own->GetEnumulator(12), str("CDMA - Gap"));
    // An empty band name is a key for the strict lookup but no text form.
    QCOMPARE(own->GetEnumulator(str("GSM"), QString()), 109);
    QVERIFY(own->IsChannelStandard(str("GSM - ")));
    QCOMPARE(own->GetEnumulator(109), QString());
    QList<QString> cdma = store.GetBandList(str("CDMA"));
    QCOMPARE(own->GetBandList(str("CDMA")), cdma << QString() << str("Gap"));
    COMPARE_LOG(log, QStringList(), QString());

    QCOMPARE(own->GetEnumulator(str("CDMA"), str("Neg")), -1);
    QVERIFY(!own->IsChannelStandard(-5));
    QVERIFY(!own->IsChannelStandard(109));
    COMPARE_LOG(log,
                warnings({R"w(Band Name is invalid.( "Neg" ))w", R"w(Band Name is invalid.( "Neg" ))w",
                          "Channel Standard Enum is invalid.( 109 )"}),
                QString());
}

void TestEnumeration::classifiers_data()
{
    QTest::addColumn<QString>("band");
    QTest::addColumn<bool>("lteTdd");
    QTest::addColumn<bool>("tds");
    QTest::addColumn<bool>("wimax");

    QTest::newRow("global") << str("Band Global") << true << false << false;
    QTest::newRow("text form") << str("LTE-TDD - Band 40 (2300)") << false << false << false;
    QTest::newRow("FBN 9") << str("FBN 9") << false << false << false;
    QTest::newRow("ProfR29") << str("ProfR29 (8.75 2304)") << false << false << true;
    QTest::newRow("paired ProfR6") << str("ProfR6 (3.5 2598)") << false << false << false;
    QTest::newRow("empty") << QString() << false << false << false;
}

void TestEnumeration::classifiers()
{
    QFETCH(QString, band);
    LogCapture log;
    QTEST(store.CheckChannelStandardIsLTETDD(band), "lteTdd");
    QTEST(store.CheckChannelStandardIsTDS(band), "tds");
    QTEST(store.CheckChannelStandardIsWiMax(band), "wimax");
    COMPARE_LOG(log, QStringList(), QString());
}

// The lists name exactly the time-division bands of the plan: all of LTE-TDD
// and TD-SCDMA, the single-record WiMAX profiles, and elsewhere only the
// global bands (by their name alone).
void TestEnumeration::classifiersAgreeWithBandPlan()
{
    for (int t = 0; t < ChBandStore::MaxTechnologies; ++t) {
        const ChTechnology &tech = store.Technologies[t];
        for (int b = 0; b < tech.NumBand; ++b) {
            const ChBand &band = tech.Bands[b];
            QCOMPARE(store.CheckChannelStandardIsLTETDD(band.BandName), t == 3 || band.IsGlobal);
            QCOMPARE(store.CheckChannelStandardIsTDS(band.BandName), t == 4);
            QCOMPARE(store.CheckChannelStandardIsWiMax(band.BandName),
                     t == 6 && band.NumSubBand == 1 && band.SubBands[0].UplinkOnly);
        }
    }
}

QTEST_APPLESS_MAIN(TestEnumeration)
#include "tst_enumeration.moc"
