#include "shell/gui/Topmost.h"

#include <QMdiSubWindow>
#include <QWidget>

namespace {

// The window that carries the stay-on-top flag: the child window frame around widget inside
// the main frame, otherwise widget's own top-level window.
QWidget* FrameOf(QWidget* widget) {
    for (QWidget* w = widget; w; w = w->parentWidget()) {
        if (auto* sub = qobject_cast<QMdiSubWindow*>(w))
            return sub;
        if (w->isWindow())
            return w;
    }
    return widget;
}

void SetStaysOnTop(QWidget* widget, bool onTop) {
    QWidget* frame = FrameOf(widget);
    if (!frame || frame->windowFlags().testFlag(Qt::WindowStaysOnTopHint) == onTop)
        return;
    // Changing a window's flags hides it and may move it: put it back where it was.
    const QRect geometry = frame->geometry();
    const bool visible = frame->isVisible();
    frame->setWindowFlag(Qt::WindowStaysOnTopHint, onTop);
    frame->setGeometry(geometry);
    if (visible)
        frame->show();
}

}  // namespace

void MakeMeTopmost(QWidget* window) {
    SetStaysOnTop(window, true);
}

void MakeMeNoTopmost(QWidget* window) {
    SetStaysOnTop(window, false);
}
