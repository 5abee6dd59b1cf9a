#include "testsupport.h"

#include <QtCore/QDataStream>

#include <algorithm>
#include <tuple>
#include <vector>

namespace {

struct ExpectedBand
{
    const char *name;
    int records;
};

// Band slots in order: the slot is part of every channel standard enumerator.
const ExpectedBand kCdma[] = {
    {"Band 0 (800)", 4}, {"Band 1 (NA PCS)", 2}, {"Band 2 (TACS)", 4}, {"Band 3 (JTACS)", 8},
    {"Band 4 (KR PCS)", 2}, {"Band 5 (450)", 8}, {"Band 6 (2100)", 2}, {"Band 7 (700)", 2},
    {"Band 8 (1800)", 2}, {"Band 9 (900)", 2}, {"Band 10 (2nd 800)", 4}};
const ExpectedBand kGsm[] = {
    {"GSM 450", 2}, {"GSM 480", 2}, {"GSM 850", 2}, {"P-GSM 900", 2}, {"E-GSM 900", 4},
    {"R-GSM 900", 4}, {"R-GSM 900 (China)", 2}, {"DCS 1800", 2}, {"PCS 1900", 2}};
const ExpectedBand kLteFdd[] = {
    {"Band Global", 72}, {"Band 1 (2100)", 2}, {"Band 2 (1900)", 2}, {"Band 3 (1800)", 2},
    {"Band 4 (1700)", 2}, {"Band 5 (850)", 2}, {"Band 7 (2600)", 2}, {"Band 8 (900)", 2},
    {"Band 9 (1800)", 2}, {"Band 10 (1700)", 2}, {"Band 11 (1500)", 2}, {"Band 12 (700)", 2},
    {"Band 13 (700)", 2}, {"Band 14 (700)", 2}, {"Band 17 (700)", 2}, {"Band 18 (800)", 2},
    {"Band 19 (800)", 2}, {"Band 20 (800)", 2}, {"Band 21 (1500)", 2}, {"Band 22 (3500)", 2},
    {"Band 23 (2100)", 2}, {"Band 24 (1500)", 2}, {"Band 25 (1900)", 2}, {"Band 26 (800)", 2},
    {"Band 27 (800)", 2}, {"Band 28 (700)", 2}, {"Band 29 (900)", 2}, {"Band 30 (2300)", 2},
    {"Band 31 (450)", 2}, {"Band 32 (1500)", 2}, {"Band 65 (2100)", 2}, {"Band 66 (1700)", 2},
    {"Band 67 (700)", 2}, {"Band 68 (700)", 2}, {"Band 69 (2500)", 2}, {"Band 70 (1700)", 2},
    {"Band 71 (600)", 2}, {"Band 72 (450)", 2}};
const ExpectedBand kLteTdd[] = {
    {"Band Global", 32}, {"Band 33 (1900)", 2}, {"Band 34 (2010)", 2}, {"Band 35 (1850)", 2},
    {"Band 36 (1930)", 2}, {"Band 37 (1910)", 2}, {"Band 38 (2570)", 2}, {"Band 39 (1880)", 2},
    {"Band 40 (2300)", 2}, {"Band 41 (2496)", 2}, {"Band 42 (3400)", 2}, {"Band 43 (3600)", 2},
    {"Band 44 (700)", 2}, {"Band 45 (1500)", 2}, {"Band 46 (6000)", 2}, {"Band 47 (6000)", 2},
    {"Band 48 (3600)", 2}};
const ExpectedBand kTdScdma[] = {
    {"FBN 0", 2}, {"FBN 1", 2}, {"FBN 2", 2}, {"FBN 3", 2}, {"FBN 4", 2}, {"FBN 5", 2},
    {"FBN 6", 2}, {"FBN 7", 2}, {"FBN 8", 2}};
const ExpectedBand kWcdma[] = {
    {"Band Global", 64}, {"Band 1 (2100-General)", 2}, {"Band 2 (1900-General)", 2},
    {"Band 2 (1900-Additional)", 2}, {"Band 3 (1800-General)", 2}, {"Band 4 (1700-General)", 2},
    {"Band 4 (1700-Additional)", 2}, {"Band 5 (850-General)", 2}, {"Band 5 (850-Additional)", 2},
    {"Band 6 (800-General)", 2}, {"Band 6 (800-Additional)", 2}, {"Band 7 (2600-General)", 2},
    {"Band 7 (2600-Additional)", 2}, {"Band 8 (900-General)", 2}, {"Band 9 (1800-General)", 2},
    {"Band 10 (1700-General)", 2}, {"Band 10 (1700-Additional)", 2}, {"Band 11 (1476-General)", 2},
    {"Band 12 (729-General)", 2}, {"Band 12 (729-Additional)", 2}, {"Band 13 (746-General)", 2},
    {"Band 13 (746-Additional)", 2}, {"Band 14 (758-General)", 2}, {"Band 14 (758-Additional)", 2},
    {"Band 19 (800-General)", 2}, {"Band 19 (800-Additional)", 2}, {"Band 20 (800-General)", 2},
    {"Band 21 (1500-General)", 2}, {"Band 21 (3500-General)", 2}, {"Band 25 (1900-General)", 2},
    {"Band 25 (1900-Additional)", 2}, {"Band 26 (1900-General)", 2},
    {"Band 26 (1900-Additional)", 2}};
const ExpectedBand kWimax[] = {
    {"ProfR1 (1.25 2150)", 1}, {"ProfR2 (1.25 2305)", 1}, {"ProfR3 (1.25 2361)", 1},
    {"ProfR4 (1.25 2500)", 1}, {"ProfR5 (1.25 3400)", 1}, {"ProfR6 (3.5 2598)", 2},
    {"ProfR7 (3.5 3461)", 2}, {"ProfR8 (3.5 3551)", 2}, {"ProfR9 (3.5 3651)", 2},
    {"ProfR10 (3.5 3751)", 2}, {"ProfR11 (7 2600)", 2}, {"ProfR12 (7 3463)", 2},
    {"ProfR13 (7 3553)", 2}, {"ProfR14 (7 3653)", 2}, {"ProfR15 (7 3753)", 2},
    {"ProfR26 (10 5275)", 1}, {"ProfR27 (10 5740)", 1}, {"ProfR28 (10 5735)", 1},
    {"ProfR29 (8.75 2304)", 1}};
const ExpectedBand kNr[] = {
    {"Band Global", 70}, {"Band n1 (2100)", 2}, {"Band n2 (1900 PCS)", 2}, {"Band n3 (1800)", 2},
    {"Band n5 (850)", 2}, {"Band n7 (2600)", 2}, {"Band n8 (900)", 2}, {"Band n12 (700 a)", 2},
    {"Band n20 (800)", 2}, {"Band n25 (1900+)", 2}, {"Band n28 (700 APT)", 2},
    {"Band n34 (TD 2000)", 2}, {"Band n38 (TD 2600)", 2}, {"Band n39 (TD 1900+)", 2},
    {"Band n40 (TD 2300)", 2}, {"Band n41 (TD 2500)", 2}, {"Band n50 (TD 1500+)", 2},
    {"Band n51 (TD 1500-)", 2}, {"Band n66 (AWS-3)", 2}, {"Band n70 (AWS-4)", 2},
    {"Band n71 (600)", 2}, {"Band n75 (DL 1500+)", 2}, {"Band n76 (DL 1500-)", 2},
    {"Band n77 (TD 3700)", 2}, {"Band n78 (TD 3500)", 2}, {"Band n79 (TD 4500)", 2},
    {"Band n80 (UL 1800)", 2}, {"Band n81 (UL 900)", 2}, {"Band n82 (UL 800)", 2},
    {"Band n83 (UL 700)", 2}, {"Band n84 (UL 2000)", 2}, {"Band n86 (UL 1800-)", 2},
    {"Band n257 (28 GHz)", 2}, {"Band n258 (26 GHz)", 2}, {"Band n260 (39 GHz)", 2},
    {"Band n261 (28 GHz)", 2}};

struct ExpectedTech
{
    const char *name;
    int records;
    const ExpectedBand *bands;
    int numBands;
};

#define TECH(name, records, bands) {name, records, bands, int(std::size(bands))}
const ExpectedTech kTechs[ChBandStore::MaxTechnologies] = {
    TECH("CDMA", 40, kCdma),         TECH("GSM", 22, kGsm),
    TECH("LTE-FDD", 146, kLteFdd),   TECH("LTE-TDD", 64, kLteTdd),
    TECH("TD-SCDMA", 18, kTdScdma),  TECH("WCDMA", 128, kWcdma),
    TECH("WIMAX", 29, kWimax),       TECH("5G NR", 140, kNr),
};
#undef TECH

const ChBandStore &store()
{
    return *ChStd::GetChStdPointer();
}

QString str(const char *text)
{
    return QString::fromLatin1(text);
}

using RecordKey = std::tuple<int, int, quint64, quint64, quint64, int, int, ChFreqFunc, bool>;

RecordKey key(const stSubBand &r)
{
    return {r.StartChannelNo, r.StopChannelNo, doubleBits(r.StartFreq), doubleBits(r.StopFreq),
            doubleBits(r.BaseFreq), r.SubBandParam, r.Link, r.FreqFunc, r.UplinkOnly};
}

std::vector<RecordKey> keys(const ChBand &band, int link = -1, int skipFirstOf = 0)
{
    std::vector<RecordKey> out;
    for (int i = skipFirstOf; i < band.NumSubBand; ++i)
        if (link < 0 || band.SubBands[i].Link == link)
            out.push_back(key(band.SubBands[i]));
    return out;
}

} // namespace

