// Saves cut short by SIGKILL at moments aimed at their writes, and saves refused by a read-only
// folder or a real full disk: whatever happens, every store's file on disk is the complete old
// or the complete new content.

#include <grp.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDataStream>
#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include "FakeClock.h"
#include "FakeDialogs.h"
#include "FakePlatform.h"
#include "KillTest.h"
#include "SmallDisk.h"
#include "assignment/modEmployeeInfo.h"
#include "calendar/DateModel.h"
#include "calendar/MarkerColors.h"
#include "calendar/modMarks.h"
#include "decorations/DecorationMessages.h"
#include "decorations/modIcons.h"
#include "decorations/modMonthIcons.h"
#include "holidays_birthdays/HolidaysBirthdaysMessages.h"
#include "holidays_birthdays/modBirthdays.h"
#include "holidays_birthdays/modHolidays.h"
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

void SaveTemplate(Folder& folder, int content) {
    ChangeFlags flags;
    flags.TemplateMode = true;
    modMonthIcons icons(folder.services, flags);
    icons.RemoveAllIcons(QDate(2026, 9, 1));
    for (int day = 1; day <= 28; ++day)
        for (int i = 0; i <= content; ++i)
            icons.PlaceIcon(QDate(2026, 9, day), 10 * i + day);
    folder.dialogs.ExpectMsgBox(kTemplateSaved, vb::OKOnly, {});
    icons.SaveTemplateIcons();
}

// A library of a few icons, the first one's caption renamed.
void SaveIconCaption(Folder& folder, int content) {
    modIcons icons(folder.services);
    icons.ReadIconTags();
    while (icons.tags().size() < 3)
        icons.AddIcon("icon", QStringLiteral("Icon %1").arg(icons.tags().size()));
    icons.SetCaption(icons.tags().first().number,
                     QStringLiteral("Caf\u00e9 %1 ").arg(content).repeated(10 * (content + 1)));
}

void SaveHolidays(Folder& folder, int content) {
    HolidayList list = ReadHolidayList(folder.services, "SaveHolidayFile", 2026);
    QStringList lines;
    for (int k = 0; k < 20 + content; ++k)
        lines.append(datefmt::MmDdYy(QDate(2026, 1 + k % 12, 1 + k)) +
                     QStringLiteral(":F\u00eate %1: list %2").arg(k).arg(content));
    SaveHolidayList(folder.services, "SaveHolidayFile", list.file, lines);
}

void SaveBirthdays(Folder& folder, int content) {
    BirthdayStore birthdays(folder.services, folder.dates);
    birthdays.ReadBirthdays();
    constexpr int kPeriods[] = {kNoBirthdayAlert, 0, 1, 3, 5, 7, 10};
    QList<BirthdayRecord> people;
    for (int k = 0; k < 20 + content; ++k)
        people.append({QDate(2026, 1 + k % 12, 1 + k).toString(QStringLiteral("MM/dd")),
                       kPeriods[k % 7],
                       QStringLiteral("Zo\u00eb %1 of list %2").arg(k).arg(content),
                       k % 2 ? kBirthYearNotKept : QString::number(1950 + k)});
    folder.dialogs.ExpectMsgBox(kBirthdaysUpdatedMessage, vb::OKOnly, {});
    birthdays.SaveBirthdays(people, true);
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
    {"SaveTemplateIcons", kTemplateFile, {}, SaveTemplate},
    {"SaveIconTags", kIconTagsFile, {}, SaveIconCaption},
    {"SaveHolidayFile", "Holidays/2026Holidays.dat", {}, SaveHolidays},
    {"SaveBirthdays", kBirthdaysFile, {}, SaveBirthdays},
};

const QByteArray kMissing = "<missing>";

