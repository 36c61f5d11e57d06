#pragma once

#include <QByteArray>
#include <QDate>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QTime>
#include <QTimeZone>

#include "ical/CalendarData.h"
#include "notes_planner/PlannerRecord.h"

class Services;
class DateModel;
class PlannerStore;
class NotesStore;
class HolidayStore;
class DateMarks;

// ---- what a file brings --------------------------------------------------------------------

// A timed event, one occurrence of it: its local date and start, and its text, a piece a line
// (an exported appointment's continuance lines come back as pieces of their own).
struct IcsEvent {
    QDate date;
    QTime start;
    QStringList texts;
    bool priority = false;
};
struct IcsToDo {
    QDate date;
    QString text;
    bool done = false;
};
struct IcsJournal {
    QDate date;
    // With its line breaks as LF.
    QString text;
};

struct IcsContent {
    // Empty when the bytes are iCalendar; else a sentence for the user, naming the line.
    QString problem;
    QList<IcsEvent> events;
    QList<IcsToDo> toDos;
    QList<IcsJournal> journals;
    // The all-day events of the file, each date they fall on within the range (or, for one
    // that does not repeat, its own date), as the holiday manager's import reads them.
    QList<DatedHoliday> allDay;
    // Whether a timed or all-day event repeats, so that the range matters.
    bool repeats = false;
    // The components left out, a sentence each.
    QStringList leftOut;
};

// Reads bytes as iCalendar; bytes past the limits of IcsLimitProblem are refused before libical
// reads them. Events with a time are taken in zone (their own zone's time converted; floating
// times as they are); an event that repeats gives each occurrence within range (a rule repeating
// more often than daily gives its first occurrence only).
IcsContent ReadIcs(const QByteArray& bytes, const DateRange& range, const QTimeZone& zone);

// ---- what an import changes ----------------------------------------------------------------

// What the all-day events of a file become: nothing, holidays, or date marks of the Holiday
// category (the summary as the mark's hover text) on days that have no mark yet.
enum class AllDayAs { LeftOut, Holidays, Marks };

struct ImportPlan {
    // The pages and notes as they will be, of the dates that change.
    QMap<QDate, PlannerPage> pages;
    QMap<QDate, QString> notes;
    // Each touched year's holiday lines as they will be, and the dates that get a holiday.
    QMap<int, QStringList> holidayLines;
    QList<QDate> holidayDates;
    // Each touched year's marks file lines as they will be, and the dates that get a mark.
    QMap<int, QStringList> markLines;
    QList<QDate> markDates;
    // What will be shortened, refused or left out, a sentence each.
    QStringList notices;
    // The files that could not be read whole: nothing goes into them, and they are not written.
    QStringList unreadFiles;

    bool IsEmpty() const {
        return pages.isEmpty() && notes.isEmpty() && holidayDates.isEmpty() && markDates.isEmpty();
    }
    // The years whose files change.
    QList<int> Years() const;
};

// The changes content makes to the data folder as it is on disk (each touched year's files
// read afresh), its all-day events taken as allDay says (a mark in markColor). Writes nothing. An
// appointment goes on the line of its hour (06:00 AM to 09:00 PM) when that line is empty, else on
// the next empty line (the page's first when none follows), its time in the label; a page without
// an empty line refuses it. To-dos fill the page's empty to-do items; a journal goes below the
// date's note. A text wider than its slot is cut, one holding a character the files cannot hold is
// refused; each is listed in the notices.
ImportPlan PlanImport(Services& services, const IcsContent& content, AllDayAs allDay,
                      quint32 markColor = 0);

// The preview of plan for the user: how many pages, notes, holidays and marks change, on which
// dates, and the notices.
QString PreviewText(const ImportPlan& plan);

struct ImportStores {
    Services& services;
    PlannerStore& planner;
    NotesStore& notes;
    HolidayStore& holidays;
    DateMarks& marks;
    const DateModel& dates;
};
// Writes plan: each touched year's planner, notes, holiday and marks file once, through their
// stores; the years in memory are read again. Returns false when any file was refused or
// failed (already reported); the others are written.
bool ApplyImport(ImportStores stores, const ImportPlan& plan);

// Why libical would not take bytes back (bytes past the limits of IcsLimitProblem, a line it
// cannot parse, or a component breaking the standard's rules), naming the line; empty when it
// takes them whole.
QString ValidateIcs(const QByteArray& bytes);
