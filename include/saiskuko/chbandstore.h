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
                     double startFreq, double stopFreq, double baseFreq, int subBandParam,
                     int link, ChFreqFunc func, bool uplinkOnly);
    void MakeBandInfo();
    void TestFunction();

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
};

#endif
