#pragma once

#include <QObject>

class QAction;
class QLabel;
class QTimer;
class Services;
class UserPreferences;
class frmMain;

// Show Time of Day: the time ("Medium Time", such as 03:04 PM) in the main window's status
// bar, brought up to date every second. The Tools menu item turns it on and off and carries a
// check mark while it is shown; the choice is kept in the preferences.
class TimeOfDay : public QObject {
    Q_OBJECT
public:
    TimeOfDay(frmMain& frame, Services& services, UserPreferences& prefs);

    // After the preferences are read: shows the clock when it was left on.
    void ShowAtStart();
    void mnuToolsShowTime_Click();

private:
    void Show(bool on);
    void Tick();

    frmMain& frame_;
    Services& services_;
    UserPreferences& prefs_;
    QAction* item_;
    QLabel* lblTime_;
    QTimer* timer_;
};
