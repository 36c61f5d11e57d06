#pragma once

class QLineEdit;

// A one-line box keeps to one line: a line break (CR LF, CR or LF) or a tab that arrives in it,
// typed, pasted or dropped, becomes a blank. The data files keep such a box's text on one
// line, and a line break pasted from a mail or a document would otherwise split a record.
void KeepOnOneLine(QLineEdit* box);

// Gives the rule to every one-line box of the program, those made later included: each box gets
// it when it is first shown (editable drop-downs and input boxes too). Called by the main
// window and by every child window; doing it again changes nothing.
void KeepEveryBoxOnOneLine();
