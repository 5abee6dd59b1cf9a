// The chart layout written out as an SVG document.
#include "chartsvg.h"

#include "output.h"

#include <QtCore/QXmlStreamWriter>

namespace {

struct KindStyle
{
    BarKind kind;
    const char *cssClass;
    const char *legend;
};

constexpr KindStyle kKinds[] = {
    {BarKind::Uplink, "ul", "uplink"},
    {BarKind::Downlink, "dl", "downlink"},
    {BarKind::TimeDivision, "tdd", "time-division"},
};

constexpr char kStyle[] = "text{font-family:monospace;font-size:11px;fill:#222}"
                          ".group{font-weight:bold}"
                          ".grid{stroke:#ddd;stroke-width:1}"
                          ".axis{stroke:#888;stroke-width:1}"
                          ".ul{fill:#d9822b}.dl{fill:#2b6cd9}.tdd{fill:#3a9e4f}"
                          ".mark{stroke:#c0392b;stroke-width:1.5}"
                          ".marktext{fill:#c0392b}";

const char *cssClassOf(BarKind kind)
{
    for (const KindStyle &k : kKinds) {
        if (k.kind == kind)
            return k.cssClass;
    }
    return "";
}

QString number(double v)
{
    return QString::number(v, 'f', 1);
}

void writeText(QXmlStreamWriter &w, double x, double baseline, const QString &text,
               const char *cssClass = nullptr, const char *anchor = nullptr)
{
    w.writeStartElement(QStringLiteral("text"));
    w.writeAttribute(QStringLiteral("x"), number(x));
    w.writeAttribute(QStringLiteral("y"), number(baseline));
    if (cssClass)
        w.writeAttribute(QStringLiteral("class"), QLatin1String(cssClass));
    if (anchor)
        w.writeAttribute(QStringLiteral("text-anchor"), QLatin1String(anchor));
    w.writeCharacters(text);
    w.writeEndElement();
}

// Text sits on the baseline of its box, a little above the box's bottom.
double baselineOf(const ChartLayout &layout, const ChartBox &box, int line = 0)
{
    return box.y + layout.lineHeight * (line + 1) - (layout.lineHeight - layout.fontSize) / 2 - 1;
}

void writeLine(QXmlStreamWriter &w, double x1, double y1, double x2, double y2,
               const char *cssClass)
{
    w.writeEmptyElement(QStringLiteral("line"));
    w.writeAttribute(QStringLiteral("x1"), number(x1));
    w.writeAttribute(QStringLiteral("y1"), number(y1));
    w.writeAttribute(QStringLiteral("x2"), number(x2));
    w.writeAttribute(QStringLiteral("y2"), number(y2));
    w.writeAttribute(QStringLiteral("class"), QLatin1String(cssClass));
}

void writeRect(QXmlStreamWriter &w, const ChartBox &box, const char *cssClass)
{
    w.writeAttribute(QStringLiteral("x"), number(box.x));
    w.writeAttribute(QStringLiteral("y"), number(box.y));
    w.writeAttribute(QStringLiteral("width"), number(box.width));
    w.writeAttribute(QStringLiteral("height"), number(box.height));
    w.writeAttribute(QStringLiteral("class"), QLatin1String(cssClass));
}

void writeAxis(QXmlStreamWriter &w, const ChartLayout &layout)
{
    for (const ChartTick &tick : layout.ticks) {
        writeLine(w, tick.x, layout.plot.y, tick.x, layout.plot.bottom(), "grid");
        writeText(w, tick.x, baselineOf(layout, tick.labelBox), tick.label, nullptr, "middle");
    }
    writeLine(w, layout.plot.x, layout.plot.y, layout.plot.right(), layout.plot.y, "axis");
    writeLine(w, layout.plot.x, layout.plot.bottom(), layout.plot.right(), layout.plot.bottom(),
              "axis");
}

void writeRows(QXmlStreamWriter &w, const ChartLayout &layout)
{
    for (const ChartGroup &group : layout.groups)
        writeText(w, group.labelBox.x, baselineOf(layout, group.labelBox), group.label, "group");
    for (const ChartRow &row : layout.rows) {
        writeText(w, row.labelBox.x, baselineOf(layout, row.labelBox), row.label);
        for (const ChartBar &bar : row.bars) {
            w.writeStartElement(QStringLiteral("rect"));
            writeRect(w, bar.box, cssClassOf(bar.kind));
            w.writeTextElement(QStringLiteral("title"), bar.title);
            w.writeEndElement();
        }
    }
}

void writeMarks(QXmlStreamWriter &w, const ChartLayout &layout)
{
    for (const ChartMark &mark : layout.marks) {
        writeLine(w, mark.x, mark.labelBox.y, mark.x, layout.plot.bottom(), "mark");
        for (int i = 0; i < mark.lines.size(); ++i)
            writeText(w, mark.labelBox.x, baselineOf(layout, mark.labelBox, i), mark.lines[i],
                      "marktext");
    }
}

void writeLegend(QXmlStreamWriter &w, const ChartLayout &layout)
{
    double x = layout.legend.x;
    for (const KindStyle &k : kKinds) {
        w.writeEmptyElement(QStringLiteral("rect"));
        writeRect(w, ChartBox{x, layout.legend.y, layout.legend.height, layout.legend.height},
                  k.cssClass);
        const QString text = QLatin1String(k.legend);
        writeText(w, x + layout.legend.height + 4, baselineOf(layout, layout.legend), text);
        x += layout.legend.height + 4 + chartTextWidth(text, layout.fontSize) + 16;
    }
    writeText(w, layout.plot.right(), baselineOf(layout, layout.legend), QStringLiteral("MHz"),
              nullptr, "end");
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
    w.writeAttribute(QStringLiteral("width"), number(layout.width));
    w.writeAttribute(QStringLiteral("height"), number(layout.height));
    w.writeAttribute(QStringLiteral("viewBox"),
                     QStringLiteral("0 0 %1 %2").arg(number(layout.width), number(layout.height)));
    w.writeTextElement(QStringLiteral("style"), QLatin1String(kStyle));
    w.writeEmptyElement(QStringLiteral("rect"));
    w.writeAttribute(QStringLiteral("width"), QStringLiteral("100%"));
    w.writeAttribute(QStringLiteral("height"), QStringLiteral("100%"));
    w.writeAttribute(QStringLiteral("fill"), QStringLiteral("#fff"));
    writeAxis(w, layout);
    writeRows(w, layout);
    writeMarks(w, layout);
    writeLegend(w, layout);
    w.writeEndElement();
    w.writeEndDocument();
    return svg;
}
