#pragma once

#include <QList>
#include <QMainWindow>
#include <functional>

#include <memory>

#include "calendar/CalendarDisplay.h"
#include "calendar/DayLook.h"
#include "shell/Prompts.h"

class CalendarView;
class DateActions;
class ProgramState;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QMdiArea;
class QMdiSubWindow;
class QPlainTextEdit;
class QTimer;

// The program's frame: the date selectors and indicators on top, the child windows (calendar
// views, editors, managers) in the middle, pending birthdays, alerts and help on the right,
// the month's tasks and the to-do list below, and the menus that reach every function.
class frmMain : public QMainWindow, public CalendarDisplay {
    Q_OBJECT
public:
    explicit frmMain(ProgramState& state, QWidget* parent = nullptr);
    ~frmMain() override;

    // The window's load step: everything the program reads at start-up, in order.
    void Form_Load();

    // The calendar view on show: 0 none, 1 one month, 6 six months, 12 one year.
    int ViewKind() const override;
    void Show1MonthCalendar() override;
    void Show6MonthCalendar() override;
    void Show1YearCalendar() override;
    // Repaint the marks of the view of that kind when it is on show.
    void ReDraw1MonthDateMarks() override;
    void ReDraw6MonthDateMarks() override;
    void ReDrawDateMarks() override;
    CalendarView* calendarView() const;
    // Repaints the calendar on show after something it shows has changed.
    void RedrawCalendar();

    // How every calendar view shows a day: each decorator adds what its store knows.
    void AddDayDecorator(DayDecorator decorator);
    DayLook LookOf(const QDate& date) const;

    // Child windows: one of each at a time. ShowChild raises the open one or creates it.
    QWidget* ShowChild(const QString& name, const std::function<QWidget*()>& create);
    QWidget* ChildWindow(const QString& name) const;
    bool IsChildOpen(const QString& name) const { return ChildWindow(name) != nullptr; }
    QMdiArea* mdiArea() const { return mdi_; }

    // How the unsaved-change questions reach the editors; editors register here.
    EditorHooks& editors() { return editors_; }

    // The Date Options menu, also offered on a day's right click.
    QMenu* DateOptionsMenu() const;

    // Checks once a minute whether the day has changed, and refreshes what depends on today.
    void Timer1_Timer();

    void mnuHelpContents_Click();
    void mnuHelpSoftwareVersion_Click();

signals:
    // After midnight: today's date has changed.
    void todayChanged(const QDate& today);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void BuildPanels();
    QWidget* BuildTopPanel();
    QWidget* BuildRightPanel();
    QWidget* BuildBottomPanel();
    QWidget* BuildBottomStrip();
    void BuildMenus();
    void ConnectHandlers();
    void ConnectMarkHandlers();
    // Captions, check marks and colours of the mark categories in the menus and lists.
    void ShowMarkerSettings();
    // After the marker settings changed: menus, open marker windows and the view.
    void MarkerSettingsChanged();
    void mnuManageDisplayedMarks_Click();
    void mnuManageUserColors_Click();
    void RedrawViewOfKind(int months);

    // Load steps that belong to stores filled in by their own features.
    void ReadAlerts();
    void ReadBirthdays();
    void FillTaskList();

    void ShowCalendar(int months);
    void ShowSelectedDate();
    void FillDayCombo(int year, int month);
    void ShowToday();
    void FillHelpBox();
    void cmbDay_Click();
    void cmbMonth_Click();
    void cmbYear_Click();
    void cmbHelp_Click();
    void txtDate_Enter();
    void imgHelp_Click();
    void OpenHelp(int topic);
    bool AskToClose();

    ProgramState& state_;
    std::unique_ptr<DateActions> actions_;
    EditorHooks editors_;
    QList<DayDecorator> decorators_;
    QDate todayShown_;

    QMdiArea* mdi_ = nullptr;
    QTimer* timer1_ = nullptr;
    QComboBox* cmbDay_ = nullptr;
    QComboBox* cmbMonth_ = nullptr;
    QComboBox* cmbYear_ = nullptr;
    QLabel* lblToday_ = nullptr;
    QLineEdit* txtDate_ = nullptr;
    QLabel* lblDate_ = nullptr;
    QGroupBox* framTasks_ = nullptr;
    QComboBox* cmbHelp_ = nullptr;
    QPlainTextEdit* txtHelp_ = nullptr;
};

// The planner, expense-report and mileage-report windows: closing the program while one of
// them is open is confirmed first.
inline const QStringList kWindowsConfirmedOnClose = {
    QStringLiteral("frmPlanner"), QStringLiteral("frmExpenses"), QStringLiteral("frmMileage")};
