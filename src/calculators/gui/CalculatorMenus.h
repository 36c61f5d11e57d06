#pragma once

#include <QObject>

class DateModel;
class Services;
class frmDateDiff;
class frmMain;
class frmNumDays;

// The date calculators' part of the main window: each "In ..." item opens the date difference
// window (or brings it up) with its interval chosen; the weekday item opens the weekday count.
class CalculatorMenus : public QObject {
    Q_OBJECT
public:
    CalculatorMenus(frmMain& frame, Services& services, const DateModel& dates);

    // Counts from today to the date selected in the calendar.
    frmDateDiff* OpenDateDiff(const QString& interval, const QString& code);
    // Counts over the month of the date selected in the calendar.
    frmNumDays* mnuNumOfDays_Click();

private:
    frmMain& frame_;
    Services& services_;
    const DateModel& dates_;
};
