// An iCalendar file brought into the planner: each event on the line of its hour or the next
// free one, never over a filled line; journals below the note already there; a real file's
// CR LF and folded lines; and nothing written before the user says Yes.
#include <QDir>
#include <QTest>

#include "MainWindowFixture.h"
#include "TestEnv.h"
#include "cli/Commands.h"
#include "holidays_birthdays/HolidaysBirthdaysMessages.h"
#include "holidays_birthdays/IcsHolidays.h"
#include "ical/IcalImport.h"
#include "ical/IcalMessages.h"
#include "ical/IcalTransfer.h"
#include "ical/gui/ICalMenus.h"
#include "notes_planner/gui/NotesPlannerMenus.h"
#include "notes_planner/modNotes.h"
#include "notes_planner/modPlanner.h"
#include "shell/gui/frmMain.h"

namespace {

const QDate kDay(2026, 9, 7);

// A calendar of the given components, lines ended by CR LF as in a real file.
QByteArray Calendar(const QStringList& lines) {
    return ("BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Test//EN\r\n" +
            lines.join("\r\n").toUtf8() + "\r\nEND:VCALENDAR\r\n");
}

QStringList Event(const QString& uid, const QString& start, const QString& summary,
                  const QStringList& more = {}) {
    return QStringList{"BEGIN:VEVENT", "UID:" + uid, "DTSTAMP:20260901T000000Z", "DTSTART:" + start,
                       "SUMMARY:" + summary} +
           more + QStringList{"END:VEVENT"};
}

// 7 September 2026 with "Existing" on its 09:00 AM line, and a note.
void WriteDay(TestEnv& env) {
    PlannerPage page = NewPlannerPage();
    page.slotTexts[3] = "Existing";
    QDir(env.folder()).mkdir("2026");
    env.write("2026/Planner.dat",
              "09/07/26:080101:" + BuildPlannerRecord(page).toLatin1() + "\r\n");
    env.write("2026/Notes.dat", "09/07/26:080101:Old note\r\n");
}

QMap<QString, QByteArray> FilesOf(const QString& folder) {
    QMap<QString, QByteArray> files;
    for (const QFileInfo& info :
         QDir(folder).entryInfoList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot)) {
        if (info.isDir()) {
            for (auto [name, bytes] : FilesOf(info.filePath() + "/").asKeyValueRange())
                files.insert(info.fileName() + "/" + name, bytes);
        } else {
            QFile file(info.filePath());
            file.open(QIODevice::ReadOnly);
            files.insert(info.fileName(), file.readAll());
        }
    }
    return files;
}

}  // namespace

class IcalImportTest : public QObject {
    Q_OBJECT

private slots:
    void eventsGoOnTheirHoursLineOrTheNextFreeOne_data() {
        QTest::addColumn<QString>("start");
        QTest::addColumn<int>("line");
        QTest::addColumn<QString>("label");
        QTest::newRow("on its hour") << "20260907T101500" << 4 << "10:15 AM";
        QTest::newRow("its line filled") << "20260907T090000" << 4 << "09:00 AM";
        QTest::newRow("before 6 AM") << "20260907T051500" << 0 << "05:15 AM";
        QTest::newRow("after 9 PM") << "20260907T223000" << 15 << "10:30 PM";
    }
    void eventsGoOnTheirHoursLineOrTheNextFreeOne() {
        QFETCH(QString, start);
        QFETCH(int, line);
        QFETCH(QString, label);
        TestEnv env;
        WriteDay(env);
        const IcsContent read = ReadIcs(Calendar(Event("a", start, "Review", {"PRIORITY:1"})),
                                        YearRange(2026), QTimeZone::utc());
        const ImportPlan plan = PlanImport(env.state->services, read, AllDayAs::LeftOut);
        const PlannerPage page = plan.pages.value(kDay);
        QCOMPARE(page.slotTexts[3], "Existing");
        QCOMPARE(page.slotTexts[line], "Review");
        QCOMPARE(page.times[line], label);
        QVERIFY(page.bold[line]);
    }

