#pragma once

#include <QString>
#include <QStringList>
#include <optional>

// Message-box styles and answers, numbered as the classic message box numbers them, so that a
// style is "buttons + icon" (for example YesNo | Question).
namespace vb {
enum MsgStyle : int {
    OKOnly = 0,
    OKCancel = 1,
    AbortRetryIgnore = 2,
    YesNoCancel = 3,
    YesNo = 4,
    RetryCancel = 5,
    Critical = 16,
    Question = 32,
    Exclamation = 48,
    Information = 64,
};
enum MsgAnswer : int { OK = 1, Cancel = 2, Abort = 3, Retry = 4, Ignore = 5, Yes = 6, No = 7 };

constexpr int ButtonsOf(int style) {
    return style & 7;
}
constexpr int IconOf(int style) {
    return style & 0x70;
}
}  // namespace vb

// The styles the program's boxes use.
inline constexpr int kQuestionStyle = vb::YesNo | vb::Question;
inline constexpr int kWarningStyle = vb::OKOnly | vb::Exclamation;
inline constexpr int kInformationStyle = vb::OKOnly | vb::Information;

// A line break inside a message or a file: carriage return + line feed.
inline const QString kCrLf = QStringLiteral("\r\n");

// Every message box, input box and picker of the program goes through this seam, so that a test
// can script each box (its exact text, title and buttons, and the answer to give) and fail on
// one it did not expect.
class Dialogs {
public:
    virtual ~Dialogs() = default;

    // Shows a modal message box; returns the button pressed (vb::MsgAnswer). An empty title
    // shows the program's name.
    virtual int MsgBox(const QString& text, int style = vb::OKOnly, const QString& title = {}) = 0;

    // One-line input box. Cancel returns the empty text.
    virtual QString InputBox(const QString& prompt, const QString& title,
                             const QString& defaultText = {}) = 0;

    // File pickers; an empty result means the user cancelled.
    virtual QString OpenFileName(const QString& caption, const QString& folder,
                                 const QString& filter) = 0;
    virtual QString SaveFileName(const QString& caption, const QString& folder,
                                 const QString& filter) = 0;
    // Folder picker starting at folder; an empty result means the user cancelled.
    virtual QString FolderName(const QString& caption, const QString& folder) = 0;

    // Colour picker on 0x00BBGGRR colours; nullopt when the user cancelled.
    virtual std::optional<quint32> PickColor(quint32 initial, const QString& title) = 0;
};
