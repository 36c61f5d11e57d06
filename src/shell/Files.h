#pragma once

#include <QString>
#include <QStringList>

class Dialogs;

// The data folder and the existence tests every store runs before it opens a file.
//
// Linux file systems tell "notes.dat" from "Notes.dat", but a data folder copied from Windows
// may spell its files either way, so every lookup matches names without regard to letter case
// and hands back the entry's real path, which is the path the store then opens.

// The data folder as a path with exactly one trailing separator ("/" stays "/").
QString MakeAppFolder(const QString& folder);

// folder (ending in a separator) + relative, where "\" in relative separates folders.
QString JoinPath(const QString& folder, const QString& relative);

// True when folder + name names an existing file (hidden and read-only files count). name may
// hold sub-folders ("Holidays\2008Holidays.dat"); every part is matched without regard to case,
// an exact spelling winning over another. realPath receives the path on disk.
bool FileExists(const QString& folder, const QString& name, QString* realPath = nullptr);

// Where a file of the data folder is written: the existing file, whatever the letter case of
// its name on disk, or else folder + name.
QString PathForWriting(const QString& folder, const QString& name);

// The paths of every file in dir (ending in a separator) whose name is name in some letter
// case, the exact spelling included.
QStringList FilesSpelledLike(const QString& dir, const QString& name);

// The backup name of a file name: its extension replaced by ".bak".
QString BackupName(const QString& name);

// True when parent holds a folder called name (case-insensitive). When parent cannot be listed
// it says so in a message box and returns false.
bool FolderExists(Dialogs& dialogs, const QString& parent, const QString& name,
                  QString* realPath = nullptr);

// Makes a file writable again for its owner, as clearing a read-only attribute does.
void ClearAttributes(const QString& path);
