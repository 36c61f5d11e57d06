// What an iCalendar import changes, worked out before anything is written, and the writing.
#include <QHash>
#include <algorithm>

#include "calendar/DateModel.h"
#include "calendar/modMarks.h"
#include "holidays_birthdays/modHolidays.h"
#include "ical/IcalImport.h"
#include "notes_planner/DatedFile.h"
#include "notes_planner/modNotes.h"
#include "notes_planner/modPlanner.h"
#include "shell/DateFormats.h"
#include "shell/Files.h"
#include "shell/Services.h"
#include "shell/TextFile.h"
#include "shell/VbError.h"

namespace {

constexpr qsizetype kLineWidth = 150;
constexpr qsizetype kToDoWidth = 60;

QString DateText(const QDate& date) {
    return date.toString(QStringLiteral("MMM dd, yyyy"));
}

// A year's file as on disk, read afresh once; whole is false when it stopped at a faulty line.
struct YearFile {
    DatedEntries entries;
    bool whole = true;
};

class Planner {
public:
    Planner(Services& services, ImportPlan& plan) : services_(services), plan_(plan) {}

    void Place(const IcsEvent& event) {
        QStringList texts;
        for (const QString& text : event.texts)
            if (auto kept = Fit(text, kLineWidth, event.date))
                texts << *kept;
            else
                return;
        PlannerPage* page = Page(event.date);
        if (!page)
            return;
        // An appointment the page already has at that time (a file imported twice) stays once.
        const QString label = datefmt::MediumTime(event.start);
        for (int l = 0; l < kAppointmentLines; ++l)
            if (page->slotTexts[l] == texts.value(0) && page->times[l] == label) {
                ++alreadyThere_;
                return;
            }
        const int hourLine = event.start.hour() - kFirstLineHour;
        int line = -1;
        const auto free = [&](int l) { return page->slotTexts[l].isEmpty(); };
        for (int l = std::clamp(hourLine, 0, kAppointmentLines - 1);
             l < kAppointmentLines && line < 0; ++l)
            if (free(l))
                line = l;
        for (int l = 0; l < kAppointmentLines && line < 0; ++l)
            if (free(l))
                line = l;
        if (line < 0) {
            Notice(
                QStringLiteral("The planner page of %1 has no free line: \"%2\" is not imported.")
                    .arg(DateText(event.date), texts.join(QLatin1Char(' '))));
            return;
        }
        page->slotTexts[line] = texts.value(0);
        page->times[line] = label;
        page->bold[line] = event.priority;
        // The further lines of the text go on the empty lines below as continuance lines, or,
        // where those are taken, after the first line's text.
        int next = line + 1;
        for (qsizetype i = 1; i < texts.size(); ++i, ++next) {
            if (next < kAppointmentLines && free(next)) {
                page->slotTexts[next] = texts[i];
                page->times[next].clear();
                page->bold[next] = false;
                continue;
            }
            const QString joined = page->slotTexts[line] + QLatin1Char(' ') + texts[i];
            page->slotTexts[line] = *Fit(joined, kLineWidth, event.date);
            next = kAppointmentLines;
        }
    }

    void AddToDo(const IcsToDo& toDo) {
        const auto text = Fit(toDo.text, kToDoWidth, toDo.date);
        PlannerPage* page = text ? Page(toDo.date) : nullptr;
        if (!page)
            return;
        for (int j = 0; j < kPlannerToDoItems; ++j)
            if (page->slotTexts[kFirstToDoSlot + j] == *text) {
                ++alreadyThere_;
                return;
            }
        for (int j = 0; j < kPlannerToDoItems; ++j) {
            if (page->slotTexts[kFirstToDoSlot + j].isEmpty()) {
                page->slotTexts[kFirstToDoSlot + j] = *text;
                page->done[j] = toDo.done;
                return;
            }
        }
        Notice(QStringLiteral("The planner page of %1 has no free to-do item: \"%2\" is not "
                              "imported.")
                   .arg(DateText(toDo.date), *text));
    }

