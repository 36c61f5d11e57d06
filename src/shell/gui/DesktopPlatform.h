#pragma once

#include "shell/Platform.h"

// The desktop: default browser and mail client, the bell, printers, the clipboard and the
// applications menu (freedesktop.org launchers).
class DesktopPlatform final : public Platform {
public:
    bool OpenUrl(const QString& url) override;
    void Beep() override;
    bool PrinterPresent() override;
    void SetClipboardText(const QString& text) override;
    void CreateShortcut(const QString& name, const QString& target) override;
};
