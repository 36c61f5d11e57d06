// Reading an iCalendar file for the import: timed events, to-dos and journals, with every
// occurrence of a repeating event within the range.
#include <QHash>
#include <QSet>
#include <set>
#include <vector>

#include "holidays_birthdays/IcsHolidays.h"
#include "ical/IcalExport.h"
#include "ical/IcalImport.h"
#include "ical/IcalSupport.h"

using namespace ical;

namespace {

// An occurrence is looked for at most this often per rule, so that a rule begun long ago and
// counted, or one whose dates never come, cannot hold up the import.
constexpr int kMaxSteps = 5000;

QString OneLine(QString text) {
    text.replace(QLatin1String("\r\n"), QLatin1String(" "));
    text.replace(QLatin1Char('\r'), QLatin1Char(' ')).replace(QLatin1Char('\n'), QLatin1Char(' '));
    return text.trimmed();
}

// The bytes libical reads: without a byte-order mark, ending in a NUL.
QByteArray Terminated(const QByteArray& bytes) {
    const QByteArray text = bytes.startsWith("\xEF\xBB\xBF") ? bytes.mid(3) : bytes;
    return QByteArray(text.constData(), text.size());
}

QList<icalcomponent*> Calendars(icalcomponent* root) {
    if (!root)
        return {};
    if (icalcomponent_isa(root) == ICAL_VCALENDAR_COMPONENT)
        return {root};
    QList<icalcomponent*> calendars;
    for (icalcompiter it = icalcomponent_begin_component(root, ICAL_VCALENDAR_COMPONENT);
         icalcompiter_deref(&it); icalcompiter_next(&it))
        calendars << icalcompiter_deref(&it);
    return calendars;
}

// The moment of a time, to compare occurrences given in different zones; a floating time
// counts as if it were UTC, which keeps floating times comparable among themselves.
time_t Instant(const icaltimetype& time) {
    return icaltime_as_timet_with_zone(time,
                                       time.zone ? time.zone : icaltimezone_get_utc_timezone());
}

QDateTime Local(const icaltimetype& time, const QTimeZone& zone) {
    if (!time.zone)
        return QDateTime(DateOf(time), QTime(time.hour, time.minute, time.second));
    return QDateTime::fromSecsSinceEpoch(Instant(time), zone);
}

QString DateText(const QDate& date) {
    return date.toString(QStringLiteral("MMM dd, yyyy"));
}

class Reader {
public:
    Reader(const DateRange& range, const QTimeZone& zone, IcsContent& content)
        : range_(range), zone_(zone), content_(content) {}

    void Read(const QList<icalcomponent*>& calendars) {
        for (icalcomponent* calendar : calendars)
            for (icalcompiter it = icalcomponent_begin_component(calendar, ICAL_VEVENT_COMPONENT);
                 icalcompiter_deref(&it); icalcompiter_next(&it))
                NoteOverride(icalcompiter_deref(&it));
        for (icalcomponent* calendar : calendars) {
            for (icalcompiter it = icalcomponent_begin_component(calendar, ICAL_ANY_COMPONENT);
                 icalcompiter_deref(&it); icalcompiter_next(&it)) {
                icalcomponent* component = icalcompiter_deref(&it);
                switch (icalcomponent_isa(component)) {
                    case ICAL_VEVENT_COMPONENT:
                        Event(component);
                        break;
                    case ICAL_VTODO_COMPONENT:
                        ToDo(component);
                        break;
                    case ICAL_VJOURNAL_COMPONENT:
                        Journal(component);
                        break;
                    default:
                        break;  // time zones and free/busy lists hold nothing of a planner
                }
            }
        }
    }

    // The years an all-day event that does not repeat falls in.
    QSet<int> allDayYears;
    int allDayEvents = 0;
    // The expense and mileage summaries this program exported, which an import leaves out:
    // the pages keep their own figures.
    int figures = 0;

private:
    void NoteOverride(icalcomponent* event) {
        const icaltimetype id = icalcomponent_get_recurrenceid(event);
        if (!icaltime_is_null_time(id))
            overridden_[Text(icalcomponent_get_uid(event))].insert(Instant(id));
    }

