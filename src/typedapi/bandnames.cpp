// Strict names of technologies and bands: short forms, aliases, codes, and the messages that list
// candidates.
#include "typedapi/typedapi_p.h"

#include <QtCore/QHash>
#include <QtCore/QVector>

#include <algorithm>
#include <utility>
#include <vector>

namespace saiskuko {
namespace typed {

QList<int> techSlots()
{
    QList<int> slotList = store().TechIndexMap.values();
    std::sort(slotList.begin(), slotList.end());
    return slotList;
}

} // namespace typed

QString cut(QStringView text)
{
    constexpr int kLongest = 40;
    return text.size() > kLongest ? text.left(kLongest).toString() + QLatin1String("...")
                                  : text.toString();
}

QString echoed(QStringView text)
{
    return QLatin1Char('"') + cut(text) + QLatin1Char('"');
}

QString formatMHz(double mhz)
{
    QString text = QString::number(mhz, 'f', 6);
    while (text.endsWith(QLatin1Char('0')))
        text.chop(1);
    if (text.endsWith(QLatin1Char('.')))
        text.chop(1);
    if (text == QLatin1String("-0"))
        text = QStringLiteral("0");
    return text;
}

namespace {

using namespace typed;

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
    // "GSM 450" gives 450 twice; a key listed twice would name its band twice.
    keys.removeAll(QString());
    keys.removeDuplicates();
    return keys;
}

// What matching a typed name asks of every band, worked out once.
struct BandKeys
{
    QString lowerName;
    QStringList keys;
    QStringList qualifiers;

