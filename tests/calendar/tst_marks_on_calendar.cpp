// Date marks as the user meets them: through the real menus and marker windows, painted in
// the views, written to the marks file and found again after a restart.
#include <QCheckBox>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>

#include "TestEnv.h"
#include "app/gui/MainWindow.h"
#include "calendar/gui/CalendarMenus.h"
#include "calendar/gui/CalendarView.h"
#include "calendar/gui/frmMarkerColors.h"
#include "shell/gui/Colors.h"

namespace {

// Monday 7 September 2026: cell 08:01:01.
const QDate kToday(2026, 9, 7);

// Fourteen categories with plain colours, Meeting hidden.
const QByteArray kMarkerFile =
    "Bills:1001\r\nIncome:1002\r\nAnniversary:1003\r\nDoctor:65280\r\nBirthday:1005\r\n"
    "Party:1006\r\nDining:1007\r\nEvent:1008\r\nHoliday:1009\r\nMeeting:255*\r\n"
    "Travel:16711680\r\nVacation:1012\r\nQuick Marks:1013\r\nToday's Date:1014\r\n";

}  // namespace

class MarksOnCalendarTest : public QObject {
    Q_OBJECT

    std::unique_ptr<TestEnv> env;
    std::unique_ptr<frmMain> window;
    CalendarMenus* calendar = nullptr;

    void start() {
        MainWindow created = CreateMainWindow(*env->state);
        window = std::move(created.frame);
        calendar = created.calendar;
        window->Form_Load();
        window->setWindowState(Qt::WindowNoState);
        window->resize(1180, 800);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        calendar->Show1MonthCalendar();
    }
    // A fresh program on the same data folder, as after closing and starting again.
    void restart() {
        window.reset();
        env->state = std::make_unique<ProgramState>(env->dir.path(), env->dialogs, env->clock,
                                                    env->platform);
        start();
    }
    QAction* menu(const QString& name) { return window->findChild<QAction*>(name); }
    // The colour painted near the lower right corner of a day's cell, clear of its text.
    QColor painted(const QDate& date) {
        CalendarView* view = calendar->calendarView();
        const QRect cell = view->DayRect(date);
        return QColor(view->grab().toImage().pixel(cell.right() - 8, cell.bottom() - 8));
    }

private slots:
    void init() {
        env = std::make_unique<TestEnv>(QDateTime(kToday, QTime(9, 0)));
        env->write("Marker Colors.dat", kMarkerFile);
        start();
    }
    void cleanup() {
        window.reset();
        VERIFY_DIALOGS(env->dialogs);
        env.reset();
    }

    void menusShowTheCategoriesOfTheColoursFile() {
        QCOMPARE(menu("mnuEditMark_0")->text(), QString("Bills"));
        QCOMPARE(menu("mnuOptDateMarkAs_3")->text(), QString("Doctor"));
        QVERIFY(menu("mnuEditMark_0")->isChecked());
        QVERIFY(!menu("mnuEditMark_9")->isChecked());
        auto* list = window->findChild<QListWidget*>("lstMarkerCats");
        QCOMPARE(list->count(), 14);
        QCOMPARE(list->item(13)->text(), QString("Today's Date"));
    }

    void markingThroughTheMenuPaintsAndSavesTheDay() {
        const QColor before = painted(kToday.addDays(2));
        env->state->dates.SelectDate(kToday.addDays(2));
        menu("mnuOptDateMarkAs_3")->trigger();  // Doctor, 65280: pure green
        QCOMPARE(env->read("2026Marks.dat"), QByteArray("08:03:01:65280"));
        QCOMPARE(painted(kToday.addDays(2)), QColor(0, 255, 0));
        QVERIFY(before != QColor(0, 255, 0));

        env->dialogs.ExpectInputBox(
            "You may input the Hover Text in the box provided. Click Cancel to ignore.",
            "Optional Hover Text: Doctor for 9/9/2026", "", "Dr. Lee - 10 am");
        menu("mnuOptDateAttachHoverText")->trigger();
        QCOMPARE(env->read("2026Marks.dat"), QByteArray("08:03:01:65280-Dr. Lee - 10 am"));
        QCOMPARE(calendar->LookOf(kToday.addDays(2)).hoverText, QString("Dr. Lee - 10 am"));

        restart();
        QCOMPARE(painted(kToday.addDays(2)), QColor(0, 255, 0));
        QCOMPARE(calendar->LookOf(kToday.addDays(2)).hoverText, QString("Dr. Lee - 10 am"));
    }

    void quickMarkPaintsTheTravelColourInEveryView() {
        menu("mnuOptDateQuickMark")->trigger();
        QCOMPARE(env->read("2026Marks.dat"), QByteArray("08:01:01:16711680"));
        QCOMPARE(painted(kToday), QColor(0, 0, 255));  // 0x00FF0000 is blue
        calendar->Show1YearCalendar();
        QCOMPARE(painted(kToday), QColor(0, 0, 255));
        menu("mnuOptDateClearMark")->trigger();
        QVERIFY(painted(kToday) != QColor(0, 0, 255));
        QVERIFY(!env->exists("2026Marks.dat"));
        QCOMPARE(env->read("2026Marks.bak"), QByteArray("08:01:01:16711680"));
    }

