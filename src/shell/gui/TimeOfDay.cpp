#include "shell/gui/TimeOfDay.h"

#include <QLabel>
#include <QStatusBar>
#include <QTimer>

#include "shell/DateFormats.h"
#include "shell/Services.h"
#include "shell/UserPreferences.h"
#include "shell/gui/frmMain.h"

namespace {

constexpr int kSecondMs = 1000;
const QString kOn = QStringLiteral("-1");
const QString kOff = QStringLiteral("0");

}  // namespace

TimeOfDay::TimeOfDay(frmMain& frame, Services& services, UserPreferences& prefs)
    : QObject(&frame), frame_(frame), services_(services), prefs_(prefs) {
    item_ = frame.MenuItem(QStringLiteral("mnuToolsShowTime"));
    item_->setCheckable(true);
    lblTime_ = new QLabel(&frame);
    lblTime_->setObjectName(QStringLiteral("lblTime"));
    lblTime_->setToolTip(QStringLiteral("Time of Day"));
    frame.statusBar()->addPermanentWidget(lblTime_);
    frame.statusBar()->hide();
    timer_ = new QTimer(this);
    timer_->setObjectName(QStringLiteral("tmrTime"));
    timer_->setInterval(services.clock.Interval(kSecondMs));
    connect(timer_, &QTimer::timeout, this, &TimeOfDay::Tick);
    Handle(item_, this, &TimeOfDay::mnuToolsShowTime_Click);
}

void TimeOfDay::ShowAtStart() {
    Show(prefs_.Value(prefkey::ShowTimeOfDay).trimmed() == kOn);
}

void TimeOfDay::mnuToolsShowTime_Click() {
    services_.Trap("mnuToolsShowTime_Click", [this] {
        // The item has already turned its check mark over when this runs.
        Show(item_->isChecked());
        prefs_.SetValue(prefkey::ShowTimeOfDay, item_->isChecked() ? kOn : kOff);
        prefs_.SaveUserPreferences(services_);
    });
}

void TimeOfDay::Show(bool on) {
    item_->setChecked(on);
    frame_.statusBar()->setVisible(on);
    if (on) {
        Tick();
        timer_->start();
    } else {
        timer_->stop();
    }
}

void TimeOfDay::Tick() {
    lblTime_->setText(datefmt::MediumTime(services_.clock.now().time()));
}
