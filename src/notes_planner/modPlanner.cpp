#include "notes_planner/modPlanner.h"

#include "calendar/DateModel.h"
#include "shell/DateFormats.h"
#include "shell/SavePath.h"
#include "shell/Services.h"
#include "shell/TextFile.h"

PlannerExtract ExtractOf(QByteArrayView record) {
    using namespace plannerfield;
    const auto text = [&](const Field& field) { return textfile::Decode(field.Raw(record)); };
    PlannerExtract extract;
    extract.hasExpenses = !IsBlank(Expenses.Raw(record));
    if (extract.hasExpenses) {
        for (int k = 0; k < kExpenseLines; ++k) {
            extract.descriptions[k] = text(ExpenseDescription(k));
            extract.amounts[k] = text(Amount(k));
        }
    }
    extract.hasMileage = !IsBlank(Mileage.Raw(record));
    if (extract.hasMileage) {
        for (int m = 0; m < kMileageLines; ++m) {
            extract.destinations[m] = text(Destination(m));
            extract.begins[m] = text(Begin(m));
            extract.ends[m] = text(End(m));
            extract.miles[m] = text(Miles(m));
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

void PlannerStore::ReadBothYears() {
    ReadThisYearsPlanner();
    ReadNextYearsPlanner();
}

const RecordLayout& PlannerLayout() {
    static const RecordLayout layout = DatedLayout(false);
    return layout;
}

void PlannerStore::ReadYear(Year year, const char* procedure) {
    DatedEntries& entries = years[year];
    openIndex[year] = -1;
    services_.Trap(procedure, [&] {
        ReadDatedFile(services_.AppFolder, dates_.YearOf(year), kPlannerFile, entries);
    });
    // The figures of what was read, a faulty line's predecessors included.
    if (year == Year::This) {
        readBytes_ = entries.fileBytes;
        readRecords_ = entries.payloads;
        extracts_.reset();
    }
    emit plannerRead(dates_.YearOf(year));
}

const QList<PlannerExtract>& PlannerStore::Extracts() const {
    if (!extracts_) {
        extracts_.emplace();
        extracts_->reserve(readRecords_.size());
        for (const QByteArray& record : readRecords_)
            extracts_->append(ExtractOf(record));
    }
    return *extracts_;
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
            opened.found ? textfile::Decode(entries.payloads[openIndex[year]]) : QString());
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

bool PlannerStore::StoreRecord(Year year, const char* procedure, const QDate& date,
                               const PlannerPage& page) {
    const QString record = BuildPlannerRecord(page);
    // Checked before the page goes into the year, which then holds only what can be saved.
    if (const auto problem = FieldProblem(PlannerLayout(), record, true)) {
        services_.dialogs.MsgBox(*problem, kWarningStyle);
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
        entries.payloads[open] = textfile::Encode(record);
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

bool PlannerStore::SaveYear(Year year, const char* procedure, const QString& message) {
    DatedEntries& entries = years[year];
    entries.file.UseName(YearFileName(dates_.YearOf(year), kPlannerFile));
    if (year == Year::This && entries.Count() > kMaxPlannerPages) {
        services_.dialogs.MsgBox(kBadPlannerCountMessage);
        return false;
    }
    const Records records = DatedRecords(
        PlannerLayout(), entries, [&](qsizetype i) { return !IsBlankRecord(entries.payloads[i]); });
    switch (SaveDataFile(services_, procedure, entries.file, records, message)) {
        case SaveResult::Saved:
            return true;
        case SaveResult::Merged:
            // The other program's pages join the year in memory.
            ReadYear(year, procedure);
            return true;
        case SaveResult::Refused:
            break;
    }
    // The year in memory goes back to the file, so that a page that was not saved is not
    // written later with another one; the window keeps showing it.
    if (!entries.file.PartlyRead())
        ReadYear(year, procedure);
    return false;
}

void PlannerStore::RereadYear(int year) {
    if (year == dates_.YearOf(Year::This))
        ReadThisYearsPlanner();
    else if (year == dates_.YearOf(Year::Next))
        ReadNextYearsPlanner();
}

bool PlannerStore::DeletePlanners(int year, const QList<QDate>& dates) {
    if (!DeleteDatedLines(services_, "DeletePlanners", year, kPlannerFile, PlannerLayout(), dates))
        return false;
    RereadYear(year);
    return true;
}

bool PlannerStore::PutPlanners(int year, const QList<QDate>& dates,
                               const QList<PlannerPage>& pages) {
    QStringList records;
    for (const PlannerPage& page : pages)
        records << BuildPlannerRecord(page);
    if (!PutDatedLines(services_, "PutPlanners", year, kPlannerFile, PlannerLayout(), dates,
                       records))
        return false;
    RereadYear(year);
    return true;
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
    return index < 0 ? QString() : textfile::Decode(entries.payloads[index]);
}
