#ifndef SAISKUKO_SUPPORT_MESSAGECAPTURE_H
#define SAISKUKO_SUPPORT_MESSAGECAPTURE_H

// Holds what the library writes (its Qt log lines and its one standard-output
// line) away from the caller's own output: kept for inspection, or dropped.

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QtGlobal>

#include <iostream>
#include <sstream>
#include <streambuf>

// Redirects std::cout into a buffer for as long as it lives.
class StandardOutputCapture
{
public:
    StandardOutputCapture() : m_old(std::cout.rdbuf(m_buffer.rdbuf())) {}
    ~StandardOutputCapture() { std::cout.rdbuf(m_old); }
    StandardOutputCapture(const StandardOutputCapture &) = delete;
    StandardOutputCapture &operator=(const StandardOutputCapture &) = delete;

    QString text() const { return QString::fromStdString(m_buffer.str()); }
    void clear() { m_buffer.str(std::string()); }

private:
    std::ostringstream m_buffer;
    std::streambuf *m_old;
};

struct LogLine
{
    QtMsgType type;
    QString category, text;
};

// Records every Qt log line and everything written to std::cout while alive,
// so that exact diagnostics can be asserted, and nothing else appears.
class LogCapture
{
public:
    LogCapture() : m_previous(qInstallMessageHandler(&LogCapture::handler)) { lines().clear(); }
    ~LogCapture() { qInstallMessageHandler(m_previous); }
    LogCapture(const LogCapture &) = delete;
    LogCapture &operator=(const LogCapture &) = delete;

    void clear()
    {
        lines().clear();
        m_cout.clear();
    }

    // Everything since the last clear, then clears: "W text" for a warning of
    // the default category ("W[cat] text" otherwise; D debug, I info, C
    // critical), and the standard output last as "out: text".
    QStringList take()
    {
        QStringList out;
        for (const LogLine &line : lines())
            out.append(QLatin1Char("DWCFI"[line.type])
                       + (line.category == QLatin1String("default")
                              ? QString()
                              : QLatin1Char('[') + line.category + QLatin1Char(']'))
                       + QLatin1Char(' ') + line.text);
        if (!m_cout.text().isEmpty())
            out.append(QLatin1String("out: ") + m_cout.text());
        clear();
        return out;
    }

private:
    static QList<LogLine> &lines()
    {
        static QList<LogLine> captured;
        return captured;
    }
    static void handler(QtMsgType type, const QMessageLogContext &context, const QString &text)
    {
        lines().append({type, QString::fromLatin1(context.category ? context.category : ""), text});
    }

    QtMessageHandler m_previous;
    StandardOutputCapture m_cout;
};

// Drops everything the library writes while alive; cheap enough for loops
// that make it complain millions of times.
class QuietLibrary
{
public:
    QuietLibrary()
        : m_previous(
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {})),
          m_old(std::cout.rdbuf(&m_sink))
    {}
    ~QuietLibrary()
    {
        std::cout.rdbuf(m_old);
        qInstallMessageHandler(m_previous);
    }
    QuietLibrary(const QuietLibrary &) = delete;
    QuietLibrary &operator=(const QuietLibrary &) = delete;

private:
    struct NullBuffer : std::streambuf
    {
        int_type overflow(int_type c) override { return traits_type::not_eof(c); }
    };
    QtMessageHandler m_previous;
    NullBuffer m_sink;
    std::streambuf *m_old;
};

#endif
