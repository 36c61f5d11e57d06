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
