#include <saiskuko/chbandstore.h>

// Each query by enumerator names the band through GetEnumulator(int) and asks
// the name form. The failure values (after the warning) differ from the name
// forms' empty answers so that callers can tell a bad code from an empty band;
// IsUplinkOnly answers true for a bad code on purpose.

int ChBandStore::GetNumSubBand(int code) const
{
    QString tech, band;
    return NamesOfEnumerator(code, &tech, &band) ? GetNumSubBand(tech, band) : -1;
}

int ChBandStore::GetStartChannelNo(int code, int link) const
{
    QString tech, band;
    return NamesOfEnumerator(code, &tech, &band) ? GetStartChannelNo(tech, band, link) : -1;
}

int ChBandStore::GetStopChannelNo(int code, int link) const
{
    QString tech, band;
    return NamesOfEnumerator(code, &tech, &band) ? GetStopChannelNo(tech, band, link) : -1;
}

int ChBandStore::GetOffsetChUpDown(int code, int link, int channel) const
{
    QString tech, band;
    return NamesOfEnumerator(code, &tech, &band) ? GetOffsetChUpDown(tech, band, channel, link)
                                                 : -1;
}

int ChBandStore::GetChNumFromFreq(int code, int link, double freqMHz, int preferred) const
{
    QString tech, band;
    return NamesOfEnumerator(code, &tech, &band)
               ? GetChNumFromFreq(tech, band, link, freqMHz, preferred)
               : -1;
}

double ChBandStore::GetDefaultIntBW(int code) const
{
    QString tech, band;
    return NamesOfEnumerator(code, &tech, &band) ? GetDefaultIntBW(tech) : -1.0;
}

bool ChBandStore::IsUplinkOnly(int code) const
{
    QString tech, band;
    return NamesOfEnumerator(code, &tech, &band) ? IsUplinkOnly(tech, band) : true;
}

double ChBandStore::GetStartFreq(int code) const
{
    QString tech, band;
    return NamesOfEnumerator(code, &tech, &band) ? GetStartFreq(tech, band) : -1.0;
}

double ChBandStore::GetStartFreq(int code, int link) const
{
    QString tech, band;
    return NamesOfEnumerator(code, &tech, &band) ? GetStartFreq(tech, band, link) : -1.0;
}

double ChBandStore::GetStopFreq(int code, int link) const
{
    QString tech, band;
    return NamesOfEnumerator(code, &tech, &band) ? GetStopFreq(tech, band, link) : -1.0;
}

bool ChBandStore::IsExistChannelNo(int code, int link, int channel) const
{
    QString tech, band;
    return NamesOfEnumerator(code, &tech, &band) && IsExistChannelNo(tech, band, link, channel);
}

double ChBandStore::GetFreq(int code, int link, int channel) const
{
    QString tech, band;
    return NamesOfEnumerator(code, &tech, &band) ? GetFreq(tech, band, link, channel) : -1.0;
}
