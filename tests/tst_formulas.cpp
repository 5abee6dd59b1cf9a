#include "testsupport.h"

#include <QtCore/QSet>

#include <climits>

namespace {

// Two's-complement reduction of an exact difference, done without relying on
// the 32-bit arithmetic under test.
qint32 wrap32(qint64 value)
{
    const qint64 r = ((value % 0x100000000LL) + 0x100000000LL) % 0x100000000LL;
    return static_cast<qint32>(r >= 0x80000000LL ? r - 0x100000000LL : r);
}

} // namespace

class TestFormulas : public QObject
{
    Q_OBJECT

private slots:
    void formula_data();
    void formula();
    void knownValues_data();
    void knownValues();
    void everyFormulaIsItsOwnFunction();
};

void TestFormulas::formula_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < int(std::size(kFormulas)); ++i)
        QTest::newRow(kFormulas[i].name) << i;
}

// Offset and step of every formula, negative differences, the role of the
// third argument, and 32-bit wrap-around at the ends of the int range.
void TestFormulas::formula()
{
    QFETCH(int, index);
    const FormulaEntry &f = kFormulas[index];
    const bool times5 = f.func == &ChBandStore::chstdGetWIMAX_Common3;
    const int refs[] = {0, 384000, -5, INT_MIN, INT_MAX};
    const int diffs[] = {0, 1, -1, 7, -32, 599, 12345, -70000};

    for (const int ref : refs) {
        // The offset is the constant, or for 5G NR the channel given as ref.
        const int offset = f.usesRef ? ref : f.offset;
        if (f.usesRef && (ref == INT_MIN || ref == INT_MAX))
            continue; // offset + diff would leave the int range here
        COMPARE_BITS(f.func(offset, 0.0, ref), 0.0);
        for (const int k : diffs) {
            COMPARE_BITS(f.func(offset + k, 1920.0, ref), 1920.0 + static_cast<double>(k) * f.step);
            COMPARE_BITS(f.func(offset + k, -291.0, ref), -291.0 + static_cast<double>(k) * f.step);
        }
    }

    for (const qint64 channel : {qint64(INT_MIN), qint64(INT_MAX)}) {
        const int refs2[] = {1, -1, INT_MIN, INT_MAX};
        for (const int ref : refs2) {
            double expected;
            if (times5)
                expected = 100.0 + static_cast<double>(wrap32(channel * 5));
            else
                expected = 100.0 + static_cast<double>(wrap32(channel - (f.usesRef ? ref : f.offset))) * f.step;
            COMPARE_BITS(f.func(static_cast<int>(channel), 100.0, ref), expected);
        }
    }

    if (f.usesRef) { // ref 0 makes the channel count from zero, far outside any band
        COMPARE_BITS(f.func(396000, 1920.0, 0), 1920.0 + 396000.0 * f.step);
        QVERIFY(doubleBits(f.func(396000, 1920.0, 0)) != doubleBits(f.func(396000, 1920.0, 384000)));
    }
}

void TestFormulas::knownValues_data()
{
    QTest::addColumn<ChFreqFunc>("func");
    QTest::addColumn<int>("channel");
    QTest::addColumn<double>("base");
    QTest::addColumn<int>("ref");
    QTest::addColumn<double>("expected");
    auto row = [](const char *name, ChFreqFunc f, int ch, double base, int ref, double mhz) {
        QTest::newRow(name) << f << ch << base << ref << mhz;
    };
    row("LTE 1 Up first", &ChBandStore::chstdGetLTEBand1Up, 18000, 1920.0, 0, 1920.0);
    row("LTE 1 Up last", &ChBandStore::chstdGetLTEBand1Up, 18599, 1920.0, 0, 1979.9);
    row("LTE 1 Dn", &ChBandStore::chstdGetLTEBand1Dn, 300, 2110.0, 0, 2140.0);
    row("CDMA 0 below offset", &ChBandStore::chstdGetCDMA_Band0_2, 991, 825.0, 0, 824.04);
    row("CDMA 5_1 counts from 1", &ChBandStore::chstdGetCDMA_Band5_1, 1, 450.0, 0, 450.0);
    row("TDSCDMA adds one", &ChBandStore::chstdGetTDSCDMA_Common2, 0, 1971.8, 0, 1972.0);
    row("TDSCDMA plain", &ChBandStore::chstdGetTDSCDMA_Common, 0, 1785.8, 0, 1785.8);
    row("WIMAX 5 MHz", &ChBandStore::chstdGetWIMAX_Common3, 55, 5000.0, 0, 5275.0);
    row("WIMAX 5 MHz negative", &ChBandStore::chstdGetWIMAX_Common3, -3, 5000.0, 0, 4985.0);
    row("WIMAX eighth", &ChBandStore::chstdGetWIMAX_Common4, 1, 2304.375, 0, 2304.5);
    row("WIMAX eighth exact", &ChBandStore::chstdGetWIMAX_Common4, INT_MAX, 0.0, 0, 268435455.875);
    row("WIMAX eighth negative", &ChBandStore::chstdGetWIMAX_Common4, -3, 0.0, 0, -0.375);
    row("5G NR at ref", &ChBandStore::chstdGet5GNRBand, 384000, 1920.0, 384000, 1920.0);
    row("5G NR above ref", &ChBandStore::chstdGet5GNRBand, 396000, 1920.0, 384000, 1980.0);
    row("5G NR ref 0", &ChBandStore::chstdGet5GNRBand, 396000, 1920.0, 0, 3900.0);
    row("5G NR 15k", &ChBandStore::chstdGet5GNRBand15k, 680000, 3300.0, 620000, 4200.0);
    row("5G NR 60k", &ChBandStore::chstdGet5GNRBand60k, 2016667, 24250.08, 2016667, 24250.08);
    row("5G NR placeholder", &ChBandStore::chstdGet5GNRBand, 1, 1.0, 1, 1.0);
    row("LTE 29 placeholder", &ChBandStore::chstdGetLTEBand29Up, 1, 1.0, 0, -2764.9);
}

// Values worked out by hand, independent of the offset/step table above.
void TestFormulas::knownValues()
{
    QFETCH(ChFreqFunc, func);
    QFETCH(int, channel);
    QFETCH(double, base);
    QFETCH(int, ref);
    QFETCH(double, expected);
    COMPARE_BITS(func(channel, base, ref), expected);
}

// Records are told apart by formula address, so no two may share one.
void TestFormulas::everyFormulaIsItsOwnFunction()
{
    QSet<quintptr> addresses;
    for (const FormulaEntry &f : kFormulas)
        addresses.insert(reinterpret_cast<quintptr>(f.func));
    QCOMPARE(addresses.size(), 126);
}

QTEST_APPLESS_MAIN(TestFormulas)
#include "tst_formulas.moc"
