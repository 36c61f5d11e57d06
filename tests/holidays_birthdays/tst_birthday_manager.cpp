// The birthday manager as a user drives it: what an added, changed or removed entry leaves in
// "Birthdays.dat", the entries it refuses, and the birthdays pending afterwards.
#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>

#include "MainWindowFixture.h"
#include "holidays_birthdays/HolidaysBirthdaysMessages.h"
#include "holidays_birthdays/gui/frmBirthdays.h"
#include "shell/ShellMessages.h"

namespace {

// In birthday order; "\xc9" is a capital E with an acute accent.
const QByteArray kZoe = "01/20:00:Zoe \xc9vans:1990\r\n";
const QByteArray kMary = "03/15:07:Mary Smith:1960\r\n";
const QByteArray kAdam = "11/02:-1:adam Bell:****\r\n";
const QByteArray kList = kZoe + kMary + kAdam;
const QString kUpdated = "Birthdays Updated.";

// The program started on a data folder holding list, with the manager open.
struct Manager {
    explicit Manager(const QByteArray& list = kList, bool faultyPeriod = false) {
        f.env.write("Birthdays.dat", list);
        // The birthdays are read at start-up.
        if (faultyPeriod)
            f.env.expectProgramError("ReadBirthdays", 13,
                                     FaultDescription("Type mismatch", "Birthdays.dat", 2));
        f.Start();
        context.reset(new HolidaysBirthdaysContext{f.frame(), state.services, state.dates,
                                                   state.holidays, state.birthdays, f.calendar()});
        window = qobject_cast<frmBirthdays*>(f.frame().ShowChild(
            frmBirthdays::kName, [this] { return new frmBirthdays(*context); }));
    }
    template <class T>
    T* control(const char* name) const {
        return window->Control<T>(name);
    }
    // The entry's fields; a year of "****" checks "Don't remember the age".
    void Fill(const QString& name, int month, int day, int alert, const QString& year) const {
        control<QLineEdit>("txtName")->setText(name);
        control<QComboBox>("cmbMonth")->setCurrentIndex(month - 1);
        control<QComboBox>("cmbDay")->setCurrentIndex(day - 1);
        control<QComboBox>("cmbAlert")->setCurrentIndex(alert);
        control<QLineEdit>("txtYear")->setText(year);
        control<QAbstractButton>("chkNoAge")->setChecked(year == "****");
    }
    QByteArray file() const { return f.env.read("Birthdays.dat"); }

    MainWindowFixture f;
    ProgramState& state = *f.env.state;
    std::unique_ptr<HolidaysBirthdaysContext> context;
    frmBirthdays* window = nullptr;
};

}  // namespace

class BirthdayManagerTest : public QObject {
    Q_OBJECT

private slots:
    // Today is September 7, 2026.
    void addedPersonIsWrittenInTheOrderChosen_data() {
        QTest::addColumn<bool>("byName");
        QTest::addColumn<int>("alert");
        QTest::addColumn<QString>("year");
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("pending");
        QTest::newRow("by month, 10 days ahead")
            << false << 6 << "1985" << kZoe + kMary + "09/10:10:Bob Ray:1985\r\n" + kAdam
            << "1 Birthday is Pending";
        QTest::newRow("by name, no alert, age not kept")
            << true << 0 << "****" << kAdam + "09/10:-1:Bob Ray:****\r\n" + kMary + kZoe
            << "No Birthdays Pending";
    }
    void addedPersonIsWrittenInTheOrderChosen() {
        QFETCH(bool, byName);
        QFETCH(int, alert);
        QFETCH(QString, year);
        QFETCH(QByteArray, file);
        QFETCH(QString, pending);
        Manager m;
        m.control<QAbstractButton>(byName ? "optSortName" : "optSortMonth")->click();
        m.Fill(" Bob  Ray ", 9, 10, alert, year);
        m.f.env.dialogs.ExpectMsgBox(kUpdated, vb::OKOnly, "");
        m.control<QAbstractButton>("cmdSave")->click();
        VERIFY_DIALOGS(m.f.env.dialogs);
        QCOMPARE(m.file(), file);
        QCOMPARE(m.state.birthdays.PendingText(), pending);
    }

