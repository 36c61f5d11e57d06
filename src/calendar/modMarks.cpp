#include "calendar/modMarks.h"

#include "calendar/DateModel.h"
#include "calendar/MarkerColors.h"
#include "shell/Files.h"
#include "shell/Services.h"
#include "shell/TextFile.h"

namespace {

// The value a read mark takes in MarkSet: true.
constexpr qint16 kMarked = -1;

// Characters 1-2, 4-5 and 7-8 of a line locate the cell; from character 10 comes the colour,
// and the first "-" at or after character 9 starts the hover text.
constexpr qsizetype kColorStart = 9;
constexpr qsizetype kHoverSearchStart = 8;

int IndexField(const QString& line, qsizetype start, int limit) {
    const int value = TwoDigitsAt(line, start);
    if (value < 0)
        Raise(err::TypeMismatch);
    if (value >= limit)
        Raise(err::SubscriptOutOfRange);
    return value;
}

}  // namespace

DateMarks::DateMarks(Services& services, const DateModel& dates, const MarkerColors& colors)
    : services_(services), dates_(dates), colors_(colors) {}

QString DateMarks::FileName(int year) {
    return QString::number(year) + QStringLiteral("Marks.dat");
}

QString DateMarks::BackupFileName(int year) {
    return QString::number(year) + QStringLiteral("Marks.bak");
}

int DateMarks::YearOf(bool nextYear) const {
    return dates_.ThisYear + (nextYear ? 1 : 0);
}

void DateMarks::SaveThisYearsMarks() {
    SaveYear(false, "SaveThisYearsMarks");
}

void DateMarks::SaveNextYearsMarks() {
    SaveYear(true, "SaveNextYearsMarks");
}

void DateMarks::ReadAndDisplayThisYearsMarks() {
    ReadYear(false, "ReadAndDisplayThisYearsMarks", FileName(dates_.ThisYear));
}

void DateMarks::ReadAndDisplayNextYearsMarks() {
    ReadYear(true, "ReadAndDisplayNextYearsMarks", FileName(dates_.ThisYear + 1));
}

void DateMarks::Save(bool nextYear) {
    nextYear ? SaveNextYearsMarks() : SaveThisYearsMarks();
}

void DateMarks::ReadAndDisplay(bool nextYear) {
    nextYear ? ReadAndDisplayNextYearsMarks() : ReadAndDisplayThisYearsMarks();
}

void DateMarks::SaveYear(bool nextYear, const char* procedure) {
    services_.Trap(procedure, [&] {
        const DayGrid<qint32>& category = CategoryTable(nextYear);
        const DayGrid<QString>& hover = HoverTable(nextYear);
        QString text;
        text.reserve(kCells * 16);
        SetTable(nextYear).ForEach([&](const CellIndex& cell, qint16 marked) {
            if (marked == 0)
                return;
            if (!text.isEmpty())
                text += kCrLf;  // between lines only: none after the last
            AppendTwoDigits(text, cell.month);
            text += QLatin1Char(':');
            AppendTwoDigits(text, cell.weekday);
            text += QLatin1Char(':');
            AppendTwoDigits(text, cell.week);
            text += QLatin1Char(':');
            text += QString::number(category[cell]);
            if (!hover[cell].isEmpty())
                text += QLatin1Char('-') + hover[cell];
        });
        // No marks: the old file becomes the backup and no current file is written.
        textfile::WriteWithBackup(services_.AppFolder, FileName(YearOf(nextYear)), text);
    });
}

void DateMarks::Clear(bool nextYear) {
    SetTable(nextYear).Fill(0);
    CategoryTable(nextYear).Fill(0);
    HoverTable(nextYear).Fill(QString());
}

void DateMarks::ReadYear(bool nextYear, const char* procedure, const QString& fileName) {
    const int year = YearOf(nextYear);
    services_.Trap(procedure, [&] {
        Clear(nextYear);
        QString path;
        if (!FileExists(services_.AppFolder, fileName, &path))
            return;
        DayGrid<qint16>& set = SetTable(nextYear);
        DayGrid<qint32>& category = CategoryTable(nextYear);
        DayGrid<QString>& hover = HoverTable(nextYear);
        for (const QString& line : textfile::ReadLines(path)) {
            const CellIndex cell{IndexField(line, 0, kMonths), IndexField(line, 3, kWeekdays),
                                 IndexField(line, 6, kWeekRows)};
            const qsizetype dash = line.indexOf(QLatin1Char('-'), kHoverSearchStart);
            const QStringView field = QStringView(line).mid(kColorStart);
            const qint32 color = ToInt(dash < 0 ? field : field.left(dash - kColorStart));
            set[cell] = kMarked;
            category[cell] = color;
            if (dash >= 0)
                hover[cell] = line.mid(dash + 1);
        }
    });
    emit marksRead(year);
}

std::optional<quint32> DateMarks::VisibleMarkColor(const QDate& date) const {
    const auto cell = dates_.FindDay(date);
    if (!cell)
        return std::nullopt;
    const bool nextYear = dates_.IsNextYear(date);
    if ((nextYear ? NextMarkSet : MarkSet)[*cell] == 0)
        return std::nullopt;
    const auto color = static_cast<quint32>((nextYear ? NextMarkCategory : MarkCategory)[*cell]);
    if (colors_.IsHiddenColor(color))
        return std::nullopt;
    return color;
}

QString DateMarks::HoverTextOf(const QDate& date) const {
    const auto cell = dates_.FindDay(date);
    if (!cell)
        return {};
    return (dates_.IsNextYear(date) ? NextHoverText : HoverText)[*cell];
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
    ReadYear(false, "RestoreThisYearsMarks", BackupFileName(year));
    SaveThisYearsMarks();
    return true;
}
