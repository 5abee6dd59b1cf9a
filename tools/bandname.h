#ifndef SAISKUKO_TOOLS_BANDNAME_H
#define SAISKUKO_TOOLS_BANDNAME_H

#include <saiskuko/saiskuko.h>

#include "store/recordrules.h"

#include <QtCore/QJsonObject>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

// The library's one band store.
ChBandStore &store();

// A band of the store by its slots.
struct BandRef
{
    int tech = -1;
    int band = -1;

    int code() const { return 100 * tech + band; }
    QString techName() const;
    QString bandName() const;
    QString standard() const; // "LTE-FDD - Band 1 (2100)"
    const ChBand &data() const;
    QJsonObject toJson() const; // code, technology, band
};

// The technology slots in slot order (techName() of store/technologies.h
// names them).
QList<int> techSlots();
QStringList techAliases(int slot); // short forms accepted besides the name

// Strict resolution. Unknown or ambiguous names throw BadInput with a message
// that lists the valid or matching names; nothing falls back to another band.
int resolveTech(const QString &text);
BandRef resolveBand(const QString &text);
BandRef bandByNames(const QString &tech, const QString &band); // names as registered

// The links a band has real records for, uplink first.
QList<int> linksOf(const BandRef &band);

// The frequency of a channel in one link direction, as the library's GetFreq
// gives it; false when the channel is in no real record of that direction.
bool channelFreq(const BandRef &band, int link, int channel, double *mhz);

#endif
