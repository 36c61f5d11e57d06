#include "notes_planner/modNotes.h"

#include "calendar/DateModel.h"
#include "shell/DateFormats.h"
#include "shell/FixedWidth.h"
#include "shell/Services.h"
#include "shell/TextFile.h"

namespace {

constexpr QChar kEncodedCr(char16_t(213));
constexpr QChar kEncodedLf(char16_t(210));

}  // namespace

QString EncodeLineBreaks(QString text) {
    text.replace(QLatin1Char('\r'), kEncodedCr);
    text.replace(QLatin1Char('\n'), kEncodedLf);
    return text;
}

QString DecodeLineBreaks(QString text) {
    text.replace(kEncodedCr, QLatin1Char('\r'));
    text.replace(kEncodedLf, QLatin1Char('\n'));
    return text;
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
    partlyRead[year] = !services_.Trap(procedure, [&] {
        ReadDatedFile(services_.AppFolder, dates_.YearOf(year), kNotesFile, entries);
    });
    emit notesRead(dates_.YearOf(year));
}

bool NotesStore::SaveYear(Year year, const char* procedure, const QDate& date,
                          const QString& text) {
    if (const auto bad = textfile::FirstUnstorableCharacter(text)) {
        services_.dialogs.MsgBox(textfile::UnstorableCharacterMessage(*bad), kWarningStyle);
        return false;
    }
    const int yearNumber = dates_.YearOf(year);
    if (services_.RefuseSaveAfterPartialRead(partlyRead[year],
                                             YearFileName(yearNumber, kNotesFile)))
        return false;
    return services_.Trap(procedure, [&] {
        const QString dateKey = datefmt::MmDdYy(date);
        const DateHolderGrid& holder =
            year == Year::Next ? dates_.NextDateHolder : dates_.DateHolder;
        const auto cell = FindInHolder(holder, dateKey);
        if (!cell)
            Raise(err::SubscriptOutOfRange);
        DatedEntries& entries = years[year];
        qsizetype index = entries.IndexOf(dateKey);
        if (index < 0)
            index = entries.Append(dateKey);
        entries.cellCodes[index] = cell->Code();
        entries.payloads[index] = textfile::Encode(EncodeLineBreaks(text));
        WriteDatedFile(services_, yearNumber, kNotesFile, entries,
                       [&](qsizetype i) { return !IsBlank(entries.payloads[i]); });
        services_.dialogs.MsgBox(kNotesSavedMessage);
    });
}

void NotesStore::RereadYear(int year) {
    if (year == dates_.YearOf(Year::This))
        ReadThisYearsNotes();
    else if (year == dates_.YearOf(Year::Next))
        ReadNextYearsNotes();
}

bool NotesStore::DeleteNotes(int year, const QList<QDate>& dates) {
    if (!DeleteDatedLines(services_, "DeleteNotes", year, kNotesFile, dates))
        return false;
    RereadYear(year);
    return true;
}

bool NotesStore::PutNotes(int year, const QList<QDate>& dates, const QStringList& texts) {
    QList<QByteArray> payloads;
    for (const QString& text : texts) {
        if (const auto bad = textfile::FirstUnstorableCharacter(text)) {
            services_.dialogs.MsgBox(textfile::UnstorableCharacterMessage(*bad), kWarningStyle);
            return false;
        }
        payloads << textfile::Encode(EncodeLineBreaks(text));
    }
    if (!PutDatedLines(services_, "PutNotes", year, kNotesFile, dates, payloads))
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
