// The store is read-only once loaded, so any number of threads may query it at
// once: each must get exactly the answers one thread gets alone, and every log
// line must arrive once. Also run under ThreadSanitizer.
#include "testsupport.h"

#include <atomic>
#include <climits>
#include <functional>
#include <thread>
#include <vector>

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

QString text(const stCHList &t)
{
    return (t.techList + t.bandList + t.chRangeList + t.freqRangeList).join(str("|"));
}

// Every kind of query on every band, both links, a channel and a frequency of
// the band, and on enumerators of no band; every mode and technology table.
std::vector<std::function<QString()>> allQueries()
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
            const double mhz = s.GetFreq(tech, band, link, ch);
            const QString dir = link ? str("Reverse") : str("Forward");
            q.push_back([=, &s] {
                QString hits;
                for (const ChInfo &h : s.GetChInfoFromFreq(mhz))
                    hits += h.techName + h.bandName
                            + nums({h.linkDirection, h.channelNo, h.freqOffset});
                const QList<int> window =
                    s.GetAvailableChannels(standard, dir, mhz - 0.5, mhz + 0.5);
                return hits + s.GetEnumulator(code) + s.GetBandName(code)
                       + s.GetBandList(tech).join(str("/")) + s.GetChNumRefString(tech, band, link)
                       + s.GetChNumRefString_List(tech, band, link)
                       + s.GetFreqRefString_List(tech, band, link)
                       + nums({window.size(), window.value(0), window.value(window.size() - 1)})
                       + nums({s.GetTech(code), s.GetBand(code), s.IsChannelStandard(code),
                               s.IsChannelStandard(standard), s.GetEnumulator(tech, band)})
                       + nums({s.GetNumBand(tech), s.CheckChannelStandardIsLTETDD(band),
                               s.CheckChannelStandardIsTDS(band),
                               s.CheckChannelStandardIsWiMax(band)})
                       + nums({s.GetNumSubBand(code), s.GetNumSubBand(tech, band),
                               s.IsUplinkOnly(code), s.IsUplinkOnly(tech, band)})
                       + nums({s.GetStartFreq(code), s.GetStartFreq(tech, band),
                               s.GetDefaultIntBW(code), s.GetDefaultIntBW(tech)})
                       + nums({s.GetStartFreq(code, link), s.GetStartFreq(tech, band, link),
                               s.GetStopFreq(code, link), s.GetStopFreq(tech, band, link)})
                       + nums(
                           {s.GetStartChannelNo(code, link), s.GetStartChannelNo(tech, band, link),
                            s.GetStopChannelNo(code, link), s.GetStopChannelNo(tech, band, link)})
                       + nums({s.GetFreq(code, link, ch), s.GetFreq(tech, band, link, ch),
                               s.GetFreq(standard, link, ch + 1), s.GetFreq(standard, dir, ch),
                               s.GetFreqNoLimit(tech, band, link, ch - 7)})
                       + nums({s.IsExistChannelNo(code, link, ch),
                               s.IsExistChannelNo(tech, band, link, ch),
                               s.GetStopChannelNo_InSample(tech, band, ch, link)})
                       + nums({s.GetOffsetChUpDown(code, link, ch),
                               s.GetOffsetChUpDown(tech, band, ch, link),
                               s.GetOffsetChUpDown(standard, link, ch),
                               s.GetOffsetChUpDown(standard, dir, ch)});
            });
            q.push_back([=, &s] {
                return nums({s.GetChNumFromFreq(code, link, mhz, ch),
                             s.GetChNumFromFreq(tech, band, link, mhz, -1),
                             s.GetChNumFromFreq(standard, link, mhz, ch),
                             s.GetChNumFromFreq(standard, dir, mhz, 0)});
            });
        }
    }
    for (int mode = -1; mode <= 24; ++mode)
        q.push_back([mode] { return text(ChStd::GetBandListByMode(mode, mode, mode % 2)); });
    const QStringList techs = s.TechIndexMap.keys() << str("unknown");
    for (const QString &tech : techs)
        q.push_back([tech] {
            stCHList l;
            ChStd::SetBandListName(tech, l);
            ChStd::SetBandListRange(tech, 1, l);
            return text(l);
        });
    return q;
}

} // namespace

class TestConcurrency : public QObject
{
    Q_OBJECT

private slots:
    void readersAgree();
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
    std::vector<std::function<QString()>> queries;
    QStringList expected;
    int warnings = 0, debugs = 0;
    for (const auto &query : allQueries()) {
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

    constexpr int kThreads = 8, kRounds = 12;
    const int n = int(queries.size());
    QString mismatch[kThreads]; // the first wrong answer each thread saw
    std::vector<std::thread> threads;
    for (int t = 0; t < kThreads; ++t) {
        threads.emplace_back([&, t] {
            for (int k = 0; k < kRounds * n && mismatch[t].isEmpty(); ++k) {
                const int i = (k + t * n / kThreads) % n; // each thread elsewhere in the list
                const QString answer = queries[i]();
                if (answer != expected[i])
                    mismatch[t] = str("query %1: %2 instead of %3").arg(i).arg(answer, expected[i]);
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    qInstallMessageHandler(oldHandler);
    std::cout.rdbuf(oldCout);

    for (const QString &wrong : mismatch)
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
    QVERIFY(n > 400 && warnings > 0 && debugs > 0);
    QCOMPARE(g_warnings.load(), kThreads * kRounds * warnings);
    QCOMPARE(g_debugs.load(), kThreads * kRounds * debugs);
    QCOMPARE(g_printed.load(), 0);
}

QTEST_APPLESS_MAIN(TestConcurrency)
#include "tst_concurrency.moc"
