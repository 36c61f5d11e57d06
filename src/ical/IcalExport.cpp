#include "ical/IcalExport.h"

#include <QCryptographicHash>
#include <QHash>

#include "ical/IcalSupport.h"
#include "notes_planner/PlannerRecord.h"

using namespace ical;

namespace {

// "20260907": the date part of UIDs.
QString DayId(const QDate& date) {
    return date.toString(QStringLiteral("yyyyMMdd"));
}

// A short fingerprint of a text that names a component without a place of its own (a birthday
// by its person, an alert by its message).
QString Fingerprint(const QString& text) {
    return QString::fromLatin1(
        QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha1).toHex().left(10));
}

// Builds the calendar's components, each with its UID, DTSTAMP, and the time values in the
// chosen zone (or floating).
class Writer {
public:
    // earliest: the first date a zoned time is written for; the zone's rules from then on
    // are enough (its whole history back to 1893 trips up other readers).
    Writer(icaltimezone* zone, const QDateTime& stamp, const QDate& earliest)
        : calendar_(icalcomponent_new_vcalendar()), zone_(zone) {
        icalcomponent_add_property(calendar_.get(), icalproperty_new_version("2.0"));
        icalcomponent_add_property(calendar_.get(),
                                   icalproperty_new_prodid("-//Orvanta//Orvanta Planner//EN"));
        if (zone) {
            icalcomponent* rules = icalcomponent_new_clone(icaltimezone_get_component(zone));
            if (earliest.isValid())
                icaltimezone_truncate_vtimezone(
                    rules,
                    DateTimeValue(QDate(earliest.year(), 1, 1), QTime(0, 0),
                                  icaltimezone_get_utc_timezone()),
                    icaltime_null_time(), 0);
            icalcomponent_add_component(calendar_.get(), rules);
        }
        stamp_ = icaltime_from_timet_with_zone(stamp.toSecsSinceEpoch(), 0,
                                               icaltimezone_get_utc_timezone());
    }

    icalcomponent* Add(icalcomponent_kind kind, const QString& uid, const QString& summary) {
        icalcomponent* component = icalcomponent_new(kind);
        icalcomponent_add_property(component, icalproperty_new_uid((uid + kUidDomain).toUtf8()));
        icalcomponent_add_property(component, icalproperty_new_dtstamp(stamp_));
        if (!summary.isEmpty())
            icalcomponent_add_property(component, icalproperty_new_summary(summary.toUtf8()));
        icalcomponent_add_component(calendar_.get(), component);
        ++count_;
        return component;
    }

    // An event lasting the whole of date.
    icalcomponent* AddAllDay(const QString& uid, const QString& summary, const QDate& date) {
        icalcomponent* event = Add(ICAL_VEVENT_COMPONENT, uid, summary);
        icalcomponent_set_dtstart(event, DateValue(date));
        icalcomponent_set_dtend(event, DateValue(date.addDays(1)));
        icalcomponent_add_property(event, icalproperty_new_transp(ICAL_TRANSP_TRANSPARENT));
        return event;
    }

    icaltimetype At(const QDate& date, const QTime& time) const {
        return DateTimeValue(date, time, zone_);
    }

    QByteArray Bytes() const {
        char* text = icalcomponent_as_ical_string_r(calendar_.get());
        QByteArray bytes(text);
        icalmemory_free_buffer(text);
        return bytes;
    }
    int Count() const { return count_; }

private:
    Component calendar_;
    icaltimezone* zone_;
    icaltimetype stamp_;
    int count_ = 0;
};

void AddDescription(icalcomponent* component, const QString& text) {
    if (!text.isEmpty())
        icalcomponent_add_property(component, icalproperty_new_description(text.toUtf8()));
}

// A display alarm days before the component's start.
void AddAlarm(icalcomponent* component, int days, const QString& text) {
    icalcomponent* alarm = icalcomponent_new_valarm();
    icalcomponent_add_property(alarm, icalproperty_new_action(ICAL_ACTION_DISPLAY));
    icalcomponent_add_property(alarm, icalproperty_new_description(text.toUtf8()));
    icaltriggertype trigger{};
    trigger.time = icaltime_null_time();
    trigger.duration = icaldurationtype_null_duration();
    trigger.duration.is_neg = days > 0 ? 1 : 0;
    trigger.duration.days = static_cast<unsigned int>(days);
    icalcomponent_add_property(alarm, icalproperty_new_trigger(trigger));
    icalcomponent_add_component(component, alarm);
}

