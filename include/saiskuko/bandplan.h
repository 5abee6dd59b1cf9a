#ifndef SAISKUKO_BANDPLAN_H
#define SAISKUKO_BANDPLAN_H

/// @file
/// The typed, strict face of the library: bands found by any name an engineer
/// writes, conversions that say why they fail, duplex, every channel at a
/// frequency, nearest and paired channels. It reads the same store as
/// #G_CHSTD, so it answers for records a caller registered there too, and
/// it never writes a log line or throws. Prefer it for new code.

#include <saiskuko/saiskuko_global.h>

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QStringView>

#include <cmath>
#include <new>
#include <utility>

class ChBand;

/// The typed API. Every function is safe to call from any number of threads
/// at once, as long as no thread registers records into #G_CHSTD meanwhile.
namespace saiskuko {

/// A technology; the value is its slot, the hundreds of a band's code.
enum class Technology : int {
    Cdma = 0,    ///< "CDMA" (cdma2000 band classes)
    Gsm = 1,     ///< "GSM"
    LteFdd = 2,  ///< "LTE-FDD"
    LteTdd = 3,  ///< "LTE-TDD"
    TdScdma = 4, ///< "TD-SCDMA"
    Wcdma = 5,   ///< "WCDMA"
    Wimax = 6,   ///< "WIMAX" (profiles)
    Nr = 7,      ///< "5G NR"
};

/// A link direction; the values are the compatible interface's link numbers.
enum class Link : int {
    Down = 0, ///< downlink (base station to terminal)
    Up = 1,   ///< uplink (terminal to base station)
};

/// How a band uses its spectrum. Decided by the library from the band's
/// records (which directions they serve, a record flagged as serving both),
/// the time-division families it knows by name, the words "TD", "DL" and "UL"
/// in a one-direction band's name, and, for one-direction bands named by
/// frequency alone, the millimetre-wave rule (24.25 GHz up is time-division).
/// "Band Global" is TDD in LTE-TDD and FDD elsewhere.
enum class Duplex {
    Fdd, ///< paired uplink and downlink ranges
    Tdd, ///< one range shared in time: both links answer from every record
    Sdl, ///< downlink only (supplementary downlink)
    Sul, ///< uplink only (supplementary uplink)
};

/// Why a query of the typed API has no answer.
enum class ErrorCode {
    UnknownTechnology,  ///< no technology has that name or short form
    UnknownBand,        ///< the technology has no band of that name, or no band that code
    AmbiguousName,      ///< the name fits several technologies or bands
    BadName,            ///< the text is none of the forms a band is named by
    LinkNotServed,      ///< the band has no record for that link
    ChannelNotInBand,   ///< no record of the link holds the channel
    FrequencyNotInBand, ///< the frequency lies outside every record of the link
    NotAChannelCentre,  ///< within the band, but no channel is centred there
    NoPairedChannel,    ///< the band is not paired, or the pair is not a channel
    NotFinite,          ///< a frequency argument is NaN or infinite
};

/// What went wrong: a code to branch on and a message for people (one line,
/// naming the candidates or the valid range; arguments are cut to 40
/// characters and quoted).
struct Error
{
    ErrorCode code = ErrorCode::BadName; ///< Why.
    QString message;                     ///< Says why, for people.
};

/// A value or the Error that explains its absence. Holding an error costs
/// its message; holding a value allocates nothing beyond the value itself,
/// and builds no Error.
template <typename T>
class Result
{
public:
    /// An answer.
    Result(T value) : m_ok(true) // NOLINT(google-explicit-constructor)
    {
        new (&m_value) T(std::move(value));
    }
    /// No answer, and why.
    Result(Error error) : m_ok(false) // NOLINT(google-explicit-constructor)
    {
        new (&m_error) Error(std::move(error));
    }
    /// A copy.
    Result(const Result &other) : m_ok(other.m_ok) { copyFrom(other); }
    /// Takes @p other's value or error.
    Result(Result &&other) noexcept : m_ok(other.m_ok) { moveFrom(other); }
    /// A copy.
    Result &operator=(const Result &other)
    {
        if (this != &other) {
            destroy();
            m_ok = other.m_ok;
            copyFrom(other);
        }
        return *this;
    }
    /// Takes @p other's value or error.
    Result &operator=(Result &&other) noexcept
    {
        if (this != &other) {
            destroy();
            m_ok = other.m_ok;
            moveFrom(other);
        }
        return *this;
    }
    ~Result() { destroy(); }

