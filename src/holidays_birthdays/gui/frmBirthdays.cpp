#include "holidays_birthdays/gui/frmBirthdays.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>

#include "holidays_birthdays/HolidaysBirthdaysMessages.h"
#include "shell/DateFormats.h"
#include "shell/gui/DateDropDown.h"

namespace {

struct AlertChoice {
    int period;
    const char* text;
};

// The alert periods offered, shortest first.
constexpr AlertChoice kAlertChoices[] = {
    {kNoBirthdayAlert, "Do not alert"}, {0, "On the Same Day"},      {1, "1 Day Ahead of Time"},
    {3, "3 Days Ahead of Time"},        {5, "5 Days Ahead of Time"}, {7, "7 Days Ahead of Time"},
    {10, "10 Days Ahead of Time"},
};

// The choice for period: its own, or for a period the list does not offer (a file edited by
// hand), the longest one shorter than it.
int AlertIndex(int period) {
    int index = 0;
    for (int i = 0; i < int(std::size(kAlertChoices)); ++i)
        if (kAlertChoices[i].period <= period)
            index = i;
    return index;
}

bool IsFourDigitYear(const QString& year) {
    return year.size() == 4 &&
           std::all_of(year.begin(), year.end(), [](QChar c) { return c >= '0' && c <= '9'; });
}

// "turns 66 this year", "born this year", or nothing when the birth year is not kept, not a
// year, or still to come.
QString AgeText(const QString& birthYear, int thisYear) {
    if (!IsFourDigitYear(birthYear) || birthYear.toInt() > thisYear)
        return {};
    const int age = thisYear - birthYear.toInt();
    return age == 0 ? kBornThisYearText : TurnsAgeText(age);
}

// By birthday then name, or by name then birthday; names in either letter case together.
bool Before(const BirthdayRecord& a, const BirthdayRecord& b, bool byName) {
    const int names = a.name.compare(b.name, Qt::CaseInsensitive);
    const int days = a.birthday.compare(b.birthday);
    if (byName)
        return names != 0 ? names < 0 : days < 0;
    return days != 0 ? days < 0 : names < 0;
}

void Sort(QList<BirthdayRecord>& records, bool byName) {
    std::stable_sort(records.begin(), records.end(),
                     [byName](const auto& a, const auto& b) { return Before(a, b, byName); });
}

bool IsSorted(const QList<BirthdayRecord>& records, bool byName) {
    return std::is_sorted(records.begin(), records.end(),
                          [byName](const auto& a, const auto& b) { return Before(a, b, byName); });
}

template <class T>
T* Named(T* control, const char* name) {
    control->setObjectName(QString::fromLatin1(name));
    return control;
}

QLabel* Label(const QString& caption, QWidget* buddy) {
    auto* label = new QLabel(caption);
    label->setBuddy(buddy);
    return label;
}

}  // namespace

// The access keys leave out F, E, O, M, V, T, S and H, which open the main window's menus: a
// key that two controls share only moves the focus between them.
frmBirthdays::frmBirthdays(HolidaysBirthdaysContext& context)
    : ChildWindow(context.services, QString::fromLatin1(kName), kBirthdayManagerCaption),
      context_(context),
      lstBirthdays_(Named(new QListWidget, "lstBirthdays")),
      optSortMonth_(Named(new QRadioButton(QStringLiteral("Sort &by Month")), "optSortMonth")),
      optSortName_(Named(new QRadioButton(QStringLiteral("Sort by N&ame")), "optSortName")),
      txtName_(Named(new QLineEdit, "txtName")),
      cmbMonth_(Named(new QComboBox, "cmbMonth")),
      cmbDay_(Named(new QComboBox, "cmbDay")),
      cmbAlert_(Named(new QComboBox, "cmbAlert")),
      chkNoAge_(Named(new QCheckBox(QStringLiteral("Don't remember the a&ge")), "chkNoAge")),
      txtYear_(Named(new QLineEdit, "txtYear")),
      lblAge_(Named(new QLabel, "lblAge")),
      cmdNew_(Named(new QPushButton(QStringLiteral("Add Ne&w Birthday")), "cmdNew")),
      cmdSave_(Named(new QPushButton(QStringLiteral("Save B&irthday")), "cmdSave")),
      cmdDelete_(Named(new QPushButton(QStringLiteral("&Remove Birthday")), "cmdDelete")),
      cmdClose_(Named(new QPushButton(QStringLiteral("&Close")), "cmdClose")) {
    auto* columns = new QHBoxLayout;
    columns->addLayout(BuildList(), 1);
    columns->addWidget(BuildFields());
    auto* layout = new QVBoxLayout(Body());
    layout->addLayout(columns, 1);
    layout->addLayout(BuildButtons());
    BuildMenus();
    ConnectKeys();

    // The list opens in the order it was last saved in: by name when the file is in name
    // order but not in birthday order.
    const QList<BirthdayRecord>& records = context_.birthdays.records;
    const bool byName = IsSorted(records, true) && !IsSorted(records, false);
    (byName ? optSortName_ : optSortMonth_)->setChecked(true);
    On(optSortName_, &QRadioButton::toggled, "optSort_Click", [this] { optSort_Click(); });
    EditRow(FillList(records, std::nullopt));
    setFocusProxy(txtName_);
}

