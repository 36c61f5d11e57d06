#include "app/gui/frmUserOptions.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTimeZone>
#include <QVBoxLayout>
#include <algorithm>

#include "app/ProgramState.h"
#include "reports/ReportMessages.h"
#include "reports/ReportSource.h"
#include "shell/ShellCommands.h"
#include "shell/ShellMessages.h"
#include "shell/UserPreferences.h"
#include "shell/gui/frmMain.h"
#include "terms/TermText.h"
#include "terms/modFUT.h"

namespace {

const QString kSystemDefaultPrinter = QStringLiteral("(System default)");
const QString kFloating = QStringLiteral("(floating)");

// A switch kept as "True" or "False". Auto-completion is on unless switched off; the term
// window's switches are off unless switched on.
bool IsOn(const QString& key, const QString& value) {
    if (key == prefkey::AutoCompleteWord)
        return value.trimmed().compare(QStringLiteral("False"), Qt::CaseInsensitive) != 0;
    return value == u"True";
}

QLineEdit* TextBox(const QString& name, int maxLength = 0) {
    auto* box = new QLineEdit;
    box->setObjectName(name);
    if (maxLength > 0)
        box->setMaxLength(maxLength);
    return box;
}

template <class T>
T* Named(T* control, const QString& name) {
    control->setObjectName(name);
    return control;
}

QFormLayout* Group(QVBoxLayout* column, const QString& caption) {
    auto* box = new QGroupBox(caption);
    auto* form = new QFormLayout(box);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->setVerticalSpacing(4);
    column->addWidget(box);
    return form;
}

}  // namespace

