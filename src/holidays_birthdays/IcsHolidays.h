#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QDate>
#include <QList>
#include <QString>
#include <optional>

// The holidays of one year read out of an iCalendar file (.ics), such as the public-holiday
// calendars that governments and calendar services publish.

// The most an iCalendar file may hold; beyond it the file is refused before libical reads a byte.
// libical's line reader takes time that grows with the square of a line's length as written (a
// line of 4 MB takes seconds, one of 50 MB minutes), so a line as written is held to 256 KB, a
// few milliseconds' work: even a file made of such lines reads no slower than one of ordinary
// lines. A line folded over several, as calendar programs write long texts, is read in time in
// step with its length, and may run to 16 MB with its continuation lines, room for an attachment
// kept in the file. A file may hold 64 MB, years of a busy calendar: a full year of this
// program's planner exports to 2.4 MB, in lines of at most 75 bytes.
inline constexpr qsizetype kIcsMaxFileBytes = qsizetype{64} << 20;
inline constexpr qsizetype kIcsMaxLineBytes = qsizetype{256} << 10;
inline constexpr qsizetype kIcsMaxUnfoldedLineBytes = qsizetype{16} << 20;

// Why bytes go beyond those limits, a sentence naming the limit and, for a line, its number
// (from 1, the first line of a folded one); empty when they stay within them. A line ends at LF
// (as libical reads it), its CR not counted; one that begins with a blank or a tab continues the
// line before it.
QString IcsLimitProblem(QByteArrayView bytes);

// The bytes of an iCalendar file, read no further than one byte past the largest file taken, so
// that a huge file is refused without being read whole; nullopt when it cannot be opened.
std::optional<QByteArray> ReadIcsFile(const QString& path);

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
// Refused, with a problem and no holidays: bytes beyond the limits above, bytes that do not begin
// with BEGIN:VCALENDAR (after a byte-order mark and blank lines), bytes holding a NUL, a calendar
// without its END, and any line libical cannot parse, apart from a property with an empty value,
// which is allowed. Text is read as UTF-8.
IcsImport HolidaysFromIcs(const QByteArray& bytes, int year);
