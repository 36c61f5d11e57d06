// Any string through any box and any store: what people paste and type (line breaks from a mail,
// tabs from a spreadsheet, the files' own separators, characters the files cannot hold, a
// formula, a page of text) never splits a record. One-line boxes turn CR, LF and tab into a
// blank however the text arrives; a store's save either keeps the text (one line per record,
// every other record byte for byte as it was, read back as kept) or refuses it by name and
// changes nothing.
#include <QAbstractSpinBox>
#include <QClipboard>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMimeData>
#include <QPushButton>

#include "MainWindowFixture.h"
#include "holidays_birthdays/gui/HolidaysBirthdaysContext.h"
#include "holidays_birthdays/gui/frmHolidays.h"
#include "notes_planner/gui/NotesPlannerMenus.h"
#include "notes_planner/gui/PlannerPageView.h"
#include "notes_planner/gui/frmPlanner.h"
#include "reminders/RemindersMessages.h"
#include "shell/FixedWidth.h"
#include "shell/ShellMessages.h"
#include "shell/TextFile.h"

namespace {

const QDate kDay(2026, 9, 8);
const QByteArray kContacts = "Ann:a@x.org:Sales\r\nBea:b@x.org:x\r\nCy:c@x.org:HQ\r\n";

// How a field keeps text: on one line at the end of its record, on one line before another
// field (where ":" would split the record), or with its line breaks (a note).
enum class Kind { OneLine, BeforeAnother, Note };

// The string typed or pasted, the text each kind of field keeps of it, or the refusal it shows.
struct Outcome {
    QString kept;
    QString refusal;
};
Outcome Expected(Kind kind, const QString& typed) {
    const QString line = kind == Kind::Note ? typed : OnOneLine(typed);
    for (const QChar c : line) {
        if (kind == Kind::Note && (c == QChar(213) || c == QChar(210)))
            return {{}, LineBreakCharacterMessage(QString(c))};
    }
    if (const auto bad = textfile::FirstUnstorableCharacter(line))
        return {{}, textfile::UnstorableCharacterMessage(*bad)};
    if (kind == Kind::BeforeAnother && line.contains(u':'))
        return {{}, FieldBreaksLineMessage(line, SeparatorName(u':'))};
    return {line, {}};
}

QList<QByteArray> Lines(const QByteArray& bytes) {
    QList<QByteArray> lines;
    textfile::ForEachLine(bytes, [&](QByteArrayView line) { lines << line.toByteArray(); });
    return lines;
}

// Each store's field: text put into the middle one of three records through the store's own
// read and save, then read back afresh. A planner line keeps at most its width.
using Put = QString (*)(TestEnv&, const QString&);

QString PutPlannerLine(TestEnv& env, const QString& text) {
    PlannerPage page = NewPlannerPage();
    page.slotTexts[0] = text;
    env.select(kDay);
    if (env.state->planner.SavePlannerRecord(kDay, page))
        env.state->planner.SaveThisYearsPlannerFile();
    env.state->planner.ReadThisYearsPlanner();
    return ParsePlannerRecord(env.state->planner.RecordOf(kDay)).slotTexts[0];
}
QString PutNote(TestEnv& env, const QString& text) {
    env.select(kDay);
    env.state->notes.SaveThisYearsNotes(kDay, text);
    return env.state->notes.NoteOf(kDay);
}
QString PutHoliday(TestEnv& env, const QString& text) {
    HolidayList list = ReadHolidayList(env.state->services, "LoadHolidayList", 2026);
    QStringList lines = *list.lines;
    lines[1] = "09/08/26:" + text;
    SaveHolidayList(env.state->services, "SaveHolidayFile", list.file, lines);
    return SplitHolidayLine(ReadHolidayList(env.state->services, "", 2026).lines->at(1)).name;
}
QString PutBirthdayName(TestEnv& env, const QString& text) {
    BirthdayStore& birthdays = env.state->birthdays;
    birthdays.ReadBirthdays();
    QList<BirthdayRecord> people = birthdays.records;
    people[1].name = text;
    birthdays.SaveBirthdays(people, false);
    birthdays.ReadBirthdays();
    return birthdays.records.value(1).name;
}
QString PutAlert(TestEnv& env, const QString& text) {
    AlertsStore& alerts = env.state->alerts;
    alerts.ReadAlerts();
    QStringList lines = alerts.alertLines;
    lines[1] = MakeAlertLine(DateOfSerial(46273), 1, text);
    alerts.SaveAlerts(lines);
    alerts.ReadAlerts();
    return alerts.alertMessages.value(1);
}
QString PutToDo(TestEnv& env, const QString& text) {
    env.state->toDo.ReadToDoList();
    ToDoRows rows = env.state->toDo.rows();
    rows.texts[1] = text;
    env.state->toDo.SaveToDoList(rows);
    env.state->toDo.ReadToDoList();
    return env.state->toDo.rows().texts[1];
}
QString PutTerm(TestEnv& env, const QString& text) {
    env.state->terms.ReadFrequentlyUsedTerms();
    QStringList terms = env.state->terms.Terms();
    terms[1] = text;
    env.state->terms.SaveFrequentlyUsedTerms(terms);
    env.state->terms.ReadFrequentlyUsedTerms();
    return env.state->terms.Terms().value(1);
}
QString PutContact(TestEnv& env, const QString& text, QString Contact::*field) {
    ContactList& contacts = env.state->contacts;
    contacts.ReadEmployeeInfo();
    Contact bea = contacts.People()[1];
    contacts.Remove(1);
    bea.*field = text;
    contacts.Put(bea);
    contacts.SaveEmployeeInfo();
    contacts.ReadEmployeeInfo();
    for (const Contact& person : contacts.People())
        if (person.address == "b@x.org")
            return person.*field;
    return "<gone>";
}
QString PutMarkHover(TestEnv& env, const QString& text) {
    env.select(kDay);
    env.state->marks.HoverText[*env.state->dates.FindDay(kDay)] = text;
    env.state->marks.SaveThisYearsMarks();
    env.state->marks.ReadAndDisplayThisYearsMarks();
    return env.state->marks.HoverTextOf(kDay);
}
QString PutPreference(TestEnv& env, const QString& text) {
    env.state->prefs.GetUserPreferences(env.state->services);
    env.state->prefs.SetValue(prefkey::CompanyPhone, text);
    env.state->prefs.SaveUserPreferences(env.state->services);
    env.state->prefs.GetUserPreferences(env.state->services);
    return env.state->prefs.Value(prefkey::CompanyPhone);
}

struct FieldCase {
    QString file;
    QByteArray before;  // empty: written by a first save of the store
    Kind kind;
    Put put;
    QString confirmation = {};  // the box a save shows, if any
    int width = 0;
};

QMap<QString, FieldCase> StoreFields() {
    PlannerPage kept = NewPlannerPage();
    kept.slotTexts[0] = "kept";
    const QByteArray page = textfile::Encode(BuildPlannerRecord(kept)) + "\r\n";
    const QByteArray pages =
        "09/07/26:080101:" + page + "09/08/26:080201:" + page + "09/09/26:080301:" + page;
    return {
        {"planner line",
         {"2026/Planner.dat", pages, Kind::OneLine, PutPlannerLine, kPlannerRecordsUpdatedMessage,
          SlotWidth(0)}},
        {"note",
         {"2026/Notes.dat",
          "09/07/26:080101:a\xd5\xd2z\r\n09/08/26:080201:x\r\n"
          "09/09/26:080301:c\r\n",
          Kind::Note, PutNote, kNotesSavedMessage}},
        {"holiday description",
         {"Holidays/2026Holidays.dat",
          "09/07/26:Labor Day\r\n"
          "09/08/26:x\r\n12/25/26:Christmas\r\n",
          Kind::OneLine, PutHoliday}},
        {"birthday name",
         {"Birthdays.dat",
          "01/02:00:Ann:1990\r\n03/04:01:x:****\r\n"
          "05/06:-1:Cy:2001\r\n",
          Kind::BeforeAnother, PutBirthdayName}},
        {"alert message",
         {kAlertsFile, "46272:0000:first\r\n46273:0001:x\r\n46274:0002:c: d\r\n", Kind::OneLine,
          PutAlert, kAlertListUpdated}},
        {"to-do item",
         {kToDoFile, "\xf3one\r\n\xf5x\r\n" + QByteArray("\xf5\r\n").repeated(8), Kind::OneLine,
          PutToDo, kToDoSaved}},
        {"term", {kDefaultTermFile, "Acme\r\nx\r\nZed", Kind::OneLine, PutTerm}},
        {"contact name",
         {kEmployeeInfoFile, kContacts, Kind::BeforeAnother,
          [](TestEnv& env, const QString& text) { return PutContact(env, text, &Contact::name); }}},
        {"contact note",
         {kEmployeeInfoFile, kContacts, Kind::OneLine,
          [](TestEnv& env, const QString& text) { return PutContact(env, text, &Contact::note); }}},
        {"mark's hover text",
         {"2026Marks.dat",
          "08:01:01:255-a\r\n08:02:01:255-x\r\n"
          "08:03:01:255-c",
          Kind::OneLine, PutMarkHover}},
        {"preference value", {kUserPreferencesFile, {}, Kind::OneLine, PutPreference}},
    };
}

const QMap<QString, QString>& HardStrings() {
    static const QMap<QString, QString> strings = {
        {"pasted CR LF", "Agenda:\r\nitem two"},
        {"LF", "one\ntwo"},
        {"CR", "one\rtwo"},
        {"tab", "Room\t4"},
        {"colon", "10:30 call"},
        {"comma and quotes", "Smith, \"Jo\""},
        {"the note line-break characters", QString::fromUtf8("S\u00d5O \u00d2")},
        {"outside the code page", QString::fromUtf8("done \u2713")},
        {"formula", "=SUM(A1:A9)"},
        {"5,000 characters", QString(2500, u'a') + QString(2500, u'b')},
    };
    return strings;
}

// The ways text reaches a box without the box's own keys: pasted, typed through an input
// method (which may commit line breaks), dropped.
void Paste(QLineEdit* box, const QString& text) {
    QApplication::clipboard()->setText(text);
    box->paste();
}
void TypeThroughInputMethod(QLineEdit* box, const QString& text) {
    QInputMethodEvent event;
    event.setCommitString(text);
    QApplication::sendEvent(box, &event);
}
void Drop(QLineEdit* box, const QString& text) {
    QMimeData data;
    data.setText(text);
    QDropEvent drop(QPointF(2, 2), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(box, &drop);
}

}  // namespace

class AnyStringTest : public QObject {
    Q_OBJECT

private slots:
    void storesKeepOrRefuseEveryString_data() {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("text");
        for (const QString& field : StoreFields().keys())
            for (auto it = HardStrings().begin(); it != HardStrings().end(); ++it)
                QTest::addRow("%s, %s", qPrintable(field), qPrintable(it.key()))
                    << field << it.value();
    }
    void storesKeepOrRefuseEveryString() {
        QFETCH(QString, field);
        QFETCH(QString, text);
        const FieldCase c = StoreFields().value(field);
        TestEnv env;
        if (c.before.isEmpty())
            c.put(env, "x");  // the file as the store writes it, one record being "x"
        else
            env.write(c.file, c.before);
        const QByteArray before = env.read(c.file);
        const Outcome expected = Expected(c.kind, text);
        const QString box = expected.refusal.isEmpty() ? c.confirmation : expected.refusal;
        if (!box.isEmpty())
            env.dialogs.ExpectMsgBox(box, expected.refusal.isEmpty() ? vb::OKOnly : kWarningStyle,
                                     {});
        const QString readBack = c.put(env, text);
        VERIFY_DIALOGS(env.dialogs);
        if (!expected.refusal.isEmpty()) {
            QCOMPARE(env.read(c.file), before);
            return;
        }
        // One line per record, and every record but the changed one as it was.
        QList<QByteArray> was = Lines(before), now = Lines(env.read(c.file));
        QCOMPARE(now.size(), was.size());
        for (const QByteArray& line : was)
            now.removeOne(line);
        QCOMPARE(now.size(), 1);
        QCOMPARE(readBack, c.width == 0
                               ? expected.kept
                               : TrimBlanks(QStringView(expected.kept).left(c.width)).toString());
    }

