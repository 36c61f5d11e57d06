// The term window: its refusals, the clearing question, the auto-complete switch and the
// window's place kept in the preferences.
#include <QLineEdit>
#include <QListWidget>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTest>

#include "MainWindowFixture.h"
#include "shell/TextFile.h"
#include "terms/TermMessages.h"
#include "terms/gui/TermMenus.h"
#include "terms/gui/frmFUT.h"
#include "terms/modFUT.h"

namespace {
frmFUT* OpenTermWindow(MainWindowFixture& f) {
    f.menu("mnuManageFUTList")->trigger();
    return f.window.terms->termWindow();
}

// Chooses a menu item or presses a button of the window.
void Choose(frmFUT* window, const QString& name) {
    if (auto* item = window->findChild<QAction*>(name))
        item->trigger();
    else
        window->Control<QPushButton>(name)->click();
}
}  // namespace

class TermWindowTest : public QObject {
    Q_OBJECT

private slots:
    void commandsWithNothingToWorkOnOnlySaySo_data() {
        QTest::addColumn<QByteArray>("terms");
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("message");
        QTest::newRow("clear an empty list") << QByteArray() << "mnuEditClear" << kNothingToClear;
        QTest::newRow("edit, none picked") << QByteArray("Acme") << "cmdOpt_1" << kNothingToEdit;
        QTest::newRow("remove, none picked")
            << QByteArray("Acme") << "cmdOpt_2" << kNothingToRemove;
        QTest::newRow("delete the default list")
            << QByteArray("Acme") << "mnuFileDelete" << kCannotDeleteDefault;
    }
    void commandsWithNothingToWorkOnOnlySaySo() {
        QFETCH(QByteArray, terms);
        QFETCH(QString, command);
        QFETCH(QString, message);
        MainWindowFixture f;
        f.env.write(kDefaultTermFile, terms);
        f.Start();
        frmFUT* window = OpenTermWindow(f);
        f.env.dialogs.ExpectMsgBox(message, vb::OKOnly, {});
        Choose(window, command);
        VERIFY_DIALOGS(f.env.dialogs);
        QCOMPARE(f.env.read(kDefaultTermFile), terms);
    }

    void clearingAsksFirst_data() {
        QTest::addColumn<int>("answer");
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("Yes empties the list") << int(vb::Yes) << QByteArray();
        QTest::newRow("No keeps it") << int(vb::No) << QByteArray("Acme\r\nZed");
    }
    void clearingAsksFirst() {
        QFETCH(int, answer);
        QFETCH(QByteArray, file);
        MainWindowFixture f;
        f.env.write(kDefaultTermFile, "Acme\r\nZed");
        f.Start();
        frmFUT* window = OpenTermWindow(f);
        f.env.dialogs.ExpectMsgBox(kClearQuestion, kQuestionStyle, kClearTitle, answer);
        Choose(window, "mnuEditClear");
        VERIFY_DIALOGS(f.env.dialogs);
        QCOMPARE(f.env.read(kDefaultTermFile), file);
        QCOMPARE(window->Control<QListWidget>("lstFUT")->count(), file.isEmpty() ? 0 : 2);
    }

    // A term with a character the file cannot hold is refused, whether it was added (from the
    // term window or from a notes or planner box, both through the editor), edited or changed
    // in case; the list stays as its file has it, so the next change is saved as usual.
    void termTheFileCannotHoldLeavesTheList_data() {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("refused");  // the character named
        QTest::newRow("added") << "cmdOpt_0"
                               << "\u2713";
        QTest::newRow("edited") << "cmdOpt_1"
                                << "\u2713";
        // The capital of the micro sign is the Greek capital Mu.
        QTest::newRow("changed in case") << "cmdCase"
                                         << "\u039c";
    }
    void termTheFileCannotHoldLeavesTheList() {
        QFETCH(QString, command);
        QFETCH(QString, refused);
        const QByteArray terms = "\xb5m\r\nBeta";
        MainWindowFixture f;
        f.env.write(kDefaultTermFile, terms);
        f.Start();
        frmFUT* window = OpenTermWindow(f);
        auto* list = window->Control<QListWidget>("lstFUT");
        list->setCurrentRow(0);
        f.env.dialogs.ExpectMsgBox(textfile::UnstorableCharacterMessage(refused), kWarningStyle,
                                   {});
        Choose(window, command);
        if (QWidget* editor = f.frame().ChildWindow("frmEditFUT")) {
            FindControl<QLineEdit>(editor, "txtTerm")->setText("Tick \u2713");
            FindControl<QPushButton>(editor, "cmdSave")->click();
            QCOMPARE(FindControl<QLineEdit>(editor, "txtTerm")->text(), "Tick \u2713");
        }
        VERIFY_DIALOGS(f.env.dialogs);
        QCOMPARE(f.env.read(kDefaultTermFile), terms);
        QCOMPARE(list->count(), 2);
        QCOMPARE(list->item(0)->text(), "\u00b5m");
        list->setCurrentRow(1);
        Choose(window, "cmdOpt_2");
        QCOMPARE(f.env.read(kDefaultTermFile), "\xb5m");
    }

    void autoCompleteSwitchIsRemembered() {
        MainWindowFixture f;
        f.Start();
        auto* button = OpenTermWindow(f)->Control<QPushButton>("cmdOpt_3");
        QCOMPARE(button->text(), kDisableAutoComplete);
        button->click();
        QCOMPARE(button->text(), kEnableAutoComplete);
        QVERIFY(f.env.read(kUserPreferencesFile).contains("Auto Complete Word:False\r\n"));
        f.Restart();
        QCOMPARE(OpenTermWindow(f)->Control<QPushButton>("cmdOpt_3")->text(), kEnableAutoComplete);
    }

    void savedPositionIsOneLineAndReopensThere() {
        MainWindowFixture f;
        f.Start();
        auto* frame = qobject_cast<QMdiSubWindow*>(OpenTermWindow(f)->parentWidget());
        frame->setGeometry(12, 34, 250, 300);
        Choose(f.window.terms->termWindow(), "mnuWindowSavePosition");
        Choose(f.window.terms->termWindow(), "mnuWindowLoadPosition");
        QVERIFY(f.env.read(kUserPreferencesFile)
                    .contains("\r\nFUT Position:Left=12:Top=34:Width=250:Height=300\r\n"));
        f.Restart();
        frame = qobject_cast<QMdiSubWindow*>(OpenTermWindow(f)->parentWidget());
        QCOMPARE(frame->geometry(), QRect(12, 34, 250, 300));
    }

    void resizingBelowTheControlsIsRefused() {
        MainWindowFixture f;
        f.Start();
        auto* frame = qobject_cast<QMdiSubWindow*>(OpenTermWindow(f)->parentWidget());
        f.env.dialogs.ExpectMsgBox(kResizeTooSmall, vb::OKOnly, {});
        frame->resize(frmFUT::kMinWidth - 40, frmFUT::kMinHeight);
        VERIFY_DIALOGS(f.env.dialogs);
        QCOMPARE(frame->width(), frmFUT::kMinWidth);
    }
};

ORVANTA_TEST_MAIN(TermWindowTest)
#include "tst_term_window.moc"
