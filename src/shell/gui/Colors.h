#pragma once

#include <QColor>

// Colours are kept in the files as 0x00BBGGRR numbers (red in the low byte).
inline QColor ToQColor(quint32 bgr) {
    return QColor(bgr & 0xff, (bgr >> 8) & 0xff, (bgr >> 16) & 0xff);
}

inline quint32 FromQColor(const QColor& color) {
    return static_cast<quint32>(color.red()) | (static_cast<quint32>(color.green()) << 8) |
           (static_cast<quint32>(color.blue()) << 16);
}
