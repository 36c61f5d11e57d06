#pragma once

#include <QList>
#include <array>

#include "reminders/modToDo.h"
#include "shell/gui/ChildWindow.h"

class Printer;
class QKeyEvent;
class QLineEdit;
class QToolButton;

// The to-do window: ten rows, each with its done box, its text and a Remove button. It edits
// the default list ("To Do.dat") or another to-do file opened in it; Save writes back to the
// list shown.
class frmToDo : public ChildWindow {
    Q_OBJECT
public:
    static constexpr const char* kName = "frmToDo";

    frmToDo(Services& services, ToDoStore& store, Printer& printer);

    // The rows as the window shows them.
    ToDoRows Rows() const;
    bool IsChanged() const { return changed_; }
    // The closing question when the list has changed: Yes saves, No goes on without saving,
    // Cancel keeps the window open. Returns whether the window may close.
    bool AskToSave();

    void imgChkBox_Click(int row);
    void cmdDelete_Click(int row);
    void mnuFileNew_Click();
    void mnuFileOpen_Click();
    bool mnuFileSave_Click();
    void mnuFileSaveAs_Click();
    void mnuFilePrint_Click();
    void mnuOptMoveUp_Click() { MoveRow(-1); }
    void mnuOptMoveDown_Click() { MoveRow(+1); }

protected:
    bool Form_QueryUnload() override;
    bool AsksWhenProgramCloses() const override { return true; }
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildRows(QWidget* sheet);
    void BuildMenus();
    void txt_GotFocus(int row);
    bool txt_KeyDown(int row, const QKeyEvent& key);
    void ShowRows(const ToDoRows& rows);
    void SetDone(int row, bool done);
    // The contents of the row last in the keyboard exchanged with those of the row step away.
    void MoveRow(int step);

    ToDoStore& store_;
    Printer& printer_;
    // The list shown: empty for the default list, else the file's path.
    QString file_;
    bool changed_ = false;
    int focusedRow_ = 0;
    std::array<bool, kToDoRows> done_{};
    QList<QLineEdit*> txt_;
    QList<QToolButton*> imgChkBox_;
};
