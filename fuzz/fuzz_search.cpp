// The channel searches, on the band plan or on a fresh store that the input
// first fills through SetBandInfo (any names, channels, edges, formulas and
// far more records than fit). Every answer is checked against the literal walk
// over every channel, and the store against its capacity.
#include "fuzzinput.h"

#include "literalwalks.h"

#include <memory>
#include <new>

namespace {

// Registers what the input asks for. False when a record has no formula,
// which the literal walk cannot follow.
bool fill(ChBandStore &store, fuzz::Input &in)
{
    static const QStringList few = {QStringLiteral("A"), QStringLiteral("B"),
                                    QStringLiteral("Band Global")};
    bool formulas = true;
    for (int n = in.pick(8); n >= 0 && in.more(); --n) {
        const QString tech = in.tech(), band = in.flag() ? in.band() : in.name(few);
        // One record or a run of them, up to past both capacities.
        const int copies = in.flag() ? 1 : 1 + in.pick(ChBand::MaxSubBands + 5);
        const bool distinct = in.flag();
        const int start = in.channel();
        // Walks over a record are linear by design: keep widths realistic.
        const int stop = int(qBound<qint64>(
            INT_MIN, qint64(start) + in.integer({-1, 0, 1, 599, 19999}) % 20000, INT_MAX));
        const double low = in.freq(), high = in.flag() ? in.freq() : low + in.pick(100),
                     base = in.flag() ? low : in.freq();
        const ChFreqFunc func =
            in.pick(32) ? fuzz::known().formulas[in.pick(int(fuzz::known().formulas.size()))]
                        : nullptr;
        formulas = formulas && func;
        const int link = in.link(), param = in.channel();
        const bool uplinkOnly = in.flag();
        for (int i = 0; i < copies; ++i) {
            store.SetBandInfo(tech, distinct ? band + QString::number(i) : band, start, stop, low,
                              high, base, param, link, func, uplinkOnly);
        }
    }
    for (const ChTechnology &t : store.Technologies) {
        FUZZ_CHECK(t.NumBand >= 0 && t.NumBand <= ChTechnology::MaxBands
                   && t.BandIndexMap.size() == t.NumBand);
        for (const ChBand &b : t.Bands)
            FUZZ_CHECK(b.NumSubBand >= 0 && b.NumSubBand <= ChBand::MaxSubBands);
    }
    return formulas;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    fuzz::silence();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    // Every private store is built in the same place: a fresh 1.5 MB heap
    // block per input costs more page faults under the sanitizers than the
    // whole rest of the run.
    alignas(ChBandStore) static unsigned char storage[sizeof(ChBandStore)];
    std::unique_ptr<ChBandStore, void (*)(ChBandStore *)> own(
        nullptr, [](ChBandStore *p) { p->~ChBandStore(); });
    fuzz::Input in(data, size);
    bool comparable = true;
    if (in.flag()) {
        own.reset(new (storage) ChBandStore);
        comparable = fill(*own, in);
    }
    const ChBandStore &s = own ? *own : G_CHSTD;
    while (in.more()) {
        const QString tech = in.tech(), band = in.band();
        const int link = in.link();
        const double mhz = in.freq();
        switch (in.pick(3)) {
        case 0: {
            const QList<ChInfo> hits = s.GetChInfoFromFreq(mhz);
            FUZZ_CHECK(!comparable || literal::sameHits(hits, literal::chInfoFromFreq(s, mhz)));
            break;
        }
        case 1: {
            const double high = in.flag() ? in.freq() : mhz + in.pick(10);
            const QString standard = in.standard(), direction = in.direction();
            const QList<int> channels = s.GetAvailableChannels(standard, direction, mhz, high);
            const QStringList parts = standard.split(QLatin1String(" - "));
            const int wanted = direction == QLatin1String("Forward") ? 0 : 1;
            FUZZ_CHECK(!comparable
                       || channels
                              == (parts.size() < 2 ? QList<int>()
                                                   : literal::availableChannels(
                                                       s, parts[0], parts[1], wanted, mhz, high)));
            break;
        }
        default: {
            const int preferred = in.channel();
            const int channel = s.GetChNumFromFreq(tech, band, link, mhz, preferred);
            FUZZ_CHECK(!comparable
                       || channel == literal::chNumFromFreq(s, tech, band, link, mhz, preferred));
            break;
        }
        }
    }
    return 0;
}
