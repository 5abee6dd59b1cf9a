#ifndef SAISKUKO_TESTS_TESTSUPPORT_H
#define SAISKUKO_TESTS_TESTSUPPORT_H

#include <saiskuko/saiskuko.h>

#include "messagecapture.h"

#include <QtCore/QStringList>
#include <QtTest/QtTest>

#include <cstring>
#include <initializer_list>
#include <memory>

// QCOMPARE on doubles is fuzzy; frequencies must match to the last bit.
inline quint64 doubleBits(double value)
{
    quint64 bits;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

#define COMPARE_BITS(actual, expected)                                                             \
    do {                                                                                           \
        const double actual_ = (actual), expected_ = (expected);                                   \
        if (doubleBits(actual_) != doubleBits(expected_))                                          \
            QFAIL(qPrintable(                                                                      \
                QString::asprintf("%s is %.17g, expected %.17g", #actual, actual_, expected_)));   \
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

// A private store (the constructor fills in the real band plan) whose banner
// is swallowed; G_CHSTD stays untouched by what a test adds to it.
inline std::unique_ptr<ChBandStore> makeStore()
{
    LogCapture quiet;
    return std::make_unique<ChBandStore>();
}

#endif
