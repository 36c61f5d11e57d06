// Holidays read out of an iCalendar file: a year's all-day events, repeating ones included, and
// the files that are refused.
#include <QTest>

#include "TestEnv.h"
#include "holidays_birthdays/HolidaysBirthdaysMessages.h"
#include "holidays_birthdays/IcsHolidays.h"

namespace {

// The lines, "|" being CR LF.
QByteArray Crlf(const char* lines) {
    return QByteArray(lines).replace("|", "\r\n");
}

// The festival's summary is folded over two lines and holds an escaped comma; the Boxing Day
// summary holds an escaped line break, and the one-off one in 2028 ends in one.
const QByteArray kCalendar = Crlf(
    "BEGIN:VCALENDAR|VERSION:2.0|PRODID:-//Orvanta//Holidays//EN|"
    "BEGIN:VEVENT|DTSTART;VALUE=DATE:20101225|RRULE:FREQ=YEARLY;BYMONTH=12;BYMONTHDAY=25|"
    "SUMMARY:Christmas Day|END:VEVENT|"
    "BEGIN:VEVENT|UID:mem|DTSTART;VALUE=DATE:19710531|RRULE:FREQ=YEARLY;BYMONTH=5;BYDAY=-1MO|"
    "SUMMARY:Memorial Day|END:VEVENT|"
    "BEGIN:VEVENT|UID:mem|RECURRENCE-ID;VALUE=DATE:20280529|DTSTART;VALUE=DATE:20280530|"
    "SUMMARY:Memorial Day (moved)|END:VEVENT|"
    "BEGIN:VEVENT|DTSTART;VALUE=DATE:20260704|DTEND;VALUE=DATE:20260707|LOCATION:|"
    "SUMMARY:Harbour Festival\\, fir| st day|END:VEVENT|"
    "BEGIN:VEVENT|DTSTART;VALUE=DATE:20281225|SUMMARY:Only in 2028\\n|END:VEVENT|"
    "BEGIN:VEVENT|DTSTART:20261225T100000Z|SUMMARY:Carol service|END:VEVENT|"
    "BEGIN:VEVENT|DTSTART;VALUE=DATE:20261224|STATUS:CANCELLED|SUMMARY:Party|END:VEVENT|"
    "BEGIN:VEVENT|DTSTART;VALUE=DATE:20260101|END:VEVENT|"
    "BEGIN:VEVENT|DTSTART;VALUE=DATE:20200301|RRULE:FREQ=YEARLY;COUNT=3|SUMMARY:Fair|END:VEVENT|"
    "BEGIN:VEVENT|DTSTART;VALUE=DATE:20240229|RRULE:FREQ=YEARLY|SUMMARY:Leap Day|END:VEVENT|"
    "BEGIN:VEVENT|DTSTART;VALUE=DATE:20101226|RRULE:FREQ=YEARLY|EXDATE;VALUE=DATE:20261226|"
    "RDATE;VALUE=DATE:20261228|SUMMARY:Boxing Day\\nholiday|END:VEVENT|END:VCALENDAR|");

}  // namespace

class IcsHolidaysTest : public QObject {
    Q_OBJECT

private slots:
    void holidaysFromIcs_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("year");
        QTest::addColumn<QString>("refusal");  // a piece of the problem; empty: none
        QTest::addColumn<QStringList>("holidays");
        QTest::newRow("2026") << kCalendar << 2026 << QString()
                              << QStringList{"2026-05-25 Memorial Day",
                                             "2026-07-04 Harbour Festival, first day",
                                             "2026-12-25 Christmas Day",
                                             "2026-12-28 Boxing Day holiday"};
        QTest::newRow("2028, a leap year")
            << kCalendar << 2028 << QString()
            << QStringList{"2028-02-29 Leap Day", "2028-05-30 Memorial Day (moved)",
                           "2028-12-25 Christmas Day", "2028-12-25 Only in 2028",
                           "2028-12-26 Boxing Day holiday"};
        const auto refused = [](const char* name, const char* refusal, const char* bytes) {
            QTest::newRow(name) << Crlf(bytes) << 2026 << QString(refusal) << QStringList();
        };
        const char* notIcs = "not an iCalendar file";
        refused("empty", notIcs, "");
        refused("plain text", notIcs, "Public holidays 2026|12/25 Christmas Day|");
        refused("JSON", notIcs,
                R"({"holidays": [{"date": "2026-12-25", "name": "Christmas Day"}]})");
        refused("broken line", "line that cannot be read: Got a data line",
                "BEGIN:VCALENDAR|BEGIN:VEVENT|DTSTART;VALUE=DATE:20261225|SUMMARY Christmas Day|"
                "END:VEVENT|END:VCALENDAR|");
        refused("no end", "incomplete", "BEGIN:VCALENDAR|BEGIN:VEVENT|END:VEVENT|");

        // Line 5 of the calendar below runs to the limit with its text (and CR LF), or one byte
        // past it; or it goes on over folded lines of 75 bytes past the limit of a folded line;
        // or short lines take the file past its limit.
        const auto withText = [](const QByteArray& text) {
            return Crlf(
                       "BEGIN:VCALENDAR|BEGIN:VEVENT|DTSTART;VALUE=DATE:20261225|"
                       "SUMMARY:Christmas Day|DESCRIPTION:") +
                   text + Crlf("|END:VEVENT|END:VCALENDAR|");
        };
        const qsizetype textRoom = kIcsMaxLineBytes - qsizetype(sizeof "DESCRIPTION:") + 1;
        QTest::newRow("a line at the limit")
            << withText(QByteArray(textRoom, 'a')) << 2026 << QString()
            << QStringList{"2026-12-25 Christmas Day"};
        QTest::newRow("a line past the limit")
            << withText(QByteArray(textRoom + 1, 'a')) << 2026
            << IcsLineTooLongMessage(5, kIcsMaxLineBytes) << QStringList();
        const qsizetype folds = (kIcsMaxUnfoldedLineBytes - textRoom) / 74 + 1;
        QTest::newRow("a folded line past the limit")
            << withText(QByteArray(textRoom, 'a') +
                        QByteArray("\r\n ").append(74, 'b').repeated(folds))
            << 2026 << IcsFoldedLineTooLongMessage(5, kIcsMaxUnfoldedLineBytes) << QStringList();
        QTest::newRow("a file past the limit")
            << withText(QByteArray("\r\nX-A:").append(71, 'c').repeated(kIcsMaxFileBytes / 77 + 1))
            << 2026 << IcsFileTooLargeMessage(kIcsMaxFileBytes) << QStringList();
    }
    void holidaysFromIcs() {
        QFETCH(QByteArray, bytes);
        QFETCH(int, year);
        QFETCH(QString, refusal);
        QFETCH(QStringList, holidays);
        const IcsImport read = HolidaysFromIcs(bytes, year);
        if (refusal.isEmpty())
            QCOMPARE(read.problem, QString());
        else
            QVERIFY2(read.problem.contains(refusal), qPrintable(read.problem));
        QStringList found;
        for (const IcsHoliday& holiday : read.holidays)
            found << holiday.date.toString(Qt::ISODate) + QLatin1Char(' ') + holiday.summary;
        QCOMPARE(found, holidays);
    }
};

ORVANTA_TEST_MAIN(IcsHolidaysTest)
#include "tst_ics_holidays.moc"
