#include <QDir>
#include <QTest>

#include "TestEnv.h"
#include "calendar/CalendarDisplay.h"
#include "calendar/CalendarMessages.h"
#include "calendar/DateActions.h"
#include "shell/ShellCommands.h"
#include "shell/ShellMessages.h"
#include "shell/TextFile.h"

namespace {

// Monday 7 September 2026 lies in cell 08:01:01.
const QDate kToday(2026, 9, 7);

class RecordingDisplay final : public CalendarDisplay {
public:
    int viewKind = 1;
    QStringList calls;

    ViewKind ViewOnShow() const override { return ViewKind(viewKind); }
    void ReDraw1MonthDateMarks() override { calls << "ReDraw1MonthDateMarks"; }
    void ReDraw6MonthDateMarks() override { calls << "ReDraw6MonthDateMarks"; }
    void ReDrawDateMarks() override { calls << "ReDrawDateMarks"; }
    void Show1MonthCalendar() override { calls << "Show1MonthCalendar"; }
    void Show6MonthCalendar() override { calls << "Show6MonthCalendar"; }
    void Show1YearCalendar() override { calls << "Show1YearCalendar"; }
};

// The program on 7 September 2026 with the given marks files, Meeting painted 255 and the
// Quick Mark colour 4242, and the views and mark reads recorded in one list.
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
    DateActions actions{env.state->services, env.state->dates, env.state->markerColors,
                        env.state->marks, display};
    ShellCommands commands{env.state->services, env.state->prefs};
    DateMarks& marks = env.state->marks;
};

const CellIndex kCell{8, 1, 1};

const QString kPrompt =
    QStringLiteral("You may input the Hover Text in the box provided. Click Cancel to ignore.");

}  // namespace

class DateActionsTest : public QObject {
    Q_OBJECT

private slots:
    void markAsStoresTheCategoryColour();
    void quickMarkUsesEntryTenAndRedrawsBeforeSaving();
    void clearMark_data();
    void clearMark();
    void hoverText_data();
    void hoverText();
    void hoverTextNeedsAMark();
    void deleteThisYearsMarksAsksFirst();
    void restoreMarksFromBackup();
    void removeAllIconsOnlyAsks();
    void networkShareDrive_data();
    void networkShareDrive();
    void createShortcut();
    void supportPages();
};

void DateActionsTest::markAsStoresTheCategoryColour() {
    Fixture f("08:01:01:77-Board");
    f.display.viewKind = 6;
    f.actions.mnuOptDateMarkAs_Click(9);
    QCOMPARE(f.env.read("2026Marks.dat"), QByteArray("08:01:01:255-Board"));
    QCOMPARE(f.env.read("2026Marks.bak"), QByteArray("08:01:01:77-Board"));
    QCOMPARE(f.display.calls, QStringList({"read 2026", "Show6MonthCalendar"}));
    VERIFY_DIALOGS(f.env.dialogs);
}

void DateActionsTest::quickMarkUsesEntryTenAndRedrawsBeforeSaving() {
    Fixture f({}, "00:00:00:1");
    f.actions.mnuOptDateQuickMark_Click();
    QCOMPARE(f.marks.MarkSet[kCell], qint16(-1));
    QCOMPARE(f.env.read("2026Marks.dat"), QByteArray("08:01:01:4242"));
    QCOMPARE(f.env.read("2027Marks.dat"), QByteArray("00:00:00:1"));
    QCOMPARE(f.env.read("2027Marks.bak"), QByteArray("00:00:00:1"));
    QCOMPARE(f.display.calls, QStringList({"ReDraw1MonthDateMarks", "ReDraw6MonthDateMarks",
                                           "ReDrawDateMarks", "read 2027", "read 2026"}));
    VERIFY_DIALOGS(f.env.dialogs);
}

