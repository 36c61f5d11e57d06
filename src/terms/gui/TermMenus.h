#pragma once

#include <QObject>
#include <QStringList>
#include <functional>

class QWidget;
class Services;
class TermBoxes;
class UserPreferences;
class frmFUT;
class frmMain;
class modFUT;

// The terms' part of the main window: its menu items open the term window, and the notes and
// planner boxes reach the terms through it. F2 in a box puts the term picked in the term window
// in at the caret; F3 opens the term editor on the box's selected text (or the word before the
// caret), to be kept as a new term.
class TermMenus : public QObject {
    Q_OBJECT
public:
    TermMenus(frmMain& frame, Services& services, UserPreferences& prefs, modFUT& terms,
              std::function<QWidget*()> calendar);

    // Opens the term window (or brings it up).
    frmFUT* ShowTermWindow();
    frmFUT* termWindow() const;
    TermBoxes& boxes() const { return *boxes_; }

    // F2 or F3 in box.
    void TermKey(QWidget* box, int key);
    // Opens the term window at start-up when the user asked for it, minimized if so asked.
    void ShowAtStart();
    // After the preferences named by keys were changed in the User Options window: another
    // term file is read at once (into the term window when it is open), and the open window's
    // auto-complete switch follows the new setting. The other term settings take effect when
    // the term window next opens or the program next starts.
    void PreferencesChanged(const QStringList& keys);

private:
    frmMain& frame_;
    Services& services_;
    UserPreferences& prefs_;
    modFUT& terms_;
    std::function<QWidget*()> calendar_;
    TermBoxes* boxes_;
};
