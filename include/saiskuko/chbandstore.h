#ifndef SAISKUKO_CHBANDSTORE_H
#define SAISKUKO_CHBANDSTORE_H

/// @file
/// The band store: the band plan and every query of it.

#include <saiskuko/chband.h>
#include <saiskuko/records.h>

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QString>

/// The band plan: 8 technology slots x 40 bands x 100 sub-band records, filled
/// once at construction and read-only afterwards, so any number of threads may
/// query it at once. The library's one instance is #G_CHSTD; every query is a
/// member of this class and none throws.
///
/// Frequencies are MHz (GetDefaultIntBW answers Hz); `link` is 1 for uplink
/// and 0 for downlink; names are exact and case-sensitive. Most queries by
/// name are lenient: an unknown technology or band name silently selects slot
/// 0 (CDMA, or the technology's first band), so a mistyped name answers for
/// another band. GetEnumulator(QString, QString) and IsChannelStandard are the
/// strict checks. Messages are listed on the @ref messages "Concepts" page.
class SAISKUKO_EXPORT ChBandStore : public QObject
{
public:
    static constexpr int MaxTechnologies = 8; ///< Capacity: technology slots.
    static constexpr int NumCatalogs = 7;     ///< Number of #BandNameCatalog maps.

    /// Builds the whole band plan: writes the banner
    /// `[%ChStd]  Version :  1.0.1` (two blanks after "]" and after ":") on the
    /// Qt debug log, fills the name maps and calls MakeBandInfo. The library
    /// builds #G_CHSTD this way while it loads; another instance would be a
    /// second full copy (about 1.5 MB) and write the banner again.
    explicit ChBandStore(QObject *parent = nullptr);
    /// Writes nothing.
    ~ChBandStore() override;

    /// @name Registration
    /// Used while the store is built; not safe while other threads query it.
    ///@{

    /// Appends one sub-band record to band @p band of technology @p tech; a
    /// band name new to the technology gets the next band slot (its
    /// enumerator). The other arguments fill the stSubBand fields of the same
    /// names (MHz; @p link 1 uplink, 0 downlink). Lenient: an unknown
    /// technology name writes into slot 0 and renames it. A record beyond
    /// capacity (a 41st band, a 101st record) is refused whole with the Qt
    /// warning `Band store is full, record refused.( "TECH" "BAND" )`.
    void SetBandInfo(QString tech, QString band, int startChannelNo, int stopChannelNo,
                     double startFreq, double stopFreq, double baseFreq, int subBandParam, int link,
                     ChFreqFunc func, bool uplinkOnly);
    /// Registers the built-in band plan (587 records) through SetBandInfo, in
    /// a fixed order that numbers the bands. The constructor calls it; a second
    /// call appends the records again.
    void MakeBandInfo();
    /// Does nothing; the constructor calls it last.
    void TestFunction();
    ///@}

    /// @name Enumeration
    /// A band's channel standard enumerator is 100 x technology slot + band
    /// slot (see @ref codes); LTE-FDD "Band 20 (800)" is 217.
    ///@{

    /// Strict: the enumerator of band @p band of technology @p tech. An
    /// unknown name gets -1 after the Qt warning
    /// `Tech Name is invalid.( "TECH" )` (the band is then not examined) or
    /// `Band Name is invalid.( "BAND" )`.
    int GetEnumulator(QString tech, QString band) const;
    /// The channel standard text "TECH - BAND" of enumerator @p code, such as
    /// "LTE-FDD - Band 20 (800)" for 217; an empty string, without a message,
    /// when @p code is no enumerator.
    QString GetEnumulator(int code) const;
    /// The technology slot of enumerator @p code (code / 100). A bad code gets
    /// -1 after the Qt warning `Channel Standard Enum is invalid.( CODE )`.
    int GetTech(int code) const;
    /// The band slot of enumerator @p code (code % 100). A bad code gets -1
    /// after the Qt warning `Channel Standard Enum is invalid.( CODE )`.
    int GetBand(int code) const;
    /// The band name of enumerator @p code. A bad code gets "None" after the
    /// Qt warning `Channel Standard Enum is invalid.( CODE )`.
    QString GetBandName(int code) const;
    /// The number of bands of technology @p tech. Lenient: an unknown name
    /// gives CDMA's 11, without a message.
    int GetNumBand(QString tech) const;
    /// The band names of technology @p tech in slot order (entry i has the
    /// enumerator 100 x slot + i). Lenient: an unknown name lists CDMA's bands,
    /// without a message.
    QList<QString> GetBandList(QString tech) const;
    ///@}

