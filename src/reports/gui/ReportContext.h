#pragma once

class DateModel;
class PlannerStore;
class Printer;
class Services;
class UserPreferences;
class frmMain;

// What the report windows work with: the frame they live in, the planner pages, the date
// model (read only: a report never moves the calendar), the preferences and the printer.
struct ReportContext {
    frmMain& frame;
    Services& services;
    const DateModel& dates;
    const PlannerStore& planner;
    UserPreferences& prefs;
    Printer& printer;
};
