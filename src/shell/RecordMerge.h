#pragma once

#include <QByteArray>
#include <QList>
#include <QStringList>

#include "shell/Records.h"

// A save merged with what another program changed in the same file since it was read, record
// by record: the records only one side changed take that side's version; those both sides
// changed alike are kept once; those both changed differently are conflicts. A file of a fixed
// number of lines (records named by their place) never loses one.
struct RecordMerge {
    // The merged lines, in the other program's order, the records added here after them. A
    // conflict takes this side's version (a record deleted here stays deleted).
    QList<QByteArray> lines;
    // The names of the records in conflict (a key, or "line 3" for a line's place).
    QStringList conflicts;
};

// base: the file as this side read it; ours: the records this side saves; theirs: the file as
// it is now.
RecordMerge MergeRecords(const RecordLayout& layout, const QList<QByteArray>& base,
                         const QList<QByteArray>& ours, const QList<QByteArray>& theirs);

// The lines of a file's bytes, split as a reader splits them.
QList<QByteArray> SplitRecordLines(const QByteArray& bytes);
