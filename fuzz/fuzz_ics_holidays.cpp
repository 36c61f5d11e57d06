// The iCalendar holiday reader on any bytes: no crash or leak, and what it gives is either a
// refusal without holidays (for bytes past the size limits, that refusal), or holidays of the
// year asked for, in date order, each with a summary on one line. fuzz/run.sh adds a calendar
// with a line past the limit to the seeds.
#include "FuzzSupport.h"
#include "holidays_birthdays/IcsHolidays.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    constexpr int kYear = 2026;
    const QByteArray bytes =
        QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const IcsImport read = HolidaysFromIcs(bytes, kYear);
    const QString beyondLimits = IcsLimitProblem(bytes);
    fuzz::Check(beyondLimits.isEmpty() || read.problem == beyondLimits,
                "bytes past the limits are refused for them");
    if (!read.problem.isEmpty()) {
        fuzz::Check(read.holidays.isEmpty(), "a refused file gives no holidays");
        fuzz::Check(!read.problem.contains(QLatin1Char('\n')), "the problem is one line");
        return 0;
    }
    QDate previous;
    for (const IcsHoliday& holiday : read.holidays) {
        fuzz::Check(holiday.date.isValid() && holiday.date.year() == kYear,
                    "every holiday falls in the year");
        fuzz::Check(!previous.isValid() || previous <= holiday.date, "holidays in date order");
        previous = holiday.date;
        fuzz::Check(!holiday.summary.isEmpty() && holiday.summary == holiday.summary.trimmed(),
                    "a summary is there and trimmed");
        fuzz::Check(!holiday.summary.contains(QLatin1Char('\r')) &&
                        !holiday.summary.contains(QLatin1Char('\n')),
                    "a summary holds no line break");
    }
    return 0;
}
