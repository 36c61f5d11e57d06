// Notes and planner pages as the main window shows them: the day indicators of the views, the
// two indicators of the selected date and the month's tasks, through a change of year.
#include <QLabel>
#include <QListWidget>
#include <QTest>

#include "MainWindowFixture.h"
#include "notes_planner/gui/NotesPlannerMenus.h"
#include "notes_planner/gui/frmNotes.h"
#include "notes_planner/gui/frmPlanner.h"
#include "shell/TextFile.h"

namespace {

const QDate kToday(2026, 9, 7);  // Monday: cell 08 01 01

QByteArray PlannerLine(const QByteArray& keyAndCode, const QString& time, const QString& text,
                       const QString& toDo = {}) {
    PlannerPage page;
    page.times[1] = time;
    page.slotTexts[1] = text;
    page.slotTexts[kFirstToDoSlot] = toDo;
    return keyAndCode + ":" + textfile::Encode(BuildPlannerRecord(page)) + "\r\n";
}

}  // namespace

class NotesPlannerOnCalendarTest : public QObject {
    Q_OBJECT

private slots:
    void daysShowTheirOwnYearsNotesAndPages() {
        MainWindowFixture f(QDateTime(kToday, QTime(9, 0)));
        f.env.write("2026/Notes.dat",
                    "09/07/26:080101:   \xd2Pick up Ren\xe9"
                    "e\xd2more\r\n09/20/26:080003:x\r\n");
        f.env.write("2026/Planner.dat", PlannerLine("09/15/26:080202", "07:00 AM", "Dentist") +
                                            PlannerLine("09/20/26:080003", "", "", "Laundry"));
        f.env.write("2027/Notes.dat", "09/08/27:080301:next year\r\n");
        f.Start();
        CalendarMenus& calendar = f.calendar();
        const auto shows = [&](const QDate& date) {
            const DayLook look = calendar.LookOf(date);
            return QPair<bool, bool>(look.hasNotes, look.hasPlanner);
        };
        QCOMPARE(shows(kToday), qMakePair(true, false));
        QCOMPARE(shows(QDate(2026, 9, 15)), qMakePair(false, true));
        QCOMPARE(shows(QDate(2026, 9, 20)), qMakePair(true, true));
        QCOMPARE(shows(QDate(2026, 9, 8)), qMakePair(false, false));
        QCOMPARE(shows(QDate(2027, 9, 7)), qMakePair(false, false));
        QCOMPARE(shows(QDate(2027, 9, 8)), qMakePair(true, false));

        auto* imgNotes = f.control<QLabel>("imgNotes");
        auto* imgPlanner = f.control<QLabel>("imgPlanner");
        QVERIFY(imgNotes->isEnabled() && !imgPlanner->isEnabled());
        auto* tasks = f.control<QListWidget>("lstTasks");
        const auto items = [&] {
            QStringList texts;
            for (int i = 0; i < tasks->count(); ++i)
                texts << tasks->item(i)->text();
            return texts;
        };
        QCOMPARE(items(), QStringList({"Mon 07  Pick up Ren\u00e9e", "Tue 15  07:00 AM Dentist",
                                       "Sun 20  x"}));

        // Clicking a task selects its date and opens its planner page (its notes when it has
        // no page).
        QTest::mouseClick(tasks->viewport(), Qt::LeftButton, {},
                          tasks->visualItemRect(tasks->item(1)).center());
        QCOMPARE(f.env.state->dates.SelectedDate, QDate(2026, 9, 15));
        QCOMPARE(f.window.notesPlanner->plannerWindow()->date(), QDate(2026, 9, 15));
        QVERIFY(!imgNotes->isEnabled() && imgPlanner->isEnabled());
        QTest::mouseClick(tasks->viewport(), Qt::LeftButton, {},
                          tasks->visualItemRect(tasks->item(0)).center());
        QCOMPARE(f.window.notesPlanner->notesWindow()->date(), kToday);

        // Into next year: 2027 becomes this year and its note its own.
        emit f.frame().dateChosen(QDate(2027, 9, 8));
        QCoreApplication::processEvents();
        QCOMPARE(shows(QDate(2027, 9, 8)), qMakePair(true, false));
        QCOMPARE(shows(QDate(2026, 9, 7)), qMakePair(false, false));
        QVERIFY(imgNotes->isEnabled() && !imgPlanner->isEnabled());
        QCOMPARE(items(), QStringList({"Wed 08  next year"}));

        // A note saved (and read again, as the notes window does) shows at once.
        emit f.frame().dateChosen(QDate(2027, 9, 1));
        f.env.dialogs.ExpectMsgBox("Notes Saved", vb::OKOnly, "");
        f.env.state->notes.SaveThisYearsNotes(QDate(2027, 9, 1), "saved");
        f.env.state->notes.ReadThisYearsNotes();
        QCoreApplication::processEvents();
        QVERIFY(imgNotes->isEnabled());
        QCOMPARE(items(), QStringList({"Wed 01  saved", "Wed 08  next year"}));
        VERIFY_DIALOGS(f.env.dialogs);
    }
};

ORVANTA_TEST_MAIN(NotesPlannerOnCalendarTest)
#include "tst_notes_planner_on_calendar.moc"
