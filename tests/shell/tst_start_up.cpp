// Start-up: the files a new data folder receives, one copy per data folder, and the command
// line of the program itself.
#include <QFile>
#include <QProcess>

#include "TestEnv.h"
#include "Version.h"
#include "app/FirstStart.h"
#include "shell/InstanceLock.h"

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

Run RunProgram(const QStringList& arguments, const QProcessEnvironment& environment) {
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(ORVANTA_BINARY), arguments);
    if (!program.waitForFinished(20000))
        program.kill();
    return {program.exitCode(), program.readAllStandardOutput(), program.readAllStandardError()};
}

QProcessEnvironment WithoutDisplay() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(QString::fromLatin1(name));
    return environment;
}

}  // namespace

class StartUpTest : public QObject {
    Q_OBJECT

private slots:
    void newDataFolderReceivesTheHelpTopics() {
        TestEnv env;
        QCOMPARE(InstallDefaultFiles(env.state->services), QStringList{"Help_Topics.txt"});
        const QByteArray help = env.read("Help_Topics.txt");
        QCOMPARE(help, DefaultHelp());
        QVERIFY(help.startsWith("*Getting Started:"));
        QVERIFY(!help.contains('\n') || help.contains("\r\n"));
        env.state->help.LoadHelpTopics(env.state->services);
        QVERIFY(env.state->help.TopicCount() > 20);
        QCOMPARE(env.state->help.topics().first().name, QString("Getting Started"));
    }

    void existingFilesAreNeverOverwritten() {
        TestEnv env;
        env.write("help_topics.TXT", "*Mine:my own help");
        QCOMPARE(InstallDefaultFiles(env.state->services), QStringList());
        QCOMPARE(env.read("help_topics.TXT"), QByteArray("*Mine:my own help"));
        QVERIFY(!env.exists("Help_Topics.txt"));
        VERIFY_DIALOGS(env.dialogs);
    }

    void secondCopyOnTheSameFolderIsRefused() {
        TestEnv env;
        InstanceLock first(env.folder());
        QVERIFY(!RefuseSecondInstance(first, env.dialogs));
        InstanceLock second(env.folder());
        env.dialogs.ExpectMsgBox("Another instance of this application is already running.",
                                 vb::OKOnly | vb::Exclamation, "");
        QVERIFY(RefuseSecondInstance(second, env.dialogs));
        VERIFY_DIALOGS(env.dialogs);
    }

    void versionAndHelpNeedNoDisplay() {
        const Run version = RunProgram({"--version"}, WithoutDisplay());
        QCOMPARE(version.exitCode, 0);
        QCOMPARE(version.out, QByteArray("Orvanta " ORVANTA_VERSION "\n"));
        const Run help = RunProgram({"--help"}, WithoutDisplay());
        QCOMPARE(help.exitCode, 0);
        QVERIFY(help.out.contains("--data-dir <DIR>"));
        QVERIFY(help.out.contains("--version"));
    }

    void withoutADisplayTheProgramSaysHowToRunIt() {
        const Run run = RunProgram({}, WithoutDisplay());
        QCOMPARE(run.exitCode, 1);
        QVERIFY(run.err.contains("no display was found"));
        QVERIFY(run.err.contains("xvfb-run -a orvanta"));
    }

    void programStartsIntoANewDataFolderAndShowsItsWindow() {
        QTemporaryDir dir;
        const QString folder = dir.path() + "/new folder";
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        const Run run = RunProgram({"--data-dir", folder, "--exit-when-shown"}, environment);
        QCOMPARE(run.exitCode, 0);
        QFile help(folder + "/Help_Topics.txt");
        QVERIFY(help.open(QIODevice::ReadOnly));
        QCOMPARE(help.readAll(), DefaultHelp());
    }

    void unknownOptionIsAnError() {
        const Run run = RunProgram({"--colour"}, WithoutDisplay());
        QCOMPARE(run.exitCode, 2);
        QVERIFY(run.err.contains("colour"));
    }
};

ORVANTA_TEST_MAIN(StartUpTest)
#include "tst_start_up.moc"
