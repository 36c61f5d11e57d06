#include "reports/ReportSource.h"

#include <cmath>

#include "notes_planner/DatedFile.h"
#include "notes_planner/modPlanner.h"
#include "reports/ReportText.h"
#include "shell/NumberFormat.h"
#include "shell/Services.h"
#include "shell/UserPreferences.h"

Report MakeReport(Services& services, ReportKind kind, const ReportPeriod& period, double rate) {
    Report report{kind, period, {}, rate};
    const int year = period.start.year();
    DatedEntries entries;
    services.Trap("ReadThisYearsPlanner",
                  [&] { ReadDatedFile(services.AppFolder, year, kPlannerFile, entries); });
    report.rows = BuildReportRows(kind, entries, year, period);
    return report;
}

std::optional<double> ParseMileageRate(const QString& text) {
    if (text.trimmed().isEmpty())
        return 0.0;
    const std::optional<double> rate = ParseAmount(text);
    if (!rate || *rate < 0)
        return std::nullopt;
    return rate;
}

QString RateText(double rate) {
    // Cents as money is written ("0.70"); a rate of a fraction of a cent keeps its places.
    const bool cents = std::abs(rate * 100 - std::round(rate * 100)) < 1e-9;
    return PlainNumber(rate, cents ? 2 : -1);
}

double MileageRate(const UserPreferences& prefs) {
    return ParseMileageRate(prefs.Value(prefkey::MileageRate)).value_or(0);
}