QLayout* frmBirthdays::BuildList() {
    lstBirthdays_->setMinimumSize(300, 200);
    // The entry selected is the one edited; a row the keyboard only made current is not.
    On(lstBirthdays_, &QListWidget::itemSelectionChanged, "lstBirthdays_Click",
       [this] { lstBirthdays_Click(); });
    auto* order = new QHBoxLayout;
    order->addWidget(optSortMonth_);
    order->addWidget(optSortName_);
    order->addStretch(1);
    auto* column = new QVBoxLayout;
    column->addWidget(Label(QStringLiteral("&People:"), lstBirthdays_));
    column->addWidget(lstBirthdays_, 1);
    column->addLayout(order);
    return column;
}

QGroupBox* frmBirthdays::BuildFields() {
    for (int month = 1; month <= 12; ++month)
        cmbMonth_->addItem(datefmt::MonthName(month));
    for (int day = 1; day <= 31; ++day)
        cmbDay_->addItem(QString::number(day));
    SelectAsTyped(cmbMonth_);
    SelectAsTyped(cmbDay_);
    for (const AlertChoice& choice : kAlertChoices)
        cmbAlert_->addItem(QString::fromLatin1(choice.text), choice.period);
    txtYear_->setMaxLength(4);
    connect(txtYear_, &QLineEdit::textChanged, this, [this] { ShowAge(); });
    connect(chkNoAge_, &QCheckBox::toggled, this, [this](bool noAge) {
        txtYear_->setEnabled(!noAge);
        ShowAge();
    });

    fraEntry_ = Named(new QGroupBox, "fraEntry");
    auto* grid = new QGridLayout(fraEntry_);
    grid->addWidget(Label(QStringLiteral("&Name:"), txtName_), 0, 0);
    grid->addWidget(txtName_, 0, 1, 1, 2);
    grid->addWidget(Label(QStringLiteral("Birth&day:"), cmbMonth_), 1, 0);
    grid->addWidget(cmbMonth_, 1, 1);
    grid->addWidget(cmbDay_, 1, 2);
    grid->addWidget(Label(QStringLiteral("A&lert:"), cmbAlert_), 2, 0);
    grid->addWidget(cmbAlert_, 2, 1, 1, 2);
    grid->addWidget(chkNoAge_, 3, 1, 1, 2);
    grid->addWidget(Label(QStringLiteral("Birth &Year:"), txtYear_), 4, 0);
    grid->addWidget(txtYear_, 4, 1);
    grid->addWidget(lblAge_, 5, 1, 1, 2);
    grid->setRowStretch(6, 1);
    return fraEntry_;
}

QLayout* frmBirthdays::BuildButtons() {
    cmdSave_->setDefault(true);
    On(cmdNew_, &QPushButton::clicked, "cmdNew_Click", [this] { cmdNew_Click(); });
    On(cmdSave_, &QPushButton::clicked, "cmdSave_Click", [this] { cmdSave_Click(); });
    On(cmdDelete_, &QPushButton::clicked, "cmdDelete_Click", [this] { cmdDelete_Click(); });
    On(cmdClose_, &QPushButton::clicked, "cmdClose_Click", [this] { CloseWindow(); });
    auto* row = new QHBoxLayout;
    row->addWidget(cmdNew_);
    row->addWidget(cmdSave_);
    row->addWidget(cmdDelete_);
    row->addStretch(1);
    row->addWidget(cmdClose_);
    return row;
}

