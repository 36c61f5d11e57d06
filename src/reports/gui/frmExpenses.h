#pragma once

#include "reports/gui/ReportWindow.h"

// The expense report: the date, description and amount of each filled expense line of the
// period's planner pages, with the amounts' totals.
class frmExpenses : public ReportWindow {
    Q_OBJECT
public:
    static constexpr const char* kName = "frmExpenses";
    explicit frmExpenses(ReportContext& context);

protected:
    QString EditOpenRefusal() const override;
};
