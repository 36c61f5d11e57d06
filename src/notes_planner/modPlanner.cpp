#include "notes_planner/modPlanner.h"

#include "calendar/DateModel.h"
#include "shell/DateFormats.h"
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

void PlannerStore::ReadYear(Year year, const char* procedure) {
    DatedEntries& entries = years[year];
    openIndex[year] = -1;
    partlyRead[year] = !services_.Trap(procedure, [&] {
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

void PlannerStore::RereadYear(int year) {
    if (year == dates_.YearOf(Year::This))
        ReadThisYearsPlanner();
    else if (year == dates_.YearOf(Year::Next))
        ReadNextYearsPlanner();
}

bool PlannerStore::DeletePlanners(int year, const QList<QDate>& dates) {
    if (!DeleteDatedLines(services_, "DeletePlanners", year, kPlannerFile, dates))
        return false;
    RereadYear(year);
    return true;
}

bool PlannerStore::PutPlanners(int year, const QList<QDate>& dates,
                               const QList<PlannerPage>& pages) {
    QList<QByteArray> records;
    for (const PlannerPage& page : pages) {
        const QString record = BuildPlannerRecord(page);
        if (const auto bad = textfile::FirstUnstorableCharacter(record)) {
            services_.dialogs.MsgBox(textfile::UnstorableCharacterMessage(*bad), kWarningStyle);
            return false;
        }
        records << textfile::Encode(record);
    }
    if (!PutDatedLines(services_, "PutPlanners", year, kPlannerFile, dates, records))
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
