// The date-marks file on any bytes: the reader never crashes, and whatever it accepted is
// written back and read again unchanged (a refused save leaves the file as it was).
#include "FuzzSupport.h"
#include "calendar/DateModel.h"
#include "calendar/MarkerColors.h"
#include "calendar/modMarks.h"

namespace {

struct Store {
    DateModel dates;
    MarkerColors colors;
    DateMarks marks{fuzz::services(), dates, colors};
    Store() { dates.SelectDate(QDate(2026, 6, 15)); }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static Store store;
    DateMarks& marks = store.marks;
    fuzz::WriteInput(DateMarks::FileName(2026), data, size);
    marks.ReadAndDisplayThisYearsMarks();
    const auto set = marks.MarkSet;
    const auto category = marks.MarkCategory;
    const auto hover = marks.HoverText;
    marks.SaveThisYearsMarks();
    marks.ReadAndDisplayThisYearsMarks();
    fuzz::Check(marks.MarkSet == set && marks.MarkCategory == category && marks.HoverText == hover,
                "saved marks read back unchanged");
    return 0;
}
