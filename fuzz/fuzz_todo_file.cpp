// "To Do.dat" on any bytes: the reader never crashes and never gives more than its ten rows;
// a list read whole is written back to text that reads as the same rows.
#include "FuzzSupport.h"
#include "reminders/modToDo.h"
#include "shell/TextFile.h"
#include "shell/VbError.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    fuzz::WriteInput(kToDoFile, data, size);
    const QString path = fuzz::services().PathOf(kToDoFile);
    ToDoRows rows;
    bool whole = true;
    try {
        ReadToDoFile(path, rows);
    } catch (const VbError& error) {
        fuzz::Check(error.number() == err::SubscriptOutOfRange, "only a long list is refused");
        whole = false;
    }
    for (const QString& text : rows.texts)
        fuzz::Check(!text.contains(u'\n') && !text.contains(u'\r'), "a row is one line");
    if (whole) {
        const QByteArray saved = textfile::Encode(ToDoFileText(rows));
        fuzz::WriteInput(kToDoFile, reinterpret_cast<const uint8_t*>(saved.constData()),
                         size_t(saved.size()));
        ToDoRows again;
        ReadToDoFile(path, again);
        fuzz::Check(again == rows, "a list saved reads back the same");
    }
    return 0;
}
