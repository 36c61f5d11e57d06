// Start-up: the files a new data folder receives, one running copy per data folder, and the
// command line of the program itself.
#include <QDir>
#include <QFile>
#include <QProcess>

#include "TestEnv.h"
#include "TestPaths.h"
#include "Version.h"
#include "app/FirstStart.h"
#include "shell/InstanceLock.h"
#include "shell/ShellMessages.h"

namespace {

QByteArray DefaultHelp() {
    QFile file(":/defaults/Help_Topics.txt");
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

struct Run {
    int exitCode;
    QByteArray out;
    QByteArray err;
};

Run RunProgram(const QStringList& arguments, bool display) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(QString::fromLatin1(name));
    if (display)
        environment.insert("QT_QPA_PLATFORM", "offscreen");
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(ORVANTA_BINARY), arguments);
    if (!program.waitForFinished(20000))
        program.kill();
    return {program.exitCode(), program.readAllStandardOutput(), program.readAllStandardError()};
}

}  // namespace

class StartUpTest : public QObject {
    Q_OBJECT

private slots:
    void newDataFolderReceivesTheHelpTopicsButNothingIsOverwritten() {
        TestEnv env;
        QCOMPARE(InstallDefaultFiles(env.state->services).first(), "Help_Topics.txt");
        QCOMPARE(env.read("Help_Topics.txt"), DefaultHelp());

        TestEnv own;
        own.write("help_topics.TXT", "*Mine:my own help");
        own.write("icon tags.DAT", "");
        QCOMPARE(InstallDefaultFiles(own.state->services), QStringList());
        QCOMPARE(own.read("help_topics.TXT"), "*Mine:my own help");
        VERIFY_DIALOGS(own.dialogs);
    }

    void secondCopyOnTheSameFolderIsRefused_data() {
        QTest::addColumn<QString>("secondSpelling");  // relative to the temporary folder
        QTest::addColumn<bool>("lockFile");  // the way of file systems without folder locks
        for (const bool lockFile : {false, true}) {
            const char* suffix = lockFile ? ", lock file" : "";
            QTest::addRow("same spelling%s", suffix) << "data" << lockFile;
            QTest::addRow("dot segments%s", suffix) << "other/../data/." << lockFile;
            QTest::addRow("through a symbolic link%s", suffix) << "link" << lockFile;
        }
    }
    void secondCopyOnTheSameFolderIsRefused() {
        QFETCH(QString, secondSpelling);
        QFETCH(bool, lockFile);
        const auto way = lockFile ? InstanceLock::Way::LockFile : InstanceLock::Way::Folder;
        QTemporaryDir root;
        QVERIFY(QDir(root.path()).mkpath("data") && QDir(root.path()).mkpath("other"));
        QVERIFY(QFile::link(root.filePath("data"), root.filePath("link")));
        FakeDialogs dialogs;
        InstanceLock first(root.filePath("data"), way);
        QVERIFY(!RefuseSecondInstance(first, dialogs));
        InstanceLock second(root.path() + "/" + secondSpelling, way);
        dialogs.ExpectMsgBox(kSecondInstanceMessage, kWarningStyle, "");
        QVERIFY(RefuseSecondInstance(second, dialogs));
        VERIFY_DIALOGS(dialogs);
        // The folder's own lock writes nothing into it.
        QCOMPARE(QDir(root.filePath("data"))
                     .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 lockFile ? QStringList{".orvanta.lock"} : QStringList());
        first.Release();
        QVERIFY(second.TryAcquire());
    }

    void versionHelpAndTheAdviceToUseXvfbNeedNoDisplay() {
        const Run version = RunProgram({"--version"}, false);
        QCOMPARE(version.exitCode, 0);
        QCOMPARE(version.out, QByteArray("Orvanta " ORVANTA_VERSION "\n"));
        const Run help = RunProgram({"--help"}, false);
        QCOMPARE(help.exitCode, 0);
        QVERIFY(help.out.contains("--data-dir <DIR>"));
        const Run unknown = RunProgram({"--colour"}, false);
        QCOMPARE(unknown.exitCode, 2);
        QVERIFY(unknown.err.contains("colour"));
        const Run run = RunProgram({}, false);
        QCOMPARE(run.exitCode, 1);
        QVERIFY(run.err.contains("xvfb-run -a orvanta"));
    }

    void programStartsIntoANewDataFolderAndShowsItsWindow() {
        QTemporaryDir dir;
        const QString folder = dir.path() + "/new folder";
        const Run run = RunProgram({"--data-dir", folder, "--exit-when-shown"}, true);
        QCOMPARE(run.exitCode, 0);
        QVERIFY(QFile::exists(folder + "/Help_Topics.txt"));
    }
};

ORVANTA_TEST_MAIN(StartUpTest)
#include "tst_start_up.moc"
