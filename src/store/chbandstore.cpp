#include <saiskuko/chbandstore.h>

#include "store/techslots.h"

#include <QtCore/QDebug>
#include <QtCore/QLatin1String>

namespace {

// Band-name catalogues, kept for callers that read them; the store itself
// numbers bands by registration order instead.
const char *const kCdmaCatalog[] = {
    "Band 0 (800)", "Band 1 (NA PCS)", "Band 2 (TACS)", "Band 3 (JTACS)",
    "Band 4 (KR PCS)", "Band 5 (450)", "Band 6 (2100)", "Band 7 (700)",
    "Band 8 (1800)", "Band 9 (900)", "Band 10 (2nd 800)",
};
const char *const kGsmCatalog[] = {
    "GSM 450", "GSM 480", "GSM 850", "P-GSM 900", "E-GSM 900", "R-GSM 900",
    "R-GSM 900 (China)", "DCS 1800", "PCS 1900",
};
const char *const kLteFddCatalog[] = {
    "Band Global", "Band 1 (2100)", "Band 2 (1900)", "Band 3 (1800)", "Band 4 (1700)",
    "Band 5 (850)", "Band 7 (2600)", "Band 8 (900)", "Band 9 (1800)", "Band 10 (1700)",
    "Band 11 (1500)", "Band 12 (700)", "Band 13 (700)", "Band 14 (700)", "Band 17 (700)",
    "Band 18 (800)", "Band 20 (800)", "Band 21 (1500)", "Band 22 (3500)", "Band 23 (2100)",
    "Band 24 (1500)", "Band 25 (1900)", "Band 26 (800)",
};
const char *const kLteTddCatalog[] = {
    "Band Global", "Band 33 (1900)", "Band 34 (2010)", "Band 35 (1850)",
    "Band 36 (1930)", "Band 37 (1910)", "Band 38 (2570)", "Band 39 (1880)",
    "Band 40 (2300)", "Band 41 (2496)", "Band 42 (3400)", "Band 43 (3600)",
};
const char *const kTdScdmaCatalog[] = {
    "FBN 0", "FBN 1", "FBN 2", "FBN 3", "FBN 4", "FBN 5", "FBN 6", "FBN 7", "FBN 8",
};
const char *const kWcdmaCatalog[] = {
    "Band Global", "Band 1 (2100-General)", "Band 2 (1900-General)",
    "Band 2 (1900-Additional)", "Band 3 (1800-General)", "Band 4 (1700-General)",
    "Band 4 (1700-Additional)", "Band 5 (850-General)", "Band 5 (850-Additional)",
    "Band 6 (800-General)", "Band 6 (800-Additional)", "Band 7 (2600-General)",
    "Band 7 (2600-Additional)", "Band 8 (900-General)", "Band 9 (1800-General)",
    "Band 10 (1700-General)", "Band 10 (1700-Additional)", "Band 11 (1476-General)",
    "Band 12 (729-General)", "Band 12 (729-Additional)", "Band 13 (746-General)",
    "Band 13 (746-Additional)", "Band 14 (758-General)", "Band 14 (758-Additional)",
    "Band 19 (800-General)", "Band 19 (800-Additional)", "Band 20 (800-General)",
    "Band 21 (1500-General)", "Band 21 (3500-General)", "Band 25 (1900-General)",
    "Band 25 (1900-Additional)", "Band 26 (1900-General)", "Band 26 (1900-Additional)",
};
const char *const kWimaxCatalog[] = {
    "ProfR1 (1.25 2150)", "ProfR2 (1.25 2305)", "ProfR3 (1.25 2361)", "ProfR4 (1.25 2500)",
    "ProfR5 (1.25 3400)", "ProfR6 (3.5 2598)", "ProfR7 (3.5 3461)", "ProfR8 (3.5 3551)",
    "ProfR9 (3.5 3651)", "ProfR10 (3.5 3751)", "ProfR11 (7 2600)", "ProfR12 (7 3463)",
    "ProfR13 (7 3553)", "ProfR14 (7 3653)", "ProfR15 (7 3753)", "ProfR26 (10 5275)",
    "ProfR27 (10 5740)", "ProfR28 (10 5735)", "ProfR29 (8.75 2304)",
};

template <size_t N>
void fillCatalog(QMap<QString, int> &catalog, const char *const (&names)[N])
{
    for (size_t i = 0; i < N; ++i)
        catalog.insert(QString::fromLatin1(names[i]), static_cast<int>(i));
}

} // namespace

