#pragma once

#include <QDate>
#include <QObject>

class AlertTray;
class AlertsStore;
class DateModel;
class Printer;
class QLabel;
class QListWidget;
class QPushButton;
class Services;
class ToDoStore;
class frmAlarm;
class frmAlert;
class frmMain;
class frmToDo;

// The alerts', to-do list's and alarm clock's part of the main window: the alert indicator
// and the pending alerts of the right panel, the to-do list of the bottom panel, the alert
// manager, the to-do window and the alarm clock opened from the menus, and the notification
// area of the desktop.
class RemindersMenus : public QObject {
    Q_OBJECT
public:
    RemindersMenus(frmMain& frame, Services& services, const DateModel& dates, AlertsStore& alerts,
                   ToDoStore& toDo, Printer& printer);

    // The alert manager, opened or brought up: on a new alert of date (today when invalid), or
    // showing the first alert of date, or showing the pending alerts.
    frmAlert* OpenAlertManager(const QDate& date = {});
    frmAlert* ViewAlertsOn(const QDate& date);
    frmAlert* ViewPendingAlerts();
    frmToDo* OpenToDoList();
    frmAlarm* OpenAlarmClock();
    frmAlert* alertWindow() const;
    frmToDo* toDoWindow() const;
    frmAlarm* alarmWindow() const;
    AlertTray& tray() const { return *tray_; }

    // Sets the indicator from the alerts just read (left as it was when there is no alert
    // file) and lists the pending alerts in the right panel.
    void ShowAlerts(bool fileFound);
    // The default to-do list in the bottom panel: each row with text, and its done box.
    void ShowToDoList();
    // Right click on the indicator: it looks as if nothing were pending until the alerts
    // change or the day does.
    void IgnoreAlerts();
    bool alertsIgnored() const { return ignored_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ConnectMenus();
    void ConnectIndicator();
    void ConnectToDoPanel();
    void PaintIndicator(bool pending);
    void FillPendingList();
    void RaiseMainWindow();
    // After midnight: what is pending is worked out again for the new day.
    void NewDay();

    frmMain& frame_;
    Services& services_;
    const DateModel& dates_;
    AlertsStore& alerts_;
    ToDoStore& toDo_;
    Printer& printer_;
    AlertTray* tray_;
    QPushButton* cmdAlert_;
    QLabel* imgAlert_;
    QListWidget* lstAlerts_;
    bool ignored_ = false;
    // The indicator's state as last set: whether alerts were pending.
    bool pendingShown_ = false;
};
