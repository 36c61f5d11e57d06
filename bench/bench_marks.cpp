// The marks store against the plain cost of its bytes. A data folder gets a year in which
// every day is marked and carries a hover note (the largest marks file a user can make);
// reading it into the tables is timed beside reading the same file's bytes, and saving it
// (backup rename and write) beside writing the same bytes to a file.
//
//   build/bench/bench_marks [rounds]
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

#include "calendar/DateModel.h"
#include "calendar/MarkerColors.h"
#include "calendar/modMarks.h"
#include "shell/Services.h"
#include "shell/TextFile.h"

#include "QuietDialogs.h"
namespace {

// Median time of one run of work, in microseconds.
double MedianMicros(int rounds, const std::function<void()>& work) {
    std::vector<double> times;
    for (int i = 0; i < rounds; ++i) {
        QElapsedTimer timer;
        timer.start();
        work();
        times.push_back(timer.nsecsElapsed() / 1000.0);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

void Report(const char* what, double store, double plain) {
    std::printf("%-28s store %8.1f us   plain %8.1f us   ratio %5.2f\n", what, store, plain,
                store / plain);
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    const int rounds = argc > 1 ? std::max(1, atoi(argv[1])) : 200;
    QTemporaryDir dir;
    QuietDialogs dialogs;
    SystemClock clock;
    NoDesktop platform;
    Services services(dir.path(), dialogs, clock, platform);
    DateModel dates;
    dates.SelectDate(QDate(2026, 6, 15));
    MarkerColors colors;
    DateMarks marks(services, dates, colors);

    int day = 0;
    dates.DateHolder.ForEach([&](const CellIndex& cell, const QString& text) {
        if (text == kBlankDay)
            return;
        marks.MarkSet[cell] = -1;
        marks.MarkCategory[cell] = static_cast<qint32>(colors.Color(day % 12));
        marks.HoverText[cell] =
            QStringLiteral("Meeting with the team - room %1, bring notes").arg(day);
        ++day;
    });
    marks.SaveThisYearsMarks();
    const QString path = services.PathOf(DateMarks::FileName(2026));
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    const QByteArray bytes = file.readAll();
    file.close();
    std::printf("marks file: %d days, %lld bytes, %d rounds\n", day,
                static_cast<long long>(bytes.size()), rounds);

    const double read = MedianMicros(rounds, [&] { marks.ReadAndDisplayThisYearsMarks(); });
    const double readPlain = MedianMicros(rounds, [&] {
        QFile plain(path);
        plain.open(QIODevice::ReadOnly);
        volatile qsizetype size = plain.readAll().size();
        (void)size;
    });
    Report("read a year of marks", read, readPlain);

    const QString plainPath = dir.filePath(QStringLiteral("plain.dat"));
    const double save = MedianMicros(rounds, [&] { marks.SaveThisYearsMarks(); });
    const double savePlain = MedianMicros(rounds, [&] {
        QFile plain(plainPath);
        plain.open(QIODevice::WriteOnly);
        plain.write(bytes);
    });
    Report("save a year of marks", save, savePlain);
    return 0;
}
