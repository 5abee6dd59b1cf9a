// Which records the channel searches may bisect, and where they start.
#include "bandplan/channelsearch.h"

#include <cmath>
#include <limits>

namespace {

constexpr qint64 kIntMin = std::numeric_limits<qint32>::min();
constexpr qint64 kIntMax = std::numeric_limits<qint32>::max();

bool fitsInt32(qint64 low, qint64 high)
{
    return low >= kIntMin && high <= kIntMax;
}

} // namespace

// Monotonic takes a known formula (positive step, product rounded before a
// rounded addition), a finite base, and an integer part that does not wrap
// anywhere in the record's range.
const FormulaTraits *monotonicTraits(const stSubBand &r)
{
    const FormulaTraits *traits = formulaTraits(r.FreqFunc);
    if (!traits || !std::isfinite(r.BaseFreq))
        return nullptr;
    const qint64 start = r.StartChannelNo;
    const qint64 stop = r.StopChannelNo;
    bool fits = false;
    switch (traits->kind) {
    case FormulaKind::Offset:
        fits = fitsInt32(start - traits->offset, stop - traits->offset);
        break;
    case FormulaKind::Reference:
        fits = fitsInt32(0, stop - start);
        break;
    case FormulaKind::Times5:
        fits = fitsInt32(5 * start, 5 * stop);
        break;
    }
    return fits ? traits : nullptr;
}

// The formula inverted in floating point; every answer is settled by the
// formula itself.
qint64 estimateChannel(const FormulaTraits &traits, const stSubBand &r, double freqMHz)
{
    const double origin = traits.kind == FormulaKind::Offset      ? traits.offset
                          : traits.kind == FormulaKind::Reference ? r.StartChannelNo
                                                                  : 0.0;
    const double estimate = origin + (freqMHz - r.BaseFreq) / traits.step;
    if (!(estimate >= r.StartChannelNo)) // also NaN
        return r.StartChannelNo;
    if (!(estimate <= r.StopChannelNo))
        return r.StopChannelNo;
    return static_cast<qint64>(estimate);
}
