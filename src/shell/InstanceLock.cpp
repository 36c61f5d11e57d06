#include "shell/InstanceLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QFile>
#include <cerrno>

#include "shell/ShellMessages.h"

const QString InstanceLock::kLockFileName = QStringLiteral(".orvanta.lock");

namespace {

enum class Outcome { Held, HeldElsewhere, NotSupported };

int OpenRetrying(const char* path, int dirFd, int flags, mode_t mode = 0) {
    int fd;
    do
        fd = dirFd < 0 ? ::open(path, flags, mode) : ::openat(dirFd, path, flags, mode);
    while (fd < 0 && errno == EINTR);
    return fd;
}

Outcome FromErrno(int result) {
    if (result == 0)
        return Outcome::Held;
    return errno == EWOULDBLOCK || errno == EAGAIN || errno == EACCES ? Outcome::HeldElsewhere
                                                                      : Outcome::NotSupported;
}

// An exclusive lock of the whole file, owned by the open file itself (not by the process, as
// classic record locks are, which a second open of the same file in one process would drop).
Outcome LockOpenFile(int fd) {
    struct flock whole = {};
    whole.l_type = F_WRLCK;
    whole.l_whence = SEEK_SET;
    return FromErrno(::fcntl(fd, F_OFD_SETLK, &whole));
}

void Close(int& fd) {
    if (fd >= 0)
        ::close(fd);
    fd = -1;
}

}  // namespace

InstanceLock::InstanceLock(const QString& appFolder, Way way) : folder_(appFolder), way_(way) {}

InstanceLock::~InstanceLock() {
    Release();
}

bool InstanceLock::TryAcquire() {
    Release();
    // Close-on-exec: a program started from here (a browser, a mail client) must not inherit
    // the descriptor, or the folder would stay locked after this process has ended.
    folderFd_ = OpenRetrying(QFile::encodeName(folder_).constData(), -1,
                             O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folderFd_ < 0)
        return true;
    if (way_ == Way::Folder) {
        const Outcome outcome = FromErrno(::flock(folderFd_, LOCK_EX | LOCK_NB));
        if (outcome != Outcome::NotSupported) {
            if (outcome == Outcome::HeldElsewhere)
                Release();
            return outcome == Outcome::Held;
        }
    }
    // The lock file is opened through the folder's descriptor, so that it lies in the very
    // folder opened above, and it is never deleted: a process waiting on the old file while a
    // new one took its name would hold a lock nobody else sees.
    lockFileFd_ = OpenRetrying(kLockFileName.toLatin1().constData(), folderFd_,
                               O_RDWR | O_CREAT | O_CLOEXEC, 0644);
    if (lockFileFd_ < 0) {
        Release();
        return true;
    }
    const Outcome outcome = LockOpenFile(lockFileFd_);
    if (outcome != Outcome::Held)
        Release();
    return outcome != Outcome::HeldElsewhere;
}

void InstanceLock::Release() {
    Close(lockFileFd_);
    Close(folderFd_);
}

bool RefuseSecondInstance(InstanceLock& lock, Dialogs& dialogs) {
    if (lock.TryAcquire())
        return false;
    dialogs.MsgBox(kSecondInstanceMessage, vb::OKOnly | vb::Exclamation, {});
    return true;
}
