#pragma once

#include <QDate>
#include <QObject>
#include <QStringList>
#include <optional>

#include "calendar/DayGrid.h"
#include "calendar/YearPair.h"
#include "shell/DataFile.h"
#include "shell/Records.h"

class DateModel;
class Services;

inline const QString kHolidaysFolder = QStringLiteral("Holidays");

// "Holidays\" + the year + "Holidays.dat": one file per year in the data folder's Holidays
// folder (found whatever the letter case of its name).
QString HolidayFileName(int year);

// A line of a holiday file: characters 1-8 are the date, "mm/dd/yy"; everything after the
// 9th character is the description, which may hold blanks and colons (the 9th character,
// normally ":", is never looked at). A line shorter than 9 characters raises 5.
struct HolidayLine {
    QString date;
    QString name;
};
HolidayLine SplitHolidayLine(const QString& line);

// One year's holidays as last read, and the day cells they were laid on.
struct HolidayTable {
    QStringList lines;
    QStringList dates;
    QStringList names;
    // The cell code of each holiday's day, or empty when its date stands in no cell.
    QStringList cells;
    // The cells that carry a holiday.
    DayGrid<bool> flags;
    // The year's file as last read.
    DataFile file;

    void Clear();
};

// The holiday lists of the year on show and of the next year, laid onto their day cells.
class HolidayStore : public QObject, public PerYearStore {
    Q_OBJECT
public:
    HolidayStore(Services& services, const DateModel& dates);

    YearPair<HolidayTable> years;

    // Read the year's file and mark the cell of each holiday: the first cell, in month, then
    // column, then row order, whose date is the holiday's date. A short line ends the reading
    // with no cell marked.
    void AssignThisYearsHolidays();
    void AssignNextYearsHolidays();
    void ReadBothYears() override;

    // The descriptions of the holidays on date, in file order; none for a date of neither year.
    QStringList HolidaysOn(const QDate& date) const;

signals:
    void holidaysAssigned(int year);

private:
    void Assign(Year year, const char* procedure);

    Services& services_;
    const DateModel& dates_;
};

// The layout of a holiday file: "mm/dd/yy:" + description a line (the description may hold
// colons), named by its date, with a line end after the last line; no holidays, no file.
const RecordLayout& HolidayLayout();

// The lines of a year's holiday file, or nullopt when the year has none. Raises when the file
// cannot be read.
std::optional<QStringList> ReadHolidayLines(const QString& appFolder, int year);

// A year's holiday list as the manager edits it.
struct HolidayList {
    // The lines read (each splits into its date and description), or nullopt without a file.
    std::optional<QStringList> lines;
    DataFile file;
};
// Reads a year's list. A line too short to be a holiday ends the list; the fault is reported
// under procedure, naming the file and the line, and the file is not saved over until it is
// read whole.
HolidayList ReadHolidayList(Services& services, const char* procedure, int year);

// Saves lines as the list of file, under procedure (with no line the file is deleted and none
// is left; the Holidays folder is made when missing). Each description is kept on one line.
// Returns whether it was written.
bool SaveHolidayList(Services& services, const char* procedure, DataFile& file,
                     const QStringList& lines);
// The same for a list made from a fresh read of the year's file (an import).
bool SaveHolidayLines(Services& services, int year, const QStringList& lines);

// The key a typed date is listed under in selectedYear's list: its month and day, and the
// selected year's two digits, whatever year was typed ("mm/dd/yy").
QString HolidayDateKey(const QDate& typed, int selectedYear);

// lines with every line of key's date removed and key + ":" + description added at the end:
// a date has one holiday.
QStringList WithHoliday(QStringList lines, const QString& key, const QString& description);
