#include "shell/DataFile.h"

#include <sys/stat.h>

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cerrno>
#include <ctime>

#include "shell/Files.h"
#include "shell/SafeSave.h"
#include "shell/ShellMessages.h"

namespace {

qint64 Nanoseconds(const struct timespec& time) {
    return qint64(time.tv_sec) * 1000000000 + time.tv_nsec;
}

qint64 Now() {
    struct timespec now {};
    ::clock_gettime(CLOCK_REALTIME, &now);
    return Nanoseconds(now);
}

// How long after a change of a file its times may still read the same: file times follow a
// coarse clock, and a shared folder's server keeps its own.
constexpr qint64 kCoarseTimes = 2'000'000'000;

FileStamp StampOf(const struct stat& status) {
    FileStamp stamp;
    stamp.exists = true;
    stamp.size = status.st_size;
    stamp.modified = Nanoseconds(status.st_mtim);
    stamp.changed = Nanoseconds(status.st_ctim);
    stamp.device = status.st_dev;
    stamp.inode = status.st_ino;
    stamp.takenAt = Now();
    return stamp;
}

}  // namespace

FileStamp FileStamp::Of(const QString& path) {
    struct stat status {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0 || S_ISDIR(status.st_mode))
        return {};
    return StampOf(status);
}

bool FileStamp::MayDifferFrom(const FileStamp& now) const {
    if (exists != now.exists)
        return true;
    if (!exists)
        return false;
    return size != now.size || modified != now.modified || changed != now.changed ||
           device != now.device || inode != now.inode ||
           std::max(modified, changed) >= takenAt - kCoarseTimes;
}

QString LineText(QByteArrayView line) {
    return textfile::Decode(line);
}

void DataFile::SetName(const QString& name) {
    *this = DataFile(name);
}

QString DataFile::PathIn(const QString& appFolder) const {
    if (QFileInfo(name_).isAbsolute())
        return name_;
    return PathForWriting(appFolder, name_);
}

QByteArray DataFile::Load(const QString& appFolder) {
    // Until the bytes are in, the file counts as unread: a save must not replace what it
    // never saw.
    partlyRead_ = true;
    faultyLine_ = 0;
    const QString path = PathIn(appFolder);
    QFile file(path);
    errno = 0;
    if (!file.open(QIODevice::ReadOnly)) {
        if (!file.exists()) {
            stamp_ = {};
            seen_.clear();
            return seen_;
        }
        safesave::RaiseFileError(file, errno);
    }
    // The stamp is taken before the bytes: a change made while they are read then shows as a
    // change at the next save, never the other way round.
    struct stat status {};
    if (::fstat(file.handle(), &status) != 0)
        safesave::RaiseSystemError(errno);
    stamp_ = StampOf(status);
    errno = 0;
    seen_ = file.readAll();
    if (file.error() != QFileDevice::NoError)
        safesave::RaiseFileError(file, errno);
    return seen_;
}

VbError DataFile::Fault(int line, const VbError& error) {
    partlyRead_ = true;
    faultyLine_ = line;
    return VbError(error.number(), FaultDescription(error.description(), name_, line));
}

void DataFile::Saw(const QString& path, const QByteArray& bytes) {
    stamp_ = FileStamp::Of(path);
    seen_ = bytes;
    MarkReadWhole();
}
