// The program's argument handling: options, command dispatch, JSON envelope, batch, help and man
// page.
#include "program.h"

#include "bandname.h"
#include "commands.h"
#include "output.h"

#include <saiskuko/saiskuko.h>

#include <QtCore/QCommandLineParser>
#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QTextStream>

#include <cstdio>

namespace {

// Every option of the program. The commands name the ones they take; the
// common ones go with every command.
struct ProgramOption
{
    const char *names; // blank-separated, long name last
    const char *value; // the value's name, or nullptr for a switch
    const char *help;
    bool common;
    bool hidden; // build-time outputs, not for people
};

// clang-format off
const ProgramOption kOptions[] = {
    {"ul", nullptr, "only uplink (freq, channel, search, channels, which);\n"
                    "default: every direction the band has", false, false},
    {"dl", nullptr, "only downlink", false, false},
    {"preferred", "N", "channel: keep channel N where the frequency has several", false, false},
    {"nearest", nullptr, "channel: the nearest channel of each direction and its\n"
                         "offset, for a frequency off the raster", false, false},
    {"link", "0|1", "table: 0 downlink ranges (default), 1 uplink ranges", false, false},
    {"tech", "T", "chart: only technology T (repeatable; short names as for bands)", false, false},
    {"mark", "MHZ", "chart: a line at MHZ, labelled with the bands and channels\n"
                    "there (repeatable)", false, false},
    {"o output", "FILE", "chart: write the SVG to FILE instead of stdout", false, false},
    {"json", nullptr, "JSON on stdout, full precision; in batch one document a line", true, false},
    {"verbose", nullptr, "show the library's banner and diagnostics on stderr", true, false},
    {"q quiet", nullptr, "no library diagnostics (the default)", true, false},
    {"h help", nullptr, "this text", true, false},
    {"v version", nullptr, "the library's version", true, false},
    {"man", nullptr, "", true, true},
    {"completion", nullptr, "", true, true},
};

// The prose of the help text and the man page, section by section.
const char *const kNaming =
    "  201                          its code (see: saiskuko bands TECH)\n"
    "  \"LTE-FDD - Band 1 (2100)\"    its channel standard, exactly as listed\n"
    "  TECH:BAND                    a short form, any case: LTE:1, TDD:40, NR:n78,\n"
    "                               GSM:dcs1800, GSM:e900, CDMA:0, TDS:0, WIMAX:r1,\n"
    "                               WCDMA:2-additional, WCDMA:21-3500, FDD:global\n"
    "  B1, b1, band1                an LTE band; N78 an NR band; bc0 a CDMA band class\n"
    "  WCDMA:I, WCDMA:VIII          UTRA bands in Roman numerals; LTE:07, NR:n078\n"
    "                               leading zeros\n"
    "  A name that fits no band or several is an error that lists the candidates.\n";
const char *const kNotes =
    "Frequencies are in MHz; text output rounds them to 1 Hz, and every frequency\n"
    "printed converts back. \"Band Global\" repeats a technology's bands, so which and\n"
    "search leave it out. A TDD band answers every command for both directions.\n"
    "DUPLEX: FDD paired, TDD shared in time, SDL downlink only, SUL uplink only.\n";
const char *const kExit =
    "0 found, 1 valid query without result (said on stderr; --json still prints the\n"
    "document), 2 bad input (one line on stderr), 3 the answer could not be written.\n"
    "batch: 0 when every line succeeded, else the worst status of a line.\n";
// clang-format on

const char *const kSummary = "Looks up the band plan of CDMA, GSM, LTE, TD-SCDMA, WCDMA, WiMAX "
                             "and 5G NR:\nchannels, centre frequencies and bands.\n";

QStringList namesOf(const ProgramOption &option)
{
    return QString::fromLatin1(option.names).split(QLatin1Char(' '));
}

QString optionCall(const ProgramOption &option)
{
    QStringList calls;
    for (const QString &name : namesOf(option))
        calls << (name.size() == 1 ? QLatin1String("-") : QLatin1String("--")) + name;
    QString call = calls.join(QLatin1String(", "));
    if (option.value)
        call += QLatin1Char(' ') + QLatin1String(option.value);
    return call;
}

QString commandCall(const Command &command)
{
    return (QLatin1String(command.name) + QLatin1Char(' ') + QLatin1String(command.usage))
        .trimmed();
}

QString commandsText()
{
    QString text;
    for (const Command &command : commands())
        text += QLatin1String("  ") + commandCall(command).leftJustified(22) + QLatin1String("  ")
                + QLatin1String(command.summary) + QLatin1Char('\n');
    return text;
}

QString optionsText()
{
    QString text;
    for (const ProgramOption &option : kOptions) {
        if (option.hidden)
            continue;
        const QStringList lines = QString::fromLatin1(option.help).split(QLatin1Char('\n'));
        text += QLatin1String("  ") + optionCall(option).leftJustified(18) + QLatin1String("  ")
                + lines.first() + QLatin1Char('\n');
        for (const QString &line : lines.mid(1))
            text += QString(22, QLatin1Char(' ')) + line + QLatin1Char('\n');
    }
    return text;
}

// Title and body of each section after the summary.
QList<std::pair<QString, QString>> sections()
{
    return {{QStringLiteral("Commands"), commandsText()},
            {QStringLiteral("Naming a band (one argument)"), QLatin1String(kNaming)},
            {QStringLiteral("Options"), optionsText()},
            {QStringLiteral("Notes"), QLatin1String(kNotes)},
            {QStringLiteral("Exit status"), QLatin1String(kExit)}};
}

QString helpText()
{
    QString text = QStringLiteral("Usage: saiskuko [options] COMMAND [ARGUMENTS...]\n")
                   + QLatin1String(kSummary);
    for (const auto &section : sections())
        text += QLatin1Char('\n') + section.first + QLatin1String(":\n") + section.second;
    return text;
}

QString manText()
{
    const auto escaped = [](QString text) {
        text.replace(QLatin1Char('\\'), QLatin1String("\\e"));
        text.replace(QLatin1Char('-'), QLatin1String("\\-"));
        return text.replace(QLatin1String("\n."), QLatin1String("\n\\&."));
    };
    QString text = QStringLiteral(".TH SAISKUKO 1 \"\" \"saiskuko " SAISKUKO_VERSION_STR
                                  "\" \"User Commands\"\n"
                                  ".SH NAME\nsaiskuko \\- the band plan of cellular standards\n"
                                  ".SH SYNOPSIS\n.B saiskuko\n[options] COMMAND [ARGUMENTS...]\n"
                                  ".SH DESCRIPTION\n")
                   + escaped(QLatin1String(kSummary));
    for (const auto &section : sections())
        text += QLatin1String(".SH ") + section.first.toUpper() + QLatin1String("\n.nf\n")
                + escaped(section.second) + QLatin1String(".fi\n");
    return text;
}

// Short names that complete to every band.
QStringList bandShortNames()
{
    QStringList names;
    for (int t : techSlots()) {
        for (int b = 0; b < store().Technologies[t].NumBand; ++b)
            names << shortName(BandRef{t, b});
    }
    names.removeAll(QString());
    return names;
}

QString completionText()
{
    QStringList commandNames, optionNames, techs;
    for (const Command &command : commands())
        commandNames << QLatin1String(command.name);
    for (const ProgramOption &option : kOptions) {
        for (const QString &name : namesOf(option)) {
            if (!option.hidden && name.size() > 1)
                optionNames << QLatin1String("--") + name;
        }
    }
    for (int t : techSlots())
        techs << techName(t).replace(QLatin1Char(' '), QLatin1String("\\\\ ")) << techAliases(t);
    techs.removeDuplicates();
    QString text = QStringLiteral(
        "# bash completion for saiskuko\n"
        "_saiskuko()\n{\n"
        "    local cur word command= i\n"
        "    local commands='%1'\n    local options='%2'\n    local techs='%3'\n"
        "    local bands='%4'\n"
        "    if declare -F _get_comp_words_by_ref >/dev/null; then\n"
        "        _get_comp_words_by_ref -n : cur\n"
        "    else\n        cur=${COMP_WORDS[COMP_CWORD]}\n    fi\n"
        "    for ((i = 1; i < COMP_CWORD; i++)); do\n"
        "        word=${COMP_WORDS[i]}\n"
        "        if [[ $word != -* ]]; then command=$word; break; fi\n"
        "    done\n"
        "    if [[ $cur == -* ]]; then\n"
        "        COMPREPLY=($(compgen -W \"$options\" -- \"$cur\"))\n"
        "    elif [[ -z $command ]]; then\n"
        "        COMPREPLY=($(compgen -W \"$commands\" -- \"$cur\"))\n"
        "    else\n"
        "        case $command in\n"
        "        bands) COMPREPLY=($(compgen -W \"$techs\" -- \"$cur\")) ;;\n"
        "        band|freq|channel|channels) COMPREPLY=($(compgen -W \"$bands\" -- \"$cur\")) ;;\n"
        "        batch) COMPREPLY=($(compgen -f -- \"$cur\")) ;;\n"
        "        esac\n"
        "    fi\n"
        "    if declare -F __ltrim_colon_completions >/dev/null; then\n"
        "        __ltrim_colon_completions \"$cur\"\n    fi\n"
        "}\n"
        "complete -F _saiskuko saiskuko\n");
    return text.arg(commandNames.join(QLatin1Char(' ')), optionNames.join(QLatin1Char(' ')),
                    techs.join(QLatin1Char(' ')), bandShortNames().join(QLatin1Char(' ')));
}

// A negative channel or frequency ("-5", "-inf") looks like an option to the
// parser. Such arguments are marked before parsing and unmarked where read.
const QChar kNumberMark(0xE000);

bool looksNegative(const QString &argument)
{
    if (argument.size() < 2 || argument[0] != QLatin1Char('-'))
        return false;
    const QString rest = argument.mid(1).toLower();
    return rest[0].isDigit() || rest[0] == QLatin1Char('.') || rest.startsWith(QLatin1String("inf"))
           || rest == QLatin1String("nan");
}

QStringList protectNegativeNumbers(QStringList arguments)
{
    for (int i = 1; i < arguments.size() && arguments[i] != QLatin1String("--"); ++i) {
        if (looksNegative(arguments[i]))
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

// Where one run writes: its streams, the prefix of its messages, whether its
// JSON goes on one line (batch), and the options batch passes to each line.
struct Run
{
    QTextStream &out;
    QTextStream &err;
    QString prefix;
    bool compact;
    QStringList inherited;
    bool batchLine;
};

int runBatch(const QString &file, const Run &run);

QJsonValue orNull(const QJsonObject &object)
{
    return object.isEmpty() ? QJsonValue() : QJsonValue(object);
}

void writeJson(const Run &run, const QString &command, const QStringList &arguments, int status,
               const QStringList &notes, const QJsonObject &result)
{
    const QJsonObject document{
        {QStringLiteral("command"), command.isEmpty() ? QJsonValue() : QJsonValue(command)},
        {QStringLiteral("arguments"), QJsonArray::fromStringList(arguments)},
        {QStringLiteral("status"), status},
        {QStringLiteral("notes"), QJsonArray::fromStringList(notes)},
        {QStringLiteral("result"), orNull(result)}};
    run.out << QString::fromUtf8(QJsonDocument(document).toJson(
        run.compact ? QJsonDocument::Compact : QJsonDocument::Indented));
    if (run.compact)
        run.out << '\n';
}

const Command *findCommand(const QString &name)
{
    for (const Command &candidate : commands()) {
        if (name == QLatin1String(candidate.name))
            return &candidate;
    }
    return nullptr;
}

QString commandNames()
{
    QStringList names;
    for (const Command &candidate : commands())
        names << QLatin1String(candidate.name);
    return names.join(QLatin1String(", "));
}

QString value(const QCommandLineParser &parser, const char *name)
{
    return unmarked(parser.value(QLatin1String(name)));
}

// The options a command reads, from a parsed command line.
CommandOptions commandOptions(const QCommandLineParser &parser)
{
    const auto isSet = [&](const char *name) { return parser.isSet(QLatin1String(name)); };
    CommandOptions options;
    if (isSet("ul"))
        options.links << 1;
    if (isSet("dl"))
        options.links << 0;
    options.nearest = isSet("nearest");
    options.techs = parser.values(QStringLiteral("tech"));
    for (const QString &mark : parser.values(QStringLiteral("mark")))
        options.marks << unmarked(mark);
    options.outputFile = value(parser, "output");
    if (isSet("preferred")) {
        bool ok = false;
        options.hasPreferred = true;
        options.preferred = value(parser, "preferred").trimmed().toInt(&ok, 10);
        if (!ok)
            throw BadInput(QLatin1String("--preferred ") + echoed(value(parser, "preferred"))
                           + QLatin1String(" is not a channel number"));
    }
    if (isSet("link")) {
        const QString link = value(parser, "link").trimmed();
        if (link != QLatin1String("0") && link != QLatin1String("1"))
            throw BadInput(QLatin1String("--link ") + echoed(value(parser, "link"))
                           + QLatin1String(" must be 0 (downlink) or 1 (uplink)"));
        options.link = link.toInt();
    }
    return options;
}

// What is wrong with the number of arguments or the options given to a
// command, or an empty string.
QString misuseOf(const Command &command, const QStringList &arguments,
                 const QCommandLineParser &parser)
{
    if (arguments.size() < command.minArgs
        || (command.maxArgs >= 0 && arguments.size() > command.maxArgs))
        return QStringLiteral("%1 takes %2 (usage: saiskuko %3)")
            .arg(QLatin1String(command.name),
                 command.maxArgs == 0                 ? QStringLiteral("no arguments")
                 : arguments.size() < command.minArgs ? QStringLiteral("more arguments")
                                                      : QStringLiteral("fewer arguments"),
                 commandCall(command));
    const QStringList takes = QString::fromLatin1(command.options).split(QLatin1Char(' '));
    for (const ProgramOption &entry : kOptions) {
        const QString option = namesOf(entry).constLast();
        if (!entry.common && parser.isSet(option) && !takes.contains(option))
            return QStringLiteral("%1 does not take --%2").arg(QLatin1String(command.name), option);
    }
    return {};
}

// One command line, without the program's name.
int runWords(const QStringList &words, const Run &run)
{
    QCommandLineParser parser;
    QList<QCommandLineOption> options;
    for (const ProgramOption &entry : kOptions)
        options << (entry.value
                        ? QCommandLineOption(namesOf(entry), QString(), QLatin1String(entry.value))
                        : QCommandLineOption(namesOf(entry)));
    parser.addOptions(options);
    const auto isSet = [&](const char *name) { return parser.isSet(QLatin1String(name)); };

    const bool parsed = parser.parse(
        protectNegativeNumbers(QStringList{QStringLiteral("saiskuko")} + run.inherited + words));
    const bool json = parsed && isSet("json");
    setLibraryDiagnostics(parsed && isSet("verbose") ? &run.err : nullptr);
    QStringList positional;
    for (const QString &argument : parser.positionalArguments())
        positional << unmarked(argument);
    const QString name = positional.value(0);
    const Command *command = findCommand(name);
    const QStringList arguments = positional.mid(1);

    const auto fail = [&](const QString &message) {
        if (json)
            writeJson(run, command ? name : QString(), arguments, ExitBadInput, {message}, {});
        run.err << run.prefix << message << '\n';
        return ExitBadInput;
    };
    if (!parsed)
        return fail(cut(parser.errorText()) + QLatin1String(" (see: saiskuko --help)"));

    if (isSet("help") || isSet("man") || isSet("completion")) {
        run.out << (isSet("help") ? helpText() : isSet("man") ? manText() : completionText());
        return ExitOk;
    }
    if (isSet("version")) {
        if (json)
            writeJson(run, QStringLiteral("version"), {}, ExitOk, {},
                      {{QStringLiteral("program"), QStringLiteral("saiskuko")},
                       {QStringLiteral("version"), QStringLiteral(SAISKUKO_VERSION_STR)}});
        else
            run.out << "saiskuko " SAISKUKO_VERSION_STR "\n";
        return ExitOk;
    }
    if (positional.isEmpty())
        return fail(QStringLiteral("no command given (see: saiskuko --help)"));
    if (!command)
        return fail(QLatin1String("unknown command ") + echoed(name) + QLatin1String("; commands: ")
                    + commandNames());
    const QString misuse = misuseOf(*command, arguments, parser);
    if (!misuse.isEmpty())
        return fail(misuse);
    if (!command->run) {
        if (run.batchLine)
            return fail(QStringLiteral("batch does not run within batch"));
        QStringList passed;
        for (const char *common : {"json", "verbose"}) {
            if (isSet(common))
                passed << QLatin1String("--") + QLatin1String(common);
        }
        return runBatch(arguments.value(0), {run.out, run.err, run.prefix, true, passed, true});
    }

    try {
        const CommandOptions options = commandOptions(parser);
        const Outcome outcome = command->run(arguments, options);
        if (json)
            writeJson(run, name, arguments, outcome.status, outcome.notes, outcome.json);
        else
            run.out << outcome.text;
        for (const QString &note : outcome.notes)
            run.err << run.prefix << note << '\n';
        return outcome.status;
    } catch (const BadInput &error) {
        return fail(error.message());
    }
}

// A batch line split into words at blanks; double quotes hold blanks.
QStringList splitLine(const QString &line)
{
    QStringList words;
    QString word;
    bool quoted = false, inWord = false;
    for (QChar c : line) {
        if (c == QLatin1Char('"')) {
            quoted = !quoted;
            inWord = true;
        } else if (c.isSpace() && !quoted) {
            if (inWord)
                words << word;
            word.clear();
            inWord = false;
        } else {
            word += c;
            inWord = true;
        }
    }
    if (inWord)
        words << word;
    return words;
}

int runBatch(const QString &file, const Run &run)
{
    QFile input(file);
    const bool opened = file.isEmpty() ? input.open(stdin, QIODevice::ReadOnly | QIODevice::Text)
                                       : input.open(QIODevice::ReadOnly | QIODevice::Text);
    if (!opened) {
        run.err << run.prefix << "cannot read " << echoed(file) << ": " << input.errorString()
                << '\n';
        return ExitBadInput;
    }
    QTextStream lines(&input);
    int worst = ExitOk;
    QString line;
    for (int number = 1; lines.readLineInto(&line); ++number) {
        const QStringList words = splitLine(line);
        if (words.isEmpty() || words.first().startsWith(QLatin1Char('#')))
            continue;
        const Run lineRun{
            run.out, run.err,       run.prefix + QStringLiteral("line %1: ").arg(number),
            true,    run.inherited, true};
        worst = std::max(worst, runWords(words, lineRun));
        run.out.flush();
    }
    return worst;
}

} // namespace

int runProgram(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    int status =
        runWords(arguments.mid(1), {out, err, QStringLiteral("saiskuko: "), false, {}, false});
    setLibraryDiagnostics(nullptr);
    out.flush();
    err.flush();
    if (out.status() != QTextStream::Ok) {
        err << "saiskuko: cannot write the answer to standard output\n";
        err.flush();
        status = ExitWriteFailed;
    }
    return status;
}

bool verboseRequested(const QStringList &arguments)
{
    for (int i = 1; i < arguments.size() && arguments[i] != QLatin1String("--"); ++i) {
        if (arguments[i] == QLatin1String("--verbose"))
            return true;
    }
    return false;
}