    /// True when there is a value.
    bool ok() const { return m_ok; }
    /// The value; a default-constructed T when !ok().
    const T &value() const { return m_ok ? m_value : none(); }
    /// The error; a default Error when ok().
    const Error &error() const { return m_ok ? noError() : m_error; }
    /// The value, or @p fallback when !ok().
    T valueOr(T fallback) const { return m_ok ? m_value : std::move(fallback); }

private:
    static const T &none()
    {
        static const T kNone{};
        return kNone;
    }
    static const Error &noError()
    {
        static const Error kNone;
        return kNone;
    }
    void copyFrom(const Result &other)
    {
        if (m_ok)
            new (&m_value) T(other.m_value);
        else
            new (&m_error) Error(other.m_error);
    }
    void moveFrom(Result &other)
    {
        if (m_ok)
            new (&m_value) T(std::move(other.m_value));
        else
            new (&m_error) Error(std::move(other.m_error));
    }
    void destroy()
    {
        if (m_ok)
            m_value.~T();
        else
            m_error.~Error();
    }

    union {
        T m_value;
        Error m_error;
    };
    bool m_ok;
};

/// One sub-band record of a band, as the typed API reports it (placeholder
/// records for a missing direction are never reported).
struct Record
{
    Link link = Link::Down;   ///< Its direction (a record of a TDD band serves both).
    int firstChannel = 0;     ///< First channel number.
    int lastChannel = 0;      ///< Last channel number (inclusive).
    double lowEdgeMHz = 0.0;  ///< Lower band edge, MHz (an edge, not a centre).
    double highEdgeMHz = 0.0; ///< Upper band edge, MHz.
    double firstMHz = 0.0;    ///< Centre of #firstChannel, MHz.
    double lastMHz = 0.0;     ///< Centre of #lastChannel, MHz.
    /// Raster: centre of the second channel minus that of the first, MHz; 0
    /// for a record of one channel.
    double stepMHz = 0.0;
    /// Lower end of the frequencies the record holds, MHz: its lowest channel
    /// centre less half a raster step, or its lower edge where that lies
    /// lower. Records of the band that state the same edges share them: the
    /// edges then widen only the lowest and the highest of those records,
    /// and a gap between them holds nothing (CDMA band class 10).
    double spanLowMHz = 0.0;
    /// Upper end of the frequencies the record holds, MHz (see #spanLowMHz).
    double spanHighMHz = 0.0;
};

/// A band of the store: a small value (its slots and its place in the
/// store, which never moves) that stays valid for the life of the library.
/// Obtain one from findBand(), bandByCode(), allBands() or bands(); a
/// default-constructed Band is invalid and answers every query with
/// UnknownBand. Conversions allocate nothing unless they fail (channelsAt()
/// allocates its list).
class SAISKUKO_EXPORT Band
{
public:
    /// An invalid band.
    Band() = default;

    /// True for a band obtained from the library.
    bool isValid() const { return m_tech >= 0; }
    /// Its channel standard enumerator: 100 x technology slot + band slot (201).
    int code() const { return isValid() ? 100 * m_tech + m_band : -1; }
    /// Its technology.
    Technology technology() const { return Technology(m_tech); }
    /// Its technology's name as registered ("LTE-FDD").
    QString technologyName() const;
    /// Its name as registered ("Band 1 (2100)").
    QString name() const;
    /// Its channel standard text: technology name, " - ", band name.
    QString standard() const;
    /// The shortest TECH:BAND form that findBand() resolves to this band alone
    /// ("FDD:1", "NR:n78"); empty where every such form is ambiguous.
    QString shortName() const;
    /// How it uses its spectrum (see Duplex).
    Duplex duplex() const;
    /// True for "Band Global", which repeats every band of its technology.
    bool isGlobal() const;
    /// The links it answers for, uplink first; both for a TDD band.
    QList<Link> links() const;
    /// Its real records that answer for @p link, in registration order.
    QList<Record> records(Link link) const;
    /// Every real record of the band, in registration order, each once with
    /// its own link (the links of a global band follow no pattern). Empty for
    /// an invalid band.
    QList<Record> records() const;
    /// How many records the band was registered with, placeholders for a
    /// missing direction included (so at least records().size()); 0 for an
    /// invalid band.
    int recordCount() const;
    /// True when @p mhz lies within the stated edges of a record of @p link
    /// (to half a hertz).
    bool withinEdges(Link link, double mhz) const;

