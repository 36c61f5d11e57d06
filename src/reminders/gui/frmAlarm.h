#pragma once

#include <QString>

#include "shell/gui/ChildWindow.h"

class QKeyEvent;
class QLabel;
class QLineEdit;
class QPushButton;
class QTimer;

// The alarm clock: a time of day set with the hour and minute buttons and AM or PM (or typed),
// then Start. Once a second the clock is compared with the time set; when they meet, the
// window beeps and flashes its message for five ticks of the ringing timer.
class frmAlarm : public ChildWindow {
    Q_OBJECT
public:
    static constexpr const char* kName = "frmAlarm";
    // Both timers tick once a second (on the clock's scale).
    static constexpr int kTickMs = 1000;
    static constexpr int kRingTicks = 5;

    explicit frmAlarm(Services& services);

    bool IsArmed() const;
    int ringCount() const { return ringCount_; }

    void cmdHour_Click(int hour);
    void cmdMinute_Click(int minute);
    void cmdAM_Click() { SetHalfOfDay(QStringLiteral("AM")); }
    void cmdPM_Click() { SetHalfOfDay(QStringLiteral("PM")); }
    void cmdStart_Click();
    void Timer1_Timer();
    void Timer2_Timer();

signals:
    // The set time has come: the first tick of the ringing.
    void ringing(const QString& time);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildButtons(QWidget* body);
    void BuildMenus();
    bool txtTime_KeyPress(const QKeyEvent& key);
    void SetHalfOfDay(const QString& half);
    void Disarm();

    QLineEdit* txtTime_ = nullptr;
    QLabel* lblAlarm_ = nullptr;
    QPushButton* cmdStart_ = nullptr;
    QTimer* timer1_ = nullptr;
    QTimer* timer2_ = nullptr;
    // The time set when armed, as the clock is compared with it ("hh:mm AMPM").
    QString armedAt_;
    QString armedText_;
    int ringCount_ = 0;
    bool flash_ = false;
};
