#include "assignment/Assignment.h"

#include <QDir>
#include <QFileInfo>

#include "assignment/AssignmentMessages.h"
#include "notes_planner/ExternalFiles.h"
#include "shell/SafeSave.h"
#include "shell/TextFile.h"
#include "shell/VbError.h"

namespace {

const QString kUrlLineBreak = QStringLiteral("%0A");

// The sub-folder name of parent, in the letter case it has on disk, made when missing.
QString SubFolder(const QString& parent, const QString& name) {
    const QStringList existing = QDir(parent).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& entry : existing)
        if (entry.compare(name, Qt::CaseInsensitive) == 0)
            return QDir(parent).filePath(entry);
    if (!QDir(parent).mkdir(name))
        Raise(err::PathFileAccessError);
    return QDir(parent).filePath(name);
}

}  // namespace

QString EmailSubject(const AssignmentState& state) {
    return state.subject.isEmpty() ? kDefaultSubject : state.subject;
}

QString EmailBody(const AssignmentState& state) {
    QString body = state.body;
    if (state.exportWaiting)
        body = state.filePath + kUrlLineBreak + kUrlLineBreak + kOpenWithOrvanta;
    return body.replace(kCrLf, kUrlLineBreak);
}

QString MailtoAddress(const AssignmentState& state) {
    return QStringLiteral("mailto:") + state.address + QStringLiteral("?subject=") +
           EmailSubject(state) + QStringLiteral("&body=") + EmailBody(state);
}

QString AssignFile(const QString& shareFolder, const QString& person, const QString& path) {
    const QFileInfo share(shareFolder);
    if (shareFolder.isEmpty() || share.isRelative() || !share.isDir())
        Raise(err::PathNotFound);
    // A name that is a path of its own would leave the person's folder.
    if (person.isEmpty() || person == u"." || person == u".." || person.contains(u'/'))
        Raise(err::PathNotFound);
    const QString folder = SubFolder(SubFolder(share.absoluteFilePath(), kExternalFolder), person);
    safesave::Replace(QDir(folder).filePath(QFileInfo(path).fileName()), textfile::ReadBytes(path));
    return folder;
}
