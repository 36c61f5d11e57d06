#pragma once

#include <QIcon>
#include <QPainter>
#include <QPixmap>

#include "shell/gui/Colors.h"

// A small square of a mark colour (0x00BBGGRR), for buttons and menu items.
inline QIcon MarkerSwatch(quint32 color, int size = 14) {
    QPixmap pixmap(size, size);
    pixmap.fill(ToQColor(color));
    QPainter painter(&pixmap);
    painter.setPen(QColor(90, 90, 90));
    painter.drawRect(0, 0, size - 1, size - 1);
    return QIcon(pixmap);
}

// The swatch of a category that can be shown or hidden: a shown category's swatch carries a
// check mark; a hidden one's is faded and empty, so the two differ at a glance (a menu item's
// icon takes the place of its check mark).
inline QIcon ShownMarkerSwatch(quint32 color, bool shown, int size = 16) {
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor fill = ToQColor(color);
    painter.setOpacity(shown ? 1.0 : 0.3);
    painter.fillRect(QRect(1, 1, size - 2, size - 2), fill);
    painter.setPen(QColor(90, 90, 90));
    painter.drawRect(QRectF(0.5, 0.5, size - 1, size - 1));
    if (shown) {
        painter.setPen(QPen(InkOn(fill), size / 7.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        const QPointF check[] = {
            {size * 0.22, size * 0.52}, {size * 0.42, size * 0.74}, {size * 0.8, size * 0.26}};
        painter.drawPolyline(check, 3);
    }
    return QIcon(pixmap);
}
