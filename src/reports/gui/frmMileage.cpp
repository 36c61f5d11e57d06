#include "reports/gui/frmMileage.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>

#include "reports/ReportMessages.h"
#include "reports/ReportSource.h"
#include "shell/NumberFormat.h"
#include "shell/UserPreferences.h"

namespace {

constexpr int kStartColumn = reportcol::Start + 1;
constexpr int kEndColumn = reportcol::End + 1;

bool OdometerKeyPress(QLineEdit* box, QKeyEvent* event) {
    const QString typed = event->text();
    if (typed.isEmpty() || !typed[0].isPrint())
        return false;
    const QChar c = typed[0];
    // Digits, and commas between thousands.
    if ((c >= u'0' && c <= u'9') || c == u',')
        return false;
    // A point is taken once: the one already there may be the text that the key replaces.
    if (c == u'.' && !box->text().remove(box->selectedText()).contains(u'.'))
        return false;
    return true;
}

}  // namespace

frmMileage::frmMileage(ReportContext& context)
    : ReportWindow(context, kName, kMileageCaption, ReportKind::Mileage), txtRate_(new QLineEdit) {
    Form_Load();
    txtRate_->setObjectName(QStringLiteral("txtRate"));
    txtRate_->setMaximumWidth(QFontMetrics(font()).averageCharWidth() * 12);
    txtRate_->setPlaceholderText(QStringLiteral("none"));
    txtRate_->setToolTip(QStringLiteral(
        "What a mile is paid, such as 0.70. Each line, the page and the report then show what "
        "their miles are paid. Leave it empty to pay nothing."));
    ShowRate();
    auto* caption = new QLabel(QStringLiteral("&Rate per Mile:"));
    caption->setBuddy(txtRate_);
    FooterLayout()->addWidget(caption, 2, 0);
    FooterLayout()->addWidget(txtRate_, 2, 1);
    On(txtRate_, &QLineEdit::editingFinished, "txtRate_LostFocus", [this] { txtRate_LostFocus(); });
}

QString frmMileage::EditOpenRefusal() const {
    return kMileageEditOpenMessage;
}

void frmMileage::AfterEdit(qsizetype row, int column) {
    if (column == kStartColumn || column == kEndColumn)
        TotalThisLine(row);
}

void frmMileage::TotalThisLine(qsizetype index) {
    ReportRow& row = report_.rows[index];
    // A reading that is empty, or no number, leaves nothing to work the miles out from.
    const std::optional<double> start = ParseAmount(row.fields[reportcol::Start]);
    const std::optional<double> end = ParseAmount(row.fields[reportcol::End]);
    if (!start || !end) {
        services_.dialogs.MsgBox(kEnterZeroMessage);
        return;
    }
    const float miles = float(*end) - float(*start);
    row.fields[reportcol::Total] = QString::number(double(miles), 'g', 7);
    ShowPage(CurrentPage());
}

void frmMileage::ShowRate() {
    const QString kept = context_.prefs.Value(prefkey::MileageRate).trimmed();
    const std::optional<double> rate = ParseMileageRate(kept);
    txtRate_->setText(rate && !kept.isEmpty() ? RateText(*rate) : kept);
}

void frmMileage::txtRate_LostFocus() {
    const QString typed = txtRate_->text().trimmed();
    const std::optional<double> rate = ParseMileageRate(typed);
    if (!rate) {
        services_.dialogs.MsgBox(kBadRateMessage, kWarningStyle);
        ShowRate();
        return;
    }
    // The rate as money is written ("$0.70" is kept as "0.70"); blank is no rate.
    const QString text = typed.isEmpty() ? typed : RateText(*rate);
    txtRate_->setText(text);
    if (text != context_.prefs.Value(prefkey::MileageRate).trimmed()) {
        context_.prefs.SetValue(prefkey::MileageRate, text);
        context_.prefs.SaveUserPreferences(services_);
    }
    if (*rate != report_.rate)
        SetRate(*rate);
}

bool frmMileage::EditorKeyPress(int column, QKeyEvent* event) {
    if (column == kStartColumn)
        return txtStart_KeyPress(event);
    if (column == kEndColumn)
        return txtEnd_KeyPress(event);
    return false;
}

bool frmMileage::txtStart_KeyPress(QKeyEvent* event) {
    return OdometerKeyPress(Control<QLineEdit>(QStringLiteral("txtStart")), event);
}

bool frmMileage::txtEnd_KeyPress(QKeyEvent* event) {
    return OdometerKeyPress(Control<QLineEdit>(QStringLiteral("txtEnd")), event);
}