    /// @name Classification
    ///@{

    /// Strict: whether @p standard, a text "TECH - BAND" (split at the first
    /// " - "; a further " - " and what follows are ignored), names a band. False
    /// after the Qt warning `Channel Standard is invalid.( "TEXT" )` (no " - "),
    /// `Tech Name is invalid.( "TECH" )` or `Band Name is invalid.( "BAND" )`.
    bool IsChannelStandard(QString standard) const;
    /// Whether @p code is a channel standard enumerator. If not, false after
    /// the Qt warning `Channel Standard Enum is invalid.( CODE )`.
    bool IsChannelStandard(int code) const;
    /// Whether band name @p band (a name alone) is "Band Global" or one of the
    /// LTE-TDD bands "Band 33 (1900)" to "Band 48 (3600)". A fixed list, not a
    /// store lookup, so the "Band Global" of every technology counts. No message.
    bool CheckChannelStandardIsLTETDD(QString band) const;
    /// Whether band name @p band is one of "FBN 0" to "FBN 8" (TD-SCDMA). No
    /// message.
    bool CheckChannelStandardIsTDS(QString band) const;
    /// Whether band name @p band is one of the nine time-division WIMAX
    /// profiles, those with a single record: "ProfR1 (1.25 2150)" to
    /// "ProfR5 (1.25 3400)" and "ProfR26 (10 5275)" to "ProfR29 (8.75 2304)".
    /// No message.
    bool CheckChannelStandardIsWiMax(QString band) const;
    ///@}

    /// @name Band limits
    /// Lenient (an unknown name selects slot 0) and silent; an empty answer is
    /// 0 or 0.0, which only GetNumSubBand tells apart from a real 0.
    ///@{

    /// The lower edge of the band's first record, MHz (1.0 when that record is
    /// a placeholder; 0.0 for an empty band slot).
    double GetStartFreq(QString tech, QString band) const;
    /// The lowest lower edge among the band's records of @p link, MHz,
    /// placeholders included; 0.0 when none.
    double GetStartFreq(QString tech, QString band, int link) const;
    /// The highest upper edge among the band's records of @p link, MHz,
    /// placeholders included; 0.0 when none.
    double GetStopFreq(QString tech, QString band, int link) const;
    /// The lowest first channel among the band's records of @p link, skipping
    /// placeholders. When that gives nothing, the other link's (1 for @p link
    /// 0, else 0); a real lowest channel 0 is answered without that fallback.
    /// 0 when nothing qualifies.
    int GetStartChannelNo(QString tech, QString band, int link) const;
    /// The highest last channel (at least 0) among the band's records of
    /// @p link, skipping placeholders; when that is 0, the other link's as in
    /// GetStartChannelNo. 0 when nothing qualifies.
    int GetStopChannelNo(QString tech, QString band, int link) const;
    /// The band's number of records; 0 for an empty band slot.
    int GetNumSubBand(QString tech, QString band) const;
    /// The stSubBand::UplinkOnly flag of the band's first record: true for
    /// LTE-TDD, TD-SCDMA and the single-record WIMAX profiles; false for every
    /// 5G NR band (whose first record is a placeholder) and an empty band slot.
    bool IsUplinkOnly(QString tech, QString band) const;
    /// The default integration bandwidth of technology @p tech, in Hz:
    /// "CDMA" 1230000, "GSM" 300000, "WCDMA" 3840000, "TD-SCDMA" 1280000,
    /// "LTE-FDD", "LTE-TDD" and "WIMAX" 10000000, any other text (also "5G NR")
    /// 1000000. Exact names; nothing is looked up.
    double GetDefaultIntBW(QString tech) const;
    ///@}

    /// @name Channel to frequency
    /// Lenient: an unknown name selects slot 0 without a message, so
    /// `GetFreq("LTE", "Band 1 (2100)", 0, 300)` answers 879.0, CDMA band 0's
    /// channel 300. A channel standard text is "TECH - BAND" split at the first
    /// " - "; a text without one gets the Qt warning
    /// `Channel Standard is invalid.( "TEXT" )` and -1.0.
    ///@{

