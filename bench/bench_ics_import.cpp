// The iCalendar import of a file of 10,000 timed events (14 appointments a day over 715 days of
// 2026 and 2027, as the export writes them) into an empty data folder, against the plain cost
// of reading the same bytes, measured in one run:
//
//  - the whole import: the file read, parsed and its events placed (the preview), then both
//    years' planner files written, into a fresh empty folder each round;
//  - the reading alone (ReadIcs: libical's parse and the events taken out);
//  - QFile::readAll of the file.
//
//   build/bench/bench_ics_import [rounds]
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

#include "app/ProgramState.h"
#include "ical/IcalTransfer.h"

#include "QuietDialogs.h"
namespace {

constexpr int kEvents = 10000;
constexpr int kPerDay = 14;

QByteArray TenThousandEvents() {
    CalendarData data;
    const QDate first(2026, 1, 1);
    for (int day = 0; day * kPerDay < kEvents; ++day) {
        PlannerPage page = NewPlannerPage();
        for (int line = 0; line < kPerDay && day * kPerDay + line < kEvents; ++line)
            page.slotTexts[line] =
                QStringLiteral("Meeting %1 about the quarterly figures").arg(line);
        data.pages << DatedPage{first.addDays(day), page};
    }
    return ExportToIcs(data, {}, QDateTime(first, QTime(8, 0))).bytes;
}

double Median(std::vector<double> runs) {
    std::sort(runs.begin(), runs.end());
    return runs[runs.size() / 2];
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    const int rounds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 5;
    QTemporaryDir scratch;
    const QString path = scratch.filePath(QStringLiteral("events.ics"));
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(TenThousandEvents()) < 0)
            return 1;
    }
    const DateRange range{QDate(2026, 1, 1), QDate(2027, 12, 31)};
    QuietDialogs dialogs;
    SystemClock clock;
    NoDesktop platform;
    std::vector<double> import, reading, plain;
    qsizetype events = 0;
    qsizetype pages = 0;
    for (int round = 0; round < rounds; ++round) {
        QTemporaryDir folder;
        ProgramState state(folder.path(), dialogs, clock, platform);
        QElapsedTimer timer;
        timer.start();
        QFile file(path);
        file.open(QIODevice::ReadOnly);
        const QByteArray bytes = file.readAll();
        const IcsContent content = ReadIcs(bytes, range, QTimeZone::systemTimeZone());
        const ImportPlan plan = PlanImport(state.services, content, AllDayAs::LeftOut);
        ApplyImport(
            {state.services, state.planner, state.notes, state.holidays, state.marks, state.dates},
            plan);
        import.push_back(timer.nsecsElapsed() / 1e6);
        events = content.events.size();
        pages = plan.pages.size();

        timer.restart();
        const IcsContent again = ReadIcs(bytes, range, QTimeZone::systemTimeZone());
        reading.push_back(timer.nsecsElapsed() / 1e6);

        timer.restart();
        QFile raw(path);
        raw.open(QIODevice::ReadOnly);
        const QByteArray same = raw.readAll();
        plain.push_back(timer.nsecsElapsed() / 1e6);
        if (same.size() != bytes.size() || again.events.size() != events)
            return 1;
    }
    std::printf("iCalendar import of %lld events (%lld pages, %.1f MB), median of %d rounds\n",
                static_cast<long long>(events), static_cast<long long>(pages),
                QFileInfo(path).size() / 1e6, rounds);
    const double bytes = Median(plain);
    std::printf("  whole import (read, place, write)  %8.1f ms   ratio to readAll %7.0f\n",
                Median(import), Median(import) / bytes);
    std::printf("  reading the file (ReadIcs)         %8.1f ms   ratio to readAll %7.0f\n",
                Median(reading), Median(reading) / bytes);
    std::printf("  QFile::readAll of the same bytes   %8.3f ms\n", bytes);
    return 0;
}
