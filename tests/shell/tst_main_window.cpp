// The main window: its controls and menus, date selectors, calendar views, help box, the
// midnight refresh, its place on the screen and the closing questions.
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QSet>
#include <QSignalSpy>
#include <QTableWidget>
#include <QToolButton>

#include "MainWindowFixture.h"
#include "Version.h"
#include "calendar/gui/CalendarView.h"
#include "holidays_birthdays/HolidaysBirthdaysMessages.h"
#include "notes_planner/gui/NotesPlannerMessages.h"
#include "reminders/RemindersMessages.h"
#include "reports/ReportMessages.h"
#include "shell/ShellMessages.h"
#include "shell/UserPreferences.h"
#include "shell/gui/ChildWindow.h"

class MainWindowTest : public QObject {
    Q_OBJECT

    std::unique_ptr<MainWindowFixture> f;

    DateModel& dates() const { return f->env.state->dates; }
    CalendarView* view() const { return f->calendar().calendarView(); }
    void openStandIn(const QString& name) {
        f->frame().ShowChild(name, [] { return new QWidget; });
    }

private slots:
    void init() {
        f = std::make_unique<MainWindowFixture>();
        f->env.write("Help_Topics.txt",
                     "*Calendar Views:One month, six months.\r\n*Getting Started:Start here.*"
                     "Marks:Coloured days.");
        f->Start();
    }
    void cleanup() {
        if (f)
            VERIFY_DIALOGS(f->env.dialogs);
        f.reset();
    }

    void everyMenuItemCanBeChosen() {
        QStringList disabled;
        const std::function<void(const QList<QAction*>&)> walk = [&](const QList<QAction*>& items) {
            for (QAction* item : items) {
                if (item->isSeparator())
                    continue;
                if (!item->isEnabled())
                    disabled << item->objectName();
                if (item->menu())
                    walk(item->menu()->actions());
            }
        };
        walk(f->frame().menuBar()->actions());
        QVERIFY2(disabled.isEmpty(), qPrintable(disabled.join(", ")));
    }

    void controlsAndMenuItemsHaveUniqueNames() {
        QSet<QString> names;
        for (const QObject* child : f->frame().findChildren<QObject*>()) {
            const QString name = child->objectName();
            const auto* action = qobject_cast<const QAction*>(child);
            if (name.isEmpty() || name.startsWith("qt_") || (action && action->menu()))
                continue;  // a sub-menu's action carries its menu's name
            QVERIFY2(!names.contains(name), qPrintable(name));
            names.insert(name);
        }
        QVERIFY(names.size() > 150);
        QCOMPARE(f->menu("mnuEditDiplayedMarks")->text(), "Displayed Marks");
        QCOMPARE(f->menu("mnuOptDateMarkAs_11")->text(), "Vacation");
    }

    void loadShowsTodayTheSelectorsAndTheYearView() {
        QCOMPARE(f->control<QLabel>("lblToday")->text(), "Today is Monday, September 7, 2026");
        QCOMPARE(f->control<QComboBox>("cmbDay")->currentText(), "7");
        QCOMPARE(f->control<QComboBox>("cmbMonth")->currentText(), "September");
        QCOMPARE(f->control<QComboBox>("cmbYear")->currentText(), "2026");
        QCOMPARE(f->control<QLineEdit>("txtDate")->text(), "9/7/2026");
        QCOMPARE(f->calendar().ViewOnShow(), ViewKind::OneYear);
    }

    void helpBoxStartsAtGettingStartedAndFollowsTheTopic() {
        auto* topics = f->control<QComboBox>("cmbHelp");
        QCOMPARE(topics->currentText(), "Getting Started");
        QCOMPARE(f->control<QPlainTextEdit>("txtHelp")->toPlainText(), "Start here.");
        topics->setCurrentIndex(2);
        QCOMPARE(f->control<QPlainTextEdit>("txtHelp")->toPlainText(), "Coloured days.");
    }

