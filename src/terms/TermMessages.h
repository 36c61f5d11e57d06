#pragma once

#include <QString>

// The texts of the frequently used terms, kept as the user sees them.
inline const QString kTermFileNotFound = QStringLiteral("File not found.");
inline const QString kNoTermsToSave = QStringLiteral("There are no Frequently Used Terms to save.");
inline const QString kNewTermFilePrompt =
    QStringLiteral("Please enter a name for the Frequent Terms File.");
inline const QString kNewTermFileTitle = QStringLiteral("Starting New Frequent Terms File");
inline const QString kTermFileExistsQuestion = QStringLiteral("File already exists. Overwrite?");
inline const QString kTermFileExistsTitle = QStringLiteral("Duplicate Frequent Terms File Exists");

inline const QString kResizeTooSmall = QStringLiteral(
    "Can't resize this window that small. Minimize the window if you need more space.");
inline const QString kNothingToEdit = QStringLiteral("Nothing selected to edit.");
inline const QString kNothingToRemove = QStringLiteral("Nothing selected to remove.");
inline const QString kDisableAutoComplete = QStringLiteral("Disable Auto Complete");
inline const QString kEnableAutoComplete = QStringLiteral("Enable Auto Complete");
inline const QString kNothingToClear = QStringLiteral("There's nothing to delete.");
inline const QString kClearQuestion =
    QStringLiteral("This will delete all items in the list. Continue?");
inline const QString kClearTitle = QStringLiteral("Preparing to Clear List");
inline const QString kCannotDeleteDefault = QStringLiteral(
    "You cannot delete the Default Frequent Terms List. You can\r\n"
    "delete all of its items with Clear List in the Edit menu.");
inline const QString kNoFileToDelete = QStringLiteral("No file to delete.");
inline const QString kDeleteFileNotFound = QStringLiteral("File not Found.");
inline const QString kDeleteFileTitle = QStringLiteral("Deleting Frequent Terms File");
inline const QString kNoTermFiles = QStringLiteral("No file exists.");
inline const QString kNoListSelected = QStringLiteral("No list selected.");
inline const QString kOpenTermFileTitle = QStringLiteral("Opening Frequent Terms File");
inline const QString kTermFileCaption = QStringLiteral("Frequent Terms File:");
inline const QString kNoTermToSave = QStringLiteral("No term has been added to save.");

// Asked before a term file other than the default one is deleted.
inline QString DeleteTermFileQuestion(const QString& name) {
    return QStringLiteral("Delete the Frequent Terms File \"%1\"?").arg(name);
}
