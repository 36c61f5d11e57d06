// The notes, planner and marks stores on a full data folder (see bench_gen_data_folder),
// against the plain cost of the same bytes, all measured in one run:
//
//  - the change of year: the selected date moves between two distant years, so that every
//    move reads this year's and next year's notes, planner pages and marks; against reading
//    the same six files with QFile::readAll, and against `cat` of them as a process;
//  - where a change of year spends its time: the date holders and each store alone;
//  - saving a full planner year against writing the same bytes with QFile, without and with
//    a sync to disk (the store's save syncs the file and its folder);
//  - memory: the peak resident size of a process that loads two full years against the same
//    process on an empty data folder.
//
//   build/bench/bench_notes_planner DIR [rounds]
//   build/bench/bench_notes_planner --load-only YEAR DIR   (the memory probe, run as a child)
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "app/ProgramState.h"
#include "shell/DateFormats.h"
#include "shell/Files.h"
#include "shell/SafeSave.h"
#include "shell/TextFile.h"

extern char** environ;

#include "QuietDialogs.h"
namespace {

// Counts the boxes the stores show; a box other than a save's confirmation is an error the
// run must not hide.
// Counts the planner's save confirmations apart from the messages nobody expects.
class CountingDialogs final : public QuietDialogs {
public:
    int MsgBox(const QString& text, int style, const QString& title) override {
        if (text != kPlannerRecordsUpdatedMessage && text != kPlannerSavedMessage)
            return QuietDialogs::MsgBox(text, style, title);
        ++confirmations;
        return vb::OK;
    }