    /// Centre frequency of @p channel in MHz, from the first record of
    /// @p link that holds it: bit-identical to ChBandStore::GetFreq wherever
    /// both answer from the same record. (GetFreq takes a paired "Band Global"
    /// as time-division and may answer one link from the other's records;
    /// frequency() keeps to the link.) Fails with LinkNotServed or ChannelNotInBand (the message
    /// gives the valid channels).
    /// @code
    /// const auto band = saiskuko::findBand(u"LTE:1");
    /// const auto mhz = band.value().frequency(saiskuko::Link::Down, 300); // 2140.0
    /// if (!mhz.ok())
    ///     qWarning().noquote() << mhz.error().message;
    /// @endcode
    inline Result<double> frequency(Link link, int channel) const;
    /// Every centre of @p channel in the records of @p link, in registration
    /// order, each once (a channel two records hold with one formula counts
    /// once). Empty when no record holds it.
    QList<double> frequencies(Link link, int channel) const;
    /// Every channel of @p link whose centre lies within half a hertz of
    /// @p mhz, in registration order (CDMA band class 5 has two at 455.65 MHz
    /// uplink). Fails with NotFinite, LinkNotServed, FrequencyNotInBand (off
    /// the span of the link's channels) or NotAChannelCentre.
    Result<QList<int>> channelsAt(Link link, double mhz) const;
    /// The channel of @p link whose centre is nearest to @p mhz (the first in
    /// registration order on a tie), for @p mhz within the span of the link's
    /// edges and centres, widened by half a hertz: every frequency channelsAt()
    /// answers for has a nearest channel among them. Fails with NotFinite, LinkNotServed or
    /// FrequencyNotInBand.
    Result<int> nearestChannel(Link link, double mhz) const;
    /// The channel of the other link paired with @p channel of an FDD band,
    /// from the band's uplink-to-downlink channel offset. Fails with
    /// ChannelNotInBand, or NoPairedChannel where the band is not FDD, its
    /// links share channel numbers, or the pair is no channel of the other link.
    /// In "Band Global", which repeats every band, a channel pairs as in the
    /// first record that holds it, so a pair need not lead back.
    Result<int> pairedChannel(Link link, int channel) const;

