#include "notes_planner/DatedFile.h"

#include <QDir>
#include <QSet>
#include <algorithm>

#include "shell/DateFormats.h"
#include "shell/Files.h"
#include "shell/FixedWidth.h"
#include "shell/SavePath.h"
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
    file = DataFile();
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

RecordLayout DatedLayout(bool lineBreaks) {
    RecordLayout layout;
    layout.key = RecordLayout::Key::LeadingFields;
    layout.keyFields = 1;
    layout.encodesLineBreaks = lineBreaks;
    return layout;
}

void ReadDatedFile(const QString& appFolder, int year, const QString& fileName,
                   DatedEntries& entries) {
    entries.Clear();
    entries.file.SetName(YearFileName(year, fileName));
    // The entries are views into the bytes read, which fileBytes keeps, faulty line or not.
    try {
        ReadLinesOf(appFolder, entries.file, [&](QByteArrayView line, int) {
            DatedLine parsed = ParseDatedLine(line);
            entries.exists[parsed.cell] = true;
            entries.dateKeys.append(std::move(parsed.dateKey));
            entries.cellCodes.append(std::move(parsed.cellCode));
            entries.payloads.append(std::move(parsed.payload));
        });
    } catch (const VbError&) {
        entries.fileBytes = entries.file.SeenBytes();
        throw;
    }
    entries.fileBytes = entries.file.SeenBytes();
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

// Reads a year's file afresh and saves what rewrite makes of its entries. A file that cannot be
// read whole is reported under procedure and then refused as every save refuses it.
template <class Rewrite>
bool RewriteDatedFile(Services& services, const char* procedure, int year, const QString& fileName,
                      Rewrite&& rewrite) {
    DatedEntries entries;
    services.Trap(procedure, [&] { ReadDatedFile(services.AppFolder, year, fileName, entries); });
    const std::optional<Records> records = rewrite(entries);
    if (!records)
        return true;
    return SaveDataFile(services, procedure, entries.file, *records) != SaveResult::Refused;
}

}  // namespace

bool DeleteDatedLines(Services& services, const char* procedure, int year, const QString& fileName,
                      const RecordLayout& layout, const QList<QDate>& dates) {
    QSet<QString> keys;
    for (const QDate& date : dates)
        keys.insert(datefmt::MmDdYy(date));
    return RewriteDatedFile(services, procedure, year, fileName,
                            [&](const DatedEntries& entries) -> std::optional<Records> {
                                const auto kept = [&](qsizetype i) {
                                    return !keys.contains(entries.dateKeys[i]);
                                };
                                bool found = false;
                                for (qsizetype i = 0; i < entries.Count() && !found; ++i)
                                    found = !kept(i);
                                if (!found && !entries.file.PartlyRead())
                                    return std::nullopt;
                                return DatedRecords(layout, entries, kept);
                            });
}

CellIndex CellOfDate(const QDate& date) {
    const int firstColumn = QDate(date.year(), date.month(), 1).dayOfWeek() % 7;
    return {date.month() - 1, date.dayOfWeek() % 7, (firstColumn + date.day() - 1) / 7};
}

bool PutDatedLines(Services& services, const char* procedure, int year, const QString& fileName,
                   const RecordLayout& layout, const QList<QDate>& dates,
                   const QStringList& texts) {
    return RewriteDatedFile(
        services, procedure, year, fileName,
        [&](const DatedEntries& entries) -> std::optional<Records> {
            QList<qsizetype> put(entries.Count(), -1);
            QList<qsizetype> added;
            for (qsizetype d = 0; d < dates.size(); ++d) {
                const qsizetype at = entries.IndexOf(datefmt::MmDdYy(dates[d]));
                if (at < 0)
                    added.append(d);
                else
                    put[at] = d;
            }
            Records records(layout);
            const auto addPut = [&](qsizetype d) {
                records.Add({datefmt::MmDdYy(dates[d]), CellOfDate(dates[d]).Code(), texts[d]});
            };
            for (qsizetype i = 0; i < entries.Count(); ++i) {
                if (put[i] >= 0)
                    addPut(put[i]);
                else
                    records.AddLine(FormatDatedLine(entries.dateKeys[i], entries.cellCodes[i],
                                                    entries.payloads[i]));
            }
            for (const qsizetype d : added)
                addPut(d);
            return records;
        });
}
