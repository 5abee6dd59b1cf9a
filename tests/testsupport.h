#ifndef SAISKUKO_TESTS_TESTSUPPORT_H
#define SAISKUKO_TESTS_TESTSUPPORT_H

// What the suites share: answers as one string, the library's messages as
// lines, and tables whose rows are one query each with its answer and log.

#include <saiskuko/saiskuko.h>

#include "literalwalks.h"
#include "messagecapture.h"

#include <QtCore/QStringList>
#include <QtTest/QtTest>

#include <cstring>
#include <functional>
#include <initializer_list>
#include <limits>
#include <memory>

const double kNaN = std::numeric_limits<double>::quiet_NaN();
const double kInf = std::numeric_limits<double>::infinity();

inline QString str(const char *text)
{
    return QString::fromUtf8(text);
}

// One result as text, a double in as few digits as give back the same bits, so
// that a row of results compares as one string: nums({a, b, c}) == "1 2.5 0".
struct Num
{
    QString text;
    Num(int value) : text(QString::number(value)) {}       // a bool too, as 0 or 1
    Num(long long value) : text(QString::number(value)) {} // a qsizetype under Qt 6
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

// A private store (the constructor fills in the real band plan) whose banner
// is swallowed; G_CHSTD stays untouched by what a test adds to it.
inline std::unique_ptr<ChBandStore> makeStore()
{
    LogCapture quiet;
    return std::make_unique<ChBandStore>();
}

// The log lines of a warning given `times` times, and of the one line a
// failed frequency-to-channel conversion writes to standard output.
inline QStringList warned(const QString &text, int times = 1)
{
    QStringList out;
    for (int i = 0; i < times; ++i)
        out << QLatin1String("W ") + text;
    return out;
}

inline QStringList printed(std::initializer_list<const char *> values)
{
    QString out;
    for (const char *value : values)
        out += QStringLiteral("GetChNumFromFreq Not supported value : %1\n").arg(str(value));
    return {QLatin1String("out: ") + out};
}

// The debug line of every well-formed GetAvailableChannels call.
inline QStringList counted(int channels)
{
    return {QStringLiteral("D AvailableChannels :  %1").arg(channels)};
}

// Every channel standard of the band plan as (technology slot, band slot).
template <typename Visit>
void forEachBand(const ChBandStore &store, Visit visit)
{
    for (int t = 0; t < ChBandStore::MaxTechnologies; ++t)
        for (int b = 0; b < store.Technologies[t].NumBand; ++b)
            visit(store.Technologies[t], store.Technologies[t].Bands[b], 100 * t + b);
}

// A table row is a query, the text of its answers and everything it logged.
// Rows built from Args run a table-wide call on the global store or on the
// suite's private one (`own`), the names as QStrings; unused arguments stay 0.
using Query = std::function<QString()>;
Q_DECLARE_METATYPE(Query)

struct Args
{
    bool own = false;
    const char *tech = nullptr, *band = nullptr; // or a channel standard and a direction
    int link = 0, channel = 0;                   // the channel doubles as the preferred one
    double mhz = 0.0, high = 0.0;
    int code = 0;
};
using Call = QString (*)(const ChBandStore &, const Args &, const QString &tech,
                         const QString &band);

inline Call g_call;                        // the call of the rows being added
inline const ChBandStore *g_own = nullptr; // the suite's private store

inline void columns(Call call = nullptr)
{
    g_call = call;
    QTest::addColumn<Query>("query");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QStringList>("log");
}

inline void row(const char *name, const Query &query, const QString &expected,
                const QStringList &log = {})
{
    QTest::newRow(name) << query << expected << log;
}

inline void row(const char *name, Args a, const char *expected, const QStringList &log = {})
{
    const Call call = g_call;
    row(
        name, [=] { return call(a.own ? *g_own : G_CHSTD, a, str(a.tech), str(a.band)); },
        str(expected), log);
}

// The body of every table-driven test.
inline void checkRow()
{
    QFETCH(Query, query);
    LogCapture log;
    QTEST(query(), "expected");
    QTEST(log.take(), "log");
}

#endif