frmUserOptions::frmUserOptions(Services& services, UserPreferences& prefs, const modFUT& terms,
                               std::function<void(const QStringList&)> saved)
    : ChildWindow(services, QString::fromLatin1(kName), kUserOptionsCaption),
      prefs_(prefs),
      afterSave_(std::move(saved)) {
    auto* layout = new QVBoxLayout(Body());
    auto* columns = new QHBoxLayout;
    auto* left = new QVBoxLayout;
    auto* right = new QVBoxLayout;
    columns->addLayout(left, 1);
    columns->addLayout(right, 1);
    layout->addLayout(columns);

    QFormLayout* company = Group(left, QStringLiteral("Company"));
    const struct {
        const QString& key;
        const char* caption;
        const char* name;
    } texts[] = {
        {prefkey::CompanyName, "&Name:", "txtCompanyName"},
        {prefkey::CompanyAddress1, "Address &1:", "txtCompanyAddress1"},
        {prefkey::CompanyAddress2, "Address &2:", "txtCompanyAddress2"},
        {prefkey::CompanyCityStateZip, "Cit&y, State Zip:", "txtCompanyCityStateZip"},
        {prefkey::CompanyPhone, "&Phone:", "txtCompanyPhone"},
        {prefkey::CompanyFax, "&Fax:", "txtCompanyFax"},
        {prefkey::CompanyWebsite, "&Website:", "txtCompanyWebsite"},
        {prefkey::CompanyEmail, "&E-mail:", "txtCompanyEmail"},
    };
    for (const auto& text : texts)
        AddField(company, text.key, QString::fromLatin1(text.caption),
                 TextBox(QString::fromLatin1(text.name)));

    QFormLayout* reports = Group(left, QStringLiteral("Reports and calendar"));
    AddField(reports, prefkey::MileageRate, QStringLiteral("&Mileage Rate:"),
             TextBox(QStringLiteral("txtMileageRate")));
    AddField(reports, prefkey::CalendarTimeZone, QStringLiteral("Calendar T&ime Zone:"),
             TimeZoneList());
    left->addStretch();

    QFormLayout* sharing = Group(right, QStringLiteral("Sharing and printing"));
    auto* browse =
        Named(new QPushButton(QStringLiteral("&Browse...")), QStringLiteral("cmdBrowse"));
    On(browse, &QPushButton::clicked, "cmdBrowse_Click", [this] { cmdBrowse_Click(); });
    AddField(sharing, prefkey::SharedDirectory, QStringLiteral("Shared &Directory:"),
             TextBox(QStringLiteral("txtSharedDirectory")), browse);
    QLineEdit* drive = TextBox(QStringLiteral("txtNetworkShareDrive"), 1);
    drive->setFixedWidth(drive->fontMetrics().horizontalAdvance(QStringLiteral("WW")) + 16);
    drive->setToolTip(QStringLiteral("One letter, such as d, e or f"));
    AddField(sharing, prefkey::NetworkShareDrive, QStringLiteral("Network Share Dri&ve:"), drive);
    AddField(sharing, prefkey::DefaultPrinter, QStringLiteral("Default Prin&ter:"), PrinterList());

    QFormLayout* termsGroup = Group(right, QStringLiteral("Frequently used terms"));
    AddField(termsGroup, prefkey::FrequentTermsFile, QStringLiteral("Term &List:"),
             TermFileList(terms));
    AddField(termsGroup, prefkey::AutoCompleteWord, {},
             Named(new QCheckBox(QStringLiteral("A&uto-complete words from the terms")),
                   QStringLiteral("chkAutoCompleteWord")));
    auto* letters = Named(new QSpinBox, QStringLiteral("spnAutoStartPosition"));
    letters->setRange(1, kAutoStartMost);
    letters->setSuffix(QStringLiteral(" letters typed"));
    AddField(termsGroup, prefkey::AutoStartPosition, QStringLiteral("Start offering &after:"),
             letters);
    AddField(termsGroup, prefkey::ShowFut, {},
             Named(new QCheckBox(QStringLiteral("S&how the term window at start")),
                   QStringLiteral("chkShowFUT")));
    AddField(termsGroup, prefkey::MinimizeFut, {},
             Named(new QCheckBox(QStringLiteral("Minimi&zed at start")),
                   QStringLiteral("chkMinimizeFUT")));
    AddField(termsGroup, prefkey::LoadFutPosition, {},
             Named(new QCheckBox(QStringLiteral("Open at its &saved position")),
                   QStringLiteral("chkLoadFUTPosition")));

    right->addStretch();

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("cmdOK"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
    On(buttons, &QDialogButtonBox::accepted, "cmdOK_Click", [this] { cmdOK_Click(); });
    On(buttons, &QDialogButtonBox::rejected, "cmdCancel_Click", [this] { CloseWindow(); });
    OnEnter("cmdOK_Click", [this] { cmdOK_Click(); });
    layout->addStretch();
    layout->addWidget(buttons);
    ShowValues();
}

void frmUserOptions::AddField(QFormLayout* form, const QString& key, const QString& caption,
                              QWidget* control, QWidget* extra) {
    controls_.insert(key, control);
    keys_.append(key);
    QWidget* field = control;
    if (extra) {
        field = new QWidget;
        auto* row = new QHBoxLayout(field);
        row->setContentsMargins(0, 0, 0, 0);
        row->addWidget(control, 1);
        row->addWidget(extra);
    }
    if (caption.isEmpty())
        form->addRow(field);
    else
        form->addRow(caption, field);
}

QComboBox* frmUserOptions::PrinterList() const {
    auto* list = Named(new QComboBox, QStringLiteral("cmbDefaultPrinter"));
    list->addItem(kSystemDefaultPrinter, QString());
    for (const QString& name : services_.platform.PrinterNames())
        list->addItem(name, name);
    return list;
}

QComboBox* frmUserOptions::TermFileList(const modFUT& terms) const {
    auto* list = Named(new QComboBox, QStringLiteral("cmbFrequentTermsFile"));
    list->setEditable(true);
    list->addItems(terms.TermFiles());
    return list;
}

QComboBox* frmUserOptions::TimeZoneList() const {
    auto* list = Named(new QComboBox, QStringLiteral("cmbCalendarTimeZone"));
    list->setEditable(true);
    list->setInsertPolicy(QComboBox::NoInsert);
    list->addItem(kFloating);
    for (const QByteArray& id : QTimeZone::availableTimeZoneIds())
        list->addItem(QString::fromLatin1(id));
    return list;
}

QWidget* frmUserOptions::ControlOf(const QString& key) const {
    return controls_.value(key);
}

QString frmUserOptions::ValueOf(const QString& key) const {
    QWidget* control = ControlOf(key);
    if (auto* box = qobject_cast<QLineEdit*>(control))
        return box->text().trimmed();
    if (auto* check = qobject_cast<QCheckBox*>(control))
        return check->isChecked() ? QStringLiteral("True") : QStringLiteral("False");
    if (auto* spin = qobject_cast<QSpinBox*>(control))
        return QString::number(spin->value());
    auto* list = static_cast<QComboBox*>(control);
    if (!list->isEditable())
        return list->currentData().toString();
    const QString text = list->currentText().trimmed();
    return text == kFloating ? QString() : text;
}

void frmUserOptions::SetValue(const QString& key, const QString& value) {
    QWidget* control = ControlOf(key);
    if (auto* box = qobject_cast<QLineEdit*>(control))
        box->setText(value.trimmed());
    else if (auto* check = qobject_cast<QCheckBox*>(control))
        check->setChecked(IsOn(key, value));
    else if (auto* spin = qobject_cast<QSpinBox*>(control))
        spin->setValue(AutoStartLetters(value));
    else if (auto* list = static_cast<QComboBox*>(control); !list->isEditable()) {
        // A printer that is no longer there stays chosen until another is picked.
        int index = list->findData(value.trimmed());
        if (index < 0) {
            list->addItem(value.trimmed() + QStringLiteral(" (not found)"), value.trimmed());
            index = list->count() - 1;
        }
        list->setCurrentIndex(index);
    } else if (key == prefkey::FrequentTermsFile) {
        list->setCurrentText(value.trimmed().isEmpty() ? kDefaultTermFile : value.trimmed());
    } else {
        list->setCurrentText(value.trimmed().isEmpty() ? kFloating : value.trimmed());
    }
}

void frmUserOptions::ShowValues() {
    shown_.clear();
    for (const QString& key : keys_) {
        SetValue(key, prefs_.Value(key));
        shown_.insert(key, ValueOf(key));
    }
}

bool frmUserOptions::IsChanged() const {
    return std::any_of(keys_.cbegin(), keys_.cend(),
                       [this](const QString& key) { return ValueOf(key) != shown_.value(key); });
}

QString frmUserOptions::Refusal() const {
    if (!ParseMileageRate(ValueOf(prefkey::MileageRate)))
        return kBadRateMessage;
    const QString drive = ValueOf(prefkey::NetworkShareDrive);
    if (!drive.isEmpty() && !ShellCommands::IsDriveLetter(drive))
        return kBadDriveLetterMessage;
    const QString zone = ValueOf(prefkey::CalendarTimeZone);
    if (!zone.isEmpty() && !QTimeZone::isTimeZoneIdAvailable(zone.toLatin1()))
        return kBadTimeZoneMessage;
    return {};
}

bool frmUserOptions::cmdOK_Click() {
    if (const QString refusal = Refusal(); !refusal.isEmpty()) {
        services_.dialogs.MsgBox(refusal, kWarningStyle);
        return false;
    }
    QStringList changed;
    for (const QString& key : keys_)
        if (ValueOf(key) != shown_.value(key)) {
            prefs_.SetValue(key, ValueOf(key));
            changed.append(key);
        }
    if (!changed.isEmpty()) {
        prefs_.SaveUserPreferences(services_);
        if (afterSave_)
            afterSave_(changed);
    }
    saved_ = true;
    CloseWindow();
    return true;
}

void frmUserOptions::cmdBrowse_Click() {
    auto* box = static_cast<QLineEdit*>(ControlOf(prefkey::SharedDirectory));
    const QString start = box->text().trimmed().isEmpty() ? QDir::homePath() : box->text();
    const QString folder = services_.dialogs.FolderName(kSharedDirectoryCaption, start);
    if (!folder.isEmpty())
        box->setText(QDir::toNativeSeparators(folder));
}

bool frmUserOptions::Form_QueryUnload() {
    bool mayClose = true;
    services_.Trap("Form_QueryUnload", [&] {
        if (saved_ || !IsChanged())
            return;
        switch (services_.dialogs.MsgBox(kOptionsChangedQuestion, vb::YesNoCancel | vb::Question,
                                         kOptionsChangedTitle)) {
            case vb::Yes:
                mayClose = cmdOK_Click();
                break;
            case vb::No:
                break;
            default:
                mayClose = false;
        }
    });
    return mayClose;
}

void ConnectUserOptions(frmMain& frame, ProgramState& state,
                        std::function<void(const QStringList&)> saved) {
    Handle(frame.MenuItem(QStringLiteral("mnuOptionsUser")), &frame, [&frame, &state, saved] {
        state.services.Trap("mnuOptionsUser_Click", [&] {
            frame
                .ShowChild(QString::fromLatin1(frmUserOptions::kName),
                           [&state, &saved] {
                               return new frmUserOptions(state.services, state.prefs, state.terms,
                                                         saved);
                           })
                ->setFocus();
        });
    });
}
