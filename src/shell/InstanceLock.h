#pragma once

#include <QString>

// One writer per data folder: the window, and every command while it writes, hold this lock.
//
// The lock is taken on the folder itself, not on a name for it: every path that reaches the
// folder (another spelling, a symbolic link, a bind mount) meets the same lock. It is a kernel
// lock (flock) on the folder's own open descriptor, so it belongs to the folder's inode, writes
// nothing into the folder, and is given up by the kernel when its process ends, however it
// ends: a crashed copy never leaves a lock behind that has to be guessed stale.
//
// A file system that refuses locks on folders (NFS answers flock on a folder with an error) is
// locked through a lock file inside the folder instead, ".orvanta.lock", with an open-file
// lock on it, which such file systems do pass to their server. Every process meets the same
// refusal on the same file system, so they all take the same way and see each other's locks.
class InstanceLock {
public:
    // How the lock is tried first; LockFile is for tests of the way file systems without
    // folder locks take.
    enum class Way { Folder, LockFile };

    explicit InstanceLock(const QString& appFolder, Way way = Way::Folder);
    ~InstanceLock();
    InstanceLock(const InstanceLock&) = delete;
    InstanceLock& operator=(const InstanceLock&) = delete;

    // False only when another process holds the data folder. When the folder cannot be locked
    // at all (it cannot be opened, or its file system has no locks and the folder takes no lock
    // file, as on a read-only medium), nothing can be held and this process goes on without.
    bool TryAcquire();
    // Gives the data folder up before the process ends (it is given up on destruction too).
    void Release();

    // The lock file of a folder whose file system refuses locks on folders.
    static const QString kLockFileName;

private:
    QString folder_;
    Way way_;
    int folderFd_ = -1;
    int lockFileFd_ = -1;
};

class Dialogs;

// Takes the data folder for this process; when another copy holds it, says so and returns
// true (the program then ends).
bool RefuseSecondInstance(InstanceLock& lock, Dialogs& dialogs);
