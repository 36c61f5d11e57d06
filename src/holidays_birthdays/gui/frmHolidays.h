#pragma once

#include <QDate>
#include <QStringList>

#include "holidays_birthdays/gui/HolidaysBirthdaysContext.h"
#include "shell/DataFile.h"
#include "shell/gui/ChildWindow.h"

class QComboBox;
class QLineEdit;
class QListWidget;
class QPushButton;

// Keeps the holiday list of a year: pick the year, then add, change and remove holidays (one
// a date) or fill the list from an iCalendar file. Every change rewrites the year's file at
// once and shows on the calendar.
class frmHolidays : public ChildWindow {
    Q_OBJECT
public:
    static constexpr const char* kName = "frmHolidays";

    explicit frmHolidays(HolidaysBirthdaysContext& context);

    // A new holiday preset to date, in date's year (the calendar's "Mark Selected Date as
    // Holiday").
    void PresetNewHoliday(const QDate& date);
    int SelectedYear() const { return selectedYear_; }

    void cmbYear_Click();
    void lstHolidays_Click();
    void cmdAddNew_Click();
    void cmdSave_Click();
    void cmdDelete_Click();
    void mnuFileNew_Click();
    void mnuFileSave_Click();
    void mnuFileImportIcs_Click();

protected:
    bool Form_QueryUnload() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildControls();
    void BuildMenus();
    void PopulateComboList();
    void LoadHolidayList();
    // Writes the list as the year's file; false when it was refused or failed.
    bool SaveHolidayFile(const QStringList& lines);
    // After the file changed: the year's holidays laid on the calendar again and the view
    // on show redrawn.
    void ShowOnCalendar();
    void ShowEntry(int row);
    QStringList ListedLines() const;
    void SelectYear(int year);

    HolidaysBirthdaysContext& context_;
    int selectedYear_ = 0;
    bool changed_ = false;
    // The list could not be read to its end: it is not saved over.
    // The selected year's file as the list shown was read from it.
    DataFile file_;
    QComboBox* cmbYear_;
    QListWidget* lstHolidays_;
    QLineEdit* txtDate_;
    QLineEdit* txtDesc_;
    QPushButton* cmdSave_;
};
