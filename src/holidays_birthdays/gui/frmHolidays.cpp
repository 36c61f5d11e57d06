#include "holidays_birthdays/gui/frmHolidays.h"

#include <QComboBox>
#include <QDir>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "calendar/DateModel.h"
#include "calendar/gui/CalendarMenus.h"
#include "holidays_birthdays/HolidaysBirthdaysMessages.h"
#include "holidays_birthdays/IcsHolidays.h"
#include "holidays_birthdays/modHolidays.h"
#include "shell/DateFormats.h"
#include "shell/DateInput.h"
#include "shell/TextFile.h"
#include "shell/gui/DateDropDown.h"

namespace {

// The first year the list offers; it runs to ten years after today's.
constexpr int kFirstListedYear = 2008;

QLabel* Caption(const QString& name, const QString& text, QWidget* buddy) {
    auto* label = new QLabel(text);
    if (!name.isEmpty())
        label->setObjectName(name);
    label->setBuddy(buddy);
    return label;
}

QPushButton* Button(const QString& name, const QString& caption) {
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    return button;
}

// A typed date; one typed without its year ("Dec 25", "12/25") is taken in year.
QDate TypedDate(const QString& text, int year) {
    const QDate date = ParseDateInput(text, year);
    if (date.isValid())
        return date;
    const QString separator = text.contains(u'/') ? QStringLiteral("/") : QStringLiteral(", ");
    return ParseDateInput(text + separator + QString::number(year), year);
}

}  // namespace

frmHolidays::frmHolidays(HolidaysBirthdaysContext& context)
    : ChildWindow(context.services, QString::fromLatin1(kName), kHolidayManagerCaption),
      context_(context),
      cmbYear_(new QComboBox),
      lstHolidays_(new QListWidget),
      txtDate_(new QLineEdit),
      txtDesc_(new QLineEdit),
      cmdSave_(Button(QStringLiteral("cmdSave"), QStringLiteral("Save and Update List"))) {
    BuildControls();
    BuildMenus();
    // Form_Load: the calendar's year, its list, then the years offered.
    selectedYear_ = context_.dates.ThisYear;
    LoadHolidayList();
    PopulateComboList();
    setFocusProxy(txtDate_);
}

void frmHolidays::BuildControls() {
    cmbYear_->setObjectName(QStringLiteral("cmbYear"));
    SelectAsTyped(cmbYear_);
    lstHolidays_->setObjectName(QStringLiteral("lstHolidays"));
    txtDate_->setObjectName(QStringLiteral("txtDate"));
    txtDate_->setToolTip(QStringLiteral("Type a date, such as Dec 25 or 12/25"));
    txtDesc_->setObjectName(QStringLiteral("txtDesc"));
    auto* cmdAddNew = Button(QStringLiteral("cmdAddNew"), QStringLiteral("Insert New Holiday"));
    auto* cmdDelete = Button(QStringLiteral("cmdDelete"), QStringLiteral("Remove this Holiday"));

    auto* grid = new QGridLayout(Body());
    grid->addWidget(
        Caption(QStringLiteral("lblYear"), QStringLiteral("Change the Year Below"), cmbYear_), 0,
        0);
    grid->addWidget(cmbYear_, 1, 0);
    grid->addWidget(Caption(QStringLiteral("lblList"),
                            QStringLiteral("Holiday List - Click to Select"), lstHolidays_),
                    2, 0);
    grid->addWidget(lstHolidays_, 3, 0);
    // The date, the description and the buttons, one under another beside the list.
    auto* fields = new QVBoxLayout;
    fields->addWidget(Caption({}, QStringLiteral("Date"), txtDate_));
    fields->addWidget(txtDate_);
    fields->addWidget(Caption(QStringLiteral("lblDesc"), QStringLiteral("Description"), txtDesc_));
    fields->addWidget(txtDesc_);
    fields->addSpacing(8);
    for (QPushButton* button : {cmdAddNew, cmdSave_, cmdDelete})
        fields->addWidget(button);
    fields->addStretch();
    grid->addLayout(fields, 3, 1);
    grid->setColumnStretch(0, 1);
    lstHolidays_->setMinimumWidth(QFontMetrics(font()).averageCharWidth() * 36);
    txtDesc_->setMinimumWidth(QFontMetrics(font()).averageCharWidth() * 30);

    On(cmbYear_, &QComboBox::activated, "cmbYear_Click", [this] { cmbYear_Click(); });
    On(lstHolidays_, &QListWidget::itemSelectionChanged, "lstHolidays_Click",
       [this] { lstHolidays_Click(); });
    On(cmdAddNew, &QPushButton::clicked, "cmdAddNew_Click", [this] { cmdAddNew_Click(); });
    On(cmdSave_, &QPushButton::clicked, "cmdSave_Click", [this] { cmdSave_Click(); });
    On(cmdDelete, &QPushButton::clicked, "cmdDelete_Click", [this] { cmdDelete_Click(); });
    for (QWidget* widget : {static_cast<QWidget*>(txtDate_), static_cast<QWidget*>(txtDesc_),
                            static_cast<QWidget*>(cmdSave_)})
        widget->installEventFilter(this);
}

