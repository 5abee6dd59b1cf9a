// Channel to frequency: GetFreq, GetFreqNoLimit, IsExistChannelNo, GetStopChannelNo_InSample.
#include <saiskuko/chbandstore.h>

#include "store/chbandstore_p.h"
#include "store/recordrules.h"
#include "store/standardtext.h"

namespace {

double freqIn(const ChBand &b, int link, int channel)
{
    const bool timeDivision = ChBandNameFacts::isTimeDivision(b);
    for (int i = 0; i < recordCount(b); ++i) {
        const stSubBand &r = b.SubBands[i];
        if (holdsChannel(r, channel) && servesLinkOfBand(r, link, timeDivision))
            return recordFreq(r, channel);
    }
    return -1.0;
}

bool channelExistsIn(const ChBand &b, int link, int channel)
{
    for (int i = 0; i < recordCount(b); ++i) {
        const stSubBand &r = b.SubBands[i];
        if (r.Link == link && holdsChannel(r, channel))
            return true;
    }
    return false;
}

} // namespace

double ChBandStore::GetFreq(QString tech, QString band, int link, int channel) const
{
    return freqIn(bandNamed(*this, tech, band), link, channel);
}

double ChBandStore::GetFreq(QString standard, int link, int channel) const
{
    return answerForStandard(standard, -1.0, [&](const QString &tech, const QString &band) {
        return GetFreq(tech, band, link, channel);
    });
}

double ChBandStore::GetFreq(QString standard, QString direction, int channel) const
{
    return GetFreq(standard, linkOfDirection(direction), channel);
}

double ChBandStore::GetFreq(int code, int link, int channel) const
{
    return AnswerForBand(code, -1.0, [&](int, int, const ChBand &b, const QString &) {
        return freqIn(b, link, channel);
    });
}

double ChBandStore::GetFreqNoLimit(QString tech, QString band, int link, int channel) const
{
    const ChBand &b = bandNamed(*this, tech, band);
    for (int i = 0; i < recordCount(b); ++i) {
        if (servesLink(b.SubBands[i], link))
            return recordFreq(b.SubBands[i], channel);
    }
    return -1.0;
}

bool ChBandStore::IsExistChannelNo(QString tech, QString band, int link, int channel) const
{
    return channelExistsIn(bandNamed(*this, tech, band), link, channel);
}

bool ChBandStore::IsExistChannelNo(int code, int link, int channel) const
{
    return AnswerForBand(code, false, [&](int, int, const ChBand &b, const QString &) {
        return channelExistsIn(b, link, channel);
    });
}

int ChBandStore::GetStopChannelNo_InSample(QString tech, QString band, int channel, int link) const
{
    const ChBand &b = bandNamed(*this, tech, band);
    const int n = recordCount(b);
    // A band's uplink and downlink records stand side by side: when record i
    // is of the other direction, its neighbour i+1 answers for the pair.
    // Beyond the array stands a record never written (link -9, all zero),
    // exactly as after the last record of a shorter band.
    static const stSubBand kUnwritten = {0, 0, 0.0, 0.0, 0.0, 0, -9, nullptr, false};
    for (int i = 0; i < n; ++i) {
        const stSubBand &next = i + 1 < ChBand::MaxSubBands ? b.SubBands[i + 1] : kUnwritten;
        const stSubBand &candidate =
            (b.SubBands[i].Link != link && next.Link == link) ? next : b.SubBands[i];
        if (holdsChannel(candidate, channel))
            return candidate.StopChannelNo;
    }
    return b.SubBands[0].StopChannelNo;
}
