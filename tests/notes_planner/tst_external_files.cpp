// A page or a note as a file of its own: its bytes, the files that are refused, and a page
// exported, opened on another day, saved back and merged into the records from the planner
// window; a note file opened in the notes window; the export verb.
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>

#include "MainWindowFixture.h"
#include "cli/Commands.h"
#include "notes_planner/ExternalFileMessages.h"
#include "notes_planner/gui/NotesPlannerMenus.h"
#include "notes_planner/gui/NotesPlannerMessages.h"
#include "notes_planner/gui/PlannerPageView.h"
#include "notes_planner/gui/frmNotes.h"
#include "notes_planner/gui/frmPlanner.h"
#include "notes_planner/modPlanner.h"
#include "shell/TextFile.h"

Q_DECLARE_METATYPE(PlannerPage)

namespace {

const QDate kToday(2026, 9, 7);

PlannerPage SamplePage() {
    PlannerPage page;
    page.times[0] = "06:00 AM";
    page.bold[0] = true;
    page.slotTexts[0] = "Dentist";
    page.done[0] = true;
    return page;
}

QByteArray Planner() {
    return ExternalPlannerBytes(QDate(2026, 3, 7), SamplePage());
}

// Types text over what box holds, as the user does.
void TypeInto(QLineEdit* box, const QString& text) {
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, text);
}

void Key(int key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
}

struct ExportFixture : MainWindowFixture {
    ExportFixture() : MainWindowFixture(QDateTime(kToday, QTime(9, 0))) { Start(); }
    frmPlanner& OpenPlanner() {
        menu("mnuOptDateOpenPlanner")->trigger();
        return *window.notesPlanner->plannerWindow();
    }
    QString Folder() const { return QFileInfo(env.path("Planners And Notes/x")).absolutePath(); }
    void ExpectExport(const QString& name, int overwrite = 0) {
        env.dialogs.ExpectInputBox(kExportPrompt, kExportTitle, "", name);
        if (overwrite)
            env.dialogs.ExpectMsgBox(OverwriteQuestion(ExternalKind::Planner), kQuestionStyle,
                                     kOverwriteTitle, overwrite);
        if (overwrite != vb::No)
            env.dialogs.ExpectMsgBox(SavedAsMessage("Plan.pln", Folder()), vb::OKOnly, "");
    }
};

}  // namespace

class ExternalFilesTest : public QObject {
    Q_OBJECT

private slots:
    void fileBytes() {
        const QByteArray planner = Planner();
        QCOMPARE(planner.size(), 4109);
        QCOMPARE(planner.first(19), "03/07/26:B06:00 AM ");
        QCOMPARE(planner.mid(19, 7), "Dentist");
        QCOMPARE(planner.right(10).toHex(), "f3f5f5f5f5f5f5f5f5f5");
        // A note keeps its line breaks as they are: no 213/210 in a notes file.
        QCOMPARE(ExternalNotesBytes(QDate(2026, 3, 7), "a\r\nb\u00e9"), "03/07/26:a\r\nb\xe9");
    }

