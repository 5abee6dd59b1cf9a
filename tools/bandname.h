#ifndef SAISKUKO_TOOLS_BANDNAME_H
#define SAISKUKO_TOOLS_BANDNAME_H

#include <saiskuko/saiskuko.h>

#include "store/recordrules.h"

#include "duplex.h"

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
    Duplex duplex() const;
    QJsonObject toJson() const; // code, technology, band, duplex
};

// The technology slots in slot order (techName() of store/technologies.h
// names them).
QList<int> techSlots();
QStringList techAliases(int slot); // short forms accepted besides the name

// Strict resolution. Unknown or ambiguous names throw BadInput with a message
// that lists the valid or matching names; nothing falls back to another band.
int resolveTech(const QString &text);
BandRef resolveBand(const QString &text);
// The shortest TECH:BAND form that names the band alone ("NR:n78"), or an
// empty string where every such form is ambiguous.
QString shortName(const BandRef &band);
BandRef bandByNames(const QString &tech, const QString &band); // names as registered

#endif
