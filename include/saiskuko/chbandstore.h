#ifndef SAISKUKO_CHBANDSTORE_H
#define SAISKUKO_CHBANDSTORE_H

#include <saiskuko/chband.h>
#include <saiskuko/records.h>

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QString>

// The band plan: 8 technology slots x 40 bands x 100 sub-band records, filled
// once at construction and read-only afterwards. The library's one instance is
// G_CHSTD; every query is a member of this class.
class SAISKUKO_EXPORT ChBandStore : public QObject
{
public:
    static constexpr int MaxTechnologies = 8;
    static constexpr int NumCatalogs = 7;

    explicit ChBandStore(QObject *parent = nullptr);
    ~ChBandStore() override;

    // --- registration ---
    void SetBandInfo(QString tech, QString band, int startChannelNo, int stopChannelNo,
                     double startFreq, double stopFreq, double baseFreq, int subBandParam, int link,
                     ChFreqFunc func, bool uplinkOnly);
    void MakeBandInfo();
    void TestFunction();

    // --- enumeration: code = 100 x technology slot + band slot ---
    int GetEnumulator(QString tech, QString band) const;
    QString GetEnumulator(int code) const;
    int GetTech(int code) const;
    int GetBand(int code) const;
    QString GetBandName(int code) const;
    int GetNumBand(QString tech) const;
    QList<QString> GetBandList(QString tech) const;

    // --- classification ---
    bool IsChannelStandard(QString standard) const;
    bool IsChannelStandard(int code) const;
    bool CheckChannelStandardIsLTETDD(QString band) const;
    bool CheckChannelStandardIsTDS(QString band) const;
    bool CheckChannelStandardIsWiMax(QString band) const;

    // --- band limits (link: 1 uplink, 0 downlink) ---
    double GetStartFreq(QString tech, QString band) const;
    double GetStartFreq(QString tech, QString band, int link) const;
    double GetStopFreq(QString tech, QString band, int link) const;
    int GetStartChannelNo(QString tech, QString band, int link) const;
    int GetStopChannelNo(QString tech, QString band, int link) const;
    int GetNumSubBand(QString tech, QString band) const;
    bool IsUplinkOnly(QString tech, QString band) const;
    double GetDefaultIntBW(QString tech) const;

    // --- channel to frequency (MHz; -1.0 when the channel is in no record) ---
    double GetFreq(QString tech, QString band, int link, int channel) const;
    double GetFreq(QString standard, int link, int channel) const;
    double GetFreq(QString standard, QString direction, int channel) const;
    double GetFreqNoLimit(QString tech, QString band, int link, int channel) const;
    bool IsExistChannelNo(QString tech, QString band, int link, int channel) const;
    int GetStopChannelNo_InSample(QString tech, QString band, int channel, int link) const;

    // --- frequency to channel (exact raster frequencies only; -1 otherwise) ---
    int GetChNumFromFreq(QString tech, QString band, int link, double freqMHz, int preferred) const;
    int GetChNumFromFreq(QString standard, int link, double freqMHz, int preferred) const;
    int GetChNumFromFreq(QString standard, QString direction, double freqMHz, int preferred) const;
    int GetOffsetChUpDown(QString tech, QString band, int channel, int link) const;
    int GetOffsetChUpDown(QString standard, int link, int channel) const;
    int GetOffsetChUpDown(QString standard, QString direction, int channel) const;

    // --- the same queries by channel standard enumerator ---
    int GetNumSubBand(int code) const;
    int GetStartChannelNo(int code, int link) const;
    int GetStopChannelNo(int code, int link) const;
    int GetOffsetChUpDown(int code, int link, int channel) const;
    int GetChNumFromFreq(int code, int link, double freqMHz, int preferred) const;
    double GetDefaultIntBW(int code) const;
    bool IsUplinkOnly(int code) const;
    double GetStartFreq(int code) const;
    double GetStartFreq(int code, int link) const;
    double GetStopFreq(int code, int link) const;
    bool IsExistChannelNo(int code, int link, int channel) const;
    double GetFreq(int code, int link, int channel) const;

    // --- frequency search and screen texts ---
    QList<ChInfo> GetChInfoFromFreq(double freqMHz) const;
    QList<int> GetAvailableChannels(QString channelStandard, QString direction, double lowMHz,
                                    double highMHz) const;
    QString GetChNumRefString(QString tech, QString band, int linkSel) const;
    QString GetChNumRefString_List(QString tech, QString band, int linkSel) const;
    QString GetFreqRefString_List(QString tech, QString band, int linkSel) const;

