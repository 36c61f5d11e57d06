// The planner window as a user works in it: a page filled with the keyboard alone and the bytes
// it saves, the line limits, the time box, the questions before a page is left, the year a
// page is saved into, and the page printed.
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QTest>

#include "MainWindowFixture.h"
#include "notes_planner/gui/NotesPlannerMenus.h"
#include "notes_planner/gui/NotesPlannerMessages.h"
#include "notes_planner/gui/PlannerPageView.h"
#include "notes_planner/gui/frmPlanner.h"
#include "shell/TextFile.h"

namespace {

const QDate kToday(2026, 9, 7);  // Monday: cell 08 01 01

void Type(const QString& text) {
    QTest::keyClicks(QApplication::focusWidget(), text);
}

void Key(int key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
}

// Enter, count times: each moves on to the next line of the page.
void Down(int count = 1) {
    for (int i = 0; i < count; ++i)
        Key(Qt::Key_Return);
}

struct PlannerFixture : MainWindowFixture {
    PlannerFixture() : MainWindowFixture(QDateTime(kToday, QTime(9, 0))) {}

    frmPlanner& Open(QAction* item = nullptr) {
        Start();
        QApplication::setActiveWindow(&frame());
        (item ? item : menu("mnuOptDateOpenPlanner"))->trigger();
        frmPlanner* planner = window.notesPlanner->plannerWindow();
        if (!planner || !QTest::qWaitForWindowActive(&frame()))
            qFatal("the planner did not open");
        return *planner;
    }
    QLineEdit* Box(int slot) const {
        return window.notesPlanner->plannerWindow()->page().Box(slot);
    }
    void Save(const QString& message = "Planner Records Updated") {
        env.dialogs.ExpectMsgBox(message, vb::OKOnly, "");
        Key(Qt::Key_S, Qt::ControlModifier);
    }
};

}  // namespace

