#ifndef SAISKUKO_RASTERSEARCH_H
#define SAISKUKO_RASTERSEARCH_H

#include <saiskuko/records.h>

#include <QtCore/QList>

// Searches over the channels of one sub-band record. Each gives exactly the
// answer of walking every channel from the first to the last through the
// record's formula; where the formula is one of the library's own and grows
// monotonically over the record's channels (always, for the band plan), the
// answer is found by binary search through that same formula instead.

// Up to ten channels whose frequency equals the searched one, in the order a
// walk would meet them; later matches can never be returned, so they are not
// kept.
struct ExactMatches
{
    static constexpr int Capacity = 10;
    int channels[Capacity] = {-1, -1, -1, -1, -1, -1, -1, -1, -1, -1};
    int count = 0;

    void add(int channel)
    {
        if (count < Capacity)
            channels[count++] = channel;
    }
    bool contains(int channel) const;
};

// Appends the record's channels whose frequency lies within the double
// epsilon (as an absolute number of MHz) of freqMHz.
void collectExactMatches(const stSubBand &record, double freqMHz, ExactMatches *found);

// The record's channel nearest to freqMHz: the lowest of equally near ones,
// and none (channel -1, offset 2e9) when no channel is nearer than 2e9 MHz.
struct NearestChannel
{
    int channel = -1;
    int link = -1;
    double offset = 2000000000.0; // channel frequency minus freqMHz
};
NearestChannel nearestChannel(const stSubBand &record, double freqMHz);

// The record's channels whose frequency lies in [lowMHz, highMHz], ascending.
QList<int> channelsInWindow(const stSubBand &record, double lowMHz, double highMHz);

#endif
