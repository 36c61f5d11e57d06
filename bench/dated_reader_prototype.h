// A faster way to read and write the dated files, kept beside the benchmark that weighs it
// against the stores' own reader and writer.
//
// The stores decode a whole file into one QString, split that into a QString per line and then
// copy each line's fields into their own QStrings: three copies of every character, each into
// freshly allocated memory. Here the bytes are split into lines first (CR and LF are single
// bytes in windows-1252, found with memchr), and each field goes from its bytes straight into
// its QString in one copy. windows-1252 is Latin-1 except for bytes 0x80-0x9F, so a field is
// taken as Latin-1 (Qt's vectorised conversion) and only those bytes are then looked up in a
// table. The table is filled from the program's own decoder, so both readers give the same
// characters.
#pragma once

#include <QByteArray>
#include <QDate>
#include <QFile>
#include <QString>
#include <array>
#include <cstring>
#include <optional>

#include "notes_planner/DatedFile.h"
#include "shell/TextFile.h"

namespace prototype {

// The character of each byte, as textfile::Decode gives it.
inline const std::array<char16_t, 256>& CharOfByte() {
    static const std::array<char16_t, 256> table = [] {
        std::array<char16_t, 256> chars{};
        for (int byte = 0; byte < 256; ++byte) {
            const QString one = textfile::Decode(QByteArray(1, static_cast<char>(byte)));
            chars[byte] = one.size() == 1 ? one.at(0).unicode() : u'\xfffd';
        }
        return chars;
    }();
    return table;
}

// Eight bytes at a time: true when any of them lies in 0x80-0x9F (top three bits 100).
inline bool AnyC1Byte(quint64 word) {
    constexpr quint64 kOnes = 0x0101010101010101ULL;
    constexpr quint64 kHighs = 0x8080808080808080ULL;
    const quint64 x = (word & 0xE0E0E0E0E0E0E0E0ULL) ^ kHighs;  // a zero byte marks a C1 byte
    return ((x - kOnes) & ~x & kHighs) != 0;
}

// The text of size windows-1252 bytes.
inline QString Decode(const char* bytes, qsizetype size) {
    QString text = QString::fromLatin1(bytes, size);
    if (text.isEmpty())
        return text;
    const auto& table = CharOfByte();
    char16_t* out = nullptr;
    const auto fix = [&](qsizetype i) {
        const auto byte = static_cast<uchar>(bytes[i]);
        if (byte >= 0x80 && byte < 0xA0) {
            if (!out)
                out = reinterpret_cast<char16_t*>(text.data());
            out[i] = table[byte];
        }
    };
    qsizetype i = 0;
    for (; i + 8 <= size; i += 8) {
        quint64 word;
        std::memcpy(&word, bytes + i, sizeof word);
        if (AnyC1Byte(word))
            for (qsizetype j = i; j < i + 8; ++j)
                fix(j);
    }
    for (; i < size; ++i)
        fix(i);
    return text;
}

// The byte of each character that windows-1252 holds outside Latin-1's own range; 0 for
// none.
inline const std::array<uchar, 0x10000>& ByteOfChar() {
    static const std::array<uchar, 0x10000> table = [] {
        std::array<uchar, 0x10000> bytes{};
        const auto& chars = CharOfByte();
        for (int byte = 0x80; byte < 0xA0; ++byte) {
            const QString one{QChar(chars[byte])};
            // Only characters the program's own encoder gives back as this byte.
            QByteArray back;
            try {
                back = textfile::Encode(one);
            } catch (...) {
                continue;
            }
            if (back.size() == 1 && static_cast<uchar>(back[0]) == byte)
                bytes[chars[byte]] = static_cast<uchar>(byte);
        }
        return bytes;
    }();
    return table;
}

// Four UTF-16 units at a time: true when any of them is not stored as its own Latin-1 byte
// (a unit above 0xFF, or one in 0x80-0x9F).
inline bool AnyNonLatin1Unit(quint64 units) {
    constexpr quint64 kOnes = 0x0001000100010001ULL;
    constexpr quint64 kHighs = 0x8000800080008000ULL;
    if ((units & 0xFF00FF00FF00FF00ULL) != 0)
        return true;
    const quint64 x = (units & 0x00E000E000E000E0ULL) ^ 0x0080008000800080ULL;
    return ((x - kOnes) & ~x & kHighs) != 0;
}

// The bytes of text, or nullopt when it holds a character the files cannot hold. The text is
// taken as Latin-1 (Qt's vectorised conversion) and only the units that windows-1252 stores
// otherwise are then looked up.
inline std::optional<QByteArray> Encode(const QString& text) {
    QByteArray bytes = text.toLatin1();
    const char16_t* in = reinterpret_cast<const char16_t*>(text.utf16());
    const qsizetype size = text.size();
    const auto& table = ByteOfChar();
    char* out = nullptr;
    bool storable = true;
    const auto fix = [&](qsizetype i) {
        const char16_t c = in[i];
        if (c < 0x80 || (c >= 0xA0 && c < 0x100))
            return;
        if (!out)
            out = bytes.data();
        out[i] = static_cast<char>(table[c]);
        storable &= table[c] != 0;
    };
    qsizetype i = 0;
    for (; i + 4 <= size; i += 4) {
        quint64 units;
        std::memcpy(&units, in + i, sizeof units);
        if (AnyNonLatin1Unit(units))
            for (qsizetype j = i; j < i + 4; ++j)
                fix(j);
    }
    for (; i < size; ++i)
        fix(i);
    if (!storable)
        return std::nullopt;
    return bytes;
}

// Calls visit(begin, length) for every line of bytes: CR LF, a lone CR or a lone LF ends a
// line, and a final line end does not start another line (as textfile::SplitLines counts).
template <class Visit>
void ForEachLine(const QByteArray& bytes, Visit&& visit) {
    const char* const end = bytes.constData() + bytes.size();
    const auto find = [end](const char* from, char c) {
        const void* at = std::memchr(from, c, end - from);
        return at ? static_cast<const char*>(at) : end;
    };
    const char* start = bytes.constData();
    const char* nextCr = find(start, '\r');
    const char* nextLf = find(start, '\n');
    while (start != end) {
        if (nextCr < start)
            nextCr = find(start, '\r');
        if (nextLf < start)
            nextLf = find(start, '\n');
        const char* lineEnd = std::min(nextCr, nextLf);
        visit(start, lineEnd - start);
        if (lineEnd == end)
            break;
        if (*lineEnd == '\r' && lineEnd + 1 != end && lineEnd[1] == '\n')
            ++lineEnd;
        start = lineEnd + 1;
    }
}

inline QByteArray ReadBytes(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return file.readAll();
}

// Replaces entries with the lines of the file at path, as ReadDatedFile does for a file
// without faults. A line whose cell code is not six digits on the grid ends the reading and
// gives false (without ReadDatedFile's error report).
inline bool ReadDated(const QString& path, DatedEntries& entries) {
    entries.Clear();
    const QByteArray bytes = ReadBytes(path);
    qsizetype lines = 0;
    ForEachLine(bytes, [&](const char*, qsizetype) { ++lines; });
    entries.dateKeys.reserve(lines);
    entries.cellCodes.reserve(lines);
    entries.payloads.reserve(lines);
    bool whole = true;
    ForEachLine(bytes, [&](const char* line, qsizetype size) {
        if (!whole)
            return;
        const QString code = size >= 15 ? QString::fromLatin1(line + 9, 6) : QString();
        bool digits = code.size() == 6;
        for (const QChar c : code)
            digits &= c >= QLatin1Char('0') && c <= QLatin1Char('9');
        const auto cell = digits ? CellIndex::FromCode(code) : std::nullopt;
        if (!cell) {
            whole = false;
            return;
        }
        entries.exists[*cell] = true;
        entries.dateKeys.append(Decode(line, std::min<qsizetype>(8, size)));
        entries.cellCodes.append(code);
        entries.payloads.append(size > 16 ? Decode(line + 16, size - 16) : QString());
    });
    return whole;
}

// "mm/dd/yy" without going through a date format pattern.
inline QString MmDdYy(const QDate& date) {
    QString text;
    text.reserve(8);
    AppendTwoDigits(text, date.month());
    text += QLatin1Char('/');
    AppendTwoDigits(text, date.day());
    text += QLatin1Char('/');
    AppendTwoDigits(text, ((date.year() % 100) + 100) % 100);
    return text;
}

}  // namespace prototype

