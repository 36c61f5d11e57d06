#pragma once

#include <QString>

inline const QString kNoMoreOccurrencesMessage = QStringLiteral("No more occurences.");

// The phrase last searched for and where it was looked for ("Notes" or "Planners"). The
// search window sets it; Search Again in the notes and planner windows steps through the
// phrase's occurrences in the text they show.
struct SearchState {
    QString phrase;
    QString location = QStringLiteral("Notes");

    bool IsActive() const { return !phrase.isEmpty(); }
};

// Where phrase next occurs in text at or after from, whatever the letters' case; -1 when it
// does not occur again.
qsizetype FindNextOccurrence(const QString& text, const QString& phrase, qsizetype from);
