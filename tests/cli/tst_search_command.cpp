// orvanta search: the dates found, in date order with a date's note before its page, the exit
// status telling found from not found, a partly read file reported, and every wrong command
// line refused with one line on standard error.
#include <QProcess>
#include <QTest>

#include "TestEnv.h"
#include "TestPaths.h"
#include "cli/Commands.h"

namespace {

struct Output {
    int status;
    QString out;
    QString err;
};

Output Run(const QStringList& arguments, const QString& folder) {
    Output output;
    QTextStream out(&output.out), err(&output.err);
    output.status = cli::RunCommand(QStringList{"search"} + arguments, folder, out, err);
    return output;
}

void WriteYears(TestEnv& env) {
    env.write("2025/Notes.dat", "12/31/25:110302:Caf\xe9 M\xfcller\r\n");
    env.write("2026/Notes.dat",
              "03/07/26:020600:M\xdcLLER\r\n"
              "01/15/26:000402:m\xfcller\r\n");
    env.write("2026/Planner.dat",
              "03/07/26:020600:Lunch with M\xfcller\r\n"
              "02/01/26:010000:Call mUller\r\n");
    env.write("Backup/Notes.dat", "03/08/26:020000:M\xfcller\r\n");
}

}  // namespace

class SearchCommandTest : public QObject {
    Q_OBJECT

private slots:
    void printsTheDatesFound_data() {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("out");
        QTest::newRow("every year, both kinds")
            << QStringList{"Müller"} << 0
            << "2025-12-31\tnotes\n2026-01-15\tnotes\n2026-03-07\tnotes\n2026-03-07\tplanner\n";
        QTest::newRow("one year, pages") << QStringList{"--planners", "MÜLLER", "--year", "2026"}
                                         << 0 << "2026-03-07\tplanner\n";
        QTest::newRow("notes, all years")
            << QStringList{"müller", "--notes", "--all-years"} << 0
            << "2025-12-31\tnotes\n2026-01-15\tnotes\n2026-03-07\tnotes\n";
        QTest::newRow("not found") << QStringList{"Mueller"} << 1 << "";
        QTest::newRow("year without a folder") << QStringList{"Müller", "--year=2024"} << 1 << "";
    }
    void printsTheDatesFound() {
        QFETCH(QStringList, arguments);
        QFETCH(int, status);
        QFETCH(QString, out);
        TestEnv env;
        WriteYears(env);
        const Output output = Run(arguments, env.folder());
        QCOMPARE(output.out, out);
        QCOMPARE(output.err, "");
        QCOMPARE(output.status, status);
    }

    void refusesWrongCommandLines_data() {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("no phrase") << QStringList{};
        QTest::newRow("blank phrase") << QStringList{"  "};
        QTest::newRow("two phrases") << QStringList{"a", "b"};
        QTest::newRow("year missing") << QStringList{"a", "--year"};
        QTest::newRow("year of two digits") << QStringList{"a", "--year", "26"};
        QTest::newRow("year and all years") << QStringList{"a", "--year", "2026", "--all-years"};
        QTest::newRow("notes and planners") << QStringList{"a", "--notes", "--planners"};
        QTest::newRow("unknown option") << QStringList{"a", "--fast"};
    }
    void refusesWrongCommandLines() {
        QFETCH(QStringList, arguments);
        TestEnv env;
        const Output output = Run(arguments, env.folder());
        QCOMPARE(output.status, 2);
        QCOMPARE(output.out, "");
        QCOMPARE(output.err.count('\n'), 1);
        QVERIFY(output.err.startsWith("orvanta: "));
    }

    // What was found before a faulty line is printed, the file is named, and the status says
    // that the answer may be incomplete.
    void reportsAPartlyReadFile() {
        TestEnv env;
        WriteYears(env);
        env.write("2026/Planner.dat",
                  "03/07/26:020600:M\xfcller\r\n"
                  "03/09/26:02x201:M\xfcller\r\n");
        const Output output = Run({"müller", "--planners"}, env.folder());
        QCOMPARE(output.out, "2026-03-07\tplanner\n");
        QCOMPARE(output.err, "orvanta: " + env.path("2026/Planner.dat") +
                                 ": line 2 could not be read (Type mismatch); the lines after it "
                                 "were not searched\n");
        QCOMPARE(output.status, 1);
    }

    // Options follow the command's phrase on the program's own command line too.
    void programTakesOptionsAfterThePhrase() {
        TestEnv env;
        WriteYears(env);
        QProcess program;
        program.start(ORVANTA_BINARY,
                      {"--data-dir", env.folder(), "search", "müller", "--year", "2025"});
        QVERIFY(program.waitForFinished(20000));
        QCOMPARE(program.readAllStandardOutput(), "2025-12-31\tnotes\n");
        QCOMPARE(program.exitCode(), 0);
    }
};

ORVANTA_TEST_MAIN(SearchCommandTest)
#include "tst_search_command.moc"
