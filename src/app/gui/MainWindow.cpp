#include "app/gui/MainWindow.h"

#include "app/ProgramState.h"
#include "app/gui/frmUserOptions.h"
#include "assignment/gui/AssignmentMenus.h"
#include "calculators/gui/CalculatorMenus.h"
#include "calendar/gui/CalendarMenus.h"
#include "calendar/gui/CalendarOptionMenus.h"
#include "calendar/gui/CalendarView.h"
#include "decorations/gui/CalendarPrintMenus.h"
#include "decorations/gui/DecorationMenus.h"
#include "help/gui/HelpMenus.h"
#include "holidays_birthdays/gui/HolidaysBirthdaysMenus.h"
#include "ical/gui/ICalMenus.h"
#include "notes_planner/gui/NotesPlannerMenus.h"
#include "reminders/gui/AlertTray.h"
#include "reminders/gui/RemindersMenus.h"
#include "reports/gui/BudgetMenus.h"
#include "reports/gui/ReportMenus.h"
#include "shell/gui/ShellMenus.h"
#include "shell/gui/TimeOfDay.h"
#include "terms/gui/TermBoxes.h"
#include "terms/gui/TermMenus.h"

MainWindow CreateMainWindow(ProgramState& state, Printer& printer) {
    MainWindow window;
    window.frame = std::make_unique<frmMain>(state.services, state.changes, state.prefs);
    frmMain& frame = *window.frame;
    auto* help = new HelpMenus(frame, state.help, state.services);
    auto* calendar =
        new CalendarMenus(frame, state.services, state.dates, state.markerColors, state.marks);
    auto* decorations = new DecorationMenus({frame, state.services, state.dates, state.changes,
                                             state.icons, state.monthIcons, *calendar});
    auto* assignment = new AssignmentMenus(frame, state.services, state.contacts, state.prefs);
    auto* terms = new TermMenus(frame, state.services, state.prefs, state.terms,
                                [calendar]() -> QWidget* { return calendar->calendarView(); });
    const NotesPlannerContext context{
        frame,
        state.services,
        state.dates,
        state.notes,
        state.planner,
        state.toDo,
        state.changes,
        state.prefs,
        state.search,
        state.unsaved,
        printer,
        [terms](QWidget* box, int key) { terms->TermKey(box, key); },
        [terms](QWidget* box) { terms->boxes().Attach(box); },
        [terms] { terms->ShowTermWindow(); },
        {},
        {},
        [assignment](const QString& path) { assignment->AssignExport(path); },
        [assignment](const QString& text) { assignment->PlannerCopied(text); }};
    auto* notesPlanner = new NotesPlannerMenus(context, *calendar);
    auto* holidaysBirthdays = new HolidaysBirthdaysMenus(
        {frame, state.services, state.dates, state.holidays, state.birthdays, *calendar});
    new ReportMenus({frame, state.services, state.dates, state.prefs, printer});
    new BudgetMenus({frame, state.services, state.dates, state.prefs, printer}, state.budget);
    new ShellMenus(frame, state.services, state.prefs);
    new ICalMenus(frame, {state.services, state.prefs, state.dates, state.planner, state.notes,
                          state.holidays, state.marks, state.markerColors});
    new CalendarPrintMenus(frame, state.services, state.dates, *calendar, state.markerColors,
                           printer);
    auto* calendarOptions =
        new CalendarOptionMenus(frame, state.services, state.dates, state.prefs, *calendar);
    auto* timeOfDay = new TimeOfDay(frame, state.services, state.prefs);
    // The clock and the day numbers as the preferences left them.
    const auto showSaved = [calendarOptions, timeOfDay] {
        calendarOptions->ShowAtStart();
        timeOfDay->ShowAtStart();
    };
    new CalculatorMenus(frame, state.services, state.dates);
    ConnectUserOptions(frame, state,
                       [terms](const QStringList& keys) { terms->PreferencesChanged(keys); });
    auto* reminders =
        new RemindersMenus(frame, state.services, state.dates, state.alerts, state.toDo, printer);
    // The notification area also tells of the birthdays within their alert period.
    reminders->tray().SetPendingBirthdays([&state] {
        return state.birthdays.pending.isEmpty() ? QString() : state.birthdays.PendingText();
    });
    QObject::connect(&state.birthdays, &BirthdayStore::birthdaysRead, &reminders->tray(),
                     &AlertTray::Refresh);
    window.help = help;
    window.calendar = calendar;
    window.decorations = decorations;
    window.notesPlanner = notesPlanner;
    window.reminders = reminders;
    window.terms = terms;

    // What the program reads at start-up, in this order: the help topics, the preferences,
    // the working date from today, the marker colours, both years' date holders and the
    // per-year stores, the alerts, the birthdays and the to-do list, then the year's calendar
    // and the month's tasks and the term window; last, typing a session ended without saving
    // is offered back, and what is due is announced on the desktop.
    frame.SetLoadSteps([&state, &frame, help, calendar, decorations, notesPlanner,
                        holidaysBirthdays, reminders, terms, showSaved] {
        help->LoadHelpTopics();
        state.prefs.GetUserPreferences(state.services);
        showSaved();
        state.dates.SelectedDate = state.services.clock.today();
        state.dates.SetYearBounds();
        calendar->ReadMarkerColors();
        decorations->Load();
        state.dates.AssignThisYearsDateHolders();
        state.dates.AssignNextYearsDateholders();
        state.dates.ReadYearStores();
        state.alerts.ReadAlerts();
        state.birthdays.ReadBirthdays();
        holidaysBirthdays->ShowHoliday();
        state.toDo.ReadToDoList();
        calendar->Show1YearCalendar();
        frame.ShowSelectedDate(state.dates.SelectedDate);
        notesPlanner->Refresh();
        terms->ShowAtStart();
        notesPlanner->OfferUnsavedWork();
        reminders->tray().AnnounceDue();
    });
    return window;
}
