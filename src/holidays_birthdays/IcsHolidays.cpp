#include "holidays_birthdays/IcsHolidays.h"

#include <libical/ical.h>

#include <QFile>
#include <QHash>
#include <QSet>
#include <algorithm>
#include <cstring>
#include <memory>
#include <set>
#include <vector>

#include "holidays_birthdays/HolidaysBirthdaysMessages.h"

namespace {

const QString kNotCalendar =
    QStringLiteral("The file is not an iCalendar file (it does not begin with BEGIN:VCALENDAR).");
const QString kBinary =
    QStringLiteral("The file is not an iCalendar file (it holds binary data, not text).");
const QString kIncomplete = QStringLiteral(
    "The iCalendar file is incomplete: no calendar in it runs from BEGIN:VCALENDAR to "
    "END:VCALENDAR.");

// The longest piece of a broken line quoted back to the user.
constexpr int kQuoteLength = 120;

// A rule is stepped through at most this often. A rule without COUNT is taken up at the year's
// first day and so takes at most 366 steps; only a counted rule begun long before the year gets
// near this, and is cut off there rather than hold up the import.
constexpr int kMaxSteps = 10000;

struct FreeComponent {
    void operator()(icalcomponent* component) const { icalcomponent_free(component); }
};
struct FreeIterator {
    void operator()(icalrecur_iterator* iterator) const { icalrecur_iterator_free(iterator); }
};

// The date of a libical time; invalid for no time and for a day libical let through that the
// month does not have (it reads 20261232 without a complaint).
QDate DateOf(const icaltimetype& time) {
    if (icaltime_is_null_time(time))
        return {};
    return QDate(time.year, time.month, time.day);
}

// The text on one line: every line break (CR LF, CR or LF) a blank, then trimmed.
QString OneLine(QString text) {
    text.replace(QLatin1String("\r\n"), QLatin1String(" "));
    text.replace(QLatin1Char('\r'), QLatin1Char(' ')).replace(QLatin1Char('\n'), QLatin1Char(' '));
    return text.trimmed();
}

// libical keeps reading past a line it cannot parse, and leaves an X-LIC-ERROR property in its
// place. The first such complaint anywhere in the calendar, as a sentence for the user; empty
// when there is none. An empty value ("LOCATION:", common in exported calendars) is allowed
// text, though libical reports it.
QString FirstParseError(icalcomponent* root) {
    std::vector<icalcomponent*> pending{root};
    while (!pending.empty()) {
        icalcomponent* component = pending.back();
        pending.pop_back();
        for (icalproperty* error =
                 icalcomponent_get_first_property(component, ICAL_XLICERROR_PROPERTY);
             error; error = icalcomponent_get_next_property(component, ICAL_XLICERROR_PROPERTY)) {
            const QString message = OneLine(QString::fromUtf8(icalproperty_get_xlicerror(error)));
            icalparameter* type =
                icalproperty_get_first_parameter(error, ICAL_XLICERRORTYPE_PARAMETER);
            if (type &&
                icalparameter_get_xlicerrortype(type) == ICAL_XLICERRORTYPE_VALUEPARSEERROR &&
                message.startsWith(QLatin1String("No value for ")))
                continue;
            const QString quoted = message.size() > kQuoteLength
                                       ? message.left(kQuoteLength) + QChar(0x2026)
                                       : message;
            return QStringLiteral("The iCalendar file has a line that cannot be read: ") + quoted +
                   (quoted.endsWith(QLatin1Char('.')) ? QString() : QStringLiteral("."));
        }
        for (icalcompiter it = icalcomponent_begin_component(component, ICAL_ANY_COMPONENT);
             icalcompiter_deref(&it); icalcompiter_next(&it))
            pending.push_back(icalcompiter_deref(&it));
    }
    return {};
}

// The calendars of the parse: the root itself, or, for a file of several calendars one after
// another, each of them. Empty when anything else stands at the top.
QList<icalcomponent*> Calendars(icalcomponent* root) {
    if (icalcomponent_isa(root) == ICAL_VCALENDAR_COMPONENT)
        return {root};
    QList<icalcomponent*> calendars;
    if (icalcomponent_isa(root) != ICAL_XROOT_COMPONENT)
        return {};
    for (icalcompiter it = icalcomponent_begin_component(root, ICAL_ANY_COMPONENT);
         icalcompiter_deref(&it); icalcompiter_next(&it)) {
        icalcomponent* calendar = icalcompiter_deref(&it);
        if (icalcomponent_isa(calendar) != ICAL_VCALENDAR_COMPONENT)
            return {};
        calendars << calendar;
    }
    return calendars;
}

QList<icalcomponent*> Events(const QList<icalcomponent*>& calendars) {
    QList<icalcomponent*> events;
    for (icalcomponent* calendar : calendars)
        for (icalcompiter it = icalcomponent_begin_component(calendar, ICAL_VEVENT_COMPONENT);
             icalcompiter_deref(&it); icalcompiter_next(&it))
            events << icalcompiter_deref(&it);
    return events;
}

QString Uid(icalcomponent* event) {
    return QString::fromUtf8(icalcomponent_get_uid(event));
}

// The dates of the year a recurrence rule gives, counted from start.
void AddRuleDates(icalrecurrencetype rule, const icaltimetype& start, int year,
                  std::set<QDate>& dates) {
    // A rule repeating more often than daily means nothing for a date, and libical would step
    // through it second by second in search of one: only the event's own date counts then.
    if (rule.freq != ICAL_DAILY_RECURRENCE && rule.freq != ICAL_WEEKLY_RECURRENCE &&
        rule.freq != ICAL_MONTHLY_RECURRENCE && rule.freq != ICAL_YEARLY_RECURRENCE)
        return;
    // The rule ends with the year at the latest, so that libical gives up looking for the next
    // date there, not in the year 2582, when the rule's dates are rare or never come (every 31
    // February). It changes no date of the year, nor what COUNT counts.
    icaltimetype yearEnd = start;
    yearEnd.year = year;
    yearEnd.month = 12;
    yearEnd.day = 31;
    if (icaltime_is_null_time(rule.until) || icaltime_compare(rule.until, yearEnd) > 0)
        rule.until = yearEnd;
    const std::unique_ptr<icalrecur_iterator, FreeIterator> iterator(
        icalrecur_iterator_new(rule, start));
    if (!iterator)
        return;  // a rule libical cannot follow, such as yearly on 30 February
    const QDate first(year, 1, 1);
    const QDate last(year, 12, 31);
    // Without COUNT the rule can be taken up at the year's first day rather than stepped
    // through from a start that may lie centuries back; libical keeps the rule's interval.
    if (rule.count == 0 && DateOf(start) < first) {
        icaltimetype yearStart = start;
        yearStart.year = year;
        yearStart.month = 1;
        yearStart.day = 1;
        icalrecur_iterator_set_start(iterator.get(), yearStart);
    }
    for (int step = 0; step < kMaxSteps; ++step) {
        const QDate date = DateOf(icalrecur_iterator_next(iterator.get()));
        if (!date.isValid() || date > last)
            return;
        if (date >= first)
            dates.insert(date);
    }
}

// The dates of the year on which event falls: its start, and for a repeating event (one that
// does not itself override an occurrence) the dates of its rules and RDATEs, less its EXDATEs
// and the overridden dates.
std::set<QDate> EventDates(icalcomponent* event, const QDate& start, int year,
                           const QSet<QDate>& overridden) {
    std::set<QDate> dates;
    if (start.year() == year)
        dates.insert(start);
    if (!icaltime_is_null_time(icalcomponent_get_recurrenceid(event)))
        return dates;
    const icaltimetype dtstart = icalcomponent_get_dtstart(event);
    for (icalproperty* rule = icalcomponent_get_first_property(event, ICAL_RRULE_PROPERTY); rule;
         rule = icalcomponent_get_next_property(event, ICAL_RRULE_PROPERTY))
        AddRuleDates(icalproperty_get_rrule(rule), dtstart, year, dates);
    // An RDATE with a time (or a period) is a timed occurrence, and left out as timed events are.
    for (icalproperty* rdate = icalcomponent_get_first_property(event, ICAL_RDATE_PROPERTY); rdate;
         rdate = icalcomponent_get_next_property(event, ICAL_RDATE_PROPERTY)) {
        const icaltimetype time = icalproperty_get_rdate(rdate).time;
        const QDate date = DateOf(time);
        if (icaltime_is_date(time) && date.isValid() && date.year() == year)
            dates.insert(date);
    }
    // An EXDATE with a time still takes out the occurrence on its date.
    for (icalproperty* exdate = icalcomponent_get_first_property(event, ICAL_EXDATE_PROPERTY);
         exdate; exdate = icalcomponent_get_next_property(event, ICAL_EXDATE_PROPERTY))
        dates.erase(DateOf(icalproperty_get_exdate(exdate)));
    for (const QDate& date : overridden)
        dates.erase(date);
    return dates;
}

}  // namespace

