#ifndef SAISKUKO_RECORDS_H
#define SAISKUKO_RECORDS_H

/// @file
/// The plain records of the library: a sub-band record, a frequency-search hit
/// and a screen table, and the formula type that the records carry.

#include <saiskuko/saiskuko_global.h>

#include <QtCore/QList>
#include <QtCore/QString>

/// A channel number formula: turns @p channel into a centre frequency in MHz.
/// @p base is the sub-band's base frequency in MHz (stSubBand::BaseFreq);
/// @p ref is the channel whose frequency is @p base (the record's
/// stSubBand::StartChannelNo), read only by the three 5G NR formulas. The
/// library's formulas are pure and check nothing: any channel gives a number.
typedef double (*ChFreqFunc)(int channel, double base, int ref);

/// One sub-band: a channel range of one link direction, the band edges it lies
/// in, and its formula. A plain record on purpose: the store holds thousands of
/// them by value. A record with stSubBand::StartFreq exactly 1.0 is a
/// placeholder for a direction the band lacks (see @ref placeholders).
struct SAISKUKO_EXPORT stSubBand
{
    qint32 StartChannelNo; ///< First channel number of the sub-band.
    qint32 StopChannelNo;  ///< Last channel number of the sub-band (inclusive).
    double StartFreq; ///< Lower band edge in this direction, MHz (an edge, not a channel's centre).
    double StopFreq;  ///< Upper band edge in this direction, MHz.
    double BaseFreq;  ///< Base frequency handed to #FreqFunc, MHz.
    qint32 SubBandParam; ///< Stored, never read by the library (the band's number of decimals).
    qint32 Link;         ///< 1 uplink, 0 downlink, -9 a record never written.
    /// The formula: the centre of channel `ch` is `FreqFunc(ch, BaseFreq, StartChannelNo)`.
    ChFreqFunc FreqFunc;
    /// Set on the records of time-division bands, whose directions share one
    /// frequency range; ChBandStore::IsUplinkOnly reports it from a band's first record.
    bool UplinkOnly;
};

/// One hit of ChBandStore::GetChInfoFromFreq: a sub-band that holds the
/// searched frequency and its channel nearest to it.
struct SAISKUKO_EXPORT ChInfo
{
    qint32 reserved = 0;       ///< Always 0; carries nothing.
    QString techName;          ///< Technology name, such as "LTE-FDD".
    QString bandName;          ///< Band name, such as "Band 1 (2100)".
    qint32 linkDirection = -1; ///< 0 downlink, 1 uplink, -1 no channel chosen.
    qint32 channelNo = -1;     ///< Channel nearest to the searched frequency; -1 none.
    /// Frequency of #channelNo minus the searched frequency, MHz (signed);
    /// 2000000000.0 when no channel was chosen.
    double freqOffset = 2000000000.0;
};

/// A band table for a screen: four parallel columns, row i being
/// (techList[i], bandList[i], chRangeList[i], freqRangeList[i]). Filled by
/// ChStd::GetBandListByMode, ChStd::SetBandListName and ChStd::SetBandListRange;
/// each fills only some columns (see there).
struct SAISKUKO_EXPORT stCHList
{
    QList<QString> techList; ///< Technology name of each row.
    QList<QString> bandList; ///< Band name of each row.
    QList<QString>
        chRangeList; ///< Channel-range text of each row (ChBandStore::GetChNumRefString_List).
    QList<QString>
        freqRangeList; ///< Frequency-range text of each row (ChBandStore::GetFreqRefString_List).
};

#endif
