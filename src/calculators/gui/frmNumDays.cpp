#include "calculators/gui/frmNumDays.h"

#include <QApplication>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "calculators/CalculatorMessages.h"
#include "calculators/DateDiff.h"
#include "shell/DateFormats.h"
#include "shell/DateInput.h"
#include "shell/gui/FocusLoss.h"

namespace {

constexpr const char* kDayNames[] = {"Sundays",   "Mondays", "Tuesdays", "Wednesdays",
                                     "Thursdays", "Fridays", "Saturdays"};

QLineEdit* DateBox(const QString& name) {
    auto* box = new QLineEdit;
    box->setObjectName(name);
    box->setToolTip(QStringLiteral("Type a date, such as 3/15/2026 or Mar 15, 2026"));
    return box;
}

}  // namespace

frmNumDays::frmNumDays(Services& services, const QDate& start, const QDate& end)
    : ChildWindow(services, QString::fromLatin1(kName), kNumDaysCaption) {
    txtStart_ = DateBox(QStringLiteral("txtStart"));
    txtEnd_ = DateBox(QStringLiteral("txtEnd"));
    auto* dates = new QGridLayout;
    dates->addWidget(new QLabel(QStringLiteral("Start Date")), 0, 0);
    dates->addWidget(txtStart_, 0, 1);
    dates->addWidget(new QLabel(QStringLiteral("End Date")), 1, 0);
    dates->addWidget(txtEnd_, 1, 1);

    auto* framDays = new QGroupBox(QStringLiteral("Select Weekday"));
    framDays->setObjectName(QStringLiteral("framDays"));
    auto* options = new QVBoxLayout(framDays);
    optDay_ = MakeControlArray<QRadioButton>(QStringLiteral("optDay"), 7, [&](int day) {
        auto* option = new QRadioButton(QStringLiteral("# of %1").arg(kDayNames[day]));
        options->addWidget(option);
        On(option, &QRadioButton::clicked, "optDay_Click", [this] { CheckWhichDay(); });
        return option;
    });
    optDay_[0]->setChecked(true);

    auto* cmdGetDays = new QPushButton(QStringLiteral("Show Occurrences"));
    cmdGetDays->setObjectName(QStringLiteral("cmdGetDays"));
    lblOccur_ = new QLabel;
    lblOccur_->setObjectName(QStringLiteral("lblOccur"));
    lstDays_ = new QListWidget;
    lstDays_->setObjectName(QStringLiteral("lstDays"));

    auto* left = new QVBoxLayout;
    left->addLayout(dates);
    left->addWidget(framDays);
    left->addWidget(cmdGetDays);
    left->addStretch();
    auto* right = new QVBoxLayout;
    right->addWidget(lblOccur_);
    right->addWidget(lstDays_, 1);
    auto* layout = new QHBoxLayout(Body());
    layout->addLayout(left);
    layout->addLayout(right, 1);

    txtStart_->setText(datefmt::ShortDate(start));
    txtEnd_->setText(datefmt::ShortDate(end));
    for (QLineEdit* box : {txtStart_, txtEnd_})
        box->installEventFilter(this);
    On(cmdGetDays, &QPushButton::clicked, "cmdGetDays_Click", [this] { cmdGetDays_Click(); });
    OnEnter("txtEnd_KeyDown", [this] {
        if (focusWidget() == txtStart_)
            txtStart_KeyDown();
        else if (focusWidget() == txtEnd_)
            txtEnd_KeyDown();
        else
            cmdGetDays_Click();
    });
    setFocusProxy(txtStart_);
}

QDate frmNumDays::BoxDate(const QLineEdit* box) const {
    return ParseDateInput(box->text(), services_.clock.today().year());
}

bool frmNumDays::CheckDateBox(QLineEdit* box, const QString& refusal) {
    const QDate date = BoxDate(box);
    if (!date.isValid()) {
        services_.dialogs.MsgBox(refusal);
        return false;
    }
    box->setText(datefmt::ShortDate(date));
    return true;
}

bool frmNumDays::txtStart_LostFocus() {
    return CheckDateBox(txtStart_, kInvalidStartDate);
}

bool frmNumDays::txtEnd_LostFocus() {
    return CheckDateBox(txtEnd_, kInvalidEndDate);
}

// Enter in the start box checks it and goes on to the end box.
void frmNumDays::txtStart_KeyDown() {
    if (txtStart_LostFocus())
        txtEnd_->setFocus();
}

// Enter in the end box checks it against the start and, when both are right, counts.
void frmNumDays::txtEnd_KeyDown() {
    if (!txtEnd_LostFocus())
        return;
    const QDate start = BoxDate(txtStart_);
    if (start.isValid() && start > BoxDate(txtEnd_)) {
        services_.dialogs.MsgBox(kStartAfterEnd);
        return;
    }
    cmdGetDays_Click();
}

bool frmNumDays::eventFilter(QObject* watched, QEvent* event) {
    // A box left for a message box of this window's own is not checked again.
    if (IsFocusLoss(event) && QApplication::activeModalWidget() == nullptr) {
        if (watched == txtStart_)
            services_.Trap("txtStart_LostFocus", [this] { txtStart_LostFocus(); });
        else if (watched == txtEnd_)
            services_.Trap("txtEnd_LostFocus", [this] { txtEnd_LostFocus(); });
    }
    return ChildWindow::eventFilter(watched, event);
}

void frmNumDays::CheckWhichDay() {
    for (int day = 0; day < optDay_.size(); ++day)
        if (optDay_[day]->isChecked())
            weekday_ = day + 1;
}

void frmNumDays::cmdGetDays_Click() {
    lstDays_->clear();
    lblOccur_->clear();
    CheckWhichDay();
    const QDate start = BoxDate(txtStart_);
    const QDate end = BoxDate(txtEnd_);
    // Dates the count cannot be made from are refused as a failed count is.
    if (!start.isValid() || !end.isValid()) {
        services_.dialogs.MsgBox(kTooMuchOrInvalidData);
        return;
    }
    const calc::WeekdayWalk walk = calc::WeekdaysBetween(start, end, weekday_);
    QStringList items;
    items.reserve(walk.dates.size());
    for (const QDate& date : walk.dates)
        items.append(datefmt::LongDate(date));
    lstDays_->addItems(items);
    if (walk.stoppedAtLimit) {
        services_.dialogs.MsgBox(kTooManyOccurrences);
        return;
    }
    lblOccur_->setText(optDay_[weekday_ - 1]->text() + QStringLiteral(" found ") +
                       QString::number(walk.dates.size()) + QStringLiteral(" times"));
}