// Makes a folder and its sub-folders writable or read-only for their owner (Qt sets the owner's
// bit for the user's permission too, when the user is the owner).
void SetFoldersWritable(const QString& folder, bool writable) {
    QDirIterator it(folder, QDir::Dirs | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    QStringList folders{folder};
    while (it.hasNext())
        folders.append(it.next());
    const auto write = QFile::WriteOwner | QFile::WriteUser;
    for (const QString& path : folders) {
        const auto permissions = QFile::permissions(path);
        QFile::setPermissions(path, writable ? permissions | write : permissions & ~write);
    }
}

// The child's side of a kill: saves the content, says when it is done and waits for the kill.
[[noreturn]] void SaveUntilKilled(const Store& store, const QString& path, int content,
                                  int channel) {
    Folder folder(path);
    store.save(folder, content);
    if (!folder.dialogs.Ok())
        _exit(3);  // a save failed: the parent sees an exit instead of the kill
    if (::write(channel, "d", 1) != 1)
        _exit(4);
    for (;;)
        ::pause();
}

// A child that saves a content, killed delay after its save began to write.
struct KilledSave {
    bool began = false;  // the save began to write before the kill
    QString problem;     // the child did not live to be killed
};
KilledSave KillSave(const Store& store, const QString& path, int content,
                    std::chrono::microseconds delay, WriteWatch& watch) {
    watch.Forget();
    int channel[2];
    if (::pipe(channel) != 0)
        return {false, QStringLiteral("no pipe")};
    const pid_t child = ::fork();
    if (child == 0) {
        ::close(channel[0]);
        SaveUntilKilled(store, path, content, channel[1]);
    }
    ::close(channel[1]);
    // A save that never begins to write is killed once it is done.
    const bool began = child > 0 && watch.WaitForWrite(channel[0]);
    if (began)
        SleepFor(delay);
    if (child > 0)
        ::kill(child, SIGKILL);
    int status = 0;
    const bool killed = child > 0 && ::waitpid(child, &status, 0) == child && WIFSIGNALED(status) &&
                        WTERMSIG(status) == SIGKILL;
    ::close(channel[0]);
    if (!killed)
        return {began, QStringLiteral("the saving child stopped before it was killed")};
    return {began, {}};
}

// The uid and gid of the unprivileged account "nobody".
constexpr uid_t kNobody = 65534;

// Each store's saves are killed until this many kills have landed while it wrote; more than
// kMaxKills kills fail the test.
constexpr int kKillsDuringWrite = 15;
constexpr int kMaxKills = 100;

}  // namespace

class CrashSafetyTest : public QObject {
    Q_OBJECT

    int kills_ = 0;
    int killsDuringWrite_ = 0;
    QElapsedTimer clock_;

private slots:
    void initTestCase() { clock_.start(); }
    void cleanupTestCase() {
        qInfo("crash safety: %d kills, %d of them during a write, %lld ms in all", kills_,
              killsDuringWrite_, clock_.elapsed());
    }

    void killedSaveLeavesOldOrNewFile_data() {
        QTest::addColumn<int>("store");
        for (int i = 0; i < int(std::size(kStores)); ++i)
            QTest::newRow(kStores[i].procedure) << i;
    }

