#pragma once

#include <QHash>
#include <QObject>
#include <QString>
#include <array>

#include "shell/DataFile.h"
#include "shell/DoneMarks.h"
#include "shell/Records.h"

class Services;

inline const QString kToDoFile = QStringLiteral("To Do.dat");
constexpr int kToDoRows = 10;

// A to-do list: ten rows, each with its text and a done mark.
struct ToDoRows {
    std::array<QString, kToDoRows> texts;
    std::array<bool, kToDoRows> done{};

    bool operator==(const ToDoRows&) const = default;
};

// Reads the to-do file at path: one line per row, its first character the done mark (byte 243
// done, anything else not done) and the rest the text as typed, blanks included. rows
// receives each row as it is read, the others staying empty; a file of more than ten lines
// fills the ten and then raises error 9.
void ReadToDoFile(const QString& path, ToDoRows& rows);
// The file's text: the ten rows in order, each its mark and its text and a CR LF, an empty row
// being its mark alone. A text is kept on one line.
QString ToDoFileText(const ToDoRows& rows);
// The layout of a to-do file: ten lines, each named by its place.
const RecordLayout& ToDoLayout();

// The program's default to-do list, "To Do.dat" in the data folder, which the main window
// shows and the planner's to-do import copies. The to-do window also opens and saves other
// to-do files in the same format.
class ToDoStore : public QObject {
    Q_OBJECT
public:
    explicit ToDoStore(Services& services);

    // The default list as last read or saved.
    const ToDoRows& rows() const { return rows_; }

    // Loads "To Do.dat" when it exists; a missing file leaves the rows as they are. A file of
    // more than ten lines keeps its first ten rows, is reported, and is not saved over.
    void ReadToDoList();
    // Reads the to-do file at path (one the user picked) into rows; false when it could be
    // read only in part (reported): rows then hold what was read, and the file is not saved
    // over.
    bool OpenToDoList(const QString& path, ToDoRows& rows);
    // Saves rows to fileName and says "To Do List Saved.". An empty fileName is "To Do.dat";
    // a name without a folder lies in the data folder. Saving to the default list makes rows
    // the program's list. Returns false when nothing was written (see SaveDataFile); a list
    // saved under a name it was not read from replaces that file.
    bool SaveToDoList(const ToDoRows& rows, const QString& fileName = {});

    // Where a list called fileName is kept, by the rule of SaveToDoList.
    QString PathOf(const QString& fileName) const;
    bool IsDefaultList(const QString& path) const;

signals:
    // The default list was read or saved.
    void toDoListChanged();

private:
    // The name a list is known by in messages: "To Do.dat" or the name given, relative to the
    // data folder unless it is a full path.
    QString FileNameOf(const QString& fileName) const;
    // What is known of a list's file, by its place on disk.
    DataFile& FileOf(const QString& fileName);
    bool Read(const char* procedure, const QString& fileName, ToDoRows& rows);

    Services& services_;
    ToDoRows rows_;
    // Every list read or saved, by its place on disk.
    QHash<QString, DataFile> files_;
};
