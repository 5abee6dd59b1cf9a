// The program's argument handling: options, command dispatch, JSON envelope and batch.
#include "program.h"

#include "commands.h"
#include "output.h"

#include <saiskuko/saiskuko_version.h>

#include <QtCore/QCommandLineParser>
#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QTextStream>

#include <algorithm>
#include <cstdio>

namespace {

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

QString unmarked(const QString &argument)
{
    return argument.startsWith(kNumberMark) ? argument.mid(1) : argument;
}

// The last table a batch printed: its command, heading, column headers and
// column widths.
struct BatchTable
{
    QString command, heading, header;
    QVector<int> widths;
};

// Where one run writes: its streams and the prefix of its messages; in batch
// also the options passed to each line, JSON one document a line, and the
// last table printed.
struct Run
{
    QTextStream &out, &err;
    QString prefix;
    QStringList inherited;
    bool batch;
    BatchTable *table = nullptr;
};

// An outcome's text; in batch a run of lines of one command shows its column
// header once, its rows as wide as the widest before them, and its heading
// (the band) where it changes.
QString tableText(const Outcome &outcome, const QString &command, BatchTable *last)
{
    if (!last || outcome.columns.isEmpty()) {
        if (last)
            *last = {};
        return outcome.text();
    }
    QStringList headers;
    for (const Column &column : outcome.columns)
        headers << column.header;
    const QString header = headers.join(QLatin1Char('|'));
    const bool sameCommand = command == last->command;
    const bool sameHeader = sameCommand && header == last->header;
    if (!sameHeader)
        last->widths.clear();
    const QString text = outcome.text(&last->widths);
    const int headingEnd = outcome.heading.isEmpty() ? 0 : int(text.indexOf(QLatin1Char('\n'))) + 1;
    const int headerEnd = int(text.indexOf(QLatin1Char('\n'), headingEnd)) + 1;
    const QString heading = text.left(headingEnd);
    const bool sameHeading = sameCommand && heading == last->heading;
    last->command = command;
    last->heading = heading;
    last->header = header;
    return (sameHeading ? QString() : heading)
           + (sameHeader ? QString() : text.mid(headingEnd, headerEnd - headingEnd))
           + text.mid(headerEnd);
}

int runBatch(const QString &file, const Run &run);

// An outcome written out: as one JSON document, or as text where it has an
// answer; its notes on stderr either way. Returns its status.
int report(const Run &run, bool json, const QString &command, const QStringList &arguments,
           const Outcome &outcome)
{
    if (json) {
        const QJsonObject result = outcome.result();
        QStringList echoedArguments; // as messages show them: bytes not UTF-8 as \xNN
        for (const QString &argument : arguments)
            echoedArguments << shown(argument);
        const QJsonObject document{
            {QStringLiteral("command"), command.isEmpty() ? QJsonValue() : QJsonValue(command)},
            {QStringLiteral("arguments"), QJsonArray::fromStringList(echoedArguments)},
            {QStringLiteral("status"), outcome.status},
            {QStringLiteral("notes"), QJsonArray::fromStringList(outcome.notes)},
            {QStringLiteral("result"), result.isEmpty() ? QJsonValue() : QJsonValue(result)}};
        run.out << QString::fromUtf8(QJsonDocument(document).toJson(
            run.batch ? QJsonDocument::Compact : QJsonDocument::Indented))
                << (run.batch ? "\n" : "");
    } else if (outcome.status == ExitOk || !outcome.rows.isEmpty()) {
        run.out << shown(tableText(outcome, command, run.table), true);
    }
    for (const QString &note : outcome.notes)
        run.err << run.prefix << shown(note) << '\n';
    return outcome.status;
}

// The options a command reads, from a parsed command line.
CommandOptions commandOptions(const QCommandLineParser &parser)
{
    const auto isSet = [&](const char *name) { return parser.isSet(QLatin1String(name)); };
    const auto value = [&](const char *name) {
        return unmarked(parser.value(QLatin1String(name)));
    };
    CommandOptions options;
    if (isSet("ul"))
        options.links << saiskuko::Link::Up;
    if (isSet("dl"))
        options.links << saiskuko::Link::Down;
    options.nearest = isSet("nearest");
    options.techs = parser.values(QStringLiteral("tech"));
    for (const QString &mark : parser.values(QStringLiteral("mark")))
        options.marks << unmarked(mark);
    options.outputFile = value("output");
    bool ok = true;
    if (isSet("preferred"))
        options.preferred = value("preferred").trimmed().toInt(&ok, 10);
    if (!ok)
        throw BadInput{QLatin1String("--preferred ") + echoed(value("preferred"))
                       + QLatin1String(" is not a channel number")};
    if (isSet("link")) {
        const QString link = value("link").trimmed();
        if (link != QLatin1String("0") && link != QLatin1String("1"))
            throw BadInput{QLatin1String("--link ") + echoed(value("link"))
                           + QLatin1String(" must be 0 (downlink) or 1 (uplink)")};
        options.link = link.toInt();
    }
    return options;
}

// Throws BadInput where the number of arguments or the options given do not
// fit the command.
void checkUse(const Command &command, const QStringList &arguments,
              const QCommandLineParser &parser)
{
    const QString usage = QString::fromLatin1(command.usage);
    const QStringList words = usage.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const int least = words.size() - usage.count(QLatin1Char('['));
    const bool repeats = usage.endsWith(QLatin1String("..."));
    if (arguments.size() < least || (!repeats && arguments.size() > words.size()))
        throw BadInput{QStringLiteral("%1 takes %2 (usage: saiskuko %3)")
                           .arg(QLatin1String(command.name),
                                words.isEmpty()            ? QStringLiteral("no arguments")
                                : arguments.size() < least ? QStringLiteral("more arguments")
                                                           : QStringLiteral("fewer arguments"),
                                command.call())};
    const QStringList takes = QString::fromLatin1(command.options).split(QLatin1Char(' '));
    for (const ProgramOption &entry : programOptions()) {
        const QString option = entry.allNames().constLast();
        if (!entry.common && parser.isSet(option) && !takes.contains(option))
            throw BadInput{
                QStringLiteral("%1 does not take --%2").arg(QLatin1String(command.name), option)};
    }
}

// One command line, without the program's name.
int runWords(const QStringList &words, const Run &run)
{
    QCommandLineParser parser;
    for (const ProgramOption &entry : programOptions()) // no value name: a switch
        parser.addOption({entry.allNames(), QString(), QLatin1String(entry.value)});
    const auto isSet = [&](const char *name) { return parser.isSet(QLatin1String(name)); };

    const bool parsed = parser.parse(
        protectNegativeNumbers(QStringList{QStringLiteral("saiskuko")} + run.inherited + words));
    const bool json = parsed && isSet("json");
    setLibraryDiagnostics(parsed && isSet("verbose") ? &run.err : nullptr);
    QStringList positional;
    for (const QString &argument : parser.positionalArguments())
        positional << unmarked(argument);
    const QString name = positional.value(0);
    const auto found = std::find_if(commands().begin(), commands().end(), [&](const Command &c) {
        return name == QLatin1String(c.name);
    });
    const Command *command = found == commands().end() ? nullptr : &*found;
    const QStringList arguments = positional.mid(1);

    const auto fail = [&](const QString &message) {
        Outcome outcome;
        outcome.status = ExitBadInput;
        outcome.notes << message;
        return report(run, json, command ? name : QString(), arguments, outcome);
    };
    if (!parsed)
        return fail(cut(parser.errorText()) + QLatin1String(" (see: saiskuko --help)"));

    if (isSet("help") || isSet("man") || isSet("completion")) {
        run.out << (isSet("help") ? helpText() : isSet("man") ? manText() : completionText());
        return ExitOk;
    }
    if (isSet("version")) {
        Outcome version;
        version.heading = QStringLiteral("saiskuko " SAISKUKO_VERSION_STR "\n");
        version.json = {{QStringLiteral("program"), QStringLiteral("saiskuko")},
                        {QStringLiteral("version"), QStringLiteral(SAISKUKO_VERSION_STR)}};
        return report(run, json, QStringLiteral("version"), {}, version);
    }
    if (positional.isEmpty())
        return fail(QStringLiteral("no command given (see: saiskuko --help)"));
    if (!command) {
        QStringList names;
        for (const Command &candidate : commands())
            names << QLatin1String(candidate.name);
        return fail(QLatin1String("unknown command ") + echoed(name) + QLatin1String("; commands: ")
                    + names.join(QLatin1String(", ")));
    }
    try {
        checkUse(*command, arguments, parser);
        if (command->run)
            return report(run, json, name, arguments,
                          command->run(arguments, commandOptions(parser)));
        if (run.batch)
            throw BadInput{QStringLiteral("batch does not run within batch")};
        QStringList passed;
        for (const char *common : {"json", "verbose"}) {
            if (isSet(common))
                passed << QLatin1String("--") + QLatin1String(common);
        }
        BatchTable table;
        return runBatch(arguments.value(0), {run.out, run.err, run.prefix, passed, true, &table});
    } catch (const BadInput &error) {
        return fail(error.message);
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
        run.err << run.prefix << shown(QLatin1String("cannot read ") + echoed(file)) << ": "
                << input.errorString() << '\n';
        return ExitBadInput;
    }
    int worst = ExitOk;
    for (int number = 1; !input.atEnd(); ++number) {
        QByteArray line = input.readLine();
        if (line.endsWith('\n'))
            line.chop(1);
        const QStringList words = splitLine(userText(line));
        if (words.isEmpty() || words.first().startsWith(QLatin1Char('#')))
            continue;
        const QString prefix = run.prefix + QStringLiteral("line %1: ").arg(number);
        worst = std::max(
            worst, runWords(words, {run.out, run.err, prefix, run.inherited, true, run.table}));
        run.out.flush();
    }
    return worst;
}

} // namespace

int runProgram(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    int status = runWords(arguments.mid(1), {out, err, QStringLiteral("saiskuko: "), {}, false});
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
    const int end = arguments.indexOf(QStringLiteral("--"), 1);
    return arguments.mid(1, end < 0 ? -1 : end - 1).contains(QStringLiteral("--verbose"));
}
