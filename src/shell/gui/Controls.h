#pragma once

#include <QAction>
#include <QList>
#include <QMenu>
#include <QMenuBar>
#include <QString>
#include <QtGlobal>

// Controls that come in arrays (imgCal, mnuEditMark ...) are named after the array with the
// member's index: "imgCal_0", "imgCal_1" ...
inline QString ArrayName(const QString& array, int index) {
    return array + QLatin1Char('_') + QString::number(index);
}

// The control called name inside window. Every control a handler or a test touches carries its
// prescribed name; a name that is not there is a mistake in the program, so it stops here with
// the name rather than handing back a null pointer to fail somewhere else.
template <class T>
T* FindControl(const QObject* window, const QString& name) {
    T* control = window->findChild<T*>(name);
    if (!control)
        qFatal("%s has no control called %s", qPrintable(window->objectName()), qPrintable(name));
    return control;
}

// A control array: count controls made by make(index), named array_0, array_1 ...
template <class T, class Make>
QList<T*> MakeControlArray(const QString& array, int count, Make&& make) {
    QList<T*> controls;
    for (int i = 0; i < count; ++i) {
        T* control = make(i);
        control->setObjectName(ArrayName(array, i));
        controls.append(control);
    }
    return controls;
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
