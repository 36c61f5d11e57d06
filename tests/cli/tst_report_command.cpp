// orvanta report: the rows of the expense and mileage lines of a period, read from the right
// character positions of each planner page, in date order whatever the file's order; the CSV
// byte for byte; the exit status telling rows from none; and the refused periods and command
// lines.
#include <QProcess>
#include <QTest>

#include "TestEnv.h"
#include "TestPaths.h"
#include "shell/TextFile.h"

namespace {

struct Output {
    int status = -1;
    QByteArray out;
    QByteArray err;
};

Output Run(const QString& folder, const QStringList& arguments) {
    QProcess program;
    program.start(ORVANTA_BINARY, QStringList{"--data-dir", folder, "report"} + arguments);
    Output output;
    if (!program.waitForFinished(20000))
        return output;
    output.status = program.exitCode();
    output.out = program.readAllStandardOutput();
    output.err = program.readAllStandardError();
    return output;
}

// A page's record: blanks, with each text put at its character position (counted from 0).
QString Record(std::initializer_list<std::pair<int, QString>> texts) {
    QString record(4100, u' ');
    for (const auto& [at, text] : texts)
        record.replace(at, text.size(), text);
    return record;
}

// Where the rows' fields lie in a record, counted from 0.
struct At {
    static int Description(int k) { return 3160 + 50 * k; }
    static int Amount(int k) { return 3460 + 10 * k; }
    static int Destination(int m) { return 3530 + 80 * m; }
    static int Begin(int m) { return 3930 + 10 * m; }
    static int End(int m) { return 3980 + 10 * m; }
    static int Miles(int m) { return 4030 + 10 * m; }
};

// February 20 has every expense and mileage field filled to its last character, so that a
// field read one position off takes in a character of its neighbour: the texts name their
// position, the figures are their position in ten digits. The page and its CSV lines.
struct FullPage {
    QString record = Record({});
    QStringList expenses, mileage;
};
FullPage MakeFullPage() {
    FullPage page;
    const auto text = [&](int at, int width) {
        const QString text = QStringLiteral("at %1").arg(at).leftJustified(width, u'.');
        page.record.replace(at, width, text);
        return text;
    };
    const auto figure = [&](int at) {
        page.record.replace(at, 10, QString::number(at).rightJustified(10, u'0'));
        return QString::number(at);
    };
    for (int k = 0; k < 6; ++k)
        page.expenses << "2026-02-20," + text(At::Description(k), 50) + ',' +
                             figure(At::Amount(k)) + ".00";
    for (int m = 0; m < 5; ++m)
        page.mileage << "2026-02-20," + text(At::Destination(m), 80) + ',' + figure(At::Begin(m)) +
                            ',' + figure(At::End(m)) + ',' + figure(At::Miles(m));
    return page;
}

// The pages, not in date order: January 30 and April 1 lie just outside the period of most
// cases; February 14 has text but no expense or mileage line (its totals alone do not count);
// March 31's only figures stand in the last character of the expense and mileage lines.
void WritePlanner(const TestEnv& env) {
    const QList<std::pair<const char*, QString>> pages = {
        {"03/10/26", Record({{At::Description(0), "Taxi to airport"},
                             {At::Amount(0), "25"},
                             {At::Amount(2), "     7.5"},
                             {At::Description(3), "  Lunch, \"Chez Marie\"  "},
                             {At::Description(4), "H\u00f4tel Z\u00fcrich \u20ac"},
                             {3520, "32.50"},
                             {At::Destination(1), "Depot"},
                             {At::Miles(4), "12"}})},
        {"01/31/26", Record({{At::Description(0), "Parking, level 2"},
                             {At::Amount(0), "4"},
                             {At::Destination(0), "Client site"},
                             {At::Begin(0), "1000"},
                             {At::End(0), "1042"},
                             {At::Miles(0), "42"}})},
        {"03/31/26", Record({{At::Amount(5), "         7"}, {At::Miles(4), "         3"}})},
        {"04/01/26",
         Record(
             {{At::Description(0), "After"}, {At::Amount(0), "1"}, {At::Destination(0), "After"}})},
        {"01/30/26", Record({{At::Description(0), "Before"},
                             {At::Amount(0), "2"},
                             {At::Destination(0), "Before"}})},
        {"02/14/26", Record({{0, "Dinner"}, {3520, "0.00"}, {4080, "0"}})},
        {"02/20/26", MakeFullPage().record},
    };
    QByteArray file;
    for (const auto& [key, record] : pages)
        file += QByteArray(key) + ":000000:" + textfile::Encode(record) + "\r\n";
    env.write("2026/Planner.dat", file);
}

QByteArray Csv(const QStringList& lines) {
    return (lines.join("\r\n") + "\r\n").toUtf8();
}

const QStringList kPeriod{"--from", "2026-01-31", "--to", "2026-03-31"};

}  // namespace

