#pragma once

#include <QDate>
#include <QList>
#include <QWidget>
#include <functional>

#include "calendar/CalendarDisplay.h"
#include "calendar/DayLook.h"
#include "calendar/gui/StaticTexts.h"

class Clock;
class DateModel;

// The drag-and-drop type of a picture dragged onto a day: the icon's number as text.
inline const QString kIconMimeType = QStringLiteral("application/x-orvanta-icon");

// The calendar sheets of the main window: one month (a large grid with weekday names), six
// months, or the twelve months of the year on show. Days are laid out from the date holders;
// each day shows what the decorators say about it. A click selects the date, the arrow keys
// and Page Up/Down move the selection, Enter or a double click opens the day, a right click
// offers the date options.
//
// A click never moves the sheets: the six-month view scrolls only when the keyboard moves the
// selection past the months shown, or when asked to (the month selectors, the advance arrow).
class CalendarView : public QWidget {
    Q_OBJECT
public:
    // lookOf tells how a day is shown; it is asked at every paint.
    CalendarView(DateModel& dates, const Clock& clock, std::function<DayLook(const QDate&)> lookOf,
                 QWidget* parent = nullptr);

    void SetViewKind(ViewKind kind);
    ViewKind Kind() const { return kind_; }
    // On the one-month sheet, day numbers small in their cell's top left corner, leaving
    // more of the cell to its texts; otherwise large and centred at the top.
    void SetNumbersOffset(bool on);
    bool NumbersOffset() const { return numbersOffset_; }
    // Makes the month of date the first sheet of the six-month view.
    void ScrollTo(const QDate& date);

    // The first day of each month on show, in order.
    QList<QDate> MonthsOnShow() const;
    // The day under a point of the widget; invalid between days.
    QDate DateAt(const QPoint& point) const;
    // Where a day is drawn; empty when it is not on show.
    QRect DayRect(const QDate& date) const;

    static const QStringList& WeekdayNames();

    // The picture clicked last on the one-month sheet: its day and its place among the day's
    // pictures (DayLook::icons). An invalid date when none is selected.
    struct IconRef {
        QDate date;
        int index = -1;
    };
    IconRef SelectedIcon() const { return selectedIcon_; }
    void ClearIconSelection();
    // Where the day's pictures are drawn on the one-month sheet, in the order of
    // DayLook::icons; only those that fit in the cell.
    QList<QRect> IconRects(const QRect& cell, int count) const;

signals:
    void dateActivated(const QDate& date);
    void contextMenuAt(const QDate& date, const QPoint& globalPos);
    // A picture (kIconMimeType) was dropped on a day.
    void iconDropped(const QDate& date, int iconNumber);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool event(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

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
    // The fonts of the sheets' titles, weekday names and day numbers, and the heights a day
    // cell is laid out by, worked out once per paint.
    struct SheetFonts {
        QFont title;
        QFont weekday;
        QFont plain;
        QFont bold;
        int numberHeight = 0;
        int tinyHeight = 0;
    };
    SheetFonts FontsOfSheets() const;
    void PaintSheet(QPainter& painter, const Sheet& sheet, const SheetFonts& fonts) const;
    void PaintDay(QPainter& painter, const QRect& cell, const QDate& date,
                  const SheetFonts& fonts) const;
    void PaintIndicators(QPainter& painter, const QRect& cell, const DayLook& look) const;
    void PaintIcons(QPainter& painter, const QRect& cell, const QDate& date,
                    const DayLook& look) const;
    // The picture under a point of the one-month sheet.
    IconRef IconAt(const QPoint& point) const;
    QFont TinyFont() const;
    void PaintSmallCaption(QPainter& painter, const QRect& cell, bool room, const QString& caption,
                           const QColor& ink) const;
    void PaintCaptions(QPainter& painter, const QRect& inner, int top, const DayLook& look) const;
    // The date of cell (weekday, week) of the month beginning first.
    QDate DayOfCell(const QDate& first, int weekday, int week) const;
    int RowsOf(const QDate& first) const;
    void Select(const QDate& date);
    // Keeps the selected date on one of the six sheets, scrolling as little as needed.
    void FollowSelection(const QDate& date);
    bool Large() const { return kind_ == ViewKind::OneMonth; }

    DateModel& dates_;
    const Clock& clock_;
    std::function<DayLook(const QDate&)> lookOf_;
    ViewKind kind_ = ViewKind::OneYear;
    bool numbersOffset_ = false;
    // The month of the first sheet of the six-month view.
    QDate firstShown_;
    // Today, asked of the clock once per paint.
    QDate today_;
    IconRef selectedIcon_;
    // The sheets' texts laid out once: titles, weekday names, day numbers plain and bold.
    mutable StaticTexts titles_;
    mutable StaticTexts weekdayNames_;
    mutable StaticTexts plainNumbers_;
    mutable StaticTexts boldNumbers_;
};