    void AddJournal(const IcsJournal& journal) {
        QString text = journal.text;
        text.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
        if (const auto bad = FirstUnkeptCharacter(NotesLayout(), text, true)) {
            Refuse(journal.date, *bad, text.section(QLatin1Char('\r'), 0, 0));
            return;
        }
        auto found = plan_.notes.find(journal.date);
        if (found == plan_.notes.end()) {
            YearFile& file = File(notesFiles_, journal.date.year(), kNotesFile);
            if (!file.whole) {
                RefuseYear(YearFileName(journal.date.year(), kNotesFile));
                return;
            }
            const qsizetype at = file.entries.IndexOf(datefmt::MmDdYy(journal.date));
            found = plan_.notes.insert(
                journal.date,
                at < 0 ? QString() : DecodeLineBreaks(textfile::Decode(file.entries.payloads[at])));
        }
        // A note already there stays; the journal goes below it, unless the note holds it.
        if (found->contains(text)) {
            ++alreadyThere_;
            return;
        }
        if (!found->trimmed().isEmpty())
            *found += QStringLiteral("\r\n");
        *found += text;
    }

    void AddHoliday(const DatedHoliday& holiday) {
        const int year = holiday.date.year();
        auto lines = plan_.holidayLines.find(year);
        if (lines == plan_.holidayLines.end()) {
            std::optional<QStringList> read;
            if (!services_.Trap("LoadHolidayList",
                                [&] { read = ReadHolidayLines(services_.AppFolder, year); })) {
                RefuseYear(HolidayFileName(year));
                return;
            }
            lines = plan_.holidayLines.insert(year, read.value_or(QStringList()));
        }
        const auto name = Fit(holiday.name, 1000, holiday.date);
        if (!name)
            return;
        const QString key = HolidayDateKey(holiday.date, year);
        for (const QString& line : *lines)
            if (line.left(8) == key && SplitHolidayLine(line).name != *name)
                Notice(QStringLiteral("The holiday \"%1\" of %2 takes the place of \"%3\".")
                           .arg(*name, DateText(holiday.date), SplitHolidayLine(line).name));
        *lines = WithHoliday(*lines, key, *name);
        if (!plan_.holidayDates.contains(holiday.date))
            plan_.holidayDates << holiday.date;
    }

    // A Holiday mark with the event's summary as hover text, on a day without a mark.
    void AddMark(const DatedHoliday& day, quint32 color) {
        const int year = day.date.year();
        auto lines = plan_.markLines.find(year);
        if (lines == plan_.markLines.end()) {
            QStringList read;
            try {
                QString path;
                if (FileExists(services_.AppFolder, DateMarks::FileName(year), &path))
                    read = textfile::ReadLines(path);
                for (const QString& line : read)
                    ParseMarkLine(line);
            } catch (const VbError&) {
                RefuseYear(DateMarks::FileName(year));
                return;
            }
            lines = plan_.markLines.insert(year, read);
        }
        const auto name = Fit(day.name, kLineWidth, day.date);
        if (!name)
            return;
        const CellIndex cell = CellOfDate(day.date);
        for (const QString& line : *lines) {
            if (ParseMarkLine(line).cell == cell) {
                Notice(QStringLiteral("%1 keeps its mark: \"%2\" is not marked there.")
                           .arg(DateText(day.date), *name));
                return;
            }
        }
        lines->append(FormatMarkLine({cell, static_cast<qint32>(color), *name}));
        plan_.markDates << day.date;
    }

private:
    // text as its slot keeps it: cut to width (said so), or nothing when it holds a character
    // the files cannot hold (said so).
    std::optional<QString> Fit(const QString& text, qsizetype width, const QDate& date) {
        if (const auto bad = FirstUnkeptCharacter(PlannerLayout(), text, true)) {
            Refuse(date, *bad, text);
            return std::nullopt;
        }
        if (text.size() <= width)
            return text;
        Notice(QStringLiteral("\"%1\" of %2 is shortened to %3 characters.")
                   .arg(text.left(40) + QChar(0x2026), DateText(date))
                   .arg(width));
        return text.left(width);
    }

