// The library finds channels by binary search; these tests hold it to the
// literal walk over every channel, for every record of the band plan.

#include "literalwalks.h"
#include "messagecapture.h"

#include <saiskuko/saiskuko.h>

#include <QtCore/QSet>
#include <QtTest/QtTest>

#include <cmath>
#include <cstring>
#include <limits>
#include <memory>

namespace {

struct Place
{
    QString tech;
    QString band;
    const stSubBand *record;
};

QList<Place> everyRecord()
{
    const ChBandStore &store = G_CHSTD;
    QList<Place> places;
    for (const ChTechnology &tech : store.Technologies) {
        for (int b = 0; b < tech.NumBand; ++b) {
            for (int i = 0; i < tech.Bands[b].NumSubBand; ++i)
                places.append({tech.TechName, tech.Bands[b].BandName, &tech.Bands[b].SubBands[i]});
        }
    }
    return places;
}

double at(const stSubBand &r, qint64 ch)
{
    return literal::freqAt(r, ch);
}

// Raster frequencies of a record's first, middle and last channels, one ulp
// either side, the half-raster point after each, its edges and beyond.
QList<double> probesOf(const stSubBand &r)
{
    const double inf = std::numeric_limits<double>::infinity();
    QList<double> probes = {r.StartFreq,
                            r.StopFreq,
                            r.StartFreq - 1.0,
                            r.StopFreq + 1.0,
                            std::nextafter(r.StartFreq, -inf),
                            std::nextafter(r.StopFreq, inf),
                            std::numeric_limits<double>::quiet_NaN(),
                            inf,
                            -inf,
                            -0.0};
    const qint64 first = r.StartChannelNo, last = r.StopChannelNo;
    for (qint64 ch : {first, first + (last - first) / 2, last}) {
        const double f = at(r, ch);
        probes << f << std::nextafter(f, inf) << std::nextafter(f, -inf)
               << (f + at(r, ch + 1)) / 2.0;
    }
    return probes;
}

QString describe(const QList<ChInfo> &hits)
{
    QStringList rows;
    for (const ChInfo &h : hits)
        rows << QStringLiteral("%1/%2 link %3 ch %4 off %5")
                    .arg(h.techName, h.bandName)
                    .arg(h.linkDirection)
                    .arg(h.channelNo)
                    .arg(h.freqOffset, 0, 'g', 17);
    return rows.join(QLatin1String("; "));
}

} // namespace

class FastPathsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_quiet = std::make_unique<QuietLibrary>(); }
    void cleanupTestCase() { m_quiet.reset(); }

    void channelFromFrequencyMatchesTheWalk()
    {
        // Each (band, link, frequency) is walked once; the preferred channel
        // then picks from the same candidates.
        QSet<QString> seen;
        for (const Place &p : everyRecord()) {
            const stSubBand &r = *p.record;
            const int middle = r.StartChannelNo + (r.StopChannelNo - r.StartChannelNo) / 2;
            for (double f : probesOf(r)) {
                for (int link : {0, 1}) {
                    const QString key = QStringLiteral("%1|%2|%3|%4")
                                            .arg(p.tech, p.band)
                                            .arg(link)
                                            .arg(f, 0, 'g', 17);
                    if (seen.contains(key))
                        continue;
                    seen.insert(key);
                    const QList<int> candidates =
                        literal::exactCandidates(G_CHSTD, p.tech, p.band, link, f);
                    for (int preferred : {-1, middle, candidates.value(1, r.StopChannelNo)}) {
                        const int expected = literal::chooseCandidate(candidates, preferred);
                        const int actual =
                            G_CHSTD.GetChNumFromFreq(p.tech, p.band, link, f, preferred);
                        if (actual != expected)
                            QFAIL(qPrintable(
                                QStringLiteral("%1 / %2 link %3 at %4 pref %5: %6, walk %7")
                                    .arg(p.tech, p.band)
                                    .arg(link)
                                    .arg(f, 0, 'g', 17)
                                    .arg(preferred)
                                    .arg(actual)
                                    .arg(expected)));
                    }
                }
            }
        }
        QVERIFY(seen.size() > 587 * 10);
    }

    void frequencySearchMatchesTheWalk()
    {
        QSet<quint64> seen;
        for (const Place &p : everyRecord()) {
            for (double f : probesOf(*p.record)) {
                quint64 bits;
                std::memcpy(&bits, &f, sizeof bits);
                if (seen.contains(bits))
                    continue;
                seen.insert(bits);
                const QList<ChInfo> expected = literal::chInfoFromFreq(G_CHSTD, f);
                const QList<ChInfo> actual = G_CHSTD.GetChInfoFromFreq(f);
                if (!literal::sameHits(actual, expected))
                    QFAIL(qPrintable(QStringLiteral("at %1:\n  got  %2\n  walk %3")
                                         .arg(f, 0, 'g', 17)
                                         .arg(describe(actual), describe(expected))));
            }
        }
        QVERIFY(seen.size() > 1000);
    }

    void channelWindowsMatchTheWalk()
    {
        const double nan = std::numeric_limits<double>::quiet_NaN();
        const double inf = std::numeric_limits<double>::infinity();
        for (const Place &p : everyRecord()) {
            const stSubBand &r = *p.record;
            const QString standard = p.tech + QLatin1String(" - ") + p.band;
            const QString direction =
                r.Link == 0 ? QStringLiteral("Forward") : QStringLiteral("Reverse");
            const double mid =
                at(r, r.StartChannelNo + (qint64(r.StopChannelNo) - r.StartChannelNo) / 2);
            const double raster = at(r, qint64(r.StartChannelNo) + 1) - at(r, r.StartChannelNo);
            QList<QPair<double, double>> windows = {{mid, mid},
                                                    {mid - raster / 2, mid + raster / 2},
                                                    {mid - raster, mid + raster},
                                                    {mid - 10 * raster, mid + 3.3 * raster},
                                                    {r.StartFreq, r.StopFreq},
                                                    {-inf, inf},
                                                    {mid + raster, mid - raster},
                                                    {nan, mid},
                                                    {mid, nan},
                                                    {std::nextafter(mid, inf), mid + 100 * raster},
                                                    {-inf, mid},
                                                    {mid, inf}};
            for (const auto &w : windows) {
                const QList<int> expected =
                    literal::availableChannels(G_CHSTD, p.tech, p.band, r.Link, w.first, w.second);
                const QList<int> actual =
                    G_CHSTD.GetAvailableChannels(standard, direction, w.first, w.second);
                if (actual != expected)
                    QFAIL(qPrintable(QStringLiteral("%1 [%2, %3]: %4 channels, walk %5")
                                         .arg(standard)
                                         .arg(w.first, 0, 'g', 17)
                                         .arg(w.second, 0, 'g', 17)
                                         .arg(actual.size())
                                         .arg(expected.size())));
            }
        }
    }

    // Records a caller registers itself: a non-monotone formula, a formula
    // the library does not know, ranges whose arithmetic wraps, a plateau of
    // equal frequencies and an empty range must all still answer as the walk.
    void unusualRecordsMatchTheWalk()
    {
        auto owned = std::make_unique<ChBandStore>();
        ChBandStore &store = *owned;
        const QString gsm = QStringLiteral("GSM");
        auto add = [&](const char *band, int first, int last, double base, ChFreqFunc f) {
            store.SetBandInfo(gsm, QLatin1String(band), first, last, -1e9, 1e9, base, 1, 1, f,
                              false);
        };
        const ChFreqFunc zigzag = [](int ch, double base, int) { return base + (ch % 7) * 0.5; };
        const ChFreqFunc plateau = [](int ch, double base, int) { return base + (ch / 4) * 0.2; };
        add("Zigzag", 0, 40, 100.0, zigzag);
        add("Plateau", 0, 40, 100.0, plateau);
        add("Wrapping", std::numeric_limits<int>::max() - 20, std::numeric_limits<int>::max(), 0.0,
            &ChBandStore::chstdGetLTEBand1Up);
        add("Wrapping5", 429496700, 429496740, 0.0, &ChBandStore::chstdGetWIMAX_Common3);
        add("Empty", 10, 5, 0.0, &ChBandStore::chstdGetGSM_900);
        add("Huge base", 0, 40, 1e300, &ChBandStore::chstdGetGSM_900);
        for (const char *band :
             {"Zigzag", "Plateau", "Wrapping", "Wrapping5", "Empty", "Huge base"}) {
            const QString name = QLatin1String(band);
            const stSubBand &r = store.Technologies[1]
                                     .Bands[store.Technologies[1].BandIndexMap.value(name)]
                                     .SubBands[0];
            QList<double> probes = probesOf(r);
            for (int ch = 0; ch < 12; ++ch)
                probes << at(r, qint64(r.StartChannelNo) + ch)
                       << at(r, qint64(r.StartChannelNo) + ch) + 0.1;
            for (double f : probes) {
                QCOMPARE(store.GetChNumFromFreq(gsm, name, 1, f, 3),
                         literal::chNumFromFreq(store, gsm, name, 1, f, 3));
                QCOMPARE(store.GetAvailableChannels(gsm + QLatin1String(" - ") + name, QString(), f,
                                                    f + 1.0),
                         literal::availableChannels(store, gsm, name, 1, f, f + 1.0));
                const QList<ChInfo> expected = literal::chInfoFromFreq(store, f);
                QVERIFY2(literal::sameHits(store.GetChInfoFromFreq(f), expected), qPrintable(name));
            }
        }
    }

private:
    std::unique_ptr<QuietLibrary> m_quiet;
};

QTEST_GUILESS_MAIN(FastPathsTest)
#include "tst_fastpaths.moc"
