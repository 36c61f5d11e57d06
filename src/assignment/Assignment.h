#pragma once

#include <QString>

// What the contact list hands on: the file exported for somebody (empty when nothing was
// exported), the message to send with it, and whether the export still waits to be assigned.
struct AssignmentState {
    QString filePath;
    QString address;
    QString subject;
    QString body;
    bool exportWaiting = false;
};

// The subject and body the e-mail goes out with: an empty subject takes the default one; a
// waiting export replaces the body with the file's path and a request to open it with the
// program; line breaks are written "%0A".
QString EmailSubject(const AssignmentState& state);
QString EmailBody(const AssignmentState& state);

// "mailto:" + address + "?subject=" + subject + "&body=" + body, encoded no further: the
// e-mail program takes the texts as they are.
QString MailtoAddress(const AssignmentState& state);

// Copies the file at path into person's folder on the share, "Planners And Notes/<person>/"
// under shareFolder, making the folders that are
// missing (an existing folder is used whatever the letter case of its name), and replaces a
// file of the same name there. Returns the folder. The share must be an existing folder given
// by its full path and person a plain folder name; anything else, or a failed copy, raises
// VbError.
QString AssignFile(const QString& shareFolder, const QString& person, const QString& path);
