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

// Arguments split at blanks, or at '|' where one holds a blank; input is fed
// to standard input, and stdout goes to outputFile when one is given.
Run saiskuko(const QString &line, const QByteArray &input = {}, const QString &outputFile = {})
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // Only the installed layout may supply the library.
    environment.remove(QStringLiteral("LD_LIBRARY_PATH"));
    process.setProcessEnvironment(environment);
    if (!outputFile.isEmpty())
        process.setStandardOutputFile(outputFile);
    process.start(qEnvironmentVariable("SAISKUKO_CLI"),
                  line.split(QLatin1Char(line.contains(QLatin1Char('|')) ? '|' : ' ')));
    process.write(input);
    process.closeWriteChannel();
    Run run;
    if (process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit)
        run = {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
               QString::fromUtf8(process.readAllStandardError())};
    return run;
}

QString installedPath(const char *path)
{
    return QFileInfo(qEnvironmentVariable("SAISKUKO_CLI")).path() + QLatin1String("/../share/")
           + QLatin1String(path);
}

QString installed(const char *path)
{
    QFile file(installedPath(path));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

class TestCli : public QObject
{
    Q_OBJECT

private slots:
    // Exact stdout and exit status; stderr holds the message (nothing when empty).
    void answers_data()
    {
        QTest::addColumn<QString>("arguments");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("out");
        QTest::addColumn<QString>("err");
        const auto row = [](const char *arguments, int status, const char *out,
                            const char *err = "") {
            QTest::newRow(arguments) << QString::fromUtf8(arguments) << status
                                     << QString::fromUtf8(out) << QString::fromUtf8(err);
        };
        // The band named as the library reads names (its own test covers the forms).
        const char *band1 = "LTE-FDD - Band 1 (2100) [201]\nCHANNEL  UL MHZ  DL MHZ  PAIRED\n"
                            "300      -       2140    UL 18300 1950\n";
        row("freq LTE:1 300", 0, band1); // quiet unless verbose
        row("--verbose freq LTE:1 300", 0, band1, "Version :  " SAISKUKO_VERSION_STR);
        row("-q freq LTE:1 300", 0, band1);
        row("band N78", 0,
            "5G NR - Band n78 (TD 3500) [724]\nDIR  CHANNELS       EDGES MHZ  FIRST MHZ  LAST "
            "MHZ  STEP MHZ  DUPLEX  PAIR OFFSET\nDL   620000-653333  3300-3800  3300       "
            "3799.995  0.015     TDD               -\n");
        // A TDD band shares its channels between the directions in every command.
        row("channels NR:n78 3400 3400.02 --ul", 0,
            "5G NR - Band n78 (TD 3500) [724], 3400 to 3400.02 MHz\nDIR   FIRST    LAST  COUNT  "
            "FIRST MHZ  LAST MHZ\nUL   626667  626668      2  3400.005   3400.02\n");
        row("which 630000 --ul", 0,
            "CHANNEL  CODE  TECH   BAND                DIR  MHZ\n 630000   723  5G NR  Band n77 "
            "(TD 3700)  UL   3450\n 630000   724  5G NR  Band n78 (TD 3500)  UL   3450\n");
        row("search 2010 --ul", 0,
            "MHZ   CODE  TECH      BAND                DIR  CHANNEL  CHANNEL MHZ  OFFSET MHZ\n"
            "2010   220  LTE-FDD   Band 23 (2100)      UL     25600  2010         0\n"
            "2010   302  LTE-TDD   Band 34 (2010)      UL     36200  2010         0\n"
            "2010   711  5G NR     Band n34 (TD 2000)  UL    402000  2010         0\n"
            "2010   230  LTE-FDD   Band 65 (2100)      UL    131971  2009.9       -0.1 off-raster\n"
            "2010   404  TD-SCDMA  FBN 4               UL       142  2009.2       -0.8 off-raster\n"
            "2010   405  TD-SCDMA  FBN 5               UL         0  2010.8       0.8 "
            "off-raster\n");
        // A printed frequency converts back, also past a record's stated edges.
        row("channel CDMA:2 872.0125", 0,
            "CDMA - Band 2 (TACS) [2]\nMHZ       UL CHANNEL  DL CHANNEL\n872.0125  1329        "
            "-\n");
        row("channel NR:n1 2150 2140.0001 --nearest --dl", 0,
            "5G NR - Band n1 (2100) [701]\nMHZ        DL CHANNEL  DL OFFSET MHZ\n"
            "2150       430000      0\n2140.0001  428000      -0.0001\n",
            "DL channel 430000 (2150 MHz) lies outside the stated edges");
        // Every channel centred on the frequency; --preferred keeps one of them.
        row("channel CDMA:5 455.65 --ul", 0,
            "CDMA - Band 5 (450) [5]\nMHZ     UL CHANNEL\n455.65  227,1256\n");
        row("channel CDMA:5 455.65 --ul --preferred 1256", 0,
            "CDMA - Band 5 (450) [5]\nMHZ     UL CHANNEL\n455.65  1256\n");
        row("--version", 0, "saiskuko " SAISKUKO_VERSION_STR "\n");
        // Bad input: 2; a valid query without result: 1.
        row("freq GSM:900 1", 2, "",
            "it matches: GSM - P-GSM 900 [103], GSM - E-GSM 900 [104], GSM - R-GSM 900 [105], "
            "GSM - R-GSM 900 (China) [106]");
        row("freq LTE:1 -3", 2, "", "channel \"-3\" must not be negative");
        row("channel LTE:1 -inf", 2, "", "frequency \"-inf\" must be positive");
        row("search inf", 2, "", "frequency \"inf\" is out of range");
        row("freq 12345678901234567890123456789012345678901234567890 1", 2, "",
            "no band has code 1234567890123456789012345678901234567890...;");
        row("frequency|LTE:1", 2, "", "unknown command \"frequency\"");
        row("freq LTE:1 300 --nearest", 2, "", "freq does not take --nearest");
        row("search 100000", 1, "", "no band holds 100000 MHz");
        row("channel LTE:1 2140.05", 1, "", "2140.05 MHz is not a channel centre");
        row("table 2", 1, "", "mode 2 has no band table");
        row("chart 1000 700", 2, "", "chart: LOW must be below HIGH");
        row("chart 700 1000 --mark 1200", 2, "", "mark \"1200\" lies outside the chart's window");
        row("chart 700 1000 --tech XYZ", 2, "", "XYZ");
        row("chart 0.1 0.5", 1, "", "no band has a record between 0.1 and 0.5 MHz");
        // Some results missing: the rest printed, each missing one said, status 1.
        row("freq LTE:1 300 700", 1,
            "LTE-FDD - Band 1 (2100) [201]\nCHANNEL  UL MHZ  DL MHZ  PAIRED\n300      -       2140 "
            "   UL 18300 1950\n700      -       -       -\n",
            "saiskuko: channel 700 is not in LTE-FDD - Band 1 (2100) (uplink or downlink)\n");
        row("freq GSM:p900 0 124", 1, nullptr,
            "channel 0 is not in GSM - P-GSM 900 (uplink or downlink)");
        row("search 1785.02 10", 1,
            "MHZ      CODE  TECH      BAND   DIR  CHANNEL  CHANNEL MHZ  OFFSET MHZ\n1785.02   400  "
            "TD-SCDMA  FBN 0  UL         0  1785.8       0.78 off-raster\n1785.02   400  TD-SCDMA  "
            "FBN 0  DL         0  1785.8       0.78 off-raster\n",
            "saiskuko: no band holds 10 MHz\n");
        row("which 1 999999999", 1, nullptr, "saiskuko: no band has a channel 999999999\n");
        // A channel is digits: whole-valued numbers in other forms are not channels.
        row("freq LTE:1 1e2", 2, "", "channel \"1e2\" is not a whole number\n");
        row("freq LTE:1 300.0", 2, "", "channel \"300.0\" is not a whole number\n");
        row("freq LTE:1 99999999999", 2, "",
            "channel \"99999999999\" is out of range (0 to 2147483647)\n");
        // Echoed text never reaches the terminal raw.
        row("freq|\x1b[2J\t|1", 2, "", "saiskuko: cannot read band \"\\x1b[2J\\x09\": give");
        // The gap between band class 10's downlink blocks (within their stated edges) holds no hit.
        row("search 894.5 --dl", 1, "", "saiskuko: no band holds 894.5 MHz\n");
        row("freq NR:n1 434000 --dl", 0,
            "5G NR - Band n1 (2100) [701]\nCHANNEL  DL MHZ  PAIRED\n434000   2170    UL 396000 "
            "1980\n",
            "saiskuko: DL channel 434000 (2170 MHz) lies outside the stated edges of 5G NR - Band "
            "n1 (2100)\n");
        row("table", 0, nullptr, "");
    }

    void answers()
    {
        QFETCH(QString, arguments);
        QFETCH(QString, out);
        QFETCH(QString, err);
        const Run run = saiskuko(arguments);
        QTEST(run.status, "status");
        if (!out.isNull())
            QCOMPARE(run.out, out);
        QVERIFY2(err.isEmpty() ? run.err.isEmpty() : run.err.contains(err), qPrintable(run.err));
        QVERIFY(run.err.size() < 3000); // candidates listed, arguments cut
    }

    // Every command answers in one JSON shape, errors too; numbers keep every digit.
    void oneJsonShape()
    {
        const QString lines = QStringLiteral(
            "techs\nbands GSM\nband 201\nfreq WCDMA:1 10701\nchannel LTE:1 2140\nsearch 1950\n"
            "channels LTE:1 2140 2141\ntable 6\nwhich 1\nfreq x 1\n--version\n"
            "channel CDMA:5 455.65 --ul --preferred 5\nfreq LTE:1 300 700");
        QList<QJsonObject> documents;
        const QString out = saiskuko(QStringLiteral("--json batch"), lines.toUtf8()).out;
        for (const QString &line : out.split(QLatin1Char('\n'), Qt::SkipEmptyParts))
            documents << QJsonDocument::fromJson(line.toUtf8()).object();
        QCOMPARE(documents.size(), 13);
        for (const QJsonObject &document : documents)
            QCOMPARE(document.keys().join(QLatin1Char(' ')),
                     QStringLiteral("arguments command notes result status"));
        QVERIFY(saiskuko(QStringLiteral("--json freq WCDMA:1 10701"))
                    .out.contains(QLatin1String("\"downlink\": 2140.2000000000003,")));
        QCOMPARE(documents[9][QLatin1String("status")].toInt(), 2);
        // Every channel at the frequency; the one shown is the first, the preferred not among them.
        const QJsonValue hit = documents.at(
            11)[QLatin1String("result")][QLatin1String("results")][0][QLatin1String("uplink")];
        QCOMPARE(hit[QLatin1String("channels")].toArray(), QJsonArray({227, 1256}));
        QCOMPARE(hit[QLatin1String("channel")].toInt(), 227);
        // A missing result is a note and status 1; steps and offsets are the decimals they are.
        QVERIFY(documents[12][QLatin1String("status")].toInt() == 1
                && documents[12][QLatin1String("notes")].toArray().size() == 1
                && out.contains(QLatin1String("\"stepMHz\":0.1}"))
                && out.contains(QLatin1String("\"offsetMHz\":-0.1,")));
    }

    // Lines are answered one by one; a bad one is reported by number and sets
    // the status; a run of one command shows its header once; bytes that are
    // not UTF-8 and control characters are shown escaped.
    void batchGoesOnPastBadLines()
    {
        const Run run = saiskuko(QStringLiteral("batch"),
                                 "freq LTE:1 300\nfreq LTE:1 x\n\n# note\nfreq LTE:1 301\nfreq n78 "
                                 "636666\nfreq n78 620000\nchannel LTE:1 2140.05\nfreq \xff\x1b 1\n"
                                 "search 460.01\nsearch 460.01\n");
        QCOMPARE(run.status, 2);
        const QString search =
            QStringLiteral("460.01     5  CDMA  Band 5 (450)  DL         1  460          -0.01\n");
        QCOMPARE(
            run.out,
            QStringLiteral(
                "LTE-FDD - Band 1 (2100) [201]\nCHANNEL  UL MHZ  DL MHZ  PAIRED\n300      -   "
                "    2140    UL 18300 1950\n301      -       2140.1  UL 18301 1950.1\n5G NR - Band "
                "n78 (TD 3500) [724]\nCHANNEL  UL MHZ   DL MHZ\n636666   3549.99  3549.99\n"
                "620000   3300     3300\nMHZ     "
                "CODE  TECH  BAND          DIR  CHANNEL  CHANNEL MHZ  OFFSET MHZ\n")
                + search + search);
        QVERIFY(run.err.startsWith(QStringLiteral(
            "saiskuko: line 2: channel \"x\" is not a whole number\nsaiskuko: "
            "line 8: 2140.05 MHz is not a channel centre of LTE-FDD - Band 1 "
            "(2100) (try: --nearest)\nsaiskuko: line 9: cannot read band \"\\xff\\x1b\"")));
    }

    void failedWriteIsAnError()
    {
        if (!QFile::exists(QStringLiteral("/dev/full")))
            QSKIP("no /dev/full");
        QCOMPARE(saiskuko(QStringLiteral("band 201"), {}, QStringLiteral("/dev/full")).status, 3);
    }

    // The man page and the completion name every command the help lists; the
    // completion offers what people type, the man page shows examples and fits
    // 80 columns, and the list of modes names each.
    void pages()
    {
        const QString help = saiskuko(QStringLiteral("--help")).out;
        const QString commands =
            help.section(QLatin1String("Commands:\n"), 1).section(QLatin1String("\n\n"), 0, 0);
        const QString man = installed("man/man1/saiskuko.1");
        const QString completion = installed("bash-completion/completions/saiskuko");
        QVERIFY(commands.count(QLatin1Char('\n')) >= 9);
        for (const QString &line : commands.split(QLatin1Char('\n'))) {
            const QString name = line.section(QLatin1Char(' '), 2, 2);
            QVERIFY2(man.contains(QLatin1String(".TP\n\\fB") + name)
                         && completion.contains(QRegularExpression(QLatin1String("\\b") + name
                                                                   + QLatin1String("\\b"))),
                     qPrintable(name));
        }
        QVERIFY(man.contains(QLatin1String(".SH EXAMPLES\n.nf\n$ saiskuko freq LTE:1 300 18300\n"
                                           "LTE\\-FDD \\- Band 1 (2100) [201]\n")));
        // What bash offers after "freq LTE", "--tech ", "bands 5" and "freq NR:n7";
        // the widest line of the man page at 80 columns (0 without man).
        QProcess bash;
        bash.start(QStringLiteral("bash"),
                   {QStringLiteral("-c"),
                    QStringLiteral("source \"$0\"; for w in 'freq LTE' '--tech ' 'bands 5' 'freq "
                                   "NR:n7'; do read -ra COMP_WORDS <<< \"saiskuko $w\"; [[ $w == "
                                   "*' ' ]] && COMP_WORDS+=(''); COMP_CWORD=$((${#COMP_WORDS[@]} - "
                                   "1)); _saiskuko; echo \" ${COMPREPLY[*]} \"; done; MANWIDTH=80 "
                                   "man -l \"$1\" 2>/dev/null | wc -L"),
                    installedPath("bash-completion/completions/saiskuko"),
                    installedPath("man/man1/saiskuko.1")});
        bash.waitForFinished();
        const QStringList offered =
            QString::fromUtf8(bash.readAllStandardOutput()).split(QLatin1Char('\n'));
        QVERIFY2(
            offered.size() == 6 && offered[0].contains(QLatin1String(" LTE:1 "))
                && offered[1].contains(QLatin1String(" NR ")) && offered[2] == QLatin1String(" 5G ")
                && offered[3].contains(QLatin1String(" NR:n78 "))
                && !offered.join(QString()).contains(QLatin1Char('\\')) && offered[4].toInt() <= 80,
            qPrintable(offered.join(QLatin1Char('|'))));
        const QString modes = saiskuko(QStringLiteral("table")).out;
        QVERIFY(modes.contains(
            QLatin1String("  14  LTE-TDD         LTE-TDD\n  15  unused          -\n")));
    }
};

QTEST_GUILESS_MAIN(TestCli)
#include "tst_cli.moc"
