#include "query/rastersearch.h"

#include "bandplan/formulatraits.h"
#include "store/bandaccess.h"

#include <cmath>
#include <limits>

namespace {

constexpr double kTolerance = std::numeric_limits<double>::epsilon();
constexpr qint64 kIntMin = std::numeric_limits<qint32>::min();
constexpr qint64 kIntMax = std::numeric_limits<qint32>::max();

bool fitsInt32(qint64 low, qint64 high)
{
    return low >= kIntMin && high <= kIntMax;
}

// The formula's traits when the record's frequencies are non-decreasing from
// its first to its last channel: a known formula (positive step, product
// rounded before a rounded addition), a finite base, and an integer part that
// does not wrap anywhere in the range. Null otherwise.
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

double freqAt(const stSubBand &r, qint64 channel)
{
    return recordFreq(r, static_cast<int>(channel));
}

// Where the formula puts freqMHz, by inverting it in floating point, clamped
// to the record's channels. Only a starting point: every answer is settled
// by the formula itself.
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

// The first channel in [low, high] where a predicate that is false, then true
// along the channels becomes true; high + 1 when it never does.
template <typename Predicate>
qint64 firstTrue(qint64 low, qint64 high, Predicate holds)
{
    qint64 end = high + 1;
    while (low < end) {
        const qint64 mid = low + (end - low) / 2;
        if (holds(mid))
            end = mid;
        else
            low = mid + 1;
    }
    return low;
}

// The same, starting from a guess: gallops away from it to bracket the
// answer, then bisects the bracket. A good guess costs a few evaluations, a
// bad one only a few more than plain bisection.
template <typename Predicate>
qint64 firstTrueNear(qint64 low, qint64 high, qint64 guess, Predicate holds)
{
    if (low > high)
        return low;
    guess = qBound(low, guess, high);
    qint64 from = low;
    qint64 to = high + 1; // the answer lies in [from, to]
    if (holds(guess)) {
        to = guess;
        for (qint64 step = 1; to - step >= from; step *= 2) {
            if (!holds(to - step)) {
                from = to - step + 1;
                break;
            }
            to -= step;
        }
    } else {
        from = guess + 1;
        for (qint64 step = 1; from - 1 + step <= high; step *= 2) {
            if (holds(from - 1 + step)) {
                to = from - 1 + step;
                break;
            }
            from += step;
        }
    }
    return firstTrue(from, to - 1, holds);
}

} // namespace

bool ExactMatches::contains(int channel) const
{
    for (int i = 0; i < count; ++i) {
        if (channels[i] == channel)
            return true;
    }
    return false;
}

void collectExactMatches(const stSubBand &r, double freqMHz, ExactMatches *found)
{
    const qint64 stop = r.StopChannelNo;
    qint64 channel = r.StartChannelNo;
    const FormulaTraits *traits = monotonicTraits(r);
    const bool fast = traits && std::isfinite(freqMHz);
    if (fast) {
        // Differences grow with the channel: the matches form one run that
        // starts at the first difference above -epsilon.
        channel = firstTrueNear(channel, stop, estimateChannel(*traits, r, freqMHz),
                                [&](qint64 ch) { return freqAt(r, ch) - freqMHz > -kTolerance; });
    }
    for (; channel <= stop && found->count < ExactMatches::Capacity; ++channel) {
        const double difference = freqAt(r, channel) - freqMHz;
        if (std::abs(difference) < kTolerance)
            found->add(static_cast<int>(channel));
        else if (fast && difference >= kTolerance)
            break;
    }
}

NearestChannel nearestChannel(const stSubBand &r, double freqMHz)
{
    NearestChannel best;
    const qint64 start = r.StartChannelNo;
    const qint64 stop = r.StopChannelNo;
    auto consider = [&](qint64 ch, double offset) {
        if (std::abs(offset) < std::abs(best.offset)) {
            best.offset = offset;
            best.channel = static_cast<int>(ch);
            best.link = r.Link;
        }
    };
    // From an infinite or NaN frequency every offset is infinite or NaN, so
    // no channel is ever nearer than the bound: nothing to walk.
    if (!std::isfinite(freqMHz))
        return best;
    const FormulaTraits *traits = monotonicTraits(r);
    if (!traits) {
        for (qint64 ch = start; ch <= stop; ++ch)
            consider(ch, freqAt(r, ch) - freqMHz);
        return best;
    }
    if (start > stop)
        return best;
    // Offsets grow with the channel, so |offset| falls until the first
    // channel at or above freqMHz and rises from there. The nearest is that
    // channel or the first channel of the plateau just below it; on a tie the
    // lower one wins, as in a walk that only takes strictly better channels.
    auto offsetAt = [&](qint64 ch) { return freqAt(r, ch) - freqMHz; };
    const qint64 above = firstTrueNear(start, stop, estimateChannel(*traits, r, freqMHz),
                                       [&](qint64 ch) { return offsetAt(ch) >= 0.0; });
    if (above > start) {
        const double below = offsetAt(above - 1);
        consider(firstTrueNear(start, above - 1, above - 1,
                               [&](qint64 ch) { return offsetAt(ch) >= below; }),
                 below);
    }
    if (above <= stop)
        consider(above, offsetAt(above));
    return best;
}

QList<int> channelsInWindow(const stSubBand &r, double lowMHz, double highMHz)
{
    QList<int> channels;
    const qint64 start = r.StartChannelNo;
    const qint64 stop = r.StopChannelNo;
    const FormulaTraits *traits = monotonicTraits(r);
    if (!traits) {
        for (qint64 ch = start; ch <= stop; ++ch) {
            const double freq = freqAt(r, ch);
            if (freq >= lowMHz && freq <= highMHz)
                channels.append(static_cast<int>(ch));
        }
        return channels;
    }
    const qint64 first = firstTrueNear(start, stop, estimateChannel(*traits, r, lowMHz),
                                       [&](qint64 ch) { return freqAt(r, ch) >= lowMHz; });
    const qint64 end = firstTrueNear(first, stop, estimateChannel(*traits, r, highMHz),
                                     [&](qint64 ch) { return !(freqAt(r, ch) <= highMHz); });
    channels.reserve(static_cast<int>(qMin<qint64>(end - first, 1 << 20)));
    for (qint64 ch = first; ch < end; ++ch)
        channels.append(static_cast<int>(ch));
    return channels;
}