    void Refuse(const QDate& date, const QString& character, const QString& text) {
        Notice(QStringLiteral("\"%1\" of %2 is not imported: the character \"%3\" cannot be "
                              "kept in the planner's files.")
                   .arg(text.left(60), DateText(date), character));
    }

    void RefuseYear(const QString& file) {
        const QString notice = QStringLiteral(
                                   "Nothing is imported into %1: it could not be read "
                                   "whole, and is left as it is.")
                                   .arg(file);
        if (!plan_.notices.contains(notice))
            Notice(notice);
        if (!plan_.unreadFiles.contains(file))
            plan_.unreadFiles << file;
    }

    void Notice(const QString& notice) { plan_.notices << notice; }

    YearFile& File(QHash<int, YearFile>& files, int year, const QString& fileName) {
        auto found = files.find(year);
        if (found == files.end()) {
            found = files.insert(year, YearFile());
            YearFile& file = *found;
            try {
                ReadDatedFile(services_.AppFolder, year, fileName, file.entries);
            } catch (const VbError&) {
                file.whole = false;
            }
        }
        return *found;
    }

    // The page of date as it will be, taken from the year's file on first use; null when that
    // file cannot be read whole.
    PlannerPage* Page(const QDate& date) {
        auto found = plan_.pages.find(date);
        if (found != plan_.pages.end())
            return &*found;
        YearFile& file = File(plannerFiles_, date.year(), kPlannerFile);
        if (!file.whole) {
            RefuseYear(YearFileName(date.year(), kPlannerFile));
            return nullptr;
        }
        const qsizetype at = file.entries.IndexOf(datefmt::MmDdYy(date));
        const PlannerPage page =
            at < 0 ? NewPlannerPage()
                   : ParsePlannerRecord(textfile::Decode(file.entries.payloads[at]));
        originals_.insert(date, page);
        return &*plan_.pages.insert(date, page);
    }

public:
    // A page the import leaves as it was (everything for it refused) does not change.
    void Finish() {
        plan_.pages.removeIf(
            [&](const auto& it) { return originals_.value(it.key()) == it.value(); });
        if (alreadyThere_ == 1)
            Notice(QStringLiteral("1 entry already in the planner is left as it is."));
        else if (alreadyThere_ > 1)
            Notice(QStringLiteral("%1 entries already in the planner are left as they are.")
                       .arg(alreadyThere_));
    }

private:
    Services& services_;
    ImportPlan& plan_;
    QHash<int, YearFile> plannerFiles_;
    QHash<int, YearFile> notesFiles_;
    QHash<QDate, PlannerPage> originals_;
    // The events, to-dos and journals the planner already holds, which are not added again.
    int alreadyThere_ = 0;
};

// A list of dates for the preview, a few of them named.
QString DateList(QList<QDate> dates) {
    std::sort(dates.begin(), dates.end());
    constexpr qsizetype kNamed = 12;
    QStringList named;
    for (qsizetype i = 0; i < std::min(kNamed, dates.size()); ++i)
        named << DateText(dates[i]);
    QString list = named.join(QStringLiteral("; "));
    if (dates.size() > kNamed)
        list += QStringLiteral(" and %1 more").arg(dates.size() - kNamed);
    return list;
}

QString Count(qsizetype n, const char* one, const char* many) {
    return QStringLiteral("%1 %2").arg(n).arg(QLatin1String(n == 1 ? one : many));
}

}  // namespace

QList<int> ImportPlan::Years() const {
    QList<int> years = holidayLines.keys() + markLines.keys();
    for (const QDate& date : pages.keys())
        years << date.year();
    for (const QDate& date : notes.keys())
        years << date.year();
    std::sort(years.begin(), years.end());
    years.erase(std::unique(years.begin(), years.end()), years.end());
    return years;
}

