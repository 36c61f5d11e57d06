#include "terms/gui/frmEditFUT.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "terms/TermMessages.h"

frmEditFUT::frmEditFUT(Services& services, std::function<bool(const QString&)> save)
    : ChildWindow(services, QString::fromLatin1(kName), QStringLiteral("Frequently Used Term")),
      txtTerm_(new QLineEdit),
      save_(std::move(save)) {
    txtTerm_->setObjectName(QStringLiteral("txtTerm"));
    auto* layout = new QGridLayout(Body());
    layout->addWidget(new QLabel(QStringLiteral("Term:")), 0, 0);
    layout->addWidget(txtTerm_, 0, 1, 1, 3);
    const struct {
        const char* name;
        const char* caption;
        const char* handler;
        void (frmEditFUT::*click)();
    } buttons[] = {
        {"cmdSave", "Save", "cmdSave_Click", &frmEditFUT::cmdSave_Click},
        {"cmdSaveContinue", "Save and Continue", "cmdSaveContinue_Click",
         &frmEditFUT::cmdSaveContinue_Click},
        {"cmdExit", "Exit", "cmdExit_Click", &frmEditFUT::cmdExit_Click},
    };
    for (int i = 0; i < 3; ++i) {
        auto* button = new QPushButton(QString::fromLatin1(buttons[i].caption));
        button->setObjectName(QString::fromLatin1(buttons[i].name));
        const auto click = buttons[i].click;
        On(button, &QPushButton::clicked, buttons[i].handler, [this, click] { (this->*click)(); });
        layout->addWidget(button, 1, i + 1);
    }
    OnEnter("cmdSave_Click", [this] { cmdSave_Click(); });
    txtTerm_->setMinimumWidth(320);
    setFocusProxy(txtTerm_);
}

void frmEditFUT::Start(const QString& term, std::function<bool(const QString&)> save) {
    save_ = std::move(save);
    txtTerm_->setText(term);
    txtTerm_->selectAll();
    txtTerm_->setFocus();
}

bool frmEditFUT::SaveTerm() {
    if (txtTerm_->text().isEmpty()) {
        services_.dialogs.MsgBox(kNoTermToSave);
        return false;
    }
    return save_ && save_(txtTerm_->text());
}

void frmEditFUT::cmdSave_Click() {
    if (SaveTerm())
        CloseWindow();
}

void frmEditFUT::cmdSaveContinue_Click() {
    if (!SaveTerm())
        return;
    txtTerm_->clear();
    txtTerm_->setFocus();
}
