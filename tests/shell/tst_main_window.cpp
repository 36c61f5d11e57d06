// The main window: its menu tree, panels, date selectors, calendar views, help box, the
// midnight refresh and the closing questions.
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>

#include "TestEnv.h"
#include "Version.h"
#include "app/gui/MainWindow.h"
#include "calendar/gui/CalendarMenus.h"
#include "calendar/gui/CalendarView.h"

namespace {

// Every menu item as "Caption > Caption > Caption=controlName", in menu order.
void Walk(const QList<QAction*>& actions, const QString& path, QStringList& out) {
    for (QAction* action : actions) {
        if (action->isSeparator())
            continue;
        const QString here = path.isEmpty() ? action->text() : path + " > " + action->text();
        out.append(here + "=" + action->objectName());
        if (action->menu())
            Walk(action->menu()->actions(), here, out);
    }
}

const QStringList kMenuTree = {
    "&File=mnuFile",
    "&File > &Create/Modify 1 Month Calendar Template=mnuFileCreateTemplate",
    "&File > &Save=mnuFileSave",
    "&File > &Save > Save 1 Month Calendar Template=mnuFileSaveTemplate",
    "&File > &Save > Save This Month's Icons=mnuFileSaveCalendar",
    "&File > &Print 1 Month Calendar=mnuFilePrintCalendar",
    "&File > Print 1 Month Calendar &Without Icons=mnuFilePrintCalendarHideIcons",
    "&File > Open External &Notes=mnuFileOpenNotes",
    "&File > Open External &Planner=mnuFileOpenPlanner",
    "&File > Open &Frequently Used Terms=mnuFileOpenFUT",
    "&File > Generate &Expense Report=mnuFileOpenExpenses",
    "&File > Generate &Mileage Report=mnuFileOpenMiles",
    "&Edit=mnuEdit",
    "&Edit > &Find=mnuEditFind",
    "&Edit > Delete this Years Marks=mnuEditDeleteMarks",
    "&Edit > Displayed Marks=mnuEditDiplayedMarks",
    "&Edit > Displayed Marks > Hide (Uncheck) All Marks=mnuEditMarksHideAll",
    "&Edit > Displayed Marks > Show (Check) All Marks=mnuEditMarksShowAll",
    "&Edit > Displayed Marks > Account Payable=mnuEditMark_0",
    "&Edit > Displayed Marks > Account Receivable=mnuEditMark_1",
    "&Edit > Displayed Marks > Anniversary=mnuEditMark_2",
    "&Edit > Displayed Marks > Appointment=mnuEditMark_3",
    "&Edit > Displayed Marks > Birthday=mnuEditMark_4",
    "&Edit > Displayed Marks > Celebration=mnuEditMark_5",
    "&Edit > Displayed Marks > Dining=mnuEditMark_6",
    "&Edit > Displayed Marks > Event=mnuEditMark_7",
    "&Edit > Displayed Marks > Holiday=mnuEditMark_8",
    "&Edit > Displayed Marks > Meeting=mnuEditMark_9",
    "&Edit > Displayed Marks > Travel=mnuEditMark_10",
    "&Edit > Displayed Marks > Vacation=mnuEditMark_11",
    "&Edit > Displayed Marks > Quick Marks=mnuEditMark_12",
    "&Edit > Displayed Marks > Today's Date=mnuEditMark_13",
    "&Edit > Displayed Marks > Save the Above Settings=mnuEditMarkerSaveSettings",
    "Calendar &View=mnuCal",
    "Calendar &View > Show 1 Month Calendar=mnuCalOneMonth",
    "Calendar &View > Show 6 Month Calendar=mnuCalSixMonths",
    "Calendar &View > Show 1 Year Calendar=mnuCalOneYear",
    "&Options=mnuOptions",
    "&Options > &User Options=mnuOptionsUser",
    "&Options > Change Network Share Drive=mnuOptNetworkShare",
    "&Options > Create Shortcut for this Program=mnuOptCreateShortcut",
    "&Options > &Date Options=mnuDateOptions",
    "&Options > &Date Options > Quick Mark Selected Date=mnuOptDateQuickMark",
    "&Options > &Date Options > Mark Selected Date as...=mnuOptDateMark",
    "&Options > &Date Options > Mark Selected Date as... > Account Payable=mnuOptDateMarkAs_0",
    "&Options > &Date Options > Mark Selected Date as... > Account Receivable=mnuOptDateMarkAs_1",
    "&Options > &Date Options > Mark Selected Date as... > Anniversary=mnuOptDateMarkAs_2",
    "&Options > &Date Options > Mark Selected Date as... > Appointment=mnuOptDateMarkAs_3",
    "&Options > &Date Options > Mark Selected Date as... > Birthday=mnuOptDateMarkAs_4",
    "&Options > &Date Options > Mark Selected Date as... > Celebration=mnuOptDateMarkAs_5",
    "&Options > &Date Options > Mark Selected Date as... > Dining=mnuOptDateMarkAs_6",
    "&Options > &Date Options > Mark Selected Date as... > Event=mnuOptDateMarkAs_7",
    "&Options > &Date Options > Mark Selected Date as... > Holiday=mnuOptDateMarkAs_8",
    "&Options > &Date Options > Mark Selected Date as... > Meeting=mnuOptDateMarkAs_9",
    "&Options > &Date Options > Mark Selected Date as... > Travel=mnuOptDateMarkAs_10",
    "&Options > &Date Options > Mark Selected Date as... > Vacation=mnuOptDateMarkAs_11",
    "&Options > &Date Options > Clear Mark from Selected Date=mnuOptDateClearMark",
    "&Options > &Date Options > Attach Mouse Over (Hover) Note=mnuOptDateAttachHoverText",
    "&Options > &Date Options > Open Notes for Selected Date=mnuOptDateOpenNotes",
    "&Options > &Date Options > Open Planner for Selected Date=mnuOptDateOpenPlanner",
    "&Options > &Date Options > Set Alert for Selected Date=mnuOptDateSetAlert",
    "&Options > &Date Options > View Alert for Selected Date=mnuOptDateViewAlert",
    "&Options > &Date Options > View Insertable Icons=mnuOptDateShowIcons",
    "&Options > &Date Options > Remove Selected Icon=mnuOptDateRemoveIcon",
    "&Options > &Date Options > Remove All Icons=mnuOptDateRemoveAll",
    "&Options > Calendar Options=mnuOptCal",
    "&Options > Calendar Options > Show Numbers Offset=mnuOptCalNumbersOffset",
    "&Options > Calendar Options > Restore This Years Marks from Backup=mnuOptCalendarRestoreMarks",
    "&Manage=mnuManage",
    "&Manage > Alerts=mnuManageAlerts",
    "&Manage > Notes and Planners=mnuManageNotes",
    "&Manage > To Do List=mnuManageToDo",
    "&Manage > Holidays=mnuManageHolidays",
    "&Manage > Birthdays=mnuManageBDays",
    "&Manage > Contact List=mnuManageEmailList",
    "&Manage > Insertable Icons=mnuManageIcons",
    "&Manage > Frequently Used Terms=mnuManageFUT",
    "&Manage > Frequently Used Terms > Edit List=mnuManageFUTList",
    "&Manage > Frequently Used Terms > Edit Preferences=mnuManageFUTPreferences",
    "&Manage > Monthly Budget=mnuManageBudget",
    "&Manage > Date Markers=mnuManageMarkers",
    "&Manage > Date Markers > Select Markers to Display and Hide=mnuManageDisplayedMarks",
    "&Manage > Date Markers > Select Colors and Captions for Markers=mnuManageUserColors",
    "&View=mnuView",
    "&View > &Date Functions=mnuDFunc",
    "&View > &Date Functions > Find a Date=mnuDateFind",
    "&View > &Date Functions > Get Time Interval Between 2 Dates=mnuDateDiff",
    "&View > &Date Functions > Get Time Interval Between 2 Dates > Using Standard "
    "Intervals=mnuDateDiffS",
    "&View > &Date Functions > Get Time Interval Between 2 Dates > Using Standard Intervals > In "
    "Years=mnuDateDiffSYears",
    "&View > &Date Functions > Get Time Interval Between 2 Dates > Using Standard Intervals > In "
    "Quarters=mnuDateDiffSQuarters",
    "&View > &Date Functions > Get Time Interval Between 2 Dates > Using Standard Intervals > In "
    "Months=mnuDateDiffSMonths",
    "&View > &Date Functions > Get Time Interval Between 2 Dates > Using Standard Intervals > In "
    "Weeks=mnuDateDiffSWeeks",
    "&View > &Date Functions > Get Time Interval Between 2 Dates > Using Standard Intervals > In "
    "Days=mnuDateDiffSDays",
    "&View > &Date Functions > Get Time Interval Between 2 Dates > Using Standard Intervals > In "
    "Hours=mnuDateDiffSHours",
    "&View > &Date Functions > Get Time Interval Between 2 Dates > Using Standard Intervals > In "
    "Minutes=mnuDateDiffSMinutes",
    "&View > &Date Functions > Get Time Interval Between 2 Dates > Using Standard Intervals > In "
    "Seconds=mnuDateDiffSSeconds",
    "&View > &Date Functions > Get Time Interval Between 2 Dates > Using Calendar "
    "Intervals=mnuDateDiffC",
    "&View > &Date Functions > Get Time Interval Between 2 Dates > Using Calendar Intervals > In "
    "Calendar Years=mnuDateDiffCYears",
    "&View > &Date Functions > Get Time Interval Between 2 Dates > Using Calendar Intervals > In "
    "Calendar Months=mnuDateDiffCMonths",
    "&View > &Date Functions > Get Time Interval Between 2 Dates > Using Calendar Intervals > In "
    "Calendar Weeks=mnuDateDiffCWeeks",
    "&View > &Date Functions > Other Functions=mnuDFuncOther",
    "&View > &Date Functions > Other Functions > # of Specific Weekdays in a Period=mnuNumOfDays",
    "&Tools=mnuTools",
    "&Tools > Alarm Clock=mnuToolsAlarm",
    "&Tools > Show Time of Day=mnuToolsShowTime",
    "&Support=mnuSupport",
    "&Support > Report Software &Problem (Requires Internet Connection)=mnuSupportReportProblem",
    "&Support > Send &Error Log File (Requires Internet Connection)=mnuSupportSendErrorLog",
    "&Help=mnuHelpMain",
    "&Help > Help Contents=mnuHelpContents",
    "&Help > Get Software Version=mnuHelpSoftwareVersion",
};

const QString kCloseQuestion =
    "Are you sure you want to close the program? Click No to keep this\r\n"
    "Window Open and then use the Escape Key to return to the Calendar View.";

}  // namespace