    // Only the date at the start is checked; the rest is read as any planner record is.
    void onlyTheDateIsChecked_data() {
        QTest::addColumn<bool>("planner");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("problem");
        QTest::addColumn<PlannerPage>("page");
        const QByteArray good = Planner();
        const PlannerPage sample = SamplePage();
        PlannerPage badTime = sample, notDone = sample, tab = sample;
        badTime.times[0] = "25:00 AM";
        badTime.bold[0] = false;
        notDone.done[0] = false;
        tab.slotTexts[0] = "Room\t4";
        QByteArray badMark = good;
        badMark[9 + 4090] = 'x';
        QTest::newRow("page") << true << good << "" << sample;
        QTest::newRow("page + CR LF") << true << good + "\r\n"
                                      << "" << sample;
        QTest::newRow("one byte short") << true << good.chopped(1) << "" << sample;
        QTest::newRow("date and one line")
            << true << QByteArray("03/07/26:B06:00 AM Dentist") << "" << notDone;
        QTest::newRow("date only") << true << QByteArray("03/07/26:") << "" << PlannerPage{};
        QTest::newRow("no time") << true << QByteArray(good).replace(9, 10, "25:00 AM  ") << ""
                                 << badTime;
        QTest::newRow("bad done mark") << true << badMark << "" << notDone;
        QTest::newRow("own export of a tab")
            << true << ExternalPlannerBytes(QDate(2026, 3, 7), tab) << "" << tab;
        QTest::newRow("no colon") << true << QByteArray(good).replace(8, 1, ";") << kNoDateProblem
                                  << PlannerPage{};
        QTest::newRow("no such day")
            << true << "02/30/26:" + good.mid(9) << kNoDateProblem << PlannerPage{};
        QTest::newRow("empty") << true << QByteArray() << kTooShortProblem << PlannerPage{};
        QTest::newRow("note") << false << QByteArray("03/07/26:") << "" << PlannerPage{};
        QTest::newRow("note without colon")
            << false << QByteArray("03/07/26") << kTooShortProblem << PlannerPage{};
    }
    void onlyTheDateIsChecked() {
        QFETCH(bool, planner);
        QFETCH(QByteArray, bytes);
        QFETCH(QString, problem);
        QFETCH(PlannerPage, page);
        QString why;
        if (planner) {
            const auto read = ParseExternalPlanner(bytes, 2026, &why);
            QCOMPARE(read.has_value(), problem.isEmpty());
            if (read) {
                QCOMPARE(read->date, QDate(2026, 3, 7));
                QVERIFY(read->page == page);
            }
        } else {
            QCOMPARE(ParseExternalNotes(bytes, 2026, &why).has_value(), problem.isEmpty());
        }
        QCOMPARE(why, problem);
    }

