#include "reminders/gui/RemindersMenus.h"

#include <QLabel>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>
#include <algorithm>

#include "calendar/DateModel.h"
#include "reminders/RemindersMessages.h"
#include "reminders/gui/AlertTray.h"
#include "reminders/gui/frmAlarm.h"
#include "reminders/gui/frmAlert.h"
#include "reminders/gui/frmToDo.h"
#include "reminders/modAlerts.h"
#include "reminders/modToDo.h"
#include "shell/DateFormats.h"
#include "shell/FixedWidth.h"
#include "shell/Services.h"
#include "shell/gui/Colors.h"
#include "shell/gui/Icons.h"
#include "shell/gui/frmMain.h"

namespace {

const QColor kPendingColor(255, 255, 0);
const QString kAlertDateCaption = QStringLiteral("Alert Date =");

}  // namespace

RemindersMenus::RemindersMenus(frmMain& frame, Services& services, const DateModel& dates,
                               AlertsStore& alerts, ToDoStore& toDo, Printer& printer)
    : QObject(&frame),
      frame_(frame),
      services_(services),
      dates_(dates),
      alerts_(alerts),
      toDo_(toDo),
      printer_(printer),
      tray_(new AlertTray(alerts, this)),
      cmdAlert_(frame.Control<QPushButton>(QStringLiteral("cmdAlert"))),
      imgAlert_(frame.Control<QLabel>(ArrayName(QStringLiteral("imgAlert"), 0))),
      lstAlerts_(frame.Control<QListWidget>(QStringLiteral("lstAlerts"))) {
    connect(&alerts_, &AlertsStore::alertsRead, this, &RemindersMenus::ShowAlerts);
    connect(&toDo_, &ToDoStore::toDoListChanged, this, &RemindersMenus::ShowToDoList);
    connect(&frame_, &frmMain::todayChanged, this, &RemindersMenus::NewDay);
    connect(tray_, &AlertTray::mainWindowWanted, this, &RemindersMenus::RaiseMainWindow);
    connect(tray_, &AlertTray::alertsWanted, this, &RemindersMenus::ViewPendingAlerts);
    connect(tray_, &AlertTray::alarmWanted, this, &RemindersMenus::OpenAlarmClock);
    ConnectMenus();
    ConnectIndicator();
    ConnectToDoPanel();
}

void RemindersMenus::ConnectMenus() {
    const auto handle = [this](const char* item, const char* handler, auto body) {
        Handle(frame_.MenuItem(QString::fromLatin1(item)), this,
               [this, handler, body] { services_.Trap(handler, body); });
    };
    handle("mnuManageAlerts", "mnuManageAlerts_Click", [this] { OpenAlertManager(); });
    handle("mnuOptDateSetAlert", "mnuOptDateSetAlert_Click",
           [this] { OpenAlertManager(dates_.SelectedDate); });
    handle("mnuOptDateViewAlert", "mnuOptDateViewAlert_Click",
           [this] { ViewAlertsOn(dates_.SelectedDate); });
    handle("mnuManageToDo", "mnuManageToDo_Click", [this] { OpenToDoList(); });
    handle("mnuToolsAlarm", "mnuToolsAlarm_Click", [this] { OpenAlarmClock(); });
}

void RemindersMenus::ConnectIndicator() {
    const auto view = [this] {
        services_.Trap("cmdAlert_Click", [this] {
            if (alerts_.PendingCount() > 0)
                ViewPendingAlerts();
            else
                OpenAlertManager();
        });
    };
    connect(cmdAlert_, &QPushButton::clicked, this, view);
    cmdAlert_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(cmdAlert_, &QWidget::customContextMenuRequested, this, &RemindersMenus::IgnoreAlerts);
    imgAlert_->installEventFilter(this);
    // A long message is cut at the panel's edge; its tooltip holds it whole.
    lstAlerts_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // The right panel: a click shows the alert's date, Enter or a double click opens it.
    connect(lstAlerts_, &QListWidget::currentItemChanged, this, [this](QListWidgetItem* item) {
        auto* caption = frame_.Control<QLabel>(QStringLiteral("lblAlertDate"));
        caption->setText(item
                             ? kAlertDatePrefix + datefmt::MmDdYy(item->data(Qt::UserRole).toDate())
                             : kAlertDateCaption);
    });
    connect(lstAlerts_, &QListWidget::itemActivated, this, [this](QListWidgetItem* item) {
        services_.Trap("lstAlerts_DblClick", [this, item] {
            ViewPendingAlerts()->ShowAlert(item->data(Qt::UserRole + 1).toString(), true);
        });
    });
}

void RemindersMenus::ConnectToDoPanel() {
    for (int row = 0; row < kToDoRows; ++row) {
        auto* text = frame_.Control<QLabel>(ArrayName(QStringLiteral("lblToDo"), row));
        // A long entry is cut at the panel's edge rather than widening it.
        text->setSizePolicy(QSizePolicy::Ignored, text->sizePolicy().verticalPolicy());
    }
    ShowToDoList();
}

bool RemindersMenus::eventFilter(QObject* watched, QEvent* event) {
    if (watched == imgAlert_ && event->type() == QEvent::MouseButtonRelease &&
        static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton)
        cmdAlert_->click();
    return QObject::eventFilter(watched, event);
}

// ---- the indicator and the right panel -------------------------------------------------------

