#include "KillTest.h"

#include <poll.h>
#include <sys/inotify.h>
#include <sys/prctl.h>
#include <time.h>
#include <unistd.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <algorithm>
#include <cmath>

namespace {

// A kill after the last write shortens the delays by much, one during the writes lengthens
// them by little: about one kill in five comes after the last write, which keeps the delays as
// long as the writes take while the machine's load changes.
constexpr double kShorten = 1.25;
constexpr double kLengthen = 1.05;
constexpr double kShortest = 10;        // microseconds
constexpr double kLongest = 2'000'000;  // microseconds

const QLatin1String kSavingSuffix(".saving");

}  // namespace

KillAim::KillAim(std::chrono::microseconds longest)
    : longest_(std::clamp(double(longest.count()), kShortest, kLongest)) {}

std::chrono::microseconds KillAim::NextDelay() const {
    return std::chrono::microseconds(
        std::llround(longest_ * QRandomGenerator::global()->generateDouble()));
}

void KillAim::Record(Landed landed) {
    switch (landed) {
        case Landed::DuringWrite:
            ++during_;
            break;
        case Landed::BetweenWrites:
            ++between_;
            break;
        case Landed::AfterWrite:
            ++after_;
            longest_ = std::max(longest_ / kShorten, kShortest);
            return;
    }
    longest_ = std::min(longest_ * kLengthen, kLongest);
}

QString KillAim::Summary() const {
    return QStringLiteral("%1 of %2 kills during a write (%3 between two, %4 after the last)")
        .arg(during_)
        .arg(Kills())
        .arg(between_)
        .arg(after_);
}

WriteWatch::WriteWatch(const QStringList& folders)
    : fd_(::inotify_init1(IN_CLOEXEC | IN_NONBLOCK)) {
    for (const QString& folder : folders)
        ::inotify_add_watch(fd_, QFile::encodeName(folder).constData(), IN_CREATE);
}

WriteWatch::~WriteWatch() {
    ::close(fd_);
}

void WriteWatch::Forget() {
    alignas(inotify_event) char events[4096];
    while (::read(fd_, events, sizeof events) > 0) {
    }
}

bool WriteWatch::WaitForWrite(int stop) {
    pollfd watched[] = {{fd_, POLLIN, 0}, {stop, POLLIN, 0}};
    while (::poll(watched, 2, 10'000) > 0 && watched[1].revents == 0) {
        alignas(inotify_event) char events[4096];
        const ssize_t size = ::read(fd_, events, sizeof events);
        for (ssize_t at = 0; at < size;) {
            const auto* event = reinterpret_cast<const inotify_event*>(events + at);
            if (event->len > 0 && QLatin1String(event->name).endsWith(kSavingSuffix))
                return true;
            at += ssize_t(sizeof(inotify_event) + event->len);
        }
    }
    return false;
}

void SleepFor(std::chrono::microseconds delay) {
    // A sleeping thread is woken up to 50 us late by default, which is longer than many writes.
    static const bool precise = ::prctl(PR_SET_TIMERSLACK, 1UL, 0UL, 0UL, 0UL) == 0;
    Q_UNUSED(precise);
    timespec left{time_t(delay.count() / 1'000'000), long(delay.count() % 1'000'000) * 1000};
    while (::nanosleep(&left, &left) != 0) {
    }
}

FolderFiles ReadFolderFiles(const QString& folder) {
    FolderFiles files;
    QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        QFile file(it.next());
        files.insert(QDir(folder).relativeFilePath(file.fileName()),
                     file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<unreadable>"));
    }
    return files;
}

bool RestoreFolderFiles(const QString& folder, const FolderFiles& files) {
    const FolderFiles now = ReadFolderFiles(folder);
    bool ok = true;
    for (auto it = now.begin(); it != now.end(); ++it)
        if (!files.contains(it.key()))
            ok &= QFile::remove(QDir(folder).filePath(it.key()));
    for (auto it = files.begin(); it != files.end(); ++it) {
        if (now.contains(it.key()) && now[it.key()] == it.value())
            continue;
        // Made afresh: a file a kill left may be a second name of another one.
        const QString path = QDir(folder).filePath(it.key());
        QFile::remove(path);
        QFile file(path);
        ok &= QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
              file.write(it.value()) == it.value().size();
    }
    return ok;
}

bool IsCutShortWrite(const QString& name) {
    return name.endsWith(kSavingSuffix);
}

FolderFiles CutShortWrites(const FolderFiles& files) {
    FolderFiles cutShort;
    for (auto it = files.begin(); it != files.end(); ++it)
        if (IsCutShortWrite(it.key()))
            cutShort.insert(it.key(), it.value());
    return cutShort;
}
