#include "terms/modFUT.h"

#include <QDir>
#include <algorithm>

#include "shell/Files.h"
#include "shell/Prompts.h"
#include "shell/SafeSave.h"
#include "shell/Services.h"
#include "shell/TextFile.h"
#include "shell/UserPreferences.h"
#include "shell/VbError.h"
#include "terms/TermMessages.h"

QStringList TermsOfFile(const QByteArray& bytes) {
    QStringList terms;
    textfile::ForEachLine(bytes, [&](QByteArrayView line) {
        if (terms.size() == kMaxTerms)
            Raise(err::Overflow);
        terms.append(textfile::Decode(line));
    });
    return terms;
}

modFUT::modFUT(Services& services, UserPreferences& prefs) : services_(services), prefs_(prefs) {}

QString modFUT::CurrentFile() const {
    const QString name = prefs_.Value(prefkey::FrequentTermsFile).trimmed();
    return name.isEmpty() ? kDefaultTermFile : name;
}

bool modFUT::IsDefault() const {
    return CurrentFile().compare(kDefaultTermFile, Qt::CaseInsensitive) == 0;
}

void modFUT::SetCurrentFile(const QString& name) {
    if (prefs_.Value(prefkey::FrequentTermsFile) == name)
        return;
    prefs_.SetValue(prefkey::FrequentTermsFile, name);
    prefs_.SaveUserPreferences(services_);
}

bool modFUT::ReadFrequentlyUsedTerms() {
    terms_.clear();
    const QString name = CurrentFile();
    if (name.isEmpty()) {
        services_.dialogs.MsgBox(kTermFileNotFound);
        return false;
    }
    return services_.Trap("ReadFrequentlyUsedTerms", [&] {
        QString path;
        // A list read for the first time starts as an empty file.
        if (!FileExists(services_.AppFolder, name, &path)) {
            path = PathForWriting(services_.AppFolder, name);
            safesave::Replace(path, {});
        }
        terms_ = TermsOfFile(textfile::ReadBytes(path));
    });
}

bool modFUT::SaveFrequentlyUsedTerms(const QStringList& list) {
    if (list.isEmpty()) {
        services_.dialogs.MsgBox(kNoTermsToSave);
        return false;
    }
    // The last term has no line end after it.
    const QString text = textfile::JoinLines(list);
    if (const auto bad = textfile::FirstUnstorableCharacter(text)) {
        services_.dialogs.MsgBox(textfile::UnstorableCharacterMessage(*bad), kWarningStyle);
        return false;
    }
    return services_.Trap("SaveFrequentlyUsedTerms", [&] {
        const QString path = PathForWriting(services_.AppFolder, CurrentFile());
        if (QFile::exists(path))
            ClearAttributes(path);
        textfile::WriteAll(path, text);
        terms_ = list;
    });
}

bool modFUT::ClearFrequentlyUsedTerms() {
    return services_.Trap("ClearFrequentlyUsedTerms", [&] {
        const QString path = PathForWriting(services_.AppFolder, CurrentFile());
        if (QFile::exists(path))
            ClearAttributes(path);
        safesave::Replace(path, {});
        terms_.clear();
    });
}

bool modFUT::CreateNewFUTFile() {
    bool created = false;
    services_.Trap("CreateNewFUTFile", [&] {
        const QString answer =
            services_.dialogs.InputBox(kNewTermFilePrompt, kNewTermFileTitle).trimmed();
        if (answer.isEmpty())
            return;
        const QString name = answer + kTermFileExtension;
        if (IllegalFileName(services_.dialogs, name))
            return;
        if (FileExists(services_.AppFolder, name) &&
            services_.dialogs.MsgBox(kTermFileExistsQuestion, kQuestionStyle,
                                     kTermFileExistsTitle) != vb::Yes)
            return;
        const QString path = PathForWriting(services_.AppFolder, name);
        if (QFile::exists(path))
            ClearAttributes(path);
        safesave::Replace(path, {});
        SetCurrentFile(QFileInfo(path).fileName());
        terms_.clear();
        newFileStarted_ = true;
        created = true;
    });
    return created;
}

QStringList modFUT::TermFiles() const {
    QStringList names;
    const QDir folder(services_.AppFolder);
    for (const QString& name : folder.entryList(QDir::Files | QDir::Hidden)) {
        if (name.endsWith(kTermFileExtension, Qt::CaseInsensitive) &&
            name.size() > kTermFileExtension.size())
            names.append(name);
    }
    std::sort(names.begin(), names.end(), [](const QString& a, const QString& b) {
        return a.compare(b, Qt::CaseInsensitive) < 0;
    });
    return names;
}
