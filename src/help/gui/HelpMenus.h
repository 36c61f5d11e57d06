#pragma once

#include <QObject>

class HelpTopics;
class Services;
class frmMain;

// The help's part of the main window: the help box on the right panel, Help > Help Contents
// and Get Software Version, and the help window.
class HelpMenus : public QObject {
    Q_OBJECT
public:
    HelpMenus(frmMain& frame, HelpTopics& topics, Services& services);

    // Load step: reads the help topics and shows the first one in the help box.
    void LoadHelpTopics();

    void mnuHelpContents_Click();
    void mnuHelpSoftwareVersion_Click();
    void imgHelp_Click();
    void cmbHelp_Click();

private:
    void OpenHelp(int topic);

    frmMain& frame_;
    HelpTopics& topics_;
    Services& services_;
};
