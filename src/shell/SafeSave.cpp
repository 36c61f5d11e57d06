#include "shell/SafeSave.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <cstring>

#include "shell/Files.h"
#include "shell/VbError.h"

namespace safesave {

// A failed file operation as its classic error, from the system's error code.
[[noreturn]] void RaiseSystemError(int code) {
    switch (code) {
        case ENOSPC:
        case EDQUOT:
        case EFBIG:  // the file may not grow any further: no room for it, as on a full disk
            Raise(err::DiskFull);
        case EACCES:
        case EPERM:
        case EROFS:
            Raise(err::PermissionDenied);
        default:
            Raise(err::PathFileAccessError, QString::fromLocal8Bit(std::strerror(code)));
    }
}

// Qt tells only the kind of a failure (a refused open and a full disk are both "write
// errors"), so the system's code, taken right after the failing call, decides when there is one.
[[noreturn]] void RaiseFileError(const QFileDevice& file, int code) {
    if (code != 0)
        RaiseSystemError(code);
    switch (file.error()) {
        case QFileDevice::ResourceError:
            Raise(err::DiskFull);
        case QFileDevice::PermissionsError:
            Raise(err::PermissionDenied);
        default:
            Raise(err::PathFileAccessError, file.errorString());
    }
}

namespace {

// A save first writes its bytes under the file's name with this appended, and only a complete
// file takes the real name. A save that was cut short leaves at most such a file, which no
// reader looks for and the next save replaces.
const QString kSavingSuffix = QStringLiteral(".saving");

QByteArray Native(const QString& path) {
    return QFile::encodeName(path);
}

// Creates path afresh holding bytes, synced to disk; on failure nothing is left at path.
void WriteNewFile(const QByteArray& path, const QByteArray& bytes) {
    const int fd = ::open(path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (fd < 0)
        RaiseSystemError(errno);
    int code = 0;
    for (qsizetype done = 0; done < bytes.size() && code == 0;) {
        const ssize_t written = ::write(fd, bytes.constData() + done, bytes.size() - done);
        if (written > 0)
            done += written;
        else if (written == 0)
            code = ENOSPC;
        else if (errno != EINTR)
            code = errno;
    }
    if (code == 0 && ::fsync(fd) != 0)
        code = errno;
    if (::close(fd) != 0 && code == 0)
        code = errno;
    if (code != 0) {
        ::unlink(path.constData());
        RaiseSystemError(code);
    }
}

// Gives the file at from the second name to, leaving from where it is. A file system without
// hard links gets a synced copy instead.
void LinkOrCopy(const QString& from, const QByteArray& to) {
    if (::link(Native(from).constData(), to.constData()) == 0)
        return;
    const int code = errno;
    if (code != EPERM && code != EOPNOTSUPP && code != EMLINK && code != EXDEV && code != ENOSYS)
        RaiseSystemError(code);
    QFile source(from);
    errno = 0;
    if (!source.open(QIODevice::ReadOnly))
        RaiseFileError(source, errno);
    errno = 0;
    const QByteArray bytes = source.readAll();
    if (source.error() != QFileDevice::NoError)
        RaiseFileError(source, errno);
    WriteNewFile(to, bytes);
}

void Rename(const QByteArray& from, const QByteArray& to) {
    if (::rename(from.constData(), to.constData()) != 0)
        RaiseSystemError(errno);
}

bool SameFile(const QString& a, const QString& b) {
    struct stat first {};
    struct stat second {};
    return ::stat(Native(a).constData(), &first) == 0 &&
           ::stat(Native(b).constData(), &second) == 0 && first.st_dev == second.st_dev &&
           first.st_ino == second.st_ino;
}

// Removes every spelling of name in dir but keep, so that a folder copied from a system that
// ignores letter case ends up with one spelling. A file system that ignores case itself shows
// keep under the other spellings too; those are keep, not copies of it.
void RemoveOtherSpellings(const QString& dir, const QString& name, const QString& keep) {
    for (const QString& path : FilesSpelledLike(dir, name)) {
        if (path == keep || (!keep.isEmpty() && SameFile(path, keep)))
            continue;
        if (::unlink(Native(path).constData()) != 0 && errno != ENOENT)
            RaiseSystemError(errno);
    }
}

// Makes the renames in dir last through a power cut, where the system allows it.
void SyncFolder(const QString& dir) {
    const int fd = ::open(Native(dir).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd >= 0) {
        ::fsync(fd);
        ::close(fd);
    }
}

}  // namespace

void Replace(const QString& path, const QByteArray& bytes) {
    const QByteArray newFile = Native(path + kSavingSuffix);
    ::unlink(newFile.constData());  // the leftover of a save cut short
    WriteNewFile(newFile, bytes);
    try {
        Rename(newFile, Native(path));
    } catch (const VbError&) {
        ::unlink(newFile.constData());
        throw;
    }
    SyncFolder(QFileInfo(path).path());
}

// Every step leaves a whole file under the current name: the new bytes are complete and on
// disk before anything else changes, the backup is a second name of the current file (so the
// current file never goes away and the backup is never newer), and the new file takes the
// current name in one rename.
void ReplaceKeepingBackup(const QString& folder, const QString& name, const QByteArray& bytes) {
    QString current;
    const bool hasCurrent = FileExists(folder, name, &current);
    if (!hasCurrent && bytes.isEmpty())
        return;
    const QFileInfo prescribed(JoinPath(folder, name));
    // The sub-folders as spelled on disk when the file exists; the file names as prescribed.
    const QString dir = (hasCurrent ? QFileInfo(current).path() : prescribed.path()) + u'/';
    const QString fileName = prescribed.fileName();
    const QString backupName = BackupName(fileName);
    const QString target = dir + fileName;
    const QString backup = dir + backupName;
    const QByteArray newFile = Native(target + kSavingSuffix);
    const QByteArray newBackup = Native(backup + kSavingSuffix);

    // Leftovers of a save that was cut short; the backup one may be a second name of the
    // current file, so it is never written through.
    ::unlink(newFile.constData());
    ::unlink(newBackup.constData());
    if (!bytes.isEmpty())
        WriteNewFile(newFile, bytes);
    try {
        // A save cut short right after making the backup leaves the backup and the current
        // file as one file, which the rename below would leave as it is: the backup then
        // already holds the current content.
        if (hasCurrent && !SameFile(current, backup)) {
            LinkOrCopy(current, newBackup);
            Rename(newBackup, Native(backup));
        }
        if (!bytes.isEmpty())
            Rename(newFile, Native(target));
    } catch (const VbError&) {
        ::unlink(newFile.constData());
        ::unlink(newBackup.constData());
        throw;
    }
    if (hasCurrent) {
        // Empty content leaves only the backup: every spelling of the current file goes.
        RemoveOtherSpellings(dir, fileName, bytes.isEmpty() ? QString() : target);
        RemoveOtherSpellings(dir, backupName, backup);
    }
    SyncFolder(dir);
}

}  // namespace safesave
