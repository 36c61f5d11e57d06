#include "reminders/modToDo.h"

#include <QDir>
#include <QFileInfo>

#include "reminders/RemindersMessages.h"
#include "shell/Files.h"
#include "shell/SafeSave.h"
#include "shell/Services.h"
#include "shell/TextFile.h"

void ReadToDoFile(const QString& path, ToDoRows& rows) {
    rows = {};
    const QStringList lines = textfile::ReadLines(path);
    for (qsizetype row = 0; row < lines.size(); ++row) {
        if (row == kToDoRows)
            Raise(err::SubscriptOutOfRange);
        const QString& line = lines[row];
        if (line.isEmpty())
            continue;
        rows.done[row] = line.front() == QChar(kDoneMark);
        rows.texts[row] = line.mid(1);
    }
}

QString ToDoFileText(const ToDoRows& rows) {
    QString text;
    for (int row = 0; row < kToDoRows; ++row) {
        QString line = rows.texts[row];
        line.replace(QLatin1Char('\r'), QLatin1Char(' '));
        line.replace(QLatin1Char('\n'), QLatin1Char(' '));
        text += QChar(rows.done[row] ? kDoneMark : kNotDoneMark) + line + kCrLf;
    }
    return text;
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

bool ToDoStore::Read(const char* procedure, const QString& path, ToDoRows& rows) {
    const bool whole = services_.Trap(procedure, [&] { ReadToDoFile(path, rows); });
    const QString key = QFileInfo(path).absoluteFilePath();
    if (whole)
        partlyRead_.remove(key);
    else
        partlyRead_.insert(key);
    return whole;
}

void ToDoStore::ReadToDoList() {
    QString path;
    if (!FileExists(services_.AppFolder, kToDoFile, &path))
        return;
    Read("ReadToDoList", path, rows_);
    emit toDoListChanged();
}

bool ToDoStore::OpenToDoList(const QString& path, ToDoRows& rows) {
    return Read("mnuFileOpen_Click", path, rows);
}

bool ToDoStore::SaveToDoList(const ToDoRows& rows, const QString& fileName) {
    const QString path = PathOf(fileName);
    if (services_.RefuseSaveAfterPartialRead(
            partlyRead_.contains(QFileInfo(path).absoluteFilePath()), QFileInfo(path).fileName()))
        return false;
    const QString text = ToDoFileText(rows);
    if (const auto bad = textfile::FirstUnstorableCharacter(text)) {
        services_.dialogs.MsgBox(textfile::UnstorableCharacterMessage(*bad), kWarningStyle);
        return false;
    }
    return services_.Trap("SaveToDoList", [&] {
        safesave::Replace(path, textfile::Encode(text));
        if (IsDefaultList(path)) {
            rows_ = rows;
            emit toDoListChanged();
        }
        services_.dialogs.MsgBox(kToDoSaved);
    });
}