    // A child saves the content that follows the file's, and is killed at a random moment
    // once it has begun to write.
    void killedSaveLeavesOldOrNewFile() {
        QFETCH(int, store);
        const Store& s = kStores[store];

        // What each content looks like on disk.
        QList<QByteArray> bytes;
        for (int i = 0; i < kContents; ++i) {
            QTemporaryDir clean;
            Folder saved(clean.path());
            s.save(saved, i);
            bytes.append(ReadFolderFiles(clean.path()).value(s.file, kMissing));
            VERIFY_DIALOGS(saved.dialogs);
        }
        QVERIFY(bytes[0] != bytes[1] && bytes[1] != bytes[2] && bytes[0] != bytes[2]);

        QTemporaryDir dir;
        Folder folder(dir.path());
        s.save(folder, 0);
        QStringList names = ReadFolderFiles(dir.path()).keys();
        // The first kills come within half the time a save of a file like the one they will
        // cut short takes: its writes and syncs.
        QElapsedTimer timer;
        timer.start();
        s.save(folder, 1);
        KillAim aim(std::chrono::microseconds(timer.nsecsElapsed() / 2000));
        int current = 1;
        WriteWatch watch({QFileInfo(dir.filePath(s.file)).path()});
        while (aim.DuringWrite() < kKillsDuringWrite) {
            QVERIFY2(aim.Kills() < kMaxKills, qPrintable(aim.Summary()));
            const int next = (current + 1) % kContents;
            const auto delay = aim.NextDelay();
            const KilledSave killed = KillSave(s, dir.path(), next, delay, watch);
            QVERIFY2(killed.problem.isEmpty(), qPrintable(killed.problem));

            const QString after =
                QStringLiteral("after kill %1 (%2 us): ").arg(aim.Kills() + 1).arg(delay.count());
            const FolderFiles files = ReadFolderFiles(dir.path());
            const QByteArray now = files.value(s.file, kMissing);
            QVERIFY2(now == bytes[current] || now == bytes[next],
                     qPrintable(after + s.file + " is " + now.left(60)));
            if (!s.backup.isEmpty()) {
                const QByteArray saved = files.value(s.backup, kMissing);
                const int b = int(bytes.indexOf(saved));
                QVERIFY2(saved == kMissing || b >= 0, qPrintable(after + "the backup is torn"));
                QVERIFY2(b != (bytes.indexOf(now) + 1) % kContents,
                         qPrintable(after + "the backup is newer"));
            }
            // Until the rename puts the new content in place, the save is writing.
            aim.Record(killed.began && now != bytes[next] ? Landed::DuringWrite
                                                          : Landed::AfterWrite);
            if (now == bytes[next])
                current = next;
        }
        qInfo("%s: %s", s.procedure, qPrintable(aim.Summary()));

        // A save that runs to its end makes the old file the backup and replaces whatever the
        // kills left behind.
        const int next = (current + 1) % kContents;
        s.save(folder, next);
        VERIFY_DIALOGS(folder.dialogs);
        const FolderFiles files = ReadFolderFiles(dir.path());
        QCOMPARE(files.value(s.file), bytes[next]);
        if (!s.backup.isEmpty()) {
            QCOMPARE(files.value(s.backup), bytes[current]);
            names.append(s.backup);
            names.sort();
        }
        QCOMPARE(files.keys(), names);
        kills_ += aim.Kills();
        killsDuringWrite_ += aim.DuringWrite();
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
    // folder's permissions apply; a full disk is a small tmpfs of the child's own, filled up
    // after the data folder was copied onto it.
    void failedSaveReportsAndKeepsOldFile() {
        QFETCH(int, store);
        QFETCH(bool, fullDisk);
        QFETCH(int, number);
        QFETCH(QString, description);
        const Store& s = kStores[store];
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("data"));
        const QString disk = dir.filePath(QStringLiteral("disk"));
        QVERIFY(QDir().mkdir(path) && QDir().mkdir(disk));
        Folder folder(path);
        s.save(folder, 0);
        s.save(folder, 1);
        const FolderFiles before = ReadFolderFiles(path);
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
            QString saving = path;
            if (fullDisk) {
                if (!MountSmallDisk(disk, 1024))
                    _exit(6);
                saving = disk + QStringLiteral("/data");
                if (!RestoreFolderFiles(saving, before) ||
                    !FillDisk(disk + QStringLiteral("/filler")))
                    _exit(5);
            } else if (::geteuid() == 0) {
                if (::setgroups(0, nullptr) != 0 || ::setgid(kNobody) != 0 ||
                    ::setuid(kNobody) != 0)
                    _exit(5);
            }
            if (!fullDisk && ::access(QFile::encodeName(path).constData(), W_OK) == 0)
                _exit(7);
            Folder failing(saving);
            s.save(failing, 2);
            FolderFiles after = ReadFolderFiles(saving);
            after.remove(QStringLiteral("Error.log"));
            QFile report;
            report.open(channel[1], QIODevice::WriteOnly);
            QDataStream out(&report);
            out << failing.dialogs.shown() << after;
            report.close();
            _exit(0);
        }
        ::close(channel[1]);
        QFile report;
        report.open(channel[0], QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
        QDataStream reported(report.readAll());
        report.close();
        int status = 0;
        QCOMPARE(::waitpid(child, &status, 0), child);
        SetFoldersWritable(path, true);
        QVERIFY(WIFEXITED(status));
        if (WEXITSTATUS(status) == 6)
            QSKIP(
                "this machine allows no tmpfs to be mounted (as root, or in a user namespace "
                "of one's own): no real full disk to try");
        if (WEXITSTATUS(status) == 7)
            QSKIP("folder permissions do not apply to this user");
        QCOMPARE(WEXITSTATUS(status), 0);
        QStringList shown;
        FolderFiles after;
        reported >> shown >> after;

        // The report, then the log that cannot be written either.
        const QString message = folder.services.ErrorReport(s.procedure, number, description);
        QCOMPARE(shown.join(u'\n'), QStringLiteral("Program Error | ") + message +
                                        QStringLiteral("\n | Error writing to Error.log."));
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
