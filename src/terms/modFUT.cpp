#include "terms/modFUT.h"

#include <QDir>
#include <algorithm>

#include "shell/Files.h"
#include "shell/Prompts.h"
#include "shell/SavePath.h"
#include "shell/Services.h"
#include "shell/TextFile.h"
#include "shell/UserPreferences.h"
#include "shell/VbError.h"
#include "terms/TermMessages.h"

namespace {

void AddTerm(QStringList& terms, QByteArrayView line) {
    if (terms.size() == kMaxTerms)
        Raise(err::Overflow);
    terms.append(textfile::Decode(line));
}

}  // namespace

QStringList TermsOfFile(const QByteArray& bytes) {
    QStringList terms;
    textfile::ForEachLine(bytes, [&](QByteArrayView line) { AddTerm(terms, line); });
    return terms;
}

const RecordLayout& TermsLayout() {
    static const RecordLayout layout = [] {
        RecordLayout terms;
        terms.separator = QChar();
        terms.endAfterLast = false;
        terms.whenEmpty = RecordLayout::WhenEmpty::EmptyFile;
        return terms;
    }();
    return layout;
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

DataFile& modFUT::CurrentDataFile() {
    if (file_.Name().compare(CurrentFile(), Qt::CaseInsensitive) != 0)
        file_.SetName(CurrentFile());
    return file_;
}

bool modFUT::ReadFrequentlyUsedTerms() {
    terms_.clear();
    const QString name = CurrentFile();
    if (name.isEmpty()) {
        services_.dialogs.MsgBox(kTermFileNotFound);
        return false;
    }
    DataFile& file = CurrentDataFile();
    // A list read for the first time starts as an empty file.
    if (!FileExists(services_.AppFolder, name) && !services_.Trap("ReadFrequentlyUsedTerms", [&] {
            WriteRecordFile(services_, name, TermsLayout(), {});
        }))
        return false;
    return ReadDataFile(services_, "ReadFrequentlyUsedTerms", file,
                        [&](QByteArrayView line, int) { AddTerm(terms_, line); });
}

bool modFUT::SaveFrequentlyUsedTerms(const QStringList& list) {
    if (list.isEmpty()) {
        services_.dialogs.MsgBox(kNoTermsToSave);
        return false;
    }
    Records records(TermsLayout());
    for (const QString& term : list)
        records.Add({OnOneLine(term)});
    return Save("SaveFrequentlyUsedTerms", records);
}

bool modFUT::ClearFrequentlyUsedTerms() {
    return Save("ClearFrequentlyUsedTerms", Records(TermsLayout()));
}

bool modFUT::Save(const char* procedure, const Records& records) {
    DataFile& file = CurrentDataFile();
    const QString path = file.PathIn(services_.AppFolder);
    if (QFile::exists(path))
        ClearAttributes(path);
    if (SaveDataFile(services_, procedure, file, records) == SaveResult::Refused)
        return false;
    // The list as saved, with what another program added meanwhile.
    services_.Trap(procedure, [&] { terms_ = TermsOfFile(file.SeenBytes()); });
    return true;
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
        // The user chose to start this list afresh, over a file of that name if there is one.
        WriteRecordFile(services_, QFileInfo(path).fileName(), TermsLayout(), {});
        SetCurrentFile(QFileInfo(path).fileName());
        CurrentDataFile().Saw(path, {});
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
