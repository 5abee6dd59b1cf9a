// The band-plan chart: its rows, bars, ticks and marks as data, and the SVG that shows them.

#include "chartsvg.h"

#include <QtCore/QXmlStreamReader>
#include <QtTest/QtTest>

namespace {

// Every text box of the chart: none may cover another.
QList<ChartBox> textBoxes(const ChartLayout &layout)
{
    QList<ChartBox> boxes;
    for (const ChartTick &tick : layout.ticks)
        boxes << tick.labelBox;
    for (const ChartGroup &group : layout.groups)
        boxes << group.labelBox;
    for (const ChartRow &row : layout.rows)
        boxes << row.labelBox;
    for (const ChartMark &mark : layout.marks)
        boxes << mark.labelBox;
    return boxes;
}

ChartLayout chart(double low, double high, QList<saiskuko::Technology> techs = {},
                  QList<double> marks = {})
{
    return layoutChart({low, high, techs, marks});
}

} // namespace

class TestChart : public QObject
{
    Q_OBJECT

private slots:
    void ticks()
    {
        const struct
        {
            double low, high;
            const char *ticks;
        } rows[] = {{3400.0, 3405.0, "3400 3401 3402 3403 3404 3405"},
                    {881.3, 882.9, "881.4 881.6 881.8 882 882.2 882.4 882.6 882.8"},
                    {700.0, 1000.0, "700 750 800 850 900 950 1000"},
                    {0.0, 6000.0, "0 1000 2000 3000 4000 5000 6000"},
                    {0.0, 100000.0, "0 20000 40000 60000 80000 100000"}};
        for (const auto &row : rows) {
            QStringList got;
            for (double tick : chartTicks(row.low, row.high))
                got << QString::number(tick);
            QCOMPARE(got.join(QLatin1Char(' ')), QString::fromUtf8(row.ticks));
        }
    }

    // Which bands, in which order and with which kinds of bar (Uplink,
    // Downlink, Time-division): grouped by technology in slot order, "Band
    // Global" and placeholders left out, the two links of a TDD band drawn once.
    void rows()
    {
        using saiskuko::Technology;
        const struct
        {
            double low, high;
            Technology tech;
            const char *rows;
        } tables[] = {
            // P-GSM's uplink starts at 890: touching the window's edge is not in it.
            // E-GSM's two uplink blocks are two bars.
            {880.0, 890.0, Technology::Gsm,
             "GSM 850 [102] D|E-GSM 900 [104] UU|R-GSM 900 [105] UU|R-GSM 900 (China) [106] U"},
            {2310.0, 2390.0, Technology::LteTdd, "Band 40 (2300) [308] T"},
            // Band class 10's blocks state shared edges: the gap between them holds nothing.
            {880.0, 885.0, Technology::Cdma,
             "Band 0 (800) [0] D|Band 2 (TACS) [2] U|Band 9 (900) [9] U"},
            {3400.0, 3405.0, Technology::Nr,
             "Band n77 (TD 3700) [723] T|Band n78 (TD 3500) [724] T"}};
        for (const auto &table : tables) {
            QStringList rows;
            for (const ChartRow &row : chart(table.low, table.high, {table.tech}).rows) {
                rows << row.label + QLatin1Char(' ');
                for (const ChartBar &bar : row.bars)
                    rows.last() += QLatin1Char("UDT"[int(bar.kind)]);
            }
            QCOMPARE(rows.join(QLatin1Char('|')), QString::fromUtf8(table.rows));
        }
    }

    // The whole plan: every real record of every band but the global ones is
    // drawn, inside the plot and at its edges' places, and no text covers
    // another.
    void wholePlan()
    {
        const ChartLayout layout = chart(0, 100000, {}, {881.5, 882, 3500});
        QList<int> codes;
        for (const ChartRow &row : layout.rows) {
            codes << row.band.code();
            QVERIFY(!row.band.isGlobal());
            QVERIFY(row.labelBox.right() < layout.plot.x);
            for (const ChartBar &bar : row.bars) {
                QVERIFY(bar.box.x >= layout.plot.x && bar.box.right() <= layout.plot.right() + 1);
                QCOMPARE(bar.box.x, layout.xOf(bar.lowMHz));
                QVERIFY(!bar.title.isEmpty());
            }
        }
        for (const saiskuko::Band &band : saiskuko::allBands())
            QCOMPARE(codes.contains(band.code()), !band.links().isEmpty() && !band.isGlobal());
        const QList<ChartBox> boxes = textBoxes(layout);
        for (int i = 0; i < boxes.size(); ++i)
            for (int j = i + 1; j < boxes.size(); ++j)
                QVERIFY2(!boxes[i].overlaps(boxes[j]),
                         qPrintable(QString::number(i) + QLatin1Char('/') + QString::number(j)));
        QVERIFY(layout.legend.y >= layout.plot.bottom());
    }

    void markListsTheSearchHits()
    {
        const ChartLayout layout = chart(700, 1000, {saiskuko::Technology::LteFdd}, {881.5});
        QCOMPARE(layout.marks.size(), 1);
        const QStringList lines = layout.marks[0].lines;
        QCOMPARE(lines.first(), QStringLiteral("881.5 MHz"));
        QVERIFY(lines.contains(QStringLiteral("LTE-FDD Band 5 (850) DL ch 2525")));
        for (const QString &line : lines.mid(1))
            QVERIFY2(line.startsWith(QLatin1String("LTE-FDD ")), qPrintable(line));
        QVERIFY(layout.marks[0].labelBox.bottom() <= layout.plot.y);
    }

    void noBandInWindow() { QVERIFY(chart(0.5, 0.9).rows.isEmpty()); }

    // Well-formed, and one hover title per bar.
    void svg()
    {
        const ChartLayout layout = chart(700, 1000, {}, {881.5});
        QXmlStreamReader reader(chartSvg(layout));
        int titles = 0;
        QString parent;
        while (!reader.atEnd()) {
            if (reader.readNext() != QXmlStreamReader::StartElement)
                continue;
            if (reader.name() == QLatin1String("title"))
                titles += parent == QLatin1String("rect");
            parent = reader.name().toString();
        }
        QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
        QCOMPARE(titles, layout.barCount());
    }
};

QTEST_GUILESS_MAIN(TestChart)
#include "tst_chart.moc"
