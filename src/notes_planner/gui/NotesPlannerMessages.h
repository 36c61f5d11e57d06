#pragma once

#include <QString>

// The questions and captions of the notes and planner windows.
inline const QString kNotesCloseQuestion =
    QStringLiteral("Text has been changed. Do you want to save the changes?");
inline const QString kNotesCloseTitle = QStringLiteral("Text Has Been Changed.");
inline const QString kPlannerCloseQuestion =
    QStringLiteral("Planner has been changed. Do you want to save the changes?");
inline const QString kPlannerCloseTitle = QStringLiteral("Planner Has Been Changed.");

inline const QString kTooWideMessage =
    QStringLiteral("The length of the text exceeds the width of the box ") +
    QStringLiteral("and will not allow the page to print correctly.");
// "There are too many characters on this line (more than 150).  The excess text will be
// truncated if saved to a file."
inline QString TooManyCharactersMessage(int width) {
    return QStringLiteral("There are too many characters on this line ") +
           QStringLiteral("(more than ") + QString::number(width) + QStringLiteral(").  ") +
           QStringLiteral("The excess text will be truncated if saved to a file.");
}
inline const QString kBadTimeMessage =
    QStringLiteral("Please enter a valid time using this sample format: \"8:45 PM\" or") +
    QStringLiteral("\r\n") +
    QStringLiteral("delete the contents of the box entirely to create a continuance line.");
inline const QString kToDoImportQuestion =
    QStringLiteral("This action may overwrite certain existing To Do Items. Continue?");
inline const QString kToDoImportTitle = QStringLiteral("Replacing Some To Do Items");

inline const QString kPlannerPrintHeading = QStringLiteral("Orvanta: Daily Planner");
inline const QString kPreviewCaption = QStringLiteral("Print Preview");
inline const QString kResumeEditingCaption = QStringLiteral("Resume Editing");
inline const QString kShowCursorCaption = QStringLiteral("Show Cursor Position");
inline const QString kHideCursorCaption = QStringLiteral("Hide Cursor Position");
inline const QString kCursorPositionPrefix = QStringLiteral("Cursor Position =    ");
inline const QString kTextPositionPrefix = QStringLiteral("Text Position = ");

inline const QString kExternalPlannerCaption = QStringLiteral("Displaying External Planner for ");
inline const QString kMergeTitle = QStringLiteral("A Planner Exists with the same Date");
// "A record with this date (03/07/26)already exists. Overwrite existing record?": no blank
// after the parenthesis.
inline QString MergeQuestion(const QString& date) {
    return QStringLiteral("A record with this date (") + date +
           QStringLiteral(")already exists. Overwrite existing record?");
}
// The notes and planner management window and the search window.
inline const QString kNothingSelectedMessage = QStringLiteral("Nothing has been selected.");
inline const QString kNoteNotFoundMessage = QStringLiteral("Couldn't find note to open.");
inline const QString kPlannerNotFoundMessage = QStringLiteral("Couldn't find planner to open.");
inline const QString kDeleteAllQuestion =
    QStringLiteral("You're about to delete all the files in the list. Continue?");
inline const QString kDeleteAllTitle = QStringLiteral("Deleting All File in the List");

inline const QString kNoPhraseMessage = QStringLiteral("No phrase has been entered.");
inline const QString kPhraseNotFoundMessage = QStringLiteral("Search Phrase was not found.");
// "Search Phrase appears on 1 date" (no point) or "Search Phrase appears on 3 dates.".
inline QString AppearsOnMessage(int count) {
    return count == 1 ? QStringLiteral("Search Phrase appears on 1 date")
                      : QStringLiteral("Search Phrase appears on ") + QString::number(count) +
                            QStringLiteral(" dates.");
}