class TestBandPlan : public QObject
{
    Q_OBJECT

private slots:
    void technology_data();
    void technology();
    void totals();
    void record_data();
    void record();
    void conversion_data();
    void conversion();
    void globalBandsRepeatTheBands();
    void checksum();
    void uplinkOnlyFlags();
    void maps();
};

void TestBandPlan::technology_data()
{
    QTest::addColumn<int>("slot");
    for (int t = 0; t < ChBandStore::MaxTechnologies; ++t)
        QTest::newRow(kTechs[t].name) << t;
}

// Names, counts and the state of every slot, used or not.
void TestBandPlan::technology()
{
    QFETCH(int, slot);
    const ExpectedTech &expected = kTechs[slot];
    const ChTechnology &tech = store().Technologies[slot];
    QCOMPARE(tech.TechName, str(expected.name));
    QCOMPARE(tech.NumBand, expected.numBands);
    QCOMPARE(tech.BandIndexMap.size(), tech.NumBand);

    int records = 0;
    for (int b = 0; b < ChTechnology::MaxBands; ++b) {
        const ChBand &band = tech.Bands[b];
        const bool used = b < expected.numBands;
        QCOMPARE(band.BandName, used ? str(expected.bands[b].name) : QString());
        QCOMPARE(band.NumSubBand, used ? expected.bands[b].records : 0);
        QCOMPARE(band.IsGlobal, band.BandName == QLatin1String("Band Global"));
        if (used)
            QCOMPARE(tech.BandIndexMap.value(band.BandName, -1), b);
        records += band.NumSubBand;
        for (int i = band.NumSubBand; i < ChBand::MaxSubBands; ++i) {
            const stSubBand &r = band.SubBands[i];
            QCOMPARE(r.Link, -9);
            QVERIFY(r.StartChannelNo == 0 && r.StopChannelNo == 0 && r.SubBandParam == 0);
            QVERIFY(!doubleBits(r.StartFreq) && !doubleBits(r.StopFreq) && !doubleBits(r.BaseFreq));
            QVERIFY(!r.FreqFunc && !r.UplinkOnly);
        }
        for (int i = 0; i < band.NumSubBand; ++i) {
            QVERIFY(band.SubBands[i].Link == 0 || band.SubBands[i].Link == 1);
            QVERIFY(band.SubBands[i].FreqFunc);
            QVERIFY(std::strcmp(formulaName(band.SubBands[i].FreqFunc), "?") != 0);
        }
    }
    QCOMPARE(records, expected.records);
}

