#pragma once

#include <QList>
#include <QStringList>

#include "shell/Dialogs.h"

// A scripted stand-in for every box of the program. A test queues the boxes it expects, each
// with its exact text, style and title and the answer to give; a box that differs from the
// next expected one, or that was not expected at all, is recorded as a problem.
//
//     env.dialogs.ExpectMsgBox("Log File not found.", vb::OKOnly, "");
//     ...act...
//     VERIFY_DIALOGS(env.dialogs);   // every expected box seen, nothing else shown
class FakeDialogs final : public Dialogs {
public:
    enum class Kind { Message, Input, OpenFile, SaveFile, Color, Folder };

    struct Box {
        Kind kind = Kind::Message;
        QString text;  // message text or input prompt (file pickers: caption)
        int style = vb::OKOnly;
        QString title;
        QString defaultText;
        int answer = vb::OK;
        QString textAnswer;  // input box or file picker answer
        std::optional<quint32> colorAnswer;
    };

    FakeDialogs& ExpectMsgBox(const QString& text, int style, const QString& title,
                              int answer = vb::OK);
    FakeDialogs& ExpectInputBox(const QString& prompt, const QString& title,
                                const QString& defaultText, const QString& answer);
    FakeDialogs& ExpectOpenFile(const QString& answer);
    FakeDialogs& ExpectSaveFile(const QString& answer);
    FakeDialogs& ExpectFolder(const QString& answer);
    FakeDialogs& ExpectColor(std::optional<quint32> answer);

    // True when every expected box was shown in order and nothing else was.
    bool Ok() const { return problems_.isEmpty() && expected_.isEmpty(); }
    // What went wrong, for the failure message.
    QString Problems() const;
    // Forgets expectations and problems.
    void Reset();

    // Every box shown so far, described as "title | text".
    const QStringList& shown() const { return shown_; }

    int MsgBox(const QString& text, int style, const QString& title) override;
    QString InputBox(const QString& prompt, const QString& title,
                     const QString& defaultText) override;
    QString OpenFileName(const QString& caption, const QString& folder,
                         const QString& filter) override;
    QString SaveFileName(const QString& caption, const QString& folder,
                         const QString& filter) override;
    QString FolderName(const QString& caption, const QString& folder) override;
    std::optional<quint32> PickColor(quint32 initial, const QString& title) override;

private:
    FakeDialogs& Expect(Box box);
    // The expected box matching what is shown now, or nullopt (problem recorded).
    std::optional<Box> Take(const Box& actual);

    QList<Box> expected_;
    QStringList problems_;
    QStringList shown_;
};

#define VERIFY_DIALOGS(fake) QVERIFY2((fake).Ok(), qPrintable((fake).Problems()))
