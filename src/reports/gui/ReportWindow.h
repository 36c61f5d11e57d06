#pragma once

#include <QHash>
#include <QList>

#include "reports/Report.h"
#include "reports/gui/ReportContext.h"
#include "shell/gui/ChildWindow.h"

class PageWriter;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;

// The window of a report: forty rows a page in label arrays (lblDate, lblDesc ... one label per
// row and column), paged with Next and Previous, a page total and the period's total, rows
// edited in place (a press on a row's label opens a text box over it; Enter keeps the text, Esc
// drops it), marked with a right click, Select All or Invert and copied for a spreadsheet,
// printed a page at a time or whole, and exported as CSV. The rows are copies: editing them
// leaves the planner pages as they are.
class ReportWindow : public ChildWindow {
    Q_OBJECT
public:
    void ShowReport(Report report);
    const Report& report() const { return report_; }
    int CurrentPage() const { return page_; }

    void cmdNext_Click();
    void cmdPrev_Click();
    void mnuFilePrint_Click();
    void mnuFilePrintAll_Click();
    void mnuFileExportCsv_Click();
    void mnuOptCopy_Click();
    void mnuOptSelectAll_Click();
    void mnuOptInvert_Click();

protected:
    ReportWindow(ReportContext& context, const char* name, const QString& caption, ReportKind kind);

    // Builds the controls; called by the window's own constructor once its extras are known.
    void Form_Load();
    // Room for what a window adds under the totals.
    QGridLayout* FooterLayout() const { return footer_; }
    // Shows page (from 1) of the report: its rows, its label and its total.
    void ShowPage(int page);
    // The row shown on the page's line, or -1.
    qsizetype RowAt(int line) const;

    // What the window says when a row is pressed while an edit is open.
    virtual QString EditOpenRefusal() const = 0;
    // After a field of row was edited (column counted with the date as 0).
    virtual void AfterEdit(qsizetype, int) {}
    // Extra key handling of a column's editor; true when the key was taken.
    virtual bool EditorKeyPress(int, QKeyEvent*) { return false; }
    // The page's total and the period's, and what they pay at the mileage rate.
    void AdjustTheTotals();
    // A new mileage rate: every row, the page and the period are paid at it (0: nothing).
    void SetRate(double rate);
    // Whether an edit is open; a refusal is shown when it is.
    bool RefuseWhileEditing();

    bool eventFilter(QObject* watched, QEvent* event) override;

    ReportContext& context_;
    Report report_;

private:
    QWidget* BuildRows();
    QWidget* BuildFooter();
    void BuildMenus();
    void LoadMyLabels(QGridLayout* grid);
    void ClearReportLabels();
    void GreyReportLabels();
    void AdjustTheColors();
    void ShowPaidColumn();
    void FillLine(int line);
    void Label_MouseDown(int column, int line, Qt::MouseButton button);
    void OpenEditor(int column, int line);
    // Enter in an editor: the text goes into the row (a date must be a date).
    void txt_KeyDown(int column, QKeyEvent* event);
    void CommitEdit();
    void CloseEditor();
    void PrintThisPage(PageWriter& writer, int page) const;

    ReportKind kind_;
    QStringList columns_;
    int page_ = 1;
    bool firstPage_ = true;
    bool lastPage_ = true;
    QLabel* lblTitle_ = nullptr;
    QLabel* lblPage_ = nullptr;
    QLabel* lblPageTotal_ = nullptr;
    QLabel* lblReportTotal_ = nullptr;
    QLabel* lblPagePaid_ = nullptr;
    QLabel* lblReportPaid_ = nullptr;
    QPushButton* cmdNext_ = nullptr;
    QPushButton* cmdPrev_ = nullptr;
    QGridLayout* footer_ = nullptr;
    QWidget* rowsArea_ = nullptr;
    // labels_[column][line] and the editor of each column; the lines' reimbursements.
    QList<QList<QLabel*>> labels_;
    QList<QLabel*> paidLabels_;
    QLabel* paidHeading_ = nullptr;
    QList<QLineEdit*> editors_;
    QHash<QObject*, std::pair<int, int>> labelPlace_;
    // The handler names of the columns' labels and editors, for the trap.
    QList<QByteArray> labelHandlers_;
    QList<QByteArray> editorHandlers_;
    // The open editor: its column, and the row it edits; -1 when none.
    int editColumn_ = -1;
    qsizetype editRow_ = -1;
};