void TestBandPlan::totals()
{
    int bands = 0, records = 0;
    for (const ChTechnology &tech : store().Technologies) {
        bands += tech.NumBand;
        for (int b = 0; b < tech.NumBand; ++b)
            records += tech.Bands[b].NumSubBand;
    }
    QCOMPARE(bands, 172);
    QCOMPARE(records, 587);
}

void TestBandPlan::record_data()
{
    QTest::addColumn<int>("tech");
    QTest::addColumn<int>("band");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("bandName");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("stop");
    QTest::addColumn<double>("startFreq");
    QTest::addColumn<double>("stopFreq");
    QTest::addColumn<double>("baseFreq");
    QTest::addColumn<int>("param");
    QTest::addColumn<int>("link");
    QTest::addColumn<QString>("formula");
    QTest::addColumn<bool>("uplinkOnly");
    auto row = [](int t, int b, int i, const char *name, int start, int stop, double startFreq,
                  double stopFreq, double base, int param, int link, const char *formula, bool ul) {
        QTest::addRow("%s %s #%d", kTechs[t].name, name, i)
            << t << b << i << str(name) << start << stop << startFreq << stopFreq << base << param
            << link << str(formula) << ul;
    };
    // The first and last record of every technology, and the oddities.
    row(0, 0, 0, "Band 0 (800)", 1, 799, 824.0, 849.0, 825.0, 2, 1, "CDMA_Band0_1", false);
    row(0, 3, 0, "Band 3 (JTACS)", 1, 799, 887.0125, 924.9875, 915.0, 4, 1, "CDMA_Band3_1", false);
    row(0, 3, 1, "Band 3 (JTACS)", 1, 799, 832.0125, 869.9875, 860.0, 4, 0, "CDMA_Band3_1", false);
    row(0, 5, 4, "Band 5 (450)", 1039, 1473, 411.675, 483.48, 451.01, 2, 1, "CDMA_Band5_3", false);
    row(0, 10, 3, "Band 10 (2nd 800)", 720, 919, 851.0, 939.975, 935.0, 3, 0, "CDMA_Band10_2", false);
    row(1, 0, 0, "GSM 450", 259, 293, 450.4, 457.6, 450.6, 1, 1, "GSM_450", false);
    row(1, 6, 0, "R-GSM 900 (China)", 999, 1019, 885.0, 889.0, 890.0, 1, 1, "GSM_900R_2", false);
    row(1, 8, 1, "PCS 1900", 512, 810, 1930.0, 1990.0, 1930.2, 1, 0, "GSM_PCS1900", false);
    row(2, 0, 0, "Band Global", 18000, 18599, 1920.0, 1980.0, 1920.0, 1, 1, "LTEBand1Up", false);
    row(2, 26, 0, "Band 29 (900)", 1, 1, 1.0, 1.0, 1.0, 1, 1, "LTEBand29Up", false);
    row(2, 29, 0, "Band 32 (1500)", 1, 1, 1.0, 1.0, 1.0, 1, 1, "LTEBand32Up", false);
    row(2, 32, 0, "Band 67 (700)", 1, 1, 1.0, 1.0, 1.0, 1, 1, "LTEBand67Up", false);
    row(2, 34, 0, "Band 69 (2500)", 1, 1, 1.0, 1.0, 1.0, 1, 1, "LTEBand69Up", false);
    row(2, 35, 0, "Band 70 (1700)", 132972, 133221, 1695.0, 1710.0, 1695.0, 1, 1, "LTEBand70Up", false);
    row(2, 37, 1, "Band 72 (450)", 68936, 68985, 461.0, 466.0, 461.0, 1, 0, "LTEBand72Dn", false);
    row(3, 0, 0, "Band Global", 36000, 36199, 1900.0, 1920.0, 1900.0, 1, 1, "LTEBand33", true);
    row(3, 0, 15, "Band Global", 55240, 56739, 3550.0, 3700.0, 3550.0, 1, 1, "LTEBand48", true);
    row(3, 0, 16, "Band Global", 36000, 36199, 1900.0, 1920.0, 1900.0, 1, 0, "LTEBand33", true);
    row(3, 9, 1, "Band 41 (2496)", 39650, 41589, 2496.0, 2690.0, 2496.0, 1, 0, "LTEBand41", true);
    row(3, 16, 1, "Band 48 (3600)", 55240, 56739, 3550.0, 3700.0, 3550.0, 1, 0, "LTEBand48", true);
    row(4, 0, 0, "FBN 0", 0, 92, 1785.0, 1805.0, 1785.8, 1, 1, "TDSCDMA_Common", true);
    row(4, 3, 0, "FBN 3", 0, 36, 1920.0, 1980.0, 1971.8, 1, 1, "TDSCDMA_Common2", true);
    row(4, 8, 1, "FBN 8", 0, 242, 2170.0, 2220.0, 2170.8, 1, 0, "TDSCDMA_Common", true);
    row(5, 0, 0, "Band Global", 9612, 9888, 1920.0, 1980.0, 0.0, 1, 1, "WCDMA_Common", false);
    row(5, 4, 0, "Band 3 (1800-General)", 937, 1288, 1710.0, 1780.0, 1525.0, 1, 1, "WCDMA_Common", false);
    row(5, 13, 1, "Band 8 (900-General)", 2937, 3088, 935.0, 960.0, 340.0, 1, 0, "WCDMA_Common", false);
    row(5, 18, 0, "Band 12 (729-General)", 3617, 3678, 699.0, 716.0, -22.0, 1, 1, "WCDMA_Common", false);
    row(5, 28, 0, "Band 21 (3500-General)", 4437, 4813, 3410.0, 3490.0, 2525.0, 1, 1, "WCDMA_Common", false);
    row(5, 31, 0, "Band 26 (1900-General)", 5537, 5688, 814.0, 849.0, -291.0, 1, 1, "WCDMA_Common", false);
    row(5, 32, 1, "Band 26 (1900-Additional)", 5937, 6087, 859.0, 894.0, -325.9, 1, 0, "WCDMA_Common", false);
    row(6, 0, 0, "ProfR1 (1.25 2150)", 0, 7, 2150.625, 2159.375, 2150.625, 3, 1, "WIMAX_Common1", true);
    row(6, 2, 0, "ProfR3 (1.25 2361)", 13, 24, 2361.875, 2375.625, 2345.625, 3, 1, "WIMAX_Common1", true);
    row(6, 8, 0, "ProfR9 (3.5 3651)", 0, 55, 3601.75, 3651.0, 3601.75, 2, 1, "WIMAX_Common2", false);
    row(6, 11, 0, "ProfR12 (7 3463)", 0, 16, 2413.5, 3441.5, 3413.5, 2, 1, "WIMAX_Common2", false);
    row(6, 16, 0, "ProfR27 (10 5740)", 148, 166, 5740.0, 5830.0, 5000.0, 0, 1, "WIMAX_Common3", true);
    row(6, 18, 0, "ProfR29 (8.75 2304)", 0, 730, 2304.375, 2395.625, 2304.375, 3, 1, "WIMAX_Common4", true);
    row(7, 0, 0, "Band Global", 384000, 396000, 1920.0, 1980.0, 1920.0, 1, 1, "5GNRBand", false);
    row(7, 0, 1, "Band Global", 422000, 434000, 2110.0, 2140.0, 2110.0, 1, 0, "5GNRBand", false);
    row(7, 1, 1, "Band n1 (2100)", 422000, 434000, 2110.0, 2140.0, 2110.0, 1, 0, "5GNRBand", false);
    row(7, 15, 1, "Band n41 (TD 2500)", 499200, 537999, 2496.0, 2690.0, 2496.0, 1, 0, "5GNRBand", true);
    row(7, 24, 0, "Band n78 (TD 3500)", 1, 1, 1.0, 1.0, 1.0, 1, 1, "5GNRBand15k", false);
    row(7, 25, 1, "Band n79 (TD 4500)", 693334, 733333, 4400.0, 5000.0, 4400.01, 1, 0, "5GNRBand15k", true);
    row(7, 26, 1, "Band n80 (UL 1800)", 1, 1, 1.0, 1.0, 1.0, 1, 0, "5GNRBand", false);
    row(7, 33, 1, "Band n258 (26 GHz)", 2016667, 2070832, 24250.0, 27500.0, 24250.08, 1, 0, "5GNRBand60k", false);
    row(7, 35, 1, "Band n261 (28 GHz)", 2070833, 2084999, 27500.0, 28350.0, 27500.04, 1, 0, "5GNRBand60k", false);
}

