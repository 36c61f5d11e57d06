#include "app/gui/MainWindow.h"

#include "app/ProgramState.h"
#include "calculators/gui/CalculatorMenus.h"
#include "calendar/gui/CalendarMenus.h"
#include "calendar/gui/CalendarView.h"
#include "help/gui/HelpMenus.h"
#include "holidays_birthdays/gui/HolidaysBirthdaysMenus.h"
#include "notes_planner/gui/NotesPlannerMenus.h"
#include "reports/gui/ReportMenus.h"
#include "shell/gui/ShellMenus.h"
#include "terms/gui/TermBoxes.h"
#include "terms/gui/TermMenus.h"

MainWindow CreateMainWindow(ProgramState& state, Printer& printer) {
    MainWindow window;
    window.frame = std::make_unique<frmMain>(state.services, state.changes, state.prefs);
    frmMain& frame = *window.frame;
    auto* help = new HelpMenus(frame, state.help, state.services);
    auto* calendar =
        new CalendarMenus(frame, state.services, state.dates, state.markerColors, state.marks);
    auto* terms = new TermMenus(frame, state.services, state.prefs, state.terms,
                                [calendar]() -> QWidget* { return calendar->calendarView(); });
    const NotesPlannerContext context{frame,
                                      state.services,
                                      state.dates,
                                      state.notes,
                                      state.planner,
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
                                      {}};
    auto* notesPlanner = new NotesPlannerMenus(context, *calendar);
    auto* holidaysBirthdays = new HolidaysBirthdaysMenus(
        {frame, state.services, state.dates, state.holidays, state.birthdays, *calendar});
    new ReportMenus({frame, state.services, state.dates, state.planner, state.prefs, printer});
    new ShellMenus(frame, state.services, state.prefs);
    new CalculatorMenus(frame, state.services, state.dates);
    window.help = help;
    window.calendar = calendar;
    window.notesPlanner = notesPlanner;
    window.terms = terms;

    // What the program reads at start-up, in this order: the help topics, the preferences,
    // the working date from today, the marker colours, both years' date holders and the
    // per-year stores, the birthdays, then the year's calendar and the month's tasks; last,
    // typing a session ended without saving is offered back.
    frame.SetLoadSteps([&state, &frame, help, calendar, notesPlanner, holidaysBirthdays, terms] {
        help->LoadHelpTopics();
        state.prefs.GetUserPreferences(state.services);
        state.dates.SelectedDate = state.services.clock.today();
        state.dates.SetYearBounds();
        calendar->ReadMarkerColors();
        state.dates.AssignThisYearsDateHolders();
        state.dates.AssignNextYearsDateholders();
        state.dates.ReadYearStores();
        state.birthdays.ReadBirthdays();
        holidaysBirthdays->ShowHoliday();
        calendar->Show1YearCalendar();
        frame.ShowSelectedDate(state.dates.SelectedDate);
        notesPlanner->Refresh();
        terms->ShowAtStart();
        notesPlanner->OfferUnsavedWork();
    });
    return window;
}
