#ifndef SAISKUKO_TOOLS_LOOKUP_H
#define SAISKUKO_TOOLS_LOOKUP_H

#include "bandname.h"

#include <QtCore/QList>

// Channels and frequencies of one band, read from its records. A band whose
// links share their channels (TDD) answers every query for either direction.

// The real records that answer for a link, in registration order.
QList<const stSubBand *> recordsFor(const BandRef &band, int link);

// The links a band answers for, uplink first.
QList<int> linksOf(const BandRef &band);

// The centre of a channel in one direction, from the first record that holds
// it; false when no record of that direction does.
bool channelFreq(const BandRef &band, int link, int channel, double *mhz);

struct ChannelHit
{
    int channel = -1;
    double mhz = 0;          // the channel's centre
    bool insideEdges = true; // within the stated edges of a record of the link
};

// The channel whose centre is mhz to within half a hertz (so that every
// printed frequency converts back), preferring `preferred` where several are;
// false when there is none.
bool channelAt(const BandRef &band, int link, double mhz, int preferred, ChannelHit *hit);

// The channel whose centre is nearest to mhz, for a frequency within the span
// of the direction's records; false outside it.
bool nearestChannel(const BandRef &band, int link, double mhz, ChannelHit *hit);

// The channel of the other direction paired with a channel of an FDD band,
// from the band's uplink-to-downlink channel offset; false where the band is
// not FDD or the pair shares the channel number.
bool pairedChannel(const BandRef &band, int link, int channel, int *paired);

// One hit of the frequency search: a band and direction holding the
// frequency, and its channel nearest to it.
struct SearchHit
{
    BandRef band;
    int link = -1;
    int channel = -1;
    double centreMHz = 0; // the channel's centre
    double offsetMHz = 0; // the centre minus the searched frequency
};

// The library's frequency search as the program shows it, nearest first: one
// hit per band and direction, both directions of a TDD band, real channels
// only.
QList<SearchHit> searchHits(double mhz);

#endif
