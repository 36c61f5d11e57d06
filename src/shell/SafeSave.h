#pragma once

#include <QByteArray>
#include <QString>

class QFileDevice;

// Saves that never tear a file. New bytes are written under the file's name + ".saving",
// synced to disk, and only then take the file's name in one rename, so that a crash, a kill
// or a full disk at any moment leaves the complete old file or the complete new one. A save
// cut short leaves at most its ".saving" file, which no reader looks for and the next save
// replaces. Every failure raises VbError with the classic number (61 disk full, 70 permission
// denied, 75 path/file access error) and leaves the old file as it was.
namespace safesave {

// Replaces the file at path with exactly bytes.
void Replace(const QString& path, const QByteArray& bytes);

// Saves name (relative to folder) keeping its previous version: the existing file, in whatever
// letter case, becomes the same name with the extension ".bak" (replacing an older backup in any
// case), and bytes are written under name as given. Empty bytes write nothing, which leaves
// only the backup. The backup is a second name of the current file made before the new file
// takes its place, so it is never the newer of the two.
void ReplaceKeepingBackup(const QString& folder, const QString& name, const QByteArray& bytes);

// A failed file operation as its classic error: the system's error code when there is one,
// else what the file says.
[[noreturn]] void RaiseSystemError(int code);
[[noreturn]] void RaiseFileError(const QFileDevice& file, int code);

}  // namespace safesave
