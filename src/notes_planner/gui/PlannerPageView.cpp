#include "notes_planner/gui/PlannerPageView.h"

#include <QEvent>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include "notes_planner/PlannerFigures.h"
#include "shell/DateFormats.h"
#include "shell/gui/Controls.h"
#include "shell/gui/Icons.h"
#include "shell/gui/Printing.h"

namespace {

const QString kTimeTip =
    QStringLiteral("Click here to change the time. Righ click to make bold or normal.");
const QString kTimeHint = QStringLiteral("Right Click to change... Click to make Bold.");
const QString kCheckTip = QStringLiteral("Mark as Done or Not Done");

constexpr int kTimeWidth = 76;
constexpr int kAppointmentWidth = 400;
constexpr int kToDoWidth = 300;
constexpr int kDescriptionWidth = 220;
constexpr int kFigureWidth = 84;
constexpr int kDestinationWidth = 360;

bool IsFigure(int slot) {
    return (slot >= kFirstAmountSlot && slot < kTotalExpendituresSlot) ||
           (slot >= kFirstBeginSlot && slot < kTotalMileageSlot);
}

bool IsTotal(int slot) {
    return slot == kTotalExpendituresSlot || slot == kTotalMileageSlot;
}

QLabel* Caption(const QString& text) {
    return new QLabel(text);
}

}  // namespace

PlannerPageView::PlannerPageView(QWidget* parent) : QWidget(parent) {
    LoadTheObjects();
}

void PlannerPageView::LoadTheObjects() {
    setFont(PrintFont(QStringLiteral("Arial"), 10));
    lblMain_ = new QLabel;
    lblMain_->setObjectName(QStringLiteral("lblMain"));
    lblMain_->setFont(PrintFont(QStringLiteral("Arial"), 14, true));

    // Built in the order Tab and Enter go down the page.
    QWidget* appointments = BuildAppointments();
    auto* right = new QVBoxLayout;
    right->addWidget(BuildToDoList());
    right->addWidget(BuildExpenses());
    right->addStretch();
    auto* columns = new QHBoxLayout;
    columns->addWidget(appointments, 0, Qt::AlignTop);
    columns->addLayout(right);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lblMain_);
    layout->addLayout(columns);
    layout->addWidget(BuildMileage(), 0, Qt::AlignLeft);
    layout->addStretch();
    BuildTimeChangeBox();
    for (int i = 1; i < tabOrder_.size(); ++i)
        setTabOrder(tabOrder_[i - 1], tabOrder_[i]);
    SetPage(NewPlannerPage());
}

QLabel* PlannerPageView::Heading(int index, const QString& caption) {
    auto* label = new QLabel(caption);
    label->setObjectName(ArrayName(QStringLiteral("lbl"), index));
    label->setFont(PrintFont(QStringLiteral("Arial"), 11, true));
    lbl_.append(label);
    return label;
}

QLineEdit* PlannerPageView::MakeBox(int slot, int width) {
    auto* box = new QLineEdit;
    box->setObjectName(ArrayName(QStringLiteral("txt"), slot));
    box->setProperty("tag", SlotTag(slot));
    box->setFixedWidth(width);
    box->installEventFilter(this);
    txt_[slot] = box;
    if (IsTotal(slot)) {
        box->setReadOnly(true);
        box->setFocusPolicy(Qt::ClickFocus);
        return box;
    }
    tabOrder_.append(box);
    connect(box, &QLineEdit::textEdited, this, [this, slot] {
        if (IsFigure(slot))
            AddTheFigures();
        emit changed();
    });
    connect(box, &QLineEdit::returnPressed, this, [this, box] { MoveToNextBox(box); });
    connect(box, &QLineEdit::cursorPositionChanged, this,
            [this](int, int position) { emit caretMoved(position); });
    return box;
}

QWidget* PlannerPageView::BuildAppointments() {
    auto* section = new QWidget;
    auto* grid = new QGridLayout(section);
    grid->setVerticalSpacing(2);
    grid->addWidget(Heading(0, QStringLiteral("Appointments - Events - Meetings")), 0, 0, 1, 2);
    for (int line = 0; line < kAppointmentLines; ++line) {
        auto* label = new QLabel;
        label->setObjectName(ArrayName(QStringLiteral("lblTime"), line));
        label->setFixedWidth(kTimeWidth);
        label->setToolTip(kTimeTip);
        label->setStatusTip(kTimeHint);
        label->setCursor(Qt::PointingHandCursor);
        label->installEventFilter(this);
        lblTime_[line] = label;
        grid->addWidget(label, line + 1, 0);
        grid->addWidget(MakeBox(line, kAppointmentWidth), line + 1, 1);
    }
    return section;
}

