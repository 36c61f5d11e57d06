#pragma once

#include <QDate>
#include <QObject>

#include "notes_planner/UnsavedWork.h"
#include "notes_planner/gui/NotesPlannerContext.h"

class CalendarMenus;
class QListWidget;
class QListWidgetItem;
class frmNoteList;
class frmNotes;
class frmPlanner;

// The notes and planner's part of the main window: which days of the calendar views have a
// note or a planner page, the two indicators of the selected date, the month's tasks, and the
// notes and planner windows, opened from the menus, the buttons, the calendar and the tasks.
class NotesPlannerMenus : public QObject {
    Q_OBJECT
public:
    NotesPlannerMenus(const NotesPlannerContext& context, CalendarMenus& calendar);

    // The notes or the planner window on the selected date, opened or brought up.
    // askToRestore false: a safety copy of the date is restored without asking.
    frmNotes* OpenNotes(bool askToRestore = true);
    frmPlanner* OpenPlanner(bool askToRestore = true);
    // The notes or the planner window showing the planner or notes file at path; a window
    // opened for it closes again when the file cannot be shown.
    void OpenExternalNotes(const QString& path, bool askToRestore = true);
    void OpenExternalPlanner(const QString& path, bool askToRestore = true);
    // Selects date and opens its planner window (planner) or its notes window.
    void OpenOn(const QDate& date, bool planner);
    // The notes and planner management window, opened or brought up.
    frmNoteList* OpenNoteList();
    // A date found by a search or listed by the manager, opened in its notes or planner
    // window with the search phrase's first occurrence selected; a date whose note or page has
    // gone in the meantime is said so.
    void OpenFound(const QDate& date, bool planner);
    // The search window, opened or brought up.
    void OpenSearch();
    frmNotes* notesWindow() const;
    frmPlanner* plannerWindow() const;

    // At start-up: typing a session ended without saving is offered back, once, each editor's
    // with a question; Yes opens its editor on its date with the text restored, No leaves it
    // to be offered when that date's editor is opened.
    void OfferUnsavedWork();

    // Shows what the stores now hold: the indicators, the tasks and the calendar. Runs once
    // after the stores' reads, and at load.
    void Refresh();
    // Fills lstTasks with the selected month's dates that have a note or a planner page, in
    // date order, each with the first line of its page or note.
    void FillTasks();
    // Lights imgNotes and imgPlanner when the selected date has a note or a planner page.
    void ShowIndicators();

    // What lstTasks shows for a date: its first appointment (with its time), else its note's
    // first line, else its first to-do item; empty when it has neither note nor page.
    QString TaskSummary(const QDate& date) const;

private:
    void ConnectOpeners();
    // The window, opened or brought up, showing what it showed.
    frmNotes* ShowNotesWindow();
    frmPlanner* ShowPlannerWindow();
    void RegisterEditors();
    // After a year's notes or planner were read: everything that shows them, once.
    void ScheduleRefresh();
    // Opens the planner of date when it has a page, else its notes.
    void lstTasks_Click(QListWidgetItem* item);

    NotesPlannerContext context_;
    frmMain& frame_;
    DateModel& dates_;
    NotesStore& notes_;
    PlannerStore& planner_;
    CalendarMenus& calendar_;
    QListWidget* lstTasks_ = nullptr;
    QDate tasksMonth_;
    bool refreshPending_ = false;
};
