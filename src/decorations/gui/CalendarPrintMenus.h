#pragma once

#include <QObject>

class CalendarMenus;
class DateModel;
class MarkerColors;
class Printer;
class Services;
class frmMain;

// The File menu's calendar printouts: the selected month with or without its pictures, and
// the year on show. Each is previewed first and printed on a landscape page.
class CalendarPrintMenus : public QObject {
    Q_OBJECT
public:
    CalendarPrintMenus(frmMain& frame, Services& services, const DateModel& dates,
                       CalendarMenus& calendar, const MarkerColors& colors, Printer& printer);

    void mnuFilePrintCalendar_Click();
    void mnuFilePrintCalendarHideIcons_Click();
    void mnuFilePrintYear_Click();

private:
    void PrintMonth(bool withIcons);

    Services& services_;
    const DateModel& dates_;
    CalendarMenus& calendar_;
    const MarkerColors& colors_;
    Printer& printer_;
};
