// "Planner.dat" on any bytes: the reader never crashes, and a year read whole is saved and
// read again with every page that is not blank unchanged, in its order.
#include "FuzzSupport.h"
#include "calendar/DateModel.h"
#include "notes_planner/modPlanner.h"

namespace {

struct Store {
    DateModel dates;
    PlannerStore planner{fuzz::services(), dates};
    Store() {
        QDir().mkpath(fuzz::services().PathOf(QStringLiteral("2026")));
        dates.SelectDate(QDate(2026, 6, 15));
    }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static Store store;
    PlannerStore& planner = store.planner;
    fuzz::WriteInput(QStringLiteral("2026/Planner.dat"), data, size);
    planner.ReadThisYearsPlanner();
    DatedEntries kept;
    const DatedEntries& read = planner.years[Year::This];
    kept.fileBytes = read.fileBytes;  // the pages kept are views into the bytes read
    fuzz::Check(planner.Extracts().size() == read.Count(), "one extract per page");
    for (qsizetype i = 0; i < read.Count(); ++i) {
        if (IsBlankRecord(read.payloads[i]))
            continue;
        const qsizetype k = kept.Append(read.dateKeys[i]);
        kept.cellCodes[k] = read.cellCodes[i];
        kept.payloads[k] = read.payloads[i];
    }
    if (!planner.SaveThisYearsPlannerFile())
        return 0;  // read in part, or over 366 pages: refused, the file stays as it was
    planner.ReadThisYearsPlanner();
    fuzz::Check(read.dateKeys == kept.dateKeys && read.cellCodes == kept.cellCodes &&
                    read.payloads == kept.payloads,
                "saved pages read back unchanged");
    return 0;
}
