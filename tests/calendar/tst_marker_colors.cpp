// "Marker Colors.dat": the fourteen categories, their defaults, the file read and written back,
// a faulty file, and the rule that no two categories share a colour.
#include <QTest>

#include "TestEnv.h"
#include "calendar/CalendarMessages.h"
#include "shell/ShellMessages.h"

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
    void defaultsAreDistinctLightColoursInMenuOrder() {
        const MarkerColors::Entries& defaults = MarkerColors::Defaults();
        QSet<quint32> seen;
        for (const MarkerColor& entry : defaults) {
            const quint32 c = entry.color;
            QVERIFY2(!seen.contains(c), qPrintable(entry.caption));
            seen.insert(c);
            // Black day numbers stay readable on it.
            const double luma = 0.299 * (c & 0xFF) + 0.587 * (c >> 8 & 0xFF) + 0.114 * (c >> 16);
            QVERIFY2(c <= 0xFFFFFF && luma > 150, qPrintable(entry.caption));
        }
    }

    void fileIsReadAndWrittenBackUnchanged() {
        TestEnv env;
        env.write("Marker Colors.dat", kFile);
        MarkerColors& colors = env.state->markerColors;
        colors.ReadMarkerColors(env.state->services);
        VERIFY_DIALOGS(env.dialogs);
        QCOMPARE(colors.Entry(3), (MarkerColor{"Doctor: visits", 16777215, true}));
        QCOMPARE(colors.Entry(5), (MarkerColor{"Party", 0, false}));
        QVERIFY(colors.IsHiddenColor(102));
        QVERIFY(!colors.IsHiddenColor(103));

        QFile::remove(env.path("Marker Colors.dat"));
        colors.SaveMarkerColors(env.state->services);
        QCOMPARE(env.read("Marker Colors.dat"), kFile);
    }

    // The lines before a fault are kept, the defaults fill the rest, and the file is not saved
    // over until it has been read whole.
    void faultyFileKeepsLinesBeforeTheFaultAndIsNotOverwritten_data() {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<int>("linesKept");
        QTest::addColumn<int>("number");
        const QList<QByteArray> lines = kFile.split('\n');
        const auto join = [&](int n, const QByteArray& bad) {
            return lines.mid(0, n).join('\n') + (n ? "\n" : "") + bad;
        };
        QTest::newRow("empty") << QByteArray() << 0 << 62;
        QTest::newRow("three lines") << join(3, "") << 3 << 62;
        QTest::newRow("colour not a number") << join(4, "Birthday:pink\r\n") << 4 << 13;
        QTest::newRow("no colon") << join(1, "Income\r\n") << 1 << 13;
        QTest::newRow("negative colour") << join(6, "Dining:-5\r\n") << 6 << 6;
    }
    void faultyFileKeepsLinesBeforeTheFaultAndIsNotOverwritten() {
        QFETCH(QByteArray, file);
        QFETCH(int, linesKept);
        QFETCH(int, number);
        TestEnv env;
        env.write("Marker Colors.dat", file);
        env.expectProgramError("ReadMarkerColors", number,
                               FaultDescription(VbError::StandardDescription(number),
                                                "Marker Colors.dat", linesKept + 1));
        MarkerColors& colors = env.state->markerColors;
        colors.ReadMarkerColors(env.state->services);
        QCOMPARE(colors.Entry(0).caption, linesKept ? "Bills" : "Account Payable");
        QCOMPARE(colors.Entry(linesKept), MarkerColors::Defaults()[linesKept]);
        env.dialogs.ExpectMsgBox(PartlyReadFileMessage("Marker Colors.dat", linesKept + 1),
                                 kWarningStyle, "");
        colors.SaveMarkerColors(env.state->services);
        VERIFY_DIALOGS(env.dialogs);
        QCOMPARE(env.read("Marker Colors.dat"), file);
    }

    void colourOfAnotherCategoryIsRefused() {
        MarkerColors colors;
        QCOMPARE(colors.SetCategory(3, "Doctor", colors.Color(9)),
                 std::optional<QString>(DuplicateColorMessage("Meeting")));
        QCOMPARE(colors.SetCategory(3, "Doc\r\ntor", 0x123456),
                 std::optional<QString>(kCaptionLineBreakMessage));
        QCOMPARE(colors.SetCategory(3, "", 0x123456), std::optional<QString>(kEmptyCaptionMessage));
        QCOMPARE(colors.Entry(3), MarkerColors::Defaults()[3]);
        QCOMPARE(colors.SetCategory(3, "Doctor", 0x123456), std::nullopt);
        QCOMPARE(colors.Entry(3), (MarkerColor{"Doctor", 0x123456, false}));

        // Colours are compared as they will be stored: bits above the colour do not count.
        MarkerColors::Entries entries = MarkerColors::Defaults();
        entries[2].color = entries[1].color | 0x1000000;
        QCOMPARE(colors.SetCategories(entries),
                 std::optional<QString>(DuplicateColorMessage("Account Receivable")));
    }
};

ORVANTA_TEST_MAIN(MarkerColorsTest)
#include "tst_marker_colors.moc"
