#include "assignment/gui/AssignmentMenus.h"

#include "assignment/gui/frmEmailList.h"
#include "shell/gui/frmMain.h"

AssignmentMenus::AssignmentMenus(frmMain& frame, Services& services, ContactList& contacts,
                                 const UserPreferences& prefs)
    : QObject(&frame), frame_(frame), services_(services), contacts_(contacts), prefs_(prefs) {
    Handle(frame_.MenuItem(QStringLiteral("mnuManageEmailList")), this, [this] {
        services_.Trap("mnuManageEmailList_Click", [this] { mnuManageEmailList_Click(); });
    });
}

frmEmailList* AssignmentMenus::mnuManageEmailList_Click() {
    auto* window = static_cast<frmEmailList*>(frame_.ShowChild(
        QString::fromLatin1(frmEmailList::kName),
        [this] { return new frmEmailList(services_, contacts_, prefs_, plannerMemory_); }));
    window->setFocus();
    return window;
}

frmEmailList* AssignmentMenus::AssignExport(const QString& path) {
    frmEmailList* window = mnuManageEmailList_Click();
    window->SetExport(path);
    return window;
}
