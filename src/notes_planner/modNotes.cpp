#include "notes_planner/modNotes.h"

#include "calendar/DateModel.h"
#include "shell/DateFormats.h"
#include "shell/FixedWidth.h"
#include "shell/SavePath.h"
#include "shell/Services.h"
#include "shell/TextFile.h"

const RecordLayout& NotesLayout() {
    static const RecordLayout layout = DatedLayout(true);
    return layout;
}

QString NotesCaption(const QDate& date) {
    return QStringLiteral("Notes for ") + datefmt::MonthName(date.month()) + QLatin1Char(' ') +
           QString::number(date.day()) + QStringLiteral(", ") +
           QStringLiteral("%1").arg(date.year(), 4, 10, QLatin1Char('0'));
}

NotesStore::NotesStore(Services& services, const DateModel& dates)
    : services_(services), dates_(dates) {}

void NotesStore::ReadThisYearsNotes() {
    ReadYear(Year::This, "ReadThisYearsNotes");
}

void NotesStore::ReadNextYearsNotes() {
    ReadYear(Year::Next, "ReadNextYearsNotes");
}

void NotesStore::ReadBothYears() {
    ReadThisYearsNotes();
    ReadNextYearsNotes();
}

bool NotesStore::SaveThisYearsNotes(const QDate& date, const QString& text) {
    return SaveYear(Year::This, "SaveThisYearsNotes", date, text);
}

bool NotesStore::SaveNextYearsNotes(const QDate& date, const QString& text) {
    return SaveYear(Year::Next, "SaveNextYearsNotes", date, text);
}

void NotesStore::ReadYear(Year year, const char* procedure) {
    DatedEntries& entries = years[year];
    services_.Trap(procedure, [&] {
        ReadDatedFile(services_.AppFolder, dates_.YearOf(year), kNotesFile, entries);
    });
    emit notesRead(dates_.YearOf(year));
}

bool NotesStore::SaveYear(Year year, const char* procedure, const QDate& date,
                          const QString& text) {
    const QString dateKey = datefmt::MmDdYy(date);
    std::optional<CellIndex> cell;
    if (!services_.Trap(procedure, [&] {
            cell = FindInHolder(year == Year::Next ? dates_.NextDateHolder : dates_.DateHolder,
                                dateKey);
            if (!cell)
                Raise(err::SubscriptOutOfRange);
        }))
        return false;
    // Every other note as the file holds it, this one in its place (or added at the end).
    DatedEntries& entries = years[year];
    entries.file.UseName(YearFileName(dates_.YearOf(year), kNotesFile));
    const bool keep = !IsBlank(text);
    Records records(NotesLayout());
    bool placed = false;
    for (qsizetype i = 0; i < entries.Count(); ++i) {
        if (entries.dateKeys[i] == dateKey) {
            if (keep && !placed)
                records.Add({dateKey, cell->Code(), text});
            placed = true;
        } else if (!IsBlank(entries.payloads[i])) {
            records.AddLine(
                FormatDatedLine(entries.dateKeys[i], entries.cellCodes[i], entries.payloads[i]));
        }
    }
    if (keep && !placed)
        records.Add({dateKey, cell->Code(), text});
    if (SaveDataFile(services_, procedure, entries.file, records, kNotesSavedMessage) ==
        SaveResult::Refused)
        return false;
    ReadYear(year, procedure);
    return true;
}

void NotesStore::RereadYear(int year) {
    if (year == dates_.YearOf(Year::This))
        ReadThisYearsNotes();
    else if (year == dates_.YearOf(Year::Next))
        ReadNextYearsNotes();
}

bool NotesStore::DeleteNotes(int year, const QList<QDate>& dates) {
    if (!DeleteDatedLines(services_, "DeleteNotes", year, kNotesFile, NotesLayout(), dates))
        return false;
    RereadYear(year);
    return true;
}

bool NotesStore::PutNotes(int year, const QList<QDate>& dates, const QStringList& texts) {
    if (!PutDatedLines(services_, "PutNotes", year, kNotesFile, NotesLayout(), dates, texts))
        return false;
    RereadYear(year);
    return true;
}

ShownNote NotesStore::DisplayThisNote() {
    ShownNote shown;
    services_.Trap("DisplayThisNote", [&] {
        const QDate date = dates_.SelectedDate;
        shown.caption = NotesCaption(date);
        shown.text = NoteOf(date);
    });
    return shown;
}

bool NotesStore::HasNote(const QDate& date) const {
    const auto cell = dates_.FindDay(date);
    return cell && years[dates_.YearSlotOf(date)].exists[*cell];
}

QString NotesStore::NoteOf(const QDate& date) const {
    if (!dates_.HolderFor(date))
        return {};
    const DatedEntries& entries = years[dates_.YearSlotOf(date)];
    const qsizetype index = entries.IndexOf(datefmt::MmDdYy(date));
    return index < 0 ? QString() : DecodeLineBreaks(textfile::Decode(entries.payloads[index]));
}
