// The figures of a planner page, the page as text on the clipboard, typed times, and the
// safety copy of unsaved typing.
#include <QTest>

#include "TestEnv.h"
#include "notes_planner/PlannerFigures.h"
#include "notes_planner/PlannerText.h"
#include "notes_planner/UnsavedWork.h"
#include "shell/DateInput.h"

class PlannerFiguresTest : public QObject {
    Q_OBJECT

private slots:
    void figuresTakeTheirFormat_data() {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("amount");
        QTest::addColumn<QString>("mileage");
        QTest::newRow("whole") << "12"
                               << "12.00"
                               << "12";
        QTest::newRow("rounded half up") << "2.675"
                                         << "2.68"
                                         << "3";
        QTest::newRow("zero") << "0"
                              << ".00"
                              << "";
        QTest::newRow("below one") << ".5"
                                   << ".50"
                                   << "1";
        QTest::newRow("negative") << "-3.5"
                                  << "-3.50"
                                  << "-4";
        QTest::newRow("blanks around") << " 7 "
                                       << "7.00"
                                       << "7";
        QTest::newRow("thousands") << "1,234.50"
                                   << "1234.50"
                                   << "1235";
        QTest::newRow("currency sign") << "$5.00"
                                       << "5.00"
                                       << "5";
        QTest::newRow("sign and currency") << "-$ 1,234,567"
                                           << "-1234567.00"
                                           << "-1234567";
        QTest::newRow("currency and sign") << "€-.5"
                                           << "-.50"
                                           << "-1";
        QTest::newRow("words stay") << "twelve"
                                    << "twelve"
                                    << "twelve";
        // Texts that begin as a number but are none are never taken for another number.
        for (const char* text : {"12 EUR", "5$", "1,23", "1234,567", "1,234,56.0", "1.2.3", ",5",
                                 "$", "-", ".", "1e3", "--5", "$$5"})
            QTest::addRow("no number: %s", text) << text << text << text;
        QTest::newRow("empty stays") << ""
                                     << ""
                                     << "";
    }
    void figuresTakeTheirFormat() {
        QFETCH(QString, typed);
        QFETCH(QString, amount);
        QFETCH(QString, mileage);
        QCOMPARE(FormatAmount(typed), amount);
        QCOMPARE(FormatMileage(typed), mileage);
    }

    void totalsAddWhatIsThere() {
        PlannerPage page;
        AddTheAmounts(page);
        AddTheMiles(page);
        QCOMPARE(page.slotTexts[kTotalExpendituresSlot], "");  // a blank page stays blank
        QCOMPARE(page.slotTexts[kTotalMileageSlot], "");
        page.slotTexts[kFirstAmountSlot] = "12.50";
        page.slotTexts[kFirstAmountSlot + 4] = "$1,000";
        page.slotTexts[kFirstAmountSlot + 5] = "7 for the taxi";  // no number: left out
        page.slotTexts[kFirstBeginSlot] = "100";
        page.slotTexts[kFirstEndSlot] = "125";
        page.slotTexts[kFirstMilesSlot + 1] = "30";  // typed, no odometer readings: kept
        page.slotTexts[kFirstEndSlot + 2] = "80";    // one reading only: no miles
        page.slotTexts[kFirstBeginSlot + 3] = "1,000";
        page.slotTexts[kFirstEndSlot + 3] = "1,010 km";  // no number: the miles typed stay
        page.slotTexts[kFirstMilesSlot + 3] = "9";
        AddTheAmounts(page);
        AddTheMiles(page);
        QCOMPARE(page.slotTexts[kTotalExpendituresSlot], "1012.50");
        QCOMPARE(page.slotTexts[kFirstMilesSlot], "25");
        QCOMPARE(page.slotTexts[kFirstMilesSlot + 2], "");
        QCOMPARE(page.slotTexts[kFirstMilesSlot + 3], "9");
        QCOMPARE(page.slotTexts[kTotalMileageSlot], "64");
    }

