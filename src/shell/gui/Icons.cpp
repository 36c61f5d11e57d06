#include "shell/gui/Icons.h"

#include <QHash>
#include <QPainter>
#include <QPainterPath>

namespace icons {

namespace {

constexpr int kSize = 32;

QPixmap Blank(int size = kSize) {
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    return pixmap;
}

void Page(QPainter& p, const QColor& header) {
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(QColor(60, 60, 60), 1.5));
    p.setBrush(Qt::white);
    p.drawRoundedRect(QRectF(3, 4, 26, 25), 3, 3);
    p.setBrush(header);
    p.drawRoundedRect(QRectF(3, 4, 26, 8), 3, 3);
}

// The program's icon at size x size pixels: a sheet with a blue header, binder rings, a grid
// of days and one day marked in orange.
QPixmap OrvantaSheet(int size) {
    QPixmap pixmap = Blank(size);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(size / 64.0, size / 64.0);
    p.setPen(QPen(QColor(30, 50, 90), 2.5));
    p.setBrush(Qt::white);
    p.drawRoundedRect(QRectF(6, 9, 52, 49), 7, 7);
    p.setBrush(QColor(40, 90, 180));
    p.drawRoundedRect(QRectF(6, 9, 52, 15), 7, 7);
    p.fillRect(QRectF(7.3, 18, 49.4, 6), QColor(40, 90, 180));
    p.setPen(QPen(QColor(30, 50, 90), 3, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(20, 4), QPointF(20, 14));
    p.drawLine(QPointF(44, 4), QPointF(44, 14));
    p.setPen(Qt::NoPen);
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 4; ++column) {
            const QRectF day(12 + column * 11, 29 + row * 9, 8, 6);
            p.setBrush(row == 1 && column == 2 ? QColor(240, 130, 30) : QColor(170, 185, 210));
            p.drawRoundedRect(day, 1.5, 1.5);
        }
    }
    return pixmap;
}

QIcon DrawCalendarPage(const QString& label) {
    QPixmap pixmap = Blank();
    QPainter p(&pixmap);
    Page(p, QColor(200, 40, 40));
    QFont font = p.font();
    font.setBold(true);
    font.setPixelSize(label.size() > 1 ? 12 : 15);
    p.setFont(font);
    p.setPen(Qt::black);
    p.drawText(QRect(3, 12, 26, 17), Qt::AlignCenter, label);
    return QIcon(pixmap);
}

QIcon DrawNotesPage() {
    QPixmap pixmap = Blank();
    QPainter p(&pixmap);
    Page(p, QColor(40, 140, 40));
    p.setPen(QPen(QColor(90, 90, 90), 1.5));
    for (int y = 16; y <= 25; y += 4)
        p.drawLine(7, y, 25, y);
    return QIcon(pixmap);
}

QIcon DrawPlannerPage() {
    QPixmap pixmap = Blank();
    QPainter p(&pixmap);
    Page(p, QColor(40, 70, 180));
    p.setPen(QPen(QColor(40, 40, 40), 1.5));
    p.drawEllipse(QPointF(16, 20.5), 6.5, 6.5);
    p.drawLine(QPointF(16, 20.5), QPointF(16, 16));
    p.drawLine(QPointF(16, 20.5), QPointF(19.5, 20.5));
    return QIcon(pixmap);
}

QIcon DrawAdvanceArrow() {
    QPixmap pixmap = Blank();
    QPainter p(&pixmap);
    Page(p, QColor(200, 40, 40));
    QPainterPath arrow;
    arrow.moveTo(8, 17);
    arrow.lineTo(17, 17);
    arrow.lineTo(17, 13);
    arrow.lineTo(25, 20.5);
    arrow.lineTo(17, 28);
    arrow.lineTo(17, 24);
    arrow.lineTo(8, 24);
    arrow.closeSubpath();
    p.setBrush(QColor(30, 120, 30));
    p.setPen(Qt::NoPen);
    p.drawPath(arrow);
    return QIcon(pixmap);
}

