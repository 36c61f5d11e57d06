#pragma once

#include <QDate>
#include <QList>

#include "shell/gui/ChildWindow.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QRadioButton;

// How often one chosen weekday falls between a start and an end date, both included, with
// the list of those dates.
class frmNumDays : public ChildWindow {
    Q_OBJECT
public:
    static constexpr const char* kName = "frmNumDays";

    frmNumDays(Services& services, const QDate& start, const QDate& end);

    void cmdGetDays_Click();
    // The chosen weekday, Sunday 1 ... Saturday 7, from the option that is on.
    void CheckWhichDay();
    int ChosenWeekday() const { return weekday_; }

private:
    // Checks the date typed into a box; false (after saying so) when it is not a date.
    bool txtStart_LostFocus();
    bool txtEnd_LostFocus();
    void txtStart_KeyDown();
    void txtEnd_KeyDown();
    bool CheckDateBox(QLineEdit* box, const QString& refusal);
    QDate BoxDate(const QLineEdit* box) const;
    bool eventFilter(QObject* watched, QEvent* event) override;

    int weekday_ = 1;
    QLineEdit* txtStart_;
    QLineEdit* txtEnd_;
    QList<QRadioButton*> optDay_;
    QListWidget* lstDays_;
    QLabel* lblOccur_;
};
