// The alert manager and the main window's alert indicator: which line a save replaces, the
// orders of the lists, the refusals, and what the main window and the notification area show.
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "MainWindowFixture.h"
#include "reminders/gui/AlertTray.h"
#include "reminders/gui/RemindersMenus.h"
#include "reminders/gui/frmAlert.h"
#include "shell/TextFile.h"

namespace {

// Monday 7 September 2026 is day 46272.
const QDate kToday(2026, 9, 7);
const QString kUpdated = "Alert List Updated.";
const QString kOverwrite =
    "You have edited an existing alert. Do you want to over-write this alert?\r\n"
    "Click Yes to save changes to the existing alert, No to save this as a\r\n"
    "new alert or Cancel to return to the alert.";

struct AlertFixture : MainWindowFixture {
    explicit AlertFixture(const QByteArray& alerts = {})
        : MainWindowFixture(QDateTime(kToday, QTime(9, 0))) {
        if (!alerts.isEmpty())
            env.write("Alerts.dat", alerts);
        Start();
        QApplication::setActiveWindow(&frame());
    }
    frmAlert& Open(const char* item = "mnuManageAlerts") {
        menu(item)->trigger();
        return *window.reminders->alertWindow();
    }
    template <class T>
    T* In(const QString& name) const {
        return window.reminders->alertWindow()->Control<T>(name);
    }
    QStringList Shown(int member) const {
        QStringList texts;
        auto* list = In<QListWidget>(ArrayName("lstAlerts", member));
        for (int row = 0; row < list->count(); ++row)
            texts << list->item(row)->text();
        return texts;
    }
    // Selects a row of the list on view, as a click does.
    void Pick(int row) const {
        auto* list = In<QListWidget>(ArrayName("lstAlerts", 1));
        if (!list->isVisible())
            list = In<QListWidget>(ArrayName("lstAlerts", 2));
        list->setCurrentRow(row);
    }
    void Click(const QString& button) const { In<QPushButton>(button)->click(); }
    void Trigger(const QString& item) const { In<QAction>(item)->trigger(); }
    QColor AlertButtonColor() const {
        return control<QPushButton>("cmdAlert")->palette().color(QPalette::Button);
    }
};

}  // namespace

class AlertManagerTest : public QObject {
    Q_OBJECT

private slots:
    void newAlertIsSavedAndShownOnTheMainWindow() {
        AlertFixture f;
        QVERIFY(f.control<QLabel>("lblAlert")->isVisible());
        frmAlert& window = f.Open();
        QCOMPARE(f.In<QLabel>("lblList")->text(), "Active Alert List (Empty)");
        QCOMPARE(f.In<QLabel>("lblMessage")->text(), "Adding New Alert");
        f.In<QLineEdit>("txtDate")->setText("09/10/26");
        f.In<QLineEdit>("txtMessage")->setText("Send the figures: Q3");
        f.In<QRadioButton>(ArrayName("optValue", 0))->click();
        QCOMPARE(f.In<QLineEdit>("txtValue")->text(), "10");
        f.In<QRadioButton>(ArrayName("optValue", 1))->click();
        QCOMPARE(f.In<QLineEdit>("txtValue")->text(), "7");
        f.env.dialogs.ExpectMsgBox(kUpdated, vb::OKOnly, "");
        f.Click(ArrayName("cmdSave", frmAlert::kSaveAndContinue));
        VERIFY_DIALOGS(f.env.dialogs);
        QCOMPARE(f.env.read("Alerts.dat"), "46275:0007:Send the figures: Q3\r\n");
        QCOMPARE(f.In<QLabel>("lblList")->text(), "Active Alert List: 1 Alerts");
        QCOMPARE(f.In<QLabel>("lblMessage")->text(), "Editing Existing Alert");

        auto* button = f.control<QPushButton>("cmdAlert");
        QVERIFY(button->isVisible() && !f.control<QLabel>("lblAlert")->isVisible());
        QCOMPARE(button->text(), "1 Pending Alert");
        QCOMPARE(button->toolTip(), "Left Click to View, Right Click to Ignore.");
        QCOMPARE(f.control<QLabel>("imgAlert_0")->toolTip(), "Alerts Exist");
        QCOMPARE(f.AlertButtonColor(), QColor(255, 255, 0));
        QCOMPARE(f.control<QListWidget>("lstAlerts")->item(0)->text(), "Send the figures: Q3");

        // Ignored, it looks as if nothing were pending; the next day shows it again.
        emit button->customContextMenuRequested({});
        QCOMPARE(f.AlertButtonColor(), QApplication::palette().color(QPalette::Button));
        QCOMPARE(button->text(), "1 Pending Alert");
        f.env.clock.Set(QDateTime(kToday.addDays(1), QTime(0, 1)));
        f.frame().Timer1_Timer();
        QCOMPARE(f.AlertButtonColor(), QColor(255, 255, 0));
        QCOMPARE(f.window.reminders->tray().lastMessage(),
                 "1 Pending Alert\n09/10/26  Send the figures: Q3");

        // Save and Exit closes the window; a save of the alert asks about overwriting it.
        f.env.dialogs
            .ExpectMsgBox(kOverwrite, vb::YesNoCancel | vb::Question,
                          "Existing Alert has been Changed", vb::Yes)
            .ExpectMsgBox(kUpdated, vb::OKOnly, "");
        window.cmdSave_Click(frmAlert::kSaveAndExit);
        QCOMPARE(f.window.reminders->alertWindow(), nullptr);
    }

