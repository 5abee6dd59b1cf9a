#include "testsupport.h"

#include <QtCore/QDataStream>
#include <QtCore/QSet>

#include <climits>
#include <new>

namespace {

struct FormulaEntry
{
    const char *name;
    ChFreqFunc func;
    int offset;
    double step;
    bool usesRef;
};

// Every formula: O is base + (ch - offset) x step, L an LTE pair (Up and Dn
// offsets), T an LTE time-division band, R takes its offset from the third
// argument. WIMAX_Common3 multiplies by 5 in integers, a 5.0 step where the
// product does not wrap.
#define O(stem, offset, step) {#stem, &ChBandStore::chstdGet##stem, offset, step, false},
#define R(stem, step) {#stem, &ChBandStore::chstdGet##stem, 0, step, true},
#define L(n, up, dn) O(LTEBand##n##Up, up, 0.1) O(LTEBand##n##Dn, dn, 0.1)
#define T(n, offset) O(LTEBand##n, offset, 0.1)
const FormulaEntry kFormulas[] = {
    O(CDMA_Band0_1, 0, 0.03) O(CDMA_Band0_2, 1023, 0.03) O(CDMA_Band1_4, 0, 0.05) O(
        CDMA_Band2_1, 0, 0.025) O(CDMA_Band2_2, 1328, 0.025) O(CDMA_Band3_1, 0, 0.0125)
        O(CDMA_Band3_2, 800, 0.0125) O(CDMA_Band3_3, 1040, 0.0125) O(CDMA_Band3_4, 1200, 0.0125) O(
            CDMA_Band5_1, 1, 0.025) O(CDMA_Band5_2, 512, 0.025) O(CDMA_Band5_3, 1024,
                                                                  0.02) O(CDMA_Band5_4, 1792, 0.02)
            O(CDMA_Band10_2, 720, 0.025) O(CDMA_Band789, 0, 0.05) O(CDMA_Band10_1, 0, 0.025)
                O(GSM_450, 259, 0.2) O(GSM_480, 306, 0.2) O(GSM_850, 128, 0.2) O(GSM_900, 0, 0.2) O(
                    GSM_900E_1,
                    0, 0.2) O(GSM_900E_2, 1024, 0.2)
                    O(GSM_900R_1, 0, 0.2) O(GSM_900R_2, 1024, 0.2) O(GSM_DCS1800, 512, 0.2) O(
                        GSM_PCS1900,
                        512, 0.2)
                        O(TDSCDMA_Common, 0, 0.2) O(TDSCDMA_Common2, -1, 0.2) O(
                            WCDMA_Common,
                            0, 0.2) O(WIMAX_Common1, 0, 1.25)
                            O(WIMAX_Common2, 0, 1.75) O(WIMAX_Common3, 0, 5.0) O(
                                WIMAX_Common4,
                                0, 0.125) R(5GNRBand, 0.005)
                                R(5GNRBand15k, 0.015) R(5GNRBand60k, 0.06) L(1, 18000, 0) L(
                                    2, 18600,
                                    600) L(3, 19200,
                                           1200) L(4, 19950, 1950)
                                    L(5, 20400, 2400) L(
                                        7, 20750,
                                        2750) L(8, 21450, 3450)
                                        L(9, 21800, 3800) L(
                                            10,
                                            22150, 4150) L(11, 22750, 4750)
                                            L(12, 23010, 5010) L(13, 23180, 5180) L(14, 23280, 5280) L(
                                                17,
                                                23730, 5730) L(18, 23850, 5850)
                                                L(19, 24000, 6000) L(20, 24150, 6150) L(
                                                    21,
                                                    24450, 6450) L(22, 24600, 6600)
                                                    L(23, 25500, 7500) L(24, 25700, 7700) L(
                                                        25,
                                                        26040, 8040) L(26, 26690, 8690)
                                                        L(27, 27040, 9040) L(28, 27210, 9210) L(
                                                            29,
                                                            27660, 9660) L(30, 27660, 9770)
                                                            L(31, 27760, 9870) L(32, 27760, 9920) L(
                                                                65,
                                                                131072,
                                                                65536) L(66, 131972,
                                                                         66436) L(67, 131972, 67336)
                                                                L(68, 132672, 67536) L(
                                                                    69,
                                                                    132672,
                                                                    67836) L(70, 132972, 68336)
                                                                    L(71, 133122, 68586) L(
                                                                        72,
                                                                        133472,
                                                                        68936) T(33,
                                                                                 36000) T(34, 36200)
                                                                        T(35, 36350) T(36, 36950) T(
                                                                            37,
                                                                            37550) T(38, 37750)
                                                                            T(39, 38250) T(
                                                                                40,
                                                                                38650) T(41, 39650)
                                                                                T(42, 41590) T(
                                                                                    43,
                                                                                    43590) T(44,
                                                                                             45590)
                                                                                    T(45, 46590) T(
                                                                                        46, 46790)
                                                                                        T(47, 54540)
                                                                                            T(48,
                                                                                              55240)};
#undef O
#undef R
#undef L
#undef T

const char *formulaName(ChFreqFunc func)
{
    for (const FormulaEntry &entry : kFormulas)
        if (entry.func == func)
            return entry.name;
    return func ? "?" : "";
}

// Two's-complement reduction of an exact difference, done without relying on
// the 32-bit arithmetic under test.
qint32 wrap32(qint64 value)
{
    const qint64 r = ((value % 0x100000000LL) + 0x100000000LL) % 0x100000000LL;
    return static_cast<qint32>(r >= 0x80000000LL ? r - 0x100000000LL : r);
}

QString recordText(const stSubBand &r)
{
    return nums({r.StartChannelNo, r.StopChannelNo, r.StartFreq, r.StopFreq, r.BaseFreq,
                 r.SubBandParam, r.Link})
           + QLatin1Char(' ') + str(formulaName(r.FreqFunc)) + QLatin1Char(' ')
           + Num(r.UplinkOnly).text;
}

// The store in slot order (little-endian, doubles by their bits, formulas by
// name); `everything` adds the unused band slots and records.
QByteArray serialize(const ChBandStore &store, bool everything)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    const auto text = [&out](const QByteArray &s) {
        out.writeRawData(s.constData(), s.size() + 1);
    };
    for (const ChTechnology &tech : store.Technologies) {
        text(tech.TechName.toUtf8());
        out << qint32(tech.NumBand);
        for (int b = 0; b < (everything ? ChTechnology::MaxBands : tech.NumBand); ++b) {
            const ChBand &band = tech.Bands[b];
            text(band.BandName.toUtf8());
            out << quint8(band.IsGlobal) << qint32(band.NumSubBand);
            for (int i = 0; i < (everything ? ChBand::MaxSubBands : band.NumSubBand); ++i) {
                const stSubBand &r = band.SubBands[i];
                out << r.StartChannelNo << r.StopChannelNo << r.StartFreq << r.StopFreq
                    << r.BaseFreq << r.SubBandParam << r.Link;
                text(formulaName(r.FreqFunc));
                out << quint8(r.UplinkOnly);
            }
        }
    }
    return bytes;
}

