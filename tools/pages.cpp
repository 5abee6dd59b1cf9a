// The program's pages: help text, man page and bash completion, from its command and option tables.
#include "program.h"

#include "commands.h"

#include <saiskuko/bandplan.h>

#include <saiskuko/saiskuko_version.h>

#include <QtCore/QRegularExpression>
#include <QtCore/QTextStream>

#include <utility>

namespace {

// One entry of a list: what is written, and what it means (lines apart by '\n').
struct Entry
{
    QString call;
    const char *help;
};

// Naming a band: the forms (each with what it means), and the rule.
const char *const kNamingForms[][2] = {
    {"201", "its code (see: saiskuko bands TECH)"},
    {"\"LTE-FDD - Band 1 (2100)\"", "its channel standard, exactly as listed"},
    {"TECH:BAND", "a short form, any case: LTE:1, TDD:40, NR:n78,\n"
                  "GSM:dcs1800, GSM:e900, CDMA:0, TDS:0, WIMAX:r1,\n"
                  "WCDMA:2-additional, WCDMA:21-3500, FDD:global"},
    {"B1, b1, band1", "LTE bands; N78 an NR band; bc0 a CDMA band class"},
    {"WCDMA:I, WCDMA:VIII", "UTRA bands in Roman numerals; LTE:07, NR:n078\nleading zeros"},
};
const char *const kNaming =
    "  A name that fits no band or several is an error that lists the candidates.\n";
const char *const kNotes =
    "Frequencies are in MHz; text output rounds them to 1 Hz, and every frequency\n"
    "printed converts back. \"Band Global\" repeats a technology's bands, so which and\n"
    "search leave it out. A TDD band answers every command for both directions.\n"
    "DUPLEX: FDD paired, TDD shared in time, SDL downlink only, SUL uplink only.\n";
const char *const kExit =
    "0 found, 1 a requested result is missing (each said on stderr; the rest is\n"
    "printed, and --json says which in notes), 2 bad input (one line on stderr),\n"
    "3 the answer could not be written. batch: 0 when every line succeeded, else\n"
    "the worst status of a line.\n";

const char *const kSummary = "Looks up the band plan of CDMA, GSM, LTE, TD-SCDMA, WCDMA, WiMAX "
                             "and 5G NR:\nchannels, centre frequencies and bands.\n";

// The man page's examples, one a line: run when the page is printed, so their
// output is real.
const char *const kExamples = "freq LTE:1 300 18300\nfreq GSM:p900 124 125\nfreq LTE:1 1e2\n"
                              "channel WCDMA:1 2140.2\nchannel CDMA:5 455.65 --ul\n"
                              "channel LTE:1 2140.03 --nearest --dl\nsearch 460.01\n"
                              "channels GSM:e900 880 890.2\nwhich 630000 --dl\n"
                              "freq NR:n78 630000\ntable 9\ntechs";

QString optionCall(const ProgramOption &option)
{
    QStringList calls;
    for (const QString &name : option.allNames())
        calls << (name.size() == 1 ? QLatin1String("-") : QLatin1String("--")) + name;
    return calls.join(QLatin1String(", "))
           + (option.value ? QLatin1Char(' ') + QLatin1String(option.value) : QString());
}

// A section: its entries, aligned at width, then its prose.
struct Section
{
    QString title;
    QList<Entry> entries;
    int width = 0;
    QString prose;
};

QList<Section> sections()
{
    Section commandList{QStringLiteral("Commands"), {}, 22, {}};
    for (const Command &command : commands())
        commandList.entries.append({command.call(), command.summary});
    Section optionList{QStringLiteral("Options"), {}, 18, {}};
    for (const ProgramOption &option : programOptions()) {
        if (*option.help)
            optionList.entries.append({optionCall(option), option.help});
    }
    Section naming{QStringLiteral("Naming a band (one argument)"), {}, 27, QLatin1String(kNaming)};
    for (const auto &form : kNamingForms)
        naming.entries.append({QString::fromLatin1(form[0]), form[1]});
    return {commandList,
            naming,
            optionList,
            {QStringLiteral("Notes"), {}, 0, QLatin1String(kNotes)},
            {QStringLiteral("Exit status"), {}, 0, QLatin1String(kExit)}};
}

// The program's answer to one command line, stdout and stderr as a terminal shows them.
QString exampleOutput(const QString &line)
{
    QString text;
    QTextStream stream(&text);
    runProgram(QStringList{QStringLiteral("saiskuko")} + line.split(QLatin1Char(' ')), stream,
               stream);
    return text;
}

} // namespace

