// Runs the installed saiskuko program (path in SAISKUKO_CLI) on real queries.

#include <saiskuko/saiskuko_version.h>

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtTest/QtTest>

namespace {

struct Run
{
    int status = -1;
    QString out, err;
};

// Arguments split at blanks, or at '|' where one holds a blank.
Run saiskuko(const char *line, const char *extra = nullptr)
{
    const QString text = QString::fromUtf8(line);
    QStringList arguments = text.split(QLatin1Char(text.contains(QLatin1Char('|')) ? '|' : ' '));
    if (extra)
        arguments << QString::fromUtf8(extra);
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(
        QStringLiteral("LD_LIBRARY_PATH")); // only the installed layout may supply the library
    process.setProcessEnvironment(environment);
    process.start(qEnvironmentVariable("SAISKUKO_CLI"), arguments);
    Run run;
    if (process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit)
        run = {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
               QString::fromUtf8(process.readAllStandardError())};
    return run;
}

} // namespace

class TestCli : public QObject
{
    Q_OBJECT

private slots:
    void exactOutput_data()
    {
        QTest::addColumn<QString>("arguments");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const char *arguments, const char *expected) {
            QTest::newRow(name) << QString::fromUtf8(arguments) << QString::fromUtf8(expected);
        };
        // Three ways of naming one band answer alike.
        const char *band1 =
            "LTE-FDD - Band 1 (2100) [201]\nCHANNEL  UL MHZ  DL MHZ\n300      -       2140\n"
            "18300    1950    -\n";
        row("freq short form", "-q freq LTE:1 300 18300", band1);
        row("freq code", "-q freq 201 300 18300", band1);
        row("freq channel standard", "-q|freq|LTE-FDD - Band 1 (2100)|300|18300", band1);
        // 2140.2 is not the double the formula yields; it must still convert.
        row("channel from a decimal", "-q channel WCDMA:1 2140.2",
            "WCDMA - Band 1 (2100-General) [501]\nMHZ     UL CHANNEL  DL CHANNEL\n2140.2  -        "
            "   10701\n");
        // 1950 MHz downlink is channel 800 of band 2 and 8240 of band 25.
        row("preferred kept", "-q channel FDD:global 1950 --dl --preferred 8240",
            "LTE-FDD - Band Global [200]\nMHZ   DL CHANNEL\n1950  8240\n");
        row("search, nearest first", "-q search 1842.5",
            "MHZ     CODE  TECH     BAND                   DIR  CHANNEL  CHANNEL MHZ  OFFSET MHZ\n"
            "1842.5     4  CDMA     Band 4 (KR PCS)        DL        50  1842.5       0\n"
            "1842.5     8  CDMA     Band 8 (1800)          DL       750  1842.5       0\n"
            "1842.5   203  LTE-FDD  Band 3 (1800)          DL      1575  1842.5       0\n"
            "1842.5   703  5G NR    Band n3 (1800)         DL    368500  1842.5       0\n"
            "1842.5   107  GSM      DCS 1800               DL       698  1842.4       -0.1\n"
            "1842.5   504  WCDMA    Band 3 (1800-General)  DL      1337  1842.4       -0.1\n");
        row("which, every overlapping band", "-q which 630000",
            "CODE  TECH   BAND                DIR  MHZ\n 723  5G NR  Band n77 (TD 3700)  DL   "
            "3450\n"
            " 724  5G NR  Band n78 (TD 3500)  DL   3450\n");
        row("version", "-q --version", "saiskuko " SAISKUKO_VERSION_STR "\n");
    }

    void exactOutput()
    {
        QFETCH(QString, arguments);
        const Run run = saiskuko(qPrintable(arguments));
        QTEST(run.out, "expected");
        QCOMPARE(run.err, QString());
        QCOMPARE(run.status, 0);
    }

    // Bad input exits with 2, a valid query without result with 1: one line on
    // stderr naming the fault, nothing on stdout, also with --json.
    void failure_data()
    {
        QTest::addColumn<QString>("arguments");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("message");
        const auto row = [](const char *arguments, int status, const char *message) {
            QTest::newRow(arguments)
                << QString::fromUtf8(arguments) << status << QString::fromUtf8(message);
        };
        row("-q", 2, "no command given");
        row("-q frequency LTE:1 300", 2, "unknown command \"frequency\"");
        row("-q freq LTE:1", 2, "freq takes more");
        row("-q freq LTE:1 30x", 2, "channel \"30x\" is not a whole number");
        row("-q freq LTX:1 300", 2, "unknown technology \"LTX\"");
        row("-q freq GSM:900 1", 2,
            "it matches: GSM - P-GSM 900 [103], GSM - E-GSM 900 [104], GSM - R-GSM 900 [105], "
            "GSM - R-GSM 900 (China) [106]");
        row("-q freq 238 1", 2, "no band has code 238");
        row("-q|freq|LTE-FDD - band 1 (2100)|300", 2, "LTE-FDD has no band \"band 1 (2100)\"");
        row("-q search 100000", 1, "no band holds 100000 MHz");
        row("-q freq LTE:1 600", 1, "channel 600 is not in");
        row("-q channel LTE:1 2140.05", 1, "2140.05 MHz is not a channel centre");
        row("-q table 2", 1, "mode 2 has no band table");
    }

    void failure()
    {
        QFETCH(QString, arguments);
        QFETCH(QString, message);
        for (const char *json : {static_cast<const char *>(nullptr), "--json"}) {
            const Run run = saiskuko(qPrintable(arguments), json);
            QTEST(run.status, "status");
            QVERIFY2(run.err.startsWith(QLatin1String("saiskuko: "))
                         && run.err.count(QLatin1Char('\n')) == 1 && run.err.contains(message),
                     qPrintable(run.err));
            if (!json || run.status == 2)
                QCOMPARE(run.out, QString());
            else // a query without result still gives a JSON document
                QVERIFY(QJsonDocument::fromJson(run.out.toUtf8()).isObject());
        }
    }

    void libraryOutputGoesToStderr()
    {
        const Run loud = saiskuko("channel LTE:1 2140.05");
        QCOMPARE(loud.out, QString());
        QVERIFY2(loud.err.contains(QLatin1String("Version :  " SAISKUKO_VERSION_STR))
                     && loud.err.contains(
                         QLatin1String("GetChNumFromFreq Not supported value : 2140.05")),
                 qPrintable(loud.err));
        QCOMPARE(saiskuko("--quiet channel LTE:1 2140.05").err.count(QLatin1Char('\n')), 1);
    }

    // The JSON answer carries what the text table shows, "-" as null.
    void jsonCarriesTheTextValues()
    {
        QStringList text, json;
        for (const QString &line :
             saiskuko("-q freq LTE:1 300 18300 599 600").out.split(QLatin1Char('\n')).mid(2))
            text << line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        const QByteArray answer = saiskuko("-q freq LTE:1 300 18300 599 600 --json").out.toUtf8();
        for (const QJsonValue &result :
             QJsonDocument::fromJson(answer)[QLatin1String("results")].toArray())
            for (const char *key : {"channel", "uplink", "downlink"})
                json << (result[QLatin1String(key)].isNull()
                             ? QStringLiteral("-")
                             : QString::number(result[QLatin1String(key)].toDouble(), 'g', 12));
        QCOMPARE(json, text);
        QCOMPARE(text.join(QLatin1Char(' ')),
                 QStringLiteral("300 - 2140 18300 1950 - 599 - 2169.9 600 - -"));
    }
};

QTEST_GUILESS_MAIN(TestCli)
#include "tst_cli.moc"