namespace prototype {

// The bytes of a year's dated file, as WriteDatedFile writes them for the entries keep()
// accepts: each field encoded straight into the file's bytes, without the text of the whole
// file in between. nullopt when an entry holds a character the file cannot hold.
template <class Keep>
std::optional<QByteArray> DatedFileBytes(const DatedEntries& entries, Keep&& keep) {
    qsizetype size = 0;
    for (const QString& payload : entries.payloads)
        size += payload.size() + 19;
    QByteArray bytes;
    bytes.reserve(size);
    for (qsizetype i = 0; i < entries.Count(); ++i) {
        if (!keep(i))
            continue;
        const auto key = Encode(entries.dateKeys[i]);
        const auto code = Encode(entries.cellCodes[i]);
        const auto payload = Encode(entries.payloads[i]);
        if (!key || !code || !payload)
            return std::nullopt;
        bytes += *key;
        bytes += ':';
        bytes += *code;
        bytes += ':';
        bytes += *payload;
        bytes += "\r\n";
    }
    return bytes;
}

// A year's date holder as the date model lays it out: month sheets, weekday columns from
// Sunday, a month's 1st in row 0; the other cells blank.
inline void FillHolder(DayGrid<QString>& holder, int year, const QString& blank) {
    holder.Fill(blank);
    for (int month = 1; month <= 12; ++month) {
        const QDate first(year, month, 1);
        const int firstColumn = first.dayOfWeek() % 7;
        for (int day = 1; day <= first.daysInMonth(); ++day) {
            const QDate date(year, month, day);
            holder.at(month - 1, date.dayOfWeek() % 7, (day - 1 + firstColumn) / 7) = MmDdYy(date);
        }
    }
}

}  // namespace prototype
