// Channel standard enumerators: codes to names and back, band counts and lists.
#include <saiskuko/chbandstore.h>

#include "store/chbandstore_p.h"
#include "store/diagnostics.h"
#include "store/standardtext.h"

namespace {

// The first key (in key order) that maps to value, or an empty string.
QString keyOf(const QMap<QString, int> &map, int value)
{
    for (auto it = map.constBegin(); it != map.constEnd(); ++it) {
        if (it.value() == value)
            return it.key();
    }
    return QString();
}

} // namespace

int ChBandStore::StrictEnumerator(const QString &tech, const QString &band) const
{
    const auto techIt = TechIndexMap.constFind(tech);
    if (techIt == TechIndexMap.constEnd() || techIt.value() < 0
        || techIt.value() >= MaxTechnologies) {
        warnInvalid(Invalid::TechName, tech);
        return -1;
    }
    const QMap<QString, int> &bands = Technologies[techIt.value()].BandIndexMap;
    const auto bandIt = bands.constFind(band);
    if (bandIt == bands.constEnd() || bandIt.value() < 0) {
        warnInvalid(Invalid::BandName, band);
        return -1;
    }
    return 100 * techIt.value() + bandIt.value();
}

int ChBandStore::GetEnumulator(QString tech, QString band) const
{
    return StrictEnumerator(tech, band);
}

QString ChBandStore::GetEnumulator(int code) const
{
    int t = 0;
    int b = 0;
    splitCode(code, &t, &b);
    const QString techName = keyOf(TechIndexMap, t);
    if (techName.isEmpty() || t < 0 || t >= MaxTechnologies)
        return QString();
    const QString bandName = keyOf(Technologies[t].BandIndexMap, b);
    if (bandName.isEmpty())
        return QString();
    return techName + QLatin1String(" - ") + bandName;
}

bool ChBandStore::NamesOfEnumerator(int code, QString *tech, QString *band) const
{
    const QString standard = GetEnumulator(code);
    if (standard.isEmpty()) {
        warnInvalid(Invalid::StandardEnum, code);
        return false;
    }
    if (!splitStandard(standard, tech, band)) {
        warnInvalid(Invalid::Standard, standard);
        return false;
    }
    return true;
}

int ChBandStore::GetTech(int code) const
{
    return AnswerForEnumerator(
        code, -1, [&](const QString &tech, const QString &) { return LookupTechSlot(tech); });
}

int ChBandStore::GetBand(int code) const
{
    return AnswerForEnumerator(code, -1, [&](const QString &tech, const QString &band) {
        return LookupBandSlot(LookupTechSlot(tech), band);
    });
}

QString ChBandStore::GetBandName(int code) const
{
    return AnswerForEnumerator(code, QStringLiteral("None"),
                               [](const QString &, const QString &band) { return band; });
}

int ChBandStore::GetNumBand(QString tech) const
{
    return Technologies[LookupTechSlot(tech)].NumBand;
}

QList<QString> ChBandStore::GetBandList(QString tech) const
{
    const QMap<QString, int> &bands = Technologies[LookupTechSlot(tech)].BandIndexMap;
    QList<QString> names;
    names.reserve(bands.size());
    for (int slot = 0; slot < bands.size(); ++slot)
        names.append(keyOf(bands, slot));
    return names;
}
