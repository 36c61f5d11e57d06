#pragma once

#include <QString>
#include <QStringList>

#include "shell/Dialogs.h"

// The messages of the program's frame: errors, start-up, prompts, the Options and Support
// commands. Texts are kept exactly as users know them, misspellings included.

// ---- errors and files -------------------------------------------------------------------
inline const QString kErrorLogFile = QStringLiteral("Error.log");
inline const QString kProgramErrorTitle = QStringLiteral("Program Error");
inline const QString kErrorLogWriteFailed = QStringLiteral("Error writing to Error.log.");
inline const QString kFolderCheckFailed =
    QStringLiteral("Error encountered during Events Folder check.");

// A read that stopped: the error's description with the file and, when a line was at fault,
// its number, so that Error.log tells which line to look at.
inline QString FaultDescription(const QString& description, const QString& fileName, int line) {
    return line > 0 ? QStringLiteral("%1 (%2, line %3)").arg(description, fileName).arg(line)
                    : QStringLiteral("%1 (%2)").arg(description, fileName);
}

// A save refused because the file's last read stopped at a faulty line (line 0: the file could
// not be read at all).
inline QString PartlyReadFileMessage(const QString& fileName, int line) {
    if (line <= 0)
        return QStringLiteral(
                   "%1 could not be read, so it has not been saved: saving now could overwrite "
                   "what it holds. Please make the file readable, then start Orvanta again.")
            .arg(fileName);
    return QStringLiteral(
               "%1 could not be read completely, so it has not been saved: saving now would "
               "overwrite the lines that could not be read. Please correct or remove line %2 "
               "of the file, then start Orvanta again.")
        .arg(fileName)
        .arg(line);
}

// A field that would break the line it is written on: a line break, or the character that
// separates the line's fields.
inline QString FieldBreaksLineMessage(const QString& field, const QString& character) {
    const QString shown = field.size() > 60 ? field.left(57) + QStringLiteral("...") : field;
    return QStringLiteral(
               "\"%1\" cannot be saved as it is: %2 would break the line it is kept on. Please "
               "remove it and save again.")
        .arg(shown, character);
}
// A character that a file uses for a line break of its text, typed as text.
inline QString LineBreakCharacterMessage(const QString& character) {
    return QStringLiteral(
               "The character \"%1\" cannot be stored here: this file uses it to keep line "
               "breaks. Please remove or replace it and save again.")
        .arg(character);
}
inline const QString kLineBreakName = QStringLiteral("a line break");
inline QString SeparatorName(QChar separator) {
    return QStringLiteral("\"%1\"").arg(separator);
}

// A save that found the file changed by another program where this one changed it too.
inline QString ChangedOnDiskQuestion(const QString& fileName, const QStringList& places) {
    const QStringList shown = places.mid(0, 8);
    return QStringLiteral(
               "%1 was changed by another program after Orvanta read it, in places you changed "
               "too: %2.")
               .arg(fileName,
                    shown.join(QStringLiteral(", ")) +
                        (places.size() > shown.size() ? QStringLiteral(" ...") : QString())) +
           kCrLf + kCrLf +
           QStringLiteral(
               "Yes saves your version of those over the other program's (its other "
               "changes are kept); No saves nothing, and your changes stay where they "
               "are.");
}
inline const QString kChangedOnDiskTitle = QStringLiteral("Changed by Another Program");

// ---- printing ---------------------------------------------------------------------------
inline const QString kNoPrinterMessage = QStringLiteral("Could not find Printer.");
inline const QString kSaveAsPdfCaption = QStringLiteral("Save as PDF");
inline const QString kPdfFilter = QStringLiteral("PDF files (*.pdf)");

// ---- start-up and closing ---------------------------------------------------------------
inline const QString kSecondInstanceMessage =
    QStringLiteral("Another instance of this application is already running.");
inline const QString kCloseQuestion =
    QStringLiteral("Are you sure you want to close the program? Click No to keep this") + kCrLf +
    QStringLiteral("Window Open and then use the Escape Key to return to the Calendar View.");
inline const QString kCloseTitle = QStringLiteral("Preparing to Close the Application");
inline const QString kBadDateMessage =
    QStringLiteral("Please type a date such as 9/7/2026 or Sep 7, 2026.");
inline const QString kBadDateTitle = QStringLiteral("Date not recognized");

// ---- file names and unsaved changes -----------------------------------------------------
inline const QString kIllegalFileNameMessage =
    QStringLiteral("Action Cancelled. File Name cannot include any of ") + kCrLf +
    QStringLiteral("the following characters: / \\ : * ? < > |");
inline const QString kMonthIconsChangedQuestion =
    QStringLiteral("Monthly Icons have been changed. Do you want to save those changes?");
inline const QString kMonthIconsChangedTitle = QStringLiteral("Month Has Changed");
inline const QString kPlannerChangedQuestion =
    QStringLiteral("The Planner has been changed. Do you want to save those changes?");
inline const QString kPlannerChangedTitle = QStringLiteral("Planner Has Changed");
inline const QString kNotesChangedQuestion =
    QStringLiteral("The Notes have been changed. Do you want to save those changes?");
inline const QString kNotesChangedTitle = QStringLiteral("Notes Have Changed");

// ---- Options and Support menus ----------------------------------------------------------
inline const QString kShareDrivePrompt =
    QStringLiteral("Enter the Network Share Drive letter below. Example d, e, f, etc.");
inline const QString kShareDriveTitle = QStringLiteral("Setting Network Share Drive");
inline const QString kBadDriveLetterMessage = QStringLiteral("Could not determine drive letter.");

inline const QString kShortcutName = QStringLiteral("Shortcut to Orvanta");
inline const QString kShortcutAddedMessage =
    QStringLiteral("A Shortcut has been successfully added to Programs.");
inline const QString kShortcutFailedPrefix = QStringLiteral("Unable to Create Shortcut : ");

inline const QString kReportProblemMessage = QStringLiteral(
    "A new window will open taking you to the Bug Report Page. Type a brief "
    "decription\r\nof the problem in the box provided and we'll get back to you "
    "as soon as possible. P.S.Don't forget to leave your email address.");
inline const QString kSendErrorLogMessage = QStringLiteral(
    "This process will copy the Error Log File to memory so that you can paste it in the\r\nthe "
    "appropriate box on our website. Please make sure you are connected to the internet.");
inline const QString kLogFileNotFoundMessage = QStringLiteral("Log File not found.");

// The maker's web site and its pages for problem reports and error logs.
inline const QString kMakerSite = QStringLiteral("https://www.orvanta.example");
inline const QString kBugReportPage = QStringLiteral("/orvanta/bug_report.htm");
inline const QString kErrorLogPage = QStringLiteral("/orvanta/error_log.htm");

// ---- User Options window ----------------------------------------------------------------
inline const QString kUserOptionsCaption = QStringLiteral("User Options");
inline const QString kOptionsChangedQuestion =
    QStringLiteral("The options have been changed. Do you want to save those changes?");
inline const QString kOptionsChangedTitle = QStringLiteral("Options Have Changed");
inline const QString kSharedDirectoryCaption = QStringLiteral("Choose the Shared Directory");
inline const QString kBadTimeZoneMessage = QStringLiteral(
    "The calendar time zone must be one of the list, such as America/New_York, or (floating) "
    "for times without a zone; the options were not saved.");
