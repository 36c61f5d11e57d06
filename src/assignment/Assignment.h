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
// waiting export replaces the body with the file's path, a blank line and a request to open
// it with the program.
QString EmailSubject(const AssignmentState& state);
QString EmailBody(const AssignmentState& state);

// "mailto:" + address + "?subject=" + subject + "&body=" + body, the three texts written as
// an address holds them: "%" and two hex digits for each UTF-8 byte of any character but a
// letter, a digit or "-._~" (and the "@" and "," of the address), every line break "%0A". The
// result is plain ASCII, ready as it is for the desktop's e-mail handler.
QString MailtoAddress(const AssignmentState& state);

// Copies the file at path into person's folder on the share, "Planners And Notes/<person>/"
// under shareFolder, making the folders that are
// missing (an existing folder is used whatever the letter case of its name), and replaces a
// file of the same name there. Returns the folder. The share must be an existing folder given
// by its full path and person a plain folder name; anything else, or a failed copy, raises
// VbError.
QString AssignFile(const QString& shareFolder, const QString& person, const QString& path);