class ReportCommandTest : public QObject {
    Q_OBJECT

private slots:
    void printsTheCsv_data() {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("rate");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("out");
        QTest::newRow("expenses")
            << QStringList{"expenses", "--csv"} + kPeriod << "" << 0
            << Csv(QStringList{"Date,Description,Amount", "2026-01-31,\"Parking, level 2\",4.00"} +
                   MakeFullPage().expenses +
                   QStringList{"2026-03-10,Taxi to airport,25.00", "2026-03-10,,7.50",
                               "2026-03-10,\"Lunch, \"\"Chez Marie\"\"\",",
                               "2026-03-10,H\u00f4tel Z\u00fcrich \u20ac,", "2026-03-31,,7.00"});
        QTest::newRow("mileage") << QStringList{"mileage", "--csv"} + kPeriod << "" << 0
                                 << Csv(QStringList{"Date,Destination,Start,End,Total",
                                                    "2026-01-31,Client site,1000,1042,42"} +
                                        MakeFullPage().mileage +
                                        QStringList{"2026-03-10,Depot,,,", "2026-03-10,,,,12",
                                                    "2026-03-31,,,,3"});
        QTest::newRow("mileage paid")
            << QStringList{"--csv", "mileage", "--from", "2026-03-01", "--to", "2026-03-31"}
            << "0.5" << 0
            << Csv({"Date,Destination,Start,End,Total,Reimbursement", "2026-03-10,Depot,,,,",
                    "2026-03-10,,,,12,6.00", "2026-03-31,,,,3,1.50"});
        QTest::newRow("one day, both ends")
            << QStringList{"expenses", "--csv", "--from=2026-01-31", "--to=2026-01-31"} << "0.5"
            << 0 << Csv({"Date,Description,Amount", "2026-01-31,\"Parking, level 2\",4.00"});
        QTest::newRow("nothing in the period")
            << QStringList{"expenses", "--csv", "--from", "2026-02-01", "--to", "2026-02-19"} << ""
            << 1 << Csv({"Date,Description,Amount"});
        QTest::newRow("start after the end")
            << QStringList{"mileage", "--csv", "--from", "2026-03-31", "--to", "2026-01-31"}
            << "0.5" << 1 << Csv({"Date,Destination,Start,End,Total,Reimbursement"});
    }
    void printsTheCsv() {
        QFETCH(QStringList, arguments);
        QFETCH(QString, rate);
        QFETCH(int, status);
        QFETCH(QByteArray, out);
        TestEnv env;
        WritePlanner(env);
        if (!rate.isEmpty())
            env.write("UserPreferences.txt",
                      "Company Name:Acme\r\nMileage Rate:" + rate.toLatin1() + "\r\n");
        const Output output = Run(env.folder(), arguments);
        QCOMPARE(output.err, "");
        QCOMPARE(output.out, out);
        QCOMPARE(output.status, status);
    }

    // Without --csv: the heading names the period, and the last line adds up the period.
    void printsTheText_data() {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("heading");
        QTest::addColumn<QString>("total");
        QTest::newRow("expenses") << "expenses"
                                  << "Daily Expenses from Jan 31, 2026 to Mar 31, 2026"
                                  << "12 rows, total 20,953.50";
        QTest::newRow("mileage") << "mileage"
                                 << "Mileage from Jan 31, 2026 to Mar 31, 2026"
                                 << "9 rows, total 20,307, reimbursement 10,153.50";
    }
    void printsTheText() {
        QFETCH(QString, kind);
        QFETCH(QString, heading);
        QFETCH(QString, total);
        TestEnv env;
        WritePlanner(env);
        env.write("UserPreferences.txt", "Mileage Rate:0.50\r\n");
        const Output output = Run(env.folder(), QStringList{kind} + kPeriod);
        const QStringList lines = QString::fromUtf8(output.out).split(u'\n');
        QCOMPARE(lines.first(), heading);
        QCOMPARE(lines.value(lines.size() - 2), total);
        QCOMPARE(output.status, 0);
    }

