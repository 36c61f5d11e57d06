// The iCalendar import on any bytes, up to its preview: no crash or leak; a refused file brings
// nothing, and bytes past the size limits are refused for them; whatever it brings, the preview
// is worked out against a data folder with a planner page and a note without writing a byte into
// it. fuzz/run.sh adds a calendar with a line past the limit to the seeds.
#include "FuzzSupport.h"
#include "holidays_birthdays/IcsHolidays.h"
#include "ical/IcalImport.h"
#include "ical/IcalTransfer.h"
#include "notes_planner/PlannerRecord.h"

namespace {

// The folder's files, each with its bytes.
QMap<QString, QByteArray> Snapshot(const QString& folder) {
    QMap<QString, QByteArray> files;
    for (const QString& name :
         {QStringLiteral("2026/Planner.dat"), QStringLiteral("2026/Notes.dat")}) {
        QFile file(folder + QLatin1Char('/') + name);
        files.insert(name, file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("-"));
    }
    files.insert(
        QStringLiteral("entries"),
        QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).join(u'|').toUtf8());
    return files;
}

const QMap<QString, QByteArray>& Prepared() {
    static const QMap<QString, QByteArray> files = [] {
        Services& services = fuzz::services();
        QDir(services.AppFolder).mkdir(QStringLiteral("2026"));
        PlannerPage page = NewPlannerPage();
        page.slotTexts[3] = QStringLiteral("Existing");
        QFile planner(services.PathOf(QStringLiteral("2026\\Planner.dat")));
        QFile notes(services.PathOf(QStringLiteral("2026\\Notes.dat")));
        if (!planner.open(QIODevice::WriteOnly) || !notes.open(QIODevice::WriteOnly))
            std::abort();
        planner.write("06/15/26:050201:" + BuildPlannerRecord(page).toLatin1() + "\r\n");
        notes.write("06/15/26:050201:A note\r\n");
        planner.close();
        notes.close();
        return Snapshot(services.AppFolder);
    }();
    return files;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QMap<QString, QByteArray>& before = Prepared();
    const QByteArray bytes =
        QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const IcsContent content = ReadIcs(bytes, YearRange(2026), QTimeZone::utc());
    const QString beyondLimits = IcsLimitProblem(bytes);
    fuzz::Check(beyondLimits.isEmpty() || content.problem == beyondLimits,
                "bytes past the limits are refused for them");
    if (!content.problem.isEmpty()) {
        fuzz::Check(content.events.isEmpty() && content.toDos.isEmpty() &&
                        content.journals.isEmpty() && content.allDay.isEmpty(),
                    "a refused file brings nothing");
        return 0;
    }
    const ImportPlan plan =
        PlanImport(fuzz::services(), content, size % 2 ? AllDayAs::Holidays : AllDayAs::Marks, 255);
    for (const PlannerPage& page : plan.pages)
        for (int slot = 0; slot < kPlannerSlots; ++slot)
            fuzz::Check(page.slotTexts[slot].size() <= SlotWidth(slot), "every text fits its slot");
    (void)PreviewText(plan);
    fuzz::Check(Snapshot(fuzz::services().AppFolder) == before, "a preview writes nothing");
    return 0;
}