class MainWindowTest : public QObject {
    Q_OBJECT

    std::unique_ptr<TestEnv> env;
    std::unique_ptr<frmMain> window;
    CalendarMenus* calendar = nullptr;

    template <class T>
    T* find(const QString& name) const {
        T* found = window->findChild<T*>(name);
        if (!found)
            qWarning("no control %s", qPrintable(name));
        return found;
    }
    QAction* menu(const QString& name) const { return find<QAction>(name); }
    void open(const QDateTime& now = QDateTime(QDate(2026, 9, 7), QTime(10, 30))) {
        env = std::make_unique<TestEnv>(now);
        env->write("Help_Topics.txt",
                   "*Getting Started:Start here.\r\n*Calendar Views:One month, six months.*"
                   "Marks:Coloured days.");
        MainWindow created = CreateMainWindow(*env->state);
        window = std::move(created.frame);
        calendar = created.calendar;
        window->Form_Load();
        window->setWindowState(Qt::WindowNoState);
        window->resize(1180, 800);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    }
    // Adds a child window standing in for an editor that is not the calendar.
    void openStandIn(const QString& name) {
        window->ShowChild(name, [] { return new QWidget; });
    }

private slots:
    void init() { open(); }
    void cleanup() {
        if (window)
            window->editors() = {};
        window.reset();
        if (env)
            VERIFY_DIALOGS(env->dialogs);
        env.reset();
    }

