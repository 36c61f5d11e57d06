// The report's rules apart from the planner file: the days of a month period, the refused
// start and end dates, and the totals and their format.
#include <QTest>

#include "TestEnv.h"
#include "reports/ReportMessages.h"
#include "reports/ReportText.h"
#include "shell/NumberFormat.h"

namespace {

// A report whose rows carry only the totalled figure (amount or miles) given.
Report WithTotals(ReportKind kind, const QStringList& totals) {
    Report report;
    report.kind = kind;
    for (const QString& total : totals) {
        ReportRow row{QDate(2026, 9, 7), {}};
        for (int i = 0; i <= TotalledField(kind); ++i)
            row.fields << (i == TotalledField(kind) ? total : QString());
        report.rows << row;
    }
    return report;
}

}  // namespace

class ReportRowsTest : public QObject {
    Q_OBJECT

private slots:
    void monthPeriod_data() {
        QTest::addColumn<int>("month");
        QTest::addColumn<int>("year");
        QTest::addColumn<QDate>("start");
        QTest::addColumn<QDate>("end");
        QTest::newRow("all months") << 0 << 2026 << QDate(2026, 1, 1) << QDate(2026, 12, 31);
        const int lastDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
        for (int month = 1; month <= 12; ++month)
            QTest::addRow("2026-%02d", month) << month << 2026 << QDate(2026, month, 1)
                                              << QDate(2026, month, lastDays[month - 1]);
        for (const int year : {2024, 2000, 1900, 2100})
            QTest::addRow("February %d", year)
                << 2 << year << QDate(year, 2, 1) << QDate(year, 3, 1).addDays(-1);
    }
    void monthPeriod() {
        QFETCH(int, month);
        QFETCH(int, year);
        QFETCH(QDate, start);
        QFETCH(QDate, end);
        const ReportPeriod period = MonthPeriod(month, year);
        QCOMPARE(period.start, start);
        QCOMPARE(period.end, end);
    }

    void checkStartEnd_data() {
        QTest::addColumn<QString>("startText");
        QTest::addColumn<QString>("endText");
        QTest::addColumn<QString>("refusal");
        QTest::addColumn<QDate>("start");
        QTest::addColumn<QDate>("end");
        QTest::newRow("one year") << "Jan 05, 2026"
                                  << "Dec 31, 2026"
                                  << "" << QDate(2026, 1, 5) << QDate(2026, 12, 31);
        QTest::newRow("start after the end") << "Mar 01, 2026"
                                             << "Feb 01, 2026"
                                             << "" << QDate(2026, 3, 1) << QDate(2026, 2, 1);
        QTest::newRow("two years") << "Dec 31, 2025"
                                   << "Jan 01, 2026" << kBothYearsMessage << QDate() << QDate();
        QTest::newRow("no such day")
            << "Jan 01, 2026"
            << "February 30, 2026" << kInvalidDateMessage << QDate() << QDate();
        QTest::newRow("not a date and another year")
            << "Feb 30, 2025"
            << "Mar 01, 2026" << kInvalidDateMessage << QDate() << QDate();
    }
    void checkStartEnd() {
        QFETCH(QString, startText);
        QFETCH(QString, endText);
        QFETCH(QString, refusal);
        QFETCH(QDate, start);
        QFETCH(QDate, end);
        const PeriodCheck check = CheckStartEnd(startText, endText, 2026);
        QCOMPARE(check.refusal, refusal);
        QCOMPARE(check.period.start, start);
        QCOMPARE(check.period.end, end);
    }

