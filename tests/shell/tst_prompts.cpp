// The file-name check and the questions about unsaved month icons, planner and notes that run
// before the program closes or the editors change what they show.

#include <QTest>

#include "shell/Dialogs.h"
#include "shell/Prompts.h"
#include "support/TestEnv.h"

namespace {

const QString kIllegalNameMessage = QStringLiteral(
    "Action Cancelled. File Name cannot include any of \r\nthe following characters: / \\ : * ? "
    "< > |");

// Change flags as bits, so that a table row can give them in one column.
enum Flag { Month = 1, Template = 2, Planner = 4, Notes = 8, Cancel = 16 };

ChangeFlags FlagsFrom(int bits) {
    ChangeFlags flags;
    flags.MonthIconsChanged = bits & Month;
    flags.TemplateMode = bits & Template;
    flags.PlannerChanged = bits & Planner;
    flags.NotesChanged = bits & Notes;
    flags.CancelRequested = bits & Cancel;
    return flags;
}

int BitsOf(const ChangeFlags& flags) {
    return (flags.MonthIconsChanged ? Month : 0) | (flags.TemplateMode ? Template : 0) |
           (flags.PlannerChanged ? Planner : 0) | (flags.NotesChanged ? Notes : 0) |
           (flags.CancelRequested ? Cancel : 0);
}

struct Question {
    QString text;
    QString title;
};

Question QuestionAbout(const QString& editor) {
    if (editor == "month")
        return {"Monthly Icons have been changed. Do you want to save those changes?",
                "Month Has Changed"};
    if (editor == "planner")
        return {"The Planner has been changed. Do you want to save those changes?",
                "Planner Has Changed"};
    return {"The Notes have been changed. Do you want to save those changes?",
            "Notes Have Changed"};
}

}  // namespace

class PromptsTest : public QObject {
    Q_OBJECT

private slots:
    void illegalFileNames_data();
    void illegalFileNames();
    void unsavedChangeQuestions_data();
    void unsavedChangeQuestions();
};

void PromptsTest::illegalFileNames_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("refused");
    QTest::newRow("slash") << "Plan 1/2" << true;
    QTest::newRow("hyphen instead") << "Plan 1-2" << false;
    QTest::newRow("backslash") << "Plan 1\\2" << true;
    QTest::newRow("colon") << "Notes: May" << true;
    QTest::newRow("asterisk") << "*.pln" << true;
    QTest::newRow("question mark") << "Why?" << true;
    QTest::newRow("less than") << "<draft" << true;
    QTest::newRow("greater than") << "draft>" << true;
    QTest::newRow("bar") << "May|June" << true;
    QTest::newRow("several, one message") << "a/b\\c:d*e?f<g>h|i" << true;
    QTest::newRow("dots, blanks and brackets") << "Planner 09.07.26 (copy) [2]" << false;
    QTest::newRow("accented and euro") << QString::fromUtf8("Réunion €") << false;
    QTest::newRow("quote and semicolon") << "John's; \"list\"" << false;
}

void PromptsTest::illegalFileNames() {
    QFETCH(QString, name);
    QFETCH(bool, refused);
    FakeDialogs dialogs;
    if (refused)
        dialogs.ExpectMsgBox(kIllegalNameMessage, vb::OKOnly, "");
    QCOMPARE(IllegalFileName(dialogs, name), refused);
    VERIFY_DIALOGS(dialogs);
}

void PromptsTest::unsavedChangeQuestions_data() {
    QTest::addColumn<int>("before");
    QTest::addColumn<bool>("plannerOpen");
    QTest::addColumn<bool>("notesOpen");
    QTest::addColumn<QList<int>>("answers");
    QTest::addColumn<QStringList>("asked");
    QTest::addColumn<QStringList>("saved");
    QTest::addColumn<int>("after");
    using L = QList<int>;
    using S = QStringList;
    const int yes = vb::Yes, no = vb::No, cancel = vb::Cancel;

    QTest::newRow("nothing changed") << 0 << true << true << L{} << S{} << S{} << 0;
    QTest::newRow("changes of closed windows")
        << (Planner | Notes) << false << false << L{} << S{} << S{} << (Planner | Notes);
    QTest::newRow("template mode alone asks nothing")
        << int(Template) << true << true << L{} << S{} << S{} << int(Template);
    QTest::newRow("an earlier cancel is forgotten")
        << int(Cancel) << true << true << L{} << S{} << S{} << 0;
    QTest::newRow("yes to all saves month icons, planner and notes")
        << (Month | Planner | Notes) << true << true << L{yes, yes, yes}
        << S{"month", "planner", "notes"} << S{"month icons", "planner", "notes"}
        << (Month | Planner | Notes);
    QTest::newRow("yes in template mode saves the template")
        << (Month | Template) << true << true << L{yes} << S{"month"} << S{"template icons"}
        << (Month | Template);
    QTest::newRow("no to all discards")
        << (Month | Template | Planner | Notes) << true << true << L{no, no, no}
        << S{"month", "planner", "notes"} << S{} << 0;
    QTest::newRow("cancel on the first stops the others")
        << (Month | Planner | Notes) << true << true << L{cancel} << S{"month"} << S{}
        << (Month | Planner | Notes | Cancel);
    QTest::newRow("cancel on the planner stops the notes")
        << (Month | Planner | Notes) << true << true << L{no, cancel} << S{"month", "planner"}
        << S{} << (Planner | Notes | Cancel);
    QTest::newRow("cancel on the notes after saving the planner")
        << (Planner | Notes) << true << true << L{yes, cancel} << S{"planner", "notes"}
        << S{"planner"} << (Planner | Notes | Cancel);
    QTest::newRow("planner asked only while open")
        << (Planner | Notes) << false << true << L{no} << S{"notes"} << S{} << int(Planner);
    QTest::newRow("notes asked only while open")
        << (Planner | Notes) << true << false << L{no} << S{"planner"} << S{} << int(Notes);
    QTest::newRow("open windows without changes are not asked about")
        << int(Month) << true << true << L{yes} << S{"month"} << S{"month icons"} << int(Month);
}

void PromptsTest::unsavedChangeQuestions() {
    QFETCH(int, before);
    QFETCH(bool, plannerOpen);
    QFETCH(bool, notesOpen);
    QFETCH(QList<int>, answers);
    QFETCH(QStringList, asked);
    QFETCH(QStringList, saved);
    QFETCH(int, after);
    FakeDialogs dialogs;
    for (qsizetype i = 0; i < asked.size(); ++i) {
        const Question question = QuestionAbout(asked[i]);
        dialogs.ExpectMsgBox(question.text, vb::YesNoCancel | vb::Question, question.title,
                             answers[i]);
    }
    QStringList calls;
    EditorHooks editors;
    editors.plannerOpen = [&] { return plannerOpen; };
    editors.notesOpen = [&] { return notesOpen; };
    editors.saveTemplateIcons = [&] { calls << "template icons"; };
    editors.saveMonthIcons = [&] { calls << "month icons"; };
    editors.savePlanner = [&] { calls << "planner"; };
    editors.saveNotes = [&] { calls << "notes"; };
    ChangeFlags flags = FlagsFrom(before);

    PromptUnsavedChanges(dialogs, flags, editors);
    VERIFY_DIALOGS(dialogs);
    QCOMPARE(calls, saved);
    QCOMPARE(BitsOf(flags), after);
}

ORVANTA_TEST_MAIN(PromptsTest)
#include "tst_prompts.moc"
