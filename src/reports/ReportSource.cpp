#include "reports/ReportSource.h"

#include <cmath>

#include "notes_planner/DatedFile.h"
#include "notes_planner/modPlanner.h"
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
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty())
        return 0.0;
    bool ok = false;
    const double rate = trimmed.toDouble(&ok);
    if (!ok || rate < 0 || !std::isfinite(rate))
        return std::nullopt;
    return rate;
}

double MileageRate(const UserPreferences& prefs) {
    return ParseMileageRate(prefs.Value(prefkey::MileageRate)).value_or(0);
}
