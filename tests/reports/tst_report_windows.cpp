// The report windows as a user drives them from the main window: the period chosen, paging,
// editing a row in place, marking and copying, the mileage rate, printing and CSV.
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QTest>

#include "MainWindowFixture.h"
#include "calendar/DateModel.h"
#include "notes_planner/PlannerRecord.h"
#include "reports/ReportMessages.h"
#include "reports/gui/ReportWindow.h"
#include "shell/UserPreferences.h"

namespace {

// A "Planner.dat" line for date whose page has the expense (or mileage) lines given: each
// line's texts in slot order (description, amount) or (destination, begin, end, miles).
QByteArray PageLine(const QDate& date, const QList<QStringList>& expenses,
                    const QList<QStringList>& mileage = {}) {
    PlannerPage page;
    for (int k = 0; k < expenses.size(); ++k) {
        page.slotTexts[kFirstExpenseSlot + k] = expenses[k].value(0);
        page.slotTexts[kFirstAmountSlot + k] = expenses[k].value(1);
    }
    for (int m = 0; m < mileage.size(); ++m) {
        page.slotTexts[kFirstDestinationSlot + m] = mileage[m].value(0);
        page.slotTexts[kFirstBeginSlot + m] = mileage[m].value(1);
        page.slotTexts[kFirstEndSlot + m] = mileage[m].value(2);
        page.slotTexts[kFirstMilesSlot + m] = mileage[m].value(3);
    }
    return date.toString("MM/dd/yy").toLatin1() + ":000000:" + BuildPlannerRecord(page).toLatin1() +
           "\r\n";
}

// 41 expense rows in March 2025: six on each of the first six days, five on the 7th.
QByteArray FortyOneRows() {
    QByteArray file;
    for (int day = 1; day <= 7; ++day) {
        QList<QStringList> lines;
        for (int k = 0; k < (day < 7 ? 6 : 5); ++k)
            lines.append({QString("Item %1.%2").arg(day).arg(k), "1000.50"});
        file += PageLine(QDate(2025, 3, day), lines);
    }
    return file;
}

QString Text(QWidget* window, const QString& array, int index) {
    return qobject_cast<ChildWindow*>(window)->Control<QLabel>(array, index)->text();
}

QString Text(QWidget* window, const QString& name) {
    return qobject_cast<ChildWindow*>(window)->Control<QLabel>(name)->text();
}

// Chooses month (0: All Months) of year in the monthly window and makes the report.
ReportWindow* MonthReport(MainWindowFixture& f, const char* menu, int month, int year) {
    f.menu(menu)->trigger();
    auto* selector = qobject_cast<ChildWindow*>(f.frame().ChildWindow("frmSelectMonth"));
    selector->Control<QComboBox>("cmbMonth")->setCurrentIndex(month);
    selector->Control<QComboBox>("cmbYear")->setCurrentText(QString::number(year));
    selector->Control<QPushButton>("cmdReport")->click();
    return qobject_cast<ReportWindow*>(
        f.frame().ChildWindow(QString(menu).endsWith("Expenses") ? "frmExpenses" : "frmMileage"));
}

void Press(ReportWindow* window, const QString& array, int line,
           Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(window->Control<QLabel>(array, line), button);
}

}  // namespace

