#include "calculators/gui/frmDateDiff.h"

#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "calculators/CalculatorMessages.h"
#include "calculators/DateDiff.h"
#include "shell/DateFormats.h"
#include "shell/DateInput.h"
#include "shell/NumberFormat.h"

namespace {

// The interval list in its order, with the code each name counts by. "Day of Year" has no
// code of its own: the days of the year passed are the days passed, so it counts days.
struct Interval {
    const char16_t* name;
    const char16_t* code;
};
constexpr Interval kIntervals[] = {
    {u"Years", u"yyyy"}, {u"Day of Year", u"d"}, {u"Quarters", u"q"},
    {u"Months", u"m"},   {u"Weeks", u"w"},       {u"Days", u"d"},
    {u"Hours", u"h"},    {u"Minutes", u"n"},     {u"Seconds", u"s"},
};

// The years the lists offer; a year typed outside them joins its list.
constexpr int kYearsEitherSide = 100;

QComboBox* Combo(const QString& array, int side) {
    auto* box = new QComboBox;
    box->setObjectName(ArrayName(array, side));
    return box;
}

}  // namespace

frmDateDiff::frmDateDiff(Services& services, const QDate& start, const QDate& end)
    : ChildWindow(services, QString::fromLatin1(kName), kDateDiffCaption) {
    auto* sides = new QHBoxLayout;
    sides->addWidget(BuildSide(kStart, QStringLiteral("Choose a Beginning Date"),
                               QStringLiteral("Start Date Below")));
    sides->addWidget(BuildSide(kEnd, QStringLiteral("Choose the Ending Date"),
                               QStringLiteral("End Date Below")));

    lblInterval_ = new QLabel;
    lblInterval_->setObjectName(QStringLiteral("lblInterval"));
    cmbInterval_ = new QComboBox;
    cmbInterval_->setObjectName(QStringLiteral("cmbInterval"));
    auto* cmdHelpInterval = new QPushButton(QStringLiteral("?"));
    cmdHelpInterval->setObjectName(QStringLiteral("cmdHelpInterval"));
    cmdHelpInterval->setToolTip(QStringLiteral("What Each Interval Counts"));
    auto* change = new QLabel(QStringLiteral("Change Interval >"));
    change->setBuddy(cmbInterval_);
    auto* interval = new QHBoxLayout;
    interval->addWidget(lblInterval_, 1);
    interval->addWidget(change);
    interval->addWidget(cmbInterval_);
    interval->addWidget(cmdHelpInterval);

    auto* cmdDateDiff = new QPushButton(QStringLiteral("Calculate Date Difference Now"));
    cmdDateDiff->setObjectName(QStringLiteral("cmdDateDiff"));
    auto* cmdStop = new QPushButton(QStringLiteral("Stop Calculating"));
    cmdStop->setObjectName(QStringLiteral("cmdStop"));
    cmdStop->setToolTip(QStringLiteral("Close the Date Difference Window"));
    txtAnswer_ = new QLineEdit;
    txtAnswer_->setObjectName(QStringLiteral("txtAnswer"));
    txtAnswer_->setReadOnly(true);
    txtAnswer_->setAlignment(Qt::AlignRight);
    auto* answer = new QHBoxLayout;
    answer->addWidget(cmdDateDiff);
    answer->addWidget(txtAnswer_, 1);
    answer->addWidget(cmdStop);

    auto* layout = new QVBoxLayout(Body());
    layout->addLayout(sides);
    layout->addLayout(interval);
    layout->addLayout(answer);
    layout->addStretch();

    const int thisYear = services.clock.today().year();
    for (const int side : {kStart, kEnd}) {
        LoadComboBoxes(side, thisYear - kYearsEitherSide, thisYear + kYearsEitherSide);
        txtInput_[side]->setText(datefmt::MmmDdYyyy(side == kStart ? start : end));
        txtInput_LostFocus(side);
    }
    for (const Interval& each : kIntervals)
        cmbInterval_->addItem(QString::fromUtf16(each.name));
    ChooseInterval(QStringLiteral("Days"), QStringLiteral("d"));

    On(cmbInterval_, &QComboBox::activated, "cmbInterval_Click", [this] { cmbInterval_Click(); });
    On(cmdDateDiff, &QPushButton::clicked, "cmdDateDiff_Click", [this] { cmdDateDiff_Click(); });
    On(cmdHelpInterval, &QPushButton::clicked, "cmdHelpInterval_Click",
       [this] { cmdHelpInterval_Click(); });
    // Stopping the calculator closes it, as Esc does.
    On(cmdStop, &QPushButton::clicked, "cmdStop_Click", [this] { CloseWindow(); });
    OnEnter("txtInput_KeyDown", [this] {
        const int side = int(txtInput_.indexOf(focusWidget()));
        if (side >= 0)
            txtInput_LostFocus(side);
        cmdDateDiff_Click();
    });
    setFocusProxy(cmbMonth_[kStart]);
}

