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