void frmHolidays::BuildMenus() {
    QMenu* file = AddMenu(MenuBar(), QStringLiteral("&File"), QStringLiteral("mnuFile"));
    AddCommand(file, QStringLiteral("&New Holiday List"), QStringLiteral("mnuFileNew"),
               "mnuFileNew_Click", [this] { mnuFileNew_Click(); });
    AddCommand(
        file, QStringLiteral("&Save"), QStringLiteral("mnuFileSave"), "mnuFileSave_Click",
        [this] { mnuFileSave_Click(); }, QKeySequence(Qt::CTRL | Qt::Key_S));
    AddCommand(
        file, QStringLiteral("&Import from iCalendar..."), QStringLiteral("mnuFileImportIcs"),
        "mnuFileImportIcs_Click", [this] { mnuFileImportIcs_Click(); },
        QKeySequence(Qt::CTRL | Qt::Key_O));
    file->addSeparator();
    AddCommand(file, QStringLiteral("E&xit"), QStringLiteral("mnuFileExit"), "mnuFileExit_Click",
               [this] { CloseWindow(); });
}

void frmHolidays::PopulateComboList() {
    // The years from 2008 to ten years after today's, and the year shown when it lies
    // outside them.
    QList<int> years;
    for (int year = kFirstListedYear; year <= context_.services.clock.today().year() + 10; ++year)
        years.append(year);
    if (!years.contains(selectedYear_))
        years.append(selectedYear_);
    std::sort(years.begin(), years.end());
    cmbYear_->clear();
    for (const int year : years)
        cmbYear_->addItem(QString::number(year));
    cmbYear_->setCurrentText(QString::number(selectedYear_));
}

void frmHolidays::SelectYear(int year) {
    selectedYear_ = year;
    if (cmbYear_->findText(QString::number(year)) < 0)
        PopulateComboList();
    cmbYear_->setCurrentText(QString::number(year));
}

void frmHolidays::cmbYear_Click() {
    selectedYear_ = cmbYear_->currentText().toInt();
    LoadHolidayList();
}

void frmHolidays::LoadHolidayList() {
    lstHolidays_->clear();
    HolidayList list = ReadHolidayList(services_, "LoadHolidayList", selectedYear_);
    file_ = list.file;
    if (!list.lines && !file_.PartlyRead()) {
        services_.dialogs.MsgBox(kNoHolidayListMessage + QString::number(selectedYear_));
        txtDesc_->clear();
        txtDate_->clear();
        return;
    }
    lstHolidays_->addItems(list.lines.value_or(QStringList()));
    if (lstHolidays_->count() > 0) {
        lstHolidays_->setCurrentRow(0);
        ShowEntry(0);
    }
}

void frmHolidays::ShowEntry(int row) {
    const QString line = lstHolidays_->item(row)->text();
    const HolidayLine split = SplitHolidayLine(line);
    txtDesc_->setText(split.name);
    const QDate date = datefmt::ParseMmDdYy(split.date, selectedYear_);
    txtDate_->setText(date.isValid() ? datefmt::MmmDdYyyy(date) : split.date);
}

void frmHolidays::lstHolidays_Click() {
    if (lstHolidays_->currentRow() >= 0)
        ShowEntry(lstHolidays_->currentRow());
}

void frmHolidays::cmdAddNew_Click() {
    txtDate_->clear();
    txtDesc_->clear();
    txtDate_->setFocus();
}

void frmHolidays::PresetNewHoliday(const QDate& date) {
    if (date.year() != selectedYear_) {
        SelectYear(date.year());
        LoadHolidayList();
    }
    txtDate_->setText(datefmt::MmmDdYyyy(date));
    txtDesc_->clear();
    txtDesc_->setFocus();
}

QStringList frmHolidays::ListedLines() const {
    QStringList lines;
    for (int row = 0; row < lstHolidays_->count(); ++row)
        lines.append(lstHolidays_->item(row)->text());
    return lines;
}

