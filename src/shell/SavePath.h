#pragma once

#include <QString>
#include <optional>

#include "shell/DataFile.h"
#include "shell/Records.h"

class Services;

enum class SaveResult {
    Refused,  // nothing written: the reason was shown
    Saved,    // the records are the file's content
    Merged,   // written together with another program's changes: the store reads it again
};

// The one way every data file is saved. In this order:
//  1. a record field the file cannot hold is refused, named: a character outside the code
//     page, a line break, or the field separator where a reader would split the line;
//  2. a file whose last read stopped short is refused, naming the line to correct, so that
//     the lines never read are not overwritten;
//  3. a file changed on disk since it was read (by the command line, another computer, an
//     editor) is read again and merged record by record: the other program's changes are
//     kept; where both sides changed the same record the user chooses, and No writes nothing;
//  4. the write runs in the error trap under procedure, and replaces the file whole or not
//     at all (the backup kept where the layout says so; missing folders made);
//  5. confirmation, when not empty, is shown once the file is written.
// Nothing on disk changes when the save is refused or fails.
SaveResult SaveDataFile(Services& services, const char* procedure, DataFile& file,
                        const Records& records, const QString& confirmation = {});

// The refusal a save of records to file would show before writing anything (steps 1 and 2
// above), or nullopt: for a caller that must know before it changes anything else.
std::optional<QString> SaveProblem(const DataFile& file, const Records& records);

// Writes bytes as the whole content of name (relative to the data folder, or absolute) the way
// a save of layout does, folders made where missing. Returns the path written (empty when no
// file is left). Raises on failure, leaving the old file as it was.
QString WriteRecordFile(Services& services, const QString& name, const RecordLayout& layout,
                        const QByteArray& bytes);