QString IcsLimitProblem(QByteArrayView bytes) {
    if (bytes.size() > kIcsMaxFileBytes)
        return IcsFileTooLargeMessage(kIcsMaxFileBytes);
    const char* const data = bytes.data();
    const qsizetype size = bytes.size();
    qsizetype number = 0;
    qsizetype unfoldedNumber = 0;
    qsizetype unfoldedLength = 0;
    for (qsizetype at = 0; at < size;) {
        ++number;
        // The line's end is looked for no further than a line may run (and its CR LF): a line
        // that has none that near is too long, however far it goes on.
        const qsizetype span = std::min(size - at, kIcsMaxLineBytes + 2);
        const auto* end = static_cast<const char*>(std::memchr(data + at, '\n', span));
        qsizetype length = end ? end - (data + at) : span;
        const qsizetype next = at + length + (end ? 1 : 0);
        if (length > 0 && data[at + length - 1] == '\r')
            --length;
        if (length > kIcsMaxLineBytes)
            return IcsLineTooLongMessage(number, kIcsMaxLineBytes);
        // A continuation line adds its text without the blank or tab that folds it.
        if (number > 1 && length > 0 && (data[at] == ' ' || data[at] == '\t')) {
            unfoldedLength += length - 1;
        } else {
            unfoldedNumber = number;
            unfoldedLength = length;
        }
        if (unfoldedLength > kIcsMaxUnfoldedLineBytes)
            return IcsFoldedLineTooLongMessage(unfoldedNumber, kIcsMaxUnfoldedLineBytes);
        at = next;
    }
    return {};
}

