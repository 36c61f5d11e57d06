#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringList>
#include <cstring>
#include <optional>

// Every data file is single-byte text (windows-1252) with lines ended by CR LF. This is the one
// place that turns such bytes into text and back.
namespace textfile {

QString Decode(QByteArrayView bytes);

// The first character of text that a data file cannot hold, if any.
std::optional<QString> FirstUnstorableCharacter(QStringView text);

// The message that refuses to save text holding such a character.
QString UnstorableCharacterMessage(const QString& character);

// Bytes of text; throws VbError when a character cannot be stored.
QByteArray Encode(QStringView text);

// Splits text into lines: CR LF, a lone CR or a lone LF ends a line; a final line end does
// not start another (empty) line.
QStringList SplitLines(const QString& text);

// Calls visit with each line of bytes, split as SplitLines splits text (CR and LF are the same
// bytes in the code page and in text, so lines can be split before they are decoded).
template <class Visit>
void ForEachLine(QByteArrayView bytes, Visit&& visit) {
    const char* start = bytes.data();
    const char* const end = start + bytes.size();
    while (start != end) {
        // The next LF, then a CR before it: both searches run over whole words at a time.
        const auto* lf = static_cast<const char*>(std::memchr(start, '\n', end - start));
        const char* stop = lf ? lf : end;
        const auto* cr = static_cast<const char*>(std::memchr(start, '\r', stop - start));
        if (!cr && !lf) {
            visit(QByteArrayView(start, end - start));
            return;
        }
        const char* lineEnd = cr ? cr : lf;
        visit(QByteArrayView(start, lineEnd - start));
        start = lineEnd + (cr && cr + 1 == lf ? 2 : 1);
    }
}

// Reads a whole file (error 53 when it is missing, 75 when it cannot be read).
QByteArray ReadBytes(const QString& path);
QString ReadAll(const QString& path);
QStringList ReadLines(const QString& path);

// Replaces path with exactly text. The old file stays whole until the new one is complete on
// disk, so a full disk or a crash never leaves a torn file. A failure raises 61, 70 or 75.
void WriteAll(const QString& path, const QString& text);

// Joins lines with CR LF, without a line break after the last one.
QString JoinLines(const QStringList& lines);

// Saves the file name (relative to folder) keeping its previous version: an existing file, in
// whatever letter case, becomes the same name with the extension ".bak" (replacing an older
// backup in any case), and content is written under name as given. Empty content writes
// nothing, which leaves only the backup. Whenever the save stops, even half way, the file
// under name is whole: the old content or the new, and the backup is never the newer one.
// A failure raises 61 (disk full), 70 (permission denied) or 75 and leaves the old file as
// it was.
void WriteWithBackup(const QString& folder, const QString& name, const QString& content);

}  // namespace textfile
