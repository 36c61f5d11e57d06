// orvanta report expenses|mileage --from YYYY-MM-DD --to YYYY-MM-DD [--csv]
#include <QRegularExpression>
#include <QTextStream>
#include <optional>

#include "app/ProgramState.h"
#include "cli/Commands.h"
#include "cli/ConsoleSeams.h"
#include "reports/ReportMessages.h"
#include "reports/ReportSource.h"
#include "reports/ReportText.h"

namespace cli {

namespace {

const QString kUsage =
    QStringLiteral("report expenses|mileage --from YYYY-MM-DD --to YYYY-MM-DD [--csv]");

struct ReportOptions {
    std::optional<ReportKind> kind;
    std::optional<QString> from;
    std::optional<QString> to;
    bool csv = false;
};

// Reads the command's arguments into options; the complaint about them, or empty.
QString ParseReportArguments(const QStringList& arguments, ReportOptions& options) {
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString& argument = arguments[i];
        if (argument == QLatin1String("--csv")) {
            options.csv = true;
            continue;
        }
        // --from DATE, --from=DATE, and the same for --to.
        std::optional<QString>* date = nullptr;
        QString name;
        for (auto [option, target] : {std::pair{QStringLiteral("--from"), &options.from},
                                      std::pair{QStringLiteral("--to"), &options.to}}) {
            if (argument == option || argument.startsWith(option + u'=')) {
                date = target;
                name = option;
            }
        }
        if (date) {
            const bool joined = argument.size() > name.size();
            if (!joined && i + 1 == arguments.size())
                return QStringLiteral("%1 needs a date written YYYY-MM-DD").arg(name);
            if (*date)
                return QStringLiteral("report takes %1 once").arg(name);
            *date = joined ? argument.mid(name.size() + 1) : arguments[++i];
            continue;
        }
        if (argument.startsWith(u'-'))
            return QStringLiteral("report does not know the option \"%1\"").arg(argument);
        if (options.kind)
            return QStringLiteral("report takes one kind, expenses or mileage, not \"%1\" too")
                .arg(argument);
        if (argument == QLatin1String("expenses"))
            options.kind = ReportKind::Expenses;
        else if (argument == QLatin1String("mileage"))
            options.kind = ReportKind::Mileage;
        else
            return QStringLiteral("report takes expenses or mileage, not \"%1\"").arg(argument);
    }
    if (!options.kind)
        return QStringLiteral("report needs a kind, expenses or mileage");
    if (!options.from || !options.to)
        return QStringLiteral("report needs both --from and --to");
    return {};
}

// Whether text is written YYYY-MM-DD; whether it is a date is for the period check to say.
bool IsIsoDate(const QString& text) {
    static const QRegularExpression iso(QStringLiteral("^\\d{4}-\\d{2}-\\d{2}$"));
    return iso.match(text).hasMatch();
}

}  // namespace

int PrintReport(const QStringList& arguments, const QString& dataFolder, QTextStream& out,
                QTextStream& err) {
    ReportOptions options;
    if (const QString complaint = ParseReportArguments(arguments, options); !complaint.isEmpty()) {
        err << "orvanta: " << complaint << " (usage: orvanta " << kUsage << ")\n";
        return kExitUsage;
    }
    // The period is refused as the start and end window refuses it: a text that is not a date
    // (here also one not written YYYY-MM-DD), then two dates of different years.
    const PeriodCheck check =
        IsIsoDate(*options.from) && IsIsoDate(*options.to)
            ? CheckStartEnd(*options.from, *options.to, options.from->left(4).toInt())
            : PeriodCheck{{}, kInvalidDateMessage};
    if (!check.refusal.isEmpty()) {
        err << "orvanta: " << check.refusal << '\n';
        return kExitUsage;
    }

    ConsoleSeams seams(err);
    ProgramState state(dataFolder, seams.dialogs, seams.clock, seams.platform);
    state.services.writesErrorLog = false;
    state.prefs.GetUserPreferences(state.services);
    // A faulty line is reported through the console's dialogs and the pages before it listed.
    const Report report =
        MakeReport(state.services, *options.kind, check.period, MileageRate(state.prefs));
    // The CSV's line ends are CR LF within the text itself; the stream writes them as they are.
    out << (options.csv ? CsvText(report) : PlainText(report));
    out.flush();
    // Figures that are no number are listed as written; the total, and the CSV's reader, are
    // told how many it leaves out.
    if (const qsizetype leftOut = report.Total(0, report.rows.size()).leftOut)
        err << "orvanta: " << LeftOutNote(report.kind, leftOut) << ".\n";
    if (seams.dialogs.Count() != 0)
        return kExitDataError;
    return report.rows.isEmpty() ? kExitNothingFound : kExitOk;
}

}  // namespace cli
