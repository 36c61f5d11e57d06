#include "calendar/gui/CalendarView.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>

#include "shell/DateFormats.h"
#include "shell/ProgramState.h"
#include "shell/gui/Colors.h"

namespace {

constexpr int kMargin = 6;

int SheetColumns(int months) {
    return months == 1 ? 1 : months == 6 ? 3 : 4;
}

QColor TextOn(const QColor& fill) {
    return fill.lightness() < 128 ? Qt::white : Qt::black;
}

}  // namespace

CalendarView::CalendarView(ProgramState& state, std::function<DayLook(const QDate&)> lookOf,
                           QWidget* parent)
    : QWidget(parent), state_(state), lookOf_(std::move(lookOf)) {
    setObjectName(QStringLiteral("CalendarView"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(420, 320);
    connect(&state_, &ProgramState::selectedDateChanged, this, [this] { update(); });
}

const QStringList& CalendarView::WeekdayNames() {
    static const QStringList names = {
        QStringLiteral("Sun"), QStringLiteral("Mon"), QStringLiteral("Tue"), QStringLiteral("Wed"),
        QStringLiteral("Thu"), QStringLiteral("Fri"), QStringLiteral("Sat")};
    return names;
}

void CalendarView::SetMonthsShown(int months) {
    monthsShown_ = months == 1 || months == 6 ? months : 12;
    update();
}

QList<QDate> CalendarView::MonthsOnShow() const {
    const DateModel& dates = state_.dates;
    QList<QDate> months;
    if (monthsShown_ == 12) {
        for (int m = 1; m <= 12; ++m)
            months.append(QDate(dates.ThisYear, m, 1));
    } else {
        for (int i = 0; i < monthsShown_; ++i)
            months.append(dates.FirstOfMonth.addMonths(i));
    }
    return months;
}

QDate CalendarView::DayOfCell(const QDate& first, int weekday, int week) const {
    const DateModel& dates = state_.dates;
    const bool next = dates.IsNextYear(first);
    const DateHolderGrid* holder = dates.HolderFor(first);
    if (!holder)
        return {};
    return dates.DateAt(CellIndex{first.month() - 1, weekday, week}, next);
}

int CalendarView::RowsOf(const QDate& first) const {
    int rows = 4;
    for (int week = 4; week < kWeekRows; ++week)
        for (int weekday = 0; weekday < kWeekdays; ++weekday)
            if (DayOfCell(first, weekday, week).isValid())
                rows = week + 1;
    return rows;
}

QList<CalendarView::Sheet> CalendarView::Layout() const {
    const QList<QDate> months = MonthsOnShow();
    const int columns = SheetColumns(monthsShown_);
    const int rowsOfSheets = (months.size() + columns - 1) / columns;
    const QRect area = rect().adjusted(kMargin, kMargin, -kMargin, -kMargin);
    const int width = area.width() / columns;
    const int height = area.height() / rowsOfSheets;
    const bool large = monthsShown_ == 1;
    const int titleHeight = large ? 40 : 20;
    const int weekdayHeight = large ? 24 : 16;
    QList<Sheet> sheets;
    for (int i = 0; i < months.size(); ++i) {
        Sheet sheet;
        sheet.first = months[i];
        sheet.frame = QRect(area.left() + (i % columns) * width,
                            area.top() + (i / columns) * height, width, height)
                          .adjusted(kMargin / 2, kMargin / 2, -kMargin / 2, -kMargin / 2);
        sheet.title = QRect(sheet.frame.topLeft(), QSize(sheet.frame.width(), titleHeight));
        sheet.weekdays = QRect(sheet.title.bottomLeft() + QPoint(0, 1),
                               QSize(sheet.frame.width(), weekdayHeight));
        sheet.grid = QRect(sheet.weekdays.bottomLeft() + QPoint(0, 1), sheet.frame.bottomRight());
        sheet.rows = large ? RowsOf(sheet.first) : kWeekRows;
        sheets.append(sheet);
    }
    return sheets;
}

QRect CalendarView::CellRect(const Sheet& sheet, int weekday, int week) const {
    const QRect& grid = sheet.grid;
    const int x0 = grid.left() + grid.width() * weekday / kWeekdays;
    const int x1 = grid.left() + grid.width() * (weekday + 1) / kWeekdays;
    const int y0 = grid.top() + grid.height() * week / sheet.rows;
    const int y1 = grid.top() + grid.height() * (week + 1) / sheet.rows;
    return QRect(QPoint(x0, y0), QPoint(x1 - 1, y1 - 1));
}

QDate CalendarView::DateAt(const QPoint& point) const {
    for (const Sheet& sheet : Layout()) {
        if (!sheet.grid.contains(point))
            continue;
        for (int week = 0; week < sheet.rows; ++week)
            for (int weekday = 0; weekday < kWeekdays; ++weekday)
                if (CellRect(sheet, weekday, week).contains(point))
                    return DayOfCell(sheet.first, weekday, week);
    }
    return {};
}

QRect CalendarView::DayRect(const QDate& date) const {
    for (const Sheet& sheet : Layout()) {
        if (sheet.first.year() != date.year() || sheet.first.month() != date.month())
            continue;
        for (int week = 0; week < sheet.rows; ++week)
            for (int weekday = 0; weekday < kWeekdays; ++weekday)
                if (DayOfCell(sheet.first, weekday, week) == date)
                    return CellRect(sheet, weekday, week);
    }
    return {};
}

void CalendarView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    for (const Sheet& sheet : Layout())
        PaintSheet(painter, sheet);
}

void CalendarView::PaintSheet(QPainter& painter, const Sheet& sheet) const {
    const bool large = monthsShown_ == 1;
    QFont titleFont = font();
    titleFont.setBold(true);
    titleFont.setPointSizeF(font().pointSizeF() * (large ? 1.6 : 1.0));
    painter.setFont(titleFont);
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(sheet.title, Qt::AlignCenter,
                     datefmt::MonthName(sheet.first.month()) + QLatin1Char(' ') +
                         QString::number(sheet.first.year()));

    QFont weekdayFont = font();
    weekdayFont.setPointSizeF(font().pointSizeF() * (large ? 1.0 : 0.8));
    painter.setFont(weekdayFont);
    painter.fillRect(sheet.weekdays, palette().alternateBase());
    for (int weekday = 0; weekday < kWeekdays; ++weekday) {
        QRect column = CellRect(sheet, weekday, 0);
        column.setTop(sheet.weekdays.top());
        column.setBottom(sheet.weekdays.bottom());
        const QString name = WeekdayNames().at(weekday);
        painter.drawText(column, Qt::AlignCenter, large ? name : name.left(2));
    }

    for (int week = 0; week < sheet.rows; ++week) {
        for (int weekday = 0; weekday < kWeekdays; ++weekday) {
            const QRect cell = CellRect(sheet, weekday, week);
            const QDate date = DayOfCell(sheet.first, weekday, week);
            if (date.isValid())
                PaintDay(painter, cell, date, large);
            if (large) {
                painter.setPen(palette().color(QPalette::Mid));
                painter.drawRect(cell);
            }
        }
    }
}

void CalendarView::PaintDay(QPainter& painter, const QRect& cell, const QDate& date,
                            bool large) const {
    const DayLook look = lookOf_ ? lookOf_(date) : DayLook();
    QColor ink = palette().color(QPalette::Text);
    if (look.markColor) {
        const QColor fill = ToQColor(*look.markColor);
        painter.fillRect(cell, fill);
        ink = TextOn(fill);
    }
    if (date == state_.services.clock.today()) {
        painter.setPen(QPen(QColor(200, 0, 0), 2));
        painter.drawRect(cell.adjusted(1, 1, -1, -1));
    }
    // The selection sits inside today's red frame, so a selected today shows both.
    if (date == state_.dates.SelectedDate) {
        const int inset = large ? 4 : 3;
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRect(cell.adjusted(inset, inset, -inset, -inset));
    }

    QFont dayFont = font();
    dayFont.setPointSizeF(font().pointSizeF() * (large ? 1.2 : 0.85));
    dayFont.setBold(large);
    painter.setFont(dayFont);
    painter.setPen(ink);
    const QRect inner = cell.adjusted(4, 2, -4, -2);
    painter.drawText(inner, large ? Qt::AlignLeft | Qt::AlignTop : Qt::AlignCenter,
                     QString::number(date.day()));
    if (look.hasNotes || look.hasPlanner) {
        const int size = large ? 8 : 4;
        QRect dot(cell.right() - size - 2, cell.top() + 3, size, size);
        if (look.hasNotes) {
            painter.fillRect(dot, QColor(0, 128, 0));
            dot.translate(-size - 2, 0);
        }
        if (look.hasPlanner)
            painter.fillRect(dot, QColor(0, 0, 192));
    }
    if (!large)
        return;
    QFont small = font();
    small.setPointSizeF(font().pointSizeF() * 0.85);
    painter.setFont(small);
    const QFontMetrics metrics(small);
    int y = inner.top() + QFontMetrics(dayFont).height() + 2;
    QStringList lines = look.captions;
    if (!look.hoverText.isEmpty())
        lines.append(look.hoverText);
    for (const QString& line : lines) {
        if (y + metrics.height() > inner.bottom())
            break;
        painter.drawText(QRect(inner.left(), y, inner.width(), metrics.height()),
                         Qt::AlignLeft | Qt::AlignVCenter,
                         metrics.elidedText(line, Qt::ElideRight, inner.width()));
        y += metrics.height();
    }
}

void CalendarView::Select(const QDate& date) {
    if (date.isValid())
        state_.SelectDate(date);
}

void CalendarView::mousePressEvent(QMouseEvent* event) {
    setFocus(Qt::MouseFocusReason);
    if (event->button() == Qt::LeftButton)
        Select(DateAt(event->position().toPoint()));
}

void CalendarView::mouseDoubleClickEvent(QMouseEvent* event) {
    const QDate date = DateAt(event->position().toPoint());
    if (date.isValid() && event->button() == Qt::LeftButton)
        emit dateActivated(date);
}

void CalendarView::contextMenuEvent(QContextMenuEvent* event) {
    const QDate date = DateAt(event->pos());
    if (!date.isValid())
        return;
    Select(date);
    emit contextMenuAt(date, event->globalPos());
}

void CalendarView::keyPressEvent(QKeyEvent* event) {
    const QDate selected = state_.dates.SelectedDate;
    switch (event->key()) {
        case Qt::Key_Left:
            return Select(selected.addDays(-1));
        case Qt::Key_Right:
            return Select(selected.addDays(1));
        case Qt::Key_Up:
            return Select(selected.addDays(-7));
        case Qt::Key_Down:
            return Select(selected.addDays(7));
        case Qt::Key_PageUp:
            return Select(selected.addMonths(-1));
        case Qt::Key_PageDown:
            return Select(selected.addMonths(1));
        case Qt::Key_Home:
            return Select(state_.services.clock.today());
        case Qt::Key_Return:
        case Qt::Key_Enter:
            emit dateActivated(selected);
            return;
        case Qt::Key_Menu: {
            const QRect cell = DayRect(selected);
            if (!cell.isEmpty())
                emit contextMenuAt(selected, mapToGlobal(cell.center()));
            return;
        }
        default:
            QWidget::keyPressEvent(event);
    }
}

bool CalendarView::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const QDate date = DateAt(help->pos());
    QStringList lines;
    if (date.isValid() && lookOf_) {
        const DayLook look = lookOf_(date);
        lines = look.captions;
        if (!look.hoverText.isEmpty())
            lines.append(look.hoverText);
    }
    if (lines.isEmpty()) {
        QToolTip::hideText();
        event->ignore();
    } else {
        QToolTip::showText(help->globalPos(), lines.join(QLatin1Char('\n')), this);
    }
    return true;
}
