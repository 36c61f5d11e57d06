// "Alerts.dat" and "To Do.dat": the bytes written, what a read makes of them (the pending
// alerts of the day above all), and what a damaged file leaves.
#include <QTest>

#include "TestEnv.h"
#include "reminders/RemindersMessages.h"
#include "reminders/modAlerts.h"
#include "reminders/modToDo.h"
#include "shell/ShellMessages.h"

namespace {

// 7 September 2026, day 46272.
const QDate kToday(2026, 9, 7);

QByteArray Line(int serial, const char* rest) {
    return QByteArray::number(serial) + rest + "\r\n";
}

}  // namespace

class ReminderFilesTest : public QObject {
    Q_OBJECT

private slots:
    // The day numbers count from 30 December 1899, and the time of day never moves a day on:
    // just before midnight it is still today.
    void pendingFromPeriodDaysBeforeToTheDateItself_data() {
        QTest::addColumn<int>("daysAhead");
        QTest::addColumn<int>("period");
        QTest::addColumn<bool>("pending");
        QTest::newRow("today, period 0") << 0 << 0 << true;
        QTest::newRow("yesterday, long period") << -1 << 9999 << false;
        QTest::newRow("today + period") << 7 << 7 << true;
        QTest::newRow("a day after today + period") << 8 << 7 << false;
    }
    void pendingFromPeriodDaysBeforeToTheDateItself() {
        QFETCH(int, daysAhead);
        QFETCH(int, period);
        QFETCH(bool, pending);
        TestEnv env(QDateTime(kToday, QTime(23, 59, 59)));
        const QByteArray alert = QByteArray::number(46272 + daysAhead) + ":" +
                                 QByteArray::number(period).rightJustified(4, '0') +
                                 ":Due: the figures";
        env.write("Alerts.dat", "39737:0007:Long ago\r\n" + alert + "\r\n");
        AlertsStore& alerts = env.state->alerts;
        alerts.ReadAlerts();
        QCOMPARE(alerts.alertDates, (QList<QDate>{QDate(2008, 10, 16), kToday.addDays(daysAhead)}));
        QCOMPARE(alerts.alertMessages[1], "Due: the figures");
        QCOMPARE(alerts.PendingAlertLines(),
                 pending ? QStringList{QString::fromLatin1(alert)} : QStringList());
        VERIFY_DIALOGS(env.dialogs);
    }

    void savedLinesComeBackWithColonsInTheMessage() {
        TestEnv env;
        AlertsStore& alerts = env.state->alerts;
        const QString line = MakeAlertLine(QDate(2026, 9, 10), 7, "Call: re \"offer\", 9:30");
        QCOMPARE(line, "46275:0007:Call: re \"offer\", 9:30");
        env.dialogs.ExpectMsgBox("Alert List Updated.", vb::OKOnly, "");
        QVERIFY(alerts.SaveAlerts({line, "", "46272:0000:Caf\u00e9"}));
        QCOMPARE(env.read("Alerts.dat"),
                 "46275:0007:Call: re \"offer\", 9:30\r\n46272:0000:Caf\xe9\r\n");
        alerts.ReadAlerts();
        QCOMPARE(alerts.alertMessages, QStringList({"Call: re \"offer\", 9:30", "Caf\u00e9"}));
        QCOMPARE(alerts.alertPeriods, (QList<qint16>{7, 0}));
        VERIFY_DIALOGS(env.dialogs);
    }

    // A malformed line ends the read: the alerts before it stay, and the file is not saved
    // over, which would lose the lines after it.
    void malformedLineKeepsEarlierAlertsAndRefusesTheSave_data() {
        QTest::addColumn<QByteArray>("bad");
        QTest::newRow("short line") << QByteArray("46275:0007");
        QTest::newRow("letter in the date") << QByteArray("4627x:0007:x");
        QTest::newRow("blank in the period") << QByteArray("46275: 007:x");
        QTest::newRow("empty line") << QByteArray();
    }
    void malformedLineKeepsEarlierAlertsAndRefusesTheSave() {
        QFETCH(QByteArray, bad);
        TestEnv env;
        const QByteArray file =
            Line(46272, ":0000:first") + bad + "\r\n" + Line(46273, ":0001:after");
        env.write("Alerts.dat", file);
        env.expectProgramError("ReadAlerts", 13,
                               FaultDescription("Type mismatch", "Alerts.dat", 2));
        AlertsStore& alerts = env.state->alerts;
        alerts.ReadAlerts();
        QCOMPARE(alerts.alertMessages, QStringList{"first"});
        QCOMPARE(alerts.PendingCount(), 1);
        env.dialogs.ExpectMsgBox(PartlyReadFileMessage("Alerts.dat", 2), kWarningStyle, "");
        QVERIFY(!alerts.SaveAlerts(alerts.alertLines));
        QCOMPARE(env.read("Alerts.dat"), file);
        VERIFY_DIALOGS(env.dialogs);
    }

    void toDoFileHasTenMarkedLines() {
        TestEnv env;
        ToDoRows rows;
        rows.texts[0] = "  Pay rent";
        rows.done[0] = true;
        rows.done[2] = true;  // done and empty
        rows.texts[9] = "M\u00fcller";
        env.dialogs.ExpectMsgBox("To Do List Saved.", vb::OKOnly, "");
        QVERIFY(env.state->toDo.SaveToDoList(rows));
        QCOMPARE(env.read("To Do.dat").toHex(' '),
                 QByteArray("\xf3  Pay rent\r\n\xf5\r\n\xf3\r\n\xf5\r\n\xf5\r\n\xf5\r\n\xf5\r\n"
                            "\xf5\r\n\xf5\r\n\xf5M\xfcller\r\n")
                     .toHex(' '));
        QCOMPARE(env.state->toDo.rows(), rows);
        ToDoRows read;
        ReadToDoFile(env.path("To Do.dat"), read);
        QCOMPARE(read, rows);
        VERIFY_DIALOGS(env.dialogs);
    }

    void toDoFileOfElevenLinesKeepsTenAndIsNotSavedOver() {
        TestEnv env;
        QByteArray file;
        for (int row = 0; row < 11; ++row)
            file += (row == 3 ? "\xf3" : "\xf5") + QByteArray::number(row) + "\r\n";
        env.write("To Do.dat", file);
        env.expectProgramError("ReadToDoList", 9,
                               FaultDescription("Subscript out of range", "To Do.dat", 11));
        ToDoStore& toDo = env.state->toDo;
        toDo.ReadToDoList();
        QCOMPARE(toDo.rows().texts[9], "9");
        QVERIFY(toDo.rows().done[3] && !toDo.rows().done[4]);
        env.dialogs.ExpectMsgBox(PartlyReadFileMessage("To Do.dat", 11), kWarningStyle, "");
        QVERIFY(!toDo.SaveToDoList(toDo.rows()));
        QCOMPARE(env.read("To Do.dat"), file);
        VERIFY_DIALOGS(env.dialogs);
    }
};

ORVANTA_TEST_MAIN(ReminderFilesTest)
#include "tst_reminder_files.moc"
