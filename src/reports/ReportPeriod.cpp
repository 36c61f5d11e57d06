#include "reports/ReportPeriod.h"

#include "reports/ReportMessages.h"
#include "shell/DateInput.h"

namespace {

int LastDayOf(int month, int year) {
    switch (month) {
        case 9:
        case 4:
        case 6:
        case 11:
            return 30;
        case 2:
            return ParseDateInput(QStringLiteral("February 29, ") + QString::number(year), year)
                           .isValid()
                       ? 29
                       : 28;
        default:
            return 31;
    }
}

}  // namespace

ReportPeriod MonthPeriod(int month, int year) {
    if (month == 0)
        return {QDate(year, 1, 1), QDate(year, 12, 31)};
    return {QDate(year, month, 1), QDate(year, month, LastDayOf(month, year))};
}

PeriodCheck CheckStartEnd(const QString& startText, const QString& endText, int nearYear) {
    const QDate start = ParseDateInput(startText.trimmed(), nearYear);
    const QDate end = ParseDateInput(endText.trimmed(), nearYear);
    if (start.isValid() && end.isValid() && start.year() != end.year())
        return {{}, kBothYearsMessage};
    if (!start.isValid() || !end.isValid())
        return {{}, kInvalidDateMessage};
    return {{start, end}, {}};
}
