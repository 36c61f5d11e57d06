#include "notes_planner/gui/frmNoteList.h"

#include <QApplication>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>

#include "calendar/DateModel.h"
#include "notes_planner/DatedFile.h"
#include "notes_planner/gui/NotesPlannerMenus.h"
#include "notes_planner/gui/NotesPlannerMessages.h"
#include "notes_planner/modNotes.h"
#include "notes_planner/modPlanner.h"
#include "shell/DateFormats.h"
#include "shell/Services.h"
#include "shell/gui/DateDropDown.h"
#include "shell/gui/frmMain.h"

namespace {

// What tells the two panels apart.
struct PanelTexts {
    QString title;
    QString open;
    QString deleteSelected;
    QString deleteAll;
    const QString& fileName;
};

const PanelTexts& TextsOf(int panel) {
    static const PanelTexts notes{QStringLiteral("Notes Listed by Date Below"),
                                  QStringLiteral("Open Selected Note"),
                                  QStringLiteral("Delete Selected Notes"),
                                  QStringLiteral("Delete All Notes in List"), kNotesFile};
    static const PanelTexts planners{QStringLiteral("Planners Listed by Date Below"),
                                     QStringLiteral("Open Selected Planner"),
                                     QStringLiteral("Delete Selected Planner"),
                                     QStringLiteral("Delete All Planners in List"), kPlannerFile};
    return panel == frmNoteList::kNotesPanel ? notes : planners;
}

QPushButton* Button(const QString& caption, const QString& array, int panel) {
    auto* button = new QPushButton(caption);
    button->setObjectName(ArrayName(array, panel));
    return button;
}

QList<QDate> DatesOf(const QList<QListWidgetItem*>& items) {
    QList<QDate> dates;
    for (const QListWidgetItem* item : items)
        dates.append(item->data(Qt::UserRole).toDate());
    std::sort(dates.begin(), dates.end());
    return dates;
}

}  // namespace

frmNoteList::frmNoteList(NotesPlannerContext& context, NotesPlannerMenus& menus)
    : ChildWindow(context.services, QString::fromLatin1(kName),
                  QStringLiteral("Notes and Planner Management")),
      context_(context),
      menus_(menus) {
    auto* layout = new QHBoxLayout(Body());
    for (const int panel : {kNotesPanel, kPlannersPanel}) {
        panels_.append(BuildPanel(panel));
        layout->addWidget(panels_.last());
    }
    BuildMenus();
    for (const int panel : {kNotesPanel, kPlannersPanel})
        ConnectPanel(panel);
    SetTabOrder();
    // The File menu's items act on the panel that last had the keyboard.
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        for (int panel = 0; panel < panels_.size(); ++panel)
            if (now && panels_[panel]->isAncestorOf(now))
                lastPanel_ = panel;
    });
    setFocusProxy(List(kNotesPanel));
    LoadComboBoxes();
    PopulateListBoxes(kNotesPanel);
    PopulateListBoxes(kPlannersPanel);
}

QGroupBox* frmNoteList::BuildPanel(int panel) {
    const PanelTexts& texts = TextsOf(panel);
    auto* box = new QGroupBox(texts.title);
    auto* year = new QComboBox;
    year->setObjectName(ArrayName(QStringLiteral("cmbYear"), panel));
    auto* month = new QComboBox;
    month->setObjectName(ArrayName(QStringLiteral("cmbMonth"), panel));
    SelectAsTyped(year);
    SelectAsTyped(month);
    auto* list = new QListWidget;
    list->setObjectName(ArrayName(QStringLiteral("lst"), panel));
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list->setMinimumSize(240, 100);

    auto* choices = new QGridLayout;
    choices->addWidget(new QLabel(QStringLiteral("Change Year Below")), 0, 0);
    choices->addWidget(new QLabel(QStringLiteral("Change Month Below")), 0, 1);
    choices->addWidget(year, 1, 0);
    choices->addWidget(month, 1, 1);
    auto* column = new QVBoxLayout(box);
    column->addLayout(choices);
    column->addWidget(Button(QStringLiteral("Check Now"), QStringLiteral("cmdLoad"), panel));
    column->addWidget(list, 1);
    column->addWidget(Button(texts.open, QStringLiteral("cmdOpen"), panel));
    column->addWidget(Button(texts.deleteSelected, QStringLiteral("cmdDelete"), panel));
    column->addWidget(Button(texts.deleteAll, QStringLiteral("cmdDeleteAll"), panel));
    return box;
}

void frmNoteList::BuildMenus() {
    QMenu* file = AddMenu(MenuBar(), QStringLiteral("&File"), QStringLiteral("mnuFile"));
    AddCommand(
        file, QStringLiteral("&Open"), QStringLiteral("mnuFileOpen"), "mnuFileOpen_Click",
        [this] { mnuFileOpen_Click(); }, QKeySequence::Open);
    AddCommand(file, QStringLiteral("&Delete"), QStringLiteral("mnuFileDelete"),
               "mnuFileDelete_Click", [this] { mnuFileDelete_Click(); }, {});
    QMenu* edit = AddMenu(MenuBar(), QStringLiteral("&Edit"), QStringLiteral("mnuEdit"));
    AddCommand(
        edit, QStringLiteral("&Find"), QStringLiteral("mnuEditFind"), "mnuEditFind_Click",
        [this] { mnuEditFind_Click(); }, QKeySequence::Find);
}

