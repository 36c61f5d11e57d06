#pragma once

#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>

#include "holidays_birthdays/modBirthdays.h"
#include "notes_planner/PlannerRecord.h"
#include "reminders/modAlerts.h"
#include "reminders/modToDo.h"

class Services;

// Everything of the data folder that leaves it in an iCalendar file, read from the files as
// they are saved: the planner pages, notes and holidays of the years asked for, the birthdays,
// the alerts of those years and the to-do list.
struct DatedPage {
    QDate date;
    PlannerPage page;
};
struct DatedNote {
    QDate date;
    // With its line breaks as CR LF.
    QString text;
};
struct DatedHoliday {
    QDate date;
    QString name;
};

struct CalendarData {
    QList<DatedPage> pages;
    QList<DatedNote> notes;
    QList<DatedHoliday> holidays;
    QList<BirthdayRecord> birthdays;
    QList<AlertLine> alerts;
    ToDoRows toDo;
    // The first year the export covers (a birthday whose year is not kept starts there).
    int firstYear = 0;
};

// The dates to take: both ends included; an invalid end leaves that side open.
struct DateRange {
    QDate from;
    QDate to;
    bool Contains(const QDate& date) const {
        return (!from.isValid() || date >= from) && (!to.isValid() || date <= to);
    }
};

// The years a data folder holds anything for: those with a year folder and those with a
// holiday file, in order.
QList<int> YearsWithData(Services& services);

// Reads what the range covers, each file afresh. A file that stops at a faulty line gives what
// stands before that line; the fault is reported (and logged) under the reading procedure of
// its store. Returns false when any file was read only in part.
bool ReadCalendarData(Services& services, const DateRange& range, CalendarData& data);
