#include "shell/gui/ChildWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QScrollArea>
#include <QShortcut>
#include <QStyle>
#include <QVBoxLayout>

#include "shell/gui/OneLineBoxes.h"

ChildWindow::ChildWindow(Services& services, const QString& name, const QString& caption,
                         QWidget* parent)
    : QWidget(parent), services_(services), body_(new QWidget) {
    setObjectName(name);
    setWindowTitle(caption);
    KeepEveryBoxOnOneLine();
    auto* scroll = new QScrollArea;
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    // A click on a label or on a button that takes no focus leaves the focus where it was,
    // instead of handing it to the scrolling frame.
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(body_);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(scroll);
    // The control that takes the focus is scrolled into view, so that Tab and Enter can go
    // down a page taller than the window.
    connect(qApp, &QApplication::focusChanged, scroll, [scroll, this](QWidget*, QWidget* now) {
        if (now && body_->isAncestorOf(now))
            scroll->ensureWidgetVisible(now, 10, 10);
    });
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

QMenuBar* ChildWindow::MenuBar() {
    if (!menuBar_) {
        menuBar_ = new QMenuBar(this);
        menuBar_->setNativeMenuBar(false);
        layout()->setMenuBar(menuBar_);
    }
    return menuBar_;
}

void ChildWindow::SetShortcut(QAction* action, const QKeySequence& keys) {
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    action->setShortcut(keys);
    addAction(action);
}

QAction* ChildWindow::AddCommand(QMenu* menu, const QString& caption, const QString& name,
                                 const char* handlerName, std::function<void()> handler,
                                 const QKeySequence& keys) {
    QAction* action = AddItem(menu, caption, name);
    Handle(action, this, [this, handlerName, handler] { services_.Trap(handlerName, handler); });
    if (!keys.isEmpty())
        SetShortcut(action, keys);
    return action;
}

void ChildWindow::OnEnter(const char* handlerName, std::function<void()> handler) {
    for (const int key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* shortcut = new QShortcut(QKeySequence(key), this);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        On(shortcut, &QShortcut::activated, handlerName, handler);
    }
}

QSize ChildWindow::sizeHint() const {
    // As large as the controls want, with room for a vertical scroll bar should the frame cut
    // the height, so that the width never has to scroll as well.
    const QSize menu(0, menuBar_ ? menuBar_->sizeHint().height() : 0);
    return body_->sizeHint().expandedTo(body_->minimumSize()) + menu +
           QSize(style()->pixelMetric(QStyle::PM_ScrollBarExtent), 0);
}

void ChildWindow::closeEvent(QCloseEvent* event) {
    if (Form_QueryUnload())
        event->accept();
    else
        event->ignore();
}
