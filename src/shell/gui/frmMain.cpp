#include "shell/gui/frmMain.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QTimer>

#include "Version.h"
#include "calendar/DateActions.h"
#include "calendar/gui/CalendarView.h"
#include "help/gui/frmHelp.h"
#include "shell/DateFormats.h"
#include "shell/DateInput.h"
#include "shell/ProgramState.h"

namespace {

const QString kCalendarWindow = QStringLiteral("frmCalendar");

constexpr int kMinuteMs = 60 * 1000;

}  // namespace

frmMain::frmMain(ProgramState& state, QWidget* parent)
    : QMainWindow(parent), state_(state), actions_(std::make_unique<DateActions>(state, *this)) {
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(QStringLiteral("Orvanta - Planner and Date Management"));
    BuildPanels();
    BuildMenus();
    ConnectHandlers();
    ConnectMarkHandlers();
    timer1_ = new QTimer(this);
    timer1_->setObjectName(QStringLiteral("Timer1"));
    timer1_->setInterval(kMinuteMs);
    connect(timer1_, &QTimer::timeout, this, &frmMain::Timer1_Timer);
    connect(&state_, &ProgramState::selectedDateChanged, this, &frmMain::ShowSelectedDate);
    resize(1180, 800);
}

frmMain::~frmMain() = default;

void frmMain::Form_Load() {
    Services& services = state_.services;
    state_.help.LoadHelpTopics(services);
    FillHelpBox();
    state_.prefs.GetUserPreferences(services);
    state_.dates.SelectedDate = services.clock.today();
    state_.dates.SetYearBounds();
    state_.markerColors.ReadMarkerColors(services);
    ShowMarkerSettings();
    state_.dates.AssignThisYearsDateHolders();
    state_.dates.AssignNextYearsDateholders();
    state_.marks.ReadAndDisplayThisYearsMarks();
    state_.marks.ReadAndDisplayNextYearsMarks();
    ReadAlerts();
    ReadBirthdays();
    Show1YearCalendar();
    FillTaskList();
    ShowToday();
    ShowSelectedDate();
    timer1_->start();
}

void frmMain::ReadAlerts() {
    // The alerts store reads "Alerts.dat" here and sets the pending-alert indicator.
}

void frmMain::ReadBirthdays() {
    // The birthdays store reads "Birthdays.dat" here and sets the pending-birthday indicator.
}

void frmMain::FillTaskList() {
    // The month's notes and planners are listed in lstTasks here.
}

void frmMain::ShowToday() {
    todayShown_ = state_.services.clock.today();
    lblToday_->setText(QStringLiteral("Today is ") + datefmt::LongDate(todayShown_));
}

void frmMain::Timer1_Timer() {
    if (state_.services.clock.today() == todayShown_)
        return;
    ShowToday();
    RedrawCalendar();
    emit todayChanged(todayShown_);
}

// ---- selected date ---------------------------------------------------------------------

void frmMain::FillDayCombo(int year, int month) {
    const int days = QDate(year, month, 1).daysInMonth();
    if (cmbDay_->count() == days)
        return;
    const QSignalBlocker block(cmbDay_);
    cmbDay_->clear();
    for (int day = 1; day <= days; ++day)
        cmbDay_->addItem(QString::number(day));
}

void frmMain::ShowSelectedDate() {
    const QDate date = state_.dates.SelectedDate;
    if (!date.isValid())
        return;
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
    const QDate selected = state_.dates.SelectedDate;
    state_.SelectDate(QDate(selected.year(), selected.month(), cmbDay_->currentIndex() + 1));
}

void frmMain::cmbMonth_Click() {
    const QDate selected = state_.dates.SelectedDate;
    const QDate first(selected.year(), cmbMonth_->currentIndex() + 1, 1);
    state_.SelectDate(first.addDays(std::min(selected.day(), first.daysInMonth()) - 1));
}

void frmMain::cmbYear_Click() {
    const QDate selected = state_.dates.SelectedDate;
    const QDate first(cmbYear_->currentText().toInt(), selected.month(), 1);
    state_.SelectDate(first.addDays(std::min(selected.day(), first.daysInMonth()) - 1));
}

void frmMain::txtDate_Enter() {
    const QDate date = ParseDateInput(txtDate_->text(), state_.dates.ThisYear);
    if (date.isValid() && cmbYear_->findText(QString::number(date.year())) >= 0) {
        state_.SelectDate(date);
        return;
    }
    state_.services.dialogs.MsgBox(
        QStringLiteral("Please type a date such as 9/7/2026 or Sep 7, 2026."),
        vb::OKOnly | vb::Exclamation, QStringLiteral("Date not recognized"));
    ShowSelectedDate();
}

