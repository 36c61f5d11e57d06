#pragma once

#include <QDate>
#include <QObject>
#include <QString>

#include "calendar/YearPair.h"
#include "notes_planner/DatedFile.h"

class DateModel;
class Services;

inline const QString kNotesFile = QStringLiteral("Notes.dat");
inline const QString kNotesSavedMessage = QStringLiteral("Notes Saved");

// The layout of "Notes.dat": a line per date, the note keeping its line breaks as the
// characters 213 and 210 (notes stay so encoded in memory and are decoded only to be shown).
const RecordLayout& NotesLayout();

// "Notes for March 7, 2026": the caption of a date's notes.
QString NotesCaption(const QDate& date);

// What the notes window shows for a date.
struct ShownNote {
    QString caption;
    QString text;
};

// The notes of the year on show and of the next year, each year in "Notes.dat" in its year
// folder, one line per noted date: "mm/dd/yy:" + cell code + ":" + the encoded note.
class NotesStore : public QObject, public PerYearStore {
    Q_OBJECT
public:
    NotesStore(Services& services, const DateModel& dates);

    YearPair<DatedEntries> years;

    // Replace a year's list and note flags with its file. A missing folder or file is a year
    // without notes. A line whose cell code is not six digits ends the reading; the notes
    // before it stay, and the year is not saved again until it has been read whole.
    void ReadThisYearsNotes();
    void ReadNextYearsNotes();
    void ReadBothYears() override;

    // Take text as the note of date (a date of this year, or of next year) and save the year's
    // file with every note that is not blank, then say "Notes Saved"; the year is then read
    // again. Returns false when nothing was saved (the save was refused or failed: see
    // SaveDataFile).
    bool SaveThisYearsNotes(const QDate& date, const QString& text);
    bool SaveNextYearsNotes(const QDate& date, const QString& text);

    // Removes the notes of dates (dates of year, which may be any year) from the year's file,
    // every other line staying as it was, without a word when it worked; a year in memory is
    // read again so that everything showing its notes follows. A file that cannot be read
    // whole is refused and left as it is. Returns false when the notes are still there.
    bool DeleteNotes(int year, const QList<QDate>& dates);
    // Gives each of dates (dates of year, any year) the note beside it (with its line breaks)
    // in the year's file, written once, every other line staying as it was; a year in memory
    // is read again. A file that cannot be read whole is refused and left as it is; a note
    // holding a character the file cannot hold refuses the whole change. Returns whether the
    // notes were written.
    bool PutNotes(int year, const QList<QDate>& dates, const QStringList& texts);

    // The selected date's note, decoded, under its caption.
    ShownNote DisplayThisNote();

    bool HasNote(const QDate& date) const;
    // A date's note with its line breaks; empty when it has none.
    QString NoteOf(const QDate& date) const;

signals:
    // A year's list was read from its file.
    void notesRead(int year);

private:
    // Reads the year again when it is one of the two in memory, after its file was rewritten.
    void RereadYear(int year);
    void ReadYear(Year year, const char* procedure);
    bool SaveYear(Year year, const char* procedure, const QDate& date, const QString& text);

    Services& services_;
    const DateModel& dates_;
};
