#ifndef SAISKUKO_RECORDS_H
#define SAISKUKO_RECORDS_H

#include <saiskuko/saiskuko_global.h>

#include <QtCore/QList>
#include <QtCore/QString>

// Turns a channel number into a centre frequency in MHz. `base` is the
// sub-band's base frequency; `ref` is the channel whose frequency is `base`
// (read only by the 5G NR formulas).
typedef double (*ChFreqFunc)(int channel, double base, int ref);

// One sub-band: a channel range of one link direction and its formula.
// A plain record on purpose: the store holds thousands of them by value.
struct SAISKUKO_EXPORT stSubBand
{
    qint32 StartChannelNo;
    qint32 StopChannelNo;
    double StartFreq;    // lower band edge, MHz
    double StopFreq;     // upper band edge, MHz
    double BaseFreq;     // handed to FreqFunc, MHz
    qint32 SubBandParam; // stored, never read
    qint32 Link;         // 1 uplink, 0 downlink, -9 never written
    ChFreqFunc FreqFunc;
    bool UplinkOnly;
};

// One hit of a frequency search.
struct SAISKUKO_EXPORT ChInfo
{
    qint32 reserved = 0;
    QString techName;
    QString bandName;
    qint32 linkDirection = -1; // 0 downlink, 1 uplink, -1 no channel chosen
    qint32 channelNo = -1;
    double freqOffset = 2000000000.0; // channel frequency minus searched, MHz
};

// A band table for a screen: four parallel columns, one row per band.
struct SAISKUKO_EXPORT stCHList
{
    QList<QString> techList;
    QList<QString> bandList;
    QList<QString> chRangeList;
    QList<QString> freqRangeList;
};

#endif
