// Text for people: MHz, link words, padded tables; where the library's diagnostics go.
#include "output.h"

#include <algorithm>
#include <cstdio>

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
bool g_libraryDiagnosticsShown = true;
}

void setLibraryDiagnosticsShown(bool shown)
{
    g_libraryDiagnosticsShown = shown;
}

void libraryDiagnostic(const QString &text)
{
    if (!g_libraryDiagnosticsShown || text.isEmpty())
        return;
    QByteArray bytes = text.toUtf8();
    if (!bytes.endsWith('\n'))
        bytes += '\n';
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stderr);
    std::fflush(stderr);
}
