#include <QTest>

#include "TestEnv.h"

namespace {

const QDate kToday(2026, 9, 7);

}  // namespace

class MarksFileTest : public QObject {
    Q_OBJECT

private slots:
    void savesMarkedCellsInWalkOrderAndReadsThemBack();
    void oldFileBecomesBackupAndEmptyYearLeavesOnlyBackup();
    void malformedLineEndsReadingKeepingEarlierLines_data();
    void malformedLineEndsReadingKeepingEarlierLines();
    void nextYearsMarksKeepTheirOwnFile();
    void hiddenCategoryIsNotVisible();
};

void MarksFileTest::savesMarkedCellsInWalkOrderAndReadsThemBack() {
    TestEnv env;
    env.select(kToday);
    DateMarks& marks = env.state->marks;
    // Set out of order: the file lists month, then weekday column, then week row.
    const auto mark = [&](CellIndex cell, qint32 color, const QString& hover = {}) {
        marks.MarkSet[cell] = -1;
        marks.MarkCategory[cell] = color;
        marks.HoverText[cell] = hover;
    };
    mark({3, 2, 1}, 255, QStringLiteral("Dentist - 10 am"));
    mark({0, 3, 2}, 16777215);
    mark({0, 1, 4}, 65280, QStringLiteral("a-b"));
    mark({0, 1, 0}, 8421504);
    marks.HoverText[{5, 5, 5}] = QStringLiteral("unmarked days are not written");
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
    QCOMPARE(read.HoverText[(CellIndex{3, 2, 1})], QStringLiteral("Dentist - 10 am"));
    QCOMPARE(read.VisibleMarkColor(QDate(2026, 4, 7)), std::optional<quint32>(255));
    QCOMPARE(read.HoverTextOf(QDate(2026, 4, 7)), QStringLiteral("Dentist - 10 am"));
    read.SaveThisYearsMarks();
    QCOMPARE(fresh.read("2026Marks.dat"), expected);
    VERIFY_DIALOGS(fresh.dialogs);
}

void MarksFileTest::oldFileBecomesBackupAndEmptyYearLeavesOnlyBackup() {
    TestEnv env;
    env.select(kToday);
    env.write("2026Marks.dat", "00:00:00:1");
    env.write("2026Marks.bak", "older");
    DateMarks& marks = env.state->marks;
    marks.MarkSet[{1, 1, 1}] = -1;
    marks.MarkCategory[{1, 1, 1}] = 2;
    marks.SaveThisYearsMarks();
    QCOMPARE(env.read("2026Marks.bak"), QByteArray("00:00:00:1"));
    QCOMPARE(env.read("2026Marks.dat"), QByteArray("01:01:01:2"));

    marks.MarkSet.Fill(0);
    marks.SaveThisYearsMarks();
    QVERIFY(!env.exists("2026Marks.dat"));
    QCOMPARE(env.read("2026Marks.bak"), QByteArray("01:01:01:2"));
    marks.ReadAndDisplayThisYearsMarks();
    QCOMPARE(marks.MarkSet, DayGrid<qint16>());
    VERIFY_DIALOGS(env.dialogs);
}

void MarksFileTest::malformedLineEndsReadingKeepingEarlierLines_data() {
    QTest::addColumn<QByteArray>("badLine");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("description");
    QTest::newRow("short") << QByteArray("00:01") << 13 << "Type mismatch";
    QTest::newRow("empty") << QByteArray("") << 13 << "Type mismatch";
    QTest::newRow("letter in index") << QByteArray("0a:01:00:255") << 13 << "Type mismatch";
    QTest::newRow("colour not a number") << QByteArray("00:01:00:red") << 13 << "Type mismatch";
    QTest::newRow("dash before colour")
        << QByteArray("00:01:00--8") << 5 << "Invalid procedure call or argument";
    QTest::newRow("month 12") << QByteArray("12:00:00:255") << 9 << "Subscript out of range";
    QTest::newRow("weekday 7") << QByteArray("00:07:00:255") << 9 << "Subscript out of range";
}

