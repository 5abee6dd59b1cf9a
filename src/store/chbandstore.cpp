// The band store: construction, registration of records and the lenient name lookups.
#include <saiskuko/chbandstore.h>

#include "store/chbandstore_p.h"
#include "store/diagnostics.h"
#include "store/technologies.h"

namespace {

// A technology's band-name catalogue, numbered in its own order. Kept for
// callers that read it; the store numbers bands by registration instead.
void fillCatalogue(QMap<QString, int> &catalogue, int techSlot)
{
    const TechnologyFacts &tech = kTechnologies[techSlot];
    for (int i = 0; i < tech.knownBandCount; ++i) {
        if (tech.knownBands[i].roles & Catalogued)
            catalogue.insert(QString::fromLatin1(tech.knownBands[i].name), catalogue.size());
    }
}

} // namespace

ChBandStore::ChBandStore(QObject *parent) : QObject(parent)
{
    announceVersion();

    NameIndex::createFor(this);
    SearchIndex::createFor(this);
    NameIndex *const index = NameIndex::of(this);
    for (int slot = 0; slot < kNumTechSlots; ++slot) {
        TechIndexMap.insert(techName(slot), slot);
        if (index)
            index->addTech(techName(slot), slot);
    }
    for (int slot = 0; slot < NumCatalogs; ++slot)
        fillCatalogue(BandNameCatalog[slot], slot);

    MakeBandInfo();
    TestFunction();
}

ChBandStore::~ChBandStore() = default;

void ChBandStore::TestFunction()
{}

int ChBandStore::LookupTechSlot(const QString &tech) const
{
    return techSlotNamed(*this, tech);
}

int ChBandStore::LookupBandSlot(int techSlot, const QString &band) const
{
    return bandSlotNamed(*this, techSlot, band);
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
                              double startFreq, double stopFreq, double baseFreq, int subBandParam,
                              int link, ChFreqFunc func, bool uplinkOnly)
{
    const int t = LookupTechSlot(tech);
    // The arrays are fixed; a record that does not fit is refused whole so the
    // store stays as it was.
    if (!HasRoomFor(t, band)) {
        warnStoreFull(tech, band);
        return;
    }

    ChTechnology &technology = Technologies[t];
    technology.SetTechName(tech);

    NameIndex *const index = NameIndex::of(this);
    int b;
    if (technology.NumBand == 0) {
        technology.BandIndexMap.insert(band, 0);
        if (index)
            index->addBand(t, band, 0);
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
            if (index)
                index->addBand(t, band, b);
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
    if (SearchIndex *searches = SearchIndex::of(this))
        searches->set(t, b, target.NumSubBand, record);
    ++target.NumSubBand;
}