    void Event(icalcomponent* event) {
        const QString summary = OneLine(Text(icalcomponent_get_summary(event)));
        const icaltimetype start = icalcomponent_get_dtstart(event);
        const bool repeats = icalcomponent_get_first_property(event, ICAL_RRULE_PROPERTY) ||
                             icalcomponent_get_first_property(event, ICAL_RDATE_PROPERTY);
        content_.repeats |= repeats;
        if (icalcomponent_get_status(event) == ICAL_STATUS_CANCELLED) {
            content_.leftOut
                << QStringLiteral("The cancelled event \"%1\" is left out.").arg(summary);
            return;
        }
        if (icaltime_is_null_time(start) || !DateOf(start).isValid()) {
            content_.leftOut << QStringLiteral(
                                    "The event \"%1\" has no start date and is left out.")
                                    .arg(summary);
            return;
        }
        if (icaltime_is_date(start)) {
            ++allDayEvents;
            if (!repeats)
                allDayYears.insert(start.year);
            return;  // all-day events are read as the holiday manager reads them
        }
        const QStringList texts = Pieces(event, summary);
        if (texts.isEmpty()) {
            content_.leftOut << QStringLiteral("An event of %1 has no summary and is left out.")
                                    .arg(DateText(Local(start, zone_).date()));
            return;
        }
        icalproperty* priority = icalcomponent_get_first_property(event, ICAL_PRIORITY_PROPERTY);
        const bool first = priority && icalproperty_get_priority(priority) == 1;
        for (const icaltimetype& occurrence : Occurrences(event, start, repeats)) {
            const QDateTime local = Local(occurrence, zone_);
            if (!repeats || range_.Contains(local.date()))
                content_.events << IcsEvent{local.date(), local.time(), texts, first};
        }
    }

    // An exported appointment's lines come back one by one: its DESCRIPTION holds them a line
    // each when they joined make its SUMMARY. Any other event is its summary.
    static QStringList Pieces(icalcomponent* event, const QString& summary) {
        if (summary.isEmpty())
            return {};
        QStringList lines = Text(icalcomponent_get_description(event)).split(QLatin1Char('\n'));
        for (QString& line : lines)
            line = line.trimmed();
        lines.removeAll(QString());
        if (lines.size() > 1 && lines.join(QLatin1Char(' ')) == summary)
            return lines;
        return {summary};
    }

    // The starts of an event: its own, and for a repeating one (that is no override itself)
    // those its rules and RDATEs give within the range, less EXDATEs and overridden ones.
    std::vector<icaltimetype> Occurrences(icalcomponent* event, const icaltimetype& start,
                                          bool repeats) {
        std::vector<icaltimetype> starts{start};
        if (!repeats || !icaltime_is_null_time(icalcomponent_get_recurrenceid(event)))
            return starts;
        for (icalproperty* rule = icalcomponent_get_first_property(event, ICAL_RRULE_PROPERTY);
             rule; rule = icalcomponent_get_next_property(event, ICAL_RRULE_PROPERTY))
            AddRuleStarts(icalproperty_get_rrule(rule), start, starts);
        for (icalproperty* rdate = icalcomponent_get_first_property(event, ICAL_RDATE_PROPERTY);
             rdate; rdate = icalcomponent_get_next_property(event, ICAL_RDATE_PROPERTY)) {
            icaltimetype time = icalproperty_get_rdate(rdate).time;
            if (!icaltime_is_null_time(time) && !icaltime_is_date(time)) {
                if (!time.zone && !icaltime_is_utc(time))
                    time.zone = start.zone;
                starts.push_back(time);
            }
        }
        std::set<time_t> skipped(overridden_.value(Text(icalcomponent_get_uid(event))).begin(),
                                 overridden_.value(Text(icalcomponent_get_uid(event))).end());
        for (icalproperty* exdate = icalcomponent_get_first_property(event, ICAL_EXDATE_PROPERTY);
             exdate; exdate = icalcomponent_get_next_property(event, ICAL_EXDATE_PROPERTY)) {
            icaltimetype time = icalproperty_get_exdate(exdate);
            if (!time.zone && !icaltime_is_utc(time))
                time.zone = start.zone;
            skipped.insert(Instant(time));
        }
        std::set<time_t> seen;
        std::vector<icaltimetype> kept;
        for (const icaltimetype& time : starts)
            if (!skipped.count(Instant(time)) && seen.insert(Instant(time)).second)
                kept.push_back(time);
        return kept;
    }

