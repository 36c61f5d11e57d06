#pragma once

#include <QString>
#include <functional>

class Dialogs;

// Refuses a file name holding a character no file name may hold (/ \ : * ? < > |), with a
// message; returns true when the name was refused and the caller must cancel.
bool IllegalFileName(Dialogs& dialogs, const QString& name);

// Unsaved work of the editors, set by them and cleared by the questions below.
struct ChangeFlags {
    bool MonthIconsChanged = false;
    bool TemplateMode = false;
    bool PlannerChanged = false;
    bool NotesChanged = false;
    // The user chose Cancel in one of the questions: the caller abandons what it was doing.
    bool CancelRequested = false;
};

// How the questions reach the open editors. Missing functions stand for editors that do not
// exist (never open, nothing to save).
struct EditorHooks {
    std::function<bool()> plannerOpen;
    std::function<bool()> notesOpen;
    std::function<void()> saveTemplateIcons;
    std::function<void()> saveMonthIcons;
    std::function<void()> savePlanner;
    std::function<void()> saveNotes;
};

// Asks about unsaved month icons, planner and notes, in that order, each with Yes (save), No
// (discard: the flag is cleared) and Cancel (stop asking and set CancelRequested). Returns the
// flags that No cleared, for a caller that does not go ahead after all to set them again.
ChangeFlags PromptUnsavedChanges(Dialogs& dialogs, ChangeFlags& flags, const EditorHooks& editors);

// Flags again the work that the questions' No gave up, for an action that did not happen.
void KeepGivenUpChanges(ChangeFlags& flags, const ChangeFlags& givenUp);
