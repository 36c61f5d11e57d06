#include "help/gui/HelpMenus.h"

#include <QComboBox>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QToolButton>

#include "help/HelpMessages.h"
#include "help/gui/frmHelp.h"
#include "help/modHelp.h"
#include "shell/Services.h"
#include "shell/gui/frmMain.h"

namespace {

const QString kFirstTopic = QStringLiteral("Getting Started");

}  // namespace

HelpMenus::HelpMenus(frmMain& frame, HelpTopics& topics, Services& services)
    : QObject(&frame), frame_(frame), topics_(topics), services_(services) {
    Handle(frame_.MenuItem(QStringLiteral("mnuHelpContents")), this,
           &HelpMenus::mnuHelpContents_Click);
    Handle(frame_.MenuItem(QStringLiteral("mnuHelpSoftwareVersion")), this,
           &HelpMenus::mnuHelpSoftwareVersion_Click);
    connect(frame_.Control<QToolButton>(QStringLiteral("imgHelp")), &QToolButton::clicked, this,
            &HelpMenus::imgHelp_Click);
    connect(frame_.Control<QComboBox>(QStringLiteral("cmbHelp")), &QComboBox::currentIndexChanged,
            this, &HelpMenus::cmbHelp_Click);
}

void HelpMenus::LoadHelpTopics() {
    topics_.LoadHelpTopics(services_);
    auto* cmbHelp = frame_.Control<QComboBox>(QStringLiteral("cmbHelp"));
    const QSignalBlocker block(cmbHelp);
    cmbHelp->clear();
    cmbHelp->addItems(topics_.Names());
    cmbHelp->setCurrentIndex(cmbHelp->count() ? std::max(0, cmbHelp->findText(kFirstTopic)) : -1);
    cmbHelp_Click();
}

void HelpMenus::cmbHelp_Click() {
    const int topic = frame_.Control<QComboBox>(QStringLiteral("cmbHelp"))->currentIndex();
    frame_.Control<QPlainTextEdit>(QStringLiteral("txtHelp"))
        ->setPlainText(topic >= 0 && topic < topics_.TopicCount()
                           ? topics_.topics()[topic].description.trimmed()
                           : QString());
}

void HelpMenus::OpenHelp(int topic) {
    auto* help = static_cast<frmHelp*>(frame_.ShowChild(
        QStringLiteral("frmHelp"), [this] { return new frmHelp(topics_, services_); }));
    if (topic >= 0)
        help->SelectTopic(topic);
}

void HelpMenus::imgHelp_Click() {
    OpenHelp(frame_.Control<QComboBox>(QStringLiteral("cmbHelp"))->currentIndex());
}

void HelpMenus::mnuHelpContents_Click() {
    OpenHelp(-1);
}

void HelpMenus::mnuHelpSoftwareVersion_Click() {
    services_.dialogs.MsgBox(kVersionMessage, kInformationStyle, kVersionTitle);
}
