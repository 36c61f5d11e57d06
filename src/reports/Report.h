#pragma once

#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

#include "reports/ReportPeriod.h"

struct DatedEntries;

// The expense report lists the filled expense lines of the planner pages of a period, the
// mileage report their filled mileage lines; forty rows to a page.
enum class ReportKind { Expenses, Mileage };

constexpr int kRowsPerPage = 40;

// The columns after the date: description and amount, or destination, start, end and total.
namespace reportcol {
constexpr int Description = 0;
constexpr int Amount = 1;
constexpr int Destination = 0;
constexpr int Start = 1;
constexpr int End = 2;
constexpr int Total = 3;
}  // namespace reportcol

// One listed line of a planner page: its date and its fields, each trimmed of blanks. The row
// is a copy: editing it leaves the page as it was.
struct ReportRow {
    QDate date;
    QStringList fields;
    // Marked for copying.
    bool marked = false;
};

// A column's total: the sum of its figures that are numbers, and how many filled figures
// were left out of it because they are no number (words are listed as written, never
// counted as another number).
struct ReportTotal {
    double sum = 0;
    qsizetype leftOut = 0;
};

struct Report {
    ReportKind kind = ReportKind::Expenses;
    ReportPeriod period;
    QList<ReportRow> rows;
    // The mileage rate: what a mile is paid; 0 when none is set, and then nothing is paid.
    double rate = 0;

    // Rows / 40 rounded up: no rows make no pages.
    int Pages() const { return int((rows.size() + kRowsPerPage - 1) / kRowsPerPage); }
    // The rows of page (from 1): their first index and one past their last.
    qsizetype PageBegin(int page) const { return qsizetype(page - 1) * kRowsPerPage; }
    qsizetype PageEnd(int page) const {
        return std::min(rows.size(), qsizetype(page) * kRowsPerPage);
    }

    // "Daily Expenses from mmm dd, yyyy to mmm dd, yyyy" or "Mileage from ... to ...".
    QString Heading() const;
    // The amounts (or miles) of rows [begin, end) added, empty ones skipped.
    ReportTotal Total(qsizetype begin, qsizetype end) const;
    // A total in the report's format ("#,###,##0.00" for amounts, "#,###,##0" for miles),
    // followed by what it left out, if anything: "1,020.00 (2 amounts are not numbers and
    // are left out of the total)".
    QString FormatTotal(double value) const;
    QString TotalText(const ReportTotal& total) const;
    QString TotalText(qsizetype begin, qsizetype end) const { return TotalText(Total(begin, end)); }
    // What a row's miles are paid at the rate; nothing without a rate, or when its miles are
    // blank or no number.
    bool Pays() const { return kind == ReportKind::Mileage && rate > 0; }
    std::optional<double> Reimbursement(const ReportRow& row) const;
    double Reimbursement(qsizetype begin, qsizetype end) const;
};

// A figure typed into a report's cell as the cell keeps it: an amount in the planner's format
// ("$1,234.5" becomes "1234.50"), an odometer reading or miles as a plain number ("12,345"
// becomes "12345"); words as typed.
QString ShownFigure(ReportKind kind, const QString& typed);

// "Page n of m".
QString PageLabel(int page, int pages);

// The names of the report's columns in the window's controls ("Date", "Desc", "Amt" or "Date",
// "Dest", "Start", "End", "Total") and as headings ("Date", "Description", "Amount" ...).
QStringList ColumnNames(ReportKind kind);
QStringList ColumnHeadings(ReportKind kind);
// The index of the column that is totalled, among the fields after the date.
int TotalledField(ReportKind kind);

// The rows of the period from a year's planner entries (entries of year), walked in date
// order: for each page in the period, its expense lines with a description or an amount, or
// its mileage lines with any of the four figures.
QList<ReportRow> BuildReportRows(ReportKind kind, const DatedEntries& entries, int year,
                                 const ReportPeriod& period);

// A row's date as the window shows it ("Short Date": 9/7/2026).
QString RowDateText(const QDate& date);
