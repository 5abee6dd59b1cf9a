// Band tables for the instrument's screens: by mode, or a technology at a time.
#include <saiskuko/chstd.h>

#include "store/technologies.h"

#include <QtCore/QStringList>

namespace {

// The technologies whose bands an instrument mode's table shows, in order.
// 5G NR belongs to no mode.
QList<int> techSlotsOfMode(int mode)
{
    switch (mode) {
    case 1:
    case 4:
    case 16:
    case 17:
    case 23:
        return {SlotCdma, SlotGsm, SlotLteFdd, SlotLteTdd, SlotTdScdma, SlotWcdma, SlotWimax};
    case 6:
        return {SlotGsm};
    case 8:
        return {SlotWcdma};
    case 9:
        return {SlotTdScdma};
    case 10:
    case 12:
        return {SlotCdma};
    case 11:
        return {SlotWimax};
    case 13:
        return {SlotLteFdd};
    case 14:
        return {SlotLteTdd};
    case 20:
    case 22:
        return {SlotLteFdd, SlotLteTdd, SlotWcdma};
    default:
        return {};
    }
}

QStringList technologiesOfMode(int mode)
{
    QStringList names;
    for (int slot : techSlotsOfMode(mode))
        names.append(techName(slot));
    return names;
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
