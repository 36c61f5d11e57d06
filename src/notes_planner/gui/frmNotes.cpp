#include "notes_planner/gui/frmNotes.h"

#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextBlock>
#include <QVBoxLayout>

#include "calendar/DateModel.h"
#include "notes_planner/ExternalFiles.h"
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
            return UnsavedEdit{date_, NoteText(), {}, externalFile_, false};
        },
        this);
    BuildMenus();
    connect(txtNotes_, &QPlainTextEdit::textChanged, this, &frmNotes::txtNotes_Change);
    On(cmdPlanner_, &QPushButton::clicked, "cmdPlanner_Click", [this] { cmdPlanner_Click(); });
    setFocusProxy(txtNotes_);
    if (context_.termBox)
        context_.termBox(txtNotes_);
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
    AddCommand(
        file, QStringLiteral("Export these Notes"), QStringLiteral("mnuFileExport"),
        "mnuFileExport_Click", [this] { SaveExternalNotes(); },
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_E));
    AddCommand(file, QStringLiteral("Export these Notes and Assign to..."),
               QStringLiteral("mnuFileExportNotesAndAssign"), "mnuFileExportNotesAndAssign_Click",
               [this] { mnuFileExportNotesAndAssign_Click(); });
    AddCommand(
        file, QStringLiteral("Import External Notes"), QStringLiteral("mnuFileImport"),
        "mnuFileImport_Click", [this] { mnuFileImport_Click(); }, QKeySequence::Open);
    QMenu* edit = AddMenu(MenuBar(), QStringLiteral("&Edit"), QStringLiteral("mnuEdit"));
    AddCommand(
        edit, QStringLiteral("Search A&gain"), QStringLiteral("mnuEditSearchAgain"),
        "mnuEditSearchAgain_Click", [this] { mnuEditSearchAgain_Click(); },
        QKeySequence(Qt::CTRL | Qt::Key_G));
    QMenu* pref = AddMenu(MenuBar(), QStringLiteral("&Preferences"), QStringLiteral("mnuPref"));
    AddCommand(pref, QStringLiteral("Adjust &FUT Preferences"), QStringLiteral("mnuPrefFut"),
               "mnuPrefFut_Click", [this] {
                   if (context_.openTerms)
                       context_.openTerms();
               });
}

bool frmNotes::ShowSelectedDate(bool askToRestore) {
    const QDate selected = context_.dates.SelectedDate;
    const bool sameNote = selected == date_ && !IsExternal();
    // The note on show is shown again only when nothing typed into it would be lost.
    if (sameNote && tracker_->IsChanged())
        return true;
    if (!sameNote && !Form_QueryUnload())
        return false;
    const ShownNote shown = context_.notes.DisplayThisNote();
    ShowNote(selected, shown.caption, shown.text, QString(), askToRestore);
    return true;
}

bool frmNotes::ReadExternalNotes(const QString& path, bool askToRestore) {
    if (!Form_QueryUnload())
        return false;
    std::optional<ExternalNote> note;
    services_.Trap("ReadExternalNotes", [&] {
        note = ReadExternalNotesFile(services_, path, context_.dates.SelectedDate.year());
    });
    if (!note)
        return false;
    ShowNote(note->date, ExternalNotesCaption(note->date), note->text, path, askToRestore);
    return true;
}

void frmNotes::ShowNote(const QDate& date, const QString& caption, const QString& text,
                        const QString& externalFile, bool askToRestore) {
    date_ = date;
    externalFile_ = externalFile;
    setWindowTitle(caption);
    tracker_->MarkClean();
    UnsavedEdit leftover;
    const bool restored =
        tracker_->OfferLeftover(services_.dialogs, date_, externalFile_, leftover, askToRestore);
    ShowText(restored ? leftover.noteText : text);
    if (restored) {
        tracker_->MarkChanged();
        tracker_->KeepNow();
    }
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
    if (IsExternal()) {
        const bool saved = services_.Trap("SaveExternalNotes", [this] {
            SaveExternalFileTo(services_, externalFile_, ExternalNotesBytes(date_, NoteText()));
        });
        if (saved)
            tracker_->MarkClean();
        return saved;
    }
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

QString frmNotes::SaveExternalNotes() {
    QString path;
    services_.Trap("SaveExternalNotes", [this, &path] {
        path = ExportExternalFile(services_, ExternalKind::Notes,
                                  ExternalNotesBytes(date_, NoteText()));
    });
    return path;
}

void frmNotes::mnuFileExportNotesAndAssign_Click() {
    const QString path = SaveExternalNotes();
    if (!path.isEmpty() && context_.assignFile)
        context_.assignFile(path);
}

void frmNotes::mnuFileImport_Click() {
    const QString path = PickExternalFile(services_, QStringLiteral("Import External Notes"));
    if (path.isEmpty())
        return;
    // A planner file picked here opens in the planner.
    if (path.endsWith(ExternalExtension(ExternalKind::Planner), Qt::CaseInsensitive) &&
        context_.openExternalPlanner)
        context_.openExternalPlanner(path);
    else
        ReadExternalNotes(path);
}

void frmNotes::mnuEditSearchAgain_Click() {
    if (context_.search.IsActive() && !SelectOccurrence(false))
        services_.dialogs.MsgBox(kNoMoreOccurrencesMessage);
}

bool frmNotes::SelectOccurrence(bool fromStart) {
    const SearchState& search = context_.search;
    if (!search.IsActive())
        return false;
    QTextCursor cursor = txtNotes_->textCursor();
    const QString text = txtNotes_->toPlainText();
    const qsizetype found =
        FindNextOccurrence(text, search.phrase, fromStart ? 0 : cursor.selectionEnd());
    if (found < 0)
        return false;
    cursor.setPosition(int(found));
    cursor.setPosition(int(found + search.phrase.size()), QTextCursor::KeepAnchor);
    txtNotes_->setTextCursor(cursor);
    return true;
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
