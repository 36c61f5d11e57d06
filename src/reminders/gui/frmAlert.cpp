#include "reminders/gui/frmAlert.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>

#include "reminders/RemindersMessages.h"
#include "reminders/modAlerts.h"
#include "shell/DateFormats.h"
#include "shell/DateInput.h"
#include "shell/Services.h"
#include "shell/ShellMessages.h"
#include "shell/gui/DateDropDown.h"
#include "shell/gui/FocusLoss.h"

namespace {

// The years the year list offers: every year whose days the alert file can hold.
constexpr int kFirstYear = 1928;
constexpr int kLastYear = 2172;
constexpr int kLists = 4;
constexpr int kRawList = 0, kDateList = 1, kMessageList = 2, kLinkList = 3;

const QStringList& PeriodCaptions() {
    static const QStringList captions = {
        QStringLiteral("10 days before this date"), QStringLiteral("7 days before this date"),
        QStringLiteral("5 days before this date"),  QStringLiteral("3 days before this date"),
        QStringLiteral("2 days before this date"),  QStringLiteral("1 day before this date")};
    return captions;
}

// A shown alert: what lists 1, 2 and 3 hold for it.
struct ShownAlert {
    QDate date;
    QString message;
    int line;
};

QLabel* NamedLabel(const QString& name, const QString& caption) {
    auto* label = new QLabel(caption);
    label->setObjectName(name);
    return label;
}

}  // namespace

frmAlert::frmAlert(Services& services, AlertsStore& alerts, const QDate& preset)
    : ChildWindow(services, QString::fromLatin1(kName), kAlertManagementCaption), alerts_(alerts) {
    auto* layout = new QHBoxLayout(Body());
    layout->addWidget(BuildEditor(), 3);
    layout->addWidget(BuildListPanel(), 2);
    BuildMenus();
    ConnectControls();
    setFocusProxy(txtMessage_);
    // Form_Load: the preset date in the editor, the lists filled, a new alert begun.
    LoadComboBoxes();
    SetDate(preset.isValid() ? preset : services_.clock.today());
    LoadAlerts();
    mnuFileNew_Click();
}

QWidget* frmAlert::BuildEditor() {
    auto* editor = new QWidget;
    auto* column = new QVBoxLayout(editor);
    auto* dateRow = new QHBoxLayout;
    dateRow->addWidget(NamedLabel(QStringLiteral("lblMain"), QStringLiteral("Setting Alert for")));
    txtDate_ = new QLineEdit;
    txtDate_->setObjectName(QStringLiteral("txtDate"));
    txtDate_->setMaximumWidth(100);
    dateRow->addWidget(txtDate_);
    dateRow->addWidget(
        NamedLabel(ArrayName(QStringLiteral("lblStart"), 1), QStringLiteral("Chosen Alert Date")));
    dateRow->addStretch(1);
    column->addLayout(dateRow);
    column->addWidget(NamedLabel(ArrayName(QStringLiteral("lblStart"), 0),
                                 QStringLiteral("Choose a Different Date Below")));
    auto* combos = new QHBoxLayout;
    cmbMonth_ = new QComboBox;
    cmbMonth_->setObjectName(QStringLiteral("cmbMonth"));
    cmbDay_ = new QComboBox;
    cmbDay_->setObjectName(QStringLiteral("cmbDay"));
    cmbYear_ = new QComboBox;
    cmbYear_->setObjectName(QStringLiteral("cmbYear"));
    cmbYear_->setMaxVisibleItems(20);
    for (QComboBox* list : {cmbMonth_, cmbDay_, cmbYear_})
        SelectAsTyped(list);
    combos->addWidget(cmbMonth_, 2);
    combos->addWidget(cmbDay_, 1);
    combos->addWidget(cmbYear_, 1);
    column->addLayout(combos);
    column->addSpacing(8);
    lblMessage_ = NamedLabel(QStringLiteral("lblMessage"), kAddingNewAlert);
    QFont bold = lblMessage_->font();
    bold.setBold(true);
    lblMessage_->setFont(bold);
    column->addWidget(lblMessage_);
    auto* messageCaption =
        NamedLabel(QStringLiteral("lblAlertMessage"), QStringLiteral("Alert Message to Display"));
    txtMessage_ = new QLineEdit;
    txtMessage_->setObjectName(QStringLiteral("txtMessage"));
    messageCaption->setBuddy(txtMessage_);
    column->addWidget(messageCaption);
    column->addWidget(txtMessage_);
    column->addWidget(BuildPeriodFrame());
    auto* buttons = new QHBoxLayout;
    const QStringList captions = {QStringLiteral("Save and Exit"),
                                  QStringLiteral("Save and Continue")};
    for (int i = 0; i < captions.size(); ++i) {
        auto* save = new QPushButton(captions[i]);
        save->setObjectName(ArrayName(QStringLiteral("cmdSave"), i));
        buttons->addWidget(save);
    }
    column->addLayout(buttons);
    column->addStretch(1);
    return editor;
}

