#pragma once

#include "assignment/modEmployeeInfo.h"
#include "calendar/DateModel.h"
#include "calendar/MarkerColors.h"
#include "calendar/modMarks.h"
#include "decorations/modIcons.h"
#include "decorations/modMonthIcons.h"
#include "help/modHelp.h"
#include "holidays_birthdays/modBirthdays.h"
#include "holidays_birthdays/modHolidays.h"
#include "notes_planner/SearchState.h"
#include "notes_planner/UnsavedWork.h"
#include "notes_planner/modNotes.h"
#include "notes_planner/modPlanner.h"
#include "reminders/modAlerts.h"
#include "reminders/modToDo.h"
#include "reports/modBudget.h"
#include "shell/Prompts.h"
#include "shell/Services.h"
#include "shell/UserPreferences.h"
#include "terms/modFUT.h"

// The program-wide state: the data folder and seams, the working date fields with both years'
// date holders, and one instance of each store. main() makes one; each test makes its own on a
// temporary folder. Windows receive the stores they need.
struct ProgramState {
    ProgramState(const QString& dataFolder, Dialogs& dialogs, Clock& clock, Platform& platform);

    Services services;
    HelpTopics help;
    ChangeFlags changes;
    UserPreferences prefs;
    DateModel dates;
    MarkerColors markerColors;
    DateMarks marks;
    NotesStore notes;
    PlannerStore planner;
    HolidayStore holidays;
    BirthdayStore birthdays;
    SearchState search;
    UnsavedWork unsaved;
    AlertsStore alerts;
    ToDoStore toDo;
    ContactList contacts;
    modFUT terms;
    modBudget budget;
    modIcons icons;
    modMonthIcons monthIcons;
};
