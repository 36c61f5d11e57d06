#pragma once

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QString>

// Controls that come in arrays (imgCal, mnuEditMark ...) are named after the array with the
// member's index: "imgCal_0", "imgCal_1" ...
inline QString ArrayName(const QString& array, int index) {
    return array + QLatin1Char('_') + QString::number(index);
}

// Menus are built from their captions and control names. An item starts disabled and comes
// alive when a handler is attached with Handle(), so an item whose function is not there yet
// is visible but cannot be chosen.
inline QMenu* AddMenu(QMenuBar* bar, const QString& caption, const QString& name) {
    QMenu* menu = bar->addMenu(caption);
    menu->setObjectName(name);
    menu->menuAction()->setObjectName(name);
    return menu;
}

inline QMenu* AddSubMenu(QMenu* parent, const QString& caption, const QString& name) {
    QMenu* menu = parent->addMenu(caption);
    menu->setObjectName(name);
    menu->menuAction()->setObjectName(name);
    return menu;
}

inline QAction* AddItem(QMenu* menu, const QString& caption, const QString& name) {
    QAction* action = menu->addAction(caption);
    action->setObjectName(name);
    action->setEnabled(false);
    return action;
}

template <class Receiver, class Handler>
QAction* Handle(QAction* action, Receiver* receiver, Handler&& handler) {
    action->setEnabled(true);
    QObject::connect(action, &QAction::triggered, receiver, std::forward<Handler>(handler));
    return action;
}
