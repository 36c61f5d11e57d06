#include "notes_planner/PhraseSearch.h"

#include <QDir>
#include <QFile>
#include <algorithm>
#include <bit>
#include <bitset>
#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include "notes_planner/DatedFile.h"
#include "notes_planner/modNotes.h"
#include "notes_planner/modPlanner.h"
#include "shell/Files.h"
#include "shell/TextFile.h"
#include "shell/VbError.h"

namespace {

using FoldTable = std::array<unsigned char, 256>;

// Every byte of windows-1252 as the lower-case letter when it is an upper-case one: A-Z,
// À-Þ (but not × at 215, which has no case), Š Œ Ž and Ÿ. ß, µ and ƒ have no capital in the
// code page and stay as they are, so "SS" never finds "ß".
constexpr FoldTable MakeLetterFold() {
    FoldTable fold{};
    for (int b = 0; b < 256; ++b)
        fold[b] = static_cast<unsigned char>(b);
    for (int b = 'A'; b <= 'Z'; ++b)
        fold[b] = static_cast<unsigned char>(b + 32);
    for (int b = 0xC0; b <= 0xDE; ++b)
        if (b != 0xD7)
            fold[b] = static_cast<unsigned char>(b + 32);
    fold[0x8A] = 0x9A;  // Š š
    fold[0x8C] = 0x9C;  // Œ œ
    fold[0x8E] = 0x9E;  // Ž ž
    fold[0x9F] = 0xFF;  // Ÿ ÿ
    return fold;
}

constexpr FoldTable kLetterFold = MakeLetterFold();

// A note keeps its CR as character 213 and its LF as 210: in a note they are line breaks, and
// only a line break in the phrase finds them.
constexpr FoldTable kNoteFold = [] {
    FoldTable fold = kLetterFold;
    fold[213] = '\r';
    fold[210] = '\n';
    return fold;
}();

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

int TwoDigits(QByteArrayView line, qsizetype at) {
    return (line[at] - '0') * 10 + (line[at + 1] - '0');
}

// The month and day of a line's key "mm/dd/yy" (the key's own two-digit year is not
// consulted: the year is the folder's); 0 for both when the key is not written so.
struct KeyDay {
    int month = 0;
    int day = 0;
};
KeyDay DayOfKey(QByteArrayView line) {
    if (line.size() < 8 || line[2] != '/' || line[5] != '/')
        return {};
    for (const qsizetype at : {0, 1, 3, 4, 6, 7})
        if (!IsDigit(line[at]))
            return {};
    return {TwoDigits(line, 0), TwoDigits(line, 3)};
}

}  // namespace

PhraseMatcher::PhraseMatcher(const QString& phrase) {
    if (const auto bad = textfile::FirstUnstorableCharacter(phrase)) {
        unstorable_ = *bad;
        return;
    }
    folded_ = textfile::Encode(phrase);
    for (char& c : folded_)
        c = static_cast<char>(kLetterFold[static_cast<unsigned char>(c)]);
    canMatch_ = !folded_.isEmpty();
    if (!canMatch_)
        return;
    Prepare(letters_, kLetterFold);
    Prepare(note_, kNoteFold);
}

// Horspool's shift over folded bytes: a byte standing under the phrase's last character lets
// the search move on to where that byte's folded value last occurs in the phrase (not counting
// the last character), or past the phrase when it does not occur. The table is kept per raw
// byte, so the search looks a byte up once; bytes that are the last character skip 0 and
// the phrase is then compared.
void PhraseMatcher::Prepare(Scanner& scanner, const FoldTable& fold) {
    const qsizetype length = folded_.size();
    std::array<qsizetype, 256> byFolded;
    byFolded.fill(length);
    for (qsizetype i = 0; i + 1 < length; ++i)
        byFolded[static_cast<unsigned char>(folded_[i])] = length - 1 - i;
    scanner.fold = &fold;
    const unsigned char last = static_cast<unsigned char>(folded_[length - 1]);
    scanner.shiftOnLast = byFolded[last];
    for (int b = 0; b < 256; ++b)
        scanner.skip[b] = fold[b] == last ? 0 : byFolded[fold[b]];
    // The bytes that read as the first and as the last character: a letter's two cases, a
    // note's line break and the character it is kept as, or one byte twice.
    const auto formsOf = [&fold](unsigned char folded) {
        std::array<unsigned char, 2> forms;
        forms.fill(folded);
        qsizetype count = 0;
        for (int b = 0; b < 256 && count < 2; ++b)
            if (fold[b] == folded)
                forms[count++] = static_cast<unsigned char>(b);
        return forms;
    };
    scanner.firstForms = formsOf(static_cast<unsigned char>(folded_[0]));
    scanner.lastForms = formsOf(last);
}

bool PhraseMatcher::MatchesAt(const Scanner& scanner, const unsigned char* text) const {
    const FoldTable& fold = *scanner.fold;
    const auto* phrase = reinterpret_cast<const unsigned char*>(folded_.constData());
    for (qsizetype i = 0; i < folded_.size(); ++i)
        if (fold[text[i]] != phrase[i])
            return false;
    return true;
}

