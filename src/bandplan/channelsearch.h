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

// The formula's traits when the record's frequencies are non-decreasing from
// its first to its last channel; null otherwise.
const FormulaTraits *monotonicTraits(const stSubBand &record);

// Where the formula puts freqMHz, clamped to the record's channels: a
// starting point for a search, never an answer by itself.
qint64 estimateChannel(const FormulaTraits &traits, const stSubBand &record, double freqMHz);

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
