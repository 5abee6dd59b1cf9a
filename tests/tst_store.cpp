#include "logcapture.h"
#include "testsupport.h"

#include <memory>
#include <new>

namespace {

QString str(const char *text)
{
    return QString::fromLatin1(text);
}

// What a refused registration must leave alone.
struct Snapshot
{
    QString techName;
    int numBand;
    QMap<QString, int> bandIndexMap;
    QList<int> numSubBand;

    explicit Snapshot(const ChTechnology &t)
        : techName(t.TechName), numBand(t.NumBand), bandIndexMap(t.BandIndexMap)
    {
        for (const ChBand &band : t.Bands)
            numSubBand.append(band.NumSubBand);
    }
    bool operator==(const Snapshot &o) const
    {
        return techName == o.techName && numBand == o.numBand && bandIndexMap == o.bandIndexMap
               && numSubBand == o.numSubBand;
    }
};

void add(ChBandStore &store, const char *tech, const QString &band, int channel = 7, int link = 1)
{
    store.SetBandInfo(str(tech), band, channel, channel + 9, 100.5, 200.5, 99.25, 3, link,
                      &ChBandStore::chstdGetGSM_900, true);
}

} // namespace

class TestStore : public QObject
{
    Q_OBJECT

private slots:
    void pointerIsTheGlobalStore();
    void heapStoreReadsLikeTheGlobalOne();
    void banner();
    void headerVersionMatchesProject();
    void newBandsAreNumberedFirstCome();
    void unknownTechnologyLandsInSlotZero();
    void globalFlagSticks();
    void capacityGuards_data();
    void capacityGuards();
};

void TestStore::pointerIsTheGlobalStore()
{
    QCOMPARE(ChStd::GetChStdPointer(), &G_CHSTD);
}

// A store built on the heap (not zeroed beforehand) must read field for field
// like the zero-initialised static one, unwritten records included.
void TestStore::heapStoreReadsLikeTheGlobalOne()
{
    // Fresh heap pages are often zero already; dirty them so that a field the
    // constructor forgets shows up.
    const auto raw = std::make_unique<unsigned char[]>(sizeof(ChBandStore));
    std::memset(raw.get(), 0xA5, sizeof(ChBandStore));
    const std::unique_ptr<ChBandStore, void (*)(ChBandStore *)> heap(
        new (raw.get()) ChBandStore, [](ChBandStore *s) { s->~ChBandStore(); });
    const ChBandStore &global = G_CHSTD;
    QCOMPARE(heap->TechIndexMap, global.TechIndexMap);
    for (int c = 0; c < ChBandStore::NumCatalogs; ++c)
        QCOMPARE(heap->BandNameCatalog[c], global.BandNameCatalog[c]);
    QCOMPARE(heap->IndexNameMap, global.IndexNameMap);
    for (int t = 0; t < ChBandStore::MaxTechnologies; ++t) {
        const ChTechnology &a = heap->Technologies[t], &b = global.Technologies[t];
        QCOMPARE(a.TechName, b.TechName);
        QCOMPARE(a.NumBand, b.NumBand);
        QCOMPARE(a.BandIndexMap, b.BandIndexMap);
        for (int n = 0; n < ChTechnology::MaxBands; ++n) {
            QCOMPARE(a.Bands[n].BandName, b.Bands[n].BandName);
            QCOMPARE(a.Bands[n].IsGlobal, b.Bands[n].IsGlobal);
            QCOMPARE(a.Bands[n].NumSubBand, b.Bands[n].NumSubBand);
            for (int i = 0; i < ChBand::MaxSubBands; ++i) {
                const stSubBand &x = a.Bands[n].SubBands[i], &y = b.Bands[n].SubBands[i];
                QVERIFY2(x.StartChannelNo == y.StartChannelNo && x.StopChannelNo == y.StopChannelNo
                             && doubleBits(x.StartFreq) == doubleBits(y.StartFreq)
                             && doubleBits(x.StopFreq) == doubleBits(y.StopFreq)
                             && doubleBits(x.BaseFreq) == doubleBits(y.BaseFreq)
                             && x.SubBandParam == y.SubBandParam && x.Link == y.Link
                             && x.FreqFunc == y.FreqFunc && x.UplinkOnly == y.UplinkOnly,
                         qPrintable(QStringLiteral("%1/%2 #%3").arg(t).arg(n).arg(i)));
            }
        }
    }
}

void TestStore::banner()
{
    LogCapture capture;
    const auto store = std::make_unique<ChBandStore>();
    const QList<LogLine> log = capture.all();
    QCOMPARE(log.size(), 1);
    QCOMPARE(log[0].type, QtDebugMsg);
    QCOMPARE(log[0].category, QStringLiteral("default"));
    // Three streamed items with QDebug's blank between them.
    QCOMPARE(log[0].text, QStringLiteral("[ChStd]  Version :  1.0.1"));
}

void TestStore::headerVersionMatchesProject()
{
    QCOMPARE(SAISKUKO_VERSION_STR, SAISKUKO_PROJECT_VERSION);
}

