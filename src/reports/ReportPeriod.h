#pragma once

#include <QDate>
#include <QString>

// The days a report covers: from start to end, both included, within one calendar year.
struct ReportPeriod {
    QDate start;
    QDate end;

    bool Contains(const QDate& date) const { return date >= start && date <= end; }
};

// A month of year (month 0: every month, January 1 to December 31). The last day is the 30th
// for September, April, June and November; February's is the 29th exactly when "February 29, "
// and the year make a date, else the 28th; every other month's is the 31st.
ReportPeriod MonthPeriod(int month, int year);

// The period between two typed dates, or why it is refused: a text that is not a date, or two
// dates of different years. A start after the end is not refused; its report has no rows.
struct PeriodCheck {
    ReportPeriod period;
    // The refusal's message; empty when the period is good.
    QString refusal;
};
PeriodCheck CheckStartEnd(const QString& startText, const QString& endText, int nearYear);
