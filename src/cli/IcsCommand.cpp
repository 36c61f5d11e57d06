// orvanta ics export FILE [--from YYYY-MM-DD] [--to YYYY-MM-DD]
// orvanta ics import FILE [--years YYYY[-YYYY]] [--holidays | --marks] [--yes]
// orvanta ics check FILE
#include <QTextStream>
#include <functional>

#include "app/ProgramState.h"
#include "cli/Commands.h"
#include "cli/ConsoleSeams.h"
#include "holidays_birthdays/IcsHolidays.h"
#include "ical/IcalTransfer.h"
#include "shell/InstanceLock.h"
#include "shell/SafeSave.h"

namespace cli {

namespace {

const QString kUsage = QStringLiteral(
    "ics export FILE [--from YYYY-MM-DD] [--to YYYY-MM-DD] | ics import FILE [--years "
    "YYYY[-YYYY]] [--holidays | --marks] [--yes] | ics check FILE");

int Usage(QTextStream& err, const QString& problem) {
    err << "orvanta: " << problem << " (usage: orvanta " << kUsage << ")\n";
    return kExitUsage;
}

struct IcsOptions {
    QString verb;
    QString file;
    DateRange range;
    std::optional<DateRange> years;
    AllDayAs allDay = AllDayAs::LeftOut;
    bool yes = false;
};

// The option's value, from "--name VALUE" or "--name=VALUE"; advances i past it.
std::optional<QString> ValueOf(const QStringList& arguments, qsizetype& i, const QString& name) {
    const QString& argument = arguments[i];
    if (argument.startsWith(name + u'='))
        return argument.mid(name.size() + 1);
    if (argument == name && i + 1 < arguments.size())
        return arguments[++i];
    return std::nullopt;
}

QString ParseIcsArguments(const QStringList& arguments, IcsOptions& options) {
    options.verb = arguments.value(0);
    if (options.verb != QLatin1String("export") && options.verb != QLatin1String("import") &&
        options.verb != QLatin1String("check"))
        return QStringLiteral("ics takes export, import or check");
    const bool exporting = options.verb == QLatin1String("export");
    const bool importing = options.verb == QLatin1String("import");
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        const QString& argument = arguments[i];
        const auto date = [&](const QString& name, QDate& target) -> QString {
            const auto value = ValueOf(arguments, i, name);
            target = QDate::fromString(value.value_or(QString()), QStringLiteral("yyyy-MM-dd"));
            return target.isValid()
                       ? QString()
                       : QStringLiteral("%1 needs a date written YYYY-MM-DD").arg(name);
        };
        if (exporting && argument.startsWith(QLatin1String("--from"))) {
            if (QString problem = date(QStringLiteral("--from"), options.range.from);
                !problem.isEmpty())
                return problem;
        } else if (exporting && argument.startsWith(QLatin1String("--to"))) {
            if (QString problem = date(QStringLiteral("--to"), options.range.to);
                !problem.isEmpty())
                return problem;
        } else if (importing && argument.startsWith(QLatin1String("--years"))) {
            options.years = ParseYearRange(
                ValueOf(arguments, i, QStringLiteral("--years")).value_or(QString()));
            if (!options.years)
                return QStringLiteral("--years needs a year or two, written YYYY or YYYY-YYYY");
        } else if (importing && argument == QLatin1String("--holidays")) {
            options.allDay = AllDayAs::Holidays;
        } else if (importing && argument == QLatin1String("--marks")) {
            options.allDay = AllDayAs::Marks;
        } else if (importing && argument == QLatin1String("--yes")) {
            options.yes = true;
        } else if (argument.startsWith(u'-')) {
            return QStringLiteral("ics %1 does not know the option \"%2\"")
                .arg(options.verb, argument);
        } else if (options.file.isEmpty()) {
            options.file = argument;
        } else {
            return QStringLiteral("ics %1 takes one file").arg(options.verb);
        }
    }
    if (options.file.isEmpty())
        return QStringLiteral("ics %1 needs a file").arg(options.verb);
    if (options.range.from.isValid() && options.range.to.isValid() &&
        options.range.to < options.range.from)
        return QStringLiteral("--to comes before --from");
    return {};
}

// Runs read, a store's read of a settings file; true when it reported nothing, the file being
// read whole.
bool ReadWhole(const ConsoleDialogs& dialogs, const std::function<void()>& read) {
    const int reported = dialogs.Count();
    read();
    return dialogs.Count() == reported;
}

int ExportIcs(ProgramState& state, const IcsOptions& options, bool settingsWhole, QTextStream& out,
              QTextStream& err) {
    bool whole = true;
    const IcsExport exported = ExportDataFolder(state.services, state.prefs, options.range, &whole);
    if (!exported.problem.isEmpty()) {
        err << "orvanta: " << exported.problem << '\n';
        return kExitDataError;
    }
    if (!state.services.Trap("ExportToICalendar",
                             [&] { safesave::Replace(options.file, exported.bytes); }))
        return kExitDataError;
    out << exported.components << " calendar entries written to " << options.file << '\n';
    return whole && settingsWhole ? kExitOk : kExitDataError;
}

// An import on the command line has no preview window: it prints what would change, and writes
// it only with --yes. A file read only in part is never written, and the import then does not
// end as done: it names what it did not write and ends with kExitDataError.
int ImportIcs(ProgramState& state, const IcsOptions& options, const QByteArray& bytes,
              const QStringList& unreadSettings, QTextStream& out, QTextStream& err) {
    const DateRange years = options.years.value_or(YearRange(state.services.clock.today().year()));
    const IcsContent content = ReadIcs(bytes, years, ImportZone(state.prefs));
    if (!content.problem.isEmpty()) {
        err << "orvanta: " << options.file << ": " << content.problem << '\n';
        return kExitUsage;
    }
    const ImportPlan plan = PlanImport(state.services, content, options.allDay,
                                       state.markerColors.Color(MarkerColors::kHoliday));
    out << QString(PreviewText(plan)).replace(QStringLiteral("\r\n"), QStringLiteral("\n")) << '\n';
    for (const QString& file : plan.unreadFiles)
        err << "orvanta: " << file
            << " could not be read whole: nothing is imported into it, and it is "
               "not written\n";
    const bool whole = plan.unreadFiles.isEmpty() && unreadSettings.isEmpty();
    if (!options.yes) {
        out << "Nothing was written; run again with --yes to import.\n";
        return whole ? kExitOk : kExitDataError;
    }
    // The time zone and the Holiday mark's colour come from the settings: an import made
    // without them whole could put every time or mark wrong, so nothing is written.
    if (!unreadSettings.isEmpty()) {
        out << "Nothing was written: " << unreadSettings.join(QStringLiteral(" and "))
            << " could not be read whole.\n";
        return kExitDataError;
    }
    if (plan.IsEmpty())
        return kExitNothingFound;
    // The years the stores hold stay unloaded: every touched year's files are read afresh.
    const bool written = ApplyImport(
        {state.services, state.planner, state.notes, state.holidays, state.marks, state.dates},
        plan);
    if (written && whole) {
        out << "Imported.\n";
        return kExitOk;
    }
    out << "Imported in part; see the messages above.\n";
    return kExitDataError;
}

}  // namespace

