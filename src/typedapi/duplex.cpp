// The duplex of a band, read from its records and name, and kept per band slot.
#include "typedapi/typedapi_p.h"

namespace saiskuko {
namespace typed {
namespace {

// Where the records show one real direction only, the band name says whether
// that range is shared in time ("Band n34 (TD 2000)") or one-way ("DL", "UL").
struct NameWord
{
    const char *word;
    Duplex duplex;
};
const NameWord kNameWords[] = {{"TD", Duplex::Tdd}, {"DL", Duplex::Sdl}, {"UL", Duplex::Sul}};

bool nameSays(const QString &band, const char *word)
{
    const int open = band.indexOf(QLatin1Char('('));
    const int close = band.lastIndexOf(QLatin1Char(')'));
    if (open < 0 || close < open)
        return false;
    return band.mid(open + 1, close - open - 1)
        .split(QLatin1Char(' '), Qt::SkipEmptyParts)
        .contains(QLatin1String(word));
}

// Every band from 24.25 GHz up (millimetre wave) shares its range in time;
// their names say only the frequency ("Band n257 (28 GHz)").
constexpr double kMillimetreWaveMHz = 24250.0;

Duplex duplexOfRecords(int tech, const ChBand &band)
{
    const QString &name = band.BandName;
    // "Band Global" is in the time-division list by name; outside LTE-TDD it
    // repeats paired bands.
    if (isGlobalBandName(name))
        return tech == SlotLteTdd ? Duplex::Tdd : Duplex::Fdd;
    if (isTimeDivisionBand(name))
        return Duplex::Tdd;
    bool up = false, down = false, millimetreWave = false;
    for (int i = 0; i < recordCount(band); ++i) {
        const stSubBand &r = band.SubBands[i];
        if (isPlaceholder(r))
            continue;
        // A downlink record flagged as serving both directions (n41, n77).
        if (r.Link == 0 && r.UplinkOnly)
            return Duplex::Tdd;
        millimetreWave = millimetreWave || r.StartFreq >= kMillimetreWaveMHz;
        up = up || r.Link == 1;
        down = down || r.Link == 0;
    }
    if (up == down)
        return Duplex::Fdd;
    for (const NameWord &word : kNameWords) {
        if (nameSays(name, word.word))
            return word.duplex;
    }
    if (millimetreWave)
        return Duplex::Tdd;
    return down ? Duplex::Sdl : Duplex::Sul;
}

} // namespace

std::atomic<quint32> g_duplexOfSlot[kNumTechSlots][ChTechnology::MaxBands];

Duplex decideDuplex(int tech, int slot, const ChBand &band)
{
    const quint32 stamp = quint32(recordCount(band)) + 1;
    const Duplex duplex = duplexOfRecords(tech, band);
    g_duplexOfSlot[tech][slot].store(stamp << 2 | quint32(duplex), std::memory_order_relaxed);
    return duplex;
}

} // namespace typed

Duplex Band::duplex() const
{
    const ChBand *data = typed::bandData(*this);
    return data ? typed::cachedDuplex(m_tech, m_band, *data) : Duplex::Fdd;
}

bool Band::isGlobal() const
{
    const ChBand *data = typed::bandData(*this);
    return data && isGlobalBandName(data->BandName);
}

QString duplexName(Duplex duplex)
{
    switch (duplex) {
    case Duplex::Tdd:
        return QStringLiteral("TDD");
    case Duplex::Sdl:
        return QStringLiteral("SDL");
    case Duplex::Sul:
        return QStringLiteral("SUL");
    case Duplex::Fdd:
        break;
    }
    return QStringLiteral("FDD");
}

} // namespace saiskuko
