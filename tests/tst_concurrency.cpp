// The store is read-only once loaded and its quick queries run on every
// keystroke of the instrument's UI: any number of threads may query it at
// once, each getting exactly the answers one thread gets alone with every log
// line arriving once (also run under ThreadSanitizer), and the numeric queries
// must not touch the heap (malloc, calloc and realloc are counted). The typed
// API is asked from cold, so that its threads race to fill whatever it builds
// on first use.
#include "testsupport.h"

#include <saiskuko/bandplan.h>

#include <atomic>
#include <climits>
#include <functional>
#include <thread>
#include <tuple>
#include <vector>

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

namespace {

std::atomic<int> g_warnings{0}, g_debugs{0}, g_printed{0};
void countLine(QtMsgType type, const QMessageLogContext &, const QString &)
{
    ++(type == QtDebugMsg ? g_debugs : g_warnings);
}

// Counts what reaches std::cout; unbuffered, so writers share only the counter.
struct CountingBuf : std::streambuf
{
    int_type overflow(int_type c) override { return ++g_printed, traits_type::not_eof(c); }
};

// Everything the typed API answers about a band and link, at its first channel and
// that channel's frequency, found by code and by text alike.
QString typedAnswers(int code, const QString &standard, int l, int ch, double mhz)
{
    using namespace saiskuko;
    // Found by name or by code, so that threads race to build either index first.
    const Band b = (code % 2 ? findBand(standard) : bandByCode(code)).value();
    const Link link = Link(l);
    const QList<double> centres = b.frequencies(link, ch);
    const QList<int> at = b.channelsAt(link, mhz).valueOr({-1});
    QString hits;
    for (const SearchHit &h : search(mhz))
        hits += nums({h.band.code(), int(h.link), h.channel, h.offsetMHz});
    return nums({bandByCode(code).value().code(), findBand(b.shortName()).value().code(),
                 int(b.duplex()), int(b.links().size()), int(b.records(link).size()),
                 b.withinEdges(link, mhz), b.frequency(link, ch).valueOr(-1.0),
                 centres.value(0, -1.0), at.value(0), int(at.size()),
                 b.nearestChannel(link, mhz + 0.001).valueOr(-1),
                 b.pairedChannel(link, ch).valueOr(-1), int(bandsWithChannel(ch).size()),
                 int(findTechnology(b.technologyName()).value())})
           + hits + b.frequency(link, INT_MIN).error().message;
}

// Every kind of query on every band, both links, a channel and a frequency of
// the band, and on enumerators of no band; every mode and technology table.
// The typed API's go to `typed`, asked of no band and so not run yet.
std::vector<std::function<QString()>> allQueries(std::vector<std::function<QString()>> &typed)
{
    const ChBandStore &s = *ChStd::GetChStdPointer();
    std::vector<int> codes = {-1, 11, 800, INT_MIN, INT_MAX};
    forEachBand(s, [&](const ChTechnology &, const ChBand &, int code) { codes.push_back(code); });
    std::vector<std::function<QString()>> q;
    for (const int code : codes) {
        const QString standard = s.GetEnumulator(code);
        const QString tech = standard.section(str(" - "), 0, 0),
                      band = standard.section(str(" - "), 1);
        for (const int link : {0, 1}) {
            const int ch = s.GetStartChannelNo(tech, band, link);
            const Place p{s, tech, band, code, link, ch, s.GetFreq(tech, band, link, ch)};
            if (!standard.isEmpty())
                typed.push_back([=] { return typedAnswers(code, standard, link, ch, p.mhz); });
            q.push_back([=, &s] {
                Answers a;
                askByCode(p, a);
                const QList<int> window = s.GetAvailableChannels(
                    standard, link ? str("Reverse") : str("Forward"), p.mhz - 0.5, p.mhz + 0.5);
                a << s.IsChannelStandard(standard) << s.GetEnumulator(tech, band) << s.GetTech(code)
                  << s.GetBand(code) << s.IsChannelStandard(code) << window.size()
                  << window.value(0) << window.value(window.size() - 1);
                QString hits;
                for (const ChInfo &h : s.GetChInfoFromFreq(p.mhz))
                    hits += h.techName + h.bandName
                            + nums({h.linkDirection, h.channelNo, h.freqOffset});
                return answersByNames(p) + nums(a) + hits + s.GetEnumulator(code)
                       + s.GetBandName(code);
            });
        }
    }
    for (int mode = -1; mode <= 24; ++mode)
        q.push_back([mode] { return table(ChStd::GetBandListByMode(mode, mode, mode % 2)); });
    const QStringList techs = s.TechIndexMap.keys() << str("unknown");
    for (const QString &tech : techs)
        q.push_back([tech] {
            stCHList l;
            ChStd::SetBandListName(tech, l);
            ChStd::SetBandListRange(tech, 1, l);
            return table(l);
        });
    return q;
}

// Asks every query `rounds` times from each of eight threads started together,
// each elsewhere in the list; then asks expected() for the answers of one pass
// alone and returns the first answer a thread got otherwise.
QString firstWrongAnswer(const std::vector<std::function<QString()>> &queries, int rounds,
                         const std::function<QStringList()> &expected)
{
    constexpr int kThreads = 8;
    const int n = int(queries.size());
    std::vector<QStringList> answers(kThreads);
    std::atomic<int> waiting{kThreads};
    std::vector<std::thread> threads;
    for (int t = 0; t < kThreads; ++t)
        threads.emplace_back([&, t] {
            for (--waiting; waiting > 0;)
                std::this_thread::yield();
            for (int k = 0; k < rounds * n; ++k)
                answers[t] << queries[(k + t * n / kThreads) % n]();
        });
    for (std::thread &thread : threads)
        thread.join();
    const QStringList alone = expected();
    for (int t = 0; t < kThreads; ++t)
        for (int k = 0; k < rounds * n; ++k)
            if (const int i = (k + t * n / kThreads) % n; answers[t][k] != alone[i])
                return nums({t, i}) + str(": ") + answers[t][k] + str(" instead of ") + alone[i];
    return {};
}

#if SAISKUKO_COUNT_ALLOCATIONS
// A thread's allocations over ten calls of a query (after one that may build caches).
template <typename Query>
long allocationsOf(Query query)
{
    query();
    const long before = g_allocations.load();
    for (int i = 0; i < 10; ++i)
        query();
    return g_allocations.load() - before;
}
#endif

} // namespace