class ReportWindowsTest : public QObject {
    Q_OBJECT

private slots:
    // A report of another year than the one on show reads that year's pages and leaves the
    // calendar where it was; 41 rows make two pages, each with its own total.
    void monthReportOfAnotherYearPagesAndLeavesTheCalendar() {
        MainWindowFixture f;
        f.env.write("2025/Planner.dat",
                    FortyOneRows() + PageLine(QDate(2025, 4, 1), {{"April", "9"}}));
        f.Start();
        ReportWindow* window = MonthReport(f, "mnuFileOpenExpenses", 3, 2025);
        QVERIFY(window);
        QCOMPARE(f.env.state->dates.ThisYear, 2026);
        QCOMPARE(f.env.state->dates.SelectedDate, QDate(2026, 9, 7));
        QCOMPARE(Text(window, "lblTitle"), "Daily Expenses from Mar 01, 2025 to Mar 31, 2025");
        QCOMPARE(Text(window, "lblPage"), "Page 1 of 2");
        QCOMPARE(Text(window, "lblDate", 39), "3/7/2025");
        QCOMPARE(Text(window, "lblDesc", 39), "Item 7.3");
        QCOMPARE(Text(window, "lblPageTotal"), "40,020.00");
        QCOMPARE(Text(window, "lblReportTotal"), "41,020.50");

        f.env.dialogs.ExpectMsgBox(kBeginningOfReportMessage, vb::OKOnly, "");
        window->Control<QPushButton>("cmdPrev")->click();
        window->Control<QPushButton>("cmdNext")->click();
        QCOMPARE(Text(window, "lblPage"), "Page 2 of 2");
        QCOMPARE(Text(window, "lblDesc", 0), "Item 7.4");
        QCOMPARE(Text(window, "lblDesc", 1), "");
        QCOMPARE(Text(window, "lblPageTotal"), "1,000.50");
        f.env.dialogs.ExpectMsgBox(kEndOfReportMessage, vb::OKOnly, "");
        window->Control<QPushButton>("cmdNext")->click();
        VERIFY_DIALOGS(f.env.dialogs);
        QCOMPARE(window->CurrentPage(), 2);
    }

    void startEndWindowRefusesAndKeepsWhatWasTyped_data() {
        QTest::addColumn<QString>("start");
        QTest::addColumn<QString>("end");
        QTest::addColumn<QString>("message");
        QTest::newRow("across New Year") << "Dec 15, 2008"
                                         << "Jan 10, 2009" << kBothYearsMessage;
        QTest::newRow("not a date") << "Feb 30, 2025"
                                    << "Mar 10, 2025" << kInvalidDateMessage;
    }
    void startEndWindowRefusesAndKeepsWhatWasTyped() {
        QFETCH(QString, start);
        QFETCH(QString, end);
        QFETCH(QString, message);
        MainWindowFixture f;
        f.env.write("2025/Planner.dat", PageLine(QDate(2025, 3, 10), {{"Ten", "10"}}) +
                                            PageLine(QDate(2025, 3, 11), {{"Eleven", "11"}}));
        f.Start();
        f.menu("mnuFileOpenExpenses")->trigger();
        qobject_cast<ChildWindow*>(f.frame().ChildWindow("frmSelectMonth"))
            ->Control<QPushButton>("cmdSelectStartEnd")
            ->click();
        auto* selector = qobject_cast<ChildWindow*>(f.frame().ChildWindow("frmSelectStartEnd"));
        QVERIFY(selector && !f.frame().IsChildOpen("frmSelectMonth"));
        auto* startBox = selector->Control<QLineEdit>("txtInput", 0);
        auto* endBox = selector->Control<QLineEdit>("txtInput", 1);
        startBox->setText(start);
        endBox->setText(end);
        f.env.dialogs.ExpectMsgBox(message, vb::OKOnly, "");
        selector->Control<QPushButton>("cmdReport")->click();
        VERIFY_DIALOGS(f.env.dialogs);
        QCOMPARE(startBox->text(), start);
        QVERIFY(!f.frame().IsChildOpen("frmExpenses"));

        // A pick in the lists shows its date; both ends count.
        selector->Control<QComboBox>("cmbMonth", 0)->setCurrentText("March");
        selector->Control<QComboBox>("cmbDay", 0)->setCurrentText("11");
        selector->Control<QComboBox>("cmbYear", 0)->setCurrentText("2025");
        emit selector->Control<QComboBox>("cmbYear", 0)->activated(0);
        QCOMPARE(startBox->text(), "Mar 11, 2025");
        endBox->setText("3/11/2025");
        selector->Control<QPushButton>("cmdReport")->click();
        auto* window = qobject_cast<ReportWindow*>(f.frame().ChildWindow("frmExpenses"));
        QVERIFY(window);
        QCOMPARE(window->report().rows.size(), 1);
        QCOMPARE(Text(window, "lblDesc", 0), "Eleven");
    }

