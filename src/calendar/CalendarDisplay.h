#pragma once

// The calendar view on show in the main window, by the number of months it shows.
enum class ViewKind { None = 0, OneMonth = 1, SixMonths = 6, OneYear = 12 };

// What the date actions ask of the calendar views of the main window. The calendar's window
// side implements it; the actions never reach a window directly.
class CalendarDisplay {
public:
    virtual ~CalendarDisplay() = default;

    virtual ViewKind ViewOnShow() const = 0;

    // Repaint the marks of the one-month view, of the six-month view and of the one-year view;
    // each does nothing when its view is not on show.
    virtual void ReDraw1MonthDateMarks() = 0;
    virtual void ReDraw6MonthDateMarks() = 0;
    virtual void ReDrawDateMarks() = 0;

    // Show (and so redraw) the one-month, six-month or one-year calendar.
    virtual void Show1MonthCalendar() = 0;
    virtual void Show6MonthCalendar() = 0;
    virtual void Show1YearCalendar() = 0;
};
