#include "reports/modBudget.h"

#include <QRegularExpression>

#include "reports/Report.h"
#include "reports/ReportMessages.h"
#include "reports/ReportSource.h"
#include "shell/Files.h"
#include "shell/SafeSave.h"
#include "shell/Services.h"
#include "shell/TextFile.h"
#include "shell/VbError.h"

namespace {

// Whole units and up to two decimals as cents; nullopt past the largest budget.
std::optional<qint64> Cents(const QString& whole, const QString& decimals) {
    if (whole.size() > 12)
        return std::nullopt;
    return whole.toLongLong() * 100 + decimals.leftJustified(2, u'0').toLongLong();
}

}  // namespace

void ReadBudgetFile(const QString& path, Budgets& budgets) {
    static const QRegularExpression line(
        QStringLiteral(R"(^(\d{4})-(\d{2}):(\d{1,12})(?:\.(\d{1,2}))?$)"));
    budgets.clear();
    for (const QString& text : textfile::ReadLines(path)) {
        const QString trimmed = text.trimmed();
        if (trimmed.isEmpty())
            continue;
        const QRegularExpressionMatch match = line.match(trimmed);
        const QDate month = match.hasMatch()
                                ? QDate(match.captured(1).toInt(), match.captured(2).toInt(), 1)
                                : QDate();
        if (!month.isValid())
            Raise(err::TypeMismatch);
        budgets.insert(month, *Cents(match.captured(3), match.captured(4)));
    }
}

QString BudgetFileText(const Budgets& budgets) {
    QString text;
    for (auto it = budgets.cbegin(); it != budgets.cend(); ++it)
        text += it.key().toString(QStringLiteral("yyyy-MM")) + u':' +
                QString::number(it.value() / 100) + u'.' +
                QString::number(it.value() % 100).rightJustified(2, u'0') + kCrLf;
    return text;
}

bool ParseBudgetText(const QString& text, std::optional<qint64>& cents) {
    static const QRegularExpression amount(
        QStringLiteral(R"(^(\d{1,3}(?:,\d{3})+|\d+)(?:\.(\d{0,2}))?$|^\.(\d{1,2})$)"));
    const QString trimmed = text.trimmed();
    cents.reset();
    if (trimmed.isEmpty())
        return true;
    const QRegularExpressionMatch match = amount.match(trimmed);
    if (!match.hasMatch())
        return false;
    QString whole = match.captured(1);
    whole.remove(u',');
    const std::optional<qint64> value =
        Cents(whole.isEmpty() ? QStringLiteral("0") : whole,
              match.captured(3).isEmpty() ? match.captured(2) : match.captured(3));
    if (!value || *value > kMaxBudgetCents)
        return false;
    cents = value;
    return true;
}

std::array<ReportTotal, 12> MonthlyExpenses(Services& services, int year) {
    // One report of the year gives every month's rows: the rows of a month are exactly those
    // its own report lists, in the same order, so their total is that report's total.
    const Report whole = MakeReport(services, ReportKind::Expenses, MonthPeriod(0, year), 0);
    std::array<ReportTotal, 12> totals{};
    for (int month = 1; month <= 12; ++month) {
        Report part{ReportKind::Expenses, MonthPeriod(month, year), {}, 0};
        for (const ReportRow& row : whole.rows)
            if (part.period.Contains(row.date))
                part.rows.append(row);
        totals[month - 1] = part.Total(0, part.rows.size());
    }
    return totals;
}

modBudget::modBudget(Services& services) : services_(services) {}

void modBudget::ReadBudget() {
    QString path;
    partlyRead_ = false;
    if (!FileExists(services_.AppFolder, kBudgetFile, &path)) {
        budgets_.clear();
        return;
    }
    partlyRead_ = !services_.Trap("ReadBudget", [&] { ReadBudgetFile(path, budgets_); });
}

bool modBudget::SaveBudget(const Budgets& budgets) {
    if (services_.RefuseSaveAfterPartialRead(partlyRead_, kBudgetFile))
        return false;
    return services_.Trap("SaveBudget", [&] {
        safesave::Replace(PathForWriting(services_.AppFolder, kBudgetFile),
                          textfile::Encode(BudgetFileText(budgets)));
        budgets_ = budgets;
        services_.dialogs.MsgBox(kBudgetSavedMessage);
    });
}