    void hiddenCategoriesAreNotPaintedUntilShown() {
        env->write("2026Marks.dat", "08:01:01:255-Board");
        env->state->marks.ReadAndDisplayThisYearsMarks();
        QVERIFY(painted(kToday) != QColor(255, 0, 0));
        QCOMPARE(calendar->LookOf(kToday).markColor, std::nullopt);
        menu("mnuEditMark_9")->trigger();
        QVERIFY(menu("mnuEditMark_9")->isChecked());
        QCOMPARE(painted(kToday), QColor(255, 0, 0));
        menu("mnuEditMarksHideAll")->trigger();
        QVERIFY(!menu("mnuEditMark_0")->isChecked());
        QVERIFY(painted(kToday) != QColor(255, 0, 0));
        menu("mnuEditMarkerSaveSettings")->trigger();
        QVERIFY(env->read("Marker Colors.dat").startsWith("Bills:1001*\r\nIncome:1002*\r\n"));
    }

    void displayedMarksWindowShowsAndHides() {
        env->write("2026Marks.dat", "08:01:01:65280");
        env->state->marks.ReadAndDisplayThisYearsMarks();
        menu("mnuManageDisplayedMarks")->trigger();
        QWidget* marks = window->ChildWindow("frmDisplayedMarks");
        QVERIFY(marks);
        QCOMPARE(marks->windowTitle(), QString("Select Markers to Display and Hide"));
        auto* doctor = marks->findChild<QCheckBox*>("chkMarker_3");
        QCOMPARE(doctor->text(), QString("Doctor"));
        QVERIFY(doctor->isChecked());
        QTest::mouseClick(doctor, Qt::LeftButton, {}, QPoint(8, doctor->height() / 2));
        QVERIFY(!menu("mnuEditMark_3")->isChecked());
        QCOMPARE(calendar->LookOf(kToday).markColor, std::nullopt);
        // The menu and the window follow each other.
        menu("mnuEditMarksShowAll")->trigger();
        QVERIFY(doctor->isChecked());
        QCOMPARE(calendar->LookOf(kToday).markColor, std::optional<quint32>(65280));
    }

    void colourWindowRefusesASharedColourAndSavesTheRest() {
        menu("mnuManageUserColors")->trigger();
        auto* colors = qobject_cast<frmMarkerColors*>(window->ChildWindow("frmMarkerColors"));
        QVERIFY(colors);
        QCOMPARE(colors->windowTitle(), QString("Select Colors and Captions for Markers"));
        env->dialogs.ExpectColor(65280).ExpectMsgBox(
            "This colour is already used by \"Doctor\". Each mark needs a colour of its own; "
            "please choose another colour.",
            vb::OKOnly | vb::Exclamation, "");
        QTest::mouseClick(colors->findChild<QPushButton*>("cmdColor_0"), Qt::LeftButton);
        VERIFY_DIALOGS(env->dialogs);

        env->dialogs.ExpectColor(0x123456);
        QTest::mouseClick(colors->findChild<QPushButton*>("cmdColor_0"), Qt::LeftButton);
        auto* caption = colors->findChild<QLineEdit*>("txtCaption_0");
        caption->selectAll();
        QTest::keyClicks(caption, "Payables");
        QTest::mouseClick(colors->findChild<QPushButton*>("cmdSave"), Qt::LeftButton);
        QVERIFY(env->read("Marker Colors.dat").startsWith("Payables:1193046\r\nIncome:1002\r\n"));
        QVERIFY(env->read("Marker Colors.dat").contains("\r\nMeeting:255*\r\n"));
        QCOMPARE(menu("mnuEditMark_0")->text(), QString("Payables"));
        QCOMPARE(menu("mnuOptDateMarkAs_0")->text(), QString("Payables"));
        QVERIFY(!window->IsChildOpen("frmMarkerColors"));
    }

    void anEmptyCaptionIsRefused() {
        menu("mnuManageUserColors")->trigger();
        QWidget* colors = window->ChildWindow("frmMarkerColors");
        colors->findChild<QLineEdit*>("txtCaption_5")->clear();
        QTest::keyClicks(colors->findChild<QLineEdit*>("txtCaption_5"), "   ");
        env->dialogs.ExpectMsgBox("Please enter a caption for the mark.",
                                  vb::OKOnly | vb::Exclamation, "");
        QTest::mouseClick(colors->findChild<QPushButton*>("cmdSave"), Qt::LeftButton);
        QCOMPARE(env->read("Marker Colors.dat"), kMarkerFile);
        QVERIFY(window->IsChildOpen("frmMarkerColors"));
    }

    void movingToAnotherYearReadsItsMarks() {
        env->write("2027Marks.dat", "00:05:00:65280-New Year");
        env->state->marks.ReadAndDisplayNextYearsMarks();
        QCOMPARE(calendar->LookOf(QDate(2027, 1, 1)).hoverText, QString("New Year"));
        env->write("2028Marks.dat", "00:06:00:1012");
        env->state->dates.SelectDate(QDate(2027, 6, 1));
        QCOMPARE(calendar->LookOf(QDate(2027, 1, 1)).markColor, std::optional<quint32>(65280));
        QCOMPARE(calendar->LookOf(QDate(2028, 1, 1)).markColor, std::optional<quint32>(1012));
        QCOMPARE(calendar->LookOf(kToday).markColor, std::nullopt);
    }

    void rightClickOffersTheDateOptions() {
        CalendarView* view = calendar->calendarView();
        const QPoint at = view->DayRect(kToday.addDays(3)).center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, view->mapToGlobal(at));
        QCoreApplication::sendEvent(view, &event);
        QCOMPARE(env->state->dates.SelectedDate, kToday.addDays(3));
        QMenu* options = calendar->DateOptionsMenu();
        QTRY_VERIFY(options->isVisible());
        options->close();
    }
};

ORVANTA_TEST_MAIN(MarksOnCalendarTest)
#include "tst_marks_on_calendar.moc"
