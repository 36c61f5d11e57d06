#include "app/CommandLine.h"

#include <QCommandLineParser>
#include <QStandardPaths>
#include <QTextStream>
#include <cstdio>

#include "Version.h"
#include "cli/Commands.h"

namespace {

QString Description() {
    QString text = QStringLiteral(
        "Orvanta - Planner and Date Management: calendar, notes, daily planner, expenses and "
        "mileage.\n\nWithout a command Orvanta opens its window. A command reads the data "
        "folder and prints to standard output, without a window. Three commands write, and "
        "only these files: export and ics export write the FILE they are given; ics import "
        "--yes writes the data folder's files that the import changes, each once: a year's "
        "Planner.dat and Notes.dat, its holiday list (--holidays) or its marks file (--marks, "
        "the old one kept as .bak). No other command creates or "
        "changes a file. While Orvanta's window is open on the data folder, a writing command "
        "writes nothing and exits with status 2.\n\n"
        "Commands:\n");
    for (const cli::CommandInfo& command : cli::Commands())
        text += QStringLiteral("  %1\n      %2\n").arg(command.usage, command.summary);
    return text;
}

}  // namespace

std::variant<CommandLine, int> ParseCommandLine(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(Description());
    const QCommandLineOption help(QStringList{QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Show this help and exit."));
    const QCommandLineOption version(QStringLiteral("version"),
                                     QStringLiteral("Show the program's version and exit."));
    const QCommandLineOption dataDir(
        QStringLiteral("data-dir"),
        QStringLiteral("Keep the data files in DIR (default: the per-user data folder, "
                       "~/.local/share/Orvanta on Linux)."),
        QStringLiteral("DIR"));
    const QCommandLineOption exitWhenShown(
        QStringLiteral("exit-when-shown"),
        QStringLiteral("Quit as soon as the main window has been drawn (start-up timing)."));
    parser.addOptions({help, version, dataDir, exitWhenShown});
    // What follows the command is the command's own: "search dentist --year 2026".
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    parser.addPositionalArgument(QStringLiteral("command"),
                                 QStringLiteral("A command (see above) and its arguments."),
                                 QStringLiteral("[command [arguments]]"));
    if (!parser.parse(arguments)) {
        std::fprintf(stderr, "orvanta: %s\nTry orvanta --help.\n", qPrintable(parser.errorText()));
        return 2;
    }
    if (parser.isSet(help)) {
        // Without an application object the parser does not know the program's name.
        QString text = parser.helpText();
        text.replace(QStringLiteral("<executable_name>"), QStringLiteral("orvanta"));
        std::fputs(qPrintable(text.trimmed() + u'\n'), stdout);
        return 0;
    }
    if (parser.isSet(version)) {
        std::puts("Orvanta " ORVANTA_VERSION);
        return 0;
    }
    CommandLine options;
    options.dataDir = parser.value(dataDir);
    options.exitWhenShown = parser.isSet(exitWhenShown);
    options.command = parser.positionalArguments();
    return options;
}

int RunCommand(const CommandLine& options) {
    QTextStream out(stdout), err(stderr);
    return cli::RunCommand(options.command,
                           options.dataDir.isEmpty() ? DefaultDataFolder() : options.dataDir, out,
                           err);
}

QString DefaultDataFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/Orvanta");
}