    int confirmations = 0;
};

using Work = std::function<void(int round)>;

// The median time of one run of each work, in microseconds. The works take turns, round by
// round, so that load from elsewhere on the machine falls on all of them alike. round counts
// a work's runs from 0, so that a work can alternate between two inputs. settle, untimed, runs
// after each work.
std::vector<double> Medians(int rounds, const std::vector<Work>& works,
                            const std::function<void()>& settle = {}) {
    std::vector<std::vector<double>> times(works.size());
    for (int i = 0; i < rounds; ++i) {
        for (std::size_t w = 0; w < works.size(); ++w) {
            QElapsedTimer timer;
            timer.start();
            works[w](i);
            times[w].push_back(timer.nsecsElapsed() / 1000.0);
            if (settle)
                settle();
        }
    }
    std::vector<double> medians;
    for (std::vector<double>& runs : times) {
        std::sort(runs.begin(), runs.end());
        medians.push_back(runs[runs.size() / 2]);
    }
    return medians;
}

void Report(const char* what, double store, double plain, const char* plainName = "plain") {
    std::printf("  %-34s %9.1f us   %-14s %9.1f us   ratio %6.2f\n", what, store, plainName, plain,
                store / plain);
}

void Line(const char* what, double micros) {
    std::printf("  %-34s %9.1f us\n", what, micros);
}

QByteArray ReadBytes(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return file.readAll();
}

// Writes back everything the file system holding dir has yet to write.
void SyncFileSystem(const QString& dir) {
    const int fd = ::open(QFile::encodeName(dir).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd >= 0) {
        ::syncfs(fd);
        ::close(fd);
    }
}

// The files a change into year reads: its and the next year's notes, planner and marks.
QStringList FilesOfTwoYears(const QString& dir, int year) {
    QStringList paths;
    for (int y = year; y <= year + 1; ++y) {
        const QString folder = dir + QLatin1Char('/') + YearFolderName(y) + QLatin1Char('/');
        paths << folder + kNotesFile << folder + kPlannerFile
              << dir + QLatin1Char('/') + DateMarks::FileName(y);
    }
    return paths;
}

qint64 SizeOf(const QStringList& paths) {
    qint64 size = 0;
    for (const QString& path : paths)
        size += QFileInfo(path).size();
    return size;
}

// A child process: its exit status, its peak resident size and what it wrote to stdout.
struct Child {
    int status = -1;
    long maxRssKb = 0;
    QByteArray output;
};

// Runs args (looked up on PATH), its stdout captured or sent to /dev/null, and waits for it.
Child Run(const std::vector<std::string>& args, bool captureOutput) {
    Child child;
    std::vector<char*> argv;
    for (const std::string& arg : args)
        argv.push_back(const_cast<char*>(arg.c_str()));
    argv.push_back(nullptr);
    int pipeFds[2] = {-1, -1};
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    if (captureOutput) {
        if (::pipe(pipeFds) != 0)
            return child;
        posix_spawn_file_actions_adddup2(&actions, pipeFds[1], 1);
        posix_spawn_file_actions_addclose(&actions, pipeFds[0]);
        posix_spawn_file_actions_addclose(&actions, pipeFds[1]);
    } else {
        posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
    }
    pid_t pid = 0;
    const int failed = posix_spawnp(&pid, argv[0], &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (captureOutput) {
        ::close(pipeFds[1]);
        char buffer[4096];
        for (ssize_t n; !failed && (n = ::read(pipeFds[0], buffer, sizeof buffer)) != 0;)
            if (n > 0)
                child.output.append(buffer, n);
        ::close(pipeFds[0]);
    }
    if (failed)
        return child;
    struct rusage usage {};
    ::wait4(pid, &child.status, 0, &usage);
    child.maxRssKb = usage.ru_maxrss;
    return child;
}

std::vector<std::string> CatCommand(const QStringList& paths) {
    std::vector<std::string> args{"cat"};
    for (const QString& path : paths)
        args.push_back(QFile::encodeName(path).toStdString());
    return args;
}

// The years of the data folder that have a year folder.
QList<int> YearsIn(const QString& dir) {
    static const QRegularExpression fourDigits(QStringLiteral("^\\d{4}$"));
    QList<int> years;
    for (const QString& entry : QDir(dir).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        if (fourDigits.match(entry).hasMatch())
            years.append(entry.toInt());
    std::sort(years.begin(), years.end());
    return years;
}

long StatusKb(const char* field) {
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith(field))
            return line.mid(static_cast<qsizetype>(std::strlen(field)))
                .trimmed()
                .split(' ')[0]
                .toLong();
    return -1;
}

// The memory probe: the program's state moved into year (both years loaded), then the
// resident size now and at the peak, and the planner pages held, on stdout.
int LoadOnly(const QString& dir, int year) {
    CountingDialogs dialogs;
    SystemClock clock;
    NoDesktop platform;
    ProgramState state(dir, dialogs, clock, platform);
    state.dates.SelectDate(QDate(year, 6, 15));
    const qsizetype pages =
        state.planner.years[Year::This].Count() + state.planner.years[Year::Next].Count();
    std::printf("%ld %ld %lld\n", StatusKb("VmRSS:"), StatusKb("VmHWM:"),
                static_cast<long long>(pages));
    return dialogs.unexpected == 0 ? 0 : 1;
}

struct Probe {
    long rssKb = 0;
    long peakKb = 0;
    long pages = 0;
};

Probe RunProbe(const QString& dir, int year) {
    const std::string self =
        QFile::encodeName(QCoreApplication::applicationFilePath()).toStdString();
    const Child child = Run(
        {self, "--load-only", std::to_string(year), QFile::encodeName(dir).toStdString()}, true);
    Probe probe;
    const QList<QByteArray> fields = child.output.trimmed().split(' ');
    if (fields.size() == 3) {
        probe.rssKb = fields[0].toLong();
        probe.peakKb = fields[1].toLong();
        probe.pages = fields[2].toLong();
    }
    if (child.status != 0 || fields.size() != 3)
        std::fprintf(stderr, "memory probe on %s failed\n", qPrintable(dir));
    return probe;
}

double Mb(long kb) {
    return kb * 1024.0 / 1e6;
}

// The change of year, against reading the same files; false when it did not read every day.
bool BenchYearSwitch(ProgramState& state, const QString& dir, int rounds, int yearA, int yearB) {
    std::printf("\nchange of year (both years' notes, planner pages and marks)\n");
    const QDate dateA(yearA, 6, 15), dateB(yearB, 6, 15);
    const QStringList filesA = FilesOfTwoYears(dir, yearA), filesB = FilesOfTwoYears(dir, yearB);
    const auto target = [&](int round) { return round % 2 == 0 ? dateA : dateB; };
    const auto files = [&](int round) { return round % 2 == 0 ? filesA : filesB; };
    // Each round moves to the year the previous round left (the state starts on year B).
    state.dates.SelectDate(dateB);
    const std::vector<double> times =
        Medians(rounds, {[&](int round) {
                             if (!state.dates.SelectDate(target(round)))
                                 std::fprintf(stderr, "the year did not change\n");
                         },
                         [&](int round) {
                             qsizetype size = 0;
                             for (const QString& path : files(round))
                                 size += ReadBytes(path).size();
                             volatile qsizetype sink = size;
                             (void)sink;
                         },
                         [&](int round) {
                             if (Run(CatCommand(files(round)), false).status != 0)
                                 std::fprintf(stderr, "cat failed\n");
                         },
                         [&](int) {
                             Run({"cat", "/dev/null"}, false);
                         }});
    // What a switch reads must be everything: a page, a note and a mark for every day.
    state.dates.SelectDate(dateA);
    const qsizetype days = QDate(yearA, 1, 1).daysInYear() + QDate(yearA + 1, 1, 1).daysInYear();
    qsizetype marked = 0;
    for (Year y : {Year::This, Year::Next})
        state.marks.years[y].set.ForEach([&](const CellIndex&, qint16 set) { marked += set != 0; });
    const qsizetype notes =
        state.notes.years[Year::This].Count() + state.notes.years[Year::Next].Count();
    const qsizetype pages =
        state.planner.years[Year::This].Count() + state.planner.years[Year::Next].Count();
    std::printf("  read for %d-%d: %lld notes, %lld planner pages, %lld marks (%lld days)\n", yearA,
                yearA + 1, static_cast<long long>(notes), static_cast<long long>(pages),
                static_cast<long long>(marked), static_cast<long long>(days));
    Report("year switch vs QFile::readAll", times[0], times[1], "readAll");
    Report("year switch vs cat (process)", times[0], times[2], "cat");
    Line("  (cat of /dev/null: start-up only)", times[3]);
    std::printf("  target: year switch <= 2x cat -> %s\n",
                times[0] <= 2 * times[2] ? "met" : "MISSED");
    return notes == days && pages == days && marked == days;
}

// Each store alone, on a date model of its own; the first has no store at all.
void BenchEachStore(Services& services, int rounds, int yearA, int yearB) {
    std::printf("\nwhere a change of year goes (each store alone with its own date model)\n");
    const MarkerColors colors;
    std::vector<std::unique_ptr<DateModel>> models;
    std::vector<std::unique_ptr<PerYearStore>> stores;
    for (int i = 0; i < 4; ++i) {
        models.push_back(std::make_unique<DateModel>());
        DateModel& dates = *models.back();
        if (i == 1)
            stores.push_back(std::make_unique<NotesStore>(services, dates));
        else if (i == 2)
            stores.push_back(std::make_unique<PlannerStore>(services, dates));
        else if (i == 3)
            stores.push_back(std::make_unique<DateMarks>(services, dates, colors));
        if (i > 0)
            dates.AddYearStore(stores.back().get());
        dates.SelectDate(QDate(yearB, 6, 15));
    }
    std::vector<Work> works;
    for (auto& dates : models)
        works.push_back(
            [&](int round) { dates->SelectDate(QDate(round % 2 == 0 ? yearA : yearB, 6, 15)); });
    const std::vector<double> times = Medians(rounds, works);
    Line("date holders (no store)", times[0]);
    Line("notes store, both years", times[1] - times[0]);
    Line("planner store, both years", times[2] - times[0]);
    Line("marks store, both years", times[3] - times[0]);
}

// Saving a planner year against writing its bytes; false when the saved file differs.
bool BenchSave(ProgramState& state, const QString& dir, int rounds, int year) {
    std::printf("\nsaving a full planner year (%d)\n", year);
    state.dates.SelectDate(QDate(year, 6, 15));
    const QString plannerPath = state.services.PathOf(YearFileName(year, kPlannerFile));
    const QByteArray before = ReadBytes(plannerPath);
    // The plain writers get the same bytes, each round into a new file as the save makes one
    // (a file written over would first be cut).
    const QString plainPath = dir + QStringLiteral("/bench-plain-%1.dat");
    const QString syncedPath = dir + QStringLiteral("/bench-synced-%1.dat");
    const std::vector<double> times =
        Medians(rounds,
                {[&](int) {
                     if (!state.planner.SaveThisYearsPlannerFile())
                         std::fprintf(stderr, "the planner was not saved\n");
                 },
                 [&](int round) {
                     QFile file(plainPath.arg(round));
                     file.open(QIODevice::WriteOnly);
                     file.write(before);
                 },
                 [&](int round) {
                     QFile file(syncedPath.arg(round));
                     file.open(QIODevice::WriteOnly);
                     file.write(before);
                     file.flush();
                     ::fsync(file.handle());
                 }},
                // Each write starts on a file system with nothing left to write back: the bytes a
                // write without a sync leaves behind would otherwise go to disk with the next sync.
                [&] { SyncFileSystem(dir); });
    for (int round = 0; round < rounds; ++round) {
        QFile::remove(plainPath.arg(round));
        QFile::remove(syncedPath.arg(round));
    }
    const bool same = ReadBytes(plannerPath) == before;
    std::printf("  %.2f MB; the saved file is byte for byte the file read: %s\n",
                before.size() / 1e6, same ? "yes" : "NO");
    Report("save vs plain write", times[0], times[1], "write");
    Report("save vs write + fsync", times[0], times[2], "write+fsync");
    std::printf("  target: save <= 3x plain write -> %s; <= 3x write + fsync -> %s\n",
                times[0] <= 3 * times[1] ? "met" : "MISSED",
                times[0] <= 3 * times[2] ? "met" : "MISSED");
    return same;
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    if (argc == 4 && std::string(argv[1]) == "--load-only")
        return LoadOnly(QString::fromLocal8Bit(argv[3]), std::atoi(argv[2]));
    if (argc < 2) {
        std::fprintf(stderr, "usage: %s DIR [rounds]\n       %s --load-only YEAR DIR\n", argv[0],
                     argv[0]);
        return 2;
    }
    const QString dir = QDir(QString::fromLocal8Bit(argv[1])).absolutePath();
    const int rounds = argc > 2 ? std::max(2, std::atoi(argv[2])) : 31;
    // Two years far apart, each followed by a year that is in the folder too.
    const QList<int> years = YearsIn(dir);
    if (years.size() < 4 || years.last() - years.first() + 1 != years.size()) {
        std::fprintf(stderr, "%s needs at least four consecutive year folders\n", qPrintable(dir));
        return 2;
    }
    const int yearA = years[years.size() / 4];
    const int yearB = years[years.size() * 3 / 4 - 1];
    double load[3] = {};
    if (::getloadavg(load, 3) > 0)
        std::printf("load average before the run: %.2f (this machine has %ld cores)\n", load[0],
                    ::sysconf(_SC_NPROCESSORS_ONLN));
    std::printf("data folder %s: years %d-%d, switching between %d and %d, %d rounds\n",
                qPrintable(dir), years.first(), years.last(), yearA, yearB, rounds);
    // The memory probes run first, while this process is small: a child's peak as wait4
    // reports it is never below the parent's size when it was spawned.
    QTemporaryDir empty;
    const Probe full = RunProbe(dir, yearA);
    const Probe none = RunProbe(empty.path(), yearA);

    CountingDialogs dialogs;
    SystemClock clock;
    NoDesktop platform;
    ProgramState state(dir, dialogs, clock, platform);
    bool ok = BenchYearSwitch(state, dir, rounds, yearA, yearB);
    BenchEachStore(state.services, rounds, yearA, yearB);
    ok = BenchSave(state, dir, rounds, yearA) && ok;

    const double fileMb = SizeOf(FilesOfTwoYears(dir, yearA)) / 1e6;
    const double delta = Mb(full.peakKb - none.peakKb);
    std::printf("\nmemory: a process holding %d-%d (%ld pages) against one on an empty folder\n",
                yearA, yearA + 1, full.pages);
    std::printf("  files %.2f MB   max RSS %.1f MB (empty %.1f MB)   delta %.2f MB   ratio %.2f\n",
                fileMb, Mb(full.peakKb), Mb(none.peakKb), delta, delta / fileMb);
    std::printf("  target: max RSS delta <= 2x the files -> %s\n",
                delta <= 2 * fileMb ? "met" : "MISSED");
    if (!ok || dialogs.unexpected != 0) {
        std::fprintf(stderr, "the stores did not read or save every day as they should\n");
        return 1;
    }
    return 0;
}
