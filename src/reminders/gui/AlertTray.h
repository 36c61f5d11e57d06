#pragma once

#include <QObject>
#include <QString>
#include <functional>

class AlertsStore;
class QSystemTrayIcon;

// What is due, in the desktop's notification area: an icon whose tooltip says the pending
// alerts (and birthdays), and a message at start-up, at midnight and when the alarm rings.
// Clicking a message asks for the window that shows what it announced. A desktop without a
// notification area gets no icon and no messages; nothing else changes.
class AlertTray : public QObject {
    Q_OBJECT
public:
    enum class Announced { Nothing, DueItems, Alarm };

    explicit AlertTray(const AlertsStore& alerts, QObject* parent = nullptr);

    // The birthday side says what birthdays are pending ("2 Pending Birthdays"); empty when
    // none are. Until it is set the tray speaks of alerts only.
    void SetPendingBirthdays(std::function<QString()> summary);

    // The tooltip, after alerts or birthdays were read.
    void Refresh();
    // A message of what is due today, when anything is.
    void AnnounceDue();
    // A message that the alarm set for time rings.
    void AnnounceAlarm(const QString& time);

    QString ToolTip() const;
    // What the last message said ("title\ntext") and what it announced.
    const QString& lastMessage() const { return lastMessage_; }
    Announced lastAnnounced() const { return lastAnnounced_; }
    bool HasIcon() const { return icon_ != nullptr; }

    // A click on the last message.
    void MessageClicked();

signals:
    // The user clicked the icon, or a message of what is due or of the alarm.
    void mainWindowWanted();
    void alertsWanted();
    void alarmWanted();

private:
    QString PendingBirthdays() const;
    void Show(Announced what, const QString& title, const QString& text);

    const AlertsStore& alerts_;
    std::function<QString()> birthdays_;
    QSystemTrayIcon* icon_ = nullptr;
    QString lastMessage_;
    Announced lastAnnounced_ = Announced::Nothing;
};
