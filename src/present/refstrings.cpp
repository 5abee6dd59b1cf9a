// Reference strings: the channel and frequency ranges a screen shows beside a band.
#include <saiskuko/chbandstore.h>

#include "store/recordrules.h"
#include "store/technologies.h"

#include <QtCore/QLatin1String>
#include <QtCore/QStringList>

namespace {

// Paired technologies show one record chosen by the link selector; the
// others show the first record of each consecutive pair.
bool isPairedTechnology(int techSlot)
{
    return kTechnologies[techSlot].pairedRefStrings;
}

// The records a text shows, in order.
QList<const stSubBand *> shownRecords(const ChBand &b, int techSlot, int linkSel)
{
    QList<const stSubBand *> shown;
    if (isPairedTechnology(techSlot)) {
        shown.append(&b.SubBands[linkSel != 0 ? 0 : 1]);
        return shown;
    }
    const int n = recordCount(b);
    const int ranges = (n == 1 ? 2 : n) / 2;
    for (int first = 0; first < 2 * ranges; first += 2)
        shown.append(&b.SubBands[first]);
    return shown;
}

QString channelRange(const char *format, const stSubBand &r)
{
    return QString::asprintf(format, r.StartChannelNo, r.StopChannelNo);
}

} // namespace

QString ChBandStore::GetChNumRefString(QString tech, QString band, int linkSel) const
{
    if (isGlobalBandName(band))
        return QStringLiteral(" ");
    const int t = LookupTechSlot(tech);
    const ChBand &b = Technologies[t].Bands[LookupBandSlot(t, band)];
    const QList<const stSubBand *> shown = shownRecords(b, t, linkSel);
    if (isPairedTechnology(t))
        return QLatin1String("(") + channelRange("%d - %d)", *shown.first());

    // "(a - b /c - d /" loses its last character, then gets ")": the spacing
    // "(1 - 799 /991 - 1023 )" is what the screens have always shown.
    QString text = QStringLiteral("(");
    for (const stSubBand *r : shown)
        text += channelRange("%d - %d /", *r);
    text.chop(1);
    text += QLatin1String(")");
    return text;
}

QString ChBandStore::GetChNumRefString_List(QString tech, QString band, int linkSel) const
{
    // A global band and a paired technology's single range read as above.
    const int t = LookupTechSlot(tech);
    if (isGlobalBandName(band) || isPairedTechnology(t))
        return GetChNumRefString(tech, band, linkSel);
    QStringList pieces;
    for (const stSubBand *r :
         shownRecords(Technologies[t].Bands[LookupBandSlot(t, band)], t, linkSel))
        pieces.append(channelRange("(%d - %d)", *r));
    return pieces.join(QLatin1Char('\n'));
}

QString ChBandStore::GetFreqRefString_List(QString tech, QString band, int linkSel) const
{
    if (isGlobalBandName(band))
        return QStringLiteral(" ");
    const int t = LookupTechSlot(tech);
    const ChBand &b = Technologies[t].Bands[LookupBandSlot(t, band)];
    QStringList pieces;
    for (const stSubBand *r : shownRecords(b, t, linkSel)) {
        const double first = GetFreq(tech, band, linkSel, r->StartChannelNo);
        const double last = GetFreq(tech, band, linkSel, r->StopChannelNo);
        pieces.append(QStringLiteral("(%1 - %2)").arg(first, 0, 'f', 2).arg(last, 0, 'f', 2));
    }
    return pieces.join(QLatin1Char('\n'));
}
