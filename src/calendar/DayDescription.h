#pragma once

#include <QDate>
#include <QString>

struct DayLook;

// What a screen reader says of a day of the calendar: the date, then its mark, holidays and
// birthdays, mouse-over note, icons and whether it has notes or a planner, e.g.
// "Monday, March 2, 2026. Marked Travel. Labor Day. Icon Flight. Has notes.".
QString DayDescription(const QDate& date, const DayLook& look, const QString& markCaption);
