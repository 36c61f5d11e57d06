// The notes, planner and marks stores on a full data folder (see bench_gen_data_folder),
// against the plain cost of the same bytes, all measured in one run:
//
//  - the change of year: the selected date moves between two distant years, so that every
//    move reads this year's and next year's notes, planner pages and marks; against reading
//    the same six files with QFile::readAll, and against `cat` of them as a process;
//  - where a change of year spends its time: the date holders, each store, and for the
//    planner and notes files each step (bytes, decoding, line splitting, taking lines
//    apart, extracts), beside the prototype reader of dated_reader_prototype.h, which builds
//    the same entries;
//  - saving a full planner year against writing the same bytes with QFile, without and with
//    a sync to disk (the store's save syncs), and the encoding it does beside the prototype's;
//  - memory: the peak resident size of a process that loads two full years against the same
//    process on an empty data folder, with the stores and with the prototype's ways of holding
//    the same text.
//
//   build/bench/bench_notes_planner DIR [rounds]
//   build/bench/bench_notes_planner --load-only YEAR DIR stores|prototype|bytes|codec
//       (the memory probe, which the benchmark runs as a child)
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
#include "dated_reader_prototype.h"
#include "shell/DateFormats.h"
#include "shell/Files.h"
#include "shell/SafeSave.h"
#include "shell/TextFile.h"

extern char** environ;

namespace {

// Counts the boxes the stores show; a box other than a save's confirmation is an error the
// run must not hide.
class CountingDialogs final : public Dialogs {
public:
    int MsgBox(const QString& text, int, const QString&) override {
        if (text == kPlannerRecordsUpdatedMessage || text == kPlannerSavedMessage) {
            ++confirmations;
        } else {
            ++unexpected;
            std::fprintf(stderr, "unexpected message: %s\n", qPrintable(text));
        }
        return vb::OK;
    }
    QString InputBox(const QString&, const QString&, const QString&) override { return {}; }
    QString OpenFileName(const QString&, const QString&, const QString&) override { return {}; }
    QString SaveFileName(const QString&, const QString&, const QString&) override { return {}; }
    std::optional<quint32> PickColor(quint32, const QString&) override { return {}; }

