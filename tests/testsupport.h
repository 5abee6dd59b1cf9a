#ifndef SAISKUKO_TESTS_TESTSUPPORT_H
#define SAISKUKO_TESTS_TESTSUPPORT_H

// What the suites share: answers as one string, the library's messages as
// lines, and tables whose rows are one query each with its answer and log.

#include <saiskuko/saiskuko.h>

#include "literalwalks.h"
#include "messagecapture.h"

#include <QtCore/QStringList>
#include <QtCore/QVarLengthArray>
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

template <typename Values>
QString nums(const Values &values)
{
    QStringList out;
    for (const auto &value : values)
        out.append(Num(value).text);
    return out.join(QLatin1Char(' '));
}
inline QString nums(std::initializer_list<Num> values)
{
    return nums<std::initializer_list<Num>>(values);
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

inline QStringList printed(const char *value)
{
    return {QStringLiteral("out: GetChNumFromFreq Not supported value : %1\n").arg(str(value))};
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

// A band table's four columns, one line each.
QString table(const stCHList &t)
{
    return QStringList{t.techList.join(QLatin1Char('|')), t.bandList.join(QLatin1Char('|')),
                       t.chRangeList.join(QLatin1Char('|')), t.freqRangeList.join(QLatin1Char('|'))}
        .join(QLatin1Char('\n'));
}

// A place in a band to ask about: the band by names and by enumerator, a
// link, a channel (also the preferred one) and a frequency.
struct Place
{
    const ChBandStore &s;
    QString tech, band;
    int code, link, ch;
    double mhz;
};

// Numeric answers gathered without touching the heap.
using Answers = QVarLengthArray<double, 64>;

// Every query with a numeric answer by enumerator, then the same by names in
// the same order, then those only the names and the text forms offer.
inline void askByCode(const Place &p, Answers &a)
{
    const ChBandStore &s = p.s;
    const int c = p.code, l = p.link, ch = p.ch;
    a << s.GetNumSubBand(c) << s.GetStartChannelNo(c, l) << s.GetStopChannelNo(c, l)
      << s.GetOffsetChUpDown(c, l, ch) << s.GetChNumFromFreq(c, l, p.mhz, ch)
      << s.GetDefaultIntBW(c) << s.IsUplinkOnly(c) << s.GetStartFreq(c) << s.GetStartFreq(c, l)
      << s.GetStopFreq(c, l) << s.IsExistChannelNo(c, l, ch) << s.GetFreq(c, l, ch);
}

inline void askByNames(const Place &p, Answers &a)
{
    const ChBandStore &s = p.s;
    const QString &t = p.tech, &b = p.band;
    const int l = p.link, ch = p.ch;
    a << s.GetNumSubBand(t, b) << s.GetStartChannelNo(t, b, l) << s.GetStopChannelNo(t, b, l)
      << s.GetOffsetChUpDown(t, b, ch, l) << s.GetChNumFromFreq(t, b, l, p.mhz, ch)
      << s.GetDefaultIntBW(t) << s.IsUplinkOnly(t, b) << s.GetStartFreq(t, b)
      << s.GetStartFreq(t, b, l) << s.GetStopFreq(t, b, l) << s.IsExistChannelNo(t, b, l, ch)
      << s.GetFreq(t, b, l, ch);
}

inline void askNamesOnly(const Place &p, Answers &a)
{
    const ChBandStore &s = p.s;
    const QString &t = p.tech, &b = p.band;
    const int l = p.link, ch = p.ch;
    a << s.GetFreqNoLimit(t, b, l, ch) << s.GetStopChannelNo_InSample(t, b, ch, l)
      << s.GetNumBand(t) << s.CheckChannelStandardIsLTETDD(b) << s.CheckChannelStandardIsTDS(b)
      << s.CheckChannelStandardIsWiMax(b);
}

// Everything the lenient name and text forms answer about a place, texts included.
inline QString answersByNames(const Place &p)
{
    const ChBandStore &s = p.s;
    const QString text = p.tech + QLatin1String(" - ") + p.band;
    const QString dir = p.link ? str("Reverse") : str("Forward");
    Answers a;
    askByNames(p, a);
    askNamesOnly(p, a);
    a << s.GetFreq(text, p.link, p.ch) << s.GetFreq(text, dir, p.ch)
      << s.GetChNumFromFreq(text, p.link, p.mhz, p.ch) << s.GetChNumFromFreq(text, dir, p.mhz, -1)
      << s.GetOffsetChUpDown(text, p.link, p.ch) << s.GetOffsetChUpDown(text, dir, p.ch);
    return QStringList{nums(a), s.GetBandList(p.tech).join(QLatin1Char('/')),
                       s.GetChNumRefString(p.tech, p.band, p.link),
                       s.GetChNumRefString_List(p.tech, p.band, p.link),
                       s.GetFreqRefString_List(p.tech, p.band, p.link)}
        .join(QLatin1String(" | "));
}

template <void (*Ask)(const Place &, Answers &)>
QString answered(const Place &p)
{
    Answers a;
    Ask(p, a);
    return nums(a);
}

// What a query answers about a place, then everything it logged.
template <typename Ask>
QString logged(Ask ask, const Place &p)
{
    LogCapture log;
    const QString answer = ask(p);
    return answer + QLatin1String(" || ") + log.take().join(QLatin1String(" | "));
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
inline const char *g_section = "";         // and the start of their names
inline const ChBandStore *g_own = nullptr; // the suite's private store

// The rows after it ask another call of the same table.
inline void asking(const char *section, Call call)
{
    g_section = section;
    g_call = call;
}

inline void columns(const char *section = "", Call call = nullptr)
{
    asking(section, call);
    QTest::addColumn<Query>("query");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QStringList>("log");
}

inline void row(const char *name, const Query &query, const QString &expected,
                const QStringList &log = {})
{
    QTest::newRow(qPrintable(str(g_section) + str(name))) << query << expected << log;
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
