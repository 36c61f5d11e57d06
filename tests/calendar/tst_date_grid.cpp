// The date holders: every day of this year and next year laid out on month sheets of 7 columns
// (Sunday first) and 6 week rows, found again by its "mm/dd/yy" text.

#include <QTest>

#include "calendar/DateModel.h"
#include "shell/DateFormats.h"
#include "support/TestEnv.h"

namespace {

std::unique_ptr<DateModel> ModelFor(int year) {
    auto model = std::make_unique<DateModel>();
    model->SelectDate(QDate(year, 6, 15));
    return model;
}

// The row a day is drawn in, counted as a month sheet is drawn: the 1st is in row 0 and a new
// row starts after every Saturday.
int SheetRow(const QDate& date) {
    int row = 0;
    for (QDate day(date.year(), date.month(), 1); day < date; day = day.addDays(1))
        if (day.dayOfWeek() == Qt::Saturday)
            ++row;
    return row;
}

int SheetColumn(const QDate& date) {
    return date.dayOfWeek() == Qt::Sunday ? 0 : date.dayOfWeek();
}

QString TwoDigits(int n) {
    return QString::number(n % 100).rightJustified(2, '0');
}

QString Text(const QDate& date) {
    return TwoDigits(date.month()) + "/" + TwoDigits(date.day()) + "/" + TwoDigits(date.year());
}

int CountOf(const DateHolderGrid& holder, const QString& text) {
    int count = 0;
    holder.ForEach([&](const CellIndex&, const QString& cell) { count += cell == text; });
    return count;
}

// A found cell as "(month,weekday,week)", or "none", for readable comparisons.
QString Where(const std::optional<CellIndex>& cell) {
    return cell ? QStringLiteral("(%1,%2,%3)").arg(cell->month).arg(cell->weekday).arg(cell->week)
                : QStringLiteral("none");
}

}  // namespace

Q_DECLARE_METATYPE(CellIndex)

class DateGridTest : public QObject {
    Q_OBJECT

private slots:
    void dayLandsInItsCell_data();
    void dayLandsInItsCell();
    void monthUsesItsRows_data();
    void monthUsesItsRows();
    void yearFillsEachDayOnce_data();
    void yearFillsEachDayOnce();
    void findDayOnlyInThisAndNextYear_data();
    void findDayOnlyInThisAndNextYear();
    void clearedHoldersHoldNoDay();
    void cellCodes_data();
    void cellCodes();
    void malformedCellCodes_data();
    void malformedCellCodes();
    void yearBounds_data();
    void yearBounds();
    void holdersRefilledOnlyOnChangeOfYear();
    void twoDigitYearsReadNearTheWorkingYear_data();
    void twoDigitYearsReadNearTheWorkingYear();
};

void DateGridTest::dayLandsInItsCell_data() {
    QTest::addColumn<int>("thisYear");
    QTest::addColumn<QDate>("date");
    QTest::addColumn<CellIndex>("cell");
    QTest::addColumn<QString>("text");
    QTest::newRow("1 January on a Saturday")
        << 2022 << QDate(2022, 1, 1) << CellIndex{0, 6, 0} << "01/01/22";
    QTest::newRow("2 January starts the second row")
        << 2022 << QDate(2022, 1, 2) << CellIndex{0, 0, 1} << "01/02/22";
    QTest::newRow("31-day month from Saturday reaches row 5")
        << 2022 << QDate(2022, 1, 31) << CellIndex{0, 1, 5} << "01/31/22";
    QTest::newRow("31-day month from Friday reaches row 5")
        << 2026 << QDate(2026, 5, 31) << CellIndex{4, 0, 5} << "05/31/26";
    QTest::newRow("1 January on a Sunday")
        << 2023 << QDate(2023, 1, 1) << CellIndex{0, 0, 0} << "01/01/23";
    QTest::newRow("last day of the year")
        << 2026 << QDate(2026, 12, 31) << CellIndex{11, 4, 4} << "12/31/26";
    QTest::newRow("29 February 2024")
        << 2024 << QDate(2024, 2, 29) << CellIndex{1, 4, 4} << "02/29/24";
    QTest::newRow("29 February 2000")
        << 2000 << QDate(2000, 2, 29) << CellIndex{1, 2, 4} << "02/29/00";
    QTest::newRow("February of next year")
        << 2026 << QDate(2027, 2, 1) << CellIndex{1, 1, 0} << "02/01/27";
    QTest::newRow("next year in the next century")
        << 2099 << QDate(2100, 1, 1) << CellIndex{0, 5, 0} << "01/01/00";
}

