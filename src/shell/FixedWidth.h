#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringView>
#include <algorithm>

// text without the blanks (spaces only, not tabs or other white space) at either end.
inline QStringView TrimBlanks(QStringView text) {
    qsizetype begin = 0, end = text.size();
    while (begin < end && text[begin] == QLatin1Char(' '))
        ++begin;
    while (end > begin && text[end - 1] == QLatin1Char(' '))
        --end;
    return text.mid(begin, end - begin);
}

// True when text holds nothing but blanks (or nothing at all).
inline bool IsBlank(QStringView text) {
    return TrimBlanks(text).isEmpty();
}
inline bool IsBlank(QByteArrayView bytes) {
    for (const char c : bytes)
        if (c != ' ')
            return false;
    return true;
}

// One field of a record kept at fixed character positions: where it starts (counted from 0)
// and how many characters it takes. A store declares its fields once and reads and writes
// through them, so no offset is counted twice.
struct Field {
    qsizetype offset = 0;
    qsizetype width = 0;

    // The field's characters as they stand; shorter (or empty) when the record ends inside it.
    QStringView Raw(QStringView record) const { return record.mid(offset, width); }
    // The same of a record kept as its bytes.
    QByteArrayView Raw(QByteArrayView record) const {
        const qsizetype start = std::min(offset, record.size());
        return record.sliced(start, std::min(width, record.size() - start));
    }
    // The field's text without surrounding blanks.
    QString Read(QStringView record) const { return TrimBlanks(Raw(record)).toString(); }
    // Puts value into the field of record: padded with blanks, or cut, to the field's width.
    // A record too short to hold the field is first padded with blanks.
    void Write(QString& record, QStringView value) const {
        if (record.size() < End())
            record.append(QString(End() - record.size(), QLatin1Char(' ')));
        const QStringView cut = value.left(width);
        record.replace(offset, cut.size(), cut.toString());
        record.replace(offset + cut.size(), width - cut.size(),
                       QString(width - cut.size(), QLatin1Char(' ')));
    }
    // The position just after the field.
    qsizetype End() const { return offset + width; }
};
