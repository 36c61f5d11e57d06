#include "notes_planner/ExternalFiles.h"

#include <QDir>
#include <QFileInfo>

#include "notes_planner/ExternalFileMessages.h"
#include "shell/DateFormats.h"
#include "shell/Files.h"
#include "shell/Prompts.h"
#include "shell/SafeSave.h"
#include "shell/Services.h"
#include "shell/TextFile.h"

namespace {

constexpr qsizetype kDateKeyLength = 8;
constexpr qsizetype kHeaderLength = kDateKeyLength + 1;

QByteArray Header(const QDate& date) {
    return datefmt::MmDdYy(date).toLatin1() + ':';
}

// The date of "mm/dd/yy:" at the start of bytes.
std::optional<QDate> HeaderDate(QByteArrayView bytes, int nearYear, QString* problem) {
    const auto refuse = [problem](const QString& why) {
        if (problem)
            *problem = why;
        return std::nullopt;
    };
    if (bytes.size() < kHeaderLength)
        return refuse(kTooShortProblem);
    const QDate date =
        datefmt::ParseMmDdYy(QString::fromLatin1(bytes.first(kDateKeyLength)), nearYear);
    if (!date.isValid() || bytes[kDateKeyLength] != ':')
        return refuse(kNoDateProblem);
    return date;
}

QString NativeFolder(const QString& folder) {
    return QDir::toNativeSeparators(QDir::cleanPath(folder));
}

void ReportSaved(Services& services, const QString& path) {
    const QFileInfo info(path);
    services.dialogs.MsgBox(SavedAsMessage(info.fileName(), NativeFolder(info.absolutePath())));
}

QString WithExtension(const QString& name, ExternalKind kind) {
    const QString extension = ExternalExtension(kind);
    return name.endsWith(extension, Qt::CaseInsensitive) ? name : name + extension;
}

// Reads the file at path with parse; a file refused is said so, naming what is wrong.
template <class Parse>
auto ReadExternalFile(Services& services, ExternalKind kind, const QString& path, int nearYear,
                      Parse parse) {
    QString problem;
    auto read = parse(textfile::ReadBytes(path), nearYear, &problem);
    if (!read)
        services.dialogs.MsgBox(DamagedFileMessage(kind, path, problem), kWarningStyle);
    return read;
}

}  // namespace

QString ExternalExtension(ExternalKind kind) {
    return kind == ExternalKind::Planner ? QStringLiteral(".pln") : QStringLiteral(".nte");
}

QByteArray ExternalPlannerBytes(const QDate& date, const PlannerPage& page) {
    return Header(date) + textfile::Encode(BuildPlannerRecord(page));
}

QByteArray ExternalNotesBytes(const QDate& date, const QString& text) {
    return Header(date) + textfile::Encode(text);
}

std::optional<ExternalPage> ParseExternalPlanner(QByteArrayView bytes, int nearYear,
                                                 QString* problem) {
    const std::optional<QDate> date = HeaderDate(bytes, nearYear, problem);
    if (!date)
        return std::nullopt;
    // The rest is read as any planner record is: a short one gives blank slots and items not
    // done, and what lies past its 4,100 characters (a line end a mail program added) is not
    // looked at. Whatever a field holds, a tab or a time the planner would not offer, is shown.
    const QByteArrayView record = bytes.sliced(kHeaderLength);
    return ExternalPage{*date, ParsePlannerRecord(textfile::Decode(
                                   record.first(std::min(record.size(), kPlannerRecordLength))))};
}

std::optional<ExternalNote> ParseExternalNotes(QByteArrayView bytes, int nearYear,
                                               QString* problem) {
    const std::optional<QDate> date = HeaderDate(bytes, nearYear, problem);
    if (!date)
        return std::nullopt;
    return ExternalNote{*date, textfile::Decode(bytes.sliced(kHeaderLength))};
}

QString ExportExternalFile(Services& services, ExternalKind kind, const QByteArray& content) {
    Dialogs& dialogs = services.dialogs;
    const QString name = dialogs.InputBox(kExportPrompt, kExportTitle).trimmed();
    if (name.isEmpty()) {
        dialogs.MsgBox(kNoNameMessage);
        return {};
    }
    if (IllegalFileName(dialogs, name))
        return {};
    const QString folder = services.PathOf(kExternalFolder);
    if (!QDir().mkpath(folder))
        Raise(err::PathNotFound, folder);
    const QString fileName = WithExtension(name, kind);
    if (FileExists(folder + QDir::separator(), fileName) &&
        dialogs.MsgBox(OverwriteQuestion(kind), kQuestionStyle, kOverwriteTitle) != vb::Yes)
        return {};
    const QString path = PathForWriting(folder + QDir::separator(), fileName);
    safesave::Replace(path, content);
    ReportSaved(services, path);
    return path;
}

void SaveExternalFileTo(Services& services, const QString& path, const QByteArray& content) {
    safesave::Replace(path, content);
    ReportSaved(services, path);
}

QString PickExternalFile(Services& services, const QString& caption) {
    const QString path =
        services.dialogs.OpenFileName(caption, QDir::homePath(), kExternalFileFilter);
    if (path.isEmpty())
        return {};
    const QFileInfo info(path);
    if (info.fileName().isEmpty() || info.isDir()) {
        services.dialogs.MsgBox(kBadFileNameMessage);
        return {};
    }
    if (!info.absoluteDir().exists()) {
        services.dialogs.MsgBox(kBadFilePathMessage);
        return {};
    }
    return path;
}

std::optional<ExternalPage> ReadExternalPlannerFile(Services& services, const QString& path,
                                                    int nearYear) {
    return ReadExternalFile(services, ExternalKind::Planner, path, nearYear, ParseExternalPlanner);
}

std::optional<ExternalNote> ReadExternalNotesFile(Services& services, const QString& path,
                                                  int nearYear) {
    return ReadExternalFile(services, ExternalKind::Notes, path, nearYear, ParseExternalNotes);
}

QString ExternalNotesCaption(const QDate& date) {
    return QStringLiteral("Displaying External Notes for ") + datefmt::MmmDdYyyy(date);
}
