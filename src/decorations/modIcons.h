#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include "shell/DataFile.h"
#include "shell/Records.h"

class Services;

// One icon of the library: its number, which names its picture ("Images\" + number + ".ico"),
// and the caption shown when the mouse rests on it.
struct IconTag {
    int number = 0;
    QString caption;

    bool operator==(const IconTag&) const = default;
};

// The lines of "Icon Tags.dat", one per icon: the number, ":" and the caption. tags receives
// each icon as it is read; a line that is not a number and a caption raises error 13 after the
// lines before it, and a number used twice error 5.
void ParseIconTags(const QStringList& lines, QList<IconTag>& tags);
// Adds the icon of one such line to tags (an empty line adds nothing).
void ParseIconTagLine(const QString& line, QList<IconTag>& tags);
QString IconTagsText(const QList<IconTag>& tags);
// The layout of "Icon Tags.dat": an icon a line, named by its number; the caption is kept on
// one line and may hold ":".
const RecordLayout& IconTagsLayout();

// The file name of icon number's picture inside the "Images" folder.
QString IconPictureName(int number);

// The data folder's "Images" folder, in whatever letter case it exists, made when missing.
QString MakeImagesFolder(Services& services);

// The icon library: "Icon Tags.dat" in the data folder and the pictures in its "Images" folder,
// both found whatever the letter case of their names on disk.
class modIcons : public QObject {
    Q_OBJECT
public:
    explicit modIcons(Services& services);

    const QList<IconTag>& tags() const { return tags_; }
    // The caption of icon number; empty when the library has no such icon.
    QString Caption(int number) const;
    // The path of icon number's picture on disk; empty when there is none.
    QString PicturePath(int number) const;

    // Reads "Icon Tags.dat"; a missing file is an empty library. A file read only in part keeps
    // the icons before the faulty line and is not saved over.
    void ReadIconTags();

    // Adds an icon under the next free number: writes its picture (the bytes of an .ico file)
    // into "Images" and saves the list. Returns the new number, or 0 when nothing was added.
    int AddIcon(const QByteArray& icoBytes, const QString& caption);
    // Gives an icon a new caption and saves the list.
    bool SetCaption(int number, const QString& caption);
    // Takes an icon out of the list and saves it. Its picture stays, so that the days that
    // show it still do, and its number is never given to another icon.
    bool RemoveIcon(int number);

    // The number the next icon gets: one past every number in the list and every picture in
    // the "Images" folder.
    int NextNumber() const;

signals:
    // The list was read or changed.
    void iconsChanged();

private:
    bool SaveIconTags(const QList<IconTag>& tags);

    Services& services_;
    QList<IconTag> tags_;
    DataFile file_;
};