QPixmap DrawBell(bool active) {
    QPixmap pixmap = Blank(24);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(QColor(80, 80, 80), 1.2));
    p.setBrush(active ? QColor(240, 200, 0) : QColor(200, 200, 200));
    QPainterPath bell;
    bell.moveTo(5, 18);
    bell.cubicTo(7, 16, 6, 5, 12, 4);
    bell.cubicTo(18, 5, 17, 16, 19, 18);
    bell.closeSubpath();
    p.drawPath(bell);
    p.drawEllipse(QPointF(12, 20), 2, 2);
    return pixmap;
}

QPixmap DrawCake(bool active) {
    QPixmap pixmap = Blank(24);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(QColor(80, 80, 80), 1.2));
    p.setBrush(active ? QColor(240, 140, 180) : QColor(210, 210, 210));
    p.drawRect(QRectF(4, 12, 16, 9));
    p.setBrush(active ? QColor(255, 190, 60) : QColor(230, 230, 230));
    p.drawRect(QRectF(11, 5, 2, 7));
    return pixmap;
}

QIcon DrawHelp() {
    QPixmap pixmap = Blank(24);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    p.setBrush(QColor(40, 90, 200));
    p.setPen(Qt::NoPen);
    p.drawEllipse(QRectF(2, 2, 20, 20));
    QFont font = p.font();
    font.setBold(true);
    font.setPixelSize(15);
    p.setFont(font);
    p.setPen(Qt::white);
    p.drawText(QRect(2, 2, 20, 20), Qt::AlignCenter, QStringLiteral("?"));
    return QIcon(pixmap);
}

QPixmap DrawCheckBox(bool checked) {
    QPixmap pixmap = Blank(16);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(QColor(70, 70, 70), 1.2));
    p.setBrush(Qt::white);
    p.drawRect(QRectF(1.5, 1.5, 13, 13));
    if (checked) {
        p.setPen(QPen(QColor(0, 130, 0), 2.2));
        p.drawLine(QPointF(4, 8), QPointF(7, 11.5));
        p.drawLine(QPointF(7, 11.5), QPointF(12.5, 4));
    }
    return pixmap;
}

// Each picture is drawn on first use and shared after that (pictures are implicitly shared),
// so a panel that shows a row per day or per task does not draw the same picture for each row.
// Each call site passes its own lambda, hence its own instance of the template and its own
// picture.
template <typename Draw>
auto Once(Draw draw) {
    static const auto picture = draw();
    return picture;
}

}  // namespace

QIcon Orvanta() {
    // Drawn once, at the sizes window frames and task bars ask for.
    static const QIcon icon = [] {
        QIcon sizes;
        for (const int size : {16, 24, 32, 48, 64, 128})
            sizes.addPixmap(OrvantaSheet(size));
        return sizes;
    }();
    return icon;
}

QIcon CalendarPage(const QString& label) {
    static QHash<QString, QIcon> drawn;
    auto found = drawn.constFind(label);
    if (found == drawn.constEnd())
        found = drawn.insert(label, DrawCalendarPage(label));
    return *found;
}

QIcon NotesPage() {
    return Once([] { return DrawNotesPage(); });
}

QIcon PlannerPage() {
    return Once([] { return DrawPlannerPage(); });
}

QIcon AdvanceArrow() {
    return Once([] { return DrawAdvanceArrow(); });
}

QPixmap Bell(bool active) {
    return active ? Once([] { return DrawBell(true); }) : Once([] { return DrawBell(false); });
}

QPixmap Cake(bool active) {
    return active ? Once([] { return DrawCake(true); }) : Once([] { return DrawCake(false); });
}

QIcon Help() {
    return Once([] { return DrawHelp(); });
}

QPixmap CheckBox(bool checked) {
    return checked ? Once([] { return DrawCheckBox(true); })
                   : Once([] { return DrawCheckBox(false); });
}

}  // namespace icons
