#pragma once

#include <QDate>
#include <QObject>
#include <optional>

#include "calendar/DayGrid.h"
#include "calendar/DayLook.h"

class DateModel;
class MarkerColors;
class Services;

// The date marks of the year on show and of the next year: for every day cell whether it is
// marked, its category (stored as the category's colour) and its mouse-over note. Each year
// is kept in year + "Marks.dat" in the data folder, one line per marked day:
//
//     03:02:01:255-Dentist 10 am
//
// month index, weekday column and week row (two digits each, from 0), the colour as a decimal
// number, and "-" with the hover text when the day has one.
class DateMarks : public QObject {
    Q_OBJECT
public:
    DateMarks(Services& services, const DateModel& dates, const MarkerColors& colors);

    DayGrid<qint16> MarkSet;
    DayGrid<qint32> MarkCategory;
    DayGrid<QString> HoverText;
    DayGrid<qint16> NextMarkSet;
    DayGrid<qint32> NextMarkCategory;
    DayGrid<QString> NextHoverText;

    // Either year's tables.
    DayGrid<qint16>& SetTable(bool nextYear) { return nextYear ? NextMarkSet : MarkSet; }
    DayGrid<qint32>& CategoryTable(bool nextYear) {
        return nextYear ? NextMarkCategory : MarkCategory;
    }
    DayGrid<QString>& HoverTable(bool nextYear) { return nextYear ? NextHoverText : HoverText; }

    // Write a year's tables to its file. The previous file becomes the year's ".bak"; a year
    // without marks is left with only that backup.
    void SaveThisYearsMarks();
    void SaveNextYearsMarks();
    // Replace a year's tables with its file. A malformed line ends the reading; the lines
    // before it stay applied. marksRead is announced either way.
    void ReadAndDisplayThisYearsMarks();
    void ReadAndDisplayNextYearsMarks();
    void Save(bool nextYear);
    void ReadAndDisplay(bool nextYear);

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

    // The file name of a year's marks and of their backup.
    static QString FileName(int year);
    static QString BackupFileName(int year);

signals:
    // A year's tables were read from its file: the views repaint their marks.
    void marksRead(int year);

private:
    int YearOf(bool nextYear) const;
    void Clear(bool nextYear);
    void SaveYear(bool nextYear, const char* procedure);
    // Replaces a year's tables with the marks of fileName.
    void ReadYear(bool nextYear, const char* procedure, const QString& fileName);

    Services& services_;
    const DateModel& dates_;
    const MarkerColors& colors_;
};
