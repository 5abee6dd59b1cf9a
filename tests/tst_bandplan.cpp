// The store as loaded: pinned by one checksum, and what registering records
// does to it.
#include "testsupport.h"

#include <QtCore/QDataStream>

#include <new>

namespace {

// The store in slot order, every slot and record included (little-endian,
// doubles by their bits), with each technology's default bandwidth, then its
// maps. A formula is written as its values at channels 0 and 1 with reference
// 0 and at channel 0 with reference 1.
QByteArray serialize(const ChBandStore &store)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    const auto text = [&out](const QString &s) {
        const QByteArray utf8 = s.toUtf8();
        out.writeRawData(utf8.constData(), utf8.size() + 1);
    };
    const auto map = [&](const auto &m) {
        for (auto it = m.constBegin(); it != m.constEnd(); ++it) {
            text(it.key());
            out << qint32(it.value());
        }
        out << qint32(m.size());
    };
    for (const ChTechnology &tech : store.Technologies) {
        text(tech.TechName);
        out << qint32(tech.NumBand) << store.GetDefaultIntBW(tech.TechName);
        map(tech.BandIndexMap);
        for (const ChBand &band : tech.Bands) {
            text(band.BandName);
            out << quint8(band.IsGlobal) << qint32(band.NumSubBand);
            for (const stSubBand &r : band.SubBands) {
                out << r.StartChannelNo << r.StopChannelNo << r.StartFreq << r.StopFreq
                    << r.BaseFreq << r.SubBandParam << r.Link << quint8(r.UplinkOnly);
                if (r.FreqFunc)
                    out << r.FreqFunc(0, 0.0, 0) << r.FreqFunc(1, 0.0, 0) << r.FreqFunc(0, 0.0, 1);
            }
        }
    }
    map(store.TechIndexMap);
    for (const auto &catalog : store.BandNameCatalog)
        map(catalog);
    out << qint32(store.IndexNameMap.size());
    return bytes;
}

void add(ChBandStore &store, const char *tech, const QString &band, int channel = 7, int link = 1)
{
    store.SetBandInfo(str(tech), band, channel, channel + 9, 100.5, 200.5, 99.25, 3, link,
                      &ChBandStore::chstdGetGSM_900, true);
}

} // namespace

class TestBandPlan : public QObject
{
    Q_OBJECT

private slots:
    // FNV-1a over the whole store: any dropped, moved, reordered or altered
    // record, band, name or map entry changes it. Frequencies along every
    // record are pinned by the frequency dump.
    void checksum()
    {
        quint64 hash = 0xcbf29ce484222325ULL;
        for (const char c : serialize(G_CHSTD))
            hash = (hash ^ quint8(c)) * 0x100000001b3ULL;
        QCOMPARE(QString::number(hash, 16), QStringLiteral("230eb143765d64fe"));
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
        QVERIFY(serialize(*heap) == serialize(G_CHSTD));
    }

    void registration()
    {
        const auto store = makeStore();
        ChTechnology &gsm = store->Technologies[1];
        add(*store, "GSM", QStringLiteral("GSM 710"), 1);
        add(*store, "GSM", QStringLiteral("GSM 750"), 2);
        add(*store, "GSM", QStringLiteral("GSM 710"), 3, 0); // appends, no new slot
        add(*store, "GSM", QStringLiteral("P-GSM 900"), 4);  // an existing band grows
        const stSubBand &r = gsm.Bands[9].SubBands[1];
        QCOMPARE(nums({gsm.NumBand, gsm.BandIndexMap.value(str("GSM 710")),
                       gsm.BandIndexMap.value(str("GSM 750")), gsm.Bands[9].NumSubBand,
                       gsm.Bands[10].NumSubBand, gsm.Bands[3].NumSubBand,
                       gsm.Bands[3].SubBands[2].StartChannelNo, gsm.Bands[9].SubBands[2].Link,
                       store->Technologies[0].NumBand}),
                 str("11 9 10 2 1 3 4 -9 11"));
        QCOMPARE(gsm.Bands[9].BandName, QStringLiteral("GSM 710"));
        QCOMPARE(nums({r.StartChannelNo, r.StopChannelNo, r.StartFreq, r.StopFreq, r.BaseFreq,
                       r.SubBandParam, r.Link, r.FreqFunc == &ChBandStore::chstdGetGSM_900,
                       r.UplinkOnly}),
                 str("3 12 100.5 200.5 99.25 3 0 1 1"));

        // An unknown technology lands in slot 0 and renames it.
        add(*store, "UMTS", QStringLiteral("Band I"));
        ChTechnology &slot0 = store->Technologies[0];
        const QString umts = slot0.TechName
                             + nums({slot0.BandIndexMap.value(str("Band I"), -1),
                                     store->TechIndexMap.contains(str("UMTS"))});
        add(*store, "CDMA", QStringLiteral("Band I"));
        QCOMPARE(umts + slot0.TechName + nums({slot0.Bands[11].NumSubBand}), str("UMTS11 0CDMA2"));

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
            const QByteArray before = serialize(*store);
            const QString refused = newBand ? QStringLiteral("Band 99 (Overflow)") : full;
            LogCapture log;
            add(*store, "TD-LTE", refused); // unknown name: would also rename slot 0
            QVERIFY(serialize(*store) == before);
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
