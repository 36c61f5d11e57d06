// The marks file: its bytes, its backup, its faulty lines, and the two years kept apart.
#include <QTest>

#include "TestEnv.h"
#include "shell/ShellMessages.h"

namespace {

const QDate kToday(2026, 9, 7);

}  // namespace

class MarksFileTest : public QObject {
    Q_OBJECT

private slots:
    void savesMarkedCellsInWalkOrderAndReadsThemBack() {
        TestEnv env;
        env.select(kToday);
        DateMarks& marks = env.state->marks;
        // Set out of order: the file lists month, then weekday column, then week row.
        const auto mark = [&](CellIndex cell, qint32 color, const QString& hover = {}) {
            marks.MarkSet[cell] = -1;
            marks.MarkCategory[cell] = color;
            marks.HoverText[cell] = hover;
        };
        mark({3, 2, 1}, 255, "Dentist - 10 am");
        mark({0, 3, 2}, 16777215);
        mark({0, 1, 4}, 65280, "a-b");
        mark({0, 1, 0}, 8421504);
        marks.HoverText[{5, 5, 5}] = "unmarked days are not written";
        marks.SaveThisYearsMarks();
        const QByteArray expected =
            "00:01:00:8421504\r\n00:01:04:65280-a-b\r\n00:03:02:16777215\r\n"
            "03:02:01:255-Dentist - 10 am";
        QCOMPARE(env.read("2026Marks.dat"), expected);

        TestEnv fresh;
        fresh.write("2026Marks.dat", expected);
        fresh.select(kToday);
        DateMarks& read = fresh.state->marks;
        QCOMPARE(read.MarkCategory[(CellIndex{0, 3, 2})], 16777215);
        QCOMPARE(read.VisibleMarkColor(QDate(2026, 4, 7)), std::optional<quint32>(255));
        QCOMPARE(read.HoverTextOf(QDate(2026, 4, 7)), "Dentist - 10 am");
        read.SaveThisYearsMarks();
        QCOMPARE(fresh.read("2026Marks.dat"), expected);
        VERIFY_DIALOGS(fresh.dialogs);
    }

    void oldFileBecomesBackupAndAnEmptyYearLeavesOnlyTheBackup() {
        TestEnv env;
        env.select(kToday);
        env.write("2026Marks.dat", "00:00:00:1");
        env.write("2026Marks.bak", "older");
        DateMarks& marks = env.state->marks;
        marks.ReadAndDisplayThisYearsMarks();
        marks.MarkSet[{0, 0, 0}] = 0;
        marks.MarkSet[{1, 1, 1}] = -1;
        marks.MarkCategory[{1, 1, 1}] = 2;
        marks.SaveThisYearsMarks();
        QCOMPARE(env.read("2026Marks.bak"), "00:00:00:1");
        QCOMPARE(env.read("2026Marks.dat"), "01:01:01:2");

        marks.MarkSet.Fill(0);
        marks.SaveThisYearsMarks();
        QVERIFY(!env.exists("2026Marks.dat"));
        QCOMPARE(env.read("2026Marks.bak"), "01:01:01:2");
        marks.ReadAndDisplayThisYearsMarks();
        QCOMPARE(marks.MarkSet, DayGrid<qint16>());
        VERIFY_DIALOGS(env.dialogs);
    }

    // A faulty line ends the read with the lines before it applied, and the year is not saved
    // over until it has been read whole: the lines never read stay on disk.
    void faultyLineEndsTheReadAndProtectsTheFile_data() {
        QTest::addColumn<QByteArray>("badLine");
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("description");
        QTest::newRow("short") << QByteArray("00:01") << 13 << "Type mismatch";
        QTest::newRow("colour not a number") << QByteArray("00:01:00:red") << 13 << "Type mismatch";
        QTest::newRow("dash before the colour")
            << QByteArray("00:01:00-255") << 13 << "Type mismatch";
        QTest::newRow("month 12") << QByteArray("12:00:00:255") << 9 << "Subscript out of range";
        QTest::newRow("week row 6") << QByteArray("00:00:06:255") << 9 << "Subscript out of range";
    }
    void faultyLineEndsTheReadAndProtectsTheFile() {
        QFETCH(QByteArray, badLine);
        QFETCH(int, number);
        QFETCH(QString, description);
        TestEnv env;
        env.select(kToday);
        DateMarks& marks = env.state->marks;
        marks.MarkSet[{5, 5, 5}] = -1;
        const QByteArray file = "00:00:00:1-first\r\n" + badLine + "\r\n01:00:00:3";
        env.write("2026Marks.dat", file);
        env.expectProgramError("ReadAndDisplayThisYearsMarks", number,
                               FaultDescription(description, "2026Marks.dat", 2));
        marks.ReadAndDisplayThisYearsMarks();
        VERIFY_DIALOGS(env.dialogs);
        QCOMPARE(marks.HoverText[(CellIndex{0, 0, 0})], "first");
        QCOMPARE(marks.MarkSet[(CellIndex{1, 0, 0})], qint16(0));
        QCOMPARE(marks.MarkSet[(CellIndex{5, 5, 5})], qint16(0));

        env.dialogs.ExpectMsgBox(PartlyReadFileMessage("2026Marks.dat", 2), kWarningStyle, "");
        marks.SaveThisYearsMarks();
        VERIFY_DIALOGS(env.dialogs);
        QCOMPARE(env.read("2026Marks.dat"), file);
        QVERIFY(!env.exists("2026Marks.bak"));
    }

    void nextYearsMarksKeepTheirOwnFile() {
        TestEnv env;
        // 17 March 2027 is a Wednesday in the third row; the same cell of 2026 is 18 March.
        env.write("2027Marks.dat", "02:03:02:255-Trip");
        env.select(kToday);
        DateMarks& marks = env.state->marks;
        QCOMPARE(marks.VisibleMarkColor(QDate(2027, 3, 17)), std::optional<quint32>(255));
        QCOMPARE(marks.VisibleMarkColor(QDate(2026, 3, 18)), std::nullopt);
        marks.NextHoverText[{2, 3, 2}] = "Trip home";
        marks.SaveNextYearsMarks();
        QCOMPARE(env.read("2027Marks.dat"), "02:03:02:255-Trip home");
        QVERIFY(!env.exists("2026Marks.dat"));

        env.write("2028Marks.dat", "00:00:00:7");
        env.select(QDate(2027, 1, 5));
        QCOMPARE(marks.HoverTextOf(QDate(2027, 3, 17)), "Trip home");
        QCOMPARE(marks.NextMarkCategory[(CellIndex{0, 0, 0})], 7);
        VERIFY_DIALOGS(env.dialogs);
    }
};

ORVANTA_TEST_MAIN(MarksFileTest)
#include "tst_marks_file.moc"
