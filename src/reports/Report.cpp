#include "reports/Report.h"

#include <algorithm>

#include "notes_planner/DatedFile.h"
#include "notes_planner/PlannerFigures.h"
#include "notes_planner/PlannerRecord.h"
#include "reports/ReportMessages.h"
#include "reports/ReportText.h"
#include "shell/DateFormats.h"
#include "shell/NumberFormat.h"
#include "shell/TextFile.h"

namespace {

// The dates of the year's entries, with the index of each, in date order; a key that is not a
// date of the year is left out.
QList<std::pair<QDate, qsizetype>> DatedIndexes(const DatedEntries& entries, int year) {
    QList<std::pair<QDate, qsizetype>> dated;
    dated.reserve(entries.Count());
    for (qsizetype i = 0; i < entries.Count(); ++i) {
        const QString& key = entries.dateKeys[i];
        const QDate date(year, key.left(2).toInt(), key.mid(3, 2).toInt());
        if (date.isValid())
            dated.append({date, i});
    }
    std::stable_sort(dated.begin(), dated.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    return dated;
}

// The fields' texts, trimmed; none when every one is blank.
QStringList FilledLine(QByteArrayView record, std::initializer_list<Field> fields) {
    QStringList texts;
    bool filled = false;
    for (const Field& field : fields) {
        const QByteArrayView raw = field.Raw(record);
        filled = filled || !IsBlank(raw);
        texts.append(TrimBlanks(textfile::Decode(raw)).toString());
    }
    return filled ? texts : QStringList();
}

void AppendLines(ReportKind kind, const QDate& date, QByteArrayView record,
                 QList<ReportRow>& rows) {
    using namespace plannerfield;
    if (kind == ReportKind::Expenses) {
        if (IsBlank(Expenses.Raw(record)))
            return;
        for (int k = 0; k < kExpenseLines; ++k)
            if (QStringList line = FilledLine(record, {ExpenseDescription(k), Amount(k)});
                !line.isEmpty())
                rows.append({date, std::move(line)});
        return;
    }
    if (IsBlank(Mileage.Raw(record)))
        return;
    for (int m = 0; m < kMileageLines; ++m)
        if (QStringList line = FilledLine(record, {Destination(m), Begin(m), End(m), Miles(m)});
            !line.isEmpty())
            rows.append({date, std::move(line)});
}

}  // namespace

QString Report::Heading() const {
    return (kind == ReportKind::Expenses ? QStringLiteral("Daily Expenses from ")
                                         : QStringLiteral("Mileage from ")) +
           datefmt::MmmDdYyyy(period.start) + QStringLiteral(" to ") +
           datefmt::MmmDdYyyy(period.end);
}

ReportTotal Report::Total(qsizetype begin, qsizetype end) const {
    const int field = TotalledField(kind);
    ReportTotal total;
    for (qsizetype i = begin; i < end && i < rows.size(); ++i) {
        const QString& figure = rows[i].fields[field];
        if (figure.isEmpty())
            continue;
        if (const std::optional<double> value = ParseAmount(figure))
            total.sum += *value;
        else
            ++total.leftOut;
    }
    return total;
}

QString Report::FormatTotal(double value) const {
    return FormatThousands(value, kind == ReportKind::Expenses ? 2 : 0);
}

QString Report::TotalText(const ReportTotal& total) const {
    QString text = FormatTotal(total.sum);
    if (total.leftOut > 0)
        text += QStringLiteral(" (") + LeftOutNote(kind, total.leftOut) + u')';
    return text;
}

std::optional<double> Report::Reimbursement(const ReportRow& row) const {
    if (!Pays())
        return std::nullopt;
    const std::optional<double> miles = ParseAmount(row.fields[reportcol::Total]);
    return miles ? std::optional(*miles * rate) : std::nullopt;
}

double Report::Reimbursement(qsizetype begin, qsizetype end) const {
    return Pays() ? Total(begin, end).sum * rate : 0;
}

QString ShownFigure(ReportKind kind, const QString& typed) {
    if (kind == ReportKind::Expenses)
        return FormatAmount(typed);
    const std::optional<double> value = ParseAmount(typed);
    return value ? PlainNumber(*value, -1) : typed;
}

QString PageLabel(int page, int pages) {
    return QStringLiteral("Page ") + QString::number(page) + QStringLiteral(" of ") +
           QString::number(pages);
}

QStringList ColumnNames(ReportKind kind) {
    if (kind == ReportKind::Expenses)
        return {QStringLiteral("Date"), QStringLiteral("Desc"), QStringLiteral("Amt")};
    return {QStringLiteral("Date"), QStringLiteral("Dest"), QStringLiteral("Start"),
            QStringLiteral("End"), QStringLiteral("Total")};
}

QStringList ColumnHeadings(ReportKind kind) {
    if (kind == ReportKind::Expenses)
        return {QStringLiteral("Date"), QStringLiteral("Description"), QStringLiteral("Amount")};
    return {QStringLiteral("Date"), QStringLiteral("Destination"), QStringLiteral("Start"),
            QStringLiteral("End"), QStringLiteral("Total")};
}

int TotalledField(ReportKind kind) {
    return kind == ReportKind::Expenses ? reportcol::Amount : reportcol::Total;
}

QList<ReportRow> BuildReportRows(ReportKind kind, const DatedEntries& entries, int year,
                                 const ReportPeriod& period) {
    QList<ReportRow> rows;
    for (const auto& [date, index] : DatedIndexes(entries, year))
        if (period.Contains(date))
            AppendLines(kind, date, entries.payloads[index], rows);
    return rows;
}

QString RowDateText(const QDate& date) {
    return datefmt::ShortDate(date);
}
