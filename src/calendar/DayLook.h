#pragma once

#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

// How a calendar view shows one day. The subsystems that keep something per day (marks,
// holidays, birthdays, notes, planners) each add what they know through a decorator.
// A picture placed on a day: the file it is drawn from and the caption shown as its tooltip.
struct DayIcon {
    QString picturePath;
    QString caption;
};

struct DayLook {
    // The mark colour (0x00BBGGRR) the day is painted in; nullopt when it is unmarked.
    std::optional<quint32> markColor;
    // Today's colour, set only on today's date while today is shown.
    std::optional<quint32> todayColor;
    // The mouse-over text of the day.
    QString hoverText;
    // Short texts written into the day cell (holiday and birthday names).
    QStringList captions;
    bool hasNotes = false;
    bool hasPlanner = false;
    // Pictures placed on the day (the month's icons and the template's).
    QList<DayIcon> icons;
};

using DayDecorator = std::function<void(const QDate& date, DayLook& look)>;
