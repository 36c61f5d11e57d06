#pragma once

#include <QString>
#include <QStringList>
#include <variant>

// What the program was asked to do on its command line.
struct CommandLine {
    QString dataDir;
    bool exitWhenShown = false;
    // A command and its arguments ("day", "2026-03-07"); empty to open the window.
    QStringList command;
};

// Parses the program's arguments (the program's name first). --help and --version are
// answered here, on standard output; a malformed command line is reported on standard error.
// Returns the options, or the exit status when the program should stop now.
std::variant<CommandLine, int> ParseCommandLine(const QStringList& arguments);

// Runs the command of options on its data folder, printing to standard output and error;
// returns the exit status.
int RunCommand(const CommandLine& options);

// The data folder of a user who names none: ~/.local/share/Orvanta on Linux.
QString DefaultDataFolder();
