#pragma once

#include <QString>

#include "shell/Dialogs.h"

inline const QString kEmailListCaption = QStringLiteral("Contact List");
inline const QString kDefaultSubject = QStringLiteral("Orvanta Assignment For You");
inline const QString kAttachReminder =
    QStringLiteral("Don't forget to attach the file, if needed.");
inline const QString kOpenWithOrvanta =
    QStringLiteral("Please save the attached file and open it with Orvanta.");
inline const QString kEmailClientFailed =
    QStringLiteral("A problem was encountered while attempting to open your email client.");
inline const QString kNoOneSelected = QStringLiteral("No one was selected for assignment.");
inline const QString kAssignFailed = QStringLiteral("An error occurred during Assigning.");
inline const QString kNoNameToAdd = QStringLiteral("There's no name to add.");
inline const QString kFieldsChanged =
    QStringLiteral("The fields have been changed. Do you want to save them?");
inline const QString kDeleteTitle = QStringLiteral("Preparing to Delete Entry");
inline QString DeleteQuestion(const QString& name) {
    return QStringLiteral("Are you sure you want to delete ") + name + u'?';
}
inline const QString kPasteTitle = QStringLiteral("Pasting Planner");
inline const QString kOverwriteMessage =
    QStringLiteral("Do you want to overwrite existing contents?");
inline const QString kNothingToPaste =
    QStringLiteral("There's nothing in memory to paste. Open a Planner and select") + kCrLf +
    QStringLiteral("\"Copy Planner to Memory\" from under the menu item \"File\".");

// Not fixed texts: what this program says where the rules leave the words open.
inline const QString kAddressWithColon = QStringLiteral("An e-mail address cannot include \":\".");
inline QString AssignedMessage(const QString& name, const QString& folder) {
    return QStringLiteral("The file was assigned to ") + name + QStringLiteral(" in the Folder ") +
           folder;
}
inline const QString kAssignHelp = QStringLiteral(
    "Export a Planner or Notes with \"Export ... and Assign to...\", pick the person in the "
    "list and click Assign: the file is copied into the person's folder under \"Planners And "
    "Notes\" in the Shared Directory of your preferences.");
inline const QString kAssignEmailHelp = QStringLiteral(
    "Pick the person in the list, type a subject and a message (or paste a Planner copied "
    "to memory) and click Open E-mail: your e-mail program opens a new message to that "
    "person. Attach the exported file yourself.");