void TestBandPlan::record()
{
    QFETCH(int, tech);
    QFETCH(int, band);
    QFETCH(int, index);
    const ChBand &b = store().Technologies[tech].Bands[band];
    QTEST(b.BandName, "bandName");
    QVERIFY(index < b.NumSubBand);
    const stSubBand &r = b.SubBands[index];
    QTEST(r.StartChannelNo, "start");
    QTEST(r.StopChannelNo, "stop");
    QFETCH(double, startFreq);
    QFETCH(double, stopFreq);
    QFETCH(double, baseFreq);
    COMPARE_BITS(r.StartFreq, startFreq);
    COMPARE_BITS(r.StopFreq, stopFreq);
    COMPARE_BITS(r.BaseFreq, baseFreq);
    QTEST(r.SubBandParam, "param");
    QTEST(r.Link, "link");
    QTEST(str(formulaName(r.FreqFunc)), "formula");
    QTEST(r.UplinkOnly, "uplinkOnly");
}

void TestBandPlan::conversion_data()
{
    QTest::addColumn<int>("tech");
    QTest::addColumn<QString>("band");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("channel");
    QTest::addColumn<double>("mhz");
    auto row = [](int t, const char *band, int i, int channel, double mhz) {
        QTest::addRow("%s %s #%d ch %d", kTechs[t].name, band, i, channel)
            << t << str(band) << i << channel << mhz;
    };
    row(0, "Band 0 (800)", 0, 1, 825.03);
    row(0, "Band 0 (800)", 2, 991, 824.04);
    row(2, "Band 29 (900)", 0, 1, -2764.9);
    row(2, "Band 70 (1700)", 0, 133221, 1719.9);
    row(3, "Band 41 (2496)", 0, 39650, 2496.0);
    row(3, "Band 41 (2496)", 1, 41589, 2689.9);
    row(4, "FBN 0", 0, 0, 1785.8);
    row(4, "FBN 3", 1, 0, 1972.0);
    row(5, "Band 1 (2100-General)", 0, 9612, 1922.4);
    row(5, "Band 3 (1800-General)", 0, 1288, 1782.6);
    row(5, "Band 8 (900-General)", 0, 2712, 882.4);
    row(6, "ProfR3 (1.25 2361)", 0, 13, 2361.875);
    row(6, "ProfR9 (3.5 3651)", 0, 55, 3698.0);
    row(6, "ProfR27 (10 5740)", 0, 148, 5740.0);
    row(6, "ProfR29 (8.75 2304)", 0, 730, 2395.625);
    row(7, "Band n1 (2100)", 1, 434000, 2170.0);
    row(7, "Band n78 (TD 3500)", 0, 1, 1.0);
    row(7, "Band n78 (TD 3500)", 1, 653333, 3799.995);
    row(7, "Band n79 (TD 4500)", 1, 693334, 4400.01);
    row(7, "Band n258 (26 GHz)", 1, 2016667, 24250.08);
}

