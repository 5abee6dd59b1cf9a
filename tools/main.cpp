// saiskuko: the band plan from a shell.

#include "output.h"
#include "program.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QIODevice>
#include <QtCore/QTextStream>

#include <cstdio>
#include <cstring>

namespace {

// The library logs its banner while it loads, before main() can tell whether
// --verbose was given. A handler installed ahead of every library initialiser
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

} // namespace

// Only an exhausted heap escapes, and ends the program as it should.
int main(int argc, char *argv[]) // NOLINT(bugprone-exception-escape)
{
    QCoreApplication app(argc, argv);
    // Bytes that are not UTF-8 are kept, to be shown escaped.
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << userText(QByteArray(argv[i]));
    releaseEarlyLog(verboseRequested(arguments));
    qInstallMessageHandler(libraryDiagnostic);

    QTextStream out(stdout, QIODevice::WriteOnly), err(stderr, QIODevice::WriteOnly);
    return runProgram(arguments, out, err);
}
