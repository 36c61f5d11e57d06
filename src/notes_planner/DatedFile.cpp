#include "notes_planner/DatedFile.h"

#include <sys/stat.h>

#include <QFile>
#include <cerrno>

#include "shell/Files.h"
#include "shell/FixedWidth.h"
#include "shell/SafeSave.h"
#include "shell/Services.h"
#include "shell/TextFile.h"
#include "shell/VbError.h"

namespace {

constexpr Field kDateKeyField{0, 8};
constexpr Field kCellCodeField{9, 6};
constexpr qsizetype kPayloadStart = kDatedPayloadStart;

int TwoDigits(QByteArrayView code, qsizetype at) {
    return (code[at] - '0') * 10 + (code[at + 1] - '0');
}

}  // namespace

qsizetype DatedEntries::IndexOf(QStringView dateKey) const {
    for (qsizetype i = 0; i < dateKeys.size(); ++i)
        if (dateKeys[i] == dateKey)
            return i;
    return -1;
}

qsizetype DatedEntries::Append(const QString& dateKey) {
    dateKeys.append(dateKey);
    cellCodes.append(QString());
    payloads.append(QByteArray());
    return dateKeys.size() - 1;
}

void DatedEntries::Clear() {
    dateKeys.clear();
    cellCodes.clear();
    payloads.clear();
    fileBytes.clear();
    exists.Fill(false);
}

int DatedLineFault(QByteArrayView line) {
    const QByteArrayView code = kCellCodeField.Raw(line);
    if (code.size() != kCellCodeField.width)
        return err::TypeMismatch;
    for (const char c : code)
        if (c < '0' || c > '9')
            return err::TypeMismatch;
    if (TwoDigits(code, 0) >= kMonths || TwoDigits(code, 2) >= kWeekdays ||
        TwoDigits(code, 4) >= kWeekRows)
        return err::SubscriptOutOfRange;
    return 0;
}

DatedLine ParseDatedLine(QByteArrayView line) {
    if (const int fault = DatedLineFault(line))
        Raise(fault);
    DatedLine parsed;
    parsed.dateKey = textfile::Decode(kDateKeyField.Raw(line));
    const QByteArrayView code = kCellCodeField.Raw(line);
    parsed.cell = {TwoDigits(code, 0), TwoDigits(code, 2), TwoDigits(code, 4)};
    parsed.cellCode = QString::fromLatin1(code);
    const QByteArrayView payload = line.sliced(std::min(kPayloadStart, line.size()));
    parsed.payload = QByteArray::fromRawData(payload.data(), payload.size());
    return parsed;
}

QByteArray FormatDatedLine(const QString& dateKey, const QString& cellCode,
                           QByteArrayView payload) {
    QByteArray line;
    line.reserve(kPayloadStart + payload.size());
    line += textfile::Encode(dateKey);
    line += ':';
    line += textfile::Encode(cellCode);
    line += ':';
    line += payload;
    return line;
}

QString YearFolderName(int year) {
    return QStringLiteral("%1").arg(year, 4, 10, QLatin1Char('0'));
}

QString YearFileName(int year, const QString& fileName) {
    return YearFolderName(year) + QLatin1Char('\\') + fileName;
}

void ReadDatedFile(const QString& appFolder, int year, const QString& fileName,
                   DatedEntries& entries) {
    entries.Clear();
    QString path;
    if (!FileExists(appFolder, YearFileName(year, fileName), &path))
        return;
    entries.fileBytes = textfile::ReadBytes(path);
    textfile::ForEachLine(entries.fileBytes, [&](QByteArrayView line) {
        DatedLine parsed = ParseDatedLine(line);
        entries.exists[parsed.cell] = true;
        entries.dateKeys.append(std::move(parsed.dateKey));
        entries.cellCodes.append(std::move(parsed.cellCode));
        entries.payloads.append(std::move(parsed.payload));
    });
}

void WriteDatedLines(Services& services, int year, const QString& fileName,
                     const QByteArray& content) {
    const QString folder = YearFolderName(year);
    QString realFolder;
    if (!FolderExists(services.dialogs, services.AppFolder, folder, &realFolder)) {
        realFolder = services.PathOf(folder) + QLatin1Char('/');
        if (::mkdir(QFile::encodeName(realFolder).constData(), 0777) != 0)
            safesave::RaiseSystemError(errno);
    }
    safesave::Replace(PathForWriting(realFolder, fileName), content);
}
