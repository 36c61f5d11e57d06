#include "notes_planner/gui/NotesPlannerMenus.h"

#include <QLabel>
#include <QListWidget>
#include <QTimer>
#include <QToolButton>

#include "calendar/DateModel.h"
#include "calendar/gui/CalendarMenus.h"
#include "notes_planner/ExternalFiles.h"
#include "notes_planner/gui/NotesPlannerMessages.h"
#include "notes_planner/gui/UnsavedTracker.h"
#include "notes_planner/gui/frmNoteList.h"
#include "notes_planner/gui/frmNotes.h"
#include "notes_planner/gui/frmPlanner.h"
#include "notes_planner/gui/frmSearch.h"
#include "notes_planner/modNotes.h"
#include "notes_planner/modPlanner.h"
#include "shell/DateFormats.h"
#include "shell/Dialogs.h"
#include "shell/FixedWidth.h"
#include "shell/Services.h"
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

NotesPlannerMenus::NotesPlannerMenus(const NotesPlannerContext& context, CalendarMenus& calendar)
    : QObject(&context.frame),
      context_(context),
      frame_(context.frame),
      dates_(context.dates),
      notes_(context.notes),
      planner_(context.planner),
      calendar_(calendar),
      lstTasks_(frame_.Control<QListWidget>(QStringLiteral("lstTasks"))) {
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
    ConnectOpeners();
    RegisterEditors();
}

void NotesPlannerMenus::ConnectOpeners() {
    planner_.plannerWindowOpener = [this] { OpenPlanner(); };
    context_.openExternalNotes = [this](const QString& path) { OpenExternalNotes(path); };
    context_.openExternalPlanner = [this](const QString& path) { OpenExternalPlanner(path); };
    const auto openNotes = [this] { OpenOn(dates_.SelectedDate, false); };
    const auto openPlanner = [this] { OpenOn(dates_.SelectedDate, true); };
    Handle(frame_.MenuItem(QStringLiteral("mnuOptDateOpenNotes")), this, openNotes);
    Handle(frame_.MenuItem(QStringLiteral("mnuEditFind")), this, [this] { OpenSearch(); });
    // A file picked from the main window opens in the window of its kind.
    const auto openExternal = [this](const QString& caption) {
        const QString path = PickExternalFile(context_.services, caption);
        if (path.endsWith(ExternalExtension(ExternalKind::Planner), Qt::CaseInsensitive))
            OpenExternalPlanner(path);
        else if (!path.isEmpty())
            OpenExternalNotes(path);
    };
    Handle(frame_.MenuItem(QStringLiteral("mnuFileOpenNotes")), this,
           [openExternal] { openExternal(QStringLiteral("Open External Notes")); });
    Handle(frame_.MenuItem(QStringLiteral("mnuFileOpenPlanner")), this,
           [openExternal] { openExternal(QStringLiteral("Open External Planner")); });
    Handle(frame_.MenuItem(QStringLiteral("mnuOptDateOpenPlanner")), this, openPlanner);
    auto* notesButton = frame_.Control<QToolButton>(ArrayName(QStringLiteral("imgOpt"), 1));
    auto* plannerButton = frame_.Control<QToolButton>(ArrayName(QStringLiteral("imgOpt"), 2));
    notesButton->setEnabled(true);
    plannerButton->setEnabled(true);
    connect(notesButton, &QToolButton::clicked, this, openNotes);
    connect(plannerButton, &QToolButton::clicked, this, openPlanner);
    Handle(frame_.MenuItem(QStringLiteral("mnuManageNotes")), this, [this] { OpenNoteList(); });
    connect(&calendar_, &CalendarMenus::dayActivated, this,
            [this](const QDate& date) { OpenOn(date, true); });
}

void NotesPlannerMenus::RegisterEditors() {
    EditorHooks& editors = frame_.editors();
    editors.plannerOpen = [this] { return plannerWindow() != nullptr; };
    editors.notesOpen = [this] { return notesWindow() != nullptr; };
    editors.savePlanner = [this] { plannerWindow()->mnuFileSave_Click(); };
    editors.saveNotes = [this] { notesWindow()->mnuFileSave_Click(); };
}

frmNotes* NotesPlannerMenus::notesWindow() const {
    return qobject_cast<frmNotes*>(frame_.ChildWindow(QString::fromLatin1(frmNotes::kName)));
}

frmPlanner* NotesPlannerMenus::plannerWindow() const {
    return qobject_cast<frmPlanner*>(frame_.ChildWindow(QString::fromLatin1(frmPlanner::kName)));
}

