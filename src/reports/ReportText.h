#pragma once

#include <QString>

#include "reports/Report.h"

// The report as text for other programs.

// What Copy puts on the clipboard: the column headings, then each marked row, the fields
// separated by tabs and every line ended by CR LF.
QString CopyText(const Report& report);

// Every row of the report as CSV (RFC 4180) for a spreadsheet: a heading row, dates as
// YYYY-MM-DD, amounts with two decimals and miles as plain numbers with a point ("12.50",
// "132"), the number a figure counts for in the totals; a blank figure stays empty, and one
// that is no number is written as the text it is. A text that a spreadsheet would run as a
// formula (beginning with "=", "+", "-", "@", a tab or a carriage return) is written after an
// apostrophe. With a mileage rate, each mileage row also has what it is paid. Lines end in
// CR LF.
QString CsvText(const Report& report);

// The report for a terminal: the heading, a line of column headings, the rows in aligned
// columns, and the period's total (and what it pays, with a rate).
QString PlainText(const Report& report);

// A figure as CSV writes it: decimals places (rounded as the totals are), or as few as the
// number needs (-1).
QString PlainNumber(double value, int decimals);
