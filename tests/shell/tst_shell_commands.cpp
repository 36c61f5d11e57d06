// The Options and Support commands: the share drive letter, the launcher in the applications
// menu, and the maker's support pages.
#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include "TestEnv.h"
#include "shell/ShellCommands.h"
#include "shell/ShellMessages.h"
#include "shell/gui/DesktopPlatform.h"

class ShellCommandsTest : public QObject {
    Q_OBJECT

    std::unique_ptr<TestEnv> env;
    std::unique_ptr<ShellCommands> commands;

private slots:
    void init() {
        env = std::make_unique<TestEnv>();
        commands = std::make_unique<ShellCommands>(env->state->services, env->state->prefs);
    }
    // The environment goes with its test function, so that a box it did not expect fails that one.
    void cleanup() {
        commands.reset();
        env.reset();
    }

    void networkShareDrive_data() {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("d") << "d" << true;
        QTest::newRow("cancel") << "" << false;
        QTest::newRow("dd") << "dd" << false;
        QTest::newRow("d:") << "d:" << false;
    }
    void networkShareDrive() {
        QFETCH(QString, answer);
        QFETCH(bool, accepted);
        env->dialogs.ExpectInputBox(kShareDrivePrompt, kShareDriveTitle, QString(), answer);
        if (!accepted && !answer.isEmpty())
            env->dialogs.ExpectMsgBox(kBadDriveLetterMessage, kWarningStyle, QString());
        commands->mnuOptNetworkShare_Click();
        QCOMPARE(env->read("UserPreferences.txt")
                     .contains("\r\nNetwork Share Drive:" + answer.toLatin1() + "\r\n"),
                 accepted);
    }

    void shortcutStartsTheProgramOnItsDataFolder() {
        env->dialogs.ExpectMsgBox(kShortcutAddedMessage, kInformationStyle, QString());
        commands->mnuOptCreateShortcut_Click("/opt/orvanta/orvanta");
        QCOMPARE(env->platform.shortcuts,
                 QStringList(
                     {"Shortcut to Orvanta -> /opt/orvanta/orvanta --data-dir " + env->folder()}));
        env->platform.shortcutError = VbError(70);
        env->dialogs.ExpectMsgBox("Unable to Create Shortcut : 70 : Permission denied",
                                  kWarningStyle, QString());
        commands->mnuOptCreateShortcut_Click("/opt/orvanta/orvanta");
    }

    void launcherFileQuotesItsCommandLine() {
        const QString folder =
            QStandardPaths::writableLocation(QStandardPaths::ApplicationsLocation);
        DesktopPlatform().CreateShortcut("Shortcut to Orvanta", "/opt/my apps/orvanta",
                                         {"--data-dir", "/home/ann/Orvanta 100% \"work\"/"});
        QFile entry(folder + "/Shortcut to Orvanta.desktop");
        QVERIFY(entry.open(QIODevice::ReadOnly));
        QCOMPARE(entry.readAll(),
                 QByteArray("[Desktop Entry]\nType=Application\nName=Shortcut to Orvanta\n"
                            "Exec=\"/opt/my apps/orvanta\" \"--data-dir\" "
                            "\"/home/ann/Orvanta 100%% \\\"work\\\"/\"\n"
                            "Terminal=false\nCategories=Office;Calendar;\n"));
        QDir(folder).removeRecursively();
    }

    void supportPagesAndTheErrorLogOnTheClipboard() {
        env->dialogs.ExpectMsgBox(kReportProblemMessage, kInformationStyle, QString())
            .ExpectMsgBox(kSendErrorLogMessage, kInformationStyle, QString())
            .ExpectMsgBox(kLogFileNotFoundMessage, kWarningStyle, QString());
        commands->mnuSupportReportProblem_Click();
        commands->mnuSupportSendErrorLog_Click();
        QCOMPARE(env->platform.clipboard, QString());

        env->write("error.LOG", "9/7/2026 10:30:00 AM\r\nAn error occurred in X.\r\n");
        env->dialogs.ExpectMsgBox(kSendErrorLogMessage, kInformationStyle, QString());
        commands->mnuSupportSendErrorLog_Click();
        QCOMPARE(env->platform.clipboard, "9/7/2026 10:30:00 AM\r\nAn error occurred in X.\r\n");
        QCOMPARE(env->platform.openedUrls,
                 QStringList({"https://www.orvanta.example/orvanta/bug_report.htm",
                              "https://www.orvanta.example/orvanta/error_log.htm"}));
    }
};

ORVANTA_TEST_MAIN(ShellCommandsTest)
#include "tst_shell_commands.moc"
