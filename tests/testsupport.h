#ifndef SAISKUKO_TESTS_TESTSUPPORT_H
#define SAISKUKO_TESTS_TESTSUPPORT_H

#include <saiskuko/saiskuko.h>

#include <QtCore/QString>
#include <QtTest/QtTest>

#include <cstring>
#include <iterator>

// QCOMPARE on doubles is fuzzy; frequencies must match to the last bit.
inline quint64 doubleBits(double value)
{
    quint64 bits;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

#define COMPARE_BITS(actual, expected)                                                      \
    do {                                                                                    \
        const double actual_ = (actual), expected_ = (expected);                            \
        if (doubleBits(actual_) != doubleBits(expected_))                                   \
            QFAIL(qPrintable(QString::asprintf("%s is %.17g, expected %.17g", #actual,      \
                                               actual_, expected_)));                       \
    } while (false)

// Every channel formula in order of definition. O: base + (ch - offset) x step;
// R: the offset is the third argument. WIMAX_Common3 multiplies by 5 in
// integers, which equals a 5.0 step wherever the product does not wrap.
#define SAISKUKO_TEST_FORMULAS(O, R) \
    O(CDMA_Band0_1, 0, 0.03) O(CDMA_Band0_2, 1023, 0.03) O(CDMA_Band1_4, 0, 0.05) \
    O(CDMA_Band2_1, 0, 0.025) O(CDMA_Band2_2, 1328, 0.025) O(CDMA_Band3_1, 0, 0.0125) \
    O(CDMA_Band3_2, 800, 0.0125) O(CDMA_Band3_3, 1040, 0.0125) O(CDMA_Band3_4, 1200, 0.0125) \
    O(CDMA_Band5_1, 1, 0.025) O(CDMA_Band5_2, 512, 0.025) O(CDMA_Band5_3, 1024, 0.02) \
    O(CDMA_Band5_4, 1792, 0.02) O(CDMA_Band10_2, 720, 0.025) O(GSM_450, 259, 0.2) \
    O(GSM_480, 306, 0.2) O(GSM_850, 128, 0.2) O(GSM_900, 0, 0.2) O(GSM_900E_2, 1024, 0.2) \
    O(GSM_DCS1800, 512, 0.2) O(LTEBand1Up, 18000, 0.1) O(LTEBand1Dn, 0, 0.1) \
    O(LTEBand2Up, 18600, 0.1) O(LTEBand2Dn, 600, 0.1) O(LTEBand3Up, 19200, 0.1) \
    O(LTEBand3Dn, 1200, 0.1) O(LTEBand4Up, 19950, 0.1) O(LTEBand4Dn, 1950, 0.1) \
    O(LTEBand5Up, 20400, 0.1) O(LTEBand5Dn, 2400, 0.1) O(LTEBand7Up, 20750, 0.1) \
    O(LTEBand7Dn, 2750, 0.1) O(LTEBand8Up, 21450, 0.1) O(LTEBand8Dn, 3450, 0.1) \
    O(LTEBand9Up, 21800, 0.1) O(LTEBand9Dn, 3800, 0.1) O(LTEBand10Up, 22150, 0.1) \
    O(LTEBand10Dn, 4150, 0.1) O(LTEBand11Up, 22750, 0.1) O(LTEBand11Dn, 4750, 0.1) \
    O(LTEBand12Up, 23010, 0.1) O(LTEBand12Dn, 5010, 0.1) O(LTEBand13Up, 23180, 0.1) \
    O(LTEBand13Dn, 5180, 0.1) O(LTEBand14Up, 23280, 0.1) O(LTEBand14Dn, 5280, 0.1) \
    O(LTEBand17Up, 23730, 0.1) O(LTEBand17Dn, 5730, 0.1) O(LTEBand18Up, 23850, 0.1) \
    O(LTEBand18Dn, 5850, 0.1) O(LTEBand19Up, 24000, 0.1) O(LTEBand19Dn, 6000, 0.1) \
    O(LTEBand20Up, 24150, 0.1) O(LTEBand20Dn, 6150, 0.1) O(LTEBand21Up, 24450, 0.1) \
    O(LTEBand21Dn, 6450, 0.1) O(LTEBand24Up, 25700, 0.1) O(LTEBand24Dn, 7700, 0.1) \
    O(LTEBand22Up, 24600, 0.1) O(LTEBand22Dn, 6600, 0.1) O(LTEBand23Up, 25500, 0.1) \
    O(LTEBand23Dn, 7500, 0.1) O(LTEBand25Up, 26040, 0.1) O(LTEBand25Dn, 8040, 0.1) \
    O(LTEBand26Up, 26690, 0.1) O(LTEBand26Dn, 8690, 0.1) O(LTEBand27Up, 27040, 0.1) \
    O(LTEBand27Dn, 9040, 0.1) O(LTEBand28Up, 27210, 0.1) O(LTEBand28Dn, 9210, 0.1) \
    O(LTEBand29Up, 27660, 0.1) O(LTEBand29Dn, 9660, 0.1) O(LTEBand30Dn, 9770, 0.1) \
    O(LTEBand31Up, 27760, 0.1) O(LTEBand31Dn, 9870, 0.1) O(LTEBand32Dn, 9920, 0.1) \
    O(LTEBand33, 36000, 0.1) O(LTEBand34, 36200, 0.1) O(LTEBand35, 36350, 0.1) \
    O(LTEBand36, 36950, 0.1) O(LTEBand37, 37550, 0.1) O(LTEBand38, 37750, 0.1) \
    O(LTEBand39, 38250, 0.1) O(LTEBand40, 38650, 0.1) O(LTEBand41, 39650, 0.1) \
    O(LTEBand42, 41590, 0.1) O(LTEBand43, 43590, 0.1) O(LTEBand44, 45590, 0.1) \
    O(LTEBand45, 46590, 0.1) O(LTEBand46, 46790, 0.1) O(LTEBand47, 54540, 0.1) \
    O(LTEBand48, 55240, 0.1) O(LTEBand65Up, 131072, 0.1) O(LTEBand65Dn, 65536, 0.1) \
    O(LTEBand66Up, 131972, 0.1) O(LTEBand66Dn, 66436, 0.1) O(LTEBand67Dn, 67336, 0.1) \
    O(LTEBand68Up, 132672, 0.1) O(LTEBand68Dn, 67536, 0.1) O(LTEBand69Dn, 67836, 0.1) \
    O(LTEBand70Up, 132972, 0.1) O(LTEBand70Dn, 68336, 0.1) O(LTEBand71Up, 133122, 0.1) \
    O(LTEBand71Dn, 68586, 0.1) O(LTEBand72Up, 133472, 0.1) O(LTEBand72Dn, 68936, 0.1) \
    O(TDSCDMA_Common2, -1, 0.2) O(WIMAX_Common1, 0, 1.25) O(WIMAX_Common2, 0, 1.75) \
    O(WIMAX_Common3, 0, 5.0) O(WIMAX_Common4, 0, 0.125) R(5GNRBand, 0.005) \
    R(5GNRBand15k, 0.015) R(5GNRBand60k, 0.06) O(CDMA_Band789, 0, 0.05) \
    O(CDMA_Band10_1, 0, 0.025) O(TDSCDMA_Common, 0, 0.2) O(GSM_900E_1, 0, 0.2) \
    O(GSM_900R_1, 0, 0.2) O(WCDMA_Common, 0, 0.2) O(LTEBand30Up, 27660, 0.1) \
    O(GSM_900R_2, 1024, 0.2) O(GSM_PCS1900, 512, 0.2) O(LTEBand32Up, 27760, 0.1) \
    O(LTEBand67Up, 131972, 0.1) O(LTEBand69Up, 132672, 0.1)

struct FormulaEntry
{
    const char *name;
    ChFreqFunc func;
    int offset;
    double step;
    bool usesRef;
};

#define SAISKUKO_TEST_O(stem, offset, step) {#stem, &ChBandStore::chstdGet##stem, offset, step, false},
#define SAISKUKO_TEST_R(stem, step) {#stem, &ChBandStore::chstdGet##stem, 0, step, true},
inline const FormulaEntry kFormulas[] = {SAISKUKO_TEST_FORMULAS(SAISKUKO_TEST_O, SAISKUKO_TEST_R)};
#undef SAISKUKO_TEST_O
#undef SAISKUKO_TEST_R

Q_DECLARE_METATYPE(ChFreqFunc)

// The name of a record's formula, or "?" for an address that is none of them.
inline const char *formulaName(ChFreqFunc func)
{
    for (const FormulaEntry &entry : kFormulas)
        if (entry.func == func)
            return entry.name;
    return func ? "?" : "";
}

#endif
