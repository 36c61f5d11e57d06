// The main window's side of the date marks: the mark commands of the menus, the mark
// categories in the menus, the marker windows, and the marks painted into the views.
#include <QAction>
#include <QCoreApplication>
#include <QListWidget>
#include <QMenu>

#include "calendar/DateActions.h"
#include "calendar/gui/CalendarView.h"
#include "calendar/gui/MarkerSwatch.h"
#include "calendar/gui/frmDisplayedMarks.h"
#include "calendar/gui/frmMarkerColors.h"
#include "shell/ProgramState.h"
#include "shell/gui/Controls.h"
#include "shell/gui/frmMain.h"

namespace {

const QString kDisplayedMarksWindow = QStringLiteral("frmDisplayedMarks");
const QString kMarkerColorsWindow = QStringLiteral("frmMarkerColors");

}  // namespace

void frmMain::ConnectMarkHandlers() {
    DateActions* actions = actions_.get();
    const auto item = [this](const QString& name) { return findChild<QAction*>(name); };
    for (int i = 0; i < MarkerColors::kUserCategories; ++i) {
        Handle(item(ArrayName(QStringLiteral("mnuOptDateMarkAs"), i)), this,
               [actions, i] { actions->mnuOptDateMarkAs_Click(i); });
    }
    for (int i = 0; i < MarkerColors::kCount; ++i) {
        Handle(item(ArrayName(QStringLiteral("mnuEditMark"), i)), this, [this, actions, i] {
            actions->mnuEditMark_Click(i);
            MarkerSettingsChanged();
        });
    }
    Handle(item(QStringLiteral("mnuEditMarksShowAll")), this, [this, actions] {
        actions->mnuEditMarksShowAll_Click();
        MarkerSettingsChanged();
    });
    Handle(item(QStringLiteral("mnuEditMarksHideAll")), this, [this, actions] {
        actions->mnuEditMarksHideAll_Click();
        MarkerSettingsChanged();
    });
    Handle(item(QStringLiteral("mnuEditMarkerSaveSettings")), this,
           [actions] { actions->mnuEditMarkerSaveSettings_Click(); });
    Handle(item(QStringLiteral("mnuOptDateQuickMark")), this,
           [actions] { actions->mnuOptDateQuickMark_Click(); });
    Handle(item(QStringLiteral("mnuOptDateClearMark")), this,
           [actions] { actions->mnuOptDateClearMark_Click(); });
    Handle(item(QStringLiteral("mnuOptDateAttachHoverText")), this,
           [actions] { actions->mnuOptDateAttachHoverText_Click(); });
    Handle(item(QStringLiteral("mnuEditDeleteMarks")), this,
           [actions] { actions->mnuEditDeleteMarks_Click(); });
    Handle(item(QStringLiteral("mnuOptCalendarRestoreMarks")), this,
           [actions] { actions->mnuOptCalendarRestoreMarks_Click(); });
    Handle(item(QStringLiteral("mnuOptDateRemoveAll")), this,
           [actions] { actions->mnuOptDateRemoveAll_Click(); });
    Handle(item(QStringLiteral("mnuOptNetworkShare")), this,
           [actions] { actions->mnuOptNetworkShare_Click(); });
    Handle(item(QStringLiteral("mnuOptCreateShortcut")), this, [this, actions] {
        actions->mnuOptCreateShortcut_Click(QCoreApplication::applicationFilePath());
    });
    Handle(item(QStringLiteral("mnuSupportReportProblem")), this,
           [actions] { actions->mnuSupportReportProblem_Click(); });
    Handle(item(QStringLiteral("mnuSupportSendErrorLog")), this,
           [actions] { actions->mnuSupportSendErrorLog_Click(); });
    Handle(item(QStringLiteral("mnuManageDisplayedMarks")), this,
           &frmMain::mnuManageDisplayedMarks_Click);
    Handle(item(QStringLiteral("mnuManageUserColors")), this, &frmMain::mnuManageUserColors_Click);

    AddDayDecorator(
        [this](const QDate& date, DayLook& look) { state_.marks.Decorate(date, look); });
    connect(&state_.marks, &DateMarks::marksRead, this, &frmMain::RedrawCalendar);
}

void frmMain::ShowMarkerSettings() {
    const MarkerColors& colors = state_.markerColors;
    auto* categories = findChild<QListWidget*>(QStringLiteral("lstMarkerCats"));
    categories->clear();
    for (int i = 0; i < MarkerColors::kCount; ++i) {
        QAction* shown = findChild<QAction*>(ArrayName(QStringLiteral("mnuEditMark"), i));
        shown->setText(colors.Caption(i));
        shown->setChecked(!colors.Hidden(i));
        shown->setIcon(MarkerSwatch(colors.Color(i)));
        categories->addItem(colors.Caption(i));
        if (i >= MarkerColors::kUserCategories)
            continue;
        QAction* markAs = findChild<QAction*>(ArrayName(QStringLiteral("mnuOptDateMarkAs"), i));
        markAs->setText(colors.Caption(i));
        markAs->setIcon(MarkerSwatch(colors.Color(i)));
    }
}

void frmMain::MarkerSettingsChanged() {
    ShowMarkerSettings();
    if (auto* displayed = qobject_cast<frmDisplayedMarks*>(ChildWindow(kDisplayedMarksWindow)))
        displayed->Refresh();
    RedrawCalendar();
}

void frmMain::mnuManageDisplayedMarks_Click() {
    ShowChild(kDisplayedMarksWindow, [this] {
        return new frmDisplayedMarks(state_.markerColors, state_.services,
                                     [this] { MarkerSettingsChanged(); });
    });
}

void frmMain::mnuManageUserColors_Click() {
    ShowChild(kMarkerColorsWindow, [this] {
        return new frmMarkerColors(state_.markerColors, state_.services,
                                   [this] { MarkerSettingsChanged(); });
    });
}

void frmMain::RedrawViewOfKind(int months) {
    if (ViewKind() == months)
        RedrawCalendar();
}

void frmMain::ReDraw1MonthDateMarks() {
    RedrawViewOfKind(1);
}

void frmMain::ReDraw6MonthDateMarks() {
    RedrawViewOfKind(6);
}

void frmMain::ReDrawDateMarks() {
    RedrawViewOfKind(12);
}