    void AddRuleStarts(icalrecurrencetype rule, const icaltimetype& start,
                       std::vector<icaltimetype>& starts) const {
        // A rule repeating more often than daily would fill every line of every page.
        if (rule.freq != ICAL_DAILY_RECURRENCE && rule.freq != ICAL_WEEKLY_RECURRENCE &&
            rule.freq != ICAL_MONTHLY_RECURRENCE && rule.freq != ICAL_YEARLY_RECURRENCE)
            return;
        icalrecur_iterator* iterator = icalrecur_iterator_new(rule, start);
        if (!iterator)
            return;
        // Without COUNT the rule is taken up at the range's first day (libical keeps its
        // interval) rather than stepped through from a start that may lie years back.
        if (rule.count == 0 && range_.from.isValid() && DateOf(start) < range_.from) {
            icaltimetype from = start;
            from.year = range_.from.year();
            from.month = range_.from.month();
            from.day = range_.from.day();
            icalrecur_iterator_set_start(iterator, from);
        }
        for (int step = 0; step < kMaxSteps; ++step) {
            const icaltimetype next = icalrecur_iterator_next(iterator);
            const QDate date = DateOf(next);
            // A day past the range's end leaves room for a zone's shift of the date.
            if (!date.isValid() || (range_.to.isValid() && date > range_.to.addDays(1)))
                break;
            starts.push_back(next);
        }
        icalrecur_iterator_free(iterator);
    }

    QDate DateOfComponent(const icaltimetype& time) const {
        if (icaltime_is_null_time(time))
            return {};
        return icaltime_is_date(time) ? DateOf(time) : Local(time, zone_).date();
    }

    void ToDo(icalcomponent* todo) {
        const QString summary = OneLine(Text(icalcomponent_get_summary(todo)));
        if (summary.isEmpty())
            return;  // nothing to write into an item
        QDate date = DateOfComponent(icalcomponent_get_due(todo));
        if (!date.isValid())
            date = DateOfComponent(icalcomponent_get_dtstart(todo));
        if (!date.isValid()) {
            content_.leftOut
                << QStringLiteral("The to-do \"%1\" has no date and is left out.").arg(summary);
            return;
        }
        const bool done = icalcomponent_get_status(todo) == ICAL_STATUS_COMPLETED ||
                          icalcomponent_get_first_property(todo, ICAL_COMPLETED_PROPERTY);
        content_.toDos << IcsToDo{date, summary, done};
    }

    void Journal(icalcomponent* journal) {
        const QDate date = DateOfComponent(icalcomponent_get_dtstart(journal));
        if (Text(icalcomponent_get_uid(journal))
                .endsWith(QStringLiteral("-figures") + kUidDomain)) {
            ++figures;
            return;
        }
        QString text = Text(icalcomponent_get_description(journal));
        if (text.trimmed().isEmpty())
            text = Text(icalcomponent_get_summary(journal));
        text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(QLatin1Char('\r'), '\n');
        if (text.trimmed().isEmpty())
            return;
        if (!date.isValid()) {
            content_.leftOut << QStringLiteral("A journal entry without a date is left out.");
            return;
        }
        content_.journals << IcsJournal{date, text};
    }

