// One running copy per data folder: a second copy on the same folder is refused while the first
// runs, and a lock left behind by a copy that died is taken over.

#include <signal.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSysInfo>
#include <QTemporaryDir>
#include <QTest>
#include <cerrno>

#include "shell/InstanceLock.h"
#include "support/TestEnv.h"

namespace {

// The id of a process that has ended, or 0 when none could be found.
qint64 DeadProcessId() {
    QProcess child;
    child.start("/bin/sh", {"-c", "exit 0"});
    if (!child.waitForStarted())
        return 0;
    const qint64 pid = child.processId();
    child.waitForFinished();
    const bool gone = ::kill(pid_t(pid), 0) == -1 && errno == ESRCH;
    return gone ? pid : 0;
}

}  // namespace

class SingleInstanceTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void secondCopyRefusedWhileFirstRuns_data();
    void secondCopyRefusedWhileFirstRuns();
    void otherFolderIsIndependent();
    void releasedFolderCanBeTakenAgain();
    void lockOfADeadCopyIsTakenOver();
    void dataFolderIsNotCluttered();

private:
    QTemporaryDir runtimeFolder_;
};

// Locks live in the user's runtime folder; the tests give them a private one.
void SingleInstanceTest::initTestCase() {
    QVERIFY(runtimeFolder_.isValid());
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtimeFolder_.path()));
    QVERIFY(InstanceLock::LockPathFor("/data").startsWith(runtimeFolder_.path() + "/"));
}

void SingleInstanceTest::secondCopyRefusedWhileFirstRuns_data() {
    QTest::addColumn<QString>("secondSpelling");  // relative to the temporary folder
    QTest::newRow("same spelling") << "data";
    QTest::newRow("trailing separator") << "data/";
    QTest::newRow("dot segments") << "other/../data/.";
    QTest::newRow("through a symbolic link") << "link";
}

void SingleInstanceTest::secondCopyRefusedWhileFirstRuns() {
    QFETCH(QString, secondSpelling);
    QTemporaryDir root;
    QVERIFY(QDir(root.path()).mkpath("data"));
    QVERIFY(QDir(root.path()).mkpath("other"));
    QVERIFY(QFile::link(root.filePath("data"), root.filePath("link")));

    InstanceLock first(root.filePath("data"));
    QVERIFY(first.TryAcquire());
    InstanceLock second(root.path() + "/" + secondSpelling);
    QVERIFY(!second.TryAcquire());
}

void SingleInstanceTest::otherFolderIsIndependent() {
    QTemporaryDir one, two;
    InstanceLock first(one.path());
    InstanceLock second(two.path());
    QVERIFY(first.TryAcquire());
    QVERIFY(second.TryAcquire());
}

void SingleInstanceTest::releasedFolderCanBeTakenAgain() {
    QTemporaryDir dir;
    {
        InstanceLock first(dir.path());
        QVERIFY(first.TryAcquire());
        InstanceLock refused(dir.path());
        QVERIFY(!refused.TryAcquire());
    }
    InstanceLock next(dir.path());
    QVERIFY(next.TryAcquire());
}

void SingleInstanceTest::lockOfADeadCopyIsTakenOver() {
    const qint64 deadPid = DeadProcessId();
    if (deadPid == 0)
        QSKIP("no ended process id available");
    QTemporaryDir dir;
    const QString lockPath = InstanceLock::LockPathFor(dir.path());
    {
        QFile stale(lockPath);
        QVERIFY(stale.open(QIODevice::WriteOnly));
        stale.write(QByteArray::number(deadPid) + "\norvanta\n" +
                    QSysInfo::machineHostName().toUtf8() + "\n");
    }

    InstanceLock lock(dir.path());
    const bool acquired = lock.TryAcquire();
    if (!acquired)
        QFile::remove(lockPath);
    QVERIFY(acquired);
    QFile taken(lockPath);
    QVERIFY(taken.open(QIODevice::ReadOnly));
    QCOMPARE(taken.readLine().trimmed(), QByteArray::number(QCoreApplication::applicationPid()));
}

void SingleInstanceTest::dataFolderIsNotCluttered() {
    QTemporaryDir dir;
    InstanceLock lock(dir.path());
    QVERIFY(lock.TryAcquire());
    QVERIFY(QFile::exists(InstanceLock::LockPathFor(dir.path())));
    QCOMPARE(QDir(dir.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList());
}

ORVANTA_TEST_MAIN(SingleInstanceTest)
#include "tst_single_instance.moc"
