#pragma once

// What every fuzz target shares: one data folder for the whole run, seams that answer every
// box with OK and stand still in time, and the call that puts an input into the folder as a
// data file.
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "shell/Services.h"

namespace fuzz {

class QuietDialogs final : public Dialogs {
public:
    int MsgBox(const QString&, int, const QString&) override { return vb::OK; }
    QString InputBox(const QString&, const QString&, const QString&) override { return {}; }
    QString OpenFileName(const QString&, const QString&, const QString&) override { return {}; }
    QString SaveFileName(const QString&, const QString&, const QString&) override { return {}; }
    QString FolderName(const QString&, const QString&) override { return {}; }
    std::optional<quint32> PickColor(quint32, const QString&) override { return {}; }
};

class FixedClock final : public Clock {
public:
    QDateTime now() const override { return QDateTime(QDate(2026, 6, 15), QTime(9, 30)); }
};

struct Env {
    QTemporaryDir dir{QDir::tempPath() + QStringLiteral("/orvanta-fuzz-XXXXXX")};
    QuietDialogs dialogs;
    FixedClock clock;
    NoDesktop platform;
    Services services{dir.path(), dialogs, clock, platform};
};

// Made on first use, once per process.
inline Services& services() {
    static Env env;
    if (!env.dir.isValid())
        std::abort();
    return env.services;
}

// Writes the input as the data file name. The error log of the previous input goes, so that
// every input starts from the same folder and the log never reaches its size limit.
inline void WriteInput(const QString& name, const uint8_t* data, size_t size) {
    QFile::remove(services().PathOf(QStringLiteral("Error.log")));
    QFile file(services().PathOf(name));
    const auto length = static_cast<qint64>(size);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) ||
        file.write(reinterpret_cast<const char*>(data), length) != length)
        std::abort();
}

// A broken property is reported like a crash, so the input that broke it is kept.
inline void Check(bool holds, const char* property) {
    if (holds)
        return;
    std::fprintf(stderr, "property broken: %s\n", property);
    std::abort();
}

}  // namespace fuzz
