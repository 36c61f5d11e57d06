// The calendar's side of the main window: the views and the selected date, the mark commands of
// the menus, the mark categories in the menus, the marker windows, and the marks painted into
// the views.
#include "calendar/gui/CalendarMenus.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QListWidget>
#include <QMenu>
#include <QToolButton>

#include "calendar/DateActions.h"
#include "calendar/DateModel.h"
#include "calendar/DayDescription.h"
#include "calendar/MarkerColors.h"
#include "calendar/gui/CalendarView.h"
#include "calendar/gui/MarkerSwatch.h"
#include "calendar/gui/frmDisplayedMarks.h"
#include "calendar/gui/frmMarkerColors.h"
#include "calendar/modMarks.h"
#include "shell/Services.h"
#include "shell/gui/frmMain.h"

namespace {

const QString kCalendarWindow = QStringLiteral("frmCalendar");
const QString kDisplayedMarksWindow = QStringLiteral("frmDisplayedMarks");
const QString kMarkerColorsWindow = QStringLiteral("frmMarkerColors");

QString CaptionOf(ViewKind kind) {
    switch (kind) {
        case ViewKind::OneMonth:
            return QStringLiteral("1 Month Calendar");
        case ViewKind::SixMonths:
            return QStringLiteral("6 Month Calendar");
        default:
            return QStringLiteral("Yearly Calendar");
    }
}

}  // namespace

CalendarMenus::CalendarMenus(frmMain& frame, Services& services, DateModel& dates,
                             MarkerColors& colors, DateMarks& marks)
    : QObject(&frame),
      frame_(frame),
      services_(services),
      dates_(dates),
      colors_(colors),
      marks_(marks),
      actions_(std::make_unique<DateActions>(services, dates, colors, marks, *this)),
      today_(services.clock.today()) {
    ConnectViews();
    ConnectMarkMenus();
    AddDayDecorator([this](const QDate& date, DayLook& look) {
        marks_.Decorate(date, look);
        if (date == today_ && !colors_.Hidden(MarkerColors::kTodaysDate))
            look.todayColor = colors_.Color(MarkerColors::kTodaysDate);
    });
    connect(&marks_, &DateMarks::marksRead, this, &CalendarMenus::RedrawCalendar);
    connect(&dates_, &DateModel::selectedDateChanged, this, &CalendarMenus::DescribeSelectedDay);
    connect(&frame_, &frmMain::todayChanged, this, [this](const QDate& today) {
        today_ = today;
        RedrawCalendar();
    });
}

CalendarMenus::~CalendarMenus() = default;

void CalendarMenus::ReadMarkerColors() {
    colors_.ReadMarkerColors(services_);
    ShowMarkerSettings();
}

// ---- views and the selected date -----------------------------------------------------------

void CalendarMenus::ConnectViews() {
    Handle(frame_.MenuItem(QStringLiteral("mnuCalOneMonth")), this,
           &CalendarMenus::Show1MonthCalendar);
    Handle(frame_.MenuItem(QStringLiteral("mnuCalSixMonths")), this,
           &CalendarMenus::Show6MonthCalendar);
    Handle(frame_.MenuItem(QStringLiteral("mnuCalOneYear")), this,
           &CalendarMenus::Show1YearCalendar);
    const auto button = [this](const QString& array, int index) {
        return frame_.Control<QToolButton>(ArrayName(array, index));
    };
    connect(button(QStringLiteral("imgCal"), 0), &QToolButton::clicked, this,
            &CalendarMenus::Show1MonthCalendar);
    connect(button(QStringLiteral("imgCal"), 1), &QToolButton::clicked, this,
            &CalendarMenus::Show6MonthCalendar);
    connect(button(QStringLiteral("imgCal"), 2), &QToolButton::clicked, this,
            &CalendarMenus::Show1YearCalendar);
    connect(button(QStringLiteral("imgOpt"), 0), &QToolButton::clicked, this,
            &CalendarMenus::imgOpt_Advance);
    connect(&frame_, &frmMain::dateChosen, this, &CalendarMenus::DateChosen);
    connect(&dates_, &DateModel::selectedDateChanged, &frame_, &frmMain::ShowSelectedDate);
}

void CalendarMenus::DateChosen(const QDate& date) {
    const QDate monthBefore = dates_.FirstOfMonth;
    dates_.SelectDate(date);
    // Choosing another month or year brings that month to the first sheet.
    if (CalendarView* view = calendarView(); view && dates_.FirstOfMonth != monthBefore)
        view->ScrollTo(date);
}

void CalendarMenus::imgOpt_Advance() {
    if (CalendarView* view = calendarView())
        view->ScrollTo(dates_.SelectedDate);
    else
        Show1MonthCalendar();
}

CalendarView* CalendarMenus::calendarView() const {
    return qobject_cast<CalendarView*>(frame_.ChildWindow(kCalendarWindow));
}

void CalendarMenus::SetNumbersOffset(bool on) {
    numbersOffset_ = on;
    if (CalendarView* view = calendarView())
        view->SetNumbersOffset(on);
}

ViewKind CalendarMenus::ViewOnShow() const {
    const CalendarView* view = calendarView();
    return view ? view->Kind() : ViewKind::None;
}

