#include "shell/UserPreferences.h"

#include <algorithm>

#include "shell/Files.h"
#include "shell/SavePath.h"
#include "shell/Services.h"
#include "shell/TextFile.h"

const QStringList& prefkey::All() {
    static const QStringList keys = {
        SharedDirectory,   CompanyName, CompanyAddress1,   CompanyAddress2,    CompanyCityStateZip,
        CompanyPhone,      CompanyFax,  CompanyWebsite,    CompanyEmail,       AutoCompleteWord,
        AutoStartPosition, ShowFut,     MinimizeFut,       DefaultPrinter,     FrequentTermsFile,
        LoadFutPosition,   FutPosition, NetworkShareDrive, MainWindowPosition, ShowTimeOfDay,
        CalendarTimeZone};
    return keys;
}

UserPreferences::UserPreferences() {
    Reset();
}

void UserPreferences::Reset() {
    lines_.clear();
    for (const QString& key : prefkey::All())
        lines_.append({key, QString()});
}

const RecordLayout& UserPreferences::Layout() {
    static const RecordLayout layout = [] {
        RecordLayout preferences;
        preferences.key = RecordLayout::Key::LeadingFields;
        preferences.keyFields = 1;
        preferences.whenEmpty = RecordLayout::WhenEmpty::EmptyFile;
        return preferences;
    }();
    return layout;
}

void UserPreferences::GetUserPreferences(Services& services) {
    Reset();
    QList<std::pair<QString, QString>> read;
    ReadDataFile(services, "GetUserPreferences", file_, [&](QByteArrayView bytes, int) {
        // The key runs to the first ":" and includes it; the value is the rest of the line.
        const QString line = LineText(bytes);
        const qsizetype colon = line.indexOf(QLatin1Char(':'));
        read.append(colon < 0 ? std::pair{QString(), line}
                              : std::pair{line.left(colon + 1), line.mid(colon + 1)});
    });
    if (!file_.Stamp().exists)
        return;
    lines_ = read;
    for (const QString& key : prefkey::All()) {
        if (!std::any_of(read.cbegin(), read.cend(), [&](auto& l) { return l.first == key; }))
            lines_.append({key, QString()});
    }
}

void UserPreferences::SaveUserPreferences(Services& services) {
    Records records(Layout());
    for (const auto& [key, value] : lines_) {
        if (key.isEmpty())
            records.Add({OnOneLine(value)});
        else
            records.Add({key.chopped(1), OnOneLine(value)});
    }
    if (SaveDataFile(services, "SaveUserPreferences", file_, records) == SaveResult::Merged)
        GetUserPreferences(services);
}

QString UserPreferences::Value(const QString& key) const {
    for (const auto& [lineKey, value] : lines_) {
        if (!lineKey.isEmpty() && lineKey == key)
            return value;
    }
    return {};
}

void UserPreferences::SetValue(const QString& key, const QString& value) {
    for (auto& [lineKey, lineValue] : lines_) {
        if (!lineKey.isEmpty() && lineKey == key) {
            lineValue = value;
            return;
        }
    }
    lines_.append({key, value});
}
