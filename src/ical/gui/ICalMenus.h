#pragma once

#include <QObject>

class DateMarks;
class DateModel;
class MarkerColors;
class frmMain;
class HolidayStore;
class NotesStore;
class PlannerStore;
class Services;
class UserPreferences;

// The File menu's iCalendar commands: the whole planner written to an .ics file, and an .ics
// file's events, to-dos and journals brought into the planner after a preview of what changes.
class ICalMenus : public QObject {
    Q_OBJECT
public:
    struct Stores {
        Services& services;
        UserPreferences& prefs;
        DateModel& dates;
        PlannerStore& planner;
        NotesStore& notes;
        HolidayStore& holidays;
        DateMarks& marks;
        const MarkerColors& colors;
    };
    ICalMenus(frmMain& frame, Stores stores);

    void mnuFileExportICal_Click();
    void mnuFileImportICal_Click();

    // Imports the file at path: asks for the years of repeating events and whether all-day
    // events become holidays (when the file has any), shows what would change, and writes only
    // when the user says Yes.
    void ImportFile(const QString& path);

private:
    frmMain& frame_;
    Stores stores_;
};
