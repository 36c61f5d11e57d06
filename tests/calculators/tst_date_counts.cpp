// The calculators' counting rules: the boundaries each interval counts between two dates,
// and the dates of one weekday in a period, both ends included.
#include <QTest>

#include "TestEnv.h"
#include "calculators/DateDiff.h"

namespace {

QDateTime At(int year, int month, int day, QTime time = QTime(0, 0)) {
    return QDateTime(QDate(year, month, day), time, Qt::UTC);
}

}  // namespace

class DateCountsTest : public QObject {
    Q_OBJECT

private slots:
    void dateDiff_data() {
        QTest::addColumn<QString>("interval");
        QTest::addColumn<QDateTime>("start");
        QTest::addColumn<QDateTime>("end");
        QTest::addColumn<qint64>("expected");
        const QDateTime newYearsEve = At(2008, 12, 31);
        const QDateTime newYear = At(2009, 1, 1);
        QTest::newRow("a year starts at new year") << "yyyy" << newYearsEve << newYear << 1LL;
        QTest::newRow("and one day") << "d" << newYearsEve << newYear << 1LL;
        QTest::newRow("backwards is negative") << "yyyy" << newYear << newYearsEve << -1LL;
        QTest::newRow("a quarter starts in April")
            << "q" << At(2026, 3, 31) << At(2026, 4, 1) << 1LL;
        QTest::newRow("none within a quarter") << "q" << At(2026, 1, 1) << At(2026, 3, 31) << 0LL;
        QTest::newRow("a month starts on the 1st")
            << "m" << At(2026, 1, 31) << At(2026, 2, 1) << 1LL;
        QTest::newRow("none within a month") << "m" << At(2026, 1, 1) << At(2026, 1, 31) << 0LL;
        QTest::newRow("six days are no week") << "w" << At(2026, 9, 7) << At(2026, 9, 13) << 0LL;
        QTest::newRow("seven days are one") << "w" << At(2026, 9, 7) << At(2026, 9, 14) << 1LL;
        QTest::newRow("seven days back") << "w" << At(2026, 9, 14) << At(2026, 9, 7) << -1LL;
        QTest::newRow("a calendar week starts on Sunday")
            << "ww" << At(2026, 1, 3) << At(2026, 1, 4) << 1LL;
        QTest::newRow("and so at new year") << "ww" << At(2011, 12, 31) << At(2012, 1, 1) << 1LL;
        QTest::newRow("the week holding 1 January is one") << "ww" << newYearsEve << newYear << 0LL;
        QTest::newRow("calendar weeks backwards")
            << "ww" << At(2026, 1, 4) << At(2026, 1, 3) << -1LL;
        QTest::newRow("days over a leap day") << "d" << At(2008, 2, 28) << At(2008, 3, 1) << 2LL;
        QTest::newRow("hours over a leap day") << "h" << At(2008, 2, 28) << At(2008, 3, 1) << 48LL;
        QTest::newRow("seconds over a leap day")
            << "s" << At(2008, 2, 28) << At(2008, 3, 1) << 172800LL;
        const QDateTime beforeTheHour = At(2026, 9, 7, QTime(10, 59, 59));
        const QDateTime onTheHour = At(2026, 9, 7, QTime(11, 0));
        QTest::newRow("a second crosses an hour") << "h" << beforeTheHour << onTheHour << 1LL;
        QTest::newRow("hours back over midnight")
            << "h" << At(2026, 9, 7, QTime(0, 30)) << At(2026, 9, 6, QTime(23, 30)) << -1LL;
        QTest::newRow("26 years of seconds")
            << "s" << At(2000, 1, 1) << At(2026, 1, 1) << 820540800LL;
    }
    void dateDiff() {
        QFETCH(QString, interval);
        QFETCH(QDateTime, start);
        QFETCH(QDateTime, end);
        QFETCH(qint64, expected);
        QCOMPARE(calc::DateDiff(interval, start, end), expected);
    }

    void weekdaysBetween_data() {
        QTest::addColumn<QDate>("start");
        QTest::addColumn<QDate>("end");
        QTest::addColumn<int>("weekday");
        QTest::addColumn<int>("limit");
        QTest::addColumn<QList<QDate>>("expected");
        QTest::addColumn<bool>("stopped");
        const QDate monday(2026, 9, 7);
        QTest::newRow("one day, the weekday")
            << monday << monday << 2 << 100 << QList<QDate>{monday} << false;
        QTest::newRow("one day, another weekday")
            << monday << monday << 3 << 100 << QList<QDate>{} << false;
        const QDate first(2026, 9, 1);  // a Tuesday
        const QDate last(2026, 9, 30);  // a Wednesday
        QTest::newRow("both ends count")
            << first << last << 3 << 100
            << QList<QDate>{first, QDate(2026, 9, 8), QDate(2026, 9, 15), QDate(2026, 9, 22),
                            QDate(2026, 9, 29)}
            << false;
        QTest::newRow("the last day")
            << QDate(2026, 9, 24) << last << 4 << 100 << QList<QDate>{last} << false;
        QTest::newRow("reaching the limit goes on")
            << first << last << 1 << 4
            << QList<QDate>{QDate(2026, 9, 6), QDate(2026, 9, 13), QDate(2026, 9, 20),
                            QDate(2026, 9, 27)}
            << false;
        QTest::newRow("passing it stops")
            << first << last << 1 << 2
            << QList<QDate>{QDate(2026, 9, 6), QDate(2026, 9, 13), QDate(2026, 9, 20)} << true;
    }
    void weekdaysBetween() {
        QFETCH(QDate, start);
        QFETCH(QDate, end);
        QFETCH(int, weekday);
        QFETCH(int, limit);
        QFETCH(QList<QDate>, expected);
        QFETCH(bool, stopped);
        const calc::WeekdayWalk walk = calc::WeekdaysBetween(start, end, weekday, limit);
        QCOMPARE(walk.dates, expected);
        QCOMPARE(walk.stoppedAtLimit, stopped);
    }
};

ORVANTA_TEST_MAIN(DateCountsTest)
#include "tst_date_counts.moc"
