#pragma once

#include <QString>
#include <optional>

#include "reports/Report.h"

class Services;
class UserPreferences;

// The report of a period from the planner pages of its year, read afresh from the year's file
// whatever the calendar shows, so that a page changed on disk from outside is seen, and the
// calendar's years in memory are left as they are. A file that stops at a faulty line gives
// the pages before it; the fault is reported (and logged) under ReadThisYearsPlanner.
Report MakeReport(Services& services, ReportKind kind, const ReportPeriod& period, double rate);

// The mileage rate kept in the preferences; 0 when none (or no number of at least zero) is
// set.
double MileageRate(const UserPreferences& prefs);
// The rate typed, when it is a number of at least zero, written as an amount may be
// ("$0.70"); blank is none, 0.
std::optional<double> ParseMileageRate(const QString& text);
// A rate as the box shows it and the preferences keep it: "0.70", or "0.655".
QString RateText(double rate);
