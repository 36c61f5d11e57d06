#include "notes_planner/gui/frmPlanner.h"

#include <QApplication>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QShortcut>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "calendar/DateModel.h"
#include "notes_planner/ExternalFiles.h"
#include "notes_planner/PlannerFigures.h"
#include "notes_planner/PlannerText.h"
#include "notes_planner/SearchState.h"
#include "notes_planner/gui/NotesPlannerMessages.h"
#include "notes_planner/gui/PlannerPageView.h"
#include "notes_planner/gui/PlannerPrint.h"
#include "notes_planner/gui/UnsavedTracker.h"
#include "notes_planner/modPlanner.h"
#include "reminders/modToDo.h"
#include "shell/DateFormats.h"
#include "shell/DateInput.h"
#include "shell/Prompts.h"
#include "shell/Services.h"
#include "shell/ShellCommands.h"
#include "shell/gui/frmMain.h"

frmPlanner::frmPlanner(NotesPlannerContext& context)
    : ChildWindow(context.services, QString::fromLatin1(kName), QStringLiteral("Planner")),
      context_(context),
      page_(new PlannerPageView),
      stack_(new QStackedWidget),
      lblCursPos_(new QLabel) {
    lblCursPos_->setObjectName(QStringLiteral("lblCursPos"));
    lblCursPos_->hide();
    stack_->addWidget(page_);
    auto* layout = new QVBoxLayout(Body());
    layout->addWidget(BuildDayButtons());
    layout->addWidget(stack_, 1);
    layout->addWidget(lblCursPos_);
    tracker_ = new UnsavedTracker(
        context_.unsaved, EditorKind::Planner, context_.changes.PlannerChanged,
        [this] {
            return UnsavedEdit{date_, {}, page_->Page(), externalFile_, false};
        },
        this);
    BuildMenus();
    connect(page_, &PlannerPageView::changed, this, &frmPlanner::txt_Change);
    connect(page_, &PlannerPageView::boxLeft, this, [this](int slot) {
        services_.Trap("txt_LostFocus", [this, slot] { txt_LostFocus(slot); });
    });
    connect(page_, &PlannerPageView::timeEntered, this, [this](int line, const QString& text) {
        services_.Trap("cmdOK_Click", [&] { cmdOK_Click(line, text); });
    });
    connect(page_, &PlannerPageView::caretMoved, this, &frmPlanner::ShowCaretPosition);
    setFocusProxy(page_->Box(0));
    for (QLineEdit* box : page_->TabOrder()) {
        box->installEventFilter(this);
        if (context_.termBox)
            context_.termBox(box);
    }
}

frmPlanner::~frmPlanner() {
    tracker_->EditorClosing();
}

QWidget* frmPlanner::BuildDayButtons() {
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    const std::pair<QString, int> days[] = {{QStringLiteral("<   Previous Day"), -1},
                                            {QStringLiteral("Next Day   >"), 1}};
    const QKeySequence keys[] = {QKeySequence(Qt::CTRL | Qt::Key_PageUp),
                                 QKeySequence(Qt::CTRL | Qt::Key_PageDown)};
    for (int i = 0; i < 2; ++i) {
        auto* button = new QPushButton(days[i].first);
        button->setObjectName(ArrayName(QStringLiteral("cmdDay"), i));
        button->setFocusPolicy(Qt::NoFocus);
        button->setToolTip(keys[i].toString(QKeySequence::NativeText));
        const int step = days[i].second;
        On(button, &QPushButton::clicked, "cmdDay_Click", [this, step] { cmdDay_Click(step); });
        auto* shortcut = new QShortcut(keys[i], this);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, button, &QPushButton::click);
        layout->addWidget(button);
        if (i == 0)
            layout->addStretch();
    }
    return row;
}

void frmPlanner::BuildMenus() {
    BuildFileMenu();
    BuildEditMenu();
    BuildOptionsMenu();
    QMenu* pref = AddMenu(MenuBar(), QStringLiteral("&Preferences"), QStringLiteral("mnuPref"));
    AddCommand(pref, QStringLiteral("Adjust &FUT Preferences"), QStringLiteral("mnuPrefFut"),
               "mnuPrefFut_Click", [this] {
                   if (context_.openTerms)
                       context_.openTerms();
               });
    BuildToDoMenu();
    QAction* help = MenuBar()->addAction(QStringLiteral("&Help"));
    help->setObjectName(QStringLiteral("mnuHelp"));
    QAction* contents = context_.frame.MenuItem(QStringLiteral("mnuHelpContents"));
    connect(help, &QAction::triggered, contents, &QAction::trigger);
    SetShortcut(help, QKeySequence::HelpContents);
}