void NotesPlannerMenus::OpenOn(const QDate& date, bool planner) {
    dates_.SelectDate(date);
    if (planner)
        planner_.OpenThePlanner();
    else
        OpenNotes();
}

frmNotes* NotesPlannerMenus::ShowNotesWindow() {
    return static_cast<frmNotes*>(frame_.ShowChild(QString::fromLatin1(frmNotes::kName),
                                                   [this] { return new frmNotes(context_); }));
}

frmPlanner* NotesPlannerMenus::ShowPlannerWindow() {
    auto* window = static_cast<frmPlanner*>(frame_.ShowChild(
        QString::fromLatin1(frmPlanner::kName), [this] { return new frmPlanner(context_); }));
    // The page takes all the room the frame has, as the calendar does.
    if (QWidget* frame = window->parentWidget(); frame && !frame->isMaximized())
        frame->showMaximized();
    return window;
}

frmNoteList* NotesPlannerMenus::OpenNoteList() {
    auto* window =
        static_cast<frmNoteList*>(frame_.ShowChild(QString::fromLatin1(frmNoteList::kName), [this] {
            return new frmNoteList(context_, *this);
        }));
    window->setFocus();
    return window;
}

frmNotes* NotesPlannerMenus::OpenNotes(bool askToRestore) {
    frmNotes* window = ShowNotesWindow();
    window->ShowSelectedDate(askToRestore);
    window->setFocus();
    return window;
}

frmPlanner* NotesPlannerMenus::OpenPlanner(bool askToRestore) {
    frmPlanner* window = ShowPlannerWindow();
    window->ShowSelectedDate(askToRestore);
    window->setFocus();
    return window;
}

void NotesPlannerMenus::OpenExternalNotes(const QString& path, bool askToRestore) {
    const bool opened = notesWindow() != nullptr;
    frmNotes* window = ShowNotesWindow();
    if (window->ReadExternalNotes(path, askToRestore))
        window->setFocus();
    else if (!opened)
        window->CloseWindow();
}

void NotesPlannerMenus::OpenExternalPlanner(const QString& path, bool askToRestore) {
    const bool opened = plannerWindow() != nullptr;
    frmPlanner* window = ShowPlannerWindow();
    if (window->ReadExternalPlanner(path, askToRestore))
        window->setFocus();
    else if (!opened)
        window->CloseWindow();
}

void NotesPlannerMenus::OpenFound(const QDate& date, bool planner) {
    // Selected the way the date selectors select it, so that the calendar shows its month.
    emit frame_.dateChosen(date);
    dates_.SelectDate(date);
    if (planner ? !planner_.HasPlanner(date) : !notes_.HasNote(date)) {
        context_.services.dialogs.MsgBox(planner ? kPlannerNotFoundMessage : kNoteNotFoundMessage);
        return;
    }
    if (planner)
        OpenPlanner()->SelectOccurrence(true);
    else
        OpenNotes()->SelectOccurrence(true);
}

void NotesPlannerMenus::OpenSearch() {
    frame_
        .ShowChild(QString::fromLatin1(frmSearch::kName),
                   [this] {
                       return new frmSearch(context_, [this](const QDate& date, bool planner) {
                           OpenFound(date, planner);
                       });
                   })
        ->setFocus();
}

void NotesPlannerMenus::OfferUnsavedWork() {
    for (const EditorKind kind : {EditorKind::Notes, EditorKind::Planner}) {
        const std::optional<UnsavedEdit> leftover = context_.unsaved.Leftover(kind);
        if (!leftover || leftover->offered)
            continue;
        context_.unsaved.MarkOffered(kind);
        if (context_.services.dialogs.MsgBox(RestoreQuestion(kind, leftover->date), kQuestionStyle,
                                             RestoreTitle(kind)) != vb::Yes)
            continue;
        const bool planner = kind == EditorKind::Planner;
        if (!leftover->externalFile.isEmpty()) {
            if (planner)
                OpenExternalPlanner(leftover->externalFile, false);
            else
                OpenExternalNotes(leftover->externalFile, false);
            continue;
        }
        dates_.SelectDate(leftover->date);
        if (planner)
            OpenPlanner(false);
        else
            OpenNotes(false);
    }
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
    if (!item)
        return;
    const QDate date = item->data(Qt::UserRole).toDate();
    emit frame_.dateChosen(date);
    OpenOn(date, planner_.HasPlanner(date));
}
