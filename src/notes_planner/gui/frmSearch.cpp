#include "notes_planner/gui/frmSearch.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

#include "calendar/DateModel.h"
#include "notes_planner/SearchState.h"
#include "notes_planner/gui/NotesPlannerMessages.h"
#include "shell/DateFormats.h"
#include "shell/gui/DateDropDown.h"

namespace {

QLabel* Caption(const QString& text, QWidget* buddy) {
    auto* label = new QLabel(text);
    label->setBuddy(buddy);
    return label;
}

}  // namespace

QString frmSearch::AllYearsEntry() {
    return QStringLiteral("All Years");
}

frmSearch::frmSearch(NotesPlannerContext& context, std::function<void(const QDate&, bool)> open)
    : ChildWindow(context.services, QString::fromLatin1(kName), QStringLiteral("Search for...")),
      context_(context),
      open_(std::move(open)),
      cmbYear_(new QComboBox),
      cmbMonth_(new QComboBox),
      cmbPhrase_(new QComboBox),
      cmdSearch_(new QPushButton(QStringLiteral("Begin Search"))),
      lstResults_(new QListWidget),
      cmdOpen_(new QPushButton(QStringLiteral("View Selected"))),
      lblProgress_(new QLabel) {
    auto* layout = new QVBoxLayout(Body());
    layout->addWidget(BuildTimePeriodFrame());
    layout->addWidget(BuildOccurrencesFrame(), 1);
    LoadComboBoxes();
    // Every search starts in the notes, as the window does.
    optLocation_[1]->setChecked(true);
    optLocation_Click();
    setFocusProxy(cmbPhrase_);
}

QWidget* frmSearch::BuildTimePeriodFrame() {
    auto* frame = new QGroupBox(QStringLiteral("Select Time, Phrase and Location Below"));
    frame->setObjectName(QStringLiteral("framTimePeriod"));
    cmbYear_->setObjectName(QStringLiteral("cmbYear"));
    cmbMonth_->setObjectName(QStringLiteral("cmbMonth"));
    SelectAsTyped(cmbYear_);
    SelectAsTyped(cmbMonth_);
    cmbPhrase_->setObjectName(QStringLiteral("cmbPhrase"));
    cmbPhrase_->setEditable(true);
    cmbPhrase_->setInsertPolicy(QComboBox::NoInsert);
    cmbPhrase_->setMinimumContentsLength(30);
    cmdSearch_->setObjectName(QStringLiteral("cmdSearch"));
    cmdSearch_->setDefault(true);
    auto* grid = new QGridLayout(frame);
    grid->addWidget(Caption(QStringLiteral("Select Year"), cmbYear_), 0, 0);
    grid->addWidget(cmbYear_, 1, 0);
    grid->addWidget(Caption(QStringLiteral("Select Month"), cmbMonth_), 0, 1);
    grid->addWidget(cmbMonth_, 1, 1);
    grid->addWidget(Caption(QStringLiteral("Search Phrase"), cmbPhrase_), 2, 0, 1, 2);
    grid->addWidget(cmbPhrase_, 3, 0, 1, 2);
    const QString captions[] = {QStringLiteral("Search Planners"), QStringLiteral("Search Notes")};
    optLocation_ = MakeControlArray<QRadioButton>(QStringLiteral("optLocation"), 2, [&](int i) {
        auto* option = new QRadioButton(captions[i]);
        On(option, &QRadioButton::toggled, "optLocation_Click", [this] { optLocation_Click(); });
        grid->addWidget(option, 4, i);
        return option;
    });
    grid->addWidget(cmdSearch_, 5, 1, Qt::AlignRight);
    On(cmdSearch_, &QPushButton::clicked, "cmdSearch_Click", [this] { cmdSearch_Click(); });
    // Enter in the phrase starts the search.
    On(cmbPhrase_->lineEdit(), &QLineEdit::returnPressed, "cmdSearch_Click",
       [this] { cmdSearch_Click(); });
    return frame;
}

