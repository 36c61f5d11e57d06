// Saves cut short by SIGKILL at random moments, and saves refused by a read-only folder or a full
// disk: whatever happens, every store's file on disk is the complete old or the complete new
// content.

#include <grp.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QMap>
#include <QRandomGenerator>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <cmath>

#include "FakeClock.h"
#include "FakeDialogs.h"
#include "FakePlatform.h"
#include "assignment/modEmployeeInfo.h"
#include "calendar/DateModel.h"
#include "calendar/MarkerColors.h"
#include "calendar/modMarks.h"
#include "decorations/DecorationMessages.h"
#include "decorations/modMonthIcons.h"
#include "notes_planner/ExternalFileMessages.h"
#include "notes_planner/UnsavedWork.h"
#include "notes_planner/modNotes.h"
#include "notes_planner/modPlanner.h"
#include "reminders/RemindersMessages.h"
#include "reminders/modAlerts.h"
#include "reminders/modToDo.h"
#include "reports/ReportMessages.h"
#include "reports/modBudget.h"
#include "shell/DateFormats.h"
#include "shell/Prompts.h"
#include "shell/Services.h"
#include "shell/TextFile.h"
#include "shell/UserPreferences.h"
#include "terms/modFUT.h"

namespace {

const QDate kToday(2026, 9, 7);

// Each store saves the contents A, B, C in turn, so a backup holding the content that follows
// the current one would be a backup newer than the file.
constexpr int kContents = 3;
constexpr int kKillsPerStore = 150;

// The data folder and the seams a store needs, and nothing else of the program.
struct Folder {
    explicit Folder(const QString& path) : services(path, dialogs, clock, platform) {
        dates.SelectDate(kToday);
    }
    FakeDialogs dialogs;
    FakeClock clock;
    FakePlatform platform;
    Services services;
    DateModel dates;
};

// Content i of each store, saved as the program saves it: the store reads its file first, so
// that its save replaces what it read.
void SaveMarks(Folder& folder, int content) {
    const MarkerColors colors;
    DateMarks marks(folder.services, folder.dates, colors);
    marks.ReadAndDisplayThisYearsMarks();
    marks.years[Year::This].Clear();
    for (int k = 0; k < 20 + content; ++k) {
        const CellIndex cell{k % kMonths, (k + content) % kWeekdays, (k * 5 + content) % kWeekRows};
        marks.MarkSet[cell] = -1;
        marks.MarkCategory[cell] = 1000 * (content + 1) + k;
        marks.HoverText[cell] = QStringLiteral("Caf\u00e9 %1").arg(content);
    }
    marks.SaveThisYearsMarks();
}

void SaveColors(Folder& folder, int content) {
    MarkerColors colors;
    colors.ReadMarkerColors(folder.services);
    colors.SetCategories(MarkerColors::Defaults());
    colors.SetCategory(0, QStringLiteral("Bills %1").arg(content), 0x10 + content);
    colors.SetHidden(1 + content, true);
    colors.SaveMarkerColors(folder.services);
}

void SavePreferences(Folder& folder, int content) {
    UserPreferences prefs;
    prefs.GetUserPreferences(folder.services);
    prefs.SetValue(prefkey::CompanyName, QStringLiteral("Company %1").arg(QChar(u'A' + content)));
    prefs.SetValue(prefkey::CompanyPhone, QString(content + 1, QLatin1Char('5')));
    prefs.SaveUserPreferences(folder.services);
}

void SaveNotes(Folder& folder, int content) {
    NotesStore notes(folder.services, folder.dates);
    notes.ReadThisYearsNotes();
    DatedEntries& year = notes.years[Year::This];
    const DataFile read = year.file;
    year.Clear();
    year.file = read;
    for (int day = 1; day <= 20 + content; ++day) {
        const QDate date(2026, 1 + day % 12, day);
        const qsizetype i = year.Append(datefmt::MmDdYy(date));
        year.cellCodes[i] = folder.dates.FindDay(date)->Code();
        year.payloads[i] =
            textfile::Encode(EncodeLineBreaks(QStringLiteral("Caf\u00e9 %1\r\nline two").arg(day)));
    }
    folder.dialogs.ExpectMsgBox(kNotesSavedMessage, vb::OKOnly, {});
    notes.SaveThisYearsNotes(kToday, QStringLiteral("today's note %1").arg(content));
}

void SavePlanner(Folder& folder, int content) {
    PlannerStore planner(folder.services, folder.dates);
    planner.ReadThisYearsPlanner();
    for (int day = 1; day < 20 + kContents; ++day) {
        PlannerPage page;  // blank past the content's days: not written
        if (day <= 20 + content)
            page.slotTexts[day % kPlannerSlots] =
                QStringLiteral("R\u00e9sum\u00e9 %1").arg(content);
        planner.SavePlannerRecord(QDate(2026, 1 + day % 12, day), page);
    }
    folder.dialogs.ExpectMsgBox(kPlannerRecordsUpdatedMessage, vb::OKOnly, {});
    planner.SaveThisYearsPlannerFile();
}

// Deleting notes: content 0 is a year of notes, 1 and 2 that year with the dates of one and
// then two groups deleted, each step one delete. Where the file is missing, the year is
// written first.
void DeleteNotes(Folder& folder, int content) {
    if (content == 0 || !QFile::exists(folder.services.PathOf(QStringLiteral("2026/Notes.dat")))) {
        SaveNotes(folder, 0);
        if (content == 0)
            return;
    }
    QList<QDate> dates;
    for (int day = 1; day <= 20; ++day)
        if ((day - 1) % 5 < content)
            dates.append(QDate(2026, 1 + day % 12, day));
    NotesStore(folder.services, folder.dates).DeleteNotes(2026, dates);
}

// Pages put into the year's file as an import does, one write for all of them; the same dates
// each time, so that every content replaces the one before it whole.
void PutPlanners(Folder& folder, int content) {
    QList<QDate> dates;
    QList<PlannerPage> pages;
    for (int day = 1; day <= 20; ++day) {
        dates << QDate(2026, 1 + day % 12, day);
        pages << NewPlannerPage();
        pages.last().slotTexts[day % kAppointmentLines] =
            QStringLiteral("Imported %1").arg(content);
    }
    PlannerStore(folder.services, folder.dates).PutPlanners(2026, dates, pages);
}

// A page opened from its file, saved back to it.
void SaveExternalPlanner(Folder& folder, int content) {
    const QString path = folder.services.PathOf(QStringLiteral("Planners And Notes/Page.pln"));
    QDir().mkpath(QFileInfo(path).absolutePath());
    PlannerPage page;
    page.slotTexts[content] = QStringLiteral("Exported %1").arg(content);
    folder.dialogs.ExpectMsgBox(
        SavedAsMessage(QStringLiteral("Page.pln"),
                       QDir::toNativeSeparators(QFileInfo(path).absolutePath())),
        vb::OKOnly, {});
    folder.services.Trap("SaveExternalPlanner", [&] {
        SaveExternalFileTo(folder.services, path, ExternalPlannerBytes(kToday, page));
    });
}

// Every store that writes a file. The procedure is the one whose report a failed save shows.
void SaveUnsavedWork(Folder& folder, int content) {
    UnsavedWork work(folder.services);
    UnsavedEdit edit{
        kToday, QStringLiteral("typed %1 ").repeated(200 * (content + 1)), {}, {}, false};
    work.Keep(EditorKind::Notes, edit);
}

void SaveAlerts(Folder& folder, int content) {
    AlertsStore alerts(folder.services);
    alerts.ReadAlerts();
    QStringList lines;
    for (int i = 0; i < 20 + content; ++i)
        lines.append(MakeAlertLine(kToday.addDays(i), i,
                                   QStringLiteral("Caf\u00e9 %1: %2").arg(content).arg(i)));
    folder.dialogs.ExpectMsgBox(kAlertListUpdated, vb::OKOnly, {});
    alerts.SaveAlerts(lines);
}

void SaveToDoList(Folder& folder, int content) {
    ToDoStore toDo(folder.services);
    toDo.ReadToDoList();
    ToDoRows rows;
    for (int row = 0; row < kToDoRows; ++row) {
        rows.texts[row] = QStringLiteral("R\u00e9sum\u00e9 %1 of list %2").arg(row).arg(content);
        rows.done[row] = (row + content) % 2 == 0;
    }
    folder.dialogs.ExpectMsgBox(kToDoSaved, vb::OKOnly, {});
    toDo.SaveToDoList(rows);
}

void SaveContacts(Folder& folder, int content) {
    ContactList contacts(folder.services);
    contacts.ReadEmployeeInfo();
    while (!contacts.People().isEmpty())
        contacts.Remove(0);
    for (int k = 0; k < 20 + content; ++k)
        contacts.Put({QStringLiteral("Person %1 %2").arg(content).arg(k),
                      QStringLiteral("p%1@x.org").arg(k), QStringLiteral("Caf\u00e9")});
    contacts.SaveEmployeeInfo();
}

void SaveTerms(Folder& folder, int content) {
    UserPreferences prefs;
    modFUT terms(folder.services, prefs);
    terms.ReadFrequentlyUsedTerms();
    QStringList list;
    for (int i = 0; i < 200 + 50 * content; ++i)
        list.append(QStringLiteral("Caf\u00e9 term %1 of list %2").arg(i).arg(content));
    terms.SaveFrequentlyUsedTerms(list);
}

void SaveBudget(Folder& folder, int content) {
    modBudget budget(folder.services);
    budget.ReadBudget();
    Budgets budgets;
    for (int month = 0; month < 24 + 12 * content; ++month)
        budgets.insert(QDate(2020, 1, 1).addMonths(month), 100000 + 37 * month + content);
    folder.dialogs.ExpectMsgBox(kBudgetSavedMessage, vb::OKOnly, {});
    budget.SaveBudget(budgets);
}

void SaveMonthIcons(Folder& folder, int content) {
    ChangeFlags flags;
    modMonthIcons icons(folder.services, flags);
    icons.RemoveAllIcons(QDate(2026, 9, 1));
    for (int day = 1; day <= 30; ++day)
        for (int i = 0; i <= content; ++i)
            icons.PlaceIcon(QDate(2026, 9, day), 10 * i + day);
    folder.dialogs.ExpectMsgBox(kMonthIconsSaved, vb::OKOnly, {});
    icons.SaveMonthIcons(9);
}

struct Store {
    const char* procedure;
    QString file;
    QString backup;  // empty for a store that keeps no backup
    void (*save)(Folder&, int content);
};

const Store kStores[] = {
    {"SaveThisYearsMarks", "2026Marks.dat", "2026Marks.bak", SaveMarks},
    {"SaveMarkerColors", kMarkerColorsFile, {}, SaveColors},
    {"SaveUserPreferences", kUserPreferencesFile, {}, SavePreferences},
    {"SaveThisYearsNotes", "2026/Notes.dat", {}, SaveNotes},
    {"SaveThisYearsPlannerFile", "2026/Planner.dat", {}, SavePlanner},
    {"KeepUnsavedWork", kTempRecordFile, {}, SaveUnsavedWork},
    {"DeleteNotes", "2026/Notes.dat", {}, DeleteNotes},
    {"PutPlanners", "2026/Planner.dat", {}, PutPlanners},
    {"SaveExternalPlanner", "Planners And Notes/Page.pln", {}, SaveExternalPlanner},
    {"SaveAlerts", kAlertsFile, {}, SaveAlerts},
    {"SaveToDoList", kToDoFile, {}, SaveToDoList},
    {"SaveEmployeeInfo", kEmployeeInfoFile, {}, SaveContacts},
    {"SaveFrequentlyUsedTerms", kDefaultTermFile, {}, SaveTerms},
    {"SaveBudget", kBudgetFile, {}, SaveBudget},
    {"SaveMonthIcons", "Sep_Icons.dat", {}, SaveMonthIcons},
};

const QByteArray kMissing = "<missing>";
QByteArray ReadBytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : kMissing;
}

