#pragma once

#include <QString>
#include <optional>

#include "reports/Report.h"

class DateModel;
class PlannerStore;
class Services;
class UserPreferences;

// The report of a period from the planner pages of its year: the pages in memory when the
// calendar holds that year, else the year's file read afresh, so that a report never moves the
// calendar to another year. A file that stops at a faulty line gives the pages before it; the
// fault is reported (and logged) under ReadThisYearsPlanner.
Report MakeReport(Services& services, const PlannerStore& planner, const DateModel& dates,
                  ReportKind kind, const ReportPeriod& period, double rate);

// The mileage rate kept in the preferences; 0 when none (or no number of at least zero) is
// set.
double MileageRate(const UserPreferences& prefs);
// The rate typed, when it is a number of at least zero (blank is none, 0).
std::optional<double> ParseMileageRate(const QString& text);
