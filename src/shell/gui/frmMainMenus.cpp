// The menu tree of the main window. Every item carries its control name; an item comes alive
// when its handler is attached in ConnectHandlers.
#include <QMenuBar>

#include "shell/gui/Controls.h"
#include "shell/gui/frmMain.h"

namespace {

// The mark categories of the Displayed Marks menu and the user categories of Mark Selected Date
// as...; their captions are the categories' own, set when the marker colours are read.
constexpr int kMarkCategories = 14;
constexpr int kUserCategories = 12;

void BuildFileMenu(QMenuBar* bar) {
    QMenu* file = AddMenu(bar, QStringLiteral("&File"), QStringLiteral("mnuFile"));
    AddItem(file, QStringLiteral("&Create/Modify 1 Month Calendar Template"),
            QStringLiteral("mnuFileCreateTemplate"));
    QMenu* save = AddSubMenu(file, QStringLiteral("&Save"), QStringLiteral("mnuFileSave"));
    AddItem(save, QStringLiteral("Save 1 Month Calendar Template"),
            QStringLiteral("mnuFileSaveTemplate"));
    AddItem(save, QStringLiteral("Save This Month's Icons"), QStringLiteral("mnuFileSaveCalendar"));
    file->addSeparator();
    AddItem(file, QStringLiteral("&Print 1 Month Calendar"),
            QStringLiteral("mnuFilePrintCalendar"));
    AddItem(file, QStringLiteral("Print 1 Month Calendar &Without Icons"),
            QStringLiteral("mnuFilePrintCalendarHideIcons"));
    AddItem(file, QStringLiteral("Print &Year Calendar"), QStringLiteral("mnuFilePrintYear"));
    file->addSeparator();
    AddItem(file, QStringLiteral("Open External &Notes"), QStringLiteral("mnuFileOpenNotes"));
    AddItem(file, QStringLiteral("Open External &Planner"), QStringLiteral("mnuFileOpenPlanner"));
    AddItem(file, QStringLiteral("Open &Frequently Used Terms"), QStringLiteral("mnuFileOpenFUT"));
    AddItem(file, QStringLiteral("Export to iCalendar..."), QStringLiteral("mnuFileExportICal"));
    AddItem(file, QStringLiteral("Import from iCalendar..."), QStringLiteral("mnuFileImportICal"));
    file->addSeparator();
    AddItem(file, QStringLiteral("Generate &Expense Report"),
            QStringLiteral("mnuFileOpenExpenses"));
    AddItem(file, QStringLiteral("Generate &Mileage Report"), QStringLiteral("mnuFileOpenMiles"));
}

void BuildEditMenu(QMenuBar* bar) {
    QMenu* edit = AddMenu(bar, QStringLiteral("&Edit"), QStringLiteral("mnuEdit"));
    AddItem(edit, QStringLiteral("&Find"), QStringLiteral("mnuEditFind"));
    AddItem(edit, QStringLiteral("Delete this Years Marks"), QStringLiteral("mnuEditDeleteMarks"));
    QMenu* marks =
        AddSubMenu(edit, QStringLiteral("Displayed Marks"), QStringLiteral("mnuEditDiplayedMarks"));
    AddItem(marks, QStringLiteral("Hide (Uncheck) All Marks"),
            QStringLiteral("mnuEditMarksHideAll"));
    AddItem(marks, QStringLiteral("Show (Check) All Marks"), QStringLiteral("mnuEditMarksShowAll"));
    marks->addSeparator();
    for (int i = 0; i < kMarkCategories; ++i) {
        QAction* item = AddItem(marks, QString(), ArrayName(QStringLiteral("mnuEditMark"), i));
        item->setCheckable(true);
        item->setChecked(true);
    }
    marks->addSeparator();
    AddItem(marks, QStringLiteral("Save the Above Settings"),
            QStringLiteral("mnuEditMarkerSaveSettings"));
}

void BuildCalendarMenu(QMenuBar* bar) {
    QMenu* view = AddMenu(bar, QStringLiteral("Calendar &View"), QStringLiteral("mnuCal"));
    AddItem(view, QStringLiteral("Show 1 Month Calendar"), QStringLiteral("mnuCalOneMonth"));
    AddItem(view, QStringLiteral("Show 6 Month Calendar"), QStringLiteral("mnuCalSixMonths"));
    AddItem(view, QStringLiteral("Show 1 Year Calendar"), QStringLiteral("mnuCalOneYear"));
}

void BuildOptionsMenu(QMenuBar* bar) {
    QMenu* options = AddMenu(bar, QStringLiteral("&Options"), QStringLiteral("mnuOptions"));
    AddItem(options, QStringLiteral("&User Options"), QStringLiteral("mnuOptionsUser"));
    AddItem(options, QStringLiteral("Change Network Share Drive"),
            QStringLiteral("mnuOptNetworkShare"));
    AddItem(options, QStringLiteral("Create Shortcut for this Program"),
            QStringLiteral("mnuOptCreateShortcut"));
    options->addSeparator();
    QMenu* date =
        AddSubMenu(options, QStringLiteral("&Date Options"), QStringLiteral("mnuDateOptions"));
    AddItem(date, QStringLiteral("Quick Mark Selected Date"),
            QStringLiteral("mnuOptDateQuickMark"));
    QMenu* markAs = AddSubMenu(date, QStringLiteral("Mark Selected Date as..."),
                               QStringLiteral("mnuOptDateMark"));
    for (int i = 0; i < kUserCategories; ++i)
        AddItem(markAs, QString(), ArrayName(QStringLiteral("mnuOptDateMarkAs"), i));
    AddItem(date, QStringLiteral("Clear Mark from Selected Date"),
            QStringLiteral("mnuOptDateClearMark"));
    AddItem(date, QStringLiteral("Attach Mouse Over (Hover) Note"),
            QStringLiteral("mnuOptDateAttachHoverText"));
    date->addSeparator();
    AddItem(date, QStringLiteral("Open Notes for Selected Date"),
            QStringLiteral("mnuOptDateOpenNotes"));
    AddItem(date, QStringLiteral("Open Planner for Selected Date"),
            QStringLiteral("mnuOptDateOpenPlanner"));
    AddItem(date, QStringLiteral("Set Alert for Selected Date"),
            QStringLiteral("mnuOptDateSetAlert"));
    AddItem(date, QStringLiteral("View Alert for Selected Date"),
            QStringLiteral("mnuOptDateViewAlert"));
    date->addSeparator();
    AddItem(date, QStringLiteral("View Insertable Icons"), QStringLiteral("mnuOptDateShowIcons"));
    AddItem(date, QStringLiteral("Remove Selected Icon"), QStringLiteral("mnuOptDateRemoveIcon"));
    AddItem(date, QStringLiteral("Remove All Icons"), QStringLiteral("mnuOptDateRemoveAll"));
    QMenu* calendar =
        AddSubMenu(options, QStringLiteral("Calendar Options"), QStringLiteral("mnuOptCal"));
    AddItem(calendar, QStringLiteral("Show Numbers Offset"),
            QStringLiteral("mnuOptCalNumbersOffset"));
    AddItem(calendar, QStringLiteral("Restore This Years Marks from Backup"),
            QStringLiteral("mnuOptCalendarRestoreMarks"));
}

void BuildManageMenu(QMenuBar* bar) {
    QMenu* manage = AddMenu(bar, QStringLiteral("&Manage"), QStringLiteral("mnuManage"));
    AddItem(manage, QStringLiteral("Alerts"), QStringLiteral("mnuManageAlerts"));
    AddItem(manage, QStringLiteral("Notes and Planners"), QStringLiteral("mnuManageNotes"));
    AddItem(manage, QStringLiteral("To Do List"), QStringLiteral("mnuManageToDo"));
    AddItem(manage, QStringLiteral("Holidays"), QStringLiteral("mnuManageHolidays"));
    AddItem(manage, QStringLiteral("Birthdays"), QStringLiteral("mnuManageBDays"));
    AddItem(manage, QStringLiteral("Contact List"), QStringLiteral("mnuManageEmailList"));
    AddItem(manage, QStringLiteral("Insertable Icons"), QStringLiteral("mnuManageIcons"));
    QMenu* terms =
        AddSubMenu(manage, QStringLiteral("Frequently Used Terms"), QStringLiteral("mnuManageFUT"));
    AddItem(terms, QStringLiteral("Edit List"), QStringLiteral("mnuManageFUTList"));
    AddItem(terms, QStringLiteral("Edit Preferences"), QStringLiteral("mnuManageFUTPreferences"));
    AddItem(manage, QStringLiteral("Monthly Budget"), QStringLiteral("mnuManageBudget"));
    QMenu* markers =
        AddSubMenu(manage, QStringLiteral("Date Markers"), QStringLiteral("mnuManageMarkers"));
    AddItem(markers, QStringLiteral("Select Markers to Display and Hide"),
            QStringLiteral("mnuManageDisplayedMarks"));
    AddItem(markers, QStringLiteral("Select Colors and Captions for Markers"),
            QStringLiteral("mnuManageUserColors"));
}

void BuildViewMenu(QMenuBar* bar) {
    QMenu* view = AddMenu(bar, QStringLiteral("&View"), QStringLiteral("mnuView"));
    QMenu* functions =
        AddSubMenu(view, QStringLiteral("&Date Functions"), QStringLiteral("mnuDFunc"));
    AddItem(functions, QStringLiteral("Find a Date"), QStringLiteral("mnuDateFind"));
    QMenu* between = AddSubMenu(functions, QStringLiteral("Get Time Interval Between 2 Dates"),
                                QStringLiteral("mnuDateDiff"));
    QMenu* standard = AddSubMenu(between, QStringLiteral("Using Standard Intervals"),
                                 QStringLiteral("mnuDateDiffS"));
    AddItem(standard, QStringLiteral("In Years"), QStringLiteral("mnuDateDiffSYears"));
    AddItem(standard, QStringLiteral("In Quarters"), QStringLiteral("mnuDateDiffSQuarters"));
    AddItem(standard, QStringLiteral("In Months"), QStringLiteral("mnuDateDiffSMonths"));
    AddItem(standard, QStringLiteral("In Weeks"), QStringLiteral("mnuDateDiffSWeeks"));
    AddItem(standard, QStringLiteral("In Days"), QStringLiteral("mnuDateDiffSDays"));
    AddItem(standard, QStringLiteral("In Hours"), QStringLiteral("mnuDateDiffSHours"));
    AddItem(standard, QStringLiteral("In Minutes"), QStringLiteral("mnuDateDiffSMinutes"));
    AddItem(standard, QStringLiteral("In Seconds"), QStringLiteral("mnuDateDiffSSeconds"));
    QMenu* calendar = AddSubMenu(between, QStringLiteral("Using Calendar Intervals"),
                                 QStringLiteral("mnuDateDiffC"));
    AddItem(calendar, QStringLiteral("In Calendar Years"), QStringLiteral("mnuDateDiffCYears"));
    AddItem(calendar, QStringLiteral("In Calendar Months"), QStringLiteral("mnuDateDiffCMonths"));
    AddItem(calendar, QStringLiteral("In Calendar Weeks"), QStringLiteral("mnuDateDiffCWeeks"));
    QMenu* other =
        AddSubMenu(functions, QStringLiteral("Other Functions"), QStringLiteral("mnuDFuncOther"));
    AddItem(other, QStringLiteral("# of Specific Weekdays in a Period"),
            QStringLiteral("mnuNumOfDays"));
}

void BuildToolsSupportHelpMenus(QMenuBar* bar) {
    QMenu* tools = AddMenu(bar, QStringLiteral("&Tools"), QStringLiteral("mnuTools"));
    AddItem(tools, QStringLiteral("Alarm Clock"), QStringLiteral("mnuToolsAlarm"));
    AddItem(tools, QStringLiteral("Show Time of Day"), QStringLiteral("mnuToolsShowTime"));
    QMenu* support = AddMenu(bar, QStringLiteral("&Support"), QStringLiteral("mnuSupport"));
    AddItem(support, QStringLiteral("Report Software &Problem (Requires Internet Connection)"),
            QStringLiteral("mnuSupportReportProblem"));
    AddItem(support, QStringLiteral("Send &Error Log File (Requires Internet Connection)"),
            QStringLiteral("mnuSupportSendErrorLog"));
    QMenu* help = AddMenu(bar, QStringLiteral("&Help"), QStringLiteral("mnuHelpMain"));
    AddItem(help, QStringLiteral("Help Contents"), QStringLiteral("mnuHelpContents"))
        ->setShortcut(QKeySequence::HelpContents);
    AddItem(help, QStringLiteral("Get Software Version"), QStringLiteral("mnuHelpSoftwareVersion"));
}

}  // namespace

void frmMain::BuildMenus() {
    QMenuBar* bar = menuBar();
    bar->setObjectName(QStringLiteral("mnuBar"));
    BuildFileMenu(bar);
    BuildEditMenu(bar);
    BuildCalendarMenu(bar);
    BuildOptionsMenu(bar);
    BuildManageMenu(bar);
    BuildViewMenu(bar);
    BuildToolsSupportHelpMenus(bar);
}
