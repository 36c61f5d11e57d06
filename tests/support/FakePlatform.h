#pragma once

#include <QStringList>

#include "shell/Platform.h"
#include "shell/VbError.h"

// Records what the program asked of the desktop.
class FakePlatform final : public Platform {
public:
    QStringList openedUrls;
    // When set, opening an address fails (it is still recorded).
    bool openFails = false;
    int beeps = 0;
    bool printer = true;
    QStringList printers;
    QString clipboard;
    QStringList shortcuts;  // "name -> program arguments..."
    // When set, CreateShortcut fails with this error.
    std::optional<VbError> shortcutError;

    bool OpenUrl(const QString& url) override {
        openedUrls.append(url);
        return !openFails;
    }
    void Beep() override { ++beeps; }
    bool PrinterPresent() override { return printer; }
    QStringList PrinterNames() override { return printers; }
    void SetClipboardText(const QString& text) override { clipboard = text; }
    void CreateShortcut(const QString& name, const QString& program,
                        const QStringList& arguments) override {
        if (shortcutError)
            throw *shortcutError;
        shortcuts.append(name + QStringLiteral(" -> ") +
                         (QStringList{program} + arguments).join(' '));
    }
};