ImportPlan PlanImport(Services& services, const IcsContent& content, AllDayAs allDay,
                      quint32 markColor) {
    ImportPlan plan;
    Planner planner(services, plan);
    // Each day's events by their start, in file order for the same start.
    QList<IcsEvent> events = content.events;
    std::stable_sort(events.begin(), events.end(), [](const IcsEvent& a, const IcsEvent& b) {
        return std::pair(a.date, a.start) < std::pair(b.date, b.start);
    });
    for (const IcsEvent& event : events)
        planner.Place(event);
    for (const IcsToDo& toDo : content.toDos)
        planner.AddToDo(toDo);
    for (const IcsJournal& journal : content.journals)
        planner.AddJournal(journal);
    if (allDay == AllDayAs::Holidays) {
        for (const DatedHoliday& holiday : content.allDay)
            planner.AddHoliday(holiday);
    } else if (allDay == AllDayAs::Marks) {
        for (const DatedHoliday& day : content.allDay)
            planner.AddMark(day, markColor);
    } else if (!content.allDay.isEmpty()) {
        plan.notices << QStringLiteral("%1 are left out.")
                            .arg(Count(content.allDay.size(), "all-day event", "all-day events"));
    }
    plan.notices += content.leftOut;
    planner.Finish();
    // A year whose holidays or marks stay as they are is not written.
    const auto untouched = [](const QList<QDate>& dates) {
        return [&dates](const auto& year) {
            return std::none_of(dates.begin(), dates.end(),
                                [&](const QDate& date) { return date.year() == year.key(); });
        };
    };
    plan.holidayLines.removeIf(untouched(plan.holidayDates));
    plan.markLines.removeIf(untouched(plan.markDates));
    return plan;
}

QString PreviewText(const ImportPlan& plan) {
    QStringList lines;
    if (plan.IsEmpty())
        lines << QStringLiteral("Nothing in the file can be imported.");
    if (!plan.pages.isEmpty())
        lines << QStringLiteral("%1 will change: %2.")
                     .arg(Count(plan.pages.size(), "planner page", "planner pages"),
                          DateList(plan.pages.keys()));
    if (!plan.notes.isEmpty())
        lines << QStringLiteral("%1 will change: %2.")
                     .arg(Count(plan.notes.size(), "note", "notes"), DateList(plan.notes.keys()));
    if (!plan.holidayDates.isEmpty())
        lines << QStringLiteral("%1 will be added: %2.")
                     .arg(Count(plan.holidayDates.size(), "holiday", "holidays"),
                          DateList(plan.holidayDates));
    if (!plan.markDates.isEmpty())
        lines << QStringLiteral("%1 will be added: %2.")
                     .arg(Count(plan.markDates.size(), "date mark", "date marks"),
                          DateList(plan.markDates));
    constexpr qsizetype kShownNotices = 15;
    for (qsizetype i = 0; i < std::min(kShownNotices, plan.notices.size()); ++i)
        lines << plan.notices[i];
    if (plan.notices.size() > kShownNotices)
        lines
            << QStringLiteral("... and %1 more of these.").arg(plan.notices.size() - kShownNotices);
    return lines.join(QStringLiteral("\r\n"));
}

bool ApplyImport(ImportStores stores, const ImportPlan& plan) {
    bool all = true;
    for (int year : plan.Years()) {
        QList<QDate> dates;
        QList<PlannerPage> pages;
        for (auto it = plan.pages.begin(); it != plan.pages.end(); ++it)
            if (it.key().year() == year) {
                dates << it.key();
                pages << it.value();
            }
        if (!dates.isEmpty())
            all &= stores.planner.PutPlanners(year, dates, pages);
        dates.clear();
        QStringList notes;
        for (auto it = plan.notes.begin(); it != plan.notes.end(); ++it)
            if (it.key().year() == year) {
                dates << it.key();
                notes << it.value();
            }
        if (!dates.isEmpty())
            all &= stores.notes.PutNotes(year, dates, notes);
        if (plan.holidayLines.contains(year)) {
            all &= SaveHolidayLines(stores.services, year, plan.holidayLines[year]);
            if (year == stores.dates.YearOf(Year::This))
                stores.holidays.AssignThisYearsHolidays();
            else if (year == stores.dates.YearOf(Year::Next))
                stores.holidays.AssignNextYearsHolidays();
        }
        if (plan.markLines.contains(year))
            all &= stores.marks.PutMarkLines(year, plan.markLines[year]);
    }
    return all;
}
