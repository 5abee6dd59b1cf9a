// The chart's content and geometry: rows of bands, bars of records, ticks, marks and legend.
#include "chartlayout.h"

#include "output.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kCharWidth = 0.6; // of the font size, for a monospace font
constexpr double kMargin = 12;
constexpr double kGap = 6; // between a label and what it labels
constexpr double kPlotWidth = 960;
constexpr double kBarHeight = 10;
constexpr double kLegendSwatch = 14;

// By BarKind: the direction a bar's title names.
constexpr const char *kDirections[] = {"uplink", "downlink", "uplink and downlink (time-division)"};

using saiskuko::Band;
using saiskuko::Record;

QString barTitle(const Band &band, BarKind kind, const Record &record)
{
    return QStringLiteral("%1\n%2 [%3]\n%4\nchannels %5-%6\n%7-%8 MHz")
        .arg(band.technologyName(), band.name(), QString::number(band.code()),
             QLatin1String(kDirections[int(kind)]), QString::number(record.firstChannel),
             QString::number(record.lastChannel), formatMHz(record.spanLowMHz),
             formatMHz(record.spanHighMHz));
}

// Whether a record shows in the window: its span overlaps it (a record of
// zero width counts where it lies inside).
bool overlapsWindow(const Record &record, double low, double high)
{
    const double from = std::max(record.spanLowMHz, low);
    const double to = std::min(record.spanHighMHz, high);
    return from < to || (record.spanLowMHz == record.spanHighMHz && from == to);
}

QList<ChartBar> barsOf(const Band &band, double low, double high)
{
    QList<ChartBar> bars;
    for (const Record &r : band.records()) {
        if (!overlapsWindow(r, low, high))
            continue;
        // A TDD band's links share one frequency range: one kind of bar for both.
        const BarKind kind = band.duplex() == saiskuko::Duplex::Tdd ? BarKind::TimeDivision
                             : r.link == saiskuko::Link::Up         ? BarKind::Uplink
                                                                    : BarKind::Downlink;
        // Both links of a time-division band name the same channels: one bar.
        const bool drawn = std::any_of(bars.begin(), bars.end(), [&](const ChartBar &b) {
            return b.kind == kind && b.lowMHz == r.spanLowMHz && b.highMHz == r.spanHighMHz;
        });
        if (!drawn)
            bars.append({kind, r.spanLowMHz, r.spanHighMHz, {}, barTitle(band, kind, r)});
    }
    return bars;
}

QString tickLabel(double mhz, double step)
{
    const int decimals = step >= 1 ? 0 : int(std::ceil(-std::log10(step) - 1e-9));
    return QString::number(mhz, 'f', decimals);
}

// The hits of the frequency search at a mark, as the search command lists
// them, of the charted technologies.
QStringList markLines(double mhz, const QList<saiskuko::Technology> &techs)
{
    QStringList lines{formatMHz(mhz) + QStringLiteral(" MHz")};
    for (const saiskuko::SearchHit &hit : saiskuko::search(mhz)) {
        if (techs.isEmpty() || techs.contains(hit.band.technology()))
            lines << QStringLiteral("%1 %2 %3 ch %4")
                         .arg(hit.band.technologyName(), hit.band.name(), linkShort(hit.link),
                              QString::number(hit.channel));
    }
    return lines;
}

// A line of text at x, y.
ChartBox textBox(double x, double y, const QString &text)
{
    return {x, y, chartTextWidth(text), kChartLineHeight};
}

// Mark labels sit above the plot, beside their line; a label that would run
// into one placed before it moves down below that one.
void placeMarkLabels(QList<ChartMark> *marks, double top, double width)
{
    QList<ChartBox> placed;
    for (ChartMark &mark : *marks) {
        ChartBox box;
        for (const QString &line : mark.lines)
            box.width = std::max(box.width, chartTextWidth(line));
        box.height = kChartLineHeight * mark.lines.size();
        box.x = mark.x + kGap;
        if (box.right() > width - kMargin)
            box.x = mark.x - kGap - box.width;
        box.y = top;
        for (bool moved = true; moved;) {
            moved = false;
            for (const ChartBox &other : placed) {
                if (box.overlaps(other)) {
                    box.y = other.bottom() + kGap;
                    moved = true;
                }
            }
        }
        mark.labelBox = box;
        placed.append(box);
    }
}

} // namespace

double chartTextWidth(const QString &text)
{
    return text.size() * kChartFontSize * kCharWidth;
}

