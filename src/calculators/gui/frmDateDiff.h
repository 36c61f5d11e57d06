#pragma once

#include <QDate>
#include <QList>

#include "shell/gui/ChildWindow.h"

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
    QWidget* BuildSide(int side, const QString& choose, const QString& below);
    void LoadComboBoxes(int side, int firstYear, int lastYear);
    // A pick in one of a side's lists shows the side's date in its box.
    void ShowSideDate(int side);
    // The date typed into a side's box sets its lists.
    void txtInput_LostFocus(int side);
    void SelectYear(int side, int year);
    QDate SideDate(int side) const;
    bool eventFilter(QObject* watched, QEvent* event) override;

    QString code_;
    QList<QComboBox*> cmbMonth_;
    QList<QComboBox*> cmbDay_;
    QList<QComboBox*> cmbYear_;
    QList<QLineEdit*> txtInput_;
    QComboBox* cmbInterval_;
    QLabel* lblInterval_;
    QLineEdit* txtAnswer_;
};
