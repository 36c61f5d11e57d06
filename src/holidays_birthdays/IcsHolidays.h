#pragma once

#include <QByteArray>
#include <QDate>
#include <QList>
#include <QString>

// The holidays of one year read out of an iCalendar file (.ics), such as the public-holiday
// calendars that governments and calendar services publish.

// One holiday found in an iCalendar file.
struct IcsHoliday {
    QDate date;
    QString summary;
};

struct IcsImport {
    // Empty when the bytes are iCalendar; else a sentence for the user saying what is wrong.
    QString problem;
    // The year's holidays in date order (for one date, in file order).
    QList<IcsHoliday> holidays;
};

// The all-day events of the file that fall in year: each VEVENT whose DTSTART is a date, on
// that date and on every date of the year its RRULE and RDATEs give, less its EXDATEs and the
// dates that another VEVENT of the same UID overrides (RECURRENCE-ID); the override itself
// counts on its own DTSTART. Each comes with its SUMMARY, trimmed, line breaks made blanks.
// Timed events, cancelled ones and those without a summary are left out, and so are the dates
// of a rule repeating more often than daily. An event spanning several days counts on its first
// day only.
//
// Refused, with a problem and no holidays: bytes that do not begin with BEGIN:VCALENDAR (after
// a byte-order mark and blank lines), bytes holding a NUL, a calendar without its END, and
// any line libical cannot parse, apart from a property with an empty value, which is allowed.
// Text is read as UTF-8.
IcsImport HolidaysFromIcs(const QByteArray& bytes, int year);
