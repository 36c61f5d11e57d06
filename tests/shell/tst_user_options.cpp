// The User Options window: each setting goes from the file into its control and back to its
// own line, lines the window does not know stay; a refused value writes nothing; changes are
// asked about on closing.
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>

#include "MainWindowFixture.h"
#include "app/gui/frmUserOptions.h"
#include "reports/ReportMessages.h"
#include "shell/ShellMessages.h"
#include "shell/TextFile.h"
#include "shell/UserPreferences.h"

namespace {

const QByteArray kFileStart = "Later Key:42\r\n; a note\r\n";

frmUserOptions* OpenOptions(MainWindowFixture& f) {
    f.menu("mnuOptionsUser")->trigger();
    return qobject_cast<frmUserOptions*>(f.frame().ChildWindow("frmUserOptions"));
}

// What a control shows, as the text a test compares.
QString Shown(QWidget* control) {
    if (auto* box = qobject_cast<QLineEdit*>(control))
        return box->text();
    if (auto* check = qobject_cast<QCheckBox*>(control))
        return check->isChecked() ? "True" : "False";
    if (auto* spin = qobject_cast<QSpinBox*>(control))
        return QString::number(spin->value());
    return static_cast<QComboBox*>(control)->currentText();
}

// Puts value into a control the way a user would: typing, ticking, or picking from a list.
void Enter(QWidget* control, const QString& value) {
    if (auto* box = qobject_cast<QLineEdit*>(control)) {
        box->selectAll();
        box->insert(value);
    } else if (auto* check = qobject_cast<QCheckBox*>(control)) {
        if (check->isChecked() != (value == "True"))
            QTest::mouseClick(check, Qt::LeftButton, {}, QPoint(5, check->height() / 2));
    } else if (auto* spin = qobject_cast<QSpinBox*>(control)) {
        spin->setValue(value.toInt());
    } else if (auto* list = static_cast<QComboBox*>(control); list->isEditable()) {
        list->setCurrentText(value);
    } else {
        list->setCurrentIndex(list->findText(value));
    }
}

// The value a line of the file gives key; null when no line has the key.
QString FileValue(const QByteArray& file, const QString& key) {
    for (const QString& line : QString::fromLatin1(file).split("\r\n"))
        if (line.startsWith(key))
            return line.mid(key.size());
    return {};
}

}  // namespace

class UserOptionsTest : public QObject {
    Q_OBJECT

private slots:
    void eachSettingGoesFromItsLineToItsControlAndBack_data() {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("saved");  // the value in the file
        QTest::addColumn<QString>("shown");  // what the control shows of it
        QTest::addColumn<QString>("entered");
        QTest::addColumn<QString>("written");
        const auto row = [](const QString& key, const char* control, const char* saved,
                            const char* shown, const char* entered, const char* written) {
            QTest::addRow("%s%s", qPrintable(key), saved)
                << key << control << saved << shown << entered << written;
        };
        row(prefkey::CompanyName, "txtCompanyName", "Acme: Inc", "Acme: Inc", "Café Ltd",
            "Café Ltd");
        row(prefkey::CompanyAddress1, "txtCompanyAddress1", "1 Main St", "1 Main St", "2 Elm",
            "2 Elm");
        row(prefkey::CompanyAddress2, "txtCompanyAddress2", "", "", "Suite 5", "Suite 5");
        row(prefkey::CompanyCityStateZip, "txtCompanyCityStateZip", "Austin, TX 78701",
            "Austin, TX 78701", "Reno, NV", "Reno, NV");
        row(prefkey::CompanyPhone, "txtCompanyPhone", "555-0100", "555-0100", "555-0199",
            "555-0199");
        row(prefkey::CompanyFax, "txtCompanyFax", "", "", "555-0101", "555-0101");
        row(prefkey::CompanyWebsite, "txtCompanyWebsite", "acme.example", "acme.example",
            "www.acme.example", "www.acme.example");
        row(prefkey::CompanyEmail, "txtCompanyEmail", "a@acme.example", "a@acme.example",
            "b@acme.example", "b@acme.example");
        row(prefkey::SharedDirectory, "txtSharedDirectory", "\\\\server\\share",
            "\\\\server\\share", "/srv/share", "/srv/share");
        row(prefkey::NetworkShareDrive, "txtNetworkShareDrive", "e", "e", "K", "K");
        row(prefkey::DefaultPrinter, "cmbDefaultPrinter", "", "(System default)", "Office Laser",
            "Office Laser");
        row(prefkey::DefaultPrinter, "cmbDefaultPrinter", "Gone", "Gone (not found)",
            "(System default)", "");
        row(prefkey::FrequentTermsFile, "cmbFrequentTermsFile", "Sales.fut", "Sales.fut",
            "Default.fut", "Default.fut");
        row(prefkey::AutoCompleteWord, "chkAutoCompleteWord", "", "True", "False", "False");
        row(prefkey::AutoStartPosition, "spnAutoStartPosition", "", "2", "4", "4");
        row(prefkey::ShowFut, "chkShowFUT", "True", "True", "False", "False");
        row(prefkey::MinimizeFut, "chkMinimizeFUT", "", "False", "True", "True");
        row(prefkey::LoadFutPosition, "chkLoadFUTPosition", "True", "True", "False", "False");
        row(prefkey::MileageRate, "txtMileageRate", "0.70", "0.70", "0.655", "0.655");
        row(prefkey::CalendarTimeZone, "cmbCalendarTimeZone", "", "(floating)", "Europe/Paris",
            "Europe/Paris");
        row(prefkey::CalendarTimeZone, "cmbCalendarTimeZone", "America/New_York",
            "America/New_York", "(floating)", "");
    }
    void eachSettingGoesFromItsLineToItsControlAndBack() {
        QFETCH(QString, key);
        QFETCH(QString, control);
        QFETCH(QString, saved);
        QFETCH(QString, shown);
        QFETCH(QString, entered);
        QFETCH(QString, written);
        MainWindowFixture f;
        f.env.platform.printers = {"Office Laser", "Labels"};
        const QByteArray file = kFileStart + textfile::Encode(key + saved) +
                                "\r\nCompany Phone: 555\r\nShow FUT:yes\r\n";
        f.env.write("UserPreferences.txt", file);
        f.Start();
        frmUserOptions* window = OpenOptions(f);
        QWidget* widget = window->Control<QWidget>(control);
        QCOMPARE(window->ControlOf(key), widget);
        QCOMPARE(Shown(widget), shown);
        Enter(widget, entered);
        window->Control<QPushButton>("cmdOK")->click();
        QVERIFY(!f.frame().IsChildOpen("frmUserOptions"));

        const QByteArray now = f.env.read("UserPreferences.txt");
        QVERIFY2(now.startsWith(kFileStart + textfile::Encode(key + written) + "\r\n"),
                 now.constData());
        QCOMPARE(f.env.state->prefs.Value(key), written);
        // The settings left alone keep their text, even where the control shows it otherwise.
        if (key != prefkey::CompanyPhone)
            QCOMPARE(FileValue(now, prefkey::CompanyPhone), " 555");
        if (key != prefkey::ShowFut)
            QCOMPARE(FileValue(now, prefkey::ShowFut), "yes");
        VERIFY_DIALOGS(f.env.dialogs);
    }

