#pragma once

#include <QString>

// The messages of the calendar: date actions, marks and marker colours. Texts are kept exactly
// as users know them.

inline const QString kUseBirthdayManagerMessage =
    QStringLiteral("Use the Birthday Manager to remove this mark.");
inline const QString kUseHolidayManagerMessage =
    QStringLiteral("Use the Holiday Manager to remove this mark.");

inline const QString kHoverPrompt =
    QStringLiteral("You may input the Hover Text in the box provided. Click Cancel to ignore.");
inline const QString kHoverTitlePrefix = QStringLiteral("Optional Hover Text: ");
inline const QString kHoverNeedsMarkMessage = QStringLiteral(
    "A hover note is kept with the day's mark. Please mark the day first, then attach the note.");
inline const QString kHoverLineBreakMessage =
    QStringLiteral("A hover note must fit on one line. Please remove the line break.");

inline const QString kDeleteMarksQuestion = QStringLiteral(
    "Are you sure you want to clear all this year's marks? Note: Holidays and Birthdays are "
    "excluded.");
inline const QString kNoMarksBackupMessage =
    QStringLiteral("There is no backup of this year's marks to restore.");

// Shown when a category is given the colour of another one.
inline QString DuplicateColorMessage(const QString& otherCaption) {
    return QStringLiteral(
               "This colour is already used by \"%1\". Each mark needs a colour of its own; "
               "please choose another colour.")
        .arg(otherCaption);
}
inline const QString kEmptyCaptionMessage = QStringLiteral("Please enter a caption for the mark.");
inline const QString kCaptionLineBreakMessage =
    QStringLiteral("A mark caption must fit on one line.");
inline const QString kMarkedDaysKeepColourNote =
    QStringLiteral("Days already marked keep the colour they were marked with.");

inline const QString kFindDateCaption = QStringLiteral("Find a Date");
inline const QString kFindDatePrompt = QStringLiteral("&Date to find:");
inline const QString kFindDateNotRecognized = QStringLiteral(
    "This is not a date. Please type a date such as 9/7/2026, 09/07/26, Sep 7, 2026 or "
    "2026-09-07.");
inline QString FindDateOutOfRange(int firstYear, int lastYear) {
    return QStringLiteral(
               "The calendar shows the years %1 to %2. Please type a date in those "
               "years.")
        .arg(firstYear)
        .arg(lastYear);
}
