#pragma once

#include <QByteArray>
#include <QChar>
#include <QList>
#include <QString>
#include <QStringList>
#include <QStringView>
#include <initializer_list>
#include <optional>

// How a data file lays its records out on lines, declared once by the store that owns the
// file. Every save checks the records against it before anything is written.
struct RecordLayout {
    // What names a record when a save is merged with changes another program made to the file
    // meanwhile: the whole line (lists whose lines are just added and removed), the line's
    // place (files of a fixed number of lines), or the first keyFields fields (a date, a
    // number, a setting's name).
    enum class Key { WholeLine, Position, LeadingFields };
    // What a save of no records leaves behind.
    enum class WhenEmpty { NoFile, EmptyFile };

    // The character between a record's fields; a null character when a record is one field.
    // A reader splits a line at the first separators, so no field but the last may hold one.
    QChar separator = QLatin1Char(':');
    Key key = Key::WholeLine;
    int keyFields = 1;
    // The last field keeps line breaks as the characters 213 (CR) and 210 (LF), so it may hold
    // line breaks but not those two characters themselves.
    bool encodesLineBreaks = false;
    // A line end after the last line too; false puts line ends only between lines.
    bool endAfterLast = true;
    WhenEmpty whenEmpty = WhenEmpty::NoFile;
    // The previous file becomes the same name with ".bak"; a save of no records then leaves
    // only the backup.
    bool keepBackup = false;
};

// A text's line breaks kept on one file line: every CR written as the character 213 and every
// LF as 210, and read back the other way (the notes file keeps its notes so).
QString EncodeLineBreaks(QString text);
QString DecodeLineBreaks(QString text);

// text on one line: a line break (CR LF, CR or LF) becomes a blank. What a store does with each
// one-line field it puts into a record (a one-line box also turns tabs into blanks). A tab in a
// field breaks no line, and a record read from the file with one is written back as it was.
QString OnOneLine(QStringView text);

// The first character of field (last: the record's last field) that layout's files cannot keep:
// one outside the code page, or, in a field that keeps its line breaks, one of the two
// characters that stand for them. nullopt when there is none.
std::optional<QString> FirstUnkeptCharacter(const RecordLayout& layout, QStringView field,
                                            bool last);

// Why field cannot be written as a field of layout's records (last: the record's last field):
// a character the files cannot hold, a line break, or the field separator where the reader
// would split the line at it. nullopt when it can be written.
std::optional<QString> FieldProblem(const RecordLayout& layout, QStringView field, bool last);

// The records a save writes, in file order, each turned into its line as it is added. The
// first field that cannot be written (see FieldProblem) is kept as the save's problem, and the
// save is then refused before anything on disk changes.
class Records {
public:
    explicit Records(const RecordLayout& layout) : layout_(layout) {}

    const RecordLayout& Layout() const { return layout_; }

    // Adds a record made of fields, joined by the layout's separator.
    void Add(std::initializer_list<QStringView> fields);
    void Add(const QStringList& fields);
    // Adds a line exactly as the file holds it (bytes read from the file and not changed).
    void AddLine(const QByteArray& line) { lines_.append(line); }

    const std::optional<QString>& Problem() const { return problem_; }
    const QList<QByteArray>& Lines() const { return lines_; }
    bool IsEmpty() const { return lines_.isEmpty(); }

private:
    template <class Fields>
    void AddFields(const Fields& fields);

    RecordLayout layout_;
    QList<QByteArray> lines_;
    std::optional<QString> problem_;
};

// The file content of lines under layout: CR LF between lines, and after the last one when
// the layout says so.
QByteArray JoinRecordLines(const RecordLayout& layout, const QList<QByteArray>& lines);
