// The date actions: what each one writes to the marks files, which boxes it shows and in what
// order it saves, reads and redraws.
#include <QTest>

#include "TestEnv.h"
#include "calendar/CalendarDisplay.h"
#include "calendar/CalendarMessages.h"
#include "calendar/DateActions.h"
#include "shell/TextFile.h"

namespace {

// Monday 7 September 2026 lies in cell 08:01:01.
const QDate kToday(2026, 9, 7);
const CellIndex kCell{8, 1, 1};

class RecordingDisplay final : public CalendarDisplay {
public:
    ViewKind kind = ViewKind::OneMonth;
    QStringList calls;

    ViewKind ViewOnShow() const override { return kind; }
    void ReDraw1MonthDateMarks() override { calls << "ReDraw1MonthDateMarks"; }
    void ReDraw6MonthDateMarks() override { calls << "ReDraw6MonthDateMarks"; }
    void ReDrawDateMarks() override { calls << "ReDrawDateMarks"; }
    void Show1MonthCalendar() override { calls << "Show1MonthCalendar"; }
    void Show6MonthCalendar() override { calls << "Show6MonthCalendar"; }
    void Show1YearCalendar() override { calls << "Show1YearCalendar"; }
};

// The program on 7 September 2026 with the given marks files, Meeting painted 255 and the
// Quick Mark colour 4242; the views and the mark reads are recorded in one list.
struct Fixture {
    explicit Fixture(const QByteArray& thisYear = {}, const QByteArray& nextYear = {}) {
        if (!thisYear.isEmpty())
            env.write("2026Marks.dat", thisYear);
        if (!nextYear.isEmpty())
            env.write("2027Marks.dat", nextYear);
        MarkerColors& colors = env.state->markerColors;
        colors.SetCategory(9, QStringLiteral("Meeting"), 255);
        colors.SetCategory(MarkerColors::kQuickMarkColor, QStringLiteral("Travel"), 4242);
        colors.SetCategory(MarkerColors::kQuickMarks, QStringLiteral("Quick Marks"), 9999);
        env.select(kToday);
        QObject::connect(&env.state->marks, &DateMarks::marksRead,
                         [this](int year) { display.calls << "read " + QString::number(year); });
    }
    QByteArray color(int entry) const {
        return QByteArray::number(env.state->markerColors.Color(entry));
    }

    TestEnv env;
    RecordingDisplay display;
    DateMarks& marks = env.state->marks;
    DateActions actions{env.state->services, env.state->dates, env.state->markerColors, marks,
                        display};
};

}  // namespace

class DateActionsTest : public QObject {
    Q_OBJECT

private slots:
    void markAsStoresTheCategoryColourAndRedrawsTheView() {
        Fixture f("08:01:01:77-Board");
        f.display.kind = ViewKind::SixMonths;
        f.actions.mnuOptDateMarkAs_Click(9);
        QCOMPARE(f.env.read("2026Marks.dat"), "08:01:01:255-Board");
        QCOMPARE(f.env.read("2026Marks.bak"), "08:01:01:77-Board");
        QCOMPARE(f.display.calls, QStringList({"read 2026", "Show6MonthCalendar"}));
        VERIFY_DIALOGS(f.env.dialogs);
    }

    void quickMarkUsesEntryTenAndRedrawsBeforeSaving() {
        Fixture f({}, "00:00:00:1");
        f.actions.mnuOptDateQuickMark_Click();
        QCOMPARE(f.env.read("2026Marks.dat"), "08:01:01:4242");
        QCOMPARE(f.env.read("2027Marks.bak"), "00:00:00:1");
        QCOMPARE(f.display.calls, QStringList({"ReDraw1MonthDateMarks", "ReDraw6MonthDateMarks",
                                               "ReDrawDateMarks", "read 2027", "read 2026"}));
        VERIFY_DIALOGS(f.env.dialogs);
    }

    void clearMark_data() {
        QTest::addColumn<int>("entry");  // the category marking the day; -1 for none
        QTest::addColumn<int>("view");
        QTest::addColumn<QString>("refusal");
        QTest::addColumn<QStringList>("calls");
        QTest::newRow("unmarked") << -1 << 1 << QString() << QStringList();
        QTest::newRow("birthday") << 4 << 1 << kUseBirthdayManagerMessage << QStringList();
        QTest::newRow("holiday") << 8 << 1 << kUseHolidayManagerMessage << QStringList();
        QTest::newRow("one month") << 9 << 1 << QString() << QStringList{"Show1MonthCalendar"};
        QTest::newRow("six months") << 9 << 6 << QString() << QStringList{"Show6MonthCalendar"};
        QTest::newRow("one year") << 9 << 12 << QString() << QStringList{"Show1YearCalendar"};
        QTest::newRow("no view") << 9 << 0 << QString() << QStringList();
    }
    void clearMark() {
        QFETCH(int, entry);
        QFETCH(int, view);
        QFETCH(QString, refusal);
        QFETCH(QStringList, calls);
        const QByteArray line =
            entry < 0 ? "09:01:01:255" : "08:01:01:" + Fixture().color(entry) + "-x";
        // Next year's mark in the same cell is cleared with it.
        Fixture f(line, "08:01:01:255");
        f.display.kind = ViewKind(view);
        if (!refusal.isEmpty())
            f.env.dialogs.ExpectMsgBox(refusal, kWarningStyle, QString());
        f.actions.mnuOptDateClearMark_Click();
        VERIFY_DIALOGS(f.env.dialogs);
        QCOMPARE(f.display.calls, calls);
        const bool cleared = entry == 9;
        QCOMPARE(f.env.exists("2026Marks.dat"), !cleared);
        QCOMPARE(f.env.exists("2027Marks.dat"), !cleared);
        QCOMPARE(f.marks.MarkSet[kCell] != 0, entry >= 0 && !cleared);
        if (cleared)
            QCOMPARE(f.env.read("2026Marks.bak"), line);
    }

