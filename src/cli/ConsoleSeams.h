#pragma once

#include <QTextStream>

#include "shell/Clock.h"
#include "shell/Dialogs.h"
#include "shell/Platform.h"

// The seams of a program run without a window: every message goes to the error stream (a
// question is answered with OK), no desktop is there to ask, and the clock is the system's.
namespace cli {

class ConsoleDialogs final : public Dialogs {
public:
    explicit ConsoleDialogs(QTextStream& err) : err_(err) {}
    int MsgBox(const QString& text, int, const QString& title) override {
        err_ << "orvanta: " << (title.isEmpty() ? QString() : title + QStringLiteral(": "))
             << QString(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n")).trimmed()
             << '\n';
        ++count_;
        return vb::OK;
    }
    QString InputBox(const QString&, const QString&, const QString&) override { return {}; }
    QString OpenFileName(const QString&, const QString&, const QString&) override { return {}; }
    QString SaveFileName(const QString&, const QString&, const QString&) override { return {}; }
    QString FolderName(const QString&, const QString&) override { return {}; }
    std::optional<quint32> PickColor(quint32, const QString&) override { return std::nullopt; }
    // How many messages were shown.
    int Count() const { return count_; }

private:
    QTextStream& err_;
    int count_ = 0;
};

struct ConsoleSeams {
    explicit ConsoleSeams(QTextStream& err) : dialogs(err) {}
    ConsoleDialogs dialogs;
    SystemClock clock;
    NoDesktop platform;
};

}  // namespace cli
