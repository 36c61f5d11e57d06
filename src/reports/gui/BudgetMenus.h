#pragma once

#include <QObject>

#include "reports/gui/ReportContext.h"

class frmBudget;
class modBudget;

// The budget's part of the main window: "Monthly Budget" opens the budget window on the
// selected date's year, reading the budgets when the window opens; asked again, it brings the
// open window up with its spending read afresh.
class BudgetMenus : public QObject {
    Q_OBJECT
public:
    BudgetMenus(ReportContext context, modBudget& budget);

    frmBudget* mnuManageBudget_Click();

private:
    ReportContext context_;
    modBudget& budget_;
};
