#include "shell/Prompts.h"

#include "shell/ShellMessages.h"

namespace {

bool Call(const std::function<bool()>& query) {
    return query && query();
}

void Run(const std::function<void()>& action) {
    if (action)
        action();
}

// One Yes/No/Cancel question about unsaved work. Returns false when the user cancelled.
bool AskToSave(Dialogs& dialogs, ChangeFlags& flags, const QString& text, const QString& title,
               const std::function<void()>& onYes, const std::function<void()>& onNo) {
    const int answer = dialogs.MsgBox(text, vb::YesNoCancel | vb::Question, title);
    if (answer == vb::Cancel) {
        flags.CancelRequested = true;
        return false;
    }
    if (answer == vb::Yes)
        onYes();
    else
        onNo();
    return true;
}

}  // namespace

bool IllegalFileName(Dialogs& dialogs, const QString& name) {
    static const QString kIllegal = QStringLiteral("/\\:*?<>|");
    for (const QChar c : kIllegal) {
        if (name.contains(c)) {
            dialogs.MsgBox(kIllegalFileNameMessage);
            return true;
        }
    }
    return false;
}

ChangeFlags PromptUnsavedChanges(Dialogs& dialogs, ChangeFlags& flags, const EditorHooks& editors) {
    flags.CancelRequested = false;
    ChangeFlags givenUp;
    const auto giveUp = [](bool& flag, bool& record) {
        record = flag;
        flag = false;
    };
    if (flags.MonthIconsChanged &&
        !AskToSave(
            dialogs, flags, kMonthIconsChangedQuestion, kMonthIconsChangedTitle,
            [&] { Run(flags.TemplateMode ? editors.saveTemplateIcons : editors.saveMonthIcons); },
            [&] {
                giveUp(flags.MonthIconsChanged, givenUp.MonthIconsChanged);
                giveUp(flags.TemplateMode, givenUp.TemplateMode);
            }))
        return givenUp;
    if (Call(editors.plannerOpen) && flags.PlannerChanged &&
        !AskToSave(
            dialogs, flags, kPlannerChangedQuestion, kPlannerChangedTitle,
            [&] { Run(editors.savePlanner); },
            [&] { giveUp(flags.PlannerChanged, givenUp.PlannerChanged); }))
        return givenUp;
    if (Call(editors.notesOpen) && flags.NotesChanged)
        AskToSave(
            dialogs, flags, kNotesChangedQuestion, kNotesChangedTitle,
            [&] { Run(editors.saveNotes); },
            [&] { giveUp(flags.NotesChanged, givenUp.NotesChanged); });
    return givenUp;
}

void KeepGivenUpChanges(ChangeFlags& flags, const ChangeFlags& givenUp) {
    flags.MonthIconsChanged |= givenUp.MonthIconsChanged;
    flags.TemplateMode |= givenUp.TemplateMode;
    flags.PlannerChanged |= givenUp.PlannerChanged;
    flags.NotesChanged |= givenUp.NotesChanged;
}
