// Channel windows: the channels of a band whose centre lies between two frequencies.
#include <saiskuko/chbandstore.h>

#include "bandplan/channelsearch.h"
#include "store/chbandstore_p.h"
#include "store/diagnostics.h"
#include "store/recordrules.h"
#include "store/standardtext.h"

namespace {

// The record's channels whose frequency lies in [lowMHz, highMHz], ascending.
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

} // namespace

QList<int> ChBandStore::GetAvailableChannels(QString channelStandard, QString direction,
                                             double lowMHz, double highMHz) const
{
    return answerForStandard(
        channelStandard, QList<int>(), [&](const QString &tech, const QString &band) {
            const ChBand &b = bandNamed(*this, tech, band);
            const int link = linkOfDirection(direction);
            QList<int> channels;
            // Only the band's first record of the direction is offered.
            for (int i = 0; i < recordCount(b); ++i) {
                if (b.SubBands[i].Link == link) {
                    channels = channelsInWindow(b.SubBands[i], lowMHz, highMHz);
                    break;
                }
            }
            reportAvailableChannels(channels.size());
            return channels;
        });
}
