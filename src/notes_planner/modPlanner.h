#pragma once

#include <QDate>
#include <QList>
#include <QObject>
#include <array>
#include <functional>
#include <optional>

#include "calendar/YearPair.h"
#include "notes_planner/DatedFile.h"
#include "notes_planner/PlannerRecord.h"

class DateModel;
class Services;

inline const QString kPlannerFile = QStringLiteral("Planner.dat");
inline const QString kPlannerRecordsUpdatedMessage = QStringLiteral("Planner Records Updated");
inline const QString kPlannerSavedMessage = QStringLiteral("Planner Saved");
inline const QString kBadPlannerCountMessage = QStringLiteral("Bad Planner Count");

// A year holds at most one page per day of a leap year.
constexpr qsizetype kMaxPlannerPages = 366;

// The layout of "Planner.dat": a line per date, "mm/dd/yy:" + cell code + ":" + the page's
// record of fixed fields.
const RecordLayout& PlannerLayout();

// The expense and mileage figures of one page of the year on show, as the reports read them:
// each field's characters as the record holds them.
struct PlannerExtract {
    bool hasExpenses = false;
    bool hasMileage = false;
    std::array<QString, kExpenseLines> descriptions;
    std::array<QString, kExpenseLines> amounts;
    std::array<QString, kMileageLines> destinations;
    std::array<QString, kMileageLines> begins;
    std::array<QString, kMileageLines> ends;
    std::array<QString, kMileageLines> miles;
};
PlannerExtract ExtractOf(QByteArrayView record);

// A date's page as the planner window opens it.
struct OpenedPage {
    // The date as "dddd, mmmm d yyyy".
    QString caption;
    PlannerPage page;
    // Whether the date already had a page.
    bool found = false;
};

// The planner pages of the year on show and of the next year, each year in "Planner.dat" in
// its year folder, one line per date with a page: "mm/dd/yy:" + cell code + ":" + record.
class PlannerStore : public QObject, public PerYearStore {
    Q_OBJECT
public:
    PlannerStore(Services& services, const DateModel& dates);

    YearPair<DatedEntries> years;
    // The entry of each year that is open in the planner window; -1 when none.
    YearPair<qsizetype> openIndex;
    // The figures of this year's pages as last read, one per entry, for the reports. Taken
    // from the records when first asked for after a read.
    const QList<PlannerExtract>& Extracts() const;

    // Replace a year's list and planner flags with its file; this year's also fills the
    // extracts. A faulty line ends the reading; the pages before it stay, and the year is not
    // saved again until it has been read whole.
    void ReadThisYearsPlanner();
    void ReadNextYearsPlanner();
    void ReadBothYears() override;

    // Make the selected date's entry the open one and give its page (a page without text when
    // it has none).
    OpenedPage OpenPlannerRecord();
    // Open the planner window on the selected date.
    void OpenThePlanner();
    // How the planner window is opened; set by the window side.
    std::function<void()> plannerWindowOpener;

    // Store page as the page of date (this year's, or with the 2 variant next year's) in
    // memory; it becomes the open entry. A date new to a year that already has 366 pages is
    // refused with "Bad Planner Count" (the new entry stays, without a record). Returns
    // whether the page was stored.
    bool SavePlannerRecord(const QDate& date, const PlannerPage& page);
    bool SavePlannerRecord2(const QDate& date, const PlannerPage& page);

    // Save the year's file with every page that is not blank (see SaveDataFile), then say
    // "Planner Records Updated" (this year) or "Planner Saved" (next year). This year's file
    // is not written while its list holds more than 366 entries. A save that is refused puts
    // the year in memory back to its file. Returns whether the file was written.
    bool SaveThisYearsPlannerFile();
    bool SaveNextYearsPlannerFile();

    // Removes the pages of dates (dates of year, which may be any year) from the year's file,
    // every other line staying as it was, without a word when it worked; a year in memory is
    // read again so that everything showing its pages follows. A file that cannot be read
    // whole is refused and left as it is. Returns false when the pages are still there.
    bool DeletePlanners(int year, const QList<QDate>& dates);
    // Gives each of dates (dates of year, any year) the page beside it in the year's file,
    // written once, every other line staying as it was; a year in memory is read again. A
    // file that cannot be read whole is refused and left as it is; a page holding a character
    // the file cannot hold refuses the whole change. Returns whether the pages were written.
    bool PutPlanners(int year, const QList<QDate>& dates, const QList<PlannerPage>& pages);

    bool HasPlanner(const QDate& date) const;
    // A date's record; empty when it has none.
    QString RecordOf(const QDate& date) const;

signals:
    // A year's list was read from its file.
    void plannerRead(int year);

private:
    // Reads the year again when it is one of the two in memory, after its file was rewritten.
    void RereadYear(int year);
    void ReadYear(Year year, const char* procedure);
    bool StoreRecord(Year year, const char* procedure, const QDate& date, const PlannerPage& page);
    bool SaveYear(Year year, const char* procedure, const QString& message);

    Services& services_;
    const DateModel& dates_;
    // This year's entries as read (with the file's bytes they are views into), and their
    // figures once asked for.
    QList<QByteArray> readRecords_;
    QByteArray readBytes_;
    mutable std::optional<QList<PlannerExtract>> extracts_;
};
