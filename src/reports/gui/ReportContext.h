#pragma once

class DateModel;
class Printer;
class Services;
class UserPreferences;
class frmMain;

// What the report windows work with: the frame they live in, the date model (read only: a
// report never moves the calendar), the preferences and the printer.
struct ReportContext {
    frmMain& frame;
    Services& services;
    const DateModel& dates;
    UserPreferences& prefs;
    Printer& printer;
};