    int confirmations = 0;
    int unexpected = 0;
};

class NoPlatform final : public Platform {
public:
    bool OpenUrl(const QString&) override { return false; }
    void Beep() override {}
    bool PrinterPresent() override { return false; }
    void SetClipboardText(const QString&) override {}
    void CreateShortcut(const QString&, const QString&, const QStringList&) override {}
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

double MedianMicros(int rounds, const Work& work) {
    return Medians(rounds, {work})[0];
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

bool SameEntries(const DatedEntries& a, const DatedEntries& b) {
    return a.dateKeys == b.dateKeys && a.cellCodes == b.cellCodes && a.payloads == b.payloads &&
           a.exists == b.exists;
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

// The two years as a change of year leaves them, read the prototype's way.
struct PrototypeState {
    DateHolderGrid holder{kBlankDay};
    DateHolderGrid nextHolder{kBlankDay};
    YearPair<DatedEntries> notes;
    YearPair<DatedEntries> planner;
    QList<PlannerExtract> extracts;
    YearPair<MarkTables> marks;
};

// A change of year done the prototype's way: both date holders, both years' notes, planner
// pages and marks, and this year's extracts when asked. Each file is found as the stores
// find it (in any letter case) and read with the prototype reader.
void PrototypeSwitch(const QString& appFolder, int year, PrototypeState& s, bool extracts) {
    prototype::FillHolder(s.holder, year, kBlankDay);
    prototype::FillHolder(s.nextHolder, year + 1, kBlankDay);
    for (Year y : {Year::This, Year::Next}) {
        const int number = year + (y == Year::Next ? 1 : 0);
        QString path;
        s.notes[y].Clear();
        if (FileExists(appFolder, YearFileName(number, kNotesFile), &path))
            prototype::ReadDated(path, s.notes[y]);
        s.planner[y].Clear();
        if (FileExists(appFolder, YearFileName(number, kPlannerFile), &path))
            prototype::ReadDated(path, s.planner[y]);
        MarkTables& tables = s.marks[y];
        tables.Clear();
        if (FileExists(appFolder, DateMarks::FileName(number), &path)) {
            prototype::ForEachLine(
                prototype::ReadBytes(path), [&](const char* line, qsizetype size) {
                    const MarkLine mark = ParseMarkLine(prototype::Decode(line, size));
                    tables.set[mark.cell] = -1;
                    tables.category[mark.cell] = mark.color;
                    if (!mark.hover.isEmpty())
                        tables.hover[mark.cell] = mark.hover;
                });
        }
    }
    s.extracts.clear();
    if (extracts) {
        const DatedEntries& pages = s.planner[Year::This];
        s.extracts.reserve(pages.Count());
        for (const QString& record : pages.payloads)
            s.extracts.append(ExtractOf(record));
    }
}

bool SameExtract(const PlannerExtract& a, const PlannerExtract& b) {
    return a.hasExpenses == b.hasExpenses && a.hasMileage == b.hasMileage &&
           a.descriptions == b.descriptions && a.amounts == b.amounts &&
           a.destinations == b.destinations && a.begins == b.begins && a.ends == b.ends &&
           a.miles == b.miles;
}

// Whether the prototype holds what the program's state holds after the same change of year.
bool SameState(const ProgramState& state, const PrototypeState& fast) {
    bool same = state.dates.DateHolder == fast.holder &&
                state.dates.NextDateHolder == fast.nextHolder &&
                state.planner.extracts.size() == fast.extracts.size();
    for (Year y : {Year::This, Year::Next}) {
        const MarkTables& a = state.marks.years[y];
        const MarkTables& b = fast.marks[y];
        same = same && SameEntries(state.notes.years[y], fast.notes[y]) &&
               SameEntries(state.planner.years[y], fast.planner[y]) && a.set == b.set &&
               a.category == b.category && a.hover == b.hover;
    }
    for (qsizetype i = 0; same && i < fast.extracts.size(); ++i)
        same = SameExtract(state.planner.extracts[i], fast.extracts[i]);
    return same;
}

// How the memory probe holds the two years.
enum class Holding {
    // The program's own state and stores.
    Stores,
    // The same entries (and this year's extracts), read with the prototype reader.
    Prototype,
    // Planner records kept as their file bytes, no extracts; notes as with the prototype.
    RecordBytes,
    // Nothing loaded; only the windows-1252 codec opened once, as any read opens it.
    CodecOnly,
};

const char* NameOf(Holding holding) {
    switch (holding) {
        case Holding::Stores:
            return "stores";
        case Holding::Prototype:
            return "prototype";
        case Holding::RecordBytes:
            return "bytes";
        case Holding::CodecOnly:
            return "codec";
    }
    return "";
}

// The memory probe: the two years from year on, held as holding says, then the resident
// size now and at the peak, and the planner pages held, on stdout.
int LoadOnly(const QString& dir, int year, const QString& how) {
    CountingDialogs dialogs;
    SystemClock clock;
    NoPlatform platform;
    ProgramState state(dir, dialogs, clock, platform);
    qsizetype pages = 0;
    // Entries read outside the stores; the marks are read by their store in every case.
    YearPair<DatedEntries> notes;
    YearPair<DatedEntries> planner;
    QList<PlannerExtract> extracts;
    std::array<QList<QByteArray>, 2> records;
    if (how == QLatin1String(NameOf(Holding::CodecOnly))) {
        textfile::Encode(textfile::Decode(QByteArrayLiteral("\x80")));
    } else if (how == QLatin1String(NameOf(Holding::Stores))) {
        state.dates.SelectDate(QDate(year, 6, 15));
        pages = state.planner.years[Year::This].Count() + state.planner.years[Year::Next].Count();
    } else {
        DateModel dates;
        DateMarks marks(state.services, dates, state.markerColors);
        dates.AddYearStore(&marks);
        dates.SelectDate(QDate(year, 6, 15));
        for (Year y : {Year::This, Year::Next}) {
            const int number = dates.YearOf(y);
            prototype::ReadDated(state.services.PathOf(YearFileName(number, kNotesFile)), notes[y]);
            const QString plannerPath = state.services.PathOf(YearFileName(number, kPlannerFile));
            if (how == QLatin1String(NameOf(Holding::Prototype))) {
                prototype::ReadDated(plannerPath, planner[y]);
                pages += planner[y].Count();
            } else {
                QList<QByteArray>& kept = records[y == Year::Next];
                prototype::ForEachLine(
                    prototype::ReadBytes(plannerPath),
                    [&](const char* line, qsizetype size) { kept.append(QByteArray(line, size)); });
                pages += kept.size();
            }
        }
        for (const QString& record : planner[Year::This].payloads)
            extracts.append(ExtractOf(record));
    }
    std::printf("%ld %ld %lld\n", StatusKb("VmRSS:"), StatusKb("VmHWM:"),
                static_cast<long long>(pages));
    return dialogs.unexpected == 0 ? 0 : 1;
}

struct Probe {
    long waitMaxRssKb = 0;
    long rssKb = 0;
    long peakKb = 0;
    long pages = 0;
};

Probe RunProbe(const QString& dir, int year, Holding holding) {
    const std::string self =
        QFile::encodeName(QCoreApplication::applicationFilePath()).toStdString();
    const Child child = Run({self, "--load-only", std::to_string(year),
                             QFile::encodeName(dir).toStdString(), NameOf(holding)},
                            true);
    Probe probe;
    probe.waitMaxRssKb = child.maxRssKb;
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

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    // Lines in order with the error messages.
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    if (argc == 5 && std::string(argv[1]) == "--load-only")
        return LoadOnly(QString::fromLocal8Bit(argv[3]), std::atoi(argv[2]),
                        QString::fromLatin1(argv[4]));
    if (argc < 2) {
        std::fprintf(stderr,
                     "usage: %s DIR [rounds]\n"
                     "       %s --load-only YEAR DIR stores|prototype|bytes|codec\n",
                     argv[0], argv[0]);
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
    const QDate dateA(yearA, 6, 15);
    const QDate dateB(yearB, 6, 15);
    const QStringList filesA = FilesOfTwoYears(dir, yearA);
    const QStringList filesB = FilesOfTwoYears(dir, yearB);
    double load[3] = {};
    if (::getloadavg(load, 3) > 0)
        std::printf("load average before the run: %.2f (this machine has %ld cores)\n", load[0],
                    ::sysconf(_SC_NPROCESSORS_ONLN));
    std::printf("data folder %s: years %d-%d, switching between %d and %d, %d rounds\n",
                qPrintable(dir), years.first(), years.last(), yearA, yearB, rounds);
    std::printf("files read by a switch into %d: %.2f MB; into %d: %.2f MB\n", yearA,
                SizeOf(filesA) / 1e6, yearB, SizeOf(filesB) / 1e6);

    // The memory probes run first, while this process is small: a child's peak as wait4
    // reports it is never below the parent's size when it was spawned.
    QTemporaryDir empty;
    struct ProbePair {
        Holding holding;
        Probe full;
        Probe none;
    };
    std::vector<ProbePair> probes;
    for (Holding holding : {Holding::Stores, Holding::Prototype, Holding::RecordBytes})
        probes.push_back(
            {holding, RunProbe(dir, yearA, holding), RunProbe(empty.path(), yearA, holding)});
    const Probe codec = RunProbe(empty.path(), yearA, Holding::CodecOnly);

    CountingDialogs dialogs;
    SystemClock clock;
    NoPlatform platform;
    ProgramState state(dir, dialogs, clock, platform);
    state.dates.SelectDate(dateB);

    // ---- the change of year ------------------------------------------------------------
    std::printf("\nchange of year (both years' notes, planner pages and marks)\n");
    const auto target = [&](int round) { return round % 2 == 0 ? dateA : dateB; };
    const auto files = [&](int round) { return round % 2 == 0 ? filesA : filesB; };
    // Each round moves to the year the previous round left (the state starts on year B); the
    // prototype and the plain readers take the files of the same two years.
    PrototypeState fast;
    PrototypeState fastNoExtracts;
    const std::vector<double> switchTimes = Medians(
        rounds, {[&](int round) {
                     if (!state.dates.SelectDate(target(round)))
                         std::fprintf(stderr, "the year did not change\n");
                 },
                 [&](int round) {
                     PrototypeSwitch(state.services.AppFolder, target(round).year(), fast, true);
                 },
                 [&](int round) {
                     PrototypeSwitch(state.services.AppFolder, target(round).year(), fastNoExtracts,
                                     false);
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
    const double yearSwitch = switchTimes[0];
    const double fastSwitch = switchTimes[1];
    const double fastSwitchNoExtracts = switchTimes[2];
    const double readAll = switchTimes[3];
    const double cat = switchTimes[4];
    const double catNothing = switchTimes[5];

    // What a switch reads must be everything: a page, a note and a mark for every day.
    state.dates.SelectDate(dateA);
    PrototypeSwitch(state.services.AppFolder, yearA, fast, true);
    const qsizetype daysAB = QDate(yearA, 1, 1).daysInYear() + QDate(yearA + 1, 1, 1).daysInYear();
    qsizetype marked = 0;
    for (Year y : {Year::This, Year::Next})
        state.marks.years[y].set.ForEach([&](const CellIndex&, qint16 set) { marked += set != 0; });
    const qsizetype notesRead =
        state.notes.years[Year::This].Count() + state.notes.years[Year::Next].Count();
    const qsizetype pagesRead =
        state.planner.years[Year::This].Count() + state.planner.years[Year::Next].Count();
    std::printf("  read for %d-%d: %lld notes, %lld planner pages, %lld marks (%lld days)\n", yearA,
                yearA + 1, static_cast<long long>(notesRead), static_cast<long long>(pagesRead),
                static_cast<long long>(marked), static_cast<long long>(daysAB));
    if (notesRead != daysAB || pagesRead != daysAB || marked != daysAB) {
        std::fprintf(stderr, "the stores did not read every day: is the folder full?\n");
        return 1;
    }
    Report("year switch vs QFile::readAll", yearSwitch, readAll, "readAll");
    Report("year switch vs cat (process)", yearSwitch, cat, "cat");
    Line("  (cat of /dev/null: start-up only)", catNothing);
    std::printf("  target: year switch <= 2x cat -> %s\n",
                yearSwitch <= 2 * cat ? "met" : "MISSED");
    std::printf("  the prototype's way (dated_reader_prototype.h), measured alongside:\n");
    Report("prototype switch vs cat", fastSwitch, cat, "cat");
    Report("  and extracts made on demand", fastSwitchNoExtracts, cat, "cat");
    std::printf("  the prototype holds the same holders, entries, extracts and marks: %s\n",
                SameState(state, fast) ? "yes" : "NO");

    // ---- where a change of year goes -----------------------------------------------------
    std::printf("\nwhere a change of year goes (each store alone with its own date model)\n");
    // A date model of its own for each store, and one without a store.
    struct Alone {
        std::unique_ptr<Services> services;
        std::unique_ptr<DateModel> dates;
        std::unique_ptr<PerYearStore> store;
    };
    const MarkerColors colors;
    std::vector<Alone> alone(4);
    for (std::size_t i = 0; i < alone.size(); ++i) {
        Alone& setup = alone[i];
        setup.services = std::make_unique<Services>(dir, dialogs, clock, platform);
        setup.dates = std::make_unique<DateModel>();
        if (i == 1)
            setup.store = std::make_unique<NotesStore>(*setup.services, *setup.dates);
        else if (i == 2)
            setup.store = std::make_unique<PlannerStore>(*setup.services, *setup.dates);
        else if (i == 3)
            setup.store = std::make_unique<DateMarks>(*setup.services, *setup.dates, colors);
        if (setup.store)
            setup.dates->AddYearStore(setup.store.get());
        setup.dates->SelectDate(dateB);
    }
    std::vector<Work> aloneWorks;
    for (Alone& setup : alone)
        aloneWorks.push_back([&](int round) { setup.dates->SelectDate(target(round)); });
    const std::vector<double> aloneTimes = Medians(rounds, aloneWorks);
    const double holders = aloneTimes[0];
    const double notesAlone = aloneTimes[1];
    const double plannerAlone = aloneTimes[2];
    const double marksAlone = aloneTimes[3];
    Line("date holders (no store)", holders);
    Line("notes store, both years", notesAlone - holders);
    Line("planner store, both years", plannerAlone - holders);
    Line("marks store, both years", marksAlone - holders);

    // The date holders spend their time formatting "mm/dd/yy" through the date patterns.
    const int daysTwoYears = static_cast<int>(daysAB);
    const QDate firstDay(yearA, 1, 1);
    const std::vector<double> keyTimes =
        Medians(rounds, {[&](int) {
                             for (int d = 0; d < daysTwoYears; ++d)
                                 datefmt::MmDdYy(firstDay.addDays(d));
                         },
                         [&](int) {
                             for (int d = 0; d < daysTwoYears; ++d)
                                 prototype::MmDdYy(firstDay.addDays(d));
                         }});
    const double keysByPattern = keyTimes[0];
    const double keysByHand = keyTimes[1];
    bool sameKeys = true;
    for (int d = 0; d < daysTwoYears; ++d)
        sameKeys &= prototype::MmDdYy(firstDay.addDays(d)) == datefmt::MmDdYy(firstDay.addDays(d));
    Report("mm/dd/yy of two years, by hand", keysByHand, keysByPattern, "by pattern");
    std::printf("  the same keys: %s\n", sameKeys ? "yes" : "NO");

    // One year's file, step by step as ReadDatedFile and the store take it, and the
    // prototype reader on the same file. Returns what the prototype saves on one file.
    const auto steps = [&](const QString& name, bool withExtracts) {
        const QString relative = YearFileName(yearA, name);
        const QString path = state.services.PathOf(relative);
        const QByteArray bytes = ReadBytes(path);
        const QString text = textfile::Decode(bytes);
        const QStringList lines = textfile::SplitLines(text);
        std::printf("\n%s of %d, %.2f MB, %lld lines, step by step\n", qPrintable(name), yearA,
                    bytes.size() / 1e6, static_cast<long long>(lines.size()));
        DatedEntries entries;
        DatedEntries fast;
        const std::vector<double> stepTimes = Medians(
            rounds, {[&](int) {
                         QString real;
                         FileExists(state.services.AppFolder, relative, &real);
                     },
                     [&](int) { ReadBytes(path); }, [&](int) { textfile::Decode(bytes); },
                     [&](int) { textfile::SplitLines(text); },
                     [&](int) {
                         DatedEntries parsedEntries;
                         parsedEntries.dateKeys.reserve(lines.size());
                         parsedEntries.cellCodes.reserve(lines.size());
                         parsedEntries.payloads.reserve(lines.size());
                         for (const QString& line : lines) {
                             DatedLine parsed = ParseDatedLine(line);
                             parsedEntries.exists[parsed.cell] = true;
                             parsedEntries.dateKeys.append(std::move(parsed.dateKey));
                             parsedEntries.cellCodes.append(std::move(parsed.cellCode));
                             parsedEntries.payloads.append(std::move(parsed.payload));
                         }
                     },
                     [&](int) { ReadDatedFile(state.services.AppFolder, yearA, name, entries); },
                     [&](int) { prototype::Decode(bytes.constData(), bytes.size()); },
                     [&](int) { prototype::ReadDated(path, fast); }});
        const double exists = stepTimes[0];
        const double read = stepTimes[1];
        const double decode = stepTimes[2];
        const double split = stepTimes[3];
        const double parse = stepTimes[4];
        const double whole = stepTimes[5];
        const double fastDecode = stepTimes[6];
        const double fastRead = stepTimes[7];
        Line("find the file (any letter case)", exists);
        Line("read bytes (QFile::readAll)", read);
        Line("decode windows-1252 (QStringDecoder)", decode);
        Line("split lines (a QString per line)", split);
        Line("take lines apart (3 QStrings each)", parse);
        if (withExtracts) {
            const double extractsTime = MedianMicros(rounds, [&](int) {
                QList<PlannerExtract> extracts;
                extracts.reserve(entries.Count());
                for (const QString& record : entries.payloads)
                    extracts.append(ExtractOf(record));
            });
            Line("extracts (this year only)", extractsTime);
        }
        Line("ReadDatedFile as a whole", whole);
        const bool same = prototype::Decode(bytes.constData(), bytes.size()) == text &&
                          prototype::ReadDated(path, fast) && SameEntries(fast, entries);
        std::printf("  prototype reader (bytes split first, one copy per field):\n");
        Report("decode, Latin-1 + C1 table", fastDecode, decode, "decoder");
        Report("read into entries", fastRead, whole, "ReadDatedFile");
        Report("read into entries vs readAll", fastRead, read, "readAll");
        std::printf("  the same characters and entries: %s\n", same ? "yes" : "NO");
    };
    steps(kPlannerFile, true);
    steps(kNotesFile, false);

    // ---- saving a full planner year --------------------------------------------------------
    std::printf("\nsaving a full planner year (%d)\n", yearA);
    const QString plannerPath = state.services.PathOf(YearFileName(yearA, kPlannerFile));
    const QByteArray before = ReadBytes(plannerPath);
    // The save writes the same lines as were read; the plain writers get those bytes, each
    // round into a new file as the save makes one (a file written over would first be cut).
    const QString plainPath = dir + QStringLiteral("/bench-plain-%1.dat");
    const QString syncedPath = dir + QStringLiteral("/bench-synced-%1.dat");
    const QString safePath = dir + QStringLiteral("/bench-safe.dat");
    const DatedEntries& year = state.planner.years[Year::This];
    bool fastSaved = true;
    const std::vector<double> saveTimes = Medians(
        rounds,
        {[&](int) {
             if (!state.planner.SaveThisYearsPlannerFile())
                 std::fprintf(stderr, "the planner was not saved\n");
         },
         // The prototype's save: the same checks for the folder and the file's
         // spelling, the bytes made straight from the entries, the same safe save.
         [&](int) {
             QString folder;
             FolderExists(dialogs, state.services.AppFolder, YearFolderName(yearA), &folder);
             const QString path = PathForWriting(folder, QStringLiteral("bench-prototype.dat"));
             const auto fastBytes = prototype::DatedFileBytes(
                 year, [&](qsizetype i) { return !IsBlankRecord(year.payloads[i]); });
             if (fastBytes)
                 safesave::Replace(path, *fastBytes);
             fastSaved = fastSaved && fastBytes && *fastBytes == before;
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
         },
         // The same bytes with the store's durability, through the library's own
         // safe save: a new file, synced, renamed over the old, the folder synced.
         [&](int) { safesave::Replace(safePath, before); }},
        // Each write starts on a file system with nothing left to write back: the bytes a
        // write without a sync leaves behind would otherwise go to disk with the next sync.
        [&] { SyncFileSystem(dir); });
    const double save = saveTimes[0];
    const double fastSave = saveTimes[1];
    const double plain = saveTimes[2];
    const double plainSync = saveTimes[3];
    const double safeOnly = saveTimes[4];
    for (int round = 0; round < rounds; ++round) {
        QFile::remove(plainPath.arg(round));
        QFile::remove(syncedPath.arg(round));
    }
    QFile::remove(safePath);
    QFile::remove(
        state.services.PathOf(YearFileName(yearA, QStringLiteral("bench-prototype.dat"))));
    const QByteArray bytes = ReadBytes(plannerPath);
    std::printf("  %.2f MB; the saved file is byte for byte the file read: %s\n",
                bytes.size() / 1e6, bytes == before ? "yes" : "NO");
    // What the save does before it writes: every line formatted, then encoded.
    QString content;
    const double format = MedianMicros(rounds, [&](int) {
        content.clear();
        for (qsizetype i = 0; i < year.Count(); ++i) {
            if (IsBlankRecord(year.payloads[i]))
                continue;
            content += FormatDatedLine(year.dateKeys[i], year.cellCodes[i], year.payloads[i]);
            content += QLatin1String("\r\n");
        }
    });
    const std::vector<double> encodeTimes = Medians(
        rounds,
        {[&](int) { textfile::Encode(content); }, [&](int) { prototype::Encode(content); }});
    const double encode = encodeTimes[0];
    const double fastEncode = encodeTimes[1];
    const std::optional<QByteArray> fastBytes = prototype::Encode(content);
    Report("save vs plain write", save, plain, "write");
    Report("save vs write + fsync", save, plainSync, "write+fsync");
    Report("save vs safe save of the bytes", save, safeOnly, "safesave");
    Line("  of which: format the lines", format);
    Line("  of which: encode (QStringEncoder)", encode);
    Report("encode by table vs QStringEncoder", fastEncode, encode, "encoder");
    std::printf("  the same bytes: %s\n", fastBytes && *fastBytes == bytes ? "yes" : "NO");
    std::printf("  target: save <= 3x plain write -> %s; <= 3x write + fsync -> %s\n",
                save <= 3 * plain ? "met" : "MISSED", save <= 3 * plainSync ? "met" : "MISSED");
    std::printf("  the prototype's way, measured alongside (the same bytes: %s):\n",
                fastSaved ? "yes" : "NO");
    Report("prototype save vs plain write", fastSave, plain, "write");
    Report("prototype save vs write + fsync", fastSave, plainSync, "write+fsync");

    // ---- memory ----------------------------------------------------------------------------
    const double fileMb = SizeOf(filesA) / 1e6;
    std::printf(
        "\nmemory: a process that holds %d-%d against the same process on an empty"
        " data folder; the two years' files are %.2f MB\n",
        yearA, yearA + 1, fileMb);
    for (const ProbePair& probe : probes) {
        const double peak = Mb(probe.full.peakKb - probe.none.peakKb);
        const double held = Mb(probe.full.rssKb - probe.none.rssKb);
        std::printf(
            "  %-9s max RSS %6.1f MB (empty %5.1f)  delta %6.2f MB  ratio %5.2f   "
            "RSS once loaded: delta %6.2f MB  ratio %5.2f   (%ld pages)\n",
            NameOf(probe.holding), Mb(probe.full.peakKb), Mb(probe.none.peakKb), peak,
            peak / fileMb, held, held / fileMb, probe.full.pages);
    }
    std::printf("  (of the delta, opening the windows-1252 codec alone: %.2f MB)\n",
                Mb(codec.peakKb - probes.front().none.peakKb));
    const Probe& stores = probes.front().full;
    std::printf("  (wait4's max RSS of the stores' probe: %.1f MB, empty %.1f MB)\n",
                Mb(stores.waitMaxRssKb), Mb(probes.front().none.waitMaxRssKb));
    const double storesPeak = Mb(stores.peakKb - probes.front().none.peakKb);
    std::printf("  target: max RSS delta <= 2x the files -> %s\n",
                storesPeak <= 2 * fileMb ? "met" : "MISSED");

    if (dialogs.unexpected != 0) {
        std::fprintf(stderr, "%d unexpected messages\n", dialogs.unexpected);
        return 1;
    }
    return 0;
}
