// The chart layout written out as an SVG document.
#include "chartsvg.h"

#include <QtCore/QXmlStreamWriter>

#include <initializer_list>
#include <utility>

namespace {

// By BarKind: the bar's style class and its legend.
constexpr const char *kKindClasses[] = {"ul", "dl", "tdd"};
constexpr const char *kKindLegends[] = {"uplink", "downlink", "time-division"};

constexpr char kStyle[] = "text{font-family:monospace;font-size:11px;fill:#222}"
                          ".group{font-weight:bold}"
                          ".grid{stroke:#ddd;stroke-width:1}"
                          ".axis{stroke:#888;stroke-width:1}"
                          ".ul{fill:#d9822b}.dl{fill:#2b6cd9}.tdd{fill:#3a9e4f}"
                          ".mark{stroke:#c0392b;stroke-width:1.5}"
                          ".marktext{fill:#c0392b}";

QString number(double v)
{
    return QString::number(v, 'f', 1);
}

// Attributes in order; a null value leaves its attribute out.
void writeAttributes(QXmlStreamWriter &w,
                     std::initializer_list<std::pair<const char *, QString>> attributes)
{
    for (const auto &attribute : attributes) {
        if (!attribute.second.isNull())
            w.writeAttribute(QLatin1String(attribute.first), attribute.second);
    }
}

void writeText(QXmlStreamWriter &w, double x, double baseline, const QString &text,
               const char *cssClass = nullptr, const char *anchor = nullptr)
{
    w.writeStartElement(QStringLiteral("text"));
    writeAttributes(w, {{"x", number(x)},
                        {"y", number(baseline)},
                        {"class", QLatin1String(cssClass)},
                        {"text-anchor", QLatin1String(anchor)}});
    w.writeCharacters(text);
    w.writeEndElement();
}

// Text sits on the baseline of its box, a little above the box's bottom.
double baselineOf(const ChartBox &box, int line = 0)
{
    return box.y + kChartLineHeight * (line + 1) - (kChartLineHeight - kChartFontSize) / 2 - 1;
}

void writeLine(QXmlStreamWriter &w, double x1, double y1, double x2, double y2,
               const char *cssClass)
{
    w.writeEmptyElement(QStringLiteral("line"));
    writeAttributes(w, {{"x1", number(x1)},
                        {"y1", number(y1)},
                        {"x2", number(x2)},
                        {"y2", number(y2)},
                        {"class", QLatin1String(cssClass)}});
}

void writeRect(QXmlStreamWriter &w, const ChartBox &box, const char *cssClass)
{
    writeAttributes(w, {{"x", number(box.x)},
                        {"y", number(box.y)},
                        {"width", number(box.width)},
                        {"height", number(box.height)},
                        {"class", QLatin1String(cssClass)}});
}

} // namespace

QByteArray chartSvg(const ChartLayout &layout)
{
    QByteArray svg;
    QXmlStreamWriter w(&svg);
    w.setAutoFormatting(true);
    w.setAutoFormattingIndent(1);
    w.writeStartDocument();
    w.writeStartElement(QStringLiteral("svg"));
    w.writeDefaultNamespace(QStringLiteral("http://www.w3.org/2000/svg"));
    writeAttributes(
        w, {{"width", number(layout.width)},
            {"height", number(layout.height)},
            {"viewBox",
             QStringLiteral("0 0 %1 %2").arg(number(layout.width), number(layout.height))}});
    w.writeTextElement(QStringLiteral("style"), QLatin1String(kStyle));
    w.writeEmptyElement(QStringLiteral("rect"));
    writeAttributes(w, {{"width", QStringLiteral("100%")},
                        {"height", QStringLiteral("100%")},
                        {"fill", QStringLiteral("#fff")}});

    // The grid and axis, the rows and their bars, the marks, the legend.
    for (const ChartTick &tick : layout.ticks) {
        writeLine(w, tick.x, layout.plot.y, tick.x, layout.plot.bottom(), "grid");
        writeText(w, tick.x, baselineOf(tick.labelBox), tick.label, nullptr, "middle");
    }
    writeLine(w, layout.plot.x, layout.plot.y, layout.plot.right(), layout.plot.y, "axis");
    writeLine(w, layout.plot.x, layout.plot.bottom(), layout.plot.right(), layout.plot.bottom(),
              "axis");
    for (const ChartGroup &group : layout.groups)
        writeText(w, group.labelBox.x, baselineOf(group.labelBox), group.label, "group");
    for (const ChartRow &row : layout.rows) {
        writeText(w, row.labelBox.x, baselineOf(row.labelBox), row.label);
        for (const ChartBar &bar : row.bars) {
            w.writeStartElement(QStringLiteral("rect"));
            writeRect(w, bar.box, kKindClasses[int(bar.kind)]);
            w.writeTextElement(QStringLiteral("title"), bar.title);
            w.writeEndElement();
        }
    }
    for (const ChartMark &mark : layout.marks) {
        writeLine(w, mark.x, mark.labelBox.y, mark.x, layout.plot.bottom(), "mark");
        for (int i = 0; i < mark.lines.size(); ++i)
            writeText(w, mark.labelBox.x, baselineOf(mark.labelBox, i), mark.lines[i], "marktext");
    }
    double x = layout.legend.x;
    for (int kind = 0; kind < 3; ++kind) {
        w.writeEmptyElement(QStringLiteral("rect"));
        writeRect(w, ChartBox{x, layout.legend.y, layout.legend.height, layout.legend.height},
                  kKindClasses[kind]);
        const QString text = QLatin1String(kKindLegends[kind]);
        writeText(w, x + layout.legend.height + 4, baselineOf(layout.legend), text);
        x += layout.legend.height + 4 + chartTextWidth(text) + 16;
    }
    writeText(w, layout.plot.right(), baselineOf(layout.legend), QStringLiteral("MHz"), nullptr,
              "end");
    w.writeEndElement();
    w.writeEndDocument();
    return svg;
}
