#ifndef SAISKUKO_TOOLS_CHARTLAYOUT_H
#define SAISKUKO_TOOLS_CHARTLAYOUT_H

#include <saiskuko/bandplan.h>

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

// What the chart command draws, computed apart from the SVG that shows it so
// that the picture's content is tested as data. Positions are in SVG pixels.

// In the order of the tables the chart keeps for each kind.
enum class BarKind { Uplink, Downlink, TimeDivision };

struct ChartRequest
{
    double lowMHz = 0, highMHz = 0;
    QList<saiskuko::Technology> techs; // empty: every technology
    QList<double> marksMHz;
};

struct ChartBox
{
    double x = 0, y = 0, width = 0, height = 0;

    double right() const { return x + width; }
    double bottom() const { return y + height; }
    bool overlaps(const ChartBox &o) const
    {
        return x < o.right() && o.x < right() && y < o.bottom() && o.y < bottom();
    }
};

// One record (or the records of both links of a time-division band that
// share their channels) between the window's edges.
struct ChartBar
{
    BarKind kind = BarKind::Downlink;
    double lowMHz = 0, highMHz = 0; // the record's span (a gap between records shows)
    ChartBox box;                   // clipped to the window
    QString title;                  // technology, band, direction, channels, span
};

struct ChartRow
{
    saiskuko::Band band;
    QString label; // band name and code
    ChartBox labelBox;
    QList<ChartBar> bars;
};

struct ChartGroup
{
    saiskuko::Technology tech = saiskuko::Technology::Cdma;
    QString label;
    ChartBox labelBox;
};

struct ChartTick
{
    double x = 0;
    QString label;
    ChartBox labelBox;
};

struct ChartMark
{
    double x = 0;
    QStringList lines; // the frequency, then one line per search hit
    ChartBox labelBox;
};

struct ChartLayout
{
    double lowMHz = 0, highMHz = 0;
    double width = 0, height = 0;
    ChartBox plot; // where the bars are; ticks and marks span it
    QList<ChartTick> ticks;
    QList<ChartGroup> groups;
    QList<ChartRow> rows;
    QList<ChartMark> marks;
    ChartBox legend;

    double xOf(double mhz) const;
    int barCount() const;
};

// Round tick values for a window: a step of 1, 2 or 5 times a power of ten,
// about eight ticks however wide the window is.
QList<double> chartTicks(double lowMHz, double highMHz);

// The layout of every band with a real record overlapping the window, grouped
// by technology in slot order. Empty rows when no band has one. The caller
// checks the window (finite, low below high).
ChartLayout layoutChart(const ChartRequest &request);

// The chart's monospace font: its size, and the height of a line of it.
constexpr double kChartFontSize = 11;
constexpr double kChartLineHeight = 15;

// The width a text takes in the chart's font.
double chartTextWidth(const QString &text);

#endif
