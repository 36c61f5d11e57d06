#pragma once

#include <QString>
#include <cstdio>
#include <optional>

#include "shell/Dialogs.h"

// The dialogs of a benchmark: nobody answers, so every picker gives nothing, and a message box
// is not expected: it is counted and told on standard error, since a message means the timed
// work went wrong.
class QuietDialogs : public Dialogs {
public:
    int MsgBox(const QString& text, int, const QString&) override {
        ++unexpected;
        std::fprintf(stderr, "unexpected message: %s\n", qPrintable(text));
        return vb::OK;
    }
    QString InputBox(const QString&, const QString&, const QString&) override { return {}; }
    QString OpenFileName(const QString&, const QString&, const QString&) override { return {}; }
    QString SaveFileName(const QString&, const QString&, const QString&) override { return {}; }
    QString FolderName(const QString&, const QString&) override { return {}; }
    std::optional<quint32> PickColor(quint32, const QString&) override { return {}; }

    int unexpected = 0;
};
