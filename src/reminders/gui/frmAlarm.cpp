#include "reminders/gui/frmAlarm.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QTimer>
#include <QVBoxLayout>

#include "reminders/RemindersMessages.h"
#include "shell/DateFormats.h"
#include "shell/DateInput.h"
#include "shell/Services.h"

namespace {

constexpr int kMinuteStep = 5;
// How the clock and the time set are compared: "02:30 PM".
QString ClockText(const QTime& time) {
    return time.toString(datefmt::QtPattern(QStringLiteral("hh:mm AMPM")));
}
const QString kStartCaption = QStringLiteral("Start");
const QString kResetCaption = QStringLiteral("Reset");

// The time box less its " AM" or " PM".
QString WithoutHalfOfDay(const QString& text) {
    static const QRegularExpression half(QStringLiteral("\\s*[AaPp][Mm]\\s*$"));
    return QString(text).remove(half).trimmed();
}

// A time the alarm can be set for: hour and minutes on the twelve-hour clock with AM or PM.
QTime AlarmTime(const QString& text) {
    static const QRegularExpression form(QStringLiteral("^\\s*\\d{1,2}:\\d{2}\\s*[AaPp][Mm]\\s*$"));
    return form.match(text).hasMatch() ? ParseTimeInput(text) : QTime();
}

QPushButton* Button(const QString& caption, const QString& name) {
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    return button;
}

}  // namespace

frmAlarm::frmAlarm(Services& services)
    : ChildWindow(services, QString::fromLatin1(kName), kAlarmCaption) {
    auto* column = new QVBoxLayout(Body());
    txtTime_ = new QLineEdit;
    txtTime_->setObjectName(QStringLiteral("txtTime"));
    QFont big = txtTime_->font();
    big.setPointSizeF(big.pointSizeF() * 1.6);
    txtTime_->setFont(big);
    txtTime_->setAlignment(Qt::AlignCenter);
    txtTime_->installEventFilter(this);
    column->addWidget(txtTime_);
    lblAlarm_ = new QLabel;
    lblAlarm_->setObjectName(QStringLiteral("lblAlarm"));
    lblAlarm_->setWordWrap(true);
    lblAlarm_->setMinimumHeight(2 * lblAlarm_->fontMetrics().height());
    // The message flashes in its place without moving the buttons.
    QSizePolicy keepPlace = lblAlarm_->sizePolicy();
    keepPlace.setRetainSizeWhenHidden(true);
    lblAlarm_->setSizePolicy(keepPlace);
    column->addWidget(lblAlarm_);
    BuildButtons(Body());
    BuildMenus();
    timer1_ = new QTimer(this);
    timer1_->setObjectName(QStringLiteral("Timer1"));
    timer1_->setInterval(services_.clock.Interval(kTickMs));
    On(timer1_, &QTimer::timeout, "Timer1_Timer", [this] { Timer1_Timer(); });
    timer2_ = new QTimer(this);
    timer2_->setObjectName(QStringLiteral("Timer2"));
    timer2_->setInterval(services_.clock.Interval(kTickMs));
    On(timer2_, &QTimer::timeout, "Timer2_Timer", [this] { Timer2_Timer(); });
    setFocusProxy(txtTime_);
    // Form_Load
    lblAlarm_->setText(kAlarmIdleStatus);
}

void frmAlarm::BuildButtons(QWidget* body) {
    auto* column = static_cast<QVBoxLayout*>(body->layout());
    auto* hourLabel = new QLabel(QStringLiteral("Select Hour Below"));
    hourLabel->setObjectName(QStringLiteral("lblHour"));
    column->addWidget(hourLabel);
    auto* hours = new QGridLayout;
    for (int hour = 1; hour <= 12; ++hour) {
        QPushButton* button =
            Button(QString::number(hour), ArrayName(QStringLiteral("cmdHour"), hour - 1));
        On(button, &QPushButton::clicked, "cmdHour_Click", [this, hour] { cmdHour_Click(hour); });
        hours->addWidget(button, (hour - 1) / 6, (hour - 1) % 6);
    }
    column->addLayout(hours);
    auto* minuteLabel = new QLabel(QStringLiteral("Select Minutes Below"));
    minuteLabel->setObjectName(QStringLiteral("lblMinutes"));
    column->addWidget(minuteLabel);
    auto* minutes = new QGridLayout;
    for (int i = 0; i < 60 / kMinuteStep; ++i) {
        const int minute = i * kMinuteStep;
        QPushButton* button = Button(QStringLiteral(":%1").arg(minute, 2, 10, QLatin1Char('0')),
                                     ArrayName(QStringLiteral("cmdMinute"), i));
        On(button, &QPushButton::clicked, "cmdMinute_Click",
           [this, minute] { cmdMinute_Click(minute); });
        minutes->addWidget(button, i / 6, i % 6);
    }
    column->addLayout(minutes);
    auto* half = new QHBoxLayout;
    QPushButton* am = Button(QStringLiteral("AM"), QStringLiteral("cmdAM"));
    QPushButton* pm = Button(QStringLiteral("PM"), QStringLiteral("cmdPM"));
    On(am, &QPushButton::clicked, "cmdAM_Click", [this] { cmdAM_Click(); });
    On(pm, &QPushButton::clicked, "cmdPM_Click", [this] { cmdPM_Click(); });
    half->addWidget(am);
    half->addWidget(pm);
    column->addLayout(half);
    auto* commands = new QHBoxLayout;
    cmdStart_ = Button(kStartCaption, QStringLiteral("cmdStart"));
    QPushButton* exit = Button(QStringLiteral("EXIT"), QStringLiteral("cmdExit"));
    On(cmdStart_, &QPushButton::clicked, "cmdStart_Click", [this] { cmdStart_Click(); });
    On(exit, &QPushButton::clicked, "cmdExit_Click", [this] { CloseWindow(); });
    commands->addWidget(cmdStart_);
    commands->addWidget(exit);
    column->addLayout(commands);
}