void add(ChBandStore &store, const char *tech, const QString &band, int channel = 7, int link = 1)
{
    store.SetBandInfo(str(tech), band, channel, channel + 9, 100.5, 200.5, 99.25, 3, link,
                      &ChBandStore::chstdGetGSM_900, true);
}

struct ExpectedTech
{
    const char *name, *firstBand, *lastBand, *records; // records per band, runs as count*bands
};
const ExpectedTech kTechs[ChBandStore::MaxTechnologies] = {
    {"CDMA", "Band 0 (800)", "Band 10 (2nd 800)", "4 2 4 8 2 8 2*4 4"},
    {"GSM", "GSM 450", "PCS 1900", "2*4 4*2 2*3"},
    {"LTE-FDD", "Band Global", "Band 72 (450)", "72 2*37"},
    {"LTE-TDD", "Band Global", "Band 48 (3600)", "32 2*16"},
    {"TD-SCDMA", "FBN 0", "FBN 8", "2*9"},
    {"WCDMA", "Band Global", "Band 26 (1900-Additional)", "64 2*32"},
    {"WIMAX", "ProfR1 (1.25 2150)", "ProfR29 (8.75 2304)", "1*5 2*10 1*4"},
    {"5G NR", "Band Global", "Band n261 (28 GHz)", "70 2*35"}};

} // namespace

