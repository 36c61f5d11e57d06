#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include "shell/Services.h"
#include "shell/TextFile.h"

// The content of a file as a store last saw it, told apart from any other content cheaply: the
// file's identity, size and times first, its bytes when those differ.
struct FileStamp {
    bool exists = false;
    qint64 size = 0;
    qint64 modified = 0;  // nanoseconds
    qint64 changed = 0;   // nanoseconds (status change)
    quint64 device = 0;
    quint64 inode = 0;
    // When the stamp was taken (nanoseconds); not part of the comparison.
    qint64 takenAt = 0;

    // The stamp of the file at path now (exists false when there is none).
    static FileStamp Of(const QString& path);
    // Whether the file may have changed since: it differs, or it was changed so shortly before
    // the stamp was taken that a change right after would bear the same times (file times
    // advance in coarse steps), so that only its bytes can tell.
    bool MayDifferFrom(const FileStamp& now) const;
};

// What a store knows of one of its data files since it last read or saved it: which content it
// saw, so that a save notices what another program (the command line, a second computer on a
// share, an editor) changed meanwhile; whether every line could be read, so that a save never
// overwrites lines that were not; and the lines it saw, which its own changes are measured
// from when a save has to be merged with the other program's.
class DataFile {
public:
    // name is relative to the data folder ("2026\Planner.dat", "\" separating folders; found
    // whatever the letter case on disk) or an absolute path (a list the user picked).
    DataFile() = default;
    explicit DataFile(QString name) : name_(std::move(name)) {}

    const QString& Name() const { return name_; }
    // Points the state at another file, which is then unread.
    void SetName(const QString& name);
    // The same, unless the state is already that file's: a store that saves a file it has not
    // read (its lines then all count as another program's, and are kept) names it first.
    void UseName(const QString& name) {
        if (name_ != name)
            SetName(name);
    }

    // The path to read and write: the file on disk in whatever letter case, or where it goes.
    QString PathIn(const QString& appFolder) const;

    // Whether the last read stopped before the end (at a faulty line, or before the first
    // one when the file could not be opened).
    bool PartlyRead() const { return partlyRead_; }
    // The faulty line's number (from 1); 0 when the file could not be read at all.
    int FaultyLine() const { return faultyLine_; }

    // The bytes last read or written; empty for a file that did not exist.
    const QByteArray& SeenBytes() const { return seen_; }
    const FileStamp& Stamp() const { return stamp_; }

    // Starts a read: remembers the file's present content (none when it is missing). Returns
    // the bytes, which are then also the seen ones. Raises when the file cannot be read.
    QByteArray Load(const QString& appFolder);
    // Records that the read stopped at line (0: the file could not be read at all) with error;
    // returns the error with the file's name and the line's number in its description.
    VbError Fault(int line, const VbError& error);
    // Records a read of the whole file.
    void MarkReadWhole() { partlyRead_ = false, faultyLine_ = 0; }
    // Records that bytes are now the file's content, as a save leaves it.
    void Saw(const QString& path, const QByteArray& bytes);

private:
    QString name_;
    FileStamp stamp_;
    QByteArray seen_;
    bool partlyRead_ = false;
    int faultyLine_ = 0;
};

// Reads a data file line by line: parse gets each line's bytes (without its line end) and its
// number from 1. A missing file reads as empty. A line parse refuses (by raising VbError) ends
// the reading, and the file counts as read in part; the error is raised on with the file's
// name and the line's number in its description.
template <class Parse>
void ReadLinesOf(const QString& appFolder, DataFile& file, Parse&& parse);

// Reads a data file line by line: parse gets each line's bytes (without its line end) and its
// number from 1. A missing file reads as empty. A line parse refuses (by raising VbError) ends
// the reading: the error is reported under procedure, naming the file and the line, and the
// file counts as read in part, so that its next save is refused and the lines that could not
// be read are never lost. Returns whether the whole file was read.
template <class Parse>
bool ReadDataFile(Services& services, const char* procedure, DataFile& file, Parse&& parse);

// The text of a line's bytes (windows-1252).
QString LineText(QByteArrayView line);

// ---- implementation ---------------------------------------------------------------------

template <class Parse>
void ReadLinesOf(const QString& appFolder, DataFile& file, Parse&& parse) {
    int number = 0;
    try {
        const QByteArray bytes = file.Load(appFolder);
        textfile::ForEachLine(bytes, [&](QByteArrayView line) { parse(line, ++number); });
    } catch (...) {
        throw file.Fault(number, CurrentError());
    }
    file.MarkReadWhole();
}

template <class Parse>
bool ReadDataFile(Services& services, const char* procedure, DataFile& file, Parse&& parse) {
    try {
        ReadLinesOf(services.AppFolder, file, std::forward<Parse>(parse));
        return true;
    } catch (const VbError& error) {
        services.LogError(QString::fromLatin1(procedure), error.number(), error.description());
        return false;
    }
}
