// Assigning an exported page: the copy in the person's folder on the share, the e-mail draft's
// address, the refusals, the planner pasted into the message and the contact list's editing.
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include "MainWindowFixture.h"
#include "assignment/AssignmentMessages.h"
#include "assignment/gui/frmEmailList.h"
#include "assignment/modEmployeeInfo.h"
#include "notes_planner/ExternalFileMessages.h"
#include "notes_planner/gui/NotesPlannerMenus.h"
#include "notes_planner/gui/frmPlanner.h"

namespace {

struct AssignFixture : MainWindowFixture {
    explicit AssignFixture(const QString& share) {
        env.write(kEmployeeInfoFile, "Ann:ann@x.org:IT\r\nBob Smith:bob@x.org:Sales\r\n");
        env.write("UserPreferences.txt", "Shared Directory:" + share.toLatin1() + "\r\n");
        Start();
    }
    frmEmailList& List() const {
        return *static_cast<frmEmailList*>(frame().ChildWindow(frmEmailList::kName));
    }
    frmPlanner& OpenPlanner() {
        menu("mnuOptDateOpenPlanner")->trigger();
        return *window.notesPlanner->plannerWindow();
    }
    // Exports today's page as "Plan.pln" and assigns it; returns the exported file's path.
    QString ExportAndAssign() {
        const QString folder = QFileInfo(env.path("Planners And Notes/x")).absolutePath();
        env.dialogs.ExpectInputBox(kExportPrompt, kExportTitle, "", "Plan")
            .ExpectMsgBox(SavedAsMessage("Plan.pln", folder), vb::OKOnly, "");
        OpenPlanner().Control<QAction>("mnuFileExportPlannerAndAssign")->trigger();
        return folder + "/Plan.pln";
    }
    void Click(const QString& button) {
        QTest::mouseClick(List().Control<QPushButton>(button), Qt::LeftButton);
    }
};

}  // namespace

class AssignmentTest : public QObject {
    Q_OBJECT

private slots:
    void mailtoAddress_data() {
        QTest::addColumn<QString>("subject");
        QTest::addColumn<QString>("body");
        QTest::addColumn<QString>("exported");
        QTest::addColumn<QString>("mailto");
        QTest::newRow("typed message") << "Lunch"
                                       << "one\r\ntwo"
                                       << ""
                                       << "mailto:a b@x.org?subject=Lunch&body=one%0Atwo";
        QTest::newRow("empty subject, nothing encoded")
            << ""
            << "R&D? 100%"
            << ""
            << "mailto:a b@x.org?subject=Orvanta Assignment For You&body=R&D? 100%";
        QTest::newRow("a waiting export replaces the body")
            << "S"
            << "typed"
            << "/d/My Plan.pln"
            << "mailto:a b@x.org?subject=S&body=/d/My Plan.pln%0A%0APlease save the attached "
               "file and open it with Orvanta.";
    }
    void mailtoAddress() {
        QFETCH(QString, subject);
        QFETCH(QString, body);
        QFETCH(QString, exported);
        const AssignmentState state{exported, "a b@x.org", subject, body, !exported.isEmpty()};
        QTEST(MailtoAddress(state), "mailto");
    }

