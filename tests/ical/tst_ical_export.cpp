// The planner written as an iCalendar file: one event per appointment with its continuance
// lines, bold kept as priority, the same UIDs on every export, birthdays repeating yearly, and a
// file libical takes back whole.
#include <QTest>

#include "MainWindowFixture.h"
#include "TestEnv.h"
#include "ical/IcalExport.h"
#include "ical/IcalImport.h"
#include "ical/IcalMessages.h"
#include "ical/IcalTransfer.h"
#include "notes_planner/modPlanner.h"

namespace {

const QDate kDay(2026, 9, 7);

// The file's text with folded lines joined again.
QString Unfolded(const QByteArray& bytes) {
    return QString::fromUtf8(bytes).replace(QLatin1String("\r\n "), QString());
}

// The component whose UID is uid, from its BEGIN to its END line; empty when there is none.
QString ComponentOf(const QString& text, const QString& uid) {
    const qsizetype at = text.indexOf(QStringLiteral("UID:") + uid + QStringLiteral("\r\n"));
    if (at < 0)
        return {};
    const qsizetype begin = text.lastIndexOf(QLatin1String("BEGIN:V"), at);
    return text.mid(begin, text.indexOf(QLatin1String("\r\nEND:V"), at) + 2 - begin);
}

CalendarData SampleData() {
    PlannerPage page = NewPlannerPage();
    page.slotTexts[0] = QStringLiteral("Staff meeting");
    page.bold[0] = true;
    page.times[1].clear();  // a continuance line
    page.slotTexts[1] = QStringLiteral("bring the figures");
    page.times[3] = QStringLiteral("09:30 AM");
    page.slotTexts[3] = QStringLiteral("Dentist, Dr. Ames; room 4");
    page.slotTexts[kFirstToDoSlot] = QStringLiteral("Call Bob");
    page.done[0] = true;
    page.slotTexts[kFirstExpenseSlot] = QStringLiteral("Lunch");
    page.slotTexts[kFirstAmountSlot] = QStringLiteral("42.50");
    page.slotTexts[kTotalExpendituresSlot] = QStringLiteral("42.50");
    page.slotTexts[kTotalMileageSlot] = QStringLiteral("132");
    CalendarData data;
    data.pages << DatedPage{kDay, page};
    data.notes << DatedNote{kDay, QStringLiteral("First line\r\nSecond line")};
    data.birthdays << BirthdayRecord{QStringLiteral("03/15"), 7, QStringLiteral("Mary Smith"),
                                     QStringLiteral("1960")};
    data.firstYear = 2026;
    return data;
}

}  // namespace

class IcalExportTest : public QObject {
    Q_OBJECT

private slots:
    void appointmentsBecomeOneEventWithItsContinuanceLines() {
        const IcsExport exported = ExportToIcs(SampleData(), {}, QDateTime(kDay, QTime(8, 0)));
        QVERIFY(exported.problem.isEmpty());
        QCOMPARE(ValidateIcs(exported.bytes), QString());
        const QString text = Unfolded(exported.bytes);
        const QString meeting = ComponentOf(text, "20260907-line-00@orvanta");
        QVERIFY2(meeting.contains("SUMMARY:Staff meeting bring the figures\r\n"),
                 qPrintable(meeting));
        QVERIFY(meeting.contains("DTSTART:20260907T060000\r\n"));
        // The next timed line with text or without ends it: 08:00 AM, after the continuance.
        QVERIFY(meeting.contains("DTEND:20260907T080000\r\n"));
        QVERIFY2(meeting.contains("PRIORITY:1\r\n"), qPrintable(meeting));
        QVERIFY(ComponentOf(text, "20260907-line-01@orvanta").isEmpty());
        const QString dentist = ComponentOf(text, "20260907-line-03@orvanta");
        QVERIFY(dentist.contains("DTSTART:20260907T093000\r\n"));
        QVERIFY(dentist.contains("SUMMARY:Dentist\\, Dr. Ames\\; room 4\r\n"));
        QVERIFY(!dentist.contains("PRIORITY"));
        QVERIFY(ComponentOf(text, "20260907-todo-0@orvanta").contains("STATUS:COMPLETED"));
        QVERIFY(ComponentOf(text, "20260907-figures@orvanta")
                    .contains("SUMMARY:Expenses 42.50\\; mileage 132\r\n"));
        QVERIFY(ComponentOf(text, "20260907-note@orvanta")
                    .contains("DESCRIPTION:First line\\nSecond line\r\n"));
        const QString birthday = Unfolded(exported.bytes).section("BEGIN:VEVENT", -1);
        QVERIFY2(birthday.contains("RRULE:FREQ=YEARLY\r\n"), qPrintable(birthday));
        QVERIFY(birthday.contains("DTSTART;VALUE=DATE:19600315\r\n"));
        QVERIFY(birthday.contains("TRIGGER:-P7D\r\n"));
    }

