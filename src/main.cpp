// orvanta-cli: runs a command of the command line with Qt's core library alone, so that a command
// such as "orvanta day 2026-03-07" starts in a few milliseconds. Started by orvanta (see
// launcher_main.cpp); arguments that name no command open the windowed program after all.
#include "app/CommandLine.h"
#include "app/HelperPrograms.h"

int main(int argc, char** argv) {
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    const auto parsed = ParseCommandLine(arguments);
    if (const int* status = std::get_if<int>(&parsed))
        return *status;
    const CommandLine& options = std::get<CommandLine>(parsed);
    return options.command.isEmpty() ? helpers::Become("orvanta-window", argv)
                                     : RunCommand(options);
}
