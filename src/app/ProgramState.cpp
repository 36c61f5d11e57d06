#include "app/ProgramState.h"

ProgramState::ProgramState(const QString& dataFolder, Dialogs& dialogs, Clock& clock,
                           Platform& platform)
    : services(dataFolder, dialogs, clock, platform),
      marks(services, dates, markerColors),
      notes(services, dates),
      planner(services, dates),
      holidays(services, dates),
      birthdays(services, dates),
      unsaved(services),
      alerts(services),
      toDo(services),
      contacts(services),
      terms(services, prefs),
      budget(services),
      icons(services),
      monthIcons(services, changes) {
    // Every store with a table per year reads both years again when the year on show changes.
    dates.AddYearStore(&marks);
    dates.AddYearStore(&notes);
    dates.AddYearStore(&planner);
    dates.AddYearStore(&holidays);
    dates.AddYearStore(&birthdays);
}
