#ifndef SAISKUKO_TECHNOLOGIES_H
#define SAISKUKO_TECHNOLOGIES_H

// What the library knows of each technology by itself, apart from the band
// table: one row per technology slot. Header-only data, so that the program,
// the tests and the tools read the same facts as the library.

#include <QtCore/QLatin1String>
#include <QtCore/QString>

#include <cstddef>

// Technology slots as the store numbers them. The numbers are part of every
// channel standard enumerator (100 x slot + band), so they never change.
enum TechSlot : int {
    SlotCdma = 0,
    SlotGsm = 1,
    SlotLteFdd = 2,
    SlotLteTdd = 3,
    SlotTdScdma = 4,
    SlotWcdma = 5,
    SlotWimax = 6,
    SlotNr = 7,
};

constexpr int kNumTechSlots = 8;

// A band name a technology knows without the band table: listed in its
// catalogue (numbered in this order), and/or one of its time-division bands,
// whose uplink and downlink share one channel range.
enum KnownBandRole : unsigned {
    Catalogued = 1u,
    TimeDivision = 2u,
    CataloguedTimeDivision = Catalogued | TimeDivision,
};

struct KnownBandName
{
    const char *name;
    KnownBandRole roles;
};

struct TechnologyFacts
{
    const char *name;
    double defaultIntBwHz; // 0 where the technology has none of its own
    bool pairedRefStrings; // reference strings show one record chosen by link
    const KnownBandName *knownBands;
    int knownBandCount;
};

namespace technology_data {

constexpr KnownBandName kCdma[] = {
    {"Band 0 (800)", Catalogued},      {"Band 1 (NA PCS)", Catalogued},
    {"Band 2 (TACS)", Catalogued},     {"Band 3 (JTACS)", Catalogued},
    {"Band 4 (KR PCS)", Catalogued},   {"Band 5 (450)", Catalogued},
    {"Band 6 (2100)", Catalogued},     {"Band 7 (700)", Catalogued},
    {"Band 8 (1800)", Catalogued},     {"Band 9 (900)", Catalogued},
    {"Band 10 (2nd 800)", Catalogued},
};
constexpr KnownBandName kGsm[] = {
    {"GSM 450", Catalogued},           {"GSM 480", Catalogued},   {"GSM 850", Catalogued},
    {"P-GSM 900", Catalogued},         {"E-GSM 900", Catalogued}, {"R-GSM 900", Catalogued},
    {"R-GSM 900 (China)", Catalogued}, {"DCS 1800", Catalogued},  {"PCS 1900", Catalogued},
};
constexpr KnownBandName kLteFdd[] = {
    {"Band Global", Catalogued},    {"Band 1 (2100)", Catalogued},  {"Band 2 (1900)", Catalogued},
    {"Band 3 (1800)", Catalogued},  {"Band 4 (1700)", Catalogued},  {"Band 5 (850)", Catalogued},
    {"Band 7 (2600)", Catalogued},  {"Band 8 (900)", Catalogued},   {"Band 9 (1800)", Catalogued},
    {"Band 10 (1700)", Catalogued}, {"Band 11 (1500)", Catalogued}, {"Band 12 (700)", Catalogued},
    {"Band 13 (700)", Catalogued},  {"Band 14 (700)", Catalogued},  {"Band 17 (700)", Catalogued},
    {"Band 18 (800)", Catalogued},  {"Band 20 (800)", Catalogued},  {"Band 21 (1500)", Catalogued},
    {"Band 22 (3500)", Catalogued}, {"Band 23 (2100)", Catalogued}, {"Band 24 (1500)", Catalogued},
    {"Band 25 (1900)", Catalogued}, {"Band 26 (800)", Catalogued},
};
// The catalogue stops at Band 43; the time-division family goes on to 48.
constexpr KnownBandName kLteTdd[] = {
    {"Band Global", CataloguedTimeDivision},
    {"Band 33 (1900)", CataloguedTimeDivision},
    {"Band 34 (2010)", CataloguedTimeDivision},
    {"Band 35 (1850)", CataloguedTimeDivision},
    {"Band 36 (1930)", CataloguedTimeDivision},
    {"Band 37 (1910)", CataloguedTimeDivision},
    {"Band 38 (2570)", CataloguedTimeDivision},
    {"Band 39 (1880)", CataloguedTimeDivision},
    {"Band 40 (2300)", CataloguedTimeDivision},
    {"Band 41 (2496)", CataloguedTimeDivision},
    {"Band 42 (3400)", CataloguedTimeDivision},
    {"Band 43 (3600)", CataloguedTimeDivision},
    {"Band 44 (700)", TimeDivision},
    {"Band 45 (1500)", TimeDivision},
    {"Band 46 (6000)", TimeDivision},
    {"Band 47 (6000)", TimeDivision},
    {"Band 48 (3600)", TimeDivision},
};
constexpr KnownBandName kTdScdma[] = {
    {"FBN 0", CataloguedTimeDivision}, {"FBN 1", CataloguedTimeDivision},
    {"FBN 2", CataloguedTimeDivision}, {"FBN 3", CataloguedTimeDivision},
    {"FBN 4", CataloguedTimeDivision}, {"FBN 5", CataloguedTimeDivision},
    {"FBN 6", CataloguedTimeDivision}, {"FBN 7", CataloguedTimeDivision},
    {"FBN 8", CataloguedTimeDivision},
};
constexpr KnownBandName kWcdma[] = {
    {"Band Global", Catalogued},
    {"Band 1 (2100-General)", Catalogued},
    {"Band 2 (1900-General)", Catalogued},
    {"Band 2 (1900-Additional)", Catalogued},
    {"Band 3 (1800-General)", Catalogued},
    {"Band 4 (1700-General)", Catalogued},
    {"Band 4 (1700-Additional)", Catalogued},
    {"Band 5 (850-General)", Catalogued},
    {"Band 5 (850-Additional)", Catalogued},
    {"Band 6 (800-General)", Catalogued},
    {"Band 6 (800-Additional)", Catalogued},
    {"Band 7 (2600-General)", Catalogued},
    {"Band 7 (2600-Additional)", Catalogued},
    {"Band 8 (900-General)", Catalogued},
    {"Band 9 (1800-General)", Catalogued},
    {"Band 10 (1700-General)", Catalogued},
    {"Band 10 (1700-Additional)", Catalogued},
    {"Band 11 (1476-General)", Catalogued},
    {"Band 12 (729-General)", Catalogued},
    {"Band 12 (729-Additional)", Catalogued},
    {"Band 13 (746-General)", Catalogued},
    {"Band 13 (746-Additional)", Catalogued},
    {"Band 14 (758-General)", Catalogued},
    {"Band 14 (758-Additional)", Catalogued},
    {"Band 19 (800-General)", Catalogued},
    {"Band 19 (800-Additional)", Catalogued},
    {"Band 20 (800-General)", Catalogued},
    {"Band 21 (1500-General)", Catalogued},
    {"Band 21 (3500-General)", Catalogued},
    {"Band 25 (1900-General)", Catalogued},
    {"Band 25 (1900-Additional)", Catalogued},
    {"Band 26 (1900-General)", Catalogued},
    {"Band 26 (1900-Additional)", Catalogued},
};
// Only the single-record profiles are time-division; profiles 6 to 15 are
// paired.
constexpr KnownBandName kWimax[] = {
    {"ProfR1 (1.25 2150)", CataloguedTimeDivision},
    {"ProfR2 (1.25 2305)", CataloguedTimeDivision},
    {"ProfR3 (1.25 2361)", CataloguedTimeDivision},
    {"ProfR4 (1.25 2500)", CataloguedTimeDivision},
    {"ProfR5 (1.25 3400)", CataloguedTimeDivision},
    {"ProfR6 (3.5 2598)", Catalogued},
    {"ProfR7 (3.5 3461)", Catalogued},
    {"ProfR8 (3.5 3551)", Catalogued},
    {"ProfR9 (3.5 3651)", Catalogued},
    {"ProfR10 (3.5 3751)", Catalogued},
    {"ProfR11 (7 2600)", Catalogued},
    {"ProfR12 (7 3463)", Catalogued},
    {"ProfR13 (7 3553)", Catalogued},
    {"ProfR14 (7 3653)", Catalogued},
    {"ProfR15 (7 3753)", Catalogued},
    {"ProfR26 (10 5275)", CataloguedTimeDivision},
    {"ProfR27 (10 5740)", CataloguedTimeDivision},
    {"ProfR28 (10 5735)", CataloguedTimeDivision},
    {"ProfR29 (8.75 2304)", CataloguedTimeDivision},
};

template <std::size_t N>
constexpr TechnologyFacts facts(const char *name, double intBwHz, bool paired,
                                const KnownBandName (&known)[N])
{
    return {name, intBwHz, paired, known, static_cast<int>(N)};
}

} // namespace technology_data

