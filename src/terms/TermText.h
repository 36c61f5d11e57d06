#pragma once

#include <QString>

// How a term meets the text it is put into.

// The text that goes in at the caret for term: the term alone at the start of the text or
// after a blank or line break; otherwise a notes text (multiLine) starts a new line for a term
// put at the end of a line and a blank joins it inside a line, and a planner line always joins
// it with a blank. A term put in front of more of the line's words is followed by a blank.
QString TermInsertion(QStringView before, QStringView after, const QString& term, bool multiLine);

// The word being typed: the letters and digits just before the caret.
QString WordBeforeCaret(QStringView before);

// A word typed must have this many letters before the terms that begin like it are offered,
// unless the user chose another number ("Auto Start Position:", 1 to 9).
constexpr int kAutoCompleteMinLetters = 2;
constexpr int kAutoStartMost = 9;
int AutoStartLetters(const QString& preference);

// The term in its next letter case, in the turn Title Case -> UPPER CASE -> lower case -> Title
// Case; a term in some other mix of cases turns to UPPER CASE first.
QString NextLetterCase(const QString& term);