void frmAlarm::BuildMenus() {
    QMenu* help = AddMenu(MenuBar(), QStringLiteral("&Help"), QStringLiteral("mnuHelp"));
    AddCommand(help, QStringLiteral("How to Use..."), QStringLiteral("mnuHelpHowTo"),
               "mnuHelpHowTo_Click",
               [this] { services_.dialogs.MsgBox(kAlarmHowTo, vb::OKOnly, kAlarmCaption); });
    QMenu* about = AddSubMenu(help, QStringLiteral("&About"), QStringLiteral("mnuHelpAbout"));
    AddCommand(about, kAlarmCaption, QStringLiteral("mnuHelpAboutPellixAlarm"),
               "mnuHelpAboutPellixAlarm_Click", [this] {
                   services_.dialogs.MsgBox(kAlarmAbout, vb::OKOnly | vb::Information,
                                            kAlarmCaption);
               });
}

bool frmAlarm::eventFilter(QObject* watched, QEvent* event) {
    if (watched == txtTime_ && event->type() == QEvent::KeyPress &&
        !txtTime_KeyPress(*static_cast<QKeyEvent*>(event)))
        return true;
    return ChildWindow::eventFilter(watched, event);
}

// The box takes the digits, ":", blanks and the letters of AM and PM; false drops the key.
bool frmAlarm::txtTime_KeyPress(const QKeyEvent& key) {
    static const QRegularExpression allowed(QStringLiteral("^[0-9: AaPpMm]$"));
    const QString text = key.text();
    return text.size() != 1 || !text.front().isPrint() || allowed.match(text).hasMatch();
}

bool frmAlarm::IsArmed() const {
    return cmdStart_->text() == kResetCaption;
}

void frmAlarm::cmdHour_Click(int hour) {
    const QString time = WithoutHalfOfDay(txtTime_->text());
    const qsizetype colon = time.indexOf(QLatin1Char(':'));
    txtTime_->setText(QString::number(hour) +
                      (colon < 0 ? QStringLiteral(":00") : time.mid(colon)));
}

void frmAlarm::cmdMinute_Click(int minute) {
    const QString time = WithoutHalfOfDay(txtTime_->text());
    const qsizetype colon = time.indexOf(QLatin1Char(':'));
    txtTime_->setText((colon < 0 ? time : time.left(colon)) +
                      QStringLiteral(":%1").arg(minute, 2, 10, QLatin1Char('0')));
}

void frmAlarm::SetHalfOfDay(const QString& half) {
    const QString time = WithoutHalfOfDay(txtTime_->text());
    // A box holding more than digits and ":" cannot be made a time.
    static const QRegularExpression timeCharacters(QStringLiteral("^[0-9:]*$"));
    if (!timeCharacters.match(time).hasMatch()) {
        services_.dialogs.MsgBox(half == u"AM" ? kAmTimeError : kPmTimeError);
        lblAlarm_->setText(kAlarmIdleStatus);
        return;
    }
    const QString text = time + QLatin1Char(' ') + half;
    txtTime_->setText(text);
    lblAlarm_->setText(AlarmTime(text).isValid() ? kTimeSetPrefix + text + kClickStartSuffix
                                                 : kNoValidTimeStatus);
}

void frmAlarm::cmdStart_Click() {
    if (IsArmed()) {
        Disarm();
        return;
    }
    const QTime time = AlarmTime(txtTime_->text());
    if (!time.isValid()) {
        services_.dialogs.MsgBox(kEnterTimeFirst, kWarningStyle);
        return;
    }
    armedAt_ = ClockText(time);
    armedText_ = txtTime_->text().trimmed();
    ringCount_ = 0;
    timer1_->start();
    lblAlarm_->setText(kTimeSetPrefix + armedText_ + QLatin1Char('.'));
    cmdStart_->setText(kResetCaption);
}

void frmAlarm::Disarm() {
    timer1_->stop();
    timer2_->stop();
    ringCount_ = 0;
    cmdStart_->setText(kStartCaption);
    lblAlarm_->setText(kAlarmIdleStatus);
    lblAlarm_->setStyleSheet({});
    lblAlarm_->show();
}

void frmAlarm::Timer1_Timer() {
    if (ClockText(services_.clock.now().time()) != armedAt_)
        return;
    // It rings once: the clock stays on the set minute for a while.
    timer1_->stop();
    ringCount_ = 0;
    flash_ = false;
    timer2_->start();
    emit ringing(armedText_);
}

void frmAlarm::Timer2_Timer() {
    ++ringCount_;
    flash_ = !flash_;
    lblAlarm_->setVisible(flash_);
    lblAlarm_->setText(AlarmReachedStatus(armedText_));
    lblAlarm_->setStyleSheet(QStringLiteral("color: #c00000; font-weight: bold;"));
    services_.platform.Beep();
    if (ringCount_ >= kRingTicks)
        timer2_->stop();
}