    // --- channel number formulas (channel -> MHz), in order of definition ---
    static double chstdGetCDMA_Band0_1(int channel, double base, int ref);
    static double chstdGetCDMA_Band0_2(int channel, double base, int ref);
    static double chstdGetCDMA_Band1_4(int channel, double base, int ref);
    static double chstdGetCDMA_Band2_1(int channel, double base, int ref);
    static double chstdGetCDMA_Band2_2(int channel, double base, int ref);
    static double chstdGetCDMA_Band3_1(int channel, double base, int ref);
    static double chstdGetCDMA_Band3_2(int channel, double base, int ref);
    static double chstdGetCDMA_Band3_3(int channel, double base, int ref);
    static double chstdGetCDMA_Band3_4(int channel, double base, int ref);
    static double chstdGetCDMA_Band5_1(int channel, double base, int ref);
    static double chstdGetCDMA_Band5_2(int channel, double base, int ref);
    static double chstdGetCDMA_Band5_3(int channel, double base, int ref);
    static double chstdGetCDMA_Band5_4(int channel, double base, int ref);
    static double chstdGetCDMA_Band10_2(int channel, double base, int ref);
    static double chstdGetGSM_450(int channel, double base, int ref);
    static double chstdGetGSM_480(int channel, double base, int ref);
    static double chstdGetGSM_850(int channel, double base, int ref);
    static double chstdGetGSM_900(int channel, double base, int ref);
    static double chstdGetGSM_900E_2(int channel, double base, int ref);
    static double chstdGetGSM_DCS1800(int channel, double base, int ref);
    static double chstdGetLTEBand1Up(int channel, double base, int ref);
    static double chstdGetLTEBand1Dn(int channel, double base, int ref);
    static double chstdGetLTEBand2Up(int channel, double base, int ref);
    static double chstdGetLTEBand2Dn(int channel, double base, int ref);
    static double chstdGetLTEBand3Up(int channel, double base, int ref);
    static double chstdGetLTEBand3Dn(int channel, double base, int ref);
    static double chstdGetLTEBand4Up(int channel, double base, int ref);
    static double chstdGetLTEBand4Dn(int channel, double base, int ref);
    static double chstdGetLTEBand5Up(int channel, double base, int ref);
    static double chstdGetLTEBand5Dn(int channel, double base, int ref);
    static double chstdGetLTEBand7Up(int channel, double base, int ref);
    static double chstdGetLTEBand7Dn(int channel, double base, int ref);
    static double chstdGetLTEBand8Up(int channel, double base, int ref);
    static double chstdGetLTEBand8Dn(int channel, double base, int ref);
    static double chstdGetLTEBand9Up(int channel, double base, int ref);
    static double chstdGetLTEBand9Dn(int channel, double base, int ref);
    static double chstdGetLTEBand10Up(int channel, double base, int ref);
    static double chstdGetLTEBand10Dn(int channel, double base, int ref);
    static double chstdGetLTEBand11Up(int channel, double base, int ref);
    static double chstdGetLTEBand11Dn(int channel, double base, int ref);
    static double chstdGetLTEBand12Up(int channel, double base, int ref);
    static double chstdGetLTEBand12Dn(int channel, double base, int ref);
    static double chstdGetLTEBand13Up(int channel, double base, int ref);
    static double chstdGetLTEBand13Dn(int channel, double base, int ref);
    static double chstdGetLTEBand14Up(int channel, double base, int ref);
    static double chstdGetLTEBand14Dn(int channel, double base, int ref);
    static double chstdGetLTEBand17Up(int channel, double base, int ref);
    static double chstdGetLTEBand17Dn(int channel, double base, int ref);
    static double chstdGetLTEBand18Up(int channel, double base, int ref);
    static double chstdGetLTEBand18Dn(int channel, double base, int ref);
    static double chstdGetLTEBand19Up(int channel, double base, int ref);
    static double chstdGetLTEBand19Dn(int channel, double base, int ref);
    static double chstdGetLTEBand20Up(int channel, double base, int ref);
    static double chstdGetLTEBand20Dn(int channel, double base, int ref);
    static double chstdGetLTEBand21Up(int channel, double base, int ref);
    static double chstdGetLTEBand21Dn(int channel, double base, int ref);
    static double chstdGetLTEBand24Up(int channel, double base, int ref);
    static double chstdGetLTEBand24Dn(int channel, double base, int ref);
    static double chstdGetLTEBand22Up(int channel, double base, int ref);
    static double chstdGetLTEBand22Dn(int channel, double base, int ref);
    static double chstdGetLTEBand23Up(int channel, double base, int ref);
    static double chstdGetLTEBand23Dn(int channel, double base, int ref);
    static double chstdGetLTEBand25Up(int channel, double base, int ref);
    static double chstdGetLTEBand25Dn(int channel, double base, int ref);
    static double chstdGetLTEBand26Up(int channel, double base, int ref);
    static double chstdGetLTEBand26Dn(int channel, double base, int ref);
    static double chstdGetLTEBand27Up(int channel, double base, int ref);
    static double chstdGetLTEBand27Dn(int channel, double base, int ref);
    static double chstdGetLTEBand28Up(int channel, double base, int ref);
    static double chstdGetLTEBand28Dn(int channel, double base, int ref);
    static double chstdGetLTEBand29Up(int channel, double base, int ref);
    static double chstdGetLTEBand29Dn(int channel, double base, int ref);
    static double chstdGetLTEBand30Dn(int channel, double base, int ref);
    static double chstdGetLTEBand31Up(int channel, double base, int ref);
    static double chstdGetLTEBand31Dn(int channel, double base, int ref);
    static double chstdGetLTEBand32Dn(int channel, double base, int ref);
    static double chstdGetLTEBand33(int channel, double base, int ref);
    static double chstdGetLTEBand34(int channel, double base, int ref);
    static double chstdGetLTEBand35(int channel, double base, int ref);
    static double chstdGetLTEBand36(int channel, double base, int ref);
    static double chstdGetLTEBand37(int channel, double base, int ref);
    static double chstdGetLTEBand38(int channel, double base, int ref);
    static double chstdGetLTEBand39(int channel, double base, int ref);
    static double chstdGetLTEBand40(int channel, double base, int ref);
    static double chstdGetLTEBand41(int channel, double base, int ref);
    static double chstdGetLTEBand42(int channel, double base, int ref);
    static double chstdGetLTEBand43(int channel, double base, int ref);
    static double chstdGetLTEBand44(int channel, double base, int ref);
    static double chstdGetLTEBand45(int channel, double base, int ref);
    static double chstdGetLTEBand46(int channel, double base, int ref);
    static double chstdGetLTEBand47(int channel, double base, int ref);
    static double chstdGetLTEBand48(int channel, double base, int ref);
    static double chstdGetLTEBand65Up(int channel, double base, int ref);
    static double chstdGetLTEBand65Dn(int channel, double base, int ref);
    static double chstdGetLTEBand66Up(int channel, double base, int ref);
    static double chstdGetLTEBand66Dn(int channel, double base, int ref);
    static double chstdGetLTEBand67Dn(int channel, double base, int ref);
    static double chstdGetLTEBand68Up(int channel, double base, int ref);
    static double chstdGetLTEBand68Dn(int channel, double base, int ref);
    static double chstdGetLTEBand69Dn(int channel, double base, int ref);
    static double chstdGetLTEBand70Up(int channel, double base, int ref);
    static double chstdGetLTEBand70Dn(int channel, double base, int ref);
    static double chstdGetLTEBand71Up(int channel, double base, int ref);
    static double chstdGetLTEBand71Dn(int channel, double base, int ref);
    static double chstdGetLTEBand72Up(int channel, double base, int ref);
    static double chstdGetLTEBand72Dn(int channel, double base, int ref);
    static double chstdGetTDSCDMA_Common2(int channel, double base, int ref);
    static double chstdGetWIMAX_Common1(int channel, double base, int ref);
    static double chstdGetWIMAX_Common2(int channel, double base, int ref);
    static double chstdGetWIMAX_Common3(int channel, double base, int ref);
    static double chstdGetWIMAX_Common4(int channel, double base, int ref);
    static double chstdGet5GNRBand(int channel, double base, int ref);
    static double chstdGet5GNRBand15k(int channel, double base, int ref);
    static double chstdGet5GNRBand60k(int channel, double base, int ref);
    static double chstdGetCDMA_Band789(int channel, double base, int ref);
    static double chstdGetCDMA_Band10_1(int channel, double base, int ref);
    static double chstdGetTDSCDMA_Common(int channel, double base, int ref);
    static double chstdGetGSM_900E_1(int channel, double base, int ref);
    static double chstdGetGSM_900R_1(int channel, double base, int ref);
    static double chstdGetWCDMA_Common(int channel, double base, int ref);
    static double chstdGetLTEBand30Up(int channel, double base, int ref);
    static double chstdGetGSM_900R_2(int channel, double base, int ref);
    static double chstdGetGSM_PCS1900(int channel, double base, int ref);
    static double chstdGetLTEBand32Up(int channel, double base, int ref);
    static double chstdGetLTEBand67Up(int channel, double base, int ref);
    static double chstdGetLTEBand69Up(int channel, double base, int ref);