void AddAppointments(Writer& writer, const DatedPage& dated) {
    for (const Appointment& appointment : AppointmentsOf(dated.page)) {
        icalcomponent* event = writer.Add(ICAL_VEVENT_COMPONENT,
                                          QStringLiteral("%1-line-%2")
                                              .arg(DayId(dated.date))
                                              .arg(appointment.line, 2, 10, QLatin1Char('0')),
                                          appointment.texts.join(QLatin1Char(' ')));
        icalcomponent_set_dtstart(event, writer.At(dated.date, appointment.start));
        icalcomponent_set_dtend(event, appointment.end.isValid()
                                           ? writer.At(dated.date, appointment.end)
                                           : writer.At(dated.date.addDays(1), QTime(0, 0)));
        // The lines one by one, so that an import puts each back on a line of its own.
        if (appointment.texts.size() > 1)
            AddDescription(event, appointment.texts.join(QLatin1Char('\n')));
        if (appointment.bold)
            icalcomponent_add_property(event, icalproperty_new_priority(1));
    }
}

void AddToDo(Writer& writer, const QString& uid, const QString& text, bool done, const QDate& due) {
    icalcomponent* todo = writer.Add(ICAL_VTODO_COMPONENT, uid, text);
    if (due.isValid())
        icalcomponent_set_due(todo, DateValue(due));
    icalcomponent_set_status(todo, done ? ICAL_STATUS_COMPLETED : ICAL_STATUS_NEEDSACTION);
}

// "Expenses 42.50; mileage 132" and every expense and mileage line of the page; empty when the
// page has none.
std::pair<QString, QString> FiguresOf(const PlannerPage& page) {
    const auto& slot = page.slotTexts;
    QStringList summary;
    QStringList lines;
    for (int k = 0; k < kExpenseLines; ++k)
        if (!slot[kFirstExpenseSlot + k].isEmpty() || !slot[kFirstAmountSlot + k].isEmpty())
            lines << QStringLiteral("Expense: %1 %2")
                         .arg(slot[kFirstExpenseSlot + k], slot[kFirstAmountSlot + k])
                         .trimmed();
    if (!lines.isEmpty() || !slot[kTotalExpendituresSlot].isEmpty()) {
        summary << QStringLiteral("Expenses %1").arg(slot[kTotalExpendituresSlot]).trimmed();
        lines << QStringLiteral("Total Expenditures: %1").arg(slot[kTotalExpendituresSlot]);
    }
    const qsizetype expenseLines = lines.size();
    for (int m = 0; m < kMileageLines; ++m) {
        const QString& destination = slot[kFirstDestinationSlot + m];
        const QString& begin = slot[kFirstBeginSlot + m];
        const QString& end = slot[kFirstEndSlot + m];
        const QString& miles = slot[kFirstMilesSlot + m];
        if (!destination.isEmpty() || !begin.isEmpty() || !end.isEmpty() || !miles.isEmpty())
            lines << QStringLiteral("Mileage: %1 (odometer %2 to %3) %4 miles")
                         .arg(destination, begin, end, miles);
    }
    if (lines.size() > expenseLines || !slot[kTotalMileageSlot].isEmpty()) {
        summary << QStringLiteral("mileage %1").arg(slot[kTotalMileageSlot]).trimmed();
        lines << QStringLiteral("Total Mileage: %1").arg(slot[kTotalMileageSlot]);
    }
    return {summary.join(QStringLiteral("; ")), lines.join(QLatin1Char('\n'))};
}

void AddPage(Writer& writer, const DatedPage& dated) {
    AddAppointments(writer, dated);
    const QString day = DayId(dated.date);
    for (int j = 0; j < kPlannerToDoItems; ++j) {
        const QString& text = dated.page.slotTexts[kFirstToDoSlot + j];
        if (!text.isEmpty())
            AddToDo(writer, QStringLiteral("%1-todo-%2").arg(day).arg(j), text, dated.page.done[j],
                    dated.date);
    }
    const auto [summary, lines] = FiguresOf(dated.page);
    if (!summary.isEmpty()) {
        icalcomponent* journal =
            writer.Add(ICAL_VJOURNAL_COMPONENT, day + QStringLiteral("-figures"), summary);
        icalcomponent_set_dtstart(journal, DateValue(dated.date));
        AddDescription(journal, lines);
    }
}

void AddNote(Writer& writer, const DatedNote& note) {
    QString text = note.text;
    text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(QLatin1Char('\r'), '\n');
    icalcomponent* journal =
        writer.Add(ICAL_VJOURNAL_COMPONENT, DayId(note.date) + QStringLiteral("-note"),
                   text.section(QLatin1Char('\n'), 0, 0).trimmed());
    icalcomponent_set_dtstart(journal, DateValue(note.date));
    AddDescription(journal, text);
}

// The first date of a birthday's series: the birth date when the year is kept, else the day in
// the export's first year (a 29 February in the leap year before it).
QDate FirstBirthday(const BirthdayRecord& birthday, int firstYear, bool* yearKept) {
    const int month = birthday.birthday.left(2).toInt();
    const int day = birthday.birthday.mid(3, 2).toInt();
    bool ok = false;
    const int born = birthday.birthYear.toInt(&ok);
    *yearKept = ok && QDate(born, month, day).isValid();
    if (*yearKept)
        return QDate(born, month, day);
    for (int year = firstYear; year > firstYear - 8; --year)
        if (QDate(year, month, day).isValid())
            return QDate(year, month, day);
    return {};
}

