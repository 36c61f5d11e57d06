// The phrase search on any bytes: the first byte gives the phrase's length, the phrase's
// windows-1252 bytes follow, and the rest is a year's Notes.dat and Planner.dat. The search
// never crashes, finds each date of the year once and only within the month asked for, and
// finds the phrase in a stretch of bytes exactly when a plain comparison of the lower-cased
// characters, position by position, does.
#include "FuzzSupport.h"
#include "notes_planner/PhraseSearch.h"
#include "notes_planner/modNotes.h"
#include "shell/TextFile.h"

namespace {

// Whether phrase occurs in text, character by character in lower case.
bool PlainlyFound(const QString& phrase, const QString& text) {
    const QString lower = phrase.toLower();
    for (qsizetype at = 0; !lower.isEmpty() && at + lower.size() <= text.size(); ++at) {
        qsizetype i = 0;
        while (i < lower.size() && text[at + i].toLower() == lower[i])
            ++i;
        if (i == lower.size())
            return true;
    }
    return false;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0)
        return 0;
    const auto input = QByteArrayView(data, qsizetype(size));
    const qsizetype length = std::min<qsizetype>(input[0] & 0x3f, input.size() - 1);
    const int month = static_cast<unsigned char>(input[0]) >> 6 == 0 ? 0 : 3;
    const QString phrase = textfile::Decode(input.sliced(1, length));
    const QByteArrayView file = input.sliced(1 + length);
    QDir().mkpath(fuzz::services().PathOf(QStringLiteral("2026")));
    fuzz::WriteInput(QStringLiteral("2026/Notes.dat"), data + 1 + length, size_t(file.size()));
    fuzz::WriteInput(QStringLiteral("2026/Planner.dat"), data + 1 + length, size_t(file.size()));

    const PhraseMatcher matcher(phrase);
    fuzz::Check(matcher.CanMatch() == !phrase.isEmpty(), "every decoded phrase can be matched");
    fuzz::Check(matcher.FoundIn(file) == PlainlyFound(phrase, textfile::Decode(file)),
                "a page holds the phrase as its lower-cased characters say");
    fuzz::Check(
        matcher.FoundInNote(file) == PlainlyFound(phrase, DecodeLineBreaks(textfile::Decode(file))),
        "a note holds the phrase as its lower-cased characters say");
    for (const SearchLocation location : {SearchLocation::Notes, SearchLocation::Planners}) {
        const QString folder = fuzz::services().AppFolder;
        const QList<QDate> dates = SearchYear(folder, 2026, month, location, matcher);
        for (qsizetype i = 0; i < dates.size(); ++i) {
            fuzz::Check(dates[i].year() == 2026, "a date of the folder's year");
            fuzz::Check(month == 0 || dates[i].month() == month, "a date of the month asked");
            fuzz::Check(!dates.mid(i + 1).contains(dates[i]), "each date once");
        }
    }
    return 0;
}
