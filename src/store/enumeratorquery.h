#ifndef SAISKUKO_ENUMERATORQUERY_H
#define SAISKUKO_ENUMERATORQUERY_H

// How the queries by channel standard enumerator reach their band.

#include <saiskuko/chbandstore.h>

#include "store/bandnamefacts.h"

// Splits a code into technology and band numbers. The remainder follows the
// sign of the code, so negative codes never name a band. The band is the
// remainder of the code by 100 x tech, which for tech 0 is the code itself
// and otherwise is always code - 100 x tech (the remainder by 100): no
// division needed.
inline void splitCode(int code, int *tech, int *band)
{
    *tech = code / 100;
    *band = code - 100 * *tech;
}

// Out of line, so that the quick path of AnswerForBand needs no stack frame.
template <typename Result, typename Query>
Q_NEVER_INLINE Result ChBandStore::AnswerForEnumerator(int code, Result failure, Query query) const
{
    QString tech, band;
    return NamesOfEnumerator(code, &tech, &band) ? query(tech, band) : failure;
}

// The text form of a code names its band's slots again whenever the band is
// in use and its name is plain (not empty, no " - "): then the band is taken
// by its slots directly. Every other code goes the way of the text, with its
// warnings.
template <typename Result, typename Query>
Result ChBandStore::AnswerForBand(int code, Result failure, Query query) const
{
    int t = 0;
    int b = 0;
    splitCode(code, &t, &b);
    if (t >= 0 && t < MaxTechnologies && b >= 0 && b < Technologies[t].NumBand
        && ChBandNameFacts::isPlain(Technologies[t].Bands[b]))
        return query(t, b, Technologies[t].Bands[b], Technologies[t].Bands[b].BandName);
    return AnswerForEnumerator(code, failure, [&](const QString &tech, const QString &band) {
        const int techSlot = LookupTechSlot(tech);
        const int bandSlot = LookupBandSlot(techSlot, band);
        return query(techSlot, bandSlot, Technologies[techSlot].Bands[bandSlot], band);
    });
}

#endif
