#include "assignment/Assignment.h"

#include <QDir>
#include <QFileInfo>
#include <QUrl>

#include "assignment/AssignmentMessages.h"
#include "notes_planner/ExternalFiles.h"
#include "shell/SafeSave.h"
#include "shell/TextFile.h"
#include "shell/VbError.h"

namespace {

// A text as it stands in an e-mail address: every character but the letters, the digits, "-",
// ".", "_", "~" and those in keep is written as "%" and the hex digits of its UTF-8 bytes, so
// that a "%", "#", "&", "?", "+" or "=" that the user typed stays part of the text instead of
// ending the subject or the body. A line break (CR LF) becomes one "%0A".
QString UrlText(QString text, const QByteArray& keep = {}) {
    text.replace(kCrLf, QStringLiteral("\n"));
    return QString::fromLatin1(QUrl::toPercentEncoding(text, keep));
}

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
    if (state.exportWaiting)
        return state.filePath + kCrLf + kCrLf + kOpenWithOrvanta;
    return state.body;
}

QString MailtoAddress(const AssignmentState& state) {
    // The "@" of an address and the "," between addresses keep their meaning.
    return QStringLiteral("mailto:") + UrlText(state.address, "@,") + QStringLiteral("?subject=") +
           UrlText(EmailSubject(state)) + QStringLiteral("&body=") + UrlText(EmailBody(state));
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
