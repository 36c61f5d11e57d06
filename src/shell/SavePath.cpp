#include "shell/SavePath.h"

#include <sys/stat.h>

#include <QFile>
#include <QFileInfo>
#include <cerrno>

#include "shell/Files.h"
#include "shell/RecordMerge.h"
#include "shell/SafeSave.h"
#include "shell/Services.h"
#include "shell/ShellMessages.h"

namespace {

// The file's content now; empty when it has gone.
QByteArray CurrentBytes(const QString& path) {
    return QFile::exists(path) ? textfile::ReadBytes(path) : QByteArray();
}

// Where name is written: the file on disk whatever its letter case, or in its folders as they
// are spelled on disk, each made when missing.
QString PathToWrite(Services& services, const QString& name) {
    if (QFileInfo(name).isAbsolute())
        return name;
    QString path;
    if (FileExists(services.AppFolder, name, &path))
        return path;
    const QStringList parts = QString(name)
                                  .replace(QLatin1Char('\\'), QLatin1Char('/'))
                                  .split(QLatin1Char('/'), Qt::SkipEmptyParts);
    QString folder = services.AppFolder;
    for (qsizetype i = 0; i + 1 < parts.size(); ++i) {
        QString real;
        if (!FolderExists(services.dialogs, folder, parts[i], &real)) {
            real = folder + parts[i] + QLatin1Char('/');
            if (::mkdir(QFile::encodeName(real).constData(), 0777) != 0 && errno != EEXIST)
                safesave::RaiseSystemError(errno);
        }
        folder = real;
    }
    return folder + parts.value(parts.size() - 1);
}

void RemoveEverySpelling(const QString& path) {
    const QFileInfo info(path);
    for (const QString& existing :
         FilesSpelledLike(info.path() + QLatin1Char('/'), info.fileName())) {
        QFile file(existing);
        errno = 0;
        if (!file.remove())
            safesave::RaiseFileError(file, errno);
    }
}

// The lines to write: the records as they are, or merged with the file's present content when
// another program changed it since it was read. Nullopt when the user keeps the file as it is.
std::optional<QList<QByteArray>> LinesToWrite(Services& services, const DataFile& file,
                                              const Records& records, bool& merged) {
    merged = false;
    const QString path = file.PathIn(services.AppFolder);
    if (!file.Stamp().MayDifferFrom(FileStamp::Of(path)))
        return records.Lines();
    const QByteArray now = CurrentBytes(path);
    if (now == file.SeenBytes())
        return records.Lines();
    RecordMerge merge = MergeRecords(records.Layout(), SplitRecordLines(file.SeenBytes()),
                                     records.Lines(), SplitRecordLines(now));
    if (!merge.conflicts.isEmpty() &&
        services.dialogs.MsgBox(ChangedOnDiskQuestion(file.Name(), merge.conflicts),
                                vb::YesNo | vb::Exclamation, kChangedOnDiskTitle) != vb::Yes)
        return std::nullopt;
    merged = true;
    return merge.lines;
}

}  // namespace

QString WriteRecordFile(Services& services, const QString& name, const RecordLayout& layout,
                        const QByteArray& bytes) {
    if (layout.keepBackup) {
        safesave::ReplaceKeepingBackup(services.AppFolder, name, bytes);
        return bytes.isEmpty() ? QString() : PathForWriting(services.AppFolder, name);
    }
    if (bytes.isEmpty() && layout.whenEmpty == RecordLayout::WhenEmpty::NoFile) {
        QString path;
        if (QFileInfo(name).isAbsolute() ? QFile::exists(name)
                                         : FileExists(services.AppFolder, name, &path))
            RemoveEverySpelling(path.isEmpty() ? name : path);
        return {};
    }
    const QString path = PathToWrite(services, name);
    safesave::Replace(path, bytes);
    return path;
}

std::optional<QString> SaveProblem(const DataFile& file, const Records& records) {
    if (records.Problem())
        return records.Problem();
    if (file.PartlyRead())
        return PartlyReadFileMessage(file.Name(), file.FaultyLine());
    return std::nullopt;
}

SaveResult SaveDataFile(Services& services, const char* procedure, DataFile& file,
                        const Records& records, const QString& confirmation) {
    if (const auto problem = SaveProblem(file, records)) {
        services.dialogs.MsgBox(*problem, kWarningStyle);
        return SaveResult::Refused;
    }
    SaveResult result = SaveResult::Refused;
    services.Trap(procedure, [&] {
        bool merged = false;
        const auto lines = LinesToWrite(services, file, records, merged);
        if (!lines)
            return;
        const QByteArray bytes = JoinRecordLines(records.Layout(), *lines);
        const QString path = WriteRecordFile(services, file.Name(), records.Layout(), bytes);
        file.Saw(path.isEmpty() ? file.PathIn(services.AppFolder) : path, bytes);
        result = merged ? SaveResult::Merged : SaveResult::Saved;
    });
    if (result != SaveResult::Refused && !confirmation.isEmpty())
        services.dialogs.MsgBox(confirmation);
    return result;
}
