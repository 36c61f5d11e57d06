#pragma once

#include <QObject>

#include "shell/ShellCommands.h"

class frmMain;

// The frame's own commands on the main window: the share drive and the launcher in the Options
// menu, and the Support menu.
class ShellMenus : public QObject {
    Q_OBJECT
public:
    ShellMenus(frmMain& frame, Services& services, UserPreferences& prefs);

private:
    ShellCommands commands_;
};