ChBandStore::ChBandStore(QObject *parent) : QObject(parent)
{
    qDebug() << "[ChStd] " << "Version : " << SAISKUKO_VERSION_STR;

    for (int slot = 0; slot < kNumTechSlots; ++slot)
        TechIndexMap.insert(QString::fromLatin1(kTechNames[slot]), slot);
    fillCatalog(BandNameCatalog[SlotCdma], kCdmaCatalog);
    fillCatalog(BandNameCatalog[SlotGsm], kGsmCatalog);
    fillCatalog(BandNameCatalog[SlotLteFdd], kLteFddCatalog);
    fillCatalog(BandNameCatalog[SlotLteTdd], kLteTddCatalog);
    fillCatalog(BandNameCatalog[SlotTdScdma], kTdScdmaCatalog);
    fillCatalog(BandNameCatalog[SlotWcdma], kWcdmaCatalog);
    fillCatalog(BandNameCatalog[SlotWimax], kWimaxCatalog);

    MakeBandInfo();
    TestFunction();
}

ChBandStore::~ChBandStore() = default;

void ChBandStore::TestFunction() {}

int ChBandStore::LookupTechSlot(const QString &tech) const
{
    const int slot = TechIndexMap.value(tech, 0);
    return (slot >= 0 && slot < MaxTechnologies) ? slot : 0;
}

int ChBandStore::LookupBandSlot(int techSlot, const QString &band) const
{
    if (techSlot < 0 || techSlot >= MaxTechnologies)
        return 0;
    const int slot = Technologies[techSlot].BandIndexMap.value(band, 0);
    return (slot >= 0 && slot < ChTechnology::MaxBands) ? slot : 0;
}

bool ChBandStore::HasRoomFor(int techSlot, const QString &band) const
{
    const ChTechnology &technology = Technologies[techSlot];
    const auto known = technology.BandIndexMap.constFind(band);
    if (known == technology.BandIndexMap.constEnd())
        return technology.NumBand < ChTechnology::MaxBands;
    const int slot = known.value();
    return slot >= 0 && slot < ChTechnology::MaxBands
           && technology.Bands[slot].NumSubBand < ChBand::MaxSubBands;
}

void ChBandStore::SetBandInfo(QString tech, QString band, int startChannelNo, int stopChannelNo,
                              double startFreq, double stopFreq, double baseFreq,
                              int subBandParam, int link, ChFreqFunc func, bool uplinkOnly)
{
    const int t = LookupTechSlot(tech);
    // The arrays are fixed; a record that does not fit is refused whole so the
    // store stays as it was.
    if (!HasRoomFor(t, band)) {
        qWarning() << "Band store is full, record refused.(" << tech << band << ")";
        return;
    }

    ChTechnology &technology = Technologies[t];
    technology.SetTechName(tech);

    int b;
    if (technology.NumBand == 0) {
        technology.BandIndexMap.insert(band, 0);
        technology.NumBand = 1;
        technology.Bands[0].NumSubBand = 0;
        b = 0;
    } else {
        const auto known = technology.BandIndexMap.constFind(band);
        if (known != technology.BandIndexMap.constEnd()) {
            b = known.value();
        } else {
            b = technology.NumBand;
            technology.BandIndexMap.insert(band, b);
            ++technology.NumBand;
        }
    }

    ChBand &target = technology.Bands[b];
    target.SetBandName(band);
    stSubBand &record = target.SubBands[target.NumSubBand];
    record.StartChannelNo = startChannelNo;
    record.StopChannelNo = stopChannelNo;
    record.StartFreq = startFreq;
    record.StopFreq = stopFreq;
    record.BaseFreq = baseFreq;
    record.SubBandParam = subBandParam;
    record.Link = link;
    record.FreqFunc = func;
    record.UplinkOnly = uplinkOnly;
    ++target.NumSubBand;
}

const ChBand &ChBandStore::BandOf(const QString &tech, const QString &band) const
{
    const int t = LookupTechSlot(tech);
    return Technologies[t].Bands[LookupBandSlot(t, band)];
}