class TestBandPlan : public QObject
{
    Q_OBJECT

private slots:
    void formula_data()
    {
        QTest::addColumn<int>("index");
        for (int i = 0; i < int(std::size(kFormulas)); ++i)
            QTest::newRow(kFormulas[i].name) << i;
    }

    // Offset and step, negative differences, the role of the third argument
    // and 32-bit wrap-around at the ends of the int range.
    void formula()
    {
        QFETCH(int, index);
        const FormulaEntry &f = kFormulas[index];
        const bool times5 = f.func == &ChBandStore::chstdGetWIMAX_Common3;
        for (const int ref : {0, 384000, -5}) {
            const int offset = f.usesRef ? ref : f.offset;
            for (const int k : {0, 1, -1, 7, -32, 599, 12345, -70000})
                for (const double base : {1920.0, -291.0})
                    COMPARE_BITS(f.func(offset + k, base, ref), base + double(k) * f.step);
        }
        for (const qint64 channel : {qint64(INT_MIN), qint64(INT_MAX)}) {
            for (const int ref : {1, -1, INT_MIN, INT_MAX}) {
                const qint64 exact = times5 ? channel * 5 : channel - (f.usesRef ? ref : f.offset);
                COMPARE_BITS(f.func(int(channel), 100.0, ref),
                             100.0 + double(wrap32(exact)) * (times5 ? 1.0 : f.step));
            }
        }
    }

    // Records are told apart by formula address, so no two may share one.
    void everyFormulaIsItsOwnFunction()
    {
        QSet<quintptr> addresses;
        for (const FormulaEntry &f : kFormulas)
            addresses.insert(reinterpret_cast<quintptr>(f.func));
        QCOMPARE(addresses.size(), 126);
    }

    void technology_data()
    {
        QTest::addColumn<int>("slot");
        for (int t = 0; t < ChBandStore::MaxTechnologies; ++t)
            QTest::newRow(kTechs[t].name) << t;
    }

    void technology()
    {
        QFETCH(int, slot);
        const ChTechnology &tech = G_CHSTD.Technologies[slot];
        QCOMPARE(tech.TechName, str(kTechs[slot].name));
        QCOMPARE(G_CHSTD.TechIndexMap.value(tech.TechName, -1), slot);
        QCOMPARE(tech.Bands[0].BandName, str(kTechs[slot].firstBand));
        QCOMPARE(tech.Bands[tech.NumBand - 1].BandName, str(kTechs[slot].lastBand));
        QCOMPARE(tech.BandIndexMap.size(), tech.NumBand);
        QStringList runs;
        for (int b = 0, n = 1; b < tech.NumBand; b += n, n = 1) {
            while (b + n < tech.NumBand && tech.Bands[b + n].NumSubBand == tech.Bands[b].NumSubBand)
                ++n;
            runs << QString::number(tech.Bands[b].NumSubBand)
                        + (n > 1 ? QStringLiteral("*%1").arg(n) : QString());
        }
        QCOMPARE(runs.join(QLatin1Char(' ')), str(kTechs[slot].records));
        // Slots past NumBand and records past NumSubBand stay as constructed.
        for (int b = 0; b < ChTechnology::MaxBands; ++b) {
            const ChBand &band = tech.Bands[b];
            QCOMPARE(band.IsGlobal, band.BandName == QLatin1String("Band Global"));
            QCOMPARE(tech.BandIndexMap.value(band.BandName, -1), b < tech.NumBand ? b : -1);
            for (int i = band.NumSubBand; i < ChBand::MaxSubBands; ++i)
                QCOMPARE(recordText(band.SubBands[i]), str("0 0 0 0 0 0 -9  0"));
        }
        // The catalogues repeat the band names of the first seven technologies,
        // LTE-FDD's and LTE-TDD's cut short and LTE-FDD's without band 19.
        if (slot < ChBandStore::NumCatalogs) {
            const int sizes[] = {11, 9, 24, 12, 9, 33, 19};
            QMap<QString, int> catalog;
            for (int b = 0; b < sizes[slot]; ++b)
                if (tech.Bands[b].BandName != QLatin1String("Band 19 (800)"))
                    catalog.insert(tech.Bands[b].BandName, catalog.size());
            QCOMPARE(G_CHSTD.BandNameCatalog[slot], catalog);
        }
    }

