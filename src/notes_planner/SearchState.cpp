#include "notes_planner/SearchState.h"

qsizetype FindNextOccurrence(const QString& text, const QString& phrase, qsizetype from) {
    if (phrase.isEmpty() || from > text.size())
        return -1;
    // Compared letter by letter without case, so that a position in the text is a position in
    // what is shown (upper-casing "ß" would make two letters of one).
    return text.indexOf(phrase, from, Qt::CaseInsensitive);
}
