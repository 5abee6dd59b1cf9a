// Single conversions by names, by channel standard text, by enumerator and by a typed Band,
// beside a direct call of the record's own formula (the floor for this work), with the ratios
// printed last; and finding a typed Band by the names engineers write.

#include "messagecapture.h"
#include "timingreporter.h"

#include <saiskuko/bandplan.h>
#include <saiskuko/saiskuko.h>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace {

// One band and one channel per link; frequencies are the channels' own.
struct Case
{
    const char *label;
    const char *tech;
    const char *band;
    int channel[2]; // [link]: 0 downlink, 1 uplink
};

const Case kCases[] = {
    {"LTE1", "LTE-FDD", "Band 1 (2100)", {300, 18300}},
    {"n78", "5G NR", "Band n78 (TD 3500)", {630000, 630000}},
    {"GSM900", "GSM", "P-GSM 900", {62, 62}},
};

// The record GetFreq answers from: the first that holds the channel in the link.
const stSubBand &recordOf(const Case &c, int link)
{
    const ChBandStore &s = G_CHSTD;
    const int t = s.TechIndexMap.value(QLatin1String(c.tech));
    const ChBand &band =
        s.Technologies[t].Bands[s.Technologies[t].BandIndexMap.value(QLatin1String(c.band))];
    for (int i = 0; i < band.NumSubBand; ++i) {
        const stSubBand &r = band.SubBands[i];
        if ((r.Link == link || r.UplinkOnly) && r.StartChannelNo <= c.channel[link]
            && c.channel[link] <= r.StopChannelNo && r.StartFreq != 1.0)
            return r;
    }
    return band.SubBands[0];
}

using Query = std::function<void(benchmark::State &)>;

// What the by-value names cost the caller before any query begins: copying
// two QStrings it holds (an atomic count each way) into a call.
Q_NEVER_INLINE int passTwoNames(QString tech, QString band)
{
    return tech.size() + band.size();
}

void registerCase(const Case &c, int link)
{
    const ChBandStore &s = G_CHSTD;
    const QString tech = QLatin1String(c.tech), band = QLatin1String(c.band);
    const QString standard = tech + QLatin1String(" - ") + band;
    const int code = s.GetEnumulator(tech, band);
    const int ch = c.channel[link];
    const double mhz = s.GetFreq(tech, band, link, ch);
    const std::string suffix = std::string("/") + c.label + (link ? "/UL" : "/DL");
    const stSubBand *record = &recordOf(c, link);

    auto add = [&](const std::string &name, Query body) {
        benchmark::RegisterBenchmark((name + suffix).c_str(), body);
    };
    add("Formula", [=](benchmark::State &st) {
        for (auto _ : st) {
            int channel = ch;
            benchmark::DoNotOptimize(channel);
            benchmark::DoNotOptimize(
                record->FreqFunc(channel, record->BaseFreq, record->StartChannelNo));
        }
    });
    add("PassNames/copy", [=](benchmark::State &st) {
        for (auto _ : st)
            benchmark::DoNotOptimize(passTwoNames(tech, band));
    });
#define SAISKUKO_BENCH(name, expression)                                                           \
    add(name, [=, &s](benchmark::State &st) {                                                      \
        for (auto _ : st)                                                                          \
            benchmark::DoNotOptimize(expression);                                                  \
    })
    SAISKUKO_BENCH("GetFreq/names", s.GetFreq(tech, band, link, ch));
    SAISKUKO_BENCH("GetFreq/text", s.GetFreq(standard, link, ch));
    SAISKUKO_BENCH("GetFreq/code", s.GetFreq(code, link, ch));
    SAISKUKO_BENCH("GetChNumFromFreq/names", s.GetChNumFromFreq(tech, band, link, mhz, -1));
    SAISKUKO_BENCH("GetChNumFromFreq/text", s.GetChNumFromFreq(standard, link, mhz, -1));
    SAISKUKO_BENCH("GetChNumFromFreq/code", s.GetChNumFromFreq(code, link, mhz, -1));
    // These two have no text form.
    SAISKUKO_BENCH("IsExistChannelNo/names", s.IsExistChannelNo(tech, band, link, ch));
    SAISKUKO_BENCH("IsExistChannelNo/code", s.IsExistChannelNo(code, link, ch));
    SAISKUKO_BENCH("GetStartChannelNo/names", s.GetStartChannelNo(tech, band, link));
    SAISKUKO_BENCH("GetStartChannelNo/code", s.GetStartChannelNo(code, link));
    // A Band found once: no names, no copies.
    const saiskuko::Band typed = saiskuko::findBand(standard).value();
    const saiskuko::Link typedLink = link ? saiskuko::Link::Up : saiskuko::Link::Down;
    SAISKUKO_BENCH("Band::frequency/typed", typed.frequency(typedLink, ch));
    SAISKUKO_BENCH("Band::channelsAt/typed", typed.channelsAt(typedLink, mhz));
    SAISKUKO_BENCH("Band::nearestChannel/typed", typed.nearestChannel(typedLink, mhz));
#undef SAISKUKO_BENCH
}

// Finding a Band by what a user types: short forms and a whole channel standard text.
void registerFindBand()
{
    for (const char *name : {"LTE:1", "n78", "B7", "LTE-FDD - Band 1 (2100)"}) {
        const QString held = QString::fromUtf8(name);
        benchmark::RegisterBenchmark((std::string("findBand/") + name).c_str(),
                                     [held](benchmark::State &st) {
                                         for (auto _ : st)
                                             benchmark::DoNotOptimize(saiskuko::findBand(held));
                                     });
    }
}

// Sets every query against the direct formula call of its own band and link; a query
// that has none (finding a band) gets its time alone.
class RatioReporter : public TimingReporter
{
public:
    void printRatios() const
    {
        std::printf("\n%-44s %10s %10s\n", "query / form / band / link", "ns", "x formula");
        for (const auto &[name, ns] : nanoseconds) {
            if (name.rfind("Formula/", 0) == 0)
                continue;
            const std::size_t band = name.find('/', name.find('/') + 1);
            const auto floor = band == std::string::npos
                                   ? nanoseconds.end()
                                   : nanoseconds.find("Formula" + name.substr(band));
            if (floor != nanoseconds.end() && floor->second > 0.0)
                std::printf("%-44s %10.1f %10.1f\n", name.c_str(), ns, ns / floor->second);
            else
                std::printf("%-44s %10.1f %10s\n", name.c_str(), ns, "-");
        }
    }
};

} // namespace

int main(int argc, char **argv)
{
    QuietLibrary quiet; // none of these miss, but keep the report clean
    for (const Case &c : kCases) {
        registerCase(c, 0);
        registerCase(c, 1);
    }
    registerFindBand();
    return runAndPrintRatios<RatioReporter>(argc, argv);
}
