// Queries by channel standard enumerator: each finds its band and asks what its name form asks.
#include "query/bandqueries.h"
#include "query/exactmatches.h"
#include "store/enumeratorquery.h"
#include "store/technologies.h"

// The failure values (after the warning) differ from the name forms' empty
// answers so that callers can tell a bad code from an empty band;
// IsUplinkOnly answers true for a bad code on purpose.

int ChBandStore::GetNumSubBand(int code) const
{
    return AnswerForBand(code, -1,
                         [](int, int, const ChBand &b, const QString &) { return b.NumSubBand; });
}

int ChBandStore::GetStartChannelNo(int code, int link) const
{
    return AnswerForBand(code, -1, [&](int, int, const ChBand &b, const QString &) {
        return startChannelIn(b, link);
    });
}

int ChBandStore::GetStopChannelNo(int code, int link) const
{
    return AnswerForBand(code, -1, [&](int, int, const ChBand &b, const QString &) {
        return stopChannelIn(b, link);
    });
}

int ChBandStore::GetOffsetChUpDown(int code, int /*link*/, int channel) const
{
    return AnswerForBand(code, -1, [&](int t, int, const ChBand &b, const QString &name) {
        return offsetChUpDownIn(t, b, name, channel);
    });
}

int ChBandStore::GetChNumFromFreq(int code, int link, double freqMHz, int preferred) const
{
    // Captured by value: the quick path then keeps them in registers.
    return AnswerForBand(code, -1, [=](int t, int slot, const ChBand &b, const QString &) {
        return chNumFromFreqIn(b, SearchIndex::find(*this, t, slot), link, freqMHz, preferred);
    });
}

double ChBandStore::GetDefaultIntBW(int code) const
{
    return AnswerForBand(
        code, -1.0, [&](int t, int, const ChBand &, const QString &) { return defaultIntBwHz(t); });
}

bool ChBandStore::IsUplinkOnly(int code) const
{
    return AnswerForBand(code, true, [&](int, int, const ChBand &b, const QString &) {
        return b.SubBands[0].UplinkOnly;
    });
}

double ChBandStore::GetStartFreq(int code) const
{
    return AnswerForBand(code, -1.0, [](int, int, const ChBand &b, const QString &) {
        return b.SubBands[0].StartFreq;
    });
}

double ChBandStore::GetStartFreq(int code, int link) const
{
    return AnswerForBand(code, -1.0, [&](int, int, const ChBand &b, const QString &) {
        return startFreqIn(b, link);
    });
}

double ChBandStore::GetStopFreq(int code, int link) const
{
    return AnswerForBand(code, -1.0, [&](int, int, const ChBand &b, const QString &) {
        return stopFreqIn(b, link);
    });
}

bool ChBandStore::IsExistChannelNo(int code, int link, int channel) const
{
    return AnswerForBand(code, false, [&](int, int, const ChBand &b, const QString &) {
        return channelExistsIn(b, link, channel);
    });
}

double ChBandStore::GetFreq(int code, int link, int channel) const
{
    return AnswerForBand(code, -1.0, [&](int, int, const ChBand &b, const QString &) {
        return freqIn(b, link, channel);
    });
}
