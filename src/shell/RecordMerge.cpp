#include "shell/RecordMerge.h"

#include <QHash>

#include "shell/TextFile.h"

namespace {

// What names line (at position) in a file of layout.
QByteArray KeyOf(const RecordLayout& layout, const QByteArray& line, qsizetype position) {
    switch (layout.key) {
        case RecordLayout::Key::Position:
            return QByteArray::number(position);
        case RecordLayout::Key::LeadingFields: {
            const char separator = layout.separator.toLatin1();
            qsizetype at = -1;
            for (int field = 0; field < layout.keyFields; ++field) {
                at = line.indexOf(separator, at + 1);
                if (at < 0)
                    return line;
            }
            return line.left(at);
        }
        case RecordLayout::Key::WholeLine:
            break;
    }
    return line;
}

// The records of a list of lines by their names. A name that comes again (two lines of one
// date in a file edited by hand) gets its count, so that each line keeps a name of its own.
struct NamedLines {
    NamedLines(const RecordLayout& layout, const QList<QByteArray>& lines_) : lines(lines_) {
        QHash<QByteArray, int> seen;
        for (qsizetype i = 0; i < lines.size(); ++i) {
            QByteArray key = KeyOf(layout, lines[i], i);
            if (const int count = seen[key]++; count > 0)
                key += '\0' + QByteArray::number(count);
            keys.append(key);
            index.insert(key, i);
        }
    }
    const QByteArray* Find(const QByteArray& key) const {
        const auto found = index.constFind(key);
        return found == index.cend() ? nullptr : &lines[*found];
    }

    const QList<QByteArray>& lines;
    QList<QByteArray> keys;
    QHash<QByteArray, qsizetype> index;
};

QString Label(const RecordLayout& layout, const QByteArray& key) {
    if (layout.key == RecordLayout::Key::Position)
        return QStringLiteral("line %1").arg(key.toLongLong() + 1);
    const qsizetype count = key.indexOf('\0');
    return textfile::Decode(count < 0 ? QByteArrayView(key) : QByteArrayView(key).first(count));
}

}  // namespace

RecordMerge MergeRecords(const RecordLayout& layout, const QList<QByteArray>& base,
                         const QList<QByteArray>& ours, const QList<QByteArray>& theirs) {
    const NamedLines was(layout, base), our(layout, ours), their(layout, theirs);
    RecordMerge merge;
    const auto conflict = [&](const QByteArray& key) {
        merge.conflicts.append(Label(layout, key));
    };
    for (qsizetype i = 0; i < theirs.size(); ++i) {
        const QByteArray& key = their.keys[i];
        const QByteArray& theirLine = theirs[i];
        const QByteArray* ourLine = our.Find(key);
        const QByteArray* baseLine = was.Find(key);
        if (ourLine) {
            if (baseLine && *baseLine == theirLine)
                merge.lines.append(*ourLine);  // changed here only, or on neither side
            else if ((baseLine && *baseLine == *ourLine) || *ourLine == theirLine)
                merge.lines.append(theirLine);  // changed there only, or alike on both
            else
                conflict(key), merge.lines.append(*ourLine);
        } else if (!baseLine) {
            merge.lines.append(theirLine);  // added there
        } else if (*baseLine != theirLine) {
            conflict(key);  // deleted here, changed there: stays deleted
        }
    }
    for (qsizetype i = 0; i < ours.size(); ++i) {
        const QByteArray& key = our.keys[i];
        if (their.Find(key))
            continue;
        const QByteArray* baseLine = was.Find(key);
        // A file of a fixed number of lines always keeps them all: a line the other program
        // cut off is not taken as deleted.
        if (!baseLine || layout.key == RecordLayout::Key::Position)
            merge.lines.append(ours[i]);  // added here
        else if (*baseLine != ours[i])
            conflict(key), merge.lines.append(ours[i]);  // changed here, deleted there
    }
    return merge;
}

QList<QByteArray> SplitRecordLines(const QByteArray& bytes) {
    QList<QByteArray> lines;
    textfile::ForEachLine(bytes, [&](QByteArrayView line) { lines.append(line.toByteArray()); });
    return lines;
}
