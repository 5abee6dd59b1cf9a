#include "logcapture.h"
#include "testsupport.h"

#include <QtCore/QMap>

#include <climits>
#include <memory>

namespace {

struct TechBands
{
    int count;
    const char *first;
    const char *last;
};

// Band count and first and last band of each technology that a mode can show.
const QMap<QString, TechBands> &knownTechnologies()
{
    static const QMap<QString, TechBands> map = {
        {QStringLiteral("CDMA"), {11, "Band 0 (800)", "Band 10 (2nd 800)"}},
        {QStringLiteral("GSM"), {9, "GSM 450", "PCS 1900"}},
        {QStringLiteral("LTE-FDD"), {38, "Band Global", "Band 72 (450)"}},
        {QStringLiteral("LTE-TDD"), {17, "Band Global", "Band 48 (3600)"}},
        {QStringLiteral("TD-SCDMA"), {9, "FBN 0", "FBN 8"}},
        {QStringLiteral("WCDMA"), {33, "Band Global", "Band 26 (1900-Additional)"}},
        {QStringLiteral("WIMAX"), {19, "ProfR1 (1.25 2150)", "ProfR29 (8.75 2304)"}},
        {QStringLiteral("5G NR"), {36, "Band Global", "Band n261 (28 GHz)"}},
    };
    return map;
}

// Technology names separated by blanks ("5G NR" never occurs in a mode).
QStringList techList(const char *names)
{
    return QString::fromLatin1(names).split(QLatin1Char(' '));
}

} // namespace

class TestScreens : public QObject
{
    Q_OBJECT

private slots:
    void refStrings_data();
    void refStrings();
    void refStringsOwnBands_data();
    void refStringsOwnBands();
    void bandListByMode_data();
    void bandListByMode();
    void setBandListColumns_data();
    void setBandListColumns();
};

void TestScreens::refStrings_data()
{
    QTest::addColumn<QString>("tech");
    QTest::addColumn<QString>("band");
    QTest::addColumn<int>("linkSel");
    QTest::addColumn<QString>("chNum");
    QTest::addColumn<QString>("chNumList");
    QTest::addColumn<QString>("freqList");
    auto row = [](const char *name, const char *tech, const char *band, int sel, const char *ch,
                  const char *list, const char *freq) {
        QTest::newRow(name) << tech << band << sel << ch << list << freq;
    };
    const char *b0 = "Band 0 (800)", *b0Ch = "(1 - 799 /991 - 1023 )",
               *b0List = "(1 - 799)\n(991 - 1023)", *lte1 = "Band 1 (2100)";

    // Non-paired: records 0, 2, ... whatever the selector; frequencies follow it.
    row("CDMA uplink", "CDMA", b0, 1, b0Ch, b0List, "(825.03 - 848.97)\n(824.04 - 825.00)");
    row("CDMA downlink", "CDMA", b0, 0, b0Ch, b0List, "(870.03 - 893.97)\n(869.04 - 870.00)");
    row("CDMA selector 2", "CDMA", b0, 2, b0Ch, b0List, "(-1.00 - -1.00)\n(-1.00 - -1.00)");
    row("CDMA four ranges", "CDMA", "Band 3 (JTACS)", 1,
        "(1 - 799 /801 - 1039 /1041 - 1199 /1201 - 1600 )",
        "(1 - 799)\n(801 - 1039)\n(1041 - 1199)\n(1201 - 1600)",
        "(915.01 - 924.99)\n(898.01 - 900.99)\n(887.01 - 888.99)\n(893.01 - 898.00)");
    row("GSM 935.00", "GSM", "E-GSM 900", 0, "(0 - 124 /975 - 1023 )", "(0 - 124)\n(975 - 1023)",
        "(935.00 - 959.80)\n(925.20 - 934.80)");
    // Time-division: every record is eligible, so any selector converts.
    row("LTE-TDD selector 7", "LTE-TDD", "Band 42 (3400)", 7, "(41590 - 43589 )",
        "(41590 - 43589)", "(3400.00 - 3599.90)");
    // One record gives one range; an exact x.xx5 rounds away from zero.
    row("WIMAX one record", "WIMAX", "ProfR1 (1.25 2150)", 0, "(0 - 7 )", "(0 - 7)",
        "(2150.63 - 2159.38)");

    // Paired: non-zero selects record 0, zero selects record 1.
    row("LTE-FDD uplink", "LTE-FDD", lte1, 1, "(18000 - 18599)", "(18000 - 18599)",
        "(1920.00 - 1979.90)");
    row("LTE-FDD downlink", "LTE-FDD", lte1, 0, "(0 - 599)", "(0 - 599)", "(2110.00 - 2169.90)");
    row("LTE-FDD selector -3", "LTE-FDD", lte1, -3, "(18000 - 18599)", "(18000 - 18599)",
        "(-1.00 - -1.00)");
    row("5G NR placeholder", "5G NR", "Band n78 (TD 3500)", 1, "(1 - 1)", "(1 - 1)",
        "(1.00 - 1.00)");
    row("5G NR 3799.995", "5G NR", "Band n78 (TD 3500)", 0, "(620000 - 653333)",
        "(620000 - 653333)", "(3300.00 - 3799.99)");

    // The given band name decides: a blank for "Band Global" under any name.
    for (const char *tech : {"LTE-FDD", "WCDMA", "5G NR", "CDMA", "Nonsense"})
        row(tech, tech, "Band Global", 1, " ", " ", " ");
    // Not the exact name: slot 0 of LTE-FDD, which is the global band itself.
    row("band global", "LTE-FDD", "band global", 1, "(18000 - 18599)", "(18000 - 18599)",
        "(1920.00 - 1979.90)");
    row("unknown technology", "LTE", "Band 1 (NA PCS)", 1, "(0 - 1199 )", "(0 - 1199)",
        "(1850.00 - 1909.95)");
    row("unknown GSM band", "GSM", "GSM 451", 0, "(259 - 293 )", "(259 - 293)",
        "(460.60 - 467.40)");
}

