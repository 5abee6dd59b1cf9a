// The quick paths held to their literal definitions: channel searches to the
// walk over every channel, for every record of the band plan and for records
// of shapes the plan lacks; enumerator forms to the name forms their text
// gives; G_CHSTD's name index to a private store's maps, also after callers
// register records into G_CHSTD itself.
#include "testsupport.h"

#include <climits>
#include <cmath>
#include <cstdio>

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
    const qint64 first = r.StartChannelNo;
    const double mid = literal::freqAt(r, first + (r.StopChannelNo - first) / 2);
    const double step = literal::freqAt(r, first + 1) - literal::freqAt(r, first);
    // clang-format off
    return {{r.StartFreq, r.StopFreq}, {-kInf, kInf}, {kNaN, mid}, {mid, kNaN}, {-kInf, mid},
            {mid, kInf}, {mid, mid}, {mid - step / 2, mid + step / 2}, {mid - step, mid + step},
            {mid + step, mid - step}, {mid - 10 * step, mid + 3.3 * step},
            {std::nextafter(mid, kInf), mid + 100 * step}};
    // clang-format on
}

QString at(const QString &tech, const QString &band, double f)
{
    return QStringLiteral("%1 - %2 at %3").arg(tech, band).arg(f, 0, 'g', 17);
}

// Every query the fast paths serve, on one record of a store, held to the
// walk, with exactly the messages the answer calls for: a miss of the
// conversion prints the frequency in six digits, a window logs its count.
void compareRecord(const ChBandStore &store, const QString &tech, const QString &band,
                   const stSubBand &r, QSet<QString> &asked)
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
                QCOMPARE(log.take(), expected == -1 ? printed(value) : QStringList());
                QVERIFY2(answer == expected, qPrintable(where));
            }
        }
        if (!asked.contains(at({}, {}, f))) { // the search, once per frequency
            asked.insert(at({}, {}, f));
            QVERIFY2(
                literal::sameHits(store.GetChInfoFromFreq(f), literal::chInfoFromFreq(store, f)),
                qPrintable(at(tech, band, f)));
            QCOMPARE(log.take(), QStringList());
        }
    }
    const QString standard = tech + QLatin1String(" - ") + band;
    const QString direction = r.Link == 0 ? QStringLiteral("Forward") : QStringLiteral("Reverse");
    const QString named = band.section(QLatin1String(" - "), 0, 0); // what the text names
    for (const auto &w : windowsOf(r)) {
        const QList<int> expected =
            literal::availableChannels(store, tech, named, r.Link, w.first, w.second);
        QVERIFY2(store.GetAvailableChannels(standard, direction, w.first, w.second) == expected,
                 qPrintable(at(tech, band, w.first) + QString::number(w.second)));
        QCOMPARE(log.take(), counted(expected.size()));
    }
}

// Every record of G_CHSTD: its searches as the walk, and at its first, middle
// and last channel on both links, by enumerator as by the names its text
// splits into and by names as on `own` (whose maps have no hash index).
// Codes without a text form fail alike: tst_queries.
void compareEveryRecord(const ChBandStore &own)
{
    QSet<QString> asked;
    forEachBand(G_CHSTD, [&](const ChTechnology &tech, const ChBand &band, int code) {
        const QStringList parts = G_CHSTD.GetEnumulator(code).split(QLatin1String(" - "));
        for (int i = 0; i < band.NumSubBand && !QTest::currentTestFailed(); ++i) {
            const stSubBand &r = band.SubBands[i];
            compareRecord(G_CHSTD, tech.TechName, band.BandName, r, asked);
            const qint64 first = r.StartChannelNo, last = r.StopChannelNo;
            for (const qint64 ch : {first, first + (last - first) / 2, last}) {
                for (const int link : {0, 1}) {
                    const Place p{G_CHSTD, tech.TechName, band.BandName,         code,
                                  link,    int(ch),       literal::freqAt(r, ch)};
                    if (parts.size() > 1)
                        QCOMPARE(logged(answered<askByCode>, p),
                                 logged(answered<askByNames>,
                                        {p.s, parts[0], parts[1], code, link, p.ch, p.mhz}));
                    QCOMPARE(
                        logged(answersByNames, p),
                        logged(answersByNames, {own, p.tech, p.band, code, link, p.ch, p.mhz}));
                }
            }
        }
    });
    QVERIFY(asked.size() > 1000);
    // Unknown and near-miss names select slot 0 alike.
    for (const char *tech : {"LTE-FDD", "lte-fdd", "", "Foo", "CDMA"}) {
        for (const char *band : {"Band 1 (2100)", "Band 1 (2100) ", "", "A - B", "Band Global"})
            QCOMPARE(logged(answersByNames, {G_CHSTD, str(tech), str(band), 0, 0, 300, 2140.0}),
                     logged(answersByNames, {own, str(tech), str(band), 0, 0, 300, 2140.0}));
    }
}

} // namespace

