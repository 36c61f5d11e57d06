#include "holidays_birthdays/modHolidays.h"

#include <QDir>
#include <QFile>

#include "calendar/DateModel.h"
#include "shell/Files.h"
#include "shell/SafeSave.h"
#include "shell/Services.h"
#include "shell/TextFile.h"
#include "shell/VbError.h"

namespace {

constexpr qsizetype kDateLength = 8;
constexpr qsizetype kNameStart = 9;

}  // namespace

QString HolidayFileName(int year) {
    return kHolidaysFolder + QLatin1Char('\\') +
           QStringLiteral("%1").arg(year, 4, 10, QLatin1Char('0')) + QStringLiteral("Holidays.dat");
}

HolidayLine SplitHolidayLine(const QString& line) {
    if (line.size() < kNameStart)
        Raise(err::InvalidProcedureCall);
    return {line.left(kDateLength), line.mid(kNameStart)};
}

void HolidayTable::Clear() {
    lines.clear();
    dates.clear();
    names.clear();
    cells.clear();
    flags.Fill(false);
}

HolidayStore::HolidayStore(Services& services, const DateModel& dates)
    : services_(services), dates_(dates) {}

void HolidayStore::AssignThisYearsHolidays() {
    Assign(Year::This, "AssignThisYearsHolidays");
}

void HolidayStore::AssignNextYearsHolidays() {
    Assign(Year::Next, "AssignNextYearsHolidays");
}

void HolidayStore::ReadBothYears() {
    AssignThisYearsHolidays();
    AssignNextYearsHolidays();
}

void HolidayStore::Assign(Year year, const char* procedure) {
    HolidayTable& table = years[year];
    table.Clear();
    const int yearNumber = dates_.YearOf(year);
    services_.Trap(procedure, [&] {
        const std::optional<QStringList> lines = ReadHolidayLines(services_.AppFolder, yearNumber);
        if (!lines)
            return;
        table.lines = *lines;
        for (const QString& line : table.lines) {
            const HolidayLine split = SplitHolidayLine(line);
            table.dates.append(split.date);
            table.names.append(split.name);
        }
        const DateHolderGrid& holder =
            year == Year::This ? dates_.DateHolder : dates_.NextDateHolder;
        for (const QString& date : table.dates) {
            QString code;
            if (const std::optional<CellIndex> cell = FindInHolder(holder, date)) {
                table.flags[*cell] = true;
                code = cell->Code();
            }
            table.cells.append(code);
        }
    });
    emit holidaysAssigned(yearNumber);
}

QStringList HolidayStore::HolidaysOn(const QDate& date) const {
    const std::optional<CellIndex> cell = dates_.FindDay(date);
    if (!cell)
        return {};
    const HolidayTable& table = years[dates_.YearSlotOf(date)];
    if (!table.flags[*cell])
        return {};
    const QString code = cell->Code();
    QStringList names;
    for (qsizetype i = 0; i < table.cells.size(); ++i)
        if (table.cells[i] == code)
            names.append(table.names[i]);
    return names;
}

std::optional<QStringList> ReadHolidayLines(const QString& appFolder, int year) {
    QString path;
    if (!FileExists(appFolder, HolidayFileName(year), &path))
        return std::nullopt;
    return textfile::ReadLines(path);
}

void SaveHolidayLines(Services& services, int year, const QStringList& lines) {
    QStringList kept;
    for (const QString& line : lines)
        if (!line.isEmpty())
            kept.append(line);
    // Checked before anything on disk changes, so that a refused list leaves the file as it was.
    const QByteArray bytes =
        kept.isEmpty() ? QByteArray() : textfile::Encode(textfile::JoinLines(kept) + "\r\n");
    QString path;
    if (FileExists(services.AppFolder, HolidayFileName(year), &path)) {
        if (kept.isEmpty()) {
            if (!QFile::remove(path))
                Raise(err::PermissionDenied);
            return;
        }
    } else {
        if (kept.isEmpty())
            return;
        QString folder;
        if (!FolderExists(services.dialogs, services.AppFolder, kHolidaysFolder, &folder)) {
            folder = services.PathOf(kHolidaysFolder);
            if (!QDir().mkpath(folder))
                Raise(err::PathNotFound);
        }
        path = QDir(folder).filePath(HolidayFileName(year).section(QLatin1Char('\\'), 1));
    }
    safesave::Replace(path, bytes);
}

QString HolidayDateKey(const QDate& typed, int selectedYear) {
    return QStringLiteral("%1/%2/%3")
        .arg(typed.month(), 2, 10, QLatin1Char('0'))
        .arg(typed.day(), 2, 10, QLatin1Char('0'))
        .arg(selectedYear % 100, 2, 10, QLatin1Char('0'));
}

QStringList WithHoliday(QStringList lines, const QString& key, const QString& description) {
    lines.removeIf([&](const QString& line) { return line.left(kDateLength) == key; });
    lines.append(key + QLatin1Char(':') + description);
    return lines;
}
