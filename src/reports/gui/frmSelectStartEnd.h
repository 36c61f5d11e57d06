#pragma once

#include <QDate>
#include <QList>
#include <functional>

#include "reports/ReportPeriod.h"
#include "shell/gui/ChildWindow.h"

class DateSidePicker;

// Chooses a report's period by any start and end date of one year. Each side (0 the start,
// 1 the end) has a month, a day and a year list and a box showing, or taking, the date typed.
class frmSelectStartEnd : public ChildWindow {
    Q_OBJECT
public:
    static constexpr const char* kName = "frmSelectStartEnd";
    static constexpr int kStart = 0;
    static constexpr int kEnd = 1;

    // years: the years offered; start and end: the dates first shown. run makes the report of
    // the period chosen; selectMonth goes back to the monthly window.
    frmSelectStartEnd(Services& services, const QList<int>& years, const QDate& start,
                      const QDate& end, std::function<void(const ReportPeriod&)> run,
                      std::function<void()> selectMonth);

    void cmdReport_Click();
    void cmdSelectMonth_Click();

private:
    // Enter: the date typed is taken, then the report made.
    void txtInput_KeyDown(int side);

    std::function<void(const ReportPeriod&)> run_;
    std::function<void()> selectMonth_;
    QList<DateSidePicker*> sides_;
};
