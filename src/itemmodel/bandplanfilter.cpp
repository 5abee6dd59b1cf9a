// BandPlanFilterModel: keeps the bands holding a frequency or a channel, or matching a name.
#include <saiskuko/bandplanmodel.h>

#include <QtCore/QLocale>

#include <cmath>

namespace saiskuko {

namespace {

// The filter text, read once when it is set.
struct Query
{
    enum Kind { Everything, Number, Name } kind = Everything;
    QString text; // trimmed
    double mhz = 0.0;
    bool isChannel = false; // a whole number, so a channel too
    int channel = 0;
    Band named; // the band findBand() resolves a name to, if any

    explicit Query(const QString &raw = QString()) : text(raw.trimmed())
    {
        if (text.isEmpty())
            return;
        bool number = false;
        mhz = QLocale::c().toDouble(text, &number);
        if (number && std::isfinite(mhz)) {
            kind = Number;
            channel = QLocale::c().toInt(text, &isChannel);
            return;
        }
        kind = Name;
        named = findBand(text).valueOr(Band());
    }

    bool holds(const Band &band, Link link) const
    {
        return !band.isGlobal()
               && (band.withinEdges(link, mhz)
                   || (isChannel && band.frequency(link, channel).ok()));
    }
    bool names(const Band &band) const
    {
        return band == named || band.standard().contains(text, Qt::CaseInsensitive);
    }
};

} // namespace

struct BandPlanFilterModel::Private
{
    QString text;
    Query query;
};

BandPlanFilterModel::BandPlanFilterModel(QObject *parent)
    : QSortFilterProxyModel(parent), d(new Private)
{
    setRecursiveFilteringEnabled(true);
}

BandPlanFilterModel::~BandPlanFilterModel() = default;

QString BandPlanFilterModel::filterText() const
{
    return d->text;
}

void BandPlanFilterModel::setFilterText(const QString &text)
{
    if (text == d->text)
        return;
    d->text = text;
    d->query = Query(text);
    invalidateFilter();
    Q_EMIT filterTextChanged(text);
}

// Technology rows are never accepted themselves: they stay while a band below does.
bool BandPlanFilterModel::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    const Query &query = d->query;
    if (query.kind == Query::Everything)
        return true;
    const QModelIndex row = sourceModel()->index(sourceRow, 0, sourceParent);
    const Band band = BandPlanModel::bandAt(row);
    if (!band.isValid())
        return false;
    if (query.kind == Query::Name)
        return query.names(band);
    const QVariant link = row.data(BandPlanModel::LinkRole);
    return link.isValid() && query.holds(band, Link(link.toInt()));
}

} // namespace saiskuko
