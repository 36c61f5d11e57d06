#include "shell/gui/DateSidePicker.h"

#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include "shell/DateFormats.h"
#include "shell/DateInput.h"
#include "shell/gui/Controls.h"
#include "shell/gui/DateDropDown.h"

namespace {

QComboBox* Combo(const QString& array, int side) {
    auto* box = new QComboBox;
    box->setObjectName(ArrayName(array, side));
    SelectAsTyped(box);
    return box;
}

}  // namespace

DateSidePicker::DateSidePicker(int side, const QString& choose, const QString& below,
                               const QList<int>& years, bool twoDigitDays)
    : cmbMonth_(Combo(QStringLiteral("cmbMonth"), side)),
      cmbDay_(Combo(QStringLiteral("cmbDay"), side)),
      cmbYear_(Combo(QStringLiteral("cmbYear"), side)),
      txtInput_(new QLineEdit) {
    txtInput_->setObjectName(ArrayName(QStringLiteral("txtInput"), side));
    txtInput_->setToolTip(QStringLiteral("Type a date, such as Mar 15, 2026 or 3/15/2026"));
    txtInput_->installEventFilter(this);
    for (int month = 1; month <= 12; ++month)
        cmbMonth_->addItem(datefmt::MonthName(month));
    for (int day = 1; day <= 31; ++day)
        cmbDay_->addItem(QStringLiteral("%1").arg(day, twoDigitDays ? 2 : 1, 10, QLatin1Char('0')));
    for (const int year : years)
        cmbYear_->addItem(QString::number(year));

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    auto* chooseLabel = new QLabel(choose);
    chooseLabel->setBuddy(cmbMonth_);
    grid->addWidget(chooseLabel, 0, 0, 1, 3);
    grid->addWidget(cmbMonth_, 1, 0);
    grid->addWidget(cmbDay_, 1, 1);
    grid->addWidget(cmbYear_, 1, 2);
    grid->addWidget(new QLabel(below), 2, 0, 1, 3);
    grid->addWidget(txtInput_, 3, 0, 1, 3);
    for (QComboBox* box : {cmbMonth_, cmbDay_, cmbYear_})
        connect(box, &QComboBox::activated, this, &DateSidePicker::ShowPickedDate);
}

void DateSidePicker::ShowPickedDate() {
    const QString picked = cmbMonth_->currentText() + QLatin1Char(' ') + cmbDay_->currentText() +
                           QStringLiteral(", ") + cmbYear_->currentText();
    const QDate date = ParseDateInput(picked, cmbYear_->currentText().toInt());
    txtInput_->setText(date.isValid() ? datefmt::MmmDdYyyy(date) : picked);
}

int DateSidePicker::ListedYear() const {
    return cmbYear_->currentText().toInt();
}

QDate DateSidePicker::TypedDate() const {
    return ParseDateInput(txtInput_->text().trimmed(), ListedYear());
}

QDate DateSidePicker::TakeTypedDate() {
    const QDate date = TypedDate();
    if (date.isValid()) {
        cmbMonth_->setCurrentIndex(date.month() - 1);
        cmbDay_->setCurrentIndex(date.day() - 1);
        SelectYear(date.year());
    }
    return date;
}

void DateSidePicker::SelectYear(int year) {
    const QString text = QString::number(year);
    int index = cmbYear_->findText(text);
    if (index < 0) {
        // A year typed that the list lacks joins it, in order.
        index = 0;
        while (index < cmbYear_->count() && cmbYear_->itemText(index).toInt() < year)
            ++index;
        cmbYear_->insertItem(index, text);
    }
    cmbYear_->setCurrentIndex(index);
}

bool DateSidePicker::eventFilter(QObject* watched, QEvent* event) {
    if (watched == txtInput_ && event->type() == QEvent::FocusOut)
        emit typedDateTaken(TakeTypedDate());
    return QWidget::eventFilter(watched, event);
}
