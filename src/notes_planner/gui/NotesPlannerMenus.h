#pragma once

#include <QDate>
#include <QObject>

class CalendarMenus;
class DateModel;
class NotesStore;
class PlannerStore;
class QListWidget;
class QListWidgetItem;
class frmMain;

// The notes and planner's part of the main window: which days of the calendar views have a
// note or a planner page, the two indicators of the selected date, and the month's tasks.
class NotesPlannerMenus : public QObject {
    Q_OBJECT
public:
    NotesPlannerMenus(frmMain& frame, DateModel& dates, NotesStore& notes, PlannerStore& planner,
                      CalendarMenus& calendar);

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
    // After a year's notes or planner were read: everything that shows them, once.
    void ScheduleRefresh();
    void lstTasks_Click(QListWidgetItem* item);

    frmMain& frame_;
    DateModel& dates_;
    NotesStore& notes_;
    PlannerStore& planner_;
    CalendarMenus& calendar_;
    QListWidget* lstTasks_ = nullptr;
    QDate tasksMonth_;
    bool refreshPending_ = false;
};
