#include "notes_planner/ExternalFiles.h"

#include <QDir>
#include <QFileInfo>

#include "notes_planner/ExternalFileMessages.h"
#include "shell/DateFormats.h"
#include "shell/DateInput.h"
#include "shell/Files.h"
#include "shell/Prompts.h"
#include "shell/SafeSave.h"
#include "shell/Services.h"
#include "shell/TextFile.h"

namespace {

constexpr qsizetype kDateKeyLength = 8;
constexpr qsizetype kHeaderLength = kDateKeyLength + 1;
constexpr qsizetype kLineLength = 160;
constexpr qsizetype kDoneMarksAt = 4090;

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

// A record as the planner writes it: every time field empty or a time (after the "B" of a
// bold one), every done mark 243, 245 or blank, and no control character anywhere.
bool LooksLikeRecord(QByteArrayView record) {
    for (const char byte : record)
        if (static_cast<unsigned char>(byte) < 0x20)
            return false;
    for (int line = 0; line < kAppointmentLines; ++line) {
        QByteArrayView time = record.sliced(line * kLineLength, 10);
        if (time.startsWith('B'))
            time = time.sliced(1);
        const QString text = QString::fromLatin1(time).trimmed();
        if (!text.isEmpty() && !ParseTimeInput(text).isValid())
            return false;
    }
    for (qsizetype at = kDoneMarksAt; at < kDoneMarksAt + kPlannerToDoItems; ++at) {
        const auto mark = static_cast<unsigned char>(record[at]);
        if (mark != kDoneMark && mark != kNotDoneMark && mark != ' ')
            return false;
    }
    return true;
}

// The record of a page's file: what follows the header, allowing one line end after it, which
// a file passed through a mail program or an editor may have gained.
QByteArrayView RecordPart(QByteArrayView bytes) {
    QByteArrayView rest = bytes.sliced(kHeaderLength);
    if (rest.endsWith("\r\n"))
        rest.chop(2);
    else if (rest.endsWith('\n'))
        rest.chop(1);
    return rest;
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
    const QByteArrayView record = RecordPart(bytes);
    if (record.size() != kPlannerRecordLength || !LooksLikeRecord(record)) {
        if (problem)
            *problem =
                record.size() != kPlannerRecordLength ? kWrongLengthProblem : kNotARecordProblem;
        return std::nullopt;
    }
    return ExternalPage{*date, ParsePlannerRecord(textfile::Decode(record))};
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
