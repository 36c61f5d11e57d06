#include "shell/ProgramState.h"

ProgramState::ProgramState(const QString& dataFolder, Dialogs& dialogs, Clock& clock,
                           Platform& platform)
    : services(dataFolder, dialogs, clock, platform), marks(services, dates, markerColors) {}

void ProgramState::SelectDate(const QDate& date) {
    if (!date.isValid() || date == dates.SelectedDate)
        return;
    if (dates.SelectDate(date)) {
        marks.ReadAndDisplayThisYearsMarks();
        marks.ReadAndDisplayNextYearsMarks();
        emit yearChanged(dates.ThisYear);
    }
    emit selectedDateChanged(date);
}
