#pragma once

#include <QObject>

class QWidget;

// Screen readers announce a control by its accessible name. Buttons, check boxes and labelled
// fields have one of their own; a text box, list or drawing area often does not. AccessibleNaming
// gives each control that takes the keyboard focus a name when it has none, as it is first
// shown: the label that stands for it, else its tooltip, else its prescribed name in words
// ("txtCompanyName" reads "Company Name", "txtLine_3" reads "Line 4"). A control without a
// tooltip is described by the window it belongs to. It also lets Tab leave a box of several
// lines, so that every control of a window can be reached from the keyboard.
class AccessibleNaming : public QObject {
    Q_OBJECT
public:
    // Watches every widget of the application from now on; one is enough.
    static void Install();

    // Names the unnamed focusable controls inside root (root included).
    static void NameControls(QWidget* root);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using QObject::QObject;
};

// The name a screen reader gives widget (empty when it has none).
QString AccessibleNameOf(QWidget* widget);
