#pragma once

#include <QString>
#include <QStringView>
#include <array>

#include "shell/DoneMarks.h"
#include "shell/FixedWidth.h"

// A daily planner page and the 4,100-character record it is kept in. The page has 60 text
// slots: 16 appointment lines (0-15), 10 to-do items (16-25), 6 expense descriptions (26-31)
// and their amounts (32-37), the total of the amounts (38), 5 mileage destinations (39-43)
// with begin (44-48), end (49-53) and miles (54-58) figures, and the total miles (59).
// Each appointment line also has a time label, which may be bold, and each to-do item a done
// mark. The record is what the planner file, the exported planner files, the reports and the
// command line all read, by character position.

constexpr int kPlannerSlots = 60;
constexpr int kAppointmentLines = 16;
constexpr int kPlannerToDoItems = 10;
constexpr int kExpenseLines = 6;
constexpr int kMileageLines = 5;

constexpr int kFirstToDoSlot = 16;
constexpr int kFirstExpenseSlot = 26;
constexpr int kFirstAmountSlot = 32;
constexpr int kTotalExpendituresSlot = 38;
constexpr int kFirstDestinationSlot = 39;
constexpr int kFirstBeginSlot = 44;
constexpr int kFirstEndSlot = 49;
constexpr int kFirstMilesSlot = 54;
constexpr int kTotalMileageSlot = 59;

constexpr qsizetype kPlannerRecordLength = 4100;

// An appointment line with its own time ("Stop"), or one that continues the line above it,
// its time label emptied ("Push").
enum class LineKind { Stop, Push };

struct PlannerPage {
    std::array<QString, kPlannerSlots> slotTexts;
    std::array<QString, kAppointmentLines> times;
    std::array<bool, kAppointmentLines> bold{};
    std::array<bool, kPlannerToDoItems> done{};

    // A line whose time label is empty continues the line above.
    LineKind KindOf(int line) const {
        return times[line].isEmpty() ? LineKind::Push : LineKind::Stop;
    }
    bool operator==(const PlannerPage&) const = default;
};

// The hour of a new page's first line; line i shows the whole hour kFirstLineHour + i, so the
// last line shows 09:00 PM.
constexpr int kFirstLineHour = 6;
// The time labels a new page shows: the whole hours from 06:00 AM to 09:00 PM.
QString DefaultTime(int line);
// A page without text whose lines show the default times.
PlannerPage NewPlannerPage();

// How many characters slot keeps in the record: 150, 60, 50, 10 or 80.
int SlotWidth(int slot);
// The tag of a slot's box: its width as three digits, ".", and its kind ("150.Stop",
// "060.ToDo", "050.Expense", "010.ExpAmt", "080.Dest", "010.Begin", "010.End", "010.Total").
// The two totals have no box and an empty tag.
QString SlotTag(int slot, LineKind kind = LineKind::Stop);

// The record of a page: every field left-aligned and blank-padded to its width, longer text
// cut; time fields "B" + time + " " for a bold label, time + "  " otherwise; done marks at
// the end.
QString BuildPlannerRecord(const PlannerPage& page);
// The page of a record, every text trimmed of blanks. A record shorter than 4,100 characters
// gives blank slots for what is missing and every to-do item not done.
PlannerPage ParsePlannerRecord(QStringView record);

// True when a record holds no text in any slot and no to-do item is marked done. Time labels
// alone do not count: every page carries them.
bool IsBlankRecord(QStringView record);
bool IsBlankRecord(QByteArrayView record);

// Where the reports find the expense and mileage figures in a record (k = 0-5, m = 0-4).
namespace plannerfield {
constexpr Field ExpenseDescription(int k) {
    return {3160 + 50 * k, 50};
}
constexpr Field Amount(int k) {
    return {3460 + 10 * k, 10};
}
constexpr Field TotalExpenditures{3520, 10};
constexpr Field Destination(int m) {
    return {3530 + 80 * m, 80};
}
constexpr Field Begin(int m) {
    return {3930 + 10 * m, 10};
}
constexpr Field End(int m) {
    return {3980 + 10 * m, 10};
}
constexpr Field Miles(int m) {
    return {4030 + 10 * m, 10};
}
constexpr Field TotalMileage{4080, 10};
// The expense block (descriptions and amounts) and the mileage block (destinations and the
// odometer figures) as a whole.
constexpr Field Expenses{3160, 360};
constexpr Field Mileage{3530, 550};
}  // namespace plannerfield