    void selectorsMoveTheSelectedDate() {
        f->control<QComboBox>("cmbMonth")->setCurrentIndex(1);  // February: the 7th stays
        QCOMPARE(dates().SelectedDate, QDate(2026, 2, 7));
        QCOMPARE(f->control<QComboBox>("cmbDay")->count(), 28);
        QCOMPARE(f->control<QGroupBox>("framTasks")->title(), "Tasks for February");
        dates().SelectDate(QDate(2026, 1, 31));
        f->control<QComboBox>("cmbMonth")->setCurrentIndex(1);  // the 31st becomes the 28th
        QCOMPARE(dates().SelectedDate, QDate(2026, 2, 28));
        f->control<QComboBox>("cmbYear")->setCurrentText("2028");
        QCOMPARE(dates().SelectedDate, QDate(2028, 2, 28));
        QCOMPARE(f->control<QComboBox>("cmbDay")->count(), 29);
    }

    void typedDateIsSelectedAndABadOneExplained() {
        auto* date = f->control<QLineEdit>("txtDate");
        date->setText("Dec 25, 2027");
        QTest::keyClick(date, Qt::Key_Return);
        QCOMPARE(dates().SelectedDate, QDate(2027, 12, 25));
        f->env.dialogs.ExpectMsgBox(kBadDateMessage, kWarningStyle, kBadDateTitle);
        date->setText("13/45/2027");
        QTest::keyClick(date, Qt::Key_Return);
        QCOMPARE(dates().SelectedDate, QDate(2027, 12, 25));
        QCOMPARE(date->text(), "12/25/2027");
    }

    void viewButtonsAndMenuSwitchTheView() {
        QTest::mouseClick(f->control<QToolButton>("imgCal_0"), Qt::LeftButton);
        QCOMPARE(f->calendar().ViewOnShow(), ViewKind::OneMonth);
        QTest::mouseClick(f->control<QToolButton>("imgCal_1"), Qt::LeftButton);
        QCOMPARE(f->calendar().ViewOnShow(), ViewKind::SixMonths);
        f->menu("mnuCalOneYear")->trigger();
        QCOMPARE(f->calendar().ViewOnShow(), ViewKind::OneYear);
        QCOMPARE(f->frame().mdiArea()->subWindowList().size(), 1);
        f->frame().mdiArea()->subWindowList().first()->close();
        QCOMPARE(f->calendar().ViewOnShow(), ViewKind::None);
        QTest::mouseClick(f->control<QToolButton>("imgOpt_0"), Qt::LeftButton);
        QCOMPARE(f->calendar().ViewOnShow(), ViewKind::OneMonth);
    }

    // A click selects the day under the pointer and never moves the sheets, also in the
    // six-month view and across the year's end; only the keyboard leaving the months shown,
    // the selectors and the advance arrow scroll them.
    void clickingADayNeverMovesTheSheets() {
        f->calendar().Show6MonthCalendar();
        const QList<QDate> shown = view()->MonthsOnShow();
        QCOMPARE(shown.first(), QDate(2026, 9, 1));
        for (const QDate day : {QDate(2026, 11, 18), QDate(2027, 2, 3), QDate(2026, 10, 9)}) {
            const QPoint at = view()->DayRect(day).center();
            QTest::mouseClick(view(), Qt::LeftButton, {}, at);
            QCOMPARE(dates().SelectedDate, day);
            QCOMPARE(view()->MonthsOnShow(), shown);
            QCOMPARE(view()->DateAt(at), day);
        }
        QTest::keyClick(view(), Qt::Key_Left);
        QCOMPARE(dates().SelectedDate, QDate(2026, 10, 8));
        dates().SelectDate(QDate(2027, 2, 21));
        QTest::keyClick(view(), Qt::Key_Down);
        QCOMPARE(dates().SelectedDate, QDate(2027, 2, 28));
        QCOMPARE(view()->MonthsOnShow(), shown);
        QTest::keyClick(view(), Qt::Key_PageDown);
        QCOMPARE(view()->MonthsOnShow().last(), QDate(2027, 3, 1));
        f->control<QComboBox>("cmbMonth")->setCurrentIndex(6);
        QCOMPARE(view()->MonthsOnShow().first(), QDate(2027, 7, 1));
    }