    /// The centre frequency of @p channel, MHz: the formula of the band's first
    /// record of @p link whose channel range holds it. In time-division bands
    /// (the band names of the three CheckChannelStandardIs members, which
    /// include every "Band Global") and in records flagged
    /// stSubBand::UplinkOnly, records of either link qualify.
    /// -1.0, without a message, when no record qualifies.
    double GetFreq(QString tech, QString band, int link, int channel) const;
    /// GetFreq for a channel standard text "TECH - BAND".
    double GetFreq(QString standard, int link, int channel) const;
    /// GetFreq for a channel standard text and a direction text: exactly
    /// "Forward" is downlink; any other text, "DL" and "Downlink" included, is
    /// uplink.
    double GetFreq(QString standard, QString direction, int channel) const;
    /// The formula of the band's first record of @p link (or flagged
    /// stSubBand::UplinkOnly) applied to @p channel without any range check:
    /// extrapolates, and gives nonsense on a placeholder. MHz; -1.0 only when
    /// no record qualifies. No message.
    double GetFreqNoLimit(QString tech, QString band, int link, int channel) const;
    /// Whether a record of exactly @p link holds @p channel. Unlike GetFreq, no
    /// time-division exception: a single-record WIMAX profile has no downlink.
    /// No message.
    bool IsExistChannelNo(QString tech, QString band, int link, int channel) const;
    /// The last channel of the record that holds @p channel; note the order
    /// (channel, then link), the reverse of the other members. Records are read
    /// as uplink/downlink neighbours: one whose link differs from @p link
    /// stands in for the next record when that one has @p link. When no record
    /// holds the channel, the first record's last channel: never a failure
    /// value, never a message.
    int GetStopChannelNo_InSample(QString tech, QString band, int channel, int link) const;
    ///@}

    /// @name Frequency to channel
    /// Lenient names and channel standard texts as for GetFreq; a text without
    /// " - " gets the Qt warning `Channel Standard is invalid.( "TEXT" )` and -1.
    ///@{

    /// The channel whose centre is exactly @p freqMHz (within 2.2e-16 MHz),
    /// among the band's records of @p link or flagged stSubBand::UplinkOnly
    /// whose edges hold it; off-raster frequencies are not rounded. Where
    /// several channels match (overlapping records), @p preferred is returned
    /// if it is among the first ten matches, else the first match: pass the
    /// channel you already have, or -1. With no match, -1 and one line on
    /// standard output: `GetChNumFromFreq Not supported value : 824.3` (the
    /// frequency with six significant digits).
    int GetChNumFromFreq(QString tech, QString band, int link, double freqMHz, int preferred) const;
    /// GetChNumFromFreq for a channel standard text "TECH - BAND".
    int GetChNumFromFreq(QString standard, int link, double freqMHz, int preferred) const;
    /// GetChNumFromFreq for a channel standard text and a direction text:
    /// exactly "Forward" is downlink, any other text uplink.
    int GetChNumFromFreq(QString standard, QString direction, double freqMHz, int preferred) const;
    /// Uplink first channel minus downlink first channel of the record pair
    /// holding @p channel: 18000 for LTE-FDD band 1, -38000 for 5G NR n1, 0
    /// where both links share channel numbers (CDMA, GSM). A placeholder in
    /// the pair gives a meaningless difference. 0 for LTE-TDD, TD-SCDMA, the
    /// single-record WIMAX profiles, a channel in no record and a record
    /// without partner. @p link is not used. Never a failure value, never a
    /// message.
    int GetOffsetChUpDown(QString tech, QString band, int channel, int link) const;
    /// GetOffsetChUpDown for a channel standard text; @p link is not used.
    int GetOffsetChUpDown(QString standard, int link, int channel) const;
    /// GetOffsetChUpDown for a channel standard text; @p direction is not used.
    int GetOffsetChUpDown(QString standard, QString direction, int channel) const;
    ///@}

    /// @name Queries by enumerator
    /// The query of the same name for the band of enumerator @p code, with the
    /// same answers and messages. A code that is no enumerator gets the Qt
    /// warning `Channel Standard Enum is invalid.( CODE )` and a failure value
    /// that differs from the name forms' empty answers: -1, -1.0, false, or
    /// true for IsUplinkOnly.
    ///@{

