#ifndef SAISKUKO_BANDNAMEFACTS_H
#define SAISKUKO_BANDNAMEFACTS_H

// Facts of a band's name that the queries ask on every call, worked out once
// when the name is set instead of on every query.

#include <saiskuko/chband.h>

#include "store/technologies.h"

struct ChBandNameFacts
{
    enum : quint8 {
        TimeDivisionName = 1, // one of the time-division families' names
        PlainName = 2,        // non-empty and without " - ": a channel standard
                              // text built from it splits back to it
    };

    static quint8 of(const QString &name)
    {
        quint8 facts = 0;
        if (isTimeDivisionBand(name))
            facts |= TimeDivisionName;
        if (!name.isEmpty() && !name.contains(QLatin1String(" - ")))
            facts |= PlainName;
        return facts;
    }
    static void set(ChBand &band, quint8 facts) { band.NameFacts = facts; }
    static bool isTimeDivision(const ChBand &band) { return band.NameFacts & TimeDivisionName; }
    static bool isPlain(const ChBand &band) { return band.NameFacts & PlainName; }
};

#endif