    void overwriteQuestionDecidesWhatIsSaved_data() {
        QTest::addColumn<int>("answer");
        QTest::addColumn<QByteArray>("file");
        const QByteArray alpha = "46275:0007:alpha\r\n";
        QTest::newRow("Yes replaces") << int(vb::Yes) << alpha + "46280:0003:beta 2\r\n";
        QTest::newRow("No adds") << int(vb::No)
                                 << alpha + "46280:0003:beta\r\n46280:0003:beta 2\r\n";
        QTest::newRow("Cancel keeps") << int(vb::Cancel) << alpha + "46280:0003:beta\r\n";
    }
    void overwriteQuestionDecidesWhatIsSaved() {
        QFETCH(int, answer);
        QFETCH(QByteArray, file);
        AlertFixture f("46275:0007:alpha\r\n46280:0003:beta\r\n");
        f.Open();
        f.Pick(1);
        QCOMPARE(f.In<QLineEdit>("txtValue")->text(), "3");
        f.In<QLineEdit>("txtMessage")->setText("beta 2");
        f.env.dialogs.ExpectMsgBox(kOverwrite, vb::YesNoCancel | vb::Question,
                                   "Existing Alert has been Changed", answer);
        if (answer != vb::Cancel)
            f.env.dialogs.ExpectMsgBox(kUpdated, vb::OKOnly, "");
        f.Trigger("mnuFileSave");
        VERIFY_DIALOGS(f.env.dialogs);
        QCOMPARE(f.env.read("Alerts.dat"), file);
        QCOMPARE(f.In<QLineEdit>("txtMessage")->text(), "beta 2");
    }

