#include "calculators/DateDiff.h"

#include "shell/VbError.h"

namespace calc {

namespace {

// Division rounding down, so that boundaries before and after day zero count alike.
qint64 FloorDiv(qint64 value, qint64 divisor) {
    return value / divisor - (value % divisor < 0 ? 1 : 0);
}

// Seconds from the start of the calendar's day numbering, read from the written date and
// time alone.
qint64 Seconds(const QDateTime& when) {
    return when.date().toJulianDay() * 86400 + when.time().msecsSinceStartOfDay() / 1000;
}

// The day number of the Sunday that begins date's week.
qint64 WeekStart(const QDate& date) {
    return date.toJulianDay() - (VbWeekday(date) - 1);
}

}  // namespace

int VbWeekday(const QDate& date) {
    return date.dayOfWeek() % 7 + 1;
}

qint64 DateDiff(const QString& interval, const QDateTime& start, const QDateTime& end) {
    const QDate from = start.date();
    const QDate to = end.date();
    if (interval == u"yyyy")
        return to.year() - from.year();
    if (interval == u"q")
        return (to.year() - from.year()) * 4 + (to.month() - 1) / 3 - (from.month() - 1) / 3;
    if (interval == u"m")
        return (to.year() - from.year()) * 12 + to.month() - from.month();
    if (interval == u"d")
        return to.toJulianDay() - from.toJulianDay();
    if (interval == u"w")
        return (to.toJulianDay() - from.toJulianDay()) / 7;
    if (interval == u"ww")
        return (WeekStart(to) - WeekStart(from)) / 7;
    if (interval == u"h")
        return FloorDiv(Seconds(end), 3600) - FloorDiv(Seconds(start), 3600);
    if (interval == u"n")
        return FloorDiv(Seconds(end), 60) - FloorDiv(Seconds(start), 60);
    if (interval == u"s")
        return Seconds(end) - Seconds(start);
    Raise(err::InvalidProcedureCall);
}

WeekdayWalk WeekdaysBetween(const QDate& start, const QDate& end, int weekday, int limit) {
    WeekdayWalk walk;
    // The first matching date, then every seventh day after it.
    QDate date = start.addDays((weekday - VbWeekday(start) + 7) % 7);
    for (; date.isValid() && date <= end; date = date.addDays(7)) {
        walk.dates.append(date);
        if (walk.dates.size() > limit) {
            walk.stoppedAtLimit = true;
            break;
        }
    }
    return walk;
}

}  // namespace calc
