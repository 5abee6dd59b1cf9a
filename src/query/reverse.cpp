#include <saiskuko/chbandstore.h>

#include "query/rastersearch.h"
#include "store/bandaccess.h"
#include "store/standardtext.h"
#include "store/techslots.h"
#include "store/wrapping.h"

#include <iostream>

int ChBandStore::GetChNumFromFreq(QString tech, QString band, int link, double freqMHz,
                                  int preferred) const
{
    const ChBand &b = BandOf(tech, band);
    ExactMatches found;
    for (int i = 0; i < recordCount(b); ++i) {
        const stSubBand &r = b.SubBands[i];
        if ((r.Link == link || r.UplinkOnly) && r.StartFreq <= freqMHz && freqMHz <= r.StopFreq)
            collectExactMatches(r, freqMHz, &found);
    }
    if (found.count > 0)
        return found.contains(preferred) ? preferred : found.channels[0];

    std::cout << "GetChNumFromFreq" << " Not supported value : " << freqMHz << std::endl;
    return -1;
}

int ChBandStore::GetChNumFromFreq(QString standard, int link, double freqMHz, int preferred) const
{
    QString tech, band;
    if (!splitStandardOrWarn(standard, &tech, &band))
        return -1;
    return GetChNumFromFreq(tech, band, link, freqMHz, preferred);
}

int ChBandStore::GetChNumFromFreq(QString standard, QString direction, double freqMHz,
                                  int preferred) const
{
    return GetChNumFromFreq(standard, linkOfDirection(direction), freqMHz, preferred);
}

int ChBandStore::GetOffsetChUpDown(QString tech, QString band, int channel, int /*link*/) const
{
    // Time-division standards share channel numbers between the directions.
    const int t = LookupTechSlot(tech);
    if (t == SlotLteTdd || t == SlotTdScdma)
        return 0;
    if (t == SlotWimax && CheckChannelStandardIsWiMax(band))
        return 0;

    const ChBand &b = Technologies[t].Bands[LookupBandSlot(t, band)];
    const int n = recordCount(b);
    for (int i = 0; i < n; ++i) {
        const stSubBand &r = b.SubBands[i];
        if (!holdsChannel(r, channel))
            continue;
        // Pairs stand uplink first, downlink second; a record without its
        // partner has no offset.
        if (r.Link == 1)
            return i + 1 < n ? wrappedDifference(r.StartChannelNo, b.SubBands[i + 1].StartChannelNo) : 0;
        return i > 0 ? wrappedDifference(b.SubBands[i - 1].StartChannelNo, r.StartChannelNo) : 0;
    }
    return 0;
}

int ChBandStore::GetOffsetChUpDown(QString standard, int link, int channel) const
{
    QString tech, band;
    if (!splitStandardOrWarn(standard, &tech, &band))
        return -1;
    return GetOffsetChUpDown(tech, band, channel, link);
}

int ChBandStore::GetOffsetChUpDown(QString standard, QString direction, int channel) const
{
    return GetOffsetChUpDown(standard, linkOfDirection(direction), channel);
}