    // The report reads the year's file as it is now, though the calendar holds that year; the
    // calendar's pages stay as they were read. One edit open at a time; Enter keeps the text
    // (an amount in the planner's format) and totals again, and the planner's page stays as
    // it was.
    void expenseRowEditedInPlace() {
        MainWindowFixture f;
        f.env.write("2026/Planner.dat", PageLine(QDate(2026, 9, 1), {{"Before", "1"}}));
        f.Start();
        const QByteArray file = PageLine(QDate(2026, 9, 1), {{"Taxi", "12.50"}, {"Lunch", "7.25"}});
        f.env.write("2026/Planner.dat", file);
        ReportWindow* window = MonthReport(f, "mnuFileOpenExpenses", 9, 2026);
        QCOMPARE(Text(window, "lblDesc", 0), "Taxi");
        QVERIFY(f.env.state->planner.years[Year::This].payloads.value(0).contains("Before"));
        Press(window, "lblAmt", 0);
        auto* editor = window->Control<QLineEdit>("txtAmt");
        QVERIFY(editor->isVisible());
        f.env.dialogs.ExpectMsgBox(kExpenseEditOpenMessage, vb::OKOnly, "");
        Press(window, "lblDesc", 1);
        VERIFY_DIALOGS(f.env.dialogs);
        editor->setText("$1,000");
        QTest::keyClick(editor, Qt::Key_Return);
        QVERIFY(!editor->isVisible());
        QCOMPARE(Text(window, "lblAmt", 0), "1000.00");
        QCOMPARE(Text(window, "lblPageTotal"), "1,007.25");
        Press(window, "lblAmt", 1);
        editor->setText("seven");
        QTest::keyClick(editor, Qt::Key_Return);
        QCOMPARE(Text(window, "lblAmt", 1), "seven");
        QCOMPARE(Text(window, "lblReportTotal"),
                 "1,000.00 (1 amount is not a number and is left out of the total)");
        Press(window, "lblDesc", 1);
        QTest::keyClicks(window->Control<QLineEdit>("txtDesc"), "Dinner");
        QTest::keyClick(window->Control<QLineEdit>("txtDesc"), Qt::Key_Escape);
        QCOMPARE(Text(window, "lblDesc", 1), "Lunch");
        QVERIFY(window->isVisible());
        QCOMPARE(f.env.read("2026/Planner.dat"), file);
    }

    // Changed readings work the miles out again; an empty reading is refused; only digits and
    // one point go into a reading.
    void mileageReadingsTotalTheLine() {
        MainWindowFixture f;
        f.env.write("2026/Planner.dat",
                    PageLine(QDate(2026, 9, 2), {}, {{"Office", "100", "132", "32"}, {"Bank"}}));
        f.Start();
        ReportWindow* window = MonthReport(f, "mnuFileOpenMiles", 9, 2026);
        QCOMPARE(window->report().rows.size(), 2);
        Press(window, "lblEnd", 0);
        auto* end = window->Control<QLineEdit>("txtEnd");
        end->clear();
        QTest::keyClicks(end, "1a5-0.5.");
        QCOMPARE(end->text(), "150.5");
        QTest::keyClick(end, Qt::Key_Return);
        QCOMPARE(Text(window, "lblTotal", 0), "50.5");
        QCOMPARE(Text(window, "lblPageTotal"), "51");

        Press(window, "lblStart", 1);
        QTest::keyClicks(window->Control<QLineEdit>("txtStart"), "7");
        f.env.dialogs.ExpectMsgBox(kEnterZeroMessage, vb::OKOnly, "");
        QTest::keyClick(window->Control<QLineEdit>("txtStart"), Qt::Key_Return);
        VERIFY_DIALOGS(f.env.dialogs);
        QCOMPARE(Text(window, "lblStart", 1), "7");
        QCOMPARE(Text(window, "lblTotal", 1), "");
    }