    // File > Export to iCalendar... writes the data folder to the file picked, ".ics" added.
    void theMenuExportsTheDataFolder() {
        MainWindowFixture f;
        QDir(f.env.folder()).mkdir("2026");
        f.env.write("2026/Notes.dat", "09/07/26:080101:A note\r\n");
        f.env.write("Holidays/2026Holidays.dat", "12/25/26:Christmas Day\r\n");
        f.Start();
        const QString path = f.env.path("out");
        f.env.dialogs.ExpectSaveFile(path);
        f.env.dialogs.ExpectMsgBox(ICalExportedMessage(2, path + ".ics"), kInformationStyle,
                                   kExportICalTitle);
        f.menu("mnuFileExportICal")->trigger();
        VERIFY_DIALOGS(f.env.dialogs);
        const QString text = Unfolded(f.env.read("out.ics"));
        QVERIFY(ComponentOf(text, "20260907-note@orvanta").contains("DESCRIPTION:A note\r\n"));
        QVERIFY(ComponentOf(text, "holiday-20261225-0@orvanta")
                    .contains("DTSTART;VALUE=DATE:20261225\r\n"));
    }

    // A calendar program recognises its copies by UID: a second export, later, of the same
    // data gives each entry the UID it had.
    void aSecondExportKeepsEveryUid() {
        const auto uids = [](const QDateTime& when) {
            QStringList found;
            for (const QString& line :
                 Unfolded(ExportToIcs(SampleData(), {}, when).bytes).split("\r\n"))
                if (line.startsWith("UID:"))
                    found << line;
            return found;
        };
        const QStringList first = uids(QDateTime(kDay, QTime(8, 0)));
        QCOMPARE(first.size(), 6);
        QCOMPARE(uids(QDateTime(kDay.addDays(30), QTime(17, 5))), first);
    }

    void aChosenZoneWritesZonedTimesWithTheirZone() {
        const IcsExport exported =
            ExportToIcs(SampleData(), "Europe/Berlin", QDateTime(kDay, QTime(8, 0)));
        QCOMPARE(ValidateIcs(exported.bytes), QString());
        const QString text = Unfolded(exported.bytes);
        QVERIFY(text.contains("BEGIN:VTIMEZONE"));
        QVERIFY(
            ComponentOf(text, "20260907-line-00@orvanta")
                .contains(QRegularExpression("DTSTART;TZID=[^:]*Europe/Berlin:20260907T060000")));
        QVERIFY(!ExportToIcs(SampleData(), "Mars/Olympus", QDateTime()).problem.isEmpty());
    }

    // Exported and read back into an empty folder, the appointment lines are the ones written.
    void anExportImportedIntoAnEmptyFolderGivesTheAppointmentsBack() {
        const CalendarData data = SampleData();
        TestEnv env;
        const IcsContent read = ReadIcs(ExportToIcs(data, {}, QDateTime(kDay, QTime(8, 0))).bytes,
                                        YearRange(2026), QTimeZone::systemTimeZone());
        QCOMPARE(read.problem, QString());
        const ImportPlan plan = PlanImport(env.state->services, read, AllDayAs::LeftOut);
        const PlannerPage page = plan.pages.value(kDay);
        for (int line = 0; line < kAppointmentLines; ++line) {
            QCOMPARE(page.slotTexts[line], data.pages[0].page.slotTexts[line]);
            QCOMPARE(page.times[line], data.pages[0].page.times[line]);
            QCOMPARE(page.bold[line], data.pages[0].page.bold[line]);
        }
        QCOMPARE(page.slotTexts[kFirstToDoSlot], "Call Bob");
        QVERIFY(page.done[0]);
        QCOMPARE(plan.notes.value(kDay), "First line\r\nSecond line");
        VERIFY_DIALOGS(env.dialogs);
    }
};

ORVANTA_TEST_MAIN(IcalExportTest)
#include "tst_ical_export.moc"