void TestStore::newBandsAreNumberedFirstCome()
{
    const auto store = std::make_unique<ChBandStore>();
    ChTechnology &gsm = store->Technologies[1];
    QCOMPARE(gsm.NumBand, 9);
    add(*store, "GSM", QStringLiteral("GSM 710"), 1);
    add(*store, "GSM", QStringLiteral("GSM 750"), 2);
    add(*store, "GSM", QStringLiteral("GSM 710"), 3, 0); // appends, no new slot
    add(*store, "GSM", QStringLiteral("P-GSM 900"), 4);  // an existing band grows
    QCOMPARE(gsm.NumBand, 11);
    QCOMPARE(gsm.BandIndexMap.value(QStringLiteral("GSM 710")), 9);
    QCOMPARE(gsm.BandIndexMap.value(QStringLiteral("GSM 750")), 10);
    QCOMPARE(gsm.Bands[9].BandName, QStringLiteral("GSM 710"));
    QCOMPARE(gsm.Bands[9].NumSubBand, 2);
    QCOMPARE(gsm.Bands[10].NumSubBand, 1);
    QCOMPARE(gsm.Bands[3].NumSubBand, 3);
    QCOMPARE(gsm.Bands[3].SubBands[2].StartChannelNo, 4);
    QCOMPARE(gsm.Bands[11].NumSubBand, 0);

    const stSubBand &r = gsm.Bands[9].SubBands[1];
    QCOMPARE(r.StartChannelNo, 3);
    QCOMPARE(r.StopChannelNo, 12);
    COMPARE_BITS(r.StartFreq, 100.5);
    COMPARE_BITS(r.StopFreq, 200.5);
    COMPARE_BITS(r.BaseFreq, 99.25);
    QCOMPARE(r.SubBandParam, 3);
    QCOMPARE(r.Link, 0);
    QVERIFY(r.FreqFunc == &ChBandStore::chstdGetGSM_900);
    QVERIFY(r.UplinkOnly);
    QCOMPARE(gsm.Bands[9].SubBands[2].Link, -9);
    QCOMPARE(store->Technologies[0].NumBand, 11); // nothing leaked elsewhere
}

void TestStore::unknownTechnologyLandsInSlotZero()
{
    const auto store = std::make_unique<ChBandStore>();
    add(*store, "UMTS", QStringLiteral("Band I"));
    ChTechnology &slot0 = store->Technologies[0];
    QCOMPARE(slot0.TechName, QStringLiteral("UMTS"));
    QCOMPARE(slot0.NumBand, 12);
    QCOMPARE(slot0.BandIndexMap.value(QStringLiteral("Band I")), 11);
    QCOMPARE(slot0.Bands[11].NumSubBand, 1);
    QVERIFY(!store->TechIndexMap.contains(QStringLiteral("UMTS")));
    add(*store, "CDMA", QStringLiteral("Band I"));
    QCOMPARE(slot0.TechName, QStringLiteral("CDMA"));
    QCOMPARE(slot0.Bands[11].NumSubBand, 2);
}

void TestStore::globalFlagSticks()
{
    const auto store = std::make_unique<ChBandStore>();
    add(*store, "WIMAX", QStringLiteral("Band Global"));
    ChBand &band = store->Technologies[6].Bands[19];
    QVERIFY(band.IsGlobal);
    QVERIFY(!store->Technologies[6].Bands[18].IsGlobal);
    band.SetBandName(QStringLiteral("Band Local"));
    QVERIFY(band.IsGlobal);
    QCOMPARE(band.GetBandName(), QStringLiteral("Band Local"));

    ChBand plain;
    plain.SetBandName(QStringLiteral("band global")); // names are case-sensitive
    QVERIFY(!plain.IsGlobal);
    QCOMPARE(plain.SubBands[99].Link, -9);
}

void TestStore::capacityGuards_data()
{
    QTest::addColumn<bool>("newBand");
    QTest::newRow("41st band") << true;
    QTest::newRow("101st record") << false;
}

// The arrays are fixed: a record that does not fit is refused with one
// warning that names it, and the store stays as it was.
void TestStore::capacityGuards()
{
    QFETCH(bool, newBand);
    const auto store = std::make_unique<ChBandStore>();
    ChTechnology &cdma = store->Technologies[0];
    const QString full = QStringLiteral("Band 0 (800)");
    if (newBand) {
        for (int n = cdma.NumBand; n < ChTechnology::MaxBands; ++n)
            add(*store, "CDMA", QStringLiteral("Extra %1").arg(n));
        QCOMPARE(cdma.NumBand, ChTechnology::MaxBands);
    } else {
        while (cdma.Bands[0].NumSubBand < ChBand::MaxSubBands)
            add(*store, "CDMA", full);
    }
    const Snapshot before(cdma);
    const QString refused = newBand ? QStringLiteral("Band 99 (Overflow)") : full;
    LogCapture capture;
    add(*store, "TD-LTE", refused); // unknown name: would also rename slot 0
    const QList<LogLine> log = capture.all();
    QVERIFY(Snapshot(cdma) == before);
    QCOMPARE(cdma.TechName, QStringLiteral("CDMA"));
    QCOMPARE(log.size(), 1);
    QCOMPARE(log[0].type, QtWarningMsg);
    QVERIFY2(log[0].text.contains(QStringLiteral("TD-LTE")) && log[0].text.contains(refused),
             qPrintable(log[0].text));
}

QTEST_APPLESS_MAIN(TestStore)
#include "tst_store.moc"
