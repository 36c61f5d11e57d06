#include "shell/gui/DateDropDown.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QKeyEvent>

namespace {

// Keys typed in one drop-down (or in its open list) within the keyboard's input interval make
// one search; a pause starts a new one.
class TypedSelection : public QObject {
public:
    explicit TypedSelection(QComboBox* box) : QObject(box), box_(box) {
        box->installEventFilter(this);
        box->view()->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::KeyPress || box_->isEditable())
            return false;
        const auto* key = static_cast<QKeyEvent*>(event);
        const QString text = key->text();
        if (text.size() != 1 || !text.front().isLetterOrNumber() ||
            (key->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)))
            return false;
        const int row = Search(text.front());
        if (row >= 0)
            Select(row, watched != box_);
        // Taken here in every case, so that the box's own search, which starts from the item
        // shown, never runs.
        return true;
    }

private:
    int Search(QChar typed) {
        const bool goesOn = sinceLast_.isValid() &&
                            sinceLast_.elapsed() <= QApplication::keyboardInputInterval() &&
                            !typed_.isEmpty() && typed_.front().isDigit() == typed.isDigit();
        sinceLast_.start();
        const QString joined = goesOn ? typed_ + typed : QString(typed);
        int row = Find(joined);
        typed_ = joined;
        // A key that does not continue what was typed before may start a new choice: "4" then
        // "5" is 5, as there is no 45th day.
        if (row < 0 && goesOn) {
            row = Find(QString(typed));
            if (row >= 0)
                typed_ = QString(typed);
        }
        return row;
    }

    int Find(const QString& typed) const {
        bool isNumber = false;
        const int number = typed.toInt(&isNumber);
        for (int row = 0; row < box_->count(); ++row) {
            const QString item = box_->itemText(row).trimmed();
            if (isNumber) {
                bool itemIsNumber = false;
                if (item.toInt(&itemIsNumber) == number && itemIsNumber)
                    return row;
            } else if (item.startsWith(typed, Qt::CaseInsensitive)) {
                return row;
            }
        }
        return -1;
    }

    void Select(int row, bool inOpenList) {
        if (inOpenList) {
            // The open list only moves to the item; Enter or a click picks it.
            box_->view()->setCurrentIndex(box_->model()->index(row, box_->modelColumn()));
            return;
        }
        if (row == box_->currentIndex())
            return;
        box_->setCurrentIndex(row);
        emit box_->activated(row);
        emit box_->textActivated(box_->itemText(row));
    }

    QComboBox* box_;
    QString typed_;
    QElapsedTimer sinceLast_;
};

}  // namespace

void SelectAsTyped(QComboBox* box) {
    new TypedSelection(box);
}