    // --- data, in declaration order ---
    ChTechnology Technologies[MaxTechnologies];
    QMap<QString, int> TechIndexMap;
    // Band-name catalogues of CDMA, GSM, LTE-FDD, LTE-TDD, TD-SCDMA, WCDMA and
    // WIMAX (in that order). Built at construction, read by nothing.
    QMap<QString, int> BandNameCatalog[NumCatalogs];
    QMap<int, QString> IndexNameMap; // never filled

private:
    // Lenient lookups: an unknown name selects slot 0, silently.
    int LookupTechSlot(const QString &tech) const;
    int LookupBandSlot(int techSlot, const QString &band) const;
    bool HasRoomFor(int techSlot, const QString &band) const;
    // The band that a (lenient) pair of names selects.
    const ChBand &BandOf(const QString &tech, const QString &band) const;
    // Strict lookup: the enumerator, or -1 after a warning naming the culprit.
    int StrictEnumerator(const QString &tech, const QString &band) const;
    // The names behind an enumerator, or false after a warning.
    bool NamesOfEnumerator(int code, QString *tech, QString *band) const;
    // A query by enumerator: the name form's answer for the code's names, or
    // failure after NamesOfEnumerator's warning.
    template <typename Result, typename Query>
    Result AnswerForEnumerator(int code, Result failure, Query query) const;
};

#endif
