#pragma once

class BirthdayStore;
class CalendarMenus;
class DateModel;
class HolidayStore;
class Services;
class frmMain;

// What the holiday and birthday managers work with: the frame they live in, the date model,
// both stores, and the calendar that shows their names.
struct HolidaysBirthdaysContext {
    frmMain& frame;
    Services& services;
    DateModel& dates;
    HolidayStore& holidays;
    BirthdayStore& birthdays;
    CalendarMenus& calendar;
};
