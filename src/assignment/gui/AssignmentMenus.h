#pragma once

#include <QObject>
#include <QString>

class ContactList;
class Services;
class UserPreferences;
class frmEmailList;
class frmMain;

// The contact list's part of the main window: Manage > Contact List opens it, and a planner
// page or notes exported "and Assign to..." opens it with that file waiting to be assigned.
// It also keeps the planner page last copied to memory, which the list pastes into a message.
class AssignmentMenus : public QObject {
    Q_OBJECT
public:
    AssignmentMenus(frmMain& frame, Services& services, ContactList& contacts,
                    const UserPreferences& prefs);

    frmEmailList* mnuManageEmailList_Click();
    frmEmailList* AssignExport(const QString& path);
    void PlannerCopied(const QString& text) { plannerMemory_ = text; }

private:
    frmMain& frame_;
    Services& services_;
    ContactList& contacts_;
    const UserPreferences& prefs_;
    QString plannerMemory_;
};
