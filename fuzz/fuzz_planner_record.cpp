// The planner record on any text: taking it apart never crashes, the record built from the
// page is always 4,100 characters, and a record as a file's line holds it (no line break in it;
// a record is built with each field on one line) gives the same page again.
#include "FuzzSupport.h"
#include "notes_planner/PlannerRecord.h"
#include "shell/TextFile.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QString record =
        textfile::Decode(QByteArray(reinterpret_cast<const char*>(data), qsizetype(size)));
    const PlannerPage page = ParsePlannerRecord(record);
    const QString rebuilt = BuildPlannerRecord(page);
    fuzz::Check(rebuilt.size() == kPlannerRecordLength, "a record is 4,100 characters");
    const PlannerPage again = ParsePlannerRecord(rebuilt);
    if (record.contains(u'\r') || record.contains(u'\n'))
        return 0;
    fuzz::Check(again.slotTexts == page.slotTexts && again.done == page.done,
                "the page's texts and done marks survive a rebuild");
    for (int line = 0; line < kAppointmentLines; ++line) {
        // A plain label that itself begins with "B" reads back as a bold one: a damaged
        // record's oddity that a time never has.
        if (page.times[line].startsWith(u'B') && !page.bold[line])
            continue;
        fuzz::Check(again.times[line] == page.times[line] && again.bold[line] == page.bold[line],
                    "time labels and bold marks survive a rebuild");
    }
    fuzz::Check(IsBlankRecord(rebuilt) == IsBlankRecord(record.left(kPlannerRecordLength)) ||
                    record.size() > kPlannerRecordLength,
                "a rebuilt record is blank exactly when the original was");
    return 0;
}
