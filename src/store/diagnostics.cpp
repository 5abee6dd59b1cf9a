// The library's messages: banner, warnings, the standard-output line and the debug count.
#include "store/diagnostics.h"

#include <saiskuko/saiskuko_global.h>

#include <QtCore/QDebug>

#include <iostream>

namespace {

const char *fixedText(Invalid what)
{
    switch (what) {
    case Invalid::TechName:
        return "Tech Name is invalid.(";
    case Invalid::BandName:
        return "Band Name is invalid.(";
    case Invalid::Standard:
        return "Channel Standard is invalid.(";
    case Invalid::StandardEnum:
        return "Channel Standard Enum is invalid.(";
    }
    return "";
}

} // namespace

void announceVersion()
{
    qDebug() << "[ChStd] "
             << "Version : " << SAISKUKO_VERSION_STR;
}

void warnInvalid(Invalid what, const QString &value)
{
    qWarning() << fixedText(what) << value << ")";
}

void warnInvalid(Invalid what, int value)
{
    qWarning() << fixedText(what) << value << ")";
}

void warnStoreFull(const QString &tech, const QString &band)
{
    qWarning() << "Band store is full, record refused.(" << tech << band << ")";
}

void reportUnsupportedFrequency(double freqMHz)
{
    std::cout << "GetChNumFromFreq"
              << " Not supported value : " << freqMHz << std::endl;
}

void reportAvailableChannels(int count)
{
    qDebug() << "AvailableChannels : " << count;
}
