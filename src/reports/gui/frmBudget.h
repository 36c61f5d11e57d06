#pragma once

#include "reports/gui/ReportContext.h"
#include "reports/modBudget.h"
#include "shell/gui/ChildWindow.h"

class BudgetChart;
struct BudgetFigures;
class PageWriter;
class QLabel;
class QPushButton;
class QSpinBox;
class QTableWidget;

// The monthly budget of a year: per month the budget the user sets, what the planner pages
// spent (the expense report's total of the month), and the difference, over budget in red and
// within it in green; a year total row and a bar chart of budget against spending. The
// budgets of every year shown are kept until they are saved together.
class frmBudget : public ChildWindow {
    Q_OBJECT
public:
    static constexpr const char* kName = "frmBudget";
    // The table's rows: the twelve months, then the year's total.
    static constexpr int kTotalRow = 12;

    frmBudget(ReportContext& context, modBudget& store);

    // Shows year: its budgets as edited so far and its spending read afresh.
    void ShowYear(int year);
    int Year() const { return year_; }
    bool IsChanged() const { return changed_; }
    const BudgetFigures& Figures() const;

    bool cmdSave_Click();
    void mnuFilePrint_Click();

protected:
    bool Form_QueryUnload() override;
    bool AsksWhenProgramCloses() const override { return true; }
    // Once the window is in the main window: whenever it is brought to the front again, the
    // spending is read afresh, so that pages saved meanwhile count.
    void showEvent(QShowEvent* event) override;

private:
    void BuildMenus();
    void BuildTable();
    // After the user typed into a budget cell: a good amount becomes the month's budget, a bad
    // one is refused and the cell shows the budget again.
    void grdBudget_CellChanged(int row, int column);
    // Fills the table and the chart from the budgets and the spending of the year shown.
    void Refill();
    void SetCell(int row, int column, const QString& text, const QColor& color = {},
                 const QColor& background = {});
    void PrintBudget(PageWriter& writer) const;
    // "March: 1 amount is not a number and is left out of the total." for each such month.
    QStringList LeftOutLines() const;

    ReportContext& context_;
    modBudget& store_;
    Budgets edits_;
    std::array<ReportTotal, 12> spent_{};
    int year_ = 0;
    bool changed_ = false;
    bool filling_ = false;
    bool watchingActivation_ = false;
    QSpinBox* spnYear_;
    QTableWidget* grdBudget_;
    BudgetChart* picChart_;
    // The months whose spending leaves out amounts that are no number, and how many.
    QLabel* lblLeftOut_;
    QPushButton* cmdSave_;
};
