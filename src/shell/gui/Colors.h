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

// Black or white, whichever stands out on fill (judged by its brightness to the eye, so that
// yellow takes black and blue takes white).
inline QColor InkOn(const QColor& fill) {
    const double luma = 0.299 * fill.red() + 0.587 * fill.green() + 0.114 * fill.blue();
    return luma < 150 ? Qt::white : Qt::black;
}