void TestScreens::refStrings()
{
    QFETCH(QString, tech);
    QFETCH(QString, band);
    QFETCH(int, linkSel);
    QFETCH(QString, chNum);
    QFETCH(QString, chNumList);
    QFETCH(QString, freqList);

    LogCapture log;
    QCOMPARE(G_CHSTD.GetChNumRefString(tech, band, linkSel), chNum);
    QCOMPARE(G_CHSTD.GetChNumRefString_List(tech, band, linkSel), chNumList);
    QCOMPARE(G_CHSTD.GetFreqRefString_List(tech, band, linkSel), freqList);
    QVERIFY(log.all().isEmpty());
}

void TestScreens::refStringsOwnBands_data()
{
    QTest::addColumn<QString>("band");
    QTest::addColumn<QString>("chNum");
    QTest::addColumn<QString>("chNumList");
    QTest::addColumn<QString>("freqList");

    QTest::newRow("no records") << "Empty" << ")" << QString() << QString();
    QTest::newRow("three records, one range")
        << "Three" << "(1 - 2 )" << "(1 - 2)" << "(100.20 - 100.40)";
    QStringList freqs;
    for (int k = 0; k < 12; ++k)
        freqs << QStringLiteral("(%1.00 - %2.00)").arg(100 + 4 * k).arg(101 + 4 * k);
    QTest::newRow("twelve ranges, no limit")
        << "Many"
        << "(0 - 5 /20 - 25 /40 - 45 /60 - 65 /80 - 85 /100 - 105 /120 - 125 /140 - 145 "
           "/160 - 165 /180 - 185 /200 - 205 /220 - 225 )"
        << "(0 - 5)\n(20 - 25)\n(40 - 45)\n(60 - 65)\n(80 - 85)\n(100 - 105)\n(120 - 125)\n"
           "(140 - 145)\n(160 - 165)\n(180 - 185)\n(200 - 205)\n(220 - 225)"
        << freqs.join(QLatin1Char('\n'));
}

void TestScreens::refStringsOwnBands()
{
    QFETCH(QString, band);
    QFETCH(QString, chNum);
    QFETCH(QString, chNumList);
    QFETCH(QString, freqList);

    auto store = std::make_unique<ChBandStore>();
    const QString gsm = QStringLiteral("GSM");
    const auto f = &ChBandStore::chstdGetGSM_900; // base + ch x 0.2
    store->SetBandInfo(gsm, QStringLiteral("Three"), 1, 2, 100.0, 101.0, 100.0, 1, 1, f, false);
    store->SetBandInfo(gsm, QStringLiteral("Three"), 3, 4, 200.0, 201.0, 200.0, 1, 0, f, false);
    store->SetBandInfo(gsm, QStringLiteral("Three"), 5, 6, 100.0, 101.0, 100.0, 1, 1, f, false);
    for (int i = 0; i < 24; ++i) // uplink and downlink alternate
        store->SetBandInfo(gsm, QStringLiteral("Many"), 10 * i, 10 * i + 5, 100.0, 200.0,
                           i % 2 ? 200.0 : 100.0, 1, i % 2 ? 0 : 1, f, false);
    // A band slot that exists but holds no record.
    ChTechnology &t = store->Technologies[1];
    t.BandIndexMap.insert(QStringLiteral("Empty"), t.NumBand++);

    LogCapture log;
    QCOMPARE(store->GetChNumRefString(gsm, band, 1), chNum);
    QCOMPARE(store->GetChNumRefString_List(gsm, band, 1), chNumList);
    QCOMPARE(store->GetFreqRefString_List(gsm, band, 1), freqList);
    QVERIFY(log.all().isEmpty());
}

