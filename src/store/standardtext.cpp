// Channel standard texts ("TECH - BAND") and direction texts.
#include "store/standardtext.h"

#include "store/diagnostics.h"

#include <QtCore/QLatin1String>

namespace {
const QLatin1String kSeparator(" - ");
}

bool splitStandard(const QString &standard, QString *tech, QString *band)
{
    const int first = standard.indexOf(kSeparator);
    if (first < 0)
        return false;
    const int bandStart = first + kSeparator.size();
    const int second = standard.indexOf(kSeparator, bandStart);
    *tech = standard.left(first);
    *band = second < 0 ? standard.mid(bandStart) : standard.mid(bandStart, second - bandStart);
    return true;
}

bool splitStandardOrWarn(const QString &standard, QString *tech, QString *band)
{
    if (splitStandard(standard, tech, band))
        return true;
    warnInvalid(Invalid::Standard, standard);
    return false;
}

int linkOfDirection(const QString &direction)
{
    return direction == QLatin1String("Forward") ? 0 : 1;
}