    void clipboardTextKeepsItsLayout() {
        PlannerPage page;
        page.times[0] = "08:00 AM";
        page.slotTexts[0] = "Staff meeting";
        page.slotTexts[1] = "and lunch";  // a continuance line: no time
        page.slotTexts[kFirstToDoSlot + 2] = "Call the bank";
        page.done[2] = true;
        page.slotTexts[kFirstToDoSlot + 3] = "Post";
        page.slotTexts[kFirstExpenseSlot] = "Lunch";
        page.slotTexts[kFirstAmountSlot] = "12.50";
        page.slotTexts[kTotalExpendituresSlot] = "12.50";
        page.slotTexts[kFirstDestinationSlot + 1] = "Office";
        page.slotTexts[kFirstMilesSlot + 1] = "25";
        page.slotTexts[kTotalMileageSlot] = "25";
        QCOMPARE(PlannerClipboardText(page),
                 "Appointments - Events - Meetings - Tasks\r\n"
                 "08:00 AM\tStaff meeting\r\n"
                 "\tand lunch\r\n\r\n"
                 "To Do List\r\nCall the bank (x)\r\nPost\r\n\r\n"
                 "Expenses\r\nDesc:\tLunch\tAmt:\t12.50\r\nTotal:\t12.50\r\n\r\n"
                 "Mileage\r\nDest:\tOffice\tMiles:\t25\r\nTotal:\t25\r\n\r\n");
    }

    void typedTimes_data() {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QTime>("time");
        QTest::newRow("sample") << "8:45 PM" << QTime(20, 45);
        QTest::newRow("no blank, small") << "8:45pm" << QTime(20, 45);
        QTest::newRow("hour only") << "7 am" << QTime(7, 0);
        QTest::newRow("midnight") << "12:00 AM" << QTime(0, 0);
        QTest::newRow("noon") << "12:30 PM" << QTime(12, 30);
        QTest::newRow("24-hour") << "21:15" << QTime(21, 15);
        QTest::newRow("hour 25") << "25:00" << QTime();
        QTest::newRow("13 PM") << "13:00 PM" << QTime();
        QTest::newRow("bare number") << "8" << QTime();
        QTest::newRow("minutes 60") << "8:60" << QTime();
    }
    void typedTimes() {
        QFETCH(QString, typed);
        QFETCH(QTime, time);
        QCOMPARE(ParseTimeInput(typed), time);
    }

    void safetyCopyComesBackWhole() {
        TestEnv env;
        UnsavedEdit note{QDate(2026, 9, 7), "caf\u00e9 \u65e5\r\nline", {}, {}, false};
        UnsavedEdit page{QDate(2026, 9, 8), {}, {}, "/home/ann/Plan \u00e9.pln", false};
        page.page.slotTexts[59] = "x";
        page.page.times[15] = "09:00 PM";
        page.page.bold[3] = page.page.done[9] = true;
        {
            UnsavedWork work(env.state->services);
            work.Keep(EditorKind::Notes, note);
            work.Keep(EditorKind::Planner, page);
            work.MarkOffered(EditorKind::Planner);
        }
        UnsavedWork again(env.state->services);
        QCOMPARE(again.Leftover(EditorKind::Notes)->noteText, note.noteText);
        QVERIFY(again.Leftover(EditorKind::Planner)->page == page.page);
        QVERIFY(again.Leftover(EditorKind::Planner)->offered);
        QCOMPARE(again.Leftover(EditorKind::Planner)->externalFile, page.externalFile);
        QVERIFY(again.Leftover(EditorKind::Notes)->externalFile.isEmpty());
        again.Forget(EditorKind::Notes);
        QVERIFY(env.exists("TempRecord.txt"));
        again.Forget(EditorKind::Planner);
        QVERIFY(!env.exists("TempRecord.txt"));
        QVERIFY(!ParseUnsavedEdits("{\"notes\": {\"date\": \"soon\"}} trailing").notes);
    }
};

ORVANTA_TEST_MAIN(PlannerFiguresTest)
#include "tst_planner_figures.moc"