    void hoverText_data() {
        QTest::addColumn<bool>("marked");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("refusal");
        QTest::addColumn<QByteArray>("file");
        const QByteArray before = "08:01:01:255-old";
        QTest::newRow("text with dash")
            << true << "Dentist - 10 am" << QString() << QByteArray("08:01:01:255-Dentist - 10 am");
        QTest::newRow("cancel") << true << QString() << QString() << before;
        QTest::newRow("line break") << true << "two\nlines" << kHoverLineBreakMessage << before;
        QTest::newRow("unstorable")
            << true << QStringLiteral("ok \u2713")
            << textfile::UnstorableCharacterMessage(QStringLiteral("\u2713")) << before;
        QTest::newRow("unmarked day") << false << QString() << kHoverNeedsMarkMessage << before;
    }
    void hoverText() {
        QFETCH(bool, marked);
        QFETCH(QString, answer);
        QFETCH(QString, refusal);
        QFETCH(QByteArray, file);
        Fixture f("08:01:01:255-old");
        if (!marked)
            f.env.select(QDate(2026, 9, 9));
        else
            f.env.dialogs.ExpectInputBox(kHoverPrompt, "Optional Hover Text: Meeting for 9/7/2026",
                                         "old", answer);
        if (!refusal.isEmpty())
            f.env.dialogs.ExpectMsgBox(refusal, kWarningStyle, QString());
        f.actions.mnuOptDateAttachHoverText_Click();
        VERIFY_DIALOGS(f.env.dialogs);
        QCOMPARE(f.env.read("2026Marks.dat"), file);
        QCOMPARE(f.env.exists("2026Marks.bak"), file != "08:01:01:255-old");
        // An unmarked day is named by its weekday.
        QCOMPARE(f.actions.HoverTitle(QDate(2026, 9, 9)),
                 "Optional Hover Text: Wednesday for 9/9/2026");
    }

    void deleteThisYearsMarksAsksFirstAndKeepsBirthdaysAndHolidays() {
        const Fixture probe;
        const QByteArray kept = "00:04:00:" + probe.color(4) + "\r\n06:06:00:" + probe.color(8);
        const QByteArray all = "00:04:00:" + probe.color(4) + "\r\n02:01:00:255-Board\r\n" +
                               "06:06:00:" + probe.color(8);
        for (const int answer : {vb::No, vb::Yes}) {
            Fixture f(all);
            f.env.dialogs.ExpectMsgBox(kDeleteMarksQuestion, kQuestionStyle, QString(), answer);
            f.actions.mnuEditDeleteMarks_Click();
            VERIFY_DIALOGS(f.env.dialogs);
            QCOMPARE(f.env.read("2026Marks.dat"), answer == vb::Yes ? kept : all);
            QCOMPARE(f.display.calls.contains("Show1MonthCalendar"), answer == vb::Yes);
        }
    }

    void restoreMarksFromBackupCanItselfBeUndone() {
        Fixture f("01:01:01:255");
        f.env.dialogs.ExpectMsgBox(kNoMarksBackupMessage, kWarningStyle, QString());
        f.actions.mnuOptCalendarRestoreMarks_Click();
        VERIFY_DIALOGS(f.env.dialogs);

        f.env.write("2026Marks.bak", "08:01:01:255-restored");
        f.actions.mnuOptCalendarRestoreMarks_Click();
        QCOMPARE(f.env.read("2026Marks.dat"), "08:01:01:255-restored");
        QCOMPARE(f.env.read("2026Marks.bak"), "01:01:01:255");
        QCOMPARE(f.marks.HoverTextOf(kToday), "restored");
        QCOMPARE(f.display.calls, QStringList({"read 2026", "Show1MonthCalendar"}));
        f.actions.mnuOptCalendarRestoreMarks_Click();
        QCOMPARE(f.env.read("2026Marks.dat"), "01:01:01:255");
        QCOMPARE(f.marks.MarkSet[(CellIndex{1, 1, 1})], qint16(-1));
    }
};

ORVANTA_TEST_MAIN(DateActionsTest)
#include "tst_date_actions.moc"
