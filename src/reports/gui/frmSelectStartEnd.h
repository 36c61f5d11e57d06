#pragma once

#include <QDate>
#include <QList>
#include <functional>

#include "reports/ReportPeriod.h"
#include "shell/gui/ChildWindow.h"

class QComboBox;
class QLineEdit;

// Chooses a report's period by any start and end date of one year. Each side (0 the start,
// 1 the end) has a month, a day and a year list and a box showing, or taking, the date typed.
class frmSelectStartEnd : public ChildWindow {
    Q_OBJECT
public:
    static constexpr const char* kName = "frmSelectStartEnd";
    static constexpr int kStart = 0;
    static constexpr int kEnd = 1;

    // years: the years offered; start and end: the dates first shown. run makes the report of
    // the period chosen; selectMonth goes back to the monthly window.
    frmSelectStartEnd(Services& services, const QList<int>& years, const QDate& start,
                      const QDate& end, std::function<void(const ReportPeriod&)> run,
                      std::function<void()> selectMonth);

    void cmdReport_Click();
    void cmdSelectMonth_Click();

private:
    QWidget* BuildSide(int side, const QString& choose, const QString& below);
    void LoadComboBoxes(int side, const QList<int>& years);
    // A pick in one of a side's lists shows the side's date in its box.
    void ShowSideDate(int side);
    // The date typed into a side's box sets its lists.
    void txtInput_LostFocus(int side);
    // Enter: the date typed is taken, then the report made.
    void txtInput_KeyDown(int side);
    void SelectYear(int side, int year);
    bool eventFilter(QObject* watched, QEvent* event) override;

    std::function<void(const ReportPeriod&)> run_;
    std::function<void()> selectMonth_;
    QList<QComboBox*> cmbMonth_;
    QList<QComboBox*> cmbDay_;
    QList<QComboBox*> cmbYear_;
    QList<QLineEdit*> txtInput_;
};
