#include "shell/DateInput.h"

#include <QRegularExpression>

#include "shell/DateFormats.h"

namespace {

int MonthOfName(const QString& name) {
    for (int month = 1; month <= 12; ++month) {
        const QString full = QDate(2000, month, 1).toString(QStringLiteral("MMMM"));
        if (name.size() >= 3 && full.startsWith(name, Qt::CaseInsensitive))
            return month;
    }
    return 0;
}

int FullYear(const QString& digits, int nearYear) {
    const int year = digits.toInt();
    return digits.size() > 2 ? year : datefmt::NearestFullYear(year, nearYear);
}

}  // namespace

QDate ParseDateInput(const QString& text, int nearYear) {
    const QString input = text.trimmed();
    static const QRegularExpression numeric(
        QStringLiteral("^(\\d{1,2})[/.-](\\d{1,2})[/.-](\\d{2}|\\d{4})$"));
    static const QRegularExpression iso(QStringLiteral("^(\\d{4})-(\\d{1,2})-(\\d{1,2})$"));
    static const QRegularExpression named(
        QStringLiteral("^([A-Za-z]+)\\.?\\s+(\\d{1,2}),?\\s+(\\d{2}|\\d{4})$"));
    if (const auto m = iso.match(input); m.hasMatch())
        return QDate(m.captured(1).toInt(), m.captured(2).toInt(), m.captured(3).toInt());
    if (const auto m = numeric.match(input); m.hasMatch())
        return QDate(FullYear(m.captured(3), nearYear), m.captured(1).toInt(),
                     m.captured(2).toInt());
    if (const auto m = named.match(input); m.hasMatch()) {
        const int month = MonthOfName(m.captured(1));
        return month ? QDate(FullYear(m.captured(3), nearYear), month, m.captured(2).toInt())
                     : QDate();
    }
    return {};
}

QTime ParseTimeInput(const QString& text) {
    static const QRegularExpression pattern(
        QStringLiteral("^(\\d{1,2})(?::(\\d{2}))?(?::(\\d{2}))?\\s*(?:([AaPp])\\.?[Mm]?\\.?)?$"));
    const auto m = pattern.match(text.trimmed());
    if (!m.hasMatch() || (m.captured(2).isEmpty() && m.captured(4).isEmpty()))
        return {};
    int hour = m.captured(1).toInt();
    const QString half = m.captured(4).toUpper();
    if (!half.isEmpty()) {
        // On the twelve-hour clock 12 AM is midnight and 12 PM noon.
        if (hour < 1 || hour > 12)
            return {};
        hour = hour % 12 + (half == u"P" ? 12 : 0);
    }
    return QTime(hour, m.captured(2).toInt(), m.captured(3).toInt());
}
