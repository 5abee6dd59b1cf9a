#include "querytest.h"

#include <climits>

class TestByEnum : public QObject
{
    Q_OBJECT

private slots:
    void agreesWithNames_data();
    void agreesWithNames();
    void invalidCode_data();
    void invalidCode();
    void emptyBand();

private:
    const ChBandStore &global = *ChStd::GetChStdPointer();
};

void TestByEnum::agreesWithNames_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("tech");
    QTest::addColumn<QString>("band");
    QTest::addColumn<int>("link");
    QTest::addColumn<int>("channel");
    QTest::addColumn<double>("mhz");
    QTest::addColumn<double>("freq");
    QTest::addColumn<int>("offset");
    QTest::addColumn<QString>("printed"); // what one failed conversion writes

    QTest::newRow("GSM 850") << 102 << str("GSM") << str("GSM 850") << 1 << 128 << 824.2 << 824.2 << 0 << QString();
    QTest::newRow("GSM 850 miss") << 102 << str("GSM") << str("GSM 850") << 1 << 300 << 824.3 << -1.0 << 0
                                  << str("GetChNumFromFreq Not supported value : 824.3\n");
    // Channel and link change places on the way to the name form.
    QTest::newRow("LTE band 3") << 203 << str("LTE-FDD") << str("Band 3 (1800)") << 0 << 1300
                                << 1805.0 + 100 * 0.1 << 1805.0 + 100 * 0.1 << 18000 << QString();
    QTest::newRow("TDD link 2") << 308 << str("LTE-TDD") << str("Band 40 (2300)") << 2 << 38650 << 2300.0 << 2300.0
                                << 0 << QString();
    QTest::newRow("n41") << 715 << str("5G NR") << str("Band n41 (TD 2500)") << 0 << 499200 << 2496.0 << 2496.0
                         << 1 - 499200 << QString();
    QTest::newRow("last code") << 735 << str("5G NR") << str("Band n261 (28 GHz)") << 0 << 2070833 << 27500.04
                               << 27500.04 << 1 - 2070833 << QString();
}

// Every member by enumerator answers exactly as its name form for the band
// that the number names; nothing is logged besides the conversion's miss.
void TestByEnum::agreesWithNames()
{
    QFETCH(int, code);
    QFETCH(QString, tech);
    QFETCH(QString, band);
    QFETCH(int, link);
    QFETCH(int, channel);
    QFETCH(double, mhz);
    QFETCH(QString, printed);
    const ChBandStore &s = global;
    LogCapture log;
    QCOMPARE(s.GetNumSubBand(code), s.GetNumSubBand(tech, band));
    QCOMPARE(s.GetStartChannelNo(code, link), s.GetStartChannelNo(tech, band, link));
    QCOMPARE(s.GetStopChannelNo(code, link), s.GetStopChannelNo(tech, band, link));
    QTEST(s.GetOffsetChUpDown(code, link, channel), "offset");
    QCOMPARE(s.GetChNumFromFreq(code, link, mhz, channel), s.GetChNumFromFreq(tech, band, link, mhz, channel));
    COMPARE_BITS(s.GetDefaultIntBW(code), s.GetDefaultIntBW(tech));
    QCOMPARE(s.IsUplinkOnly(code), s.IsUplinkOnly(tech, band));
    COMPARE_BITS(s.GetStartFreq(code), s.GetStartFreq(tech, band));
    COMPARE_BITS(s.GetStartFreq(code, link), s.GetStartFreq(tech, band, link));
    COMPARE_BITS(s.GetStopFreq(code, link), s.GetStopFreq(tech, band, link));
    QCOMPARE(s.IsExistChannelNo(code, link, channel), s.IsExistChannelNo(tech, band, link, channel));
    QTEST_BITS(s.GetFreq(code, link, channel), "freq");
    COMPARE_LOG(log, QStringList(), printed + printed);
}

void TestByEnum::invalidCode_data()
{
    QTest::addColumn<int>("code");
    for (const int code : {-1, -150, 11, 109, 238, 317, 619, 736, 800, 900, INT_MIN, INT_MAX})
        QTest::newRow(qPrintable(QString::number(code))) << code;
}

// One warning per call, then the member's failure value; IsUplinkOnly says
// true where IsExistChannelNo says false.
void TestByEnum::invalidCode()
{
    QFETCH(int, code);
    const ChBandStore &s = global;
    LogCapture log;
    QCOMPARE(s.GetNumSubBand(code), -1);
    QCOMPARE(s.GetStartChannelNo(code, 1), -1);
    QCOMPARE(s.GetStopChannelNo(code, 0), -1);
    QCOMPARE(s.GetOffsetChUpDown(code, 0, 300), -1);
    QCOMPARE(s.GetChNumFromFreq(code, 1, 824.3, -1), -1);
    COMPARE_BITS(s.GetDefaultIntBW(code), -1.0);
    QCOMPARE(s.IsUplinkOnly(code), true);
    COMPARE_BITS(s.GetStartFreq(code), -1.0);
    COMPARE_BITS(s.GetStartFreq(code, 1), -1.0);
    COMPARE_BITS(s.GetStopFreq(code, 0), -1.0);
    QCOMPARE(s.IsExistChannelNo(code, 1, 128), false);
    COMPARE_BITS(s.GetFreq(code, 1, 128), -1.0);
    QStringList expected;
    for (int i = 0; i < 12; ++i)
        expected.append(QStringLiteral("Channel Standard Enum is invalid.( %1 )").arg(code));
    COMPARE_LOG(log, expected, QString());
}

// A valid number whose band has no record gets the name forms' empty answers,
// not the failure values.
void TestByEnum::emptyBand()
{
    const auto own = makeStore();
    own->Technologies[1].BandIndexMap.insert(str("Empty"), 9);

    LogCapture log;
    QCOMPARE(own->GetNumSubBand(109), 0);
    QCOMPARE(own->GetStartChannelNo(109, 1), 0);
    QCOMPARE(own->GetStopChannelNo(109, 1), 0);
    QCOMPARE(own->GetOffsetChUpDown(109, 1, 0), 0);
    COMPARE_BITS(own->GetDefaultIntBW(109), 300000.0);
    QCOMPARE(own->IsUplinkOnly(109), false);
    COMPARE_BITS(own->GetStartFreq(109), 0.0);
    COMPARE_BITS(own->GetStartFreq(109, 1), 0.0);
    COMPARE_BITS(own->GetStopFreq(109, 1), 0.0);
    QCOMPARE(own->IsExistChannelNo(109, 1, 0), false);
    COMPARE_BITS(own->GetFreq(109, 1, 0), -1.0);
    QCOMPARE(own->GetChNumFromFreq(109, 1, 0.0, 0), -1);
    COMPARE_LOG(log, QStringList(), str("GetChNumFromFreq Not supported value : 0\n"));
}

QTEST_APPLESS_MAIN(TestByEnum)
#include "tst_byenum.moc"
