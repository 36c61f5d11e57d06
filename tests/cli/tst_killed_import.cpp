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
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <optional>
#include <vector>

#include "KillTest.h"
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

// Starts the program with arguments, its output thrown away and its standard error written to
// the file errors. It holds the writing end of ended, a pipe, open until it ends.
pid_t StartQuietly(const QStringList& arguments, int ended, const QString& errors) {
    QList<QByteArray> bytes{ORVANTA_BINARY};
    for (const QString& argument : arguments)
        bytes.append(QFile::encodeName(argument));
    std::vector<char*> argv;
    for (QByteArray& argument : bytes)
        argv.push_back(argument.data());
    argv.push_back(nullptr);
    const QByteArray errorFile = QFile::encodeName(errors);
    const pid_t child = ::fork();
    if (child == 0) {
        ::dup2(::open("/dev/null", O_WRONLY), STDOUT_FILENO);
        ::dup2(::open(errorFile.constData(), O_WRONLY | O_CREAT | O_TRUNC, 0600), STDERR_FILENO);
        ::fcntl(ended, F_SETFD, 0);
        ::execv(argv[0], argv.data());
        _exit(127);
    }
    return child;
}

const QByteArray kMissing = "<missing>";
const QByteArray kLeftover = "<a write cut short>";

// Runs are killed until this many kills have landed while the import wrote; more than
// kMaxKills kills fail the test.
constexpr int kKillsDuringWrite = 10;
constexpr int kMaxKills = 100;

// The import of a calendar into a folder, run to its end or killed a while after it began to
// write.
struct ImportRun {
    int status = -1;                       // the exit status, or -1 when it was killed
    std::chrono::microseconds writing{0};  // from the first write to the end
    QString errors;                        // what it wrote on standard error
};
ImportRun RunImport(const QString& folder, const QString& calendar, WriteWatch& watch,
                    std::optional<std::chrono::microseconds> killAfter = std::nullopt) {
    watch.Forget();
    int ended[2];
    if (::pipe2(ended, O_CLOEXEC) != 0)
        return {};
    const QString errors = folder + QStringLiteral(".errors");
    const pid_t child = StartQuietly(ImportArguments(folder, calendar), ended[1], errors);
    ::close(ended[1]);
    QElapsedTimer writing;
    // A run that never begins to write is killed once it has ended.
    if (watch.WaitForWrite(ended[0]))
        writing.start();
    if (killAfter) {
        SleepFor(*killAfter);
        ::kill(child, SIGKILL);
    }
    int status = 0;
    if (child <= 0 || ::waitpid(child, &status, 0) != child)
        status = -1;
    ::close(ended[0]);
    QFile errorFile(errors);
    errorFile.open(QIODevice::ReadOnly);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1,
            std::chrono::microseconds(writing.isValid() ? writing.nsecsElapsed() / 1000 : 0),
            QString::fromUtf8(errorFile.readAll())};
}

// The folder's old files, and the files the kills cut short, which the next run must cope
// with: marked, so that a file the next kill cuts short is told from them.
FolderFiles OldFilesAndCutShortOnes(const QString& folder, const FolderFiles& old) {
    FolderFiles files = old;
    for (const QString& name : CutShortWrites(ReadFolderFiles(folder)).keys())
        files.insert(name, kLeftover);
    return files;
}

}  // namespace

class KilledImportTest : public QObject {
    Q_OBJECT

    QTemporaryDir dir_;
    QString path(const QString& name) const { return dir_.filePath(name); }

private slots:
    // The folder holds 2026 from a first import; a second one adds to 2026 and makes 2027, each
    // year's planner, notes and marks (the old marks kept as the backup).
    void killedImportLeavesEveryFileOldOrNew() {
        const QString data = path("data");
        const QString first = path("first.ics");
        const QString second = path("second.ics");
        QVERIFY(QDir().mkpath(data + "/2026"));
        for (const auto& [file, bytes] :
             {std::pair{first, Calendar(QDate(2026, 1, 5), 60, 5, "First")},
              std::pair{second, Calendar(QDate(2026, 1, 2), 180, 4, "Second")}}) {
            QFile calendar(file);
            QVERIFY(calendar.open(QIODevice::WriteOnly) && calendar.write(bytes) == bytes.size());
        }
        // The import writes 2026's files first.
        WriteWatch watch({data, data + "/2026"});
        const ImportRun made = RunImport(data, first, watch);
        QCOMPARE(made.errors, QString());
        QCOMPARE(made.status, 0);
        const FolderFiles old = ReadFolderFiles(data);

        // The new content: the same import run to its end.
        const ImportRun whole = RunImport(data, second, watch);
        QCOMPARE(whole.errors, QString());
        QCOMPARE(whole.status, 0);
        const FolderFiles updated = ReadFolderFiles(data);
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

        KillAim aim(whole.writing);
        QStringList cutShortFiles;
        while (aim.DuringWrite() < kKillsDuringWrite) {
            QVERIFY2(aim.Kills() < kMaxKills, qPrintable(aim.Summary()));
            const FolderFiles start = OldFilesAndCutShortOnes(data, old);
            QVERIFY(RestoreFolderFiles(data, start));
            const auto delay = aim.NextDelay();
            const ImportRun run = RunImport(data, second, watch, delay);

            const QString after =
                QStringLiteral("after kill %1 (%2 us): ").arg(aim.Kills() + 1).arg(delay.count());
            // A run that ended before its kill came ended as a whole run does.
            QVERIFY2(run.status == -1 || run.status == 0,
                     qPrintable(after + "the import ended with " + QString::number(run.status) +
                                ": " + run.errors));
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
            const FolderFiles cutShort = CutShortWrites(files);
            for (auto it = cutShort.begin(); it != cutShort.end(); ++it)
                if (it.value() != start.value(it.key(), kMissing) &&
                    !cutShortFiles.contains(it.key()))
                    cutShortFiles.append(it.key());
            if (updatedFiles == changed.size())
                aim.Record(Landed::AfterWrite);
            else if (cutShort != CutShortWrites(start))
                aim.Record(Landed::DuringWrite);
            else
                aim.Record(Landed::BetweenWrites);
        }
        cutShortFiles.sort();
        qInfo("ics import: %s; cut short: %s", qPrintable(aim.Summary()),
              qPrintable(cutShortFiles.join(QStringLiteral(", "))));

        // The next run is not kept out, and replaces whatever the kills left behind.
        QVERIFY(RestoreFolderFiles(data, OldFilesAndCutShortOnes(data, old)));
        const ImportRun last = RunImport(data, second, watch);
        QCOMPARE(last.errors, QString());
        QCOMPARE(last.status, 0);
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
