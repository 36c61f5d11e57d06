#pragma once

#include <QList>

#include "assignment/Assignment.h"
#include "shell/gui/ChildWindow.h"

class ContactList;
struct Contact;
class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QPushButton;
class UserPreferences;

// The contact list: people with their e-mail addresses and a note, kept in "Employee
// Info.dat". A planner page or notes exported for somebody is assigned here: copied into the
// person's folder on the share, and announced, if wanted, by an e-mail draft in the user's
// e-mail program.
class frmEmailList : public ChildWindow {
    Q_OBJECT
public:
    static constexpr const char* kName = "frmEmailList";

    // plannerMemory: the planner page last copied to memory, as text (empty when none was).
    frmEmailList(Services& services, ContactList& contacts, const UserPreferences& prefs,
                 const QString& plannerMemory);

    // The exported file waiting to be assigned; empty when nothing waits.
    void SetExport(const QString& path);
    const AssignmentState& State() const { return state_; }

    void cmdAssign_Click();
    void cmdDelete_Click();
    void cmdExit_Click();
    void cmdNew_Click();
    void cmdOpenEmail_Click();
    // False when the fields were refused and nothing was saved.
    bool cmdSave_Click();
    void lstNames_Click();
    void mnuOptPastePlanner_Click();

private:
    void Form_Load();
    bool Form_QueryUnload() override;
    bool AsksWhenProgramCloses() const override { return true; }
    void FillList(qsizetype selected);
    void ShowFields(const Contact* person);
    bool eventFilter(QObject* watched, QEvent* event) override;

    ContactList& contacts_;
    const UserPreferences& prefs_;
    const QString& plannerMemory_;
    AssignmentState state_;
    // The contact fields were typed into since they were last shown or saved.
    bool changed_ = false;
    bool showing_ = false;

    QListWidget* lstNames_;
    // Name, e-mail address and note.
    QList<QLineEdit*> txt_;
    QLineEdit* txtSubject_;
    QPlainTextEdit* txtMessage_;
    QLabel* lblFile_;
    QPushButton* cmdAssign_;
};
