#include "decorations/gui/frmInsertIcons.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "decorations/DecorationMessages.h"
#include "decorations/gui/IconList.h"
#include "decorations/modIcons.h"

frmInsertIcons::frmInsertIcons(Services& services, modIcons& icons, std::function<void(int)> place)
    : ChildWindow(services, QString::fromLatin1(kName), kInsertIconsCaption),
      icons_(icons),
      place_(std::move(place)),
      lstIcons_(new IconList(icons, QStringLiteral("lstIcons"))) {
    auto* column = new QVBoxLayout(Body());
    auto* lblHint = new QLabel(QStringLiteral(
        "Drag an icon onto a day of the 1 month calendar, or select it and press Enter to "
        "place it on the selected date."));
    lblHint->setObjectName(QStringLiteral("lblHint"));
    lblHint->setWordWrap(true);
    column->addWidget(lblHint);
    lstIcons_->setViewMode(QListView::IconMode);
    lstIcons_->setMovement(QListView::Static);
    lstIcons_->setResizeMode(QListView::Adjust);
    lstIcons_->setGridSize(QSize(84, 64));
    lstIcons_->setWordWrap(true);
    // Fixed places turn dragging off; the icons are still dragged out onto the calendar.
    lstIcons_->setDragDropMode(QAbstractItemView::DragOnly);
    column->addWidget(lstIcons_, 1);
    auto* cmdPlace = new QPushButton(QStringLiteral("Place on Selected Date"));
    cmdPlace->setObjectName(QStringLiteral("cmdPlace"));
    column->addWidget(cmdPlace);
    On(cmdPlace, &QPushButton::clicked, "cmdPlace_Click", [this] { cmdPlace_Click(); });
    OnEnter("cmdPlace_Click", [this] { cmdPlace_Click(); });
    connect(&icons_, &modIcons::iconsChanged, lstIcons_, &IconList::Refresh);
    setFocusProxy(lstIcons_);
}

void frmInsertIcons::cmdPlace_Click() {
    const int number = lstIcons_->SelectedNumber();
    if (number == 0) {
        services_.dialogs.MsgBox(kChooseListedIcon, kInformationStyle);
        return;
    }
    place_(number);
}
