#include "shell/ProgramState.h"

ProgramState::ProgramState(const QString& dataFolder, Dialogs& dialogs, Clock& clock,
                           Platform& platform)
    : services(dataFolder, dialogs, clock, platform) {}

void ProgramState::SelectDate(const QDate& date) {
    if (!date.isValid() || date == dates.SelectedDate)
        return;
    if (dates.SelectDate(date))
        emit yearChanged(dates.ThisYear);
    emit selectedDateChanged(date);
}