QWidget* frmAlert::BuildPeriodFrame() {
    auto* frame = new QGroupBox(QStringLiteral("Alert Notification Period"));
    frame->setObjectName(QStringLiteral("framAlert"));
    auto* grid = new QGridLayout(frame);
    optValue_ = new QButtonGroup(this);
    // The options in two columns of three, the number of days on their right.
    constexpr int kRows = 3;
    for (int i = 0; i < PeriodCaptions().size(); ++i) {
        auto* option = new QRadioButton(PeriodCaptions()[i]);
        option->setObjectName(ArrayName(QStringLiteral("optValue"), i));
        optValue_->addButton(option, i);
        grid->addWidget(option, i % kRows, i / kRows);
    }
    txtValue_ = new QLineEdit;
    txtValue_->setObjectName(QStringLiteral("txtValue"));
    txtValue_->setMaximumWidth(70);
    txtValue_->setToolTip(QStringLiteral("The number of days before the date"));
    grid->addWidget(txtValue_, 0, 2);
    lblHint_ =
        NamedLabel(QStringLiteral("lblHint"),
                   QStringLiteral("Input days on the right or check from list on the left."));
    lblHint_->setWordWrap(true);
    grid->addWidget(lblHint_, kRows, 0, 1, 3);
    return frame;
}

QWidget* frmAlert::BuildListPanel() {
    auto* panel = new QWidget;
    auto* column = new QVBoxLayout(panel);
    lblList_ = NamedLabel(QStringLiteral("lblList"), QStringLiteral("Active Alert List"));
    column->addWidget(lblList_);
    // Lists 1 and 2 share one place, one of them shown; lists 0 and 3 stay out of sight.
    auto* lists = new QHBoxLayout;
    for (int member = 0; member < kLists; ++member) {
        auto* list = new QListWidget;
        list->setObjectName(ArrayName(QStringLiteral("lstAlerts"), member));
        list->setMinimumWidth(member == kRawList ? 200 : 220);
        list->setVisible(member == kDateList);
        lists_.append(list);
        lists->addWidget(list, member == kDateList || member == kMessageList ? 1 : 0);
    }
    column->addLayout(lists, 1);
    auto* remove = new QPushButton(QStringLiteral("Delete Selected from List"));
    remove->setObjectName(QStringLiteral("cmdDelete"));
    column->addWidget(remove);
    return panel;
}

