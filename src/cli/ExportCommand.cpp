// orvanta export planner|notes YYYY-MM-DD FILE
#include <QTextStream>

#include "app/ProgramState.h"
#include "cli/Commands.h"
#include "cli/ConsoleSeams.h"
#include "notes_planner/ExternalFiles.h"
#include "shell/InstanceLock.h"
#include "shell/SafeSave.h"
#include "shell/VbError.h"

namespace cli {

namespace {

const QString kUsage = QStringLiteral("export planner|notes YYYY-MM-DD FILE");

int Usage(QTextStream& err, const QString& problem) {
    err << "orvanta: " << problem << " (usage: orvanta " << kUsage << ")\n";
    return kExitUsage;
}

// The date's page rebuilt from its record, or its note, as the windows export them; empty
// when the date has none.
QByteArray ContentOf(const ProgramState& state, bool planner, const QDate& date) {
    if (planner) {
        const QString record = state.planner.RecordOf(date);
        return record.isEmpty() ? QByteArray()
                                : ExternalPlannerBytes(date, ParsePlannerRecord(record));
    }
    const QString note = state.notes.NoteOf(date);
    return IsBlank(note) ? QByteArray() : ExternalNotesBytes(date, note);
}

}  // namespace

int Export(const QStringList& arguments, const QString& dataFolder, QTextStream& out,
           QTextStream& err) {
    if (arguments.size() != 3)
        return Usage(err, QStringLiteral("export needs a kind, a date and a file name"));
    const QString& kind = arguments[0];
    if (kind != QLatin1String("planner") && kind != QLatin1String("notes"))
        return Usage(err, QStringLiteral("export takes planner or notes, not \"%1\"").arg(kind));
    const QDate date = QDate::fromString(arguments[1], QStringLiteral("yyyy-MM-dd"));
    if (!date.isValid())
        return Usage(err,
                     QStringLiteral("\"%1\" is not a date written YYYY-MM-DD").arg(arguments[1]));
    const bool planner = kind == QLatin1String("planner");
    InstanceLock lock(dataFolder);
    if (!HoldFolderForWriting(lock, err))
        return kExitUsage;

    ConsoleSeams seams(err);
    ProgramState state(dataFolder, seams.dialogs, seams.clock, seams.platform);
    state.services.writesErrorLog = false;
    DateModel& dates = state.dates;
    dates.SelectedDate = date;
    dates.SetYearBounds();
    dates.AssignThisYearsDateHolders();
    if (planner)
        state.planner.ReadThisYearsPlanner();
    else
        state.notes.ReadThisYearsNotes();

    const QByteArray content = ContentOf(state, planner, date);
    if (content.isEmpty()) {
        err << "orvanta: " << arguments[1] << " has no " << (planner ? "planner page" : "notes")
            << "; nothing was written\n";
        return kExitDataError;
    }
    try {
        safesave::Replace(arguments[2], content);
    } catch (const VbError& error) {
        err << "orvanta: could not write " << arguments[2] << ": " << error.description() << '\n';
        return kExitDataError;
    }
    out << "Wrote " << arguments[2] << " (" << content.size() << " bytes)\n";
    return seams.dialogs.Count() == 0 ? kExitOk : kExitDataError;
}

}  // namespace cli