    /// Same band.
    friend bool operator==(const Band &a, const Band &b)
    {
        return a.m_tech == b.m_tech && a.m_band == b.m_band;
    }
    /// Different bands.
    friend bool operator!=(const Band &a, const Band &b) { return !(a == b); }

private:
    friend class BandAccess;
    /// frequency()'s answer, or NaN where it has none: the part that runs in
    /// the library, returned in a register.
    double centreOrNaN(Link link, int channel) const;
    /// Why frequency() has no answer for @p channel.
    Result<double> noFrequency(Link link, int channel) const;
    Band(int tech, int band, const ChBand *data)
        : m_data(data), m_tech(qint16(tech)), m_band(qint16(band))
    {}
    const ChBand *m_data = nullptr; // in the store, which never moves or shrinks
    qint16 m_tech = -1;
    qint16 m_band = -1;
};

// The answer crosses the library's boundary as a double; only a failure
// builds its Error there.
inline Result<double> Band::frequency(Link link, int channel) const
{
    const double mhz = centreOrNaN(link, channel);
    if (Q_LIKELY(std::isfinite(mhz)))
        return mhz;
    return noFrequency(link, channel);
}

/// One hit of search(): a band and link holding the frequency, and the
/// link's channel nearest to it.
struct SearchHit
{
    Band band;               ///< The band.
    Link link = Link::Down;  ///< The direction.
    int channel = -1;        ///< The nearest channel.
    double channelMHz = 0.0; ///< Its centre nearest the frequency, MHz.
    double offsetMHz = 0.0;  ///< Its centre minus the searched frequency, MHz.
    /// The offset exceeds half the raster step of the channel's record (for a
    /// record of one channel, half a hertz): the frequency is within the band
    /// but off its raster, nearer an edge than a channel.
    bool offRaster = false;
};

/// The technologies in slot order.
SAISKUKO_EXPORT QList<Technology> technologies();
/// A technology's name as registered ("5G NR"); empty for a slot not in use.
SAISKUKO_EXPORT QString technologyName(Technology technology);
/// The short forms findTechnology() accepts besides the name, lower case
/// ("nr", "5g"). "lte" names both LTE technologies.
SAISKUKO_EXPORT QStringList technologyShortForms(Technology technology);
/// The technology's default integration bandwidth in Hz: what
/// ChBandStore::GetDefaultIntBW answers for its name, so the 1 MHz fallback
/// for a technology without its own (5G NR) or a slot not in use.
SAISKUKO_EXPORT double defaultIntegrationBandwidthHz(Technology technology);
/// A technology by its name or a short form, case aside ("LTE-FDD", "fdd",
/// "nr"). Fails with UnknownTechnology (listing the names) or AmbiguousName.
SAISKUKO_EXPORT Result<Technology> findTechnology(QStringView text);

/// A band by any form the `saiskuko` program accepts: its code ("201"), its
/// channel standard text exactly ("LTE-FDD - Band 1 (2100)"), TECH:BAND in
/// any case ("LTE:1", "NR:n78", "GSM:dcs1800", "WCDMA:2-additional"), the
/// aliases "B1", "b1", "band1", "N78", "bc0", Roman numerals for UTRA bands
/// ("WCDMA:IV") and leading zeros ("LTE:07"). Strict: a name that fits no
/// band or several fails (UnknownTechnology, UnknownBand, AmbiguousName,
/// BadName) with a message that lists the candidates; nothing falls back to
/// another band, and every character of the text counts.
/// @code
/// const saiskuko::Result<saiskuko::Band> band = saiskuko::findBand(u"NR:n78");
/// if (band.ok())
///     qInfo() << band.value().standard(); // "5G NR - Band n78 (TD 3500)"
/// else
///     qWarning().noquote() << band.error().message;
/// @endcode
SAISKUKO_EXPORT Result<Band> findBand(QStringView text);
/// A band by its code (100 x technology slot + band slot). Fails with
/// UnknownBand, whose message gives the codes in use.
SAISKUKO_EXPORT Result<Band> bandByCode(int code);
/// Every band, by code.
SAISKUKO_EXPORT QList<Band> allBands();
/// The bands of one technology, by code.
SAISKUKO_EXPORT QList<Band> bands(Technology technology);
/// "FDD", "TDD", "SDL" or "SUL".
SAISKUKO_EXPORT QString duplexName(Duplex duplex);

/// A frequency as people read it: MHz rounded to 1 Hz, trailing zeros
/// dropped ("2140", "1842.5", "3799.995"). Every raster of the band plan is a
/// whole number of hertz, so a channel's centre prints exactly, and the text
/// reads back to the same channel through Band::channelsAt().
SAISKUKO_EXPORT QString formatMHz(double mhz);
/// Text a user gave, as the messages of this API show it: cut to 40
/// characters (then "...").
SAISKUKO_EXPORT QString cut(QStringView text);
/// cut() in double quotes: how a message echoes an argument.
SAISKUKO_EXPORT QString echoed(QStringView text);

/// Every band and link with a record whose span (Record::spanLowMHz to
/// Record::spanHighMHz, to half a hertz) holds @p mhz, nearest channel first
/// (to the hertz), then by code, uplink first: one hit per band and link, both links of a TDD
/// band, real channels only, "Band Global" left out. A frequency in a gap
/// between a band's records is no hit. Empty for a frequency no band holds,
/// NaN or infinite.
/// @code
/// for (const saiskuko::SearchHit &hit : saiskuko::search(1950.0))
///     qInfo() << hit.band.standard() << hit.channel << hit.offsetMHz;
/// @endcode
SAISKUKO_EXPORT QList<SearchHit> search(double mhz);
/// Every band (but "Band Global") with @p channel in a real record of either
/// link, by code.
SAISKUKO_EXPORT QList<Band> bandsWithChannel(int channel);

} // namespace saiskuko

#endif
