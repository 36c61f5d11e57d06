// The scripted dialogs of the tests: a box a test did not expect, or one it expected and never
// saw, fails that very test (and data row) without the test having to check.
#include <QProcess>

#include "TestEnv.h"

namespace {

const QString kRunScripted = QStringLiteral("--run-scripted-boxes");

}  // namespace

// Tests that go wrong on purpose, run in a child process whose report is read.
class ScriptedBoxes : public QObject {
    Q_OBJECT

    std::unique_ptr<TestEnv> env;

private slots:
    void init() { env = std::make_unique<TestEnv>(); }
    void cleanup() { env.reset(); }

    void unexpectedBox() { env->dialogs.MsgBox("Surprise", vb::YesNo, "Title"); }
    void boxNeverShown() {
        TestEnv local;
        local.dialogs.ExpectMsgBox("Wanted", vb::OKOnly, "Title");
    }
    void eachRow_data() {
        QTest::addColumn<bool>("box");
        QTest::newRow("quiet") << false;
        QTest::newRow("noisy") << true;
    }
    void eachRow() {
        QFETCH(bool, box);
        if (box)
            env->dialogs.InputBox("Name?", "Ask", {});
    }
    void checkedMidway() {
        env->dialogs.MsgBox("Once", vb::OKOnly, {});
        VERIFY_DIALOGS(env->dialogs);
    }
    void alreadyFailed() {
        env->dialogs.MsgBox("Late", vb::OKOnly, {});
        QFAIL("first failure");
    }
};

class ScriptedDialogsTest : public QObject {
    Q_OBJECT

    QString report;

private slots:
    void initTestCase() {
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(), {kRunScripted});
        QVERIFY(child.waitForFinished(60000));
        report = QString::fromUtf8(child.readAllStandardOutput());
    }

    void eachProblemFailsTheTestThatCausedIt_data() {
        QTest::addColumn<QString>("line");
        QTest::addColumn<int>("count");
        const QString failed = "FAIL!  : ScriptedBoxes::%1 boxes other than the test expected:\n";
        QTest::newRow("unexpected") << failed.arg("unexpectedBox()") +
                                           "unexpected: MsgBox(text=\"Surprise\", style=4, "
                                           "title=\"Title\", default=\"\")\n"
                                    << 1;
        QTest::newRow("never shown")
            << failed.arg("boxNeverShown()") + "expected but never shown: MsgBox(text=\"Wanted\""
            << 1;
        QTest::newRow("quiet row passes") << "PASS   : ScriptedBoxes::eachRow(quiet)" << 1;
        QTest::newRow("noisy row fails")
            << failed.arg("eachRow(noisy)") + "unexpected: InputBox(text=\"Name?\"" << 1;
        QTest::newRow("checked mid-way, told once") << "unexpected: MsgBox(text=\"Once\"" << 1;
        QTest::newRow("already failed: box in a warning")
            << "QWARN  : ScriptedBoxes::alreadyFailed() boxes other than the test expected:\n"
               "unexpected: MsgBox(text=\"Late\""
            << 1;
    }
    void eachProblemFailsTheTestThatCausedIt() {
        QFETCH(QString, line);
        QFETCH(int, count);
        QVERIFY2(report.count(line) == count, qPrintable(report));
    }
};

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);
    QApplication app(argc, argv);
    if (argc == 2 && argv[1] == kRunScripted) {
        ScriptedBoxes scripted;
        return QTest::qExec(&scripted, 1, argv);
    }
    ScriptedDialogsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_scripted_dialogs.moc"
