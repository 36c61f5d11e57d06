// The holiday and birthday files: which day cell a holiday lands on, what a year's list keeps
// and leaves on disk, which birthdays are pending on a given day, and how a birthday line is
// read and written.
#include <QTest>

#include "TestEnv.h"
#include "holidays_birthdays/HolidaysBirthdaysMessages.h"
#include "holidays_birthdays/modBirthdays.h"
#include "holidays_birthdays/modHolidays.h"
#include "shell/ShellMessages.h"
#include "shell/VbError.h"

class HolidaysBirthdaysFilesTest : public QObject {
    Q_OBJECT

private slots:
    // Each holiday marks the cell of its date once; the description runs from the 10th
    // character to the end, colons and all; another year's line marks nothing.
    void holidaysLandOnTheirCell() {
        TestEnv env;
        env.write("holidays/2026HOLIDAYS.dat",
                  "12/25/26:Christmas Day\r\n07/04/26:Independence: the Fourth\r\n"
                  "01/01/27:New Year\r\n12/25/26:Second line, same day\r\n");
        env.select(QDate(2026, 3, 1));
        const HolidayStore& holidays = env.state->holidays;
        QCOMPARE(holidays.HolidaysOn(QDate(2026, 7, 4)), QStringList{"Independence: the Fourth"});
        QCOMPARE(holidays.HolidaysOn(QDate(2026, 12, 25)),
                 (QStringList{"Christmas Day", "Second line, same day"}));
        QCOMPARE(holidays.HolidaysOn(QDate(2027, 1, 1)), QStringList());
        QCOMPARE(holidays.years[Year::This].cells.value(2), "");
        int marked = 0;
        holidays.years[Year::This].flags.ForEach([&](const CellIndex&, bool on) { marked += on; });
        QCOMPARE(marked, 2);
    }

    // A line too short to hold a date and a description ends the reading: the error is
    // reported and no cell is marked.
    void shortHolidayLineMarksNothing() {
        TestEnv env;
        env.write("Holidays/2026Holidays.dat", "12/25/26:Christmas\r\n1/1/26\r\n");
        env.expectProgramError(
            "AssignThisYearsHolidays", err::InvalidProcedureCall,
            FaultDescription(VbError::StandardDescription(err::InvalidProcedureCall),
                             HolidayFileName(2026), 2));
        env.select(QDate(2026, 3, 1));
        VERIFY_DIALOGS(env.dialogs);
        QCOMPARE(env.state->holidays.HolidaysOn(QDate(2026, 12, 25)), QStringList());
        QCOMPARE(env.state->holidays.years[Year::This].names, QStringList{"Christmas"});
    }

    // A typed date is listed under the selected year whatever year was typed; a date has one
    // holiday; the last one removed takes the file with it.
    void holidayListOnDisk() {
        TestEnv env;
        env.select(QDate(2010, 1, 1));
        const QString key = HolidayDateKey(QDate(1999, 12, 25), 2010);
        QCOMPARE(key, "12/25/10");
        QStringList lines = WithHoliday({"12/25/10:Old", "01/01/10:New Year"}, key, "Christmas");
        QCOMPARE(lines, (QStringList{"01/01/10:New Year", "12/25/10:Christmas"}));
        SaveHolidayLines(env.state->services, 2010, lines);
        QCOMPARE(env.read("Holidays/2010Holidays.dat"),
                 "01/01/10:New Year\r\n12/25/10:Christmas\r\n");
        SaveHolidayLines(env.state->services, 2010, {});
        QVERIFY(!env.exists("Holidays/2010Holidays.dat"));
        QVERIFY(!ReadHolidayLines(env.folder(), 2010));
    }

