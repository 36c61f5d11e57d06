#include "decorations/gui/DecorationMenus.h"

#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>

#include "calendar/DateModel.h"
#include "calendar/gui/CalendarMenus.h"
#include "calendar/gui/CalendarView.h"
#include "decorations/DecorationMessages.h"
#include "decorations/gui/frmIcons.h"
#include "decorations/gui/frmInsertIcons.h"
#include "decorations/modIcons.h"
#include "decorations/modMonthIcons.h"
#include "shell/Prompts.h"
#include "shell/Services.h"
#include "shell/gui/frmMain.h"

DecorationMenus::DecorationMenus(const DecorationContext& context)
    : QObject(&context.frame),
      frame_(context.frame),
      services_(context.services),
      dates_(context.dates),
      changes_(context.changes),
      icons_(context.icons),
      monthIcons_(context.monthIcons),
      calendar_(context.calendar) {
    ConnectMenus();
    RegisterEditors();
    calendar_.AddDayDecorator([this](const QDate& date, DayLook& look) {
        for (const int number : monthIcons_.IconsOn(date))
            look.icons.append({PictureOf(number), icons_.Caption(number)});
    });
    connect(&icons_, &modIcons::iconsChanged, this, [this] {
        pictures_.clear();
        calendar_.RedrawCalendar();
    });
    connect(&monthIcons_, &modMonthIcons::iconsChanged, &calendar_, &CalendarMenus::RedrawCalendar);
    connect(&calendar_, &CalendarMenus::iconDropped, this, &DecorationMenus::PlaceIcon);
    connect(&dates_, &DateModel::selectedDateChanged, this, &DecorationMenus::SelectionMoved);
}

void DecorationMenus::ConnectMenus() {
    const auto handle = [this](const char* item, const char* handler,
                               void (DecorationMenus::*click)()) {
        Handle(frame_.MenuItem(QString::fromLatin1(item)), this,
               [this, handler, click] { services_.Trap(handler, [&] { (this->*click)(); }); });
    };
    handle("mnuFileCreateTemplate", "mnuFileCreateTemplate_Click",
           &DecorationMenus::mnuFileCreateTemplate_Click);
    handle("mnuFileSaveTemplate", "mnuFileSaveTemplate_Click",
           &DecorationMenus::mnuFileSaveTemplate_Click);
    handle("mnuFileSaveCalendar", "mnuFileSaveCalendar_Click",
           &DecorationMenus::mnuFileSaveCalendar_Click);
    handle("mnuOptDateShowIcons", "mnuOptDateShowIcons_Click",
           &DecorationMenus::mnuOptDateShowIcons_Click);
    handle("mnuOptDateRemoveIcon", "mnuOptDateRemoveIcon_Click",
           &DecorationMenus::mnuOptDateRemoveIcon_Click);
    handle("mnuOptDateRemoveAll", "mnuOptDateRemoveAll_Click",
           &DecorationMenus::mnuOptDateRemoveAll_Click);
    handle("mnuManageIcons", "mnuManageIcons_Click", &DecorationMenus::mnuManageIcons_Click);
}

void DecorationMenus::RegisterEditors() {
    EditorHooks& editors = frame_.editors();
    editors.saveTemplateIcons = [this] {
        monthIcons_.SaveTemplateIcons();
        ShowTemplateState();
    };
    editors.saveMonthIcons = [this] { SaveChangedIcons(); };
}

void DecorationMenus::Load() {
    icons_.ReadIconTags();
    monthIcons_.ReadAllIcons();
    monthShown_ = dates_.FirstOfMonth;
    selectedBefore_ = dates_.SelectedDate;
}

QString DecorationMenus::PictureOf(int number) {
    auto found = pictures_.constFind(number);
    if (found == pictures_.constEnd())
        found = pictures_.insert(number, icons_.PicturePath(number));
    return *found;
}

frmIcons* DecorationMenus::iconsWindow() const {
    return qobject_cast<frmIcons*>(frame_.ChildWindow(QString::fromLatin1(frmIcons::kName)));
}

frmInsertIcons* DecorationMenus::paletteWindow() const {
    return qobject_cast<frmInsertIcons*>(
        frame_.ChildWindow(QString::fromLatin1(frmInsertIcons::kName)));
}

void DecorationMenus::PlaceIcon(const QDate& date, int number) {
    services_.Trap("PlaceIcon", [&] {
        monthIcons_.PlaceIcon(date, number);
        // An icon placed from the palette is seen at once on the month it went to.
        if (calendar_.ViewOnShow() != ViewKind::OneMonth)
            calendar_.Show1MonthCalendar();
    });
}

// The month's changes are saved to the month they were made in, which is no longer the month
// on show when the question comes from leaving it.
void DecorationMenus::SaveChangedIcons() {
    const int month = monthIcons_.ChangedMonth();
    monthIcons_.SaveMonthIcons(month != 0 ? month : dates_.FirstOfMonth.month());
}

