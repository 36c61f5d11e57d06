#pragma once

#include <QDate>
#include <functional>

#include "reports/ReportPeriod.h"
#include "shell/gui/ChildWindow.h"

class QComboBox;

// Chooses a report's period as a whole month, or every month, of a year.
class frmSelectMonth : public ChildWindow {
    Q_OBJECT
public:
    static constexpr const char* kName = "frmSelectMonth";

    // years: the years offered; shown: the month and year first chosen. run makes the report
    // of the period chosen; selectStartEnd opens the window of any start and end.
    frmSelectMonth(Services& services, const QList<int>& years, const QDate& shown,
                   std::function<void(const ReportPeriod&)> run,
                   std::function<void()> selectStartEnd);

    void cmdReport_Click();
    void cmdSelectStartEnd_Click();

private:
    void LoadComboBoxes(const QList<int>& years, const QDate& shown);

    std::function<void(const ReportPeriod&)> run_;
    std::function<void()> selectStartEnd_;
    QComboBox* cmbMonth_;
    QComboBox* cmbYear_;
};
