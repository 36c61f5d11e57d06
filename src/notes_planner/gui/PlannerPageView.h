#pragma once

#include <QList>
#include <QWidget>
#include <array>

#include "notes_planner/PlannerRecord.h"

class QFrame;
class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;

// The planner page as the planner window shows it: the date, 16 timed appointment lines, 10
// to-do items with their done boxes, 6 expenses with the total, 5 mileage lines with the total,
// and the small box that changes a line's time. The boxes are the page's 60 slots; each carries
// its slot's tag ("150.Stop", "060.ToDo" ...) as the property "tag".
class PlannerPageView : public QWidget {
    Q_OBJECT
public:
    explicit PlannerPageView(QWidget* parent = nullptr);

    PlannerPage Page() const;
    // Shows page; nothing counts as changed.
    void SetPage(const PlannerPage& page);
    void SetDateCaption(const QString& caption);

    QLineEdit* Box(int slot) const { return txt_[slot]; }
    QLabel* TimeLabel(int line) const { return lblTime_[line]; }
    // The boxes in the order Tab and Enter go through them: down the page, row by row.
    const QList<QLineEdit*>& TabOrder() const { return tabOrder_; }
    int SlotOf(const QObject* box) const;
    // The appointment line whose box has, or last had, the focus; -1 before any had.
    int CurrentLine() const { return currentLine_; }

    void SetTime(int line, const QString& time);
    void SetBold(int line, bool bold);
    void SetDone(int item, bool done);
    bool IsDone(int item) const { return done_[item]; }
    // Writes the two totals and the miles of each mileage line from the figures.
    void AddTheFigures();

    // Opens the time box over a line's time label, holding the label's time.
    void ShowTimeChangeBox(int line);
    void HideTimeChangeBox();

signals:
    // The user changed something on the page.
    void changed();
    // The focus left a box.
    void boxLeft(int slot);
    // The caret of a box moved.
    void caretMoved(int position);
    // OK in the time box: the text typed for a line's time.
    void timeEntered(int line, const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void LoadTheObjects();
    QWidget* BuildAppointments();
    QWidget* BuildToDoList();
    QWidget* BuildExpenses();
    QWidget* BuildMileage();
    QLineEdit* MakeBox(int slot, int width);
    QLabel* Heading(int index, const QString& caption);
    void BuildTimeChangeBox();
    void ShowTimeLabel(int line);
    void MoveToNextBox(QLineEdit* box);

    std::array<QLineEdit*, kPlannerSlots> txt_{};
    std::array<QLabel*, kAppointmentLines> lblTime_{};
    std::array<QToolButton*, kPlannerToDoItems> imgChkBox_{};
    std::array<QString, kAppointmentLines> times_;
    std::array<bool, kAppointmentLines> bold_{};
    std::array<bool, kPlannerToDoItems> done_{};
    QList<QLineEdit*> tabOrder_;
    QList<QLabel*> lbl_;
    QLabel* lblMain_ = nullptr;
    QFrame* timeBox_ = nullptr;
    QLineEdit* txtTime_ = nullptr;
    QPushButton* cmdOK_ = nullptr;
    int timeLine_ = -1;
    int currentLine_ = -1;
};