void DateActionsTest::clearMark_data() {
    QTest::addColumn<int>("entry");  // the category marking the day; -1 for none
    QTest::addColumn<int>("viewKind");
    QTest::addColumn<QString>("refusal");
    QTest::addColumn<QStringList>("calls");
    QTest::newRow("unmarked") << -1 << 1 << QString() << QStringList();
    QTest::newRow("birthday") << 4 << 1 << "Use the Birthday Manager to remove this mark."
                              << QStringList();
    QTest::newRow("holiday") << 8 << 1 << "Use the Holiday Manager to remove this mark."
                             << QStringList();
    QTest::newRow("one month") << 9 << 1 << QString() << QStringList{"Show1MonthCalendar"};
    QTest::newRow("six months") << 9 << 6 << QString() << QStringList{"Show6MonthCalendar"};
    QTest::newRow("one year") << 9 << 12 << QString() << QStringList{"Show1YearCalendar"};
    QTest::newRow("no view") << 9 << 0 << QString() << QStringList();
}

void DateActionsTest::clearMark() {
    QFETCH(int, entry);
    QFETCH(int, viewKind);
    QFETCH(QString, refusal);
    QFETCH(QStringList, calls);
    Fixture probe;
    const QByteArray line = entry < 0 ? "09:01:01:255" : "08:01:01:" + probe.color(entry) + "-x";
    // Next year's mark in the same cell is cleared with it.
    Fixture f(line, "08:01:01:255");
    f.display.viewKind = viewKind;
    if (!refusal.isEmpty())
        f.env.dialogs.ExpectMsgBox(refusal, kWarningStyle, QString());
    f.actions.mnuOptDateClearMark_Click();
    VERIFY_DIALOGS(f.env.dialogs);
    QCOMPARE(f.display.calls, calls);
    const bool cleared = entry == 9;
    QCOMPARE(f.env.exists("2026Marks.dat"), !cleared);
    QCOMPARE(f.env.exists("2027Marks.dat"), !cleared);
    QCOMPARE(f.marks.MarkSet[kCell] != 0, entry >= 0 && !cleared);
    QCOMPARE(f.marks.NextMarkSet[kCell] != 0, !cleared);
    if (cleared)
        QCOMPARE(f.env.read("2026Marks.bak"), line);
}

void DateActionsTest::hoverText_data() {
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QString>("refusal");
    QTest::addColumn<QByteArray>("file");
    const QByteArray before = "08:01:01:255-old";
    QTest::newRow("text with dash")
        << "Dentist - 10 am" << QString() << QByteArray("08:01:01:255-Dentist - 10 am");
    QTest::newRow("cancel") << QString() << QString() << before;
    QTest::newRow("line break") << "two\nlines" << kHoverLineBreakMessage << before;
    QTest::newRow("unstorable") << QStringLiteral("ok \u2713")
                                << textfile::UnstorableCharacterMessage(QStringLiteral("\u2713"))
                                << before;
}

void DateActionsTest::hoverText() {
    QFETCH(QString, answer);
    QFETCH(QString, refusal);
    QFETCH(QByteArray, file);
    Fixture f("08:01:01:255-old");
    f.env.dialogs.ExpectInputBox(kPrompt,
                                 QStringLiteral("Optional Hover Text: Meeting for 9/7/2026"),
                                 QStringLiteral("old"), answer);
    if (!refusal.isEmpty())
        f.env.dialogs.ExpectMsgBox(refusal, kWarningStyle, QString());
    f.actions.mnuOptDateAttachHoverText_Click();
    VERIFY_DIALOGS(f.env.dialogs);
    QCOMPARE(f.env.read("2026Marks.dat"), file);
    QCOMPARE(f.marks.HoverText[kCell], QString::fromLatin1(file.mid(13)));
    // An unmarked day is named by its weekday.
    QCOMPARE(f.actions.HoverTitle(QDate(2026, 9, 9)),
             QStringLiteral("Optional Hover Text: Wednesday for 9/9/2026"));
}

