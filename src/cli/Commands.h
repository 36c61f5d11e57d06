#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class QTextStream;

class InstanceLock;

// The commands of the program's command line. Each reads the data folder through the same
// stores as the window, prints to out (UTF-8) and reports problems on err. None opens a window.
// Three write: ics import --yes (the data folder's files that the import changes), export and
// ics export (only the file they are given). These hold the folder's lock, the window's own,
// from before they read until they end; the others take no lock and work beside the window.
namespace cli {

// Exit statuses: done; the data could be read only in part (or, for a search, nothing was
// found); the command line was wrong, or a writing command found the folder open in the window.
constexpr int kExitOk = 0;
constexpr int kExitDataError = 1;
constexpr int kExitNothingFound = 1;
constexpr int kExitUsage = 2;

struct CommandInfo {
    QString name;
    QString usage;
    QString summary;
    int (*run)(const QStringList& arguments, const QString& dataFolder, QTextStream& out,
               QTextStream& err);
};

const QList<CommandInfo>& Commands();

// Takes the data folder for a command that writes. While another process (the window) holds
// it, says so on err and returns false: the command then writes nothing and ends with
// kExitUsage.
bool HoldFolderForWriting(InstanceLock& lock, QTextStream& err);

// Runs command (its name first, then its arguments) on dataFolder.
int RunCommand(const QStringList& command, const QString& dataFolder, QTextStream& out,
               QTextStream& err);

// day YYYY-MM-DD: the date's mark and hover text, its note and its planner page.
int Day(const QStringList& arguments, const QString& dataFolder, QTextStream& out,
        QTextStream& err);

// export planner|notes YYYY-MM-DD FILE: the date's page or note as a planner or notes file,
// exactly as the windows export it.
int Export(const QStringList& arguments, const QString& dataFolder, QTextStream& out,
           QTextStream& err);

// report expenses|mileage --from YYYY-MM-DD --to YYYY-MM-DD [--csv]: the expense or mileage
// report of the period (both dates included, one year) as text, or with --csv as CSV.
int PrintReport(const QStringList& arguments, const QString& dataFolder, QTextStream& out,
                QTextStream& err);

// search PHRASE [--year YYYY | --all-years] [--notes | --planners]: the dates whose note or
// planner page holds the phrase, whatever the letters' case, one a line ("2026-03-07<TAB>notes"),
// in date order.
int Search(const QStringList& arguments, const QString& dataFolder, QTextStream& out,
           QTextStream& err);

// ics export FILE [--from YYYY-MM-DD] [--to YYYY-MM-DD]: the planner as an iCalendar file.
// ics import FILE [--years YYYY[-YYYY]] [--holidays | --marks] [--yes]: prints what the file would
// change (repeating events taken over the years given, this year by default; all-day events
// made holidays with --holidays, Holiday marks with --marks) and writes it only with --yes. ics
// check FILE: whether libical takes the file whole.
int Ics(const QStringList& arguments, const QString& dataFolder, QTextStream& out,
        QTextStream& err);

}  // namespace cli