// Every file of a folder and its sub-folders with its bytes, by its path in the folder.
QMap<QString, QByteArray> Snapshot(const QString& folder) {
    QMap<QString, QByteArray> files;
    QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        files.insert(QDir(folder).relativeFilePath(path), ReadBytes(path));
    }
    return files;
}

// Makes a folder and its sub-folders writable or read-only for their owner.
void SetFoldersWritable(const QString& folder, bool writable) {
    QDirIterator it(folder, QDir::Dirs | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    QStringList folders{folder};
    while (it.hasNext())
        folders.append(it.next());
    for (const QString& path : folders) {
        const auto permissions = QFile::permissions(path);
        QFile::setPermissions(
            path, writable ? permissions | QFile::WriteOwner : permissions & ~QFile::WriteOwner);
    }
}

// The child's side of the kill test: saves the contents in turn, from first on, until killed.
[[noreturn]] void SaveUntilKilled(const Store& store, const QString& path, int first) {
    Folder folder(path);
    for (int i = first;; ++i) {
        store.save(folder, i % kContents);
        if (!folder.dialogs.Ok())
            _exit(3);  // a save failed: the parent sees an exit instead of the kill
    }
}

// The uid and gid of the unprivileged account "nobody".
constexpr uid_t kNobody = 65534;

}  // namespace