    /// As GetNumSubBand(QString, QString), or -1.
    int GetNumSubBand(int code) const;
    /// As GetStartChannelNo(QString, QString, int), or -1.
    int GetStartChannelNo(int code, int link) const;
    /// As GetStopChannelNo(QString, QString, int), or -1.
    int GetStopChannelNo(int code, int link) const;
    /// As GetOffsetChUpDown(QString, QString, int, int); @p link is not used.
    /// -1 for a bad code.
    int GetOffsetChUpDown(int code, int link, int channel) const;
    /// As GetChNumFromFreq(QString, QString, int, double, int), including its
    /// standard-output line on no match; -1 for a bad code.
    int GetChNumFromFreq(int code, int link, double freqMHz, int preferred) const;
    /// GetDefaultIntBW of the code's technology, Hz, or -1.0.
    double GetDefaultIntBW(int code) const;
    /// As IsUplinkOnly(QString, QString); true for a bad code.
    bool IsUplinkOnly(int code) const;
    /// As GetStartFreq(QString, QString), or -1.0.
    double GetStartFreq(int code) const;
    /// As GetStartFreq(QString, QString, int), or -1.0.
    double GetStartFreq(int code, int link) const;
    /// As GetStopFreq(QString, QString, int), or -1.0.
    double GetStopFreq(int code, int link) const;
    /// As IsExistChannelNo(QString, QString, int, int), or false.
    bool IsExistChannelNo(int code, int link, int channel) const;
    /// As GetFreq(QString, QString, int, int), or -1.0.
    double GetFreq(int code, int link, int channel) const;
    ///@}

    /// @name Frequency search and screen texts
    ///@{

    /// Every sub-band holding @p freqMHz between its edges (inclusive), in all
    /// technologies, "Band Global" bands skipped: one ChInfo per record (an
    /// uplink and a downlink range are two hits) with its channel nearest to
    /// the frequency (the lower on a tie). Nearest first, ties in technology,
    /// band and record order. Empty when none (also for NaN). No message.
    QList<ChInfo> GetChInfoFromFreq(double freqMHz) const;
    /// The channels, ascending, whose centre lies from @p lowMHz to @p highMHz
    /// (inclusive), taken from the band's first record of the direction only
    /// (exactly "Forward" is downlink, any other text uplink). Lenient names.
    /// Writes the Qt debug line `AvailableChannels :  N` (two blanks after
    /// ":", N the count, 0 included) on every call, except when
    /// @p channelStandard has no " - ": then the Qt warning
    /// `Channel Standard is invalid.( "TEXT" )` and an empty list.
    QList<int> GetAvailableChannels(QString channelStandard, QString direction, double lowMHz,
                                    double highMHz) const;
    /// The band's channel ranges on one line, as a screen shows them. For
    /// LTE-FDD, WCDMA and 5G NR: "(FIRST - LAST)" of the first record when
    /// @p linkSel is non-zero, of the second when it is 0 (a placeholder shows
    /// as "(1 - 1)"). Other technologies: records 0, 2, 4... (the first of
    /// each pair), @p linkSel ignored, as in "(1 - 799 /991 - 1023 )". A
    /// @p band of "Band Global" gives " ". Lenient names; no message.
    QString GetChNumRefString(QString tech, QString band, int linkSel) const;
    /// As GetChNumRefString, one "(FIRST - LAST)" per line, joined by line
    /// feeds.
    QString GetChNumRefString_List(QString tech, QString band, int linkSel) const;
    /// The frequency ranges of the records GetChNumRefString_List shows, MHz
    /// with two decimals, one "(F1 - F2)" per line, as in
    /// "(1920.00 - 1979.90)": the GetFreq of the record's first and last
    /// channel with @p linkSel as link, so a failed conversion shows "-1.00".
    /// A @p band of "Band Global" gives " ". Lenient names; no message.
    QString GetFreqRefString_List(QString tech, QString band, int linkSel) const;
    ///@}

