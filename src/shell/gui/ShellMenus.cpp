#include "shell/gui/ShellMenus.h"

#include <QCoreApplication>

#include "shell/gui/frmMain.h"

ShellMenus::ShellMenus(frmMain& frame, Services& services, UserPreferences& prefs)
    : QObject(&frame), commands_(services, prefs) {
    ShellCommands* commands = &commands_;
    Handle(frame.MenuItem(QStringLiteral("mnuOptNetworkShare")), this,
           [commands] { commands->mnuOptNetworkShare_Click(); });
    Handle(frame.MenuItem(QStringLiteral("mnuOptCreateShortcut")), this, [commands] {
        commands->mnuOptCreateShortcut_Click(QCoreApplication::applicationFilePath());
    });
    Handle(frame.MenuItem(QStringLiteral("mnuSupportReportProblem")), this,
           [commands] { commands->mnuSupportReportProblem_Click(); });
    Handle(frame.MenuItem(QStringLiteral("mnuSupportSendErrorLog")), this,
           [commands] { commands->mnuSupportSendErrorLog_Click(); });
}
