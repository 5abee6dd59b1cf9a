// BandPlanModel: the band plan as a tree of technologies, bands and directions, read from the typed
// API.
#include <saiskuko/bandplanmodel.h>

#include <QtCore/QVector>

#include <algorithm>

namespace saiskuko {

namespace {

// An index's internal id names its place above it: 0 on a technology row,
// 1 + the technology's row on a band row, and on a direction row
// kDirectionRow | technology row << 16 | band row.
constexpr quintptr kDirectionRow = quintptr(1) << 30;

quintptr bandRowId(int tech)
{
    return quintptr(tech) + 1;
}

quintptr directionRowId(int tech, int band)
{
    return kDirectionRow | quintptr(tech) << 16 | quintptr(band);
}

struct Place
{
    int tech = -1;
    int band = -1; // -1 on a technology row
    int link = -1; // -1 on a technology or band row
};

Place placeOf(const QModelIndex &index)
{
    const quintptr id = index.internalId();
    if (id == 0)
        return {index.row(), -1, -1};
    if (id & kDirectionRow)
        return {int((id >> 16) & 0xff), int(id & 0xffff), index.row()};
    return {int(id - 1), index.row(), -1};
}

int levelOf(const Place &place)
{
    return place.link >= 0 ? 2 : (place.band >= 0 ? 1 : 0);
}

// What a set of records covers: lowest first channel and edge, highest last ones.
struct Extent
{
    int firstChannel = 0;
    int lastChannel = 0;
    double lowMHz = 0.0;
    double highMHz = 0.0;
};

Extent extentOf(const QList<Record> &records)
{
    Extent e;
    for (int i = 0; i < records.size(); ++i) {
        const Record &r = records.at(i);
        const bool first = i == 0;
        e.firstChannel = first ? r.firstChannel : std::min(e.firstChannel, r.firstChannel);
        e.lastChannel = first ? r.lastChannel : std::max(e.lastChannel, r.lastChannel);
        e.lowMHz = first ? r.lowEdgeMHz : std::min(e.lowMHz, r.lowEdgeMHz);
        e.highMHz = first ? r.highEdgeMHz : std::max(e.highMHz, r.highEdgeMHz);
    }
    return e;
}

// "a–b", or "a" alone when both ends are the same.
QString range(const QString &from, const QString &to)
{
    return from == to ? from : from + QChar(0x2013) + to;
}

// Distinct ranges only: a TDD band may hold one record per link with the same
// numbers, and a band with gaps in its channels may repeat its edges.
QString joined(QStringList parts)
{
    parts.removeDuplicates();
    return parts.join(QStringLiteral(", "));
}

QString channelRanges(const QList<Record> &records)
{
    QStringList parts;
    for (const Record &r : records)
        parts << range(QString::number(r.firstChannel), QString::number(r.lastChannel));
    return joined(parts);
}

QString edgeRanges(const QList<Record> &records)
{
    QStringList parts;
    for (const Record &r : records)
        parts << range(formatMHz(r.lowEdgeMHz), formatMHz(r.highEdgeMHz));
    return joined(parts);
}

// The roles a band and each of its directions answer alike.
QVariant bandRole(const Band &band, int role)
{
    switch (role) {
    case BandPlanModel::CodeRole:
        return band.code();
    case BandPlanModel::StandardRole:
        return band.standard();
    case BandPlanModel::DuplexRole:
        return int(band.duplex());
    default:
        return {};
    }
}

QVariant bandRowData(const Band &band, int column, int role)
{
    if (role == Qt::DisplayRole) {
        switch (column) {
        case BandPlanModel::NameColumn:
            return band.name();
        case BandPlanModel::CodeColumn:
            return band.code();
        case BandPlanModel::DuplexColumn:
            return duplexName(band.duplex());
        case BandPlanModel::FrequenciesColumn: {
            const Extent span = extentOf(band.records());
            return range(formatMHz(span.lowMHz), formatMHz(span.highMHz));
        }
        default:
            return {};
        }
    }
    if (role == BandPlanModel::LowMHzRole)
        return extentOf(band.records()).lowMHz;
    if (role == BandPlanModel::HighMHzRole)
        return extentOf(band.records()).highMHz;
    return bandRole(band, role);
}

QVariant directionRowData(const Band &band, Link link, int column, int role)
{
    switch (role) {
    case Qt::DisplayRole:
        if (column == BandPlanModel::NameColumn)
            return link == Link::Up ? BandPlanModel::tr("Uplink") : BandPlanModel::tr("Downlink");
        if (column == BandPlanModel::ChannelsColumn)
            return channelRanges(band.records(link));
        if (column == BandPlanModel::FrequenciesColumn)
            return edgeRanges(band.records(link));
        return {};
    case BandPlanModel::LinkRole:
        return int(link);
    case BandPlanModel::FirstChannelRole:
        return extentOf(band.records(link)).firstChannel;
    case BandPlanModel::LastChannelRole:
        return extentOf(band.records(link)).lastChannel;
    case BandPlanModel::LowMHzRole:
        return extentOf(band.records(link)).lowMHz;
    case BandPlanModel::HighMHzRole:
        return extentOf(band.records(link)).highMHz;
    default:
        return bandRole(band, role);
    }
}

} // namespace

// Indexes into the store: each technology's bands and the links each serves.
struct BandPlanModel::Private
{
    struct BandRow
    {
        Band band;
        QList<Link> links;
    };
    struct TechRow
    {
        Technology technology;
        QVector<BandRow> bands;
    };
    QVector<TechRow> techs;
};

BandPlanModel::BandPlanModel(QObject *parent) : QAbstractItemModel(parent), d(new Private)
{
    for (const Technology technology : technologies()) {
        Private::TechRow row{technology, {}};
        for (const Band &band : bands(technology))
            row.bands.append({band, band.links()});
        d->techs.append(row);
    }
}

BandPlanModel::~BandPlanModel() = default;

QModelIndex BandPlanModel::indexOf(const Band &band, int column) const
{
    for (int t = 0; t < d->techs.size(); ++t) {
        const QVector<Private::BandRow> &rows = d->techs.at(t).bands;
        for (int b = 0; b < rows.size(); ++b) {
            if (rows.at(b).band == band)
                return createIndex(b, column, bandRowId(t));
        }
    }
    return {};
}

Band BandPlanModel::bandAt(const QModelIndex &index)
{
    const QVariant code = index.data(CodeRole);
    return code.isValid() ? bandByCode(code.toInt()).valueOr(Band()) : Band();
}

QModelIndex BandPlanModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    if (!parent.isValid())
        return createIndex(row, column, quintptr(0));
    const Place above = placeOf(parent);
    if (above.band < 0)
        return createIndex(row, column, bandRowId(above.tech));
    return createIndex(row, column, directionRowId(above.tech, above.band));
}

