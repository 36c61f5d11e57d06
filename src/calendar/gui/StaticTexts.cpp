#include "calendar/gui/StaticTexts.h"

#include <QPainter>

namespace {

constexpr qsizetype kMostKept = 400;

}  // namespace

void StaticTexts::Draw(QPainter& painter, const QRect& box, Qt::Alignment alignment,
                       const QString& text, const QFont& font) {
    // A new font lays everything out anew; so does a long session's browsing through the
    // years, which would otherwise keep every title it ever showed.
    if (font != font_ || laidOut_.size() > kMostKept) {
        font_ = font;
        laidOut_.clear();
    }
    auto found = laidOut_.find(text);
    if (found == laidOut_.end()) {
        QStaticText line(text);
        line.setTextFormat(Qt::PlainText);
        line.prepare(QTransform(), font);
        found = laidOut_.insert(text, line);
    }
    const QSizeF size = found->size();
    qreal x = box.left();
    qreal y = box.top();
    if (alignment & Qt::AlignHCenter)
        x += (box.width() - size.width()) / 2;
    else if (alignment & Qt::AlignRight)
        x += box.width() - size.width();
    if (alignment & Qt::AlignVCenter)
        y += (box.height() - size.height()) / 2;
    else if (alignment & Qt::AlignBottom)
        y += box.height() - size.height();
    painter.setFont(font);
    painter.drawStaticText(QPoint(qRound(x), qRound(y)), *found);
}
