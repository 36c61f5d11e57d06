// "Planner.dat" on any bytes: the reader never crashes; the expense and mileage reports of the
// whole year list, in date order, exactly the filled lines of the pages read, as the reports'
// figures of each page count them; and a year read whole is saved and read again with every
// page that is not blank unchanged, in its order.
#include "FuzzSupport.h"
#include "calendar/DateModel.h"
#include "notes_planner/modPlanner.h"
#include "reports/ReportText.h"

namespace {

// The filled lines of the pages of real dates, counted from each page's figures.
qsizetype FilledLines(const PlannerStore& planner, ReportKind kind) {
    const DatedEntries& read = planner.years[Year::This];
    qsizetype lines = 0;
    for (qsizetype i = 0; i < read.Count(); ++i) {
        const QString& key = read.dateKeys[i];
        if (!QDate(2026, key.left(2).toInt(), key.mid(3, 2).toInt()).isValid())
            continue;
        const PlannerExtract& page = planner.Extracts()[i];
        if (kind == ReportKind::Expenses) {
            for (int k = 0; k < kExpenseLines; ++k)
                lines += !IsBlank(page.descriptions[k]) || !IsBlank(page.amounts[k]);
        } else {
            for (int m = 0; m < kMileageLines; ++m)
                lines += !IsBlank(page.destinations[m]) || !IsBlank(page.begins[m]) ||
                         !IsBlank(page.ends[m]) || !IsBlank(page.miles[m]);
        }
    }
    return lines;
}

void CheckReports(const PlannerStore& planner) {
    for (const ReportKind kind : {ReportKind::Expenses, ReportKind::Mileage}) {
        Report report{kind, MonthPeriod(0, 2026), {}, 0.5};
        report.rows = BuildReportRows(kind, planner.years[Year::This], 2026, report.period);
        fuzz::Check(report.rows.size() == FilledLines(planner, kind), "a row per filled line");
        const qsizetype width = kind == ReportKind::Expenses ? 2 : 4;
        for (qsizetype r = 0; r < report.rows.size(); ++r) {
            const ReportRow& row = report.rows[r];
            fuzz::Check(report.period.Contains(row.date), "rows within the period");
            fuzz::Check(r == 0 || report.rows[r - 1].date <= row.date, "rows in date order");
            fuzz::Check(row.fields.size() == width, "every field of a line");
            bool filled = false;
            for (const QString& field : row.fields) {
                fuzz::Check(TrimBlanks(field).size() == field.size(), "fields trimmed");
                filled = filled || !field.isEmpty();
            }
            fuzz::Check(filled, "no blank line listed");
        }
        for (int page = 1; page <= report.Pages(); ++page)
            report.TotalText(report.PageBegin(page), report.PageEnd(page));
        fuzz::Check(CsvText(report).startsWith(QStringLiteral("Date,")), "CSV headings");
        PlainText(report);
    }
}

struct Store {
    DateModel dates;
    PlannerStore planner{fuzz::services(), dates};
    Store() {
        QDir().mkpath(fuzz::services().PathOf(QStringLiteral("2026")));
        dates.SelectDate(QDate(2026, 6, 15));
    }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static Store store;
    PlannerStore& planner = store.planner;
    fuzz::WriteInput(QStringLiteral("2026/Planner.dat"), data, size);
    planner.ReadThisYearsPlanner();
    CheckReports(planner);
    DatedEntries kept;
    const DatedEntries& read = planner.years[Year::This];
    kept.fileBytes = read.fileBytes;  // the pages kept are views into the bytes read
    fuzz::Check(planner.Extracts().size() == read.Count(), "one extract per page");
    for (qsizetype i = 0; i < read.Count(); ++i) {
        if (IsBlankRecord(read.payloads[i]))
            continue;
        const qsizetype k = kept.Append(read.dateKeys[i]);
        kept.cellCodes[k] = read.cellCodes[i];
        kept.payloads[k] = read.payloads[i];
    }
    if (!planner.SaveThisYearsPlannerFile())
        return 0;  // read in part, or over 366 pages: refused, the file stays as it was
    planner.ReadThisYearsPlanner();
    fuzz::Check(read.dateKeys == kept.dateKeys && read.cellCodes == kept.cellCodes &&
                    read.payloads == kept.payloads,
                "saved pages read back unchanged");
    return 0;
}
