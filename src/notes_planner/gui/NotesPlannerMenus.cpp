#include "notes_planner/gui/NotesPlannerMenus.h"

#include <QLabel>
#include <QListWidget>
#include <QTimer>

#include "calendar/DateModel.h"
#include "calendar/gui/CalendarMenus.h"
#include "notes_planner/modNotes.h"
#include "notes_planner/modPlanner.h"
#include "shell/DateFormats.h"
#include "shell/FixedWidth.h"
#include "shell/gui/Icons.h"
#include "shell/gui/frmMain.h"

namespace {

QString FirstLineOf(const QString& text) {
    for (const QStringView line : QStringView(text).split(u'\n')) {
        const QStringView clean = TrimBlanks(line.endsWith(u'\r') ? line.chopped(1) : line);
        if (!clean.isEmpty())
            return clean.toString();
    }
    return {};
}

QString FirstEntryOf(const PlannerPage& page) {
    for (int line = 0; line < kAppointmentLines; ++line)
        if (!page.slotTexts[line].isEmpty())
            return (page.times[line].isEmpty() ? QString() : page.times[line] + u' ') +
                   page.slotTexts[line];
    return {};
}

QString FirstToDoOf(const PlannerPage& page) {
    for (int item = 0; item < kPlannerToDoItems; ++item)
        if (!page.slotTexts[kFirstToDoSlot + item].isEmpty())
            return page.slotTexts[kFirstToDoSlot + item];
    return {};
}

}  // namespace

NotesPlannerMenus::NotesPlannerMenus(frmMain& frame, DateModel& dates, NotesStore& notes,
                                     PlannerStore& planner, CalendarMenus& calendar)
    : QObject(&frame),
      frame_(frame),
      dates_(dates),
      notes_(notes),
      planner_(planner),
      calendar_(calendar),
      lstTasks_(frame.Control<QListWidget>(QStringLiteral("lstTasks"))) {
    calendar_.AddDayDecorator([this](const QDate& date, DayLook& look) {
        look.hasNotes = notes_.HasNote(date);
        look.hasPlanner = planner_.HasPlanner(date);
    });
    connect(&notes_, &NotesStore::notesRead, this, &NotesPlannerMenus::ScheduleRefresh);
    connect(&planner_, &PlannerStore::plannerRead, this, &NotesPlannerMenus::ScheduleRefresh);
    connect(&dates_, &DateModel::selectedDateChanged, this, [this] {
        ShowIndicators();
        if (dates_.FirstOfMonth != tasksMonth_)
            FillTasks();
    });
    connect(lstTasks_, &QListWidget::itemClicked, this, &NotesPlannerMenus::lstTasks_Click);
    connect(lstTasks_, &QListWidget::itemActivated, this, &NotesPlannerMenus::lstTasks_Click);
}

QString NotesPlannerMenus::TaskSummary(const QDate& date) const {
    const QString record = planner_.RecordOf(date);
    const PlannerPage page = ParsePlannerRecord(record);
    QString summary = FirstEntryOf(page);
    if (summary.isEmpty())
        summary = FirstLineOf(notes_.NoteOf(date));
    if (summary.isEmpty())
        summary = FirstToDoOf(page);
    if (summary.isEmpty() && (notes_.HasNote(date) || planner_.HasPlanner(date)))
        summary = planner_.HasPlanner(date) ? QStringLiteral("Planner") : QStringLiteral("Notes");
    return summary;
}

void NotesPlannerMenus::FillTasks() {
    tasksMonth_ = dates_.FirstOfMonth;
    lstTasks_->clear();
    if (!tasksMonth_.isValid())
        return;
    for (QDate date = tasksMonth_; date.month() == tasksMonth_.month(); date = date.addDays(1)) {
        const bool hasPlanner = planner_.HasPlanner(date);
        if (!hasPlanner && !notes_.HasNote(date))
            continue;
        auto* item = new QListWidgetItem(hasPlanner ? icons::PlannerPage() : icons::NotesPage(),
                                         datefmt::Format(date, QStringLiteral("ddd dd")) +
                                             QStringLiteral("  ") + TaskSummary(date),
                                         lstTasks_);
        item->setData(Qt::UserRole, date);
    }
}

void NotesPlannerMenus::ShowIndicators() {
    const QDate date = dates_.SelectedDate;
    frame_.Control<QLabel>(QStringLiteral("imgNotes"))->setEnabled(notes_.HasNote(date));
    frame_.Control<QLabel>(QStringLiteral("imgPlanner"))->setEnabled(planner_.HasPlanner(date));
}

void NotesPlannerMenus::ScheduleRefresh() {
    if (refreshPending_)
        return;
    refreshPending_ = true;
    // A refresh made in the meantime (the load step's) leaves nothing to do.
    QTimer::singleShot(0, this, [this] {
        if (refreshPending_)
            Refresh();
    });
}

void NotesPlannerMenus::Refresh() {
    refreshPending_ = false;
    ShowIndicators();
    FillTasks();
    calendar_.RedrawCalendar();
}

void NotesPlannerMenus::lstTasks_Click(QListWidgetItem* item) {
    // The notes and planner windows open from here once they exist; until then the task's
    // date is selected.
    if (item)
        emit frame_.dateChosen(item->data(Qt::UserRole).toDate());
}
