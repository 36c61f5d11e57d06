#include "calendar/gui/frmFindDate.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "calendar/CalendarMessages.h"
#include "calendar/DateModel.h"
#include "shell/DateFormats.h"
#include "shell/DateInput.h"
#include "shell/ShellMessages.h"

frmFindDate::frmFindDate(Services& services, const DateModel& dates, int firstYear, int lastYear,
                         std::function<void(const QDate&)> choose)
    : ChildWindow(services, QString::fromLatin1(kName), kFindDateCaption),
      dates_(dates),
      firstYear_(firstYear),
      lastYear_(lastYear),
      choose_(std::move(choose)) {
    auto* prompt = new QLabel(kFindDatePrompt);
    txtDate_ = new QLineEdit;
    txtDate_->setObjectName(QStringLiteral("txtDate"));
    txtDate_->setToolTip(QStringLiteral("Type a date, such as 9/7/2026 or Sep 7, 2026"));
    prompt->setBuddy(txtDate_);
    auto* cmdFind = new QPushButton(QStringLiteral("&Find"));
    cmdFind->setObjectName(QStringLiteral("cmdFind"));
    cmdFind->setDefault(true);
    auto* cmdCancel = new QPushButton(QStringLiteral("Cancel"));
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdFind);
    buttons->addWidget(cmdCancel);
    auto* layout = new QVBoxLayout(Body());
    layout->addWidget(prompt);
    layout->addWidget(txtDate_);
    layout->addLayout(buttons);
    layout->addStretch();

    On(cmdFind, &QPushButton::clicked, "cmdFind_Click", [this] { cmdFind_Click(); });
    On(cmdCancel, &QPushButton::clicked, "cmdCancel_Click", [this] { CloseWindow(); });
    OnEnter("txtDate_KeyDown", [this] { cmdFind_Click(); });
    setFocusProxy(txtDate_);
    // The selected date to start from, selected so that typing replaces it.
    txtDate_->setText(datefmt::ShortDate(dates_.SelectedDate));
    txtDate_->selectAll();
}

void frmFindDate::cmdFind_Click() {
    const QDate date = ParseDateInput(txtDate_->text(), dates_.ThisYear);
    if (!date.isValid() || date.year() < firstYear_ || date.year() > lastYear_) {
        services_.dialogs.MsgBox(
            date.isValid() ? FindDateOutOfRange(firstYear_, lastYear_) : kFindDateNotRecognized,
            kWarningStyle, kFindDateCaption);
        txtDate_->setFocus();
        txtDate_->selectAll();
        return;
    }
    choose_(date);
    CloseWindow();
}
