#ifndef SAISKUKO_CHBAND_H
#define SAISKUKO_CHBAND_H

#include <saiskuko/records.h>

#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QString>

// A band: its name and its sub-band records in registration order.
class SAISKUKO_EXPORT ChBand : public QObject
{
public:
    static constexpr int MaxSubBands = 100;

    explicit ChBand(QObject *parent = nullptr);
    ~ChBand() override;

    void SetBandName(QString name);
    QString GetBandName();

    QString BandName;
    bool IsGlobal;
    stSubBand SubBands[MaxSubBands];
    int NumSubBand;
};

// A technology slot: its name and up to 40 bands.
class SAISKUKO_EXPORT ChTechnology : public QObject
{
public:
    static constexpr int MaxBands = 40;

    explicit ChTechnology(QObject *parent = nullptr);
    ~ChTechnology() override;

    void SetTechName(QString name);
    QString GetTechName();

    QString TechName;
    ChBand Bands[MaxBands];
    QMap<QString, int> BandIndexMap;
    int NumBand;
};

#endif
