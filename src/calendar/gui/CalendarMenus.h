#pragma once

#include <QList>
#include <QObject>
#include <memory>

#include "calendar/CalendarDisplay.h"
#include "calendar/DayLook.h"

class CalendarView;
class DateActions;
class DateMarks;
class DateModel;
class MarkerColors;
class QMenu;
class Services;
class frmMain;

// The calendar's part of the main window: the calendar views, the selectors and the date
// options, the Edit menu's marks, the marker windows, and the marks painted into the views.
class CalendarMenus : public QObject, public CalendarDisplay {
    Q_OBJECT
public:
    CalendarMenus(frmMain& frame, Services& services, DateModel& dates, MarkerColors& colors,
                  DateMarks& marks);
    ~CalendarMenus() override;

    // Load step: reads the marker colours and shows the categories in the menus.
    void ReadMarkerColors();

    ViewKind ViewOnShow() const override;
    void Show1MonthCalendar() override;
    void Show6MonthCalendar() override;
    void Show1YearCalendar() override;
    // Repaint the marks of the view of that kind when it is on show.
    void ReDraw1MonthDateMarks() override;
    void ReDraw6MonthDateMarks() override;
    void ReDrawDateMarks() override;

    CalendarView* calendarView() const;
    // Day numbers of the one-month view small in their cell's corner (kept for a view opened
    // later).
    void SetNumbersOffset(bool on);
    // Repaints the calendar on show after something it shows has changed.
    void RedrawCalendar();
    // Tells assistive technology what the selected day holds, as the view's description.
    void DescribeSelectedDay();
    // How every calendar view shows a day: each decorator adds what its store knows.
    void AddDayDecorator(DayDecorator decorator);
    DayLook LookOf(const QDate& date) const;
    // The Date Options menu, also offered on a day's right click.
    QMenu* DateOptionsMenu() const;

signals:
    // A day was double-clicked, or Enter pressed on it, in a calendar view.
    void dayActivated(const QDate& date);
    // A picture was dropped on a day of a calendar view.
    void iconDropped(const QDate& date, int iconNumber);

private:
    void ConnectMarkMenus();
    void ConnectViews();
    void ShowCalendar(ViewKind kind);
    // Shows the selected date's month in the view on show, or opens the one-month view.
    void imgOpt_Advance();
    void DateChosen(const QDate& date);
    // Captions, check marks and colours of the mark categories in the menus and lists.
    void ShowMarkerSettings();
    // After the marker settings changed: menus, open marker windows and the view.
    void MarkerSettingsChanged();
    void mnuManageDisplayedMarks_Click();
    void mnuManageUserColors_Click();
    void RedrawViewOfKind(ViewKind kind);

    frmMain& frame_;
    Services& services_;
    DateModel& dates_;
    MarkerColors& colors_;
    DateMarks& marks_;
    std::unique_ptr<DateActions> actions_;
    // The day painted in the "Today's Date" colour, moved on at midnight.
    QDate today_;
    QList<DayDecorator> decorators_;
    bool numbersOffset_ = false;
};
