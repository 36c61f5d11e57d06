#pragma once

#include <QObject>

class CalendarMenus;
class DateModel;
class Services;
class UserPreferences;
class frmFindDate;
class frmMain;

// Two calendar commands of the menus: Find a Date (View, Date Functions), which moves the
// calendar to a typed date, and Show Numbers Offset (Options, Calendar Options), which puts
// the one-month view's day numbers small in their cells' corners; that choice carries a check
// mark and is kept in the preferences.
class CalendarOptionMenus : public QObject {
    Q_OBJECT
public:
    CalendarOptionMenus(frmMain& frame, Services& services, const DateModel& dates,
                        UserPreferences& prefs, CalendarMenus& calendar);

    // After the preferences are read: the numbers as they were left.
    void ShowAtStart();
    frmFindDate* mnuDateFind_Click();
    void mnuOptCalNumbersOffset_Click();

private:
    void ShowNumbersOffset(bool on);

    frmMain& frame_;
    Services& services_;
    const DateModel& dates_;
    UserPreferences& prefs_;
    CalendarMenus& calendar_;
};
