#ifndef SAISKUKO_RECORDRULES_H
#define SAISKUKO_RECORDRULES_H

// The rules about sub-band records that the queries apply, written once for
// the library and for the program and tools that must agree with it.

#include <saiskuko/chband.h>

#include "store/technologies.h"

#include <limits>

// Number of records of a band that may be read, clamped to the array.
inline int recordCount(const ChBand &band)
{
    if (band.NumSubBand <= 0)
        return 0;
    return band.NumSubBand < ChBand::MaxSubBands ? band.NumSubBand : ChBand::MaxSubBands;
}

// Frequency of a channel through the record's own formula; the formula's
// third argument is always the record's start channel. A record registered
// without a formula has no frequencies (NaN matches no comparison).
inline double recordFreq(const stSubBand &record, int channel)
{
    if (!record.FreqFunc)
        return std::numeric_limits<double>::quiet_NaN();
    return record.FreqFunc(channel, record.BaseFreq, record.StartChannelNo);
}

inline bool holdsChannel(const stSubBand &record, int channel)
{
    return record.StartChannelNo <= channel && channel <= record.StopChannelNo;
}

// Placeholder records (start edge exactly 1.0) stand for a missing direction.
inline bool isPlaceholder(const stSubBand &record)
{
    return record.StartFreq == 1.0;
}

// A record answers for a link when it is of that link or flagged uplink-only
// (the flag marks records that serve both directions).
inline bool servesLink(const stSubBand &record, int link)
{
    return record.Link == link || record.UplinkOnly;
}

// A channel-to-frequency query also takes every record of a time-division
// band, whose directions share one channel range.
inline bool servesLinkOfBand(const stSubBand &record, int link, bool timeDivisionBand)
{
    return servesLink(record, link) || timeDivisionBand;
}

#endif
