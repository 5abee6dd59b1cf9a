#ifndef SAISKUKO_TESTS_QUERYTEST_H
#define SAISKUKO_TESTS_QUERYTEST_H

#include "logcapture.h"
#include "testsupport.h"

#include <QtCore/QStringList>

#include <initializer_list>
#include <memory>

inline QString str(const char *text)
{
    return QString::fromUtf8(text);
}

// The warning lines a call must log, each as the library writes it.
inline QStringList warnings(std::initializer_list<const char *> texts)
{
    QStringList out;
    for (const char *text : texts)
        out.append(str(text));
    return out;
}

// Every captured line with its type and category, so that a debug line, a
// warning of another category or an extra line all show up in a comparison.
inline QStringList loggedLines(const LogCapture &capture)
{
    QStringList out;
    for (const LogLine &line : capture.all())
        out.append(QString::number(int(line.type)) + QLatin1Char(' ') + line.category
                   + QLatin1String(": ") + line.text);
    return out;
}

inline QStringList asDefaultWarnings(const QStringList &texts)
{
    QStringList out;
    for (const QString &text : texts)
        out.append(QString::number(int(QtWarningMsg)) + QLatin1String(" default: ") + text);
    return out;
}

// The whole log (Qt lines and standard output) since the last clear().
#define COMPARE_LOG(capture, expectedWarnings, expectedStdout)                               \
    do {                                                                                     \
        QCOMPARE(loggedLines(capture), asDefaultWarnings(expectedWarnings));                 \
        QCOMPARE(QString::fromStdString((capture).standardOutput()), (expectedStdout));     \
    } while (false)

// QTEST for a double column, compared to the last bit.
#define QTEST_BITS(actual, column)                                                           \
    COMPARE_BITS(actual, *static_cast<const double *>(QTest::qElementData(column, QMetaType::Double)))

// A private store (the constructor fills the real band plan) whose banner is
// swallowed; G_CHSTD stays untouched by what a test adds to it.
inline std::unique_ptr<ChBandStore> makeStore()
{
    LogCapture quiet;
    return std::make_unique<ChBandStore>();
}

#endif
