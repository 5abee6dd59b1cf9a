// Runs the installed saiskuko program (path in SAISKUKO_CLI) on real queries.

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtCore/QProcessEnvironment>
#include <QtCore/QRegularExpression>
#include <QtTest/QtTest>

namespace {

struct Run
{
    int status = -1;
    QString out;
    QString err;
};

Run saiskuko(const QStringList &arguments)
{
    QProcess process;
    // Only the installed layout may supply the library.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("LD_LIBRARY_PATH"));
    process.setProcessEnvironment(environment);
    process.start(qEnvironmentVariable("SAISKUKO_CLI"), arguments);
    Run run;
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
        return run;
    run.status = process.exitCode();
    run.out = QString::fromUtf8(process.readAllStandardOutput());
    run.err = QString::fromUtf8(process.readAllStandardError());
    return run;
}

QStringList args(const char *line)
{
    return QString::fromUtf8(line).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

QString lines(std::initializer_list<const char *> text)
{
    QString out;
    for (const char *line : text)
        out += QString::fromUtf8(line) + QLatin1Char('\n');
    return out;
}

// A text table's data rows split at runs of two or more blanks.
QList<QStringList> rows(const QString &text, int skip)
{
    QList<QStringList> out;
    const QStringList all = text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (int i = skip; i < all.size(); ++i)
        out << all[i].trimmed().split(QRegularExpression(QStringLiteral("\\s{2,}")));
    return out;
}

void compareMHz(const QString &cell, const QJsonValue &value)
{
    if (cell == QLatin1String("-")) {
        QVERIFY2(value.isNull(), qPrintable(cell));
        return;
    }
    bool ok = false;
    const double shown = cell.toDouble(&ok);
    QVERIFY2(ok && value.isDouble(), qPrintable(cell));
    QVERIFY2(qAbs(shown - value.toDouble()) <= 5e-7, qPrintable(cell));
}

} // namespace

class TestCli : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        const QString path = qEnvironmentVariable("SAISKUKO_CLI");
        QVERIFY2(QFileInfo(path).isExecutable(), qPrintable(path));
    }

    void exactOutput_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("expected");

        const QString band1 = lines({"LTE-FDD - Band 1 (2100) [201]",
                                     "CHANNEL  UL MHZ  DL MHZ",
                                     "300      -       2140",
                                     "18300    1950    -"});
        // Three ways of naming one band answer alike.
        QTest::newRow("freq short form") << args("-q freq LTE:1 300 18300") << band1;
        QTest::newRow("freq code") << args("-q freq 201 300 18300") << band1;
        QTest::newRow("freq channel standard")
            << QStringList{QStringLiteral("-q"), QStringLiteral("freq"),
                           QStringLiteral("LTE-FDD - Band 1 (2100)"), QStringLiteral("300"),
                           QStringLiteral("18300")}
            << band1;
        QTest::newRow("freq at the band edges, 5 kHz raster")
            << args("-q freq NR:n78 620000 653333 653334")
            << lines({"5G NR - Band n78 (TD 3500) [724]", "CHANNEL  DL MHZ", "620000   3300",
                      "653333   3799.995", "653334   -"});
        // 2140.2 is not the double the formula yields; it must still convert.
        QTest::newRow("channel from a decimal") << args("-q channel WCDMA:1 2140.2")
            << lines({"WCDMA - Band 1 (2100-General) [501]", "MHZ     UL CHANNEL  DL CHANNEL",
                      "2140.2  -           10701"});
        // 1950 MHz downlink is channel 800 of band 2 and 8240 of band 25.
        QTest::newRow("channel, first candidate") << args("-q channel FDD:global 1950 --dl")
            << lines({"LTE-FDD - Band Global [200]", "MHZ   DL CHANNEL", "1950  800"});
        QTest::newRow("channel, preferred kept")
            << args("-q channel FDD:global 1950 --dl --preferred 8240")
            << lines({"LTE-FDD - Band Global [200]", "MHZ   DL CHANNEL", "1950  8240"});
        QTest::newRow("channel, preferred not a candidate")
            << args("-q channel FDD:global 1950 --dl --preferred 8241")
            << lines({"LTE-FDD - Band Global [200]", "MHZ   DL CHANNEL", "1950  800"});
        QTest::newRow("search, nearest first") << args("-q search 1842.5")
            << lines({"MHZ     CODE  TECH     BAND                   DIR  CHANNEL  CHANNEL MHZ  OFFSET MHZ",
                      "1842.5     4  CDMA     Band 4 (KR PCS)        DL        50  1842.5       0",
                      "1842.5     8  CDMA     Band 8 (1800)          DL       750  1842.5       0",
                      "1842.5   203  LTE-FDD  Band 3 (1800)          DL      1575  1842.5       0",
                      "1842.5   703  5G NR    Band n3 (1800)         DL    368500  1842.5       0",
                      "1842.5   107  GSM      DCS 1800               DL       698  1842.4       -0.1",
                      "1842.5   504  WCDMA    Band 3 (1800-General)  DL      1337  1842.4       -0.1"});
        QTest::newRow("which, every overlapping band") << args("-q which 630000")
            << lines({"CODE  TECH   BAND                DIR  MHZ",
                      " 723  5G NR  Band n77 (TD 3700)  DL   3450",
                      " 724  5G NR  Band n78 (TD 3500)  DL   3450"});
        // E-GSM 900's uplink has two channel ranges; both count.
        QTest::newRow("channels in two ranges") << args("-q channels GSM:e900 880 890.2")
            << lines({"GSM - E-GSM 900 [104], 880 to 890.2 MHz",
                      "DIR  FIRST  LAST  COUNT  FIRST MHZ  LAST MHZ",
                      "UL       0     1      2  890        890.2",
                      "UL     975  1023     49  880.2      889.8"});
        QTest::newRow("table of the GSM mode") << args("-q table 6")
            << lines({"TECH  BAND               CHANNELS      MHZ",
                      "GSM   GSM 450            (259 - 293)   (460.60 - 467.40)",
                      "GSM   GSM 480            (306 - 340)   (489.00 - 495.80)",
                      "GSM   GSM 850            (128 - 251)   (869.20 - 893.80)",
                      "GSM   P-GSM 900          (1 - 124)     (935.20 - 959.80)",
                      "GSM   E-GSM 900          (0 - 124)     (935.00 - 959.80)",
                      "                         (975 - 1023)  (925.20 - 934.80)",
                      "GSM   R-GSM 900          (0 - 124)     (935.00 - 959.80)",
                      "                         (955 - 1023)  (921.20 - 934.80)",
                      "GSM   R-GSM 900 (China)  (999 - 1019)  (930.00 - 934.00)",
                      "GSM   DCS 1800           (512 - 885)   (1805.20 - 1879.80)",
                      "GSM   PCS 1900           (512 - 810)   (1930.20 - 1989.80)"});
        QTest::newRow("bands of TD-SCDMA") << args("-q bands TDS")
            << lines({"CODE  BAND   UL CHANNELS  UL MHZ     DL CHANNELS  DL MHZ     RECORDS  UL ONLY",
                      " 400  FBN 0  0-92         1785-1805  0-92         1785-1805        2  yes",
                      " 401  FBN 1  0-92         1900-1920  0-92         1900-1920        2  yes",
                      " 402  FBN 2  0-255        1920-1980  0-255        1920-1980        2  yes",
                      " 403  FBN 3  0-36         1920-1980  0-36         1920-1980        2  yes",
                      " 404  FBN 4  0-142        1980-2010  0-142        1980-2010        2  yes",
                      " 405  FBN 5  0-67         2010-2025  0-67         2010-2025        2  yes",
                      " 406  FBN 6  0-255        2100-2170  0-255        2100-2170        2  yes",
                      " 407  FBN 7  0-36         2100-2170  0-36         2100-2170        2  yes",
                      " 408  FBN 8  0-242        2170-2220  0-242        2170-2220        2  yes"});
        QTest::newRow("techs") << args("-q techs")
            << lines({"SLOT  TECH      BANDS  INT BW HZ  SHORT",
                      "   0  CDMA         11    1230000  -",
                      "   1  GSM           9     300000  -",
                      "   2  LTE-FDD      38   10000000  fdd,lte",
                      "   3  LTE-TDD      17   10000000  tdd,lte",
                      "   4  TD-SCDMA      9    1280000  tds",
                      "   5  WCDMA        33    3840000  umts",
                      "   6  WIMAX        19   10000000  -",
                      "   7  5G NR        36    1000000  nr,5g"});
        QTest::newRow("version") << args("-q --version") << lines({"saiskuko 1.0.1"});
    }

    void exactOutput()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, expected);
        const Run run = saiskuko(arguments);
        QCOMPARE(run.out, expected);
        QCOMPARE(run.status, 0);
        QCOMPARE(run.err, QString());
    }

    // Bad input: one line on stderr naming the fault, nothing on stdout, 2.
    void badInput_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("message");
        QTest::newRow("no command") << args("-q") << QStringLiteral("no command given");
        QTest::newRow("unknown command") << args("-q frequency LTE:1 300")
                                         << QStringLiteral("unknown command \"frequency\"");
        QTest::newRow("missing channel") << args("-q freq LTE:1") << QStringLiteral("freq takes more");
        QTest::newRow("surplus argument") << args("-q which 1 2") << QStringLiteral("which takes fewer");
        QTest::newRow("channel not a number") << args("-q freq LTE:1 30x")
                                              << QStringLiteral("channel \"30x\" is not a whole number");
        QTest::newRow("frequency not a number") << args("-q search 1842,5")
                                                << QStringLiteral("\"1842,5\" is not a number of MHz");
        QTest::newRow("frequency not finite") << args("-q search inf") << QStringLiteral("\"inf\"");
        QTest::newRow("unknown option") << args("-q freq LTE:1 -300") << QStringLiteral("Unknown option");
        QTest::newRow("unknown technology") << args("-q freq LTX:1 300")
                                            << QStringLiteral("unknown technology \"LTX\"");
        QTest::newRow("unknown band lists the bands") << args("-q freq LTE:16 300")
                                                      << QStringLiteral("LTE-FDD - Band 17 (700)");
        QTest::newRow("GSM 900 is four bands") << args("-q freq GSM:900 1")
            << QStringLiteral("it matches: GSM - P-GSM 900 [103], GSM - E-GSM 900 [104], "
                              "GSM - R-GSM 900 [105], GSM - R-GSM 900 (China) [106]");
        QTest::newRow("LTE global is two bands") << args("-q freq LTE:global 300")
            << QStringLiteral("LTE-FDD - Band Global [200], LTE-TDD - Band Global [300]");
        QTest::newRow("WCDMA 2 is two bands") << args("-q freq WCDMA:2 9700")
            << QStringLiteral("[502], WCDMA - Band 2 (1900-Additional) [503]");
        QTest::newRow("code of no band") << args("-q freq 238 1") << QStringLiteral("no band has code 238");
        QTest::newRow("channel standard is exact")
            << QStringList{QStringLiteral("-q"), QStringLiteral("freq"),
                           QStringLiteral("LTE-FDD - band 1 (2100)"), QStringLiteral("300")}
            << QStringLiteral("LTE-FDD has no band \"band 1 (2100)\"");
        QTest::newRow("technology of two") << args("-q bands lte")
                                           << QStringLiteral("it matches: LTE-FDD, LTE-TDD");
        QTest::newRow("option of another command") << args("-q freq LTE:1 300 --link 1")
                                                   << QStringLiteral("freq does not take --link");
        QTest::newRow("link out of range") << args("-q table 13 --link 2") << QStringLiteral("--link \"2\"");
        QTest::newRow("mode out of range") << args("-q table 24") << QStringLiteral("mode \"24\"");
        QTest::newRow("empty window") << args("-q channels LTE:1 2145 2140")
                                      << QStringLiteral("LOW exceeds HIGH");
        QTest::newRow("json does not hide errors") << args("-q --json freq LTE:99 1")
                                                   << QStringLiteral("has no band \"99\"");
    }

    void badInput()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, message);
        const Run run = saiskuko(arguments);
        QCOMPARE(run.status, 2);
        QCOMPARE(run.out, QString());
        QVERIFY2(run.err.startsWith(QLatin1String("saiskuko: ")), qPrintable(run.err));
        QCOMPARE(run.err.count(QLatin1Char('\n')), 1);
        QVERIFY2(run.err.contains(message), qPrintable(run.err));
    }

    // A valid query without result: said on stderr, nothing on stdout, 1.
    void noResult_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("message");
        QTest::newRow("frequency in no band") << args("-q search 100000")
                                              << QStringLiteral("no band holds 100000 MHz");
        QTest::newRow("placeholder is no band") << args("-q search 1")
                                                << QStringLiteral("no band holds 1 MHz");
        QTest::newRow("channel outside the band") << args("-q freq LTE:1 600")
                                                  << QStringLiteral("channel 600 is not in");
        QTest::newRow("missing direction") << args("-q freq LTE:29 1 --ul")
                                           << QStringLiteral("channel 1 is not in");
        QTest::newRow("off the raster") << args("-q channel LTE:1 2140.05")
                                        << QStringLiteral("2140.05 MHz is not a channel centre");
        QTest::newRow("channel of no band") << args("-q which 99999999")
                                            << QStringLiteral("no band has a channel 99999999");
        QTest::newRow("empty window") << args("-q channels LTE:1 100 200")
                                      << QStringLiteral("no channel of LTE-FDD - Band 1 (2100)");
        QTest::newRow("mode without table") << args("-q table 2")
                                            << QStringLiteral("mode 2 has no band table");
    }

    void noResult()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, message);
        const Run run = saiskuko(arguments);
        QCOMPARE(run.status, 1);
        QCOMPARE(run.out, QString());
        QVERIFY2(run.err.contains(message), qPrintable(run.err));

        const Run json = saiskuko(arguments << QStringLiteral("--json"));
        QCOMPARE(json.status, 1);
        QVERIFY(QJsonDocument::fromJson(json.out.toUtf8()).isObject());
    }

    void libraryOutputGoesToStderr()
    {
        const Run loud = saiskuko(args("channel LTE:1 2140.05"));
        QCOMPARE(loud.out, QString());
        QVERIFY2(loud.err.contains(QLatin1String("Version :  1.0.1")), qPrintable(loud.err));
        QVERIFY2(loud.err.contains(QLatin1String("GetChNumFromFreq Not supported value : 2140.05")),
                 qPrintable(loud.err));

        const Run quiet = saiskuko(args("--quiet channel LTE:1 2140.05"));
        QCOMPARE(quiet.err.count(QLatin1Char('\n')), 1); // only the program's own line
        QVERIFY(!quiet.err.contains(QLatin1String("GetChNumFromFreq")));
    }

    void jsonCarriesTheTextValues()
    {
        // freq: per channel, each direction's MHz or null for "-".
        const QStringList freq = args("-q freq LTE:1 300 18300 599 600");
        const QList<QStringList> freqRows = rows(saiskuko(freq).out, 2);
        const QJsonArray freqJson = QJsonDocument::fromJson(
            saiskuko(QStringList(freq) << QStringLiteral("--json")).out.toUtf8())
                                        .object().value(QStringLiteral("results")).toArray();
        QCOMPARE(freqJson.size(), 4);
        QCOMPARE(freqRows.size(), 4);
        QCOMPARE(freqRows[3], args("600 - -")); // in neither direction
        for (int i = 0; i < freqRows.size(); ++i) {
            const QJsonObject result = freqJson[i].toObject();
            QCOMPARE(QString::number(result.value(QStringLiteral("channel")).toInt()), freqRows[i][0]);
            compareMHz(freqRows[i][1], result.value(QStringLiteral("uplink")));
            compareMHz(freqRows[i][2], result.value(QStringLiteral("downlink")));
        }

        // search: the same hits in the same order, offsets included.
        const QStringList search = args("-q search 1842.53 835");
        const QList<QStringList> searchRows = rows(saiskuko(search).out, 1);
        const QJsonArray searchJson = QJsonDocument::fromJson(
            saiskuko(QStringList(search) << QStringLiteral("--json")).out.toUtf8())
                                          .object().value(QStringLiteral("results")).toArray();
        int row = 0;
        for (const QJsonValue &result : searchJson) {
            for (const QJsonValue &value : result.toObject().value(QStringLiteral("hits")).toArray()) {
                const QJsonObject hit = value.toObject();
                QVERIFY(row < searchRows.size());
                const QStringList &cells = searchRows[row++];
                compareMHz(cells[0], result.toObject().value(QStringLiteral("mhz")));
                QCOMPARE(cells[1], QString::number(hit.value(QStringLiteral("code")).toInt()));
                QCOMPARE(cells[3], hit.value(QStringLiteral("band")).toString());
                QCOMPARE(cells[4], hit.value(QStringLiteral("direction")).toString()
                                           == QLatin1String("uplink") ? QStringLiteral("UL")
                                                                      : QStringLiteral("DL"));
                QCOMPARE(cells[5], QString::number(hit.value(QStringLiteral("channel")).toInt()));
                compareMHz(cells[6], hit.value(QStringLiteral("channelMHz")));
                compareMHz(cells[7], hit.value(QStringLiteral("offsetMHz")));
            }
        }
        QCOMPARE(row, searchRows.size());
        QVERIFY(row > 10);
    }

    // A GSM ARFCN of DCS 1800 is also one of PCS 1900: both must be named.
    void whichShowsEveryMatch()
    {
        const QList<QStringList> text = rows(saiskuko(args("-q which 600")).out, 1);
        const QJsonArray json = QJsonDocument::fromJson(
            saiskuko(args("-q which 600 --json")).out.toUtf8())
                                    .object().value(QStringLiteral("matches")).toArray();
        QCOMPARE(json.size(), text.size());
        QStringList gsm;
        for (int i = 0; i < json.size(); ++i) {
            const QJsonObject match = json[i].toObject();
            QCOMPARE(text[i][0], QString::number(match.value(QStringLiteral("code")).toInt()));
            compareMHz(text[i][4], match.value(QStringLiteral("mhz")));
            if (match.value(QStringLiteral("technology")).toString() == QLatin1String("GSM"))
                gsm << text[i][2] + QLatin1Char(' ') + text[i][3] + QLatin1Char(' ') + text[i][4];
        }
        QCOMPARE(gsm, (QStringList{QStringLiteral("DCS 1800 UL 1727.8"),
                                   QStringLiteral("DCS 1800 DL 1822.8"),
                                   QStringLiteral("PCS 1900 UL 1867.8"),
                                   QStringLiteral("PCS 1900 DL 1947.8")}));
    }
};

QTEST_GUILESS_MAIN(TestCli)
#include "tst_cli.moc"