void frmBirthdays::BuildMenus() {
    QMenu* file = AddMenu(MenuBar(), QStringLiteral("&File"), QStringLiteral("mnuFile"));
    AddCommand(
        file, QStringLiteral("&Save"), QStringLiteral("mnuFileSave"), "mnuFileSave_Click",
        [this] { cmdSave_Click(); }, QKeySequence::Save);
    AddCommand(file, QStringLiteral("E&xit"), QStringLiteral("mnuFileExit"), "mnuFileExit_Click",
               [this] { CloseWindow(); });
}

void frmBirthdays::ConnectKeys() {
    const QList<QWidget*> order{lstBirthdays_, optSortMonth_, optSortName_, txtName_, cmbMonth_,
                                cmbDay_,       cmbAlert_,     chkNoAge_,    txtYear_, cmdNew_,
                                cmdSave_,      cmdDelete_,    cmdClose_};
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
    OnEnter("Form_KeyPress", [this] { Form_KeyPress(); });
    auto* deleteKey = new QShortcut(QKeySequence::Delete, lstBirthdays_);
    deleteKey->setContext(Qt::WidgetShortcut);
    On(deleteKey, &QShortcut::activated, "lstBirthdays_KeyDown", [this] { cmdDelete_Click(); });
}

void frmBirthdays::Form_KeyPress() {
    if (auto* button = qobject_cast<QPushButton*>(focusWidget()))
        button->click();
    else
        cmdSave_Click();
}

frmBirthdays::EntryFields frmBirthdays::Fields() const {
    return {txtName_->text(),          cmbMonth_->currentIndex(), cmbDay_->currentIndex(),
            cmbAlert_->currentIndex(), chkNoAge_->isChecked(),    txtYear_->text()};
}

bool frmBirthdays::Form_QueryUnload() {
    bool mayClose = true;
    services_.Trap("Form_QueryUnload", [&] {
        if (Fields() == shown_)
            return;
        switch (services_.dialogs.MsgBox(kBirthdayChangedQuestion, vb::YesNoCancel | vb::Question,
                                         kBirthdayChangedTitle)) {
            case vb::Yes:
                mayClose = cmdSave_Click();
                break;
            case vb::No:
                break;
            default:
                mayClose = false;
        }
    });
    return mayClose;
}

bool frmBirthdays::SortedByName() const {
    return optSortName_->isChecked();
}

int frmBirthdays::FillList(QList<BirthdayRecord> records,
                           const std::optional<BirthdayRecord>& selected) {
    Sort(records, SortedByName());
    records_ = records;
    const int thisYear = services_.clock.today().year();
    const QSignalBlocker blocker(lstBirthdays_);
    lstBirthdays_->clear();
    for (const BirthdayRecord& record : records_) {
        QString text = record.birthday + QStringLiteral("  ") + record.name;
        if (const QString age = AgeText(record.birthYear, thisYear); !age.isEmpty())
            text += QStringLiteral("  (") + age + QLatin1Char(')');
        lstBirthdays_->addItem(text);
    }
    const int row = selected ? int(records_.indexOf(*selected)) : -1;
    SelectRow(row);
    return row;
}

void frmBirthdays::SelectRow(int row) {
    const QSignalBlocker blocker(lstBirthdays_);
    // Set through the view even when there is no row, so that the first arrow key starts
    // from the top rather than from a row the list would choose on getting the focus.
    lstBirthdays_->setCurrentIndex(row < 0 ? QModelIndex() : lstBirthdays_->model()->index(row, 0));
    if (row < 0)
        lstBirthdays_->clearSelection();
}

void frmBirthdays::EditRow(int row) {
    editing_ = row;
    SelectRow(row);
    fraEntry_->setTitle(row < 0 ? kNewBirthdayTitle : kChangeBirthdayTitle);
    cmdDelete_->setEnabled(row >= 0);
    if (row >= 0) {
        ShowEntry(records_[row]);
        return;
    }
    const QDate today = services_.clock.today();
    ShowEntry({today.toString(QStringLiteral("MM/dd")), 0, QString(), QString()});
}

void frmBirthdays::ShowEntry(const BirthdayRecord& record) {
    txtName_->setText(record.name);
    // A birthday that is not "mm/dd" (a file edited by hand) leaves its lists unchosen.
    cmbMonth_->setCurrentIndex(record.birthday.left(2).toInt() - 1);
    cmbDay_->setCurrentIndex(record.birthday.mid(3, 2).toInt() - 1);
    cmbAlert_->setCurrentIndex(AlertIndex(record.alertPeriod));
    const bool noAge = record.birthYear == kBirthYearNotKept;
    chkNoAge_->setChecked(noAge);
    txtYear_->setText(noAge ? QString() : record.birthYear);
    ShowAge();
    shown_ = Fields();
}

