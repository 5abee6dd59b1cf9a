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

// True when the record's frequencies are non-decreasing from its first to
// its last channel: a known formula (positive step, product rounded before
// a rounded addition), a finite base, and an integer part that does not wrap
// anywhere in the range.
bool growsMonotonically(const stSubBand &r)
{
    const FormulaTraits *traits = formulaTraits(r.FreqFunc);
    if (!traits || !std::isfinite(r.BaseFreq))
        return false;
    const qint64 start = r.StartChannelNo;
    const qint64 stop = r.StopChannelNo;
    switch (traits->kind) {
    case FormulaKind::Offset:
        return fitsInt32(start - traits->offset, stop - traits->offset);
    case FormulaKind::Reference:
        return fitsInt32(0, stop - start);
    case FormulaKind::Times5:
        return fitsInt32(5 * start, 5 * stop);
    }
    return false;
}

double freqAt(const stSubBand &r, qint64 channel)
{
    return recordFreq(r, static_cast<int>(channel));
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
    const bool fast = growsMonotonically(r) && std::isfinite(freqMHz);
    if (fast) {
        // Differences grow with the channel: the matches form one run that
        // starts at the first difference above -epsilon.
        channel = firstTrue(channel, stop, [&](qint64 ch) {
            return freqAt(r, ch) - freqMHz > -kTolerance;
        });
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
    if (!growsMonotonically(r) || !std::isfinite(freqMHz)) {
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
    const qint64 above = firstTrue(start, stop, [&](qint64 ch) { return offsetAt(ch) >= 0.0; });
    if (above > start) {
        const double below = offsetAt(above - 1);
        consider(firstTrue(start, above - 1, [&](qint64 ch) { return offsetAt(ch) >= below; }),
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
    if (!growsMonotonically(r)) {
        for (qint64 ch = start; ch <= stop; ++ch) {
            const double freq = freqAt(r, ch);
            if (freq >= lowMHz && freq <= highMHz)
                channels.append(static_cast<int>(ch));
        }
        return channels;
    }
    const qint64 first = firstTrue(start, stop, [&](qint64 ch) { return freqAt(r, ch) >= lowMHz; });
    const qint64 end = firstTrue(first, stop, [&](qint64 ch) { return !(freqAt(r, ch) <= highMHz); });
    channels.reserve(static_cast<int>(qMin<qint64>(end - first, 1 << 20)));
    for (qint64 ch = first; ch < end; ++ch)
        channels.append(static_cast<int>(ch));
    return channels;
}