    // Every one-line box of every window, whatever arrives in it.
    void oneLineBoxesTakeNoLineBreak_data() {
        QTest::addColumn<QString>("item");
        for (const char* item :
             {"mnuManageAlerts", "mnuManageToDo", "mnuManageHolidays", "mnuManageBDays",
              "mnuManageEmailList", "mnuManageUserColors", "mnuDateDiffSDays", "mnuNumOfDays",
              "mnuOptDateOpenPlanner", "mnuOptDateSetAlert", "mnuEditFind", "mnuManageIcons",
              "mnuManageBudget", "mnuOptionsUser", "mnuDateFind"})
            QTest::newRow(item) << QString::fromLatin1(item);
    }
    void oneLineBoxesTakeNoLineBreak() {
        QFETCH(QString, item);
        MainWindowFixture f;
        f.env.write("Holidays/2026Holidays.dat", "01/01/26:New Year's Day\r\n");
        f.Start();
        QApplication::setActiveWindow(&f.frame());
        f.menu(item)->trigger();
        QMdiSubWindow* front = f.frame().mdiArea()->activeSubWindow();
        QVERIFY2(front, qPrintable(item + " opened no window"));
        int boxes = 0;
        for (QLineEdit* box : front->widget()->findChildren<QLineEdit*>()) {
            if (!box->isVisible() || !box->isEnabled() || box->isReadOnly())
                continue;
            ++boxes;
            for (const auto& arrive : {Paste, TypeThroughInputMethod, Drop}) {
                box->clear();
                arrive(box, "Agenda:\r\nitem\ttwo");
                const QString text = box->text();
                QVERIFY2(!text.contains(u'\r') && !text.contains(u'\n') && !text.contains(u'\t'),
                         qPrintable(box->objectName() + ": " + text));
                // A number box (a spin box's) takes none of it; any other box the text on one
                // line, or as much of it as it holds.
                const bool number = qobject_cast<QAbstractSpinBox*>(box->parentWidget());
                QVERIFY2(number || QStringLiteral("Agenda: item two").startsWith(text),
                         qPrintable(box->objectName() + ": " + text));
            }
            box->clear();
        }
        QVERIFY2(boxes > 0, qPrintable(item + " has no one-line box"));
    }

