#include "holidays_birthdays/modHolidays.h"

#include <QDir>
#include <QFile>

#include "calendar/DateModel.h"
#include "shell/Files.h"
#include "shell/SavePath.h"
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
    file = DataFile();
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
    table.file.SetName(HolidayFileName(yearNumber));
    // A faulty line ends the assignment: the holidays before it are listed, no cell is marked.
    const bool whole =
        ReadDataFile(services_, procedure, table.file, [&](QByteArrayView bytes, int) {
            const QString line = LineText(bytes);
            const HolidayLine split = SplitHolidayLine(line);
            table.lines.append(line);
            table.dates.append(split.date);
            table.names.append(split.name);
        });
    if (!whole) {
        emit holidaysAssigned(yearNumber);
        return;
    }
    const DateHolderGrid& holder = year == Year::This ? dates_.DateHolder : dates_.NextDateHolder;
    for (const QString& date : table.dates) {
        QString code;
        if (const std::optional<CellIndex> cell = FindInHolder(holder, date)) {
            table.flags[*cell] = true;
            code = cell->Code();
        }
        table.cells.append(code);
    }
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

const RecordLayout& HolidayLayout() {
    static const RecordLayout layout = [] {
        RecordLayout holidays;
        holidays.key = RecordLayout::Key::LeadingFields;
        holidays.keyFields = 1;
        return holidays;
    }();
    return layout;
}

HolidayList ReadHolidayList(Services& services, const char* procedure, int year) {
    HolidayList list;
    list.file.SetName(HolidayFileName(year));
    QStringList lines;
    ReadDataFile(services, procedure, list.file, [&](QByteArrayView bytes, int) {
        const QString line = LineText(bytes);
        SplitHolidayLine(line);
        lines.append(line);
    });
    if (list.file.Stamp().exists)
        list.lines = lines;
    return list;
}

bool SaveHolidayList(Services& services, const char* procedure, DataFile& file,
                     const QStringList& lines) {
    Records records(HolidayLayout());
    for (const QString& line : lines) {
        if (line.isEmpty())
            continue;
        // The date is the line's first eight characters, the description all after the ninth.
        records.Add({line.left(kDateLength), OnOneLine(line.mid(kNameStart))});
    }
    return SaveDataFile(services, procedure, file, records) != SaveResult::Refused;
}

bool SaveHolidayLines(Services& services, int year, const QStringList& lines) {
    HolidayList list = ReadHolidayList(services, "SaveHolidayFile", year);
    return SaveHolidayList(services, "SaveHolidayFile", list.file, lines);
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
