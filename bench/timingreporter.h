#ifndef SAISKUKO_BENCH_TIMINGREPORTER_H
#define SAISKUKO_BENCH_TIMINGREPORTER_H

// The console report, keeping each benchmark's time per iteration as well, so
// that a program can print ratios between benchmarks of the same run: on a
// shared, noisy machine only ratios from one run mean anything.

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

class TimingReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            if (run.run_type == Run::RT_Iteration && run.iterations > 0) {
                // The mean of the repetitions (--benchmark_repetitions), one at a time.
                const double ns = run.GetAdjustedRealTime() * 1e9
                                  / benchmark::GetTimeUnitMultiplier(run.time_unit);
                const std::string name = run.benchmark_name();
                const int n = ++repetitions[name];
                nanoseconds[name] += (ns - nanoseconds[name]) / n;
            }
        }
        ConsoleReporter::ReportRuns(runs);
    }

    std::map<std::string, double> nanoseconds; // by benchmark name, mean of its repetitions
    std::map<std::string, int> repetitions;
};

// Runs the benchmarks the command line selects, then prints the ratios of a
// TimingReporter with a printRatios() member.
template <typename Reporter>
int runAndPrintRatios(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    Reporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.printRatios();
    benchmark::Shutdown();
    return 0;
}

#endif
