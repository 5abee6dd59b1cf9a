#ifndef SAISKUKO_CHSTD_H
#define SAISKUKO_CHSTD_H

/// @file
/// The global band store and the entry point that returns it, with the
/// builders of the screens' band tables.

#include <saiskuko/chbandstore.h>

#include <QtCore/QObject>
#include <QtCore/QString>

/// The library's one band store. Built while the library loads, before `main`
/// (writing the banner, see @ref messages), read-only from then on, destroyed
/// at unload. Any number of threads may query it at once.
extern SAISKUKO_EXPORT ChBandStore G_CHSTD;

/// Entry point for callers, and the builders of the screens' band tables. Has
/// no data of its own; every member is static but the constructors.
class SAISKUKO_EXPORT ChStd : public QObject
{
public:
    /// An object with no data; the static members need none.
    explicit ChStd(QObject *parent = nullptr);
    /// Writes nothing.
    ~ChStd() override;

    /// The address of #G_CHSTD; never null.
    static ChBandStore *GetChStdPointer();

    /// A new band table of the technologies that instrument mode @p mode
    /// covers: `bandList`, `techList` and `chRangeList` get one row per band
    /// (the ranges from ChBandStore::GetChNumRefString_List with @p linkSel);
    /// `freqRangeList` stays empty. @p unused is not read. The 23 mode codes:
    ///
    /// | mode | technologies, in this order |
    /// |---|---|
    /// | 1, 4, 16, 17, 23 | CDMA, GSM, LTE-FDD, LTE-TDD, TD-SCDMA, WCDMA, WIMAX |
    /// | 6 | GSM |
    /// | 8 | WCDMA |
    /// | 9 | TD-SCDMA |
    /// | 10, 12 | CDMA |
    /// | 11 | WIMAX |
    /// | 13 | LTE-FDD |
    /// | 14 | LTE-TDD |
    /// | 20, 22 | LTE-FDD, LTE-TDD, WCDMA |
    /// | 2, 3, 5, 7, 15, 18, 19, 21 | none: an empty table |
    ///
    /// Any other code gives an empty table too. No mode lists 5G NR. Writes
    /// no message.
    static stCHList GetBandListByMode(int mode, int unused, int linkSel);
    /// Appends the band names of technology @p tech (ChBandStore::GetBandList)
    /// to `list.bandList` only. Lenient: an unknown name appends CDMA's bands,
    /// without a message.
    static void SetBandListName(QString tech, stCHList &list);
    /// For each band of @p tech in slot order, appends @p tech as given to
    /// `list.techList`, the band's ChBandStore::GetChNumRefString_List to
    /// `list.chRangeList` and its ChBandStore::GetFreqRefString_List to
    /// `list.freqRangeList`, both with @p linkSel; `list.bandList` is left
    /// alone (call SetBandListName for the same technologies in the same order
    /// to keep the columns parallel). Lenient: an unknown name gives CDMA's
    /// rows, labelled with that name. Writes no message.
    static void SetBandListRange(QString tech, int linkSel, stCHList &list);
};

#endif
