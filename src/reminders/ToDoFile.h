#pragma once

#include <QString>
#include <array>

inline const QString kToDoFile = QStringLiteral("To Do.dat");
constexpr int kToDoRows = 10;

// The default to-do list: ten rows, each with its text and a done mark.
struct ToDoRows {
    std::array<QString, kToDoRows> texts;
    std::array<bool, kToDoRows> done{};
};

// Reads "To Do.dat" from the data folder: one line per row, its first byte the done mark
// (243 done, anything else not done) and the rest the text. A missing file is ten empty rows.
// rows receives each row as it is read; a file of more than ten lines fills the ten and then
// raises error 9.
void ReadToDoFile(const QString& appFolder, ToDoRows& rows);
