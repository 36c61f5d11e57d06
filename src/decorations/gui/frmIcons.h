#pragma once

#include "shell/gui/ChildWindow.h"

class IconList;
class QLineEdit;
class modIcons;

// The manager of the insertable icons: the list with pictures and captions; a new picture
// (PNG, ICO or SVG) is added as the next number's icon, a caption changed, an icon removed.
// Every change saves "Icon Tags.dat" at once.
class frmIcons : public ChildWindow {
    Q_OBJECT
public:
    static constexpr const char* kName = "frmIcons";

    frmIcons(Services& services, modIcons& icons);

    void cmdAdd_Click();
    void cmdChange_Click();
    void cmdRemove_Click();

private:
    void lstIcons_Click();

    modIcons& icons_;
    IconList* lstIcons_;
    QLineEdit* txtCaption_;
};
