#pragma once

// What the date actions ask of the calendar views of the main window. The main window
// implements it; the actions never reach a window directly.
class CalendarDisplay {
public:
    virtual ~CalendarDisplay() = default;

    // The calendar view on show: 0 none, 1 one month, 6 six months, 12 one year.
    virtual int ViewKind() const = 0;

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
