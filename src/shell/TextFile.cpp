#include "shell/TextFile.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStringDecoder>
#include <QStringEncoder>

#include "shell/Files.h"
#include "shell/VbError.h"

namespace textfile {

namespace {

const char* const kCodePage = "windows-1252";

// What the encoder writes in place of a character it cannot hold.
constexpr char kSubstitute = 0x1a;

[[noreturn]] void RaiseFileError(const QFileDevice& file) {
    switch (file.error()) {
        case QFileDevice::ResourceError:
            Raise(err::DiskFull);
        case QFileDevice::PermissionsError:
            Raise(err::PermissionDenied);
        default:
            Raise(err::PathFileAccessError, file.errorString());
    }
}

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
    if (!file.open(QIODevice::ReadOnly))
        RaiseFileError(file);
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        RaiseFileError(file);
    return Decode(bytes);
}

QStringList ReadLines(const QString& path) {
    return SplitLines(ReadAll(path));
}

namespace {

void WriteBytes(const QString& path, const QByteArray& bytes) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        RaiseFileError(file);
    if (file.write(bytes) != bytes.size() || !file.flush()) {
        const QFileDevice::FileError error = file.error();
        file.cancelWriting();
        Raise(error == QFileDevice::PermissionsError ? err::PermissionDenied : err::DiskFull);
    }
    if (!file.commit())
        RaiseFileError(file);
}

}  // namespace

void WriteAll(const QString& path, const QString& text) {
    WriteBytes(path, Encode(text));
}

QString JoinLines(const QStringList& lines) {
    return lines.join(QStringLiteral("\r\n"));
}

QString BackupName(const QString& name) {
    const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
    const qsizetype slash =
        std::max(name.lastIndexOf(QLatin1Char('/')), name.lastIndexOf(QLatin1Char('\\')));
    const QString stem = dot > slash ? name.left(dot) : name;
    return stem + QStringLiteral(".bak");
}

void WriteWithBackup(const QString& folder, const QString& name, const QString& content) {
    const QByteArray bytes = Encode(content);  // refuse before anything on disk changes
    const QString backup = BackupName(name);
    QString current;
    if (FileExists(folder, name, &current)) {
        QString oldBackup;
        if (FileExists(folder, backup, &oldBackup) && !QFile::remove(oldBackup))
            Raise(err::PermissionDenied);
        if (!QFile::rename(current, JoinPath(folder, backup)))
            Raise(err::PathFileAccessError);
    }
    if (content.isEmpty())
        return;
    WriteBytes(current.isEmpty() ? JoinPath(folder, name) : current, bytes);
}

}  // namespace textfile
