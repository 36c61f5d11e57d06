// The monthly budget: its file, kept whole when a line could not be read, the spending of each
// month as the expense report totals it, and the window's budget cells.
#include <QComboBox>
#include <QLabel>
#include <QLocale>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QProcess>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QTest>

#include "MainWindowFixture.h"
#include "notes_planner/PlannerRecord.h"
#include "reports/ReportMessages.h"
#include "reports/gui/BudgetChart.h"
#include "reports/gui/ReportWindow.h"
#include "reports/gui/frmBudget.h"
#include "shell/ShellMessages.h"

namespace {

// A "Planner.dat" line for date with the expense lines given as (description, amount).
QByteArray PageLine(const QDate& date, const QList<QStringList>& expenses) {
    PlannerPage page;
    for (int k = 0; k < expenses.size(); ++k) {
        page.slotTexts[kFirstExpenseSlot + k] = expenses[k].value(0);
        page.slotTexts[kFirstAmountSlot + k] = expenses[k].value(1);
    }
    return date.toString("MM/dd/yy").toLatin1() + ":000000:" + BuildPlannerRecord(page).toLatin1() +
           "\r\n";
}

// Amounts as users type them: with a unit, a comma, three decimals, none at all. "12 EUR" and
// "abc" are no number: each is left out of its month's spending.
QByteArray Pages(int year) {
    return PageLine(QDate(year, 3, 31), {{"Fuel", "40.255"}, {"", "12 EUR"}}) +
           PageLine(QDate(year, 3, 1), {{"Lunch", "1,000"}, {"Taxi", ".5"}}) +
           PageLine(QDate(year, 4, 1), {{"Hotel", "129.99"}}) +
           PageLine(QDate(year, 2, 29).isValid() ? QDate(year, 2, 29) : QDate(year, 2, 28),
                    {{"Parking", "7.10"}, {"Toll", "abc"}});
}

frmBudget* OpenBudget(MainWindowFixture& f) {
    f.menu("mnuManageBudget")->trigger();
    return qobject_cast<frmBudget*>(f.frame().ChildWindow("frmBudget"));
}

QString Cell(frmBudget* window, int row, int column) {
    return window->Control<QTableWidget>("grdBudget")->item(row, column)->text();
}

}  // namespace

class BudgetTest : public QObject {
    Q_OBJECT

private slots:
    void fileIsWrittenExactlyAndReadBack() {
        TestEnv env;
        Budgets budgets{{QDate(2027, 1, 1), 5},
                        {QDate(2026, 12, 1), 125000},
                        {QDate(2026, 2, 1), 0},
                        {QDate(2026, 3, 1), kMaxBudgetCents}};
        env.dialogs.ExpectMsgBox(kBudgetSavedMessage, vb::OKOnly, "");
        QVERIFY(env.state->budget.SaveBudget(budgets));
        QCOMPARE(env.read("Budget.dat"),
                 QByteArray("2026-02:0.00\r\n2026-03:999999999999.99\r\n2026-12:1250.00\r\n"
                            "2027-01:0.05\r\n"));
        modBudget again(env.state->services);
        again.ReadBudget();
        QCOMPARE(again.budgets(), budgets);
        VERIFY_DIALOGS(env.dialogs);
    }

    // The months after a faulty line are never read, so the file is not saved over them.
    void faultyLineKeepsTheMonthsBeforeAndRefusesTheNextSave() {
        TestEnv env;
        const QByteArray file = "2026-01:100.00\r\n2026-02:1O0.00\r\n2026-03:5.00\r\n";
        env.write("budget.DAT", file);
        env.expectProgramError("ReadBudget", 13,
                               FaultDescription("Type mismatch", "Budget.dat", 2));
        env.state->budget.ReadBudget();
        QCOMPARE(env.state->budget.budgets(), (Budgets{{QDate(2026, 1, 1), 10000}}));
        env.dialogs.ExpectMsgBox(PartlyReadFileMessage("Budget.dat", 2), kWarningStyle, "");
        QVERIFY(!env.state->budget.SaveBudget({}));
        QCOMPARE(env.read("budget.DAT"), file);
        VERIFY_DIALOGS(env.dialogs);
    }

    // For the year on show and another year, both read from their files.
    void spentIsTheExpenseReportTotalOfTheMonth_data() {
        QTest::addColumn<int>("year");
        QTest::addColumn<int>("month");
        QTest::newRow("year on show, March") << 2026 << 3;
        QTest::newRow("year on show, February") << 2026 << 2;
        QTest::newRow("another leap year, February") << 2024 << 2;
        QTest::newRow("another year, April") << 2024 << 4;
    }
    void spentIsTheExpenseReportTotalOfTheMonth() {
        QFETCH(int, year);
        QFETCH(int, month);
        MainWindowFixture f;
        f.env.write(QString("%1/Planner.dat").arg(year), Pages(year));
        f.Start();
        frmBudget* budget = OpenBudget(f);
        QCOMPARE(budget->Year(), 2026);
        budget->Control<QSpinBox>("spnYear")->setValue(year);

        f.menu("mnuFileOpenExpenses")->trigger();
        auto* selector = qobject_cast<ChildWindow*>(f.frame().ChildWindow("frmSelectMonth"));
        selector->Control<QComboBox>("cmbMonth")->setCurrentIndex(month);
        selector->Control<QComboBox>("cmbYear")->setCurrentText(QString::number(year));
        selector->Control<QPushButton>("cmdReport")->click();
        auto* report = qobject_cast<ReportWindow*>(f.frame().ChildWindow("frmExpenses"));
        const ReportTotal total = report->report().Total(0, 1000);
        QVERIFY(total.sum > 0);
        QCOMPARE(Cell(budget, month - 1, 2), report->report().FormatTotal(total.sum));
        QCOMPARE(budget->Figures().actual[month - 1], total.sum);
        // What the month leaves out is said under the table as the report says it.
        const QString leftOut = budget->Control<QLabel>("lblLeftOut")->text();
        QCOMPARE(leftOut.contains(QLocale(QLocale::English).monthName(month) + ": " +
                                  LeftOutNote(ReportKind::Expenses, 1)),
                 month != 4);
        QCOMPARE(report->Control<QLabel>("lblReportTotal")
                     ->text()
                     .contains(LeftOutNote(ReportKind::Expenses, 1)),
                 month != 4);
        VERIFY_DIALOGS(f.env.dialogs);
    }

