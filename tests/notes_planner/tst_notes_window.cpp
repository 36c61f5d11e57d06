// The notes window: opened on a date from the main window, saved into that date's year,
// the closing question, Search Again, the printout, and typing that outlives a crash.
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProcess>
#include <QTest>

#include "MainWindowFixture.h"
#include "notes_planner/gui/NotesPlannerMenus.h"
#include "notes_planner/gui/PlannerPageView.h"
#include "notes_planner/gui/UnsavedTracker.h"
#include "notes_planner/gui/frmNotes.h"
#include "notes_planner/gui/frmPlanner.h"

namespace {

const QDate kToday(2026, 9, 7);
const QString kTypeUntilKilled = QStringLiteral("--type-until-killed");

// The program on folder with its planner open, typed into until the process is killed.
[[noreturn]] void TypeUntilKilled(const QString& folder) {
    MainWindowFixture f(QDateTime(kToday, QTime(9, 0)));
    f.env.state =
        std::make_unique<ProgramState>(folder, f.env.dialogs, f.env.clock, f.env.platform);
    f.Start();
    frmPlanner* planner = f.window.notesPlanner->OpenPlanner();
    for (int i = 0;; ++i)
        QTest::keyClicks(planner->page().Box(i % 3), QStringLiteral("typing "), {}, 5);
}

QPlainTextEdit* Text(frmNotes& notes) {
    return notes.Control<QPlainTextEdit>("txtNotes");
}

}  // namespace

class NotesWindowTest : public QObject {
    Q_OBJECT

private slots:
    void closingAsksOnlyAboutChangedText_data() {
        QTest::addColumn<int>("answer");
        QTest::addColumn<QByteArray>("file");  // what Notes.dat holds afterwards
        QTest::addColumn<bool>("open");
        QTest::newRow("Yes saves")
            << int(vb::Yes) << QByteArray("09/07/26:080101:a\xd5\xd2z\r\n") << false;
        QTest::newRow("No closes") << int(vb::No) << QByteArray("<none>") << false;
        QTest::newRow("Cancel keeps the text") << int(vb::Cancel) << QByteArray("<none>") << true;
    }
    void closingAsksOnlyAboutChangedText() {
        QFETCH(int, answer);
        QFETCH(QByteArray, file);
        QFETCH(bool, open);
        MainWindowFixture f(QDateTime(kToday, QTime(9, 0)));
        f.Start();
        f.menu("mnuOptDateOpenNotes")->trigger();
        frmNotes* notes = f.window.notesPlanner->notesWindow();
        QCOMPARE(notes->windowTitle(), "Notes for September 7, 2026");
        notes->CloseWindow();  // unchanged: nothing asked
        QCOMPARE(f.window.notesPlanner->notesWindow(), nullptr);

        notes = f.window.notesPlanner->OpenNotes();
        QTest::keyClicks(Text(*notes), "a");
        QTest::keyClick(Text(*notes), Qt::Key_Return);
        QTest::keyClicks(Text(*notes), "z");
        f.env.dialogs.ExpectMsgBox("Text has been changed. Do you want to save the changes?",
                                   vb::YesNoCancel | vb::Question, "Text Has Been Changed.",
                                   answer);
        if (answer == vb::Yes)
            f.env.dialogs.ExpectMsgBox("Notes Saved", vb::OKOnly, "");
        QTest::keyClick(Text(*notes), Qt::Key_Escape);
        VERIFY_DIALOGS(f.env.dialogs);
        QCOMPARE(f.window.notesPlanner->notesWindow() != nullptr, open);
        QCOMPARE(f.env.exists("2026/Notes.dat") ? f.env.read("2026/Notes.dat") : "<none>", file);
        if (!open)
            return;
        // Opened again on its date, from the menu or the planner, it keeps what was typed.
        f.window.notesPlanner->OpenNotes();
        QCOMPARE(Text(*notes)->toPlainText(), "a\nz");
        frmPlanner* planner = f.window.notesPlanner->OpenPlanner();
        QTest::keyClicks(planner->page().Box(0), "kept");
        f.window.notesPlanner->OpenPlanner();
        QCOMPARE(planner->page().Box(0)->text(), "kept");
    }

