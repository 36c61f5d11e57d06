#include "decorations/gui/IconList.h"

#include <QIcon>
#include <QMimeData>

#include "calendar/gui/CalendarView.h"
#include "decorations/modIcons.h"

IconList::IconList(const modIcons& icons, const QString& name, QWidget* parent)
    : QListWidget(parent), icons_(icons) {
    setObjectName(name);
    setIconSize(QSize(32, 32));
    setSelectionMode(QAbstractItemView::SingleSelection);
    setDragDropMode(QAbstractItemView::DragOnly);
    Refresh();
}

void IconList::Refresh() {
    const int selected = SelectedNumber();
    clear();
    for (const IconTag& tag : icons_.tags()) {
        auto* item = new QListWidgetItem(QIcon(icons_.PicturePath(tag.number)), tag.caption, this);
        item->setData(Qt::UserRole, tag.number);
        item->setToolTip(tag.caption);
    }
    SelectNumber(selected);
}

int IconList::SelectedNumber() const {
    const QListWidgetItem* item = currentItem();
    return item && item->isSelected() ? item->data(Qt::UserRole).toInt() : 0;
}

void IconList::SelectNumber(int number) {
    for (int row = 0; row < count(); ++row) {
        if (item(row)->data(Qt::UserRole).toInt() == number) {
            setCurrentRow(row);
            return;
        }
    }
    if (count() > 0 && number != 0)
        setCurrentRow(0);
}

QMimeData* IconList::mimeData(const QList<QListWidgetItem*>& items) const {
    if (items.isEmpty())
        return nullptr;
    auto* data = new QMimeData;
    data->setData(kIconMimeType, QByteArray::number(items.first()->data(Qt::UserRole).toInt()));
    data->setText(items.first()->text());
    return data;
}