bool PhraseMatcher::Find(const Scanner& scanner, QByteArrayView bytes) const {
    const qsizetype length = folded_.size();
    if (!canMatch_ || bytes.size() < length)
        return false;
    const auto* text = reinterpret_cast<const unsigned char*>(bytes.data());
    const qsizetype last = length - 1;
    const qsizetype stop = bytes.size() - length;
    qsizetype at = 0;
#if defined(__SSE2__)
    // Sixteen places at a time: a place is worth comparing when its byte is a form of the
    // phrase's first character and the byte under the phrase's last character a form of the
    // last. The loads do not depend on each other, so this runs at the memory's pace where
    // the skipping below waits on each byte it looks up.
    const auto form = [](unsigned char b) { return _mm_set1_epi8(static_cast<char>(b)); };
    const __m128i first0 = form(scanner.firstForms[0]), first1 = form(scanner.firstForms[1]);
    const __m128i last0 = form(scanner.lastForms[0]), last1 = form(scanner.lastForms[1]);
    for (; at + 16 <= stop + 1; at += 16) {
        const auto load = [&](qsizetype from) {
            return _mm_loadu_si128(reinterpret_cast<const __m128i*>(text + from));
        };
        const __m128i head = load(at);
        const __m128i tail = load(at + last);
        const __m128i candidates =
            _mm_and_si128(_mm_or_si128(_mm_cmpeq_epi8(head, first0), _mm_cmpeq_epi8(head, first1)),
                          _mm_or_si128(_mm_cmpeq_epi8(tail, last0), _mm_cmpeq_epi8(tail, last1)));
        for (unsigned mask = static_cast<unsigned>(_mm_movemask_epi8(candidates)); mask != 0;
             mask &= mask - 1)
            if (MatchesAt(scanner, text + at + std::countr_zero(mask)))
                return true;
    }
    if (at > stop)
        return false;
#endif
    // Horspool's skipping over what is left.
    const FoldTable& fold = *scanner.fold;
    const auto* phrase = reinterpret_cast<const unsigned char*>(folded_.constData());
    for (;;) {
        // Skip while the byte under the phrase's last character is not that character; the
        // shift of such a byte is 0, so the loop needs no other test.
        qsizetype step;
        while ((step = scanner.skip[text[at + last]]) != 0) {
            at += step;
            if (at > stop)
                return false;
        }
        qsizetype i = 0;
        while (i < last && fold[text[at + i]] == phrase[i])
            ++i;
        if (i == last)
            return true;
        at += scanner.shiftOnLast;
        if (at > stop)
            return false;
    }
}

bool PhraseMatcher::CanMatch() const {
    return canMatch_;
}

bool PhraseMatcher::FoundIn(QByteArrayView bytes) const {
    return Find(letters_, bytes);
}

bool PhraseMatcher::FoundInNote(QByteArrayView bytes) const {
    return Find(note_, bytes);
}

YearSearchResult SearchYearFile(const QString& appFolder, int year, int month,
                                SearchLocation location, const PhraseMatcher& phrase) {
    YearSearchResult result;
    const QString& fileName = location == SearchLocation::Notes ? kNotesFile : kPlannerFile;
    QString path;
    if (!phrase.CanMatch() || !FileExists(appFolder, YearFileName(year, fileName), &path))
        return result;
    // The file is mapped rather than copied. The program replaces a data file by writing a new
    // one beside it and renaming it, so the mapped file never changes under the search.
    QFile file(path);
    QByteArray copy;
    QByteArrayView bytes;
    const qint64 size = file.open(QIODevice::ReadOnly) ? file.size() : 0;
    if (uchar* mapped = size > 0 ? file.map(0, size) : nullptr) {
        bytes = QByteArrayView(mapped, size);
    } else {
        try {
            copy = textfile::ReadBytes(path);
        } catch (const VbError& error) {
            result.path = path;
            result.error = error.number();
            return result;
        }
        bytes = copy;
    }
    // The days found so far, by month * 32 + day.
    std::bitset<13 * 32> found;
    qsizetype lineNumber = 0;
    textfile::ForEachLine(bytes, [&](QByteArrayView line) {
        if (result.error != 0)
            return;
        ++lineNumber;
        if (const int fault = DatedLineFault(line)) {
            result.path = path;
            result.faultyLine = lineNumber;
            result.error = fault;
            return;
        }
        const auto [keyMonth, keyDay] = DayOfKey(line);
        if ((month != 0 && keyMonth != month) || !QDate::isValid(year, keyMonth, keyDay) ||
            found[keyMonth * 32 + keyDay])
            return;
        if (phrase.FoundIn(line.sliced(std::min(kDatedPayloadStart, line.size())), location)) {
            found[keyMonth * 32 + keyDay] = true;
            result.dates.append(QDate(year, keyMonth, keyDay));
        }
    });
    return result;
}

QList<QDate> SearchYear(const QString& appFolder, int year, int month, SearchLocation location,
                        const PhraseMatcher& phrase) {
    return SearchYearFile(appFolder, year, month, location, phrase).dates;
}

QList<int> DataFolderYears(const QString& appFolder) {
    QList<int> years;
    const QStringList names = QDir(appFolder).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& name : names) {
        if (name.size() != 4 ||
            !std::all_of(name.begin(), name.end(), [](QChar c) { return c >= u'0' && c <= u'9'; }))
            continue;
        if (const int year = name.toInt(); year > 0)
            years.append(year);
    }
    std::sort(years.begin(), years.end());
    return years;
}