    // A real file's lines end in CR LF and long ones are folded; a repeating event is taken
    // on each day of the range; a journal goes below the note already there.
    void aRealFilesFoldedLinesRepeatsAndJournals() {
        TestEnv env;
        WriteDay(env);
        const QByteArray bytes = Calendar(
            Event("w", "20260831T140000", "Weekly review of the long list of open questions in",
                  {"  the project", "RRULE:FREQ=WEEKLY;COUNT=3", "EXDATE:20260914T140000"}) +
            QStringList{"BEGIN:VJOURNAL", "UID:j", "DTSTAMP:20260901T000000Z",
                        "DTSTART;VALUE=DATE:20260907", "DESCRIPTION:New\\nentry", "END:VJOURNAL"});
        const IcsContent read = ReadIcs(bytes, YearRange(2026), QTimeZone::utc());
        QCOMPARE(read.problem, QString());
        const ImportPlan plan = PlanImport(env.state->services, read, AllDayAs::LeftOut);
        QCOMPARE(plan.pages.keys(), (QList<QDate>{QDate(2026, 8, 31), kDay}));
        QCOMPARE(plan.pages[kDay].slotTexts[8],
                 "Weekly review of the long list of open questions in the project");
        QCOMPARE(plan.notes.value(kDay), "Old note\r\nNew\r\nentry");
    }

    // A planner file that stops at a faulty line is never written over: its pages are refused.
    void aYearReadInPartIsLeftAsItIs() {
        TestEnv env;
        WriteDay(env);
        env.write("2026/Planner.dat", env.read("2026/Planner.dat") + "09/08/26:xx\r\n");
        const ImportPlan plan =
            PlanImport(env.state->services,
                       ReadIcs(Calendar(Event("a", "20260907T101500", "Review")), YearRange(2026),
                               QTimeZone::utc()),
                       AllDayAs::LeftOut);
        QVERIFY(plan.pages.isEmpty());
        QCOMPARE(plan.notices, QStringList{"Nothing is imported into 2026\\Planner.dat: it could "
                                           "not be read whole, and is left as it is."});
    }

    // A page open for editing would be saved over the import: the import waits for it to close.
    void anOpenPlannerWindowIsClosedFirst() {
        MainWindowFixture f;
        f.Start();
        f.window.notesPlanner->OpenPlanner();
        f.env.dialogs.ExpectMsgBox(kICalCloseEditorsMessage, kWarningStyle, kImportICalTitle);
        f.menu("mnuFileImportICal")->trigger();
        VERIFY_DIALOGS(f.env.dialogs);
    }

    // All-day events taken as marks mark only days without one; a day's own mark stays.
    void allDayEventsMarkOnlyUnmarkedDays() {
        TestEnv env;
        env.write("2026Marks.dat", "08:02:01:255-Dentist\r\n");
        QStringList allDay;
        for (const QString day : {"20260907", "20260908"})
            allDay << QStringList{"BEGIN:VEVENT",
                                  "UID:" + day,
                                  "DTSTAMP:20260901T000000Z",
                                  "DTSTART;VALUE=DATE:" + day,
                                  "SUMMARY:Fair",
                                  "END:VEVENT"};
        const ImportPlan plan = PlanImport(
            env.state->services, ReadIcs(Calendar(allDay), YearRange(2026), QTimeZone::utc()),
            AllDayAs::Marks, 4242);
        QCOMPARE(plan.markLines.value(2026),
                 (QStringList{"08:02:01:255-Dentist", "08:01:01:4242-Fair"}));
        QCOMPARE(plan.notices,
                 QStringList{"Sep 08, 2026 keeps its mark: \"Fair\" is not marked there."});
    }

    void notIcalendarIsRefusedNamingTheLine() {
        const IcsContent read = ReadIcs("hello", YearRange(2026), QTimeZone::utc());
        QVERIFY(read.problem.contains("not an iCalendar file"));
        const IcsContent broken =
            ReadIcs(Calendar({"BEGIN:VEVENT", "DTSTART:20260907T100000", "SUMMARY:x",
                              "BADLINE WITHOUT COLON", "END:VEVENT"}),
                    YearRange(2026), QTimeZone::utc());
        QVERIFY2(broken.problem.contains("BADLINE") && broken.problem.endsWith("(line 7)."),
                 qPrintable(broken.problem));
    }

