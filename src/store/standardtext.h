#ifndef SAISKUKO_STANDARDTEXT_H
#define SAISKUKO_STANDARDTEXT_H

#include <QtCore/QDebug>
#include <QtCore/QString>

// Fixed texts of the library's warnings; the offending value and ")" follow.
constexpr const char kTechNameInvalid[] = "Tech Name is invalid.(";
constexpr const char kBandNameInvalid[] = "Band Name is invalid.(";
constexpr const char kStandardInvalid[] = "Channel Standard is invalid.(";
constexpr const char kStandardEnumInvalid[] = "Channel Standard Enum is invalid.(";

// One line on the warning log: text, value (a QString quoted), ")".
template <typename Value>
inline void warnInvalid(const char *text, const Value &value)
{
    qWarning() << text << value << ")";
}

// Splits a channel standard text "technology - band" at its first two " - "
// separators; parts after the second are ignored. False when there is none.
bool splitStandard(const QString &standard, QString *tech, QString *band);

// The same split, warning with the whole text when it fails.
bool splitStandardOrWarn(const QString &standard, QString *tech, QString *band);

// "Forward" (exactly) is the downlink; every other text is the uplink.
int linkOfDirection(const QString &direction);

#endif