// ---- calendar views --------------------------------------------------------------------

CalendarView* frmMain::calendarView() const {
    return qobject_cast<CalendarView*>(ChildWindow(kCalendarWindow));
}

int frmMain::ViewKind() const {
    const CalendarView* view = calendarView();
    return view ? view->MonthsShown() : 0;
}

void frmMain::ShowCalendar(int months) {
    auto* view = static_cast<CalendarView*>(ShowChild(kCalendarWindow, [this] {
        auto* created =
            new CalendarView(state_, [this](const QDate& date) { return LookOf(date); });
        connect(created, &CalendarView::contextMenuAt, this,
                [this](const QDate&, const QPoint& at) { DateOptionsMenu()->popup(at); });
        return created;
    }));
    view->SetMonthsShown(months);
    view->setWindowTitle(months == 1   ? QStringLiteral("1 Month Calendar")
                         : months == 6 ? QStringLiteral("6 Month Calendar")
                                       : QStringLiteral("Yearly Calendar"));
    if (QWidget* sub = view->parentWidget(); sub && !sub->isMaximized())
        sub->showMaximized();
    view->setFocus();
}

void frmMain::Show1MonthCalendar() {
    ShowCalendar(1);
}

void frmMain::Show6MonthCalendar() {
    ShowCalendar(6);
}

void frmMain::Show1YearCalendar() {
    ShowCalendar(12);
}

void frmMain::RedrawCalendar() {
    if (CalendarView* view = calendarView())
        view->update();
}

void frmMain::AddDayDecorator(DayDecorator decorator) {
    decorators_.append(std::move(decorator));
    RedrawCalendar();
}

DayLook frmMain::LookOf(const QDate& date) const {
    DayLook look;
    for (const DayDecorator& decorate : decorators_)
        decorate(date, look);
    return look;
}

// ---- child windows ---------------------------------------------------------------------

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
        sub->show();
    }
    QMdiSubWindow* sub = qobject_cast<QMdiSubWindow*>(child->parentWidget());
    if (sub && sub->isMinimized())
        sub->showNormal();
    mdi_->setActiveSubWindow(sub);
    return child;
}

// ---- help ------------------------------------------------------------------------------

void frmMain::FillHelpBox() {
    const QSignalBlocker block(cmbHelp_);
    cmbHelp_->clear();
    cmbHelp_->addItems(state_.help.Names());
    const int start = std::max(0, cmbHelp_->findText(QStringLiteral("Getting Started")));
    cmbHelp_->setCurrentIndex(cmbHelp_->count() ? start : -1);
    cmbHelp_Click();
}

void frmMain::cmbHelp_Click() {
    const int topic = cmbHelp_->currentIndex();
    const auto& topics = state_.help.topics();
    txtHelp_->setPlainText(topic >= 0 && topic < topics.size() ? topics[topic].description.trimmed()
                                                               : QString());
}

void frmMain::OpenHelp(int topic) {
    auto* help = static_cast<frmHelp*>(ShowChild(
        QStringLiteral("frmHelp"), [this] { return new frmHelp(state_.help, state_.services); }));
    if (topic >= 0)
        help->SelectTopic(topic);
}

void frmMain::imgHelp_Click() {
    OpenHelp(cmbHelp_->currentIndex());
}

void frmMain::mnuHelpContents_Click() {
    OpenHelp(-1);
}

void frmMain::mnuHelpSoftwareVersion_Click() {
    state_.services.dialogs.MsgBox(QStringLiteral("Orvanta version " ORVANTA_VERSION) + kCrLf +
                                       QStringLiteral("Planner and Date Management"),
                                   vb::OKOnly | vb::Information,
                                   QStringLiteral("Software Version"));
}

// ---- closing ---------------------------------------------------------------------------

bool frmMain::AskToClose() {
    for (const QString& name : kWindowsConfirmedOnClose) {
        if (!IsChildOpen(name))
            continue;
        return state_.services.dialogs.MsgBox(
                   QStringLiteral("Are you sure you want to close the program? Click No to keep "
                                  "this") +
                       kCrLf +
                       QStringLiteral("Window Open and then use the Escape Key to return to the "
                                      "Calendar View."),
                   vb::YesNo | vb::Question,
                   QStringLiteral("Preparing to Close the Application")) == vb::Yes;
    }
    return true;
}

void frmMain::closeEvent(QCloseEvent* event) {
    state_.closing = true;
    PromptUnsavedChanges(state_.services.dialogs, state_.changes, editors_);
    if (state_.changes.CancelRequested || !AskToClose()) {
        state_.closing = false;
        event->ignore();
        return;
    }
    timer1_->stop();
    event->accept();
}
