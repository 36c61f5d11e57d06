#pragma once

#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>
#include <QStringView>

#include "calendar/DayGrid.h"
#include "shell/DataFile.h"
#include "shell/Records.h"

class Services;

// One year's entries of a file kept per date, "Notes.dat" or "Planner.dat": a line per date,
// "mm/dd/yy" + ":" + cell code + ":" + payload. The entries stay in the order in which their
// dates first got one, which is the order of the file's lines.
struct DatedEntries {
    QStringList dateKeys;
    // The six digits of each entry's day cell, as the file holds them.
    QStringList cellCodes;
    // Each entry's note or planner record as the file holds it (windows-1252 bytes), so that a
    // year is read and written without converting what is not shown. The entries read from a
    // file are views into fileBytes, which they keep alive; an entry that is changed gets bytes
    // of its own.
    QList<QByteArray> payloads;
    QByteArray fileBytes;
    // Whether a cell's day has an entry, set from the cell codes read.
    DayGrid<bool> exists;
    // The file the entries were read from, as last read or saved.
    DataFile file;

    qsizetype Count() const { return dateKeys.size(); }
    // The entry of dateKey, or -1.
    qsizetype IndexOf(QStringView dateKey) const;
    // Adds an entry for dateKey (empty code and payload) and returns its index.
    qsizetype Append(const QString& dateKey);
    void Clear();
};

// One line of such a file, taken apart.
struct DatedLine {
    QString dateKey;
    QString cellCode;
    CellIndex cell;
    // A view into the line's bytes.
    QByteArray payload;
};

// Characters 1-8 are the date key, 10-15 the cell code, 17 on the payload. A cell code that is
// not six digits raises 13 (type mismatch); one outside the 12 x 7 x 6 grid raises 9. A line
// too short for a payload has an empty one. The payload is a view into line, valid while line's
// bytes are.
DatedLine ParseDatedLine(QByteArrayView line);
// The error ParseDatedLine raises for line (13 or 9), or 0 when the line is sound.
int DatedLineFault(QByteArrayView line);
// Where a line's payload starts.
constexpr qsizetype kDatedPayloadStart = 16;
// Throws VbError when the key or the code holds a character the file cannot hold.
QByteArray FormatDatedLine(const QString& dateKey, const QString& cellCode, QByteArrayView payload);

// The year folder's name, "yyyy", and the relative name of a year's file in it.
QString YearFolderName(int year);
QString YearFileName(int year, const QString& fileName);

// The layout of both files: a line per date, "mm/dd/yy" + ":" + cell code + ":" + payload,
// named by its date. A note keeps its line breaks as the characters 213 and 210
// (lineBreaks); a planner record is one line of fixed fields.
RecordLayout DatedLayout(bool lineBreaks);

// Replaces entries with the lines of the year's file. A missing folder or file is an empty
// year. A faulty line raises its error, naming the file and the line; the lines before it are
// kept, and entries.file counts as read in part.
void ReadDatedFile(const QString& appFolder, int year, const QString& fileName,
                   DatedEntries& entries);

// The lines of entries that keep(i) accepts, in list order, each as the file holds it.
template <class Keep>
Records DatedRecords(const RecordLayout& layout, const DatedEntries& entries, Keep&& keep) {
    Records records(layout);
    for (qsizetype i = 0; i < entries.Count(); ++i) {
        if (keep(i))
            records.AddLine(
                FormatDatedLine(entries.dateKeys[i], entries.cellCodes[i], entries.payloads[i]));
    }
    return records;
}

// The years that have a year folder ("yyyy", any four digits) in the data folder, in order.
QList<int> YearsWithFolders(const QString& appFolder);

// The dates that have a line in the year's file, read fresh, in date order, each once; month 0
// takes every month. A file that stops at a faulty line gives the dates of the lines before it:
// the faulty line is reported when its year is read for the calendar, or when a change to the
// file is refused.
QList<QDate> DatesInFile(const QString& appFolder, int year, const QString& fileName,
                         int month = 0);

// Removes the lines of dates (dates of year) from the year's file, read fresh, every other
// line staying as it was; a file without any of the dates is not written. The change is saved
// as every save is (a file that cannot be read whole is refused, its faulty line reported
// under procedure). Returns whether the file now holds none of those dates' lines.
bool DeleteDatedLines(Services& services, const char* procedure, int year, const QString& fileName,
                      const RecordLayout& layout, const QList<QDate>& dates);

// The day cell of any date in its year's month sheets, as the date holders lay it out.
CellIndex CellOfDate(const QDate& date);

// Gives each of dates (dates of year) the payload text beside it (a note, or a planner record)
// in the year's file, read fresh: a date's line is replaced in its place, a new date's line
// added at the end, every other line staying as it was. The change is saved as every save is,
// once: a text the file cannot hold, or a file that cannot be read whole, refuses all of it.
// Returns whether the file now holds the texts.
bool PutDatedLines(Services& services, const char* procedure, int year, const QString& fileName,
                   const RecordLayout& layout, const QList<QDate>& dates, const QStringList& texts);
