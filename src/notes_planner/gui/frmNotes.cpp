#include "notes_planner/gui/frmNotes.h"

#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextBlock>
#include <QVBoxLayout>

#include "calendar/DateModel.h"
#include "notes_planner/SearchState.h"
#include "notes_planner/gui/NotesPlannerMessages.h"
#include "notes_planner/gui/UnsavedTracker.h"
#include "notes_planner/modNotes.h"
#include "notes_planner/modPlanner.h"
#include "shell/DateFormats.h"
#include "shell/Prompts.h"
#include "shell/Services.h"
#include "shell/gui/Printing.h"
#include "shell/gui/frmMain.h"

frmNotes::frmNotes(NotesPlannerContext& context)
    : ChildWindow(context.services, QString::fromLatin1(kName), QStringLiteral("Notes")),
      context_(context),
      txtNotes_(new QPlainTextEdit),
      cmdPlanner_(new QPushButton(QStringLiteral("Exit Notes and Open Planner"))) {
    txtNotes_->setObjectName(QStringLiteral("txtNotes"));
    txtNotes_->setFont(PrintFont(QStringLiteral("Arial"), 11));
    txtNotes_->installEventFilter(this);
    cmdPlanner_->setObjectName(QStringLiteral("cmdPlanner"));
    auto* layout = new QVBoxLayout(Body());
    layout->addWidget(txtNotes_, 1);
    layout->addWidget(cmdPlanner_, 0, Qt::AlignRight);
    Body()->setMinimumSize(520, 380);
    tracker_ = new UnsavedTracker(
        context_.unsaved, EditorKind::Notes, context_.changes.NotesChanged,
        [this] {
            return UnsavedEdit{date_, NoteText(), {}, false};
        },
        this);
    BuildMenus();
    connect(txtNotes_, &QPlainTextEdit::textChanged, this, &frmNotes::txtNotes_Change);
    On(cmdPlanner_, &QPushButton::clicked, "cmdPlanner_Click", [this] { cmdPlanner_Click(); });
    setFocusProxy(txtNotes_);
}

frmNotes::~frmNotes() {
    tracker_->EditorClosing();
}

void frmNotes::BuildMenus() {
    QMenu* file = AddMenu(MenuBar(), QStringLiteral("&File"), QStringLiteral("mnuFile"));
    AddCommand(
        file, QStringLiteral("&Save"), QStringLiteral("mnuFileSave"), "mnuFileSave_Click",
        [this] { mnuFileSave_Click(); }, QKeySequence::Save);
    AddCommand(
        file, QStringLiteral("&Print"), QStringLiteral("mnuFilePrint"), "mnuFilePrint_Click",
        [this] { mnuFilePrint_Click(); }, QKeySequence::Print);
    // Export and import of notes files come with the external files.
    AddItem(file, QStringLiteral("Export these Notes"), QStringLiteral("mnuFileExport"));
    AddItem(file, QStringLiteral("Export these Notes and Assign to..."),
            QStringLiteral("mnuFileExportNotesAndAssign"));
    AddItem(file, QStringLiteral("Import External Notes"), QStringLiteral("mnuFileImport"));
    QMenu* edit = AddMenu(MenuBar(), QStringLiteral("&Edit"), QStringLiteral("mnuEdit"));
    AddCommand(
        edit, QStringLiteral("Search A&gain"), QStringLiteral("mnuEditSearchAgain"),
        "mnuEditSearchAgain_Click", [this] { mnuEditSearchAgain_Click(); },
        QKeySequence(Qt::CTRL | Qt::Key_G));
    QMenu* pref = AddMenu(MenuBar(), QStringLiteral("&Preferences"), QStringLiteral("mnuPref"));
    AddItem(pref, QStringLiteral("Adjust &FUT Preferences"), QStringLiteral("mnuPrefFut"));
}

bool frmNotes::ShowSelectedDate(bool askToRestore) {
    const QDate selected = context_.dates.SelectedDate;
    if (selected != date_ && !Form_QueryUnload())
        return false;
    const ShownNote shown = context_.notes.DisplayThisNote();
    date_ = selected;
    setWindowTitle(shown.caption);
    tracker_->MarkClean();
    UnsavedEdit leftover;
    const bool restored = tracker_->OfferLeftover(services_.dialogs, date_, leftover, askToRestore);
    ShowText(restored ? leftover.noteText : shown.text);
    if (restored) {
        tracker_->MarkChanged();
        tracker_->KeepNow();
    }
    return true;
}

void frmNotes::ShowText(const QString& text) {
    loading_ = true;
    QString shown = text;
    shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    shown.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    txtNotes_->setPlainText(shown);
    loading_ = false;
}

QString frmNotes::NoteText() const {
    return txtNotes_->toPlainText().replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
}

void frmNotes::txtNotes_Change() {
    if (!loading_)
        tracker_->MarkChanged();
}

bool frmNotes::mnuFileSave_Click() {
    context_.LoadYearOf(date_);
    NotesStore& notes = context_.notes;
    bool saved = false;
    if (context_.dates.IsNextYear(date_)) {
        saved = notes.SaveNextYearsNotes(date_, NoteText());
        notes.ReadNextYearsNotes();
    } else {
        saved = notes.SaveThisYearsNotes(date_, NoteText());
        notes.ReadThisYearsNotes();
    }
    if (saved)
        tracker_->MarkClean();
    return saved;
}

void frmNotes::mnuFilePrint_Click() {
    const QString heading = QStringLiteral("Notes for ") + datefmt::MmmDdYyyy(date_);
    const QString text = NoteText();
    context_.printer.Print(heading, [heading, text](PageWriter& page) {
        page.SetHeading({heading});
        page.Line(text);
    });
}

void frmNotes::mnuEditSearchAgain_Click() {
    const SearchState& search = context_.search;
    if (!search.IsActive())
        return;
    QTextCursor cursor = txtNotes_->textCursor();
    const QString text = txtNotes_->toPlainText();
    const qsizetype found = FindNextOccurrence(text, search.phrase, cursor.selectionEnd());
    if (found < 0) {
        services_.dialogs.MsgBox(kNoMoreOccurrencesMessage);
        return;
    }
    cursor.setPosition(int(found));
    cursor.setPosition(int(found + search.phrase.size()), QTextCursor::KeepAnchor);
    txtNotes_->setTextCursor(cursor);
}

void frmNotes::cmdPlanner_Click() {
    ChangeFlags& changes = context_.changes;
    PromptUnsavedChanges(services_.dialogs, changes, context_.frame.editors());
    if (changes.CancelRequested)
        return;
    const QDate date = date_;
    CloseWindow();
    context_.dates.SelectDate(date);
    context_.planner.OpenThePlanner();
}

bool frmNotes::Form_QueryUnload() {
    return tracker_->AskBeforeClosing(services_.dialogs, kNotesCloseQuestion, kNotesCloseTitle,
                                      [this] { return mnuFileSave_Click(); });
}

bool frmNotes::Form_KeyDown(int key) {
    if ((key != Qt::Key_F2 && key != Qt::Key_F3) || !context_.termKey)
        return false;
    context_.termKey(txtNotes_, key);
    return true;
}

bool frmNotes::eventFilter(QObject* watched, QEvent* event) {
    if (watched == txtNotes_ && event->type() == QEvent::KeyPress &&
        Form_KeyDown(static_cast<QKeyEvent*>(event)->key()))
        return true;
    return ChildWindow::eventFilter(watched, event);
}
