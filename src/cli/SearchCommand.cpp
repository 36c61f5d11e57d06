// orvanta search PHRASE [--year YYYY | --all-years] [--notes | --planners]
#include <QTextStream>
#include <algorithm>
#include <optional>
#include <tuple>

#include "cli/Commands.h"
#include "notes_planner/PhraseSearch.h"
#include "shell/Files.h"
#include "shell/VbError.h"

namespace cli {

namespace {

struct SearchOptions {
    QString phrase;
    std::optional<int> year;
    bool allYears = false;
    bool notes = false;
    bool planners = false;
};

// A year as its folder is named: four digits, not 0000.
std::optional<int> ParseYear(const QString& text) {
    if (text.size() != 4 ||
        !std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; }))
        return std::nullopt;
    const int year = text.toInt();
    return year > 0 ? std::optional<int>(year) : std::nullopt;
}

// Reads the command's arguments into options; the complaint about them, or empty.
QString ParseSearchArguments(const QStringList& arguments, SearchOptions& options) {
    bool phraseGiven = false;
    bool optionsEnded = false;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString& argument = arguments[i];
        if (optionsEnded || !argument.startsWith(u'-') || argument == u'-') {
            if (phraseGiven)
                return QStringLiteral(
                           "search takes one phrase (quote a phrase of several words), not "
                           "\"%1\" and \"%2\"")
                    .arg(options.phrase, argument);
            options.phrase = argument.trimmed();
            phraseGiven = true;
        } else if (argument == QLatin1String("--")) {
            optionsEnded = true;
        } else if (argument == QLatin1String("--year") ||
                   argument.startsWith(QLatin1String("--year="))) {
            const bool joined = argument.size() > 6;
            if (!joined && i + 1 == arguments.size())
                return QStringLiteral("--year needs a year written YYYY, such as 2026");
            const QString value = joined ? argument.mid(7) : arguments[++i];
            options.year = ParseYear(value);
            if (!options.year)
                return QStringLiteral("--year needs a year written YYYY, such as 2026 (not \"%1\")")
                    .arg(value);
        } else if (argument == QLatin1String("--all-years")) {
            options.allYears = true;
        } else if (argument == QLatin1String("--notes")) {
            options.notes = true;
        } else if (argument == QLatin1String("--planners")) {
            options.planners = true;
        } else {
            return QStringLiteral("search does not know the option \"%1\"").arg(argument);
        }
    }
    if (options.phrase.isEmpty())
        return QStringLiteral("search needs a phrase that is not blank, such as: search dentist");
    if (options.year && options.allYears)
        return QStringLiteral("search takes --year or --all-years, not both");
    if (options.notes && options.planners)
        return QStringLiteral(
            "search takes --notes or --planners, not both (without either it "
            "searches both)");
    return {};
}

struct Hit {
    QDate date;
    SearchLocation location;
};

}  // namespace

int Search(const QStringList& arguments, const QString& dataFolder, QTextStream& out,
           QTextStream& err) {
    SearchOptions options;
    if (const QString complaint = ParseSearchArguments(arguments, options); !complaint.isEmpty()) {
        err << "orvanta: " << complaint << '\n';
        return kExitUsage;
    }
    const PhraseMatcher phrase(options.phrase);
    if (!phrase.CanMatch()) {
        err << "orvanta: no data file can hold \"" << phrase.UnstorableCharacter()
            << "\", so the phrase is found nowhere\n";
        return kExitNothingFound;
    }
    const QString appFolder = MakeAppFolder(dataFolder);
    const QList<int> years = options.year ? QList<int>{*options.year} : DataFolderYears(appFolder);
    QList<SearchLocation> locations;
    if (!options.planners)
        locations.append(SearchLocation::Notes);
    if (!options.notes)
        locations.append(SearchLocation::Planners);

    QList<Hit> hits;
    bool readWhole = true;
    for (const int year : years) {
        for (const SearchLocation location : locations) {
            const YearSearchResult result = SearchYearFile(appFolder, year, 0, location, phrase);
            for (const QDate& date : result.dates)
                hits.append({date, location});
            if (result.ReadWhole())
                continue;
            readWhole = false;
            const QString why = VbError::StandardDescription(result.error);
            if (result.faultyLine == 0)
                err << "orvanta: " << result.path << " could not be read (" << why << ")\n";
            else
                err << "orvanta: " << result.path << ": line " << result.faultyLine
                    << " could not be read (" << why << "); the lines after it were not searched\n";
        }
    }
    // Date order; on a date with both, the note comes first.
    std::stable_sort(hits.begin(), hits.end(), [](const Hit& a, const Hit& b) {
        return a.date != b.date ? a.date < b.date : a.location < b.location;
    });
    // Written digit by digit: thousands of dates are printed in the time a few are formatted.
    QString line = QStringLiteral("yyyy-mm-dd\t");
    for (const Hit& hit : hits) {
        int year = 0, month = 0, day = 0;
        hit.date.getDate(&year, &month, &day);
        for (const auto& [at, value, digits] :
             {std::tuple{0, year, 4}, std::tuple{5, month, 2}, std::tuple{8, day, 2}})
            for (int i = digits - 1, rest = value; i >= 0; --i, rest /= 10)
                line[at + i] = QChar(u'0' + rest % 10);
        out << line << (hit.location == SearchLocation::Notes ? "notes\n" : "planner\n");
    }
    return readWhole && !hits.isEmpty() ? kExitOk : kExitNothingFound;
}

}  // namespace cli
