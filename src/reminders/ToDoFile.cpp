#include "reminders/ToDoFile.h"

#include "shell/Files.h"
#include "shell/TextFile.h"
#include "shell/VbError.h"

void ReadToDoFile(const QString& appFolder, ToDoRows& rows) {
    rows = {};
    QString path;
    if (!FileExists(appFolder, kToDoFile, &path))
        return;
    const QStringList lines = textfile::ReadLines(path);
    for (qsizetype row = 0; row < lines.size(); ++row) {
        if (row == kToDoRows)
            Raise(err::SubscriptOutOfRange);
        const QString& line = lines[row];
        if (line.isEmpty())
            continue;
        rows.done[row] = line.front() == QChar(char16_t(243));
        rows.texts[row] = line.mid(1);
    }
}
