#ifndef SAISKUKO_FUZZ_FUZZINPUT_H
#define SAISKUKO_FUZZ_FUZZINPUT_H

// Turns fuzzer bytes into the arguments a user could type: names near the
// real ones, channels, codes and frequencies near the band plan's and across
// their whole range, NaN, infinities and denormals included.

#include <saiskuko/saiskuko.h>

#include "messagecapture.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <QtCore/QStringList>

#include <cfloat>
#include <climits>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <limits>
#include <vector>

namespace fuzz {

// The band plan's own names and numbers, read once from the loaded store.
struct Known
{
    QStringList techs, bands, standards;
    std::vector<int> codes, channels;
    std::vector<double> freqs;
    std::vector<ChFreqFunc> formulas;

    Known()
    {
        const ChBandStore &s = G_CHSTD;
        for (const ChTechnology &t : s.Technologies) {
            techs << t.TechName;
            for (int b = 0; b < t.NumBand; ++b) {
                const ChBand &band = t.Bands[b];
                bands << band.BandName;
                standards << t.TechName + QLatin1String(" - ") + band.BandName;
                codes.push_back(s.GetEnumulator(t.TechName, band.BandName));
                for (int i = 0; i < band.NumSubBand; ++i) {
                    const stSubBand &r = band.SubBands[i];
                    channels.insert(channels.end(), {r.StartChannelNo, r.StopChannelNo});
                    freqs.insert(freqs.end(),
                                 {r.StartFreq, r.StopFreq, r.BaseFreq,
                                  r.FreqFunc(r.StopChannelNo, r.BaseFreq, r.StartChannelNo)});
                    formulas.push_back(r.FreqFunc);
                }
            }
        }
        codes.insert(codes.end(), {-1, 11, 99, 100, 619, 736, 799, 800, 900});
        channels.insert(channels.end(), {-1, 0, 1, 2});
    }
};

inline const Known &known()
{
    static const Known k;
    return k;
}

// The library logs every bad input; a fuzzer feeds little else.
inline void silence()
{
    static QuietLibrary quiet;
    known();
}

// A finding that is not a crash: abort so that libFuzzer keeps the input.
#define FUZZ_CHECK(condition)                                                                      \
    do {                                                                                           \
        if (!(condition)) {                                                                        \
            std::fprintf(stderr, "%s:%d: check failed: %s\n", __FILE__, __LINE__, #condition);     \
            std::abort();                                                                          \
        }                                                                                          \
    } while (false)

inline quint64 bitsOf(double value)
{
    quint64 bits;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

class Input
{
public:
    Input(const uint8_t *data, size_t size) : p(data, size) {}

    bool more() { return p.remaining_bytes() > 0; }
    int pick(int n) { return n <= 1 ? 0 : p.ConsumeIntegralInRange(0, n - 1); }
    bool flag() { return p.ConsumeBool(); }

    // Raw text in any of the encodings a caller could hand over (lone UTF-16
    // surrogates included).
    QString text(size_t maxBytes)
    {
        const std::string bytes = p.ConsumeRandomLengthString(maxBytes);
        const int n = static_cast<int>(bytes.size());
        switch (pick(3)) {
        case 0:
            return QString::fromUtf8(bytes.data(), n);
        case 1:
            return QString::fromLatin1(bytes.data(), n);
        default:
            return QString(reinterpret_cast<const QChar *>(bytes.data()), n / 2);
        }
    }

    // A real name, or one a user could mistype from it.
    QString name(const QStringList &real)
    {
        QString s = real.value(pick(real.size()));
        switch (pick(9)) {
        case 0:
        case 1:
            return s;
        case 2:
            if (!s.isEmpty()) {
                const int i = pick(s.size());
                s[i] = s[i].isUpper() ? s[i].toLower() : s[i].toUpper();
            }
            return s;
        case 3:
            return s.left(pick(s.size() + 1));
        case 4:
            return s + text(16);
        case 5:
            return s + QLatin1String(" - ") + name(real);
        case 6:
            return QString();
        case 7:
            return text(64);
        default:
            return s.repeated(1 + pick(1024)); // up to tens of kilobytes
        }
    }
    QString tech() { return name(known().techs); }
    QString band() { return name(known().bands); }
    QString standard()
    {
        return flag() ? name(known().standards) : tech() + QLatin1String(" - ") + band();
    }
    QString direction()
    {
        static const QStringList directions = {QStringLiteral("Forward"),
                                               QStringLiteral("Reverse")};
        return name(directions);
    }

    // Near one of the given values, at the ends of the int range, or anywhere.
    int integer(const std::vector<int> &near)
    {
        switch (pick(4)) {
        case 0:
            return p.ConsumeIntegral<int>();
        case 1: {
            static const int edges[] = {INT_MIN, INT_MIN + 1, -1, 0, 1, INT_MAX - 1, INT_MAX};
            return edges[pick(7)];
        }
        case 2: {
            const qint64 moved =
                qint64(near[pick(int(near.size()))]) + p.ConsumeIntegralInRange(-3, 3);
            return int(qBound<qint64>(INT_MIN, moved, INT_MAX));
        }
        default:
            return near[pick(int(near.size()))];
        }
    }
    int channel() { return integer(known().channels); }
    int code() { return integer(known().codes); }
    int link() { return integer({0, 1, -9, 2}); }

    // Near one of the given frequencies (a few ulps or MHz away), a special
    // value, or any bit pattern.
    double real(const std::vector<double> &near)
    {
        switch (pick(5)) {
        case 0: {
            const quint64 bits = p.ConsumeIntegral<quint64>();
            double value;
            std::memcpy(&value, &bits, sizeof value);
            return value;
        }
        case 1: {
            const double inf = std::numeric_limits<double>::infinity();
            static const double specials[] = {std::numeric_limits<double>::quiet_NaN(),
                                              -std::numeric_limits<double>::quiet_NaN(),
                                              inf,
                                              -inf,
                                              DBL_TRUE_MIN,
                                              -DBL_TRUE_MIN,
                                              DBL_MIN,
                                              DBL_MAX,
                                              -DBL_MAX,
                                              0.0,
                                              -0.0,
                                              1.0};
            return specials[pick(12)];
        }
        case 2: {
            double value = near[pick(int(near.size()))];
            for (int k = p.ConsumeIntegralInRange(-4, 4); k != 0; k += k < 0 ? 1 : -1)
                value = std::nextafter(value, k < 0 ? -HUGE_VAL : HUGE_VAL);
            return value;
        }
        case 3:
            return near[pick(int(near.size()))] + p.ConsumeFloatingPointInRange(-10.0, 10.0);
        default:
            return p.ConsumeFloatingPoint<double>();
        }
    }
    double freq() { return real(known().freqs); }

private:
    FuzzedDataProvider p;
};

} // namespace fuzz

#endif
