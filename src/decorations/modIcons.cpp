#include "decorations/modIcons.h"

#include <QDir>
#include <QRegularExpression>

#include "decorations/DecorationMessages.h"
#include "shell/Files.h"
#include "shell/SafeSave.h"
#include "shell/SavePath.h"
#include "shell/Services.h"
#include "shell/TextFile.h"

void ParseIconTagLine(const QString& line, QList<IconTag>& tags) {
    if (line.trimmed().isEmpty())
        return;
    const qsizetype colon = line.indexOf(QLatin1Char(':'));
    if (colon < 0)
        Raise(err::TypeMismatch);
    const int number = ToInt(QStringView(line).left(colon));
    if (number <= 0)
        Raise(err::TypeMismatch);
    for (const IconTag& tag : tags)
        if (tag.number == number)
            Raise(err::InvalidProcedureCall);
    tags.append({number, line.mid(colon + 1)});
}

void ParseIconTags(const QStringList& lines, QList<IconTag>& tags) {
    tags.clear();
    for (const QString& line : lines)
        ParseIconTagLine(line, tags);
}

namespace {

Records IconTagRecords(const QList<IconTag>& tags) {
    Records records(IconTagsLayout());
    for (const IconTag& tag : tags)
        records.Add({QString::number(tag.number), OnOneLine(tag.caption)});
    return records;
}

}  // namespace

QString IconTagsText(const QList<IconTag>& tags) {
    QString text;
    for (const IconTag& tag : tags)
        text += QString::number(tag.number) + QLatin1Char(':') + OnOneLine(tag.caption) + kCrLf;
    return text;
}

const RecordLayout& IconTagsLayout() {
    static const RecordLayout layout = [] {
        RecordLayout tags;
        tags.key = RecordLayout::Key::LeadingFields;
        tags.keyFields = 1;
        tags.whenEmpty = RecordLayout::WhenEmpty::EmptyFile;
        return tags;
    }();
    return layout;
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

modIcons::modIcons(Services& services) : services_(services), file_(kIconTagsFile) {}

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
    ReadDataFile(services_, "ReadIconTags", file_,
                 [&](QByteArrayView line, int) { ParseIconTagLine(LineText(line), tags_); });
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
    const SaveResult result = SaveDataFile(services_, "SaveIconTags", file_, IconTagRecords(tags));
    if (result == SaveResult::Refused)
        return false;
    if (result == SaveResult::Merged) {
        ReadIconTags();
    } else {
        tags_ = tags;
        emit iconsChanged();
    }
    return true;
}

int modIcons::AddIcon(const QByteArray& icoBytes, const QString& caption) {
    // A list that cannot take the icon is refused before its picture is written.
    QList<IconTag> tags = tags_;
    tags.append({NextNumber(), caption});
    if (const auto problem = SaveProblem(file_, IconTagRecords(tags))) {
        services_.dialogs.MsgBox(*problem, kWarningStyle);
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
    tags.last().number = number;
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
