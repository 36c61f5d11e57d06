#include "shell/TextFile.h"

#include <QFile>
#include <cerrno>

#include "shell/SafeSave.h"
#include "shell/VbError.h"

namespace textfile {

namespace {

// Characters 0x80-0x9F of windows-1252. The five bytes the code page leaves undefined (81, 8D,
// 8F, 90, 9D) stand for the control characters of the same number, so every byte has a
// character and reads back to itself.
constexpr char16_t kHighHalf[32] = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

// The byte of a character, or -1 when the code page has none.
int ByteOf(char16_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF))
        return c;
    for (int i = 0; i < 32; ++i)
        if (kHighHalf[i] == c)
            return 0x80 + i;
    return -1;
}

}  // namespace

QString Decode(QByteArrayView bytes) {
    QString text = QString::fromLatin1(bytes);
    char16_t* c = reinterpret_cast<char16_t*>(text.data());
    for (char16_t* const end = c + text.size(); c != end; ++c)
        if (*c >= 0x80 && *c < 0xA0)
            *c = kHighHalf[*c - 0x80];
    return text;
}

std::optional<QString> FirstUnstorableCharacter(QStringView text) {
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (ByteOf(text[i].unicode()) >= 0)
            continue;
        const bool pair =
            text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        return text.mid(i, pair ? 2 : 1).toString();
    }
    return std::nullopt;
}

QString UnstorableCharacterMessage(const QString& character) {
    const char32_t codePoint = character.size() == 2
                                   ? QChar::surrogateToUcs4(character.at(0), character.at(1))
                                   : character.at(0).unicode();
    const QString hex = QString::number(static_cast<uint>(codePoint), 16).toUpper();
    return QStringLiteral(
               "The character \"%1\" (U+%2) cannot be stored in Orvanta's data files. "
               "Please remove or replace it and save again.")
        .arg(character, hex.rightJustified(4, QLatin1Char('0')));
}

QByteArray Encode(QStringView text) {
    QByteArray bytes(text.size(), Qt::Uninitialized);
    char* out = bytes.data();
    for (const QChar c : text) {
        const int byte = ByteOf(c.unicode());
        if (byte < 0)
            Raise(err::InvalidProcedureCall,
                  UnstorableCharacterMessage(*FirstUnstorableCharacter(text)));
        *out++ = static_cast<char>(byte);
    }
    return bytes;
}

QStringList SplitLines(const QString& text) {
    QStringList lines;
    const QChar* const begin = text.constData();
    const QChar* const end = begin + text.size();
    const QChar* start = begin;
    for (const QChar* c = begin; c != end; ++c) {
        if (c->unicode() != u'\r' && c->unicode() != u'\n')
            continue;
        lines.append(QString(start, c - start));
        if (c->unicode() == u'\r' && c + 1 != end && c[1].unicode() == u'\n')
            ++c;
        start = c + 1;
    }
    if (start != end)
        lines.append(QString(start, end - start));
    return lines;
}

QByteArray ReadBytes(const QString& path) {
    QFile file(path);
    if (!file.exists())
        Raise(err::FileNotFound);
    errno = 0;
    if (!file.open(QIODevice::ReadOnly))
        safesave::RaiseFileError(file, errno);
    errno = 0;
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        safesave::RaiseFileError(file, errno);
    return bytes;
}

QString ReadAll(const QString& path) {
    return Decode(ReadBytes(path));
}

QStringList ReadLines(const QString& path) {
    QStringList lines;
    ForEachLine(ReadBytes(path), [&](QByteArrayView line) { lines.append(Decode(line)); });
    return lines;
}

void WriteAll(const QString& path, const QString& text) {
    safesave::Replace(path, Encode(text));
}

QString JoinLines(const QStringList& lines) {
    return lines.join(QStringLiteral("\r\n"));
}

void WriteWithBackup(const QString& folder, const QString& name, const QString& content) {
    safesave::ReplaceKeepingBackup(folder, name, Encode(content));
}

}  // namespace textfile