QWidget* frmDateDiff::BuildSide(int side, const QString& choose, const QString& below) {
    cmbMonth_.append(Combo(QStringLiteral("cmbMonth"), side));
    cmbDay_.append(Combo(QStringLiteral("cmbDay"), side));
    cmbYear_.append(Combo(QStringLiteral("cmbYear"), side));
    auto* input = new QLineEdit;
    input->setObjectName(ArrayName(QStringLiteral("txtInput"), side));
    input->setToolTip(QStringLiteral("Type a date, such as Mar 15, 2026 or 3/15/2026"));
    input->installEventFilter(this);
    txtInput_.append(input);

    auto* panel = new QWidget;
    auto* grid = new QGridLayout(panel);
    auto* chooseLabel = new QLabel(choose);
    chooseLabel->setBuddy(cmbMonth_[side]);
    grid->addWidget(chooseLabel, 0, 0, 1, 3);
    grid->addWidget(cmbMonth_[side], 1, 0);
    grid->addWidget(cmbDay_[side], 1, 1);
    grid->addWidget(cmbYear_[side], 1, 2);
    grid->addWidget(new QLabel(below), 2, 0, 1, 3);
    grid->addWidget(input, 3, 0, 1, 3);
    On(cmbMonth_[side], &QComboBox::activated, "cmbMonth_Click",
       [this, side] { ShowSideDate(side); });
    On(cmbDay_[side], &QComboBox::activated, "cmbDay_Click", [this, side] { ShowSideDate(side); });
    On(cmbYear_[side], &QComboBox::activated, "cmbYear_Click",
       [this, side] { ShowSideDate(side); });
    return panel;
}

void frmDateDiff::LoadComboBoxes(int side, int firstYear, int lastYear) {
    for (int month = 1; month <= 12; ++month)
        cmbMonth_[side]->addItem(datefmt::MonthName(month));
    for (int day = 1; day <= 31; ++day)
        cmbDay_[side]->addItem(QString::number(day));
    for (int year = firstYear; year <= lastYear; ++year)
        cmbYear_[side]->addItem(QString::number(year));
}

void frmDateDiff::ShowSideDate(int side) {
    const QString picked = cmbMonth_[side]->currentText() + u' ' + cmbDay_[side]->currentText() +
                           QStringLiteral(", ") + cmbYear_[side]->currentText();
    const QDate date = ParseDateInput(picked, cmbYear_[side]->currentText().toInt());
    // A day the month lacks (30 February) stays as picked, to be refused when calculating.
    txtInput_[side]->setText(date.isValid() ? datefmt::MmmDdYyyy(date) : picked);
}

QDate frmDateDiff::SideDate(int side) const {
    return ParseDateInput(txtInput_[side]->text(), cmbYear_[side]->currentText().toInt());
}

void frmDateDiff::txtInput_LostFocus(int side) {
    const QDate date = SideDate(side);
    if (!date.isValid())
        return;
    cmbMonth_[side]->setCurrentIndex(date.month() - 1);
    cmbDay_[side]->setCurrentIndex(date.day() - 1);
    SelectYear(side, date.year());
    txtInput_[side]->setText(datefmt::MmmDdYyyy(date));
}

void frmDateDiff::SelectYear(int side, int year) {
    QComboBox* box = cmbYear_[side];
    const QString text = QString::number(year);
    int index = box->findText(text);
    if (index < 0) {
        // A year typed that the list lacks joins it, in order.
        index = 0;
        while (index < box->count() && box->itemText(index).toInt() < year)
            ++index;
        box->insertItem(index, text);
    }
    box->setCurrentIndex(index);
}

bool frmDateDiff::eventFilter(QObject* watched, QEvent* event) {
    const int side = int(txtInput_.indexOf(watched));
    if (side >= 0 && event->type() == QEvent::FocusOut)
        services_.Trap("txtInput_LostFocus", [this, side] { txtInput_LostFocus(side); });
    return ChildWindow::eventFilter(watched, event);
}

void frmDateDiff::ChooseInterval(const QString& name, const QString& code) {
    code_ = code;
    lblInterval_->setText(kCurrentInterval + name);
    cmbInterval_->setCurrentIndex(cmbInterval_->findText(name));
    txtAnswer_->clear();
}

void frmDateDiff::cmbInterval_Click() {
    const int index = cmbInterval_->currentIndex();
    if (index < 0)
        return;
    const Interval& chosen = kIntervals[index];
    ChooseInterval(QString::fromUtf16(chosen.name), QString::fromUtf16(chosen.code));
}

void frmDateDiff::cmdDateDiff_Click() {
    const QDate start = SideDate(kStart);
    if (!start.isValid()) {
        services_.dialogs.MsgBox(kStartDateInvalid);
        return;
    }
    const QDate end = SideDate(kEnd);
    if (!end.isValid()) {
        services_.dialogs.MsgBox(kEndDateInvalid);
        return;
    }
    // The lists show the dates counted.
    for (const int side : {kStart, kEnd})
        txtInput_LostFocus(side);
    const qint64 difference =
        calc::DateDiff(code_, start.startOfDay(Qt::UTC), end.startOfDay(Qt::UTC));
    txtAnswer_->setText(FormatThousands(double(difference), 0));
}

void frmDateDiff::cmdHelpInterval_Click() {
    services_.dialogs.MsgBox(kIntervalHelp, kInformationStyle, kIntervalHelpTitle);
}