    void versionIsShown() {
        f->env.dialogs.ExpectMsgBox("Orvanta version " ORVANTA_VERSION
                                    "\r\nPlanner and Date Management",
                                    kInformationStyle, "Software Version");
        f->menu("mnuHelpSoftwareVersion")->trigger();
    }

    void midnightRefreshesToday() {
        QSignalSpy today(&f->frame(), &frmMain::todayChanged);
        f->frame().Timer1_Timer();
        QCOMPARE(today.count(), 0);
        f->env.clock.Set(QDateTime(QDate(2026, 9, 8), QTime(0, 0, 30)));
        f->frame().Timer1_Timer();
        QCOMPARE(today.count(), 1);
        QCOMPARE(f->control<QLabel>("lblToday")->text(), "Today is Tuesday, September 8, 2026");
    }

    void helpOpensOnceAtTheChosenTopicAndEscClosesIt() {
        f->control<QComboBox>("cmbHelp")->setCurrentIndex(2);
        QTest::mouseClick(f->control<QToolButton>("imgHelp"), Qt::LeftButton);
        QWidget* help = f->frame().ChildWindow("frmHelp");
        QCOMPARE(help->findChild<QListWidget*>("lstHelp")->currentRow(), 2);
        f->menu("mnuHelpContents")->trigger();
        QCOMPARE(f->frame().mdiArea()->subWindowList().size(), 2);  // calendar and one help
        QTest::keyClick(help->findChild<QLineEdit*>("txtSearch"), Qt::Key_Escape);
        QTRY_VERIFY(!f->frame().IsChildOpen("frmHelp"));
    }

    void aChildLargerThanTheFrameIsCutToItAndScrolls() {
        f->frame().resize(900, 560);
        f->menu("mnuManageUserColors")->trigger();
        auto* sub =
            qobject_cast<QMdiSubWindow*>(f->frame().ChildWindow("frmMarkerColors")->parentWidget());
        const QSize room = f->frame().mdiArea()->viewport()->size();
        QVERIFY(sub->height() <= room.height() && sub->width() <= room.width());
        QVERIFY(sub->widget()->sizeHint().height() > room.height());
    }

    void placeAndSizeAreRememberedBetweenRuns() {
        f->frame().setGeometry(20, 10, 760, 580);
        QVERIFY(f->frame().close());
        QCOMPARE(f->env.state->prefs.Value(prefkey::MainWindowPosition), "20,10,760,580,0");
        f->Restart();  // Start() resizes for the tests: read what the load step restored
        f->frame().Form_Load();
        QCOMPARE(f->frame().geometry(), QRect(20, 10, 760, 580));
    }

    void closingAsksOnlyWithPlannerOrReportsOpen_data() {
        QTest::addColumn<QString>("editor");
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("closed");
        QTest::newRow("notes") << "frmNotes" << -1 << true;
        for (const char* editor : {"frmPlanner", "frmExpenses", "frmMileage"}) {
            QTest::addRow("%s yes", editor) << editor << int(vb::Yes) << true;
            QTest::addRow("%s no", editor) << editor << int(vb::No) << false;
        }
    }
    void closingAsksOnlyWithPlannerOrReportsOpen() {
        QFETCH(QString, editor);
        QFETCH(int, answer);
        QFETCH(bool, closed);
        openStandIn(editor);
        if (answer >= 0)
            f->env.dialogs.ExpectMsgBox(kCloseQuestion, kQuestionStyle, kCloseTitle, answer);
        QCOMPARE(f->frame().close(), closed);
        QCOMPARE(f->frame().isVisible(), !closed);
        QVERIFY(f->frame().IsChildOpen(editor));
        QCOMPARE(f->frame().IsClosing(), closed);
    }