    void selectedEntryIsReplacedThenRemovedOnceAgreed() {
        Manager m;
        auto* list = m.control<QListWidget>("lstBirthdays");
        list->setFocus();
        list->setCurrentRow(1);
        m.control<QLineEdit>("txtName")->setText("Mary Jones");
        m.control<QLineEdit>("txtYear")->setText("1961");
        m.f.env.dialogs.ExpectMsgBox(kUpdated, vb::OKOnly, "")
            .ExpectMsgBox(kUpdated, vb::OKOnly, "");
        m.control<QAbstractButton>("cmdSave")->click();
        m.control<QAbstractButton>("cmdSave")->click();  // still the entry changed, not a new one
        VERIFY_DIALOGS(m.f.env.dialogs);
        const QByteArray changed = kZoe + "03/15:07:Mary Jones:1961\r\n" + kAdam;
        QCOMPARE(m.file(), changed);
        QCOMPARE(list->item(1)->text(), QString("03/15  Mary Jones  (turns 65 this year)"));

        const QString question = "Remove the birthday of Mary Jones?";
        m.f.env.dialogs.ExpectMsgBox(question, kQuestionStyle, "Birthday Manager", vb::No)
            .ExpectMsgBox(question, kQuestionStyle, "Birthday Manager", vb::Yes)
            .ExpectMsgBox(kUpdated, vb::OKOnly, "");
        m.control<QAbstractButton>("cmdDelete")->click();
        QCOMPARE(m.file(), changed);
        QTest::keyClick(list, Qt::Key_Delete);
        VERIFY_DIALOGS(m.f.env.dialogs);
        QCOMPARE(m.file(), kZoe + kAdam);
    }

    // The entry stays in the fields, and the focus goes to the field to correct.
    void refusedEntryLeavesTheFileAsItWas_data() {
        QTest::addColumn<QByteArray>("list");
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("month");
        QTest::addColumn<int>("day");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("field");
        QTest::newRow("colon in the name")
            << kList << "Ann: Lee" << 5 << 1
            << "A name cannot contain \":\": the birthday list uses it to separate the parts of "
               "a line."
            << "txtName";
        QTest::newRow("February 29")
            << kList << "Ann" << 2 << 29
            << "February 29 is not kept as a birthday: please choose February 28 or March 1."
            << "cmbDay";
        QTest::newRow("list read only up to a faulty line")
            << kZoe + "03/15:x7:Mary Smith:1960\r\n" + kAdam << "Ann" << 5 << 1
            << PartlyReadFileMessage("Birthdays.dat", 2) << "lstBirthdays";
    }
    void refusedEntryLeavesTheFileAsItWas() {
        QFETCH(QByteArray, list);
        QFETCH(QString, name);
        QFETCH(int, month);
        QFETCH(int, day);
        QFETCH(QString, message);
        QFETCH(QString, field);
        Manager m(list, list != kList);
        m.Fill(name, month, day, 1, "1970");
        m.f.env.dialogs.ExpectMsgBox(message, kWarningStyle, "");
        m.control<QAbstractButton>("cmdSave")->click();
        VERIFY_DIALOGS(m.f.env.dialogs);
        QCOMPARE(m.file(), list);
        QCOMPARE(m.control<QLineEdit>("txtName")->text(), name);
        QCOMPARE(m.window->focusWidget()->objectName(), field);
    }

    // Enter saves, as the default button does, the day typed ("3" on the 29th is the 3rd);
    // closing with a person typed and not saved asks first: Cancel stays, Yes saves.
    void enterSavesAndClosingAsksAboutAnEntryNotSaved() {
        Manager m;
        m.window->PresetNewBirthday(12, 29);
        QVERIFY(m.window->QueryProgramClose());  // nothing typed: nothing asked
        auto* name = m.control<QLineEdit>("txtName");
        name->setText("Noel");
        m.control<QLineEdit>("txtYear")->setText("2000");
        QTest::keyClicks(m.control<QComboBox>("cmbDay"), "3");
        const int style = vb::YesNoCancel | vb::Question;
        m.f.env.dialogs
            .ExpectMsgBox(kBirthdayChangedQuestion, style, kBirthdayChangedTitle, vb::Cancel)
            .ExpectMsgBox(kUpdated, vb::OKOnly, "")
            .ExpectMsgBox(kBirthdayChangedQuestion, style, kBirthdayChangedTitle, vb::Yes)
            .ExpectMsgBox(kUpdated, vb::OKOnly, "");
        QTest::keyClick(name, Qt::Key_Escape);
        QTest::keyClick(m.control<QComboBox>("cmbDay"), Qt::Key_Return);
        QCOMPARE(m.file(), kList + "12/03:00:Noel:2000\r\n");
        name->setText("Noel Ray");
        QTest::keyClick(name, Qt::Key_Escape);
        VERIFY_DIALOGS(m.f.env.dialogs);
        QCOMPARE(m.file(), kList + "12/03:00:Noel Ray:2000\r\n");
        QVERIFY(!m.f.frame().IsChildOpen(frmBirthdays::kName));
    }
};

ORVANTA_TEST_MAIN(BirthdayManagerTest)
#include "tst_birthday_manager.moc"