    // A line too long for libical's line reader is refused before libical sees it, by the
    // menu's import and by the command line's check and import (exit status 2, the reason on
    // standard error), and nothing is written.
    void aFileWithAnOverlongLineIsRefusedUnread() {
        TestEnv env;
        WriteDay(env);
        env.write("one-line.ics", "BEGIN:VCALENDAR\r\nX-DATA:" + QByteArray(1 << 20, 'a') +
                                      "\r\nEND:VCALENDAR\r\n");
        const QString path = env.path("one-line.ics");
        const QString problem = IcsLineTooLongMessage(2, kIcsMaxLineBytes);
        const QMap<QString, QByteArray> before = FilesOf(env.folder());
        for (const QStringList& command :
             {QStringList{"ics", "check", path}, QStringList{"ics", "import", path, "--yes"}}) {
            QString out, err;
            QTextStream outStream(&out), errStream(&err);
            QCOMPARE(cli::RunCommand(command, env.folder(), outStream, errStream), cli::kExitUsage);
            QCOMPARE(err, "orvanta: " + path + ": " + problem + "\n");
        }
        frmMain frame(env.state->services, env.state->changes, env.state->prefs);
        ICalMenus menus(frame, {env.state->services, env.state->prefs, env.state->dates,
                                env.state->planner, env.state->notes, env.state->holidays,
                                env.state->marks, env.state->markerColors});
        env.dialogs.ExpectMsgBox(problem, kWarningStyle, kImportICalTitle);
        menus.ImportFile(path);
        VERIFY_DIALOGS(env.dialogs);
        QCOMPARE(FilesOf(env.folder()), before);
    }

    // The preview comes before any writing: No leaves every file as it was; Yes writes the
    // pages and notes through their stores.
    void anAbortedPreviewWritesNothing() {
        TestEnv env;
        WriteDay(env);
        const QString path = env.path("in.ics");
        env.write("in.ics", Calendar(Event("a", "20260907T101500", "Review")));
        frmMain frame(env.state->services, env.state->changes, env.state->prefs);
        ICalMenus menus(frame, {env.state->services, env.state->prefs, env.state->dates,
                                env.state->planner, env.state->notes, env.state->holidays,
                                env.state->marks, env.state->markerColors});
        env.select(kDay);
        const QMap<QString, QByteArray> before = FilesOf(env.folder());
        const QString preview = "1 planner page will change: Sep 07, 2026.";
        env.dialogs.ExpectMsgBox(ICalPreviewQuestion(preview), kQuestionStyle, kImportICalTitle,
                                 vb::No);
        menus.ImportFile(path);
        VERIFY_DIALOGS(env.dialogs);
        QCOMPARE(FilesOf(env.folder()), before);

        env.dialogs.ExpectMsgBox(ICalPreviewQuestion(preview), kQuestionStyle, kImportICalTitle,
                                 vb::Yes);
        env.dialogs.ExpectMsgBox(kICalImportedMessage, kInformationStyle, kImportICalTitle);
        menus.ImportFile(path);
        VERIFY_DIALOGS(env.dialogs);
        const PlannerPage page = ParsePlannerRecord(env.state->planner.RecordOf(kDay));
        QCOMPARE(page.slotTexts[3], "Existing");
        QCOMPARE(page.slotTexts[4], "Review");
        QCOMPARE(env.read("2026/Notes.dat"), "09/07/26:080101:Old note\r\n");

        // The same file again adds nothing: the page has the appointment at that time.
        env.dialogs.ExpectMsgBox(
            "Nothing in the file can be imported.\r\n1 entry already in "
            "the planner is left as it is.",
            kInformationStyle, kImportICalTitle);
        menus.ImportFile(path);
        VERIFY_DIALOGS(env.dialogs);
    }
};

ORVANTA_TEST_MAIN(IcalImportTest)
#include "tst_ical_import.moc"
