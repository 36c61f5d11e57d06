#include "shell/DateFormats.h"

#include <QLocale>

namespace datefmt {

namespace {

// QDate::toString with a format string always uses English names; QLocale::c() does the same
// for the month-name lookups.
QString Format(const QDate& date, const QString& pattern) {
    return date.toString(pattern);
}

}  // namespace

QString MmDdYy(const QDate& date) {
    return Format(date, QStringLiteral("MM/dd/yy"));
}

QString LongDate(const QDate& date) {
    return Format(date, QStringLiteral("dddd, MMMM d, yyyy"));
}

QString ShortDate(const QDate& date) {
    return Format(date, QStringLiteral("M/d/yyyy"));
}

QString MmmDdYyyy(const QDate& date) {
    return Format(date, QStringLiteral("MMM dd, yyyy"));
}

QString MonthName(int month) {
    return QLocale::c().standaloneMonthName(month, QLocale::LongFormat);
}

QString GeneralDate(const QDateTime& when) {
    return when.toString(QStringLiteral("M/d/yyyy h:mm:ss AP"));
}

QString MediumTime(const QTime& time) {
    return time.toString(QStringLiteral("hh:mm AP"));
}

QDate ParseMmDdYy(const QString& text, int nearYear) {
    if (text.size() != 8 || text.at(2) != QLatin1Char('/') || text.at(5) != QLatin1Char('/'))
        return {};
    bool okMonth = false, okDay = false, okYear = false;
    const int month = text.left(2).toInt(&okMonth);
    const int day = text.mid(3, 2).toInt(&okDay);
    const int yy = text.mid(6, 2).toInt(&okYear);
    if (!okMonth || !okDay || !okYear)
        return {};
    const int century = nearYear - nearYear % 100;
    int year = century + yy;
    if (year - nearYear > 50)
        year -= 100;
    else if (nearYear - year > 50)
        year += 100;
    return QDate(year, month, day);
}

}  // namespace datefmt
