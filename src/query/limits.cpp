// Band limits: edges, first and last channels, record counts, uplink-only flags, bandwidths.
#include <saiskuko/chbandstore.h>

#include "store/chbandstore_p.h"
#include "store/recordrules.h"
#include "store/technologies.h"

#include <functional>

namespace {

// The link a channel-limit query falls back to: downlink for anything but 0.
int fallbackLink(int link)
{
    return link == 0 ? 1 : 0;
}

// The edge of the band's records of a link that beats all later ones (the
// first record's on a tie); 0.0 when the band has no record of the link.
template <typename Beats>
double outermostEdge(const ChBand &b, int link, double stSubBand::*edge, Beats beats)
{
    bool found = false;
    double best = 0.0;
    for (int i = 0; i < recordCount(b); ++i) {
        const stSubBand &r = b.SubBands[i];
        if (r.Link == link && (!found || beats(r.*edge, best))) {
            best = r.*edge;
            found = true;
        }
    }
    return best;
}

double startFreqIn(const ChBand &b, int link)
{
    return outermostEdge(b, link, &stSubBand::StartFreq, std::less<double>());
}

double stopFreqIn(const ChBand &b, int link)
{
    return outermostEdge(b, link, &stSubBand::StopFreq, std::greater<double>());
}

int startChannelIn(const ChBand &b, int link)
{
    const int n = recordCount(b);
    bool found = false;
    int lowest = 0;
    auto scan = [&](int wanted) {
        for (int i = 0; i < n; ++i) {
            const stSubBand &r = b.SubBands[i];
            if (r.Link != wanted || isPlaceholder(r))
                continue;
            if (!found || r.StartChannelNo < lowest)
                lowest = r.StartChannelNo;
            found = true;
        }
    };
    scan(link);
    // A real lowest channel of 0 is an answer, not a miss: no fallback then.
    if (lowest != 0)
        return lowest;
    scan(fallbackLink(link));
    return lowest;
}

int stopChannelIn(const ChBand &b, int link)
{
    const int n = recordCount(b);
    int highest = 0; // negative stop channels never win
    auto scan = [&](int wanted) {
        for (int i = n - 1; i >= 0; --i) {
            const stSubBand &r = b.SubBands[i];
            if (r.Link == wanted && !isPlaceholder(r) && r.StopChannelNo > highest)
                highest = r.StopChannelNo;
        }
    };
    scan(link);
    if (highest != 0)
        return highest;
    scan(fallbackLink(link));
    return highest;
}

} // namespace

double ChBandStore::GetStartFreq(QString tech, QString band) const
{
    return bandNamed(*this, tech, band).SubBands[0].StartFreq;
}

double ChBandStore::GetStartFreq(int code) const
{
    return AnswerForBand(code, -1.0, [](int, int, const ChBand &b, const QString &) {
        return b.SubBands[0].StartFreq;
    });
}

double ChBandStore::GetStartFreq(QString tech, QString band, int link) const
{
    return startFreqIn(bandNamed(*this, tech, band), link);
}

double ChBandStore::GetStartFreq(int code, int link) const
{
    return AnswerForBand(code, -1.0, [&](int, int, const ChBand &b, const QString &) {
        return startFreqIn(b, link);
    });
}

double ChBandStore::GetStopFreq(QString tech, QString band, int link) const
{
    return stopFreqIn(bandNamed(*this, tech, band), link);
}

double ChBandStore::GetStopFreq(int code, int link) const
{
    return AnswerForBand(code, -1.0, [&](int, int, const ChBand &b, const QString &) {
        return stopFreqIn(b, link);
    });
}

int ChBandStore::GetStartChannelNo(QString tech, QString band, int link) const
{
    return startChannelIn(bandNamed(*this, tech, band), link);
}

int ChBandStore::GetStartChannelNo(int code, int link) const
{
    return AnswerForBand(code, -1, [&](int, int, const ChBand &b, const QString &) {
        return startChannelIn(b, link);
    });
}

int ChBandStore::GetStopChannelNo(QString tech, QString band, int link) const
{
    return stopChannelIn(bandNamed(*this, tech, band), link);
}

int ChBandStore::GetStopChannelNo(int code, int link) const
{
    return AnswerForBand(code, -1, [&](int, int, const ChBand &b, const QString &) {
        return stopChannelIn(b, link);
    });
}

int ChBandStore::GetNumSubBand(QString tech, QString band) const
{
    return bandNamed(*this, tech, band).NumSubBand;
}

int ChBandStore::GetNumSubBand(int code) const
{
    return AnswerForBand(code, -1,
                         [](int, int, const ChBand &b, const QString &) { return b.NumSubBand; });
}

bool ChBandStore::IsUplinkOnly(QString tech, QString band) const
{
    return bandNamed(*this, tech, band).SubBands[0].UplinkOnly;
}

// True for a bad code, on purpose.
bool ChBandStore::IsUplinkOnly(int code) const
{
    return AnswerForBand(code, true, [&](int, int, const ChBand &b, const QString &) {
        return b.SubBands[0].UplinkOnly;
    });
}

double ChBandStore::GetDefaultIntBW(QString tech) const
{
    for (const TechnologyFacts &facts : kTechnologies) {
        if (facts.defaultIntBwHz > 0.0 && tech == QLatin1String(facts.name))
            return facts.defaultIntBwHz;
    }
    return kFallbackIntBwHz;
}

double ChBandStore::GetDefaultIntBW(int code) const
{
    return AnswerForBand(
        code, -1.0, [&](int t, int, const ChBand &, const QString &) { return defaultIntBwHz(t); });
}
