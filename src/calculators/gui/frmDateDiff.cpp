#include "calculators/gui/frmDateDiff.h"

#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <QComboBox>
#include "calculators/CalculatorMessages.h"
#include "calculators/DateDiff.h"
#include "shell/DateFormats.h"
#include "shell/NumberFormat.h"
#include "shell/gui/DateSidePicker.h"

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

}  // namespace

frmDateDiff::frmDateDiff(Services& services, const QDate& start, const QDate& end)
    : ChildWindow(services, QString::fromLatin1(kName), kDateDiffCaption) {
    const int thisYear = services.clock.today().year();
    QList<int> years;
    for (int year = thisYear - kYearsEitherSide; year <= thisYear + kYearsEitherSide; ++year)
        years.append(year);
    sides_ = {new DateSidePicker(kStart, QStringLiteral("Choose a Beginning Date"),
                                 QStringLiteral("Start Date Below"), years, false),
              new DateSidePicker(kEnd, QStringLiteral("Choose the Ending Date"),
                                 QStringLiteral("End Date Below"), years, false)};
    auto* sides = new QHBoxLayout;
    for (DateSidePicker* side : sides_) {
        sides->addWidget(side);
        // A date typed is shown as the lists would show it once it is taken.
        On(side, &DateSidePicker::typedDateTaken, "txtInput_LostFocus",
           [this, side] { txtInput_LostFocus(int(sides_.indexOf(side))); });
    }

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

    for (const int side : {kStart, kEnd}) {
        sides_[side]->input()->setText(datefmt::MmmDdYyyy(side == kStart ? start : end));
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
        for (int side : {kStart, kEnd})
            if (sides_[side]->input() == focusWidget())
                txtInput_LostFocus(side);
        cmdDateDiff_Click();
    });
    setFocusProxy(sides_[kStart]->monthList());
}

QDate frmDateDiff::SideDate(int side) const {
    return sides_[side]->TypedDate();
}

void frmDateDiff::txtInput_LostFocus(int side) {
    const QDate date = sides_[side]->TakeTypedDate();
    if (date.isValid())
        sides_[side]->input()->setText(datefmt::MmmDdYyyy(date));
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
