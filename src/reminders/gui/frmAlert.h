#pragma once

#include <QDate>
#include <QList>

#include "shell/gui/ChildWindow.h"

class AlertsStore;
class QButtonGroup;
class QComboBox;
class QKeyEvent;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;

// The alert manager: creates, edits, deletes and reviews the alerts. It works on a copy of the
// alert lines in four parallel lists (lstAlerts): 0 the raw lines as the file keeps them (what
// a save writes), 1 the dates and 2 the messages of the alerts shown, one of the two on view,
// and 3 the place of each shown alert's line in list 0. Every change is saved at once, after
// which the lists are filled again from the file.
class frmAlert : public ChildWindow {
    Q_OBJECT
public:
    static constexpr const char* kName = "frmAlert";
    enum class SortOrder { ByDate, ByMessage };

    // preset: the date the editor starts on (today when invalid).
    frmAlert(Services& services, AlertsStore& alerts, const QDate& preset);

    // Fills the four lists from the store: every alert in list 0, the alerts shown (all, or
    // those pending) in lists 1-3, in the chosen order; sets the list's caption and heading.
    void LoadAlerts();
    // The editor on a new alert of date.
    void NewAlertOn(const QDate& date);
    // All alerts on view, with the first alert of date loaded into the editor; a date without
    // alerts gets a new one.
    void ShowAlertOn(const QDate& date);
    // The alert of raw line line loaded into the editor, in the view given.
    void ShowAlert(const QString& line, bool pendingOnly);
    void SetPendingOnly(bool pendingOnly);
    bool pendingOnly() const { return pendingOnly_; }

    // Handlers of the buttons and menus.
    void cmdSave_Click(int index);
    void cmdDelete_Click();
    void mnuFileNew_Click();
    void mnuEditFind_Click();
    void mnuOptDeleteOldAlerts_Click();
    void mnuSortDate_Click() { Sort(SortOrder::ByDate); }
    void mnuSortMessage_Click() { Sort(SortOrder::ByMessage); }

    static constexpr int kSaveAndExit = 0;
    static constexpr int kSaveAndContinue = 1;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* BuildEditor();
    QWidget* BuildPeriodFrame();
    QWidget* BuildListPanel();
    void BuildMenus();
    void ConnectControls();
    void LoadComboBoxes();
    // Loads the alert selected in the visible list into the editor.
    void ParseAlert();
    void Sort(SortOrder order);
    QListWidget* List(int member) const { return lists_.at(member); }
    QListWidget* VisibleList() const;
    // The place in list 0 of the alert selected in the visible list, or -1.
    int SelectedLine() const;
    QStringList RawLines() const;
    // Saves lines and shows the file again; false when the save was refused or failed.
    bool SaveLines(const QStringList& lines);
    // Selects the alert whose line is at place line of list 0, when it is shown.
    bool SelectLine(int line);
    void SetDate(const QDate& date);
    QDate ComboDate() const;
    void cmbDate_Click();
    void txtDate_LostFocus();
    bool txtValue_KeyPress(const QKeyEvent& key);
    void txtValue_LostFocus();
    bool PeriodTooLong();
    void optValue_Click(int index);
    void ClearOptions();
    void SetHeading();

    AlertsStore& alerts_;
    bool pendingOnly_ = false;
    SortOrder order_ = SortOrder::ByDate;
    QString lastFind_;

    QList<QListWidget*> lists_;
    QLabel* lblList_ = nullptr;
    QLabel* lblMessage_ = nullptr;
    QLabel* lblHint_ = nullptr;
    QLineEdit* txtDate_ = nullptr;
    QLineEdit* txtMessage_ = nullptr;
    QLineEdit* txtValue_ = nullptr;
    QComboBox* cmbMonth_ = nullptr;
    QComboBox* cmbDay_ = nullptr;
    QComboBox* cmbYear_ = nullptr;
    QButtonGroup* optValue_ = nullptr;
};
