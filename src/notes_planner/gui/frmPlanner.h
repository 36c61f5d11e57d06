#pragma once

#include <QDate>

#include "notes_planner/PlannerRecord.h"

#include "notes_planner/gui/NotesPlannerContext.h"
#include "shell/gui/ChildWindow.h"

class PagePreview;
class PlannerPageView;
class QLabel;
class QPushButton;
class QStackedWidget;
class UnsavedTracker;

// The daily planner page of one date, with the menus that save, print, copy and search it,
// change its times and fill its to-do list, and the buttons that move to the day before or
// after.
class frmPlanner : public ChildWindow {
    Q_OBJECT
public:
    static constexpr const char* kName = "frmPlanner";

    explicit frmPlanner(NotesPlannerContext& context);
    ~frmPlanner() override;

    // Shows the selected date's page; a safety copy of unsaved typing left for that date is
    // offered back first. The page on show is asked about before. Returns false when the user
    // kept it (Cancel).
    bool ShowSelectedDate(bool askToRestore = true);
    // Shows the planner file at path; saving then goes back to that file, and Merge stores the
    // page as its date's page. The page on show is asked about before. False when not shown.
    bool ReadExternalPlanner(const QString& path, bool askToRestore = true);
    QDate date() const { return date_; }
    bool IsExternal() const { return !externalFile_.isEmpty(); }
    PlannerPageView& page() const { return *page_; }

    // Stores the page into its year and writes the year's file; false when it was not saved.
    bool mnuFileSave_Click();
    void CopyPlannerToMemory();
    // Writes the page on show to a ".pln" file under a name the user gives; returns its path,
    // empty when nothing was written.
    QString SaveExternalPlanner();
    void mnuFileExportPlannerAndAssign_Click();
    void mnuFileMerge_Click();
    void mnuFileImport_Click();
    void mnuFilePreview_Click();
    void PrintThePlanner();
    void mnuEditTime_Click();
    void mnuEditDelete_Click();
    void mnuEditSearchAgain_Click();
    // Selects the search phrase's next occurrence after the caret, box by box down the page
    // (or its first, from the start); false when there is none or no search is active.
    bool SelectOccurrence(bool fromStart);
    void mnuOptShowCursPos_Click();
    void mnuOptShowMainLabel_Click();
    void mnuToDoImport_Click();
    void mnuToDoClear_Click();
    // Moves days days on, saving or asking about the page first.
    void cmdDay_Click(int days);

protected:
    bool Form_QueryUnload() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* BuildDayButtons();
    void BuildMenus();
    void BuildFileMenu();
    void BuildEditMenu();
    void BuildOptionsMenu();
    void BuildToDoMenu();
    bool ShowDate(const QDate& date, bool askToRestore = true);
    // Shows page as the page of date (of the file externalFile, when not empty), or the safety
    // copy left of it.
    void ShowPage(const QDate& date, const QString& caption, const PlannerPage& page,
                  const QString& externalFile, bool askToRestore);
    // Stores the page as its date's page and writes its year's file.
    bool SaveToRecords();
    void txt_Change();
    void txt_LostFocus(int slot);
    void cmdOK_Click(int line, const QString& text);
    void ShowCaretPosition(int position);

    NotesPlannerContext& context_;
    PlannerPageView* page_;
    QStackedWidget* stack_;
    PagePreview* preview_ = nullptr;
    QLabel* lblCursPos_;
    UnsavedTracker* tracker_;
    QDate date_;
    QString externalFile_;
};
