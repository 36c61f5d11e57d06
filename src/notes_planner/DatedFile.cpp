#include "notes_planner/DatedFile.h"

#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QSet>
#include <algorithm>
#include <cerrno>
#include <functional>

#include "shell/DateFormats.h"
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

// Each line of a file's bytes with the line end that follows it, as read.
QList<QByteArrayView> LinesWithEnds(const QByteArray& bytes) {
    QList<qsizetype> starts;
    textfile::ForEachLine(
        bytes, [&](QByteArrayView line) { starts.append(line.data() - bytes.constData()); });
    QList<QByteArrayView> lines;
    for (qsizetype i = 0; i < starts.size(); ++i) {
        const qsizetype end = i + 1 < starts.size() ? starts[i + 1] : bytes.size();
        lines.append(QByteArrayView(bytes).sliced(starts[i], end - starts[i]));
    }
    return lines;
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

QList<int> YearsWithFolders(const QString& appFolder) {
    QList<int> years;
    for (const QString& name : QDir(appFolder).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const bool digits = std::all_of(name.begin(), name.end(), [](QChar c) {
            return c >= QLatin1Char('0') && c <= QLatin1Char('9');
        });
        if (name.size() == 4 && digits)
            years.append(name.toInt());
    }
    std::sort(years.begin(), years.end());
    return years;
}

QList<QDate> DatesInFile(const QString& appFolder, int year, const QString& fileName, int month) {
    DatedEntries entries;
    try {
        ReadDatedFile(appFolder, year, fileName, entries);
    } catch (const VbError&) {
        // The entries before the faulty line are listed.
    }
    QList<QDate> dates;
    for (const QString& key : entries.dateKeys) {
        const QDate date = datefmt::ParseMmDdYy(key, year);
        if (date.year() == year && (month == 0 || date.month() == month))
            dates.append(date);
    }
    std::sort(dates.begin(), dates.end());
    dates.erase(std::unique(dates.begin(), dates.end()), dates.end());
    return dates;
}

namespace {

// Reads a year's file afresh, lets rewrite make its new content from the lines read (each with
// its line end), and writes that content when it differs. A file that cannot be read whole is
// left as it is, and its next save is refused, so the lines it could not read are never lost.
bool RewriteDatedFile(
    Services& services, const char* procedure, int year, const QString& fileName,
    const std::function<QByteArray(const DatedEntries&, const QList<QByteArrayView>&)>& rewrite) {
    bool readWhole = true;
    const bool done = services.Trap(procedure, [&] {
        DatedEntries entries;
        try {
            ReadDatedFile(services.AppFolder, year, fileName, entries);
        } catch (const VbError&) {
            readWhole = false;
            throw;
        }
        const QByteArray content = rewrite(entries, LinesWithEnds(entries.fileBytes));
        if (content != entries.fileBytes)
            WriteDatedLines(services, year, fileName, content);
    });
    if (!readWhole)
        services.RefuseSaveAfterPartialRead(true, YearFileName(year, fileName));
    return done;
}

}  // namespace

bool DeleteDatedLines(Services& services, const char* procedure, int year, const QString& fileName,
                      const QList<QDate>& dates) {
    QSet<QString> keys;
    for (const QDate& date : dates)
        keys.insert(datefmt::MmDdYy(date));
    return RewriteDatedFile(services, procedure, year, fileName,
                            [&](const DatedEntries& entries, const QList<QByteArrayView>& lines) {
                                QByteArray kept;
                                kept.reserve(entries.fileBytes.size());
                                for (qsizetype i = 0; i < lines.size(); ++i)
                                    if (!keys.contains(entries.dateKeys[i]))
                                        kept += lines[i];
                                return kept;
                            });
}

CellIndex CellOfDate(const QDate& date) {
    const int firstColumn = QDate(date.year(), date.month(), 1).dayOfWeek() % 7;
    return {date.month() - 1, date.dayOfWeek() % 7, (firstColumn + date.day() - 1) / 7};
}

bool PutDatedLines(Services& services, const char* procedure, int year, const QString& fileName,
                   const QList<QDate>& dates, const QList<QByteArray>& payloads) {
    return RewriteDatedFile(
        services, procedure, year, fileName,
        [&](const DatedEntries& entries, const QList<QByteArrayView>& lines) {
            QList<QByteArray> newLines(lines.size());
            QByteArray added;
            for (qsizetype d = 0; d < dates.size(); ++d) {
                const QString key = datefmt::MmDdYy(dates[d]);
                QByteArray line = FormatDatedLine(key, CellOfDate(dates[d]).Code(), payloads[d]);
                const qsizetype at = entries.IndexOf(key);
                if (at < 0)
                    added += line + "\r\n";
                else
                    newLines[at] = line + "\r\n";
            }
            QByteArray content;
            content.reserve(entries.fileBytes.size() + added.size());
            for (qsizetype i = 0; i < lines.size(); ++i)
                content += newLines[i].isNull() ? lines[i].toByteArray() : newLines[i];
            // A last line without its line end gets one before the new lines follow it.
            if (!added.isEmpty() && !content.isEmpty() && !content.endsWith('\n') &&
                !content.endsWith('\r'))
                content += "\r\n";
            return content + added;
        });
}
