#include "reports/modBudget.h"

#include <QRegularExpression>

#include "reports/Report.h"
#include "reports/ReportMessages.h"
#include "reports/ReportSource.h"
#include "shell/Files.h"
#include "shell/SavePath.h"
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

void ReadBudgetLine(const QString& text, Budgets& budgets) {
    static const QRegularExpression line(
        QStringLiteral(R"(^(\d{4})-(\d{2}):(\d{1,12})(?:\.(\d{1,2}))?$)"));
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty())
        return;
    const QRegularExpressionMatch match = line.match(trimmed);
    const QDate month =
        match.hasMatch() ? QDate(match.captured(1).toInt(), match.captured(2).toInt(), 1) : QDate();
    if (!month.isValid())
        Raise(err::TypeMismatch);
    budgets.insert(month, *Cents(match.captured(3), match.captured(4)));
}

void ReadBudgetFile(const QString& path, Budgets& budgets) {
    budgets.clear();
    for (const QString& text : textfile::ReadLines(path))
        ReadBudgetLine(text, budgets);
}

namespace {

QStringList BudgetFields(const QDate& month, qint64 cents) {
    return {
        month.toString(QStringLiteral("yyyy-MM")),
        QString::number(cents / 100) + u'.' + QString::number(cents % 100).rightJustified(2, u'0')};
}

}  // namespace

QString BudgetFileText(const Budgets& budgets) {
    QString text;
    for (auto it = budgets.cbegin(); it != budgets.cend(); ++it)
        text += BudgetFields(it.key(), it.value()).join(u':') + kCrLf;
    return text;
}

const RecordLayout& BudgetLayout() {
    static const RecordLayout layout = [] {
        RecordLayout budget;
        budget.key = RecordLayout::Key::LeadingFields;
        budget.keyFields = 1;
        budget.whenEmpty = RecordLayout::WhenEmpty::EmptyFile;
        return budget;
    }();
    return layout;
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
    budgets_.clear();
    ReadDataFile(services_, "ReadBudget", file_,
                 [&](QByteArrayView line, int) { ReadBudgetLine(LineText(line), budgets_); });
}

bool modBudget::SaveBudget(const Budgets& budgets) {
    Records records(BudgetLayout());
    for (auto it = budgets.cbegin(); it != budgets.cend(); ++it)
        records.Add(BudgetFields(it.key(), it.value()));
    const SaveResult result =
        SaveDataFile(services_, "SaveBudget", file_, records, kBudgetSavedMessage);
    if (result == SaveResult::Merged)
        ReadBudget();
    else if (result == SaveResult::Saved)
        budgets_ = budgets;
    return result != SaveResult::Refused;
}
