#pragma once

#include <QString>

// What the holiday and birthday stores and their managers say.

inline const QString kHolidayManagerCaption = QStringLiteral("Holiday Manager");
inline const QString kNoHolidayListMessage = QStringLiteral("There is no Holiday List for ");
inline const QString kNoDateEnteredMessage = QStringLiteral("There's no date entered.");
inline const QString kDateNotRecognizedMessage = QStringLiteral("Date not recognized as entered.");
inline const QString kEnterDescriptionMessage = QStringLiteral("Please enter a description.");
inline const QString kHolidayListSavedMessage =
    QStringLiteral("Holiday List Saved. Changes will be reflected in your next calendar view.");
inline QString NewHolidayListQuestion(int year) {
    return QStringLiteral(
               "Start a new, empty Holiday List for %1? The holidays listed now are replaced in "
               "the year's file when the new list is saved.")
        .arg(year);
}
inline const QString kNewHolidayListTitle = QStringLiteral("New Holiday List");

inline const QString kNoBirthdaysPending = QStringLiteral("No Birthdays Pending");
inline const QString kOneBirthdayPending = QStringLiteral("1 Birthday is Pending");
inline const QString kBirthdaysArePending = QStringLiteral(" Birthdays are Pending");
inline const QString kBirthdaysUpdatedMessage = QStringLiteral("Birthdays Updated.");

inline const QString kBirthdayManagerCaption = QStringLiteral("Birthday Manager");
inline const QString kNewBirthdayTitle = QStringLiteral("New Birthday");
inline const QString kChangeBirthdayTitle = QStringLiteral("Change the Selected Birthday");
inline const QString kBornThisYearText = QStringLiteral("born this year");
inline QString TurnsAgeText(int age) {
    return QStringLiteral("turns %1 this year").arg(age);
}

inline const QString kEnterBirthdayNameMessage = QStringLiteral("Please enter the person's name.");
inline const QString kBirthdayNameColonMessage = QStringLiteral(
    "A name cannot contain \":\": the birthday list uses it to separate the parts of a line.");
inline const QString kChooseBirthdayMessage =
    QStringLiteral("Please choose the month and the day of the birthday.");
inline const QString kFebruary29Message =
    QStringLiteral("February 29 is not kept as a birthday: please choose February 28 or March 1.");
inline QString DayNotInMonthMessage(const QString& month, int day) {
    return QStringLiteral("%1 has no day %2.").arg(month).arg(day);
}
inline QString BirthYearMessage(int thisYear) {
    return QStringLiteral(
               "Please enter the birth year with four digits, no later than %1, or check "
               "\"Don't remember the age\".")
        .arg(thisYear);
}
inline const QString kBirthdayChangedQuestion =
    QStringLiteral("The birthday entry has been changed. Do you want to save those changes?");
inline const QString kBirthdayChangedTitle = QStringLiteral("Birthday Has Changed");
inline QString RemoveBirthdayQuestion(const QString& name) {
    return QStringLiteral("Remove the birthday of %1?").arg(name);
}

inline QString IcsUnreadableMessage(const QString& path) {
    return QStringLiteral("The file %1 could not be read.").arg(path);
}
inline QString IcsNothingInYearMessage(int year) {
    return QStringLiteral("The file holds no all-day event in %1; nothing was added.").arg(year);
}
inline QString IcsImportedMessage(qsizetype count, int year) {
    return count == 1
               ? QStringLiteral("1 holiday was added to the %1 list.").arg(year)
               : QStringLiteral("%1 holidays were added to the %2 list.").arg(count).arg(year);
}

// A limit of the iCalendar reader as the user reads it: "64 MB", "256 KB".
inline QString IcsLimitText(qsizetype bytes) {
    return bytes >= (qsizetype{1} << 20) ? QStringLiteral("%1 MB").arg(bytes >> 20)
                                         : QStringLiteral("%1 KB").arg(bytes >> 10);
}
inline QString IcsFileTooLargeMessage(qsizetype limit) {
    return QStringLiteral(
               "The iCalendar file is larger than %1, more than any calendar holds; it was not "
               "read.")
        .arg(IcsLimitText(limit));
}
inline QString IcsLineTooLongMessage(qsizetype line, qsizetype limit) {
    return QStringLiteral(
               "Line %1 of the iCalendar file is longer than %2, more than any calendar line "
               "holds; the file was not read.")
        .arg(line)
        .arg(IcsLimitText(limit));
}
inline QString IcsFoldedLineTooLongMessage(qsizetype line, qsizetype limit) {
    return QStringLiteral(
               "Line %1 of the iCalendar file, joined with the lines that continue it, is longer "
               "than %2, more than any calendar line holds; the file was not read.")
        .arg(line)
        .arg(IcsLimitText(limit));
}
