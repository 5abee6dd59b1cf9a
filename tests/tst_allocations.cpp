// Queries by names and by enumerator run on every keystroke of the
// instrument's UI: they must not touch the heap. Counts malloc/calloc/realloc around each call.

#include <saiskuko/saiskuko.h>

#include <QtTest/QtTest>

#include <atomic>
#include <functional>

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define SAISKUKO_COUNT_ALLOCATIONS 0 // the sanitizers own malloc
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define SAISKUKO_COUNT_ALLOCATIONS 0
#endif
#endif
#ifndef SAISKUKO_COUNT_ALLOCATIONS
#define SAISKUKO_COUNT_ALLOCATIONS 1
#endif

#if SAISKUKO_COUNT_ALLOCATIONS
static std::atomic<long> g_allocations{0};
extern "C" {
void *__libc_malloc(size_t);
void *__libc_calloc(size_t, size_t);
void *__libc_realloc(void *, size_t);
void *malloc(size_t size)
{
    ++g_allocations;
    return __libc_malloc(size);
}
void *calloc(size_t n, size_t size)
{
    ++g_allocations;
    return __libc_calloc(n, size);
}
void *realloc(void *p, size_t size)
{
    ++g_allocations;
    return __libc_realloc(p, size);
}
}
#endif

using Query = std::function<void()>;
Q_DECLARE_METATYPE(Query)

class AllocationsTest : public QObject
{
    Q_OBJECT

private slots:
    void namedQueriesDoNotAllocate_data()
    {
        QTest::addColumn<Query>("query");
        static const QString fdd = QStringLiteral("LTE-FDD"), b1 = QStringLiteral("Band 1 (2100)");
        static const QString tdd = QStringLiteral("LTE-TDD"),
                             b41 = QStringLiteral("Band 41 (2496)");
        static const QString nr = QStringLiteral("5G NR"),
                             n77 = QStringLiteral("Band n77 (TD 3700)");
        static const QString unknown = QStringLiteral("no such name");
        const ChBandStore &s = G_CHSTD;
        QTest::newRow("GetFreq") << Query([&] { s.GetFreq(fdd, b1, 0, 300); });
        QTest::newRow("GetFreq other link, TDD") << Query([&] { s.GetFreq(tdd, b41, 0, 41000); });
        QTest::newRow("GetFreq unknown names") << Query([&] { s.GetFreq(unknown, unknown, 1, 5); });
        QTest::newRow("GetFreqNoLimit") << Query([&] { s.GetFreqNoLimit(fdd, b1, 1, 5); });
        QTest::newRow("IsExistChannelNo") << Query([&] { s.IsExistChannelNo(fdd, b1, 1, 18001); });
        QTest::newRow("GetStopChannelNo_InSample")
            << Query([&] { s.GetStopChannelNo_InSample(fdd, b1, 300, 0); });
        QTest::newRow("band limits") << Query([&] {
            s.GetStartFreq(fdd, b1);
            s.GetStartFreq(fdd, b1, 1);
            s.GetStopFreq(fdd, b1, 0);
            s.GetStartChannelNo(fdd, b1, 1);
            s.GetStopChannelNo(fdd, b1, 0);
            s.GetNumSubBand(fdd, b1);
            s.IsUplinkOnly(tdd, b41);
            s.GetDefaultIntBW(nr);
        });
        QTest::newRow("GetChNumFromFreq n77")
            << Query([&] { s.GetChNumFromFreq(nr, n77, 0, 3750.0, -1); });
        QTest::newRow("GetChNumFromFreq LTE")
            << Query([&] { s.GetChNumFromFreq(fdd, b1, 0, 2169.9, 5); });
        QTest::newRow("GetOffsetChUpDown") << Query([&] { s.GetOffsetChUpDown(fdd, b1, 300, 0); });
        QTest::newRow("enumerator and counts") << Query([&] {
            s.GetEnumulator(fdd, b1);
            s.GetNumBand(nr);
        });
        QTest::newRow("by enumerator") << Query([&] {
            s.GetFreq(201, 0, 300);
            s.GetFreq(723, 1, 650000); // time-division: the other link's record
            s.GetChNumFromFreq(723, 0, 3750.0, -1);
            s.IsExistChannelNo(201, 1, 18001);
            s.GetStartChannelNo(201, 1);
            s.GetStopChannelNo(201, 0);
            s.GetStartFreq(201);
            s.GetStartFreq(201, 1);
            s.GetStopFreq(201, 0);
            s.GetNumSubBand(201);
            s.IsUplinkOnly(301);
            s.GetOffsetChUpDown(201, 0, 300);
            s.GetDefaultIntBW(723);
        });
        QTest::newRow("classifiers") << Query([&] {
            s.CheckChannelStandardIsLTETDD(b41);
            s.CheckChannelStandardIsTDS(b41);
            s.CheckChannelStandardIsWiMax(b41);
        });
    }

    void namedQueriesDoNotAllocate()
    {
#if !SAISKUKO_COUNT_ALLOCATIONS
        QSKIP("allocations are not counted under a sanitizer");
#else
        QFETCH(Query, query);
        query(); // first calls may set up lazily built tables
        const long before = g_allocations.load();
        for (int i = 0; i < 10; ++i)
            query();
        QCOMPARE(g_allocations.load() - before, 0L);
#endif
    }

    // The counter itself must see Qt's allocations, or the test proves nothing.
    void counterSeesAllocations()
    {
#if SAISKUKO_COUNT_ALLOCATIONS
        const long before = g_allocations.load();
        QString grown(100, QLatin1Char('x'));
        QVERIFY(g_allocations.load() > before);
#endif
    }
};

QTEST_GUILESS_MAIN(AllocationsTest)
#include "tst_allocations.moc"