    void unsavedChangesAreAskedBeforeTheCloseQuestion() {
        openStandIn("frmPlanner");
        int saved = 0;
        f->frame().editors().plannerOpen = [] { return true; };
        f->frame().editors().savePlanner = [&] { ++saved; };
        f->env.state->changes.PlannerChanged = true;
        f->env.dialogs
            .ExpectMsgBox(kPlannerChangedQuestion, vb::YesNoCancel | vb::Question,
                          kPlannerChangedTitle, vb::Yes)
            .ExpectMsgBox(kCloseQuestion, kQuestionStyle, kCloseTitle, vb::Yes);
        QVERIFY(f->frame().close());
        QCOMPARE(saved, 1);
    }

    void cancelInAnUnsavedQuestionKeepsTheProgramOpen() {
        openStandIn("frmPlanner");
        f->env.state->changes.MonthIconsChanged = true;
        f->env.dialogs.ExpectMsgBox(kMonthIconsChangedQuestion, vb::YesNoCancel | vb::Question,
                                    kMonthIconsChangedTitle, vb::Cancel);
        QVERIFY(!f->frame().close());
        QVERIFY(f->frame().isVisible());
    }

    // Work answered No to as the program closes, the close then called off, is asked about
    // again: by its window as it closes (by the program, for the month icons).
    void calledOffCloseKeepsTheWorkUnsaved_data() {
        QTest::addColumn<QString>("menu");
        QTest::addColumn<QString>("field");
        QTest::addColumn<QStringList>("asked");  // by the program, then by the window
        using S = QStringList;
        const S toDo{kToDoChangedQuestion, kToDoChangedTitle};
        const S birthday{kBirthdayChangedQuestion, kBirthdayChangedTitle};
        const S budget{kBudgetChangedQuestion, kBudgetChangedTitle};
        QTest::newRow("planner") << "mnuOptDateOpenPlanner"
                                 << "txt_0"
                                 << S{kPlannerChangedQuestion, kPlannerChangedTitle,
                                      kPlannerCloseQuestion, kPlannerCloseTitle};
        QTest::newRow("notes") << "mnuOptDateOpenNotes"
                               << "txtNotes"
                               << S{kNotesChangedQuestion, kNotesChangedTitle, kNotesCloseQuestion,
                                    kNotesCloseTitle};
        QTest::newRow("to-do") << "mnuManageToDo"
                               << "txt_0" << toDo + toDo;
        QTest::newRow("birthday") << "mnuManageBDays"
                                  << "txtName" << birthday + birthday;
        QTest::newRow("budget") << "mnuManageBudget"
                                << "grdBudget" << budget + budget;
        const S icons{kMonthIconsChangedQuestion, kMonthIconsChangedTitle};
        QTest::newRow("month icons") << ""
                                     << "" << icons + icons;
    }
    void calledOffCloseKeepsTheWorkUnsaved() {
        QFETCH(QString, menu);
        QFETCH(QString, field);
        QFETCH(QStringList, asked);
        QApplication::setActiveWindow(&f->frame());
        f->menu("mnuOptDateOpenPlanner")->trigger();  // the program asks before it closes
        QWidget* window = nullptr;
        if (menu.isEmpty()) {
            f->env.state->changes.MonthIconsChanged = true;
        } else {
            f->menu(menu)->trigger();
            window = f->frame().mdiArea()->activeSubWindow()->widget();
            auto* control = window->findChild<QWidget*>(field);
            if (auto* grid = qobject_cast<QTableWidget*>(control))
                grid->item(0, 1)->setText("75");
            else
                QTest::keyClicks(control, "Dentist");
        }
        const int style = vb::YesNoCancel | vb::Question;
        f->env.dialogs.ExpectMsgBox(asked[0], style, asked[1], vb::No)
            .ExpectMsgBox(kCloseQuestion, kQuestionStyle, kCloseTitle, vb::No)
            .ExpectMsgBox(asked[2], style, asked[3], vb::Cancel);
        QVERIFY(!f->frame().close());
        if (window)
            static_cast<ChildWindow*>(window)->CloseWindow();
        else
            QVERIFY(!f->frame().close());
        QVERIFY(f->frame().isVisible());
    }
};

ORVANTA_TEST_MAIN(MainWindowTest)
#include "tst_main_window.moc"