void frmPlanner::BuildFileMenu() {
    QMenu* file = AddMenu(MenuBar(), QStringLiteral("&File"), QStringLiteral("mnuFile"));
    AddCommand(
        file, QStringLiteral("Save Planner"), QStringLiteral("mnuFileSave"), "mnuFileSave_Click",
        [this] { mnuFileSave_Click(); }, QKeySequence::Save);
    AddCommand(
        file, QStringLiteral("Copy Planner to Memory (to paste in another app)"),
        QStringLiteral("mnuFileCopyPlanner"), "CopyPlannerToMemory",
        [this] { CopyPlannerToMemory(); }, QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C));
    AddCommand(
        file, QStringLiteral("Export this Planner to Share Folder"),
        QStringLiteral("mnuFileExport"), "mnuFileExport_Click", [this] { SaveExternalPlanner(); },
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_E));
    AddCommand(file, QStringLiteral("Export this Planner and Assign to..."),
               QStringLiteral("mnuFileExportPlannerAndAssign"),
               "mnuFileExportPlannerAndAssign_Click",
               [this] { mnuFileExportPlannerAndAssign_Click(); });
    // Only a page opened from a file can be merged into the records.
    AddCommand(file, QStringLiteral("Merge this Planner into My Planner Records"),
               QStringLiteral("mnuFileMerge"), "mnuFileMerge_Click",
               [this] { mnuFileMerge_Click(); })
        ->setEnabled(false);
    AddCommand(
        file, QStringLiteral("Import Planner File"), QStringLiteral("mnuFileImport"),
        "mnuFileImport_Click", [this] { mnuFileImport_Click(); }, QKeySequence::Open);
    AddCommand(
        file, kPreviewCaption, QStringLiteral("mnuFilePreview"), "mnuFilePreview_Click",
        [this] { mnuFilePreview_Click(); }, QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_P));
    AddCommand(
        file, QStringLiteral("&Print"), QStringLiteral("mnuFilePrint"), "PrintThePlanner",
        [this] { PrintThePlanner(); }, QKeySequence::Print);
    AddCommand(
        file, QStringLiteral("Exit Planner (Go &Back to Calendar)"), QStringLiteral("mnuFileExit"),
        "mnuFileExit_Click", [this] { CloseWindow(); }, QKeySequence(Qt::CTRL | Qt::Key_W));
    AddCommand(
        file, QStringLiteral("E&xit the Program"), QStringLiteral("mnuFileQuit"),
        "mnuFileQuit_Click", [this] { context_.frame.close(); }, QKeySequence::Quit);
}

void frmPlanner::BuildEditMenu() {
    QMenu* edit = AddMenu(MenuBar(), QStringLiteral("&Edit"), QStringLiteral("mnuEdit"));
    AddCommand(
        edit, QStringLiteral("Change Time"), QStringLiteral("mnuEditTime"), "mnuEditTime_Click",
        [this] { mnuEditTime_Click(); }, QKeySequence(Qt::CTRL | Qt::Key_T));
    AddCommand(
        edit, QStringLiteral("Delete Time"), QStringLiteral("mnuEditDelete"), "mnuEditDelete_Click",
        [this] { mnuEditDelete_Click(); }, QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_T));
    AddCommand(
        edit, QStringLiteral("Search A&gain"), QStringLiteral("mnuEditSearchAgain"),
        "mnuEditSearchAgain_Click", [this] { mnuEditSearchAgain_Click(); },
        QKeySequence(Qt::CTRL | Qt::Key_G));
}

void frmPlanner::BuildOptionsMenu() {
    QMenu* options = AddMenu(MenuBar(), QStringLiteral("&Options"), QStringLiteral("mnuOpt"));
    AddCommand(
        options, kShowCursorCaption, QStringLiteral("mnuOptShowCursPos"), "mnuOptShowCursPos_Click",
        [this] { mnuOptShowCursPos_Click(); }, QKeySequence(Qt::CTRL | Qt::Key_K));
    QAction* mainLabel = AddCommand(
        options, QStringLiteral("Show Main Label (Date)"), QStringLiteral("mnuOptShowMainLabel"),
        "mnuOptShowMainLabel_Click", [this] { mnuOptShowMainLabel_Click(); },
        QKeySequence(Qt::CTRL | Qt::Key_L));
    mainLabel->setCheckable(true);
    mainLabel->setChecked(true);
    AddCommand(
        options, QStringLiteral("Change Network Share Drive"), QStringLiteral("mnuOptNetworkShare"),
        "mnuOptNetworkShare_Click",
        [this] { ShellCommands(services_, context_.prefs).mnuOptNetworkShare_Click(); },
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_N));
}

