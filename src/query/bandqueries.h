#ifndef SAISKUKO_BANDQUERIES_H
#define SAISKUKO_BANDQUERIES_H

// The queries on one band, once its names, text or enumerator have found it:
// the forms by names and by enumerator answer through these alike.

#include <saiskuko/chband.h>

#include <QtCore/QString>

double freqIn(const ChBand &band, int link, int channel);
bool channelExistsIn(const ChBand &band, int link, int channel);
// bandText is the band name as the caller gave it; the time-division WiMAX
// profiles are told by it.
int offsetChUpDownIn(int techSlot, const ChBand &band, const QString &bandText, int channel);
int startChannelIn(const ChBand &band, int link);
int stopChannelIn(const ChBand &band, int link);
double startFreqIn(const ChBand &band, int link);
double stopFreqIn(const ChBand &band, int link);

#endif
