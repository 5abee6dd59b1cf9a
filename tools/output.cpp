// Text for people: MHz, link words, padded tables; where the library's diagnostics go.
#include "output.h"

#include <QtCore/QTextStream>

#include <algorithm>

QString formatMHz(double mhz)
{
    QString s = QString::number(mhz, 'f', 6);
    while (s.endsWith(QLatin1Char('0')))
        s.chop(1);
    if (s.endsWith(QLatin1Char('.')))
        s.chop(1);
    if (s == QLatin1String("-0"))
        s = QStringLiteral("0");
    return s;
}

QString cut(const QString &text)
{
    constexpr int kLongest = 40;
    return text.size() > kLongest ? text.left(kLongest) + QLatin1String("...") : text;
}

QString echoed(const QString &text)
{
    return QLatin1Char('"') + cut(text) + QLatin1Char('"');
}

QJsonValue jsonNumberOrNull(bool present, double value)
{
    return present ? QJsonValue(value) : QJsonValue(QJsonValue::Null);
}

QString linkShort(int link)
{
    return link == 1 ? QStringLiteral("UL") : QStringLiteral("DL");
}

QString linkWord(int link)
{
    return link == 1 ? QStringLiteral("uplink") : QStringLiteral("downlink");
}

QString TextTable::render() const
{
    QList<int> widths;
    for (const QStringList &row : m_rows) {
        for (int c = 0; c < row.size(); ++c) {
            if (c == widths.size())
                widths.append(0);
            widths[c] = std::max(widths[c], int(row[c].size()));
        }
    }
    QString out;
    for (const QStringList &row : m_rows) {
        QString line;
        for (int c = 0; c < row.size(); ++c) {
            if (c > 0)
                line += QLatin1String("  ");
            if (m_right.contains(c))
                line += row[c].rightJustified(widths[c]);
            else
                line += row[c].leftJustified(widths[c]);
        }
        while (line.endsWith(QLatin1Char(' ')))
            line.chop(1);
        out += line + QLatin1Char('\n');
    }
    return out;
}

namespace {
QTextStream *g_libraryDiagnostics = nullptr;
}

void setLibraryDiagnostics(QTextStream *err)
{
    g_libraryDiagnostics = err;
}

void libraryDiagnostic(const QString &text)
{
    if (!g_libraryDiagnostics || text.isEmpty())
        return;
    *g_libraryDiagnostics << text;
    if (!text.endsWith(QLatin1Char('\n')))
        *g_libraryDiagnostics << '\n';
    g_libraryDiagnostics->flush();
}
