// Literal channel walks against the library's searches, plus the cost of the
// name and enumerator conversions. Prints the literal/library ratio of every
// pair measured in this run.

#include "literalwalks.h"
#include "messagecapture.h"
#include "timingreporter.h"

#include <saiskuko/saiskuko.h>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <iostream>
#include <map>
#include <sstream>
#include <string>

namespace {

const QString kNr = QStringLiteral("5G NR");
const QString kN77 = QStringLiteral("Band n77 (TD 3700)");
const QString kLteFdd = QStringLiteral("LTE-FDD");
const QString kBand1 = QStringLiteral("Band 1 (2100)");

// n77 channel 650000 sits at 3750 MHz; LTE band 1 downlink channel 599 at 2169.9.
constexpr double kN77Freq = 3750.0;
constexpr double kBand1Freq = 2169.9;

void Literal_ChNumFromFreq_n77(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(literal::chNumFromFreq(G_CHSTD, kNr, kN77, 0, kN77Freq, -1));
}
void Library_ChNumFromFreq_n77(benchmark::State &state)
{
    QuietLibrary quiet; // keeps the report clean whatever the library writes
    for (auto _ : state)
        benchmark::DoNotOptimize(G_CHSTD.GetChNumFromFreq(kNr, kN77, 0, kN77Freq, -1));
}
void Literal_ChNumFromFreq_LteBand1(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(
            literal::chNumFromFreq(G_CHSTD, kLteFdd, kBand1, 0, kBand1Freq, -1));
}
void Library_ChNumFromFreq_LteBand1(benchmark::State &state)
{
    QuietLibrary quiet; // keeps the report clean whatever the library writes
    for (auto _ : state)
        benchmark::DoNotOptimize(G_CHSTD.GetChNumFromFreq(kLteFdd, kBand1, 0, kBand1Freq, -1));
}

void Literal_ChInfoFromFreq(benchmark::State &state)
{
    const double f = state.range(0);
    for (auto _ : state)
        benchmark::DoNotOptimize(literal::chInfoFromFreq(G_CHSTD, f));
}
void Library_ChInfoFromFreq(benchmark::State &state)
{
    const double f = state.range(0);
    for (auto _ : state)
        benchmark::DoNotOptimize(G_CHSTD.GetChInfoFromFreq(f));
}

// A narrow (1 MHz) and a wide (the whole band) window on n77's downlink.
void Literal_AvailableChannels(benchmark::State &state)
{
    const double width = state.range(0);
    for (auto _ : state)
        benchmark::DoNotOptimize(
            literal::availableChannels(G_CHSTD, kNr, kN77, 0, 3750.0, 3750.0 + width));
}
void Library_AvailableChannels(benchmark::State &state)
{
    const double width = state.range(0);
    const QString standard = kNr + QLatin1String(" - ") + kN77;
    const QString forward = QStringLiteral("Forward");
    QuietLibrary quiet;
    for (auto _ : state)
        benchmark::DoNotOptimize(
            G_CHSTD.GetAvailableChannels(standard, forward, 3750.0, 3750.0 + width));
}

void GetFreq_ByNames(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(G_CHSTD.GetFreq(kLteFdd, kBand1, 0, 300));
}
void GetFreq_ByStandardText(benchmark::State &state)
{
    const QString standard = kLteFdd + QLatin1String(" - ") + kBand1;
    for (auto _ : state)
        benchmark::DoNotOptimize(G_CHSTD.GetFreq(standard, 0, 300));
}
void GetFreq_ByEnumerator(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(G_CHSTD.GetFreq(201, 0, 300));
}
void GetFreq_TimeDivisionOtherLink(benchmark::State &state)
{
    const QString tdd = QStringLiteral("LTE-TDD");
    const QString band41 = QStringLiteral("Band 41 (2496)");
    for (auto _ : state)
        benchmark::DoNotOptimize(G_CHSTD.GetFreq(tdd, band41, 0, 41000));
}

// Sets each literal walk against the library's search for the same question.
class RatioReporter : public TimingReporter
{
public:
    void printRatios() const
    {
        std::printf("\n%-44s %14s %14s %10s\n", "literal walk / library", "walk", "library",
                    "ratio");
        for (const auto &[name, walk] : nanoseconds) {
            if (name.rfind("Literal_", 0) != 0)
                continue;
            const auto fast = nanoseconds.find("Library_" + name.substr(8));
            if (fast == nanoseconds.end() || fast->second <= 0.0)
                continue;
            std::printf("%-44s %11.0f ns %11.0f ns %9.0fx\n", name.substr(8).c_str(), walk,
                        fast->second, walk / fast->second);
        }
    }
};

} // namespace

BENCHMARK(Literal_ChNumFromFreq_n77)->Unit(benchmark::kMicrosecond);
BENCHMARK(Library_ChNumFromFreq_n77)->Unit(benchmark::kMicrosecond);
BENCHMARK(Literal_ChNumFromFreq_LteBand1)->Unit(benchmark::kMicrosecond);
BENCHMARK(Library_ChNumFromFreq_LteBand1)->Unit(benchmark::kMicrosecond);
BENCHMARK(Literal_ChInfoFromFreq)->Arg(3500)->Arg(1900)->Unit(benchmark::kMicrosecond);
BENCHMARK(Library_ChInfoFromFreq)->Arg(3500)->Arg(1900)->Unit(benchmark::kMicrosecond);
BENCHMARK(Literal_AvailableChannels)->Arg(1)->Arg(500)->Unit(benchmark::kMicrosecond);
BENCHMARK(Library_AvailableChannels)->Arg(1)->Arg(500)->Unit(benchmark::kMicrosecond);
BENCHMARK(GetFreq_ByNames);
BENCHMARK(GetFreq_ByStandardText);
BENCHMARK(GetFreq_ByEnumerator);
BENCHMARK(GetFreq_TimeDivisionOtherLink);

int main(int argc, char **argv)
{
    return runAndPrintRatios<RatioReporter>(argc, argv);
}
