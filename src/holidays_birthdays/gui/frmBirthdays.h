#pragma once

#include <QList>
#include <optional>

#include "holidays_birthdays/gui/HolidaysBirthdaysContext.h"
#include "holidays_birthdays/modBirthdays.h"
#include "shell/gui/ChildWindow.h"

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;

// "Birthday Manager": everybody's birthday, alert period and birth year, listed in order of
// the birthday or of the name. The fields hold either a new person or the entry selected in
// the list; Enter saves them, as the default button "Save Birthday" does, and closing the
// window with fields not saved asks first. Every change is written to the file at once, in
// the order on show, and the list is read back, so that the calendar and the pending
// birthdays follow it.
class frmBirthdays : public ChildWindow {
    Q_OBJECT
public:
    static constexpr const char* kName = "frmBirthdays";

    explicit frmBirthdays(HolidaysBirthdaysContext& context);

    // A new entry preset to month and day (the calendar's "Mark Selected Date as Birthday").
    void PresetNewBirthday(int month, int day);

    void lstBirthdays_Click();
    void optSort_Click();
    void cmdNew_Click();
    // Adds the person, or replaces the selected entry, once the fields are right; false when
    // nothing was saved.
    bool cmdSave_Click();
    // Removes the selected entry, once the user has agreed.
    void cmdDelete_Click();

protected:
    // Fields typed and not saved: Yes saves (and closes only when that worked), No closes
    // without saving, Cancel keeps the window open.
    bool Form_QueryUnload() override;
    bool AsksWhenProgramCloses() const override { return true; }

private:
    // What the entry's fields hold, as typed.
    struct EntryFields {
        QString name;
        int month = -1;
        int day = -1;
        int alert = -1;
        bool noAge = false;
        QString year;
        bool operator==(const EntryFields&) const = default;
    };

    QLayout* BuildList();
    QGroupBox* BuildFields();
    QLayout* BuildButtons();
    void BuildMenus();
    void ConnectKeys();
    // Enter on a button presses it; anywhere else it saves the entry.
    void Form_KeyPress();
    EntryFields Fields() const;

    bool SortedByName() const;
    // Lists records, sorted as chosen, and selects the entry equal to selected; returns its
    // row, -1 when there is none. The fields are left as they are.
    int FillList(QList<BirthdayRecord> records, const std::optional<BirthdayRecord>& selected);
    // Selects row in the list, or nothing when row is -1, without taking it as the user's pick.
    void SelectRow(int row);
    // Puts the entry of row in the fields, or a new one when row is -1.
    void EditRow(int row);
    void ShowEntry(const BirthdayRecord& record);
    void ShowAge();
    // The entry as typed, or nullopt once the user has been told what is wrong and the focus
    // is on the field to correct.
    std::optional<BirthdayRecord> EnteredRecord();
    std::nullopt_t Refuse(const QString& message, QWidget* field);
    // Writes records in the order chosen and reads the list back, selecting selected. False
    // when the file was not written.
    bool Store(QList<BirthdayRecord> records, const std::optional<BirthdayRecord>& selected);

    HolidaysBirthdaysContext& context_;
    // The list as shown, row by row.
    QList<BirthdayRecord> records_;
    // The row whose entry the fields hold, -1 for a new person.
    int editing_ = -1;
    // The fields as the list (or a new person) filled them: anything else is typed and not
    // saved.
    EntryFields shown_;

    QListWidget* lstBirthdays_;
    QRadioButton* optSortMonth_;
    QRadioButton* optSortName_;
    QGroupBox* fraEntry_ = nullptr;
    QLineEdit* txtName_;
    QComboBox* cmbMonth_;
    QComboBox* cmbDay_;
    QComboBox* cmbAlert_;
    QCheckBox* chkNoAge_;
    QLineEdit* txtYear_;
    QLabel* lblAge_;
    QPushButton* cmdNew_;
    QPushButton* cmdSave_;
    QPushButton* cmdDelete_;
    QPushButton* cmdClose_;
};
