// The library finds channels by binary search; these tests hold it to the
// literal walk over every channel, for every record of the band plan and for
// records of shapes the plan lacks.
#include "testsupport.h"

#include <climits>
#include <cmath>
#include <cstdio>
#include <cstring>

namespace {

// Raster frequencies of a record's first, middle and last channels, one ulp
// either side, the half-raster point after each, its edges and beyond.
QList<double> probesOf(const stSubBand &r)
{
    QList<double> probes = {kNaN, kInf, -kInf, -0.0, r.StartFreq - 1.0, r.StopFreq + 1.0};
    probes << r.StartFreq << std::nextafter(r.StartFreq, -kInf) << r.StopFreq
           << std::nextafter(r.StopFreq, kInf);
    const qint64 first = r.StartChannelNo, last = r.StopChannelNo;
    for (const qint64 ch : {first, first + (last - first) / 2, last}) {
        const double f = literal::freqAt(r, ch);
        probes << f << std::nextafter(f, kInf) << std::nextafter(f, -kInf)
               << (f + literal::freqAt(r, ch + 1)) / 2.0;
    }
    return probes;
}

// Windows around a record's middle channel, reversed, half-open, NaN-ended
// and unbounded ones.
QList<QPair<double, double>> windowsOf(const stSubBand &r)
{
    const double mid =
        literal::freqAt(r, r.StartChannelNo + (qint64(r.StopChannelNo) - r.StartChannelNo) / 2);
    const double raster =
        literal::freqAt(r, qint64(r.StartChannelNo) + 1) - literal::freqAt(r, r.StartChannelNo);
    QList<QPair<double, double>> windows = {{r.StartFreq, r.StopFreq},
                                            {-kInf, kInf},
                                            {kNaN, mid},
                                            {mid, kNaN},
                                            {-kInf, mid},
                                            {mid, kInf}};
    for (const double k : {0.0, 0.5, 1.0, -1.0}) // the last one reversed
        windows.append({mid - k * raster, mid + k * raster});
    windows.append({mid - 10 * raster, mid + 3.3 * raster});
    windows.append({std::nextafter(mid, kInf), mid + 100 * raster});
    return windows;
}

QString at(const QString &tech, const QString &band, double f)
{
    return QStringLiteral("%1 - %2 at %3").arg(tech, band).arg(f, 0, 'g', 17);
}

// Every query the fast paths serve, on one record of a store, held to the
// walk, with exactly the messages the answer calls for: a miss of the
// conversion prints the frequency in six digits, a window logs its count.
void compareRecord(const ChBandStore &store, const QString &tech, const QString &band,
                   const stSubBand &r, QSet<QString> &asked, QSet<quint64> &searched)
{
    if (QTest::currentTestFailed())
        return; // one report, not thousands
    LogCapture log;
    const int middle = r.StartChannelNo + (r.StopChannelNo - r.StartChannelNo) / 2;
    for (const double f : probesOf(r)) {
        for (const int link : {0, 1}) {
            // Each (band, link, frequency) once; the preferred channel then
            // picks from the same candidates.
            const QString where = at(tech, band, f) + QString::number(link);
            if (asked.contains(where))
                continue;
            asked.insert(where);
            const QList<int> candidates = literal::exactCandidates(store, tech, band, link, f);
            for (const int preferred : {-1, middle, candidates.value(1, r.StopChannelNo)}) {
                const int expected = literal::chooseCandidate(candidates, preferred);
                const int answer = store.GetChNumFromFreq(tech, band, link, f, preferred);
                char value[32];
                std::snprintf(value, sizeof value, "%g", f);
                QCOMPARE(log.take(), expected == -1 ? printed({value}) : QStringList());
                QVERIFY2(answer == expected, qPrintable(where));
            }
        }
        quint64 bits;
        std::memcpy(&bits, &f, sizeof bits);
        if (!searched.contains(bits)) {
            searched.insert(bits);
            QVERIFY2(
                literal::sameHits(store.GetChInfoFromFreq(f), literal::chInfoFromFreq(store, f)),
                qPrintable(at(tech, band, f)));
            QCOMPARE(log.take(), QStringList());
        }
    }
    const QString standard = tech + QLatin1String(" - ") + band;
    const QString direction = r.Link == 0 ? QStringLiteral("Forward") : QStringLiteral("Reverse");
    for (const auto &w : windowsOf(r)) {
        const QList<int> expected =
            literal::availableChannels(store, tech, band, r.Link, w.first, w.second);
        QVERIFY2(store.GetAvailableChannels(standard, direction, w.first, w.second) == expected,
                 qPrintable(at(tech, band, w.first) + QString::number(w.second)));
        QCOMPARE(log.take(), counted(expected.size()));
    }
}

double zigzag(int ch, double base, int)
{
    return base + (ch % 7) * 0.5;
}
double plateau(int ch, double base, int)
{
    return base + (ch / 4) * 0.2;
}

} // namespace

