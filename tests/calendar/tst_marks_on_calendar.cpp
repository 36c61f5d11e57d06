// Date marks as the user meets them: through the real menus and marker windows, painted in
// the views, written to the marks file and found again after a restart.
#include <QCheckBox>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>

#include "MainWindowFixture.h"
#include "calendar/CalendarMessages.h"
#include "calendar/gui/CalendarView.h"
#include "calendar/gui/frmMarkerColors.h"

namespace {

// Monday 7 September 2026: cell 08:01:01.
const QDate kToday(2026, 9, 7);

// Fourteen categories with plain colours, Meeting hidden; Today's Date is grey.
const QByteArray kMarkerFile =
    "Bills:1001\r\nIncome:1002\r\nAnniversary:1003\r\nDoctor:65280\r\nBirthday:1005\r\n"
    "Party:1006\r\nDining:1007\r\nEvent:1008\r\nHoliday:1009\r\nMeeting:255*\r\n"
    "Travel:16711680\r\nVacation:1012\r\nQuick Marks:1013\r\nToday's Date:8421504\r\n";

}  // namespace

class MarksOnCalendarTest : public QObject {
    Q_OBJECT

    std::unique_ptr<MainWindowFixture> f;

    QAction* menu(const QString& name) const { return f->menu(name); }
    std::optional<quint32> markOf(const QDate& date) const {
        return f->calendar().LookOf(date).markColor;
    }

private slots:
    void init() {
        f = std::make_unique<MainWindowFixture>(QDateTime(kToday, QTime(9, 0)));
        f->env.write("Marker Colors.dat", kMarkerFile);
        f->Start();
        f->calendar().Show1MonthCalendar();
    }
    void cleanup() {
        VERIFY_DIALOGS(f->env.dialogs);
        f.reset();
    }

    void markingThroughTheMenuPaintsSavesAndSurvivesARestart() {
        const QDate day = kToday.addDays(2);
        QVERIFY(f->Painted(day) != QColor(0, 255, 0));
        f->env.state->dates.SelectDate(day);
        menu("mnuOptDateMarkAs_3")->trigger();  // Doctor, 65280: pure green
        QCOMPARE(f->env.read("2026Marks.dat"), "08:03:01:65280");
        QCOMPARE(f->Painted(day), QColor(0, 255, 0));
        f->env.dialogs.ExpectInputBox(kHoverPrompt, "Optional Hover Text: Doctor for 9/9/2026", "",
                                      "Dr. Lee - 10 am");
        menu("mnuOptDateAttachHoverText")->trigger();
        QCOMPARE(f->env.read("2026Marks.dat"), "08:03:01:65280-Dr. Lee - 10 am");

        f->Restart();
        f->calendar().Show1MonthCalendar();
        QCOMPARE(f->Painted(day), QColor(0, 255, 0));
        QCOMPARE(f->calendar().LookOf(day).hoverText, "Dr. Lee - 10 am");
    }

    void quickMarkPaintsTheTravelColourInEveryView() {
        menu("mnuOptDateQuickMark")->trigger();
        QCOMPARE(f->env.read("2026Marks.dat"), "08:01:01:16711680");
        QCOMPARE(f->Painted(kToday), QColor(0, 0, 255));  // 0x00FF0000 is blue
        f->calendar().Show1YearCalendar();
        QCOMPARE(f->Painted(kToday), QColor(0, 0, 255));
        menu("mnuOptDateClearMark")->trigger();
        QVERIFY(f->Painted(kToday) != QColor(0, 0, 255));
        QVERIFY(!f->env.exists("2026Marks.dat"));
        QCOMPARE(f->env.read("2026Marks.bak"), "08:01:01:16711680");
    }

    void todayIsPaintedInTheTodaysDateColourUnlessHidden() {
        QCOMPARE(f->Painted(kToday), QColor(128, 128, 128));
        menu("mnuEditMark_13")->trigger();
        QCOMPARE(f->Painted(kToday), QColor(Qt::white));
    }

