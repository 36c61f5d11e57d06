#pragma once

#include <QDate>
#include <QObject>
#include <optional>

#include "calendar/DayGrid.h"
#include "calendar/DayLook.h"
#include "calendar/YearPair.h"
#include "shell/DataFile.h"
#include "shell/Records.h"

class DateModel;
class MarkerColors;
class Services;

// One year's date marks: for every day cell whether it is marked, its category (stored as the
// category's colour) and its mouse-over note.
struct MarkTables {
    DayGrid<qint16> set;
    DayGrid<qint32> category;
    DayGrid<QString> hover;
    // The year's file as last read or saved.
    DataFile file;

    void Clear();
};

// One line of a marks file: the cell, the colour and the hover text (empty when none).
struct MarkLine {
    CellIndex cell;
    qint32 color = 0;
    QString hover;
};

// "03:02:01:255-Dentist 10 am": month index, weekday column and week row (two digits each,
// from 0), the colour as a decimal number, and "-" with the hover text when the day has one
// (kept on one line). A line is named by its cell; the old file is kept as the ".bak".
const RecordLayout& MarksLayout();
QStringList MarkFields(const MarkLine& mark);
QString FormatMarkLine(const MarkLine& mark);
// Throws VbError (13 for a field that is not a number, 9 for an index out of range).
MarkLine ParseMarkLine(QStringView line);

// The date marks of the year on show and of the next year, each year kept in year +
// "Marks.dat" in the data folder, one line per marked day.
class DateMarks : public QObject, public PerYearStore {
    Q_OBJECT
public:
    DateMarks(Services& services, const DateModel& dates, const MarkerColors& colors);

    YearPair<MarkTables> years;
    // Each year's tables by the names the program gives them.
    DayGrid<qint16>& MarkSet = years[Year::This].set;
    DayGrid<qint32>& MarkCategory = years[Year::This].category;
    DayGrid<QString>& HoverText = years[Year::This].hover;
    DayGrid<qint16>& NextMarkSet = years[Year::Next].set;
    DayGrid<qint32>& NextMarkCategory = years[Year::Next].category;
    DayGrid<QString>& NextHoverText = years[Year::Next].hover;

    // Write a year's tables to its file. The previous file becomes the year's ".bak"; a year
    // without marks is left with only that backup.
    void SaveThisYearsMarks();
    void SaveNextYearsMarks();
    // Replace a year's tables with its file. A malformed line ends the reading; the lines
    // before it stay applied, and the year is not saved again until it has been read whole.
    // marksRead is announced either way.
    void ReadAndDisplayThisYearsMarks();
    void ReadAndDisplayNextYearsMarks();
    void Save(Year year);
    void ReadAndDisplay(Year year);
    void ReadBothYears() override;

    // The colour a date is painted in: nullopt when it carries no mark, when its category is
    // hidden, or when it lies in neither year.
    std::optional<quint32> VisibleMarkColor(const QDate& date) const;
    // The mouse-over note of a date; empty when it has none.
    QString HoverTextOf(const QDate& date) const;
    // Adds the date's mark and note to how a calendar view shows it.
    void Decorate(const QDate& date, DayLook& look) const;

    // Clears every mark and note of this year except the Birthday and Holiday marks, which
    // belong to their managers, and saves this year's marks.
    void DeleteThisYearsMarks();
    // Takes this year's marks from the year's backup; the marks replaced become the backup.
    // False when there is no backup; nothing changes then.
    bool RestoreThisYearsMarks();

    // Replaces a year's file (any year) with lines, the previous file becoming the backup as
    // in a save (and refused as a save is: a file that cannot be read whole is never
    // replaced); a year in memory is read again. Returns whether it was written.
    bool PutMarkLines(int year, const QStringList& lines);

    // The file name of a year's marks and of their backup.
    static QString FileName(int year);
    static QString BackupFileName(int year);

signals:
    // A year's tables were read from its file: the views repaint their marks.
    void marksRead(int year);

private:
    void SaveYear(Year year, const char* procedure);
    // Replaces a year's tables with the marks of fileName.
    void ReadYear(Year year, const char* procedure, const QString& fileName);
    // The records of a year's tables.
    Records RecordsOf(const MarkTables& tables) const;

    Services& services_;
    const DateModel& dates_;
    const MarkerColors& colors_;
};
