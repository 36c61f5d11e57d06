#pragma once

#include <QFileInfo>
#include <QString>

#include "notes_planner/ExternalFiles.h"

// The boxes of exporting, saving and opening a planner or notes file.
inline const QString kExportTitle = QStringLiteral("Exporting Planner or Notes");
inline const QString kExportPrompt =
    QStringLiteral("Please enter a file name for the file in the box provided. Do not include") +
    QStringLiteral(" any of the following illegal characters in the name: / \\ : * ? < > |");
inline const QString kNoNameMessage = QStringLiteral("Action cancelled. No Name given.");
inline const QString kOverwriteTitle = QStringLiteral("File Already Exists");
inline QString OverwriteQuestion(ExternalKind kind) {
    return kind == ExternalKind::Planner
               ? QStringLiteral(
                     "A Planner File with that name already exists. Overwrite existing file?")
               : QStringLiteral(
                     "A Note File with that name already exists. Overwrite existing file?");
}
// "The file was saved as Plan.pln" CR LF "in the Folder /home/ann/Orvanta/Planners And Notes".
inline QString SavedAsMessage(const QString& fileName, const QString& folder) {
    return QStringLiteral("The file was saved as ") + fileName + QStringLiteral("\r\n") +
           QStringLiteral("in the Folder ") + folder;
}

inline const QString kExternalFileFilter =
    QStringLiteral("Planner and Notes Files (*.nte *.pln);;All Files (*)");
inline const QString kBadFileNameMessage = QStringLiteral("Bad file name.");
inline const QString kBadFilePathMessage = QStringLiteral("Bad file path.");

// Why a file was not opened.
inline const QString kTooShortProblem = QStringLiteral("it is too short to hold a date");
inline const QString kNoDateProblem =
    QStringLiteral("it does not begin with a date written mm/dd/yy and \":\"");
// "The file Plan.pln could not be opened as a planner file: <problem>. Nothing was opened."
inline QString DamagedFileMessage(ExternalKind kind, const QString& path, const QString& problem) {
    return QStringLiteral("The file ") + QFileInfo(path).fileName() +
           QStringLiteral(" could not be opened as a ") +
           (kind == ExternalKind::Planner ? QStringLiteral("planner") : QStringLiteral("notes")) +
           QStringLiteral(" file: ") + problem + QStringLiteral(". Nothing was opened.");
}