    void birthdayPending_data() {
        QTest::addColumn<QDate>("today");
        QTest::addColumn<QString>("line");
        QTest::addColumn<bool>("pending");
        const QDate sep7(2026, 9, 7), dec28(2026, 12, 28);
        QTest::newRow("on the day, same-day alert") << sep7 << "09/07:00:A:1980" << true;
        QTest::newRow("the day after") << sep7 << "09/06:00:A:1980" << false;
        QTest::newRow("last day of the period") << sep7 << "09/14:07:A:1980" << true;
        QTest::newRow("one day past the period") << sep7 << "09/15:07:A:1980" << false;
        QTest::newRow("never alerted, on the day") << sep7 << "09/07:-1:A:1980" << false;
        QTest::newRow("ten days ahead") << sep7 << "09/17:10:A:****" << true;
        QTest::newRow("January, seen across New Year") << dec28 << "01/02:07:A:1980" << true;
        QTest::newRow("December, moved past New Year") << dec28 << "12/30:07:A:1980" << false;
    }
    void birthdayPending() {
        QFETCH(QDate, today);
        QFETCH(QString, line);
        QFETCH(bool, pending);
        QCOMPARE(IsBirthdayPending(ParseBirthdayLine(line), today), pending);
    }

    // The name stops at the first colon after it; the period is written as two characters;
    // the indicator's three wordings.
    void birthdayLinesAndPendingText() {
        const BirthdayRecord record = ParseBirthdayLine("03/15:07:Mary: Smith:****");
        QCOMPARE(record.name, "Mary");
        QCOMPARE(record.alertPeriod, 7);
        QCOMPARE(record.birthYear, "****");
        QCOMPARE(FormatBirthdayLine({"03/15", 7, "Mary Smith", "1960"}),
                 "03/15:07:Mary Smith:1960");
        QCOMPARE(FormatBirthdayLine({"03/15", -1, "Al", "****"}), "03/15:-1:Al:****");
        QCOMPARE(FormatBirthdayLine({"03/15", 10, "Al", "****"}), "03/15:10:Al:****");
        QCOMPARE(BirthdaysPendingText(0), "No Birthdays Pending");
        QCOMPARE(BirthdaysPendingText(1), "1 Birthday is Pending");
        QCOMPARE(BirthdaysPendingText(3), "3 Birthdays are Pending");
    }

    // Read at start-up: the pending ones counted with the clock's today, every cell of the
    // day marked in both years, a faulty line keeping the list from being saved over.
    void birthdayStore() {
        TestEnv env(QDateTime(QDate(2026, 9, 7), QTime(23, 59)));
        env.write("Birthdays.dat",
                  "09/08:01:Ann:1990\r\n09/09:01:Bob:****\r\n02/01:00:Cy:2000\r\n");
        env.select(QDate(2026, 9, 7));
        BirthdayStore& birthdays = env.state->birthdays;
        birthdays.ReadBirthdays();
        QCOMPARE(birthdays.PendingText(), "1 Birthday is Pending");
        QCOMPARE(birthdays.BirthdaysOn(QDate(2027, 2, 1)), QStringList{"Cy"});
        QCOMPARE(birthdays.BirthdaysOn(QDate(2026, 9, 9)), QStringList{"Bob"});
        QVERIFY(birthdays.SaveBirthdays(
            {ParseBirthdayLine("02/01:00:Cy:2000"), ParseBirthdayLine("09/08:01:Ann:1990")},
            false));
        QCOMPARE(env.read("Birthdays.dat"), "02/01:00:Cy:2000\r\n09/08:01:Ann:1990\r\n");

        env.write("Birthdays.dat", "09/08:01:Ann:1990\r\n09/09:xx:Bob:****\r\n");
        env.expectProgramError(
            "ReadBirthdays", err::TypeMismatch,
            FaultDescription(VbError::StandardDescription(err::TypeMismatch), kBirthdaysFile, 2));
        birthdays.ReadBirthdays();
        env.dialogs.ExpectMsgBox(PartlyReadFileMessage(kBirthdaysFile, 2), kWarningStyle, "");
        QVERIFY(!birthdays.SaveBirthdays({ParseBirthdayLine("09/08:01:Ann:1990")}, true));
        VERIFY_DIALOGS(env.dialogs);
        QCOMPARE(env.read("Birthdays.dat"), "09/08:01:Ann:1990\r\n09/09:xx:Bob:****\r\n");
    }
};

ORVANTA_TEST_MAIN(HolidaysBirthdaysFilesTest)
#include "tst_holidays_birthdays_files.moc"
