#pragma once

#include <functional>

#include "shell/gui/ChildWindow.h"

class IconList;
class modIcons;

// The palette of insertable icons: an icon is dragged from it onto a day of the 1 month
// calendar, or selected and placed on the selected date with Enter or the button.
class frmInsertIcons : public ChildWindow {
    Q_OBJECT
public:
    static constexpr const char* kName = "frmInsertIcons";

    // place puts icon number on the selected date.
    frmInsertIcons(Services& services, modIcons& icons, std::function<void(int)> place);

    void cmdPlace_Click();

private:
    modIcons& icons_;
    std::function<void(int)> place_;
    IconList* lstIcons_;
};
