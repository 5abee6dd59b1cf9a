// saiskuko: the band plan from a shell.

#include "bandname.h"
#include "commands.h"
#include "output.h"

#include <saiskuko/saiskuko.h>

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QJsonDocument>

#include <cstdio>
#include <cstring>

namespace {

// The library logs its banner while it loads, before main() can tell whether
// --quiet was given. A handler installed ahead of every library initialiser
// keeps those lines until then. Plain zero-initialised storage: no constructor
// of this program has run at that point.
#if defined(__ELF__)
char g_earlyLog[4096];
std::size_t g_earlyLogSize;

void keepEarly(QtMsgType, const QMessageLogContext &, const QString &message)
{
    const QByteArray bytes = message.toUtf8() + '\n';
    const std::size_t size = std::size_t(bytes.size());
    if (g_earlyLogSize + size <= sizeof g_earlyLog) {
        std::memcpy(g_earlyLog + g_earlyLogSize, bytes.constData(), size);
        g_earlyLogSize += size;
    }
}

void installEarlyHandler()
{
    qInstallMessageHandler(keepEarly);
}
[[gnu::used, gnu::section(".preinit_array")]] void (*g_preinit)() = installEarlyHandler;

void releaseEarlyLog(bool show)
{
    if (show && g_earlyLogSize > 0)
        std::fwrite(g_earlyLog, 1, g_earlyLogSize, stderr);
}
#else
// Elsewhere the banner takes Qt's default route, before main().
void releaseEarlyLog(bool)
{}
#endif

void toStderr(QtMsgType, const QMessageLogContext &, const QString &message)
{
    libraryDiagnostic(message);
}

void writeStdout(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), stdout);
    std::fflush(stdout);
}

void writeStderr(const QString &text)
{
    const QByteArray bytes = text.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), stderr);
    std::fflush(stderr);
}

// A negative channel or frequency ("-5") looks like an option to the parser.
// Such arguments are marked before parsing and unmarked where they are read.
const QChar kNumberMark(0xE000);

QStringList protectNegativeNumbers(QStringList arguments)
{
    for (int i = 1; i < arguments.size() && arguments[i] != QLatin1String("--"); ++i) {
        const QString &argument = arguments[i];
        if (argument.size() > 1 && argument[0] == QLatin1Char('-')
            && (argument[1].isDigit() || argument[1] == QLatin1Char('.')))
            arguments[i].prepend(kNumberMark);
    }
    return arguments;
}

QString unmarked(QString argument)
{
    if (argument.startsWith(kNumberMark))
        argument.remove(0, 1);
    return argument;
}

// --quiet must be known before the command line is fully parsed, so that a
// line that fails to parse does not let the banner through.
bool quietRequested(const QStringList &arguments)
{
    for (int i = 1; i < arguments.size(); ++i) {
        if (arguments[i] == QLatin1String("--"))
            break;
        const QString &argument = arguments[i];
        if (argument == QLatin1String("--quiet"))
            return true;
        // Short options may be run together: -qv.
        if (argument.size() > 1 && argument[0] == QLatin1Char('-') && argument[1].isLetter()
            && argument.contains(QLatin1Char('q')))
            return true;
    }
    return false;
}

QString helpText()
{
    QString text = QStringLiteral(
        "Usage: saiskuko [options] COMMAND [ARGUMENTS...]\n"
        "Looks up the band plan of CDMA, GSM, LTE, TD-SCDMA, WCDMA, WiMAX and 5G NR:\n"
        "channels, centre frequencies and bands.\n"
        "\n"
        "Commands:\n");
    for (const Command &command : commands()) {
        const QString call =
            QLatin1String(command.name) + QLatin1Char(' ') + QLatin1String(command.usage);
        text += QLatin1String("  ") + call.trimmed().leftJustified(22) + QLatin1String("  ")
                + QLatin1String(command.summary) + QLatin1Char('\n');
    }
    text += QStringLiteral(
        "\n"
        "Naming a band (one argument):\n"
        "  201                          its code (see: saiskuko bands TECH)\n"
        "  \"LTE-FDD - Band 1 (2100)\"    its channel standard, exactly as listed\n"
        "  TECH:BAND                    a short form, any case: LTE:1, TDD:40, NR:n78,\n"
        "                               GSM:dcs1800, GSM:e900, CDMA:0, TDS:0, WIMAX:r1,\n"
        "                               WCDMA:2-additional, WCDMA:21-3500, FDD:global\n"
        "  A name that fits no band or several is an error that lists the candidates.\n"
        "\n"
        "Options:\n"
        "  --ul, --dl          only uplink / only downlink (freq, channel, search,\n"
        "                      channels, which); default: every direction the band has\n"
        "  --preferred N       channel: keep channel N where the frequency has several\n"
        "  --link 0|1          table: 0 downlink ranges (default), 1 uplink ranges\n"
        "  --json              one JSON document on stdout, full precision\n"
        "  -q, --quiet         silence the library's log lines on stderr\n"
        "  -h, --help          this text\n"
        "  -v, --version       the library's version\n"
        "\n"
        "Frequencies are in MHz; text output rounds them to 1 Hz. \"Band Global\" repeats\n"
        "a technology's bands, so which and search leave it out. A time-division band\n"
        "answers freq and channel for either direction.\n"
        "Exit status: 0 found, 1 valid query without result (said on stderr; --json still\n"
        "prints the empty document), 2 bad input (one line on stderr, nothing on stdout).\n");
    return text;
}

int fail(const QString &message)
{
    writeStderr(QLatin1String("saiskuko: ") + message);
    return ExitBadInput;
}

} // namespace