    // The shown lists are sorted and filtered, so the alert a save replaces is found through
    // list 3, never by its place in the list on view.
    void editsReplaceTheAlertShownAfterSortsAndInPendingView() {
        AlertFixture f(
            "46300:0000:zulu\r\n46275:0007:mike\r\n46272:0000:alpha\r\n46640:0005:bravo\r\n");
        f.Open();
        f.Trigger("mnuSortMessage");
        QVERIFY(f.In<QListWidget>("lstAlerts_2")->isVisible());
        QVERIFY(!f.In<QListWidget>("lstAlerts_1")->isVisible());
        QCOMPARE(f.Shown(2), QStringList({"alpha", "bravo", "mike", "zulu"}));
        QCOMPARE(f.In<QLineEdit>("txtMessage")->text(), "alpha");  // the first one, loaded
        f.In<QLineEdit>("txtValue")->setText("5");
        f.env.dialogs
            .ExpectMsgBox(kOverwrite, vb::YesNoCancel | vb::Question,
                          "Existing Alert has been Changed", vb::Yes)
            .ExpectMsgBox(kUpdated, vb::OKOnly, "");
        f.Click("cmdSave_1");
        QCOMPARE(f.env.read("Alerts.dat"),
                 "46300:0000:zulu\r\n46275:0007:mike\r\n46640:0005:bravo\r\n46272:0005:alpha\r\n");

        f.Trigger("mnuViewPending");
        QCOMPARE(f.Shown(2), QStringList({"alpha", "mike"}));
        f.Pick(1);
        f.In<QLineEdit>("txtMessage")->setText("mike 2");
        f.env.dialogs
            .ExpectMsgBox(kOverwrite, vb::YesNoCancel | vb::Question,
                          "Existing Alert has been Changed", vb::Yes)
            .ExpectMsgBox(kUpdated, vb::OKOnly, "");
        f.Click("cmdSave_1");
        VERIFY_DIALOGS(f.env.dialogs);
        QCOMPARE(f.env.read("Alerts.dat"),
                 "46300:0000:zulu\r\n46640:0005:bravo\r\n"
                 "46272:0005:alpha\r\n46275:0007:mike 2\r\n");

        // By date, a date of next year comes after those of this year, whatever its text.
        f.Trigger("mnuViewAll");
        f.Trigger("mnuSortDate");
        QCOMPARE(f.Shown(1), QStringList({"09/07/26", "09/10/26", "10/05/26", "09/10/27"}));
        QCOMPARE(f.Shown(3), QStringList({"2", "3", "0", "1"}));
        QCOMPARE(f.Shown(0).size(), 4);
    }

    void deleteExpiredKeepsTodaysAlert() {
        AlertFixture f(
            "46271:0009:yesterday\r\n46272:0000:today\r\n46100:0000:older\r\n"
            "46300:0001:later\r\n");
        f.Open();
        f.env.dialogs.ExpectMsgBox(kUpdated, vb::OKOnly, "");
        f.Trigger("mnuOptDeleteOldAlerts");
        VERIFY_DIALOGS(f.env.dialogs);
        QCOMPARE(f.env.read("Alerts.dat"), "46272:0000:today\r\n46300:0001:later\r\n");
    }

    void refusedSaveKeepsTheEditorAndTheFile_data() {
        QTest::addColumn<QString>("period");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("refusal");
        QTest::addColumn<int>("style");
        QTest::newRow("no period")
            << ""
            << "x"
            << "Please edit the value of the Alert Period" << int(vb::OKOnly);
        QTest::newRow("over 9999 days")
            << "12345"
            << "x"
            << "An alert cannot be set greater than 9999 days." << int(vb::OKOnly);
        QTest::newRow("character the file cannot hold")
            << "2"
            << "Call \u2192 Anna" << textfile::UnstorableCharacterMessage("\u2192")
            << kWarningStyle;
    }
    void refusedSaveKeepsTheEditorAndTheFile() {
        QFETCH(QString, period);
        QFETCH(QString, message);
        QFETCH(QString, refusal);
        QFETCH(int, style);
        AlertFixture f;
        f.Open();
        auto* days = f.In<QLineEdit>("txtValue");
        days->setFocus();
        QTest::keyClicks(days, "1a-2");  // only digits are typed
        QCOMPARE(days->text(), "12");
        days->setText(period);
        f.In<QLineEdit>("txtMessage")->setText(message);
        f.env.dialogs.ExpectMsgBox(refusal, style, "");
        f.Click("cmdSave_0");
        VERIFY_DIALOGS(f.env.dialogs);
        QVERIFY(!f.env.exists("Alerts.dat"));
        QCOMPARE(f.In<QLineEdit>("txtMessage")->text(), message);
        QVERIFY(f.window.reminders->alertWindow());
    }

