#include "decorations/gui/CalendarPrint.h"

#include <QFontMetricsF>
#include <QIcon>
#include <QImage>
#include <QPolygonF>
#include <algorithm>
#include <set>

#include "calendar/MarkerColors.h"
#include "calendar/gui/CalendarView.h"
#include "shell/DateFormats.h"
#include "shell/gui/Colors.h"

namespace calendarprint {

namespace {

constexpr int kWeekdays = 7;
constexpr int kYearColumns = 4;
constexpr int kYearRows = 3;
const QColor kGridLine(128, 128, 128);
const QColor kNotesFlag(0, 128, 0);
const QColor kPlannerFlag(0, 0, 192);

// One sheet of a printout: the month, where it goes and how large its print is.
struct Sheet {
    QDate first;
    QRectF frame;
    bool large = true;
    bool withIcons = false;
};

// What the legend names: a colour swatch (or a corner flag) and its caption.
struct LegendEntry {
    QColor color;
    QString caption;
    bool flag = false;
};

// Everything one page needs while it is painted.
struct Page {
    PageWriter& writer;
    QPainter& painter;
    const LookOf& lookOf;
};

// The column of the 1st (Sunday 0) and the week rows the month uses (4 to 6): a month fills
// its rows Sunday to Saturday from the row of the 1st.
int FirstColumn(const QDate& first) {
    return first.dayOfWeek() % kWeekdays;
}

int RowsOf(const QDate& first) {
    return (FirstColumn(first) + first.daysInMonth() + kWeekdays - 1) / kWeekdays;
}

QDate DayOfCell(const QDate& first, int weekday, int week) {
    const QDate day = first.addDays(week * kWeekdays + weekday - FirstColumn(first));
    return day.month() == first.month() ? day : QDate();
}

QFont Font(qreal pointSize, bool bold = false) {
    return PrintFont(QStringLiteral("Arial"), pointSize, bold);
}

qreal LineHeight(const Page& page, const QFont& font) {
    return QFontMetricsF(font, page.painter.device()).height();
}

void DrawElided(const Page& page, const QRectF& box, const QString& text, Qt::Alignment align) {
    const QFontMetricsF metrics(page.painter.font(), page.painter.device());
    page.painter.drawText(box, static_cast<int>(align) | Qt::TextSingleLine,
                          metrics.elidedText(text, Qt::ElideRight, box.width()));
}

// The notes flag in a cell's upper left corner and the planner flag in its upper right, as
// the calendar views show them.
void PaintFlag(const Page& page, const QRectF& cell, bool right, qreal size, const QColor& color) {
    const qreal x = right ? cell.right() : cell.left();
    const qreal dx = right ? -size : size;
    page.painter.setPen(Qt::NoPen);
    page.painter.setBrush(color);
    page.painter.drawPolygon(QPolygonF(
        {QPointF(x, cell.top()), QPointF(x + dx, cell.top()), QPointF(x, cell.top() + size)}));
    page.painter.setBrush(Qt::NoBrush);
}

QImage PictureOf(const DayIcon& icon, int side) {
    QImage image(icon.picturePath);
    if (image.isNull())
        image = QIcon(icon.picturePath).pixmap(side, side).toImage();
    return image;
}

// The day's pictures in a row along the bottom of the cell, as many as fit; returns the top
// of the row (the cell's bottom when there is none).
qreal PaintIcons(const Page& page, const QRectF& inner, const QList<DayIcon>& icons) {
    if (icons.isEmpty())
        return inner.bottom();
    const qreal side = std::min(page.writer.Px(9), inner.height() / 3);
    const qreal gap = page.writer.Px(1);
    qreal x = inner.left();
    for (const DayIcon& icon : icons) {
        if (x + side > inner.right())
            break;
        const QImage image = PictureOf(icon, static_cast<int>(side));
        if (image.isNull())
            continue;
        const QRectF target(x, inner.bottom() - side, side, side);
        const QSizeF scaled = QSizeF(image.size()).scaled(target.size(), Qt::KeepAspectRatio);
        page.painter.drawImage(
            QRectF(target.center() - QPointF(scaled.width(), scaled.height()) / 2, scaled), image);
        x += side + gap;
    }
    return inner.bottom() - side - gap;
}

// text cut into lines no wider than width at word boundaries; a word longer than a line is
// left for the caller's ellipsis.
QStringList WrapWords(const QString& text, const QFontMetricsF& metrics, qreal width) {
    QStringList lines;
    QString line;
    for (const QString& word : text.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const QString longer = line.isEmpty() ? word : line + QLatin1Char(' ') + word;
        if (!line.isEmpty() && metrics.horizontalAdvance(longer) > width) {
            lines.append(line);
            line = word;
        } else {
            line = longer;
        }
    }
    if (!line.isEmpty())
        lines.append(line);
    return lines;
}

// The names of the day's holidays and birthdays, one line each, then its hover note wrapped
// over the lines left, under the day number and above the pictures; what does not fit ends
// in an ellipsis.
void PaintDayTexts(const Page& page, const QRectF& inner, qreal top, qreal bottom,
                   const DayLook& look) {
    const QFont names = Font(8);
    QFont note = Font(8);
    note.setItalic(true);
    const qreal height = LineHeight(page, names);
    QList<std::pair<QString, QFont>> lines;
    for (const QString& caption : look.captions)
        lines.append({caption, names});
    const QFontMetricsF noteMetrics(note, page.painter.device());
    for (const QString& piece : WrapWords(look.hoverText, noteMetrics, inner.width()))
        lines.append({piece, note});
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (top + height > bottom)
            break;
        const bool lastRoom = top + 2 * height > bottom && i + 1 < lines.size();
        page.painter.setFont(lines[i].second);
        DrawElided(page, QRectF(inner.left(), top, inner.width(), height),
                   lastRoom ? lines[i].first + QStringLiteral(" \u2026") : lines[i].first,
                   Qt::AlignLeft | Qt::AlignVCenter);
        top += height;
    }
}

void PaintDay(const Page& page, const Sheet& sheet, const QRectF& cell, const QDate& date) {
    const DayLook look = page.lookOf ? page.lookOf(date) : DayLook();
    QColor fill = Qt::white;
    if (look.markColor) {
        fill = ToQColor(*look.markColor);
        page.painter.fillRect(cell, fill);
    }
    const qreal flag = page.writer.Px(sheet.large ? 3 : 1.5);
    if (look.hasNotes)
        PaintFlag(page, cell, false, flag, kNotesFlag);
    if (look.hasPlanner)
        PaintFlag(page, cell, true, flag, kPlannerFlag);

    const QFont number = Font(sheet.large ? 14 : 7, sheet.large);
    page.painter.setFont(number);
    page.painter.setPen(InkOn(fill));
    const qreal inset = page.writer.Px(sheet.large ? 1 : 0.2);
    const QRectF inner = cell.adjusted(inset, inset, -inset, -inset);
    page.painter.drawText(inner, (sheet.large ? Qt::AlignTop : Qt::AlignVCenter) | Qt::AlignHCenter,
                          QString::number(date.day()));
    if (!sheet.large)
        return;
    const qreal textBottom = sheet.withIcons ? PaintIcons(page, inner, look.icons) : inner.bottom();
    page.painter.setPen(InkOn(fill));
    PaintDayTexts(page, inner, inner.top() + LineHeight(page, number), textBottom, look);
}

void PaintSheet(const Page& page, const Sheet& sheet) {
    QPainter& painter = page.painter;
    qreal top = sheet.frame.top();
    if (!sheet.large) {
        // A year's small sheet carries the month's name; the month page has it as its heading.
        const QFont title = Font(11, true);
        painter.setFont(title);
        painter.setPen(Qt::black);
        const qreal height = LineHeight(page, title);
        painter.drawText(QRectF(sheet.frame.left(), top, sheet.frame.width(), height),
                         Qt::AlignCenter, datefmt::MonthName(sheet.first.month()));
        top += height;
    }
    const QFont weekdayFont = Font(sheet.large ? 11 : 7, sheet.large);
    const qreal weekdayHeight = LineHeight(page, weekdayFont) * 1.3;
    const qreal width = sheet.frame.width() / kWeekdays;
    painter.setFont(weekdayFont);
    painter.fillRect(QRectF(sheet.frame.left(), top, sheet.frame.width(), weekdayHeight),
                     QColor(230, 230, 230));
    painter.setPen(Qt::black);
    for (int weekday = 0; weekday < kWeekdays; ++weekday) {
        const QString name = CalendarView::WeekdayNames().at(weekday);
        painter.drawText(QRectF(sheet.frame.left() + weekday * width, top, width, weekdayHeight),
                         Qt::AlignCenter, sheet.large ? name : name.left(2));
    }
    top += weekdayHeight;

    // Small sheets all take six rows, so that the months of a year line up.
    const int rows = sheet.large ? RowsOf(sheet.first) : 6;
    const qreal height = (sheet.frame.bottom() - top) / rows;
    for (int week = 0; week < rows; ++week) {
        for (int weekday = 0; weekday < kWeekdays; ++weekday) {
            const QRectF cell(sheet.frame.left() + weekday * width, top + week * height, width,
                              height);
            const QDate date = DayOfCell(sheet.first, weekday, week);
            if (date.isValid())
                PaintDay(page, sheet, cell, date);
            if (sheet.large || date.isValid()) {
                painter.setPen(QPen(kGridLine, page.writer.Px(sheet.large ? 0.3 : 0.1)));
                painter.setBrush(Qt::NoBrush);
                painter.drawRect(cell);
            }
        }
    }
}

// The shown mark categories that occur on the days of the months, in menu order, then the
// flags when a day has notes or a planner.
QList<LegendEntry> LegendOf(const QList<QDate>& months, const LookOf& lookOf,
                            const MarkerColors& colors) {
    std::set<int> categories;
    bool notes = false;
    bool planner = false;
    for (const QDate& first : months) {
        for (QDate day = first; day.month() == first.month(); day = day.addDays(1)) {
            const DayLook look = lookOf ? lookOf(day) : DayLook();
            if (look.markColor) {
                const int category = colors.IndexOfColor(*look.markColor);
                if (category >= 0 && !colors.Hidden(category))
                    categories.insert(category);
            }
            notes = notes || look.hasNotes;
            planner = planner || look.hasPlanner;
        }
    }
    QList<LegendEntry> entries;
    for (const int category : categories)
        entries.append({ToQColor(colors.Color(category)), colors.Caption(category)});
    if (notes)
        entries.append({kNotesFlag, QStringLiteral("Notes"), true});
    if (planner)
        entries.append({kPlannerFlag, QStringLiteral("Planner"), true});
    return entries;
}

// Lays the legend out left to right in rows across width, from the top of area; paints it
// when paint is true. Returns the height it takes.
qreal LayOutLegend(const Page& page, const QRectF& area, const QList<LegendEntry>& entries,
                   bool paint) {
    if (entries.isEmpty())
        return 0;
    const QFont font = Font(9);
    const QFontMetricsF metrics(font, page.painter.device());
    const qreal line = metrics.height() * 1.4;
    const qreal swatch = metrics.height();
    const qreal gap = page.writer.Px(6);
    qreal x = area.left();
    qreal y = area.top();
    page.painter.setFont(font);
    for (const LegendEntry& entry : entries) {
        const qreal width = swatch + page.writer.Px(1.5) + metrics.horizontalAdvance(entry.caption);
        if (x > area.left() && x + width > area.right()) {
            x = area.left();
            y += line;
        }
        if (paint) {
            const QRectF box(x, y + (line - swatch) / 2, swatch, swatch);
            if (entry.flag) {
                page.painter.setPen(QPen(kGridLine, page.writer.Px(0.2)));
                page.painter.drawRect(box);
                PaintFlag(page, box, false, swatch * 0.7, entry.color);
            } else {
                page.painter.fillRect(box, entry.color);
                page.painter.setPen(QPen(entry.color.darker(150), page.writer.Px(0.2)));
                page.painter.drawRect(box);
            }
            page.painter.setPen(Qt::black);
            page.painter.drawText(QRectF(box.right() + page.writer.Px(1.5), y, width, line),
                                  Qt::AlignLeft | Qt::AlignVCenter, entry.caption);
        }
        x += width + gap;
    }
    return y + line - area.top();
}

// Paints the sheets in area, leaving room under them for the legend of their days.
void PaintPage(PageWriter& writer, const LookOf& lookOf, const MarkerColors& colors,
               QList<Sheet> sheets, const std::function<QRectF(int, const QRectF&)>& place) {
    QPainter& painter = writer.Painter();
    const Page page{writer, painter, lookOf};
    const QRectF area = writer.FreeArea();
    QList<QDate> months;
    for (const Sheet& sheet : sheets)
        months.append(sheet.first);
    const QList<LegendEntry> legend = LegendOf(months, lookOf, colors);
    const qreal legendHeight = LayOutLegend(page, area, legend, false);
    const qreal spacing = legend.isEmpty() ? 0 : writer.Px(4);
    const QRectF sheetsArea = area.adjusted(0, 0, 0, -(legendHeight + spacing));
    painter.save();
    for (int i = 0; i < sheets.size(); ++i) {
        sheets[i].frame = place(i, sheetsArea);
        PaintSheet(page, sheets[i]);
    }
    LayOutLegend(page,
                 QRectF(area.left(), sheetsArea.bottom() + spacing, area.width(), legendHeight),
                 legend, true);
    painter.restore();
}

}  // namespace

