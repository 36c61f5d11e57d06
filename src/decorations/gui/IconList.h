#pragma once

#include <QListWidget>

class modIcons;

// A list of the library's icons, each with its picture and caption and its number as the
// item's data. Items are dragged onto the calendar as the icon's number (kIconMimeType).
class IconList : public QListWidget {
    Q_OBJECT
public:
    IconList(const modIcons& icons, const QString& name, QWidget* parent = nullptr);

    // Shows the library as it is now, keeping the selected icon selected.
    void Refresh();
    // The number of the selected icon; 0 when none is selected.
    int SelectedNumber() const;
    void SelectNumber(int number);

protected:
    QMimeData* mimeData(const QList<QListWidgetItem*>& items) const override;

private:
    const modIcons& icons_;
};