void frmHolidays::cmdSave_Click() {
    const auto refuse = [this](const QString& message, QLineEdit* box) {
        services_.dialogs.MsgBox(message);
        box->setFocus();
    };
    if (txtDate_->text().trimmed().isEmpty())
        return refuse(kNoDateEnteredMessage, txtDate_);
    const QDate typed = TypedDate(txtDate_->text().trimmed(), selectedYear_);
    // The list keeps dates of its own year: the day must be one of the selected year's.
    if (!typed.isValid() || !QDate(selectedYear_, typed.month(), typed.day()).isValid())
        return refuse(kDateNotRecognizedMessage, txtDate_);
    if (txtDesc_->text().trimmed().isEmpty())
        return refuse(kEnterDescriptionMessage, txtDesc_);
    const QString key = HolidayDateKey(typed, selectedYear_);
    if (SaveHolidayFile(WithHoliday(ListedLines(), key, txtDesc_->text()))) {
        LoadHolidayList();
        const QList<QListWidgetItem*> saved = lstHolidays_->findItems(key, Qt::MatchStartsWith);
        if (!saved.isEmpty())
            lstHolidays_->setCurrentItem(saved.first());
    }
}

void frmHolidays::cmdDelete_Click() {
    const int row = lstHolidays_->currentRow();
    if (row < 0)
        return;
    QStringList lines = ListedLines();
    lines.removeAt(row);
    if (SaveHolidayFile(lines))
        LoadHolidayList();
}

void frmHolidays::mnuFileNew_Click() {
    // A new list for the selected year; it replaces the year's file when it is first saved,
    // so a year that has holidays is emptied only once the user has agreed.
    if (lstHolidays_->count() > 0 &&
        services_.dialogs.MsgBox(NewHolidayListQuestion(selectedYear_), kQuestionStyle,
                                 kNewHolidayListTitle) != vb::Yes)
        return;
    lstHolidays_->clear();
    cmdAddNew_Click();
}

void frmHolidays::mnuFileSave_Click() {
    ShowOnCalendar();
}

bool frmHolidays::SaveHolidayFile(const QStringList& lines) {
    file_.UseName(HolidayFileName(selectedYear_));
    if (!SaveHolidayList(services_, "SaveHolidayFile", file_, lines))
        return false;
    changed_ = true;
    ShowOnCalendar();
    return true;
}

void frmHolidays::ShowOnCalendar() {
    if (selectedYear_ == context_.dates.ThisYear)
        context_.holidays.AssignThisYearsHolidays();
    else if (selectedYear_ == context_.dates.ThisYear + 1)
        context_.holidays.AssignNextYearsHolidays();
    context_.calendar.RedrawCalendar();
}

void frmHolidays::mnuFileImportIcs_Click() {
    const QString path = services_.dialogs.OpenFileName(
        QStringLiteral("Import Holidays from iCalendar"), QDir::homePath(),
        QStringLiteral("iCalendar files (*.ics);;All files (*)"));
    if (path.isEmpty())
        return;
    const std::optional<QByteArray> bytes = ReadIcsFile(path);
    if (!bytes) {
        services_.dialogs.MsgBox(IcsUnreadableMessage(QDir::toNativeSeparators(path)),
                                 kWarningStyle);
        return;
    }
    const IcsImport found = HolidaysFromIcs(*bytes, selectedYear_);
    if (!found.problem.isEmpty()) {
        services_.dialogs.MsgBox(found.problem, kWarningStyle);
        return;
    }
    if (found.holidays.isEmpty()) {
        services_.dialogs.MsgBox(IcsNothingInYearMessage(selectedYear_));
        return;
    }
    QStringList lines = ListedLines();
    for (const IcsHoliday& holiday : found.holidays)
        lines = WithHoliday(lines, HolidayDateKey(holiday.date, selectedYear_), holiday.summary);
    if (SaveHolidayFile(lines)) {
        LoadHolidayList();
        services_.dialogs.MsgBox(IcsImportedMessage(found.holidays.size(), selectedYear_),
                                 kInformationStyle);
    }
}

bool frmHolidays::Form_QueryUnload() {
    if (changed_) {
        changed_ = false;
        services_.dialogs.MsgBox(kHolidayListSavedMessage);
    }
    return true;
}

bool frmHolidays::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            // Enter goes from the date to the description to the button, which it then presses.
            if (watched == txtDate_)
                services_.Trap("txtDate_KeyDown", [this] { txtDesc_->setFocus(); });
            else if (watched == txtDesc_)
                services_.Trap("txtDesc_KeyDown", [this] { cmdSave_->setFocus(); });
            else
                cmdSave_->click();
            return true;
        }
    }
    return ChildWindow::eventFilter(watched, event);
}