class TestConcurrency : public QObject
{
    Q_OBJECT

private slots:
    void readersAgree(); // first: nothing of the typed API has run yet
    // Every numeric query by names, by enumerator and by the name alone, on
    // both kinds of band, both links, and on unknown names (which select slot 0).
    void queriesDoNotAllocate()
    {
#if !SAISKUKO_COUNT_ALLOCATIONS
        QSKIP("allocations are not counted under a sanitizer");
#else
        const ChBandStore &s = G_CHSTD;
        const auto at = [&](const char *tech, const char *band, int link, int ch) {
            const QString t = str(tech), b = str(band);
            const int code = s.TechIndexMap.contains(t) ? s.GetEnumulator(t, b) : 0;
            return Place{s, t, b, code, link, ch, s.GetFreq(t, b, link, ch)};
        };
        for (const Place &p :
             {at("LTE-FDD", "Band 1 (2100)", 0, 300), at("LTE-FDD", "Band 1 (2100)", 1, 18001),
              at("LTE-TDD", "Band 41 (2496)", 0, 41000),
              at("5G NR", "Band n77 (TD 3700)", 1, 650000), // the other link's
              at("no such name", "no such name", 1, 5)}) {
            const auto ask = [&] {
                Answers a;
                askByNames(p, a);
                askNamesOnly(p, a);
                askByCode(p, a);
                return a[4] + (p.code ? s.GetEnumulator(p.tech, p.band) : 0);
            };
            QCOMPARE(ask(), double(p.ch + p.code));
            QCOMPARE(allocationsOf(ask), 0L);
        }
        // Successful conversions only: a failure carries its message.
        using saiskuko::Link;
        for (const auto &[name, link, ch, paired] :
             {std::make_tuple("LTE:1", Link::Down, 300, true),
              std::make_tuple("LTE:1", Link::Up, 18300, true),
              std::make_tuple("NR:n78", Link::Down, 630000, false),
              std::make_tuple("GSM - P-GSM 900", Link::Up, 1, false)}) {
            const saiskuko::Band b = saiskuko::findBand(str(name)).valueOr({});
            const double mhz = b.frequency(link, ch).valueOr(0.0);
            QCOMPARE(b.pairedChannel(link, ch).ok(), paired); // or value() below would fail
            QCOMPARE(allocationsOf([&, link = link, ch = ch, paired = paired] {
                         return b.frequency(link, ch).value() + b.nearestChannel(link, mhz).value()
                                + (paired ? b.pairedChannel(link, ch).value() : 0);
                     }),
                     0L);
            QCOMPARE(
                allocationsOf([&, link = link] { return b.channelsAt(link, mhz).value().size(); }),
                10L); // its list alone, which also shows that the counter sees Qt's allocations
        }
#endif
    }
};

void TestConcurrency::readersAgree()
{
    // Installed once, before any thread starts: neither may change under them.
    CountingBuf counter;
    std::streambuf *const oldCout = std::cout.rdbuf(&counter);
    const QtMessageHandler oldHandler = qInstallMessageHandler(countLine);

    // Answers and log counts of one pass alone. A conversion that finds
    // nothing prints to std::cout, which the library leaves unlocked on
    // purpose: those stay out of the threads.
    std::vector<std::function<QString()>> queries, typed;
    QStringList expected;
    int warnings = 0, debugs = 0;
    for (const auto &query : allQueries(typed)) {
        const int w = g_warnings, d = g_debugs, p = g_printed;
        const QString answer = query();
        if (g_printed == p) {
            queries.push_back(query);
            expected << answer;
            warnings += g_warnings - w;
            debugs += g_debugs - d;
        }
    }
    g_warnings = g_debugs = g_printed = 0;
    // The typed API first, from cold: its threads race to fill whatever it builds on first use.
    const QString wrongTyped = firstWrongAnswer(typed, 1, [&] {
        QStringList alone;
        for (const auto &ask : typed)
            alone << ask();
        return alone;
    });
    const int typedLines = g_warnings + g_debugs + g_printed;
    constexpr int kRounds = 12;
    const QString wrong = firstWrongAnswer(queries, kRounds, [&] { return expected; });
    qInstallMessageHandler(oldHandler);
    std::cout.rdbuf(oldCout);

    QVERIFY2(wrongTyped.isEmpty(), qPrintable(wrongTyped));
    QCOMPARE(typedLines, 0); // the typed API writes no log line
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
    QVERIFY(queries.size() > 300 && typed.size() > 300 && warnings > 0 && debugs > 0);
    QCOMPARE(g_warnings.load(), 8 * kRounds * warnings);
    QCOMPARE(g_debugs.load(), 8 * kRounds * debugs);
    QCOMPARE(g_printed.load(), 0);
}

QTEST_APPLESS_MAIN(TestConcurrency)
#include "tst_concurrency.moc"