int Ics(const QStringList& arguments, const QString& dataFolder, QTextStream& out,
        QTextStream& err) {
    IcsOptions options;
    if (const QString problem = ParseIcsArguments(arguments, options); !problem.isEmpty())
        return Usage(err, problem);
    const bool exporting = options.verb == QLatin1String("export");
    const bool importing = options.verb == QLatin1String("import");
    InstanceLock lock(dataFolder);
    if ((exporting || (importing && options.yes)) && !HoldFolderForWriting(lock, err))
        return kExitUsage;
    ConsoleSeams seams(err);
    ProgramState state(dataFolder, seams.dialogs, seams.clock, seams.platform);
    state.services.writesErrorLog = false;
    const auto readPreferences = [&] {
        return ReadWhole(seams.dialogs, [&] { state.prefs.GetUserPreferences(state.services); });
    };
    if (exporting)
        return ExportIcs(state, options, readPreferences(), out, err);
    const std::optional<QByteArray> read = ReadIcsFile(options.file);
    if (!read) {
        err << "orvanta: " << options.file << " cannot be read\n";
        return kExitUsage;
    }
    const QByteArray& bytes = *read;
    if (!importing) {
        const QString problem = ValidateIcs(bytes);
        if (!problem.isEmpty()) {
            err << "orvanta: " << options.file << ": " << problem << '\n';
            return kExitUsage;
        }
        out << options.file << ": valid iCalendar\n";
        return kExitOk;
    }
    QStringList unreadSettings;
    if (!readPreferences())
        unreadSettings << kUserPreferencesFile;
    if (!ReadWhole(seams.dialogs, [&] { state.markerColors.ReadMarkerColors(state.services); }))
        unreadSettings << kMarkerColorsFile;
    return ImportIcs(state, options, bytes, unreadSettings, out, err);
}

}  // namespace cli
