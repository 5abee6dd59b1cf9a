#ifndef SAISKUKO_CHBAND_H
#define SAISKUKO_CHBAND_H

/// @file
/// The two inner levels of the band store: technologies and their bands.

#include <saiskuko/records.h>

#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QString>

/// A band: its name and its sub-band records in registration order. The
/// queries scan the records from 0 upward and take the first match, so the
/// order matters. A plain QObject: no signals, slots or properties.
class SAISKUKO_EXPORT ChBand : public QObject
{
public:
    /// Capacity: records per band.
    static constexpr int MaxSubBands = 100;

    /// An empty band: no name, not global, no records, and stSubBand::Link
    /// -9 ("never written") in all #MaxSubBands records.
    explicit ChBand(QObject *parent = nullptr);
    /// Writes nothing.
    ~ChBand() override;

    /// Sets #BandName; a name of exactly "Band Global" also sets #IsGlobal,
    /// which no later name clears.
    void SetBandName(QString name);
    /// A copy of #BandName.
    QString GetBandName();

    QString BandName; ///< The band's name, such as "Band 1 (2100)".
    bool IsGlobal;    ///< True once the band was named "Band Global" (see @ref global).

private:
    // What the queries ask of the name on every call, kept by SetBandName in
    // bytes the layout leaves unused, so the class keeps its size and offsets.
    friend struct ChBandNameFacts;
    quint8 NameFacts = 0;

public:
    stSubBand SubBands[MaxSubBands]; ///< Records 0 to #NumSubBand - 1 in registration order.
    int NumSubBand;                  ///< Number of records in use.
};

/// A technology slot: its name and up to 40 bands, numbered in the order in
/// which their first record was registered. A plain QObject.
class SAISKUKO_EXPORT ChTechnology : public QObject
{
public:
    /// Capacity: bands per technology.
    static constexpr int MaxBands = 40;

    /// An empty slot: no name, no bands.
    explicit ChTechnology(QObject *parent = nullptr);
    /// Writes nothing.
    ~ChTechnology() override;

    /// Sets #TechName.
    void SetTechName(QString name);
    /// A copy of #TechName.
    QString GetTechName();

    /// The technology's name, such as "LTE-FDD": the last name registered into
    /// the slot; empty until its first record.
    QString TechName;
    ChBand Bands[MaxBands]; ///< Band slots 0 to #NumBand - 1.
    /// Band name to band slot; names are exact and case-sensitive.
    QMap<QString, int> BandIndexMap;
    int NumBand; ///< Number of band slots in use.
};

#endif
