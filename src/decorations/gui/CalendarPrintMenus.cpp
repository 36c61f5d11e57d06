#include "decorations/gui/CalendarPrintMenus.h"

#include "calendar/DateModel.h"
#include "calendar/gui/CalendarMenus.h"
#include "decorations/gui/CalendarPrint.h"
#include "shell/Services.h"
#include "shell/gui/Printing.h"
#include "shell/gui/frmMain.h"

CalendarPrintMenus::CalendarPrintMenus(frmMain& frame, Services& services, const DateModel& dates,
                                       CalendarMenus& calendar, const MarkerColors& colors,
                                       Printer& printer)
    : QObject(&frame),
      services_(services),
      dates_(dates),
      calendar_(calendar),
      colors_(colors),
      printer_(printer) {
    Handle(frame.MenuItem(QStringLiteral("mnuFilePrintCalendar")), this,
           &CalendarPrintMenus::mnuFilePrintCalendar_Click);
    Handle(frame.MenuItem(QStringLiteral("mnuFilePrintCalendarHideIcons")), this,
           &CalendarPrintMenus::mnuFilePrintCalendarHideIcons_Click);
    Handle(frame.MenuItem(QStringLiteral("mnuFilePrintYear")), this,
           &CalendarPrintMenus::mnuFilePrintYear_Click);
}

void CalendarPrintMenus::mnuFilePrintCalendar_Click() {
    services_.Trap("mnuFilePrintCalendar_Click", [this] { PrintMonth(true); });
}

void CalendarPrintMenus::mnuFilePrintCalendarHideIcons_Click() {
    services_.Trap("mnuFilePrintCalendarHideIcons_Click", [this] { PrintMonth(false); });
}

void CalendarPrintMenus::PrintMonth(bool withIcons) {
    const QDate month = dates_.FirstOfMonth;
    CalendarMenus* calendar = &calendar_;
    printer_.Preview(calendarprint::MonthTitle(month),
                     calendarprint::MonthDocument(
                         month, [calendar](const QDate& date) { return calendar->LookOf(date); },
                         colors_, withIcons),
                     QPageLayout::Landscape);
}

void CalendarPrintMenus::mnuFilePrintYear_Click() {
    services_.Trap("mnuFilePrintYear_Click", [this] {
        CalendarMenus* calendar = &calendar_;
        printer_.Preview(
            calendarprint::YearTitle(dates_.ThisYear),
            calendarprint::YearDocument(
                dates_.ThisYear, [calendar](const QDate& date) { return calendar->LookOf(date); },
                colors_),
            QPageLayout::Landscape);
    });
}