bool DecorationMenus::AskAboutChanges() {
    if (changes_.MonthIconsChanged) {
        EditorHooks iconsOnly;
        iconsOnly.saveTemplateIcons = frame_.editors().saveTemplateIcons;
        iconsOnly.saveMonthIcons = frame_.editors().saveMonthIcons;
        PromptUnsavedChanges(services_.dialogs, changes_, iconsOnly);
        if (changes_.CancelRequested)
            return false;
    }
    // Changes the user chose not to keep go back to what the files hold.
    if (!changes_.MonthIconsChanged && monthIcons_.HasChanges())
        monthIcons_.DiscardChanges();
    ShowTemplateState();
    return !changes_.MonthIconsChanged;
}

// Leaving a month whose icons changed asks first; Cancel goes back to the date selected before.
void DecorationMenus::SelectionMoved(const QDate& date) {
    const QDate month(date.year(), date.month(), 1);
    if (movingBack_ || month == monthShown_) {
        selectedBefore_ = date;
        return;
    }
    if (CalendarView* view = calendar_.calendarView())
        view->ClearIconSelection();
    if (!changes_.TemplateMode && monthIcons_.ChangedMonth() != 0 && !AskAboutChanges()) {
        // Back once every part of the window has followed the move being undone.
        QMetaObject::invokeMethod(
            this,
            [this, back = selectedBefore_] {
                movingBack_ = true;
                dates_.SelectDate(back);
                movingBack_ = false;
            },
            Qt::QueuedConnection);
        return;
    }
    monthShown_ = month;
    selectedBefore_ = date;
}

void DecorationMenus::ShowTemplateState() {
    frame_.Control<QLabel>(QStringLiteral("lblTemplate"))
        ->setText(changes_.TemplateMode ? kTemplateModifying : kTemplateStandard);
    calendar_.RedrawCalendar();
}

// The first choice starts modifying the template on the 1 month calendar; choosing it again
// ends that, asking about unsaved template changes.
void DecorationMenus::mnuFileCreateTemplate_Click() {
    if (changes_.TemplateMode) {
        if (changes_.MonthIconsChanged && !AskAboutChanges())
            return;
        changes_.TemplateMode = false;
    } else {
        if (!AskAboutChanges())
            return;
        changes_.TemplateMode = true;
        calendar_.Show1MonthCalendar();
    }
    ShowTemplateState();
}

void DecorationMenus::mnuFileSaveTemplate_Click() {
    monthIcons_.SaveTemplateIcons();
    ShowTemplateState();
}

void DecorationMenus::mnuFileSaveCalendar_Click() {
    monthIcons_.SaveMonthIcons(dates_.FirstOfMonth.month());
}

// The palette floats above the calendar in the lower right corner, so that a click on a day
// does not hide it behind the calendar.
void DecorationMenus::mnuOptDateShowIcons_Click() {
    if (calendar_.ViewOnShow() != ViewKind::OneMonth)
        calendar_.Show1MonthCalendar();
    QWidget* palette = frame_.ShowChild(QString::fromLatin1(frmInsertIcons::kName), [this] {
        return new frmInsertIcons(services_, icons_,
                                  [this](int number) { PlaceIcon(dates_.SelectedDate, number); });
    });
    auto* sub = qobject_cast<QMdiSubWindow*>(palette->parentWidget());
    if (!sub || sub->windowFlags().testFlag(Qt::WindowStaysOnTopHint))
        return;
    sub->setWindowFlag(Qt::WindowStaysOnTopHint, true);
    const QRect area = frame_.mdiArea()->viewport()->rect();
    sub->move(std::max(0, area.right() - sub->width()), std::max(0, area.bottom() - sub->height()));
    sub->show();
    palette->setFocus();
}

void DecorationMenus::mnuOptDateRemoveIcon_Click() {
    CalendarView* view = calendar_.calendarView();
    const CalendarView::IconRef icon = view ? view->SelectedIcon() : CalendarView::IconRef{};
    if (!icon.date.isValid()) {
        services_.dialogs.MsgBox(kNoIconSelected, kInformationStyle);
        return;
    }
    if (!monthIcons_.RemoveIcon(icon.date, icon.index)) {
        services_.dialogs.MsgBox(kTemplateIconMessage, kInformationStyle);
        return;
    }
    view->ClearIconSelection();
}

void DecorationMenus::mnuOptDateRemoveAll_Click() {
    if (services_.dialogs.MsgBox(kRemoveIconsQuestion, kQuestionStyle, kRemoveIconsTitle) !=
        vb::Yes)
        return;
    monthIcons_.RemoveAllIcons(dates_.FirstOfMonth);
    if (CalendarView* view = calendar_.calendarView())
        view->ClearIconSelection();
}

void DecorationMenus::mnuManageIcons_Click() {
    frame_.ShowChild(QString::fromLatin1(frmIcons::kName),
                     [this] { return new frmIcons(services_, icons_); });
}
