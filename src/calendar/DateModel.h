#pragma once

#include <QDate>
#include <QList>
#include <QObject>
#include <QString>
#include <optional>

#include "calendar/DayGrid.h"
#include "calendar/YearPair.h"

// The year on show and the one after it, laid out as month sheets. Every store that keeps
// something per day finds the day's cell here, by its "mm/dd/yy" text, and then uses the same
// cell in its own grid. The two years are kept and searched separately: their two-digit texts
// would otherwise be confused a century apart.
using DateHolderGrid = DayGrid<QString>;

// The text of a cell that holds no day.
inline const QString kBlankDay = QString(8, QLatin1Char(' '));

class DateModel : public QObject {
    Q_OBJECT
public:
    DateModel();

    // Working date fields, set whenever the selected date changes.
    QDate SelectedDate;
    qint16 SelectedDay = 0;
    QDate FirstOfMonth;
    qint16 SelectedMonth = 0;
    qint16 ThisYear = 0;
    QDate YearStart;
    QDate YearEnd;
    bool LeapYear = false;

    DateHolderGrid DateHolder;
    DateHolderGrid NextDateHolder;

    // From SelectedDate: the day, month and year fields and the year's first and last day.
    void SetYearBounds();
    // Blanks every cell of both years' holders.
    void ClearDateHolders();
    // Fills DateHolder for ThisYear (and sets LeapYear).
    void AssignThisYearsDateHolders();
    // Fills NextDateHolder for the year after ThisYear.
    void AssignNextYearsDateholders();

    // Moves the selection. On a change of year both years' holders are refilled and every
    // per-year store reads both years again, then yearChanged is announced; selectedDateChanged
    // follows. Returns true when the year changed.
    bool SelectDate(const QDate& date);

    // The stores that keep a table per year, read again on every change of year.
    void AddYearStore(PerYearStore* store) { yearStores_.append(store); }
    void ReadYearStores();

    // The holder that covers date (this year's or next year's), or null for any other year.
    const DateHolderGrid* HolderFor(const QDate& date) const;
    bool IsNextYear(const QDate& date) const { return date.year() == ThisYear + 1; }
    // Which of the two years date belongs to (next year, or else this year).
    Year YearSlotOf(const QDate& date) const { return IsNextYear(date) ? Year::Next : Year::This; }
    int YearOf(Year year) const { return ThisYear + (year == Year::Next ? 1 : 0); }

    // The cell of date in its year's holder; nullopt for a date of neither year.
    std::optional<CellIndex> FindDay(const QDate& date) const;
    // The date a cell of this year's (or next year's) holder shows; invalid for a blank cell.
    QDate DateAt(const CellIndex& cell, bool nextYear) const;

signals:
    void yearChanged(int year);
    void selectedDateChanged(const QDate& date);

private:
    QList<PerYearStore*> yearStores_;
};

bool IsLeapYear(int year);

// The first cell of holder whose text is mmddyy.
std::optional<CellIndex> FindInHolder(const DateHolderGrid& holder, const QString& mmddyy);
