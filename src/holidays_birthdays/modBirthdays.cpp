#include "holidays_birthdays/modBirthdays.h"

#include "calendar/DateModel.h"
#include "holidays_birthdays/HolidaysBirthdaysMessages.h"
#include "shell/Files.h"
#include "shell/SavePath.h"
#include "shell/Services.h"
#include "shell/TextFile.h"
#include "shell/VbError.h"

namespace {

constexpr qsizetype kBirthdayLength = 5;
constexpr qsizetype kPeriodStart = 6;
constexpr qsizetype kPeriodLength = 2;
constexpr qsizetype kNameStart = 9;
constexpr qsizetype kYearLength = 4;

// "mm/dd" as a date of year; invalid for a day the year lacks.
QDate DayInYear(const QString& birthday, int year) {
    return QDate(year, birthday.left(2).toInt(), birthday.mid(3, 2).toInt());
}

}  // namespace

BirthdayRecord ParseBirthdayLine(const QString& line) {
    BirthdayRecord record;
    record.birthday = line.left(kBirthdayLength);
    record.alertPeriod = ToInt(QStringView(line).mid(kPeriodStart, kPeriodLength));
    const qsizetype colon = line.indexOf(QLatin1Char(':'), kNameStart);
    if (colon >= 0)
        record.name = line.mid(kNameStart, colon - kNameStart);
    record.birthYear = line.right(kYearLength);
    return record;
}

namespace {

QStringList BirthdayFields(const BirthdayRecord& record) {
    const QString period = record.alertPeriod < 0 ? QString::number(record.alertPeriod)
                                                  : QStringLiteral("%1").arg(record.alertPeriod, 2,
                                                                             10, QLatin1Char('0'));
    return {record.birthday, period, OnOneLine(record.name), record.birthYear};
}

}  // namespace

QString FormatBirthdayLine(const BirthdayRecord& record) {
    return BirthdayFields(record).join(QLatin1Char(':'));
}

const RecordLayout& BirthdaysLayout() {
    static const RecordLayout layout = [] {
        RecordLayout birthdays;
        birthdays.whenEmpty = RecordLayout::WhenEmpty::EmptyFile;
        return birthdays;
    }();
    return layout;
}

bool IsBirthdayPending(const BirthdayRecord& record, const QDate& today) {
    if (record.alertPeriod == kNoBirthdayAlert)
        return false;
    const QDate windowEnd = today.addDays(record.alertPeriod);
    const int year = today.year() + (windowEnd.year() > today.year() ? 1 : 0);
    const QDate occurrence = DayInYear(record.birthday, year);
    return occurrence.isValid() && occurrence >= today && occurrence <= windowEnd;
}

QString BirthdaysPendingText(qsizetype count) {
    if (count == 0)
        return kNoBirthdaysPending;
    if (count == 1)
        return kOneBirthdayPending;
    return QString::number(count) + kBirthdaysArePending;
}

BirthdayStore::BirthdayStore(Services& services, const DateModel& dates)
    : services_(services), dates_(dates) {}

void BirthdayStore::ReadBirthdays() {
    lines.clear();
    records.clear();
    pending.clear();
    // A read that stops, at a faulty line or before the first one, keeps the file from being
    // saved over.
    ReadDataFile(services_, "ReadBirthdays", file_, [&](QByteArrayView bytes, int) {
        const QString line = LineText(bytes);
        records.append(ParseBirthdayLine(line));
        lines.append(line);
    });
    const QDate today = services_.clock.today();
    for (const BirthdayRecord& record : records)
        if (IsBirthdayPending(record, today))
            pending.append(record);
    ReadBothYears();
    emit birthdaysRead();
}

bool BirthdayStore::SaveBirthdays(const QList<BirthdayRecord>& people, bool showMessage) {
    Records records(BirthdaysLayout());
    for (const BirthdayRecord& person : people)
        records.Add(BirthdayFields(person));
    const QString message = showMessage ? kBirthdaysUpdatedMessage : QString();
    const SaveResult result = SaveDataFile(services_, "SaveBirthdays", file_, records, message);
    if (result == SaveResult::Merged)
        ReadBirthdays();
    return result != SaveResult::Refused;
}

void BirthdayStore::ReadAndMarkBirthdays() {
    Mark(Year::This, "ReadAndMarkBirthdays");
}

void BirthdayStore::ReadAndMarkNextYearsBirthdays() {
    Mark(Year::Next, "ReadAndMarkNextYearsBirthdays");
}

void BirthdayStore::ReadBothYears() {
    ReadAndMarkBirthdays();
    ReadAndMarkNextYearsBirthdays();
}

void BirthdayStore::Mark(Year year, const char* procedure) {
    DayGrid<bool>& grid = flags[year];
    grid.Fill(false);
    services_.Trap(procedure, [&] {
        const DateHolderGrid& holder =
            year == Year::This ? dates_.DateHolder : dates_.NextDateHolder;
        holder.ForEach([&](const CellIndex& cell, const QString& day) {
            const QStringView monthDay = QStringView(day).left(kBirthdayLength);
            for (const BirthdayRecord& record : records)
                if (record.birthday == monthDay)
                    grid[cell] = true;
        });
    });
}

QStringList BirthdayStore::BirthdaysOn(const QDate& date) const {
    const std::optional<CellIndex> cell = dates_.FindDay(date);
    if (!cell || !flags[dates_.YearSlotOf(date)][*cell])
        return {};
    const QString monthDay = date.toString(QStringLiteral("MM/dd"));
    QStringList names;
    for (const BirthdayRecord& record : records)
        if (record.birthday == monthDay)
            names.append(record.name);
    return names;
}
