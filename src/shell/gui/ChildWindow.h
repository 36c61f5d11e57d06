#pragma once

#include <QKeySequence>
#include <QWidget>
#include <functional>

#include "shell/Services.h"
#include "shell/gui/Controls.h"

class QCloseEvent;
class QMenuBar;

// The common part of every child window of the main frame. The frame creates a child window
// once and raises it when it is asked for again; the window closes on Esc; each handler runs
// in the error trap under its own name; controls are found by their prescribed names, a
// misspelt name stopping the program at once; an editor with unsaved work is asked about it
// before it closes. The window's controls go into Body(), which scrolls when the window is
// larger than the space the frame can give it.
class ChildWindow : public QWidget {
    Q_OBJECT
public:
    ChildWindow(Services& services, const QString& name, const QString& caption,
                QWidget* parent = nullptr);

    template <class T>
    T* Control(const QString& name) const {
        return FindControl<T>(this, name);
    }
    template <class T>
    T* Control(const QString& array, int index) const {
        return FindControl<T>(this, ArrayName(array, index));
    }

    // Closes the window, with its frame inside the main window when it has one.
    void CloseWindow();

    // The program is about to close: a window with unsaved work asks about it as it does when
    // it is closed itself. Returns false when the user chose to stay. An answer of No must
    // leave the work flagged as unsaved: the program may still stay open, and then the work
    // is asked about again when the window closes.
    bool QueryProgramClose() { return !AsksWhenProgramCloses() || Form_QueryUnload(); }

    QSize sizeHint() const override;

protected:
    // The widget that holds the window's controls.
    QWidget* Body() const { return body_; }
    // The window's own menu bar, above its controls; made when first asked for.
    QMenuBar* MenuBar();
    // Gives a menu item its shortcut keys, which work wherever the focus is in this window
    // (and only there, so that two windows may use the same keys).
    void SetShortcut(QAction* action, const QKeySequence& keys);
    // A menu item that runs handler, in the trap under handlerName, with its shortcut keys
    // (none when keys is empty).
    QAction* AddCommand(QMenu* menu, const QString& caption, const QString& name,
                        const char* handlerName, std::function<void()> handler,
                        const QKeySequence& keys = {});

    // Enter (either key) runs handler wherever the focus is in the window, as a dialog's
    // default button does; an open list's Enter still picks its item.
    void OnEnter(const char* handlerName, std::function<void()> handler);

    // Runs body whenever sender emits signal, in the trap under the handler's name.
    template <class Sender, class Signal, class Handler>
    void On(Sender* sender, Signal signal, const char* handlerName, Handler body) {
        connect(sender, signal, this,
                [this, handlerName, body] { services_.Trap(handlerName, body); });
    }

    // Asked before the window closes. An editor with unsaved work asks about it here and
    // returns false to stay open.
    virtual bool Form_QueryUnload() { return true; }
    // Whether closing the program asks this window about its unsaved work. The planner, the
    // notes and the month icons are asked by the program's own closing questions instead.
    virtual bool AsksWhenProgramCloses() const { return false; }

    void closeEvent(QCloseEvent* event) override;

    Services& services_;

private:
    QWidget* body_;
    QMenuBar* menuBar_ = nullptr;
};