    // The file goes with the last alert; the indicator stays as it was until alerts exist again.
    void deletingTheLastAlertRemovesTheFile() {
        AlertFixture f("46272:0000:only\r\n");
        f.Open();
        f.Pick(0);
        f.Click("cmdDelete");
        VERIFY_DIALOGS(f.env.dialogs);
        QVERIFY(!f.env.exists("Alerts.dat"));
        QCOMPARE(f.In<QLabel>("lblList")->text(), "Active Alert List (Empty)");
        QCOMPARE(f.In<QLabel>("lblMessage")->text(), "Adding New Alert");
        QCOMPARE(f.control<QPushButton>("cmdAlert")->text(), "1 Pending Alert");
        QCOMPARE(f.control<QListWidget>("lstAlerts")->count(), 0);
    }

    void dateMenuPresetsTheDateAndShowsItsAlert() {
        AlertFixture f("46275:0007:mike\r\n46300:0000:zulu\r\n");
        f.env.select(QDate(2026, 10, 5));
        f.Open("mnuOptDateSetAlert");
        QCOMPARE(f.In<QLineEdit>("txtDate")->text(), "10/05/26");
        QCOMPARE(f.In<QComboBox>("cmbMonth")->currentText(), "October");
        QCOMPARE(f.In<QComboBox>("cmbDay")->currentText(), "05");
        QCOMPARE(f.In<QLabel>("lblMessage")->text(), "Adding New Alert");
        f.Open("mnuOptDateViewAlert");
        QCOMPARE(f.In<QLineEdit>("txtMessage")->text(), "zulu");
        QCOMPARE(f.In<QLabel>("lblMessage")->text(), "Editing Existing Alert");

        // Another year from its list; a typed date, once left, sets the lists.
        auto* year = f.In<QComboBox>("cmbYear");
        year->setCurrentText("2027");
        emit year->activated(year->currentIndex());
        QCOMPARE(f.In<QLineEdit>("txtDate")->text(), "10/05/27");
        auto* date = f.In<QLineEdit>("txtDate");
        date->setFocus();
        date->setText("Feb 29 2028");
        f.In<QLineEdit>("txtMessage")->setFocus();
        QCOMPARE(date->text(), "02/29/28");
        QCOMPARE(f.In<QComboBox>("cmbMonth")->currentText(), "February");
    }

    void startUpAnnouncesWhatIsDueAndItsMessageOpensThePendingAlerts() {
        AlertFixture f(
            "46274:0003:zulu\r\n46275:0007:alpha\r\n46272:0000:mike\r\n"
            "46300:0000:later\r\n");
        AlertTray& tray = f.window.reminders->tray();
        QCOMPARE(tray.lastMessage(),
                 "3 Pending Alerts\n09/07/26  mike\n09/09/26  zulu\n09/10/26  alpha");
        QCOMPARE(f.control<QListWidget>("lstAlerts")->item(0)->text(), "alpha");
        QCOMPARE(f.control<QListWidget>("lstAlerts")->item(1)->text(), "mike");
        tray.SetPendingBirthdays([] { return QStringLiteral("1 Pending Birthday"); });
        QCOMPARE(tray.ToolTip(), "Orvanta\n3 Pending Alerts\n1 Pending Birthday");
        tray.MessageClicked();
        frmAlert* window = f.window.reminders->alertWindow();
        QVERIFY(window && window->pendingOnly());
        QCOMPARE(f.Shown(1), QStringList({"09/07/26", "09/09/26", "09/10/26"}));
    }
};

ORVANTA_TEST_MAIN(AlertManagerTest)
#include "tst_alert_manager.moc"
