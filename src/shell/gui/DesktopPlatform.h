#pragma once

#include "shell/Platform.h"

// The desktop: default browser and mail client, the bell, printers, the clipboard and the
// applications menu (freedesktop.org launchers).
class DesktopPlatform final : public Platform {
public:
    bool OpenUrl(const QString& url) override;
    void Beep() override;
    bool PrinterPresent() override;
    QStringList PrinterNames() override;
    void SetClipboardText(const QString& text) override;
    void CreateShortcut(const QString& name, const QString& program,
                        const QStringList& arguments) override;
};

// One argument of a launcher's command line, quoted as desktop entries require.
QString DesktopExecArgument(const QString& argument);