void frmPlanner::BuildToDoMenu() {
    QMenu* todo = AddMenu(MenuBar(), QStringLiteral("&To Do List"), QStringLiteral("mnuToDo"));
    AddCommand(
        todo, QStringLiteral("&Import Default To Do List"), QStringLiteral("mnuToDoImport"),
        "mnuToDoImport_Click", [this] { mnuToDoImport_Click(); },
        QKeySequence(Qt::CTRL | Qt::Key_I));
    // The default list is edited in the to-do window, which the main window's Manage menu
    // opens once it exists.
    QAction* edit =
        AddItem(todo, QStringLiteral("&Edit Default To Do List"), QStringLiteral("mnuToDoEdit"));
    QAction* manage = context_.frame.MenuItem(QStringLiteral("mnuManageToDo"));
    if (manage->isEnabled())
        Handle(edit, manage, [manage] { manage->trigger(); });
    AddCommand(
        todo, QStringLiteral("&Clear This To Do List"), QStringLiteral("mnuToDoClear"),
        "mnuToDoClear_Click", [this] { mnuToDoClear_Click(); },
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_X));
}

bool frmPlanner::ShowSelectedDate(bool askToRestore) {
    return ShowDate(context_.dates.SelectedDate, askToRestore);
}

bool frmPlanner::ShowDate(const QDate& date, bool askToRestore) {
    const bool samePage = date == date_ && !IsExternal();
    // The page on show is shown again only when nothing typed into it would be lost.
    if (samePage && tracker_->IsChanged()) {
        context_.dates.SelectDate(date);
        return true;
    }
    if (!samePage && !Form_QueryUnload())
        return false;
    context_.dates.SelectDate(date);
    const OpenedPage opened = context_.planner.OpenPlannerRecord();
    setWindowTitle(QStringLiteral("Planner for ") + opened.caption);
    ShowPage(date, opened.caption, opened.found ? opened.page : NewPlannerPage(), QString(),
             askToRestore);
    return true;
}

bool frmPlanner::ReadExternalPlanner(const QString& path, bool askToRestore) {
    if (!Form_QueryUnload())
        return false;
    std::optional<ExternalPage> opened;
    services_.Trap("ReadExternalPlanner", [&] {
        opened = ReadExternalPlannerFile(services_, path, context_.dates.SelectedDate.year());
    });
    if (!opened)
        return false;
    const QString caption = datefmt::LongDate(opened->date);
    setWindowTitle(kExternalPlannerCaption + caption);
    ShowPage(opened->date, caption, opened->page, path, askToRestore);
    return true;
}

void frmPlanner::ShowPage(const QDate& date, const QString& caption, const PlannerPage& page,
                          const QString& externalFile, bool askToRestore) {
    date_ = date;
    externalFile_ = externalFile;
    Control<QAction>(QStringLiteral("mnuFileMerge"))->setEnabled(IsExternal());
    page_->SetDateCaption(caption);
    tracker_->MarkClean();
    UnsavedEdit leftover;
    const bool restored =
        tracker_->OfferLeftover(services_.dialogs, date_, externalFile_, leftover, askToRestore);
    page_->SetPage(restored ? leftover.page : page);
    if (restored) {
        tracker_->MarkChanged();
        tracker_->KeepNow();
    }
    if (stack_->currentWidget() != page_)
        mnuFilePreview_Click();
}

bool frmPlanner::mnuFileSave_Click() {
    if (!IsExternal())
        return SaveToRecords();
    const bool saved = services_.Trap("SaveExternalPlanner", [this] {
        SaveExternalFileTo(services_, externalFile_, ExternalPlannerBytes(date_, page_->Page()));
    });
    if (saved)
        tracker_->MarkClean();
    return saved;
}

QString frmPlanner::SaveExternalPlanner() {
    QString path;
    services_.Trap("SaveExternalPlanner", [this, &path] {
        path = ExportExternalFile(services_, ExternalKind::Planner,
                                  ExternalPlannerBytes(date_, page_->Page()));
    });
    return path;
}

void frmPlanner::mnuFileExportPlannerAndAssign_Click() {
    const QString path = SaveExternalPlanner();
    if (!path.isEmpty() && context_.assignFile)
        context_.assignFile(path);
}

