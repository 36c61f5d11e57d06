#pragma once

#include <QDate>
#include <QString>
#include <functional>

class DateModel;
class NotesStore;
class PlannerStore;
class Printer;
class Services;
class ToDoStore;
class UnsavedWork;
class UserPreferences;
class frmMain;
class QWidget;
struct ChangeFlags;
struct SearchState;

// What the notes and planner windows work with: the frame they live in, the stores, the
// program's change flags, the shared search, the safety copy of unsaved typing and the
// printer.
struct NotesPlannerContext {
    frmMain& frame;
    Services& services;
    DateModel& dates;
    NotesStore& notes;
    PlannerStore& planner;
    // The default to-do list, which a planner page can take its to-do items from.
    const ToDoStore& toDo;
    ChangeFlags& changes;
    UserPreferences& prefs;
    SearchState& search;
    UnsavedWork& unsaved;
    Printer& printer;
    // F2 and F3 in an editor's text: the frequently used terms take them when they exist.
    std::function<void(QWidget* box, int key)> termKey;
    // Makes a text box take terms dropped on it and offer terms while the user types.
    std::function<void(QWidget* box)> termBox;
    // Opens the frequently used terms with their preferences.
    std::function<void()> openTerms;
    // Shows a planner or notes file in its window; set by the main window's side.
    std::function<void(const QString& path)> openExternalPlanner;
    std::function<void(const QString& path)> openExternalNotes;
    // Hands an exported file to the contact list to be sent on.
    std::function<void(const QString& path)> assignFile;
    // Told the text of a planner page copied to memory, which the contact list can paste into
    // a message.
    std::function<void(const QString& text)> plannerCopied;

    // Makes sure date's year is one of the two years in memory, selecting date when it is
    // not, so that a page or note kept open while the calendar moved on saves into its year.
    void LoadYearOf(const QDate& date);
};