    /// @name Channel number formulas
    /// The formulas that the records carry (ChFreqFunc), exported so that
    /// callers can call them or recognise a record's stSubBand::FreqFunc.
    /// Each turns @p channel into a centre frequency in MHz, in one of three
    /// forms: `base + (channel - offset) * step` (step in MHz, the difference
    /// taken in 32-bit integers, the product rounded before the addition);
    /// `base + (channel - ref) * step` for 5G NR, the only ones that read
    /// @p ref; and `base + 5 * channel` in integers for WIMAX_Common3. Pure,
    /// callable at any time from any thread; no range check, no message.
    ///@{
    static double chstdGetCDMA_Band0_1(int channel, double base,
                                       int ref); ///< base + channel * 0.03
    static double chstdGetCDMA_Band0_2(int channel, double base,
                                       int ref); ///< base + (channel - 1023) * 0.03
    static double chstdGetCDMA_Band1_4(int channel, double base,
                                       int ref); ///< base + channel * 0.05
    static double chstdGetCDMA_Band2_1(int channel, double base,
                                       int ref); ///< base + channel * 0.025
    static double chstdGetCDMA_Band2_2(int channel, double base,
                                       int ref); ///< base + (channel - 1328) * 0.025
    static double chstdGetCDMA_Band3_1(int channel, double base,
                                       int ref); ///< base + channel * 0.0125
    static double chstdGetCDMA_Band3_2(int channel, double base,
                                       int ref); ///< base + (channel - 800) * 0.0125
    static double chstdGetCDMA_Band3_3(int channel, double base,
                                       int ref); ///< base + (channel - 1040) * 0.0125
    static double chstdGetCDMA_Band3_4(int channel, double base,
                                       int ref); ///< base + (channel - 1200) * 0.0125
    static double chstdGetCDMA_Band5_1(int channel, double base,
                                       int ref); ///< base + (channel - 1) * 0.025
    static double chstdGetCDMA_Band5_2(int channel, double base,
                                       int ref); ///< base + (channel - 512) * 0.025
    static double chstdGetCDMA_Band5_3(int channel, double base,
                                       int ref); ///< base + (channel - 1024) * 0.02
    static double chstdGetCDMA_Band5_4(int channel, double base,
                                       int ref); ///< base + (channel - 1792) * 0.02
    static double chstdGetCDMA_Band10_2(int channel, double base,
                                        int ref); ///< base + (channel - 720) * 0.025
    static double chstdGetGSM_450(int channel, double base,
                                  int ref); ///< base + (channel - 259) * 0.2
    static double chstdGetGSM_480(int channel, double base,
                                  int ref); ///< base + (channel - 306) * 0.2
    static double chstdGetGSM_850(int channel, double base,
                                  int ref); ///< base + (channel - 128) * 0.2
    static double chstdGetGSM_900(int channel, double base, int ref); ///< base + channel * 0.2
    static double chstdGetGSM_900E_2(int channel, double base,
                                     int ref); ///< base + (channel - 1024) * 0.2
    static double chstdGetGSM_DCS1800(int channel, double base,
                                      int ref); ///< base + (channel - 512) * 0.2
    static double chstdGetLTEBand1Up(int channel, double base,
                                     int ref); ///< base + (channel - 18000) * 0.1
    static double chstdGetLTEBand1Dn(int channel, double base, int ref); ///< base + channel * 0.1
    static double chstdGetLTEBand2Up(int channel, double base,
                                     int ref); ///< base + (channel - 18600) * 0.1
    static double chstdGetLTEBand2Dn(int channel, double base,
                                     int ref); ///< base + (channel - 600) * 0.1
    static double chstdGetLTEBand3Up(int channel, double base,
                                     int ref); ///< base + (channel - 19200) * 0.1
    static double chstdGetLTEBand3Dn(int channel, double base,
                                     int ref); ///< base + (channel - 1200) * 0.1
    static double chstdGetLTEBand4Up(int channel, double base,
                                     int ref); ///< base + (channel - 19950) * 0.1
    static double chstdGetLTEBand4Dn(int channel, double base,
                                     int ref); ///< base + (channel - 1950) * 0.1
    static double chstdGetLTEBand5Up(int channel, double base,
                                     int ref); ///< base + (channel - 20400) * 0.1
    static double chstdGetLTEBand5Dn(int channel, double base,
                                     int ref); ///< base + (channel - 2400) * 0.1
    static double chstdGetLTEBand7Up(int channel, double base,
                                     int ref); ///< base + (channel - 20750) * 0.1
    static double chstdGetLTEBand7Dn(int channel, double base,
                                     int ref); ///< base + (channel - 2750) * 0.1
    static double chstdGetLTEBand8Up(int channel, double base,
                                     int ref); ///< base + (channel - 21450) * 0.1
    static double chstdGetLTEBand8Dn(int channel, double base,
                                     int ref); ///< base + (channel - 3450) * 0.1
    static double chstdGetLTEBand9Up(int channel, double base,
                                     int ref); ///< base + (channel - 21800) * 0.1
    static double chstdGetLTEBand9Dn(int channel, double base,
                                     int ref); ///< base + (channel - 3800) * 0.1
    static double chstdGetLTEBand10Up(int channel, double base,
                                      int ref); ///< base + (channel - 22150) * 0.1
    static double chstdGetLTEBand10Dn(int channel, double base,
                                      int ref); ///< base + (channel - 4150) * 0.1
    static double chstdGetLTEBand11Up(int channel, double base,
                                      int ref); ///< base + (channel - 22750) * 0.1
    static double chstdGetLTEBand11Dn(int channel, double base,
                                      int ref); ///< base + (channel - 4750) * 0.1
    static double chstdGetLTEBand12Up(int channel, double base,
                                      int ref); ///< base + (channel - 23010) * 0.1
    static double chstdGetLTEBand12Dn(int channel, double base,
                                      int ref); ///< base + (channel - 5010) * 0.1
    static double chstdGetLTEBand13Up(int channel, double base,
                                      int ref); ///< base + (channel - 23180) * 0.1
    static double chstdGetLTEBand13Dn(int channel, double base,
                                      int ref); ///< base + (channel - 5180) * 0.1
    static double chstdGetLTEBand14Up(int channel, double base,
                                      int ref); ///< base + (channel - 23280) * 0.1
    static double chstdGetLTEBand14Dn(int channel, double base,
                                      int ref); ///< base + (channel - 5280) * 0.1
    static double chstdGetLTEBand17Up(int channel, double base,
                                      int ref); ///< base + (channel - 23730) * 0.1
    static double chstdGetLTEBand17Dn(int channel, double base,
                                      int ref); ///< base + (channel - 5730) * 0.1
    static double chstdGetLTEBand18Up(int channel, double base,
                                      int ref); ///< base + (channel - 23850) * 0.1
    static double chstdGetLTEBand18Dn(int channel, double base,
                                      int ref); ///< base + (channel - 5850) * 0.1
    static double chstdGetLTEBand19Up(int channel, double base,
                                      int ref); ///< base + (channel - 24000) * 0.1
    static double chstdGetLTEBand19Dn(int channel, double base,
                                      int ref); ///< base + (channel - 6000) * 0.1
    static double chstdGetLTEBand20Up(int channel, double base,
                                      int ref); ///< base + (channel - 24150) * 0.1
    static double chstdGetLTEBand20Dn(int channel, double base,
                                      int ref); ///< base + (channel - 6150) * 0.1
    static double chstdGetLTEBand21Up(int channel, double base,
                                      int ref); ///< base + (channel - 24450) * 0.1
    static double chstdGetLTEBand21Dn(int channel, double base,
                                      int ref); ///< base + (channel - 6450) * 0.1
    static double chstdGetLTEBand24Up(int channel, double base,
                                      int ref); ///< base + (channel - 25700) * 0.1
    static double chstdGetLTEBand24Dn(int channel, double base,
                                      int ref); ///< base + (channel - 7700) * 0.1
    static double chstdGetLTEBand22Up(int channel, double base,
                                      int ref); ///< base + (channel - 24600) * 0.1
    static double chstdGetLTEBand22Dn(int channel, double base,
                                      int ref); ///< base + (channel - 6600) * 0.1
    static double chstdGetLTEBand23Up(int channel, double base,
                                      int ref); ///< base + (channel - 25500) * 0.1
    static double chstdGetLTEBand23Dn(int channel, double base,
                                      int ref); ///< base + (channel - 7500) * 0.1
    static double chstdGetLTEBand25Up(int channel, double base,
                                      int ref); ///< base + (channel - 26040) * 0.1
    static double chstdGetLTEBand25Dn(int channel, double base,
                                      int ref); ///< base + (channel - 8040) * 0.1
    static double chstdGetLTEBand26Up(int channel, double base,
                                      int ref); ///< base + (channel - 26690) * 0.1
    static double chstdGetLTEBand26Dn(int channel, double base,
                                      int ref); ///< base + (channel - 8690) * 0.1
    static double chstdGetLTEBand27Up(int channel, double base,
                                      int ref); ///< base + (channel - 27040) * 0.1
    static double chstdGetLTEBand27Dn(int channel, double base,
                                      int ref); ///< base + (channel - 9040) * 0.1
    static double chstdGetLTEBand28Up(int channel, double base,
                                      int ref); ///< base + (channel - 27210) * 0.1
    static double chstdGetLTEBand28Dn(int channel, double base,
                                      int ref); ///< base + (channel - 9210) * 0.1
    static double chstdGetLTEBand29Up(int channel, double base,
                                      int ref); ///< base + (channel - 27660) * 0.1
    static double chstdGetLTEBand29Dn(int channel, double base,
                                      int ref); ///< base + (channel - 9660) * 0.1
    static double chstdGetLTEBand30Dn(int channel, double base,
                                      int ref); ///< base + (channel - 9770) * 0.1
    static double chstdGetLTEBand31Up(int channel, double base,
                                      int ref); ///< base + (channel - 27760) * 0.1
    static double chstdGetLTEBand31Dn(int channel, double base,
                                      int ref); ///< base + (channel - 9870) * 0.1
    static double chstdGetLTEBand32Dn(int channel, double base,
                                      int ref); ///< base + (channel - 9920) * 0.1
    static double chstdGetLTEBand33(int channel, double base,
                                    int ref); ///< base + (channel - 36000) * 0.1
    static double chstdGetLTEBand34(int channel, double base,
                                    int ref); ///< base + (channel - 36200) * 0.1
    static double chstdGetLTEBand35(int channel, double base,
                                    int ref); ///< base + (channel - 36350) * 0.1
    static double chstdGetLTEBand36(int channel, double base,
                                    int ref); ///< base + (channel - 36950) * 0.1
    static double chstdGetLTEBand37(int channel, double base,
                                    int ref); ///< base + (channel - 37550) * 0.1
    static double chstdGetLTEBand38(int channel, double base,
                                    int ref); ///< base + (channel - 37750) * 0.1
    static double chstdGetLTEBand39(int channel, double base,
                                    int ref); ///< base + (channel - 38250) * 0.1
    static double chstdGetLTEBand40(int channel, double base,
                                    int ref); ///< base + (channel - 38650) * 0.1
    static double chstdGetLTEBand41(int channel, double base,
                                    int ref); ///< base + (channel - 39650) * 0.1
    static double chstdGetLTEBand42(int channel, double base,
                                    int ref); ///< base + (channel - 41590) * 0.1
    static double chstdGetLTEBand43(int channel, double base,
                                    int ref); ///< base + (channel - 43590) * 0.1
    static double chstdGetLTEBand44(int channel, double base,
                                    int ref); ///< base + (channel - 45590) * 0.1
    static double chstdGetLTEBand45(int channel, double base,
                                    int ref); ///< base + (channel - 46590) * 0.1
    static double chstdGetLTEBand46(int channel, double base,
                                    int ref); ///< base + (channel - 46790) * 0.1
    static double chstdGetLTEBand47(int channel, double base,
                                    int ref); ///< base + (channel - 54540) * 0.1
    static double chstdGetLTEBand48(int channel, double base,
                                    int ref); ///< base + (channel - 55240) * 0.1
    static double chstdGetLTEBand65Up(int channel, double base,
                                      int ref); ///< base + (channel - 131072) * 0.1
    static double chstdGetLTEBand65Dn(int channel, double base,
                                      int ref); ///< base + (channel - 65536) * 0.1
    static double chstdGetLTEBand66Up(int channel, double base,
                                      int ref); ///< base + (channel - 131972) * 0.1
    static double chstdGetLTEBand66Dn(int channel, double base,
                                      int ref); ///< base + (channel - 66436) * 0.1
    static double chstdGetLTEBand67Dn(int channel, double base,
                                      int ref); ///< base + (channel - 67336) * 0.1
    static double chstdGetLTEBand68Up(int channel, double base,
                                      int ref); ///< base + (channel - 132672) * 0.1
    static double chstdGetLTEBand68Dn(int channel, double base,
                                      int ref); ///< base + (channel - 67536) * 0.1
    static double chstdGetLTEBand69Dn(int channel, double base,
                                      int ref); ///< base + (channel - 67836) * 0.1
    static double chstdGetLTEBand70Up(int channel, double base,
                                      int ref); ///< base + (channel - 132972) * 0.1
    static double chstdGetLTEBand70Dn(int channel, double base,
                                      int ref); ///< base + (channel - 68336) * 0.1
    static double chstdGetLTEBand71Up(int channel, double base,
                                      int ref); ///< base + (channel - 133122) * 0.1
    static double chstdGetLTEBand71Dn(int channel, double base,
                                      int ref); ///< base + (channel - 68586) * 0.1
    static double chstdGetLTEBand72Up(int channel, double base,
                                      int ref); ///< base + (channel - 133472) * 0.1
    static double chstdGetLTEBand72Dn(int channel, double base,
                                      int ref); ///< base + (channel - 68936) * 0.1
    static double chstdGetTDSCDMA_Common2(int channel, double base,
                                          int ref); ///< base + (channel + 1) * 0.2
    static double chstdGetWIMAX_Common1(int channel, double base,
                                        int ref); ///< base + channel * 1.25
    static double chstdGetWIMAX_Common2(int channel, double base,
                                        int ref); ///< base + channel * 1.75
    static double chstdGetWIMAX_Common3(int channel, double base,
                                        int ref); ///< base + 5 * channel (integer product)
    static double chstdGetWIMAX_Common4(int channel, double base,
                                        int ref); ///< base + channel * 0.125 (channel / 8, exact)
    static double chstdGet5GNRBand(int channel, double base,
                                   int ref); ///< base + (channel - ref) * 0.005
    static double chstdGet5GNRBand15k(int channel, double base,
                                      int ref); ///< base + (channel - ref) * 0.015
    static double chstdGet5GNRBand60k(int channel, double base,
                                      int ref); ///< base + (channel - ref) * 0.06
    static double chstdGetCDMA_Band789(int channel, double base,
                                       int ref); ///< base + channel * 0.05
    static double chstdGetCDMA_Band10_1(int channel, double base,
                                        int ref); ///< base + channel * 0.025
    static double chstdGetTDSCDMA_Common(int channel, double base,
                                         int ref);                         ///< base + channel * 0.2
    static double chstdGetGSM_900E_1(int channel, double base, int ref);   ///< base + channel * 0.2
    static double chstdGetGSM_900R_1(int channel, double base, int ref);   ///< base + channel * 0.2
    static double chstdGetWCDMA_Common(int channel, double base, int ref); ///< base + channel * 0.2
    static double chstdGetLTEBand30Up(int channel, double base,
                                      int ref); ///< base + (channel - 27660) * 0.1
    static double chstdGetGSM_900R_2(int channel, double base,
                                     int ref); ///< base + (channel - 1024) * 0.2
    static double chstdGetGSM_PCS1900(int channel, double base,
                                      int ref); ///< base + (channel - 512) * 0.2
    static double chstdGetLTEBand32Up(int channel, double base,
                                      int ref); ///< base + (channel - 27760) * 0.1
    static double chstdGetLTEBand67Up(int channel, double base,
                                      int ref); ///< base + (channel - 131972) * 0.1
    static double chstdGetLTEBand69Up(int channel, double base,
                                      int ref); ///< base + (channel - 132672) * 0.1
    ///@}

