#ifndef SAISKUKO_TOOLS_OUTPUT_H
#define SAISKUKO_TOOLS_OUTPUT_H

#include <QtCore/QJsonObject>
#include <QtCore/QJsonValue>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <stdexcept>

// Exit statuses of the program.
enum ExitStatus { ExitOk = 0, ExitNoResult = 1, ExitBadInput = 2, ExitWriteFailed = 3 };

// Bad input: reported as one line on stderr, exit status 2.
class BadInput : public std::runtime_error
{
public:
    explicit BadInput(const QString &message)
        : std::runtime_error(message.toStdString()), m_message(message)
    {}
    QString message() const { return m_message; }

private:
    QString m_message;
};

// What a command produced: text for people or a JSON document, the exit
// status, and notes (the "no result" explanations) for stderr.
struct Outcome
{
    QString text;
    QJsonObject json;
    int status = ExitOk;
    QStringList notes;
};

// MHz for people: rounded to 1 Hz, trailing zeros dropped. Every raster of
// the band plan is a whole number of Hz, so this shows channel frequencies
// exactly while hiding the binary noise of the formulas (2140.2000000000003).
QString formatMHz(double mhz);

// An argument echoed in a message: cut to a length a message can carry, and
// quoted (echoed).
QString cut(const QString &text);
QString echoed(const QString &text);

// A number for JSON, or null for "not in band".
QJsonValue jsonNumberOrNull(bool present, double value);

// "UL"/"DL" for text, "uplink"/"downlink" for JSON; link 1 is uplink.
QString linkShort(int link);
QString linkWord(int link);

// The library's own diagnostics (its log lines) go to the error stream given
// here, or nowhere (the default; --verbose shows them).
class QTextStream;
void setLibraryDiagnostics(QTextStream *err);
void libraryDiagnostic(const QString &text);

// Columns padded to their widest cell, two blanks apart, no trailing blanks.
class TextTable
{
public:
    explicit TextTable(const QStringList &header) : m_rows({header}) {}
    void addRow(const QStringList &row) { m_rows.append(row); }
    void alignRight(int column) { m_right.append(column); }
    int rowCount() const { return m_rows.size() - 1; }
    QString render() const;

private:
    QList<QStringList> m_rows;
    QList<int> m_right;
};

#endif
