// orvanta day YYYY-MM-DD
#include <QTextStream>

#include "app/ProgramState.h"
#include "cli/Commands.h"
#include "cli/ConsoleSeams.h"
#include "shell/DateFormats.h"

namespace cli {

namespace {

void PrintMark(const ProgramState& state, const CellIndex& cell, QTextStream& out) {
    const MarkTables& tables = state.marks.years[Year::This];
    if (tables.set[cell] != 0) {
        const auto color = static_cast<quint32>(tables.category[cell]);
        const int category = state.markerColors.IndexOfColor(color);
        out << "Mark: "
            << (category >= 0 ? state.markerColors.Caption(category)
                              : QStringLiteral("colour %1").arg(color))
            << '\n';
    }
    if (!tables.hover[cell].isEmpty())
        out << "Hover text: " << tables.hover[cell] << '\n';
}

void PrintNote(const QString& note, QTextStream& out) {
    out << "\nNotes:\n";
    QString text = note;
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    out << text << (text.endsWith(u'\n') ? "" : "\n");
}

void PrintAppointments(const PlannerPage& page, QTextStream& out) {
    QStringList lines;
    for (int i = 0; i < kAppointmentLines; ++i) {
        if (page.slotTexts[i].isEmpty())
            continue;
        const QString time = page.times[i] + (page.bold[i] ? QStringLiteral(" (bold)") : QString());
        lines << QStringLiteral("  %1  %2").arg(time, -15).arg(page.slotTexts[i]);
    }
    if (!lines.isEmpty())
        out << "Appointments - Events - Meetings\n" << lines.join(u'\n') << '\n';
}

void PrintToDo(const PlannerPage& page, QTextStream& out) {
    QStringList lines;
    for (int j = 0; j < kPlannerToDoItems; ++j) {
        const QString& item = page.slotTexts[kFirstToDoSlot + j];
        if (!item.isEmpty() || page.done[j])
            lines << QStringLiteral("  [%1] %2").arg(QChar(page.done[j] ? u'x' : u' ')).arg(item);
    }
    if (!lines.isEmpty())
        out << "To Do List\n" << lines.join(u'\n') << '\n';
}

void PrintExpenses(const PlannerPage& page, QTextStream& out) {
    QStringList lines;
    for (int k = 0; k < kExpenseLines; ++k) {
        const QString& description = page.slotTexts[kFirstExpenseSlot + k];
        const QString& amount = page.slotTexts[kFirstAmountSlot + k];
        if (!description.isEmpty() || !amount.isEmpty())
            lines << QStringLiteral("  %1  %2").arg(description, -50).arg(amount, 10);
    }
    const QString& total = page.slotTexts[kTotalExpendituresSlot];
    if (lines.isEmpty() && total.isEmpty())
        return;
    out << "Expenditures\n" << lines.join(u'\n') << (lines.isEmpty() ? "" : "\n");
    out << QStringLiteral("  %1  %2").arg(QStringLiteral("Total Expenditures"), -50).arg(total, 10)
        << '\n';
}

void PrintMileage(const PlannerPage& page, QTextStream& out) {
    QStringList lines;
    for (int m = 0; m < kMileageLines; ++m) {
        const QString& destination = page.slotTexts[kFirstDestinationSlot + m];
        const QString& begin = page.slotTexts[kFirstBeginSlot + m];
        const QString& end = page.slotTexts[kFirstEndSlot + m];
        const QString& miles = page.slotTexts[kFirstMilesSlot + m];
        if (!(destination + begin + end + miles).isEmpty())
            lines << QStringLiteral("  %1  begin %2  end %3  miles %4")
                         .arg(destination, -40)
                         .arg(begin, 10)
                         .arg(end, 10)
                         .arg(miles, 10);
    }
    const QString& total = page.slotTexts[kTotalMileageSlot];
    if (lines.isEmpty() && total.isEmpty())
        return;
    out << "Mileage Records\n" << lines.join(u'\n') << (lines.isEmpty() ? "" : "\n");
    out << "  Total Mileage: " << total << '\n';
}

void PrintPlanner(const QString& record, QTextStream& out) {
    const PlannerPage page = ParsePlannerRecord(record);
    out << "\nPlanner:\n";
    PrintAppointments(page, out);
    PrintToDo(page, out);
    PrintExpenses(page, out);
    PrintMileage(page, out);
}

}  // namespace

int Day(const QStringList& arguments, const QString& dataFolder, QTextStream& out,
        QTextStream& err) {
    const QDate date = arguments.size() == 1
                           ? QDate::fromString(arguments[0], QStringLiteral("yyyy-MM-dd"))
                           : QDate();
    if (!date.isValid()) {
        err << "orvanta: day needs one date written YYYY-MM-DD, such as 2026-03-07"
            << (arguments.isEmpty() ? QString()
                                    : QStringLiteral(" (not \"%1\")").arg(arguments.join(u' ')))
            << '\n';
        return kExitUsage;
    }
    ConsoleSeams seams(err);
    ProgramState state(dataFolder, seams.dialogs, seams.clock, seams.platform);
    state.services.writesErrorLog = false;
    state.markerColors.ReadMarkerColors(state.services);
    // Only the date's own year is read: the window's next year is of no use here.
    DateModel& dates = state.dates;
    dates.SelectedDate = date;
    dates.SetYearBounds();
    dates.AssignThisYearsDateHolders();
    state.marks.ReadAndDisplayThisYearsMarks();
    state.notes.ReadThisYearsNotes();
    state.planner.ReadThisYearsPlanner();

    out << datefmt::Format(date, QStringLiteral("dddd, mmmm d yyyy")) << '\n';
    const auto cell = dates.FindDay(date);
    const QString note = state.notes.NoteOf(date);
    const QString record = state.planner.RecordOf(date);
    const bool marked =
        cell && (state.marks.MarkSet[*cell] != 0 || !state.marks.HoverText[*cell].isEmpty());
    if (!marked && IsBlank(note) && record.isEmpty())
        out << "No mark, note or planner page on this date.\n";
    if (cell)
        PrintMark(state, *cell, out);
    if (!IsBlank(note))
        PrintNote(note, out);
    if (!record.isEmpty())
        PrintPlanner(record, out);
    return seams.dialogs.Count() == 0 ? kExitOk : kExitDataError;
}

}  // namespace cli