void frmAlert::BuildMenus() {
    QMenu* file = AddMenu(MenuBar(), QStringLiteral("&File"), QStringLiteral("mnuFile"));
    AddCommand(
        file, QStringLiteral("&New"), QStringLiteral("mnuFileNew"), "mnuFileNew_Click",
        [this] { mnuFileNew_Click(); }, QKeySequence::New);
    AddCommand(
        file, QStringLiteral("&Save"), QStringLiteral("mnuFileSave"), "mnuFileSave_Click",
        [this] { cmdSave_Click(kSaveAndContinue); }, QKeySequence::Save);
    AddCommand(file, QStringLiteral("E&xit"), QStringLiteral("mnuFileExit"), "mnuFileExit_Click",
               [this] { CloseWindow(); });
    QMenu* edit = AddMenu(MenuBar(), QStringLiteral("&Edit"), QStringLiteral("mnuEdit"));
    AddCommand(
        edit, QStringLiteral("&Find"), QStringLiteral("mnuEditFind"), "mnuEditFind_Click",
        [this] { mnuEditFind_Click(); }, QKeySequence::Find);
    QMenu* options = AddMenu(MenuBar(), QStringLiteral("&Options"), QStringLiteral("mnuOpt"));
    AddCommand(options, QStringLiteral("Delete Expired Alerts"),
               QStringLiteral("mnuOptDeleteOldAlerts"), "mnuOptDeleteOldAlerts_Click",
               [this] { mnuOptDeleteOldAlerts_Click(); });
    QAction* help =
        AddCommand(options, QStringLiteral("Always Display Help Notices"),
                   QStringLiteral("mnuOptDisplayHelp"), "mnuOptDisplayHelp_Click", [this] {
                       lblHint_->setVisible(
                           Control<QAction>(QStringLiteral("mnuOptDisplayHelp"))->isChecked());
                   });
    help->setCheckable(true);
    help->setChecked(true);
    QMenu* view = AddMenu(MenuBar(), QStringLiteral("&View"), QStringLiteral("mnuView"));
    AddCommand(view, QStringLiteral("All Alerts"), QStringLiteral("mnuViewAll"), "mnuViewAll_Click",
               [this] { SetPendingOnly(false); });
    AddCommand(view, QStringLiteral("Pending Alerts Only"), QStringLiteral("mnuViewPending"),
               "mnuViewPending_Click", [this] { SetPendingOnly(true); });
    QAction* list0 =
        AddCommand(view, QStringLiteral("List 0"), QStringLiteral("mnuViewList0"),
                   "mnuViewList0_Click", [this] {
                       List(kRawList)->setVisible(
                           Control<QAction>(QStringLiteral("mnuViewList0"))->isChecked());
                   });
    list0->setCheckable(true);
    QMenu* sort = AddMenu(MenuBar(), QStringLiteral("&Sort List"), QStringLiteral("mnuSort"));
    AddCommand(sort, QStringLiteral("By Date"), QStringLiteral("mnuSortDate"), "mnuSortDate_Click",
               [this] { mnuSortDate_Click(); });
    AddCommand(sort, QStringLiteral("By Message"), QStringLiteral("mnuSortMessage"),
               "mnuSortMessage_Click", [this] { mnuSortMessage_Click(); });
}

void frmAlert::ConnectControls() {
    for (int i = 0; i < 2; ++i)
        On(Control<QPushButton>(QStringLiteral("cmdSave"), i), &QPushButton::clicked,
           "cmdSave_Click", [this, i] { cmdSave_Click(i); });
    On(Control<QPushButton>(QStringLiteral("cmdDelete")), &QPushButton::clicked, "cmdDelete_Click",
       [this] { cmdDelete_Click(); });
    for (const int member : {kDateList, kMessageList})
        On(List(member), &QListWidget::currentRowChanged, "lstAlerts_Click",
           [this] { ParseAlert(); });
    for (QComboBox* combo : {cmbMonth_, cmbDay_, cmbYear_})
        On(combo, &QComboBox::activated, "cmbDate_Click", [this] { cmbDate_Click(); });
    connect(optValue_, &QButtonGroup::idClicked, this,
            [this](int i) { services_.Trap("optValue_Click", [&] { optValue_Click(i); }); });
    // Typing a number of days unticks the options, which no longer say what the box holds.
    On(txtValue_, &QLineEdit::textEdited, "txtValue_Change", [this] {
        QString digits = txtValue_->text();
        digits.removeIf([](QChar c) { return c < u'0' || c > u'9'; });
        if (digits != txtValue_->text())
            txtValue_->setText(digits);
        ClearOptions();
    });
    txtDate_->installEventFilter(this);
    txtValue_->installEventFilter(this);
}

