#pragma once

#include <QDate>
#include <QString>
#include <functional>

#include "calendar/DayLook.h"
#include "shell/gui/Printing.h"

class MarkerColors;

// Printed calendars, each on one landscape page: a month as a large sheet (weekday names, day
// numbers, each day's mark colour, the holiday and birthday names and the hover note, the
// notes and planner flags and, when asked, the day's pictures), or the twelve months of a year
// as small sheets. Under the sheets a legend names the mark categories that occur on them.
// Days look as they look in the calendar views: lookOf tells how a day is shown.
namespace calendarprint {

using LookOf = std::function<DayLook(const QDate&)>;

// The title of a month's printout, "September 2026", and of a year's, "2026".
QString MonthTitle(const QDate& month);
QString YearTitle(int year);

// month: any day of the month to print. colors must outlive the document (a preview lays it
// out again whenever it repaints).
Printer::Document MonthDocument(const QDate& month, LookOf lookOf, const MarkerColors& colors,
                                bool withIcons);
Printer::Document YearDocument(int year, LookOf lookOf, const MarkerColors& colors);

}  // namespace calendarprint