void RemindersMenus::ShowAlerts(bool fileFound) {
    ignored_ = false;
    if (fileFound) {
        const AlertIndicator indicator = IndicatorFor(alerts_.AlertCount(), alerts_.PendingCount());
        cmdAlert_->setText(indicator.caption);
        cmdAlert_->setToolTip(indicator.buttonTip);
        imgAlert_->setToolTip(indicator.pictureTip);
        if (indicator.back != AlertIndicator::Back::Unchanged)
            PaintIndicator(indicator.back == AlertIndicator::Back::Yellow);
        else
            imgAlert_->setPixmap(
                frame_.Control<QLabel>(ArrayName(QStringLiteral("imgAlert"), 1))->pixmap());
        pendingShown_ = alerts_.PendingCount() > 0;
        // Once there is an alert file, the button stands for the label: it opens the manager.
        cmdAlert_->show();
        frame_.Control<QLabel>(QStringLiteral("lblAlert"))->hide();
    }
    FillPendingList();
    tray_->Refresh();
}

void RemindersMenus::PaintIndicator(bool pending) {
    QPalette palette;
    if (pending) {
        // The caption keeps its contrast on the bright button whatever the desktop's colours.
        palette.setColor(QPalette::Button, kPendingColor);
        palette.setColor(QPalette::ButtonText, InkOn(kPendingColor));
    }
    cmdAlert_->setPalette(palette);
    const int picture = pending ? 2 : 1;
    imgAlert_->setPixmap(
        frame_.Control<QLabel>(ArrayName(QStringLiteral("imgAlert"), picture))->pixmap());
}

void RemindersMenus::IgnoreAlerts() {
    if (!pendingShown_)
        return;
    ignored_ = true;
    PaintIndicator(false);
}

void RemindersMenus::FillPendingList() {
    struct Pending {
        QString message;
        QDate date;
        QString line;
    };
    QList<Pending> pending;
    for (const int alert : alerts_.pendingAlerts)
        pending.append(
            {alerts_.alertMessages[alert], alerts_.alertDates[alert], alerts_.alertLines[alert]});
    std::stable_sort(pending.begin(), pending.end(), [](const Pending& a, const Pending& b) {
        return a.message.compare(b.message, Qt::CaseInsensitive) < 0;
    });
    lstAlerts_->clear();
    for (const Pending& alert : pending) {
        auto* item = new QListWidgetItem(alert.message, lstAlerts_);
        item->setToolTip(alert.message);
        item->setData(Qt::UserRole, alert.date);
        item->setData(Qt::UserRole + 1, alert.line);
    }
}

void RemindersMenus::NewDay() {
    alerts_.ReadAlerts();
    if (frmAlert* window = alertWindow())
        window->LoadAlerts();
    tray_->AnnounceDue();
}

// ---- the to-do panel -------------------------------------------------------------------------

void RemindersMenus::ShowToDoList() {
    const ToDoRows& rows = toDo_.rows();
    for (int row = 0; row < kToDoRows; ++row) {
        const QString text = TrimBlanks(rows.texts[row]).toString();
        auto* label = frame_.Control<QLabel>(ArrayName(QStringLiteral("lblToDo"), row));
        auto* box = frame_.Control<QLabel>(ArrayName(QStringLiteral("imgChkBox"), row));
        label->setText(text);
        label->setToolTip(text);
        box->setPixmap(icons::CheckBox(rows.done[row]));
        label->setVisible(!text.isEmpty());
        box->setVisible(!text.isEmpty());
    }
}

// ---- the windows -----------------------------------------------------------------------------

frmAlert* RemindersMenus::alertWindow() const {
    return qobject_cast<frmAlert*>(frame_.ChildWindow(QString::fromLatin1(frmAlert::kName)));
}

frmToDo* RemindersMenus::toDoWindow() const {
    return qobject_cast<frmToDo*>(frame_.ChildWindow(QString::fromLatin1(frmToDo::kName)));
}

frmAlarm* RemindersMenus::alarmWindow() const {
    return qobject_cast<frmAlarm*>(frame_.ChildWindow(QString::fromLatin1(frmAlarm::kName)));
}

frmAlert* RemindersMenus::OpenAlertManager(const QDate& date) {
    const bool open = alertWindow() != nullptr;
    auto* window =
        static_cast<frmAlert*>(frame_.ShowChild(QString::fromLatin1(frmAlert::kName), [&] {
            return new frmAlert(services_, alerts_, date);
        }));
    if (open && date.isValid())
        window->NewAlertOn(date);
    window->setFocus();
    return window;
}

frmAlert* RemindersMenus::ViewAlertsOn(const QDate& date) {
    frmAlert* window = OpenAlertManager();
    window->ShowAlertOn(date);
    return window;
}

frmAlert* RemindersMenus::ViewPendingAlerts() {
    frmAlert* window = OpenAlertManager();
    window->SetPendingOnly(true);
    return window;
}

frmToDo* RemindersMenus::OpenToDoList() {
    auto* window =
        static_cast<frmToDo*>(frame_.ShowChild(QString::fromLatin1(frmToDo::kName), [this] {
            return new frmToDo(services_, toDo_, printer_);
        }));
    window->setFocus();
    return window;
}

frmAlarm* RemindersMenus::OpenAlarmClock() {
    auto* window =
        static_cast<frmAlarm*>(frame_.ShowChild(QString::fromLatin1(frmAlarm::kName), [this] {
            auto* alarm = new frmAlarm(services_);
            connect(alarm, &frmAlarm::ringing, tray_, &AlertTray::AnnounceAlarm);
            return alarm;
        }));
    window->setFocus();
    return window;
}

void RemindersMenus::RaiseMainWindow() {
    if (frame_.isMinimized())
        frame_.showNormal();
    frame_.raise();
    frame_.activateWindow();
}
