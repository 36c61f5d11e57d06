#pragma once

#include <QDate>
#include <QObject>

#include "holidays_birthdays/gui/HolidaysBirthdaysContext.h"

class QLabel;
class QListWidget;
class frmBirthdays;
class frmHolidays;

// The holidays' and birthdays' part of the main window: their names in the day cells of every
// calendar view, the birthday indicator with the pending birthdays listed by name, the
// selected date's holiday in the bottom strip, and the two managers, opened from the Manage
// menu, the indicator and the calendar's "Mark Selected Date as" Birthday and Holiday.
class HolidaysBirthdaysMenus : public QObject {
    Q_OBJECT
public:
    explicit HolidaysBirthdaysMenus(HolidaysBirthdaysContext context);

    frmHolidays* OpenHolidays();
    frmBirthdays* OpenBirthdays();

    // The pending count on the indicator and the pending people in the right panel.
    void ShowPendingBirthdays();
    // "Holiday = " and the selected date's holidays, or "None Chosen".
    void ShowHoliday();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ConnectMenus();
    void lstBirthdays_Click();

    HolidaysBirthdaysContext context_;
    QListWidget* lstBirthdays_;
    QLabel* lblBirthdayDate_;
    QLabel* lblHoliday_;
};
