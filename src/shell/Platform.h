#pragma once

#include <QString>
#include <QStringList>

// What the program asks of the desktop around it: opening web pages and e-mail drafts, the
// beep, printers, shortcuts and the clipboard. Tests record the calls instead.
class Platform {
public:
    virtual ~Platform() = default;

    // Opens a web address or a "mailto:" draft with the desktop's default handler. url is
    // given encoded, as it is sent: ASCII, with every other byte written "%" and two hex digits.
    virtual bool OpenUrl(const QString& url) = 0;
    virtual void Beep() = 0;
    virtual bool PrinterPresent() = 0;
    // The names of the printers the desktop offers.
    virtual QStringList PrinterNames() = 0;
    virtual void SetClipboardText(const QString& text) = 0;

    // Adds a launcher called name, starting program with arguments, to the user's
    // applications menu. Throws VbError when that is impossible.
    virtual void CreateShortcut(const QString& name, const QString& program,
                                const QStringList& arguments) = 0;
};

// Where there is no desktop (the command line, benchmarks, fuzzing): nothing opens, nothing
// sounds, no printer is found, and no launcher can be made.
class NoDesktop final : public Platform {
public:
    bool OpenUrl(const QString&) override { return false; }
    void Beep() override {}
    bool PrinterPresent() override { return false; }
    QStringList PrinterNames() override { return {}; }
    void SetClipboardText(const QString&) override {}
    void CreateShortcut(const QString&, const QString&, const QStringList&) override {}
};
