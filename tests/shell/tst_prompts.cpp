// The file-name check and the questions about unsaved month icons, planner and notes that run
// before the program closes or the editors change what they show.
#include <QTest>

#include "shell/Prompts.h"
#include "shell/ShellMessages.h"
#include "support/TestEnv.h"

namespace {

// Change flags as bits, so that a table row can give them in one column.
enum Flag { Month = 1, Template = 2, Planner = 4, Notes = 8, Cancel = 16 };

ChangeFlags FlagsFrom(int bits) {
    return {bool(bits & Month), bool(bits & Template), bool(bits & Planner), bool(bits & Notes),
            bool(bits & Cancel)};
}

int BitsOf(const ChangeFlags& flags) {
    return (flags.MonthIconsChanged ? Month : 0) | (flags.TemplateMode ? Template : 0) |
           (flags.PlannerChanged ? Planner : 0) | (flags.NotesChanged ? Notes : 0) |
           (flags.CancelRequested ? Cancel : 0);
}

}  // namespace

class PromptsTest : public QObject {
    Q_OBJECT

private slots:
    void illegalFileNames_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("refused");
        QTest::newRow("slash") << "Plan 1/2" << true;
        QTest::newRow("hyphen instead") << "Plan 1-2" << false;
        for (const char* name : {"Plan 1\\2", "Notes: May", "*.pln", "Why?", "<draft", "draft>",
                                 "May|June", "a/b\\c:d*e?f<g>h|i"})
            QTest::newRow(name) << name << true;
        QTest::newRow("dots, blanks and brackets") << "Planner 09.07.26 (copy) [2]" << false;
        QTest::newRow("accented and euro") << QString::fromUtf8("Réunion €") << false;
    }
    void illegalFileNames() {
        QFETCH(QString, name);
        QFETCH(bool, refused);
        FakeDialogs dialogs;
        if (refused)
            dialogs.ExpectMsgBox(kIllegalFileNameMessage, vb::OKOnly, "");
        QCOMPARE(IllegalFileName(dialogs, name), refused);
        VERIFY_DIALOGS(dialogs);
    }

    void unsavedChangeQuestions_data() {
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
        QTest::newRow("planner asked only while open")
            << (Planner | Notes) << false << true << L{no} << S{"notes"} << S{} << int(Planner);
    }
    void unsavedChangeQuestions() {
        QFETCH(int, before);
        QFETCH(bool, plannerOpen);
        QFETCH(bool, notesOpen);
        QFETCH(QList<int>, answers);
        QFETCH(QStringList, asked);
        QFETCH(QStringList, saved);
        QFETCH(int, after);
        const QHash<QString, std::pair<QString, QString>> questions = {
            {"month", {kMonthIconsChangedQuestion, kMonthIconsChangedTitle}},
            {"planner", {kPlannerChangedQuestion, kPlannerChangedTitle}},
            {"notes", {kNotesChangedQuestion, kNotesChangedTitle}}};
        FakeDialogs dialogs;
        for (qsizetype i = 0; i < asked.size(); ++i) {
            const auto& [text, title] = questions[asked[i]];
            dialogs.ExpectMsgBox(text, vb::YesNoCancel | vb::Question, title, answers[i]);
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
};

ORVANTA_TEST_MAIN(PromptsTest)
#include "tst_prompts.moc"
