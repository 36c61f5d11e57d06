#include "help/gui/frmHelp.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "help/HelpMessages.h"
#include "help/modHelp.h"

namespace {

// The topic list is as wide as its longest name allows, within these bounds; longer names wrap
// rather than hide behind a scroll bar.
constexpr int kListMinWidth = 160;
constexpr int kListMaxWidth = 320;

}  // namespace

frmHelp::frmHelp(const HelpTopics& topics, Services& services, QWidget* parent)
    : ChildWindow(services, QStringLiteral("frmHelp"), QStringLiteral("Orvanta Help"), parent),
      topics_(topics) {
    auto* layout = new QVBoxLayout(Body());
    auto* bar = new QMenuBar(Body());
    QAction* help = bar->addAction(QStringLiteral("&Help on Search"));
    help->setObjectName(QStringLiteral("mnuHelp"));
    On(help, &QAction::triggered, "mnuHelp_Click", [this] { mnuHelp_Click(); });
    layout->setMenuBar(bar);

    auto* panes = new QHBoxLayout;
    auto* framTopics = new QGroupBox(QStringLiteral("Help Topics"));
    framTopics->setObjectName(QStringLiteral("framTopics"));
    lstHelp_ = new QListWidget;
    lstHelp_->setObjectName(QStringLiteral("lstHelp"));
    lstHelp_->setWordWrap(true);
    lstHelp_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    lstHelp_->addItems(topics_.Names());
    lstHelp_->setMinimumWidth(
        std::clamp(lstHelp_->sizeHintForColumn(0) + 30, kListMinWidth, kListMaxWidth));
    (new QVBoxLayout(framTopics))->addWidget(lstHelp_);
    auto* framDesc = new QGroupBox(QStringLiteral("Topic Description"));
    framDesc->setObjectName(QStringLiteral("framDesc"));
    txtHelp_ = new QPlainTextEdit;
    txtHelp_->setObjectName(QStringLiteral("txtHelp"));
    txtHelp_->setReadOnly(true);
    (new QVBoxLayout(framDesc))->addWidget(txtHelp_);
    panes->addWidget(framTopics, 1);
    panes->addWidget(framDesc, 2);
    layout->addLayout(panes, 1);

    auto* framSearch = new QGroupBox(QStringLiteral("Search"));
    framSearch->setObjectName(QStringLiteral("framSearch"));
    auto* searchRow = new QHBoxLayout(framSearch);
    auto* lblSearch = new QLabel(QStringLiteral("Search for..."));
    lblSearch->setObjectName(QStringLiteral("lblSearch"));
    txtSearch_ = new QLineEdit;
    txtSearch_->setObjectName(QStringLiteral("txtSearch"));
    lblSearch->setBuddy(txtSearch_);
    searchRow->addWidget(lblSearch);
    searchRow->addWidget(txtSearch_, 1);
    const QStringList captions = {QStringLiteral("Find Now"), QStringLiteral("Find Again")};
    const QList<QPushButton*> buttons = MakeControlArray<QPushButton>(
        QStringLiteral("cmdSearch"), 2, [&](int i) { return new QPushButton(captions[i]); });
    for (int i = 0; i < 2; ++i) {
        On(buttons[i], &QPushButton::clicked, "cmdSearch_Click", [this, i] { cmdSearch_Click(i); });
        searchRow->addWidget(buttons[i]);
    }
    layout->addWidget(framSearch);
    // Enter in the search box finds the next hit.
    On(txtSearch_, &QLineEdit::returnPressed, "txtSearch_KeyPress",
       [this] { cmdSearch_Click(lastHit_ < 0 ? 0 : 1); });
    connect(txtSearch_, &QLineEdit::textEdited, this, [this] { lastHit_ = -1; });

    connect(lstHelp_, &QListWidget::currentRowChanged, this, &frmHelp::lstHelp_Click);
    SelectTopic(0);
}

void frmHelp::SelectTopic(int topic) {
    if (topic >= 0 && topic < lstHelp_->count())
        lstHelp_->setCurrentRow(topic);
    lstHelp_Click();
}

void frmHelp::lstHelp_Click() {
    const int topic = lstHelp_->currentRow();
    txtHelp_->setPlainText(topic >= 0 && topic < topics_.TopicCount()
                               ? topics_.topics()[topic].description.trimmed()
                               : QString());
}

void frmHelp::cmdSearch_Click(int index) {
    const QString phrase = txtSearch_->text();
    if (phrase.isEmpty()) {
        services_.dialogs.MsgBox(kNothingToSearch);
        return;
    }
    const bool again = index == 1 && lastHit_ >= 0;
    const int hit = topics_.FindPhrase(phrase, again ? lastHit_ + 1 : 0);
    if (hit >= 0) {
        lastHit_ = hit;
        SelectTopic(hit);
        return;
    }
    services_.dialogs.MsgBox(again ? kEndOfSearch : kPhraseNotFound);
    lastHit_ = -1;
}

void frmHelp::mnuHelp_Click() {
    services_.dialogs.MsgBox(kHelpOnSearchText, kInformationStyle, kHelpOnSearchTitle);
}