QWidget* PlannerPageView::BuildToDoList() {
    auto* section = new QWidget;
    auto* grid = new QGridLayout(section);
    grid->setVerticalSpacing(2);
    grid->addWidget(Heading(1, QStringLiteral("To Do List")), 0, 0, 1, 2);
    for (int item = 0; item < kPlannerToDoItems; ++item) {
        auto* check = new QToolButton;
        check->setObjectName(ArrayName(QStringLiteral("imgChkBox"), item));
        check->setToolTip(kCheckTip);
        check->setAccessibleName(kCheckTip);
        check->setAutoRaise(true);
        connect(check, &QToolButton::clicked, this, [this, item] {
            SetDone(item, !done_[item]);
            emit changed();
        });
        imgChkBox_[item] = check;
        grid->addWidget(check, item + 1, 0);
        // Tab goes from item to item; Ctrl+Space in an item marks it done or not done.
        check->setFocusPolicy(Qt::ClickFocus);
        grid->addWidget(MakeBox(kFirstToDoSlot + item, kToDoWidth), item + 1, 1);
    }
    return section;
}

QWidget* PlannerPageView::BuildExpenses() {
    auto* section = new QWidget;
    auto* grid = new QGridLayout(section);
    grid->setVerticalSpacing(2);
    grid->addWidget(Heading(2, QStringLiteral("Expenditures")), 0, 0);
    grid->addWidget(Heading(3, QStringLiteral("Amount")), 0, 2);
    for (int k = 0; k < kExpenseLines; ++k) {
        grid->addWidget(MakeBox(kFirstExpenseSlot + k, kDescriptionWidth), k + 1, 0);
        grid->addWidget(Caption(QStringLiteral("$")), k + 1, 1);
        grid->addWidget(MakeBox(kFirstAmountSlot + k, kFigureWidth), k + 1, 2);
    }
    grid->addWidget(Caption(QStringLiteral("Total Expenditures")), kExpenseLines + 1, 0,
                    Qt::AlignRight);
    grid->addWidget(Caption(QStringLiteral("$")), kExpenseLines + 1, 1);
    grid->addWidget(MakeBox(kTotalExpendituresSlot, kFigureWidth), kExpenseLines + 1, 2);
    return section;
}

QWidget* PlannerPageView::BuildMileage() {
    auto* section = new QWidget;
    auto* grid = new QGridLayout(section);
    grid->setVerticalSpacing(2);
    grid->addWidget(Heading(4, QStringLiteral("Mileage Records")), 0, 0);
    const QStringList columns = {QStringLiteral("Destination"), QStringLiteral("Begin"),
                                 QStringLiteral("End"), QStringLiteral("Miles")};
    for (int column = 0; column < columns.size(); ++column)
        grid->addWidget(Caption(columns[column]), 1, column);
    for (int m = 0; m < kMileageLines; ++m) {
        grid->addWidget(MakeBox(kFirstDestinationSlot + m, kDestinationWidth), m + 2, 0);
        grid->addWidget(MakeBox(kFirstBeginSlot + m, kFigureWidth), m + 2, 1);
        grid->addWidget(MakeBox(kFirstEndSlot + m, kFigureWidth), m + 2, 2);
        grid->addWidget(MakeBox(kFirstMilesSlot + m, kFigureWidth), m + 2, 3);
    }
    grid->addWidget(Caption(QStringLiteral("Total Mileage")), kMileageLines + 2, 2, Qt::AlignRight);
    grid->addWidget(MakeBox(kTotalMileageSlot, kFigureWidth), kMileageLines + 2, 3);
    return section;
}

void PlannerPageView::BuildTimeChangeBox() {
    timeBox_ = new QFrame(this);
    timeBox_->setFrameShape(QFrame::Box);
    timeBox_->setAutoFillBackground(true);
    txtTime_ = new QLineEdit;
    txtTime_->setObjectName(QStringLiteral("txtTime"));
    txtTime_->setFixedWidth(kTimeWidth + 10);
    txtTime_->installEventFilter(this);
    cmdOK_ = new QPushButton(QStringLiteral("OK"));
    cmdOK_->setObjectName(QStringLiteral("cmdOK"));
    auto* layout = new QHBoxLayout(timeBox_);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->addWidget(txtTime_);
    layout->addWidget(cmdOK_);
    timeBox_->hide();
    const auto ok = [this] { emit timeEntered(timeLine_, txtTime_->text()); };
    connect(cmdOK_, &QPushButton::clicked, this, ok);
    connect(txtTime_, &QLineEdit::returnPressed, this, ok);
}

void PlannerPageView::ShowTimeChangeBox(int line) {
    timeLine_ = line;
    txtTime_->setText(times_[line]);
    txtTime_->selectAll();
    timeBox_->adjustSize();
    timeBox_->move(lblTime_[line]->mapTo(this, QPoint(0, 0)) - QPoint(0, 2));
    timeBox_->show();
    timeBox_->raise();
    txtTime_->setFocus();
}