// What a query computes: the record's formula with its base and start channel.
void TestBandPlan::conversion()
{
    QFETCH(int, tech);
    QFETCH(QString, band);
    QFETCH(int, index);
    QFETCH(int, channel);
    QFETCH(double, mhz);
    const ChTechnology &t = store().Technologies[tech];
    QVERIFY(t.BandIndexMap.contains(band));
    const stSubBand &r = t.Bands[t.BandIndexMap.value(band)].SubBands[index];
    QVERIFY(r.StartChannelNo <= channel && channel <= r.StopChannelNo);
    COMPARE_BITS(r.FreqFunc(channel, r.BaseFreq, r.StartChannelNo), mhz);
}

void TestBandPlan::globalBandsRepeatTheBands()
{
    const ChTechnology *techs = store().Technologies;
    for (const int slot : {2, 3, 5, 7}) {
        const ChTechnology &tech = techs[slot];
        std::vector<RecordKey> expected;
        for (const int link : {1, 0}) {
            for (int b = 1; b < tech.NumBand; ++b) {
                const ChBand &band = tech.Bands[b];
                // LTE-FDD's global band leaves out two of the four placeholders.
                const bool dropped = slot == 2 && (band.BandName == QLatin1String("Band 29 (900)")
                                                   || band.BandName == QLatin1String("Band 32 (1500)"));
                // LTE-TDD lists all uplinks first, then all downlinks.
                const auto part = keys(band, slot == 3 ? link : -1, dropped ? 1 : 0);
                expected.insert(expected.end(), part.begin(), part.end());
            }
            if (slot != 3)
                break;
        }
        auto global = keys(tech.Bands[0]);
        if (slot == 7) { // same records, an order of its own
            QVERIFY(global != expected);
            std::sort(global.begin(), global.end());
            std::sort(expected.begin(), expected.end());
        }
        QVERIFY2(global == expected, kTechs[slot].name);
    }
}

