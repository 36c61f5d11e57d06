#pragma once

#include <QLockFile>
#include <QString>
#include <memory>

// Keeps a second copy of the program off the same data folder. The lock file lives outside the
// data folder (in the user's runtime folder), so that a data folder on a share or a stick is
// never cluttered, and a lock left behind by a crashed copy is recognised and taken over.
class InstanceLock {
public:
    explicit InstanceLock(const QString& appFolder);

    // True when this process now holds the data folder.
    bool TryAcquire();
    // Gives the data folder up before the process ends (it is given up on destruction too).
    void Release() { lock_.reset(); }

    // Where the lock of a data folder is kept.
    static QString LockPathFor(const QString& appFolder);

private:
    std::unique_ptr<QLockFile> lock_;
};

class Dialogs;

// Takes the data folder for this process; when another copy holds it, says so and returns
// false (the program then ends).
bool RefuseSecondInstance(InstanceLock& lock, Dialogs& dialogs);
