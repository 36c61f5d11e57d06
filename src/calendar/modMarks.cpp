#include "calendar/modMarks.h"

#include "calendar/DateModel.h"
#include "calendar/MarkerColors.h"
#include "shell/Files.h"
#include "shell/FixedWidth.h"
#include "shell/SavePath.h"
#include "shell/Services.h"
#include "shell/TextFile.h"

namespace {

// The value a read mark takes in MarkSet: true.
constexpr qint16 kMarked = -1;

// Characters 1-2, 4-5 and 7-8 of a line locate the cell; the colour runs from character 10 up
// to the first "-" at or after character 9, which starts the hover text.
constexpr Field kMonthField{0, 2};
constexpr Field kWeekdayField{3, 2};
constexpr Field kWeekRowField{6, 2};
constexpr qsizetype kColorStart = 9;
constexpr qsizetype kHoverSearchStart = 8;

int IndexField(QStringView line, const Field& field, int limit) {
    const int value = ToInt(field.Raw(line));
    if (value < 0 || value >= limit)
        Raise(err::SubscriptOutOfRange);
    return value;
}

}  // namespace

void MarkTables::Clear() {
    set.Fill(0);
    category.Fill(0);
    hover.Fill(QString());
}

const RecordLayout& MarksLayout() {
    static const RecordLayout layout = [] {
        RecordLayout marks;
        marks.key = RecordLayout::Key::LeadingFields;
        marks.keyFields = 3;
        marks.endAfterLast = false;
        marks.keepBackup = true;
        return marks;
    }();
    return layout;
}

QStringList MarkFields(const MarkLine& mark) {
    QString cell[3];
    AppendTwoDigits(cell[0], mark.cell.month);
    AppendTwoDigits(cell[1], mark.cell.weekday);
    AppendTwoDigits(cell[2], mark.cell.week);
    QString last = QString::number(mark.color);
    if (!mark.hover.isEmpty())
        last += QLatin1Char('-') + OnOneLine(mark.hover);
    return {cell[0], cell[1], cell[2], last};
}

QString FormatMarkLine(const MarkLine& mark) {
    return MarkFields(mark).join(QLatin1Char(':'));
}

MarkLine ParseMarkLine(QStringView line) {
    MarkLine mark;
    mark.cell = {IndexField(line, kMonthField, kMonths), IndexField(line, kWeekdayField, kWeekdays),
                 IndexField(line, kWeekRowField, kWeekRows)};
    const qsizetype dash = line.indexOf(QLatin1Char('-'), kHoverSearchStart);
    const QStringView color = dash < 0             ? line.mid(kColorStart)
                              : dash > kColorStart ? line.mid(kColorStart, dash - kColorStart)
                                                   : QStringView();
    mark.color = ToInt(color);
    if (dash >= 0)
        mark.hover = line.mid(dash + 1).toString();
    return mark;
}

DateMarks::DateMarks(Services& services, const DateModel& dates, const MarkerColors& colors)
    : services_(services), dates_(dates), colors_(colors) {}

QString DateMarks::FileName(int year) {
    return QString::number(year) + QStringLiteral("Marks.dat");
}

QString DateMarks::BackupFileName(int year) {
    return QString::number(year) + QStringLiteral("Marks.bak");
}

void DateMarks::SaveThisYearsMarks() {
    SaveYear(Year::This, "SaveThisYearsMarks");
}

void DateMarks::SaveNextYearsMarks() {
    SaveYear(Year::Next, "SaveNextYearsMarks");
}

void DateMarks::ReadAndDisplayThisYearsMarks() {
    ReadYear(Year::This, "ReadAndDisplayThisYearsMarks", FileName(dates_.ThisYear));
}

void DateMarks::ReadAndDisplayNextYearsMarks() {
    ReadYear(Year::Next, "ReadAndDisplayNextYearsMarks", FileName(dates_.ThisYear + 1));
}

void DateMarks::Save(Year year) {
    year == Year::Next ? SaveNextYearsMarks() : SaveThisYearsMarks();
}

void DateMarks::ReadAndDisplay(Year year) {
    year == Year::Next ? ReadAndDisplayNextYearsMarks() : ReadAndDisplayThisYearsMarks();
}

void DateMarks::ReadBothYears() {
    ReadAndDisplayThisYearsMarks();
    ReadAndDisplayNextYearsMarks();
}

