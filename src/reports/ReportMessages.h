#pragma once

#include <QString>

#include "reports/Report.h"

// What the report period windows and the two reports say.

inline const QString kSelectMonthCaption = QStringLiteral("Monthly Selection");
inline const QString kSelectStartEndCaption = QStringLiteral("Start and End Date Selection");
inline const QString kExpensesCaption = QStringLiteral("Orvanta: Expense Report");
inline const QString kMileageCaption = QStringLiteral("Orvanta: Mileage Report");

inline const QString kAllMonths = QStringLiteral("All Months");
inline const QString kBothYearsMessage =
    QStringLiteral("Both Years in the start and end date must be the same.");
inline const QString kInvalidDateMessage =
    QStringLiteral("An invalid date has been entered. Please adjust.");

inline const QString kEndOfReportMessage = QStringLiteral("End of Report");
inline const QString kBeginningOfReportMessage = QStringLiteral("Beginning of Report");
inline const QString kDataCopiedMessage = QStringLiteral("Data Copied.");
// A press on another row while an edit is open; the expense report's wording lacks a letter.
inline const QString kExpenseEditOpenMessage =
    QStringLiteral("Please fill in the text area before ontinuing.");
inline const QString kMileageEditOpenMessage =
    QStringLiteral("Please finish editing the text area already open.");
inline const QString kEnterZeroMessage =
    QStringLiteral("You must at least enter a zero in the text area provided.");
inline const QString kBadRateMessage = QStringLiteral(
    "The mileage rate must be a number of at least zero, such as 0.70; the rate was not "
    "changed.");

inline QString CsvSavedMessage(const QString& path) {
    return QStringLiteral("The report was saved as %1.").arg(path);
}

// What a total says of the figures it leaves out because they are no number: "1 amount is
// not a number and is left out of the total", "3 lines' miles are not numbers and are left
// out of the total". The same words follow the total in the window, on paper and on the
// command line, and the saved CSV's message.
inline QString LeftOutNote(ReportKind kind, qsizetype count) {
    const bool one = count == 1;
    const QString what =
        kind == ReportKind::Expenses
            ? (one ? QStringLiteral("amount is") : QStringLiteral("amounts are"))
            : (one ? QStringLiteral("line's miles are") : QStringLiteral("lines' miles are"));
    return QString::number(count) + u' ' + what +
           (one ? QStringLiteral(" not a number and ") : QStringLiteral(" not numbers and ")) +
           (kind == ReportKind::Expenses && one ? QStringLiteral("is") : QStringLiteral("are")) +
           QStringLiteral(" left out of the total");
}

// ---- the monthly budget -----------------------------------------------------------------
inline const QString kBudgetCaption = QStringLiteral("Monthly Budget");
inline const QString kBudgetSavedMessage = QStringLiteral("Budget Saved.");
inline const QString kBudgetChangedQuestion =
    QStringLiteral("The budget has been changed. Do you want to save those changes?");
inline const QString kBudgetChangedTitle = QStringLiteral("Budget Has Changed");
inline const QString kBadBudgetMessage = QStringLiteral(
    "A budget must be an amount of at least zero, such as 1,250.00, or blank for no budget; "
    "the budget was not changed.");