    void record_data()
    {
        QTest::addColumn<int>("tech");
        QTest::addColumn<int>("band");
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("fields"); // channels, edges, base, param, link, formula, flag
        QTest::addColumn<int>("channel");
        QTest::addColumn<double>("mhz"); // the record's formula at that channel
        const auto rec = [](int t, int b, int i, const char *fields, int channel, double mhz) {
            QTest::addRow("%s %d #%d", kTechs[t].name, b, i)
                << t << b << i << str(fields) << channel << mhz;
        };
        // The first and last record of every technology, and the oddities.
        rec(0, 0, 0, "1 799 824 849 825 2 1 CDMA_Band0_1 0", 1, 825.03);
        rec(0, 0, 2, "991 1023 824 849 825 2 1 CDMA_Band0_2 0", 991, 824.04);
        rec(0, 3, 1, "1 799 832.0125 869.9875 860 4 0 CDMA_Band3_1 0", 799, 869.9875);
        rec(0, 10, 3, "720 919 851 939.975 935 3 0 CDMA_Band10_2 0", 919, 939.975);
        rec(1, 0, 0, "259 293 450.4 457.6 450.6 1 1 GSM_450 0", 293, 457.40000000000003);
        rec(1, 6, 0, "999 1019 885 889 890 1 1 GSM_900R_2 0", 999, 885);
        rec(1, 8, 1, "512 810 1930 1990 1930.2 1 0 GSM_PCS1900 0", 810, 1989.8);
        rec(2, 0, 0, "18000 18599 1920 1980 1920 1 1 LTEBand1Up 0", 18599, 1979.9);
        rec(2, 26, 0, "1 1 1 1 1 1 1 LTEBand29Up 0", 1, -2764.9);
        rec(2, 35, 0, "132972 133221 1695 1710 1695 1 1 LTEBand70Up 0", 133221, 1719.9);
        rec(2, 37, 1, "68936 68985 461 466 461 1 0 LTEBand72Dn 0", 68985, 465.9);
        rec(3, 0, 0, "36000 36199 1900 1920 1900 1 1 LTEBand33 1", 36000, 1900);
        rec(3, 0, 16, "36000 36199 1900 1920 1900 1 0 LTEBand33 1", 36199, 1919.9);
        rec(3, 16, 1, "55240 56739 3550 3700 3550 1 0 LTEBand48 1", 56739, 3699.9);
        rec(4, 0, 0, "0 92 1785 1805 1785.8 1 1 TDSCDMA_Common 1", 0, 1785.8);
        rec(4, 3, 1, "0 36 1920 1980 1971.8 1 0 TDSCDMA_Common2 1", 0, 1972);
        rec(4, 8, 1, "0 242 2170 2220 2170.8 1 0 TDSCDMA_Common 1", 242, 2219.2000000000003);
        rec(5, 0, 0, "9612 9888 1920 1980 0 1 1 WCDMA_Common 0", 9612, 1922.4);
        rec(5, 32, 1, "5937 6087 859 894 -325.9 1 0 WCDMA_Common 0", 6087, 891.5000000000001);
        rec(6, 0, 0, "0 7 2150.625 2159.375 2150.625 3 1 WIMAX_Common1 1", 7, 2159.375);
        rec(6, 2, 0, "13 24 2361.875 2375.625 2345.625 3 1 WIMAX_Common1 1", 13, 2361.875);
        rec(6, 5, 1, "0 38 2598.75 2665.25 2598.75 2 0 WIMAX_Common2 0", 38, 2665.25);
        rec(6, 8, 0, "0 55 3601.75 3651 3601.75 2 1 WIMAX_Common2 0", 55, 3698);
        rec(6, 11, 0, "0 16 2413.5 3441.5 3413.5 2 1 WIMAX_Common2 0", 16, 3441.5);
        rec(6, 16, 0, "148 166 5740 5830 5000 0 1 WIMAX_Common3 1", 148, 5740);
        rec(6, 18, 0, "0 730 2304.375 2395.625 2304.375 3 1 WIMAX_Common4 1", 730, 2395.625);
        rec(7, 0, 0, "384000 396000 1920 1980 1920 1 1 5GNRBand 0", 396000, 1980);
        rec(7, 1, 1, "422000 434000 2110 2140 2110 1 0 5GNRBand 0", 434000, 2170);
        rec(7, 15, 1, "499200 537999 2496 2690 2496 1 0 5GNRBand 1", 499200, 2496);
        rec(7, 24, 1, "620000 653333 3300 3800 3300 1 0 5GNRBand15k 1", 653333, 3799.995);
        rec(7, 25, 1, "693334 733333 4400 5000 4400.01 1 0 5GNRBand15k 1", 693334, 4400.01);
        rec(7, 26, 1, "1 1 1 1 1 1 0 5GNRBand 0", 1, 1);
        rec(7, 35, 1, "2070833 2084999 27500 28350 27500.04 1 0 5GNRBand60k 0", 2084999, 28350.0);
    }