// Indexed by technology slot. 5G NR has neither a catalogue nor a default
// integration bandwidth of its own.
constexpr TechnologyFacts kTechnologies[kNumTechSlots] = {
    technology_data::facts("CDMA", 1230000.0, false, technology_data::kCdma),
    technology_data::facts("GSM", 300000.0, false, technology_data::kGsm),
    technology_data::facts("LTE-FDD", 10000000.0, true, technology_data::kLteFdd),
    technology_data::facts("LTE-TDD", 10000000.0, false, technology_data::kLteTdd),
    technology_data::facts("TD-SCDMA", 1280000.0, false, technology_data::kTdScdma),
    technology_data::facts("WCDMA", 3840000.0, true, technology_data::kWcdma),
    technology_data::facts("WIMAX", 10000000.0, false, technology_data::kWimax),
    {"5G NR", 0.0, true, nullptr, 0},
};

// The integration bandwidth of a technology without one of its own, Hz.
constexpr double kFallbackIntBwHz = 1000000.0;

// The default integration bandwidth of a technology slot, Hz.
inline double defaultIntBwHz(int slot)
{
    const double own = kTechnologies[slot].defaultIntBwHz;
    return own > 0.0 ? own : kFallbackIntBwHz;
}

inline QString techName(int slot)
{
    return QString::fromLatin1(kTechnologies[slot].name);
}

// The band that repeats the records of all its technology's bands.
inline bool isGlobalBandName(const QString &band)
{
    return band == QLatin1String("Band Global");
}

// Whether a technology lists the band name in the given role.
inline bool knowsBandAs(int slot, const QString &band, KnownBandRole role)
{
    const TechnologyFacts &tech = kTechnologies[slot];
    for (int i = 0; i < tech.knownBandCount; ++i) {
        if ((tech.knownBands[i].roles & role) && band == QLatin1String(tech.knownBands[i].name))
            return true;
    }
    return false;
}

// A time-division band of any technology. The families are told apart by the
// band name alone, so "Band Global" counts whichever technology it is in.
inline bool isTimeDivisionBand(const QString &band)
{
    return knowsBandAs(SlotTdScdma, band, TimeDivision)
           || knowsBandAs(SlotLteTdd, band, TimeDivision)
           || knowsBandAs(SlotWimax, band, TimeDivision);
}

#endif