void frmNoteList::ConnectPanel(int panel) {
    const auto button = [&](const char* array) {
        return Control<QPushButton>(QString::fromLatin1(array), panel);
    };
    On(button("cmdLoad"), &QPushButton::clicked, "cmdLoad_Click",
       [this, panel] { PopulateListBoxes(panel); });
    On(button("cmdOpen"), &QPushButton::clicked, "cmdOpen_Click",
       [this, panel] { cmdOpen_Click(panel); });
    On(button("cmdDelete"), &QPushButton::clicked, "cmdDelete_Click",
       [this, panel] { cmdDelete_Click(panel); });
    On(button("cmdDeleteAll"), &QPushButton::clicked, "cmdDeleteAll_Click",
       [this, panel] { cmdDeleteAll_Click(panel); });
    // Enter (or a double click) on a date opens it; Delete deletes the dates selected.
    // The date the keyboard is on counts as selected, even when the arrows have not selected it.
    connect(List(panel), &QListWidget::itemActivated, this, [this, panel](QListWidgetItem* item) {
        services_.Trap("lst_DblClick", [&] {
            item->setSelected(true);
            cmdOpen_Click(panel);
        });
    });
    auto* deleteKey = new QShortcut(QKeySequence::Delete, List(panel));
    deleteKey->setContext(Qt::WidgetShortcut);
    On(deleteKey, &QShortcut::activated, "lst_KeyDown", [this, panel] { cmdDelete_Click(panel); });
}

void frmNoteList::SetTabOrder() {
    static const char* const kOrder[] = {"cmbYear", "cmbMonth",  "cmdLoad",     "lst",
                                         "cmdOpen", "cmdDelete", "cmdDeleteAll"};
    QWidget* previous = nullptr;
    for (const int panel : {kNotesPanel, kPlannersPanel}) {
        for (const char* name : kOrder) {
            auto* next = Control<QWidget>(QString::fromLatin1(name), panel);
            if (previous)
                setTabOrder(previous, next);
            previous = next;
        }
    }
}

QListWidget* frmNoteList::List(int panel) const {
    return Control<QListWidget>(QStringLiteral("lst"), panel);
}

void frmNoteList::LoadComboBoxes() {
    const DateModel& dates = context_.dates;
    QList<int> years = YearsWithFolders(services_.AppFolder);
    years << dates.YearOf(Year::This) << dates.YearOf(Year::Next);
    std::sort(years.begin(), years.end());
    years.erase(std::unique(years.begin(), years.end()), years.end());
    for (const int panel : {kNotesPanel, kPlannersPanel}) {
        auto* year = Control<QComboBox>(QStringLiteral("cmbYear"), panel);
        year->clear();
        for (const int number : years)
            year->addItem(YearFolderName(number), number);
        year->setCurrentIndex(year->findData(dates.SelectedDate.year()));
        auto* month = Control<QComboBox>(QStringLiteral("cmbMonth"), panel);
        month->clear();
        month->addItem(QStringLiteral("All Months"), 0);
        for (int number = 1; number <= 12; ++number)
            month->addItem(datefmt::MonthName(number), number);
    }
}

void frmNoteList::PopulateListBoxes(int panel) {
    lastPanel_ = panel;
    const int year = Control<QComboBox>(QStringLiteral("cmbYear"), panel)->currentData().toInt();
    const int month = Control<QComboBox>(QStringLiteral("cmbMonth"), panel)->currentData().toInt();
    QListWidget* list = List(panel);
    list->clear();
    for (const QDate& date :
         DatesInFile(services_.AppFolder, year, TextsOf(panel).fileName, month)) {
        auto* item = new QListWidgetItem(datefmt::LongDate(date), list);
        item->setData(Qt::UserRole, date);
    }
}

QList<QDate> frmNoteList::SelectedDates(int panel) const {
    return DatesOf(List(panel)->selectedItems());
}

void frmNoteList::cmdOpen_Click(int panel) {
    lastPanel_ = panel;
    const QList<QDate> selected = SelectedDates(panel);
    if (selected.isEmpty()) {
        services_.dialogs.MsgBox(kNothingSelectedMessage);
        return;
    }
    menus_.OpenFound(selected.first(), panel == kPlannersPanel);
}

void frmNoteList::cmdDelete_Click(int panel) {
    lastPanel_ = panel;
    const QList<QDate> selected = SelectedDates(panel);
    if (selected.isEmpty()) {
        services_.dialogs.MsgBox(kNothingSelectedMessage);
        return;
    }
    DeleteDates(panel, selected);
}

void frmNoteList::cmdDeleteAll_Click(int panel) {
    lastPanel_ = panel;
    QListWidget* list = List(panel);
    if (list->count() == 0)
        return;
    if (services_.dialogs.MsgBox(kDeleteAllQuestion, kQuestionStyle, kDeleteAllTitle) != vb::Yes)
        return;
    QList<QListWidgetItem*> items;
    for (int row = 0; row < list->count(); ++row)
        items.append(list->item(row));
    DeleteDates(panel, DatesOf(items));
}

void frmNoteList::DeleteDates(int panel, const QList<QDate>& dates) {
    // A list holds the dates of one year. A notes or planner window open on a deleted date is
    // left as it is: its text stays in the editor, and saving it writes it back.
    const int year = dates.first().year();
    if (panel == kNotesPanel)
        context_.notes.DeleteNotes(year, dates);
    else
        context_.planner.DeletePlanners(year, dates);
    PopulateListBoxes(panel);
}

void frmNoteList::mnuEditFind_Click() {
    context_.frame.MenuItem(QStringLiteral("mnuEditFind"))->trigger();
}
