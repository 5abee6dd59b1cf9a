// Names the program accepts for technologies and bands, and the band facts its commands share.
#include "bandname.h"

#include "output.h"

#include <utility>

#include <algorithm>

ChBandStore &store()
{
    return *ChStd::GetChStdPointer();
}

QString BandRef::techName() const
{
    return store().Technologies[tech].TechName;
}

QString BandRef::bandName() const
{
    return data().BandName;
}

QString BandRef::standard() const
{
    return techName() + QLatin1String(" - ") + bandName();
}

const ChBand &BandRef::data() const
{
    return store().Technologies[tech].Bands[band];
}

Duplex BandRef::duplex() const
{
    return duplexOf(techName(), bandName());
}

QJsonObject BandRef::toJson() const
{
    return QJsonObject{{QStringLiteral("code"), code()},
                       {QStringLiteral("technology"), techName()},
                       {QStringLiteral("band"), bandName()},
                       {QStringLiteral("duplex"), duplexName(duplex())}};
}

namespace {

// Short technology names by slot. "lte" deliberately names both LTE
// technologies: the band number tells them apart (1 to 32 and 65 up are FDD,
// 33 to 48 TDD).
QStringList aliasesOfSlot(int slot)
{
    switch (slot) {
    case SlotLteFdd:
        return {QStringLiteral("fdd"), QStringLiteral("lte")};
    case SlotLteTdd:
        return {QStringLiteral("tdd"), QStringLiteral("lte")};
    case SlotTdScdma:
        return {QStringLiteral("tds")};
    case SlotWcdma:
        return {QStringLiteral("umts")};
    case SlotNr:
        return {QStringLiteral("nr"), QStringLiteral("5g")};
    default:
        return {};
    }
}

// Lower-case letters, digits and dots only: "R-GSM 900 (China)" -> "rgsm900china".
QString squash(const QString &text)
{
    QString out;
    for (QChar c : text) {
        if (c.isLetterOrNumber() || c == QLatin1Char('.'))
            out += c.toLower();
    }
    return out;
}

QString digitsOf(const QString &text)
{
    QString out;
    for (QChar c : text) {
        if (c.isDigit())
            out += c;
    }
    return out;
}

// The words inside a band name's brackets: "(1900-Additional)" -> 1900, additional.
QStringList qualifierWords(const QString &name)
{
    const int open = name.indexOf(QLatin1Char('('));
    const int close = name.lastIndexOf(QLatin1Char(')'));
    if (open < 0 || close < open)
        return {};
    QString inner = name.mid(open + 1, close - open - 1).toLower();
    inner.replace(QLatin1Char('-'), QLatin1Char(' '));
    return inner.split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

// The short keys of a band name, lower case:
//   "Band 1 (2100)" -> 1;  "Band n78 (TD 3500)" -> n78, 78;  "Band Global" -> global
//   "FBN 3" -> 3;  "ProfR12 (7 3463)" -> 12, r12
//   GSM: "E-GSM 900" -> e900, 900;  "DCS 1800" -> dcs1800, dcs, 1800;
//        "R-GSM 900 (China)" -> r900china, 900
QStringList shortKeys(const QString &name)
{
    const int open = name.indexOf(QLatin1String(" ("));
    const QString head = open < 0 ? name : name.left(open);
    QStringList keys;
    if (head.startsWith(QLatin1String("Band "))) {
        const QString number = head.mid(5).toLower();
        keys << number;
        if (number.startsWith(QLatin1Char('n')) && number.size() > 1
            && digitsOf(number) == number.mid(1))
            keys << number.mid(1);
    } else if (head.startsWith(QLatin1String("FBN "))) {
        keys << head.mid(4).toLower();
    } else if (head.startsWith(QLatin1String("ProfR"))) {
        keys << head.mid(5).toLower() << QLatin1String("r") + head.mid(5).toLower();
    } else {
        QString compact = squash(name);
        compact.remove(QLatin1String("gsm"));
        keys << compact << digitsOf(head);
        int letters = 0;
        while (letters < compact.size() && compact[letters].isLetter())
            ++letters;
        if (letters > 1)
            keys << compact.left(letters);
    }
    keys.removeAll(QString());
    return keys;
}

QString quoted(const QString &text)
{
    return echoed(text);
}

// The prefixes engineers put before a band number, by the technologies they
// name when the technology is left out: "B1", "band1" (LTE), "bc0" (CDMA),
// "n78" (NR, whose keys keep the n).
struct BandPrefix
{
    const char *prefix;
    const char *tech; // a technology name or short form
    bool keep;
};
const QList<BandPrefix> &bandPrefixes()
{
    static const QList<BandPrefix> list{
        {"band", "lte", false}, {"bc", "cdma", false}, {"b", "lte", false}, {"n", "nr", true}};
    return list;
}

bool allDigits(const QString &text)
{
    for (QChar c : text) {
        if (!c.isDigit())
            return false;
    }
    return !text.isEmpty();
}

QString withoutLeadingZeros(QString digits)
{
    while (digits.size() > 1 && digits[0] == QLatin1Char('0'))
        digits.remove(0, 1);
    return digits;
}

// A Roman numeral as UTRA bands are written ("iv"), or 0.
int romanValue(const QString &text)
{
    static const QList<std::pair<int, const char *>> kNumerals{
        {50, "l"}, {40, "xl"}, {10, "x"}, {9, "ix"}, {5, "v"}, {4, "iv"}, {1, "i"}};
    const auto write = [](int value) {
        QString out;
        for (const auto &numeral : kNumerals) {
            for (; value >= numeral.first; value -= numeral.first)
                out += QLatin1String(numeral.second);
        }
        return out;
    };
    for (int value = 1; value < 90; ++value) {
        if (write(value) == text)
            return value;
    }
    return 0;
}

// A typed band key in the form the short keys take: lower case, without a
// band prefix or leading zeros, a UTRA Roman numeral as its number.
QString normalisedKey(const QString &key, const QList<int> &slotList)
{
    QString lower = key.toLower();
    for (const BandPrefix &p : bandPrefixes()) {
        const QString rest = lower.mid(int(qstrlen(p.prefix)));
        if (!p.keep && lower.startsWith(QLatin1String(p.prefix)) && allDigits(rest)) {
            lower = rest;
            break;
        }
    }
    if (allDigits(lower))
        return withoutLeadingZeros(lower);
    if (lower.startsWith(QLatin1Char('n')) && allDigits(lower.mid(1)))
        return QLatin1Char('n') + withoutLeadingZeros(lower.mid(1));
    if (slotList.contains(SlotWcdma) && romanValue(lower) > 0)
        return QString::number(romanValue(lower));
    return lower;
}

// The technology of a band named without it ("B7", "n78", "bc0"), or an
// empty string when the text is not of that form.
QString bareAliasTech(const QString &text)
{
    const QString lower = text.toLower();
    for (const BandPrefix &p : bandPrefixes()) {
        if (lower.startsWith(QLatin1String(p.prefix))
            && allDigits(lower.mid(int(qstrlen(p.prefix)))))
            return QLatin1String(p.tech);
    }
    return {};
}

QString techListText()
{
    QStringList names, aliases;
    for (int t : techSlots()) {
        names << techName(t);
        aliases << techAliases(t);
    }
    aliases.removeDuplicates();
    return names.join(QLatin1String(", ")) + QLatin1String(" (short forms: ")
           + aliases.join(QLatin1String(", ")) + QLatin1Char(')');
}

QString bandListText(const QList<int> &slotList)
{
    QStringList names;
    for (int t : slotList) {
        const ChTechnology &tech = store().Technologies[t];
        for (int b = 0; b < tech.NumBand; ++b)
            names << (slotList.size() > 1 ? BandRef{t, b}.standard() : tech.Bands[b].BandName);
    }
    return names.join(QLatin1String(", "));
}

QString techNamesText(const QList<int> &slotList, const char *separator)
{
    QStringList names;
    for (int t : slotList)
        names << techName(t);
    return names.join(QLatin1String(separator));
}

// Every slot whose name or short form is text (case aside).
QList<int> techCandidates(const QString &text)
{
    const QString key = text.trimmed().toLower();
    QList<int> found;
    for (int t : techSlots()) {
        if (techName(t).toLower() == key || techAliases(t).contains(key))
            found << t;
    }
    return found;
}

QList<BandRef> matchShortForm(const QList<int> &slotList, const QString &key)
{
    // Most exact first: the whole band name, then a short key, then a short
    // key with a qualifier ("2-additional", "21-3500"). The first tier that
    // matches anything decides.
    QList<BandRef> byName, byKey, byQualified;
    const QString lower = key.toLower();
    const QString normalised = normalisedKey(key, slotList);
    const int dash = key.lastIndexOf(QLatin1Char('-'));
    const QString base = dash > 0 ? normalisedKey(key.left(dash), slotList) : QString();
    const QString qualifier = dash > 0 ? key.mid(dash + 1).toLower() : QString();
    for (int t : slotList) {
        const ChTechnology &tech = store().Technologies[t];
        for (int b = 0; b < tech.NumBand; ++b) {
            const QString &name = tech.Bands[b].BandName;
            const QStringList keys = shortKeys(name);
            if (name.toLower() == lower)
                byName << BandRef{t, b};
            else if (keys.contains(normalised))
                byKey << BandRef{t, b};
            else if (!qualifier.isEmpty() && keys.contains(base)
                     && qualifierWords(name).contains(qualifier))
                byQualified << BandRef{t, b};
        }
    }
    if (!byName.isEmpty())
        return byName;
    if (!byKey.isEmpty())
        return byKey;
    return byQualified;
}

} // namespace

QList<int> techSlots()
{
    QList<int> slotList = store().TechIndexMap.values();
    std::sort(slotList.begin(), slotList.end());
    return slotList;
}

QStringList techAliases(int slot)
{
    return aliasesOfSlot(slot);
}

int resolveTech(const QString &text)
{
    const QList<int> found = techCandidates(text);
    if (found.isEmpty())
        throw BadInput(QLatin1String("unknown technology ") + quoted(text)
                       + QLatin1String("; technologies: ") + techListText());
    if (found.size() > 1)
        throw BadInput(QLatin1String("technology ") + quoted(text)
                       + QLatin1String(" is ambiguous; it matches: ") + techNamesText(found, ", "));
    return found.first();
}

BandRef bandByNames(const QString &tech, const QString &band)
{
    const auto t = store().TechIndexMap.constFind(tech);
    if (t == store().TechIndexMap.constEnd())
        return {};
    const QMap<QString, int> &bands = store().Technologies[t.value()].BandIndexMap;
    const auto b = bands.constFind(band);
    if (b == bands.constEnd())
        return {};
    return {t.value(), b.value()};
}

BandRef resolveBand(const QString &text)
{
    const QString trimmed = text.trimmed();
    bool isNumber = !trimmed.isEmpty();
    for (QChar c : trimmed)
        isNumber = isNumber && c.isDigit();

    if (isNumber) {
        bool ok = false;
        const int code = trimmed.toInt(&ok);
        const int t = code / 100, b = code % 100;
        if (ok && techSlots().contains(t) && b < store().Technologies[t].NumBand)
            return {t, b};
        QStringList ranges;
        for (int slot : techSlots()) {
            const int n = store().Technologies[slot].NumBand;
            if (n > 0)
                ranges << QStringLiteral("%1-%2 %3")
                              .arg(100 * slot)
                              .arg(100 * slot + n - 1)
                              .arg(techName(slot));
        }
        throw BadInput(QLatin1String("no band has code ") + cut(trimmed)
                       + QLatin1String("; codes: ") + ranges.join(QLatin1String(", ")));
    }

    const int separator = text.indexOf(QLatin1String(" - "));
    if (separator >= 0) {
        // A channel standard text is exact, as the library writes it.
        const QString tech = text.left(separator);
        const QString band = text.mid(separator + 3);
        if (!store().TechIndexMap.contains(tech))
            throw BadInput(QLatin1String("unknown technology ") + quoted(tech)
                           + QLatin1String(" in ") + quoted(text)
                           + QLatin1String("; technologies: ") + techListText());
        const BandRef ref = bandByNames(tech, band);
        if (ref.tech < 0)
            throw BadInput(tech + QLatin1String(" has no band ") + quoted(band)
                           + QLatin1String("; bands: ")
                           + bandListText({store().TechIndexMap.value(tech)}));
        return ref;
    }

    const int colon = text.indexOf(QLatin1Char(':'));
    if (colon >= 0) {
        const QString techText = text.left(colon);
        const QString key = text.mid(colon + 1).trimmed();
        const QList<int> slotList = techCandidates(techText);
        if (slotList.isEmpty())
            throw BadInput(QLatin1String("unknown technology ") + quoted(techText)
                           + QLatin1String(" in ") + quoted(text)
                           + QLatin1String("; technologies: ") + techListText());
        if (key.isEmpty())
            throw BadInput(QLatin1String("no band named after the colon in ") + quoted(text)
                           + QLatin1String("; bands: ") + bandListText(slotList));
        const QList<BandRef> found = matchShortForm(slotList, key);
        if (found.isEmpty())
            throw BadInput(techNamesText(slotList, " or ") + QLatin1String(" has no band ")
                           + quoted(key) + QLatin1String("; bands: ") + bandListText(slotList));
        if (found.size() > 1) {
            QStringList names;
            for (const BandRef &ref : found)
                names << ref.standard() + QStringLiteral(" [%1]").arg(ref.code());
            throw BadInput(QLatin1String("band ") + quoted(text)
                           + QLatin1String(" is ambiguous; it matches: ")
                           + names.join(QLatin1String(", ")));
        }
        return found.first();
    }

    const QString aliasTech = bareAliasTech(text.trimmed());
    if (!aliasTech.isEmpty())
        return resolveBand(aliasTech + QLatin1Char(':') + text.trimmed());

    throw BadInput(QLatin1String("cannot read band ") + quoted(text)
                   + QLatin1String(": give a code (201), a channel standard"
                                   " (\"LTE-FDD - Band 1 (2100)\") or TECH:BAND (LTE:1, NR:n78)"));
}

QString shortName(const BandRef &band)
{
    const QString name = band.bandName();
    QStringList keys = shortKeys(name);
    for (const QString &key : shortKeys(name)) {
        for (const QString &word : qualifierWords(name))
            keys << key + QLatin1Char('-') + word;
    }
    const QStringList techs = techAliases(band.tech) << techName(band.tech);
    for (const QString &tech : techs) {
        for (const QString &key : keys) {
            QString candidate = tech.toUpper() + QLatin1Char(':') + key;
            try {
                if (!candidate.contains(QLatin1Char(' '))
                    && resolveBand(candidate).code() == band.code())
                    return candidate;
            } catch (const BadInput &) {
                // not unique; try the next form
            }
        }
    }
    return {};
}
