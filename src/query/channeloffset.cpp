// The uplink/downlink channel offset of a band: GetOffsetChUpDown.
#include <saiskuko/chbandstore.h>

#include "store/chbandstore_p.h"
#include "store/recordrules.h"
#include "store/standardtext.h"
#include "store/technologies.h"
#include "store/wrapping.h"

int offsetChUpDownIn(int t, const ChBand &b, const QString &bandText, int channel)
{
    // Time-division standards share channel numbers between the directions.
    if (t == SlotLteTdd || t == SlotTdScdma)
        return 0;
    if (t == SlotWimax && knowsBandAs(SlotWimax, bandText, TimeDivision))
        return 0;

    const int n = recordCount(b);
    for (int i = 0; i < n; ++i) {
        const stSubBand &r = b.SubBands[i];
        if (!holdsChannel(r, channel))
            continue;
        // Pairs stand uplink first, downlink second; a record without its
        // partner has no offset.
        if (r.Link == 1)
            return i + 1 < n ? wrappedDifference(r.StartChannelNo, b.SubBands[i + 1].StartChannelNo)
                             : 0;
        return i > 0 ? wrappedDifference(b.SubBands[i - 1].StartChannelNo, r.StartChannelNo) : 0;
    }
    return 0;
}

int ChBandStore::GetOffsetChUpDown(QString tech, QString band, int channel, int /*link*/) const
{
    const int t = techSlotNamed(*this, tech);
    return offsetChUpDownIn(t, Technologies[t].Bands[bandSlotNamed(*this, t, band)], band, channel);
}

int ChBandStore::GetOffsetChUpDown(QString standard, int link, int channel) const
{
    return answerForStandard(standard, -1, [&](const QString &tech, const QString &band) {
        return GetOffsetChUpDown(tech, band, channel, link);
    });
}

int ChBandStore::GetOffsetChUpDown(QString standard, QString direction, int channel) const
{
    return GetOffsetChUpDown(standard, linkOfDirection(direction), channel);
}

int ChBandStore::GetOffsetChUpDown(int code, int /*link*/, int channel) const
{
    return AnswerForBand(code, -1, [&](int t, int, const ChBand &b, const QString &name) {
        return offsetChUpDownIn(t, b, name, channel);
    });
}
