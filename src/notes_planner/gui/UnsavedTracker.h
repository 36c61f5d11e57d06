#pragma once

#include <QDate>
#include <QObject>
#include <QString>
#include <functional>

#include "notes_planner/UnsavedWork.h"

class Dialogs;
class QTimer;

// The unsaved state of one editor: its change flag (one of the program's change flags, so that
// the program's closing questions see it) and the safety copy of its text, written a moment
// after a change (and every few seconds while the typing goes on) and removed once the text is
// saved or given up.
class UnsavedTracker : public QObject {
    Q_OBJECT
public:
    // How long after the last change the safety copy is written.
    static constexpr int kKeepDelayMs = 2000;

    UnsavedTracker(UnsavedWork& unsaved, EditorKind kind, bool& changedFlag,
                   std::function<UnsavedEdit()> snapshot, QObject* parent = nullptr);
    // Called as the editor goes, while its text is still there: changes neither saved nor
    // given up leave their safety copy behind.
    void EditorClosing();

    bool IsChanged() const { return changed_; }
    // The text was edited: the flag is set and the safety copy will follow.
    void MarkChanged();
    // The text was saved, given up or replaced: nothing is unsaved any more, and the safety
    // copy this editor wrote is removed (a copy of another date left by an earlier session
    // stays).
    void MarkClean();
    // Writes the safety copy now if one is due.
    void KeepNow();

    // The closing question of an editor with changes: Yes saves (and closes only when the save
    // worked), No gives the changes up, Cancel keeps the window open. Returns whether the
    // window may close.
    bool AskBeforeClosing(Dialogs& dialogs, const QString& question, const QString& title,
                          const std::function<bool()>& save);

    // A safety copy left of date (of the planner or notes file externalFile, when not empty)
    // by a session that ended without saving, offered back with a question (unless ask is
    // false: the user has already said yes); true when the user took it (edit then holds it).
    // A copy refused is dropped.
    bool OfferLeftover(Dialogs& dialogs, const QDate& date, const QString& externalFile,
                       UnsavedEdit& edit, bool ask = true);

private:
    UnsavedWork& unsaved_;
    EditorKind kind_;
    bool& changed_;
    std::function<UnsavedEdit()> snapshot_;
    QTimer* timer_;
    // The safety copy on disk is this editor's.
    bool kept_ = false;
};

// The question that offers a safety copy back, for the notes or the planner page of date.
QString RestoreQuestion(EditorKind kind, const QDate& date);
QString RestoreTitle(EditorKind kind);