QString helpText()
{
    QString text = QStringLiteral("Usage: saiskuko [options] COMMAND [ARGUMENTS...]\n")
                   + QLatin1String(kSummary);
    for (const Section &section : sections()) {
        text += QLatin1Char('\n') + section.title + QLatin1String(":\n");
        const QString indent = QLatin1Char('\n') + QString(section.width + 4, QLatin1Char(' '));
        for (const Entry &entry : section.entries)
            text += QLatin1String("  ") + entry.call.leftJustified(section.width)
                    + QLatin1String("  ")
                    + QString::fromLatin1(entry.help).replace(QLatin1Char('\n'), indent)
                    + QLatin1Char('\n');
        text += section.prose;
    }
    return text;
}

// Entries as tagged paragraphs and prose filled, so that groff fits them to
// the terminal; the examples as they print.
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
    for (const Section &section : sections()) {
        text += QLatin1String(".SH ") + section.title.toUpper() + QLatin1Char('\n');
        for (const Entry &entry : section.entries)
            text += QLatin1String(".TP\n\\fB") + escaped(entry.call) + QLatin1String("\\fR\n")
                    + escaped(QString::fromLatin1(entry.help)) + QLatin1Char('\n');
        if (!section.prose.isEmpty())
            text += (section.entries.isEmpty() ? QString() : QStringLiteral(".PP\n"))
                    + escaped(section.prose.trimmed()) + QLatin1Char('\n');
    }
    text += QLatin1String(".SH EXAMPLES\n.nf\n");
    for (const QString &line : QString::fromLatin1(kExamples).split(QLatin1Char('\n')))
        text +=
            escaped(QLatin1String("$ saiskuko ") + line + QLatin1Char('\n') + exampleOutput(line))
            + QLatin1Char('\n');
    return text + QLatin1String(".fi\n");
}

namespace {

// The technology names and short forms (upper case, as people write them)
// that are one word: a name with a blank would be two candidates.
QStringList techWords(saiskuko::Technology tech)
{
    QStringList words{saiskuko::technologyName(tech)};
    for (const QString &form : saiskuko::technologyShortForms(tech))
        words << form.toUpper();
    return words.filter(QRegularExpression(QStringLiteral("^\\S+$")));
}

// Every TECH:BAND form of each band under each one-word name of its
// technology ("LTE:1", "FDD:1", "LTE-FDD:1") that names the band alone.
QStringList bandForms()
{
    QStringList forms;
    for (const saiskuko::Band &band : saiskuko::allBands()) {
        const QString bandPart = band.shortName().section(QLatin1Char(':'), 1);
        for (const QString &tech : techWords(band.technology())) {
            const QString form = tech + QLatin1Char(':') + bandPart;
            if (!bandPart.isEmpty() && saiskuko::findBand(form).value() == band)
                forms << form;
        }
    }
    return forms;
}

} // namespace

QString completionText()
{
    QStringList commandNames, optionNames, techs;
    for (const Command &command : commands())
        commandNames << QLatin1String(command.name);
    for (const ProgramOption &option : programOptions()) {
        for (const QString &name : option.allNames()) {
            if (*option.help && name.size() > 1)
                optionNames << QLatin1String("--") + name;
        }
    }
    for (saiskuko::Technology tech : saiskuko::technologies())
        techs << techWords(tech);
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
        "    if [[ ${COMP_WORDS[COMP_CWORD-1]} == --tech ]]; then\n"
        "        COMPREPLY=($(compgen -W \"$techs\" -- \"$cur\"))\n"
        "    elif [[ ${COMP_WORDS[COMP_CWORD-1]} == -o || ${COMP_WORDS[COMP_CWORD-1]} == --output "
        "]]; then\n"
        "        COMPREPLY=($(compgen -f -- \"$cur\"))\n"
        "    elif [[ $cur == -* ]]; then\n"
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
                    techs.join(QLatin1Char(' ')), bandForms().join(QLatin1Char(' ')));
}