void DateGridTest::dayLandsInItsCell() {
    QFETCH(int, thisYear);
    QFETCH(QDate, date);
    QFETCH(CellIndex, cell);
    QFETCH(QString, text);
    const auto model = ModelFor(thisYear);
    const bool nextYear = date.year() != thisYear;
    const DateHolderGrid& holder = nextYear ? model->NextDateHolder : model->DateHolder;
    QCOMPARE(holder[cell], text);
    QCOMPARE(Where(model->FindDay(date)), Where(cell));
    QCOMPARE(model->DateAt(cell, nextYear), date);
}

void DateGridTest::monthUsesItsRows_data() {
    QTest::addColumn<int>("year");
    QTest::addColumn<int>("month");
    QTest::addColumn<int>("rows");
    QTest::newRow("31 days from Saturday") << 2022 << 1 << 6;
    QTest::newRow("31 days from Friday") << 2026 << 5 << 6;
    QTest::newRow("31 days from Saturday, August") << 2026 << 8 << 6;
    QTest::newRow("30 days from Saturday") << 2023 << 4 << 6;
    QTest::newRow("30 days from Tuesday") << 2026 << 9 << 5;
    QTest::newRow("28 days from Sunday, 2015") << 2015 << 2 << 4;
    QTest::newRow("28 days from Sunday, 2026") << 2026 << 2 << 4;
    QTest::newRow("28 days from Monday") << 2021 << 2 << 5;
    QTest::newRow("29 days from Saturday") << 2020 << 2 << 5;
}

void DateGridTest::monthUsesItsRows() {
    QFETCH(int, year);
    QFETCH(int, month);
    QFETCH(int, rows);
    const auto model = ModelFor(year);
    for (int row = 0; row < kWeekRows; ++row) {
        int days = 0;
        for (int column = 0; column < kWeekdays; ++column)
            days += model->DateHolder.at(month - 1, column, row) != kBlankDay;
        QVERIFY2((days > 0) == (row < rows), qPrintable(QString("row %1").arg(row)));
    }
}

void DateGridTest::yearFillsEachDayOnce_data() {
    QTest::addColumn<int>("year");
    QTest::addColumn<int>("days");
    QTest::newRow("2022") << 2022 << 365;
    QTest::newRow("2023, before a leap year") << 2023 << 365;
    QTest::newRow("2024") << 2024 << 366;
    QTest::newRow("2026") << 2026 << 365;
    QTest::newRow("1900") << 1900 << 365;
    QTest::newRow("2000") << 2000 << 366;
    QTest::newRow("2099") << 2099 << 365;
    QTest::newRow("2100") << 2100 << 365;
}

// Checks the year both as this year's holder and as next year's holder of the year before.
void DateGridTest::yearFillsEachDayOnce() {
    QFETCH(int, year);
    QFETCH(int, days);
    const auto asThisYear = ModelFor(year);
    const auto asNextYear = ModelFor(year - 1);
    QCOMPARE(asThisYear->LeapYear, days == 366);

    for (const DateHolderGrid* holder : {&asThisYear->DateHolder, &asNextYear->NextDateHolder}) {
        int filled = 0;
        holder->ForEach([&](const CellIndex&, const QString& text) {
            if (text != kBlankDay)
                ++filled;
        });
        QCOMPARE(filled, days);
        QCOMPARE(CountOf(*holder, kBlankDay), kCells - days);
        QCOMPARE(CountOf(*holder, "02/29/" + TwoDigits(year)), days == 366 ? 1 : 0);
        for (QDate day(year, 1, 1); day.year() == year; day = day.addDays(1)) {
            const CellIndex cell{day.month() - 1, SheetColumn(day), SheetRow(day)};
            QCOMPARE((*holder)[cell], Text(day));
            QCOMPARE(CountOf(*holder, Text(day)), 1);
        }
    }
}

