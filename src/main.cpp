// orvanta: runs a command of the command line, or starts the windowed program. Commands need
// only Qt's core library, so this program loads nothing of the window system and a command
// such as "orvanta day 2026-03-07" starts in a few milliseconds. Without a command it hands
// its arguments over to orvanta-window, which lies beside it in the build folder and in the
// program's libexec folder once installed.
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <cstdio>
#include <cstring>

#include "app/CommandLine.h"

namespace {

const char* const kWindowProgram = "orvanta-window";

QByteArray WindowProgramPath() {
    const QString folder =
        QFileInfo(QFile::symLinkTarget(QStringLiteral("/proc/self/exe"))).absolutePath();
    const QString beside = folder + u'/' + QLatin1String(kWindowProgram);
    if (QFileInfo::exists(beside))
        return QFile::encodeName(beside);
    return QFile::encodeName(QDir::cleanPath(folder +
                                             QStringLiteral("/" ORVANTA_WINDOW_DIR_FROM_BIN "/") +
                                             QLatin1String(kWindowProgram)));
}

int StartWindowProgram(char** argv) {
    const QByteArray path = WindowProgramPath();
    argv[0] = const_cast<char*>(path.constData());
    ::execv(path.constData(), argv);
    std::fprintf(stderr, "orvanta: cannot start %s: %s\n", path.constData(), std::strerror(errno));
    return 1;
}

}  // namespace

int main(int argc, char** argv) {
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    const auto parsed = ParseCommandLine(arguments);
    if (const int* status = std::get_if<int>(&parsed))
        return *status;
    const CommandLine& options = std::get<CommandLine>(parsed);
    return options.command.isEmpty() ? StartWindowProgram(argv) : RunCommand(options);
}
