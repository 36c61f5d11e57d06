#pragma once

#include <QDate>
#include <QMap>
#include <QString>
#include <array>
#include <optional>

#include "reports/Report.h"
#include "shell/DataFile.h"
#include "shell/Records.h"

class Services;

inline const QString kBudgetFile = QStringLiteral("Budget.dat");

// What the user means to spend each month, in cents, by the first day of the month. A month
// without an entry has no budget (which is not the same as a budget of zero).
using Budgets = QMap<QDate, qint64>;

// The largest budget a month can hold: 999,999,999,999.99.
constexpr qint64 kMaxBudgetCents = 99999999999999;

// "Budget.dat": one line per month that has a budget, "yyyy-mm:amount" with the amount in
// plain digits, a point and two decimals ("2026-09:1250.00"), months in order, each line
// ended by CR LF. Reading skips blank lines and blanks around a line; a later line for a month
// replaces an earlier one. A line of any other shape raises error 13, the months read before
// it being kept in budgets.
void ReadBudgetFile(const QString& path, Budgets& budgets);
void ReadBudgetLine(const QString& line, Budgets& budgets);
QString BudgetFileText(const Budgets& budgets);
// The layout of "Budget.dat": a month a line, named by the month; no budgets, an empty file.
const RecordLayout& BudgetLayout();

// A budget as the user types it: digits with thousands commas if wanted, and at most two
// decimals ("1,250", "1250.5"). False for anything else, a negative amount included; a blank
// text is a month without a budget (cents empty).
bool ParseBudgetText(const QString& text, std::optional<qint64>& cents);

// The expense report's total of each month of year (January first): the report of each month
// made from the year's planner file and added up the same way, with what each left out.
std::array<ReportTotal, 12> MonthlyExpenses(Services& services, int year);

// The monthly budgets of every year, kept in "Budget.dat" in the data folder.
class modBudget {
public:
    explicit modBudget(Services& services);

    const Budgets& budgets() const { return budgets_; }

    // Loads "Budget.dat"; a missing file is no budgets. A file that stops at a faulty line
    // keeps the months before it, is reported, and is then not saved over.
    void ReadBudget();
    // Saves budgets as the whole file and says "Budget Saved."; false when nothing was
    // written (see SaveDataFile).
    bool SaveBudget(const Budgets& budgets);

private:
    Services& services_;
    Budgets budgets_;
    DataFile file_{kBudgetFile};
};
