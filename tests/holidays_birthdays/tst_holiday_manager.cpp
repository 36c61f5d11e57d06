// The Holiday Manager as a user drives it: a year's list kept on disk exactly, one holiday a
// date, the typed year replaced by the selected one, the refusals, the calendar following
// every save, and a year filled from an iCalendar file.
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include "MainWindowFixture.h"
#include "holidays_birthdays/HolidaysBirthdaysMessages.h"
#include "holidays_birthdays/IcsHolidays.h"
#include "holidays_birthdays/gui/frmHolidays.h"
#include "holidays_birthdays/modHolidays.h"
#include "shell/ShellMessages.h"

namespace {

struct Manager {
    explicit Manager(MainWindowFixture& f)
        : context{f.frame(),
                  f.env.state->services,
                  f.env.state->dates,
                  f.env.state->holidays,
                  f.env.state->birthdays,
                  f.calendar()},
          window(static_cast<frmHolidays*>(f.frame().ShowChild(
              frmHolidays::kName, [this] { return new frmHolidays(context); }))) {}

    void Save(const QString& date, const QString& description) {
        window->Control<QLineEdit>("txtDate")->setText(date);
        window->Control<QLineEdit>("txtDesc")->setText(description);
        window->Control<QPushButton>("cmdSave")->click();
    }

    HolidaysBirthdaysContext context;
    frmHolidays* window;
};

const char* const kFile = "Holidays/2026Holidays.dat";

}  // namespace

class HolidayManagerTest : public QObject {
    Q_OBJECT

private slots:
    void listKeptOnDiskAndOnTheCalendar() {
        MainWindowFixture f;
        f.Start();
        f.env.dialogs.ExpectMsgBox(kNoHolidayListMessage + "2026", vb::OKOnly, "");
        Manager m(f);
        VERIFY_DIALOGS(f.env.dialogs);
        m.Save("Dec 25, 1999", "Christmas: the 25th");
        m.Save("7/4", "Fourth");
        m.Save("12/25/2026", "Christmas Day");
        QCOMPARE(f.env.read(kFile), "07/04/26:Fourth\r\n12/25/26:Christmas Day\r\n");
        QCOMPARE(f.env.state->holidays.HolidaysOn(QDate(2026, 12, 25)),
                 QStringList{"Christmas Day"});
        f.env.state->dates.SelectDate(QDate(2026, 7, 4));
        QCOMPARE(f.control<QLabel>("lblHoliday")->text(), "Holiday = Fourth");

        auto* list = m.window->Control<QListWidget>("lstHolidays");
        for (int left = 2; left > 0; --left) {
            list->setCurrentRow(0);
            if (left == 1)
                f.env.dialogs.ExpectMsgBox(kNoHolidayListMessage + "2026", vb::OKOnly, "");
            m.window->Control<QPushButton>("cmdDelete")->click();
        }
        QVERIFY(!f.env.exists(kFile));
        QCOMPARE(f.env.state->holidays.HolidaysOn(QDate(2026, 12, 25)), QStringList());
        f.env.dialogs.ExpectMsgBox(kHolidayListSavedMessage, vb::OKOnly, "");
        m.window->CloseWindow();
        VERIFY_DIALOGS(f.env.dialogs);
    }

    // Marking a day as a Holiday or a Birthday goes on in its manager, on that day.
    void markingHandsOverToTheManagers() {
        MainWindowFixture f;
        f.env.write(kFile, "01/01/26:New Year\r\n");
        f.Start();
        f.env.state->dates.SelectDate(QDate(2026, 7, 4));
        f.menu("mnuOptDateMarkAs_8")->trigger();
        auto* holidays = qobject_cast<ChildWindow*>(f.frame().ChildWindow(frmHolidays::kName));
        QVERIFY(holidays);
        QCOMPARE(holidays->Control<QLineEdit>("txtDate")->text(), "Jul 04, 2026");
        f.menu("mnuOptDateMarkAs_4")->trigger();
        auto* birthdays = qobject_cast<ChildWindow*>(f.frame().ChildWindow("frmBirthdays"));
        QVERIFY(birthdays);
        QCOMPARE(birthdays->Control<QComboBox>("cmbMonth")->currentText(), "July");
        QCOMPARE(birthdays->Control<QComboBox>("cmbDay")->currentText().toInt(), 4);
    }