void DateGridTest::findDayOnlyInThisAndNextYear_data() {
    QTest::addColumn<int>("thisYear");
    QTest::addColumn<QDate>("date");
    QTest::newRow("year before") << 2026 << QDate(2025, 12, 31);
    QTest::newRow("two years on") << 2026 << QDate(2028, 1, 1);
    QTest::newRow("same two digits a century on") << 2026 << QDate(2126, 3, 15);
    QTest::newRow("next year's two digits a century back") << 2099 << QDate(2000, 1, 1);
    QTest::newRow("invalid date") << 2026 << QDate();
}

void DateGridTest::findDayOnlyInThisAndNextYear() {
    QFETCH(int, thisYear);
    QFETCH(QDate, date);
    const auto model = ModelFor(thisYear);
    QCOMPARE(Where(model->FindDay(date)), "none");
    QVERIFY(!model->HolderFor(date));
}

void DateGridTest::clearedHoldersHoldNoDay() {
    const auto model = ModelFor(2026);
    model->ClearDateHolders();
    QCOMPARE(CountOf(model->DateHolder, kBlankDay), kCells);
    QCOMPARE(CountOf(model->NextDateHolder, kBlankDay), kCells);
    QCOMPARE(Where(model->FindDay(QDate(2026, 3, 15))), "none");
    QCOMPARE(Where(model->FindDay(QDate(2027, 3, 15))), "none");
    QVERIFY(!model->DateAt(CellIndex{2, 0, 2}, false).isValid());
}

void DateGridTest::cellCodes_data() {
    QTest::addColumn<CellIndex>("cell");
    QTest::addColumn<QString>("code");
    QTest::newRow("first cell") << CellIndex{0, 0, 0} << "000000";
    QTest::newRow("Saturday in row 0") << CellIndex{0, 6, 0} << "000600";
    QTest::newRow("October") << CellIndex{9, 3, 2} << "090302";
    QTest::newRow("last cell") << CellIndex{11, 6, 5} << "110605";
}

void DateGridTest::cellCodes() {
    QFETCH(CellIndex, cell);
    QFETCH(QString, code);
    QCOMPARE(cell.Code(), code);
    QCOMPARE(Where(CellIndex::FromCode(code)), Where(cell));
}

void DateGridTest::malformedCellCodes_data() {
    QTest::addColumn<QString>("code");
    QTest::newRow("empty") << "";
    QTest::newRow("too short") << "00060";
    QTest::newRow("too long") << "0006000";
    QTest::newRow("month 12") << "120000";
    QTest::newRow("weekday 7") << "000700";
    QTest::newRow("week row 6") << "000006";
    QTest::newRow("letters") << "0a0000";
    QTest::newRow("negative") << "-10000";
    QTest::newRow("blanks") << "      ";
    QTest::newRow("blank for a leading zero") << " 10600";
    QTest::newRow("plus sign") << "+10600";
    QTest::newRow("minus zero") << "-00600";
}

void DateGridTest::malformedCellCodes() {
    QFETCH(QString, code);
    QCOMPARE(Where(CellIndex::FromCode(code)), "none");
}

void DateGridTest::yearBounds_data() {
    QTest::addColumn<QDate>("selected");
    QTest::newRow("a Monday in September") << QDate(2026, 9, 7);
    QTest::newRow("1 January on a Saturday") << QDate(2022, 1, 1);
    QTest::newRow("31 December") << QDate(2023, 12, 31);
    QTest::newRow("29 February") << QDate(2024, 2, 29);
}