bool frmAlert::eventFilter(QObject* watched, QEvent* event) {
    if (watched == txtValue_ && event->type() == QEvent::KeyPress &&
        !txtValue_KeyPress(*static_cast<QKeyEvent*>(event)))
        return true;
    if (watched == txtValue_ && IsFocusLoss(event))
        services_.Trap("txtValue_LostFocus", [this] { txtValue_LostFocus(); });
    if (watched == txtDate_ && IsFocusLoss(event))
        services_.Trap("txtDate_LostFocus", [this] { txtDate_LostFocus(); });
    return ChildWindow::eventFilter(watched, event);
}

// ---- the lists -----------------------------------------------------------------------------

void frmAlert::LoadAlerts() {
    services_.Trap("LoadAlerts", [this] {
        if (alerts_.AlertCount() == 0)
            alerts_.AlertListChanged = true;
        const int selected = SelectedLine();
        QList<ShownAlert> shown;
        const QSignalBlocker date(List(kDateList)), message(List(kMessageList));
        for (QListWidget* list : lists_)
            list->clear();
        int line = 0;
        for (int i = 0; i < alerts_.AlertCount(); ++i) {
            if (alerts_.alertLines[i].isEmpty())
                continue;
            List(kRawList)->addItem(alerts_.alertLines[i]);
            if (!pendingOnly_ || alerts_.IsPending(i))
                shown.append({alerts_.alertDates[i], alerts_.alertMessages[i], line});
            ++line;
        }
        // The dates are ordered as dates, so that January of next year follows December.
        const auto byDate = [](const ShownAlert& a, const ShownAlert& b) {
            return a.date < b.date;
        };
        const auto byMessage = [](const ShownAlert& a, const ShownAlert& b) {
            return a.message.compare(b.message, Qt::CaseInsensitive) < 0;
        };
        if (order_ == SortOrder::ByDate)
            std::stable_sort(shown.begin(), shown.end(), byDate);
        else
            std::stable_sort(shown.begin(), shown.end(), byMessage);
        for (const ShownAlert& alert : shown) {
            List(kDateList)->addItem(datefmt::MmDdYy(alert.date));
            List(kDateList)->item(List(kDateList)->count() - 1)->setToolTip(alert.message);
            List(kMessageList)->addItem(alert.message);
            List(kLinkList)->addItem(QString::number(alert.line));
        }
        lblList_->setText(shown.isEmpty() ? kAlertListEmpty : AlertListCaption(int(shown.size())));
        // The alert in the editor stays selected; one no longer listed is kept as a new one.
        if (!SelectLine(selected))
            alerts_.AlertListChanged = true;
        SetHeading();
    });
}

QListWidget* frmAlert::VisibleList() const {
    return order_ == SortOrder::ByDate ? List(kDateList) : List(kMessageList);
}

int frmAlert::SelectedLine() const {
    const int row = VisibleList()->currentRow();
    if (row < 0 || row >= List(kLinkList)->count())
        return -1;
    return List(kLinkList)->item(row)->text().toInt();
}

QStringList frmAlert::RawLines() const {
    QStringList lines;
    for (int row = 0; row < List(kRawList)->count(); ++row)
        lines.append(List(kRawList)->item(row)->text());
    return lines;
}

bool frmAlert::SelectLine(int line) {
    for (int row = 0; row < List(kLinkList)->count(); ++row) {
        if (List(kLinkList)->item(row)->text().toInt() == line) {
            VisibleList()->setCurrentRow(row);
            return true;
        }
    }
    return false;
}

void frmAlert::Sort(SortOrder order) {
    order_ = order;
    LoadAlerts();
    QListWidget* shown = VisibleList();
    List(kDateList)->setVisible(shown == List(kDateList));
    List(kMessageList)->setVisible(shown == List(kMessageList));
    if (shown->count() > 0) {
        const QSignalBlocker block(shown);
        shown->setCurrentRow(0);
    }
    ParseAlert();
}