    // The exported page lands in the person's folder under "Planners And Notes" on the share,
    // in folders made when missing or found whatever their letter case; the e-mail draft
    // names the file.
    void pageIsAssignedIntoPersonsShareFolder_data() {
        QTest::addColumn<QString>("existing");
        QTest::addColumn<QString>("assigned");
        QTest::newRow("folders made") << ""
                                      << "Planners And Notes/Bob Smith/Plan.pln";
        QTest::newRow("folders found") << "planners and notes/BOB SMITH"
                                       << "planners and notes/BOB SMITH/Plan.pln";
    }
    void pageIsAssignedIntoPersonsShareFolder() {
        QFETCH(QString, existing);
        QFETCH(QString, assigned);
        QTemporaryDir share;
        if (!existing.isEmpty())
            QVERIFY(QDir(share.path()).mkpath(existing));
        AssignFixture f(share.path());
        const QString exported = f.ExportAndAssign();
        f.List().Control<QListWidget>("lstNames")->setCurrentRow(1);
        const QString folder = QFileInfo(share.filePath(assigned)).absolutePath();
        f.env.dialogs.ExpectMsgBox(AssignedMessage("Bob Smith", folder), vb::OKOnly, "");
        f.Click("cmdAssign");
        QFile copy(share.filePath(assigned));
        QVERIFY(copy.open(QIODevice::ReadOnly));
        QCOMPARE(copy.readAll(), f.env.read("Planners And Notes/Plan.pln"));
        QCOMPARE(QDir(share.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 1);

        f.env.dialogs.ExpectMsgBox(kAttachReminder, vb::OKOnly, "");
        f.Click("cmdOpenEmail");
        QCOMPARE(
            f.env.platform.openedUrls,
            QStringList{"mailto:bob@x.org?subject=Orvanta Assignment For You&body=" + exported +
                        "%0A%0APlease save the attached file and open it with "
                        "Orvanta."});
        VERIFY_DIALOGS(f.env.dialogs);
    }

    void assignRefused_data() {
        QTest::addColumn<QString>("share");
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("message");
        QTest::addColumn<int>("style");
        QTest::newRow("no one selected") << "share" << -1 << kNoOneSelected << 0;
        QTest::newRow("share missing") << "share/gone" << 0 << kAssignFailed << kWarningStyle;
        QTest::newRow("share named as on Windows")
            << "\\\\server\\share" << 0 << kAssignFailed << kWarningStyle;
    }
    void assignRefused() {
        QFETCH(QString, share);
        QFETCH(int, row);
        QFETCH(QString, message);
        QFETCH(int, style);
        QTemporaryDir top;
        AssignFixture f(share.startsWith('\\') ? share : top.filePath(share));
        f.ExportAndAssign();
        f.List().Control<QListWidget>("lstNames")->setCurrentRow(row);
        f.env.dialogs.ExpectMsgBox(message, style, "");
        f.Click("cmdAssign");
        VERIFY_DIALOGS(f.env.dialogs);
        QVERIFY(QDir(top.path()).isEmpty());
        QVERIFY(!QFileInfo::exists(share));
    }

    void emailClientFailureIsReported() {
        AssignFixture f("");
        f.menu("mnuManageEmailList")->trigger();
        f.env.platform.openFails = true;
        f.env.dialogs.ExpectMsgBox(kEmailClientFailed, kWarningStyle, "");
        f.Click("cmdOpenEmail");
        VERIFY_DIALOGS(f.env.dialogs);
        QCOMPARE(f.env.platform.openedUrls.size(), 1);
    }

    void plannerIsPastedIntoMessage() {
        AssignFixture f("");
        f.menu("mnuManageEmailList")->trigger();
        QAction* paste = f.List().Control<QAction>("mnuOptPastePlanner");
        f.env.dialogs.ExpectMsgBox(kNothingToPaste, vb::OKOnly, kPasteTitle);
        paste->trigger();
        f.OpenPlanner().Control<QAction>("mnuFileCopyPlanner")->trigger();
        paste->trigger();
        auto* message = f.List().Control<QPlainTextEdit>("txtMessage");
        QCOMPARE(message->toPlainText(), f.env.platform.clipboard.replace("\r\n", "\n"));
        message->setPlainText("mine");
        f.env.dialogs.ExpectMsgBox(kOverwriteMessage, kQuestionStyle, kPasteTitle, vb::No);
        paste->trigger();
        QCOMPARE(message->toPlainText(), "mine");
        VERIFY_DIALOGS(f.env.dialogs);
    }

    // A ":" cannot be typed into a name; Enter saves; Delete asks and rewrites the file.
    void contactsAreEdited() {
        AssignFixture f("");
        f.menu("mnuManageEmailList")->trigger();
        f.env.dialogs.ExpectMsgBox(kNoNameToAdd, vb::OKOnly, "");
        f.Click("cmdSave");
        auto* name = f.List().Control<QLineEdit>("txt", 0);
        QTest::keyClicks(name, "Carl:Jones");
        QTest::keyClick(name, Qt::Key_Return);
        QCOMPARE(f.env.read(kEmployeeInfoFile),
                 "Ann:ann@x.org:IT\r\nBob Smith:bob@x.org:Sales\r\nCarlJones::\r\n");
        f.List().Control<QListWidget>("lstNames")->setCurrentRow(0);
        f.env.dialogs.ExpectMsgBox(DeleteQuestion("Ann"), kQuestionStyle, kDeleteTitle, vb::Yes);
        f.Click("cmdDelete");
        QCOMPARE(f.env.read(kEmployeeInfoFile), "Bob Smith:bob@x.org:Sales\r\nCarlJones::\r\n");
        VERIFY_DIALOGS(f.env.dialogs);
    }
};

ORVANTA_TEST_MAIN(AssignmentTest)
#include "tst_assignment.moc"
