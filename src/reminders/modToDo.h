#pragma once

#include <QObject>
#include <QSet>
#include <QString>
#include <array>

#include "shell/DoneMarks.h"

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
// being its mark alone. A line break in a text becomes a blank.
QString ToDoFileText(const ToDoRows& rows);

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
    // Writes rows to fileName and says "To Do List Saved.". An empty fileName is "To Do.dat";
    // a name without a folder lies in the data folder. Saving to the default list makes rows
    // the program's list. Returns false when nothing was written: a text holds a character the
    // file cannot hold, the file was read only in part, or the write failed.
    bool SaveToDoList(const ToDoRows& rows, const QString& fileName = {});

    // Where a list called fileName is kept, by the rule of SaveToDoList.
    QString PathOf(const QString& fileName) const;
    bool IsDefaultList(const QString& path) const;

signals:
    // The default list was read or saved.
    void toDoListChanged();

private:
    bool Read(const char* procedure, const QString& path, ToDoRows& rows);

    Services& services_;
    ToDoRows rows_;
    // The files whose last read stopped at a faulty line.
    QSet<QString> partlyRead_;
};
