#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>
#include <chrono>

// The kill tests' tools: saves killed at random moments while they write.
//
// A kill that comes before a save begins to write, or after it is done, proves nothing about
// the safe write. So a kill test waits until the save begins to write (WriteWatch), kills it a
// random delay later (KillAim), and learns from what the kill left behind where it landed: the
// delays shrink after a kill that came after the last write and grow after one that came
// during the writes, so that most kills land while a file is being written. KillAim counts
// where they landed.

// Every file of a folder and its sub-folders (hidden ones too) with its bytes, by its path in
// the folder ("2026/Notes.dat").
using FolderFiles = QMap<QString, QByteArray>;

// Where a kill that came once a save began to write landed: while a file was being written
// (cut short, it left its ".saving" file), between the writes of two files, or after the last.
enum class Landed { DuringWrite, BetweenWrites, AfterWrite };

class KillAim {
public:
    // longest: a first guess of how long the writes take.
    explicit KillAim(std::chrono::microseconds longest);

    // The delay of the next kill after the first write began.
    std::chrono::microseconds NextDelay() const;
    void Record(Landed landed);

    int Kills() const { return during_ + between_ + after_; }
    int DuringWrite() const { return during_; }
    // "12 of 40 kills during a write (20 between two, 8 after the last)".
    QString Summary() const;

private:
    double longest_;  // microseconds
    int during_ = 0;
    int between_ = 0;
    int after_ = 0;
};

// Watches folders for a save beginning to write: it creates its new file under the file's name
// + ".saving" and renames it to the file's name only once it is complete. One watch serves
// many kills: closing one takes the system milliseconds.
class WriteWatch {
public:
    explicit WriteWatch(const QStringList& folders);
    ~WriteWatch();
    WriteWatch(const WriteWatch&) = delete;
    WriteWatch& operator=(const WriteWatch&) = delete;

    // Forgets the writes seen so far.
    void Forget();
    // Waits until a save begins to write in one of the folders (true), or until stop (a file
    // descriptor) can be read or is closed, or 10 s have passed (false).
    bool WaitForWrite(int stop);

private:
    int fd_;
};

// Sleeps for delay, to the microsecond as far as the system allows.
void SleepFor(std::chrono::microseconds delay);

// The files of a folder (see FolderFiles).
FolderFiles ReadFolderFiles(const QString& folder);
// Writes files into folder (making their sub-folders) and removes the folder's other files;
// what is already as given is left untouched, the rest made afresh. False when any of it fails.
bool RestoreFolderFiles(const QString& folder, const FolderFiles& files);

// A ".saving" file left behind is a write that a kill cut short.
bool IsCutShortWrite(const QString& name);
// The files of writes cut short, with their bytes.
FolderFiles CutShortWrites(const FolderFiles& files);