    // Amounts count at their value however they are written; one that is no number is listed
    // as written and left out, and standard error says so; a description that a spreadsheet
    // would run is written as text.
    void amountsAsWritten() {
        TestEnv env;
        env.write("2026/Planner.dat",
                  "05/04/26:000000:" +
                      textfile::Encode(Record({{At::Description(0), "=cmd|' /C calc'!A0"},
                                               {At::Amount(0), "1,234.50"},
                                               {At::Description(1), "Fee"},
                                               {At::Amount(1), "$5.00"},
                                               {At::Description(2), "Tip"},
                                               {At::Amount(2), "n/a"}})) +
                      "\r\n");
        const Output csv =
            Run(env.folder(), {"expenses", "--csv", "--from", "2026-05-01", "--to", "2026-05-31"});
        QCOMPARE(csv.out, Csv({"Date,Description,Amount", "2026-05-04,'=cmd|' /C calc'!A0,1234.50",
                               "2026-05-04,Fee,5.00", "2026-05-04,Tip,n/a"}));
        QCOMPARE(csv.err, "orvanta: 1 amount is not a number and is left out of the total.\n");
        QCOMPARE(csv.status, 0);
    }

    // The pages before a faulty line are listed; the fault is reported and the status says
    // that the report may be incomplete. Nothing is written into the data folder.
    void reportsAPartlyReadYear() {
        TestEnv env;
        env.write("2026/Planner.dat",
                  "03/10/26:000000:" + textfile::Encode(Record({{At::Amount(0), "5"}})) +
                      "\r\n03/11/26:00x000:\r\n");
        const Output output =
            Run(env.folder(), {"expenses", "--csv", "--from", "2026-03-01", "--to", "2026-03-31"});
        QCOMPARE(output.out, Csv({"Date,Description,Amount", "2026-03-10,,5.00"}));
        QVERIFY(output.err.contains("ReadThisYearsPlanner"));
        QVERIFY(output.err.contains("Type mismatch (2026\\Planner.dat, line 2)"));
        QCOMPARE(output.status, 1);
        QVERIFY(!env.exists("Error.log"));
    }

    void refusesWrongCommandLines_data() {
        QTest::addColumn<QStringList>("arguments");
        // The one line expected on standard error; empty for any line starting "orvanta: ".
        QTest::addColumn<QString>("err");
        const QString years = "orvanta: Both Years in the start and end date must be the same.\n";
        const QString invalid = "orvanta: An invalid date has been entered. Please adjust.\n";
        QTest::newRow("years differ")
            << QStringList{"expenses", "--from", "2025-12-31", "--to", "2026-01-01"} << years;
        QTest::newRow("no such day")
            << QStringList{"mileage", "--from", "2026-02-01", "--to", "2026-02-30"} << invalid;
        QTest::newRow("not YYYY-MM-DD")
            << QStringList{"expenses", "--from", "2026-2-1", "--to", "2026-02-28"} << invalid;
        QTest::newRow("unknown kind")
            << QStringList{"travel", "--from", "2026-02-01", "--to", "2026-02-28"} << "";
        QTest::newRow("end without a date")
            << QStringList{"expenses", "--from", "2026-02-01", "--to"} << "";
        QTest::newRow("unknown option")
            << QStringList{"expenses", "--from", "2026-02-01", "--to", "2026-02-28", "--pdf"} << "";
    }
    void refusesWrongCommandLines() {
        QFETCH(QStringList, arguments);
        QFETCH(QString, err);
        TestEnv env;
        WritePlanner(env);
        const Output output = Run(env.folder(), arguments);
        QCOMPARE(output.status, 2);
        QCOMPARE(output.out, "");
        if (err.isEmpty()) {
            QCOMPARE(output.err.count('\n'), 1);
            QVERIFY(output.err.startsWith("orvanta: "));
        } else {
            QCOMPARE(QString::fromUtf8(output.err), err);
        }
    }
};

ORVANTA_TEST_MAIN(ReportCommandTest)
#include "tst_report_command.moc"