    void menuTreeHasEveryItemInOrder() {
        QStringList tree;
        Walk(window->menuBar()->actions(), {}, tree);
        QCOMPARE(tree, kMenuTree);
    }

    void itemsWithoutTheirFunctionAreDisabled_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("enabled");
        QTest::newRow("one month view") << "mnuCalOneMonth" << true;
        QTest::newRow("six month view") << "mnuCalSixMonths" << true;
        QTest::newRow("year view") << "mnuCalOneYear" << true;
        QTest::newRow("help contents") << "mnuHelpContents" << true;
        QTest::newRow("version") << "mnuHelpSoftwareVersion" << true;
        QTest::newRow("monthly budget") << "mnuManageBudget" << false;
        QTest::newRow("find a date") << "mnuDateFind" << false;
        QTest::newRow("show time of day") << "mnuToolsShowTime" << false;
    }
    void itemsWithoutTheirFunctionAreDisabled() {
        QFETCH(QString, name);
        QFETCH(bool, enabled);
        QVERIFY(menu(name));
        QCOMPARE(menu(name)->isEnabled(), enabled);
    }

    void panelsShowTheirControls_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QString>("toolTip");
        QTest::newRow("lblSelect") << "lblSelect"
                                   << "Select >"
                                   << "";
        QTest::newRow("Label1") << "Label1"
                                << "Months >"
                                << "";
        QTest::newRow("imgCal_0") << "imgCal_0"
                                  << ""
                                  << "View 1 Month Calendar";
        QTest::newRow("imgCal_1") << "imgCal_1"
                                  << ""
                                  << "View 6 Month Calendar";
        QTest::newRow("imgCal_2") << "imgCal_2"
                                  << ""
                                  << "View Yearly Calendar";
        QTest::newRow("imgOpt_0") << "imgOpt_0"
                                  << ""
                                  << "Advance Calendar to Selected Date";
        QTest::newRow("imgOpt_1") << "imgOpt_1"
                                  << ""
                                  << "Open Notes for Selected Date";
        QTest::newRow("imgOpt_2") << "imgOpt_2"
                                  << ""
                                  << "Open Planner for Selected Date";
        QTest::newRow("imgAlert_0") << "imgAlert_0"
                                    << ""
                                    << "No Alerts Pending";
        QTest::newRow("cmdAlert") << "cmdAlert"
                                  << "No Pending Alerts"
                                  << "Click to View";
        QTest::newRow("lblAlert") << "lblAlert"
                                  << "No Pending Alerts"
                                  << "";
        QTest::newRow("imgBDay_2") << "imgBDay_2"
                                   << ""
                                   << "No Birthdays Pending";
        QTest::newRow("imgNotes") << "imgNotes"
                                  << ""
                                  << "Signifies Notes Exists for Hover Date";
        QTest::newRow("imgPlanner") << "imgPlanner"
                                    << ""
                                    << "Signifies a Planner Exists for Hover Date";
        QTest::newRow("lblTemplate") << "lblTemplate"
                                     << "Template = Standard"
                                     << "";
        QTest::newRow("lblHoliday") << "lblHoliday"
                                    << "Holiday = None Chosen"
                                    << "";
        QTest::newRow("lblCurPos") << "lblCurPos"
                                   << "Text Position ="
                                   << "";
        QTest::newRow("lblBirthdays") << "lblBirthdays"
                                      << "Pending Birthdays: Sorted by Name"
                                      << "";
        QTest::newRow("lblBirthdayDate") << "lblBirthdayDate"
                                         << "Date ="
                                         << "";
        QTest::newRow("lblAlerts") << "lblAlerts"
                                   << "Pending Alerts: Sorted by Message"
                                   << "";
        QTest::newRow("lblAlertDate") << "lblAlertDate"
                                      << "Alert Date ="
                                      << "";
        QTest::newRow("lblHelpSubject") << "lblHelpSubject"
                                        << "Help: Select a Topic Below"
                                        << "";
        QTest::newRow("imgHelp") << "imgHelp"
                                 << ""
                                 << "Click for Enlarged Version of Help";
        QTest::newRow("framTasks") << "framTasks"
                                   << "Tasks for September"
                                   << "";
        QTest::newRow("lstTasks") << "lstTasks"
                                  << ""
                                  << "Click to Open Notes or Planner";
        QTest::newRow("framToDo") << "framToDo"
                                  << "To Do List - Edit To Do List under \"Manage\""
                                  << "";
        QTest::newRow("lblDate") << "lblDate"
                                 << "Month: September"
                                 << "";
    }
    void panelsShowTheirControls() {
        QFETCH(QString, name);
        QFETCH(QString, caption);
        QFETCH(QString, toolTip);
        QWidget* control = find<QWidget>(name);
        QVERIFY(control);
        QCOMPARE(control->toolTip(), toolTip);
        if (auto* label = qobject_cast<QLabel*>(control))
            QCOMPARE(label->text(), caption);
        else if (auto* button = qobject_cast<QAbstractButton*>(control))
            QCOMPARE(button->text(), caption);
        else if (auto* frame = qobject_cast<QGroupBox*>(control))
            QCOMPARE(frame->title(), caption);
    }

    void everyPanelAndWorkingListExists_data() {
        QTest::addColumn<QString>("name");
        for (const char* name :
             {"picTop",      "picRight",     "picBottom",     "cmbDay",      "cmbMonth",
              "cmbYear",     "txtDate",      "lstNotes",      "lstPlanner",  "lstNotes2",
              "lstPlanner2", "lstBirthdays", "lstMarkerCats", "lstAlerts",   "cmbHelp",
              "txtHelp",     "VScroll1",     "picScroll",     "imgChkBox_9", "lblToDo_9",
              "imgAlert_1",  "imgAlert_2"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }
    void everyPanelAndWorkingListExists() {
        QFETCH(QString, name);
        QVERIFY(find<QWidget>(name));
    }

    void loadShowsTodayTheSelectorsAndTheYearView() {
        QCOMPARE(find<QLabel>("lblToday")->text(), QString("Today is Monday, September 7, 2026"));
        QCOMPARE(find<QComboBox>("cmbDay")->currentText(), QString("7"));
        QCOMPARE(find<QComboBox>("cmbMonth")->currentText(), QString("September"));
        QCOMPARE(find<QComboBox>("cmbYear")->currentText(), QString("2026"));
        QCOMPARE(find<QComboBox>("cmbDay")->count(), 30);
        QCOMPARE(find<QLineEdit>("txtDate")->text(), QString("9/7/2026"));
        QCOMPARE(int(calendar->ViewOnShow()), 12);
        QCOMPARE(env->state->dates.DateHolder.at(8, 1, 1), QString("09/07/26"));
        QCOMPARE(env->state->dates.NextDateHolder.at(0, 5, 0), QString("01/01/27"));
    }

    void helpBoxStartsAtGettingStartedAndFollowsTheTopic() {
        auto* topics = find<QComboBox>("cmbHelp");
        QCOMPARE(topics->count(), 3);
        QCOMPARE(topics->currentText(), QString("Getting Started"));
        QCOMPARE(find<QPlainTextEdit>("txtHelp")->toPlainText(), QString("Start here."));
        topics->setCurrentIndex(2);
        QCOMPARE(find<QPlainTextEdit>("txtHelp")->toPlainText(), QString("Coloured days."));
    }

    void selectorsMoveTheSelectedDate() {
        auto* month = find<QComboBox>("cmbMonth");
        month->setCurrentIndex(1);  // February: the 7th stays the 7th
        QCOMPARE(env->state->dates.SelectedDate, QDate(2026, 2, 7));
        QCOMPARE(find<QComboBox>("cmbDay")->count(), 28);
        QCOMPARE(find<QLabel>("lblDate")->text(), QString("Month: February"));
        QCOMPARE(find<QGroupBox>("framTasks")->title(), QString("Tasks for February"));
        find<QComboBox>("cmbDay")->setCurrentIndex(27);
        QCOMPARE(env->state->dates.SelectedDate, QDate(2026, 2, 28));
        find<QComboBox>("cmbYear")->setCurrentText("2028");
        QCOMPARE(env->state->dates.SelectedDate, QDate(2028, 2, 28));
        QCOMPARE(find<QComboBox>("cmbDay")->count(), 29);
    }

    void aDayClampsToTheShorterMonth() {
        env->state->dates.SelectDate(QDate(2026, 1, 31));
        find<QComboBox>("cmbMonth")->setCurrentIndex(1);
        QCOMPARE(env->state->dates.SelectedDate, QDate(2026, 2, 28));
        find<QComboBox>("cmbYear")->setCurrentText("2024");
        QCOMPARE(env->state->dates.SelectedDate, QDate(2024, 2, 28));
    }

    void movingIntoAnotherYearRefillsBothYears() {
        QSignalSpy years(&env->state->dates, &DateModel::yearChanged);
        find<QComboBox>("cmbYear")->setCurrentText("2022");
        QCOMPARE(years.count(), 1);
        const DateModel& dates = env->state->dates;
        QCOMPARE(dates.ThisYear, qint16(2022));
        QCOMPARE(dates.DateHolder.at(0, 6, 0), QString("01/01/22"));
        QCOMPARE(dates.NextDateHolder.at(0, 0, 0), QString("01/01/23"));
        QCOMPARE(dates.DateHolder.at(8, 1, 1), QString("09/05/22"));  // no 2026 days left
        find<QComboBox>("cmbMonth")->setCurrentIndex(3);
        QCOMPARE(years.count(), 1);
    }

    void typedDateIsSelectedAndABadOneExplained() {
        auto* date = find<QLineEdit>("txtDate");
        date->setText("Dec 25, 2027");
        QTest::keyClick(date, Qt::Key_Return);
        QCOMPARE(env->state->dates.SelectedDate, QDate(2027, 12, 25));
        env->dialogs.ExpectMsgBox("Please type a date such as 9/7/2026 or Sep 7, 2026.",
                                  vb::OKOnly | vb::Exclamation, "Date not recognized");
        date->setText("13/45/2027");
        QTest::keyClick(date, Qt::Key_Return);
        QCOMPARE(env->state->dates.SelectedDate, QDate(2027, 12, 25));
        QCOMPARE(date->text(), QString("12/25/2027"));
    }

    void viewButtonsAndMenuSwitchTheView() {
        QTest::mouseClick(find<QToolButton>("imgCal_0"), Qt::LeftButton);
        QCOMPARE(int(calendar->ViewOnShow()), 1);
        QTest::mouseClick(find<QToolButton>("imgCal_1"), Qt::LeftButton);
        QCOMPARE(int(calendar->ViewOnShow()), 6);
        menu("mnuCalOneMonth")->trigger();
        QCOMPARE(int(calendar->ViewOnShow()), 1);
        menu("mnuCalOneYear")->trigger();
        QCOMPARE(int(calendar->ViewOnShow()), 12);
        QCOMPARE(window->mdiArea()->subWindowList().size(), 1);
        window->mdiArea()->subWindowList().first()->close();
        QCOMPARE(int(calendar->ViewOnShow()), 0);
        QTest::mouseClick(find<QToolButton>("imgOpt_0"), Qt::LeftButton);
        QCOMPARE(int(calendar->ViewOnShow()), 1);
    }

    void clickingADaySelectsIt() {
        calendar->Show1MonthCalendar();
        CalendarView* view = calendar->calendarView();
        const QRect cell = view->DayRect(QDate(2026, 9, 23));
        QVERIFY(!cell.isEmpty());
        QTest::mouseClick(view, Qt::LeftButton, {}, cell.center());
        QCOMPARE(env->state->dates.SelectedDate, QDate(2026, 9, 23));
        QCOMPARE(find<QComboBox>("cmbDay")->currentText(), QString("23"));
    }

    void keysMoveTheSelection_data() {
        QTest::addColumn<int>("key");
        QTest::addColumn<QDate>("expected");
        QTest::newRow("left") << int(Qt::Key_Left) << QDate(2026, 9, 6);
        QTest::newRow("right") << int(Qt::Key_Right) << QDate(2026, 9, 8);
        QTest::newRow("up") << int(Qt::Key_Up) << QDate(2026, 8, 31);
        QTest::newRow("down") << int(Qt::Key_Down) << QDate(2026, 9, 14);
        QTest::newRow("page down") << int(Qt::Key_PageDown) << QDate(2026, 10, 7);
        QTest::newRow("page up") << int(Qt::Key_PageUp) << QDate(2026, 8, 7);
    }
    void keysMoveTheSelection() {
        QFETCH(int, key);
        QFETCH(QDate, expected);
        calendar->Show1MonthCalendar();
        QTest::keyClick(calendar->calendarView(), Qt::Key(key));
        QCOMPARE(env->state->dates.SelectedDate, expected);
    }

    void viewsLayOutTheMonthsOnShow() {
        env->state->dates.SelectDate(QDate(2026, 10, 15));
        calendar->Show6MonthCalendar();
        const QList<QDate> six = calendar->calendarView()->MonthsOnShow();
        QCOMPARE(six.size(), 6);
        QCOMPARE(six.first(), QDate(2026, 10, 1));
        QCOMPARE(six.last(), QDate(2027, 3, 1));
        // A month of next year is laid out from next year's date holder.
        QVERIFY(!calendar->calendarView()->DayRect(QDate(2027, 3, 31)).isEmpty());
        calendar->Show1YearCalendar();
        QCOMPARE(calendar->calendarView()->MonthsOnShow().first(), QDate(2026, 1, 1));
        QCOMPARE(calendar->calendarView()->MonthsOnShow().size(), 12);
    }

    void decoratorsPaintTheDay() {
        calendar->Show1MonthCalendar();
        calendar->AddDayDecorator([](const QDate& date, DayLook& look) {
            if (date == QDate(2026, 9, 16))
                look.markColor = 0x0000ff;  // red, as 0x00BBGGRR
        });
        CalendarView* view = calendar->calendarView();
        const QImage image = view->grab().toImage();
        const QRect cell = view->DayRect(QDate(2026, 9, 16));
        QCOMPARE(QColor(image.pixel(cell.right() - 6, cell.bottom() - 6)), QColor(255, 0, 0));
        const QRect plain = view->DayRect(QDate(2026, 9, 17));
        QVERIFY(QColor(image.pixel(plain.right() - 6, plain.bottom() - 6)) != QColor(255, 0, 0));
    }

    void midnightRefreshesToday() {
        QSignalSpy today(window.get(), &frmMain::todayChanged);
        window->Timer1_Timer();
        QCOMPARE(today.count(), 0);
        env->clock.Set(QDateTime(QDate(2026, 9, 8), QTime(0, 0, 30)));
        window->Timer1_Timer();
        QCOMPARE(today.count(), 1);
        QCOMPARE(find<QLabel>("lblToday")->text(), QString("Today is Tuesday, September 8, 2026"));
    }

    void versionIsShown() {
        env->dialogs.ExpectMsgBox("Orvanta version " ORVANTA_VERSION
                                  "\r\nPlanner and Date Management",
                                  vb::OKOnly | vb::Information, "Software Version");
        menu("mnuHelpSoftwareVersion")->trigger();
    }

    void helpOpensOnceAtTheChosenTopic() {
        find<QComboBox>("cmbHelp")->setCurrentIndex(1);
        QTest::mouseClick(find<QToolButton>("imgHelp"), Qt::LeftButton);
        QVERIFY(window->IsChildOpen("frmHelp"));
        auto* list = window->ChildWindow("frmHelp")->findChild<QListWidget*>("lstHelp");
        QCOMPARE(list->currentRow(), 1);
        menu("mnuHelpContents")->trigger();
        QCOMPARE(window->mdiArea()->subWindowList().size(), 2);  // calendar and one help
    }

    void closingWithoutPlannerOrReportsNeverAsks() {
        openStandIn("frmNotes");
        QVERIFY(window->close());
    }

    void closingWithAnEditorOpenAsks_data() {
        QTest::addColumn<QString>("editor");
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("closed");
        for (const char* editor : {"frmPlanner", "frmExpenses", "frmMileage"}) {
            QTest::addRow("%s yes", editor) << QString::fromLatin1(editor) << int(vb::Yes) << true;
            QTest::addRow("%s no", editor) << QString::fromLatin1(editor) << int(vb::No) << false;
        }
    }
    void closingWithAnEditorOpenAsks() {
        QFETCH(QString, editor);
        QFETCH(int, answer);
        QFETCH(bool, closed);
        openStandIn(editor);
        env->dialogs.ExpectMsgBox(kCloseQuestion, vb::YesNo | vb::Question,
                                  "Preparing to Close the Application", answer);
        QCOMPARE(window->close(), closed);
        QCOMPARE(window->isVisible(), !closed);
        QVERIFY(window->IsChildOpen(editor));
        QCOMPARE(window->IsClosing(), closed);
    }

    void unsavedChangesAreAskedBeforeTheCloseQuestion() {
        openStandIn("frmPlanner");
        int saved = 0;
        window->editors().plannerOpen = [] { return true; };
        window->editors().savePlanner = [&] { ++saved; };
        env->state->changes.PlannerChanged = true;
        env->dialogs
            .ExpectMsgBox("The Planner has been changed. Do you want to save those changes?",
                          vb::YesNoCancel | vb::Question, "Planner Has Changed", vb::Yes)
            .ExpectMsgBox(kCloseQuestion, vb::YesNo | vb::Question,
                          "Preparing to Close the Application", vb::Yes);
        QVERIFY(window->close());
        QCOMPARE(saved, 1);
    }

    void cancelInAnUnsavedQuestionKeepsTheProgramOpen() {
        openStandIn("frmPlanner");
        env->state->changes.MonthIconsChanged = true;
        env->dialogs.ExpectMsgBox(
            "Monthly Icons have been changed. Do you want to save those changes?",
            vb::YesNoCancel | vb::Question, "Month Has Changed", vb::Cancel);
        QVERIFY(!window->close());
        QVERIFY(window->isVisible());
        QVERIFY(env->state->changes.MonthIconsChanged);
    }
};

ORVANTA_TEST_MAIN(MainWindowTest)
#include "tst_main_window.moc"
