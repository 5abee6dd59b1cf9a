#ifndef SAISKUKO_DIAGNOSTICS_H
#define SAISKUKO_DIAGNOSTICS_H

// Every message the library writes, in one place: applications route them
// (Qt's message handler, std::cout) and tests pin them to the character.

#include <QtCore/QString>

// The version banner on the Qt debug log, written once while the library
// loads: "[ChStd]  Version :  <version>".
void announceVersion();

// Bad input, one line on the Qt warning log: a fixed text ending in "(", the
// offending value (a text quoted, a number in decimal) and ")".
enum class Invalid { TechName, BandName, Standard, StandardEnum };
void warnInvalid(Invalid what, const QString &value);
void warnInvalid(Invalid what, int value);

// A record that no longer fits the store's fixed arrays, refused whole.
void warnStoreFull(const QString &tech, const QString &band);

// A frequency-to-channel conversion that found no channel: one line on
// standard output, the library's only one.
void reportUnsupportedFrequency(double freqMHz);

// The size of a channel window, on the Qt debug log.
void reportAvailableChannels(int count);

#endif