    /// Technology slots 0 to 7: CDMA, GSM, LTE-FDD, LTE-TDD, TD-SCDMA, WCDMA,
    /// WIMAX, 5G NR.
    ChTechnology Technologies[MaxTechnologies];
    /// Technology name to technology slot; names are exact and case-sensitive.
    QMap<QString, int> TechIndexMap;
    /// Band-name catalogues of CDMA, GSM, LTE-FDD, LTE-TDD, TD-SCDMA, WCDMA and
    /// WIMAX (in that order), each name numbered by its place in a fixed list.
    /// Built at construction, read by nothing; the numbers are not band slots.
    QMap<QString, int> BandNameCatalog[NumCatalogs];
    QMap<int, QString> IndexNameMap; ///< Never filled, never read.

private:
    // Lenient lookups: an unknown name selects slot 0, silently.
    int LookupTechSlot(const QString &tech) const;
    int LookupBandSlot(int techSlot, const QString &band) const;
    bool HasRoomFor(int techSlot, const QString &band) const;
    // Strict lookup: the enumerator, or -1 after a warning naming the culprit.
    int StrictEnumerator(const QString &tech, const QString &band) const;
    // The names behind an enumerator, or false after a warning.
    bool NamesOfEnumerator(int code, QString *tech, QString *band) const;
    // A query by enumerator: the name form's answer for the code's names, or
    // failure after NamesOfEnumerator's warning.
    template <typename Result, typename Query>
    Result AnswerForEnumerator(int code, Result failure, Query query) const;
    // The same, the query given the band itself: its technology and band
    // slots, the band and its name as the text form gives it.
    template <typename Result, typename Query>
    Result AnswerForBand(int code, Result failure, Query query) const;
};

#endif
