#include "KillAim.h"

#include <sys/prctl.h>
#include <time.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <algorithm>
#include <cmath>

namespace {

// Each kill that misses the writes moves the aim by this factor. Kills land up to this factor
// either side of the aim, so that some still come before and after the writes and the aim
// keeps finding them as the machine's load changes.
constexpr double kStep = 1.1;
constexpr double kSpread = 1.15;
constexpr double kShortest = 1;         // microseconds
constexpr double kLongest = 2'000'000;  // microseconds

}  // namespace

KillAim::KillAim(std::chrono::microseconds first)
    : aim_(std::clamp(double(first.count()), kShortest, kLongest)) {}

std::chrono::microseconds KillAim::NextDelay() const {
    const double factor =
        std::exp(std::log(kSpread) * (2 * QRandomGenerator::global()->generateDouble() - 1));
    return std::chrono::microseconds(std::llround(aim_ * factor));
}

void KillAim::Record(Landed landed) {
    switch (landed) {
        case Landed::BeforeWrite:
            ++before_;
            aim_ = std::min(aim_ * kStep, kLongest);
            break;
        case Landed::DuringWrite:
            ++during_;
            break;
        case Landed::AfterWrite:
            ++after_;
            aim_ = std::max(aim_ / kStep, kShortest);
            break;
    }
}

QString KillAim::Summary() const {
    return QStringLiteral("%1 of %2 kills during a write (%3 before it, %4 after)")
        .arg(during_)
        .arg(Kills())
        .arg(before_)
        .arg(after_);
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

bool RestoreFolderFiles(const QString& folder, const FolderFiles& files,
                        bool (*keep)(const QString& name)) {
    const FolderFiles now = ReadFolderFiles(folder);
    bool ok = true;
    for (auto it = now.begin(); it != now.end(); ++it)
        if (!files.contains(it.key()) && !(keep && keep(it.key())))
            ok &= QFile::remove(QDir(folder).filePath(it.key()));
    for (auto it = files.begin(); it != files.end(); ++it) {
        if (now.contains(it.key()) && now[it.key()] == it.value())
            continue;
        const QString path = QDir(folder).filePath(it.key());
        QFile file(path);
        ok &= QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
              file.write(it.value()) == it.value().size();
    }
    return ok;
}

bool IsCutShortWrite(const QString& name) {
    return name.endsWith(QLatin1String(".saving"));
}

FolderFiles CutShortWrites(const FolderFiles& files) {
    FolderFiles cutShort;
    for (auto it = files.begin(); it != files.end(); ++it)
        if (IsCutShortWrite(it.key()))
            cutShort.insert(it.key(), it.value());
    return cutShort;
}