void PlannerPageView::HideTimeChangeBox() {
    timeBox_->hide();
    if (timeLine_ >= 0)
        txt_[timeLine_]->setFocus();
    timeLine_ = -1;
}

PlannerPage PlannerPageView::Page() const {
    PlannerPage page;
    for (int slot = 0; slot < kPlannerSlots; ++slot)
        page.slotTexts[slot] = txt_[slot]->text();
    page.times = times_;
    page.bold = bold_;
    page.done = done_;
    return page;
}

void PlannerPageView::SetPage(const PlannerPage& page) {
    for (int slot = 0; slot < kPlannerSlots; ++slot) {
        txt_[slot]->setText(page.slotTexts[slot]);
        txt_[slot]->setCursorPosition(0);
    }
    for (int line = 0; line < kAppointmentLines; ++line) {
        times_[line] = page.times[line];
        bold_[line] = page.bold[line];
        ShowTimeLabel(line);
    }
    for (int item = 0; item < kPlannerToDoItems; ++item)
        SetDone(item, page.done[item]);
    HideTimeChangeBox();
}

void PlannerPageView::SetDateCaption(const QString& caption) {
    lblMain_->setText(caption);
}

int PlannerPageView::SlotOf(const QObject* box) const {
    for (int slot = 0; slot < kPlannerSlots; ++slot)
        if (txt_[slot] == box)
            return slot;
    return -1;
}

void PlannerPageView::SetTime(int line, const QString& time) {
    times_[line] = time;
    ShowTimeLabel(line);
}

void PlannerPageView::SetBold(int line, bool bold) {
    bold_[line] = bold;
    ShowTimeLabel(line);
}

void PlannerPageView::ShowTimeLabel(int line) {
    QLabel* label = lblTime_[line];
    label->setText(times_[line]);
    QFont font = label->font();
    font.setBold(bold_[line]);
    label->setFont(font);
    txt_[line]->setFont(font);
    // A line without a time continues the line above it.
    txt_[line]->setProperty(
        "tag", SlotTag(line, times_[line].isEmpty() ? LineKind::Push : LineKind::Stop));
}

void PlannerPageView::SetDone(int item, bool done) {
    done_[item] = done;
    imgChkBox_[item]->setIcon(QIcon(icons::CheckBox(done)));
    imgChkBox_[item]->setAccessibleDescription(done ? QStringLiteral("Done")
                                                    : QStringLiteral("Not Done"));
}

void PlannerPageView::AddTheFigures() {
    PlannerPage page = Page();
    AddTheAmounts(page);
    AddTheMiles(page);
    for (int slot : {kFirstMilesSlot, kFirstMilesSlot + 1, kFirstMilesSlot + 2, kFirstMilesSlot + 3,
                     kFirstMilesSlot + 4, kTotalExpendituresSlot, kTotalMileageSlot})
        if (txt_[slot]->text() != page.slotTexts[slot] && !txt_[slot]->hasFocus())
            txt_[slot]->setText(page.slotTexts[slot]);
}

void PlannerPageView::MoveToNextBox(QLineEdit* box) {
    const qsizetype at = tabOrder_.indexOf(box);
    if (at >= 0 && at + 1 < tabOrder_.size())
        tabOrder_[at + 1]->setFocus(Qt::TabFocusReason);
}

bool PlannerPageView::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (watched == txtTime_ && (type == QEvent::ShortcutOverride || type == QEvent::KeyPress) &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        // Esc gives up the time change, and only that: the window stays open.
        event->accept();
        if (type == QEvent::KeyPress)
            HideTimeChangeBox();
        return true;
    }
    for (int line = 0; line < kAppointmentLines; ++line) {
        if (watched != lblTime_[line])
            continue;
        // The label takes the whole click, so that the focus stays where the user typed.
        if (type == QEvent::MouseButtonRelease || type == QEvent::MouseButtonDblClick)
            return true;
        if (type != QEvent::MouseButtonPress)
            break;
        if (static_cast<QMouseEvent*>(event)->button() == Qt::RightButton) {
            SetBold(line, !bold_[line]);
            emit changed();
        } else {
            ShowTimeChangeBox(line);
        }
        return true;
    }
    if (const int slot = SlotOf(watched); slot >= 0) {
        if (type == QEvent::FocusIn && slot < kAppointmentLines)
            currentLine_ = slot;
        const int item = slot - kFirstToDoSlot;
        if (type == QEvent::KeyPress && item >= 0 && item < kPlannerToDoItems) {
            const auto* key = static_cast<QKeyEvent*>(event);
            if (key->key() == Qt::Key_Space && key->modifiers() == Qt::ControlModifier) {
                imgChkBox_[item]->click();
                return true;
            }
        }
        if (type == QEvent::FocusOut)
            emit boxLeft(slot);
    }
    return QWidget::eventFilter(watched, event);
}
