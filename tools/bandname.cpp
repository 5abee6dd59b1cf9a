// Names the program accepts for technologies and bands, and the band facts its commands share.
#include "bandname.h"

#include "output.h"

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

QJsonObject BandRef::toJson() const
{
    return QJsonObject{{QStringLiteral("code"), code()},
                       {QStringLiteral("technology"), techName()},
                       {QStringLiteral("band"), bandName()}};
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

// Lower case without blanks, hyphens and underscores: "5G NR" -> "5gnr".
QString squashTech(const QString &text)
{
    QString out;
    for (QChar c : text) {
        if (c != QLatin1Char(' ') && c != QLatin1Char('-') && c != QLatin1Char('_'))
            out += c.toLower();
    }
    return out;
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
    return QLatin1Char('"') + text + QLatin1Char('"');
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

// Every slot whose name or short form is text (case, blanks and hyphens aside).
QList<int> techCandidates(const QString &text)
{
    const QString key = squashTech(text);
    QList<int> found;
    for (int t : techSlots()) {
        if (squashTech(techName(t)) == key || techAliases(t).contains(key))
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
    const QString squashed = squash(key);
    const int dash = key.lastIndexOf(QLatin1Char('-'));
    const QString base = dash > 0 ? squash(key.left(dash)) : QString();
    const QString qualifier = dash > 0 ? key.mid(dash + 1).trimmed().toLower() : QString();
    for (int t : slotList) {
        const ChTechnology &tech = store().Technologies[t];
        for (int b = 0; b < tech.NumBand; ++b) {
            const QString &name = tech.Bands[b].BandName;
            const QStringList keys = shortKeys(name);
            if (squash(name) == squashed)
                byName << BandRef{t, b};
            else if (keys.contains(squashed))
                byKey << BandRef{t, b};
            else if (!qualifier.isEmpty() && keys.contains(base)) {
                for (const QString &word : qualifierWords(name)) {
                    if (word.startsWith(qualifier)) {
                        byQualified << BandRef{t, b};
                        break;
                    }
                }
            }
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
        throw BadInput(QLatin1String("no band has code ") + trimmed + QLatin1String("; codes: ")
                       + ranges.join(QLatin1String(", ")));
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

    throw BadInput(QLatin1String("cannot read band ") + quoted(text)
                   + QLatin1String(": give a code (201), a channel standard"
                                   " (\"LTE-FDD - Band 1 (2100)\") or TECH:BAND (LTE:1, NR:n78)"));
}

QList<int> linksOf(const BandRef &band)
{
    const ChBand &data = band.data();
    bool up = false, down = false;
    for (int i = 0; i < data.NumSubBand; ++i) {
        if (isPlaceholder(data.SubBands[i]))
            continue;
        up = up || data.SubBands[i].Link == 1;
        down = down || data.SubBands[i].Link == 0;
    }
    QList<int> links;
    if (up)
        links << 1;
    if (down)
        links << 0;
    return links;
}

bool channelFreq(const BandRef &band, int link, int channel, double *mhz)
{
    // GetFreq takes the first record that holds the channel and serves the
    // link. If that record is a placeholder its "frequency" is meaningless.
    const ChBand &data = band.data();
    const bool timeDivision = isTimeDivisionBand(data.BandName);
    for (int i = 0; i < recordCount(data); ++i) {
        const stSubBand &r = data.SubBands[i];
        if (!servesLinkOfBand(r, link, timeDivision) || !holdsChannel(r, channel))
            continue;
        if (isPlaceholder(r))
            return false;
        *mhz = store().GetFreq(band.techName(), band.bandName(), link, channel);
        return *mhz != -1.0;
    }
    return false;
}
