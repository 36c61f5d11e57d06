#include "shell/gui/frmMain.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScreen>
#include <QSignalBlocker>
#include <QTimer>

#include "shell/DateFormats.h"
#include "shell/DateInput.h"
#include "shell/Services.h"
#include "shell/ShellMessages.h"
#include "shell/UserPreferences.h"
#include "shell/gui/Accessibility.h"
#include "shell/gui/ChildWindow.h"
#include "shell/gui/Icons.h"
#include "shell/gui/OneLineBoxes.h"

namespace {

constexpr int kMinuteMs = 60 * 1000;

}  // namespace

frmMain::frmMain(Services& services, ChangeFlags& changes, UserPreferences& prefs, QWidget* parent)
    : QMainWindow(parent), services_(services), changes_(changes), prefs_(prefs) {
    setObjectName(QStringLiteral("frmMain"));
    AccessibleNaming::Install();
    KeepEveryBoxOnOneLine();
    setWindowTitle(QStringLiteral("Orvanta - Planner and Date Management"));
    setWindowIcon(icons::Orvanta());
    BuildPanels();
    BuildMenus();
    ConnectSelectors();
    timer1_ = new QTimer(this);
    timer1_->setObjectName(QStringLiteral("Timer1"));
    timer1_->setInterval(kMinuteMs);
    connect(timer1_, &QTimer::timeout, this, &frmMain::Timer1_Timer);
    RestorePosition();
}

frmMain::~frmMain() = default;

void frmMain::Form_Load() {
    if (loadSteps_)
        loadSteps_();
    RestorePosition();
    ShowToday();
    timer1_->start();
}

void frmMain::ShowToday() {
    todayShown_ = services_.clock.today();
    lblToday_->setText(QStringLiteral("Today is ") + datefmt::LongDate(todayShown_));
}

void frmMain::Timer1_Timer() {
    if (services_.clock.today() == todayShown_)
        return;
    ShowToday();
    emit todayChanged(todayShown_);
}

// ---- place and size ----------------------------------------------------------------------

void frmMain::RestorePosition() {
    const QRect free = screen()->availableGeometry();
    const QStringList fields = prefs_.Value(prefkey::MainWindowPosition).split(QLatin1Char(','));
    QList<int> saved;
    for (const QString& field : fields)
        saved.append(field.trimmed().toInt());
    const QRect place = saved.size() == 5 ? QRect(saved[0], saved[1], saved[2], saved[3]) : QRect();
    // A first start, or a place on a screen that is no longer there, fills the screen's free
    // area; a place partly off the screen is pulled back onto it.
    if (place.isValid() && free.intersects(place)) {
        setGeometry(place.intersected(free));
        setWindowState(saved[4] != 0 ? Qt::WindowMaximized : Qt::WindowNoState);
    } else {
        setGeometry(free);
        setWindowState(Qt::WindowMaximized);
    }
}

void frmMain::SavePosition() {
    const QRect place = normalGeometry().isValid() ? normalGeometry() : geometry();
    prefs_.SetValue(prefkey::MainWindowPosition, QStringLiteral("%1,%2,%3,%4,%5")
                                                     .arg(place.x())
                                                     .arg(place.y())
                                                     .arg(place.width())
                                                     .arg(place.height())
                                                     .arg(isMaximized() ? -1 : 0));
    prefs_.SaveUserPreferences(services_);
}

// ---- selected date -----------------------------------------------------------------------

void frmMain::ConnectSelectors() {
    connect(cmbDay_, &QComboBox::currentIndexChanged, this, &frmMain::cmbDay_Click);
    connect(cmbMonth_, &QComboBox::currentIndexChanged, this, &frmMain::cmbMonth_Click);
    connect(cmbYear_, &QComboBox::currentIndexChanged, this, &frmMain::cmbYear_Click);
    connect(txtDate_, &QLineEdit::returnPressed, this, &frmMain::txtDate_Enter);
}

void frmMain::FillDayCombo(int year, int month) {
    const int days = QDate(year, month, 1).daysInMonth();
    if (cmbDay_->count() == days)
        return;
    const QSignalBlocker block(cmbDay_);
    cmbDay_->clear();
    for (int day = 1; day <= days; ++day)
        cmbDay_->addItem(QString::number(day));
}