    void record()
    {
        QFETCH(int, tech);
        QFETCH(int, band);
        QFETCH(int, index);
        QFETCH(int, channel);
        QFETCH(double, mhz);
        const ChBand &b = G_CHSTD.Technologies[tech].Bands[band];
        QVERIFY(index < b.NumSubBand);
        const stSubBand &r = b.SubBands[index];
        QTEST(recordText(r), "fields");
        COMPARE_BITS(r.FreqFunc(channel, r.BaseFreq, r.StartChannelNo), mhz);
    }

    // FNV-1a over the whole band plan: any dropped, moved, reordered or
    // altered record or band changes it.
    void checksum()
    {
        quint64 hash = 0xcbf29ce484222325ULL;
        for (const char c : serialize(G_CHSTD, false))
            hash = (hash ^ quint8(c)) * 0x100000001b3ULL;
        QCOMPARE(QString::number(hash, 16), QStringLiteral("299549b89733a84b"));
        QCOMPARE(G_CHSTD.TechIndexMap.size(), 8);
        QVERIFY(G_CHSTD.IndexNameMap.isEmpty());
    }

    void banner()
    {
        LogCapture log;
        const auto store = std::make_unique<ChBandStore>();
        // Three streamed items with QDebug's blank between them.
        QCOMPARE(log.take(),
                 QStringList{QStringLiteral("D [ChStd]  Version :  " SAISKUKO_VERSION_STR)});
        QCOMPARE(ChStd::GetChStdPointer(), &G_CHSTD);
    }

    // A store built on dirty heap memory must read like the zero-initialised
    // static one, unwritten records included.
    void heapStoreReadsLikeTheGlobalOne()
    {
        const auto raw = std::make_unique<unsigned char[]>(sizeof(ChBandStore));
        std::memset(raw.get(), 0xA5, sizeof(ChBandStore));
        LogCapture quiet;
        const std::unique_ptr<ChBandStore, void (*)(ChBandStore *)> heap(
            new (raw.get()) ChBandStore, [](ChBandStore *s) { s->~ChBandStore(); });
        QVERIFY(serialize(*heap, true) == serialize(G_CHSTD, true));
        QCOMPARE(heap->TechIndexMap, G_CHSTD.TechIndexMap);
        QCOMPARE(heap->IndexNameMap, G_CHSTD.IndexNameMap);
        for (int c = 0; c < ChBandStore::NumCatalogs; ++c)
            QCOMPARE(heap->BandNameCatalog[c], G_CHSTD.BandNameCatalog[c]);
        for (int t = 0; t < ChBandStore::MaxTechnologies; ++t)
            QCOMPARE(heap->Technologies[t].BandIndexMap, G_CHSTD.Technologies[t].BandIndexMap);
    }

