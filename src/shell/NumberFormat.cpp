#include "shell/NumberFormat.h"

#include <cmath>

double Val(QStringView text) {
    QString number;
    bool point = false;
    for (const QChar c : text) {
        if (c == u' ' || c == u'\t')
            continue;
        if ((c == u'-' || c == u'+') && number.isEmpty())
            number += c;
        else if (c.isDigit() && c.unicode() < 128)
            number += c;
        else if (c == u'.' && !point) {
            point = true;
            number += c;
        } else
            break;
    }
    bool ok = false;
    const double value = number.toDouble(&ok);
    return ok ? value : 0;
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
