// Queries by channel standard enumerator, each answered by its name form.
#include "store/enumeratorquery.h"

// The failure values (after the warning) differ from the name forms' empty
// answers so that callers can tell a bad code from an empty band;
// IsUplinkOnly answers true for a bad code on purpose.

int ChBandStore::GetNumSubBand(int code) const
{
    return AnswerForEnumerator(code, -1, [&](const QString &tech, const QString &band) {
        return GetNumSubBand(tech, band);
    });
}

int ChBandStore::GetStartChannelNo(int code, int link) const
{
    return AnswerForEnumerator(code, -1, [&](const QString &tech, const QString &band) {
        return GetStartChannelNo(tech, band, link);
    });
}

int ChBandStore::GetStopChannelNo(int code, int link) const
{
    return AnswerForEnumerator(code, -1, [&](const QString &tech, const QString &band) {
        return GetStopChannelNo(tech, band, link);
    });
}

int ChBandStore::GetOffsetChUpDown(int code, int link, int channel) const
{
    return AnswerForEnumerator(code, -1, [&](const QString &tech, const QString &band) {
        return GetOffsetChUpDown(tech, band, channel, link);
    });
}

int ChBandStore::GetChNumFromFreq(int code, int link, double freqMHz, int preferred) const
{
    return AnswerForEnumerator(code, -1, [&](const QString &tech, const QString &band) {
        return GetChNumFromFreq(tech, band, link, freqMHz, preferred);
    });
}

double ChBandStore::GetDefaultIntBW(int code) const
{
    return AnswerForEnumerator(
        code, -1.0, [&](const QString &tech, const QString &) { return GetDefaultIntBW(tech); });
}

bool ChBandStore::IsUplinkOnly(int code) const
{
    return AnswerForEnumerator(code, true, [&](const QString &tech, const QString &band) {
        return IsUplinkOnly(tech, band);
    });
}

double ChBandStore::GetStartFreq(int code) const
{
    return AnswerForEnumerator(code, -1.0, [&](const QString &tech, const QString &band) {
        return GetStartFreq(tech, band);
    });
}

double ChBandStore::GetStartFreq(int code, int link) const
{
    return AnswerForEnumerator(code, -1.0, [&](const QString &tech, const QString &band) {
        return GetStartFreq(tech, band, link);
    });
}

double ChBandStore::GetStopFreq(int code, int link) const
{
    return AnswerForEnumerator(code, -1.0, [&](const QString &tech, const QString &band) {
        return GetStopFreq(tech, band, link);
    });
}

bool ChBandStore::IsExistChannelNo(int code, int link, int channel) const
{
    return AnswerForEnumerator(code, false, [&](const QString &tech, const QString &band) {
        return IsExistChannelNo(tech, band, link, channel);
    });
}

double ChBandStore::GetFreq(int code, int link, int channel) const
{
    return AnswerForEnumerator(code, -1.0, [&](const QString &tech, const QString &band) {
        return GetFreq(tech, band, link, channel);
    });
}
