#pragma once

#include <QDate>
#include <QMainWindow>
#include <functional>

#include "shell/Prompts.h"
#include "shell/gui/Controls.h"

class QComboBox;
class QGroupBox;
class QLabel;
class QLayout;
class QLineEdit;
class QMdiArea;
class QTimer;
class Services;
class UserPreferences;

// The program's frame: the date selectors and indicators on top, the child windows (calendar
// views, editors, managers) in the middle, pending birthdays, alerts and help on the right,
// the month's tasks and the to-do list below, and the menus that reach every function. The
// frame builds every control and menu item under its prescribed name; each subsystem attaches
// its handlers to them (an item without a handler stays disabled).
class frmMain : public QMainWindow {
    Q_OBJECT
public:
    frmMain(Services& services, ChangeFlags& changes, UserPreferences& prefs,
            QWidget* parent = nullptr);
    ~frmMain() override;

    // The window's load step: what the program reads at start-up, in its order.
    void SetLoadSteps(std::function<void()> steps) { loadSteps_ = std::move(steps); }
    void Form_Load();

    // A control or menu item by its prescribed name.
    template <class T>
    T* Control(const QString& name) const {
        return FindControl<T>(this, name);
    }
    QAction* MenuItem(const QString& name) const { return Control<QAction>(name); }

    // Child windows: one of each at a time. ShowChild raises the open one or creates it, sized
    // to what it asks for as far as the frame has room.
    QWidget* ShowChild(const QString& name, const std::function<QWidget*()>& create);
    QWidget* ChildWindow(const QString& name) const;
    bool IsChildOpen(const QString& name) const { return ChildWindow(name) != nullptr; }
    QMdiArea* mdiArea() const { return mdi_; }

    // How the unsaved-change questions reach the editors; editors register here.
    EditorHooks& editors() { return editors_; }
    // True once the frame has been asked to close (and has not been kept open).
    bool IsClosing() const { return closing_; }

    // The selected date in the selectors, the bottom strip and the tasks frame.
    void ShowSelectedDate(const QDate& date);
    // Checks once a minute whether the day has changed, and shows the new day.
    void Timer1_Timer();

signals:
    // After midnight: today's date has changed.
    void todayChanged(const QDate& today);
    // The user picked a date with the day, month or year selector, or typed one.
    void dateChosen(const QDate& date);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void BuildPanels();
    QWidget* BuildTopPanel();
    QLayout* BuildTodayRow();
    QLayout* BuildSelectorRow();
    QWidget* BuildRightPanel();
    QWidget* BuildBottomPanel();
    QWidget* BuildBottomStrip();
    void BuildMenus();
    void ConnectSelectors();
    void FillDayCombo(int year, int month);
    void ShowToday();
    void cmbDay_Click();
    void cmbMonth_Click();
    void cmbYear_Click();
    void txtDate_Enter();
    // The open windows' own questions about unsaved work; false when the user chose to stay.
    bool AskOpenWindows();
    // The closing question asked while the planner or a report is open.
    bool AskToClose();
    // The frame's place and size: as the user left it, or the screen's free area.
    void RestorePosition();
    void SavePosition();

    Services& services_;
    ChangeFlags& changes_;
    UserPreferences& prefs_;
    std::function<void()> loadSteps_;
    EditorHooks editors_;
    bool closing_ = false;
    QDate todayShown_;
    QDate dateShown_;

    QMdiArea* mdi_ = nullptr;
    QTimer* timer1_ = nullptr;
    QComboBox* cmbDay_ = nullptr;
    QComboBox* cmbMonth_ = nullptr;
    QComboBox* cmbYear_ = nullptr;
    QLabel* lblToday_ = nullptr;
    QLineEdit* txtDate_ = nullptr;
    QLabel* lblDate_ = nullptr;
    QGroupBox* framTasks_ = nullptr;
};

// The planner, expense-report and mileage-report windows: closing the program while one of
// them is open is confirmed first.
inline const QStringList kWindowsConfirmedOnClose = {
    QStringLiteral("frmPlanner"), QStringLiteral("frmExpenses"), QStringLiteral("frmMileage")};