    // Pages saved while the window was in the background count when it comes to the front.
    void spendingIsReadAgainWhenTheWindowComesBack() {
        MainWindowFixture f;
        f.Start();
        frmBudget* budget = OpenBudget(f);
        budget->Control<QSpinBox>("spnYear")->setValue(2025);
        QCOMPARE(Cell(budget, 2, 2), "0.00");
        f.menu("mnuManageToDo")->trigger();
        f.env.write("2025/Planner.dat", Pages(2025));
        f.frame().findChild<QMdiArea*>()->setActiveSubWindow(
            qobject_cast<QMdiSubWindow*>(budget->parentWidget()));
        QCOMPARE(Cell(budget, 2, 2), "1,040.76");
        VERIFY_DIALOGS(f.env.dialogs);
    }

    void budgetCellsAreCheckedShownAndSaved() {
        MainWindowFixture f;
        f.env.write("2026/Planner.dat", Pages(2026));
        f.Start();
        frmBudget* budget = OpenBudget(f);
        auto* grid = budget->Control<QTableWidget>("grdBudget");
        grid->item(2, 1)->setText("50");      // March spent 1,040.755: over
        grid->item(3, 1)->setText(" 200.5");  // April spent 129.99: within
        QCOMPARE(Cell(budget, 2, 1), "50.00");
        QCOMPARE(Cell(budget, 2, 3), "-990.76");
        QCOMPARE(Cell(budget, 3, 3), "70.51");
        QVERIFY(grid->item(2, 3)->foreground().color().red() >
                grid->item(2, 3)->foreground().color().green());
        QVERIFY(grid->item(3, 3)->foreground().color().green() >
                grid->item(3, 3)->foreground().color().red());
        QCOMPARE(Cell(budget, frmBudget::kTotalRow, 1), "250.50");
        QCOMPARE(Cell(budget, frmBudget::kTotalRow, 2), "1,177.85");
        // The year's difference counts only the months with a budget.
        QCOMPARE(Cell(budget, frmBudget::kTotalRow, 3), "-920.25");
        QCOMPARE(budget->Figures().budget[3], 200.5);

        for (const char* bad : {"-5", "12x", "1.234", "1,00"}) {
            f.env.dialogs.ExpectMsgBox(kBadBudgetMessage, kWarningStyle, "");
            grid->item(3, 1)->setText(bad);
            QCOMPARE(Cell(budget, 3, 1), "200.50");
        }
        // Another year's budgets are kept while it is not on show, and saved with this one's.
        budget->Control<QSpinBox>("spnYear")->setValue(2027);
        grid->item(0, 1)->setText("75");
        budget->Control<QSpinBox>("spnYear")->setValue(2026);
        QCOMPARE(Cell(budget, 2, 1), "50.00");
        QVERIFY(!f.env.exists("Budget.dat"));

        // Printed: the table and the chart's key on one page.
        QTest::keyClick(grid, Qt::Key_P, Qt::ControlModifier);
        QCOMPARE(f.printer.files().size(), 1);
        QProcess text;
        text.start("pdftotext", {"-layout", f.printer.files().first(), "-"});
        QVERIFY(text.waitForFinished(30000));
        const QString pages = QString::fromUtf8(text.readAllStandardOutput());
        QCOMPARE(pages.count('\f'), 1);
        QVERIFY2(pages.simplified().contains("March 50.00 1,040.76 -990.76"), qPrintable(pages));
        QVERIFY(pages.simplified().contains("Year Total 250.50 1,177.85 -920.25"));
        QVERIFY(pages.simplified().contains("March: 1 amount is not a number and is left out"));
        QVERIFY(pages.contains("Spent over budget"));

        f.env.dialogs.ExpectMsgBox(kBudgetChangedQuestion, vb::YesNoCancel | vb::Question,
                                   kBudgetChangedTitle, vb::Cancel);
        QTest::keyClick(grid, Qt::Key_Escape);
        QVERIFY(f.frame().IsChildOpen("frmBudget"));
        f.env.dialogs.ExpectMsgBox(kBudgetChangedQuestion, vb::YesNoCancel | vb::Question,
                                   kBudgetChangedTitle, vb::Yes);
        f.env.dialogs.ExpectMsgBox(kBudgetSavedMessage, vb::OKOnly, "");
        budget->CloseWindow();
        QVERIFY(!f.frame().IsChildOpen("frmBudget"));
        QCOMPARE(f.env.read("Budget.dat"),
                 QByteArray("2026-03:50.00\r\n2026-04:200.50\r\n2027-01:75.00\r\n"));
        VERIFY_DIALOGS(f.env.dialogs);
    }
};

ORVANTA_TEST_MAIN(BudgetTest)
#include "tst_budget.moc"
