#include "shell/gui/ChildWindow.h"

#include <QCloseEvent>
#include <QMdiSubWindow>
#include <QScrollArea>
#include <QShortcut>
#include <QStyle>
#include <QVBoxLayout>

ChildWindow::ChildWindow(Services& services, const QString& name, const QString& caption,
                         QWidget* parent)
    : QWidget(parent), services_(services), body_(new QWidget) {
    setObjectName(name);
    setWindowTitle(caption);
    auto* scroll = new QScrollArea;
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setWidget(body_);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(scroll);
    auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    escape->setContext(Qt::WidgetWithChildrenShortcut);
    connect(escape, &QShortcut::activated, this, &ChildWindow::CloseWindow);
}

void ChildWindow::CloseWindow() {
    for (QWidget* w = parentWidget(); w; w = w->parentWidget()) {
        if (auto* frame = qobject_cast<QMdiSubWindow*>(w)) {
            frame->close();
            return;
        }
    }
    close();
}

QSize ChildWindow::sizeHint() const {
    // As large as the controls want, with room for a vertical scroll bar should the frame cut
    // the height, so that the width never has to scroll as well.
    return body_->sizeHint() + QSize(style()->pixelMetric(QStyle::PM_ScrollBarExtent), 0);
}

void ChildWindow::closeEvent(QCloseEvent* event) {
    if (Form_QueryUnload())
        event->accept();
    else
        event->ignore();
}