QString MonthTitle(const QDate& month) {
    return datefmt::MonthName(month.month()) + QLatin1Char(' ') + QString::number(month.year());
}

QString YearTitle(int year) {
    return QString::number(year);
}

Printer::Document MonthDocument(const QDate& month, LookOf lookOf, const MarkerColors& colors,
                                bool withIcons) {
    const QDate first(month.year(), month.month(), 1);
    return [first, lookOf = std::move(lookOf), &colors, withIcons](PageWriter& writer) {
        writer.SetHeading({MonthTitle(first)}, PrintFont(QStringLiteral("Arial"), 20, true));
        Sheet sheet{first, {}, true, withIcons};
        PaintPage(writer, lookOf, colors, {sheet}, [](int, const QRectF& area) { return area; });
    };
}

Printer::Document YearDocument(int year, LookOf lookOf, const MarkerColors& colors) {
    return [year, lookOf = std::move(lookOf), &colors](PageWriter& writer) {
        writer.SetHeading({YearTitle(year)}, PrintFont(QStringLiteral("Arial"), 20, true));
        QList<Sheet> sheets;
        for (int month = 1; month <= 12; ++month)
            sheets.append(Sheet{QDate(year, month, 1), {}, false, false});
        PaintPage(writer, lookOf, colors, sheets, [&writer](int i, const QRectF& area) {
            const qreal gap = writer.Px(5);
            const qreal width = (area.width() - gap * (kYearColumns - 1)) / kYearColumns;
            const qreal height = (area.height() - gap * (kYearRows - 1)) / kYearRows;
            return QRectF(area.left() + (i % kYearColumns) * (width + gap),
                          area.top() + (i / kYearColumns) * (height + gap), width, height);
        });
    };
}

}  // namespace calendarprint