void frmMain::ShowSelectedDate(const QDate& date) {
    if (!date.isValid())
        return;
    dateShown_ = date;
    FillDayCombo(date.year(), date.month());
    {
        const QSignalBlocker blockDay(cmbDay_), blockMonth(cmbMonth_), blockYear(cmbYear_);
        cmbDay_->setCurrentIndex(date.day() - 1);
        cmbMonth_->setCurrentIndex(date.month() - 1);
        cmbYear_->setCurrentIndex(cmbYear_->findText(QString::number(date.year())));
    }
    txtDate_->setText(datefmt::ShortDate(date));
    const QString month = datefmt::MonthName(date.month());
    lblDate_->setText(QStringLiteral("Month: ") + month);
    framTasks_->setTitle(QStringLiteral("Tasks for ") + month);
}

void frmMain::cmbDay_Click() {
    emit dateChosen(QDate(dateShown_.year(), dateShown_.month(), cmbDay_->currentIndex() + 1));
}

void frmMain::cmbMonth_Click() {
    const QDate first(dateShown_.year(), cmbMonth_->currentIndex() + 1, 1);
    emit dateChosen(first.addDays(std::min(dateShown_.day(), first.daysInMonth()) - 1));
}

void frmMain::cmbYear_Click() {
    const QDate first(cmbYear_->currentText().toInt(), dateShown_.month(), 1);
    emit dateChosen(first.addDays(std::min(dateShown_.day(), first.daysInMonth()) - 1));
}

void frmMain::txtDate_Enter() {
    const QDate date = ParseDateInput(txtDate_->text(), dateShown_.year());
    if (date.isValid() && cmbYear_->findText(QString::number(date.year())) >= 0) {
        emit dateChosen(date);
        return;
    }
    services_.dialogs.MsgBox(kBadDateMessage, kWarningStyle, kBadDateTitle);
    ShowSelectedDate(dateShown_);
}

// ---- child windows -----------------------------------------------------------------------

QWidget* frmMain::ChildWindow(const QString& name) const {
    for (QMdiSubWindow* sub : mdi_->subWindowList()) {
        if (sub->widget() && sub->widget()->objectName() == name)
            return sub->widget();
    }
    return nullptr;
}

QWidget* frmMain::ShowChild(const QString& name, const std::function<QWidget*()>& create) {
    QWidget* child = ChildWindow(name);
    if (!child) {
        child = create();
        child->setObjectName(name);
        QMdiSubWindow* sub = mdi_->addSubWindow(child);
        sub->setAttribute(Qt::WA_DeleteOnClose);
        sub->setWindowIcon(windowIcon());
        // A window larger than the frame's free area is cut to it; its content scrolls.
        sub->resize(sub->sizeHint().boundedTo(mdi_->viewport()->size()));
        sub->show();
    }
    auto* sub = qobject_cast<QMdiSubWindow*>(child->parentWidget());
    if (sub && sub->isMinimized())
        sub->showNormal();
    mdi_->setActiveSubWindow(sub);
    return child;
}

// ---- closing -----------------------------------------------------------------------------

bool frmMain::AskOpenWindows() {
    for (QMdiSubWindow* sub : mdi_->subWindowList()) {
        auto* window = qobject_cast<::ChildWindow*>(sub->widget());
        if (window && !window->QueryProgramClose())
            return false;
    }
    return true;
}

bool frmMain::AskToClose() {
    for (const QString& name : kWindowsConfirmedOnClose) {
        if (IsChildOpen(name))
            return services_.dialogs.MsgBox(kCloseQuestion, kQuestionStyle, kCloseTitle) == vb::Yes;
    }
    return true;
}

void frmMain::closeEvent(QCloseEvent* event) {
    closing_ = true;
    const ChangeFlags givenUp = PromptUnsavedChanges(services_.dialogs, changes_, editors_);
    if (changes_.CancelRequested || !AskOpenWindows() || !AskToClose()) {
        // Work given up with No is still unsaved: the close it was given up for did not
        // happen, and closing its editor later must ask about it again.
        KeepGivenUpChanges(changes_, givenUp);
        closing_ = false;
        event->ignore();
        return;
    }
    timer1_->stop();
    SavePosition();
    event->accept();
}