// Records a caller may register: a non-monotone formula, a formula the
// library does not know, ranges whose arithmetic wraps, a plateau of equal
// frequencies, an empty range, and one changed in place after registration
// (its fields are public; G_CHSTD keeps facts of its records).
const struct
{
    const char *band;
    int first, last;
    double base;
    ChFreqFunc f;
} kUnusualRecords[] = {
    {"Zigzag", 0, 40, 100.0, [](int ch, double base, int) { return base + (ch % 7) * 0.5; }},
    {"Plateau", 0, 40, 100.0, [](int ch, double base, int) { return base + (ch / 4) * 0.2; }},
    {"Wrapping", INT_MAX - 20, INT_MAX, 0.0, &ChBandStore::chstdGetLTEBand1Up},
    {"Wrapping5", 429496700, 429496740, 0.0, &ChBandStore::chstdGetWIMAX_Common3},
    {"Empty", 10, 5, 0.0, &ChBandStore::chstdGetGSM_900},
    {"Huge base", 0, 40, 1e300, &ChBandStore::chstdGetGSM_900},
    {"Changed", 0, 40, 100.0, &ChBandStore::chstdGetGSM_900}};

void registerUnusualRecords(ChBandStore &store)
{
    for (const auto &r : kUnusualRecords)
        store.SetBandInfo(QStringLiteral("GSM"), QLatin1String(r.band), r.first, r.last, -1e9, 1e9,
                          r.base, 1, 1, r.f, false);
    ChTechnology &gsm = store.Technologies[1];
    stSubBand &changed = gsm.Bands[gsm.BandIndexMap.value(QStringLiteral("Changed"))].SubBands[0];
    changed.BaseFreq = 1e300;
    changed.StopFreq = 1e301;
}

class FastPathsTest : public QObject
{
    Q_OBJECT

private slots:
    void everyRecordAnswersAsTheLiteralForms() { compareEveryRecord(*makeStore()); }

    // The unusual records answer as the walk, in a private store and in G_CHSTD.
    void unusualRecordsMatchTheWalk()
    {
        const auto own = makeStore();
        const QString gsm = QStringLiteral("GSM");
        for (ChBandStore *store : {own.get(), &G_CHSTD}) {
            registerUnusualRecords(*store);
            QSet<QString> asked;
            for (const auto &r : kUnusualRecords) {
                const QString name = QLatin1String(r.band);
                const stSubBand &record = literal::band(*store, gsm, name).SubBands[0];
                compareRecord(*store, gsm, name, record, asked);
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

    // After the test above, both change G_CHSTD: a new band, a band name holding " - ", an
    // empty band name, names as long as G_CHSTD's index holds and one code
    // unit longer, one beyond Latin-1, and a record under an unknown
    // technology name (which renames slot 0), into both stores.
    void afterCallersRegisterRecords()
    {
        const auto own = makeStore();
        registerUnusualRecords(*own); // as G_CHSTD has them
        for (ChBandStore *s : {&G_CHSTD, own.get()}) {
            LogCapture quiet;
            s->SetBandInfo(str("LTE-FDD"), str("Band 99 (X)"), 100, 200, 700.0, 710.0, 700.0, 1, 0,
                           &ChBandStore::chstdGetLTEBand1Dn, false);
            s->SetBandInfo(str("GSM"), str("A - B"), 1, 50, 400.0, 410.0, 400.0, 1, 1,
                           &ChBandStore::chstdGetGSM_900, false);
            s->SetBandInfo(str("WCDMA"), QString(), 10, 20, 1.0, 1.0, 1.0, 1, 0,
                           &ChBandStore::chstdGetWCDMA_Common, true);
            for (const QString &name :
                 {str("Twenty-six code units long"), str("Twenty-six code units long!"),
                  QString::fromUtf8("B\u00e4nd \u03a9 (1)")})
                s->SetBandInfo(str("LTE-TDD"), name, 1, 9, 900.0, 901.0, 900.0, 1, 0,
                               &ChBandStore::chstdGetLTEBand1Dn, false);
            s->SetBandInfo(str("Foo"), str("Band 0 (800)"), 2000, 2010, 800.0, 810.0, 800.0, 1, 0,
                           &ChBandStore::chstdGetCDMA_Band0_1, false);
        }
        compareEveryRecord(*own);
    }
};

QTEST_APPLESS_MAIN(FastPathsTest)
#include "tst_fastpaths.moc"
