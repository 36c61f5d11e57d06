// The panels around the child area of the main window and their controls.
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiArea>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "shell/DateFormats.h"
#include "shell/gui/Controls.h"
#include "shell/gui/DateDropDown.h"
#include "shell/gui/Icons.h"
#include "shell/gui/frmMain.h"

namespace {

constexpr int kFirstYear = 1900;
constexpr int kLastYear = 2200;
constexpr int kToDoItems = 10;

template <class Widget>
Widget* Named(Widget* widget, const QString& name, const QString& toolTip = {}) {
    widget->setObjectName(name);
    if (!toolTip.isEmpty())
        widget->setToolTip(toolTip);
    return widget;
}

QLabel* Label(const QString& name, const QString& caption) {
    return Named(new QLabel(caption), name);
}

QToolButton* ImageButton(const QString& name, const QIcon& icon, const QString& toolTip) {
    auto* button = Named(new QToolButton, name, toolTip);
    button->setIcon(icon);
    button->setIconSize(QSize(28, 28));
    button->setAutoRaise(true);
    return button;
}

QLabel* Picture(const QString& name, const QPixmap& pixmap, const QString& toolTip) {
    auto* label = Named(new QLabel, name, toolTip);
    label->setPixmap(pixmap);
    return label;
}

// A list of the right panel, which may shrink to a few rows on a small screen.
QListWidget* SmallList(const QString& name) {
    auto* list = Named(new QListWidget, name);
    list->setMinimumHeight(40);
    return list;
}

QFrame* Panel(const QString& name) {
    auto* frame = Named(new QFrame, name);
    frame->setFrameShape(QFrame::StyledPanel);
    return frame;
}

}  // namespace

void frmMain::BuildPanels() {
    auto* central = new QWidget;
    auto* column = new QVBoxLayout(central);
    column->setContentsMargins(4, 4, 4, 4);
    column->setSpacing(4);
    column->addWidget(BuildTopPanel());

    mdi_ = Named(new QMdiArea, QStringLiteral("mdiClient"));
    mdi_->setOption(QMdiArea::DontMaximizeSubWindowOnActivation);
    mdi_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    mdi_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    // The frame's scroll bar and scrolled area for child content larger than the frame.
    mdi_->verticalScrollBar()->setObjectName(QStringLiteral("VScroll1"));
    mdi_->viewport()->setObjectName(QStringLiteral("picScroll"));

    auto* middle = new QHBoxLayout;
    middle->setSpacing(4);
    middle->addWidget(mdi_, 1);
    middle->addWidget(BuildRightPanel());
    column->addLayout(middle, 1);
    column->addWidget(BuildBottomPanel());
    column->addWidget(BuildBottomStrip());
    setCentralWidget(central);
}

// The top panel's first row: today's date, the birthday and alert indicators, the template.
QLayout* frmMain::BuildTodayRow() {
    auto* row = new QHBoxLayout;
    lblToday_ = Label(QStringLiteral("lblToday"), QString());
    QFont big = lblToday_->font();
    big.setPointSizeF(big.pointSizeF() * 1.3);
    big.setBold(true);
    lblToday_->setFont(big);
    row->addWidget(lblToday_);
    row->addStretch(1);
    for (int i = 0; i < 3; ++i) {
        row->addWidget(Picture(ArrayName(QStringLiteral("imgBDay"), i), icons::Cake(false),
                               QStringLiteral("No Birthdays Pending")));
    }
    row->addSpacing(12);
    // Image 0 of imgAlert is the one shown; images 1 and 2 hold its no-alert and alert pictures.
    const QPixmap bells[3] = {icons::Bell(false), icons::Bell(false), icons::Bell(true)};
    for (int i = 0; i < 3; ++i) {
        QLabel* bell = Picture(ArrayName(QStringLiteral("imgAlert"), i), bells[i],
                               QStringLiteral("No Alerts Pending"));
        bell->setVisible(i == 0);
        row->addWidget(bell);
    }
    auto* alertButton = Named(new QPushButton(QStringLiteral("No Pending Alerts")),
                              QStringLiteral("cmdAlert"), QStringLiteral("Click to View"));
    // The button appears while alerts are pending; until then the label says there are none.
    alertButton->hide();
    row->addWidget(alertButton);
    row->addWidget(Label(QStringLiteral("lblAlert"), QStringLiteral("No Pending Alerts")));
    row->addSpacing(20);
    row->addWidget(Label(QStringLiteral("lblTemplate"), QStringLiteral("Template = Standard")));
    return row;
}

