// The two date calculators as a user drives them from the main window's menu: the interval an
// item chooses, the answer shown, and the messages for dates that cannot be counted.
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "MainWindowFixture.h"
#include "calculators/CalculatorMessages.h"
#include "calculators/gui/frmDateDiff.h"
#include "calculators/gui/frmNumDays.h"

namespace {

ChildWindow* Open(MainWindowFixture& f, const char* menu, const char* window) {
    f.menu(menu)->trigger();
    return qobject_cast<ChildWindow*>(f.frame().ChildWindow(window));
}

// The date difference of the two typed dates in the interval the menu item chooses.
QString Difference(ChildWindow* window, const QString& start, const QString& end) {
    window->Control<QLineEdit>("txtInput", 0)->setText(start);
    window->Control<QLineEdit>("txtInput", 1)->setText(end);
    window->Control<QPushButton>("cmdDateDiff")->click();
    return window->Control<QLineEdit>("txtAnswer")->text();
}

}  // namespace

class CalculatorWindowsTest : public QObject {
    Q_OBJECT

private slots:
    void dateDifference_data() {
        QTest::addColumn<QString>("menu");
        QTest::addColumn<QString>("start");
        QTest::addColumn<QString>("end");
        QTest::addColumn<QString>("interval");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("message");
        // menu item, start, end, interval shown, answer, message
        const QStringList rows[] = {
            {"mnuDateDiffSYears", "Dec 31, 2008", "Jan 1, 2009", "Years", "1", ""},
            {"mnuDateDiffCWeeks", "Dec 31, 2008", "Jan 1, 2009", "Calendar Weeks", "0", ""},
            {"mnuDateDiffSWeeks", "Sep 7, 2026", "9/13/2026", "Weeks", "0", ""},
            {"mnuDateDiffSDays", "Jan 1, 2009", "Dec 31, 2008", "Days", "-1", ""},
            {"mnuDateDiffSSeconds", "Jan 1, 2000", "Jan 1, 2026", "Seconds", "820,540,800", ""},
            {"mnuDateDiffSDays", "February 30, 2026", "later", "Days", "", kStartDateInvalid},
            {"mnuDateDiffSDays", "Sep 7, 2026", "Sep 31, 2026", "Days", "", kEndDateInvalid},
        };
        for (const QStringList& row : rows)
            QTest::addRow("%s %s", qPrintable(row[0]), qPrintable(row[5]))
                << row[0] << row[1] << row[2] << row[3] << row[4] << row[5];
    }
    void dateDifference() {
        QFETCH(QString, menu);
        QFETCH(QString, start);
        QFETCH(QString, end);
        QFETCH(QString, interval);
        QFETCH(QString, answer);
        QFETCH(QString, message);
        MainWindowFixture f;
        f.Start();
        ChildWindow* window = Open(f, qPrintable(menu), frmDateDiff::kName);
        if (!message.isEmpty())
            f.env.dialogs.ExpectMsgBox(message, vb::OKOnly, "");
        QCOMPARE(window->Control<QLabel>("lblInterval")->text(), "Current Interval = " + interval);
        QCOMPARE(Difference(window, start, end), answer);
        VERIFY_DIALOGS(f.env.dialogs);
    }

    void intervalListAndDayLists() {
        MainWindowFixture f;
        f.Start();
        ChildWindow* window = Open(f, "mnuDateDiffSYears", frmDateDiff::kName);
        // "Day of Year" counts days.
        auto* intervals = window->Control<QComboBox>("cmbInterval");
        intervals->setCurrentIndex(1);
        emit intervals->activated(1);
        QCOMPARE(window->Control<QLabel>("lblInterval")->text(), "Current Interval = Day of Year");
        QCOMPARE(Difference(window, "12/31/2008", "Mar 1, 2009"), "60");
        // A date typed is shown as the lists would show it.
        QCOMPARE(window->Control<QLineEdit>("txtInput", 0)->text(), "Dec 31, 2008");
        // A pick in the lists shows the date picked, which is then counted.
        auto* day = window->Control<QComboBox>("cmbDay", 1);
        day->setCurrentIndex(27);
        emit day->activated(27);
        QCOMPARE(window->Control<QLineEdit>("txtInput", 1)->text(), "Mar 28, 2009");
        window->Control<QPushButton>("cmdDateDiff")->click();
        QCOMPARE(window->Control<QLineEdit>("txtAnswer")->text(), "87");
    }