    void hiddenCategoriesAreNotPaintedUntilShown() {
        f->env.write("2026Marks.dat", "08:01:02:255-Board");
        f->env.state->marks.ReadAndDisplayThisYearsMarks();
        const QDate board = kToday.addDays(7);
        QCOMPARE(menu("mnuEditMark_9")->text(), "Meeting");
        QVERIFY(!menu("mnuEditMark_9")->isChecked());
        QCOMPARE(f->control<QListWidget>("lstMarkerCats")->item(13)->text(), "Today's Date");
        QCOMPARE(markOf(board), std::nullopt);
        menu("mnuEditMark_9")->trigger();
        QVERIFY(menu("mnuEditMark_9")->isChecked());
        QCOMPARE(f->Painted(board), QColor(255, 0, 0));
        menu("mnuEditMarksHideAll")->trigger();
        QVERIFY(!menu("mnuEditMark_0")->isChecked());
        QVERIFY(f->Painted(board) != QColor(255, 0, 0));
        menu("mnuEditMarkerSaveSettings")->trigger();
        QVERIFY(f->env.read("Marker Colors.dat").startsWith("Bills:1001*\r\nIncome:1002*\r\n"));
    }

    void displayedMarksWindowAndMenuFollowEachOther() {
        f->env.write("2026Marks.dat", "08:01:01:65280");
        f->env.state->marks.ReadAndDisplayThisYearsMarks();
        menu("mnuManageDisplayedMarks")->trigger();
        QWidget* marks = f->frame().ChildWindow("frmDisplayedMarks");
        auto* doctor = marks->findChild<QCheckBox*>("chkMarker_3");
        QCOMPARE(doctor->text(), "Doctor");
        QTest::mouseClick(doctor, Qt::LeftButton, {}, QPoint(8, doctor->height() / 2));
        QVERIFY(!menu("mnuEditMark_3")->isChecked());
        QCOMPARE(markOf(kToday), std::nullopt);
        menu("mnuEditMarksShowAll")->trigger();
        QVERIFY(doctor->isChecked());
        QCOMPARE(markOf(kToday), std::optional<quint32>(65280));
    }

    void colourWindowRefusesASharedColourAndSavesTheRest() {
        menu("mnuManageUserColors")->trigger();
        QWidget* colors = f->frame().ChildWindow("frmMarkerColors");
        f->env.dialogs.ExpectColor(65280).ExpectMsgBox(DuplicateColorMessage("Doctor"),
                                                       kWarningStyle, "");
        QTest::mouseClick(colors->findChild<QPushButton*>("cmdColor_0"), Qt::LeftButton);
        VERIFY_DIALOGS(f->env.dialogs);

        f->env.dialogs.ExpectColor(0x123456);
        QTest::mouseClick(colors->findChild<QPushButton*>("cmdColor_0"), Qt::LeftButton);
        auto* caption = colors->findChild<QLineEdit*>("txtCaption_0");
        caption->selectAll();
        QTest::keyClicks(caption, "Payables");
        QTest::mouseClick(colors->findChild<QPushButton*>("cmdSave"), Qt::LeftButton);
        QVERIFY(f->env.read("Marker Colors.dat").startsWith("Payables:1193046\r\nIncome:1002\r\n"));
        QVERIFY(f->env.read("Marker Colors.dat").contains("\r\nMeeting:255*\r\n"));
        QCOMPARE(menu("mnuOptDateMarkAs_0")->text(), "Payables");
        QVERIFY(!f->frame().IsChildOpen("frmMarkerColors"));
    }

    void rightClickSelectsTheDayAndOffersTheDateOptions() {
        CalendarView* view = f->calendar().calendarView();
        const QPoint at = view->DayRect(kToday.addDays(3)).center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, view->mapToGlobal(at));
        QCoreApplication::sendEvent(view, &event);
        QCOMPARE(f->env.state->dates.SelectedDate, kToday.addDays(3));
        QTRY_VERIFY(f->calendar().DateOptionsMenu()->isVisible());
        f->calendar().DateOptionsMenu()->close();
    }
};

ORVANTA_TEST_MAIN(MarksOnCalendarTest)
#include "tst_marks_on_calendar.moc"
