// The program's argument handling in-process: argument vectors made from the input (one argument
// per line), run through the same dispatcher as the installed program.
#include "fuzzinput.h"

#include "program.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QTextStream>

#include <algorithm>

namespace {

// Enough for every command's shape; more only repeats the scans.
constexpr int kMostArguments = 8;

// Options whose names hold an 'o' but write no file.
const QStringList kSafeOptions{QStringLiteral("--json"), QStringLiteral("--verbose"),
                               QStringLiteral("--version"), QStringLiteral("--completion")};

// --help (also as "--h": the short name written long), -h also among
// compacted short options ("-qh"), --man and --completion print pages, not
// JSON.
bool asksForPage(const QString &argument)
{
    if (argument.startsWith(QLatin1String("--")))
        return QStringList{QStringLiteral("--h"), QStringLiteral("--help"), QStringLiteral("--man"),
                           QStringLiteral("--completion")}
            .contains(argument);
    return argument.startsWith(QLatin1Char('-')) && argument.contains(QLatin1Char('h'));
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    fuzz::silence();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString input = QString::fromUtf8(reinterpret_cast<const char *>(data), int(size));
    QStringList arguments = input.split(QLatin1Char('\n'));
    // batch reads standard input or a named file: not the program's arguments.
    if (arguments.size() > kMostArguments || arguments.contains(QStringLiteral("batch")))
        return 0;
    // chart -o writes a file wherever it is told.
    for (const QString &argument : arguments) {
        if (argument.startsWith(QLatin1Char('-')) && argument.contains(QLatin1Char('o'))
            && !kSafeOptions.contains(argument))
            return 0;
    }
    arguments.prepend(QStringLiteral("saiskuko"));

    QString outText, errText;
    QTextStream out(&outText), err(&errText);
    const int status = runProgram(arguments, out, err);
    FUZZ_CHECK(status >= 0 && status <= 2);
    // Bad input always says why; an answer always says something.
    FUZZ_CHECK(status != 2 || !errText.isEmpty());
    FUZZ_CHECK(status != 0 || !outText.isEmpty());
    const bool json = arguments.contains(QStringLiteral("--json"));
    const bool pages = std::any_of(arguments.begin(), arguments.end(), asksForPage);
    if (json && !pages && !outText.isEmpty())
        FUZZ_CHECK(QJsonDocument::fromJson(outText.toUtf8()).isObject());
    // No control character of the input reaches a terminal raw.
    const auto raw = [](QChar c) { return c < QLatin1Char(' ') && c != QLatin1Char('\n'); };
    FUZZ_CHECK(std::none_of(errText.begin(), errText.end(), raw));
    FUZZ_CHECK(std::none_of(outText.begin(), outText.end(), raw));
    return 0;
}
