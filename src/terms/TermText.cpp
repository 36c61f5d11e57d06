#include "terms/TermText.h"

namespace {
bool IsWordLetter(QChar c) {
    return c.isLetterOrNumber() || c == u'\'' || c == u'-' || c == u'_';
}

QString TitleCase(const QString& term) {
    QString title = term.toLower();
    bool wordStart = true;
    for (QChar& c : title) {
        if (wordStart && c.isLetter())
            c = c.toUpper();
        wordStart = c.isSpace() || c == u'-' || c == u'/';
    }
    return title;
}
}  // namespace

QString TermInsertion(QStringView before, QStringView after, const QString& term, bool multiLine) {
    const bool lineEnds = after.isEmpty() || after.front() == u'\n' || after.front() == u'\r' ||
                          after.front() == QChar::ParagraphSeparator;
    QString text;
    if (!before.isEmpty() && !before.back().isSpace())
        text = multiLine && lineEnds ? QStringLiteral("\n") : QStringLiteral(" ");
    text += term;
    if (!lineEnds && !after.front().isSpace())
        text += u' ';
    return text;
}

QString WordBeforeCaret(QStringView before) {
    qsizetype start = before.size();
    while (start > 0 && IsWordLetter(before[start - 1]))
        --start;
    return before.mid(start).toString();
}

QString NextLetterCase(const QString& term) {
    const QString upper = term.toUpper();
    const QString lower = term.toLower();
    if (term == upper && term != lower)
        return lower;
    if (term == lower)
        return TitleCase(term);
    return upper;
}

int AutoStartLetters(const QString& preference) {
    bool ok = false;
    const int letters = preference.trimmed().toInt(&ok);
    return ok && letters >= 1 && letters <= kAutoStartMost ? letters : kAutoCompleteMinLetters;
}
