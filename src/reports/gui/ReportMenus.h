#pragma once

#include <QObject>

#include "reports/Report.h"
#include "reports/gui/ReportContext.h"

class ReportWindow;

// The reports' part of the main window: its two report commands open the period windows with
// the report they ask for, and the period chosen opens the report in its window. The report of
// any year is made from that year's pages without moving the calendar, so the calendar shows
// after a report what it showed before.
class ReportMenus : public QObject {
    Q_OBJECT
public:
    explicit ReportMenus(ReportContext context);

    // The period windows, for the expense or the mileage report.
    void mnuFileOpenExpenses_Click();
    void mnuFileOpenMiles_Click();
    void OpenSelectMonth();
    void OpenSelectStartEnd();

    // The requested report of period, shown in its window (opened or brought up).
    ReportWindow* RunReport(const ReportPeriod& period);

    // The years the period windows offer: those with a year folder, and the year on show with
    // the years either side of it.
    QList<int> ReportYears() const;

private:
    ReportContext context_;
    bool expenseReportRequested_ = false;
    bool mileageReportRequested_ = false;
};
