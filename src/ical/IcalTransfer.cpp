#include "ical/IcalTransfer.h"

#include <QRegularExpression>

#include "shell/Services.h"
#include "shell/UserPreferences.h"

IcsExport ExportDataFolder(Services& services, const UserPreferences& prefs, const DateRange& range,
                           bool* readWhole) {
    CalendarData data;
    const bool whole = ReadCalendarData(services, range, data);
    if (readWhole)
        *readWhole = whole;
    IcsExport exported =
        ExportToIcs(data, prefs.Value(prefkey::CalendarTimeZone), services.clock.now());
    if (exported.problem.isEmpty()) {
        if (const QString problem = ValidateIcs(exported.bytes); !problem.isEmpty()) {
            exported.problem = QStringLiteral("The calendar could not be written: %1").arg(problem);
            exported.bytes.clear();
        }
    }
    return exported;
}

QTimeZone ImportZone(const UserPreferences& prefs) {
    const QByteArray name = prefs.Value(prefkey::CalendarTimeZone).trimmed().toUtf8();
    if (!name.isEmpty() && QTimeZone::isTimeZoneIdAvailable(name))
        return QTimeZone(name);
    return QTimeZone::systemTimeZone();
}

DateRange YearRange(int year) {
    return {QDate(year, 1, 1), QDate(year, 12, 31)};
}

std::optional<DateRange> ParseYearRange(const QString& text) {
    static const QRegularExpression years(
        QStringLiteral("^\\s*(\\d{4})\\s*(?:-\\s*(\\d{4}))?\\s*$"));
    const auto match = years.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const int first = match.captured(1).toInt();
    const int last = match.captured(2).isEmpty() ? first : match.captured(2).toInt();
    if (last < first || last - first > 50)
        return std::nullopt;
    return DateRange{QDate(first, 1, 1), QDate(last, 12, 31)};
}
