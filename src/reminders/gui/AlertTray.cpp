#include "reminders/gui/AlertTray.h"

#include <QSystemTrayIcon>
#include <algorithm>

#include "reminders/RemindersMessages.h"
#include "reminders/modAlerts.h"
#include "shell/DateFormats.h"
#include "shell/gui/Icons.h"

namespace {

// A message lists this many alerts at most; the tooltip and the manager show them all.
constexpr int kListedAlerts = 5;
constexpr int kMessageMs = 15000;
const QString kProgramName = QStringLiteral("Orvanta");

}  // namespace

AlertTray::AlertTray(const AlertsStore& alerts, QObject* parent)
    : QObject(parent), alerts_(alerts) {
    if (!QSystemTrayIcon::isSystemTrayAvailable())
        return;
    icon_ = new QSystemTrayIcon(icons::Orvanta(), this);
    connect(icon_, &QSystemTrayIcon::messageClicked, this, &AlertTray::MessageClicked);
    connect(icon_, &QSystemTrayIcon::activated, this,
            [this](QSystemTrayIcon::ActivationReason) { emit mainWindowWanted(); });
    Refresh();
    icon_->show();
}

void AlertTray::SetPendingBirthdays(std::function<QString()> summary) {
    birthdays_ = std::move(summary);
    Refresh();
}

QString AlertTray::PendingBirthdays() const {
    return birthdays_ ? birthdays_() : QString();
}

QString AlertTray::ToolTip() const {
    QString tip = kProgramName + QLatin1Char('\n') +
                  IndicatorFor(alerts_.AlertCount(), alerts_.PendingCount()).caption;
    if (const QString birthdays = PendingBirthdays(); !birthdays.isEmpty())
        tip += QLatin1Char('\n') + birthdays;
    return tip;
}

void AlertTray::Refresh() {
    if (icon_)
        icon_->setToolTip(ToolTip());
}

void AlertTray::AnnounceDue() {
    Refresh();
    const QString birthdays = PendingBirthdays();
    if (alerts_.PendingCount() == 0 && birthdays.isEmpty())
        return;
    // The soonest first.
    QList<int> pending = alerts_.pendingAlerts;
    std::stable_sort(pending.begin(), pending.end(), [this](int a, int b) {
        return alerts_.alertDates[a] < alerts_.alertDates[b];
    });
    QStringList lines;
    for (int k = 0; k < pending.size() && k < kListedAlerts; ++k)
        lines.append(datefmt::MmDdYy(alerts_.alertDates[pending[k]]) + QStringLiteral("  ") +
                     alerts_.alertMessages[pending[k]]);
    if (pending.size() > kListedAlerts)
        lines.append(QStringLiteral("..."));
    if (!birthdays.isEmpty())
        lines.append(birthdays);
    const QString title = alerts_.PendingCount() > 0
                              ? IndicatorFor(alerts_.AlertCount(), alerts_.PendingCount()).caption
                              : kProgramName;
    Show(Announced::DueItems, title, lines.join(QLatin1Char('\n')));
}

void AlertTray::AnnounceAlarm(const QString& time) {
    Show(Announced::Alarm, kAlarmCaption, AlarmReachedStatus(time));
}

void AlertTray::Show(Announced what, const QString& title, const QString& text) {
    lastAnnounced_ = what;
    lastMessage_ = title + QLatin1Char('\n') + text;
    if (icon_)
        icon_->showMessage(title, text, QSystemTrayIcon::Information, kMessageMs);
}

void AlertTray::MessageClicked() {
    emit mainWindowWanted();
    if (lastAnnounced_ == Announced::Alarm)
        emit alarmWanted();
    else if (lastAnnounced_ == Announced::DueItems && alerts_.PendingCount() > 0)
        emit alertsWanted();
}
