#pragma once

#include <QDate>
#include <QList>

#include "notes_planner/gui/NotesPlannerContext.h"
#include "shell/gui/ChildWindow.h"

class NotesPlannerMenus;
class QGroupBox;
class QListWidget;

// The dates that have notes and the dates that have planner pages, in two panels of the same
// build (panel 0 the notes, panel 1 the planners): each lists the dates of a chosen year and
// month, and opens or deletes the dates selected in its list. The File menu acts on the panel
// last used.
class frmNoteList : public ChildWindow {
    Q_OBJECT
public:
    static constexpr const char* kName = "frmNoteList";
    static constexpr int kNotesPanel = 0;
    static constexpr int kPlannersPanel = 1;

    frmNoteList(NotesPlannerContext& context, NotesPlannerMenus& menus);

    // Fills each panel's year list (the years with a year folder and the two years in memory,
    // the selected date's year chosen) and month list ("All Months", then the twelve months).
    void LoadComboBoxes();
    // Fills a panel's list with the dates of its chosen year and month, in date order.
    void PopulateListBoxes(int panel);

    // Selects the first selected date and opens its notes or planner window.
    void cmdOpen_Click(int panel);
    void cmdDelete_Click(int panel);
    // Deletes every date in the list, once the user has agreed.
    void cmdDeleteAll_Click(int panel);
    void mnuFileOpen_Click() { cmdOpen_Click(lastPanel_); }
    void mnuFileDelete_Click() { cmdDelete_Click(lastPanel_); }
    // The search window, as the main window's Find opens it.
    void mnuEditFind_Click();

    int lastPanel() const { return lastPanel_; }

private:
    QGroupBox* BuildPanel(int panel);
    void BuildMenus();
    void ConnectPanel(int panel);
    void SetTabOrder();
    QListWidget* List(int panel) const;
    // The dates selected in a panel's list, in date order.
    QList<QDate> SelectedDates(int panel) const;
    void DeleteDates(int panel, const QList<QDate>& dates);

    NotesPlannerContext& context_;
    NotesPlannerMenus& menus_;
    QList<QGroupBox*> panels_;
    int lastPanel_ = kNotesPanel;
};
