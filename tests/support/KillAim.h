#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>
#include <chrono>

// Kills aimed at the writes of a save. A kill that comes before a save starts writing, or
// after it is done, proves nothing about the safe write, so a kill test learns from what each
// kill left behind where it landed, moves the delay of the next kill toward the writes and
// counts the kills that came while a file was being written.

enum class Landed { BeforeWrite, DuringWrite, AfterWrite };

class KillAim {
public:
    // first: a first guess of the delay that lands in the writes.
    explicit KillAim(std::chrono::microseconds first);

    // The delay of the next kill: around the present aim, randomly earlier or later.
    std::chrono::microseconds NextDelay() const;
    // Where the last kill landed: the aim moves later after a kill before the writes and
    // earlier after one past them.
    void Record(Landed landed);

    int Kills() const { return before_ + during_ + after_; }
    int DuringWrite() const { return during_; }
    // "12 of 40 kills during a write (20 before it, 8 after)".
    QString Summary() const;

private:
    double aim_;  // microseconds
    int before_ = 0;
    int during_ = 0;
    int after_ = 0;
};

// Sleeps for delay, to the microsecond as far as the system allows.
void SleepFor(std::chrono::microseconds delay);

// Every file of a folder and its sub-folders (hidden ones too) with its bytes, by its path in
// the folder ("2026/Notes.dat").
using FolderFiles = QMap<QString, QByteArray>;
FolderFiles ReadFolderFiles(const QString& folder);
// Writes files into folder (making their sub-folders) and removes those of the folder that
// files has not, except the ones keep names; what is already as given is left untouched.
// False when any of it fails.
bool RestoreFolderFiles(const QString& folder, const FolderFiles& files,
                        bool (*keep)(const QString& name) = nullptr);

// A save writes its new file under the file's name + ".saving" and renames it to the file's
// name only once it is complete: such a file left behind is a write that a kill cut short.
bool IsCutShortWrite(const QString& name);
// The files of writes cut short, with their bytes. A save that began to write replaces those
// a save before it left; other than that, they stay as they are.
FolderFiles CutShortWrites(const FolderFiles& files);
