#include "reports/gui/frmSelectStartEnd.h"

#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "reports/ReportMessages.h"
#include "shell/DateFormats.h"
#include "shell/DateInput.h"

namespace {

QComboBox* Combo(const QString& array, int side) {
    auto* box = new QComboBox;
    box->setObjectName(ArrayName(array, side));
    return box;
}

}  // namespace

frmSelectStartEnd::frmSelectStartEnd(Services& services, const QList<int>& years,
                                     const QDate& start, const QDate& end,
                                     std::function<void(const ReportPeriod&)> run,
                                     std::function<void()> selectMonth)
    : ChildWindow(services, QString::fromLatin1(kName), kSelectStartEndCaption),
      run_(std::move(run)),
      selectMonth_(std::move(selectMonth)) {
    auto* frame = new QGroupBox(QStringLiteral("Select Start and End Date Below"));
    frame->setObjectName(QStringLiteral("framInterval"));
    auto* sides = new QHBoxLayout(frame);
    sides->addWidget(BuildSide(kStart, QStringLiteral("Choose a Beginning Date"),
                               QStringLiteral("Start Date Below")));
    sides->addWidget(BuildSide(kEnd, QStringLiteral("Choose the Ending Date"),
                               QStringLiteral("End Date Below")));

    auto* cmdReport = new QPushButton(QStringLiteral("Generate Report Now"));
    cmdReport->setObjectName(QStringLiteral("cmdReport"));
    auto* cmdSelectMonth = new QPushButton(QStringLiteral("Go Back to Monthly View"));
    cmdSelectMonth->setObjectName(QStringLiteral("cmdSelectMonth"));
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdReport);
    buttons->addWidget(cmdSelectMonth);
    auto* layout = new QVBoxLayout(Body());
    layout->addWidget(frame);
    layout->addLayout(buttons);
    layout->addStretch();

    for (const int side : {kStart, kEnd}) {
        LoadComboBoxes(side, years);
        txtInput_[side]->setText(datefmt::MmmDdYyyy(side == kStart ? start : end));
        txtInput_LostFocus(side);
    }
    On(cmdReport, &QPushButton::clicked, "cmdReport_Click", [this] { cmdReport_Click(); });
    On(cmdSelectMonth, &QPushButton::clicked, "cmdSelectMonth_Click",
       [this] { cmdSelectMonth_Click(); });
    OnEnter("txtInput_KeyDown", [this] {
        const int side = int(txtInput_.indexOf(focusWidget()));
        if (side >= 0)
            txtInput_KeyDown(side);
        else
            cmdReport_Click();
    });
    setFocusProxy(cmbMonth_[kStart]);
}

QWidget* frmSelectStartEnd::BuildSide(int side, const QString& choose, const QString& below) {
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
    for (QComboBox* box : {cmbMonth_[side], cmbDay_[side], cmbYear_[side]}) {
        const char* handler = box == cmbMonth_[side] ? "cmbMonth_Click"
                              : box == cmbDay_[side] ? "cmbDay_Click"
                                                     : "cmbYear_Click";
        On(box, &QComboBox::activated, handler, [this, side] { ShowSideDate(side); });
    }
    return panel;
}

void frmSelectStartEnd::LoadComboBoxes(int side, const QList<int>& years) {
    for (int month = 1; month <= 12; ++month)
        cmbMonth_[side]->addItem(datefmt::MonthName(month));
    for (int day = 1; day <= 31; ++day)
        cmbDay_[side]->addItem(QStringLiteral("%1").arg(day, 2, 10, QLatin1Char('0')));
    for (const int year : years)
        cmbYear_[side]->addItem(QString::number(year));
}

void frmSelectStartEnd::ShowSideDate(int side) {
    txtInput_[side]->setText(StartEndText(cmbMonth_[side]->currentText(),
                                          cmbDay_[side]->currentText(),
                                          cmbYear_[side]->currentText()));
}

void frmSelectStartEnd::txtInput_LostFocus(int side) {
    const QDate date =
        ParseDateInput(txtInput_[side]->text().trimmed(), cmbYear_[side]->currentText().toInt());
    if (!date.isValid())
        return;
    cmbMonth_[side]->setCurrentIndex(date.month() - 1);
    cmbDay_[side]->setCurrentIndex(date.day() - 1);
    SelectYear(side, date.year());
}

void frmSelectStartEnd::SelectYear(int side, int year) {
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

void frmSelectStartEnd::txtInput_KeyDown(int side) {
    txtInput_LostFocus(side);
    cmdReport_Click();
}

bool frmSelectStartEnd::eventFilter(QObject* watched, QEvent* event) {
    const int side = int(txtInput_.indexOf(watched));
    if (side >= 0 && event->type() == QEvent::FocusOut)
        services_.Trap("txtInput_LostFocus", [this, side] { txtInput_LostFocus(side); });
    return ChildWindow::eventFilter(watched, event);
}

void frmSelectStartEnd::cmdReport_Click() {
    const PeriodCheck check = CheckStartEnd(txtInput_[kStart]->text(), txtInput_[kEnd]->text(),
                                            cmbYear_[kStart]->currentText().toInt());
    if (!check.refusal.isEmpty()) {
        services_.dialogs.MsgBox(check.refusal);
        return;
    }
    run_(check.period);
    CloseWindow();
}

void frmSelectStartEnd::cmdSelectMonth_Click() {
    selectMonth_();
    CloseWindow();
}
