#include "decorations/gui/frmIcons.h"

#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "decorations/DecorationMessages.h"
#include "decorations/gui/IconList.h"
#include "decorations/gui/IconPictures.h"
#include "decorations/modIcons.h"

frmIcons::frmIcons(Services& services, modIcons& icons)
    : ChildWindow(services, QString::fromLatin1(kName), kIconsCaption),
      icons_(icons),
      lstIcons_(new IconList(icons, QStringLiteral("lstIcons"))),
      txtCaption_(new QLineEdit) {
    auto* grid = new QGridLayout(Body());
    grid->addWidget(lstIcons_, 0, 0, 1, 3);
    auto* lblCaption = new QLabel(QStringLiteral("Caption:"));
    lblCaption->setObjectName(QStringLiteral("lblCaption"));
    lblCaption->setBuddy(txtCaption_);
    txtCaption_->setObjectName(QStringLiteral("txtCaption"));
    grid->addWidget(lblCaption, 1, 0);
    grid->addWidget(txtCaption_, 1, 1, 1, 2);
    const auto button = [&](const QString& caption, const QString& name, int column,
                            const char* handler, void (frmIcons::*click)()) {
        auto* cmd = new QPushButton(caption);
        cmd->setObjectName(name);
        grid->addWidget(cmd, 2, column);
        On(cmd, &QPushButton::clicked, handler, [this, click] { (this->*click)(); });
    };
    button(QStringLiteral("&Add Picture..."), QStringLiteral("cmdAdd"), 0, "cmdAdd_Click",
           &frmIcons::cmdAdd_Click);
    button(QStringLiteral("&Change Caption"), QStringLiteral("cmdChange"), 1, "cmdChange_Click",
           &frmIcons::cmdChange_Click);
    button(QStringLiteral("&Remove"), QStringLiteral("cmdRemove"), 2, "cmdRemove_Click",
           &frmIcons::cmdRemove_Click);
    On(lstIcons_, &QListWidget::currentRowChanged, "lstIcons_Click", [this] { lstIcons_Click(); });
    connect(&icons_, &modIcons::iconsChanged, lstIcons_, &IconList::Refresh);
    setFocusProxy(lstIcons_);
    lstIcons_->setMinimumSize(360, 260);
    lstIcons_->setCurrentRow(0);
}

void frmIcons::lstIcons_Click() {
    txtCaption_->setText(icons_.Caption(lstIcons_->SelectedNumber()));
}

void frmIcons::cmdAdd_Click() {
    const QString path = services_.dialogs.OpenFileName(kPickPictureCaption, {}, kPictureFilter);
    if (path.isEmpty())
        return;
    const QImage picture = iconpictures::ReadPicture(path);
    if (picture.isNull()) {
        services_.dialogs.MsgBox(kPictureUnreadable, kWarningStyle);
        return;
    }
    const QString caption = services_.dialogs.InputBox(kNewIconCaptionPrompt, kNewIconCaptionTitle,
                                                       QFileInfo(path).completeBaseName());
    if (caption.trimmed().isEmpty())
        return;
    if (const int number = icons_.AddIcon(iconpictures::IcoBytes(picture), caption.trimmed()))
        lstIcons_->SelectNumber(number);
}

void frmIcons::cmdChange_Click() {
    const int number = lstIcons_->SelectedNumber();
    if (number == 0) {
        services_.dialogs.MsgBox(kChooseListedIcon, kInformationStyle);
        return;
    }
    const QString caption = txtCaption_->text().trimmed();
    if (caption.isEmpty()) {
        services_.dialogs.MsgBox(kEmptyCaption, kWarningStyle);
        return;
    }
    icons_.SetCaption(number, caption);
}

void frmIcons::cmdRemove_Click() {
    const int number = lstIcons_->SelectedNumber();
    if (number == 0) {
        services_.dialogs.MsgBox(kChooseListedIcon, kInformationStyle);
        return;
    }
    if (services_.dialogs.MsgBox(RemoveIconQuestion(icons_.Caption(number)), kQuestionStyle,
                                 kRemoveIconTitle) == vb::Yes)
        icons_.RemoveIcon(number);
}
