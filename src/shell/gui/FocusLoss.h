#pragma once

#include <QFocusEvent>

// True when the event is a box being left for another control of the program. Moving to another
// program, closing the window or opening a menu is not leaving the box: a check made on leaving
// must not show its message then.
inline bool IsFocusLoss(const QEvent* event) {
    if (event->type() != QEvent::FocusOut)
        return false;
    const Qt::FocusReason reason = static_cast<const QFocusEvent*>(event)->reason();
    return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason;
}
