#pragma once

#include <QDate>

#include "notes_planner/gui/NotesPlannerContext.h"
#include "shell/gui/ChildWindow.h"

class QPlainTextEdit;
class QPushButton;
class UnsavedTracker;

// The notes of one date: one large text box, a button that leaves the notes for the planner
// of the same date, and the File, Edit and Preferences menus.
class frmNotes : public ChildWindow {
    Q_OBJECT
public:
    static constexpr const char* kName = "frmNotes";

    explicit frmNotes(NotesPlannerContext& context);
    ~frmNotes() override;

    // Shows the selected date's note under its caption; a safety copy of unsaved typing left
    // for that date is offered back first. The notes on show are asked about before.
    // Returns false when the user kept them (Cancel).
    bool ShowSelectedDate(bool askToRestore = true);
    // Shows the notes file at path under "Displaying External Notes for ..."; saving then goes
    // back to that file. The notes on show are asked about before. False when not shown.
    bool ReadExternalNotes(const QString& path, bool askToRestore = true);
    QDate date() const { return date_; }
    bool IsExternal() const { return !externalFile_.isEmpty(); }

    // Saves the note into its year's file and reads that year again; false when it was not
    // saved (the text stays).
    bool mnuFileSave_Click();
    void mnuFilePrint_Click();
    // Writes the note on show to a ".nte" file under a name the user gives; returns its path,
    // empty when nothing was written.
    QString SaveExternalNotes();
    void mnuFileExportNotesAndAssign_Click();
    void mnuFileImport_Click();
    void mnuEditSearchAgain_Click();
    // Selects the search phrase's next occurrence after the selection (or its first, from
    // the start); false when there is none or no search is active.
    bool SelectOccurrence(bool fromStart);
    void cmdPlanner_Click();

protected:
    bool Form_QueryUnload() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildMenus();
    void txtNotes_Change();
    // F2 and F3 belong to the frequently used terms (Esc closes every child window); true
    // when the key was taken.
    bool Form_KeyDown(int key);
    // The text as the notes file keeps it: lines ended by CR LF.
    QString NoteText() const;
    void ShowText(const QString& text);
    // Shows text under caption as the note of date (of the file externalFile, when not empty),
    // or the safety copy left of it.
    void ShowNote(const QDate& date, const QString& caption, const QString& text,
                  const QString& externalFile, bool askToRestore);

    NotesPlannerContext& context_;
    QPlainTextEdit* txtNotes_;
    QPushButton* cmdPlanner_;
    UnsavedTracker* tracker_;
    QDate date_;
    QString externalFile_;
    bool loading_ = false;
};
