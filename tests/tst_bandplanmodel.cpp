// The band plan as an item model: Qt's own model checks over it and over the
// filter proxy, its shape and cells held to the typed API, and what a filter keeps.
#include "testsupport.h"

#include <QtTest/QAbstractItemModelTester>

using namespace saiskuko;
using M = BandPlanModel;
using Tester = QAbstractItemModelTester;

namespace {

QSet<int> codesOf(const QList<Band> &bands)
{
    QSet<int> codes;
    for (const Band &band : bands)
        codes << band.code();
    return codes;
}

// The codes of the band rows a model shows.
QSet<int> shownCodes(const QAbstractItemModel &model)
{
    QSet<int> codes;
    for (int t = 0; t < model.rowCount(); ++t)
        for (int b = 0; b < model.rowCount(model.index(t, 0)); ++b)
            codes << model.index(b, 0, model.index(t, 0)).data(M::CodeRole).toInt();
    return codes;
}

} // namespace

class TestBandPlanModel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void treeFollowsTheTypedApi()
    {
        M model;
        Tester tester(&model, Tester::FailureReportingMode::Fatal);
        QCOMPARE(model.rowCount(), 8);
        for (int t = 0; t < model.rowCount(); ++t) {
            const QModelIndex tech = model.index(t, 0);
            const QList<Band> bands = saiskuko::bands(technologies().at(t));
            QCOMPARE(tech.data().toString(), technologyName(technologies().at(t)));
            QCOMPARE(model.rowCount(tech), bands.size());
            for (int b = 0; b < bands.size(); ++b) {
                const QModelIndex row = model.index(b, 0, tech);
                const Band band = bands.at(b);
                QCOMPARE(M::bandAt(row), band);
                QCOMPARE(model.indexOf(band), row);
                QCOMPARE(row.data(M::DuplexRole).toInt(), int(band.duplex()));
                QCOMPARE(model.rowCount(row), band.links().size());
                for (int l = 0; l < model.rowCount(row); ++l) {
                    // The band's links in order; first and last are channels of the link.
                    const QModelIndex dir = model.index(l, 0, row);
                    const Link link = Link(dir.data(M::LinkRole).toInt());
                    QCOMPARE(int(link), int(band.links().at(l)));
                    for (const int role : {M::FirstChannelRole, M::LastChannelRole})
                        QVERIFY(band.frequency(link, dir.data(role).toInt()).ok());
                    QVERIFY(dir.data(M::LowMHzRole).toDouble()
                            < dir.data(M::HighMHzRole).toDouble());
                }
            }
        }
        QCOMPARE(shownCodes(model).size(), 172);
    }

    void cellsRead()
    {
        // Band, direction row (-1: the band's own row), its cells.
        const QList<std::tuple<const char *, int, const char *>> rows = {
            {"LTE:1", -1, "Band 1 (2100)|201|FDD||1920–2170"},
            {"LTE:1", 0, "Uplink|||18000–18599|1920–1980"}, // uplink first
            {"LTE:1", 1, "Downlink|||0–599|2110–2170"},
            {"LTE:33", 1, "Downlink|||36000–36199|1900–1920"}, // TDD: a record per link, once
            {"CDMA:3", 1, "Downlink|||1–799, 801–1039, 1041–1199, 1201–1600|832.0125–869.9875"},
            {"NR:n75", 0, "Downlink|||286400–303400|1432–1517"}, // SDL
        };
        M model;
        for (const auto &[name, direction, text] : rows) {
            const QModelIndex band = model.indexOf(findBand(str(name)).value());
            const QModelIndex row = direction < 0 ? band : model.index(direction, 0, band);
            QStringList cells;
            for (int c = 0; c < M::ColumnCount; ++c)
                cells << row.siblingAtColumn(c).data().toString();
            QCOMPARE(cells.join(QLatin1Char('|')), str(text));
        }
    }

    void filterKeeps()
    {
        QSet<int> at1950;
        for (const SearchHit &hit : search(1950.0))
            at1950 << hit.band.code();
        const QList<QPair<const char *, QSet<int>>> filters = {
            {"1950", at1950 + codesOf(bandsWithChannel(1950))}, // a frequency or a channel
            {" 1950.0 ", at1950},                               // a frequency only
            {"n78", {724}},
            {"lte", codesOf(bands(Technology::LteFdd) + bands(Technology::LteTdd))},
            {"B7", {206}}, // findBand()'s alias
            {"-1", {}},
            {"", codesOf(allBands())},
        };
        M model;
        BandPlanFilterModel filter;
        filter.setSourceModel(&model);
        Tester tester(&filter, Tester::FailureReportingMode::Fatal);
        for (const auto &f : filters) {
            filter.setFilterText(str(f.first));
            QVERIFY2(shownCodes(filter) == f.second, f.first);
        }
        // A number keeps only the directions that hold it.
        filter.setFilterText(str("1950"));
        const QModelIndex band1 = filter.mapFromSource(model.indexOf(findBand(u"LTE:1").value()));
        QCOMPARE(filter.rowCount(band1), 1);
        QCOMPARE(filter.index(0, 0, band1).data(M::LinkRole).toInt(), int(Link::Up));
    }
};

QTEST_GUILESS_MAIN(TestBandPlanModel)
#include "tst_bandplanmodel.moc"