double ChartLayout::xOf(double mhz) const
{
    return plot.x + (mhz - lowMHz) / (highMHz - lowMHz) * plot.width;
}

int ChartLayout::barCount() const
{
    int n = 0;
    for (const ChartRow &row : rows)
        n += row.bars.size();
    return n;
}

QList<double> chartTicks(double lowMHz, double highMHz)
{
    const double raw = (highMHz - lowMHz) / 8;
    const double magnitude = std::pow(10.0, std::floor(std::log10(raw)));
    double step = magnitude;
    for (double factor : {1.0, 2.0, 5.0, 10.0}) {
        step = factor * magnitude;
        if (step >= raw * (1 - 1e-9)) // 1.6 / 8 is a hair above 0.2
            break;
    }
    QList<double> ticks;
    // Multiples of the step, so that the values print round; bounded, for a
    // window too narrow for its magnitude to step through.
    const double first = std::ceil(lowMHz / step);
    for (int i = 0; i < 16 && (first + i) * step <= highMHz; ++i)
        ticks << (first + i) * step;
    return ticks;
}

ChartLayout layoutChart(const ChartRequest &request)
{
    ChartLayout layout;
    layout.lowMHz = request.lowMHz;
    layout.highMHz = request.highMHz;

    // Rows first: the label column is as wide as the widest label.
    double labelWidth = 0;
    for (saiskuko::Technology tech : saiskuko::technologies()) {
        if (!request.techs.isEmpty() && !request.techs.contains(tech))
            continue;
        for (const Band &band : saiskuko::bands(tech)) {
            ChartRow row;
            row.band = band;
            row.bars =
                band.isGlobal() ? QList<ChartBar>() : barsOf(band, request.lowMHz, request.highMHz);
            if (row.bars.isEmpty())
                continue;
            if (layout.groups.isEmpty() || layout.groups.last().tech != tech) {
                layout.groups.append({tech, saiskuko::technologyName(tech), {}});
                labelWidth = std::max(labelWidth, chartTextWidth(layout.groups.last().label));
            }
            row.label = band.name() + QStringLiteral(" [%1]").arg(band.code());
            labelWidth = std::max(labelWidth, chartTextWidth(row.label));
            layout.rows.append(row);
        }
    }
    if (layout.rows.isEmpty())
        return layout;

    layout.plot.x = kMargin + labelWidth + kGap;
    layout.plot.width = kPlotWidth;
    layout.width = layout.plot.right() + kMargin + kGap;

    // Marks and their labels above the axis.
    QList<double> marks = request.marksMHz;
    std::sort(marks.begin(), marks.end());
    for (double mhz : marks)
        layout.marks.append({layout.xOf(mhz), markLines(mhz, request.techs), {}});
    placeMarkLabels(&layout.marks, kMargin, layout.width);
    double y = kMargin;
    for (const ChartMark &mark : layout.marks)
        y = std::max(y, mark.labelBox.bottom() + kGap);

    // The axis: tick labels, then the rows.
    const QList<double> values = chartTicks(request.lowMHz, request.highMHz);
    const double step = values.size() > 1 ? values[1] - values[0] : 1;
    for (double v : values) {
        const double x = layout.xOf(v);
        const QString label = tickLabel(v, step);
        layout.ticks.append({x, label, textBox(x - chartTextWidth(label) / 2, y, label)});
    }
    y += kChartLineHeight + kGap;
    layout.plot.y = y;

    int group = 0;
    for (ChartRow &row : layout.rows) {
        if (group < layout.groups.size() && layout.groups[group].tech == row.band.technology()) {
            ChartGroup &g = layout.groups[group++];
            g.labelBox = textBox(kMargin, y, g.label);
            y += kChartLineHeight;
        }
        row.labelBox = textBox(kMargin, y, row.label);
        for (ChartBar &bar : row.bars) {
            const double from = layout.xOf(std::max(bar.lowMHz, layout.lowMHz));
            const double to = layout.xOf(std::min(bar.highMHz, layout.highMHz));
            // A record narrower than a pixel still shows.
            bar.box = ChartBox{from, y + (kChartLineHeight - kBarHeight) / 2,
                               std::max(to - from, 1.0), kBarHeight};
        }
        y += kChartLineHeight;
    }
    layout.plot.height = y - layout.plot.y;

    y += kGap;
    layout.legend = ChartBox{layout.plot.x, y, 0, kLegendSwatch};
    layout.height = layout.legend.bottom() + kMargin;
    return layout;
}