void TestScreens::bandListByMode_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QStringList>("techs");

    const QStringList all = techList("CDMA GSM LTE-FDD LTE-TDD TD-SCDMA WCDMA WIMAX");
    for (int mode : {1, 4, 16, 17, 23})
        QTest::addRow("mode %d", mode) << mode << all;
    QTest::addRow("mode 6") << 6 << techList("GSM");
    QTest::addRow("mode 8") << 8 << techList("WCDMA");
    QTest::addRow("mode 9") << 9 << techList("TD-SCDMA");
    QTest::addRow("mode 10") << 10 << techList("CDMA");
    QTest::addRow("mode 12") << 12 << techList("CDMA");
    QTest::addRow("mode 11") << 11 << techList("WIMAX");
    QTest::addRow("mode 13") << 13 << techList("LTE-FDD");
    QTest::addRow("mode 14") << 14 << techList("LTE-TDD");
    for (int mode : {20, 22})
        QTest::addRow("mode %d", mode) << mode << techList("LTE-FDD LTE-TDD WCDMA");
    for (int mode : {2, 3, 5, 7, 15, 18, 19, 21, 0, 24, -1, 100, 701, INT_MIN, INT_MAX})
        QTest::addRow("mode %d", mode) << mode << QStringList();
}

// Checks the technology runs against known band counts and first and last
// band names, and that every row's range text belongs to its own band.
void TestScreens::bandListByMode()
{
    QFETCH(int, mode);
    QFETCH(QStringList, techs);

    LogCapture log;
    for (const int linkSel : {1, 0}) {
        const stCHList list = ChStd::GetBandListByMode(mode, 0, linkSel);
        QVERIFY(list.freqRangeList.isEmpty());
        QCOMPARE(list.bandList.size(), list.techList.size());
        QCOMPARE(list.chRangeList.size(), list.techList.size());

        int row = 0;
        for (const QString &tech : techs) {
            const TechBands known = knownTechnologies().value(tech);
            QVERIFY2(row + known.count <= list.techList.size(), qPrintable(tech));
            for (int i = row; i < row + known.count; ++i)
                QCOMPARE(list.techList.at(i), tech);
            QCOMPARE(list.bandList.at(row), QString::fromLatin1(known.first));
            QCOMPARE(list.bandList.at(row + known.count - 1), QString::fromLatin1(known.last));
            row += known.count;
        }
        QCOMPARE(list.techList.size(), row);
        for (int i = 0; i < row; ++i)
            QCOMPARE(list.chRangeList.at(i),
                     G_CHSTD.GetChNumRefString_List(list.techList.at(i), list.bandList.at(i),
                                                    linkSel));

        // The second argument is never read.
        for (const int unused : {1, -7, INT_MAX}) {
            const stCHList other = ChStd::GetBandListByMode(mode, unused, linkSel);
            QCOMPARE(other.techList, list.techList);
            QCOMPARE(other.bandList, list.bandList);
            QCOMPARE(other.chRangeList, list.chRangeList);
            QVERIFY(other.freqRangeList.isEmpty());
        }
    }
    QVERIFY(log.all().isEmpty());
}

void TestScreens::setBandListColumns_data()
{
    QTest::addColumn<QString>("tech");
    QTest::addColumn<QString>("shownTech");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("band");
    QTest::addColumn<QString>("chRange");
    QTest::addColumn<QString>("freqRange");

    QTest::newRow("GSM") << "GSM" << "GSM" << 2 << "GSM 850" << "(128 - 251)"
                         << "(824.20 - 848.80)";
    // No mode shows 5G NR, but the setters do.
    QTest::newRow("5G NR global") << "5G NR" << "5G NR" << 0 << "Band Global" << " " << " ";
    QTest::newRow("5G NR n1") << "5G NR" << "5G NR" << 1 << "Band n1 (2100)"
                              << "(384000 - 396000)" << "(1920.00 - 1980.00)";
    // An unknown technology lists CDMA's bands but keeps its own name.
    QTest::newRow("unknown technology") << "Foo" << "CDMA" << 0 << "Band 0 (800)"
                                        << "(1 - 799)\n(991 - 1023)"
                                        << "(825.03 - 848.97)\n(824.04 - 825.00)";
}

void TestScreens::setBandListColumns()
{
    QFETCH(QString, tech);
    QFETCH(QString, shownTech);
    QFETCH(int, row);
    QFETCH(QString, band);
    QFETCH(QString, chRange);
    QFETCH(QString, freqRange);

    const int count = knownTechnologies().value(shownTech).count;
    const QString x = QStringLiteral("x"); // a row already present stays first
    stCHList list{{x}, {x}, {x}, {x}};

    LogCapture log;
    ChStd::SetBandListName(tech, list);
    QCOMPARE(list.bandList.size(), 1 + count);
    QCOMPARE(list.techList.size() + list.chRangeList.size() + list.freqRangeList.size(), 3);
    ChStd::SetBandListRange(tech, 1, list);
    QVERIFY(log.all().isEmpty());

    for (const QList<QString> *column :
         {&list.techList, &list.bandList, &list.chRangeList, &list.freqRangeList}) {
        QCOMPARE(column->size(), 1 + count);
        QCOMPARE(column->first(), x);
    }
    QCOMPARE(list.techList.count(tech), count);
    QCOMPARE(list.bandList.at(1 + row), band);
    QCOMPARE(list.chRangeList.at(1 + row), chRange);
    QCOMPARE(list.freqRangeList.at(1 + row), freqRange);
}

QTEST_GUILESS_MAIN(TestScreens)
#include "tst_screens.moc"