class FastPathsTest : public QObject
{
    Q_OBJECT

private slots:
    void everyRecordMatchesTheWalk()
    {
        QSet<QString> asked;
        QSet<quint64> searched;
        int records = 0;
        forEachBand(G_CHSTD, [&](const ChTechnology &tech, const ChBand &band, int) {
            for (int i = 0; i < band.NumSubBand; ++i, ++records)
                compareRecord(G_CHSTD, tech.TechName, band.BandName, band.SubBands[i], asked,
                              searched);
        });
        QCOMPARE(records, 587);
        QVERIFY(searched.size() > 1000);
    }

    // Records a caller registers itself: a non-monotone formula, a formula
    // the library does not know, ranges whose arithmetic wraps, a plateau of
    // equal frequencies and an empty range must all still answer as the walk;
    // in G_CHSTD too, which keeps facts of its records, also after a record
    // is changed in place to a plateau (its fields are public).
    void unusualRecordsMatchTheWalk()
    {
        const auto own = makeStore();
        const QString gsm = QStringLiteral("GSM");
        const struct
        {
            const char *band;
            int first, last;
            double base;
            ChFreqFunc f;
        } records[] = {
            {"Zigzag", 0, 40, 100.0, &zigzag},
            {"Plateau", 0, 40, 100.0, &plateau},
            {"Wrapping", INT_MAX - 20, INT_MAX, 0.0, &ChBandStore::chstdGetLTEBand1Up},
            {"Wrapping5", 429496700, 429496740, 0.0, &ChBandStore::chstdGetWIMAX_Common3},
            {"Empty", 10, 5, 0.0, &ChBandStore::chstdGetGSM_900},
            {"Huge base", 0, 40, 1e300, &ChBandStore::chstdGetGSM_900},
            {"Changed", 0, 40, 100.0, &ChBandStore::chstdGetGSM_900}};
        for (ChBandStore *store : {own.get(), &G_CHSTD}) {
            for (const auto &r : records)
                store->SetBandInfo(gsm, QLatin1String(r.band), r.first, r.last, -1e9, 1e9, r.base,
                                   1, 1, r.f, false);
            QSet<QString> asked;
            QSet<quint64> searched;
            for (const auto &r : records) {
                const QString name = QLatin1String(r.band);
                ChBand &band =
                    store->Technologies[1].Bands[store->Technologies[1].BandIndexMap.value(name)];
                stSubBand &record = band.SubBands[0];
                if (name == QLatin1String("Changed")) {
                    record.BaseFreq = 1e300;
                    record.StopFreq = 1e301;
                }
                compareRecord(*store, gsm, name, record, asked, searched);
                for (int ch = 0; ch < 12; ++ch) { // along the first channels too
                    const double f = literal::freqAt(record, qint64(r.first) + ch);
                    for (const double probe : {f, f + 0.1}) {
                        QCOMPARE(store->GetChNumFromFreq(gsm, name, 1, probe, 3),
                                 literal::chNumFromFreq(*store, gsm, name, 1, probe, 3));
                        QCOMPARE(
                            store->GetAvailableChannels(gsm + QLatin1String(" - ") + name,
                                                        QString(), probe, probe + 1.0),
                            literal::availableChannels(*store, gsm, name, 1, probe, probe + 1.0));
                        QVERIFY(literal::sameHits(store->GetChInfoFromFreq(probe),
                                                  literal::chInfoFromFreq(*store, probe)));
                    }
                }
            }
        }
    }
};

QTEST_APPLESS_MAIN(FastPathsTest)
#include "tst_fastpaths.moc"
