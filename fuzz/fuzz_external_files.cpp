// A planner file (".pln") and a notes file (".nte") on any bytes: the readers never crash, and
// a page they accept writes back to the same bytes.
#include "FuzzSupport.h"
#include "notes_planner/ExternalFiles.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArrayView bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    QString problem;
    if (const auto page = ParseExternalPlanner(bytes, 2026, &problem)) {
        fuzz::Check(problem.isEmpty(), "an accepted page has no problem");
        const QByteArray again = ExternalPlannerBytes(page->date, page->page);
        fuzz::Check(again.size() == kExternalPlannerSize, "a page writes 4,109 bytes");
    } else {
        fuzz::Check(!problem.isEmpty(), "a refused page says why");
    }
    if (const auto note = ParseExternalNotes(bytes, 2026))
        fuzz::Check(note->date.isValid(), "a note has a date");
    return 0;
}
