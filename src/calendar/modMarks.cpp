#include "calendar/modMarks.h"

#include "calendar/DateModel.h"
#include "calendar/MarkerColors.h"
#include "shell/Files.h"
#include "shell/FixedWidth.h"
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

QString FormatMarkLine(const MarkLine& mark) {
    QString line;
    line.reserve(16 + mark.hover.size());
    AppendTwoDigits(line, mark.cell.month);
    line += QLatin1Char(':');
    AppendTwoDigits(line, mark.cell.weekday);
    line += QLatin1Char(':');
    AppendTwoDigits(line, mark.cell.week);
    line += QLatin1Char(':');
    line += QString::number(mark.color);
    if (!mark.hover.isEmpty())
        line += QLatin1Char('-') + mark.hover;
    return line;
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

void DateMarks::SaveYear(Year year, const char* procedure) {
    services_.Trap(procedure, [&] {
        const QString fileName = FileName(dates_.YearOf(year));
        if (services_.RefuseSaveAfterPartialRead(partlyRead[year], fileName))
            return;
        const MarkTables& tables = years[year];
        QStringList lines;
        tables.set.ForEach([&](const CellIndex& cell, qint16 marked) {
            if (marked != 0)
                lines.append(FormatMarkLine({cell, tables.category[cell], tables.hover[cell]}));
        });
        // No marks: the old file becomes the backup and no current file is written.
        textfile::WriteWithBackup(services_.AppFolder, fileName, textfile::JoinLines(lines));
    });
}

bool DateMarks::PutMarkLines(int year, const QStringList& lines) {
    const bool written = services_.Trap("PutMarkLines", [&] {
        textfile::WriteWithBackup(services_.AppFolder, FileName(year), textfile::JoinLines(lines));
    });
    if (written && year == dates_.YearOf(Year::This))
        ReadAndDisplayThisYearsMarks();
    else if (written && year == dates_.YearOf(Year::Next))
        ReadAndDisplayNextYearsMarks();
    return written;
}

void DateMarks::ReadYear(Year year, const char* procedure, const QString& fileName) {
    MarkTables& tables = years[year];
    partlyRead[year] = !services_.Trap(procedure, [&] {
        tables.Clear();
        QString path;
        if (!FileExists(services_.AppFolder, fileName, &path))
            return;
        for (const QString& line : textfile::ReadLines(path)) {
            const MarkLine mark = ParseMarkLine(line);
            tables.set[mark.cell] = kMarked;
            tables.category[mark.cell] = mark.color;
            if (!mark.hover.isEmpty())
                tables.hover[mark.cell] = mark.hover;
        }
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
    // become the new backup: a restore can itself be undone by restoring again.
    ReadYear(Year::This, "RestoreThisYearsMarks", BackupFileName(year));
    SaveThisYearsMarks();
    return true;
}