class CrashSafetyTest : public QObject {
    Q_OBJECT

    int kills_ = 0;
    QElapsedTimer clock_;

private slots:
    void initTestCase() { clock_.start(); }
    void cleanupTestCase() {
        qInfo("crash safety: %d kills, %lld ms in all", kills_, clock_.elapsed());
    }

    void killedSaveLeavesOldOrNewFile_data() {
        QTest::addColumn<int>("store");
        for (int i = 0; i < int(std::size(kStores)); ++i)
            QTest::newRow(kStores[i].procedure) << i;
    }

    void killedSaveLeavesOldOrNewFile() {
        QFETCH(int, store);
        const Store& s = kStores[store];

        // What each content looks like on disk.
        QList<QByteArray> bytes;
        for (int i = 0; i < kContents; ++i) {
            QTemporaryDir clean;
            Folder saved(clean.path());
            s.save(saved, i);
            bytes.append(ReadBytes(saved.services.PathOf(s.file)));
            VERIFY_DIALOGS(saved.dialogs);
        }
        QVERIFY(bytes[0] != bytes[1] && bytes[1] != bytes[2] && bytes[0] != bytes[2]);

        QTemporaryDir dir;
        Folder folder(dir.path());
        s.save(folder, 0);
        const QString file = folder.services.PathOf(s.file);
        const QString backup = s.backup.isEmpty() ? QString() : folder.services.PathOf(s.backup);
        int current = 0;
        for (int kill = 1; kill <= kKillsPerStore; ++kill) {
            // From a few microseconds (the child has barely started) to a few saves in.
            const auto delay = static_cast<useconds_t>(
                std::exp(QRandomGenerator::global()->bounded(std::log(5000.0))));
            const pid_t child = ::fork();
            QVERIFY(child >= 0);
            if (child == 0)
                SaveUntilKilled(s, dir.path(), current + 1);
            ::usleep(delay);
            ::kill(child, SIGKILL);
            int status = 0;
            QCOMPARE(::waitpid(child, &status, 0), child);
            QVERIFY2(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL,
                     "the saving child stopped before it was killed");

            const QString after = QStringLiteral("after kill %1 (%2 us): ").arg(kill).arg(delay);
            const QByteArray now = ReadBytes(file);
            const int j = int(bytes.indexOf(now));
            QVERIFY2(j >= 0, qPrintable(after + s.file + " is " + now.left(60)));
            if (!backup.isEmpty()) {
                const QByteArray saved = ReadBytes(backup);
                const int b = int(bytes.indexOf(saved));
                QVERIFY2(saved == kMissing || b >= 0, qPrintable(after + "the backup is torn"));
                QVERIFY2(b != (j + 1) % kContents, qPrintable(after + "the backup is newer"));
            }
            current = j;
        }

        // A save that runs to its end makes the old file the backup and replaces whatever the
        // kills left behind.
        const int next = (current + 1) % kContents;
        s.save(folder, next);
        VERIFY_DIALOGS(folder.dialogs);
        QCOMPARE(ReadBytes(file), bytes[next]);
        if (!backup.isEmpty())
            QCOMPARE(ReadBytes(backup), bytes[current]);
        const QStringList names =
            backup.isEmpty() ? QStringList{s.file} : QStringList{s.backup, s.file};
        QCOMPARE(Snapshot(dir.path()).keys(), names);
        kills_ += kKillsPerStore;
    }

