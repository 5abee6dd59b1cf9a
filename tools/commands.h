#ifndef SAISKUKO_TOOLS_COMMANDS_H
#define SAISKUKO_TOOLS_COMMANDS_H

#include "output.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

// The options a command may read; the program rejects those a command does not take.
struct CommandOptions
{
    QList<saiskuko::Link> links;  // --ul / --dl; empty: every link the band has
    std::optional<int> preferred; // --preferred
    int link = 0;                 // --link, for table
    bool nearest = false;
    QStringList techs;  // --tech, for chart: technologies to draw
    QStringList marks;  // --mark, for chart: frequencies to mark
    QString outputFile; // -o, for chart: where the SVG goes instead of stdout
};

// Every option of the program. The commands name the ones they take; the
// common ones go with every command.
struct ProgramOption
{
    const char *names; // blank-separated, long name last
    const char *value; // the value's name, or nullptr for a switch
    const char *help;  // none for build-time outputs, not for people
    bool common = false;

    QStringList allNames() const { return QString::fromLatin1(names).split(QLatin1Char(' ')); }
};
const QList<ProgramOption> &programOptions();

struct Command
{
    const char *name;
    const char *usage; // arguments: [X] optional, a last X... repeatable
    const char *summary;
    const char *options; // the options it takes besides the common ones, blank-separated
    // Null for the command the program runs itself (batch).
    Outcome (*run)(const QStringList &args, const CommandOptions &options);

    // "freq BAND CHANNEL...", for messages and help.
    QString call() const
    {
        return (QLatin1String(name) + QLatin1Char(' ') + QLatin1String(usage)).trimmed();
    }
};

const QList<Command> &commands();

#endif
