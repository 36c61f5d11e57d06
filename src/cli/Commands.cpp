#include "cli/Commands.h"

#include <QFileInfo>
#include <QTextStream>

#include "cli/CliMessages.h"
#include "shell/InstanceLock.h"

namespace cli {

const QList<CommandInfo>& Commands() {
    static const QList<CommandInfo> commands = {
        {QStringLiteral("day"), QStringLiteral("day YYYY-MM-DD"),
         QStringLiteral("Print the date's mark and hover text, its note and its planner page."),
         Day},
        {QStringLiteral("export"), QStringLiteral("export planner|notes YYYY-MM-DD FILE"),
         QStringLiteral("Write the date's planner page (.pln) or note (.nte) to FILE."), Export},
        {QStringLiteral("ics"),
         QStringLiteral("ics export FILE [--from YYYY-MM-DD] [--to YYYY-MM-DD] | ics import FILE "
                        "[--years YYYY[-YYYY]] [--holidays | --marks] [--yes] | ics check FILE"),
         QStringLiteral(
             "Write the planner as an iCalendar file; or show what an iCalendar file "
             "would add (repeating events over --years, this year by default; all-day "
             "events as holidays with --holidays, as Holiday marks with --marks) and add "
             "it with --yes; or check "
             "that libical reads a file whole."),
         Ics},
        {QStringLiteral("report"),
         QStringLiteral("report expenses|mileage --from YYYY-MM-DD --to YYYY-MM-DD [--csv]"),
         QStringLiteral("Print the expense or mileage report of the period (both dates "
                        "included, within one year); with --csv as CSV for a spreadsheet."),
         PrintReport},
        {QStringLiteral("search"),
         QStringLiteral("search PHRASE [--year YYYY | --all-years] [--notes | --planners]"),
         QStringLiteral("Print the dates whose note or planner page holds the phrase (any letter "
                        "case), one a line: YYYY-MM-DD, a tab, \"notes\" or \"planner\"."),
         Search},
    };
    return commands;
}

bool HoldFolderForWriting(InstanceLock& lock, QTextStream& err) {
    if (lock.TryAcquire())
        return true;
    err << kFolderInUseMessage << '\n';
    return false;
}

int RunCommand(const QStringList& command, const QString& dataFolder, QTextStream& out,
               QTextStream& err) {
    for (const CommandInfo& info : Commands()) {
        if (info.name != command.value(0))
            continue;
        if (!QFileInfo(dataFolder).isDir()) {
            err << "orvanta: the data folder " << dataFolder << " does not exist\n";
            return kExitUsage;
        }
        return info.run(command.mid(1), dataFolder, out, err);
    }
    err << "orvanta: unknown command \"" << command.value(0) << "\" (see orvanta --help)\n";
    return kExitUsage;
}

}  // namespace cli