// The second row: the selectors of the selected date, the views and the date's indicators.
QLayout* frmMain::BuildSelectorRow() {
    auto* row = new QHBoxLayout;
    row->addWidget(Label(QStringLiteral("lblSelect"), QStringLiteral("Select >")));
    cmbMonth_ = Named(new QComboBox, QStringLiteral("cmbMonth"));
    for (int month = 1; month <= 12; ++month)
        cmbMonth_->addItem(datefmt::MonthName(month));
    cmbDay_ = Named(new QComboBox, QStringLiteral("cmbDay"));
    cmbYear_ = Named(new QComboBox, QStringLiteral("cmbYear"));
    for (int year = kFirstYear; year <= kLastYear; ++year)
        cmbYear_->addItem(QString::number(year));
    cmbYear_->setMaxVisibleItems(20);
    for (QComboBox* list : {cmbMonth_, cmbDay_, cmbYear_})
        SelectAsTyped(list);
    row->addWidget(cmbMonth_);
    row->addWidget(cmbDay_);
    row->addWidget(cmbYear_);
    row->addSpacing(12);
    row->addWidget(Label(QStringLiteral("Label1"), QStringLiteral("Months >")));
    const QStringList calTips = {QStringLiteral("View 1 Month Calendar"),
                                 QStringLiteral("View 6 Month Calendar"),
                                 QStringLiteral("View Yearly Calendar")};
    const QStringList calLabels = {QStringLiteral("1"), QStringLiteral("6"), QStringLiteral("12")};
    for (int i = 0; i < 3; ++i) {
        row->addWidget(ImageButton(ArrayName(QStringLiteral("imgCal"), i),
                                   icons::CalendarPage(calLabels[i]), calTips[i]));
    }
    row->addSpacing(12);
    row->addWidget(ImageButton(ArrayName(QStringLiteral("imgOpt"), 0), icons::AdvanceArrow(),
                               QStringLiteral("Advance Calendar to Selected Date")));
    row->addWidget(ImageButton(ArrayName(QStringLiteral("imgOpt"), 1), icons::NotesPage(),
                               QStringLiteral("Open Notes for Selected Date")));
    row->addWidget(ImageButton(ArrayName(QStringLiteral("imgOpt"), 2), icons::PlannerPage(),
                               QStringLiteral("Open Planner for Selected Date")));
    row->addSpacing(12);
    auto* notes = Picture(QStringLiteral("imgNotes"), icons::NotesPage().pixmap(20, 20),
                          QStringLiteral("Signifies Notes Exists for Hover Date"));
    auto* planner = Picture(QStringLiteral("imgPlanner"), icons::PlannerPage().pixmap(20, 20),
                            QStringLiteral("Signifies a Planner Exists for Hover Date"));
    notes->setEnabled(false);
    planner->setEnabled(false);
    row->addWidget(notes);
    row->addWidget(planner);
    row->addStretch(1);
    return row;
}

QWidget* frmMain::BuildTopPanel() {
    QFrame* top = Panel(QStringLiteral("picTop"));
    auto* rows = new QVBoxLayout(top);
    rows->setContentsMargins(6, 4, 6, 4);
    rows->addLayout(BuildTodayRow());
    rows->addLayout(BuildSelectorRow());
    // Working lists of the month's notes, planners and marker categories, kept out of sight.
    for (const char* name :
         {"lstNotes", "lstPlanner", "lstNotes2", "lstPlanner2", "lstMarkerCats"}) {
        auto* list = Named(new QListWidget(top), QString::fromLatin1(name));
        list->hide();
    }
    return top;
}