// Only an exhausted heap escapes, and ends the program as it should.
int main(int argc, char *argv[]) // NOLINT(bugprone-exception-escape)
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("saiskuko"));
    QCoreApplication::setApplicationVersion(QStringLiteral(SAISKUKO_VERSION_STR));
    const QStringList arguments = protectNegativeNumbers(QCoreApplication::arguments());

    const bool quiet = quietRequested(arguments);
    setLibraryDiagnosticsShown(!quiet);
    qInstallMessageHandler(toStderr);
    releaseEarlyLog(!quiet);

    QCommandLineParser parser;
    const QCommandLineOption ulOption(QStringLiteral("ul"));
    const QCommandLineOption dlOption(QStringLiteral("dl"));
    const QCommandLineOption preferredOption(QStringLiteral("preferred"), QString(),
                                             QStringLiteral("N"));
    const QCommandLineOption linkOption(QStringLiteral("link"), QString(), QStringLiteral("0|1"));
    const QCommandLineOption jsonOption(QStringLiteral("json"));
    const QCommandLineOption quietOption(QStringList{QStringLiteral("q"), QStringLiteral("quiet")});
    const QCommandLineOption helpOption(QStringList{QStringLiteral("h"), QStringLiteral("help")});
    const QCommandLineOption versionOption(
        QStringList{QStringLiteral("v"), QStringLiteral("version")});
    parser.addOptions({ulOption, dlOption, preferredOption, linkOption, jsonOption, quietOption,
                       helpOption, versionOption});
    if (!parser.parse(arguments))
        return fail(parser.errorText() + QLatin1String(" (see: saiskuko --help)"));

    const bool json = parser.isSet(jsonOption);
    if (parser.isSet(helpOption)) {
        writeStdout(helpText());
        return ExitOk;
    }
    if (parser.isSet(versionOption)) {
        if (json) {
            const QJsonObject version{
                {QStringLiteral("program"), QStringLiteral("saiskuko")},
                {QStringLiteral("version"), QStringLiteral(SAISKUKO_VERSION_STR)}};
            writeStdout(QString::fromUtf8(QJsonDocument(version).toJson()));
        } else {
            writeStdout(QStringLiteral("saiskuko " SAISKUKO_VERSION_STR "\n"));
        }
        return ExitOk;
    }

    QStringList positional;
    for (const QString &argument : parser.positionalArguments())
        positional << unmarked(argument);
    if (positional.isEmpty())
        return fail(QStringLiteral("no command given (see: saiskuko --help)"));
    const QString name = positional.takeFirst();
    const Command *command = nullptr;
    for (const Command &candidate : commands()) {
        if (name == QLatin1String(candidate.name))
            command = &candidate;
    }
    if (!command) {
        QStringList names;
        for (const Command &candidate : commands())
            names << QLatin1String(candidate.name);
        return fail(QLatin1String("unknown command \"") + name + QLatin1String("\"; commands: ")
                    + names.join(QLatin1String(", ")));
    }

    const QString call = QLatin1String("saiskuko ") + QLatin1String(command->name)
                         + QLatin1Char(' ') + QLatin1String(command->usage);
    if (positional.size() < command->minArgs
        || (command->maxArgs >= 0 && positional.size() > command->maxArgs))
        return fail(QStringLiteral("%1 takes %2 (usage: %3)")
                        .arg(QLatin1String(command->name),
                             command->maxArgs == 0 ? QStringLiteral("no arguments")
                             : positional.size() < command->minArgs
                                 ? QStringLiteral("more arguments")
                                 : QStringLiteral("fewer arguments"),
                             call.trimmed()));

    const auto refuse = [&](bool set, bool allowed, const char *option) {
        if (set && !allowed)
            throw BadInput(QStringLiteral("%1 does not take %2")
                               .arg(QLatin1String(command->name), QLatin1String(option)));
    };
    try {
        refuse(parser.isSet(ulOption) || parser.isSet(dlOption), command->takesDirection,
               "--ul/--dl");
        refuse(parser.isSet(preferredOption), command->takesPreferred, "--preferred");
        refuse(parser.isSet(linkOption), command->takesLink, "--link");

        CommandOptions options;
        if (parser.isSet(ulOption))
            options.links << 1;
        if (parser.isSet(dlOption))
            options.links << 0;
        bool ok = true;
        if (parser.isSet(preferredOption)) {
            options.hasPreferred = true;
            options.preferred = unmarked(parser.value(preferredOption)).trimmed().toInt(&ok, 10);
            if (!ok)
                throw BadInput(QLatin1String("--preferred \"")
                               + unmarked(parser.value(preferredOption))
                               + QLatin1String("\" is not a channel number"));
        }
        if (parser.isSet(linkOption)) {
            const QString value = unmarked(parser.value(linkOption)).trimmed();
            if (value != QLatin1String("0") && value != QLatin1String("1"))
                throw BadInput(QLatin1String("--link \"") + unmarked(parser.value(linkOption))
                               + QLatin1String("\" must be 0 (downlink) or 1 (uplink)"));
            options.link = value.toInt();
        }

        Outcome outcome = command->run(positional, options);
        if (json) {
            QJsonObject document{{QStringLiteral("command"), QLatin1String(command->name)}};
            for (auto it = outcome.json.constBegin(); it != outcome.json.constEnd(); ++it)
                document.insert(it.key(), it.value());
            writeStdout(QString::fromUtf8(QJsonDocument(document).toJson()));
        } else {
            writeStdout(outcome.text);
        }
        for (const QString &note : outcome.notes)
            writeStderr(QLatin1String("saiskuko: ") + note);
        return outcome.status;
    } catch (const BadInput &error) {
        return fail(error.message());
    }
}
