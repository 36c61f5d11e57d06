#pragma once

#include <QDate>
#include <QString>

#include "calendar/DayGrid.h"
#include "calendar/YearPair.h"

class CalendarDisplay;
class DateMarks;
class DateModel;
class MarkerColors;
class Services;

// The commands of the Date Options and Edit menus that act on the selected date or on the
// marks. The main window's menu items call them; each is a procedure of its own that reports
// its failures under its own name.
class DateActions {
public:
    DateActions(Services& services, DateModel& dates, MarkerColors& colors, DateMarks& marks,
                CalendarDisplay& display);

    // Marks the selected date as user category index (0-11).
    void mnuOptDateMarkAs_Click(int index);
    void mnuOptDateQuickMark_Click();
    void mnuOptDateClearMark_Click();
    void mnuOptDateAttachHoverText_Click();

    void mnuEditDeleteMarks_Click();
    void mnuOptCalendarRestoreMarks_Click();
    // Shows or hides the marks of category index, or of all categories.
    void mnuEditMark_Click(int index);
    void mnuEditMarksShowAll_Click();
    void mnuEditMarksHideAll_Click();
    void mnuEditMarkerSaveSettings_Click();

    // The title of the hover-text box for date.
    QString HoverTitle(const QDate& date) const;

private:
    struct Day {
        CellIndex cell;
        Year year = Year::This;
    };
    // The selected date's cell; raises when the date holders do not hold it.
    Day SelectedCell() const;
    void MarkSelectedDate(quint32 color);
    // Shows again the calendar view on show, which repaints it.
    void RedrawViewOnShow();

    Services& services_;
    DateModel& dates_;
    MarkerColors& colors_;
    DateMarks& marks_;
    CalendarDisplay& display_;
};
