// Typing in the day, month and year drop-downs selects what was typed, whatever is shown; and
// every such drop-down of the program does so.
#include <QAbstractItemView>
#include <QComboBox>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include "MainWindowFixture.h"
#include "holidays_birthdays/HolidaysBirthdaysMessages.h"
#include "shell/gui/DateDropDown.h"

class DateDropDownTest : public QObject {
    Q_OBJECT

private slots:
    void typingSelectsWhatWasTyped_data() {
        QTest::addColumn<int>("first");  // the items: 31 numbers from first, or months (0)
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("selected");
        QTest::newRow("3 on the 29th") << 1 << "29"
                                       << "3"
                                       << "3";
        QTest::newRow("1 and 2 at once") << 1 << "30"
                                         << "12"
                                         << "12";
        QTest::newRow("0 and 3") << 1 << "11"
                                 << "03"
                                 << "3";
        QTest::newRow("no 45th: 5") << 1 << "1"
                                    << "45"
                                    << "5";
        QTest::newRow("a year") << 2008 << "2010"
                                << "2031"
                                << "2031";
        QTest::newRow("a year's first digit") << 2008 << "2010"
                                              << "2"
                                              << "2010";
        QTest::newRow("m on March") << 0 << "March"
                                    << "m"
                                    << "March";
        QTest::newRow("JUL") << 0 << "June"
                             << "JUL"
                             << "July";
    }
    void typingSelectsWhatWasTyped() {
        QFETCH(int, first);
        QFETCH(QString, shown);
        QFETCH(QString, typed);
        QFETCH(QString, selected);
        QComboBox box;
        for (int n = 0; n < 31; ++n)
            box.addItem(first ? QString::number(first + n) : QLocale::c().monthName(n % 12 + 1));
        box.setCurrentText(shown);
        SelectAsTyped(&box);
        QSignalSpy picked(&box, &QComboBox::textActivated);
        QTest::keyClicks(&box, typed);
        QCOMPARE(box.currentText(), selected);
        QCOMPARE(picked.isEmpty() ? shown : picked.last().first().toString(), selected);

        // In the open list the typing moves to the item, and Enter picks it.
        box.setCurrentText(shown);
        box.showPopup();
        QTest::qWait(QApplication::keyboardInputInterval() + 100);
        QTest::keyClicks(box.view(), typed);
        QTest::keyClick(box.view(), Qt::Key_Return);
        QCOMPARE(box.currentText(), selected);
    }

    // The main window's lists and those of every window with a date to choose: "3" on the
    // last day is the 3rd, "m" on March stays there, "26" is no year.
    void everyDateDropDownSelectsWhatWasTyped() {
        MainWindowFixture f;
        f.Start();
        f.env.dialogs.ExpectMsgBox(kNoHolidayListMessage + "2026", vb::OKOnly, "");
        for (const char* menu :
             {"mnuEditFind", "mnuManageAlerts", "mnuManageBDays", "mnuManageHolidays",
              "mnuFileOpenExpenses", "mnuDateDiffSYears", "mnuManageNotes"})
            f.menu(menu)->trigger();
        VERIFY_DIALOGS(f.env.dialogs);
        const auto lists =
            f.frame().findChildren<QComboBox*>(QRegularExpression("^cmb(Day|Month|Year)(_\\d)?$"));
        QCOMPARE(lists.size(), 23);
        for (QComboBox* list : lists) {
            const QString kind = list->objectName().mid(3, 3);
            const bool day = kind == "Day", month = kind == "Mon";
            list->setCurrentIndex(day ? list->count() - 1 : month ? list->findText("March") : 0);
            const QString before = list->currentText();
            QTest::keyClicks(list, day ? "3" : month ? "m" : "26");
            QVERIFY2(day ? list->currentText().toInt() == 3 : list->currentText() == before,
                     qPrintable(list->objectName()));
        }
    }
};

ORVANTA_TEST_MAIN(DateDropDownTest)
#include "tst_date_drop_downs.moc"