// FNV-1a over the whole band plan in slot order (little-endian, doubles by
// their bits, formulas by name): any dropped, moved, reordered or altered
// record changes it.
void TestBandPlan::checksum()
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    const auto text = [&out](const QByteArray &s) { out.writeRawData(s.constData(), s.size() + 1); };
    for (const ChTechnology &tech : store().Technologies) {
        text(tech.TechName.toUtf8());
        out << qint32(tech.NumBand);
        for (int b = 0; b < tech.NumBand; ++b) {
            const ChBand &band = tech.Bands[b];
            text(band.BandName.toUtf8());
            out << quint8(band.IsGlobal) << qint32(band.NumSubBand);
            for (int i = 0; i < band.NumSubBand; ++i) {
                const stSubBand &r = band.SubBands[i];
                out << r.StartChannelNo << r.StopChannelNo << r.StartFreq << r.StopFreq
                    << r.BaseFreq << r.SubBandParam << r.Link;
                text(formulaName(r.FreqFunc));
                out << quint8(r.UplinkOnly);
            }
        }
    }
    quint64 hash = 0xcbf29ce484222325ULL;
    for (const char c : qAsConst(bytes))
        hash = (hash ^ quint8(c)) * 0x100000001b3ULL;
    QCOMPARE(QString::number(hash, 16), QStringLiteral("299549b89733a84b"));
}

