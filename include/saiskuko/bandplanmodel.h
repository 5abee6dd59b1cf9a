#ifndef SAISKUKO_BANDPLANMODEL_H
#define SAISKUKO_BANDPLANMODEL_H

/// @file
/// The band plan as a Qt item model, for views (QTreeView, QComboBox, a QML
/// ListView) and proxies, and a filter proxy that keeps the bands holding a
/// frequency, a channel or a name. QtCore only.

#include <saiskuko/bandplan.h>
#include <saiskuko/saiskuko_global.h>

#include <QtCore/QAbstractItemModel>
#include <QtCore/QSortFilterProxyModel>

#include <memory>

namespace saiskuko {

/// The band plan as a read-only tree, built on the typed API:
///
/// - top level: one row per technology (8), in slot order;
/// - below a technology: its bands (172 in all), in band order (by code);
/// - below a band: one row per direction it serves, in the order of
///   Band::links() (uplink first; a TDD band has both, from the same
///   records; a supplementary band one).
///
/// Columns (#Column): name, code, duplex, channels, frequencies (MHz). A
/// direction row lists the distinct "first–last" channel ranges and
/// "low–high" edges of its records, in registration order, joined by ", "
/// where the band has gaps (CDMA band class 3: "1–799, 801–1039, ..."); a
/// band row shows the span of all its edges. The code column's display is the band's code as a
/// number, so it sorts as one.
///
/// Beyond Qt::DisplayRole every row answers the roles of #Role, named in
/// roleNames() for QML. The model reads the store each time it is asked and
/// keeps only indexes: the bands of each technology and the links each
/// serves, as they stood when the model was built. It never changes after
/// that: records a caller registers later through the compatible interface
/// show in the text of existing rows but add no rows.
class SAISKUKO_EXPORT BandPlanModel : public QAbstractItemModel
{
    Q_OBJECT
public:
    /// The columns.
    enum Column {
        NameColumn,        ///< Technology name, band name, or "Downlink"/"Uplink".
        CodeColumn,        ///< The band's code (int; empty on technology and direction rows).
        DuplexColumn,      ///< "FDD", "TDD", "SDL" or "SUL" (band rows).
        ChannelsColumn,    ///< Channel ranges of the direction's records (direction rows).
        FrequenciesColumn, ///< Edges in MHz: of each record, or the band's span.
        ColumnCount        ///< The number of columns.
    };
    Q_ENUM(Column)

    /// Roles beyond the display, the same in every column. Where a role does
    /// not apply to a row it answers an invalid QVariant.
    enum Role {
        /// "level" (int): 0 technology, 1 band, 2 direction. Every row.
        LevelRole = Qt::UserRole + 1,
        /// "technology" (int, the value of Technology). Every row.
        TechnologyRole,
        /// "technologyName" (QString, "LTE-FDD"). Every row.
        TechnologyNameRole,
        /// "code" (int, Band::code(); bandByCode() gives the Band back, also
        /// through a proxy). Band and direction rows.
        CodeRole,
        /// "standard" (QString, Band::standard()). Band and direction rows.
        StandardRole,
        /// "duplex" (int, the value of Duplex). Band and direction rows.
        DuplexRole,
        /// "link" (int, the value of Link). Direction rows.
        LinkRole,
        /// "firstChannel" (int): the lowest first channel of the direction's
        /// records. Direction rows.
        FirstChannelRole,
        /// "lastChannel" (int): the highest last channel of the direction's
        /// records. Direction rows.
        LastChannelRole,
        /// "lowMHz" (double): the lowest low edge of the direction's records,
        /// or of all the band's records on a band row. Band and direction rows.
        LowMHzRole,
        /// "highMHz" (double): the highest high edge, likewise.
        HighMHzRole,
    };
    Q_ENUM(Role)

    /// A model of the band plan as loaded now.
    explicit BandPlanModel(QObject *parent = nullptr);
    /// Releases the indexes.
    ~BandPlanModel() override;

    /// The row of @p band (a band row), or an invalid index for a band the
    /// model does not hold.
    QModelIndex indexOf(const Band &band, int column = NameColumn) const;
    /// The band of a band or direction row of any model that answers
    /// #CodeRole (this model or a proxy over it); an invalid Band otherwise.
    static Band bandAt(const QModelIndex &index);

    /// The row at @p row, @p column below @p parent.
    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    /// The technology of a band row, the band of a direction row.
    QModelIndex parent(const QModelIndex &child) const override;
    /// Technologies at the top, bands below them, directions below bands.
    int rowCount(const QModelIndex &parent = {}) const override;
    /// #ColumnCount on every level.
    int columnCount(const QModelIndex &parent = {}) const override;
    /// The display text of a cell, or one of the roles of #Role.
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /// The columns' titles.
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    /// Enabled and selectable; never editable.
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    /// Qt's names plus those of #Role.
    QHash<int, QByteArray> roleNames() const override;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

/// A proxy over a BandPlanModel that keeps the bands matching filterText(),
/// with their technologies, and sorts as QSortFilterProxyModel does. The text,
/// trimmed, is read as:
///
/// - empty: every row;
/// - a plain decimal number ("1950", "1950.5", "-1"): the directions whose
///   records hold it as a frequency in MHz (within a record's edges), and,
///   for a whole number, also those that have it as a channel number (a
///   channel a conversion answers for). The two readings are joined: "1950"
///   keeps the bands holding 1950 MHz and the bands with a channel 1950.
///   "Band Global", which repeats its technology's bands, is left out, as
///   search() leaves it out;
/// - anything else: the bands whose channel standard text
///   ("LTE-FDD - Band 1 (2100)") contains it, case aside ("n78", "LTE",
///   "Band 1", "GSM 900"), and the band findBand() resolves it to ("B7",
///   "FDD:1", "WCDMA:IV"), each with all its directions.
///
/// A number is never read as a band's code.
class SAISKUKO_EXPORT BandPlanFilterModel : public QSortFilterProxyModel
{
    Q_OBJECT
    /// The filter; see the class.
    Q_PROPERTY(QString filterText READ filterText WRITE setFilterText NOTIFY filterTextChanged)
public:
    /// A proxy with no source and no filter; recursive filtering is on.
    explicit BandPlanFilterModel(QObject *parent = nullptr);
    /// Releases the parsed filter.
    ~BandPlanFilterModel() override;

    /// The text last set.
    QString filterText() const;
    /// Filters by @p text (see the class).
    void setFilterText(const QString &text);

Q_SIGNALS:
    /// The filter text changed.
    void filterTextChanged(const QString &text);

protected:
    /// Whether the row matches the filter (its parents are kept recursively).
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace saiskuko

#endif
