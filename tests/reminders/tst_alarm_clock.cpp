// The alarm clock: setting the time, the refusals, and the ringing at the time set, on a clock
// whose seconds are milliseconds.
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "MainWindowFixture.h"
#include "reminders/gui/AlertTray.h"
#include "reminders/gui/RemindersMenus.h"
#include "reminders/gui/frmAlarm.h"

namespace {

const QString kIdle = "Click on the Hour, Minute and AM or PM to set the alarm.";
const QString kTimeError = "Alarm Time Error. Please make sure that there is a\r\n";

struct AlarmFixture : MainWindowFixture {
    AlarmFixture() : MainWindowFixture(QDateTime(QDate(2026, 9, 7), QTime(14, 29, 50))) {
        Start();
        menu("mnuToolsAlarm")->trigger();
    }
    frmAlarm& alarm() const { return *window.reminders->alarmWindow(); }
    void Click(const QString& button) const { alarm().Control<QPushButton>(button)->click(); }
    QLineEdit* time() const { return alarm().Control<QLineEdit>("txtTime"); }
    QString status() const { return alarm().Control<QLabel>("lblAlarm")->text(); }
};

}  // namespace

class AlarmClockTest : public QObject {
    Q_OBJECT

private slots:
    void buttonsSetTheTimeAndRefuseWhatIsNoTime_data() {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("half");
        QTest::addColumn<QString>("box");
        QTest::addColumn<QString>("status");
        QTest::addColumn<QString>("error");
        QTest::newRow("minutes only, AM") << ":30"
                                          << "AM"
                                          << ":30 AM"
                                          << "A valid time has not been entered. Please select "
                                             "the Hour and Minutes."
                                          << "";
        QTest::newRow("hour past 12, PM") << "13:05"
                                          << "PM"
                                          << "13:05 PM"
                                          << "A valid time has not been entered. Please select "
                                             "the Hour and Minutes."
                                          << "";
        QTest::newRow("letters, AM")
            << "9:3m"
            << "AM"
            << "9:3m" << kIdle << kTimeError + "valid time in the Time Box.";
        QTest::newRow("letters, PM")
            << "m9"
            << "PM"
            << "m9" << kIdle << kTimeError + "valid time in the Time Box before.";
    }
    void buttonsSetTheTimeAndRefuseWhatIsNoTime() {
        QFETCH(QString, typed);
        QFETCH(QString, half);
        QFETCH(QString, box);
        QFETCH(QString, status);
        QFETCH(QString, error);
        AlarmFixture f;
        QCOMPARE(f.status(), kIdle);
        f.Click("cmdHour_10");  // 11
        QCOMPARE(f.time()->text(), "11:00");
        f.Click("cmdMinute_11");
        f.Click("cmdHour_1");
        QCOMPARE(f.time()->text(), "2:55");
        f.Click("cmdPM");
        QCOMPARE(f.status(), "Time is Set for 2:55 PM. Click Start to Begin.");
        f.Click("cmdAM");  // the other half of the day replaces it
        QCOMPARE(f.time()->text(), "2:55 AM");

        f.time()->clear();
        f.time()->setFocus();
        QTest::keyClicks(f.time(), typed + "x!");  // neither x nor ! is typed
        QCOMPARE(f.time()->text(), typed);
        f.env.dialogs.ExpectMsgBox(
            "You must enter a time in the Time Box and then click on either AM or PM.",
            kWarningStyle, "");
        f.Click("cmdStart");  // no AM or PM yet
        VERIFY_DIALOGS(f.env.dialogs);
        QVERIFY(!f.alarm().IsArmed());
        if (!error.isEmpty())
            f.env.dialogs.ExpectMsgBox(error, vb::OKOnly, "");
        f.Click("cmd" + half);
        VERIFY_DIALOGS(f.env.dialogs);
        QCOMPARE(f.time()->text(), box);
        QCOMPARE(f.status(), status);
    }

    void ringsFiveTicksAtTheTimeSetAndResetStopsIt() {
        AlarmFixture f;
        f.time()->setText("2:30");
        f.Click("cmdPM");
        f.Click("cmdStart");
        QVERIFY(f.alarm().IsArmed());
        QCOMPARE(f.alarm().Control<QPushButton>("cmdStart")->text(), "Reset");
        QCOMPARE(f.status(), "Time is Set for 2:30 PM.");
        QTest::qWait(30);  // thirty seconds before the time set: nothing
        QCOMPARE(f.env.platform.beeps, 0);

        f.env.clock.Set(QDateTime(QDate(2026, 9, 7), QTime(14, 30, 1)));
        QTRY_COMPARE(f.env.platform.beeps, 5);
        QCOMPARE(f.status(), "The Alarm time of 2:30 PM has been reached.");
        QTest::qWait(40);  // the clock still says 2:30 PM: it rang once
        QCOMPARE(f.env.platform.beeps, 5);
        QVERIFY(f.alarm().Control<QLabel>("lblAlarm")->isVisible());
        QCOMPARE(f.window.reminders->tray().lastMessage(),
                 "Pellix Alarm Clock\nThe Alarm time of 2:30 PM has been reached.");

        f.Click("cmdStart");
        QVERIFY(!f.alarm().IsArmed());
        QCOMPARE(f.status(), kIdle);
        QVERIFY(!f.alarm().findChild<QTimer*>("Timer1")->isActive());
    }
};

ORVANTA_TEST_MAIN(AlarmClockTest)
#include "tst_alarm_clock.moc"