void DateActionsTest::hoverTextNeedsAMark() {
    Fixture f("08:01:01:255-old");
    f.env.select(QDate(2026, 9, 9));
    f.env.dialogs.ExpectMsgBox(kHoverNeedsMarkMessage, kWarningStyle, QString());
    f.actions.mnuOptDateAttachHoverText_Click();
    VERIFY_DIALOGS(f.env.dialogs);
    QCOMPARE(f.env.read("2026Marks.dat"), QByteArray("08:01:01:255-old"));
    QVERIFY(!f.env.exists("2026Marks.bak"));
}

void DateActionsTest::deleteThisYearsMarksAsksFirst() {
    Fixture probe;
    const QByteArray kept = "00:04:00:" + probe.color(4) + "\r\n06:06:00:" + probe.color(8);
    const QByteArray all =
        "00:04:00:" + probe.color(4) + "\r\n02:01:00:255-Board\r\n06:06:00:" + probe.color(8);
    for (const int answer : {vb::No, vb::Yes}) {
        Fixture f(all);
        f.env.dialogs.ExpectMsgBox(
            QStringLiteral("Are you sure you want to clear all this year's marks? Note: "
                           "Holidays and Birthdays are excluded."),
            kQuestionStyle, QString(), answer);
        f.actions.mnuEditDeleteMarks_Click();
        VERIFY_DIALOGS(f.env.dialogs);
        QCOMPARE(f.env.read("2026Marks.dat"), answer == vb::Yes ? kept : all);
        QCOMPARE(f.display.calls.contains("Show1MonthCalendar"), answer == vb::Yes);
    }
}

void DateActionsTest::restoreMarksFromBackup() {
    Fixture f("01:01:01:255");
    f.env.dialogs.ExpectMsgBox(kNoMarksBackupMessage, kWarningStyle, QString());
    f.actions.mnuOptCalendarRestoreMarks_Click();
    VERIFY_DIALOGS(f.env.dialogs);
    QCOMPARE(f.display.calls, QStringList());

    f.env.write("2026Marks.bak", "08:01:01:255-restored");
    f.actions.mnuOptCalendarRestoreMarks_Click();
    VERIFY_DIALOGS(f.env.dialogs);
    QCOMPARE(f.env.read("2026Marks.dat"), QByteArray("08:01:01:255-restored"));
    QCOMPARE(f.env.read("2026Marks.bak"), QByteArray("01:01:01:255"));
    QCOMPARE(f.marks.HoverTextOf(kToday), QStringLiteral("restored"));
    QCOMPARE(f.marks.MarkSet[(CellIndex{1, 1, 1})], qint16(0));
    QCOMPARE(f.display.calls, QStringList({"read 2026", "Show1MonthCalendar"}));

    // Restoring again undoes the restore.
    f.actions.mnuOptCalendarRestoreMarks_Click();
    QCOMPARE(f.env.read("2026Marks.dat"), QByteArray("01:01:01:255"));
    QCOMPARE(f.env.read("2026Marks.bak"), QByteArray("08:01:01:255-restored"));
    QCOMPARE(f.marks.MarkSet[(CellIndex{1, 1, 1})], qint16(-1));
}

void DateActionsTest::removeAllIconsOnlyAsks() {
    Fixture f;
    f.env.dialogs.ExpectMsgBox(
        QStringLiteral("Proceeding with this action will remove all icons for "
                       "the entire month. Continue?"),
        kQuestionStyle, QStringLiteral("Preparing to remove all Icons"), vb::Yes);
    f.actions.mnuOptDateRemoveAll_Click();
    VERIFY_DIALOGS(f.env.dialogs);
    QCOMPARE(QDir(f.env.folder()).entryList(QDir::Files), QStringList());
}

