#include "reports/ReportText.h"

#include <QStringList>
#include <algorithm>
#include <tuple>

#include "shell/NumberFormat.h"

namespace {

const QString kCsvLineEnd = QStringLiteral("\r\n");

// Appends a field, in quotes (its quotes doubled) when it holds a comma, a quote or a line
// break, and the comma or line end after it.
void AppendCsvField(QString& csv, QStringView field, bool last) {
    const bool quoted = std::any_of(field.begin(), field.end(), [](QChar c) {
        return c == u',' || c == u'"' || c == u'\r' || c == u'\n';
    });
    if (!quoted) {
        csv += field;
    } else {
        csv += u'"';
        for (const QChar c : field) {
            if (c == u'"')
                csv += u'"';
            csv += c;
        }
        csv += u'"';
    }
    if (last)
        csv += kCsvLineEnd;
    else
        csv += u',';
}

// Appends a text as written: one that begins as a spreadsheet formula would ("=", "+", "-",
// "@", a tab or a carriage return) gets a leading apostrophe, so that a spreadsheet shows it
// as text instead of running it.
void AppendCsvText(QString& csv, QStringView text, bool last) {
    static const QString kFormulaStarts = QStringLiteral("=+-@\t\r");
    if (text.isEmpty() || !kFormulaStarts.contains(text.front())) {
        AppendCsvField(csv, text, last);
        return;
    }
    QString guarded(1, u'\'');
    guarded += text;
    AppendCsvField(csv, guarded, last);
}

void AppendCsvLine(QString& csv, const QStringList& fields) {
    for (qsizetype i = 0; i < fields.size(); ++i)
        AppendCsvField(csv, fields[i], i + 1 == fields.size());
}

// YYYY-MM-DD, written digit by digit: a year's rows are dated in the time a few are formatted.
void AppendIsoDate(QString& csv, const QDate& date) {
    int year = 0, month = 0, day = 0;
    date.getDate(&year, &month, &day);
    char16_t digits[10] = {u'0', u'0', u'0', u'0', u'-', u'0', u'0', u'-', u'0', u'0'};
    for (const auto& [at, value, width] :
         {std::tuple{0, year, 4}, std::tuple{5, month, 2}, std::tuple{8, day, 2}})
        for (int i = width - 1, rest = value; i >= 0; --i, rest /= 10)
            digits[at + i] = char16_t(u'0' + rest % 10);
    csv += QStringView(digits, 10);
}

// A figure as a plain number: amounts with two decimals, everything else as the number is; a
// figure that is no number is written as the text it is.
void AppendCsvFigure(QString& csv, const QString& text, bool amount, bool last) {
    if (const std::optional<double> value = ParseAmount(text))
        AppendCsvField(csv, PlainNumber(*value, amount ? 2 : -1), last);
    else
        AppendCsvText(csv, text, last);
}

}  // namespace

QString PlainNumber(double value, int decimals) {
    // Rounded as the totals are, half away from zero, so that a row's figure in the CSV is the
    // one the report shows; without the thousands' commas.
    if (decimals >= 0)
        return FormatThousands(value, decimals).remove(u',');
    QString text = QString::number(value, 'f', 6);
    while (text.endsWith(u'0'))
        text.chop(1);
    if (text.endsWith(u'.'))
        text.chop(1);
    return text == QLatin1String("-0") ? QStringLiteral("0") : text;
}

QString CopyText(const Report& report) {
    QString text = ColumnHeadings(report.kind).join(u'\t') + kCsvLineEnd;
    for (const ReportRow& row : report.rows)
        if (row.marked)
            text += RowDateText(row.date) + u'\t' + row.fields.join(u'\t') + kCsvLineEnd;
    return text;
}

QString CsvText(const Report& report) {
    QStringList headings = ColumnHeadings(report.kind);
    if (report.Pays())
        headings.append(QStringLiteral("Reimbursement"));
    QString csv;
    csv.reserve(64 * (report.rows.size() + 1));
    AppendCsvLine(csv, headings);
    const bool expenses = report.kind == ReportKind::Expenses;
    for (const ReportRow& row : report.rows) {
        AppendIsoDate(csv, row.date);
        csv += u',';
        for (qsizetype i = 0; i < row.fields.size(); ++i) {
            // The description or destination first, then the figures.
            const bool last = i + 1 == row.fields.size() && !report.Pays();
            if (i == 0)
                AppendCsvText(csv, row.fields[i], last);
            else
                AppendCsvFigure(csv, row.fields[i], expenses, last);
        }
        if (report.Pays()) {
            const std::optional<double> paid = report.Reimbursement(row);
            AppendCsvField(csv, paid ? PlainNumber(*paid, 2) : QString(), true);
        }
    }
    return csv;
}

QString PlainText(const Report& report) {
    // The cells: the headings, then each row's date, fields and (with a rate) what it pays.
    QList<QStringList> table{QStringList{ColumnHeadings(report.kind)}};
    if (report.Pays())
        table.first().append(QStringLiteral("Reimbursement"));
    for (const ReportRow& row : report.rows) {
        table.append(QStringList{RowDateText(row.date)} + row.fields);
        if (report.Pays()) {
            const std::optional<double> paid = report.Reimbursement(row);
            table.last().append(paid ? FormatThousands(*paid, 2) : QString());
        }
    }
    // Each column as wide as its widest cell, two blanks apart; the date and the description
    // or destination aligned left, the figures right.
    QList<qsizetype> widths(table.first().size(), 0);
    for (const QStringList& cells : table)
        for (qsizetype c = 0; c < cells.size(); ++c)
            widths[c] = std::max(widths[c], cells[c].size());
    QString text = report.Heading() + QStringLiteral("\n\n");
    for (const QStringList& cells : table) {
        QString line;
        for (qsizetype c = 0; c < cells.size(); ++c)
            line +=
                (c < 2 ? cells[c].leftJustified(widths[c]) : cells[c].rightJustified(widths[c])) +
                QStringLiteral("  ");
        while (line.endsWith(u' '))
            line.chop(1);
        text += line + u'\n';
    }
    const qsizetype count = report.rows.size();
    text += QStringLiteral("\n") + QString::number(count) +
            (count == 1 ? QStringLiteral(" row") : QStringLiteral(" rows")) +
            QStringLiteral(", total ") + report.TotalText(0, count);
    if (report.Pays())
        text +=
            QStringLiteral(", reimbursement ") + FormatThousands(report.Reimbursement(0, count), 2);
    return text + u'\n';
}