    const DateRange& range_;
    const QTimeZone& zone_;
    IcsContent& content_;
    QHash<QString, QSet<time_t>> overridden_;
};

// problem with the number of the file's line it quotes, when it quotes one: libical's
// complaint ends with the text it could not read ("...: BADLINE").
QString WithLineNumber(const QString& problem, const QByteArray& bytes) {
    const qsizetype colon = problem.lastIndexOf(QLatin1String(": "));
    QString quoted = problem.mid(colon + 2);
    if (quoted.endsWith(QLatin1Char('.')))
        quoted.chop(1);
    if (colon < 0 || quoted.trimmed().size() < 2)
        return problem;
    int number = 0;
    const QList<QByteArray> lines = bytes.split('\n');
    for (const QByteArray& line : lines) {
        ++number;
        if (QString::fromUtf8(line).contains(quoted))
            return problem.chopped(problem.endsWith(QLatin1Char('.')) ? 1 : 0) +
                   QStringLiteral(" (line %1).").arg(number);
    }
    return problem;
}

}  // namespace

IcsContent ReadIcs(const QByteArray& bytes, const DateRange& range, const QTimeZone& zone) {
    IcsContent content;
    // The holiday reader refuses bytes past the size limits before libical sees them, refuses
    // what is not iCalendar, and names a line libical cannot parse.
    const QList<int> rangeYears = [&] {
        QList<int> years;
        for (int year = range.from.year(); year <= range.to.year(); ++year)
            years << year;
        return years;
    }();
    const IcsImport check = HolidaysFromIcs(bytes, rangeYears.value(0, 2000));
    if (!check.problem.isEmpty()) {
        content.problem = WithLineNumber(check.problem, bytes);
        return content;
    }
    const QByteArray terminated = Terminated(bytes);
    const Component root(icalparser_parse_string(terminated.constData()));
    Reader reader(range, zone, content);
    reader.Read(Calendars(root.get()));
    if (reader.figures > 0)
        content.leftOut << QStringLiteral(
                               "%1 expense and mileage %2 left out: the planner "
                               "pages keep their own figures.")
                               .arg(reader.figures)
                               .arg(reader.figures == 1 ? QStringLiteral("summary is")
                                                        : QStringLiteral("summaries are"));
    // All-day events: every date of the range, and the own date of one that does not repeat.
    QSet<int> years = reader.allDayYears;
    for (int year : rangeYears)
        years.insert(year);
    QList<int> ordered(years.begin(), years.end());
    std::sort(ordered.begin(), ordered.end());
    for (int year : ordered) {
        if (reader.allDayEvents == 0)
            break;
        const bool inRange = rangeYears.contains(year);
        const IcsImport found = year == rangeYears.value(0) ? check : HolidaysFromIcs(bytes, year);
        for (const IcsHoliday& holiday : found.holidays)
            if (!inRange || range.Contains(holiday.date))
                content.allDay << DatedHoliday{holiday.date, holiday.summary};
    }
    return content;
}

QString ValidateIcs(const QByteArray& bytes) {
    const IcsImport check = HolidaysFromIcs(bytes, 2000);
    if (!check.problem.isEmpty())
        return check.problem;
    const QByteArray terminated = Terminated(bytes);
    const Component root(icalparser_parse_string(terminated.constData()));
    for (icalcomponent* calendar : Calendars(root.get())) {
        icalrestriction_check(calendar);
        std::vector<icalcomponent*> pending{calendar};
        while (!pending.empty()) {
            icalcomponent* component = pending.back();
            pending.pop_back();
            if (icalproperty* error =
                    icalcomponent_get_first_property(component, ICAL_XLICERROR_PROPERTY))
                return QStringLiteral("%1: %2").arg(
                    Text(icalcomponent_kind_to_string(icalcomponent_isa(component))),
                    Text(icalproperty_get_xlicerror(error)));
            for (icalcompiter it = icalcomponent_begin_component(component, ICAL_ANY_COMPONENT);
                 icalcompiter_deref(&it); icalcompiter_next(&it))
                pending.push_back(icalcompiter_deref(&it));
        }
    }
    return {};
}