void DateActionsTest::networkShareDrive_data() {
    QTest::addColumn<QString>("answer");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("d") << "d" << true;
    QTest::newRow("Z") << "Z" << true;
    QTest::newRow("cancel") << "" << false;
    QTest::newRow("dd") << "dd" << false;
    QTest::newRow("1") << "1" << false;
    QTest::newRow("d:") << "d:" << false;
    QTest::newRow("accented") << QStringLiteral("\u00e9") << false;
}

void DateActionsTest::networkShareDrive() {
    QFETCH(QString, answer);
    QFETCH(bool, accepted);
    Fixture f;
    f.env.dialogs.ExpectInputBox(
        QStringLiteral("Enter the Network Share Drive letter below. Example d, e, f, etc."),
        QStringLiteral("Setting Network Share Drive"), QString(), answer);
    if (!accepted && !answer.isEmpty())
        f.env.dialogs.ExpectMsgBox(QStringLiteral("Could not determine drive letter."),
                                   kWarningStyle, QString());
    f.commands.mnuOptNetworkShare_Click();
    VERIFY_DIALOGS(f.env.dialogs);
    QCOMPARE(f.env.state->prefs.Value(prefkey::NetworkShareDrive), accepted ? answer : QString());
    QCOMPARE(f.env.read("UserPreferences.txt")
                 .contains("\r\nNetwork Share Drive:" + answer.toLatin1() + "\r\n"),
             accepted);
}

void DateActionsTest::createShortcut() {
    Fixture f;
    f.env.dialogs.ExpectMsgBox(
        QStringLiteral("A Shortcut has been successfully added to Programs."), kInformationStyle,
        QString());
    f.commands.mnuOptCreateShortcut_Click(QStringLiteral("/opt/orvanta/orvanta"));
    QCOMPARE(
        f.env.platform.shortcuts,
        QStringList({"Shortcut to Orvanta -> /opt/orvanta/orvanta --data-dir " + f.env.folder()}));

    f.env.platform.shortcutError = VbError(70);
    f.env.dialogs.ExpectMsgBox(QStringLiteral("Unable to Create Shortcut : 70 : Permission denied"),
                               kWarningStyle, QString());
    f.commands.mnuOptCreateShortcut_Click(QStringLiteral("/opt/orvanta/orvanta"));
    VERIFY_DIALOGS(f.env.dialogs);
}

void DateActionsTest::supportPages() {
    Fixture f;
    const QString report = QStringLiteral(
        "A new window will open taking you to the Bug Report Page. Type a brief decription\r\n"
        "of the problem in the box provided and we'll get back to you as soon as possible. "
        "P.S.Don't forget to leave your email address.");
    const QString sendLog = QStringLiteral(
        "This process will copy the Error Log File to memory so that you can paste it in the\r\n"
        "the appropriate box on our website. Please make sure you are connected to the "
        "internet.");
    f.env.dialogs.ExpectMsgBox(report, kInformationStyle, QString());
    f.env.dialogs.ExpectMsgBox(sendLog, kInformationStyle, QString());
    f.env.dialogs.ExpectMsgBox(QStringLiteral("Log File not found."), kWarningStyle, QString());
    f.commands.mnuSupportReportProblem_Click();
    f.commands.mnuSupportSendErrorLog_Click();
    QCOMPARE(f.env.platform.clipboard, QString());

    f.env.write("error.LOG", "9/7/2026 10:30:00 AM\r\nAn error occurred in X.\r\n");
    f.env.dialogs.ExpectMsgBox(sendLog, kInformationStyle, QString());
    f.commands.mnuSupportSendErrorLog_Click();
    VERIFY_DIALOGS(f.env.dialogs);
    QCOMPARE(f.env.platform.clipboard,
             QStringLiteral("9/7/2026 10:30:00 AM\r\nAn error occurred in X.\r\n"));
    QCOMPARE(f.env.platform.openedUrls, QStringList({kMakerSite + "/orvanta/bug_report.htm",
                                                     kMakerSite + "/orvanta/error_log.htm"}));
}

ORVANTA_TEST_MAIN(DateActionsTest)
#include "tst_date_actions.moc"
