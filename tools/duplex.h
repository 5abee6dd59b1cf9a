#ifndef SAISKUKO_TOOLS_DUPLEX_H
#define SAISKUKO_TOOLS_DUPLEX_H

#include <QtCore/QString>

// How a band uses its spectrum: paired uplink and downlink (FDD), one range
// shared in time by both (TDD), downlink only (SDL) or uplink only (SUL).
enum class Duplex { Fdd, Tdd, Sdl, Sul };

// The duplex of a band, named as registered ("5G NR", "Band n78 (TD 3500)").
// Every command asks this one function; an unknown band is FDD.
Duplex duplexOf(const QString &tech, const QString &band);

// "FDD", "TDD", "SDL", "SUL".
QString duplexName(Duplex duplex);

#endif
