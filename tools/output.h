#ifndef SAISKUKO_TOOLS_OUTPUT_H
#define SAISKUKO_TOOLS_OUTPUT_H

#include <saiskuko/bandplan.h>

#include <QtCore/QJsonObject>
#include <QtCore/QJsonValue>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>

#include <initializer_list>
#include <utility>

// Exit statuses of the program.
enum ExitStatus { ExitOk = 0, ExitNoResult = 1, ExitBadInput = 2, ExitWriteFailed = 3 };

// Bad input, thrown: reported as one line on stderr, exit status 2.
struct BadInput
{
    QString message;
};

// The value of a typed API result, or BadInput with its message.
template <typename T>
T valueOrBadInput(const saiskuko::Result<T> &result)
{
    if (!result.ok())
        throw BadInput{result.error().message};
    return result.value();
}

// A column of a command's rows: its header in the text table and its key in
// the JSON row objects. A column without a header is JSON only, one without
// a key text only.
struct Column
{
    QString header, key;
    bool right = false; // aligned right (numbers)
};

// Columns written "HEADER|key", ">HEADER|key" for one aligned right.
QList<Column> columns(std::initializer_list<const char *> descriptions);

// One cell: its JSON value, and the text shown for it where that is not the
// value itself (null shows "-", a number as formatMHz does, a string as it is).
// Text may hold several lines.
struct Cell
{
    template <typename Value>
    Cell(const Value &value, QString text = QString()) // NOLINT(google-explicit-constructor)
        : json(value), text(std::move(text))
    {}
    QJsonValue json;
    QString text;
};
using Row = QList<Cell>;

// What a command produced: a heading and rows, shown as text for people or
// as one JSON object; the exit status; and notes (the "no result"
// explanations) for stderr.
struct Outcome
{
    Outcome() = default;
    // Rows kept under rowsKey, in columns written as columns() reads them.
    Outcome(const char *rowsKey, std::initializer_list<const char *> columnSpecs)
        : rowsKey(QLatin1String(rowsKey)), columns(::columns(columnSpecs))
    {}

    QString heading;  // the line above the table; without columns, the whole text
    QJsonObject json; // the result's members besides the rows
    QString rowsKey;  // the member holding the rows
    QList<Column> columns;
    QList<Row> rows;
    int status = ExitOk;
    QStringList notes;

    // The heading and the table. Given @p widths, columns are at least as wide
    // as they say and they come back as wide as the table made them, so that
    // tables printed one after another line up.
    QString text(QVector<int> *widths = nullptr) const;
    QJsonObject result() const;
    // A valid query without an answer: exit status 1, and why.
    void noResult(const QString &note);
};

// Frequencies and echoed arguments as the library's own messages show them.
using saiskuko::cut;
using saiskuko::echoed;
using saiskuko::formatMHz;

// A step or an offset as the decimal it stands for (to the millihertz), for
// JSON: 0.005, not 0.005000000000109139. Centres keep their full precision.
double decimalMHz(double mhz);

// Bytes a user gave (an argument, a batch line) as text: UTF-8, each byte
// that is not kept as U+DC80 to U+DCFF, so that shown() can name it.
QString userText(const QByteArray &bytes);
// Text as a terminal may show it: control characters (newlines too, unless
// kept) and the bytes userText() kept as "\xNN", other lone surrogates as
// "\uXXXX". Nothing a user typed moves the cursor or clears the screen.
QString shown(const QString &text, bool keepNewlines = false);

// "UL"/"DL", a link for people.
QString linkShort(saiskuko::Link link);

// The library's own diagnostics (its log lines) go, through the message
// handler libraryDiagnostic, to the error stream given here, or nowhere (the
// default; --verbose shows them).
class QTextStream;
void setLibraryDiagnostics(QTextStream *err);
void libraryDiagnostic(QtMsgType, const QMessageLogContext &, const QString &text);

#endif
