#include "reports/ReportText.h"

#include <QStringList>
#include <algorithm>

#include "shell/NumberFormat.h"

namespace {

const QString kCsvLineEnd = QStringLiteral("\r\n");

QString CsvField(const QString& text) {
    static const QString special = QStringLiteral(",\"\r\n");
    if (std::none_of(text.begin(), text.end(), [](QChar c) { return special.contains(c); }))
        return text;
    return u'"' + QString(text).replace(u'"', QStringLiteral("\"\"")) + u'"';
}

QString CsvLine(const QStringList& fields) {
    QStringList quoted;
    for (const QString& field : fields)
        quoted.append(CsvField(field));
    return quoted.join(u',') + kCsvLineEnd;
}

// A figure as a plain number: amounts with two decimals, everything else as the number is.
QString CsvFigure(const QString& text, bool amount) {
    if (text.isEmpty())
        return text;
    return PlainNumber(Val(text), amount ? 2 : -1);
}

}  // namespace

QString PlainNumber(double value, int decimals) {
    if (decimals >= 0)
        return QString::number(value, 'f', decimals);
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
    QString text = CsvLine(headings);
    const bool expenses = report.kind == ReportKind::Expenses;
    for (const ReportRow& row : report.rows) {
        QStringList fields{row.date.toString(Qt::ISODate)};
        for (qsizetype i = 0; i < row.fields.size(); ++i)
            // The description or destination first, then the figures.
            fields.append(i == 0 ? row.fields[i] : CsvFigure(row.fields[i], expenses));
        if (report.Pays())
            fields.append(row.fields[reportcol::Total].isEmpty()
                              ? QString()
                              : PlainNumber(report.Reimbursement(row), 2));
        text += CsvLine(fields);
    }
    return text;
}

QString PlainText(const Report& report) {
    // The cells: the headings, then each row's date, fields and (with a rate) what it pays.
    QList<QStringList> table{QStringList{ColumnHeadings(report.kind)}};
    if (report.Pays())
        table.first().append(QStringLiteral("Reimbursement"));
    for (const ReportRow& row : report.rows) {
        table.append(QStringList{RowDateText(row.date)} + row.fields);
        if (report.Pays())
            table.last().append(row.fields[reportcol::Total].isEmpty()
                                    ? QString()
                                    : FormatThousands(report.Reimbursement(row), 2));
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
            QStringLiteral(", total ") + report.FormatTotal(report.Sum(0, count));
    if (report.Pays())
        text +=
            QStringLiteral(", reimbursement ") + FormatThousands(report.Reimbursement(0, count), 2);
    return text + u'\n';
}
