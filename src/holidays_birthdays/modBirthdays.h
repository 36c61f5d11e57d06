#pragma once

#include <QDate>
#include <QList>
#include <QObject>
#include <QStringList>

#include "calendar/DayGrid.h"
#include "calendar/YearPair.h"
#include "shell/DataFile.h"
#include "shell/Records.h"

class DateModel;
class Services;

inline const QString kBirthdaysFile = QStringLiteral("Birthdays.dat");

// The alert periods a person may have: never, on the day, or 1, 3, 5, 7 or 10 days ahead.
constexpr int kNoBirthdayAlert = -1;
// The birth year of a person whose age is not kept.
inline const QString kBirthYearNotKept = QStringLiteral("****");

// A line of "Birthdays.dat": "mm/dd:pp:name:yyyy". The birthday is characters 1-5, the alert
// period characters 7-8 ("-1", "00" ... "10"), the name runs from character 10 up to the first
// ":" after it, and the birth year is the last four characters ("****" when the age is not
// kept).
struct BirthdayRecord {
    QString birthday;
    int alertPeriod = kNoBirthdayAlert;
    QString name;
    QString birthYear;

    bool operator==(const BirthdayRecord&) const = default;
};
// A period that is not a number raises 13.
BirthdayRecord ParseBirthdayLine(const QString& line);
QString FormatBirthdayLine(const BirthdayRecord& record);
// The layout of "Birthdays.dat": a person a line, the name never holding ":"; a save of nobody
// leaves an empty file.
const RecordLayout& BirthdaysLayout();

// Whether the birthday is due within its alert period from today, both days included. When
// the period runs past December 31, every birthday is taken in the next year: a January
// birthday counts, and one later in December within the period does not.
bool IsBirthdayPending(const BirthdayRecord& record, const QDate& today);

// "No Birthdays Pending", "1 Birthday is Pending" or "n Birthdays are Pending".
QString BirthdaysPendingText(qsizetype count);

// The birthday list, the birthdays pending today and the day cells they fall on in the year
// on show and the next year.
class BirthdayStore : public QObject, public PerYearStore {
    Q_OBJECT
public:
    BirthdayStore(Services& services, const DateModel& dates);

    QStringList lines;
    QList<BirthdayRecord> records;
    QList<BirthdayRecord> pending;
    // The cells that carry a birthday, this year's and next year's.
    YearPair<DayGrid<bool>> flags;

    // Reads the file and works out which birthdays are pending today, then marks both years'
    // cells. A faulty line ends the reading; the list is then not saved until it reads whole.
    void ReadBirthdays();
    QString PendingText() const { return BirthdaysPendingText(pending.size()); }
    // Saves the file with a line per record, in their order (nobody leaves an empty file),
    // then says "Birthdays Updated." when showMessage; see SaveDataFile for when it is refused.
    // Returns whether it was written.
    bool SaveBirthdays(const QList<BirthdayRecord>& records, bool showMessage);

    // Marks every cell of the year whose day is a birthday (a day shown in two month sheets
    // in both).
    void ReadAndMarkBirthdays();
    void ReadAndMarkNextYearsBirthdays();
    void ReadBothYears() override;

    // The names of the people born on date's day, in list order; none for a date of neither
    // year.
    QStringList BirthdaysOn(const QDate& date) const;

signals:
    void birthdaysRead();

private:
    void Mark(Year year, const char* procedure);

    Services& services_;
    const DateModel& dates_;
    DataFile file_{kBirthdaysFile};
};
