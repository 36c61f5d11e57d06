#include "notes_planner/modPlanner.h"

#include "calendar/DateModel.h"
#include "shell/DateFormats.h"
#include "shell/Services.h"
#include "shell/TextFile.h"

PlannerExtract ExtractOf(QStringView record) {
    using namespace plannerfield;
    PlannerExtract extract;
    extract.hasExpenses = !IsBlank(Expenses.Raw(record));
    if (extract.hasExpenses) {
        for (int k = 0; k < kExpenseLines; ++k) {
            extract.descriptions[k] = ExpenseDescription(k).Raw(record).toString();
            extract.amounts[k] = Amount(k).Raw(record).toString();
        }
    }
    extract.hasMileage = !IsBlank(Mileage.Raw(record));
    if (extract.hasMileage) {
        for (int m = 0; m < kMileageLines; ++m) {
            extract.destinations[m] = Destination(m).Raw(record).toString();
            extract.begins[m] = Begin(m).Raw(record).toString();
            extract.ends[m] = End(m).Raw(record).toString();
            extract.miles[m] = Miles(m).Raw(record).toString();
        }
    }
    return extract;
}

PlannerStore::PlannerStore(Services& services, const DateModel& dates)
    : services_(services), dates_(dates) {
    openIndex[Year::This] = -1;
    openIndex[Year::Next] = -1;
}

void PlannerStore::ReadThisYearsPlanner() {
    ReadYear(Year::This, "ReadThisYearsPlanner");
}

void PlannerStore::ReadNextYearsPlanner() {
    ReadYear(Year::Next, "ReadNextYearsPlanner");
}

void PlannerStore::Read(Year year) {
    year == Year::Next ? ReadNextYearsPlanner() : ReadThisYearsPlanner();
}

void PlannerStore::ReadBothYears() {
    ReadThisYearsPlanner();
    ReadNextYearsPlanner();
}

void PlannerStore::ReadYear(Year year, const char* procedure) {
    DatedEntries& entries = years[year];
    openIndex[year] = -1;
    if (year == Year::This)
        extracts.clear();
    partlyRead[year] = !services_.Trap(procedure, [&] {
        ReadDatedFile(services_.AppFolder, dates_.YearOf(year), kPlannerFile, entries);
    });
    // The figures of what was read, a faulty line's predecessors included.
    if (year == Year::This) {
        extracts.reserve(entries.Count());
        for (const QString& record : entries.payloads)
            extracts.append(ExtractOf(record));
    }
    emit plannerRead(dates_.YearOf(year));
}

OpenedPage PlannerStore::OpenPlannerRecord() {
    OpenedPage opened;
    services_.Trap("OpenPlannerRecord", [&] {
        const QDate date = dates_.SelectedDate;
        opened.caption = datefmt::Format(date, QStringLiteral("dddd, mmmm d yyyy"));
        if (!dates_.HolderFor(date))
            return;
        const Year year = dates_.YearSlotOf(date);
        const DatedEntries& entries = years[year];
        openIndex[year] = entries.IndexOf(datefmt::MmDdYy(date));
        opened.found = openIndex[year] >= 0;
        opened.page = ParsePlannerRecord(
            opened.found ? QStringView(entries.payloads[openIndex[year]]) : QStringView());
    });
    return opened;
}

void PlannerStore::OpenThePlanner() {
    services_.Trap("OpenThePlanner", [&] {
        if (plannerWindowOpener)
            plannerWindowOpener();
    });
}

bool PlannerStore::SavePlannerRecord(const QDate& date, const PlannerPage& page) {
    return StoreRecord(Year::This, "SavePlannerRecord", date, page);
}

bool PlannerStore::SavePlannerRecord2(const QDate& date, const PlannerPage& page) {
    return StoreRecord(Year::Next, "SavePlannerRecord2", date, page);
}

bool PlannerStore::StorePage(Year year, const QDate& date, const PlannerPage& page) {
    return year == Year::Next ? SavePlannerRecord2(date, page) : SavePlannerRecord(date, page);
}

bool PlannerStore::StoreRecord(Year year, const char* procedure, const QDate& date,
                               const PlannerPage& page) {
    const QString record = BuildPlannerRecord(page);
    if (const auto bad = textfile::FirstUnstorableCharacter(record)) {
        services_.dialogs.MsgBox(textfile::UnstorableCharacterMessage(*bad), kWarningStyle);
        return false;
    }
    bool stored = false;
    services_.Trap(procedure, [&] {
        const QString dateKey = datefmt::MmDdYy(date);
        const DateHolderGrid& holder =
            year == Year::Next ? dates_.NextDateHolder : dates_.DateHolder;
        const auto cell = FindInHolder(holder, dateKey);
        if (!cell)
            Raise(err::SubscriptOutOfRange);
        DatedEntries& entries = years[year];
        qsizetype& open = openIndex[year];
        open = entries.IndexOf(dateKey);
        if (open < 0) {
            open = entries.Append(dateKey);
            if (year == Year::This && entries.Count() > kMaxPlannerPages) {
                services_.dialogs.MsgBox(kBadPlannerCountMessage);
                return;
            }
        }
        entries.cellCodes[open] = cell->Code();
        entries.payloads[open] = record;
        stored = true;
    });
    return stored;
}

bool PlannerStore::SaveThisYearsPlannerFile() {
    return SaveYear(Year::This, "SaveThisYearsPlannerFile", kPlannerRecordsUpdatedMessage);
}

bool PlannerStore::SaveNextYearsPlannerFile() {
    return SaveYear(Year::Next, "SaveNextYearsPlannerFile", kPlannerSavedMessage);
}

bool PlannerStore::SaveFile(Year year) {
    return year == Year::Next ? SaveNextYearsPlannerFile() : SaveThisYearsPlannerFile();
}

bool PlannerStore::SaveYear(Year year, const char* procedure, const QString& message) {
    const int yearNumber = dates_.YearOf(year);
    if (services_.RefuseSaveAfterPartialRead(partlyRead[year],
                                             YearFileName(yearNumber, kPlannerFile)))
        return false;
    bool saved = false;
    services_.Trap(procedure, [&] {
        const DatedEntries& entries = years[year];
        if (year == Year::This && entries.Count() > kMaxPlannerPages) {
            services_.dialogs.MsgBox(kBadPlannerCountMessage);
            return;
        }
        WriteDatedFile(services_, yearNumber, kPlannerFile, entries,
                       [&](qsizetype i) { return !IsBlankRecord(entries.payloads[i]); });
        services_.dialogs.MsgBox(message);
        saved = true;
    });
    return saved;
}

bool PlannerStore::HasPlanner(const QDate& date) const {
    const auto cell = dates_.FindDay(date);
    return cell && years[dates_.YearSlotOf(date)].exists[*cell];
}

QString PlannerStore::RecordOf(const QDate& date) const {
    if (!dates_.HolderFor(date))
        return {};
    const DatedEntries& entries = years[dates_.YearSlotOf(date)];
    const qsizetype index = entries.IndexOf(datefmt::MmDdYy(date));
    return index < 0 ? QString() : entries.payloads[index];
}
