#ifndef SAISKUKO_TESTS_TESTSUPPORT_H
#define SAISKUKO_TESTS_TESTSUPPORT_H

#include <saiskuko/saiskuko.h>

#include <QtCore/QStringList>
#include <QtTest/QtTest>

#include <cstring>
#include <initializer_list>
#include <iostream>
#include <memory>
#include <sstream>

// QCOMPARE on doubles is fuzzy; frequencies must match to the last bit.
inline quint64 doubleBits(double value)
{
    quint64 bits;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

#define COMPARE_BITS(actual, expected)                                                      \
    do {                                                                                    \
        const double actual_ = (actual), expected_ = (expected);                            \
        if (doubleBits(actual_) != doubleBits(expected_))                                   \
            QFAIL(qPrintable(QString::asprintf("%s is %.17g, expected %.17g", #actual,      \
                                               actual_, expected_)));                       \
    } while (false)

inline QString str(const char *text)
{
    return QString::fromUtf8(text);
}

// One result as text, a double in as few digits as give back the same bits, so
// that a row of results compares as one string: nums({a, b, c}) == "1 2.5 0".
struct Num
{
    QString text;
    Num(int value) : text(QString::number(value)) {} // a bool too, as 0 or 1
    Num(double value)
    {
        for (int digits = 15; digits <= 17; ++digits)
            if ((text = QString::asprintf("%.*g", digits, value)).toDouble() == value)
                break;
    }
};

inline QString nums(std::initializer_list<Num> values)
{
    QStringList out;
    for (const Num &value : values)
        out.append(value.text);
    return out.join(QLatin1Char(' '));
}

struct LogLine
{
    QtMsgType type;
    QString category, text;
};

// Records every Qt log line and everything written to std::cout while alive,
// so that tests can assert exact diagnostics and that nothing else appears.
class LogCapture
{
public:
    LogCapture()
    {
        lines().clear();
        m_previous = qInstallMessageHandler(&LogCapture::handler);
        m_oldCout = std::cout.rdbuf(m_cout.rdbuf());
    }
    ~LogCapture()
    {
        std::cout.rdbuf(m_oldCout);
        qInstallMessageHandler(m_previous);
    }
    LogCapture(const LogCapture &) = delete;
    LogCapture &operator=(const LogCapture &) = delete;

    QList<LogLine> all() const { return lines(); }
    QStringList texts(QtMsgType type) const
    {
        QStringList out;
        for (const LogLine &line : lines())
            if (line.type == type)
                out.append(line.text);
        return out;
    }
    QStringList warnings() const { return texts(QtWarningMsg); }
    QStringList debugs() const { return texts(QtDebugMsg); }
    std::string standardOutput() const { return m_cout.str(); }
    void clear()
    {
        lines().clear();
        m_cout.str(std::string());
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
        if (!m_cout.str().empty())
            out.append(QLatin1String("out: ") + QString::fromStdString(m_cout.str()));
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

    QtMessageHandler m_previous = nullptr;
    std::ostringstream m_cout;
    std::streambuf *m_oldCout = nullptr;
};

// A private store (the constructor fills in the real band plan) whose banner
// is swallowed; G_CHSTD stays untouched by what a test adds to it.
inline std::unique_ptr<ChBandStore> makeStore()
{
    LogCapture quiet;
    return std::make_unique<ChBandStore>();
}

#endif
