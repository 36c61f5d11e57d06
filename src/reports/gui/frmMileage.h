#pragma once

#include "reports/gui/ReportWindow.h"

// The mileage report: the date, destination, odometer at the start and end, and miles of each
// filled mileage line of the period's planner pages, with the miles' totals. A changed reading
// works the line's miles out again. With a rate per mile (kept in the preferences) each line,
// the page and the period also show what they are paid.
class frmMileage : public ReportWindow {
    Q_OBJECT
public:
    static constexpr const char* kName = "frmMileage";
    explicit frmMileage(ReportContext& context);

    // The miles of a row from its readings: end minus start, both read as single-precision
    // numbers; refused while either reading is empty or no number.
    void TotalThisLine(qsizetype row);
    // The rate typed: kept in the preferences and paid on every row.
    void txtRate_LostFocus();

protected:
    QString EditOpenRefusal() const override;
    void AfterEdit(qsizetype row, int column) override;
    bool EditorKeyPress(int column, QKeyEvent* event) override;

private:
    // The rate kept in the preferences, as the box shows a rate.
    void ShowRate();
    // Only digits, commas and one decimal point go into an odometer reading; keys that move or
    // edit pass. True when the key was held back.
    bool txtStart_KeyPress(QKeyEvent* event);
    bool txtEnd_KeyPress(QKeyEvent* event);

    QLineEdit* txtRate_;
};