void DateGridTest::yearBounds() {
    QFETCH(QDate, selected);
    DateModel model;
    model.SelectedDate = selected;
    model.SetYearBounds();
    QCOMPARE(int(model.SelectedDay), selected.day());
    QCOMPARE(int(model.SelectedMonth), selected.month());
    QCOMPARE(int(model.ThisYear), selected.year());
    QCOMPARE(model.FirstOfMonth, QDate(selected.year(), selected.month(), 1));
    QCOMPARE(model.YearStart, QDate(selected.year(), 1, 1));
    QCOMPARE(model.YearEnd, QDate(selected.year(), 12, 31));
}

void DateGridTest::holdersRefilledOnlyOnChangeOfYear() {
    DateModel model;
    QVERIFY(model.SelectDate(QDate(2024, 3, 5)));
    QCOMPARE(int(model.ThisYear), 2024);
    const CellIndex marker{5, 0, 0};  // 1 June 2024 is a Saturday: this cell is blank
    QCOMPARE(model.DateHolder[marker], kBlankDay);
    model.DateHolder[marker] = "marker  ";

    QVERIFY(!model.SelectDate(QDate(2024, 12, 31)));
    QCOMPARE(model.SelectedDate, QDate(2024, 12, 31));
    QCOMPARE(int(model.SelectedMonth), 12);
    QCOMPARE(model.DateHolder[marker], "marker  ");

    // Cells that held a day of the old year and hold none in the new one are blank again.
    QVERIFY(model.SelectDate(QDate(2025, 1, 1)));
    QCOMPARE(int(model.ThisYear), 2025);
    QVERIFY(!model.LeapYear);
    QCOMPARE(model.DateHolder[marker], "06/01/25");
    QCOMPARE(CountOf(model.DateHolder, kBlankDay), kCells - 365);
    QCOMPARE(CountOf(model.NextDateHolder, kBlankDay), kCells - 365);
    QCOMPARE(Where(model.FindDay(QDate(2026, 1, 1))), Where(CellIndex{0, 4, 0}));
    QCOMPARE(Where(model.FindDay(QDate(2024, 12, 31))), "none");
}

void DateGridTest::twoDigitYearsReadNearTheWorkingYear_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("nearYear");
    QTest::addColumn<QDate>("date");
    QTest::newRow("same century") << "09/07/26" << 2026 << QDate(2026, 9, 7);
    QTest::newRow("2030 from 2026") << "03/01/30" << 2026 << QDate(2030, 3, 1);
    QTest::newRow("1977 from 2026") << "03/01/77" << 2026 << QDate(1977, 3, 1);
    QTest::newRow("2100 from 2099") << "01/05/00" << 2099 << QDate(2100, 1, 5);
    QTest::newRow("2099 from 2100") << "12/31/99" << 2100 << QDate(2099, 12, 31);
    QTest::newRow("2100 from 2100") << "01/01/00" << 2100 << QDate(2100, 1, 1);
    QTest::newRow("1949 from 1950") << "06/15/49" << 1950 << QDate(1949, 6, 15);
    QTest::newRow("1999 from 1950") << "06/15/99" << 1950 << QDate(1999, 6, 15);
    QTest::newRow("1901 from 1950") << "06/15/01" << 1950 << QDate(1901, 6, 15);
    QTest::newRow("2001 from 1952") << "06/15/01" << 1952 << QDate(2001, 6, 15);
    QTest::newRow("four-digit year") << "1/5/2026" << 2026 << QDate();
    QTest::newRow("dashes") << "01-05-26" << 2026 << QDate();
    QTest::newRow("month 13") << "13/01/26" << 2026 << QDate();
    QTest::newRow("29 February of a common year") << "02/29/26" << 2026 << QDate();
    QTest::newRow("letters") << "ab/cd/ef" << 2026 << QDate();
    QTest::newRow("blank cell") << kBlankDay << 2026 << QDate();
}

void DateGridTest::twoDigitYearsReadNearTheWorkingYear() {
    QFETCH(QString, text);
    QFETCH(int, nearYear);
    QFETCH(QDate, date);
    QCOMPARE(datefmt::ParseMmDdYy(text, nearYear), date);
}

ORVANTA_TEST_MAIN(DateGridTest)
#include "tst_date_grid.moc"
