#pragma once

#include "shell/gui/ChildWindow.h"

class HelpTopics;
class QListWidget;
class QLineEdit;
class QPlainTextEdit;

// "Orvanta Help": the help topics in a list, the chosen topic's description beside it, and a
// search for a phrase through the topics.
class frmHelp : public ChildWindow {
    Q_OBJECT
public:
    frmHelp(const HelpTopics& topics, Services& services, QWidget* parent = nullptr);

    void SelectTopic(int topic);
    // Room for the descriptions to be read without scrolling much.
    QSize sizeHint() const override { return QSize(760, 500); }

    // index 0: "Find Now" (from the first topic), 1: "Find Again" (after the last hit).
    void cmdSearch_Click(int index);
    void lstHelp_Click();
    void mnuHelp_Click();

private:
    const HelpTopics& topics_;
    QListWidget* lstHelp_;
    QPlainTextEdit* txtHelp_;
    QLineEdit* txtSearch_;
    // The topic of the last hit of this search; -1 before the first.
    int lastHit_ = -1;
};
