// "Notes.dat" on any bytes: the reader never crashes, and every line it took apart is put
// together again into the very same line.
#include "FuzzSupport.h"
#include "calendar/DateModel.h"
#include "notes_planner/modNotes.h"
#include "shell/TextFile.h"

namespace {

struct Store {
    DateModel dates;
    NotesStore notes{fuzz::services(), dates};
    Store() {
        QDir().mkpath(fuzz::services().PathOf(QStringLiteral("2026")));
        dates.SelectDate(QDate(2026, 6, 15));
    }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static Store store;
    fuzz::WriteInput(QStringLiteral("2026/Notes.dat"), data, size);
    store.notes.ReadThisYearsNotes();
    const DatedEntries& notes = store.notes.years[Year::This];
    QList<QByteArray> lines;
    textfile::ForEachLine(QByteArrayView(data, qsizetype(size)),
                          [&](QByteArrayView line) { lines.append(line.toByteArray()); });
    fuzz::Check(notes.Count() <= lines.size(), "no more notes than lines");
    for (qsizetype i = 0; i < notes.Count(); ++i) {
        const QByteArray& line = lines[i];
        if (line.size() < 16 || line[8] != ':' || line[15] != ':')
            continue;
        fuzz::Check(
            FormatDatedLine(notes.dateKeys[i], notes.cellCodes[i], notes.payloads[i]) == line,
            "a note line is written back as it was read");
        const QString text = textfile::Decode(notes.payloads[i]);
        fuzz::Check(EncodeLineBreaks(DecodeLineBreaks(text)) == text,
                    "a note survives being shown and saved");
    }
    return 0;
}
