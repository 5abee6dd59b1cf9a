#include <saiskuko/chbandstore.h>

#include "store/standardtext.h"

#include <QtCore/QLatin1String>

namespace {

// Time-division band families: uplink and downlink share one range, so a
// record's link direction does not restrict a channel lookup there.
const char *const kLteTddBands[] = {
    "Band Global", "Band 33 (1900)", "Band 34 (2010)", "Band 35 (1850)", "Band 36 (1930)",
    "Band 37 (1910)", "Band 38 (2570)", "Band 39 (1880)", "Band 40 (2300)", "Band 41 (2496)",
    "Band 42 (3400)", "Band 43 (3600)", "Band 44 (700)", "Band 45 (1500)", "Band 46 (6000)",
    "Band 47 (6000)", "Band 48 (3600)",
};
const char *const kTdScdmaBands[] = {
    "FBN 0", "FBN 1", "FBN 2", "FBN 3", "FBN 4", "FBN 5", "FBN 6", "FBN 7", "FBN 8",
};
// The single-record (TDD) WiMAX profiles; profiles 6 to 15 are paired.
const char *const kWimaxTddBands[] = {
    "ProfR1 (1.25 2150)", "ProfR2 (1.25 2305)", "ProfR3 (1.25 2361)",
    "ProfR4 (1.25 2500)", "ProfR5 (1.25 3400)", "ProfR26 (10 5275)",
    "ProfR27 (10 5740)", "ProfR28 (10 5735)", "ProfR29 (8.75 2304)",
};

template <size_t N>
bool isListed(const QString &name, const char *const (&list)[N])
{
    for (const char *entry : list) {
        if (name == QLatin1String(entry))
            return true;
    }
    return false;
}

} // namespace

bool ChBandStore::IsChannelStandard(QString standard) const
{
    QString tech, band;
    if (!splitStandardOrWarn(standard, &tech, &band))
        return false;
    return StrictEnumerator(tech, band) >= 0;
}

bool ChBandStore::IsChannelStandard(int code) const
{
    QString tech, band;
    if (!NamesOfEnumerator(code, &tech, &band))
        return false;
    return StrictEnumerator(tech, band) >= 0;
}

bool ChBandStore::CheckChannelStandardIsLTETDD(QString band) const
{
    return isListed(band, kLteTddBands);
}

bool ChBandStore::CheckChannelStandardIsTDS(QString band) const
{
    return isListed(band, kTdScdmaBands);
}

bool ChBandStore::CheckChannelStandardIsWiMax(QString band) const
{
    return isListed(band, kWimaxTddBands);
}
