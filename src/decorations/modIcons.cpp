#include "decorations/modIcons.h"

#include <QDir>
#include <QRegularExpression>
#include <QSet>

#include "decorations/DecorationMessages.h"
#include "shell/Files.h"
#include "shell/SafeSave.h"
#include "shell/Services.h"
#include "shell/TextFile.h"

void ParseIconTags(const QStringList& lines, QList<IconTag>& tags) {
    tags.clear();
    QSet<int> seen;
    for (const QString& line : lines) {
        if (line.trimmed().isEmpty())
            continue;
        const qsizetype colon = line.indexOf(QLatin1Char(':'));
        if (colon < 0)
            Raise(err::TypeMismatch);
        const int number = ToInt(QStringView(line).left(colon));
        if (number <= 0)
            Raise(err::TypeMismatch);
        if (seen.contains(number))
            Raise(err::InvalidProcedureCall);
        seen.insert(number);
        tags.append({number, line.mid(colon + 1)});
    }
}

QString IconTagsText(const QList<IconTag>& tags) {
    QString text;
    for (const IconTag& tag : tags)
        text += QString::number(tag.number) + QLatin1Char(':') + tag.caption + kCrLf;
    return text;
}

QString IconPictureName(int number) {
    return QString::number(number) + QStringLiteral(".ico");
}

QString MakeImagesFolder(Services& services) {
    QString images;
    if (FolderExists(services.dialogs, services.AppFolder, kImagesFolder, &images))
        return images;
    images = services.PathOf(kImagesFolder);
    if (!QDir().mkpath(images))
        Raise(err::PathNotFound);
    return images;
}

modIcons::modIcons(Services& services) : services_(services) {}

QString modIcons::Caption(int number) const {
    for (const IconTag& tag : tags_)
        if (tag.number == number)
            return tag.caption;
    return {};
}

QString modIcons::PicturePath(int number) const {
    QString path;
    if (number > 0 &&
        FileExists(services_.AppFolder, kImagesFolder + QLatin1Char('\\') + IconPictureName(number),
                   &path))
        return path;
    return {};
}

void modIcons::ReadIconTags() {
    tags_.clear();
    partlyRead_ = false;
    QString path;
    if (FileExists(services_.AppFolder, kIconTagsFile, &path))
        partlyRead_ = !services_.Trap("ReadIconTags",
                                      [&] { ParseIconTags(textfile::ReadLines(path), tags_); });
    emit iconsChanged();
}

int modIcons::NextNumber() const {
    int last = 0;
    for (const IconTag& tag : tags_)
        last = std::max(last, tag.number);
    QString images;
    if (FolderExists(services_.dialogs, services_.AppFolder, kImagesFolder, &images)) {
        static const QRegularExpression picture(QStringLiteral("^(\\d{1,9})\\.ico$"),
                                                QRegularExpression::CaseInsensitiveOption);
        for (const QString& name : QDir(images).entryList(QDir::Files)) {
            if (const auto match = picture.match(name); match.hasMatch())
                last = std::max(last, match.captured(1).toInt());
        }
    }
    return last + 1;
}

bool modIcons::SaveIconTags(const QList<IconTag>& tags) {
    if (services_.RefuseSaveAfterPartialRead(partlyRead_, kIconTagsFile))
        return false;
    const QString text = IconTagsText(tags);
    if (const auto bad = textfile::FirstUnstorableCharacter(text)) {
        services_.dialogs.MsgBox(textfile::UnstorableCharacterMessage(*bad), kWarningStyle);
        return false;
    }
    const bool saved = services_.Trap("SaveIconTags", [&] {
        safesave::Replace(PathForWriting(services_.AppFolder, kIconTagsFile),
                          textfile::Encode(text));
    });
    if (saved) {
        tags_ = tags;
        emit iconsChanged();
    }
    return saved;
}

int modIcons::AddIcon(const QByteArray& icoBytes, const QString& caption) {
    if (services_.RefuseSaveAfterPartialRead(partlyRead_, kIconTagsFile))
        return 0;
    // A caption the list cannot hold is refused before a picture is written for it.
    if (const auto bad = textfile::FirstUnstorableCharacter(caption)) {
        services_.dialogs.MsgBox(textfile::UnstorableCharacterMessage(*bad), kWarningStyle);
        return 0;
    }
    int number = 0;
    const bool written = services_.Trap("AddIcon", [&] {
        number = NextNumber();
        safesave::Replace(QDir(MakeImagesFolder(services_)).filePath(IconPictureName(number)),
                          icoBytes);
    });
    if (!written)
        return 0;
    QList<IconTag> tags = tags_;
    tags.append({number, caption});
    return SaveIconTags(tags) ? number : 0;
}

bool modIcons::SetCaption(int number, const QString& caption) {
    QList<IconTag> tags = tags_;
    for (IconTag& tag : tags)
        if (tag.number == number)
            tag.caption = caption;
    return SaveIconTags(tags);
}

bool modIcons::RemoveIcon(int number) {
    QList<IconTag> tags = tags_;
    tags.removeIf([number](const IconTag& tag) { return tag.number == number; });
    return SaveIconTags(tags);
}
