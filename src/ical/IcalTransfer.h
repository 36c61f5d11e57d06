#pragma once

#include <QTimeZone>

#include "ical/IcalExport.h"
#include "ical/IcalImport.h"

class Services;
class UserPreferences;

// What the menu and the command line share of an iCalendar export and import.

// The export of the data folder over range (an open range takes every year with data), its
// times in the zone the preferences name (floating when none), stamped with the clock's time.
// The file is read back by libical before it is handed out: a file libical refuses is never
// written. readWhole is false when a data file was read only in part (reported).
IcsExport ExportDataFolder(Services& services, const UserPreferences& prefs, const DateRange& range,
                           bool* readWhole = nullptr);

// The zone an imported event's time is given in: the preferences' zone, else the system's.
QTimeZone ImportZone(const UserPreferences& prefs);

// The whole of year as a range.
DateRange YearRange(int year);

// "2026" or "2026-2028": the years repeating events are taken over; nullopt when the text is
// neither (or runs backwards or over more than 50 years).
std::optional<DateRange> ParseYearRange(const QString& text);
