// The to-do window and the main window's to-do panel: edits, moves and done marks as saved, the
// closing question, other to-do files and the printout.
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QProcess>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

#include "MainWindowFixture.h"
#include "reminders/gui/RemindersMenus.h"
#include "reminders/gui/frmToDo.h"

namespace {

const QString kSaved = "To Do List Saved.";
const QString kChanged = "To Do List has been changed. Do you want to save the changes?";

// Lines of a to-do file after the given ones: each empty row its not-done mark.
QByteArray Rows(QByteArray lines, int given) {
    for (int row = given; row < 10; ++row)
        lines += "\xf5\r\n";
    return lines;
}

struct ToDoFixture : MainWindowFixture {
    explicit ToDoFixture(const QByteArray& file = {})
        : MainWindowFixture(QDateTime(QDate(2026, 9, 7), QTime(9, 0))) {
        if (!file.isEmpty())
            env.write("To Do.dat", file);
        Start();
        QApplication::setActiveWindow(&frame());
    }
    frmToDo& Open() {
        menu("mnuManageToDo")->trigger();
        return *window.reminders->toDoWindow();
    }
    QLineEdit* Row(int row) const {
        return window.reminders->toDoWindow()->Control<QLineEdit>("txt", row);
    }
    void Key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
    }
    // What the main window's panel shows of a row: its text, or "" when the row is hidden.
    QString Panel(int row) const {
        auto* text = control<QLabel>(ArrayName("lblToDo", row));
        return text->isVisible() && control<QLabel>(ArrayName("imgChkBox", row))->isVisible()
                   ? text->text()
                   : QString();
    }
};

}  // namespace

class ToDoWindowTest : public QObject {
    Q_OBJECT

private slots:
    void movesAndRemovalsKeepEachRowWithItsDoneMark() {
        ToDoFixture f(
            "\xf3"
            "Call the bank\r\n\xf5  Book tickets  \r\n");
        QCOMPARE(f.Panel(0), "Call the bank");
        QCOMPARE(f.Panel(1), "Book tickets");
        QCOMPARE(f.Panel(2), "");
        frmToDo& window = f.Open();
        QCOMPARE(f.Row(1)->text(), "  Book tickets  ");
        f.Row(0)->setFocus();
        f.Key(Qt::Key_Down, Qt::ControlModifier);  // Move Contents Down One Line
        QVERIFY(f.Row(1)->hasFocus());
        f.Row(5)->setFocus();
        QTest::keyClicks(f.Row(5), "Water the plants");
        f.Key(Qt::Key_Space, Qt::ControlModifier);  // done
        f.Key(Qt::Key_Up, Qt::ControlModifier);     // Move Contents Up One Line
        f.Key(Qt::Key_Up, Qt::ControlModifier);
        window.Control<QPushButton>("cmdDelete", 0)->click();
        f.env.dialogs.ExpectMsgBox(kSaved, vb::OKOnly, "");
        f.Key(Qt::Key_S, Qt::ControlModifier);
        VERIFY_DIALOGS(f.env.dialogs);
        QCOMPARE(f.env.read("To Do.dat").toHex(' '),
                 Rows("\xf5\r\n\xf3"
                      "Call the bank\r\n\xf5\r\n\xf3Water the plants\r\n",
                      4)
                     .toHex(' '));
        QCOMPARE(f.Panel(0), "");
        QCOMPARE(f.Panel(1), "Call the bank");
        QCOMPARE(f.Panel(3), "Water the plants");
        window.CloseWindow();  // saved: no question
        QCOMPARE(f.window.reminders->toDoWindow(), nullptr);
    }

    void closingAsksAboutChanges_data() {
        QTest::addColumn<bool>("program");
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("saved");
        QTest::addColumn<bool>("open");
        QTest::newRow("window, Yes") << false << int(vb::Yes) << true << false;
        QTest::newRow("window, No") << false << int(vb::No) << false << false;
        QTest::newRow("window, Cancel") << false << int(vb::Cancel) << false << true;
        QTest::newRow("program, Yes") << true << int(vb::Yes) << true << false;
        QTest::newRow("program, Cancel") << true << int(vb::Cancel) << false << true;
    }
    void closingAsksAboutChanges() {
        QFETCH(bool, program);
        QFETCH(int, answer);
        QFETCH(bool, saved);
        QFETCH(bool, open);
        ToDoFixture f;
        frmToDo& window = f.Open();
        f.Row(0)->setFocus();
        QTest::keyClicks(f.Row(0), "Post");
        f.env.dialogs.ExpectMsgBox(kChanged, vb::YesNoCancel | vb::Question, "To Do List Changed",
                                   answer);
        if (saved)
            f.env.dialogs.ExpectMsgBox(kSaved, vb::OKOnly, "");
        if (program)
            f.frame().close();
        else
            window.CloseWindow();
        VERIFY_DIALOGS(f.env.dialogs);
        QCOMPARE(f.env.read("To Do.dat"), saved ? Rows("\xf5Post\r\n", 1) : "<missing>");
        if (program)
            QCOMPARE(f.frame().isVisible(), open);
        else
            QCOMPARE(f.window.reminders->toDoWindow() != nullptr, open);
    }

    void otherListsOpenSaveBackAndPrint() {
        ToDoFixture f(
            "\xf5"
            "default\r\n");
        f.env.write("Lists/Garden.dat", "\xf3Mow\r\n\xf5Rake\r\n");
        frmToDo& window = f.Open();
        f.env.dialogs.ExpectOpenFile(f.env.path("Lists/Garden.dat"));
        window.Control<QAction>("mnuFileOpen")->trigger();
        QCOMPARE(f.Row(1)->text(), "Rake");
        f.Row(2)->setText("Weed");
        f.env.dialogs.ExpectMsgBox(kSaved, vb::OKOnly, "");
        QVERIFY(window.mnuFileSave_Click());  // back into the file it came from
        QCOMPARE(f.env.read("Lists/Garden.dat"), Rows("\xf3Mow\r\n\xf5Rake\r\n\xf5Weed\r\n", 3));
        QCOMPARE(f.env.read("To Do.dat"),
                 "\xf5"
                 "default\r\n");
        QCOMPARE(f.Panel(0), "default");

        f.env.dialogs.ExpectSaveFile(f.env.path("Copy")).ExpectMsgBox(kSaved, vb::OKOnly, "");
        window.Control<QAction>("mnuFileSaveAs")->trigger();
        VERIFY_DIALOGS(f.env.dialogs);
        QCOMPARE(f.env.read("Copy.dat"), f.env.read("Lists/Garden.dat"));

        window.Control<QAction>("mnuFilePrint")->trigger();
        QCOMPARE(f.printer.files().size(), 1);
        QProcess text;
        text.start("pdftotext", {"-layout", f.printer.files()[0], "-"});
        QVERIFY(text.waitForFinished());
        const QStringList printed =
            QString::fromUtf8(text.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
        QCOMPARE(printed.value(0).trimmed(), "Sep 07, 2026 To Do List");
        QCOMPARE(printed.value(1).simplified(), "[x] Mow");
        QCOMPARE(printed.value(2).simplified(), "[ ] Rake");
    }
};

ORVANTA_TEST_MAIN(ToDoWindowTest)
#include "tst_todo_window.moc"