    // Figures count at their value however they are written; one that is no number counts
    // for nothing, and the total says so.
    void totalSkipsEmptyFiguresAndNamesThoseNoNumber_data() {
        QTest::addColumn<bool>("mileage");
        QTest::addColumn<QStringList>("figures");
        QTest::addColumn<QString>("total");
        QTest::newRow("amounts") << false << QStringList{"12.50", "", " 7.5", "1000"} << "1,020.00";
        QTest::newRow("one no number")
            << false << QStringList{"1,234.50", "lunch", ""}
            << "1,234.50 (1 amount is not a number and is left out of the total)";
        QTest::newRow("two no numbers")
            << false << QStringList{"12 EUR", "1,23", "2"}
            << "2.00 (2 amounts are not numbers and are left out of the total)";
        QTest::newRow("no amount") << false << QStringList{"", ""} << "0.00";
        QTest::newRow("miles") << true << QStringList{"42", "", "1,000,000"} << "1,000,042";
        QTest::newRow("miles no number")
            << true << QStringList{"n/a", "3"}
            << "3 (1 line's miles are not a number and are left out of the total)";
        QTest::newRow("no miles") << true << QStringList{""} << "0";
    }
    void totalSkipsEmptyFiguresAndNamesThoseNoNumber() {
        QFETCH(bool, mileage);
        QFETCH(QStringList, figures);
        QFETCH(QString, total);
        const Report report =
            WithTotals(mileage ? ReportKind::Mileage : ReportKind::Expenses, figures);
        QCOMPARE(report.TotalText(0, report.rows.size()), total);
    }

    // A row's cells in the CSV: figures as the numbers they count for, texts as written, and
    // a text that a spreadsheet would run as a formula behind an apostrophe.
    void csvCells_data() {
        QTest::addColumn<QString>("description");
        QTest::addColumn<QString>("amount");
        QTest::addColumn<QString>("line");
        const char* const cases[][3] = {
            {"Hotel", "1,234.50", "Hotel,1234.50"},
            {"Refund", "-$5", "Refund,-5.00"},
            {"Taxi", "7 for the taxi", "Taxi,7 for the taxi"},
            {"=HYPERLINK(\"x\")", "=1+2", "\"'=HYPERLINK(\"\"x\"\")\",'=1+2"},
            {"+cmd", "@SUM(A1)", "'+cmd,'@SUM(A1)"},
            {"-Deposit", "", "'-Deposit,"},
            {"\tx", "\ry", "'\tx,\"'\ry\""},
            {"a=b-c", "", "a=b-c,"}};
        for (const auto& [description, amount, line] : cases)
            QTest::addRow("%s", line) << description << amount << line;
    }
    void csvCells() {
        QFETCH(QString, description);
        QFETCH(QString, amount);
        QFETCH(QString, line);
        Report report;
        report.rows.append({QDate(2026, 9, 7), {description, amount}});
        QCOMPARE(CsvText(report), "Date,Description,Amount\r\n2026-09-07," + line + "\r\n");
    }

    // A figure in a total, and the same figure in the CSV: rounded alike, half a cent away
    // from zero, so that a CSV row pays what the report's text says it pays.
    void formatThousands_data() {
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("decimals");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("plain");
        QTest::newRow("zero amount") << 0.0 << 2 << "0.00"
                                     << "0.00";
        QTest::newRow("zero miles") << 0.0 << 0 << "0"
                                    << "0";
        QTest::newRow("thousands") << 1234.5 << 2 << "1,234.50"
                                   << "1234.50";
        QTest::newRow("millions") << 1234567.0 << 0 << "1,234,567"
                                  << "1234567";
        QTest::newRow("rounded into a new group") << 999.995 << 2 << "1,000.00"
                                                  << "1000.00";
        QTest::newRow("half a cent") << 1.005 << 2 << "1.01"
                                     << "1.01";
        QTest::newRow("negative") << -1234.5 << 2 << "-1,234.50"
                                  << "-1234.50";
        QTest::newRow("negative rounded to zero") << -0.004 << 2 << "0.00"
                                                  << "0.00";
    }
    void formatThousands() {
        QFETCH(double, value);
        QFETCH(int, decimals);
        QFETCH(QString, text);
        QFETCH(QString, plain);
        QCOMPARE(FormatThousands(value, decimals), text);
        QCOMPARE(PlainNumber(value, decimals), plain);
    }
};

ORVANTA_TEST_MAIN(ReportRowsTest)
#include "tst_report_rows.moc"