    static BandKeys of(const QString &name)
    {
        return {name.toLower(), shortKeys(name), qualifierWords(name)};
    }
};

// The keys of the bands registered when first asked, and which bands each
// lower-case name and short key names. Names of band slots never change, so a
// band registered later is only missing here: its keys are then worked out on
// each call.
class KeyIndex
{
public:
    KeyIndex()
    {
        for (int t = 0; t < kNumTechSlots; ++t) {
            const ChTechnology &tech = store().Technologies[t];
            for (int b = 0; b < tech.NumBand; ++b) {
                m_bands[t].push_back(BandKeys::of(tech.Bands[b].BandName));
                m_byName[t][m_bands[t].back().lowerName].append(b);
                for (const QString &key : m_bands[t].back().keys)
                    m_byKey[t][key].append(b);
            }
        }
    }
    static const KeyIndex &get()
    {
        static const KeyIndex index;
        return index;
    }
    // The bands registered when the index was built.
    int count(int t) const { return int(m_bands[t].size()); }
    // The keys of a band, from the index or, for a band registered later, built.
    const BandKeys &keysOf(int t, int b, BandKeys *scratch) const
    {
        if (b < count(t))
            return m_bands[t][std::size_t(b)];
        *scratch = BandKeys::of(store().Technologies[t].Bands[b].BandName);
        return *scratch;
    }
    // The indexed bands of slot t whose lower-case name is `lower`, ascending.
    QVector<int> named(int t, const QString &lower) const { return m_byName[t].value(lower); }
    // The indexed bands of slot t with the short key `key`, ascending.
    QVector<int> keyed(int t, const QString &key) const { return m_byKey[t].value(key); }

private:
    std::vector<BandKeys> m_bands[kNumTechSlots];
    QHash<QString, QVector<int>> m_byName[kNumTechSlots];
    QHash<QString, QVector<int>> m_byKey[kNumTechSlots];
};

// The prefixes engineers put before a band number, by the technologies they
// name when the technology is left out: "B1", "band1" (LTE), "bc0" (CDMA),
// "n78" (NR, whose keys keep the n).
struct BandPrefix
{
    const char *prefix;
    const char *tech; // a technology name or short form
    bool keep;
};
constexpr BandPrefix kBandPrefixes[] = {
    {"band", "lte", false}, {"bc", "cdma", false}, {"b", "lte", false}, {"n", "nr", true}};

bool allDigits(QStringView text)
{
    for (QChar c : text) {
        if (!c.isDigit())
            return false;
    }
    return !text.isEmpty();
}

QString withoutLeadingZeros(QStringView digits)
{
    while (digits.size() > 1 && digits[0] == QLatin1Char('0'))
        digits = digits.mid(1);
    return digits.toString();
}

// A Roman numeral as UTRA bands are written ("iv"), or 0.
int romanValue(const QString &text)
{
    static const QStringList kWritten = [] {
        static const std::pair<int, const char *> kNumerals[] = {
            {50, "l"}, {40, "xl"}, {10, "x"}, {9, "ix"}, {5, "v"}, {4, "iv"}, {1, "i"}};
        QStringList written{QString()};
        for (int value = 1; value < 90; ++value) {
            QString out;
            int left = value;
            for (const auto &numeral : kNumerals) {
                for (; left >= numeral.first; left -= numeral.first)
                    out += QLatin1String(numeral.second);
            }
            written << out;
        }
        return written;
    }();
    const int value = text.isEmpty() ? -1 : int(kWritten.indexOf(text));
    return value > 0 ? value : 0;
}

// A typed band key in the form the short keys take: lower case, without a
// band prefix or leading zeros, a UTRA Roman numeral as its number.
QString normalisedKey(const QString &key, const QList<int> &slotList)
{
    QString lower = key.toLower();
    QStringView rest(lower);
    for (const BandPrefix &p : kBandPrefixes) {
        const QStringView after = rest.mid(int(qstrlen(p.prefix)));
        if (!p.keep && rest.startsWith(QLatin1String(p.prefix)) && allDigits(after)) {
            rest = after;
            break;
        }
    }
    if (allDigits(rest))
        return withoutLeadingZeros(rest);
    if (rest.startsWith(QLatin1Char('n')) && allDigits(rest.mid(1)))
        return QLatin1Char('n') + withoutLeadingZeros(rest.mid(1));
    if (slotList.contains(SlotWcdma)) {
        const int roman = romanValue(lower);
        if (roman > 0)
            return QString::number(roman);
    }
    return lower;
}

// The technology of a band named without it ("B7", "n78", "bc0"), or null
// when the text is not of that form.
const char *bareAliasTech(const QString &text)
{
    const QString lower = text.toLower();
    for (const BandPrefix &p : kBandPrefixes) {
        if (lower.startsWith(QLatin1String(p.prefix))
            && allDigits(QStringView(lower).mid(int(qstrlen(p.prefix)))))
            return p.tech;
    }
    return nullptr;
}

QString techListText()
{
    QStringList names, aliases;
    for (int t : techSlots()) {
        names << techName(t);
        aliases << aliasesOfSlot(t);
    }
    aliases.removeDuplicates();
    return names.join(QLatin1String(", ")) + QLatin1String(" (short forms: ")
           + aliases.join(QLatin1String(", ")) + QLatin1Char(')');
}

QString standardOf(int t, int b)
{
    return store().Technologies[t].TechName + QLatin1String(" - ")
           + store().Technologies[t].Bands[b].BandName;
}

QString bandListText(const QList<int> &slotList)
{
    QStringList names;
    for (int t : slotList) {
        const ChTechnology &tech = store().Technologies[t];
        for (int b = 0; b < tech.NumBand; ++b)
            names << (slotList.size() > 1 ? standardOf(t, b) : tech.Bands[b].BandName);
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

// QStringList::contains, without its call per list: most keys differ in length.
bool hasKey(const QStringList &keys, const QString &key)
{
    for (const QString &k : keys) {
        if (k.size() == key.size() && k == key)
            return true;
    }
    return false;
}

// The slots in use with their names and short forms in lower case. The store
// fills its technology map once, while it is built, so one look suffices.
struct TechKeys
{
    int slot;
    QString lowerName;
    QStringList aliases;
};

const std::vector<TechKeys> &techKeys()
{
    static const std::vector<TechKeys> keys = [] {
        std::vector<TechKeys> out;
        for (int t : techSlots())
            out.push_back({t, techName(t).toLower(), aliasesOfSlot(t)});
        return out;
    }();
    return keys;
}

// Every slot whose name or short form is text (case aside).
QList<int> techCandidates(const QString &text)
{
    const QString key = text.trimmed().toLower();
    QList<int> found;
    for (const TechKeys &tech : techKeys()) {
        if (tech.lowerName == key || hasKey(tech.aliases, key))
            found << tech.slot;
    }
    return found;
}

QList<Band> matchShortForm(const QList<int> &slotList, const QString &key)
{
    // Most exact first: the whole band name, then a short key, then a short
    // key with a qualifier ("2-additional", "21-3500"). The first tier that
    // matches anything decides.
    QList<Band> byName, byKey, byQualified;
    const QString lower = key.toLower();
    const QString normalised = normalisedKey(key, slotList);
    const KeyIndex &index = KeyIndex::get();
    BandKeys scratch;
    for (int t : slotList) {
        for (int b : index.named(t, lower))
            byName << BandAccess::make(t, b);
        for (int b : index.keyed(t, normalised))
            byKey << BandAccess::make(t, b);
        for (int b = index.count(t); b < store().Technologies[t].NumBand; ++b) {
            const BandKeys &band = index.keysOf(t, b, &scratch);
            if (band.lowerName == lower)
                byName << BandAccess::make(t, b);
            else if (hasKey(band.keys, normalised))
                byKey << BandAccess::make(t, b);
        }
    }
    const int dash = key.lastIndexOf(QLatin1Char('-'));
    if (byName.isEmpty() && byKey.isEmpty() && dash > 0) {
        const QString base = normalisedKey(key.left(dash), slotList);
        const QString qualifier = key.mid(dash + 1).toLower();
        for (int t : slotList) {
            for (int b = 0; b < store().Technologies[t].NumBand && !qualifier.isEmpty(); ++b) {
                const BandKeys &band = index.keysOf(t, b, &scratch);
                if (hasKey(band.keys, base) && hasKey(band.qualifiers, qualifier))
                    byQualified << BandAccess::make(t, b);
            }
        }
    }
    if (!byName.isEmpty())
        return byName;
    if (!byKey.isEmpty())
        return byKey;
    return byQualified;
}

Error unknownTechnology(const QString &tech, const QString &text)
{
    return failure(ErrorCode::UnknownTechnology,
                   QLatin1String("unknown technology ") + echoed(tech) + QLatin1String(" in ")
                       + echoed(text) + QLatin1String("; technologies: ") + techListText());
}

QString codeRangesText()
{
    QStringList ranges;
    for (int slot : techSlots()) {
        const int n = store().Technologies[slot].NumBand;
        if (n > 0)
            ranges << QStringLiteral("%1-%2 %3")
                          .arg(100 * slot)
                          .arg(100 * slot + n - 1)
                          .arg(techName(slot));
    }
    return ranges.join(QLatin1String(", "));
}

Error noBandWithCode(const QString &code)
{
    return failure(ErrorCode::UnknownBand, QLatin1String("no band has code ") + cut(code)
                                               + QLatin1String("; codes: ") + codeRangesText());
}

// A channel standard text, exact as the library writes it.
Result<Band> bandByStandard(const QString &text, int separator)
{
    const QString tech = text.left(separator);
    const QString band = text.mid(separator + 3);
    const auto t = store().TechIndexMap.constFind(tech);
    if (t == store().TechIndexMap.constEnd())
        return unknownTechnology(tech, text);
    const QMap<QString, int> &bandMap = store().Technologies[t.value()].BandIndexMap;
    const auto b = bandMap.constFind(band);
    if (b == bandMap.constEnd())
        return failure(ErrorCode::UnknownBand, tech + QLatin1String(" has no band ") + echoed(band)
                                                   + QLatin1String("; bands: ")
                                                   + bandListText({t.value()}));
    return BandAccess::make(t.value(), b.value());
}

// TECH:BAND, the technology a name or short form, the band any short key.
Result<Band> bandByShortForm(const QString &text, int colon)
{
    const QString techText = text.left(colon);
    const QString key = text.mid(colon + 1).trimmed();
    const QList<int> slotList = techCandidates(techText);
    if (slotList.isEmpty())
        return unknownTechnology(techText, text);
    if (key.isEmpty())
        return failure(ErrorCode::BadName, QLatin1String("no band named after the colon in ")
                                               + echoed(text) + QLatin1String("; bands: ")
                                               + bandListText(slotList));
    const QList<Band> found = matchShortForm(slotList, key);
    if (found.isEmpty())
        return failure(ErrorCode::UnknownBand,
                       techNamesText(slotList, " or ") + QLatin1String(" has no band ")
                           + echoed(key) + QLatin1String("; bands: ") + bandListText(slotList));
    if (found.size() > 1) {
        QStringList names;
        for (const Band &band : found)
            names << band.standard() + QStringLiteral(" [%1]").arg(band.code());
        return failure(ErrorCode::AmbiguousName, QLatin1String("band ") + echoed(text)
                                                     + QLatin1String(" is ambiguous; it matches: ")
                                                     + names.join(QLatin1String(", ")));
    }
    return found.first();
}

Result<Band> resolveBand(const QString &text)
{
    const QString trimmed = text.trimmed();
    if (allDigits(trimmed)) {
        bool ok = false;
        const int code = trimmed.toInt(&ok);
        const Result<Band> band = ok ? bandByCode(code) : Result<Band>(Error{});
        return band.ok() ? band : noBandWithCode(trimmed);
    }
    const int separator = text.indexOf(QLatin1String(" - "));
    if (separator >= 0)
        return bandByStandard(text, separator);
    const int colon = text.indexOf(QLatin1Char(':'));
    if (colon >= 0)
        return bandByShortForm(text, colon);
    if (const char *aliasTech = bareAliasTech(trimmed))
        return resolveBand(QLatin1String(aliasTech) + QLatin1Char(':') + trimmed);
    return failure(
        ErrorCode::BadName,
        QLatin1String("cannot read band ") + echoed(text)
            + QLatin1String(": give a code (201), a channel standard"
                            " (\"LTE-FDD - Band 1 (2100)\") or TECH:BAND (LTE:1, NR:n78)"));
}

} // namespace

QList<Technology> technologies()
{
    QList<Technology> out;
    for (int t : techSlots())
        out << Technology(t);
    return out;
}

QString technologyName(Technology technology)
{
    const int t = int(technology);
    if (t < 0 || t >= kNumTechSlots || store().Technologies[t].NumBand == 0)
        return {};
    return store().Technologies[t].TechName;
}

QStringList technologyShortForms(Technology technology)
{
    return aliasesOfSlot(int(technology));
}

double defaultIntegrationBandwidthHz(Technology technology)
{
    return store().GetDefaultIntBW(technologyName(technology));
}

Result<Technology> findTechnology(QStringView text)
{
    const QString name = text.toString();
    const QList<int> found = techCandidates(name);
    if (found.isEmpty())
        return failure(ErrorCode::UnknownTechnology,
                       QLatin1String("unknown technology ") + echoed(name)
                           + QLatin1String("; technologies: ") + techListText());
    if (found.size() > 1)
        return failure(ErrorCode::AmbiguousName, QLatin1String("technology ") + echoed(name)
                                                     + QLatin1String(" is ambiguous; it matches: ")
                                                     + techNamesText(found, ", "));
    return Technology(found.first());
}

Result<Band> findBand(QStringView text)
{
    return resolveBand(text.toString());
}

Result<Band> bandByCode(int code)
{
    const int t = code / 100;
    const int b = code % 100;
    if (code >= 0 && t < kNumTechSlots && store().TechIndexMap.values().contains(t)
        && b < store().Technologies[t].NumBand)
        return BandAccess::make(t, b);
    return noBandWithCode(QString::number(code));
}

QList<Band> allBands()
{
    QList<Band> out;
    for (int t : techSlots())
        out << bands(Technology(t));
    return out;
}

QList<Band> bands(Technology technology)
{
    QList<Band> out;
    const int t = int(technology);
    if (t < 0 || t >= kNumTechSlots)
        return out;
    for (int b = 0; b < store().Technologies[t].NumBand; ++b)
        out << BandAccess::make(t, b);
    return out;
}

QString Band::technologyName() const
{
    return typed::bandData(*this) ? store().Technologies[m_tech].TechName : QString();
}

QString Band::name() const
{
    const ChBand *data = typed::bandData(*this);
    return data ? data->BandName : QString();
}

QString Band::standard() const
{
    return typed::bandData(*this) ? standardOf(m_tech, m_band) : QString();
}

QString Band::shortName() const
{
    const QString bandName = name();
    if (bandName.isEmpty())
        return {};
    const QStringList base = shortKeys(bandName);
    QStringList keys = base;
    for (const QString &key : base) {
        for (const QString &word : qualifierWords(bandName))
            keys << key + QLatin1Char('-') + word;
    }
    const QStringList techs = aliasesOfSlot(m_tech) << techName(m_tech);
    for (const QString &tech : techs) {
        for (const QString &key : keys) {
            QString candidate = tech.toUpper() + QLatin1Char(':') + key;
            if (candidate.contains(QLatin1Char(' ')))
                continue;
            const Result<Band> found = resolveBand(candidate);
            if (found.ok() && found.value() == *this)
                return candidate;
        }
    }
    return {};
}

} // namespace saiskuko
