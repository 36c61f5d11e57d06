#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>

// The program's date and time formats, always with English month and day names whatever the
// system's language. Formats are named the classic way ("mm/dd/yy", "Long Date" ...); one table
// maps each name to its Qt pattern.
namespace datefmt {

// The Qt pattern of a classic format name; an unknown name is a programming error.
QString QtPattern(const QString& classic);
QString Format(const QDateTime& when, const QString& classic);
QString Format(const QDate& date, const QString& classic);

QString MmDdYy(const QDate& date);           // "mm/dd/yy": 09/07/26
QString LongDate(const QDate& date);         // "Long Date": Monday, September 7, 2026
QString ShortDate(const QDate& date);        // "Short Date": 9/7/2026
QString MmmDdYyyy(const QDate& date);        // "mmm dd, yyyy": Sep 07, 2026
QString MonthName(int month);                // "mmmm": September
QString GeneralDate(const QDateTime& when);  // "General Date": 9/7/2026 3:04:05 PM
QString MediumTime(const QTime& time);       // "Medium Time": 03:04 PM

// The full year of a two-digit year: the century is the one that puts it nearest to
// nearYear, so that 00 read while working on 2099 is 2100 and not 2000 (a fixed 1930-2029
// window would break in 2030).
int NearestFullYear(int twoDigitYear, int nearYear);

// A date written "mm/dd/yy", its century chosen by NearestFullYear. Invalid when malformed.
QDate ParseMmDdYy(const QString& text, int nearYear);

}  // namespace datefmt
