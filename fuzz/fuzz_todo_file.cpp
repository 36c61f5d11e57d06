// "To Do.dat" on any bytes: the reader never crashes and never gives more than its ten rows.
#include "FuzzSupport.h"
#include "reminders/ToDoFile.h"
#include "shell/VbError.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    fuzz::WriteInput(kToDoFile, data, size);
    ToDoRows rows;
    try {
        ReadToDoFile(fuzz::services().AppFolder, rows);
    } catch (const VbError& error) {
        fuzz::Check(error.number() == err::SubscriptOutOfRange, "only a long list is refused");
    }
    for (const QString& text : rows.texts)
        fuzz::Check(!text.contains(u'\n') && !text.contains(u'\r'), "a row is one line");
    return 0;
}