    // What a person pastes from a mail: the page stays one line, the rest of the year is kept.
    void pastedAgendaKeepsThePlannerFileWhole() {
        MainWindowFixture f(QDateTime(kDay, QTime(9, 0)));
        PlannerPage dentist = NewPlannerPage();
        dentist.slotTexts[0] = "Dentist";
        const QByteArray others =
            "09/01/26:080200:" + textfile::Encode(BuildPlannerRecord(dentist)) + "\r\n";
        f.env.write("2026/Planner.dat", others);
        f.Start();
        QApplication::setActiveWindow(&f.frame());
        f.menu("mnuOptDateOpenPlanner")->trigger();
        frmPlanner* planner = f.window.notesPlanner->plannerWindow();
        QVERIFY(planner);
        QLineEdit* line = planner->page().Box(0);
        line->setFocus();
        Paste(line, "Agenda:\r\nitem two");
        f.env.dialogs.ExpectMsgBox(kPlannerRecordsUpdatedMessage, vb::OKOnly, {});
        QTest::keyClick(line, Qt::Key_S, Qt::ControlModifier);
        const QList<QByteArray> lines = Lines(f.env.read("2026/Planner.dat"));
        QCOMPARE(lines.size(), 2);
        QCOMPARE(lines[0] + "\r\n", others);
        QCOMPARE(
            ParsePlannerRecord(textfile::Decode(lines[1].mid(kDatedPayloadStart))).slotTexts[0],
            "Agenda: item two");
        VERIFY_DIALOGS(f.env.dialogs);
    }

    void pastedHolidayDescriptionStaysOneHoliday() {
        MainWindowFixture f;
        f.env.write("Holidays/2026Holidays.dat", "01/01/26:New Year's Day\r\n");
        f.Start();
        HolidaysBirthdaysContext context{f.frame(),
                                         f.env.state->services,
                                         f.env.state->dates,
                                         f.env.state->holidays,
                                         f.env.state->birthdays,
                                         f.calendar()};
        auto* window = static_cast<frmHolidays*>(
            f.frame().ShowChild(frmHolidays::kName, [&] { return new frmHolidays(context); }));
        window->Control<QLineEdit>("txtDate")->setText("Dec 25");
        window->Control<QLineEdit>("txtDesc")->clear();
        Paste(window->Control<QLineEdit>("txtDesc"), "Christmas\r\nDay");
        window->Control<QPushButton>("cmdSave")->click();
        QCOMPARE(f.env.read("Holidays/2026Holidays.dat"),
                 "01/01/26:New Year's Day\r\n12/25/26:Christmas Day\r\n");
        VERIFY_DIALOGS(f.env.dialogs);
    }
};

ORVANTA_TEST_MAIN(AnyStringTest)
#include "tst_any_string.moc"
