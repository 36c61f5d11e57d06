#pragma once

#include <QDir>
#include <QString>

// The messages of the iCalendar export and import.
inline const QString kExportICalTitle = QStringLiteral("Export to iCalendar");
inline const QString kImportICalTitle = QStringLiteral("Import from iCalendar");
inline const QString kICalFilter = QStringLiteral("iCalendar files (*.ics);;All files (*)");

inline QString ICalExportedMessage(int count, const QString& path) {
    return QStringLiteral("%1 calendar entries were exported to %2.")
        .arg(count)
        .arg(QDir::toNativeSeparators(path));
}
inline QString ICalUnreadableMessage(const QString& path) {
    return QStringLiteral("The file %1 could not be read.").arg(QDir::toNativeSeparators(path));
}
inline const QString kICalYearsPrompt = QStringLiteral(
    "The file has repeating events. Over which years should they be taken? Type a year, or "
    "two joined by \"-\" (such as 2026-2027).");
inline const QString kICalYearsRefused = QStringLiteral(
    "Please type a year, or two joined by \"-\" (such as 2026-2027), at most 50 years apart.");
inline QString ICalAllDayQuestion(qsizetype count) {
    return QStringLiteral(
               "The file has %1 all-day %2. Yes adds them to the holiday lists, No marks "
               "their days with Holiday marks (the event as the mark's note), Cancel "
               "leaves them out.")
        .arg(count)
        .arg(count == 1 ? QStringLiteral("event") : QStringLiteral("events"));
}
inline QString ICalPreviewQuestion(const QString& preview) {
    return preview + QStringLiteral("\r\n\r\nImport these changes?");
}
inline const QString kICalCloseEditorsMessage = QStringLiteral(
    "Please close the planner and notes windows first, so that a page or note being "
    "edited is not saved over what the import brings.");
inline const QString kICalImportedMessage = QStringLiteral("The iCalendar file was imported.");
inline const QString kICalImportedInPartMessage = QStringLiteral(
    "The iCalendar file was imported in part: the files named in the messages before this one "
    "were left as they were.");
