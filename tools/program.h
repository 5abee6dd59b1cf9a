#ifndef SAISKUKO_TOOLS_PROGRAM_H
#define SAISKUKO_TOOLS_PROGRAM_H

#include <QtCore/QString>
#include <QtCore/QStringList>

class QTextStream;

// The whole program on one argument vector (arguments[0] its name): answers
// go to out, messages (and, with --verbose, the library's diagnostics) to
// err. Returns the exit status. Safe to call again in the same process.
int runProgram(const QStringList &arguments, QTextStream &out, QTextStream &err);

// Whether the arguments ask for the library's diagnostics (--verbose), known
// before they are parsed.
bool verboseRequested(const QStringList &arguments);

// The pages the program prints from its command and option tables.
QString helpText();
QString manText();
QString completionText();

#endif
