#include <saiskuko/chstd.h>

#include <QtCore/QStringList>

namespace {

// The technologies whose bands an instrument mode's table shows, in order.
// 5G NR belongs to no mode.
QStringList technologiesOfMode(int mode)
{
    const QStringList all = {
        QStringLiteral("CDMA"),     QStringLiteral("GSM"),   QStringLiteral("LTE-FDD"),
        QStringLiteral("LTE-TDD"),  QStringLiteral("TD-SCDMA"), QStringLiteral("WCDMA"),
        QStringLiteral("WIMAX"),
    };
    switch (mode) {
    case 1: case 4: case 16: case 17: case 23:
        return all;
    case 6:
        return {QStringLiteral("GSM")};
    case 8:
        return {QStringLiteral("WCDMA")};
    case 9:
        return {QStringLiteral("TD-SCDMA")};
    case 10: case 12:
        return {QStringLiteral("CDMA")};
    case 11:
        return {QStringLiteral("WIMAX")};
    case 13:
        return {QStringLiteral("LTE-FDD")};
    case 14:
        return {QStringLiteral("LTE-TDD")};
    case 20: case 22:
        return {QStringLiteral("LTE-FDD"), QStringLiteral("LTE-TDD"), QStringLiteral("WCDMA")};
    default:
        return {};
    }
}

} // namespace

stCHList ChStd::GetBandListByMode(int mode, int /*unused*/, int linkSel)
{
    const ChBandStore &store = *GetChStdPointer();
    const QStringList techs = technologiesOfMode(mode);
    stCHList list;
    for (const QString &tech : techs)
        list.bandList.append(store.GetBandList(tech));
    for (const QString &tech : techs) {
        for (const QString &band : store.GetBandList(tech)) {
            list.techList.append(tech);
            list.chRangeList.append(store.GetChNumRefString_List(tech, band, linkSel));
        }
    }
    return list;
}

void ChStd::SetBandListName(QString tech, stCHList &list)
{
    list.bandList.append(GetChStdPointer()->GetBandList(tech));
}

void ChStd::SetBandListRange(QString tech, int linkSel, stCHList &list)
{
    const ChBandStore &store = *GetChStdPointer();
    for (const QString &band : store.GetBandList(tech)) {
        list.techList.append(tech);
        list.chRangeList.append(store.GetChNumRefString_List(tech, band, linkSel));
        list.freqRangeList.append(store.GetFreqRefString_List(tech, band, linkSel));
    }
}
