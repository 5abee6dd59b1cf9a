// The duplex of a band, read from the library's classification, its records and its name.
#include "duplex.h"

#include <saiskuko/saiskuko.h>

#include "store/recordrules.h"

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

const ChBand *bandData(const QString &tech, const QString &band)
{
    ChBandStore &store = *ChStd::GetChStdPointer();
    const auto t = store.TechIndexMap.constFind(tech);
    if (t == store.TechIndexMap.constEnd())
        return nullptr;
    const QMap<QString, int> &bands = store.Technologies[t.value()].BandIndexMap;
    const auto b = bands.constFind(band);
    return b == bands.constEnd() ? nullptr : &store.Technologies[t.value()].Bands[b.value()];
}

// Every band from 24.25 GHz up (millimetre wave) shares its range in time;
// their names say only the frequency ("Band n257 (28 GHz)").
constexpr double kMillimetreWaveMHz = 24250.0;

} // namespace

Duplex duplexOf(const QString &tech, const QString &band)
{
    // The library's classification sees the band name alone, and "Band
    // Global" is in its list; outside LTE-TDD that band repeats paired bands.
    if (isGlobalBandName(band))
        return tech == techName(SlotLteTdd) ? Duplex::Tdd : Duplex::Fdd;
    if (isTimeDivisionBand(band))
        return Duplex::Tdd;
    const ChBand *data = bandData(tech, band);
    if (!data)
        return Duplex::Fdd;
    bool up = false, down = false, millimetreWave = false;
    for (int i = 0; i < recordCount(*data); ++i) {
        const stSubBand &r = data->SubBands[i];
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
        if (nameSays(band, word.word))
            return word.duplex;
    }
    if (millimetreWave)
        return Duplex::Tdd;
    return down ? Duplex::Sdl : Duplex::Sul;
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
