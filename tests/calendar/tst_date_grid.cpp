// The date holders: every day of this year and next year laid out on month sheets of 7 columns
// (Sunday first) and 6 week rows, found again by its "mm/dd/yy" text.
#include <QSignalSpy>
#include <QTest>

#include "calendar/DateModel.h"
#include "shell/DateFormats.h"
#include "shell/DateInput.h"
#include "support/TestEnv.h"

namespace {

std::unique_ptr<DateModel> ModelFor(int year) {
    auto model = std::make_unique<DateModel>();
    model->SelectDate(QDate(year, 6, 15));
    return model;
}

// The cell a day is drawn in, counted as a month sheet is drawn: the 1st in row 0, a new row
// after every Saturday.
CellIndex SheetCell(const QDate& date) {
    int row = 0;
    for (QDate day(date.year(), date.month(), 1); day < date; day = day.addDays(1))
        row += day.dayOfWeek() == Qt::Saturday;
    return {date.month() - 1, date.dayOfWeek() % 7, row};
}

QString Where(const std::optional<CellIndex>& cell) {
    return cell ? QStringLiteral("(%1,%2,%3)").arg(cell->month).arg(cell->weekday).arg(cell->week)
                : QStringLiteral("none");
}

// Counts a year's store reads.
struct CountingStore final : PerYearStore {
    int reads = 0;
    void ReadBothYears() override { ++reads; }
};

}  // namespace

Q_DECLARE_METATYPE(CellIndex)

class DateGridTest : public QObject {
    Q_OBJECT

private slots:
    void dayLandsInItsCell_data() {
        QTest::addColumn<int>("thisYear");
        QTest::addColumn<QDate>("date");
        QTest::addColumn<CellIndex>("cell");
        QTest::addColumn<QString>("text");
        QTest::newRow("1 January on a Saturday")
            << 2022 << QDate(2022, 1, 1) << CellIndex{0, 6, 0} << "01/01/22";
        QTest::newRow("31-day month from Friday reaches row 5")
            << 2026 << QDate(2026, 5, 31) << CellIndex{4, 0, 5} << "05/31/26";
        QTest::newRow("February of next year")
            << 2026 << QDate(2027, 2, 1) << CellIndex{1, 1, 0} << "02/01/27";
        QTest::newRow("next year in the next century")
            << 2099 << QDate(2100, 1, 1) << CellIndex{0, 5, 0} << "01/01/00";
    }
    void dayLandsInItsCell() {
        QFETCH(int, thisYear);
        QFETCH(QDate, date);
        QFETCH(CellIndex, cell);
        QFETCH(QString, text);
        const auto model = ModelFor(thisYear);
        const bool nextYear = date.year() != thisYear;
        QCOMPARE((nextYear ? model->NextDateHolder : model->DateHolder)[cell], text);
        QCOMPARE(Where(model->FindDay(date)), Where(cell));
        QCOMPARE(model->DateAt(cell, nextYear), date);
    }

    // Every day of the year in the cell a drawn sheet puts it in, once, as this year and as
    // next year; every other cell blank.
    void yearFillsEachDayOnce_data() {
        QTest::addColumn<int>("year");
        for (const int year : {1900, 2000, 2015, 2023, 2024, 2100})
            QTest::addRow("%d", year) << year;
    }
    void yearFillsEachDayOnce() {
        QFETCH(int, year);
        const auto asThisYear = ModelFor(year);
        const auto asNextYear = ModelFor(year - 1);
        const int days = QDate(year, 1, 1).daysInYear();
        QCOMPARE(asThisYear->LeapYear, days == 366);
        for (const DateHolderGrid* holder :
             {&asThisYear->DateHolder, &asNextYear->NextDateHolder}) {
            DateHolderGrid expected(kBlankDay);
            for (QDate day(year, 1, 1); day.year() == year; day = day.addDays(1))
                expected[SheetCell(day)] = datefmt::MmDdYy(day);
            QVERIFY(*holder == expected);
        }
    }

    void cellCodes_data() {
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("cell");  // "none" for a malformed code
        QTest::newRow("first cell") << "000000"
                                    << "(0,0,0)";
        QTest::newRow("October") << "090302"
                                 << "(9,3,2)";
        QTest::newRow("last cell") << "110605"
                                   << "(11,6,5)";
        for (const char* bad : {"", "00060", "0006000", "120000", "000700", "000006", "0a0000",
                                "-10000", " 10600", "+10600"})
            QTest::addRow("malformed '%s'", bad) << bad << "none";
    }
    void cellCodes() {
        QFETCH(QString, code);
        QFETCH(QString, cell);
        const auto parsed = CellIndex::FromCode(code);
        QCOMPARE(Where(parsed), cell);
        if (parsed)
            QCOMPARE(parsed->Code(), code);
    }

    void holdersAndStoresAreRefilledOnlyOnChangeOfYear() {
        DateModel model;
        CountingStore store;
        model.AddYearStore(&store);
        QSignalSpy years(&model, &DateModel::yearChanged);
        QVERIFY(model.SelectDate(QDate(2024, 3, 5)));
        const CellIndex marker{5, 0, 0};  // 1 June 2024 is a Saturday: this cell is blank
        model.DateHolder[marker] = "marker  ";
        QVERIFY(!model.SelectDate(QDate(2024, 12, 31)));
        QCOMPARE(model.DateHolder[marker], "marker  ");
        QCOMPARE(int(model.SelectedMonth), 12);
        QCOMPARE(store.reads, 1);

        QVERIFY(model.SelectDate(QDate(2025, 1, 1)));
        QCOMPARE(model.DateHolder[marker], "06/01/25");
        QCOMPARE(model.YearEnd, QDate(2025, 12, 31));
        // Only this year and next year are found, never the same two digits another century.
        for (const QDate other : {QDate(2024, 12, 31), QDate(2027, 1, 1), QDate(2125, 6, 1)})
            QCOMPARE(Where(model.FindDay(other)), "none");
        QCOMPARE(store.reads, 2);
        QCOMPARE(years.count(), 2);
    }

    void twoDigitYearsReadNearTheWorkingYear_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("nearYear");
        QTest::addColumn<QDate>("date");
        QTest::newRow("2030 from 2026") << "03/01/30" << 2026 << QDate(2030, 3, 1);
        QTest::newRow("2100 from 2099") << "01/05/00" << 2099 << QDate(2100, 1, 5);
        QTest::newRow("1999 from 1949, fifty years on") << "06/15/99" << 1949 << QDate(1999, 6, 15);
        QTest::newRow("1901 from 1950") << "06/15/01" << 1950 << QDate(1901, 6, 15);
        QTest::newRow("2001 from 1952") << "06/15/01" << 1952 << QDate(2001, 6, 15);
        QTest::newRow("29 February of a common year") << "02/29/26" << 2026 << QDate();
        QTest::newRow("blank cell") << kBlankDay << 2026 << QDate();
    }
    void twoDigitYearsReadNearTheWorkingYear() {
        QFETCH(QString, text);
        QFETCH(int, nearYear);
        QFETCH(QDate, date);
        QCOMPARE(datefmt::ParseMmDdYy(text, nearYear), date);
        // A typed date with a two-digit year follows the same rule.
        if (date.isValid())
            QCOMPARE(ParseDateInput(date.toString("M/d/") + text.right(2), nearYear), date);
    }
};

ORVANTA_TEST_MAIN(DateGridTest)
#include "tst_date_grid.moc"
