#include <QTest>

#include "TestEnv.h"
#include "calendar/CalendarMessages.h"

namespace {

// A complete file: one hidden category, a caption holding ":", the largest colour and 0.
const QByteArray kFile =
    "Bills:255\r\nIncome:65280\r\nAnniversary:16711680\r\nDoctor: visits:16777215*\r\n"
    "Birthday:12345\r\nParty:0\r\nDining:100\r\nEvent:101\r\nHoliday:102*\r\nMeeting:103\r\n"
    "Travel:104\r\nVacation:105\r\nQuick Marks:106\r\nToday's Date:107\r\n";

}  // namespace

class MarkerColorsTest : public QObject {
    Q_OBJECT

private slots:
    void defaultsAreDistinctLightColoursInMenuOrder();
    void fileIsReadAndWrittenBackUnchanged();
    void faultyFileKeepsLinesBeforeTheFault_data();
    void faultyFileKeepsLinesBeforeTheFault();
    void colourOfAnotherCategoryIsRefused();
};

void MarkerColorsTest::defaultsAreDistinctLightColoursInMenuOrder() {
    TestEnv env;
    MarkerColors& colors = env.state->markerColors;
    colors.HideAll();
    colors.ReadMarkerColors(env.state->services);  // no file: the defaults, and no box
    VERIFY_DIALOGS(env.dialogs);
    const QStringList captions = {"Account Payable", "Account Receivable",
                                  "Anniversary",     "Appointment",
                                  "Birthday",        "Celebration",
                                  "Dining",          "Event",
                                  "Holiday",         "Meeting",
                                  "Travel",          "Vacation",
                                  "Quick Marks",     "Today's Date"};
    QSet<quint32> seen;
    for (int i = 0; i < MarkerColors::kCount; ++i) {
        QCOMPARE(colors.Caption(i), captions[i]);
        QVERIFY(!colors.Hidden(i));
        const quint32 c = colors.Color(i);
        QVERIFY2(!seen.contains(c), qPrintable(captions[i]));
        seen.insert(c);
        // Black day numbers stay readable on it.
        const double luminance =
            0.299 * (c & 0xFF) + 0.587 * (c >> 8 & 0xFF) + 0.114 * (c >> 16 & 0xFF);
        QVERIFY2(c <= 0xFFFFFF && luminance > 150, qPrintable(captions[i]));
    }
}

void MarkerColorsTest::fileIsReadAndWrittenBackUnchanged() {
    TestEnv env;
    env.write("Marker Colors.dat", kFile);
    MarkerColors& colors = env.state->markerColors;
    colors.ReadMarkerColors(env.state->services);
    VERIFY_DIALOGS(env.dialogs);
    QCOMPARE(colors.Entry(3), (MarkerColor{"Doctor: visits", 16777215, true}));
    QCOMPARE(colors.Entry(5), (MarkerColor{"Party", 0, false}));
    QCOMPARE(colors.IndexOfColor(102), 8);
    QVERIFY(colors.IsHiddenColor(102));
    QVERIFY(!colors.IsHiddenColor(103));
    QVERIFY(!colors.IsHiddenColor(999));

    env.write("Marker Colors.dat", "stale");
    colors.SaveMarkerColors(env.state->services);
    QCOMPARE(env.read("Marker Colors.dat"), kFile);

    colors.ShowAll();
    colors.SaveMarkerColors(env.state->services);
    QCOMPARE(env.read("Marker Colors.dat"), QByteArray(kFile).replace("*", ""));
}

void MarkerColorsTest::faultyFileKeepsLinesBeforeTheFault_data() {
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<int>("linesKept");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("description");
    const QList<QByteArray> lines = kFile.split('\n');
    const auto join = [&](int n, const QByteArray& bad) {
        return lines.mid(0, n).join('\n') + (n ? "\n" : "") + bad;
    };
    QTest::newRow("empty") << QByteArray() << 0 << 62 << "Input past end of file";
    QTest::newRow("three lines") << join(3, "") << 3 << 62 << "Input past end of file";
    QTest::newRow("colour not a number")
        << join(4, "Birthday:pink\r\n") << 4 << 13 << "Type mismatch";
    QTest::newRow("no colon") << join(1, "Income\r\n") << 1 << 13 << "Type mismatch";
    QTest::newRow("negative colour") << join(6, "Dining:-5\r\n") << 6 << 6 << "Overflow";
}

void MarkerColorsTest::faultyFileKeepsLinesBeforeTheFault() {
    QFETCH(QByteArray, file);
    QFETCH(int, linesKept);
    QFETCH(int, number);
    QFETCH(QString, description);
    TestEnv env;
    env.write("Marker Colors.dat", file);
    env.expectProgramError(QStringLiteral("ReadMarkerColors"), number, description);
    MarkerColors& colors = env.state->markerColors;
    colors.ReadMarkerColors(env.state->services);
    VERIFY_DIALOGS(env.dialogs);
    MarkerColors fromFile;
    env.write("Marker Colors.dat", kFile);
    fromFile.ReadMarkerColors(env.state->services);
    for (int i = 0; i < MarkerColors::kCount; ++i) {
        const MarkerColor& expected =
            i < linesKept ? fromFile.Entry(i) : MarkerColors::Defaults()[i];
        QCOMPARE(colors.Entry(i), expected);
    }
}

void MarkerColorsTest::colourOfAnotherCategoryIsRefused() {
    MarkerColors colors;
    const MarkerColors::Entries before = MarkerColors::Defaults();
    const auto refusal = colors.SetCategory(3, QStringLiteral("Doctor"), colors.Color(9));
    QCOMPARE(refusal, std::optional<QString>(DuplicateColorMessage(QStringLiteral("Meeting"))));
    QCOMPARE(colors.SetCategory(3, QStringLiteral("Doc\r\ntor"), 0x123456),
             std::optional<QString>(kCaptionLineBreakMessage));
    for (int i = 0; i < MarkerColors::kCount; ++i)
        QCOMPARE(colors.Entry(i), before[i]);

    QCOMPARE(colors.SetCategory(3, QStringLiteral("Doctor"), colors.Color(3)), std::nullopt);
    QCOMPARE(colors.SetCategory(3, QStringLiteral("Doctor"), 0x123456), std::nullopt);
    QCOMPARE(colors.Entry(3), (MarkerColor{"Doctor", 0x123456, false}));
}

ORVANTA_TEST_MAIN(MarkerColorsTest)
#include "tst_marker_colors.moc"
