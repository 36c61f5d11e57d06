#pragma once

#include <functional>

#include "calendar/MarkerColors.h"
#include "shell/gui/ChildWindow.h"

class QLineEdit;
class QPushButton;

// "Select Colors and Captions for Markers": the caption and colour of every mark category,
// edited together and kept with Save. Two categories never share a colour, since a day's mark
// is known by its colour alone.
class frmMarkerColors : public ChildWindow {
    Q_OBJECT
public:
    // saved runs after the categories were changed and written.
    frmMarkerColors(MarkerColors& colors, Services& services, std::function<void()> saved,
                    QWidget* parent = nullptr);

    void cmdColor_Click(int index);
    void cmdSave_Click();
    void cmdDefaults_Click();

private:
    void ShowEntries();

    MarkerColors& colors_;
    std::function<void()> saved_;
    // The categories as edited, written back on Save.
    MarkerColors::Entries pending_;
    QList<QLineEdit*> captions_;
    QList<QPushButton*> colorButtons_;
};