    void refusals_data() {
        QTest::addColumn<QString>("date");
        QTest::addColumn<QString>("description");
        QTest::addColumn<QString>("message");
        QTest::newRow("no date") << "  "
                                 << "x" << kNoDateEnteredMessage;
        QTest::newRow("not a date") << "Smarch 3"
                                    << "x" << kDateNotRecognizedMessage;
        QTest::newRow("no such day this year") << "Feb 29, 2024"
                                               << "x" << kDateNotRecognizedMessage;
        QTest::newRow("no description") << "Jan 1"
                                        << " " << kEnterDescriptionMessage;
    }
    void refusals() {
        QFETCH(QString, date);
        QFETCH(QString, description);
        QFETCH(QString, message);
        MainWindowFixture f;
        f.env.write(kFile, "01/01/26:New Year\r\n");
        f.Start();
        Manager m(f);
        f.env.dialogs.ExpectMsgBox(message, vb::OKOnly, "");
        m.Save(date, description);
        VERIFY_DIALOGS(f.env.dialogs);
        QCOMPARE(f.env.read(kFile), "01/01/26:New Year\r\n");
    }

    // A list that stops at a faulty line is shown as far as it goes and never saved over.
    void partlyReadListIsNotSavedOver() {
        MainWindowFixture f;
        f.env.write(kFile, "01/01/26:New Year\r\nbad\r\n12/25/26:Christmas\r\n");
        f.env.dialogs.ExpectMsgBox(
            f.env.state->services.ErrorReport(
                "AssignThisYearsHolidays", 5,
                FaultDescription("Invalid procedure call or argument", HolidayFileName(2026), 2)),
            vb::OKOnly, "Program Error");
        f.Start();
        f.env.expectProgramError(
            "LoadHolidayList", 5,
            FaultDescription("Invalid procedure call or argument", HolidayFileName(2026), 2));
        Manager m(f);
        QCOMPARE(m.window->Control<QListWidget>("lstHolidays")->count(), 1);
        f.env.dialogs.ExpectMsgBox(PartlyReadFileMessage(HolidayFileName(2026), 2), kWarningStyle,
                                   "");
        m.Save("Jul 4", "Fourth");
        VERIFY_DIALOGS(f.env.dialogs);
        QCOMPARE(f.env.read(kFile), "01/01/26:New Year\r\nbad\r\n12/25/26:Christmas\r\n");
    }

    // The year's all-day events, a yearly one included, join the list; one on a listed date
    // replaces it. A file that is not a calendar changes nothing.
    void importFromICalendar() {
        MainWindowFixture f;
        f.env.write(kFile, "12/25/26:Xmas\r\n");
        f.env.write("holidays.ics",
                    "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//test//EN\r\n"
                    "BEGIN:VEVENT\r\nUID:a\r\nDTSTART;VALUE=DATE:20001225\r\n"
                    "RRULE:FREQ=YEARLY\r\nSUMMARY:Christmas Day\r\nEND:VEVENT\r\n"
                    "BEGIN:VEVENT\r\nUID:b\r\nDTSTART;VALUE=DATE:20260525\r\n"
                    "SUMMARY:Memorial Day\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n");
        f.env.write("notes.ics", "just some notes\r\n");
        f.Start();
        Manager m(f);
        const QString problem = HolidaysFromIcs(f.env.read("notes.ics"), 2026).problem;
        f.env.dialogs.ExpectOpenFile(f.env.path("notes.ics"))
            .ExpectMsgBox(problem, kWarningStyle, "")
            .ExpectOpenFile(f.env.path("holidays.ics"))
            .ExpectMsgBox(IcsImportedMessage(2, 2026), kInformationStyle, "");
        m.window->Control<QAction>("mnuFileImportIcs")->trigger();
        QCOMPARE(f.env.read(kFile), "12/25/26:Xmas\r\n");
        m.window->Control<QAction>("mnuFileImportIcs")->trigger();
        VERIFY_DIALOGS(f.env.dialogs);
        QCOMPARE(f.env.read(kFile), "05/25/26:Memorial Day\r\n12/25/26:Christmas Day\r\n");
    }

    // A new list empties a year that has holidays only once the user has agreed.
    void newListAsksBeforeEmptyingAYear() {
        MainWindowFixture f;
        f.env.write(kFile, "12/25/26:Xmas\r\n");
        f.Start();
        Manager m(f);
        auto* newList = m.window->Control<QAction>("mnuFileNew");
        auto* list = m.window->Control<QListWidget>("lstHolidays");
        const QString question = NewHolidayListQuestion(2026);
        f.env.dialogs.ExpectMsgBox(question, kQuestionStyle, kNewHolidayListTitle, vb::No)
            .ExpectMsgBox(question, kQuestionStyle, kNewHolidayListTitle, vb::Yes);
        newList->trigger();
        QCOMPARE(list->count(), 1);
        newList->trigger();
        QCOMPARE(list->count(), 0);
        newList->trigger();  // nothing left to lose: nothing asked
        VERIFY_DIALOGS(f.env.dialogs);
    }
};

ORVANTA_TEST_MAIN(HolidayManagerTest)
#include "tst_holiday_manager.moc"