void frmBirthdays::ShowAge() {
    const QString year = chkNoAge_->isChecked() ? kBirthYearNotKept : txtYear_->text().trimmed();
    lblAge_->setText(AgeText(year, services_.clock.today().year()));
}

void frmBirthdays::PresetNewBirthday(int month, int day) {
    cmdNew_Click();
    cmbMonth_->setCurrentIndex(month - 1);
    cmbDay_->setCurrentIndex(day - 1);
    // The day chosen on the calendar is not typing of the user's.
    shown_ = Fields();
}

void frmBirthdays::lstBirthdays_Click() {
    const QList<QListWidgetItem*> selected = lstBirthdays_->selectedItems();
    EditRow(selected.isEmpty() ? -1 : lstBirthdays_->row(selected.first()));
}

void frmBirthdays::optSort_Click() {
    // The entry being changed stays selected, and what is typed in the fields stays as it is.
    const std::optional<BirthdayRecord> edited =
        editing_ < 0 ? std::nullopt : std::optional(records_[editing_]);
    editing_ = FillList(records_, edited);
}

void frmBirthdays::cmdNew_Click() {
    EditRow(-1);
    txtName_->setFocus(Qt::OtherFocusReason);
}

std::nullopt_t frmBirthdays::Refuse(const QString& message, QWidget* field) {
    services_.dialogs.MsgBox(message, kWarningStyle);
    field->setFocus(Qt::OtherFocusReason);
    return std::nullopt;
}

std::optional<BirthdayRecord> frmBirthdays::EnteredRecord() {
    // Line breaks and runs of blanks in a name become single blanks: the name is one field of
    // one line.
    const QString name = txtName_->text().simplified();
    if (name.isEmpty())
        return Refuse(kEnterBirthdayNameMessage, txtName_);
    if (name.contains(QLatin1Char(':')))
        return Refuse(kBirthdayNameColonMessage, txtName_);
    const int month = cmbMonth_->currentIndex() + 1;
    const int day = cmbDay_->currentIndex() + 1;
    if (month < 1 || day < 1)
        return Refuse(kChooseBirthdayMessage, month < 1 ? cmbMonth_ : cmbDay_);
    // February 29 would come round only one year in four.
    if (month == 2 && day == 29)
        return Refuse(kFebruary29Message, cmbDay_);
    if (!QDate::isValid(2000, month, day))
        return Refuse(DayNotInMonthMessage(datefmt::MonthName(month), day), cmbDay_);
    QString birthYear = kBirthYearNotKept;
    const int thisYear = services_.clock.today().year();
    if (!chkNoAge_->isChecked()) {
        birthYear = txtYear_->text().trimmed();
        if (!IsFourDigitYear(birthYear) || birthYear.toInt() > thisYear)
            return Refuse(BirthYearMessage(thisYear), txtYear_);
    }
    return BirthdayRecord{QDate(2000, month, day).toString(QStringLiteral("MM/dd")),
                          cmbAlert_->currentData().toInt(), name, birthYear};
}

bool frmBirthdays::cmdSave_Click() {
    const std::optional<BirthdayRecord> record = EnteredRecord();
    if (!record)
        return false;
    QList<BirthdayRecord> records = records_;
    if (editing_ >= 0)
        records[editing_] = *record;
    else
        records.append(*record);
    return Store(records, record);
}

void frmBirthdays::cmdDelete_Click() {
    if (editing_ < 0)
        return;
    const QString question = RemoveBirthdayQuestion(records_[editing_].name);
    if (services_.dialogs.MsgBox(question, kQuestionStyle, kBirthdayManagerCaption) != vb::Yes)
        return;
    QList<BirthdayRecord> records = records_;
    records.removeAt(editing_);
    if (Store(records, std::nullopt))
        lstBirthdays_->setFocus(Qt::OtherFocusReason);
}

bool frmBirthdays::Store(QList<BirthdayRecord> records,
                         const std::optional<BirthdayRecord>& selected) {
    Sort(records, SortedByName());
    if (!context_.birthdays.SaveBirthdays(records, true))
        return false;
    context_.birthdays.ReadBirthdays();
    EditRow(FillList(context_.birthdays.records, selected));
    return true;
}
