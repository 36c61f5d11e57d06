// A holiday file and "Birthdays.dat" on any bytes (the same input as both): the readers never
// crash; every holiday marked stands on a cell whose date is its date; every birthday cell
// is a day of a listed birthday; a list read whole is written and read back unchanged.
#include "FuzzSupport.h"
#include "calendar/DateModel.h"
#include "holidays_birthdays/modBirthdays.h"
#include "holidays_birthdays/modHolidays.h"

namespace {

struct Stores {
    Stores() {
        dates.SelectedDate = QDate(2026, 6, 15);
        dates.SetYearBounds();
        dates.AssignThisYearsDateHolders();
        dates.AssignNextYearsDateholders();
        QDir(fuzz::services().AppFolder).mkpath(kHolidaysFolder);
    }
    DateModel dates;
    HolidayStore holidays{fuzz::services(), dates};
    BirthdayStore birthdays{fuzz::services(), dates};
};

void CheckHolidays(Stores& stores) {
    stores.holidays.AssignThisYearsHolidays();
    const HolidayTable& table = stores.holidays.years[Year::This];
    for (qsizetype i = 0; i < table.cells.size(); ++i) {
        if (table.cells[i].isEmpty())
            continue;
        const std::optional<CellIndex> cell = CellIndex::FromCode(table.cells[i]);
        fuzz::Check(cell && stores.dates.DateHolder[*cell] == table.dates[i],
                    "a holiday on its date's cell");
    }
}

void CheckBirthdays(Stores& stores) {
    BirthdayStore& birthdays = stores.birthdays;
    birthdays.ReadBirthdays();
    birthdays.flags[Year::This].ForEach([&](const CellIndex& cell, bool marked) {
        if (!marked)
            return;
        const QString day = stores.dates.DateHolder[cell].left(5);
        fuzz::Check(std::any_of(birthdays.records.begin(), birthdays.records.end(),
                                [&](const BirthdayRecord& r) { return r.birthday == day; }),
                    "a marked cell is somebody's birthday");
    });
    fuzz::Check(birthdays.pending.size() <= birthdays.records.size(), "pending among the listed");
    // A list read in part is not saved over (the save refuses); one read whole is saved.
    const QList<BirthdayRecord> read = birthdays.records;
    if (!birthdays.SaveBirthdays(read, false))
        return;
    birthdays.ReadBirthdays();
    // A name cut at a colon, a period written anew, or a line too short to hold its fields
    // is read back as written, not as first read; the written lines must read back alike.
    QStringList again;
    for (const BirthdayRecord& record : birthdays.records)
        again.append(FormatBirthdayLine(record));
    fuzz::Check(again.size() <= read.size(), "no line invented");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static Stores stores;
    fuzz::WriteInput(HolidayFileName(2026).replace(u'\\', u'/'), data, size);
    fuzz::WriteInput(kBirthdaysFile, data, size);
    CheckHolidays(stores);
    CheckBirthdays(stores);
    return 0;
}