void frmPlanner::mnuFileImport_Click() {
    const QString path = PickExternalFile(services_, QStringLiteral("Import Planner File"));
    if (path.isEmpty())
        return;
    // A notes file picked here opens in the notes window.
    if (path.endsWith(ExternalExtension(ExternalKind::Notes), Qt::CaseInsensitive) &&
        context_.openExternalNotes)
        context_.openExternalNotes(path);
    else
        ReadExternalPlanner(path);
}

void frmPlanner::mnuFileMerge_Click() {
    if (!IsExternal())
        return;
    context_.LoadYearOf(date_);
    if (context_.planner.HasPlanner(date_) &&
        services_.dialogs.MsgBox(MergeQuestion(datefmt::MmDdYy(date_)), kQuestionStyle,
                                 kMergeTitle) != vb::Yes)
        return;
    // The page is the calendar day's from now on; the file stays as it was.
    if (!SaveToRecords())
        return;
    context_.dates.SelectDate(date_);
    externalFile_.clear();
    Control<QAction>(QStringLiteral("mnuFileMerge"))->setEnabled(false);
    const QString caption = datefmt::Format(date_, QStringLiteral("dddd, mmmm d yyyy"));
    setWindowTitle(QStringLiteral("Planner for ") + caption);
    page_->SetDateCaption(caption);
}

bool frmPlanner::SaveToRecords() {
    context_.LoadYearOf(date_);
    PlannerStore& planner = context_.planner;
    const PlannerPage page = page_->Page();
    const bool nextYear = context_.dates.IsNextYear(date_);
    const bool saved =
        nextYear ? planner.SavePlannerRecord2(date_, page) && planner.SaveNextYearsPlannerFile()
                 : planner.SavePlannerRecord(date_, page) && planner.SaveThisYearsPlannerFile();
    if (!saved)
        return false;
    // Read again, so that the calendar and the tasks show the page at once.
    if (nextYear)
        planner.ReadNextYearsPlanner();
    else
        planner.ReadThisYearsPlanner();
    tracker_->MarkClean();
    return true;
}

void frmPlanner::cmdDay_Click(int days) {
    ShowDate(date_.addDays(days));
}

bool frmPlanner::Form_QueryUnload() {
    return tracker_->AskBeforeClosing(services_.dialogs, kPlannerCloseQuestion, kPlannerCloseTitle,
                                      [this] { return mnuFileSave_Click(); });
}

void frmPlanner::txt_Change() {
    tracker_->MarkChanged();
}

void frmPlanner::txt_LostFocus(int slot) {
    QLineEdit* box = page_->Box(slot);
    // A figure takes its format first ("$1,234.50" becomes "1234.50"), so that the limits
    // below judge what is kept, not what was typed.
    const bool amount = slot >= kFirstAmountSlot && slot < kTotalExpendituresSlot;
    const bool mileage = slot >= kFirstBeginSlot && slot < kTotalMileageSlot;
    if (amount || mileage) {
        const QString shown = amount ? FormatAmount(box->text()) : FormatMileage(box->text());
        if (shown != box->text())
            box->setText(shown);
    }
    const QString text = box->text();
    // The room for text inside the box's frame.
    const int room = box->width() - 8;
    if (QFontMetrics(box->font()).horizontalAdvance(text) > room)
        services_.dialogs.MsgBox(kTooWideMessage, kWarningStyle);
    const int width = SlotWidth(slot);
    if (text.size() > width)
        services_.dialogs.MsgBox(TooManyCharactersMessage(width), kWarningStyle);
    if (amount || mileage)
        page_->AddTheFigures();
}

void frmPlanner::cmdOK_Click(int line, const QString& text) {
    QString time;
    if (!text.trimmed().isEmpty()) {
        const QTime parsed = ParseTimeInput(text);
        if (!parsed.isValid()) {
            services_.dialogs.MsgBox(kBadTimeMessage, kWarningStyle);
            return;
        }
        time = datefmt::MediumTime(parsed);
    }
    page_->SetTime(line, time);
    page_->HideTimeChangeBox();
    tracker_->MarkChanged();
}

void frmPlanner::mnuEditTime_Click() {
    page_->ShowTimeChangeBox(qMax(page_->CurrentLine(), 0));
}

void frmPlanner::mnuEditDelete_Click() {
    page_->SetTime(qMax(page_->CurrentLine(), 0), QString());
    tracker_->MarkChanged();
}

