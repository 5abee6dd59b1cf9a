#ifndef SAISKUKO_CHANNELSEARCH_H
#define SAISKUKO_CHANNELSEARCH_H

// Binary searches along the channels of one sub-band record, through the
// record's own formula. Where the formula is one of the library's and grows
// monotonically over the record's channels (always, for the band plan), a
// search gives exactly the answer of walking every channel from the first to
// the last; elsewhere the callers walk.

#include "bandplan/formulatraits.h"
#include "store/recordrules.h"

#include <QtCore/QtGlobal>

#include <cfloat>
#include <cmath>
#include <limits>

// The formula's traits when the record's frequencies are non-decreasing from
// its first to its last channel; null otherwise. Monotonic takes a known
// formula (positive step, product rounded before a rounded addition), a
// finite base, and an integer part that does not wrap anywhere in the
// record's range.
inline const FormulaTraits *monotonicTraits(const stSubBand &r)
{
    const FormulaTraits *traits = formulaTraits(r.FreqFunc);
    if (!traits || !std::isfinite(r.BaseFreq))
        return nullptr;
    const qint64 start = r.StartChannelNo;
    const qint64 stop = r.StopChannelNo;
    qint64 low = 0;
    qint64 high = 0;
    switch (traits->kind) {
    case FormulaKind::Offset:
        low = start - traits->offset;
        high = stop - traits->offset;
        break;
    case FormulaKind::Reference:
        high = stop - start;
        break;
    case FormulaKind::Times5:
        low = 5 * start;
        high = 5 * stop;
        break;
    }
    const bool fits =
        low >= std::numeric_limits<qint32>::min() && high <= std::numeric_limits<qint32>::max();
    return fits ? traits : nullptr;
}

// The channel a count of channels above the start (half a channel ahead)
// falls on, clamped to the record's channels. Counting from the start lets a
// truncation round: the conversion back to double that a rounding towards
// the nearest would need lies on the path of every conversion query.
inline qint64 roundedChannel(qint32 start, qint32 stop, double aboveStart)
{
    if (!(aboveStart >= 0.5)) // also NaN
        return start;
    if (!(aboveStart <= double(stop) - start + 0.5))
        return stop;
    return start + static_cast<qint64>(aboveStart);
}

// The channel from which the formula counts its steps.
inline double channelOrigin(const FormulaTraits &traits, const stSubBand &r)
{
    return traits.kind == FormulaKind::Offset      ? traits.offset
           : traits.kind == FormulaKind::Reference ? r.StartChannelNo
                                                   : 0.0;
}

// Where the formula puts freqMHz, rounded to the nearest channel and clamped
// to the record's channels: a starting point for a search, never an answer by
// itself.
inline qint64 estimateChannel(const FormulaTraits &traits, const stSubBand &r, double freqMHz)
{
    const double originAboveStart = channelOrigin(traits, r) - r.StartChannelNo + 0.5;
    return roundedChannel(r.StartChannelNo, r.StopChannelNo,
                          (freqMHz - r.BaseFreq) * traits.inverseStep + originAboveStart);
}

// True when the frequencies of any two of the record's channels differ by
// more than two double epsilons (traits from monotonicTraits): then at most
// one channel lies within an epsilon of any frequency.
inline bool channelsSpacedApart(const FormulaTraits &traits, const stSubBand &record)
{
    return record.BaseFreq < traits.spacedBaseLimit && -record.BaseFreq < traits.spacedBaseLimit;
}

// x rounded to a whole number, ties to even; beyond 2^51 in magnitude, a
// number as large. Adding and taking away 1.5 x 2^52 rounds in two additions
// where doubles are evaluated as doubles.
inline double roundedToWhole(double x)
{
#if FLT_EVAL_METHOD == 0
    constexpr double kShift = 6755399441055744.0;
    return (x + kShift) - kShift;
#else
    return std::nearbyint(x);
#endif
}

// What a search for one frequency needs to know of a record before it
// starts, and the fields it was worked out from.
struct RecordSearch
{
    ChFreqFunc func = nullptr;
    double base = 0.0;
    qint32 start = 0;
    qint32 stop = -1;
    // The record holds channels, grows monotonically and its channels lie
    // spaced apart: a frequency can match its nearest channel alone.
    bool spaced = false;
    // The formula as base + (channel - origin) x step, for a spaced record,
    // and its first and last channel as steps from the origin.
    double inverseStep = 0.0;
    double step = 0.0;
    qint32 origin = 0;
    double firstSteps = 0.0;
    double lastSteps = 0.0;

    static RecordSearch of(const stSubBand &r)
    {
        RecordSearch facts;
        facts.func = r.FreqFunc;
        facts.base = r.BaseFreq;
        facts.start = r.StartChannelNo;
        facts.stop = r.StopChannelNo;
        const FormulaTraits *traits = monotonicTraits(r);
        if (traits && r.StartChannelNo <= r.StopChannelNo && channelsSpacedApart(*traits, r)) {
            facts.spaced = true;
            facts.inverseStep = traits->inverseStep;
            facts.step = traits->step;
            facts.origin = static_cast<qint32>(channelOrigin(*traits, r));
            facts.firstSteps = double(r.StartChannelNo) - facts.origin;
            facts.lastSteps = double(r.StopChannelNo) - facts.origin;
        }
        return facts;
    }
    // False once a field the facts depend on has changed.
    bool describes(const stSubBand &r) const
    {
        return r.FreqFunc == func && r.BaseFreq == base && r.StartChannelNo == start
               && r.StopChannelNo == stop;
    }
    // A spaced record's channel nearest to freqMHz, as steps from the origin
    // (a whole number); a tie may go either way, since then neither channel
    // matches.
    double nearestSteps(double freqMHz) const
    {
        const double steps = roundedToWhole((freqMHz - base) * inverseStep);
        return steps < firstSteps ? firstSteps : steps > lastSteps ? lastSteps : steps;
    }
    qint64 channelAt(double steps) const { return origin + static_cast<qint64>(steps); }
    // The formula's own number for the channel that many steps from the
    // origin: no step count wraps within the record, and a Times5 formula's
    // 5 x channel is exact in a double.
    double freqAtSteps(double steps) const { return linearFreq(steps, base, step); }
};

inline double freqAt(const stSubBand &record, qint64 channel)
{
    return recordFreq(record, static_cast<int>(channel));
}

// The first channel in [low, high] where a predicate that is false, then true
// along the channels becomes true; high + 1 when it never does.
template <typename Predicate>
inline qint64 firstTrue(qint64 low, qint64 high, Predicate holds)
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
inline qint64 firstTrueNear(qint64 low, qint64 high, qint64 guess, Predicate holds)
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

#endif
