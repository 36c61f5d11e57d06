#include "ical/CalendarData.h"

#include <QDir>
#include <QRegularExpression>
#include <algorithm>

#include "holidays_birthdays/modHolidays.h"
#include "notes_planner/DatedFile.h"
#include "notes_planner/modNotes.h"
#include "notes_planner/modPlanner.h"
#include "shell/DateFormats.h"
#include "shell/Files.h"
#include "shell/Services.h"
#include "shell/TextFile.h"

namespace {

// The dated entries of a year's file: the date of each line whose key is a date of that year.
template <class Take>
void ForEachEntry(const DatedEntries& entries, int year, const DateRange& range, Take&& take) {
    for (qsizetype i = 0; i < entries.Count(); ++i) {
        const QDate date = datefmt::ParseMmDdYy(entries.dateKeys[i], year);
        if (date.isValid() && date.year() == year && range.Contains(date))
            take(date, textfile::Decode(entries.payloads[i]));
    }
}

bool ReadYear(Services& services, int year, const DateRange& range, CalendarData& data) {
    bool whole = true;
    DatedEntries planner;
    whole &= services.Trap("ReadThisYearsPlanner",
                           [&] { ReadDatedFile(services.AppFolder, year, kPlannerFile, planner); });
    ForEachEntry(planner, year, range, [&](const QDate& date, const QString& record) {
        if (!IsBlankRecord(record))
            data.pages.append({date, ParsePlannerRecord(record)});
    });
    DatedEntries notes;
    whole &= services.Trap("ReadThisYearsNotes",
                           [&] { ReadDatedFile(services.AppFolder, year, kNotesFile, notes); });
    ForEachEntry(notes, year, range, [&](const QDate& date, const QString& note) {
        if (!note.trimmed().isEmpty())
            data.notes.append({date, DecodeLineBreaks(note)});
    });
    whole &= services.Trap("AssignThisYearsHolidays", [&] {
        // A line of another year's two digits is never shown, and so not taken either.
        for (const QString& line :
             ReadHolidayLines(services.AppFolder, year).value_or(QStringList())) {
            const HolidayLine holiday = SplitHolidayLine(line);
            const QDate date = datefmt::ParseMmDdYy(holiday.date, year);
            if (date.isValid() && date.year() == year && range.Contains(date))
                data.holidays.append({date, holiday.name});
        }
    });
    return whole;
}

// Reads every line of a file of the data folder with parse, keeping what it gives.
template <class Parse>
bool ReadLinesOf(Services& services, const char* procedure, const QString& name, Parse&& parse) {
    return services.Trap(procedure, [&] {
        QString path;
        if (FileExists(services.AppFolder, name, &path))
            for (const QString& line : textfile::ReadLines(path))
                parse(line);
    });
}

}  // namespace

QList<int> YearsWithData(Services& services) {
    QList<int> years = YearsWithFolders(services.AppFolder);
    QString holidays;
    if (FolderExists(services.dialogs, services.AppFolder, kHolidaysFolder, &holidays)) {
        static const QRegularExpression name(QStringLiteral("^(\\d{4})holidays\\.dat$"),
                                             QRegularExpression::CaseInsensitiveOption);
        for (const QString& file : QDir(holidays).entryList(QDir::Files))
            if (const auto match = name.match(file); match.hasMatch())
                years.append(match.captured(1).toInt());
    }
    std::sort(years.begin(), years.end());
    years.erase(std::unique(years.begin(), years.end()), years.end());
    return years;
}

bool ReadCalendarData(Services& services, const DateRange& range, CalendarData& data) {
    const QList<int> years = YearsWithData(services);
    const int first = range.from.isValid() ? range.from.year() : years.value(0, 0);
    const int last = range.to.isValid() ? range.to.year() : years.value(years.size() - 1, 0);
    data.firstYear = first ? first : services.clock.today().year();
    bool whole = true;
    for (int year = first; first && year <= last; ++year)
        whole &= ReadYear(services, year, range, data);
    whole &= ReadLinesOf(services, "ReadBirthdays", kBirthdaysFile, [&](const QString& line) {
        data.birthdays.append(ParseBirthdayLine(line));
    });
    whole &= ReadLinesOf(services, "ReadAlerts", kAlertsFile, [&](const QString& line) {
        AlertLine alert = ParseAlertLine(line);
        if (range.Contains(alert.date))
            data.alerts.append(std::move(alert));
    });
    whole &= services.Trap("ReadToDoList", [&] {
        QString path;
        if (FileExists(services.AppFolder, kToDoFile, &path))
            ReadToDoFile(path, data.toDo);
    });
    return whole;
}