void frmAlert::SetPendingOnly(bool pendingOnly) {
    pendingOnly_ = pendingOnly;
    LoadAlerts();
}

void frmAlert::ParseAlert() {
    services_.Trap("ParseAlert", [this] {
        const int line = SelectedLine();
        if (line < 0 || line >= List(kRawList)->count())
            return;
        const AlertLine alert = ParseAlertLine(List(kRawList)->item(line)->text());
        SetDate(alert.date);
        txtValue_->setText(QString::number(alert.period));
        ClearOptions();
        txtMessage_->setText(alert.message);
        alerts_.AlertListChanged = false;
        SetHeading();
    });
}

void frmAlert::SetHeading() {
    lblMessage_->setText(alerts_.AlertListChanged ? kAddingNewAlert : kEditingExistingAlert);
}

// ---- choosing an alert from outside ----------------------------------------------------------

void frmAlert::NewAlertOn(const QDate& date) {
    SetDate(date);
    mnuFileNew_Click();
}

void frmAlert::ShowAlertOn(const QDate& date) {
    if (pendingOnly_)
        SetPendingOnly(false);
    for (int row = 0; row < List(kLinkList)->count(); ++row) {
        const int line = List(kLinkList)->item(row)->text().toInt();
        if (alerts_.alertDates.value(line) == date) {
            VisibleList()->setCurrentRow(row);
            return;
        }
    }
    NewAlertOn(date);
}

void frmAlert::ShowAlert(const QString& line, bool pendingOnly) {
    if (pendingOnly != pendingOnly_)
        SetPendingOnly(pendingOnly);
    SelectLine(int(RawLines().indexOf(line)));
}

// ---- the editor ----------------------------------------------------------------------------

void frmAlert::LoadComboBoxes() {
    for (int month = 1; month <= 12; ++month)
        cmbMonth_->addItem(datefmt::MonthName(month));
    for (int day = 1; day <= 31; ++day)
        cmbDay_->addItem(QStringLiteral("%1").arg(day, 2, 10, QLatin1Char('0')));
    for (int year = kFirstYear; year <= kLastYear; ++year)
        cmbYear_->addItem(QString::number(year));
}

void frmAlert::SetDate(const QDate& date) {
    txtDate_->setText(datefmt::MmDdYy(date));
    cmbMonth_->setCurrentIndex(date.month() - 1);
    cmbDay_->setCurrentIndex(date.day() - 1);
    cmbYear_->setCurrentIndex(cmbYear_->findText(QString::number(date.year())));
}

QDate frmAlert::ComboDate() const {
    // "September 31, 2026" is no date: the day goes back to the month's last.
    const QDate first(cmbYear_->currentText().toInt(), cmbMonth_->currentIndex() + 1, 1);
    if (!first.isValid())
        return {};
    return first.addDays(std::min(cmbDay_->currentIndex() + 1, first.daysInMonth()) - 1);
}

void frmAlert::cmbDate_Click() {
    const QDate date = ComboDate();
    if (date.isValid())
        SetDate(date);
}

void frmAlert::txtDate_LostFocus() {
    const QDate date = ParseDateInput(txtDate_->text(), services_.clock.today().year());
    if (date.isValid()) {
        SetDate(date);
        return;
    }
    services_.dialogs.MsgBox(kBadDateMessage, kWarningStyle, kBadDateTitle);
    txtDate_->selectAll();
    txtDate_->setFocus();
}

void frmAlert::optValue_Click(int index) {
    txtValue_->setText(PeriodCaptions()[index].left(2).trimmed());
}

void frmAlert::ClearOptions() {
    optValue_->setExclusive(false);
    for (QAbstractButton* option : optValue_->buttons())
        option->setChecked(false);
    optValue_->setExclusive(true);
}

bool frmAlert::PeriodTooLong() {
    if (txtValue_->text().size() <= 4)
        return false;
    services_.dialogs.MsgBox(kPeriodTooLongMessage);
    txtValue_->selectAll();
    txtValue_->setFocus();
    return true;
}