void AddBirthday(Writer& writer, const BirthdayRecord& birthday, int firstYear) {
    bool yearKept = false;
    const QDate first = FirstBirthday(birthday, firstYear, &yearKept);
    if (!first.isValid())
        return;
    icalcomponent* event = writer.AddAllDay(
        QStringLiteral("birthday-%1-%2")
            .arg(first.toString(QStringLiteral("MMdd")), Fingerprint(birthday.name)),
        birthday.name + QStringLiteral("'s Birthday"), first);
    icalrecurrencetype yearly;
    icalrecurrencetype_clear(&yearly);
    yearly.freq = ICAL_YEARLY_RECURRENCE;
    icalcomponent_add_property(event, icalproperty_new_rrule(yearly));
    if (yearKept)
        AddDescription(event, QStringLiteral("Born in %1; %2 years old in %3.")
                                  .arg(first.year())
                                  .arg(firstYear - first.year())
                                  .arg(firstYear));
    if (birthday.alertPeriod >= 0)
        AddAlarm(event, birthday.alertPeriod, birthday.name + QStringLiteral("'s Birthday"));
}

}  // namespace

QTime ParseTimeLabel(const QString& label) {
    const QString text = label.trimmed().toUpper();
    for (const char* format : {"hh:mm AP", "h:mm AP", "hh:mmAP", "h:mmAP", "HH:mm", "H:mm"}) {
        const QTime time = QTime::fromString(text, QLatin1String(format));
        if (time.isValid())
            return time;
    }
    return {};
}

QList<Appointment> AppointmentsOf(const PlannerPage& page) {
    QList<Appointment> appointments;
    // The start of each line that has a time, in page order; a label that is no time is the
    // line's whole hour.
    const auto startOf = [&](int line) {
        const QTime time = ParseTimeLabel(page.times[line]);
        return time.isValid() ? time : QTime(kFirstLineHour + line, 0);
    };
    Appointment current;
    bool open = false;
    int line = 0;
    const auto close = [&](int nextTimed) {
        if (!open || current.texts.isEmpty())
            return;
        // The next timed line ends it, when it comes later that day; else it lasts an hour.
        current.end = nextTimed < kAppointmentLines ? startOf(nextTimed) : QTime();
        if (!current.end.isValid() || current.end <= current.start)
            current.end = current.start.addSecs(3600);
        if (current.end < current.start)
            current.end = QTime();
        appointments << current;
    };
    for (; line < kAppointmentLines; ++line) {
        if (!open || page.KindOf(line) == LineKind::Stop) {
            close(line);
            current = Appointment{line, startOf(line), {}, {}, page.bold[line]};
            open = true;
        }
        if (!page.slotTexts[line].isEmpty())
            current.texts << page.slotTexts[line];
    }
    close(line);
    return appointments;
}

IcsExport ExportToIcs(const CalendarData& data, const QString& timeZone, const QDateTime& stamp) {
    IcsExport result;
    icaltimezone* zone = nullptr;
    if (!timeZone.trimmed().isEmpty()) {
        zone = icaltimezone_get_builtin_timezone(timeZone.trimmed().toUtf8().constData());
        if (!zone) {
            result.problem = QStringLiteral(
                                 "The time zone \"%1\" is not known; write it as a place such as "
                                 "Europe/Berlin, or leave it empty for local times.")
                                 .arg(timeZone.trimmed());
            return result;
        }
    }
    QDate earliest;
    for (const DatedPage& page : data.pages)
        if (!earliest.isValid() || page.date < earliest)
            earliest = page.date;
    Writer writer(zone, stamp, earliest);
    for (const DatedPage& page : data.pages)
        AddPage(writer, page);
    for (const DatedNote& note : data.notes)
        AddNote(writer, note);
    QHash<QDate, int> holidaysOn;
    for (const DatedHoliday& holiday : data.holidays)
        writer.AddAllDay(QStringLiteral("holiday-%1-%2")
                             .arg(DayId(holiday.date))
                             .arg(holidaysOn[holiday.date]++),
                         holiday.name, holiday.date);
    for (const BirthdayRecord& birthday : data.birthdays)
        AddBirthday(writer, birthday, data.firstYear);
    QHash<QString, int> alertsLike;
    for (const AlertLine& alert : data.alerts) {
        const QString id =
            QStringLiteral("alert-%1-%2").arg(DayId(alert.date), Fingerprint(alert.message));
        icalcomponent* event = writer.AddAllDay(
            QStringLiteral("%1-%2").arg(id).arg(alertsLike[id]++), alert.message, alert.date);
        AddAlarm(event, alert.period, alert.message);
    }
    for (int row = 0; row < kToDoRows; ++row)
        if (!data.toDo.texts[row].trimmed().isEmpty())
            AddToDo(writer, QStringLiteral("todo-list-%1").arg(row), data.toDo.texts[row].trimmed(),
                    data.toDo.done[row], {});
    result.bytes = writer.Bytes();
    result.components = writer.Count();
    return result;
}
