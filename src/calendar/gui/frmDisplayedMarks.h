#pragma once

#include <functional>

#include "shell/gui/ChildWindow.h"

class MarkerColors;
class QCheckBox;

// "Select Markers to Display and Hide": one check box per mark category. A change shows or
// hides that category's marks at once; Save Settings keeps the choice for the next start.
class frmDisplayedMarks : public ChildWindow {
    Q_OBJECT
public:
    // changed runs after every change of what is shown.
    frmDisplayedMarks(MarkerColors& colors, Services& services, std::function<void()> changed,
                      QWidget* parent = nullptr);

    // Takes the check marks from the categories again (after the menu changed them).
    void Refresh();

private:
    void chkMarker_Click(int index);
    void SetAll(bool shown);

    MarkerColors& colors_;
    std::function<void()> changed_;
    QList<QCheckBox*> boxes_;
};
