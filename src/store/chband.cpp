// Bands and technology slots: their names and the records they hold.
#include <saiskuko/chband.h>

#include "store/chbandstore_p.h"
#include "store/technologies.h"

ChBand::ChBand(QObject *parent) : QObject(parent), IsGlobal(false), SubBands(), NumSubBand(0)
{
    // SubBands() zeroes every field, so a store on the heap reads like the
    // static one; -9 marks a record that was never written.
    for (stSubBand &record : SubBands)
        record.Link = -9;
}

ChBand::~ChBand() = default;

void ChBand::SetBandName(QString name)
{
    // Every record of a band sets its name again; the facts change only with it.
    if (name != BandName)
        ChBandNameFacts::set(*this, ChBandNameFacts::of(name));
    BandName = name;
    if (isGlobalBandName(BandName))
        IsGlobal = true;
}

QString ChBand::GetBandName()
{
    return BandName;
}

ChTechnology::ChTechnology(QObject *parent) : QObject(parent), NumBand(0)
{}

ChTechnology::~ChTechnology() = default;

void ChTechnology::SetTechName(QString name)
{
    TechName = name;
}

QString ChTechnology::GetTechName()
{
    return TechName;
}
