#include "calendar/gui/CalendarView.h"

#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QHelpEvent>
#include <QIcon>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QPixmapCache>
#include <QToolTip>

#include "calendar/DateModel.h"
#include "shell/Clock.h"
#include "shell/DateFormats.h"
#include "shell/gui/Colors.h"

namespace {

constexpr int kMargin = 6;
constexpr int kSixMonths = 6;

int SheetColumns(ViewKind kind) {
    return kind == ViewKind::OneMonth ? 1 : kind == ViewKind::SixMonths ? 3 : 4;
}

QDate FirstOfMonth(const QDate& date) {
    return QDate(date.year(), date.month(), 1);
}

}  // namespace

CalendarView::CalendarView(DateModel& dates, const Clock& clock,
                           std::function<DayLook(const QDate&)> lookOf, QWidget* parent)
    : QWidget(parent), dates_(dates), clock_(clock), lookOf_(std::move(lookOf)) {
    setObjectName(QStringLiteral("CalendarView"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(420, 320);
    setAcceptDrops(true);
    firstShown_ = dates_.FirstOfMonth;
    connect(&dates_, &DateModel::selectedDateChanged, this, [this](const QDate& date) {
        FollowSelection(date);
        update();
    });
}

const QStringList& CalendarView::WeekdayNames() {
    static const QStringList names = {
        QStringLiteral("Sun"), QStringLiteral("Mon"), QStringLiteral("Tue"), QStringLiteral("Wed"),
        QStringLiteral("Thu"), QStringLiteral("Fri"), QStringLiteral("Sat")};
    return names;
}

void CalendarView::SetViewKind(ViewKind kind) {
    if (kind == ViewKind::None)
        kind = ViewKind::OneYear;
    if (kind == ViewKind::SixMonths && kind_ != kind)
        firstShown_ = dates_.FirstOfMonth;
    kind_ = kind;
    update();
}

void CalendarView::SetNumbersOffset(bool on) {
    numbersOffset_ = on;
    update();
}

void CalendarView::ScrollTo(const QDate& date) {
    firstShown_ = FirstOfMonth(date);
    update();
}

void CalendarView::FollowSelection(const QDate& date) {
    if (kind_ != ViewKind::SixMonths || !date.isValid())
        return;
    const QDate month = FirstOfMonth(date);
    if (month < firstShown_)
        firstShown_ = month;
    else if (month > firstShown_.addMonths(kSixMonths - 1))
        firstShown_ = month.addMonths(1 - kSixMonths);
}

QList<QDate> CalendarView::MonthsOnShow() const {
    QList<QDate> months;
    switch (kind_) {
        case ViewKind::OneMonth:
            months.append(dates_.FirstOfMonth);
            break;
        case ViewKind::SixMonths:
            for (int i = 0; i < kSixMonths; ++i)
                months.append(firstShown_.addMonths(i));
            break;
        default:
            for (int m = 1; m <= 12; ++m)
                months.append(QDate(dates_.ThisYear, m, 1));
    }
    return months;
}

QDate CalendarView::DayOfCell(const QDate& first, int weekday, int week) const {
    if (dates_.HolderFor(first))
        return dates_.DateAt(CellIndex{first.month() - 1, weekday, week}, dates_.IsNextYear(first));
    // A month of neither year in memory (a six-month view reaching back after the selection
    // moved into next year) is laid out the same way from the calendar alone.
    const int firstColumn = first.dayOfWeek() % 7;
    const QDate day = first.addDays(week * 7 + weekday - firstColumn);
    return day.month() == first.month() ? day : QDate();
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
    const int columns = SheetColumns(kind_);
    const int rowsOfSheets = (months.size() + columns - 1) / columns;
    const QRect area = rect().adjusted(kMargin, kMargin, -kMargin, -kMargin);
    const int width = area.width() / columns;
    const int height = area.height() / rowsOfSheets;
    const int titleHeight = Large() ? 40 : 20;
    const int weekdayHeight = Large() ? 24 : 16;
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
        sheet.rows = Large() ? RowsOf(sheet.first) : kWeekRows;
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
        if (sheet.first != FirstOfMonth(date))
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
    today_ = clock_.today();
    painter.fillRect(rect(), palette().base());
    const SheetFonts fonts = FontsOfSheets();
    for (const Sheet& sheet : Layout())
        PaintSheet(painter, sheet, fonts);
}

CalendarView::SheetFonts CalendarView::FontsOfSheets() const {
    SheetFonts fonts;
    fonts.title = font();
    fonts.title.setBold(true);
    fonts.title.setPointSizeF(font().pointSizeF() * (Large() ? 1.6 : 1.0));
    fonts.weekday = font();
    fonts.weekday.setPointSizeF(font().pointSizeF() * (Large() ? 1.0 : 0.8));
    fonts.plain = font();
    const double numberScale = !Large() ? 0.85 : numbersOffset_ ? 0.9 : 1.4;
    fonts.plain.setPointSizeF(font().pointSizeF() * numberScale);
    fonts.bold = fonts.plain;
    fonts.bold.setBold(true);
    fonts.numberHeight = QFontMetrics(Large() ? fonts.bold : fonts.plain).height();
    fonts.tinyHeight = QFontMetrics(TinyFont()).height();
    return fonts;
}

void CalendarView::PaintSheet(QPainter& painter, const Sheet& sheet,
                              const SheetFonts& fonts) const {
    painter.setPen(palette().color(QPalette::Text));
    titles_.Draw(painter, sheet.title, Qt::AlignCenter,
                 datefmt::MonthName(sheet.first.month()) + QLatin1Char(' ') +
                     QString::number(sheet.first.year()),
                 fonts.title);

    painter.fillRect(sheet.weekdays, palette().alternateBase());
    for (int weekday = 0; weekday < kWeekdays; ++weekday) {
        QRect column = CellRect(sheet, weekday, 0);
        column.setTop(sheet.weekdays.top());
        column.setBottom(sheet.weekdays.bottom());
        const QString name = WeekdayNames().at(weekday);
        weekdayNames_.Draw(painter, column, Qt::AlignCenter, Large() ? name : name.left(2),
                           fonts.weekday);
    }

    for (int week = 0; week < sheet.rows; ++week) {
        for (int weekday = 0; weekday < kWeekdays; ++weekday) {
            const QRect cell = CellRect(sheet, weekday, week);
            const QDate date = DayOfCell(sheet.first, weekday, week);
            if (date.isValid())
                PaintDay(painter, cell, date, fonts);
            if (Large()) {
                painter.setPen(palette().color(QPalette::Mid));
                painter.setBrush(Qt::NoBrush);
                painter.drawRect(cell);
            }
        }
    }
}

// A day cell, from the back to the front: its mark (a fill with a darker edge, so that even a
// white mark shows), today's colour, the selection (a frame in the highlight colour between
// two lines of ink that stands out on the fill, visible on every colour), then the day number,
// the notes and planner dots and, on the one-month sheet, the captions and hover note.
// A day with a note is flagged in its upper left corner (green), a day with a planner page in
// its upper right corner (blue): corner flags stay clear of the centred day number and read
// the same on every mark colour.
void CalendarView::PaintIndicators(QPainter& painter, const QRect& cell,
                                   const DayLook& look) const {
    const int size = Large() ? 12 : 7;
    const auto flag = [&](bool right, const QColor& color) {
        const int x = right ? cell.right() : cell.left();
        const int dx = right ? -size : size;
        const QPolygon corner(
            {QPoint(x, cell.top()), QPoint(x + dx, cell.top()), QPoint(x, cell.top() + size)});
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawPolygon(corner);
    };
    if (look.hasNotes)
        flag(false, QColor(0, 128, 0));
    if (look.hasPlanner)
        flag(true, QColor(0, 0, 192));
}

void CalendarView::PaintDay(QPainter& painter, const QRect& cell, const QDate& date,
                            const SheetFonts& fonts) const {
    // A month of neither year in memory shows its days dimmed and without what the stores know.
    const bool inMemory = dates_.HolderFor(date) != nullptr;
    const DayLook look = lookOf_ && inMemory ? lookOf_(date) : DayLook();
    QColor fill = palette().color(QPalette::Base);
    if (look.markColor || look.todayColor) {
        fill = ToQColor(look.markColor ? *look.markColor : *look.todayColor);
        painter.fillRect(cell, fill);
        painter.setPen(QPen(fill.darker(150), 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(cell.adjusted(0, 0, -1, -1));
    }
    const QColor ink = inMemory ? InkOn(fill) : palette().color(QPalette::Disabled, QPalette::Text);
    if (look.markColor && look.todayColor) {
        painter.setPen(QPen(ToQColor(*look.todayColor), 3));
        painter.drawRect(cell.adjusted(2, 2, -2, -2));
    }
    if (date == dates_.SelectedDate) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRect(cell.adjusted(1, 1, -1, -1));
        painter.setPen(QPen(ink, 1));
        painter.drawRect(cell.adjusted(2, 2, -3, -3));
    }

    const bool bold = Large() || date == today_;
    painter.setPen(ink);
    const QRect inner = cell.adjusted(5, 3, -5, -3);
    const int numberHeight = fonts.numberHeight;
    const bool named = !Large() && !look.captions.isEmpty();
    const bool room = named && cell.height() >= numberHeight + fonts.tinyHeight;
    const Qt::Alignment numberAlignment =
        Large() ? (numbersOffset_ ? Qt::AlignLeft : Qt::AlignHCenter) | Qt::AlignTop
        : room  ? Qt::AlignHCenter | Qt::AlignTop
                : Qt::AlignCenter;
    // The offset number stands beside the notes flag of the corner, not on it.
    const QRect numberBox = room                        ? cell.adjusted(0, 1, 0, 0)
                            : Large() && numbersOffset_ ? inner.adjusted(10, 0, 0, 0)
                                                        : inner;
    StaticTexts& numbers = bold ? boldNumbers_ : plainNumbers_;
    numbers.Draw(painter, numberBox, numberAlignment, QString::number(date.day()),
                 bold ? fonts.bold : fonts.plain);
    PaintIndicators(painter, cell, look);
    PaintIcons(painter, cell, date, look);
    if (Large()) {
        painter.setPen(ink);
        // Captions stop above the row of pictures.
        QRect text = inner;
        if (!look.icons.isEmpty())
            text.setBottom(IconRects(cell, 1).value(0, cell).top() - 2);
        PaintCaptions(painter, text, inner.top() + numberHeight + 2, look);
    } else if (named) {
        PaintSmallCaption(painter, cell, room, look.captions.first(), ink);
    }
}

// The one-month sheet lines a day's pictures up along the bottom of its cell, as many as fit;
// the picture selected for removal gets a frame. A small sheet shows only that the day has
// pictures: a dot in its lower left corner.
QList<QRect> CalendarView::IconRects(const QRect& cell, int count) const {
    QList<QRect> rects;
    const int size = std::clamp(cell.height() / 3, 16, 32);
    const int gap = 3;
    int x = cell.left() + gap + 1;
    const int y = cell.bottom() - gap - size;
    for (int i = 0; i < count && x + size <= cell.right() - gap; ++i) {
        rects.append(QRect(x, y, size, size));
        x += size + gap;
    }
    return rects;
}

void CalendarView::PaintIcons(QPainter& painter, const QRect& cell, const QDate& date,
                              const DayLook& look) const {
    if (look.icons.isEmpty())
        return;
    if (!Large()) {
        const int size = std::max(5, cell.height() / 4);
        painter.setPen(QPen(Qt::white, 1));
        painter.setBrush(QColor(224, 112, 0));
        painter.drawEllipse(QRect(cell.left() + 2, cell.bottom() - size - 1, size, size));
        return;
    }
    const QList<QRect> rects = IconRects(cell, int(look.icons.size()));
    for (int i = 0; i < rects.size(); ++i) {
        const QRect& place = rects[i];
        const QString& path = look.icons[i].picturePath;
        const QString key = path + QLatin1Char('@') + QString::number(place.width());
        QPixmap picture;
        if (!path.isEmpty() && !QPixmapCache::find(key, &picture)) {
            picture = QIcon(path).pixmap(place.size());
            QPixmapCache::insert(key, picture);
        }
        if (picture.isNull()) {
            // A picture that is missing or unreadable still shows where the icon is.
            painter.setPen(QPen(palette().color(QPalette::Mid), 1, Qt::DashLine));
            painter.setBrush(Qt::NoBrush);
            painter.drawRect(place.adjusted(0, 0, -1, -1));
        } else {
            painter.drawPixmap(place.topLeft(), picture);
        }
        if (selectedIcon_.date == date && selectedIcon_.index == i) {
            painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
            painter.setBrush(Qt::NoBrush);
            painter.drawRect(place.adjusted(-2, -2, 1, 1));
        }
    }
}

CalendarView::IconRef CalendarView::IconAt(const QPoint& point) const {
    if (!Large() || !lookOf_)
        return {};
    const QDate date = DateAt(point);
    if (!date.isValid() || !dates_.HolderFor(date))
        return {};
    const QList<QRect> rects = IconRects(DayRect(date), int(lookOf_(date).icons.size()));
    for (int i = 0; i < rects.size(); ++i)
        if (rects[i].adjusted(-1, -1, 1, 1).contains(point))
            return {date, i};
    return {};
}

void CalendarView::ClearIconSelection() {
    selectedIcon_ = {};
    update();
}

// The print of a holiday's or birthday's name in a small sheet's day cell.
QFont CalendarView::TinyFont() const {
    QFont tiny = font();
    tiny.setPointSizeF(std::max(6.0, font().pointSizeF() * 0.6));
    return tiny;
}

// A small sheet names a holiday or birthday under the day number, which moves up to make
// room, when the cell is tall enough for a line of tiny print, and otherwise underlines the
// day; the tooltip names them all.
void CalendarView::PaintSmallCaption(QPainter& painter, const QRect& cell, bool room,
                                     const QString& caption, const QColor& ink) const {
    if (!room) {
        painter.fillRect(QRect(cell.left() + 3, cell.bottom() - 2, cell.width() - 6, 2),
                         QColor(176, 0, 32));
        return;
    }
    const QFontMetrics metrics(TinyFont());
    painter.setFont(TinyFont());
    painter.setPen(ink);
    const QRect line(cell.left() + 1, cell.bottom() - metrics.height(), cell.width() - 2,
                     metrics.height());
    painter.drawText(line, Qt::AlignCenter,
                     metrics.elidedText(caption, Qt::ElideRight, line.width()));
}

void CalendarView::PaintCaptions(QPainter& painter, const QRect& inner, int top,
                                 const DayLook& look) const {
    QFont small = font();
    small.setPointSizeF(font().pointSizeF() * 0.85);
    painter.setFont(small);
    const QFontMetrics metrics(small);
    QStringList lines = look.captions;
    if (!look.hoverText.isEmpty())
        lines.append(look.hoverText);
    for (const QString& line : lines) {
        if (top + metrics.height() > inner.bottom())
            break;
        painter.drawText(QRect(inner.left(), top, inner.width(), metrics.height()),
                         Qt::AlignLeft | Qt::AlignVCenter,
                         metrics.elidedText(line, Qt::ElideRight, inner.width()));
        top += metrics.height();
    }
}

void CalendarView::Select(const QDate& date) {
    if (date.isValid())
        dates_.SelectDate(date);
}

void CalendarView::mousePressEvent(QMouseEvent* event) {
    setFocus(Qt::MouseFocusReason);
    if (event->button() != Qt::LeftButton)
        return;
    selectedIcon_ = IconAt(event->position().toPoint());
    Select(DateAt(event->position().toPoint()));
    update();
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
    const QDate selected = dates_.SelectedDate;
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
            return Select(clock_.today());
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
    if (const IconRef icon = IconAt(help->pos()); icon.date.isValid()) {
        lines.append(lookOf_(icon.date).icons.at(icon.index).caption);
    } else if (date.isValid() && lookOf_ && dates_.HolderFor(date)) {
        const DayLook look = lookOf_(date);
        lines = look.captions;
        if (!look.hoverText.isEmpty())
            lines.append(look.hoverText);
        for (const DayIcon& icon : look.icons)
            lines.append(icon.caption);
    }
    if (lines.isEmpty()) {
        QToolTip::hideText();
        event->ignore();
    } else {
        QToolTip::showText(help->globalPos(), lines.join(QLatin1Char('\n')), this);
    }
    return true;
}

// Pictures are dropped on a day as their number (kIconMimeType); what the number stands for
// is the business of whoever listens to iconDropped.
void CalendarView::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasFormat(kIconMimeType))
        event->acceptProposedAction();
}

void CalendarView::dragMoveEvent(QDragMoveEvent* event) {
    const QDate date = DateAt(event->position().toPoint());
    if (event->mimeData()->hasFormat(kIconMimeType) && date.isValid() && dates_.HolderFor(date))
        event->acceptProposedAction();
    else
        event->ignore();
}

void CalendarView::dropEvent(QDropEvent* event) {
    const QDate date = DateAt(event->position().toPoint());
    const int number = event->mimeData()->data(kIconMimeType).toInt();
    if (!date.isValid() || !dates_.HolderFor(date) || number <= 0)
        return event->ignore();
    event->acceptProposedAction();
    Select(date);
    emit iconDropped(date, number);
}
