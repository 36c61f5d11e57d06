#include "reports/gui/frmSelectStartEnd.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include <QComboBox>
#include "reports/ReportMessages.h"
#include "shell/DateFormats.h"
#include "shell/gui/DateSidePicker.h"

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
    sides_ = {new DateSidePicker(kStart, QStringLiteral("Choose a Beginning Date"),
                                 QStringLiteral("Start Date Below"), years, true),
              new DateSidePicker(kEnd, QStringLiteral("Choose the Ending Date"),
                                 QStringLiteral("End Date Below"), years, true)};
    for (DateSidePicker* side : sides_)
        sides->addWidget(side);

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
        sides_[side]->input()->setText(datefmt::MmmDdYyyy(side == kStart ? start : end));
        sides_[side]->TakeTypedDate();
    }
    On(cmdReport, &QPushButton::clicked, "cmdReport_Click", [this] { cmdReport_Click(); });
    On(cmdSelectMonth, &QPushButton::clicked, "cmdSelectMonth_Click",
       [this] { cmdSelectMonth_Click(); });
    OnEnter("txtInput_KeyDown", [this] {
        const auto typing = std::find_if(sides_.begin(), sides_.end(), [this](DateSidePicker* s) {
            return s->input() == focusWidget();
        });
        if (typing != sides_.end())
            txtInput_KeyDown(int(typing - sides_.begin()));
        else
            cmdReport_Click();
    });
    setFocusProxy(sides_[kStart]->monthList());
}

void frmSelectStartEnd::txtInput_KeyDown(int side) {
    sides_[side]->TakeTypedDate();
    cmdReport_Click();
}

void frmSelectStartEnd::cmdReport_Click() {
    const PeriodCheck check =
        CheckStartEnd(sides_[kStart]->input()->text(), sides_[kEnd]->input()->text(),
                      sides_[kStart]->ListedYear());
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
