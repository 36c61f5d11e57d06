#include "reports/gui/ReportMenus.h"

#include <algorithm>

#include "calendar/DateModel.h"
#include "notes_planner/DatedFile.h"
#include "reports/ReportSource.h"
#include "reports/gui/frmExpenses.h"
#include "reports/gui/frmMileage.h"
#include "reports/gui/frmSelectMonth.h"
#include "reports/gui/frmSelectStartEnd.h"
#include "shell/Services.h"
#include "shell/gui/frmMain.h"

ReportMenus::ReportMenus(ReportContext context)
    : QObject(&context.frame), context_(std::move(context)) {
    Handle(context_.frame.MenuItem(QStringLiteral("mnuFileOpenExpenses")), this, [this] {
        context_.services.Trap("mnuFileOpenExpenses_Click",
                               [this] { mnuFileOpenExpenses_Click(); });
    });
    Handle(context_.frame.MenuItem(QStringLiteral("mnuFileOpenMiles")), this, [this] {
        context_.services.Trap("mnuFileOpenMiles_Click", [this] { mnuFileOpenMiles_Click(); });
    });
}

void ReportMenus::mnuFileOpenExpenses_Click() {
    expenseReportRequested_ = true;
    mileageReportRequested_ = false;
    OpenSelectMonth();
}

void ReportMenus::mnuFileOpenMiles_Click() {
    expenseReportRequested_ = false;
    mileageReportRequested_ = true;
    OpenSelectMonth();
}

QList<int> ReportMenus::ReportYears() const {
    QList<int> years = YearsWithFolders(context_.services.AppFolder);
    for (int year = context_.dates.ThisYear - 1; year <= context_.dates.ThisYear + 1; ++year)
        years.append(year);
    std::sort(years.begin(), years.end());
    years.erase(std::unique(years.begin(), years.end()), years.end());
    return years;
}

void ReportMenus::OpenSelectMonth() {
    if (QWidget* other = context_.frame.ChildWindow(QString::fromLatin1(frmSelectStartEnd::kName)))
        static_cast<ChildWindow*>(other)->CloseWindow();
    context_.frame
        .ShowChild(QString::fromLatin1(frmSelectMonth::kName),
                   [this] {
                       return new frmSelectMonth(
                           context_.services, ReportYears(), context_.dates.SelectedDate,
                           [this](const ReportPeriod& period) { RunReport(period); },
                           [this] { OpenSelectStartEnd(); });
                   })
        ->setFocus();
}

void ReportMenus::OpenSelectStartEnd() {
    const QDate shown = context_.dates.SelectedDate;
    const QDate first(shown.year(), shown.month(), 1);
    context_.frame
        .ShowChild(QString::fromLatin1(frmSelectStartEnd::kName),
                   [&] {
                       return new frmSelectStartEnd(
                           context_.services, ReportYears(), first, first.addMonths(1).addDays(-1),
                           [this](const ReportPeriod& period) { RunReport(period); },
                           [this] { OpenSelectMonth(); });
                   })
        ->setFocus();
}

ReportWindow* ReportMenus::RunReport(const ReportPeriod& period) {
    if (!expenseReportRequested_ && !mileageReportRequested_)
        return nullptr;
    const ReportKind kind = expenseReportRequested_ ? ReportKind::Expenses : ReportKind::Mileage;
    Report report = MakeReport(context_.services, kind, period, MileageRate(context_.prefs));
    const QString name =
        QString::fromLatin1(kind == ReportKind::Expenses ? frmExpenses::kName : frmMileage::kName);
    auto* window = static_cast<ReportWindow*>(context_.frame.ShowChild(name, [&]() -> QWidget* {
        if (kind == ReportKind::Expenses)
            return new frmExpenses(context_);
        return new frmMileage(context_);
    }));
    window->ShowReport(std::move(report));
    window->setFocus();
    return window;
}
