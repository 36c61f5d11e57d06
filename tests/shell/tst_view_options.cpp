// The clock in the status bar and the one-month view's offset day numbers: each turned on and
// off from its menu item with a check mark, kept in the preferences and found again after a
// restart.
#include <QLabel>
#include <QStatusBar>

#include "MainWindowFixture.h"
#include "calendar/gui/CalendarView.h"

class ViewOptionsTest : public QObject {
    Q_OBJECT

private slots:
    void choiceIsCheckedAndRemembered_data() {
        QTest::addColumn<QString>("item");
        QTest::addColumn<QString>("key");
        QTest::newRow("time of day") << "mnuToolsShowTime"
                                     << "Show Time of Day:";
        QTest::newRow("numbers offset") << "mnuOptCalNumbersOffset"
                                        << "Show Numbers Offset:";
    }
    void choiceIsCheckedAndRemembered() {
        QFETCH(QString, item);
        QFETCH(QString, key);
        MainWindowFixture f;
        f.Start();
        f.calendar().Show1MonthCalendar();
        const auto shown = [&] {
            if (item == "mnuToolsShowTime")
                return f.frame().statusBar()->isVisible() &&
                       f.control<QLabel>("lblTime")->isVisible();
            return f.calendar().calendarView()->NumbersOffset();
        };
        QVERIFY(!f.menu(item)->isChecked());
        QVERIFY(!shown());
        f.menu(item)->trigger();
        QVERIFY(f.menu(item)->isChecked());
        QVERIFY(shown());
        QVERIFY(f.env.read("UserPreferences.txt").contains("\r\n" + key.toLatin1() + "-1\r\n"));

        f.Restart();
        f.calendar().Show1MonthCalendar();
        QVERIFY(f.menu(item)->isChecked());
        QVERIFY(shown());
        f.menu(item)->trigger();
        QVERIFY(!f.menu(item)->isChecked());
        QVERIFY(!shown());
        QVERIFY(f.env.read("UserPreferences.txt").contains("\r\n" + key.toLatin1() + "0\r\n"));
        VERIFY_DIALOGS(f.env.dialogs);
    }

    // Where a day's number is inked on the one-month sheet: the mean column of the dark
    // pixels in the upper third of its cell, against the cell's centre.
    void offsetNumbersMoveToTheCorner() {
        MainWindowFixture f;
        f.Start();
        f.calendar().Show1MonthCalendar();
        CalendarView* view = f.calendar().calendarView();
        const QDate first = view->MonthsOnShow().constFirst();
        const QDate day = first.addDays(first.addDays(14) == f.env.clock.today() ? 15 : 14);
        const auto inkFromCentre = [&] {
            const QRect cell = view->DayRect(day);
            const QImage image = view->grab().toImage();
            double sum = 0;
            int count = 0;
            for (int y = cell.top() + 4; y < cell.top() + cell.height() / 3; ++y)
                for (int x = cell.left() + 4; x < cell.right() - 4; ++x)
                    if (qGray(image.pixel(x, y)) < 100) {
                        sum += x;
                        ++count;
                    }
            return count ? (sum / count - cell.center().x()) / cell.width() : 1.0;
        };
        QVERIFY2(std::abs(inkFromCentre()) < 0.1, "the number is centred");
        f.menu("mnuOptCalNumbersOffset")->trigger();
        QVERIFY2(inkFromCentre() < -0.25, "the number stands in the left corner");
    }

    void clockFollowsTheTimeOfDay() {
        MainWindowFixture f(QDateTime(QDate(2026, 9, 7), QTime(15, 4, 59)));
        f.Start();
        f.menu("mnuToolsShowTime")->trigger();
        auto* time = f.control<QLabel>("lblTime");
        QCOMPARE(time->text(), "03:04 PM");
        f.env.clock.Set(QDateTime(QDate(2026, 9, 7), QTime(15, 5, 0)));
        QTRY_COMPARE(time->text(), "03:05 PM");
    }
};

ORVANTA_TEST_MAIN(ViewOptionsTest)
#include "tst_view_options.moc"