void MarksFileTest::malformedLineEndsReadingKeepingEarlierLines() {
    QFETCH(QByteArray, badLine);
    QFETCH(int, number);
    QFETCH(QString, description);
    TestEnv env;
    env.select(kToday);
    DateMarks& marks = env.state->marks;
    marks.MarkSet[{5, 5, 5}] = -1;
    env.write("2026Marks.dat", "00:00:00:1-first\r\n" + badLine + "\r\n01:00:00:3");
    env.expectProgramError(QStringLiteral("ReadAndDisplayThisYearsMarks"), number, description);
    marks.ReadAndDisplayThisYearsMarks();
    VERIFY_DIALOGS(env.dialogs);
    QCOMPARE(marks.MarkCategory[(CellIndex{0, 0, 0})], 1);
    QCOMPARE(marks.HoverText[(CellIndex{0, 0, 0})], QStringLiteral("first"));
    QCOMPARE(marks.MarkSet[(CellIndex{1, 0, 0})], qint16(0));
    QCOMPARE(marks.MarkSet[(CellIndex{5, 5, 5})], qint16(0));
}

void MarksFileTest::nextYearsMarksKeepTheirOwnFile() {
    TestEnv env;
    // 17 March 2027 is a Wednesday in the third row; the same cell of 2026 is 18 March.
    env.write("2027Marks.dat", "02:03:02:255-Trip");
    env.select(kToday);
    DateMarks& marks = env.state->marks;
    QCOMPARE(marks.VisibleMarkColor(QDate(2027, 3, 17)), std::optional<quint32>(255));
    QCOMPARE(marks.VisibleMarkColor(QDate(2026, 3, 18)), std::nullopt);
    QCOMPARE(marks.NextHoverText[(CellIndex{2, 3, 2})], QStringLiteral("Trip"));

    marks.NextHoverText[{2, 3, 2}] = QStringLiteral("Trip home");
    marks.SaveNextYearsMarks();
    QCOMPARE(env.read("2027Marks.dat"), QByteArray("02:03:02:255-Trip home"));
    QVERIFY(!env.exists("2026Marks.dat"));

    env.write("2028Marks.dat", "00:00:00:7");
    env.select(QDate(2027, 1, 5));
    QCOMPARE(marks.HoverTextOf(QDate(2027, 3, 17)), QStringLiteral("Trip home"));
    QCOMPARE(marks.MarkCategory[(CellIndex{2, 3, 2})], 255);
    QCOMPARE(marks.NextMarkCategory[(CellIndex{0, 0, 0})], 7);
    QCOMPARE(marks.VisibleMarkColor(QDate(2026, 3, 18)), std::nullopt);
    VERIFY_DIALOGS(env.dialogs);
}

void MarksFileTest::hiddenCategoryIsNotVisible() {
    TestEnv env;
    MarkerColors& colors = env.state->markerColors;
    const quint32 meeting = colors.Color(9);
    env.write("2026Marks.dat", "08:01:01:" + QByteArray::number(meeting) + "-Board");
    env.select(kToday);
    DateMarks& marks = env.state->marks;
    QCOMPARE(marks.VisibleMarkColor(kToday), std::optional<quint32>(meeting));
    QCOMPARE(marks.VisibleMarkColor(kToday.addDays(1)), std::nullopt);
    QCOMPARE(marks.VisibleMarkColor(QDate(2028, 9, 7)), std::nullopt);
    colors.SetHidden(9, true);
    QCOMPARE(marks.VisibleMarkColor(kToday), std::nullopt);
    colors.ShowAll();
    QCOMPARE(marks.VisibleMarkColor(kToday), std::optional<quint32>(meeting));
}

ORVANTA_TEST_MAIN(MarksFileTest)
#include "tst_marks_file.moc"
