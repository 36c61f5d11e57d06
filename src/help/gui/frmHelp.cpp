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

#include "help/modHelp.h"
#include "shell/Services.h"
#include "shell/gui/Controls.h"

namespace {

const QString kNothingToSearch = QStringLiteral("Nothing to search for.");
const QString kNotFound = QStringLiteral("Search Phrase not Found");
const QString kEndOfSearch = QStringLiteral("End of Search");
QString SearchHelpText() {
    return QStringLiteral(
               "The search looks for your entry as one single phrase throughout each "
               "help topic.") +
           kCrLf + kCrLf +
           QStringLiteral(
               "Two or more words are found only where they stand together, in the "
               "order typed, so a search for two words that appear apart in a topic "
               "finds nothing.") +
           kCrLf + kCrLf +
           QStringLiteral(
               "For the best results, search for one word at a time. Find Now starts "
               "at the first topic; Find Again goes on from the topic after the last "
               "one found.");
}

}  // namespace

frmHelp::frmHelp(const HelpTopics& topics, Services& services, QWidget* parent)
    : QWidget(parent), topics_(topics), services_(services) {
    setWindowTitle(QStringLiteral("Orvanta Help"));
    auto* layout = new QVBoxLayout(this);
    auto* bar = new QMenuBar(this);
    QAction* help = bar->addAction(QStringLiteral("&Help on Search"));
    help->setObjectName(QStringLiteral("mnuHelp"));
    connect(help, &QAction::triggered, this, &frmHelp::mnuHelp_Click);
    layout->setMenuBar(bar);

    auto* panes = new QHBoxLayout;
    auto* framTopics = new QGroupBox(QStringLiteral("Help Topics"));
    framTopics->setObjectName(QStringLiteral("framTopics"));
    lstHelp_ = new QListWidget;
    lstHelp_->setObjectName(QStringLiteral("lstHelp"));
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
    for (int i = 0; i < 2; ++i) {
        auto* button = new QPushButton(captions[i]);
        button->setObjectName(ArrayName(QStringLiteral("cmdSearch"), i));
        connect(button, &QPushButton::clicked, this, [this, i] { cmdSearch_Click(i); });
        searchRow->addWidget(button);
    }
    layout->addWidget(framSearch);
    // Enter in the search box finds the next hit.
    connect(txtSearch_, &QLineEdit::returnPressed, this,
            [this] { cmdSearch_Click(lastHit_ < 0 ? 0 : 1); });
    connect(txtSearch_, &QLineEdit::textEdited, this, [this] { lastHit_ = -1; });

    lstHelp_->addItems(topics_.Names());
    connect(lstHelp_, &QListWidget::currentRowChanged, this, &frmHelp::lstHelp_Click);
    SelectTopic(0);
    resize(720, 480);
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
    services_.dialogs.MsgBox(again ? kEndOfSearch : kNotFound);
    lastHit_ = -1;
}

void frmHelp::mnuHelp_Click() {
    services_.dialogs.MsgBox(SearchHelpText(), vb::OKOnly | vb::Information,
                             QStringLiteral("Help on Search"));
}
