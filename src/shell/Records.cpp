#include "shell/Records.h"

#include <algorithm>

#include "shell/ShellMessages.h"
#include "shell/TextFile.h"

namespace {

// The characters that stand for CR and LF in a field that keeps its line breaks.
constexpr char16_t kEncodedCr = 213;
constexpr char16_t kEncodedLf = 210;

bool IsLineBreak(QChar c) {
    return c == QLatin1Char('\r') || c == QLatin1Char('\n');
}

}  // namespace

QString EncodeLineBreaks(QString text) {
    text.replace(QLatin1Char('\r'), QChar(kEncodedCr));
    text.replace(QLatin1Char('\n'), QChar(kEncodedLf));
    return text;
}

QString DecodeLineBreaks(QString text) {
    text.replace(QChar(kEncodedCr), QLatin1Char('\r'));
    text.replace(QChar(kEncodedLf), QLatin1Char('\n'));
    return text;
}

QString OnOneLine(QStringView text) {
    QString line;
    line.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c == QLatin1Char('\r') && i + 1 < text.size() && text[i + 1] == QLatin1Char('\n'))
            continue;  // CR LF is one line break: one blank, from its LF
        line += IsLineBreak(c) ? QLatin1Char(' ') : c;
    }
    return line;
}

std::optional<QString> FirstUnkeptCharacter(const RecordLayout& layout, QStringView field,
                                            bool last) {
    if (last && layout.encodesLineBreaks) {
        for (const QChar c : field)
            if (c == kEncodedCr || c == kEncodedLf)
                return QString(c);
    }
    return textfile::FirstUnstorableCharacter(field);
}

std::optional<QString> FieldProblem(const RecordLayout& layout, QStringView field, bool last) {
    const bool keepsLineBreaks = last && layout.encodesLineBreaks;
    if (const auto bad = FirstUnkeptCharacter(layout, field, last)) {
        const bool lineBreak = bad->size() == 1 && (bad->front() == QChar(kEncodedCr) ||
                                                    bad->front() == QChar(kEncodedLf));
        return keepsLineBreaks && lineBreak ? LineBreakCharacterMessage(*bad)
                                            : textfile::UnstorableCharacterMessage(*bad);
    }
    if (!keepsLineBreaks && std::any_of(field.begin(), field.end(), IsLineBreak))
        return FieldBreaksLineMessage(field.toString(), kLineBreakName);
    if (!last && !layout.separator.isNull() && field.contains(layout.separator))
        return FieldBreaksLineMessage(field.toString(), SeparatorName(layout.separator));
    return std::nullopt;
}

void Records::Add(std::initializer_list<QStringView> fields) {
    AddFields(fields);
}

void Records::Add(const QStringList& fields) {
    AddFields(fields);
}

template <class Fields>
void Records::AddFields(const Fields& fields) {
    QString line;
    qsizetype index = 0;
    for (const auto& field : fields) {
        const bool last = ++index == qsizetype(fields.size());
        if (!problem_)
            problem_ = FieldProblem(layout_, field, last);
        if (index > 1)
            line += layout_.separator;
        if (last && layout_.encodesLineBreaks)
            line += EncodeLineBreaks(QStringView(field).toString());
        else
            line += field;
    }
    // A record with a problem is never written, so its line needs no bytes.
    lines_.append(problem_ ? QByteArray() : textfile::Encode(line));
}

QByteArray JoinRecordLines(const RecordLayout& layout, const QList<QByteArray>& lines) {
    qsizetype size = 0;
    for (const QByteArray& line : lines)
        size += line.size() + 2;
    QByteArray bytes;
    bytes.reserve(size);
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (i > 0)
            bytes += "\r\n";
        bytes += lines[i];
    }
    if (layout.endAfterLast && !lines.isEmpty())
        bytes += "\r\n";
    return bytes;
}
