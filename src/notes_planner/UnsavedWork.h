#pragma once

#include <QByteArray>
#include <QDate>
#include <QString>
#include <optional>

#include "notes_planner/PlannerRecord.h"

class Services;

inline const QString kTempRecordFile = QStringLiteral("TempRecord.txt");

// The two editors whose unsaved typing is kept safe.
enum class EditorKind { Notes, Planner };

// What an editor held and had not saved: the note's text or the planner page, of one date.
struct UnsavedEdit {
    QDate date;
    QString noteText;
    PlannerPage page;
    // The planner or notes file the text came from, when it was not a calendar day's.
    QString externalFile;
    // Already offered back once when the program started.
    bool offered = false;
};

struct UnsavedEdits {
    std::optional<UnsavedEdit> notes;
    std::optional<UnsavedEdit> planner;

    std::optional<UnsavedEdit>& operator[](EditorKind kind) {
        return kind == EditorKind::Notes ? notes : planner;
    }
    const std::optional<UnsavedEdit>& operator[](EditorKind kind) const {
        return kind == EditorKind::Notes ? notes : planner;
    }
};

// The file as UTF-8 JSON, so that every character typed comes back, also one that the data
// files cannot hold. Parsing takes whatever is readable and never fails.
QByteArray FormatUnsavedEdits(const UnsavedEdits& edits);
UnsavedEdits ParseUnsavedEdits(const QByteArray& bytes);

// Typing not yet saved, kept in "TempRecord.txt" in the data folder while an editor has
// changes, so that a crash or a power cut does not lose it: the next start offers it back.
// The file is removed once nothing is left unsaved. Writing it is a safety net only: when it
// fails, the editor goes on as before and nothing is shown.
class UnsavedWork {
public:
    // Reads what a session that ended without saving left behind.
    explicit UnsavedWork(Services& services);

    void Keep(EditorKind kind, const UnsavedEdit& edit);
    void Forget(EditorKind kind);
    std::optional<UnsavedEdit> Leftover(EditorKind kind) const;
    // Remembers that a leftover was offered at start-up, so that it is not offered there again.
    void MarkOffered(EditorKind kind);

private:
    void Write();

    Services& services_;
    UnsavedEdits edits_;
};
