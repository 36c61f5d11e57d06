#include "reports/gui/frmExpenses.h"

#include "reports/ReportMessages.h"

frmExpenses::frmExpenses(ReportContext& context)
    : ReportWindow(context, kName, kExpensesCaption, ReportKind::Expenses) {
    Form_Load();
}

QString frmExpenses::EditOpenRefusal() const {
    return kExpenseEditOpenMessage;
}