// Only digits and Backspace are typed into the number of days; false drops the key.
bool frmAlert::txtValue_KeyPress(const QKeyEvent& key) {
    const QString text = key.text();
    return text.isEmpty() || key.key() == Qt::Key_Backspace || !text.front().isPrint() ||
           (text.size() == 1 && text.front() >= u'0' && text.front() <= u'9');
}

void frmAlert::txtValue_LostFocus() {
    PeriodTooLong();
}

void frmAlert::mnuFileNew_Click() {
    txtMessage_->clear();
    txtValue_->clear();
    ClearOptions();
    for (const int member : {kDateList, kMessageList}) {
        const QSignalBlocker block(List(member));
        List(member)->setCurrentRow(-1);
    }
    alerts_.AlertListChanged = true;
    SetHeading();
}

// ---- saving --------------------------------------------------------------------------------

bool frmAlert::SaveLines(const QStringList& lines) {
    if (!alerts_.SaveAlerts(lines))
        return false;
    alerts_.ReadAlerts();
    LoadAlerts();
    return true;
}

void frmAlert::cmdSave_Click(int index) {
    // The alert being edited; a new one when the editor holds none.
    int edited = alerts_.AlertListChanged ? -1 : SelectedLine();
    if (edited >= 0) {
        const int answer = services_.dialogs.MsgBox(
            kOverwriteAlertQuestion, vb::YesNoCancel | vb::Question, kOverwriteAlertTitle);
        if (answer == vb::Cancel)
            return;
        if (answer == vb::No) {
            alerts_.AlertListChanged = true;
            SetHeading();
            edited = -1;
        }
    }
    if (txtValue_->text().isEmpty()) {
        services_.dialogs.MsgBox(kEmptyPeriodMessage);
        return;
    }
    if (PeriodTooLong())
        return;
    const QDate date = ParseDateInput(txtDate_->text(), services_.clock.today().year());
    if (!date.isValid() || !FitsAlertFile(date)) {
        services_.dialogs.MsgBox(date.isValid() ? kAlertDateOutOfRange : kBadDateMessage,
                                 kWarningStyle);
        return;
    }
    QStringList lines = RawLines();
    if (edited >= 0)
        lines.removeAt(edited);
    lines.append(MakeAlertLine(date, txtValue_->text().toInt(), txtMessage_->text()));
    if (!SaveLines(lines))
        return;
    // The alert saved stays in the editor, now as the existing alert it is.
    if (!SelectLine(int(List(kRawList)->count()) - 1))
        mnuFileNew_Click();
    if (index == kSaveAndExit)
        CloseWindow();
}

void frmAlert::cmdDelete_Click() {
    const int line = SelectedLine();
    if (line < 0) {
        services_.dialogs.MsgBox(kNoAlertSelected);
        return;
    }
    QStringList lines = RawLines();
    lines.removeAt(line);
    if (SaveLines(lines))
        mnuFileNew_Click();
}

void frmAlert::mnuOptDeleteOldAlerts_Click() {
    // Day numbers of five digits order as their texts do; an alert of today stays.
    const QString today = SerialText(services_.clock.today());
    QStringList lines = RawLines();
    for (qsizetype i = lines.size() - 1; i >= 0; --i)
        if (lines[i].left(5) < today)
            lines.removeAt(i);
    if (SaveLines(lines))
        mnuFileNew_Click();
}

void frmAlert::mnuEditFind_Click() {
    const QString text = services_.dialogs.InputBox(kFindAlertPrompt, kFindAlertTitle, lastFind_);
    if (text.isEmpty())
        return;
    lastFind_ = text;
    QListWidget* list = List(kMessageList);
    const int count = list->count();
    // From the alert after the selected one, round to the selected one itself.
    for (int step = 1; step <= count; ++step) {
        const int row = (VisibleList()->currentRow() + step + count) % count;
        if (list->item(row)->text().contains(text, Qt::CaseInsensitive)) {
            VisibleList()->setCurrentRow(row);
            return;
        }
    }
    services_.dialogs.MsgBox(AlertNotFoundMessage(text));
}