void frmPlanner::mnuEditSearchAgain_Click() {
    if (context_.search.IsActive() && !SelectOccurrence(false))
        services_.dialogs.MsgBox(kNoMoreOccurrencesMessage);
}

bool frmPlanner::SelectOccurrence(bool fromStart) {
    const SearchState& search = context_.search;
    if (!search.IsActive())
        return false;
    const QList<QLineEdit*>& boxes = page_->TabOrder();
    auto* focused = fromStart ? nullptr : qobject_cast<QLineEdit*>(QApplication::focusWidget());
    qsizetype at = qMax<qsizetype>(boxes.indexOf(focused), 0);
    qsizetype from = boxes[at] == focused ? (focused->hasSelectedText() ? focused->selectionEnd()
                                                                        : focused->cursorPosition())
                                          : 0;
    for (; at < boxes.size(); ++at, from = 0) {
        const qsizetype found = FindNextOccurrence(boxes[at]->text(), search.phrase, from);
        if (found >= 0) {
            boxes[at]->setFocus();
            boxes[at]->setSelection(int(found), int(search.phrase.size()));
            return true;
        }
    }
    return false;
}

void frmPlanner::CopyPlannerToMemory() {
    const QString text = PlannerClipboardText(page_->Page());
    services_.platform.SetClipboardText(text);
    if (context_.plannerCopied)
        context_.plannerCopied(text);
}

void frmPlanner::mnuFilePreview_Click() {
    QAction* item = Control<QAction>(QStringLiteral("mnuFilePreview"));
    if (stack_->currentWidget() != page_) {
        stack_->setCurrentWidget(page_);
        item->setText(kPreviewCaption);
        return;
    }
    if (!preview_) {
        preview_ = new PagePreview(PlannerPrintTitle(date_), [this](PageWriter& writer) {
            PlannerDocument(date_, page_->Page())(writer);
        });
        preview_->setObjectName(QStringLiteral("picPreview"));
        stack_->addWidget(preview_);
    }
    preview_->Refresh();
    stack_->setCurrentWidget(preview_);
    item->setText(kResumeEditingCaption);
}

void frmPlanner::PrintThePlanner() {
    context_.printer.Print(PlannerPrintTitle(date_), PlannerDocument(date_, page_->Page()));
}

void frmPlanner::ShowCaretPosition(int position) {
    lblCursPos_->setText(kCursorPositionPrefix + QString::number(position));
    context_.frame.Control<QLabel>(QStringLiteral("lblCurPos"))
        ->setText(kTextPositionPrefix + QString::number(position));
}

void frmPlanner::mnuOptShowCursPos_Click() {
    lblCursPos_->setVisible(!lblCursPos_->isVisible());
    Control<QAction>(QStringLiteral("mnuOptShowCursPos"))
        ->setText(lblCursPos_->isVisible() ? kHideCursorCaption : kShowCursorCaption);
}

void frmPlanner::mnuOptShowMainLabel_Click() {
    QLabel* label = page_->findChild<QLabel*>(QStringLiteral("lblMain"));
    label->setVisible(Control<QAction>(QStringLiteral("mnuOptShowMainLabel"))->isChecked());
}

void frmPlanner::mnuToDoImport_Click() {
    if (services_.dialogs.MsgBox(kToDoImportQuestion, kQuestionStyle, kToDoImportTitle) != vb::Yes)
        return;
    const ToDoRows& rows = context_.toDo.rows();
    for (int item = 0; item < kPlannerToDoItems; ++item) {
        const QString text = rows.texts[item].trimmed();
        if (text.isEmpty())
            continue;
        page_->Box(kFirstToDoSlot + item)->setText(text);
        page_->SetDone(item, rows.done[item]);
    }
    tracker_->MarkChanged();
}

void frmPlanner::mnuToDoClear_Click() {
    for (int item = 0; item < kPlannerToDoItems; ++item) {
        page_->Box(kFirstToDoSlot + item)->clear();
        page_->SetDone(item, false);
    }
    tracker_->MarkChanged();
}

bool frmPlanner::eventFilter(QObject* watched, QEvent* event) {
    // F2 and F3 in a line reach the frequently used terms.
    if (event->type() == QEvent::KeyPress && context_.termKey) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        auto* box = qobject_cast<QLineEdit*>(watched);
        if (box && (key == Qt::Key_F2 || key == Qt::Key_F3)) {
            context_.termKey(box, key);
            return true;
        }
    }
    return ChildWindow::eventFilter(watched, event);
}
