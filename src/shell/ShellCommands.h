#pragma once

#include <QString>

class Services;
class UserPreferences;

// The commands of the Options and Support menus that act on the program itself rather than on
// a date: the share drive, a launcher for the program, and the maker's support pages.
class ShellCommands {
public:
    ShellCommands(Services& services, UserPreferences& prefs);

    void mnuOptNetworkShare_Click();
    // programFile: the running program; the launcher starts it on this data folder.
    void mnuOptCreateShortcut_Click(const QString& programFile);
    void mnuSupportReportProblem_Click();
    void mnuSupportSendErrorLog_Click();

    // True for one letter A-Z in either case.
    static bool IsDriveLetter(const QString& answer);

private:
    Services& services_;
    UserPreferences& prefs_;
};