Records DateMarks::RecordsOf(const MarkTables& tables) const {
    Records records(MarksLayout());
    tables.set.ForEach([&](const CellIndex& cell, qint16 marked) {
        if (marked != 0)
            records.Add(MarkFields({cell, tables.category[cell], tables.hover[cell]}));
    });
    return records;
}

void DateMarks::SaveYear(Year year, const char* procedure) {
    MarkTables& tables = years[year];
    tables.file.UseName(FileName(dates_.YearOf(year)));
    // A year without marks leaves only the backup of its file.
    if (SaveDataFile(services_, procedure, tables.file, RecordsOf(tables)) == SaveResult::Merged)
        ReadYear(year, procedure, FileName(dates_.YearOf(year)));
}

bool DateMarks::PutMarkLines(int year, const QStringList& lines) {
    MarkTables fresh;
    fresh.file.SetName(FileName(year));
    services_.Trap("PutMarkLines", [&] {
        ReadLinesOf(services_.AppFolder, fresh.file,
                    [](QByteArrayView line, int) { ParseMarkLine(LineText(line)); });
    });
    Records records(MarksLayout());
    for (const QString& line : lines)
        records.Add({line});
    const bool written =
        SaveDataFile(services_, "PutMarkLines", fresh.file, records) != SaveResult::Refused;
    if (written && year == dates_.YearOf(Year::This))
        ReadAndDisplayThisYearsMarks();
    else if (written && year == dates_.YearOf(Year::Next))
        ReadAndDisplayNextYearsMarks();
    return written;
}

void DateMarks::ReadYear(Year year, const char* procedure, const QString& fileName) {
    MarkTables& tables = years[year];
    tables.Clear();
    tables.file.SetName(fileName);
    ReadDataFile(services_, procedure, tables.file, [&](QByteArrayView bytes, int) {
        const MarkLine mark = ParseMarkLine(LineText(bytes));
        tables.set[mark.cell] = kMarked;
        tables.category[mark.cell] = mark.color;
        if (!mark.hover.isEmpty())
            tables.hover[mark.cell] = mark.hover;
    });
    emit marksRead(dates_.YearOf(year));
}

std::optional<quint32> DateMarks::VisibleMarkColor(const QDate& date) const {
    const auto cell = dates_.FindDay(date);
    if (!cell)
        return std::nullopt;
    const MarkTables& tables = years[dates_.YearSlotOf(date)];
    if (tables.set[*cell] == 0)
        return std::nullopt;
    const auto color = static_cast<quint32>(tables.category[*cell]);
    if (colors_.IsHiddenColor(color))
        return std::nullopt;
    return color;
}

QString DateMarks::HoverTextOf(const QDate& date) const {
    const auto cell = dates_.FindDay(date);
    return cell ? years[dates_.YearSlotOf(date)].hover[*cell] : QString();
}

void DateMarks::Decorate(const QDate& date, DayLook& look) const {
    look.markColor = VisibleMarkColor(date);
    look.hoverText = HoverTextOf(date);
}

void DateMarks::DeleteThisYearsMarks() {
    const qint32 birthday = static_cast<qint32>(colors_.Color(MarkerColors::kBirthday));
    const qint32 holiday = static_cast<qint32>(colors_.Color(MarkerColors::kHoliday));
    MarkSet.ForEach([&](const CellIndex& cell, qint16 marked) {
        const qint32 category = MarkCategory[cell];
        if (marked != 0 && (category == birthday || category == holiday))
            return;
        MarkSet[cell] = 0;
        MarkCategory[cell] = 0;
        HoverText[cell].clear();
    });
    SaveThisYearsMarks();
}

bool DateMarks::RestoreThisYearsMarks() {
    const int year = dates_.ThisYear;
    if (!FileExists(services_.AppFolder, BackupFileName(year)))
        return false;
    // The backup's marks are read and then saved the usual way, so the marks they replace
    // become the new backup: a restore can itself be undone by restoring again. A backup that
    // cannot be read whole is not saved over the year (it would replace the backup too).
    MarkTables& tables = years[Year::This];
    ReadYear(Year::This, "RestoreThisYearsMarks", BackupFileName(year));
    if (!tables.file.PartlyRead()) {
        tables.file.SetName(FileName(year));
        services_.Trap("RestoreThisYearsMarks", [&] {
            tables.file.Load(services_.AppFolder);
            tables.file.MarkReadWhole();
        });
    }
    SaveThisYearsMarks();
    return true;
}
