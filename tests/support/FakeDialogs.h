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
//     VERIFY_DIALOGS(env.dialogs);   // optional: every expected box seen so far, nothing else
//
// A test need not check: when the fake goes away (with its TestEnv or MainWindowFixture, at the
// end of the test function or in its cleanup) any problem left fails the running test, naming
// each box. A test that has already failed gets the problems as a warning instead.
class FakeDialogs final : public Dialogs {
public:
    ~FakeDialogs() override;

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
    // What went wrong, and forgets it (expected boxes not yet shown included), so that each
    // problem is reported once.
    QString TakeProblems();
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

    // A problem or an expected box, with the test function (and data row) it belongs to.
    struct Problem {
        QString text;
        QString test;
    };
    struct Queued {
        Box box;
        QString test;
    };

    QList<Queued> expected_;
    QList<Problem> problems_;
    QStringList shown_;
};

// Fails the running test when a box was not as expected so far; the problems are then
// forgotten, so they are not reported again when the fake goes away.
#define VERIFY_DIALOGS(fake)                                            \
    do {                                                                \
        const QString dialogProblems = (fake).TakeProblems();           \
        QVERIFY2(dialogProblems.isEmpty(), qPrintable(dialogProblems)); \
    } while (false)
