#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>
#include <QTime>

#include "ical/CalendarData.h"

// The planner as an iCalendar file (RFC 5545), written by libical:
// - each appointment of a planner page a VEVENT from its time label to the next timed line's
//   time (or for an hour), a bold time PRIORITY 1; continuance lines join the event above;
// - each to-do item of a page a VTODO due that day, and each row of the to-do list a VTODO
//   without a date, COMPLETED when marked done, else NEEDS-ACTION;
// - each page's expenses and mileage one all-day VJOURNAL, and each note one VJOURNAL;
// - each birthday an all-day VEVENT repeating every year, each alert an all-day VEVENT whose
//   VALARM goes off the alert's days before, each holiday an all-day VEVENT.
// Every component's UID comes from its date and its place ("20260907-line-03@orvanta"), so a
// second export of the same data has the same UIDs and a calendar program updates its copy.

// The domain of every UID the program writes; an import knows its own by it.
inline const QString kUidDomain = QStringLiteral("@orvanta");

// One appointment of a planner page: the line with the time and the continuance lines below it.
struct Appointment {
    int line = 0;
    QTime start;
    QTime end;  // invalid when it ends the next day
    // The text of each line of the appointment that has text, in page order.
    QStringList texts;
    bool bold = false;
};
// The appointments of page, in line order. A time label that is no time counts as the whole
// hour of its line; a continuance line at the top of a page starts an appointment at its own
// line's hour.
QList<Appointment> AppointmentsOf(const PlannerPage& page);

// A time label as the planner shows it ("06:00 AM", "8:45 PM", "14:30"); invalid otherwise.
QTime ParseTimeLabel(const QString& label);

struct IcsExport {
    QByteArray bytes;
    // Empty when written; else why not (an unknown time zone).
    QString problem;
    int components = 0;
};

// The file of data. timeZone: an IANA name for zoned times (with its VTIMEZONE), or empty for
// floating local times. stamp: the DTSTAMP of every component.
IcsExport ExportToIcs(const CalendarData& data, const QString& timeZone, const QDateTime& stamp);
