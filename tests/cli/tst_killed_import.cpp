// The command line's iCalendar import killed at random moments while it writes a data folder:
// every file of the folder is always its complete old or its complete new content, and a kill
// never leaves anything behind that keeps the next run out.
#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <vector>

#include "KillAim.h"
#include "TestPaths.h"
#include "ical/IcalExport.h"

namespace {

// A calendar of count days, every step-th day from first: the day's appointments, a note on
// every third of them and an all-day event on every fifth, each text naming word.
QByteArray Calendar(const QDate& first, int count, int step, const QString& word) {
    CalendarData data;
    for (int k = 0; k < count; ++k) {
        const QDate date = first.addDays(qint64(k) * step);
        PlannerPage page = NewPlannerPage();
        for (int line = 0; line < 8; ++line)
            page.slotTexts[line] = QStringLiteral("%1 meeting %2").arg(word).arg(line);
        data.pages << DatedPage{date, page};
        if (k % 3 == 0)
            data.notes << DatedNote{date, QStringLiteral("%1 note\r\nsecond line").arg(word)};
        if (k % 5 == 0)
            data.holidays << DatedHoliday{date, QStringLiteral("%1 day").arg(word)};
    }
    return ExportToIcs(data, {}, QDateTime(first, QTime(8, 0))).bytes;
}

QStringList ImportArguments(const QString& folder, const QString& calendar) {
    return {"--data-dir", folder,      "ics",     "import", calendar,
            "--years",    "2026-2027", "--marks", "--yes"};
}

// The import of calendar into folder run to its end: its exit status.
int Import(const QString& folder, const QString& calendar) {
    QProcess program;
    program.start(QStringLiteral(ORVANTA_BINARY), ImportArguments(folder, calendar));
    program.waitForFinished(60000);
    return program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1;
}

// Starts the program with arguments, its output thrown away, at once: no waiting for it to
// start, so that the moment of a kill counts from the start.
pid_t StartQuietly(const QStringList& arguments) {
    QList<QByteArray> bytes{ORVANTA_BINARY};
    for (const QString& argument : arguments)
        bytes.append(QFile::encodeName(argument));
    std::vector<char*> argv;
    for (QByteArray& argument : bytes)
        argv.push_back(argument.data());
    argv.push_back(nullptr);
    const pid_t child = ::fork();
    if (child == 0) {
        const int null = ::open("/dev/null", O_RDWR);
        ::dup2(null, STDOUT_FILENO);
        ::dup2(null, STDERR_FILENO);
        ::execv(argv[0], argv.data());
        _exit(127);
    }
    return child;
}

const QByteArray kMissing = "<missing>";

// Runs are killed until this many kills have landed while the import wrote; more than
// kMaxKills kills fail the test.
constexpr int kKillsDuringWrite = 15;
constexpr int kMaxKills = 80;

}  // namespace

class KilledImportTest : public QObject {
    Q_OBJECT

    // On the disk of the build, where a write takes the time it takes on a user's disk (/tmp is
    // often held in memory).
    QTemporaryDir dir_{QStringLiteral(QT_TESTCASE_BUILDDIR "/killed-import-XXXXXX")};
    QString path(const QString& name) const { return dir_.filePath(name); }

private slots:
    // The folder holds 2026 from a first import; a second one adds to 2026 and makes 2027, each
    // year's planner, notes and marks (the old marks kept as the backup).
    void killedImportLeavesEveryFileOldOrNew() {
        const QString data = path("data");
        const QString first = path("first.ics");
        const QString second = path("second.ics");
        QVERIFY(QDir().mkpath(data));
        for (const auto& [file, bytes] :
             {std::pair{first, Calendar(QDate(2026, 1, 5), 60, 5, "First")},
              std::pair{second, Calendar(QDate(2026, 1, 2), 180, 4, "Second")}}) {
            QFile calendar(file);
            QVERIFY(calendar.open(QIODevice::WriteOnly) && calendar.write(bytes) == bytes.size());
        }
        QCOMPARE(Import(data, first), 0);
        const FolderFiles old = ReadFolderFiles(data);

        // The new content: the same import run to its end on a copy.
        QVERIFY(RestoreFolderFiles(path("copy"), old));
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(Import(path("copy"), second), 0);
        // An import writes at its end.
        KillAim aim(std::chrono::microseconds(timer.nsecsElapsed() / 1000 * 9 / 10));
        const FolderFiles updated = ReadFolderFiles(path("copy"));
        QStringList names = old.keys() + updated.keys();
        names.removeDuplicates();
        names.sort();
        QStringList changed = names;
        changed.removeIf([&](const QString& name) {
            return old.value(name, kMissing) == updated.value(name, kMissing);
        });
        QCOMPARE(changed, QStringList({"2026/Notes.dat", "2026/Planner.dat", "2026Marks.bak",
                                       "2026Marks.dat", "2027/Notes.dat", "2027/Planner.dat",
                                       "2027Marks.dat"}));

        while (aim.DuringWrite() < kKillsDuringWrite) {
            QVERIFY2(aim.Kills() < kMaxKills, qPrintable(aim.Summary()));
            // Files a kill cut short stay for the next run to find.
            QVERIFY(RestoreFolderFiles(data, old, IsCutShortWrite));
            const FolderFiles cutShort = CutShortWrites(ReadFolderFiles(data));
            const auto delay = aim.NextDelay();
            const pid_t child = StartQuietly(ImportArguments(data, second));
            QVERIFY(child > 0);
            SleepFor(delay);
            ::kill(child, SIGKILL);
            int status = 0;
            QCOMPARE(::waitpid(child, &status, 0), child);

            const QString after =
                QStringLiteral("after kill %1 (%2 us): ").arg(aim.Kills() + 1).arg(delay.count());
            // A run that ended before its kill came ended as a whole run does.
            const bool ended = WIFEXITED(status);
            QVERIFY2(!ended || WEXITSTATUS(status) == 0,
                     qPrintable(after + "the import ended with " +
                                QString::number(WEXITSTATUS(status))));
            const FolderFiles files = ReadFolderFiles(data);
            for (const QString& name : files.keys())
                QVERIFY2(names.contains(name) || IsCutShortWrite(name),
                         qPrintable(after + "left " + name));
            qsizetype updatedFiles = 0;
            for (const QString& name : names) {
                const QByteArray bytes = files.value(name, kMissing);
                QVERIFY2(
                    bytes == old.value(name, kMissing) || bytes == updated.value(name, kMissing),
                    qPrintable(after + name + " is " + bytes.left(60)));
                updatedFiles += changed.contains(name) && bytes == updated.value(name);
            }
            if (ended || updatedFiles == changed.size())
                aim.Record(Landed::AfterWrite);
            else if (updatedFiles > 0 || CutShortWrites(files) != cutShort)
                aim.Record(Landed::DuringWrite);
            else
                aim.Record(Landed::BeforeWrite);
        }
        qInfo("ics import: %s", qPrintable(aim.Summary()));

        // The next run is not kept out, and replaces whatever the kills left behind.
        QVERIFY(RestoreFolderFiles(data, old, IsCutShortWrite));
        QCOMPARE(Import(data, second), 0);
        QCOMPARE(ReadFolderFiles(data), updated);
    }
};

int main(int argc, char** argv) {
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication app(argc, argv);
    KilledImportTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_killed_import.moc"