    void registration()
    {
        const auto store = makeStore();
        ChTechnology &gsm = store->Technologies[1];
        add(*store, "GSM", QStringLiteral("GSM 710"), 1);
        add(*store, "GSM", QStringLiteral("GSM 750"), 2);
        add(*store, "GSM", QStringLiteral("GSM 710"), 3, 0); // appends, no new slot
        add(*store, "GSM", QStringLiteral("P-GSM 900"), 4);  // an existing band grows
        QCOMPARE(nums({gsm.NumBand, gsm.BandIndexMap.value(str("GSM 710")),
                       gsm.BandIndexMap.value(str("GSM 750")), gsm.Bands[9].NumSubBand,
                       gsm.Bands[10].NumSubBand, gsm.Bands[3].NumSubBand,
                       gsm.Bands[3].SubBands[2].StartChannelNo, gsm.Bands[9].SubBands[2].Link,
                       store->Technologies[0].NumBand}),
                 str("11 9 10 2 1 3 4 -9 11"));
        QCOMPARE(gsm.Bands[9].BandName, QStringLiteral("GSM 710"));
        QCOMPARE(recordText(gsm.Bands[9].SubBands[1]), str("3 12 100.5 200.5 99.25 3 0 GSM_900 1"));

        // An unknown technology lands in slot 0 and renames it.
        add(*store, "UMTS", QStringLiteral("Band I"));
        ChTechnology &slot0 = store->Technologies[0];
        QCOMPARE(slot0.TechName, QStringLiteral("UMTS"));
        QCOMPARE(slot0.BandIndexMap.value(QStringLiteral("Band I"), -1), 11);
        QVERIFY(!store->TechIndexMap.contains(QStringLiteral("UMTS")));
        add(*store, "CDMA", QStringLiteral("Band I"));
        QCOMPARE(slot0.TechName, QStringLiteral("CDMA"));
        QCOMPARE(slot0.Bands[11].NumSubBand, 2);

        // The global flag sticks through renaming; names are case-sensitive.
        add(*store, "WIMAX", QStringLiteral("Band Global"));
        ChBand &band = store->Technologies[6].Bands[19];
        QVERIFY(band.IsGlobal && !store->Technologies[6].Bands[18].IsGlobal);
        band.SetBandName(QStringLiteral("Band Local"));
        QVERIFY(band.IsGlobal);
        QCOMPARE(band.GetBandName(), QStringLiteral("Band Local"));
        ChBand plain;
        plain.SetBandName(QStringLiteral("band global"));
        QVERIFY(!plain.IsGlobal);
    }

    // A record that does not fit is refused with one warning that names it,
    // and the store stays as it was.
    void capacityGuards()
    {
        for (const bool newBand : {true, false}) { // a 41st band, a 101st record
            const auto store = makeStore();
            ChTechnology &cdma = store->Technologies[0];
            const QString full = QStringLiteral("Band 0 (800)");
            while (newBand ? cdma.NumBand < ChTechnology::MaxBands
                           : cdma.Bands[0].NumSubBand < ChBand::MaxSubBands)
                add(*store, "CDMA", newBand ? QStringLiteral("Extra %1").arg(cdma.NumBand) : full);
            const QByteArray before = serialize(*store, true);
            const QMap<QString, int> map = cdma.BandIndexMap;
            const QString refused = newBand ? QStringLiteral("Band 99 (Overflow)") : full;
            LogCapture log;
            add(*store, "TD-LTE", refused); // unknown name: would also rename slot 0
            QVERIFY(serialize(*store, true) == before);
            QCOMPARE(cdma.BandIndexMap, map);
            const QStringList lines = log.take();
            QCOMPARE(lines.size(), 1);
            QVERIFY2(lines[0].startsWith(QLatin1String("W "))
                         && lines[0].contains(QStringLiteral("TD-LTE"))
                         && lines[0].contains(refused),
                     qPrintable(lines[0]));
        }
    }
};

QTEST_APPLESS_MAIN(TestBandPlan)
#include "tst_bandplan.moc"