std::optional<QByteArray> ReadIcsFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    if (!file.isSequential() && file.size() <= kIcsMaxFileBytes)
        return file.readAll();
    // Too large, or of a size not known beforehand (a pipe): read piece by piece up to one byte
    // past the limit.
    QByteArray bytes;
    while (bytes.size() <= kIcsMaxFileBytes) {
        const QByteArray piece =
            file.read(std::min<qsizetype>(qsizetype{1} << 20, kIcsMaxFileBytes + 1 - bytes.size()));
        if (piece.isEmpty())
            break;
        bytes += piece;
    }
    return bytes;
}

IcsImport HolidaysFromIcs(const QByteArray& bytes, int year) {
    IcsImport result;
    result.problem = IcsLimitProblem(bytes);
    if (!result.problem.isEmpty())
        return result;
    QByteArray text = bytes.startsWith("\xEF\xBB\xBF") ? bytes.mid(3) : bytes;
    text = text.trimmed();
    if (text.left(15).toUpper() != "BEGIN:VCALENDAR") {
        result.problem = kNotCalendar;
        return result;
    }
    // libical reads a C string, which would end at the first NUL.
    if (text.contains('\0')) {
        result.problem = kBinary;
        return result;
    }
    // A copy of its own ends in a NUL, which an array made by QByteArray::fromRawData (a view on
    // bytes the caller owns) and what trimmed() returns of it need not.
    const QByteArray terminated(text.constData(), text.size());
    const std::unique_ptr<icalcomponent, FreeComponent> root(
        icalparser_parse_string(terminated.constData()));
    const QList<icalcomponent*> calendars = root ? Calendars(root.get()) : QList<icalcomponent*>();
    if (calendars.isEmpty()) {
        result.problem = kIncomplete;
        return result;
    }
    result.problem = FirstParseError(root.get());
    if (!result.problem.isEmpty())
        return result;

    const QList<icalcomponent*> events = Events(calendars);
    // The dates that overriding events (RECURRENCE-ID) take from the repeating event of their UID.
    QHash<QString, QSet<QDate>> overridden;
    for (icalcomponent* event : events) {
        const QDate date = DateOf(icalcomponent_get_recurrenceid(event));
        if (date.isValid() && !Uid(event).isEmpty())
            overridden[Uid(event)].insert(date);
    }
    for (icalcomponent* event : events) {
        if (icalcomponent_get_status(event) == ICAL_STATUS_CANCELLED)
            continue;
        const QString summary = OneLine(QString::fromUtf8(icalcomponent_get_summary(event)));
        const icaltimetype dtstart = icalcomponent_get_dtstart(event);
        // Only the start counts: an event over several days (its DTEND or DURATION further on)
        // is a holiday on its first day alone.
        const QDate start = DateOf(dtstart);
        if (summary.isEmpty() || !icaltime_is_date(dtstart) || !start.isValid())
            continue;
        for (const QDate& date : EventDates(event, start, year, overridden.value(Uid(event))))
            result.holidays << IcsHoliday{date, summary};
    }
    std::stable_sort(result.holidays.begin(), result.holidays.end(),
                     [](const IcsHoliday& a, const IcsHoliday& b) { return a.date < b.date; });
    return result;
}
