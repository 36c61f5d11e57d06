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

inline const QString kNoBirthdaysPending = QStringLiteral("No Birthdays Pending");
inline const QString kOneBirthdayPending = QStringLiteral("1 Birthday is Pending");
inline const QString kBirthdaysArePending = QStringLiteral(" Birthdays are Pending");
inline const QString kBirthdaysUpdatedMessage = QStringLiteral("Birthdays Updated.");

inline const QString kBirthdayManagerCaption = QStringLiteral("Birthday Manager");

// A list read only in part is not saved over: the lines after the faulty one would be lost.
inline QString PartlyReadRefusal(const QString& file) {
    return QStringLiteral(
               "%1 could not be read to its end (see Error.log), so it is not saved: the lines "
               "after the faulty one would be lost. Correct or move the file, then open this "
               "window again.")
        .arg(file);
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
