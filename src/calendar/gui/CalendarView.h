#pragma once

#include <QDate>
#include <QList>
#include <QWidget>

#include "calendar/DayLook.h"

class ProgramState;

// The calendar sheets of the main window: one month (a large grid with weekday names), six
// months from the selected month, or the twelve months of the year on show. Days are laid out
// from the date holders; each day shows what the decorators say about it. A click selects the
// date, the arrow keys and Page Up/Down move the selection, Enter or a double click opens the
// day, a right click offers the date options.
class CalendarView : public QWidget {
    Q_OBJECT
public:
    // lookOf tells how a day is shown; it is asked at every paint.
    CalendarView(ProgramState& state, std::function<DayLook(const QDate&)> lookOf,
                 QWidget* parent = nullptr);

    // 1, 6 or 12 months.
    void SetMonthsShown(int months);
    int MonthsShown() const { return monthsShown_; }

    // The first day of each month on show, in order.
    QList<QDate> MonthsOnShow() const;
    // The day under a point of the widget; invalid between days.
    QDate DateAt(const QPoint& point) const;
    // Where a day is drawn; empty when it is not on show.
    QRect DayRect(const QDate& date) const;

    static const QStringList& WeekdayNames();

signals:
    void dateActivated(const QDate& date);
    void contextMenuAt(const QDate& date, const QPoint& globalPos);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool event(QEvent* event) override;

private:
    struct Sheet {
        QDate first;     // first day of the month
        QRect frame;     // the whole sheet
        QRect title;     // month name
        QRect weekdays;  // weekday names row
        QRect grid;      // day cells, 7 columns x rows
        int rows = 6;
    };
    QList<Sheet> Layout() const;
    QRect CellRect(const Sheet& sheet, int weekday, int week) const;
    void PaintSheet(QPainter& painter, const Sheet& sheet) const;
    void PaintDay(QPainter& painter, const QRect& cell, const QDate& date, bool large) const;
    // The date of cell (weekday, week) of the month beginning first, from the date holders.
    QDate DayOfCell(const QDate& first, int weekday, int week) const;
    int RowsOf(const QDate& first) const;
    void Select(const QDate& date);

    ProgramState& state_;
    std::function<DayLook(const QDate&)> lookOf_;
    int monthsShown_ = 12;
};
