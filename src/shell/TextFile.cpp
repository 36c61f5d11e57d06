#include "shell/TextFile.h"

#include <QFile>
#include <QStringDecoder>
#include <QStringEncoder>
#include <cerrno>

#include "shell/SafeSave.h"
#include "shell/VbError.h"

namespace textfile {

namespace {

const char* const kCodePage = "windows-1252";

// What the encoder writes in place of a character it cannot hold.
constexpr char kSubstitute = 0x1a;

}  // namespace

QString Decode(const QByteArray& bytes) {
    QStringDecoder decoder(kCodePage);
    return decoder.decode(bytes);
}

std::optional<QString> FirstUnstorableCharacter(const QString& text) {
    QStringEncoder encoder(kCodePage);
    const QByteArray bytes = encoder.encode(text);
    if (!encoder.hasError())
        return std::nullopt;
    // One byte per character, so the n-th substitute byte is the n-th code point of text.
    qsizetype byte = 0;
    for (qsizetype i = 0; i < text.size(); ++byte) {
        const char32_t codePoint = text.at(i).isHighSurrogate() && i + 1 < text.size()
                                       ? QChar::surrogateToUcs4(text.at(i), text.at(i + 1))
                                       : text.at(i).unicode();
        const qsizetype width = codePoint > 0xffff ? 2 : 1;
        if (byte < bytes.size() && bytes.at(byte) == kSubstitute && codePoint != 0x1a)
            return text.mid(i, width);
        i += width;
    }
    return text.left(1);
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

QByteArray Encode(const QString& text) {
    QStringEncoder encoder(kCodePage);
    QByteArray bytes = encoder.encode(text);
    if (encoder.hasError())
        Raise(err::InvalidProcedureCall,
              UnstorableCharacterMessage(FirstUnstorableCharacter(text).value_or(text.left(1))));
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

QString ReadAll(const QString& path) {
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
    return Decode(bytes);
}

QStringList ReadLines(const QString& path) {
    return SplitLines(ReadAll(path));
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
