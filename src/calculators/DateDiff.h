#pragma once

#include <QDate>
#include <QDateTime>
#include <QList>
#include <QString>

// The date calculators' counting rules, apart from their windows.
namespace calc {

// The number of interval boundaries crossed going from start to end, negative when end is
// earlier. Interval codes:
//   "yyyy" years, "q" quarters, "m" months, "d" days, "h" hours, "n" minutes, "s" seconds:
//          each counts the starts of a year, quarter, month ... passed (31 December to
//          1 January is one year);
//   "ww"   calendar weeks: the Sundays passed, so that the week holding 1 January is one
//          week, not split at the year's end;
//   "w"    weeks: whole seven-day periods from the start date, not calendar weeks.
// Date-times are taken as written, without time zones, so a change to summer time never
// shortens a day. Any other code is an invalid procedure call (error 5).
qint64 DateDiff(const QString& interval, const QDateTime& start, const QDateTime& end);

// The weekday numbered as the classic calendar numbers it: Sunday 1 ... Saturday 7.
int VbWeekday(const QDate& date);

// The dates from start to end, both included, that fall on weekday (Sunday 1 ... Saturday 7).
// When the count passes limit the walk stops there, with stoppedAtLimit set and limit + 1
// dates listed.
struct WeekdayWalk {
    QList<QDate> dates;
    bool stoppedAtLimit = false;
};
inline constexpr int kWeekdayLimit = 31999;
WeekdayWalk WeekdaysBetween(const QDate& start, const QDate& end, int weekday,
                            int limit = kWeekdayLimit);

}  // namespace calc
