#include "shell/NumberFormat.h"

#include <charconv>
#include <cmath>

namespace {

bool IsBlank(QChar c) {
    return c == u' ' || c == u'\t';
}

bool IsDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

}  // namespace

std::optional<double> ParseAmount(QStringView text) {
    qsizetype at = 0, end = text.size();
    while (at < end && IsBlank(text[at]))
        ++at;
    while (end > at && IsBlank(text[end - 1]))
        --end;
    // The sign and the currency sign, in either order, with blanks after the currency sign.
    bool negative = false, sign = false, currency = false;
    while (at < end) {
        const QChar c = text[at];
        if (!sign && (c == u'-' || c == u'+')) {
            sign = true;
            negative = c == u'-';
        } else if (!currency && c.category() == QChar::Symbol_Currency) {
            currency = true;
            while (at + 1 < end && IsBlank(text[at + 1]))
                ++at;
        } else {
            break;
        }
        ++at;
    }
    // The digits, without their commas: a comma must stand between groups of three digits, the
    // first group of one to three.
    char digits[64];
    int count = 0, group = 0;
    bool commas = false, point = false;
    for (; at < end; ++at) {
        const QChar c = text[at];
        if (count == int(sizeof digits))
            return std::nullopt;
        if (IsDigit(c)) {
            digits[count++] = char(c.unicode());
            ++group;
        } else if (c == u',' && !point && group > 0 && group <= 3 && (!commas || group == 3)) {
            commas = true;
            group = 0;
        } else if (c == u'.' && !point && (!commas || group == 3)) {
            point = true;
            digits[count++] = '.';
            group = 0;
        } else {
            return std::nullopt;
        }
    }
    if (commas && !point && group != 3)
        return std::nullopt;
    // A point alone, or nothing, is no number.
    if (count == int(point))
        return std::nullopt;
    double value = 0;
    const auto [last, error] = std::from_chars(digits, digits + count, value);
    if (error != std::errc() || last != digits + count)
        return std::nullopt;
    return negative ? -value : value;
}

QString FormatHashes(double value, int decimals) {
    const double scale = std::pow(10.0, decimals);
    // Rounded on the scaled value, with a nudge that keeps 2.675 (held as 2.67499...) at 2.68.
    const double scaled = std::round(std::fabs(value) * scale * (1 + 1e-12));
    const QString digits = QString::number(scaled, 'f', 0).rightJustified(decimals + 1, u'0');
    QString whole = digits.left(digits.size() - decimals);
    while (whole.startsWith(u'0'))
        whole.remove(0, 1);
    QString text = whole;
    if (decimals > 0)
        text += u'.' + digits.right(decimals);
    return (value < 0 && scaled > 0 ? QStringLiteral("-") : QString()) + text;
}

QString FormatThousands(double value, int decimals) {
    QString text = FormatHashes(value, decimals);
    const bool negative = text.startsWith(u'-');
    if (negative)
        text.remove(0, 1);
    qsizetype point = decimals > 0 ? text.indexOf(u'.') : text.size();
    if (point == 0) {
        text.prepend(u'0');
        point = 1;
    } else if (text.isEmpty()) {
        text = QStringLiteral("0");
        point = 1;
    }
    for (qsizetype at = point - 3; at > 0; at -= 3)
        text.insert(at, u',');
    return negative ? u'-' + text : text;
}
