// The expense and mileage reports of a whole year on a full data folder (see
// bench_gen_data_folder: every day a planner page with all six expense and five mileage lines
// filled), against the plain cost of the same bytes, all measured in one run:
//
//  - from a year already loaded into the planner store: the rows of each report, and the
//    expense report's CSV as the command line prints it, against one pass of memchr over the
//    year's Planner.dat bytes in memory;
//  - from the file, as every report is made: the year's file read afresh and its rows built,
//    and the monthly budget's spending (the expense report's total of each month), against
//    QFile::readAll of the same file.
//
//   build/bench/bench_reports DIR [rounds] [year]
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <functional>
#include <vector>

#include "app/ProgramState.h"
#include "reports/ReportText.h"
#include "reports/modBudget.h"

#include "QuietDialogs.h"
namespace {

// Any box is an error the run must not hide.
// The median time of one run of each work, in milliseconds. The works take turns, round by
// round, so that load from elsewhere on the machine falls on all of them alike.
std::vector<double> Medians(int rounds, const std::vector<std::function<void()>>& works) {
    std::vector<std::vector<double>> times(works.size());
    for (int i = 0; i < rounds; ++i) {
        for (std::size_t w = 0; w < works.size(); ++w) {
            QElapsedTimer timer;
            timer.start();
            works[w]();
            times[w].push_back(timer.nsecsElapsed() / 1e6);
        }
    }
    std::vector<double> medians;
    for (std::vector<double>& runs : times) {
        std::sort(runs.begin(), runs.end());
        medians.push_back(runs[runs.size() / 2]);
    }
    return medians;
}

void Line(const char* what, double ms, double plain, const char* plainName) {
    std::printf("  %-34s %8.3f ms   %-8s %8.3f ms   ratio %7.1f\n", what, ms, plainName, plain,
                ms / plain);
}

// The newlines of bytes: one plain pass over every byte.
qsizetype CountLines(const QByteArray& bytes) {
    qsizetype lines = 0;
    const char* at = bytes.constData();
    const char* const end = at + bytes.size();
    while ((at = static_cast<const char*>(std::memchr(at, '\n', end - at))) != nullptr) {
        ++lines;
        ++at;
    }
    return lines;
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    if (argc < 2) {
        std::fprintf(stderr, "usage: %s DIR [rounds] [year]\n", argv[0]);
        return 2;
    }
    const QString dir = QDir(QString::fromLocal8Bit(argv[1])).absolutePath();
    const int rounds = argc > 2 ? std::max(3, std::atoi(argv[2])) : 101;
    const int year = argc > 3 ? std::atoi(argv[3]) : 2015;
    const ReportPeriod wholeYear = MonthPeriod(0, year);

    QuietDialogs dialogs;
    SystemClock clock;
    NoDesktop platform;
    ProgramState state(dir, dialogs, clock, platform);
    state.dates.SelectDate(QDate(year, 6, 15));
    const DatedEntries& loaded = state.planner.years[Year::This];
    const QByteArray& bytes = loaded.fileBytes;
    const QString path = state.services.PathOf(YearFileName(year, kPlannerFile));
    std::printf("%s: %lld planner pages, %.2f MB, %d rounds\n", qPrintable(path),
                static_cast<long long>(loaded.Count()), bytes.size() / 1e6, rounds);

    double spent = 0;
    qsizetype expenseRows = 0, mileageRows = 0, csvSize = 0, lines = 0, freshRows = 0, readSize = 0;
    const std::vector<double> times = Medians(
        rounds,
        {[&] {
             expenseRows = BuildReportRows(ReportKind::Expenses, loaded, year, wholeYear).size();
         },
         [&] {
             mileageRows = BuildReportRows(ReportKind::Mileage, loaded, year, wholeYear).size();
         },
         [&] {
             const Report report{ReportKind::Expenses, wholeYear,
                                 BuildReportRows(ReportKind::Expenses, loaded, year, wholeYear)};
             csvSize = CsvText(report).toUtf8().size();
         },
         [&] { lines = CountLines(bytes); },
         [&] {
             DatedEntries entries;
             ReadDatedFile(state.services.AppFolder, year, kPlannerFile, entries);
             freshRows = BuildReportRows(ReportKind::Expenses, entries, year, wholeYear).size();
         },
         [&] {
             QFile file(path);
             file.open(QIODevice::ReadOnly);
             readSize = file.readAll().size();
         },
         [&] {
             for (const ReportTotal& month : MonthlyExpenses(state.services, year))
                 spent += month.sum;
         }});

    std::printf(
        "\nfrom the year loaded in the planner store (%lld expense rows, %lld mileage "
        "rows, CSV %.2f MB)\n",
        static_cast<long long>(expenseRows), static_cast<long long>(mileageRows), csvSize / 1e6);
    Line("expense rows vs memchr", times[0], times[3], "memchr");
    Line("mileage rows vs memchr", times[1], times[3], "memchr");
    Line("expense rows + CSV vs memchr", times[2], times[3], "memchr");
    std::printf("  target: a full-year report <= 5 ms once the year is loaded -> %s\n",
                std::max(times[0], times[1]) <= 5 ? "met" : "MISSED");
    std::printf("\nfrom the file, read afresh\n");
    Line("read + expense rows vs readAll", times[4], times[5], "readAll");
    Line("budget's 12 month totals vs readAll", times[6], times[5], "readAll");

    const qsizetype days = wholeYear.start.daysInYear();
    const bool whole = loaded.Count() == days && lines == days && readSize == bytes.size() &&
                       expenseRows == days * kExpenseLines && mileageRows == days * kMileageLines &&
                       freshRows == expenseRows && spent > 0;
    if (!whole || dialogs.unexpected != 0) {
        std::fprintf(stderr, "the reports did not list every line of every day\n");
        return 1;
    }
    return 0;
}
