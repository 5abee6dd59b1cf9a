// Text and JSON from one set of rows, numbers and words for people, the diagnostics' sink.
#include "output.h"

#include <QtCore/QJsonArray>
#include <QtCore/QTextStream>
#include <QtCore/QVector>

#include <algorithm>
#include <cmath>

namespace {

QString cellText(const Cell &cell)
{
    if (!cell.text.isNull())
        return cell.text;
    if (cell.json.isDouble())
        return formatMHz(cell.json.toDouble());
    return cell.json.isNull() ? QStringLiteral("-") : cell.json.toString();
}

// Columns padded to their widest line, two blanks apart, no trailing blanks;
// a cell of several lines makes its row as tall. Columns without a header are
// JSON only. @p widths carries the widths from and to an earlier table.
QString table(const QList<Column> &columns, const QList<Row> &rows, QVector<int> &widths)
{
    Row header;
    for (const Column &column : columns)
        header << Cell(QJsonValue(), column.header);
    widths.resize(columns.size());
    QList<QList<QStringList>> cells; // every row's cells as lines, the header first
    for (const Row &row : QList<Row>{header} + rows) {
        cells << QList<QStringList>();
        for (int c = 0; c < columns.size(); ++c) {
            cells.last() << cellText(row[c]).split(QLatin1Char('\n'));
            for (const QString &line : cells.last().last())
                widths[c] = std::max(widths[c], int(line.size()));
        }
    }
    QString out;
    for (const QList<QStringList> &row : cells) {
        int height = 0;
        for (const QStringList &lines : row)
            height = std::max(height, int(lines.size()));
        for (int i = 0; i < height; ++i) {
            QStringList parts;
            for (int c = 0; c < columns.size(); ++c) {
                if (columns[c].header.isEmpty())
                    continue;
                const QString line = row[c].value(i);
                parts << (columns[c].right ? line.rightJustified(widths[c])
                                           : line.leftJustified(widths[c]));
            }
            QString text = parts.join(QLatin1String("  "));
            while (text.endsWith(QLatin1Char(' ')))
                text.chop(1);
            out += text + QLatin1Char('\n');
        }
    }
    return out;
}

} // namespace

QList<Column> columns(std::initializer_list<const char *> descriptions)
{
    QList<Column> list;
    for (const char *description : descriptions) {
        const bool right = description[0] == '>';
        const QStringList parts =
            QString::fromLatin1(description + int(right)).split(QLatin1Char('|'));
        list.append({parts[0], parts.value(1), right});
    }
    return list;
}

QString Outcome::text(QVector<int> *widths) const
{
    if (columns.isEmpty())
        return heading;
    QVector<int> own;
    return (heading.isEmpty() ? QString() : heading + QLatin1Char('\n'))
           + table(columns, rows, widths ? *widths : own);
}

QJsonObject Outcome::result() const
{
    QJsonObject result = json;
    if (rowsKey.isEmpty())
        return result;
    QJsonArray list;
    for (const Row &row : rows) {
        QJsonObject object;
        for (int c = 0; c < columns.size(); ++c) {
            if (!columns[c].key.isEmpty())
                object.insert(columns[c].key, row[c].json);
        }
        list.append(object);
    }
    result.insert(rowsKey, list);
    return result;
}

void Outcome::noResult(const QString &note)
{
    status = ExitNoResult;
    notes << note;
}

QString userText(const QByteArray &bytes)
{
    QString text = QString::fromUtf8(bytes);
    if (!text.contains(QChar(QChar::ReplacementCharacter)))
        return text;
    // A sequence is well formed where it reads back to the same bytes.
    QString kept;
    for (int i = 0, length = 1; i < bytes.size(); i += length) {
        QString piece;
        for (length = 1; length <= 4 && i + length <= bytes.size(); ++length) {
            piece = QString::fromUtf8(bytes.constData() + i, length);
            if (piece.toUtf8() == bytes.mid(i, length))
                break;
        }
        if (length > 4 || i + length > bytes.size()) {
            piece = QChar(0xDC00 + uchar(bytes[i]));
            length = 1;
        }
        kept += piece;
    }
    return kept;
}

QString shown(const QString &text, bool keepNewlines)
{
    QString out;
    out.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const char16_t c = text[i].unicode();
        const bool paired =
            QChar::isHighSurrogate(c)
                ? i + 1 < text.size() && text[i + 1].isLowSurrogate()
                : QChar::isLowSurrogate(c) && i > 0 && text[i - 1].isHighSurrogate();
        if ((c >= 0x20 && c < 0x7F) || (c > 0x9F && !QChar::isSurrogate(c)) || paired
            || (c == '\n' && keepNewlines))
            out += QChar(c);
        else if (c < 0xA0 || (c >= 0xDC80 && c <= 0xDCFF))
            out += QStringLiteral("\\x%1").arg(c & 0xFF, 2, 16, QLatin1Char('0'));
        else
            out += QStringLiteral("\\u%1").arg(int(c), 4, 16, QLatin1Char('0'));
    }
    return out;
}

double decimalMHz(double mhz)
{
    return std::round(mhz * 1e9) / 1e9;
}

QString linkShort(saiskuko::Link link)
{
    return link == saiskuko::Link::Up ? QStringLiteral("UL") : QStringLiteral("DL");
}

namespace {
QTextStream *g_libraryDiagnostics = nullptr;
}

void setLibraryDiagnostics(QTextStream *err)
{
    g_libraryDiagnostics = err;
}

void libraryDiagnostic(QtMsgType, const QMessageLogContext &, const QString &text)
{
    if (!g_libraryDiagnostics || text.isEmpty())
        return;
    *g_libraryDiagnostics << text;
    if (!text.endsWith(QLatin1Char('\n')))
        *g_libraryDiagnostics << '\n';
    g_libraryDiagnostics->flush();
}
