// Find a Date: a typed date in each accepted form moves the calendar to it, across a year
// when needed; a text that is no date, or a year the calendar does not offer, is refused with
// its message and stays in the box.
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

#include "MainWindowFixture.h"
#include "calendar/CalendarMessages.h"
#include "calendar/gui/frmFindDate.h"

class FindDateTest : public QObject {
    Q_OBJECT

private slots:
    void typedDateMovesTheCalendar_data() {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QDate>("found");
        QTest::addColumn<QString>("refusal");
        QTest::newRow("m/d/yyyy") << "10/15/2026" << QDate(2026, 10, 15) << "";
        QTest::newRow("mm/dd/yy, next year") << "03/02/27" << QDate(2027, 3, 2) << "";
        QTest::newRow("month name, last year") << "Dec 25, 2025" << QDate(2025, 12, 25) << "";
        QTest::newRow("iso") << "2030-01-05" << QDate(2030, 1, 5) << "";
        QTest::newRow("no such day") << "2/30/2026" << QDate() << kFindDateNotRecognized;
        QTest::newRow("not a date") << "next friday" << QDate() << kFindDateNotRecognized;
        QTest::newRow("year not offered")
            << "1/1/1850" << QDate() << FindDateOutOfRange(1900, 2200);
    }
    void typedDateMovesTheCalendar() {
        QFETCH(QString, typed);
        QFETCH(QDate, found);
        QFETCH(QString, refusal);
        MainWindowFixture f;
        // A mark on 25 December 2025, read only when the calendar moves into that year.
        f.env.write("2025Marks.dat", "11:04:03:65280\r\n");
        f.Start();
        f.menu("mnuDateFind")->trigger();
        auto* window = qobject_cast<frmFindDate*>(f.frame().ChildWindow("frmFindDate"));
        QVERIFY(window);
        auto* box = window->Control<QLineEdit>("txtDate");
        box->setText(typed);
        if (!refusal.isEmpty())
            f.env.dialogs.ExpectMsgBox(refusal, kWarningStyle, kFindDateCaption);
        QTest::mouseClick(window->Control<QPushButton>("cmdFind"), Qt::LeftButton);
        VERIFY_DIALOGS(f.env.dialogs);

        const DateModel& dates = f.env.state->dates;
        if (found.isValid()) {
            QCOMPARE(dates.SelectedDate, found);
            QCOMPARE(dates.ThisYear, found.year());
            QCOMPARE(f.control<QComboBox>("cmbYear")->currentText(), QString::number(found.year()));
            QVERIFY(!f.frame().IsChildOpen("frmFindDate"));
            QCOMPARE(f.calendar().LookOf(QDate(2025, 12, 25)).markColor.has_value(),
                     found.year() == 2025);
        } else {
            QCOMPARE(dates.SelectedDate, QDate(2026, 9, 7));
            QVERIFY(f.frame().IsChildOpen("frmFindDate"));
            QCOMPARE(box->text(), typed);
        }
    }
};

ORVANTA_TEST_MAIN(FindDateTest)
#include "tst_find_date.moc"
