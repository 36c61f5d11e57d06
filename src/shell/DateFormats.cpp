#include "shell/DateFormats.h"

#include <QHash>

namespace datefmt {

QString QtPattern(const QString& classic) {
    static const QHash<QString, QString> patterns = {
        {QStringLiteral("mm/dd/yy"), QStringLiteral("MM/dd/yy")},
        {QStringLiteral("mm/dd"), QStringLiteral("MM/dd")},
        {QStringLiteral("dd"), QStringLiteral("dd")},
        {QStringLiteral("mmm"), QStringLiteral("MMM")},
        {QStringLiteral("mmmm"), QStringLiteral("MMMM")},
        {QStringLiteral("yyyy"), QStringLiteral("yyyy")},
        {QStringLiteral("mmm dd, yyyy"), QStringLiteral("MMM dd, yyyy")},
        {QStringLiteral("ddd dd"), QStringLiteral("ddd dd")},
        {QStringLiteral("dddd, mmmm d yyyy"), QStringLiteral("dddd, MMMM d yyyy")},
        {QStringLiteral("Long Date"), QStringLiteral("dddd, MMMM d, yyyy")},
        {QStringLiteral("Short Date"), QStringLiteral("M/d/yyyy")},
        {QStringLiteral("Medium Time"), QStringLiteral("hh:mm AP")},
        {QStringLiteral("hh:mm AMPM"), QStringLiteral("hh:mm AP")},
        {QStringLiteral("General Date"), QStringLiteral("M/d/yyyy h:mm:ss AP")},
    };
    const auto found = patterns.constFind(classic);
    Q_ASSERT_X(found != patterns.constEnd(), "datefmt::QtPattern", qPrintable(classic));
    return found != patterns.constEnd() ? *found : classic;
}

// QDate and QDateTime format with English names when given a pattern.
QString Format(const QDateTime& when, const QString& classic) {
    return when.toString(QtPattern(classic));
}

QString Format(const QDate& date, const QString& classic) {
    return date.toString(QtPattern(classic));
}

QString MmDdYy(const QDate& date) {
    return Format(date, QStringLiteral("mm/dd/yy"));
}

QString LongDate(const QDate& date) {
    return Format(date, QStringLiteral("Long Date"));
}

QString ShortDate(const QDate& date) {
    return Format(date, QStringLiteral("Short Date"));
}

QString MmmDdYyyy(const QDate& date) {
    return Format(date, QStringLiteral("mmm dd, yyyy"));
}

QString MonthName(int month) {
    return Format(QDate(2000, month, 1), QStringLiteral("mmmm"));
}

QString GeneralDate(const QDateTime& when) {
    return Format(when, QStringLiteral("General Date"));
}

QString MediumTime(const QTime& time) {
    return time.toString(QtPattern(QStringLiteral("Medium Time")));
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
    return QDate(NearestFullYear(yy, nearYear), month, day);
}

int NearestFullYear(int twoDigitYear, int nearYear) {
    const int year = nearYear - nearYear % 100 + twoDigitYear;
    if (year - nearYear > 50)
        return year - 100;
    if (nearYear - year > 50)
        return year + 100;
    return year;
}

}  // namespace datefmt
