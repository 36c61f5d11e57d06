#include "reports/gui/frmSelectMonth.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "reports/ReportMessages.h"
#include "shell/DateFormats.h"
#include "shell/gui/DateDropDown.h"

frmSelectMonth::frmSelectMonth(Services& services, const QList<int>& years, const QDate& shown,
                               std::function<void(const ReportPeriod&)> run,
                               std::function<void()> selectStartEnd)
    : ChildWindow(services, QString::fromLatin1(kName), kSelectMonthCaption),
      run_(std::move(run)),
      selectStartEnd_(std::move(selectStartEnd)),
      cmbMonth_(new QComboBox),
      cmbYear_(new QComboBox) {
    cmbMonth_->setObjectName(QStringLiteral("cmbMonth"));
    cmbYear_->setObjectName(QStringLiteral("cmbYear"));
    SelectAsTyped(cmbMonth_);
    SelectAsTyped(cmbYear_);
    auto* frame = new QGroupBox(QStringLiteral("Select a Date Period Below"));
    frame->setObjectName(QStringLiteral("framMonthByMonth"));
    auto* grid = new QGridLayout(frame);
    auto* monthLabel = new QLabel(QStringLiteral("Select Month"));
    monthLabel->setBuddy(cmbMonth_);
    auto* yearLabel = new QLabel(QStringLiteral("Select Year"));
    yearLabel->setBuddy(cmbYear_);
    grid->addWidget(monthLabel, 0, 0);
    grid->addWidget(yearLabel, 0, 1);
    grid->addWidget(cmbMonth_, 1, 0);
    grid->addWidget(cmbYear_, 1, 1);

    auto* cmdReport = new QPushButton(QStringLiteral("Generate Report Now"));
    cmdReport->setObjectName(QStringLiteral("cmdReport"));
    cmdReport->setDefault(true);
    auto* cmdSelectStartEnd = new QPushButton(QStringLiteral("Select Start/End Date"));
    cmdSelectStartEnd->setObjectName(QStringLiteral("cmdSelectStartEnd"));
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdReport);
    buttons->addWidget(cmdSelectStartEnd);
    auto* layout = new QVBoxLayout(Body());
    layout->addWidget(frame);
    layout->addLayout(buttons);
    layout->addStretch();

    LoadComboBoxes(years, shown);
    On(cmdReport, &QPushButton::clicked, "cmdReport_Click", [this] { cmdReport_Click(); });
    On(cmdSelectStartEnd, &QPushButton::clicked, "cmdSelectStartEnd_Click",
       [this] { cmdSelectStartEnd_Click(); });
    OnEnter("cmdReport_Click", [this] { cmdReport_Click(); });
    setFocusProxy(cmbMonth_);
}

void frmSelectMonth::LoadComboBoxes(const QList<int>& years, const QDate& shown) {
    cmbMonth_->addItem(kAllMonths);
    for (int month = 1; month <= 12; ++month)
        cmbMonth_->addItem(datefmt::MonthName(month));
    cmbMonth_->setCurrentIndex(shown.month());
    for (const int year : years)
        cmbYear_->addItem(QString::number(year));
    cmbYear_->setCurrentIndex(int(years.indexOf(shown.year())));
}

void frmSelectMonth::cmdReport_Click() {
    const ReportPeriod period =
        MonthPeriod(cmbMonth_->currentIndex(), cmbYear_->currentText().toInt());
    run_(period);
    CloseWindow();
}

void frmSelectMonth::cmdSelectStartEnd_Click() {
    selectStartEnd_();
    CloseWindow();
}
