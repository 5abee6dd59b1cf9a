// Queries by names and by enumerator run on every keystroke of the
// instrument's UI: they must not touch the heap. Counts malloc/calloc/realloc around each call.

#include "testsupport.h"

#include <atomic>

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

class AllocationsTest : public QObject
{
    Q_OBJECT

private slots:
    // Every numeric query by names, by enumerator and by the name alone, on
    // both kinds of band, both links, and on unknown names (which select slot 0).
    void queriesDoNotAllocate_data()
    {
        QTest::addColumn<QString>("tech");
        QTest::addColumn<QString>("band");
        QTest::addColumn<int>("link");
        QTest::addColumn<int>("channel");
        const auto row = [](const char *tech, const char *band, int link, int channel) {
            QTest::addRow("%s %s %d", tech, band, link)
                << str(tech) << str(band) << link << channel;
        };
        row("LTE-FDD", "Band 1 (2100)", 0, 300);
        row("LTE-FDD", "Band 1 (2100)", 1, 18001);
        row("LTE-TDD", "Band 41 (2496)", 0, 41000);
        row("5G NR", "Band n77 (TD 3700)", 1, 650000); // time-division: the other link's record
        row("no such name", "no such name", 1, 5);
    }

    void queriesDoNotAllocate()
    {
#if !SAISKUKO_COUNT_ALLOCATIONS
        QSKIP("allocations are not counted under a sanitizer");
#else
        QFETCH(QString, tech);
        QFETCH(QString, band);
        QFETCH(int, link);
        QFETCH(int, channel);
        const ChBandStore &s = G_CHSTD;
        const bool known = s.TechIndexMap.contains(tech);
        const Place p{s,
                      tech,
                      band,
                      known ? s.GetEnumulator(tech, band) : 0,
                      link,
                      channel,
                      s.GetFreq(tech, band, link, channel)};
        const auto ask = [&] {
            Answers a;
            askByNames(p, a);
            askNamesOnly(p, a);
            askByCode(p, a);
            if (known)
                a << s.GetEnumulator(tech, band);
            return a[4]; // the channel found, so that the calls stay
        };
        QVERIFY(ask() == channel); // first calls may set up lazily built tables
        const long before = g_allocations.load();
        for (int i = 0; i < 10; ++i)
            ask();
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