// Time-division records carry the flag: all of LTE-TDD and TD-SCDMA, the
// single-record WIMAX profiles and only the n41/n77/n78/n79 downlinks of 5G NR.
void TestBandPlan::uplinkOnlyFlags()
{
    const int nrFlagged[] = {499200, 620000, 693334}; // start channels of those downlinks
    int nrCount = 0;
    for (int t = 0; t < ChBandStore::MaxTechnologies; ++t) {
        const ChTechnology &tech = store().Technologies[t];
        for (int b = 0; b < tech.NumBand; ++b) {
            for (int i = 0; i < tech.Bands[b].NumSubBand; ++i) {
                const stSubBand &r = tech.Bands[b].SubBands[i];
                bool expected = t == 3 || t == 4 || (t == 6 && tech.Bands[b].NumSubBand == 1);
                if (t == 7)
                    expected = r.Link == 0 && std::count(std::begin(nrFlagged), std::end(nrFlagged), r.StartChannelNo);
                nrCount += t == 7 && r.UplinkOnly;
                QVERIFY2(r.UplinkOnly == expected,
                         qPrintable(tech.TechName + QLatin1Char('/') + tech.Bands[b].BandName));
            }
        }
    }
    QCOMPARE(nrCount, 8);
}

void TestBandPlan::maps()
{
    QMap<QString, int> techs;
    for (int t = 0; t < ChBandStore::MaxTechnologies; ++t)
        techs.insert(str(kTechs[t].name), t);
    QCOMPARE(store().TechIndexMap, techs);

    // The catalogues repeat the band names of the first seven technologies,
    // LTE-FDD's and LTE-TDD's cut short and LTE-FDD's without band 19.
    const int catalogSizes[ChBandStore::NumCatalogs] = {11, 9, 24, 12, 9, 33, 19};
    for (int t = 0; t < ChBandStore::NumCatalogs; ++t) {
        QMap<QString, int> expected;
        for (int b = 0; b < catalogSizes[t]; ++b)
            if (std::strcmp(kTechs[t].bands[b].name, "Band 19 (800)") != 0 || t != 2)
                expected.insert(str(kTechs[t].bands[b].name), expected.size());
        QCOMPARE(store().BandNameCatalog[t], expected);
    }
    QCOMPARE(store().BandNameCatalog[2].value(QStringLiteral("Band 20 (800)")), 16);
    QVERIFY(store().IndexNameMap.isEmpty());
}

QTEST_APPLESS_MAIN(TestBandPlan)
#include "tst_bandplan.moc"
