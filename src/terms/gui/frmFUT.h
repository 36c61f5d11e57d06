#pragma once

#include <QPoint>
#include <functional>

#include "shell/gui/ChildWindow.h"

class QLabel;
class QListWidget;
class QPushButton;
class TermBoxes;
class UserPreferences;
class frmEditFUT;
class frmMain;
class modFUT;

// The term window: the terms of the current list (lstFUT), which are added, edited, removed,
// cleared, changed in letter case and dragged into the notes and the planner; the other lists
// of the data folder (lstMoreFUT); and the window's place, docked at the right of the calendar
// or where the user saved it.
class frmFUT : public ChildWindow {
    Q_OBJECT
public:
    static constexpr const char* kName = "frmFUT";
    // The smallest size the controls can be laid out in.
    static constexpr int kMinWidth = 200;
    static constexpr int kMinHeight = 260;

    struct Context {
        frmMain& frame;
        UserPreferences& prefs;
        modFUT& terms;
        TermBoxes& boxes;
        // The calendar window the term window docks beside (none when it is closed).
        std::function<QWidget*()> calendar;
    };
    frmFUT(Services& services, Context context);

    void Form_Load();
    QSize sizeHint() const override;
    // The term picked in lstFUT; empty when none is.
    QString SelectedTerm() const;

    // The window's place: at the right edge of the calendar, as tall as the calendar; at the
    // right of the main window's free area when the calendar leaves no room or is closed.
    void DockThisWindow();
    void PositionControls();

    void cmdCase_Click();
    // 0 adds a term, 1 edits the picked one, 2 removes it, 3 switches auto-complete.
    void cmdOpt_Click(int index);
    void Form_DblClick();
    void lstMoreFUT_Click();
    void mnuEditClear_Click();
    void mnuFileDefaultFUT_Click();
    void mnuFileDelete_Click();
    void mnuFileNewFUT_Click();
    void mnuFileOpenFUT_Click();
    void mnuFileSave_Click();
    void mnuFileShowAll_Click();
    void mnuWindowSavePosition_Click();

    // Opens the term editor on term, to be added as a new term.
    void AddTerm(const QString& term);
    // After the preferences were changed elsewhere: the list of the term file now chosen, and
    // the auto-complete switch as it is now.
    void PreferencesChanged();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void BuildMenus();
    void BuildControls();
    void ReadFrequentlyUsedTerms();
    QStringList ListedTerms() const;
    bool SaveTerms(const QStringList& list);
    bool SaveEditedTerm(const QString& term);
    void ShowAutoCompleteCaption();
    void OpenEditor(const QString& term);
    void SwitchTo(const QString& name);
    QWidget* Frame() const;
    void LoadPosition();
    void lstFUT_KeyDown(int key);
    void lstFUT_MouseDown(const QPoint& at);
    void lstFUT_MouseMove(const QPoint& at, Qt::MouseButtons buttons);
    void lstFUT_MouseUp() { dragFrom_ = -1; }

    Context context_;
    QLabel* lblFile_;
    QListWidget* lstFUT_;
    QListWidget* lstMoreFUT_;
    QPushButton* cmdCase_;
    QList<QPushButton*> cmdOpt_;
    int editRow_ = -1;
    int dragFrom_ = -1;
    QPoint dragStart_;
    bool positioning_ = false;
};

// The "FUT Position:" value of a window at geometry (left, top, width, height).
QString FutPositionValue(const QRect& geometry);
// The geometry held in a "FUT Position:" value; invalid when it is not one.
QRect FutPositionGeometry(const QString& value);