    void weekdayCount_data() {
        QTest::addColumn<QString>("start");
        QTest::addColumn<QString>("end");
        QTest::addColumn<int>("option");
        QTest::addColumn<QString>("result");
        QTest::addColumn<QString>("lastListed");
        QTest::newRow("a single Monday") << "9/7/2026"
                                         << "9/7/2026" << 1 << "# of Mondays found 1 times"
                                         << "Monday, September 7, 2026";
        QTest::newRow("Tuesdays of September") << "9/1/2026"
                                               << "9/30/2026" << 2 << "# of Tuesdays found 5 times"
                                               << "Tuesday, September 29, 2026";
    }
    void weekdayCount() {
        QFETCH(QString, start);
        QFETCH(QString, end);
        QFETCH(int, option);
        QFETCH(QString, result);
        QFETCH(QString, lastListed);
        MainWindowFixture f;
        f.Start();
        ChildWindow* window = Open(f, "mnuNumOfDays", frmNumDays::kName);
        window->Control<QLineEdit>("txtStart")->setText(start);
        window->Control<QLineEdit>("txtEnd")->setText(end);
        window->Control<QRadioButton>("optDay", option)->click();
        window->Control<QPushButton>("cmdGetDays")->click();
        QCOMPARE(window->Control<QLabel>("lblOccur")->text(), result);
        auto* list = window->Control<QListWidget>("lstDays");
        QCOMPARE(list->count() ? list->item(list->count() - 1)->text() : QString(), lastListed);
        VERIFY_DIALOGS(f.env.dialogs);
    }

    void weekdayMessages_data() {
        QTest::addColumn<QString>("start");
        QTest::addColumn<QString>("end");
        QTest::addColumn<bool>("enterInEnd");
        QTest::addColumn<QString>("message");
        QTest::addColumn<int>("listed");
        QTest::newRow("too many") << "1/1/1900"
                                  << "12/31/2600" << false << kTooManyOccurrences << 32000;
        QTest::newRow("not a date") << "9/31/2026"
                                    << "10/1/2026" << false << kTooMuchOrInvalidData << 0;
        QTest::newRow("end not a date") << "9/1/2026"
                                        << "then" << true << kInvalidEndDate << 0;
        QTest::newRow("start after end") << "9/8/2026"
                                         << "9/7/2026" << true << kStartAfterEnd << 0;
    }
    void weekdayMessages() {
        QFETCH(QString, start);
        QFETCH(QString, end);
        QFETCH(bool, enterInEnd);
        QFETCH(QString, message);
        QFETCH(int, listed);
        MainWindowFixture f;
        f.Start();
        ChildWindow* window = Open(f, "mnuNumOfDays", frmNumDays::kName);
        window->Control<QLineEdit>("txtStart")->setText(start);
        auto* txtEnd = window->Control<QLineEdit>("txtEnd");
        txtEnd->setText(end);
        f.env.dialogs.ExpectMsgBox(message, vb::OKOnly, "");
        if (enterInEnd) {
            txtEnd->setFocus();
            QTest::keyClick(txtEnd, Qt::Key_Return);
        } else {
            window->Control<QPushButton>("cmdGetDays")->click();
        }
        QCOMPARE(window->Control<QListWidget>("lstDays")->count(), listed);
        QCOMPARE(window->Control<QLabel>("lblOccur")->text(), "");
        VERIFY_DIALOGS(f.env.dialogs);
    }
};

ORVANTA_TEST_MAIN(CalculatorWindowsTest)
#include "tst_calculator_windows.moc"