QModelIndex BandPlanModel::parent(const QModelIndex &child) const
{
    if (!child.isValid())
        return {};
    const Place place = placeOf(child);
    if (place.band < 0)
        return {};
    if (place.link < 0)
        return createIndex(place.tech, 0, quintptr(0));
    return createIndex(place.band, 0, bandRowId(place.tech));
}

int BandPlanModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return d->techs.size();
    if (parent.column() != 0)
        return 0;
    const Place place = placeOf(parent);
    if (place.band < 0)
        return d->techs.at(place.tech).bands.size();
    if (place.link < 0)
        return d->techs.at(place.tech).bands.at(place.band).links.size();
    return 0;
}

int BandPlanModel::columnCount(const QModelIndex &) const
{
    return ColumnCount;
}

QVariant BandPlanModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.model() != this)
        return {};
    const Place place = placeOf(index);
    const Private::TechRow &tech = d->techs.at(place.tech);
    if (role == LevelRole)
        return levelOf(place);
    if (role == TechnologyRole)
        return int(tech.technology);
    if (role == TechnologyNameRole)
        return technologyName(tech.technology);
    if (place.band < 0) {
        if (role == Qt::DisplayRole && index.column() == NameColumn)
            return technologyName(tech.technology);
        return {};
    }
    const Private::BandRow &row = tech.bands.at(place.band);
    if (place.link < 0)
        return bandRowData(row.band, index.column(), role);
    return directionRowData(row.band, row.links.at(place.link), index.column(), role);
}

QVariant BandPlanModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case NameColumn:
        return tr("Name");
    case CodeColumn:
        return tr("Code");
    case DuplexColumn:
        return tr("Duplex");
    case ChannelsColumn:
        return tr("Channels");
    case FrequenciesColumn:
        return tr("Frequencies (MHz)");
    default:
        return {};
    }
}

Qt::ItemFlags BandPlanModel::flags(const QModelIndex &index) const
{
    if (!index.isValid() || index.model() != this)
        return Qt::NoItemFlags;
    const Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    return levelOf(placeOf(index)) == 2 ? flags | Qt::ItemNeverHasChildren : flags;
}

QHash<int, QByteArray> BandPlanModel::roleNames() const
{
    QHash<int, QByteArray> names = QAbstractItemModel::roleNames();
    names.insert(LevelRole, "level");
    names.insert(TechnologyRole, "technology");
    names.insert(TechnologyNameRole, "technologyName");
    names.insert(CodeRole, "code");
    names.insert(StandardRole, "standard");
    names.insert(DuplexRole, "duplex");
    names.insert(LinkRole, "link");
    names.insert(FirstChannelRole, "firstChannel");
    names.insert(LastChannelRole, "lastChannel");
    names.insert(LowMHzRole, "lowMHz");
    names.insert(HighMHzRole, "highMHz");
    return names;
}

} // namespace saiskuko
