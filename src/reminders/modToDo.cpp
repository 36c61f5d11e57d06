#include "reminders/modToDo.h"

#include <QDir>
#include <QFileInfo>

#include "reminders/RemindersMessages.h"
#include "shell/Files.h"
#include "shell/SavePath.h"
#include "shell/Services.h"
#include "shell/TextFile.h"

namespace {

// Puts line, the to-do file's line number row (from 0), into rows; an eleventh line raises 9.
void ReadToDoLine(QStringView line, qsizetype row, ToDoRows& rows) {
    if (row >= kToDoRows)
        Raise(err::SubscriptOutOfRange);
    if (line.isEmpty())
        return;
    rows.done[row] = line.front() == QChar(kDoneMark);
    rows.texts[row] = line.mid(1).toString();
}

// A row's line: its mark and its text, kept on one line.
QString ToDoLine(const ToDoRows& rows, int row) {
    return QChar(rows.done[row] ? kDoneMark : kNotDoneMark) + OnOneLine(rows.texts[row]);
}

}  // namespace

void ReadToDoFile(const QString& path, ToDoRows& rows) {
    rows = {};
    const QStringList lines = textfile::ReadLines(path);
    for (qsizetype row = 0; row < lines.size(); ++row)
        ReadToDoLine(lines[row], row, rows);
}

QString ToDoFileText(const ToDoRows& rows) {
    QString text;
    for (int row = 0; row < kToDoRows; ++row)
        text += ToDoLine(rows, row) + kCrLf;
    return text;
}

const RecordLayout& ToDoLayout() {
    static const RecordLayout layout = [] {
        RecordLayout toDo;
        toDo.separator = QChar();
        toDo.key = RecordLayout::Key::Position;
        return toDo;
    }();
    return layout;
}

ToDoStore::ToDoStore(Services& services) : services_(services) {}

QString ToDoStore::PathOf(const QString& fileName) const {
    const QString name = fileName.isEmpty() ? kToDoFile : fileName;
    if (QFileInfo(name).isAbsolute())
        return QDir::cleanPath(name);
    return PathForWriting(services_.AppFolder, name);
}

bool ToDoStore::IsDefaultList(const QString& path) const {
    return QFileInfo(path) == QFileInfo(PathOf({}));
}

QString ToDoStore::FileNameOf(const QString& fileName) const {
    const QString name = fileName.isEmpty() ? kToDoFile : fileName;
    return QFileInfo(name).isAbsolute() ? QDir::cleanPath(name) : name;
}

DataFile& ToDoStore::FileOf(const QString& fileName) {
    const QString key = QFileInfo(PathOf(fileName)).absoluteFilePath();
    auto found = files_.find(key);
    if (found == files_.end())
        found = files_.insert(key, DataFile(FileNameOf(fileName)));
    return *found;
}

bool ToDoStore::Read(const char* procedure, const QString& fileName, ToDoRows& rows) {
    rows = {};
    return ReadDataFile(
        services_, procedure, FileOf(fileName),
        [&](QByteArrayView line, int number) { ReadToDoLine(LineText(line), number - 1, rows); });
}

void ToDoStore::ReadToDoList() {
    if (!FileExists(services_.AppFolder, kToDoFile))
        return;
    Read("ReadToDoList", {}, rows_);
    emit toDoListChanged();
}

bool ToDoStore::OpenToDoList(const QString& path, ToDoRows& rows) {
    return Read("mnuFileOpen_Click", path, rows);
}

bool ToDoStore::SaveToDoList(const ToDoRows& rows, const QString& fileName) {
    const QString path = PathOf(fileName);
    // A list saved under a name it was not read from replaces that file: the user chose it.
    const bool known = files_.contains(QFileInfo(path).absoluteFilePath());
    DataFile& file = FileOf(fileName);
    if (!known)
        services_.Trap("SaveToDoList", [&] {
            file.Load(services_.AppFolder);
            file.MarkReadWhole();
        });
    Records records(ToDoLayout());
    for (int row = 0; row < kToDoRows; ++row)
        records.Add({ToDoLine(rows, row)});
    const SaveResult result = SaveDataFile(services_, "SaveToDoList", file, records);
    if (result == SaveResult::Refused)
        return false;
    if (IsDefaultList(path)) {
        if (result == SaveResult::Merged)
            Read("SaveToDoList", {}, rows_);
        else
            rows_ = rows;
        emit toDoListChanged();
    }
    services_.dialogs.MsgBox(kToDoSaved);
    return true;
}