    void refusedValueWritesNothing_data() {
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("entered");
        QTest::addColumn<QString>("message");
        QTest::newRow("negative rate") << "txtMileageRate"
                                       << "-1" << kBadRateMessage;
        QTest::newRow("rate with a unit") << "txtMileageRate"
                                          << "0.7 $" << kBadRateMessage;
        QTest::newRow("digit for a drive") << "txtNetworkShareDrive"
                                           << "1" << kBadDriveLetterMessage;
        QTest::newRow("unknown zone") << "cmbCalendarTimeZone"
                                      << "Mars/Olympus" << kBadTimeZoneMessage;
    }
    void refusedValueWritesNothing() {
        QFETCH(QString, control);
        QFETCH(QString, entered);
        QFETCH(QString, message);
        MainWindowFixture f;
        f.Start();
        frmUserOptions* window = OpenOptions(f);
        Enter(window->Control<QLineEdit>("txtCompanyName"), "Acme");
        Enter(window->Control<QWidget>(control), entered);
        f.env.dialogs.ExpectMsgBox(message, kWarningStyle, "");
        window->Control<QPushButton>("cmdOK")->click();
        QVERIFY(f.frame().IsChildOpen("frmUserOptions"));
        QVERIFY(!f.env.exists("UserPreferences.txt"));
        QCOMPARE(f.env.state->prefs.Value(prefkey::CompanyName), "");
        VERIFY_DIALOGS(f.env.dialogs);
    }

    // The open term window shows the list chosen here at once.
    void termWindowFollowsTheTermListChosen() {
        MainWindowFixture f;
        f.env.write("Sales.fut", "alpha\r\nbeta");
        f.Start();
        f.menu("mnuFileOpenFUT")->trigger();
        auto* terms = qobject_cast<ChildWindow*>(f.frame().ChildWindow("frmFUT"));
        QCOMPARE(terms->Control<QListWidget>("lstFUT")->count(), 0);
        frmUserOptions* window = OpenOptions(f);
        Enter(window->Control<QWidget>("cmbFrequentTermsFile"), "Sales.fut");
        window->Control<QPushButton>("cmdOK")->click();
        QCOMPARE(terms->Control<QListWidget>("lstFUT")->count(), 2);
        QCOMPARE(terms->Control<QListWidget>("lstFUT")->item(1)->text(), "beta");
        VERIFY_DIALOGS(f.env.dialogs);
    }

    void folderPickerAndClosingWithChanges() {
        MainWindowFixture f;
        f.Start();
        frmUserOptions* window = OpenOptions(f);
        f.env.dialogs.ExpectFolder("");
        window->Control<QPushButton>("cmdBrowse")->click();
        QCOMPARE(Shown(window->ControlOf(prefkey::SharedDirectory)), "");
        QVERIFY(!window->IsChanged());
        f.env.dialogs.ExpectFolder("/srv/team share");
        window->Control<QPushButton>("cmdBrowse")->click();
        QCOMPARE(Shown(window->ControlOf(prefkey::SharedDirectory)), "/srv/team share");

        f.env.dialogs.ExpectMsgBox(kOptionsChangedQuestion, vb::YesNoCancel | vb::Question,
                                   kOptionsChangedTitle, vb::Cancel);
        QTest::keyClick(window->Control<QLineEdit>("txtCompanyName"), Qt::Key_Escape);
        QVERIFY(f.frame().IsChildOpen("frmUserOptions"));
        f.env.dialogs.ExpectMsgBox(kOptionsChangedQuestion, vb::YesNoCancel | vb::Question,
                                   kOptionsChangedTitle, vb::No);
        window->Control<QPushButton>("cmdCancel")->click();
        QVERIFY(!f.frame().IsChildOpen("frmUserOptions"));
        QVERIFY(!f.env.exists("UserPreferences.txt"));
        QCOMPARE(f.env.state->prefs.Value(prefkey::SharedDirectory), "");
        VERIFY_DIALOGS(f.env.dialogs);
    }
};

ORVANTA_TEST_MAIN(UserOptionsTest)
#include "tst_user_options.moc"
