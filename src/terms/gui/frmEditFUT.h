#pragma once

#include <functional>

#include "shell/gui/ChildWindow.h"

class QLineEdit;

// The small editor in which a term is typed: "Save" puts the term into the list and closes,
// "Save and Continue" puts it in and waits for the next one, "Exit" leaves.
class frmEditFUT : public ChildWindow {
    Q_OBJECT
public:
    static constexpr const char* kName = "frmEditFUT";

    // save receives each term saved; it returns false when the term could not be kept.
    frmEditFUT(Services& services, std::function<bool(const QString&)> save);

    // Starts on term (empty for a new one); save then receives what it became.
    void Start(const QString& term, std::function<bool(const QString&)> save);

    void cmdSave_Click();
    void cmdSaveContinue_Click();
    void cmdExit_Click() { CloseWindow(); }

private:
    bool SaveTerm();

    QLineEdit* txtTerm_;
    std::function<bool(const QString&)> save_;
};