QWidget* frmMain::BuildRightPanel() {
    QFrame* right = Panel(QStringLiteral("picRight"));
    right->setFixedWidth(250);
    auto* column = new QVBoxLayout(right);
    column->addWidget(
        Label(QStringLiteral("lblBirthdays"), QStringLiteral("Pending Birthdays: Sorted by Name")));
    column->addWidget(SmallList(QStringLiteral("lstBirthdays")), 1);
    column->addWidget(Label(QStringLiteral("lblBirthdayDate"), QStringLiteral("Date =")));
    column->addSpacing(6);
    column->addWidget(
        Label(QStringLiteral("lblAlerts"), QStringLiteral("Pending Alerts: Sorted by Message")));
    column->addWidget(SmallList(QStringLiteral("lstAlerts")), 1);
    column->addWidget(Label(QStringLiteral("lblAlertDate"), QStringLiteral("Alert Date =")));
    column->addSpacing(6);

    auto* helpRow = new QHBoxLayout;
    helpRow->addWidget(
        Label(QStringLiteral("lblHelpSubject"), QStringLiteral("Help: Select a Topic Below")), 1);
    auto* imgHelp = ImageButton(QStringLiteral("imgHelp"), icons::Help(),
                                QStringLiteral("Click for Enlarged Version of Help"));
    imgHelp->setIconSize(QSize(20, 20));
    helpRow->addWidget(imgHelp);
    column->addLayout(helpRow);
    column->addWidget(Named(new QComboBox, QStringLiteral("cmbHelp")));
    auto* txtHelp = Named(new QPlainTextEdit, QStringLiteral("txtHelp"));
    txtHelp->setReadOnly(true);
    txtHelp->setMinimumHeight(60);
    column->addWidget(txtHelp, 2);
    return right;
}

QWidget* frmMain::BuildBottomPanel() {
    QFrame* bottom = Panel(QStringLiteral("picBottom"));
    // The bottom panel gives way first on a small screen.
    bottom->setMinimumHeight(110);
    bottom->setMaximumHeight(190);
    auto* row = new QHBoxLayout(bottom);
    framTasks_ =
        Named(new QGroupBox(QStringLiteral("Tasks for January")), QStringLiteral("framTasks"));
    auto* tasksLayout = new QVBoxLayout(framTasks_);
    tasksLayout->addWidget(Named(new QListWidget, QStringLiteral("lstTasks"),
                                 QStringLiteral("Click to Open Notes or Planner")));
    row->addWidget(framTasks_, 1);

    auto* toDo =
        Named(new QGroupBox(QStringLiteral("To Do List - Edit To Do List under \"Manage\"")),
              QStringLiteral("framToDo"));
    auto* items = new QGridLayout(toDo);
    items->setVerticalSpacing(1);
    for (int i = 0; i < kToDoItems; ++i) {
        const int gridRow = i % 5, gridColumn = (i / 5) * 2;
        QLabel* box =
            Picture(ArrayName(QStringLiteral("imgChkBox"), i), icons::CheckBox(false), {});
        items->addWidget(box, gridRow, gridColumn);
        items->addWidget(Label(ArrayName(QStringLiteral("lblToDo"), i), QString()), gridRow,
                         gridColumn + 1);
    }
    items->setColumnStretch(1, 1);
    items->setColumnStretch(3, 1);
    row->addWidget(toDo, 1);
    return bottom;
}

// The strip under the bottom panel (the second of the two bottom panels).
QWidget* frmMain::BuildBottomStrip() {
    QFrame* strip = Panel(QStringLiteral("picBottomStrip"));
    auto* row = new QHBoxLayout(strip);
    row->setContentsMargins(6, 2, 6, 2);
    txtDate_ = Named(new QLineEdit, QStringLiteral("txtDate"),
                     QStringLiteral("The selected date: type another and press Enter"));
    txtDate_->setMaximumWidth(130);
    row->addWidget(txtDate_);
    lblDate_ = Label(QStringLiteral("lblDate"), QStringLiteral("Month: September"));
    row->addWidget(lblDate_);
    row->addSpacing(20);
    row->addWidget(Label(QStringLiteral("lblHoliday"), QStringLiteral("Holiday = None Chosen")));
    row->addStretch(1);
    row->addWidget(Label(QStringLiteral("lblCurPos"), QStringLiteral("Text Position =")));
    return strip;
}