    void noteOfNextYearSavesIntoNextYearAndOpensThePlanner() {
        MainWindowFixture f(QDateTime(kToday, QTime(9, 0)));
        f.Start();
        f.env.state->dates.SelectDate(QDate(2027, 1, 4));
        frmNotes* notes = f.window.notesPlanner->OpenNotes();
        Text(*notes)->setPlainText("next year");
        f.env.state->dates.SelectDate(QDate(2026, 12, 30));
        // Leaving for the planner asks the program's question, and Yes saves.
        f.env.dialogs
            .ExpectMsgBox("The Notes have been changed. Do you want to save those changes?",
                          vb::YesNoCancel | vb::Question, "Notes Have Changed", vb::Yes)
            .ExpectMsgBox("Notes Saved", vb::OKOnly, "");
        notes->cmdPlanner_Click();
        VERIFY_DIALOGS(f.env.dialogs);
        QCOMPARE(f.env.read("2027/Notes.dat"), "01/04/27:000101:next year\r\n");
        QTRY_COMPARE(f.window.notesPlanner->notesWindow(), nullptr);
        QCOMPARE(f.window.notesPlanner->plannerWindow()->date(), QDate(2027, 1, 4));
    }

    void searchAgainStepsThroughTheNoteAndPrintPrintsIt() {
        MainWindowFixture f(QDateTime(kToday, QTime(9, 0)));
        f.env.write("2026/Notes.dat", "09/07/26:080101:Call Bob\xd5\xd2then call ANN\r\n");
        f.Start();
        frmNotes* notes = f.window.notesPlanner->OpenNotes();
        notes->mnuEditSearchAgain_Click();  // no phrase yet: nothing happens
        f.env.state->search.phrase = "call";
        notes->mnuEditSearchAgain_Click();
        QCOMPARE(Text(*notes)->textCursor().selectionStart(), 0);
        notes->mnuEditSearchAgain_Click();
        QCOMPARE(Text(*notes)->textCursor().selectedText(), "call");
        QCOMPARE(Text(*notes)->textCursor().selectionStart(), 14);
        f.env.dialogs.ExpectMsgBox("No more occurences.", vb::OKOnly, "");
        notes->mnuEditSearchAgain_Click();
        VERIFY_DIALOGS(f.env.dialogs);
        QCOMPARE(Text(*notes)->textCursor().selectionStart(), 14);

        notes->mnuFilePrint_Click();
        QProcess text;
        text.start("pdftotext", {f.printer.files().value(0), "-"});
        QVERIFY(text.waitForFinished());
        QCOMPARE(QString::fromUtf8(text.readAllStandardOutput()).split('\n').mid(0, 3),
                 QStringList({"Notes for Sep 07, 2026", "Call Bob", "then call ANN"}));
    }

    // The program killed while a page is being typed: on the next start the page is offered
    // back and, taken, is there again, unsaved.
    void typingSurvivesAKill() {
        MainWindowFixture f(QDateTime(kToday, QTime(9, 0)));
        QProcess typist;
        typist.start(QCoreApplication::applicationFilePath(), {kTypeUntilKilled, f.env.folder()});
        QTRY_VERIFY_WITH_TIMEOUT(f.env.exists("TempRecord.txt"), 15000);
        typist.kill();
        QVERIFY(typist.waitForFinished());
        QVERIFY(!f.env.exists("2026/Planner.dat"));

        const QString question = RestoreQuestion(EditorKind::Planner, kToday);
        f.env.dialogs.ExpectMsgBox(question, kQuestionStyle, "Unsaved Planner Found", vb::Yes);
        f.Restart();
        VERIFY_DIALOGS(f.env.dialogs);
        frmPlanner* planner = f.window.notesPlanner->plannerWindow();
        QVERIFY(planner && planner->page().Box(0)->text().startsWith("typing typing"));
        QVERIFY(f.env.state->changes.PlannerChanged);

        // Given up, it is gone for good.
        f.env.dialogs.ExpectMsgBox("Planner has been changed. Do you want to save the changes?",
                                   vb::YesNoCancel | vb::Question, "Planner Has Been Changed.",
                                   vb::No);
        planner->CloseWindow();
        VERIFY_DIALOGS(f.env.dialogs);
        QVERIFY(!f.env.exists("TempRecord.txt"));
    }
};

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);
    QApplication app(argc, argv);
    app.setAttribute(Qt::AA_Use96Dpi, true);
    if (argc == 3 && argv[1] == kTypeUntilKilled)
        TypeUntilKilled(QString::fromLocal8Bit(argv[2]));
    NotesWindowTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_notes_window.moc"