class PlannerWindowTest : public QObject {
    Q_OBJECT

private slots:
    void pageFilledWithTheKeyboardIsSavedByteForByte() {
        PlannerFixture f;
        frmPlanner& planner = f.Open();
        QCOMPARE(planner.windowTitle(), "Planner for Monday, September 7 2026");
        QVERIFY(f.Box(0)->hasFocus());
        Type("Staff meeting");
        QTest::mouseClick(planner.page().TimeLabel(0), Qt::RightButton);  // bold
        Down();
        Type("continued");
        Key(Qt::Key_T, Qt::ControlModifier | Qt::ShiftModifier);  // Delete Time
        Key(Qt::Key_T, Qt::ControlModifier);                      // Change Time on line 1...
        Type("8:45 pm");                                          // ...gives it a time again
        Key(Qt::Key_Return);
        QCOMPARE(planner.page().TimeLabel(1)->text(), "08:45 PM");
        Key(Qt::Key_T, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(planner.page().TimeLabel(1)->text(), "");
        Down(15);
        Type("Call the bank");
        Key(Qt::Key_Space, Qt::ControlModifier);  // done
        Down(10);
        Type("Lunch");
        Down();
        Type("12.5");
        Down();
        Type("Taxi");
        Down();
        Type("$1,234,567.5");  // kept as "1234567.50", which fits its ten characters
        Down(9);
        Type("Office");
        Down();
        Type("100");
        Down();
        Type("125");
        Down();
        QCOMPARE(f.Box(kFirstAmountSlot)->text(), "12.50");
        QCOMPARE(f.Box(kTotalExpendituresSlot)->text(), "1234580.00");
        QCOMPARE(f.Box(kFirstMilesSlot)->text(), "25");
        QCOMPARE(f.Box(kTotalMileageSlot)->text(), "25");
        f.Save();
        VERIFY_DIALOGS(f.env.dialogs);
        QVERIFY(!f.env.state->changes.PlannerChanged);

        PlannerPage page = NewPlannerPage();
        page.bold[0] = true;
        page.times[1].clear();
        page.slotTexts[0] = "Staff meeting";
        page.slotTexts[1] = "continued";
        page.slotTexts[kFirstToDoSlot] = "Call the bank";
        page.done[0] = true;
        page.slotTexts[kFirstExpenseSlot] = "Lunch";
        page.slotTexts[kFirstAmountSlot] = "12.50";
        page.slotTexts[kFirstExpenseSlot + 1] = "Taxi";
        page.slotTexts[kFirstAmountSlot + 1] = "1234567.50";
        page.slotTexts[kTotalExpendituresSlot] = "1234580.00";
        page.slotTexts[kFirstDestinationSlot] = "Office";
        page.slotTexts[kFirstBeginSlot] = "100";
        page.slotTexts[kFirstEndSlot] = "125";
        page.slotTexts[kFirstMilesSlot] = "25";
        page.slotTexts[kTotalMileageSlot] = "25";
        const QByteArray line = f.env.read("2026/Planner.dat");
        QCOMPARE(line, "09/07/26:080101:" + textfile::Encode(BuildPlannerRecord(page)) + "\r\n");
        QCOMPARE(line.mid(16, 12), "B06:00 AM St");
        QCOMPARE(line.mid(16 + 160, 12), "          co");  // continuance: no time, no "B"
        QCOMPARE(line.mid(16 + 4090, 2).toHex(), "f3f5");  // item 1 done, item 2 not
        QVERIFY(f.env.state->planner.HasPlanner(kToday));
    }

    void lineLimitsWarnButKeepTheText() {
        PlannerFixture f;
        f.Open();
        const QString typed = QString(140, 'w') + QString(11, 'x');
        Type(typed);
        f.env.dialogs.ExpectMsgBox(kTooWideMessage, kWarningStyle, "")
            .ExpectMsgBox(
                "There are too many characters on this line (more than 150).  The "
                "excess text will be truncated if saved to a file.",
                kWarningStyle, "");
        Key(Qt::Key_Tab);
        QCOMPARE(f.Box(0)->text(), typed);
        Type("Lunch");  // short enough: nothing is said
        Key(Qt::Key_Tab);
        f.Save();
        VERIFY_DIALOGS(f.env.dialogs);
        // The record keeps 150 characters; the next line's time follows.
        QCOMPARE(f.env.read("2026/Planner.dat").mid(16 + 10, 151),
                 QByteArray(140, 'w') + "xxxxxxxxxx0");
    }

    void timeBoxRefusesWhatIsNoTime_data() {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("shown");  // "" refused
        QTest::newRow("sample format") << "8:45 PM"
                                       << "08:45 PM";
        QTest::newRow("24-hour") << "13:05"
                                 << "01:05 PM";
        QTest::newRow("empty makes a continuance") << ""
                                                   << "";
        QTest::newRow("hour 25") << "25:00"
                                 << "refused";
        QTest::newRow("words") << "noon"
                               << "refused";
    }
    void timeBoxRefusesWhatIsNoTime() {
        QFETCH(QString, typed);
        QFETCH(QString, shown);
        PlannerFixture f;
        frmPlanner& planner = f.Open();
        QTest::mouseClick(planner.page().TimeLabel(3), Qt::LeftButton);
        auto* txtTime = planner.Control<QLineEdit>("txtTime");
        QVERIFY(txtTime->hasFocus());
        QCOMPARE(txtTime->text(), "09:00 AM");
        txtTime->clear();
        Type(typed);
        if (shown == "refused")
            f.env.dialogs.ExpectMsgBox(kBadTimeMessage, kWarningStyle, "");
        Key(Qt::Key_Return);
        VERIFY_DIALOGS(f.env.dialogs);
        QCOMPARE(planner.page().TimeLabel(3)->text(), shown == "refused" ? "09:00 AM" : shown);
        QCOMPARE(planner.page().Box(3)->property("tag").toString(),
                 shown.isEmpty() ? "150.Push" : "150.Stop");
    }

    void leavingAChangedPageAsks_data() {
        QTest::addColumn<int>("answer");
        QTest::newRow("Yes saves and moves on") << int(vb::Yes);
        QTest::newRow("No moves on") << int(vb::No);
        QTest::newRow("Cancel stays") << int(vb::Cancel);
    }
    void leavingAChangedPageAsks() {
        QFETCH(int, answer);
        PlannerFixture f;
        frmPlanner& planner = f.Open();
        f.Box(0)->setFocus();
        QTest::mouseClick(planner.Control<QPushButton>("cmdDay_1"), Qt::LeftButton);
        QCOMPARE(planner.date(), kToday.addDays(1));  // nothing typed: nothing asked
        Type("Dentist");
        f.env.dialogs.ExpectMsgBox(kPlannerCloseQuestion, vb::YesNoCancel | vb::Question,
                                   kPlannerCloseTitle, answer);
        if (answer == vb::Yes)
            f.env.dialogs.ExpectMsgBox("Planner Records Updated", vb::OKOnly, "");
        Key(Qt::Key_PageUp, Qt::ControlModifier);
        VERIFY_DIALOGS(f.env.dialogs);
        QCOMPARE(planner.date(), answer == vb::Cancel ? kToday.addDays(1) : kToday);
        QCOMPARE(f.Box(0)->text(), answer == vb::Cancel ? "Dentist" : "");
        QCOMPARE(f.env.state->planner.HasPlanner(kToday.addDays(1)), answer == vb::Yes);

        // Closing the program with the planner open asks as well; No keeps it running.
        if (answer == vb::Cancel)
            f.env.dialogs.ExpectMsgBox(
                "The Planner has been changed. Do you want to save those changes?",
                vb::YesNoCancel | vb::Question, "Planner Has Changed", vb::No);
        f.env.dialogs.ExpectMsgBox(
            "Are you sure you want to close the program? Click No to keep this\r\nWindow Open "
            "and then use the Escape Key to return to the Calendar View.",
            kQuestionStyle, "Preparing to Close the Application", vb::No);
        QVERIFY(!f.frame().close());
        VERIFY_DIALOGS(f.env.dialogs);
        QVERIFY(f.window.notesPlanner->plannerWindow());
    }

    void pageOfNextYearIsSavedIntoNextYearsFile() {
        PlannerFixture f;
        f.Start();
        f.env.state->dates.SelectDate(QDate(2027, 1, 4));
        frmPlanner& planner = *f.window.notesPlanner->OpenPlanner();
        planner.page().Box(0)->setText("Next year");
        // The calendar goes back to 2026, which makes the page's year next year.
        f.env.state->dates.SelectDate(QDate(2026, 12, 30));
        f.env.dialogs.ExpectMsgBox("Planner Saved", vb::OKOnly, "");
        QVERIFY(planner.mnuFileSave_Click());
        VERIFY_DIALOGS(f.env.dialogs);
        QVERIFY(f.env.read("2027/Planner.dat").startsWith("01/04/27:000101:06:00 AM  Next year"));
        QVERIFY(!f.env.exists("2026/Planner.dat"));
    }

    void toDoImportAsksAndFillsFromTheDefaultList() {
        PlannerFixture f;
        f.env.write("To Do.dat", "\xf5\r\n\xf3  Pay rent  \r\n\xf5Post\r\n");
        frmPlanner& planner = f.Open();
        f.Box(kFirstToDoSlot)->setText("mine");
        f.env.dialogs.ExpectMsgBox(kToDoImportQuestion, kQuestionStyle, kToDoImportTitle, vb::No);
        Key(Qt::Key_I, Qt::ControlModifier);
        QCOMPARE(f.Box(kFirstToDoSlot + 1)->text(), "");
        f.env.dialogs.ExpectMsgBox(
            "This action may overwrite certain existing To Do Items. "
            "Continue?",
            kQuestionStyle, "Replacing Some To Do Items", vb::Yes);
        Key(Qt::Key_I, Qt::ControlModifier);
        VERIFY_DIALOGS(f.env.dialogs);
        QCOMPARE(f.Box(kFirstToDoSlot)->text(), "mine");  // an empty row leaves the item
        QCOMPARE(f.Box(kFirstToDoSlot + 1)->text(), "Pay rent");
        QVERIFY(planner.page().IsDone(1) && !planner.page().IsDone(2));
        QCOMPARE(f.Box(kFirstToDoSlot + 2)->text(), "Post");

        // The preview shows the page as it prints, and gives the page back.
        QAction* preview = planner.Control<QAction>("mnuFilePreview");
        preview->trigger();
        QCOMPARE(preview->text(), "Resume Editing");
        QVERIFY(planner.Control<QWidget>("picPreview")->isVisible());
        preview->trigger();
        QCOMPARE(preview->text(), "Print Preview");
        QVERIFY(f.Box(0)->isVisible());
    }

    void printoutHoldsEveryPartOfThePage() {
        PlannerFixture f;
        frmPlanner& planner = f.Open();
        PlannerPage page = NewPlannerPage();
        page.bold[2] = true;
        page.slotTexts[2] = "Board meeting " + QString(120, 'z');
        page.slotTexts[kFirstToDoSlot + 9] = "Last item";
        page.done[9] = true;
        page.slotTexts[kTotalExpendituresSlot] = "19.50";
        page.slotTexts[kFirstDestinationSlot + 4] = "Airport";
        page.slotTexts[kTotalMileageSlot] = "42";
        planner.page().SetPage(page);
        f.env.state->search.phrase = "AIRPORT";
        planner.mnuEditSearchAgain_Click();
        QCOMPARE(f.Box(kFirstDestinationSlot + 4)->selectedText(), "Airport");
        f.env.dialogs.ExpectMsgBox("No more occurences.", vb::OKOnly, "");
        planner.mnuEditSearchAgain_Click();
        VERIFY_DIALOGS(f.env.dialogs);

        Key(Qt::Key_P, Qt::ControlModifier);
        QCOMPARE(f.printer.files().size(), 1);
        QProcess text;
        text.start("pdftotext", {"-layout", f.printer.files()[0], "-"});
        QVERIFY(text.waitForFinished());
        const QString printed = QString::fromUtf8(text.readAllStandardOutput());
        for (const char* expected :
             {"Orvanta: Daily Planner", "Monday, September 7, 2026", "08:00 AM", "Board meeting",
              "09:00 PM", "[x]", "Last item", "Total Expenditures", "19.50", "Airport",
              "Total Mileage", "42"})
            QVERIFY2(printed.contains(expected), expected);
        QVERIFY(printed.contains(QString(60, 'z')));  // the long line wraps, whole
    }
};

ORVANTA_TEST_MAIN(PlannerWindowTest)
#include "tst_planner_window.moc"
