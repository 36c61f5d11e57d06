#include "reports/gui/BudgetMenus.h"

#include "calendar/DateModel.h"
#include "reports/gui/frmBudget.h"
#include "shell/Services.h"
#include "shell/gui/frmMain.h"

BudgetMenus::BudgetMenus(ReportContext context, modBudget& budget)
    : QObject(&context.frame), context_(std::move(context)), budget_(budget) {
    Handle(context_.frame.MenuItem(QStringLiteral("mnuManageBudget")), this, [this] {
        context_.services.Trap("mnuManageBudget_Click", [this] { mnuManageBudget_Click(); });
    });
}

frmBudget* BudgetMenus::mnuManageBudget_Click() {
    bool created = false;
    auto* window = static_cast<frmBudget*>(
        context_.frame.ShowChild(QString::fromLatin1(frmBudget::kName), [&] {
            created = true;
            budget_.ReadBudget();
            return new frmBudget(context_, budget_);
        }));
    window->ShowYear(created ? context_.dates.SelectedDate.year() : window->Year());
    window->setFocus();
    return window;
}