QWidget* frmSearch::BuildOccurrencesFrame() {
    auto* frame = new QGroupBox(QStringLiteral("Occurences"));
    frame->setObjectName(QStringLiteral("framOccurences"));
    lstResults_->setObjectName(QStringLiteral("lstResults"));
    cmdOpen_->setObjectName(QStringLiteral("cmdOpen"));
    lblProgress_->setObjectName(QStringLiteral("lblProgress"));
    auto* layout = new QVBoxLayout(frame);
    layout->addWidget(lstResults_, 1);
    auto* row = new QHBoxLayout;
    row->addWidget(lblProgress_, 1);
    row->addWidget(cmdOpen_);
    layout->addLayout(row);
    On(cmdOpen_, &QPushButton::clicked, "cmdOpen_Click", [this] { cmdOpen_Click(); });
    On(lstResults_, &QListWidget::itemActivated, "cmdOpen_Click", [this] { cmdOpen_Click(); });
    return frame;
}

void frmSearch::LoadComboBoxes() {
    QList<int> years = DataFolderYears(services_.AppFolder);
    const int working = context_.dates.ThisYear;
    for (const int year : {working, working + 1})
        if (!years.contains(year))
            years.append(year);
    std::sort(years.begin(), years.end());
    for (const int year : years)
        cmbYear_->addItem(QString::number(year), year);
    cmbYear_->addItem(AllYearsEntry(), 0);
    cmbYear_->setCurrentIndex(cmbYear_->findData(context_.dates.SelectedDate.year()));
    cmbMonth_->addItem(QStringLiteral("All Months"), 0);
    for (int month = 1; month <= 12; ++month)
        cmbMonth_->addItem(datefmt::MonthName(month), month);
}

void frmSearch::optLocation_Click() {
    context_.search.location = Location() == SearchLocation::Planners ? QStringLiteral("Planners")
                                                                      : QStringLiteral("Notes");
}

SearchLocation frmSearch::Location() const {
    return optLocation_[0]->isChecked() ? SearchLocation::Planners : SearchLocation::Notes;
}

void frmSearch::cmdSearch_Click() {
    const QString phrase = cmbPhrase_->currentText().trimmed();
    if (phrase.isEmpty()) {
        services_.dialogs.MsgBox(kNoPhraseMessage);
        return;
    }
    if (cmbPhrase_->findText(phrase) < 0)
        cmbPhrase_->insertItem(0, phrase);
    lstResults_->clear();
    matcher_ = std::make_unique<PhraseMatcher>(phrase);
    searchedLocation_ = Location();
    context_.search.phrase = phrase;
    optLocation_Click();
    const int year = cmbYear_->currentData().toInt();
    if (year != 0) {
        AddResults(SearchYear(services_.AppFolder, year, cmbMonth_->currentData().toInt(),
                              searchedLocation_, *matcher_));
        ReportCount();
        return;
    }
    // Every year, newest first, one year at a time.
    pendingYears_ = DataFolderYears(services_.AppFolder);
    std::reverse(pendingYears_.begin(), pendingYears_.end());
    cmdSearch_->setEnabled(false);
    searching_ = true;
    SearchNextYear();
}

void frmSearch::SearchNextYear() {
    if (pendingYears_.isEmpty()) {
        lblProgress_->clear();
        cmdSearch_->setEnabled(true);
        searching_ = false;
        ReportCount();
        return;
    }
    const int year = pendingYears_.takeFirst();
    lblProgress_->setText(QStringLiteral("Searching %1...").arg(year));
    QList<QDate> found = SearchYear(services_.AppFolder, year, cmbMonth_->currentData().toInt(),
                                    searchedLocation_, *matcher_);
    std::sort(found.begin(), found.end(), std::greater<>());
    AddResults(found);
    QTimer::singleShot(0, this,
                       [this] { services_.Trap("cmdSearch_Click", [this] { SearchNextYear(); }); });
}

void frmSearch::AddResults(const QList<QDate>& dates) {
    for (const QDate& date : dates) {
        auto* item = new QListWidgetItem(datefmt::LongDate(date), lstResults_);
        item->setData(Qt::UserRole, date);
    }
    if (lstResults_->currentRow() < 0 && lstResults_->count() > 0)
        lstResults_->setCurrentRow(0);
}

void frmSearch::ReportCount() {
    const int count = lstResults_->count();
    services_.dialogs.MsgBox(count == 0 ? kPhraseNotFoundMessage : AppearsOnMessage(count));
    if (count > 0)
        lstResults_->setFocus();
}

void frmSearch::cmdOpen_Click() {
    QListWidgetItem* item = lstResults_->currentItem();
    if (!item || !item->isSelected()) {
        services_.dialogs.MsgBox(kNothingSelectedMessage);
        return;
    }
    open_(item->data(Qt::UserRole).toDate(), searchedLocation_ == SearchLocation::Planners);
}