    void failedSaveReportsAndKeepsOldFile_data() {
        QTest::addColumn<int>("store");
        QTest::addColumn<bool>("fullDisk");
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("description");
        for (int i = 0; i < int(std::size(kStores)); ++i) {
            // The safety copy of unsaved typing fails in silence: the editor still has the text.
            if (kStores[i].file == kTempRecordFile)
                continue;
            QTest::addRow("%s read-only folder", kStores[i].procedure)
                << i << false << 70 << "Permission denied";
            QTest::addRow("%s full disk", kStores[i].procedure) << i << true << 61 << "Disk full";
        }
    }

    // The failing save runs in a child: as root, the child gives up its rights so that the
    // folder's permissions apply; a full disk is a file size limit of zero, which fails every
    // write.
    void failedSaveReportsAndKeepsOldFile() {
        QFETCH(int, store);
        QFETCH(bool, fullDisk);
        QFETCH(int, number);
        QFETCH(QString, description);
        const Store& s = kStores[store];
        QTemporaryDir dir;
        const QString path = dir.path() + QStringLiteral("/data");
        QVERIFY(QDir().mkdir(path));
        Folder folder(path);
        s.save(folder, 0);
        s.save(folder, 1);
        const auto before = Snapshot(path);
        const auto writable = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                              QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther |
                              QFile::ExeOther;
        QVERIFY(QFile::setPermissions(dir.path(), writable));
        if (!fullDisk)
            SetFoldersWritable(path, false);

        int channel[2];
        QVERIFY(::pipe(channel) == 0);
        const pid_t child = ::fork();
        QVERIFY(child >= 0);
        if (child == 0) {
            ::close(channel[0]);
            if (fullDisk) {
                ::signal(SIGXFSZ, SIG_IGN);
                const rlimit none{0, 0};
                if (::setrlimit(RLIMIT_FSIZE, &none) != 0)
                    _exit(5);
            } else if (::geteuid() == 0) {
                if (::setgroups(0, nullptr) != 0 || ::setgid(kNobody) != 0 ||
                    ::setuid(kNobody) != 0)
                    _exit(5);
            }
            if (!fullDisk && ::access(QFile::encodeName(path).constData(), W_OK) == 0)
                _exit(6);
            Folder saving(path);
            s.save(saving, 2);
            QFile report;
            report.open(channel[1], QIODevice::WriteOnly);
            report.write(saving.dialogs.shown().join(u'\n').toUtf8());
            report.close();
            _exit(0);
        }
        ::close(channel[1]);
        QFile boxes;
        boxes.open(channel[0], QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
        const QString shown = QString::fromUtf8(boxes.readAll());
        boxes.close();
        int status = 0;
        QCOMPARE(::waitpid(child, &status, 0), child);
        SetFoldersWritable(path, true);
        QVERIFY(WIFEXITED(status));
        if (WEXITSTATUS(status) == 6)
            QSKIP("folder permissions do not apply to this user");
        QCOMPARE(WEXITSTATUS(status), 0);

        // The report, then the log that cannot be written either.
        const QString report = folder.services.ErrorReport(s.procedure, number, description);
        QCOMPARE(shown, QStringLiteral("Program Error | ") + report +
                            QStringLiteral("\n | Error writing to Error.log."));
        auto after = Snapshot(path);
        after.remove(QStringLiteral("Error.log"));
        QCOMPARE(after, before);
    }
};

int main(int argc, char** argv) {
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication app(argc, argv);
    CrashSafetyTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_crash_safety.moc"
