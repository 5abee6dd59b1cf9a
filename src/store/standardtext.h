#ifndef SAISKUKO_STANDARDTEXT_H
#define SAISKUKO_STANDARDTEXT_H

// The text forms callers name bands and directions with.

#include <QtCore/QString>

// Splits a channel standard text "technology - band" at its first two " - "
// separators; parts after the second are ignored. False when there is none.
bool splitStandard(const QString &standard, QString *tech, QString *band);

// The same split, warning with the whole text when it fails.
bool splitStandardOrWarn(const QString &standard, QString *tech, QString *band);

// A query by channel standard text: the name form's answer, or failure after
// the split's warning.
template <typename Result, typename Query>
Result answerForStandard(const QString &standard, Result failure, Query query)
{
    QString tech, band;
    return splitStandardOrWarn(standard, &tech, &band) ? query(tech, band) : failure;
}

// "Forward" (exactly) is the downlink; every other text is the uplink.
int linkOfDirection(const QString &direction);

#endif
