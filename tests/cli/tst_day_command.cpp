// orvanta day: a whole page printed as text, and every wrong command line refused with one
// line on standard error, exit status 2 and no file touched.
#include <QDir>
#include <QProcess>
#include <QTest>

#include "TestEnv.h"
#include "TestPaths.h"
#include "cli/Commands.h"
#include "shell/TextFile.h"

namespace {

struct Output {
    int status;
    QString out;
    QString err;
};

Output Run(const QStringList& command, const QString& folder) {
    Output output;
    QTextStream out(&output.out), err(&output.err);
    output.status = cli::RunCommand(command, folder, out, err);
    return output;
}

// March 7, 2026: marked "Anniversary" with a hover text, a note and a full planner page.
void WriteDay(TestEnv& env) {
    const quint32 anniversary = MarkerColors::Defaults()[2].color;
    env.write("2026Marks.dat", "02:06:00:" + QByteArray::number(anniversary) + "-Dinner at 8");
    env.write("2026/Notes.dat",
              "03/07/26:020600:Buy flowers\xd5\xd2"
              "for Ren\xe9"
              "e\r\n");
    PlannerPage page;
    page.times = {"06:00 AM", "07:00 AM", ""};
    page.bold[0] = true;
    page.slotTexts[0] = "Staff meeting";
    page.slotTexts[2] = "continued";
    page.slotTexts[kFirstToDoSlot] = "Call the bank";
    page.done[0] = page.done[5] = true;
    page.slotTexts[kFirstExpenseSlot] = "Lunch";
    page.slotTexts[kFirstAmountSlot] = "12.50";
    page.slotTexts[kTotalExpendituresSlot] = "12.50";
    page.slotTexts[kFirstDestinationSlot] = "Springfield";
    page.slotTexts[kFirstBeginSlot] = "12000";
    page.slotTexts[kFirstEndSlot] = "12042";
    page.slotTexts[kFirstMilesSlot] = "42";
    page.slotTexts[kTotalMileageSlot] = "42";
    env.write("2026/Planner.dat", "03/07/26:020600:" + textfile::Encode(BuildPlannerRecord(page)));
}

}  // namespace

class DayCommandTest : public QObject {
    Q_OBJECT

private slots:
    void printsTheWholeDay() {
        TestEnv env;
        WriteDay(env);
        const Output output = Run({"day", "2026-03-07"}, env.folder());
        QCOMPARE(output.err, "");
        QCOMPARE(output.status, 0);
        QCOMPARE(output.out,
                 "Saturday, March 7 2026\n"
                 "Mark: Anniversary\n"
                 "Hover text: Dinner at 8\n"
                 "\nNotes:\nBuy flowers\nfor Ren\u00e9e\n"
                 "\nPlanner:\n"
                 "Appointments - Events - Meetings\n"
                 "  06:00 AM (bold)  Staff meeting\n"
                 "                   continued\n"
                 "To Do List\n"
                 "  [x] Call the bank\n"
                 "  [x] \n"
                 "Expenditures\n"
                 "  Lunch" +
                     QString(47, ' ') +
                     "     12.50\n"
                     "  Total Expenditures" +
                     QString(34, ' ') +
                     "     12.50\n"
                     "Mileage Records\n"
                     "  Springfield" +
                     QString(29, ' ') +
                     "  begin      12000  end      12042"
                     "  miles         42\n"
                     "  Total Mileage: 42\n");
        QCOMPARE(Run({"day", "2026-03-08"}, env.folder()).out,
                 "Sunday, March 8 2026\nNo mark, note or planner page on this date.\n");
    }

    void wrongCommandLinesChangeNothing_data() {
        QTest::addColumn<QStringList>("command");
        QTest::addColumn<bool>("folderExists");
        QTest::newRow("no date") << QStringList{"day"} << true;
        QTest::newRow("not ISO") << QStringList{"day", "3/7/2026"} << true;
        QTest::newRow("no such day") << QStringList{"day", "2026-02-29"} << true;
        QTest::newRow("unknown command") << QStringList{"week", "2026-03-07"} << true;
        QTest::newRow("no data folder") << QStringList{"day", "2026-03-07"} << false;
    }
    void wrongCommandLinesChangeNothing() {
        QFETCH(QStringList, command);
        QFETCH(bool, folderExists);
        TestEnv env;
        const QString folder = folderExists ? env.folder() : env.path("missing");
        const Output output = Run(command, folder);
        QCOMPARE(output.status, 2);
        QCOMPARE(output.out, "");
        QCOMPARE(output.err.count('\n'), 1);
        QVERIFY(output.err.startsWith("orvanta: "));
        QCOMPARE(QDir(env.folder()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), {});
    }

    // The program itself: no display is needed, and a damaged file is reported without
    // writing Error.log.
    void runsWithoutDisplayAndWritesNoLog() {
        TestEnv env;
        WriteDay(env);
        env.write("2026/Notes.dat", "03/07/26:0206x0:bad\r\n");
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            environment.remove(QString::fromLatin1(name));
        program.setProcessEnvironment(environment);
        program.start(ORVANTA_BINARY, {"--data-dir", env.folder(), "day", "2026-03-07"});
        QVERIFY(program.waitForFinished(20000));
        QCOMPARE(program.exitCode(), 1);
        QVERIFY(program.readAllStandardOutput().contains("Staff meeting"));
        const QByteArray err = program.readAllStandardError();
        QVERIFY(err.contains("ReadThisYearsNotes"));
        QVERIFY(err.contains("Type mismatch (2026\\Notes.dat, line 1)"));
        QVERIFY(!env.exists("Error.log"));
    }
};

ORVANTA_TEST_MAIN(DayCommandTest)
#include "tst_day_command.moc"
