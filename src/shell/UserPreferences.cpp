#include "shell/UserPreferences.h"

#include <algorithm>

#include "shell/Files.h"
#include "shell/Services.h"
#include "shell/TextFile.h"

const QStringList& prefkey::All() {
    static const QStringList keys = {
        SharedDirectory,   CompanyName, CompanyAddress1,   CompanyAddress2,   CompanyCityStateZip,
        CompanyPhone,      CompanyFax,  CompanyWebsite,    CompanyEmail,      AutoCompleteWord,
        AutoStartPosition, ShowFut,     MinimizeFut,       DefaultPrinter,    FrequentTermsFile,
        LoadFutPosition,   FutPosition, NetworkShareDrive, MainWindowPosition};
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

void UserPreferences::GetUserPreferences(Services& services) {
    services.Trap("GetUserPreferences", [&] {
        Reset();
        QString path;
        if (!FileExists(services.AppFolder, kUserPreferencesFile, &path))
            return;
        QList<std::pair<QString, QString>> read;
        for (const QString& line : textfile::ReadLines(path)) {
            // The key runs to the first ":" and includes it; the value is the rest of the line.
            const qsizetype colon = line.indexOf(QLatin1Char(':'));
            read.append(colon < 0 ? std::pair{QString(), line}
                                  : std::pair{line.left(colon + 1), line.mid(colon + 1)});
        }
        lines_ = read;
        for (const QString& key : prefkey::All()) {
            if (!std::any_of(read.cbegin(), read.cend(), [&](auto& l) { return l.first == key; }))
                lines_.append({key, QString()});
        }
    });
}

void UserPreferences::SaveUserPreferences(Services& services) {
    services.Trap("SaveUserPreferences", [&] {
        QString text;
        for (const auto& [key, value] : lines_)
            text += key + value + kCrLf;
        textfile::WriteAll(PathForWriting(services.AppFolder, kUserPreferencesFile), text);
    });
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