void CalendarMenus::ShowCalendar(ViewKind kind) {
    auto* view = static_cast<CalendarView*>(frame_.ShowChild(kCalendarWindow, [this] {
        auto* created = new CalendarView(dates_, services_.clock,
                                         [this](const QDate& date) { return LookOf(date); });
        connect(created, &CalendarView::contextMenuAt, this,
                [this](const QDate&, const QPoint& at) { DateOptionsMenu()->popup(at); });
        connect(created, &CalendarView::dateActivated, this, &CalendarMenus::dayActivated);
        created->setAccessibleName(QStringLiteral("Calendar"));
        connect(created, &CalendarView::iconDropped, this, &CalendarMenus::iconDropped);
        return created;
    }));
    view->SetViewKind(kind);
    view->SetNumbersOffset(numbersOffset_);
    view->setWindowTitle(CaptionOf(kind));
    if (QWidget* sub = view->parentWidget(); sub && !sub->isMaximized())
        sub->showMaximized();
    view->setFocus();
    DescribeSelectedDay();
}

void CalendarMenus::Show1MonthCalendar() {
    ShowCalendar(ViewKind::OneMonth);
}

void CalendarMenus::Show6MonthCalendar() {
    ShowCalendar(ViewKind::SixMonths);
}

void CalendarMenus::Show1YearCalendar() {
    ShowCalendar(ViewKind::OneYear);
}

void CalendarMenus::RedrawCalendar() {
    if (CalendarView* view = calendarView())
        view->update();
    DescribeSelectedDay();
}

void CalendarMenus::DescribeSelectedDay() {
    CalendarView* view = calendarView();
    if (!view)
        return;
    const QDate date = dates_.SelectedDate;
    const DayLook look = LookOf(date);
    const int category = look.markColor ? colors_.IndexOfColor(*look.markColor) : -1;
    const QString description =
        DayDescription(date, look, category < 0 ? QString() : colors_.Caption(category));
    if (view->accessibleDescription() == description)
        return;
    view->setAccessibleDescription(description);
    if (QAccessible::isActive()) {
        QAccessibleEvent changed(view, QAccessible::DescriptionChanged);
        QAccessible::updateAccessibility(&changed);
    }
}

void CalendarMenus::RedrawViewOfKind(ViewKind kind) {
    if (ViewOnShow() == kind)
        RedrawCalendar();
}

void CalendarMenus::ReDraw1MonthDateMarks() {
    RedrawViewOfKind(ViewKind::OneMonth);
}

void CalendarMenus::ReDraw6MonthDateMarks() {
    RedrawViewOfKind(ViewKind::SixMonths);
}

void CalendarMenus::ReDrawDateMarks() {
    RedrawViewOfKind(ViewKind::OneYear);
}

void CalendarMenus::AddDayDecorator(DayDecorator decorator) {
    decorators_.append(std::move(decorator));
    RedrawCalendar();
}

DayLook CalendarMenus::LookOf(const QDate& date) const {
    DayLook look;
    for (const DayDecorator& decorate : decorators_)
        decorate(date, look);
    return look;
}

QMenu* CalendarMenus::DateOptionsMenu() const {
    return frame_.Control<QMenu>(QStringLiteral("mnuDateOptions"));
}

// ---- marks -------------------------------------------------------------------------------

void CalendarMenus::ConnectMarkMenus() {
    DateActions* actions = actions_.get();
    const auto item = [this](const QString& name) { return frame_.MenuItem(name); };
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
    Handle(item(QStringLiteral("mnuManageDisplayedMarks")), this,
           &CalendarMenus::mnuManageDisplayedMarks_Click);
    Handle(item(QStringLiteral("mnuManageUserColors")), this,
           &CalendarMenus::mnuManageUserColors_Click);
}

void CalendarMenus::ShowMarkerSettings() {
    auto* categories = frame_.Control<QListWidget>(QStringLiteral("lstMarkerCats"));
    categories->clear();
    for (int i = 0; i < MarkerColors::kCount; ++i) {
        QAction* shown = frame_.MenuItem(ArrayName(QStringLiteral("mnuEditMark"), i));
        shown->setText(colors_.Caption(i));
        shown->setChecked(!colors_.Hidden(i));
        shown->setIcon(ShownMarkerSwatch(colors_.Color(i), !colors_.Hidden(i)));
        categories->addItem(colors_.Caption(i));
        if (i >= MarkerColors::kUserCategories)
            continue;
        QAction* markAs = frame_.MenuItem(ArrayName(QStringLiteral("mnuOptDateMarkAs"), i));
        markAs->setText(colors_.Caption(i));
        markAs->setIcon(MarkerSwatch(colors_.Color(i)));
    }
}

void CalendarMenus::MarkerSettingsChanged() {
    ShowMarkerSettings();
    if (auto* displayed =
            qobject_cast<frmDisplayedMarks*>(frame_.ChildWindow(kDisplayedMarksWindow)))
        displayed->Refresh();
    RedrawCalendar();
}

void CalendarMenus::mnuManageDisplayedMarks_Click() {
    frame_.ShowChild(kDisplayedMarksWindow, [this] {
        return new frmDisplayedMarks(colors_, services_, [this] { MarkerSettingsChanged(); });
    });
}

void CalendarMenus::mnuManageUserColors_Click() {
    frame_.ShowChild(kMarkerColorsWindow, [this] {
        return new frmMarkerColors(colors_, services_, [this] { MarkerSettingsChanged(); });
    });
}
