#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QDate>
#include <QList>
#include <QString>
#include <array>

// Searching the notes and planner files of the data folder for a phrase, straight from the
// files' bytes: no store is read, nothing is decoded, and the year the user works in is left
// alone.

enum class SearchLocation { Notes, Planners };

// The phrase as the data files hold it (windows-1252), found without regard to case for every
// letter of windows-1252: "MÜLLER" finds "Müller", "ŠKODA" finds "škoda", "Ÿ" finds "ÿ".
class PhraseMatcher {
public:
    explicit PhraseMatcher(const QString& phrase);  // the caller trims it
    // False when the phrase is empty or holds a character no data file can hold; such a
    // matcher finds nothing.
    bool CanMatch() const;
    bool FoundIn(QByteArrayView bytes) const;
    // The same in a note's bytes, where characters 213 and 210 are the note's line breaks (CR
    // and LF) and not the letters Õ and Ò: "õ" does not find every note of several lines.
    bool FoundInNote(QByteArrayView bytes) const;
    bool FoundIn(QByteArrayView bytes, SearchLocation location) const {
        return location == SearchLocation::Notes ? FoundInNote(bytes) : FoundIn(bytes);
    }

    // The first character of the phrase that no data file can hold, or empty.
    const QString& UnstorableCharacter() const { return unstorable_; }

private:
    // One way of reading the file's bytes: each byte's case-folded value, how far the search
    // may move on when a byte stands under the phrase's last character (0 when it is that
    // character), and how far when it is and the rest of the phrase did not match.
    struct Scanner {
        const std::array<unsigned char, 256>* fold = nullptr;
        std::array<qsizetype, 256> skip{};
        qsizetype shiftOnLast = 0;
        std::array<unsigned char, 2> firstForms{};
        std::array<unsigned char, 2> lastForms{};
    };
    void Prepare(Scanner& scanner, const std::array<unsigned char, 256>& fold);
    bool Find(const Scanner& scanner, QByteArrayView bytes) const;
    bool MatchesAt(const Scanner& scanner, const unsigned char* text) const;

    QByteArray folded_;
    QString unstorable_;
    bool canMatch_ = false;
    Scanner letters_;
    Scanner note_;
};

// How a year's file was searched.
struct YearSearchResult {
    QList<QDate> dates;
    // Empty when the file was read whole (or is missing). Otherwise the path of the file on
    // disk, the number (from 1) of the line where reading stopped, or 0 when the file could not
    // be read at all, and the error that stopped it (13, 9, 75 ...).
    QString path;
    qsizetype faultyLine = 0;
    int error = 0;

    bool ReadWhole() const { return error == 0; }
};

// SearchYear with what the file's reading ran into.
YearSearchResult SearchYearFile(const QString& appFolder, int year, int month,
                                SearchLocation location, const PhraseMatcher& phrase);

// The dates of a year's notes (or planner) file whose entry holds the phrase, in the order of
// the file's lines, each date once (a date on two lines counts once). month 1-12 keeps only
// that month's dates, 0 keeps all. Reads the file itself: the stores and the year the user
// works in are left as they are. A missing folder or file finds nothing; the lines after a
// faulty line (a cell code that is not six digits etc., as ParseDatedLine rules) are not
// searched, as the store does not read them. Only the payload is searched (for a planner the
// whole 4,100-character record, time fields and done marks included), never the date key or
// the cell code.
QList<QDate> SearchYear(const QString& appFolder, int year, int month, SearchLocation location,
                        const PhraseMatcher& phrase);

// The years that have a year folder ("yyyy", four digits) in the data folder, ascending.
QList<int> DataFolderYears(const QString& appFolder);