    // Marked rows, and only they, are copied under the heading line; the rate pays each
    // line's miles, is remembered, and goes into the CSV.
    void copyRateAndCsv() {
        MainWindowFixture f;
        f.env.write("2026/Planner.dat",
                    PageLine(QDate(2026, 9, 3), {}, {{"Depot, \"north\"", "10", "40", "30"}}) +
                        PageLine(QDate(2026, 9, 1), {}, {{"Office", "", "", "12"}}));
        f.Start();
        ReportWindow* window = MonthReport(f, "mnuFileOpenMiles", 9, 2026);
        Press(window, "lblDest", 1, Qt::RightButton);
        QCOMPARE(window->Control<QLabel>("lblDest", 1)->backgroundRole(), QPalette::Highlight);
        f.env.dialogs.ExpectMsgBox(kDataCopiedMessage, vb::OKOnly, "");
        window->Control<QAction>("mnuOptCopy")->trigger();
        QCOMPARE(
            QGuiApplication::clipboard()->text(),
            "Date\tDestination\tStart\tEnd\tTotal\r\n9/3/2026\tDepot, \"north\"\t10\t40\t30\r\n");
        window->Control<QAction>("mnuOptInvert")->trigger();
        QCOMPARE(window->Control<QLabel>("lblDest", 1)->backgroundRole() == QPalette::Highlight,
                 false);
        QVERIFY(window->report().rows[0].marked);

        auto* rate = window->Control<QLineEdit>("txtRate");
        rate->setText("-1");
        f.env.dialogs.ExpectMsgBox(kBadRateMessage, kWarningStyle, "");
        emit rate->editingFinished();
        VERIFY_DIALOGS(f.env.dialogs);
        QCOMPARE(rate->text(), "");
        rate->setText("$0.5");
        emit rate->editingFinished();
        QCOMPARE(rate->text(), "0.50");
        QCOMPARE(Text(window, "lblPaid", 1), "15.00");
        QCOMPARE(Text(window, "lblReportPaid"), "21.00");
        QVERIFY(f.env.read("UserPreferences.txt").contains("Mileage Rate:0.50\r\n"));

        const QString csv = f.env.path("out.csv");
        f.env.dialogs.ExpectSaveFile(csv).ExpectMsgBox(CsvSavedMessage(csv), kInformationStyle, "");
        window->Control<QAction>("mnuFileExportCsv")->trigger();
        VERIFY_DIALOGS(f.env.dialogs);
        QCOMPARE(f.env.read("out.csv"),
                 "Date,Destination,Start,End,Total,Reimbursement\r\n"
                 "2026-09-01,Office,,,12,6.00\r\n"
                 "2026-09-03,\"Depot, \"\"north\"\"\",10,40,30,15.00\r\n");
    }

    void printedPagesCarryHeadingRowsAndTotals() {
        MainWindowFixture f;
        f.env.write("2025/Planner.dat", FortyOneRows());
        f.Start();
        ReportWindow* window = MonthReport(f, "mnuFileOpenExpenses", 0, 2025);
        window->Control<QAction>("mnuFilePrintAll")->trigger();
        QCOMPARE(f.printer.files().size(), 1);
        QProcess text;
        text.start("pdftotext", {"-layout", f.printer.files()[0], "-"});
        QVERIFY(text.waitForFinished());
        const QStringList pages = QString::fromUtf8(text.readAllStandardOutput()).split('\f');
        QCOMPARE(pages.size() - 1, 2);
        for (const QString& page : pages.mid(0, 2))
            QVERIFY(page.contains("Daily Expenses from Jan 01, 2025 to Dec 31, 2025"));
        QVERIFY(pages[0].contains("Item 7.3") && !pages[0].contains("Item 7.4"));
        QVERIFY(pages[0].contains("Page Total: 40,020.00"));
        QVERIFY(pages[1].contains("Item 7.4") && pages[1].contains("Page 2 of 2"));
        QVERIFY(pages[1].contains("Report Total: 41,020.50"));
    }
};

ORVANTA_TEST_MAIN(ReportWindowsTest)
#include "tst_report_windows.moc"
