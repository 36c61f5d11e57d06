#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>

// The program's date and time formats, always with English month and day names whatever the
// system's language.
namespace datefmt {

QString MmDdYy(const QDate& date);           // 09/07/26
QString LongDate(const QDate& date);         // Monday, September 7, 2026
QString ShortDate(const QDate& date);        // 9/7/2026
QString MmmDdYyyy(const QDate& date);        // Sep 07, 2026
QString MonthName(int month);                // September
QString GeneralDate(const QDateTime& when);  // 9/7/2026 3:04:05 PM
QString MediumTime(const QTime& time);       // 03:04 PM

// A date written "mm/dd/yy". The century is the one that puts the date nearest to nearYear,
// so that 01/05/00 read while working on 2099 is 2100 and not 2000. Invalid when malformed.
QDate ParseMmDdYy(const QString& text, int nearYear);

}  // namespace datefmt
