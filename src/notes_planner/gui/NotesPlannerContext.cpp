#include "notes_planner/gui/NotesPlannerContext.h"

#include "calendar/DateModel.h"

void NotesPlannerContext::LoadYearOf(const QDate& date) {
    if (!dates.HolderFor(date))
        dates.SelectDate(date);
}
