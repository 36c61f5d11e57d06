#include "SmallDisk.h"

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

#include <QFile>
#include <cerrno>

namespace {

bool WriteProcFile(const char* path, const QByteArray& text) {
    const int fd = ::open(path, O_WRONLY | O_CLOEXEC);
    if (fd < 0)
        return false;
    const bool written = ::write(fd, text.constData(), text.size()) == text.size();
    return ::close(fd) == 0 && written;
}

// Root may have a mount namespace of its own; anyone else may have one inside a user namespace
// of their own, where the machine allows those, as its root.
bool EnterOwnMountNamespace() {
    if (::unshare(CLONE_NEWNS) == 0)
        return true;
    const QByteArray uid = QByteArray::number(::geteuid());
    const QByteArray gid = QByteArray::number(::getegid());
    return ::unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0 &&
           WriteProcFile("/proc/self/setgroups", "deny") &&
           WriteProcFile("/proc/self/uid_map", "0 " + uid + " 1") &&
           WriteProcFile("/proc/self/gid_map", "0 " + gid + " 1");
}

}  // namespace

bool MountSmallDisk(const QString& folder, int kilobytes) {
    // Mounts made in the new namespace must not reach the machine's own.
    if (!EnterOwnMountNamespace() || ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr))
        return false;
    const QByteArray options = "size=" + QByteArray::number(kilobytes) + "k";
    return ::mount("tmpfs", QFile::encodeName(folder).constData(), "tmpfs", 0,
                   options.constData()) == 0;
}

bool FillDisk(const QString& path) {
    const int fd =
        ::open(QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    if (fd < 0)
        return false;
    static const QByteArray block(64 * 1024, 'x');
    int error = 0;
    // Ever smaller writes until not one byte more goes in.
    for (qsizetype size = block.size(); size > 0; size /= 4) {
        while (::write(fd, block.constData(), size) == size) {
        }
        error = errno;
    }
    ::close(fd);
    return error == ENOSPC;
}