    void pageExportedOpenedSavedBackAndMerged() {
        ExportFixture f;
        frmPlanner& planner = f.OpenPlanner();
        TypeInto(planner.page().Box(0), "Dentist");
        f.env.dialogs.ExpectInputBox(kExportPrompt, kExportTitle, "", "")
            .ExpectMsgBox(kNoNameMessage, vb::OKOnly, "");
        planner.Control<QAction>("mnuFileExport")->trigger();
        QVERIFY(!f.env.exists("Planners And Notes"));
        f.ExpectExport("Plan");
        planner.Control<QAction>("mnuFileExport")->trigger();
        const QByteArray exported = f.env.read("Planners And Notes/Plan.pln");
        QCOMPARE(exported.size(), 4109);
        QCOMPARE(exported.mid(9 + 10, 7), "Dentist");

        // A second export under the same name asks first; No leaves the first file.
        TypeInto(planner.page().Box(0), "Changed");
        f.ExpectExport("plan", vb::No);
        planner.Control<QAction>("mnuFileExport")->trigger();
        QCOMPARE(f.env.read("Planners And Notes/Plan.pln"), exported);
        VERIFY_DIALOGS(f.env.dialogs);

        // Opened on another day: the file's date and page, saved back into the file.
        f.env.dialogs.ExpectMsgBox(kPlannerCloseQuestion, vb::YesNoCancel | vb::Question,
                                   kPlannerCloseTitle, vb::No);
        planner.cmdDay_Click(3);
        f.env.dialogs.ExpectOpenFile(f.env.path("Planners And Notes/Plan.pln"));
        planner.Control<QAction>("mnuFileImport")->trigger();
        QCOMPARE(planner.date(), kToday);
        QCOMPARE(planner.windowTitle(),
                 "Displaying External Planner for Monday, September 7, 2026");
        QCOMPARE(planner.page().Box(0)->text(), "Dentist");
        TypeInto(planner.page().Box(1), "Bring the card");
        f.env.dialogs.ExpectMsgBox(SavedAsMessage("Plan.pln", f.Folder()), vb::OKOnly, "");
        Key(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(f.env.read("Planners And Notes/Plan.pln").contains("Bring the card"));
        QVERIFY(!f.env.exists("2026/Planner.dat"));

        // Merged: the day had no page, so no question; then it has one, and No keeps it.
        f.env.dialogs.ExpectMsgBox("Planner Records Updated", vb::OKOnly, "");
        planner.Control<QAction>("mnuFileMerge")->trigger();
        QVERIFY(f.window.notesPlanner->plannerWindow()->IsExternal() == false);
        const QByteArray records = f.env.read("2026/Planner.dat");
        QVERIFY(records.startsWith("09/07/26:080101:06:00 AM  Dentist"));
        f.env.dialogs.ExpectOpenFile(f.env.path("Planners And Notes/Plan.pln"));
        planner.Control<QAction>("mnuFileImport")->trigger();
        f.env.dialogs.ExpectMsgBox(MergeQuestion("09/07/26"), kQuestionStyle, kMergeTitle, vb::No);
        planner.Control<QAction>("mnuFileMerge")->trigger();
        QCOMPARE(f.env.read("2026/Planner.dat"), records);
        VERIFY_DIALOGS(f.env.dialogs);
    }

    void noteFileShowsItsLineBreaksAndAPageFileOpensThePlanner() {
        ExportFixture f;
        f.env.write("Mine.nte", "03/07/26:first\r\nsecond");
        f.env.write("Page.pln", Planner());
        f.env.write("Undated.pln", "3/7/26: Dentist");
        f.menu("mnuOptDateOpenNotes")->trigger();
        frmNotes& notes = *f.window.notesPlanner->notesWindow();
        f.env.dialogs.ExpectOpenFile(f.env.path("Mine.nte"));
        notes.Control<QAction>("mnuFileImport")->trigger();
        QCOMPARE(notes.windowTitle(), "Displaying External Notes for Mar 07, 2026");
        QCOMPARE(notes.Control<QPlainTextEdit>("txtNotes")->toPlainText(), "first\nsecond");
        f.env.dialogs.ExpectOpenFile(f.env.path("Page.pln"));
        notes.Control<QAction>("mnuFileImport")->trigger();
        QCOMPARE(f.window.notesPlanner->plannerWindow()->page().Box(0)->text(), "Dentist");
        // A damaged file is refused with what is wrong, and the page shown stays.
        f.env.dialogs.ExpectOpenFile(f.env.path("Undated.pln"))
            .ExpectMsgBox(
                "The file Undated.pln could not be opened as a planner file: it does not begin "
                "with a date written mm/dd/yy and \":\". Nothing was opened.",
                kWarningStyle, "");
        f.window.notesPlanner->plannerWindow()->mnuFileImport_Click();
        QCOMPARE(f.window.notesPlanner->plannerWindow()->page().Box(0)->text(), "Dentist");
        VERIFY_DIALOGS(f.env.dialogs);
    }

    void exportVerbWritesTheWindowsBytes() {
        TestEnv env;
        env.write("2026/Planner.dat",
                  "03/07/26:020600:" + textfile::Encode(BuildPlannerRecord(SamplePage())));
        QString out, err;
        QTextStream outStream(&out), errStream(&err);
        const QString file = env.path("out.pln");
        const auto run = [&](const QString& date) {
            return cli::RunCommand({"export", "planner", date, file}, env.dir.path(), outStream,
                                   errStream);
        };
        QCOMPARE(run("2026-03-08"), cli::kExitDataError);
        QVERIFY(!env.exists("out.pln"));
        QCOMPARE(run("2026-03-07"), cli::kExitOk);
        QCOMPARE(env.read("out.pln"), Planner());
        QCOMPARE(run("2026-3-7"), cli::kExitUsage);
    }
};

ORVANTA_TEST_MAIN(ExternalFilesTest)
#include "tst_external_files.moc"
