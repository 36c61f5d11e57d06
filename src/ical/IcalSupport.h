#pragma once

// What the iCalendar reader and writer share of libical: owning pointers and the conversions
// between libical's times and Qt's. Included by the core's iCalendar sources only (libical is
// private to the core).
#include <libical/ical.h>

#include <QDate>
#include <QString>
#include <QTime>
#include <memory>

namespace ical {

struct FreeComponent {
    void operator()(icalcomponent* component) const { icalcomponent_free(component); }
};
using Component = std::unique_ptr<icalcomponent, FreeComponent>;

inline icaltimetype DateValue(const QDate& date) {
    icaltimetype value = icaltime_null_date();
    value.year = date.year();
    value.month = date.month();
    value.day = date.day();
    return value;
}

// A local time of date, floating without a zone.
inline icaltimetype DateTimeValue(const QDate& date, const QTime& time, icaltimezone* zone) {
    icaltimetype value = icaltime_null_time();
    value.year = date.year();
    value.month = date.month();
    value.day = date.day();
    value.hour = time.hour();
    value.minute = time.minute();
    value.second = time.second();
    value.is_date = 0;
    if (zone)
        value = icaltime_set_timezone(&value, zone);
    return value;
}

// The date of a libical time; invalid for no time and for a day the month does not have
// (libical reads 20261232 without a complaint).
inline QDate DateOf(const icaltimetype& time) {
    if (icaltime_is_null_time(time))
        return {};
    return QDate(time.year, time.month, time.day);
}

inline QString Text(const char* text) {
    return QString::fromUtf8(text);
}

}  // namespace ical
