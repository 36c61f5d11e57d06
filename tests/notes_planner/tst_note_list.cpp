// The notes and planner management window: which dates it lists, what a delete leaves in the
// year's file, and the boxes it shows.
#include <QComboBox>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include "MainWindowFixture.h"
#include "notes_planner/gui/NotesPlannerMenus.h"
#include "notes_planner/gui/frmNoteList.h"
#include "notes_planner/gui/frmNotes.h"
#include "shell/ShellMessages.h"

namespace {

const QDate kToday(2026, 9, 7);

frmNoteList* OpenList(MainWindowFixture& f) {
    f.menu("mnuManageNotes")->trigger();
    return qobject_cast<frmNoteList*>(f.frame().ChildWindow("frmNoteList"));
}

QStringList Listed(frmNoteList* window, int panel) {
    QStringList texts;
    auto* list = window->Control<QListWidget>("lst", panel);
    for (int row = 0; row < list->count(); ++row)
        texts << list->item(row)->text();
    return texts;
}

void Click(frmNoteList* window, const char* button, int panel) {
    window->Control<QPushButton>(button, panel)->click();
}

// "mm/dd/" + the year's two digits: the same days in any year's file.
QByteArray Days(const char* yy, const char* text) {
    return QByteArray(text).replace("yy", yy);
}

}  // namespace

class NoteListTest : public QObject {
    Q_OBJECT

private slots:
    void deleteLeavesEveryOtherLineAsItWas_data() {
        QTest::addColumn<int>("panel");
        QTest::addColumn<int>("year");
        QTest::newRow("notes of the working year") << int(frmNoteList::kNotesPanel) << 2026;
        QTest::newRow("planners of a year not in memory")
            << int(frmNoteList::kPlannersPanel) << 2023;
    }
    void deleteLeavesEveryOtherLineAsItWas() {
        QFETCH(int, panel);
        QFETCH(int, year);
        const QByteArray yy = QByteArray::number(year % 100);
        const QString file = QString::number(year) + (panel == 0 ? "/Notes.dat" : "/Planner.dat");
        MainWindowFixture f(QDateTime(kToday, QTime(9, 0)));
        f.env.write(file, Days(yy,
                               "09/15/yy:080202:gone\r\n03/02/yy:020101:March \xe9\r\n"
                               "09/20/yy:080003:x\n09/07/yy:080101:last"));
        f.Start();
        frmNoteList* window = OpenList(f);
        window->Control<QComboBox>("cmbYear", panel)->setCurrentText(QString::number(year));
        window->Control<QComboBox>("cmbMonth", panel)->setCurrentText("September");
        Click(window, "cmdLoad", panel);
        QCOMPARE(Listed(window, panel).size(), 3);
        QCOMPARE(Listed(window, panel).value(1), QDate(year, 9, 15).toString("dddd, MMMM d, yyyy"));

        const auto flagged = [&] {
            const DayLook look = f.calendar().LookOf(QDate(2026, 9, 15));
            return panel == 0 ? look.hasNotes : look.hasPlanner;
        };
        QCOMPARE(flagged(), year == 2026);
        window->Control<QListWidget>("lst", panel)->item(1)->setSelected(true);
        Click(window, "cmdDelete", panel);
        VERIFY_DIALOGS(f.env.dialogs);
        // Every other line as it was, each ended by CR LF as the file's lines are.
        QCOMPARE(f.env.read(file), Days(yy,
                                        "03/02/yy:020101:March \xe9\r\n09/20/yy:080003:x\r\n"
                                        "09/07/yy:080101:last\r\n"));
        QCOMPARE(Listed(window, panel).size(), 2);
        QVERIFY(!flagged());
    }

    void nothingSelectedAndRefusedDeleteAllChangeNothing() {
        MainWindowFixture f(QDateTime(kToday, QTime(9, 0)));
        const QByteArray notes = "09/07/26:080101:a\r\n09/20/26:080003:b\r\n";
        f.env.write("2026/Notes.dat", notes);
        f.Start();
        frmNoteList* window = OpenList(f);
        f.env.dialogs.ExpectMsgBox("Nothing has been selected.", vb::OKOnly, "")
            .ExpectMsgBox("Nothing has been selected.", vb::OKOnly, "")
            .ExpectMsgBox("You're about to delete all the files in the list. Continue?",
                          kQuestionStyle, "Deleting All File in the List", vb::No);
        Click(window, "cmdOpen", 0);
        Click(window, "cmdDelete", 0);
        Click(window, "cmdDeleteAll", 0);
        VERIFY_DIALOGS(f.env.dialogs);
        QCOMPARE(f.env.read("2026/Notes.dat"), notes);
        QCOMPARE(Listed(window, 0).size(), 2);
        QCOMPARE(f.window.notesPlanner->notesWindow(), nullptr);
    }

    void openingADateDeletedBehindTheListsBack() {
        MainWindowFixture f(QDateTime(kToday, QTime(9, 0)));
        f.env.write("2026/Notes.dat", "09/07/26:080101:a\r\n09/20/26:080003:b\r\n");
        f.Start();
        frmNoteList* window = OpenList(f);
        QVERIFY(f.env.state->notes.DeleteNotes(2026, {kToday}));
        auto* list = window->Control<QListWidget>("lst", 0);
        list->item(0)->setSelected(true);
        f.env.dialogs.ExpectMsgBox("Couldn't find note to open.", vb::OKOnly, "");
        Click(window, "cmdOpen", 0);
        VERIFY_DIALOGS(f.env.dialogs);
        QCOMPARE(f.window.notesPlanner->notesWindow(), nullptr);

        // Enter on the other date opens its notes.
        list->setFocus();
        list->setCurrentRow(1);
        QTest::keyClick(list, Qt::Key_Return);
        QCOMPARE(f.window.notesPlanner->notesWindow()->date(), QDate(2026, 9, 20));
    }

    void partlyReadableFileIsNotRewritten_data() {
        QTest::addColumn<int>("year");
        QTest::newRow("working year") << 2026;
        QTest::newRow("year not in memory") << 2023;
    }
    void partlyReadableFileIsNotRewritten() {
        QFETCH(int, year);
        const QByteArray yy = QByteArray::number(year % 100);
        const QString file = QString::number(year) + "/Notes.dat";
        const QString fileName = QString::number(year) + "\\Notes.dat";
        const QByteArray notes = Days(yy, "09/07/yy:080101:a\r\nbad line\r\n09/20/yy:080003:c\r\n");
        MainWindowFixture f(QDateTime(kToday, QTime(9, 0)));
        f.env.write(file, notes);
        if (year == 2026)
            f.env.expectProgramError("ReadThisYearsNotes", 13,
                                     FaultDescription("Type mismatch", fileName, 2));
        f.Start();
        frmNoteList* window = OpenList(f);
        window->Control<QComboBox>("cmbYear", 0)->setCurrentText(QString::number(year));
        Click(window, "cmdLoad", 0);
        QCOMPARE(Listed(window, 0).size(), 1);  // the line before the faulty one
        f.env.expectProgramError("DeleteNotes", 13, FaultDescription("Type mismatch", fileName, 2));
        f.env.dialogs.ExpectMsgBox(PartlyReadFileMessage(fileName, 2), kWarningStyle, "");
        window->Control<QListWidget>("lst", 0)->item(0)->setSelected(true);
        QTest::keyClick(window->Control<QListWidget>("lst", 0), Qt::Key_Delete);
        VERIFY_DIALOGS(f.env.dialogs);
        QCOMPARE(f.env.read(file), notes);
    }
};

ORVANTA_TEST_MAIN(NoteListTest)

#include "tst_note_list.moc"
