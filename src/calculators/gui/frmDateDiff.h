#pragma once

#include <QDate>
#include <QList>

#include "shell/gui/ChildWindow.h"

class DateSidePicker;
class QComboBox;
class QLabel;
class QLineEdit;

// The difference between a start and an end date in a chosen interval. Each side (0 the start,
// 1 the end) has a month, a day and a year list and a box showing, or taking, the date typed.
class frmDateDiff : public ChildWindow {
    Q_OBJECT
public:
    static constexpr const char* kName = "frmDateDiff";
    static constexpr int kStart = 0;
    static constexpr int kEnd = 1;

    frmDateDiff(Services& services, const QDate& start, const QDate& end);

    // Makes name the current interval, counted by code; the interval list shows name when it
    // holds it ("Calendar Weeks" is reached from the menu only).
    void ChooseInterval(const QString& name, const QString& code);
    const QString& IntervalCode() const { return code_; }

    void cmbInterval_Click();
    void cmdDateDiff_Click();
    void cmdHelpInterval_Click();

private:
    // The date typed into a side's box sets its lists and is shown as they show it.
    void txtInput_LostFocus(int side);
    QDate SideDate(int side) const;

    QString code_;
    QList<DateSidePicker*> sides_;
    QComboBox* cmbInterval_;
    QLabel* lblInterval_;
    QLineEdit* txtAnswer_;
};
