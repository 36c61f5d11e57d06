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
    // Every text is escaped, so that nothing the user types ends the subject or the body.
    void mailtoAddress_data() {
        QTest::addColumn<QString>("address");
        QTest::addColumn<QString>("subject");
        QTest::addColumn<QString>("body");
        QTest::addColumn<QString>("exported");
        QTest::addColumn<QString>("mailto");
        QTest::newRow("% # & ? + = and non-ASCII")
            << "ann@x.org"
            << "R&D = 50% off?"
            << "100% #1 & a+b=c?\r\nCaf\u00e9 \u2713"
            << ""
            << "mailto:ann@x.org?subject=R%26D%20%3D%2050%25%20off%3F&body=100%25%20%231%20%26%20"
               "a%2Bb%3Dc%3F%0ACaf%C3%A9%20%E2%9C%93";
        QTest::newRow("address with blanks and ?, empty subject")
            << "a b?@x.org, c@y.org"
            << ""
            << ""
            << ""
            << "mailto:a%20b%3F@x.org,%20c@y.org?subject=Orvanta%20Assignment%20For%20You&body=";
        QTest::newRow("a waiting export replaces the body")
            << "ann@x.org"
            << "S"
            << "typed"
            << "/d/My Plan #2.pln"
            << "mailto:ann@x.org?subject=S&body=%2Fd%2FMy%20Plan%20%232.pln%0A%0APlease%20save%20"
               "the%20attached%20file%20and%20open%20it%20with%20Orvanta.";
    }
    void mailtoAddress() {
        QFETCH(QString, address);
        QFETCH(QString, subject);
        QFETCH(QString, body);
        QFETCH(QString, exported);
        QFETCH(QString, mailto);
        const AssignmentState state{exported, address, subject, body, !exported.isEmpty()};
        QCOMPARE(MailtoAddress(state), mailto);
        // The desktop's handler is given these very bytes.
        QCOMPARE(QUrl::fromEncoded(mailto.toLatin1(), QUrl::StrictMode).toEncoded(),
                 mailto.toLatin1());
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
        const QString body =
            exported + "\n\nPlease save the attached file and open it with Orvanta.";
        QCOMPARE(f.env.platform.openedUrls,
                 QStringList{"mailto:bob@x.org?subject=Orvanta%20Assignment%20For%20You&body=" +
                             QUrl::toPercentEncoding(body)});
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

    // What is typed reaches the e-mail program as typed; a program that does not open is
    // reported.
    void typedMessageGoesOutEscaped() {
        AssignFixture f("");
        f.menu("mnuManageEmailList")->trigger();
        f.List().Control<QListWidget>("lstNames")->setCurrentRow(0);
        QTest::keyClicks(f.List().Control<QLineEdit>("txtSubject"), "50% off #1");
        auto* message = f.List().Control<QPlainTextEdit>("txtMessage");
        QTest::keyClicks(message, "a&b=c?");
        QTest::keyClick(message, Qt::Key_Return);
        QTest::keyClicks(message, "d+e ");
        message->insertPlainText("\u00e9");
        f.env.platform.openFails = true;
        f.env.dialogs.ExpectMsgBox(kEmailClientFailed, kWarningStyle, "");
        f.Click("cmdOpenEmail");
        VERIFY_DIALOGS(f.env.dialogs);
        QCOMPARE(
            f.env.platform.openedUrls,
            QStringList{"mailto:ann@x.org?subject=50%25%20off%20%231&body=a%26b%3Dc%3F%0Ad%2Be%20"
                        "%C3%A9"});
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
