#include "notes_planner/gui/PlannerPrint.h"

#include "notes_planner/gui/NotesPlannerMessages.h"
#include "shell/DateFormats.h"

namespace {

QFont Body() {
    return PrintFont(QStringLiteral("Arial"), 10);
}
QFont Bold() {
    return PrintFont(QStringLiteral("Arial"), 10, true);
}
QFont SectionFont() {
    return PrintFont(QStringLiteral("Arial"), 11, true);
}

void Section(PageWriter& writer, const QString& caption) {
    writer.Blank();
    writer.SetFont(SectionFont());
    writer.Line(caption);
    writer.SetFont(Body());
}

void Appointments(PageWriter& writer, const PlannerPage& page) {
    Section(writer, QStringLiteral("Appointments - Events - Meetings"));
    for (int line = 0; line < kAppointmentLines; ++line) {
        writer.SetFont(page.bold[line] ? Bold() : Body());
        writer.Hanging(page.times[line], 24, page.slotTexts[line]);
    }
    writer.SetFont(Body());
}

void ToDoList(PageWriter& writer, const PlannerPage& page) {
    Section(writer, QStringLiteral("To Do List"));
    for (int item = 0; item < kPlannerToDoItems; ++item)
        writer.Hanging(page.done[item] ? QStringLiteral("[x]") : QStringLiteral("[  ]"), 10,
                       page.slotTexts[kFirstToDoSlot + item]);
}

void Expenses(PageWriter& writer, const PlannerPage& page) {
    const QList<qreal> stops = {0, 110, 115};
    writer.Blank();
    writer.SetFont(SectionFont());
    writer.Columns({QStringLiteral("Expenditures"), QString(), QStringLiteral("Amount")}, stops);
    writer.SetFont(Body());
    for (int k = 0; k < kExpenseLines; ++k)
        writer.Columns({page.slotTexts[kFirstExpenseSlot + k], QStringLiteral("$"),
                        page.slotTexts[kFirstAmountSlot + k]},
                       stops);
    writer.SetFont(Bold());
    writer.Columns({QStringLiteral("Total Expenditures"), QStringLiteral("$"),
                    page.slotTexts[kTotalExpendituresSlot]},
                   stops);
    writer.SetFont(Body());
}

void Mileage(PageWriter& writer, const PlannerPage& page) {
    const QList<qreal> stops = {0, 100, 125, 150};
    Section(writer, QStringLiteral("Mileage Records"));
    writer.SetFont(Bold());
    writer.Columns({QStringLiteral("Destination"), QStringLiteral("Begin"), QStringLiteral("End"),
                    QStringLiteral("Miles")},
                   stops);
    writer.SetFont(Body());
    for (int m = 0; m < kMileageLines; ++m)
        writer.Columns(
            {page.slotTexts[kFirstDestinationSlot + m], page.slotTexts[kFirstBeginSlot + m],
             page.slotTexts[kFirstEndSlot + m], page.slotTexts[kFirstMilesSlot + m]},
            stops);
    writer.SetFont(Bold());
    writer.Columns(
        {QString(), QString(), QStringLiteral("Total Mileage"), page.slotTexts[kTotalMileageSlot]},
        {0, 100, 118, 150});
    writer.SetFont(Body());
}

}  // namespace

QString PlannerPrintTitle(const QDate& date) {
    return QStringLiteral("Daily Planner ") + date.toString(Qt::ISODate);
}

Printer::Document PlannerDocument(const QDate& date, const PlannerPage& page) {
    return [date, page](PageWriter& writer) {
        writer.SetHeading({kPlannerPrintHeading, datefmt::LongDate(date)});
        writer.SetFont(Body());
        Appointments(writer, page);
        ToDoList(writer, page);
        Expenses(writer, page);
        Mileage(writer, page);
    };
}
