// The band plan as an item model: Qt's own model checks over it and over the
// filter proxy, its shape and cells held to the typed API, and what a filter keeps.
#include "testsupport.h"

#include <QtTest/QAbstractItemModelTester>

using namespace saiskuko;
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
    for (int t = 0; t < model.rowCount(); ++t) {
        const QModelIndex tech = model.index(t, 0);
        for (int b = 0; b < model.rowCount(tech); ++b)
            codes << model.index(b, 0, tech).data(BandPlanModel::CodeRole).toInt();
    }
    return codes;
}

// A row's display cells as one string, "|" between columns.
QString rowText(const QModelIndex &row)
{
    QStringList texts;
    for (int c = 0; c < BandPlanModel::ColumnCount; ++c)
        texts << row.siblingAtColumn(c).data().toString();
    return texts.join(QLatin1Char('|'));
}

} // namespace

class TestBandPlanModel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void treeFollowsTheTypedApi()
    {
        BandPlanModel model;
        Tester tester(&model, Tester::FailureReportingMode::Fatal);
        QCOMPARE(model.rowCount(), 8);
        int bandRows = 0;
        for (int t = 0; t < model.rowCount(); ++t) {
            const QModelIndex tech = model.index(t, 0);
            const QList<Band> bands = saiskuko::bands(technologies().at(t));
            QCOMPARE(tech.data().toString(), technologyName(technologies().at(t)));
            QCOMPARE(model.rowCount(tech), bands.size());
            for (int b = 0; b < bands.size(); ++b, ++bandRows) {
                const QModelIndex row = model.index(b, 0, tech);
                const Band band = bands.at(b);
                QCOMPARE(BandPlanModel::bandAt(row), band);
                QCOMPARE(model.indexOf(band), row);
                QCOMPARE(row.data(BandPlanModel::DuplexRole).toInt(), int(band.duplex()));
                QCOMPARE(model.rowCount(row), band.links().size());
                for (int l = 0; l < model.rowCount(row); ++l) {
                    const QModelIndex direction = model.index(l, 0, row);
                    const Link link = band.links().at(l);
                    QCOMPARE(direction.data(BandPlanModel::LinkRole).toInt(), int(link));
                    // Its numbers are channels of the link, and a span of frequencies.
                    QVERIFY(band.frequency(link,
                                           direction.data(BandPlanModel::FirstChannelRole).toInt())
                                .ok());
                    QVERIFY(
                        band.frequency(link, direction.data(BandPlanModel::LastChannelRole).toInt())
                            .ok());
                    QVERIFY(direction.data(BandPlanModel::LowMHzRole).toDouble()
                            < direction.data(BandPlanModel::HighMHzRole).toDouble());
                }
            }
        }
        QCOMPARE(bandRows, 172);
        QCOMPARE(model.roleNames().value(BandPlanModel::HighMHzRole), QByteArray("highMHz"));
    }

    void cellsRead_data()
    {
        QTest::addColumn<QString>("band");
        QTest::addColumn<int>("direction"); // -1 for the band's own row
        QTest::addColumn<QString>("cells");
        QTest::newRow("FDD band") << str("LTE:1") << -1 << str("Band 1 (2100)|201|FDD||1920–2170");
        QTest::newRow("uplink first") << str("LTE:1") << 0 << str("Uplink|||18000–18599|1920–1980");
        QTest::newRow("downlink") << str("LTE:1") << 1 << str("Downlink|||0–599|2110–2170");
        QTest::newRow("TDD, a record per link")
            << str("LTE:33") << 1 << str("Downlink|||36000–36199|1900–1920");
        QTest::newRow("gaps in the channels")
            << str("CDMA:3") << 1
            << str("Downlink|||1–799, 801–1039, 1041–1199, 1201–1600|832.0125–869.9875");
        QTest::newRow("SDL") << str("NR:n75") << 0 << str("Downlink|||286400–303400|1432–1517");
    }
    void cellsRead()
    {
        QFETCH(QString, band);
        QFETCH(int, direction);
        BandPlanModel model;
        const QModelIndex row = model.indexOf(findBand(band).value());
        QFETCH(QString, cells);
        QCOMPARE(rowText(direction < 0 ? row : model.index(direction, 0, row)), cells);
    }

    void filterKeeps_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QSet<int>>("codes");
        QSet<int> at1950;
        for (const SearchHit &hit : search(1950.0))
            at1950 << hit.band.code();
        QSet<int> lte = codesOf(bands(Technology::LteFdd)) + codesOf(bands(Technology::LteTdd));
        QTest::newRow("nothing") << str("  ") << codesOf(allBands());
        QTest::newRow("frequency or channel")
            << str("1950") << (at1950 + codesOf(bandsWithChannel(1950)));
        QTest::newRow("frequency only") << str("1950.0") << at1950;
        QTest::newRow("fragment") << str("n78") << QSet<int>{724};
        QTest::newRow("technology") << str("lte") << lte;
        QTest::newRow("alias") << str("B7") << QSet<int>{206};
        QTest::newRow("no band") << str("-1") << QSet<int>{};
    }
    void filterKeeps()
    {
        QFETCH(QString, text);
        BandPlanModel model;
        BandPlanFilterModel filter;
        filter.setSourceModel(&model);
        Tester tester(&filter, Tester::FailureReportingMode::Fatal);
        filter.setFilterText(text);
        QFETCH(QSet<int>, codes);
        QCOMPARE(shownCodes(filter), codes);
        // A number keeps only the directions that hold it.
        if (text == QLatin1String("1950")) {
            const QModelIndex band1 =
                filter.mapFromSource(model.indexOf(findBand(u"LTE:1").value()));
            QCOMPARE(filter.rowCount(band1), 1);
            QCOMPARE(filter.index(0, 0, band1).data(BandPlanModel::LinkRole).toInt(),
                     int(Link::Up));
        }
    }
};

QTEST_GUILESS_MAIN(TestBandPlanModel)
#include "tst_bandplanmodel.moc"
