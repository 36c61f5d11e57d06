#pragma once

#include <QDate>
#include <functional>

#include "shell/gui/ChildWindow.h"

class DateModel;
class QLineEdit;

// Find a Date: a date typed in any of the usual forms ("9/7/2026", "09/07/26", "Sep 7, 2026",
// "September 7 2026", "2026-09-07") is chosen as the selected date, as the date selectors
// choose one, and the window closes. A text that is not a date, or a date outside the years
// the calendar offers, is refused with a message and stays in the box to be corrected.
class frmFindDate : public ChildWindow {
    Q_OBJECT
public:
    static constexpr const char* kName = "frmFindDate";

    // A two-digit year is read near the year on show. choose moves the calendar to a date in
    // the years firstYear to lastYear.
    frmFindDate(Services& services, const DateModel& dates, int firstYear, int lastYear,
                std::function<void(const QDate&)> choose);

    void cmdFind_Click();

private:
    const DateModel& dates_;
    int firstYear_;
    int lastYear_;
    std::function<void(const QDate&)> choose_;
    QLineEdit* txtDate_;
};
