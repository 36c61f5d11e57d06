// "TempRecord.txt" on any bytes: reading never crashes, and what was read is written and read
// back to the same edits.
#include "FuzzSupport.h"
#include "notes_planner/UnsavedWork.h"

namespace {

bool Same(const std::optional<UnsavedEdit>& a, const std::optional<UnsavedEdit>& b) {
    if (!a || !b)
        return !a && !b;
    return a->date == b->date && a->noteText == b->noteText && a->page == b->page &&
           a->offered == b->offered;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const UnsavedEdits edits =
        ParseUnsavedEdits(QByteArray(reinterpret_cast<const char*>(data), qsizetype(size)));
    const UnsavedEdits again = ParseUnsavedEdits(FormatUnsavedEdits(edits));
    fuzz::Check(Same(edits.notes, again.notes) && Same(edits.planner, again.planner),
                "unsaved edits survive being written and read again");
    return 0;
}
