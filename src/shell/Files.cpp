#include "shell/Files.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include "shell/Dialogs.h"
#include "shell/ShellMessages.h"
#include "shell/VbError.h"

namespace {

// The paths of the entries of dir of the kind asked for (files or folders) called name in any
// letter case, hidden and system entries included.
QStringList EntriesSpelledLike(const QString& dir, const QString& name, QDir::Filters kind) {
    QStringList paths;
    const QStringList entries =
        QDir(dir).entryList(kind | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    for (const QString& entry : entries) {
        if (entry.compare(name, Qt::CaseInsensitive) == 0)
            paths.append(dir + entry);
    }
    return paths;
}

// The entry of dir called name in any letter case, of the kind asked for, or empty; an exact
// spelling wins.
QString MatchEntry(const QString& dir, const QString& name, QDir::Filters kind) {
    const QFileInfo exact(dir + name);
    if (exact.exists() && ((kind & QDir::Dirs) ? exact.isDir() : !exact.isDir()))
        return dir + name;
    const QStringList found = EntriesSpelledLike(dir, name, kind);
    return found.isEmpty() ? QString() : found.first();
}

QStringList PartsOf(const QString& relative) {
    static const QRegularExpression separators(QStringLiteral("[\\\\/]"));
    return relative.split(separators, Qt::SkipEmptyParts);
}

}  // namespace

QString MakeAppFolder(const QString& folder) {
    const QString clean = QDir::cleanPath(QDir(folder).absolutePath());
    return clean.endsWith(QLatin1Char('/')) ? clean : clean + QLatin1Char('/');
}

QString JoinPath(const QString& folder, const QString& relative) {
    QString tail = relative;
    tail.replace(QLatin1Char('\\'), QLatin1Char('/'));
    return folder + tail;
}

bool FileExists(const QString& folder, const QString& name, QString* realPath) {
    const QStringList parts = PartsOf(name);
    if (parts.isEmpty())
        return false;
    QString dir = folder;
    for (qsizetype i = 0; i < parts.size(); ++i) {
        const bool last = i == parts.size() - 1;
        const QString found = MatchEntry(dir, parts[i], last ? QDir::Files : QDir::Dirs);
        if (found.isEmpty())
            return false;
        dir = last ? found : found + QLatin1Char('/');
    }
    if (realPath)
        *realPath = dir;
    return true;
}

QString PathForWriting(const QString& folder, const QString& name) {
    QString path;
    return FileExists(folder, name, &path) ? path : JoinPath(folder, name);
}

QStringList FilesSpelledLike(const QString& dir, const QString& name) {
    return EntriesSpelledLike(dir, name, QDir::Files);
}

QString BackupName(const QString& name) {
    const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
    const qsizetype slash =
        std::max(name.lastIndexOf(QLatin1Char('/')), name.lastIndexOf(QLatin1Char('\\')));
    const QString stem = dot > slash ? name.left(dot) : name;
    return stem + QStringLiteral(".bak");
}

bool FolderExists(Dialogs& dialogs, const QString& parent, const QString& name, QString* realPath) {
    if (!QFileInfo(parent).isDir() || !QFileInfo(parent).isReadable()) {
        const VbError error(err::PathNotFound);
        dialogs.MsgBox(kFolderCheckFailed + kCrLf + QStringLiteral("Error Number: ") +
                       QString::number(error.number()) + kCrLf +
                       QStringLiteral("Error Description: ") + error.description());
        return false;
    }
    const QString found = MatchEntry(parent, name, QDir::Dirs);
    if (found.isEmpty())
        return false;
    if (realPath)
        *realPath = found + QLatin1Char('/');
    return true;
}

void ClearAttributes(const QString& path) {
    QFile file(path);
    file.setPermissions(file.permissions() | QFile::ReadOwner | QFile::WriteOwner);
}
