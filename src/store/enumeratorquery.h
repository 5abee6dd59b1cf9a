#ifndef SAISKUKO_ENUMERATORQUERY_H
#define SAISKUKO_ENUMERATORQUERY_H

// How every query by channel standard enumerator reaches its name form.

#include <saiskuko/chbandstore.h>

template <typename Result, typename Query>
Result ChBandStore::AnswerForEnumerator(int code, Result failure, Query query) const
{
    QString tech, band;
    return NamesOfEnumerator(code, &tech, &band) ? query(tech, band) : failure;
}

#endif
