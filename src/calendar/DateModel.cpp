#include "calendar/DateModel.h"

#include "shell/DateFormats.h"

namespace {

// Weekday column counted from 1 = Sunday, as the cursor counts it.
qint16 WeekdayColumn(const QDate& date) {
    return static_cast<qint16>(date.dayOfWeek() % 7 + 1);
}

// "mm/dd/yy" of the day, put together by hand: formatting through a date pattern 365 times
// is a quarter of a year switch.
QString HolderText(const QDate& day) {
    QString text;
    text.reserve(8);
    AppendTwoDigits(text, day.month());
    text += QLatin1Char('/');
    AppendTwoDigits(text, day.day());
    text += QLatin1Char('/');
    AppendTwoDigits(text, day.year() % 100);
    return text;
}

// Lays the days of year into holder month by month, a month's rows starting with the row of
// its 1st, and returns the number of days. The cursor (the day being placed, its weekday
// column counted from 1 = Sunday and its week row from 1) lives only while the holder fills.
int FillHolder(DateHolderGrid& holder, int year) {
    QDate CursorDate(year, 1, 1);
    const int days = static_cast<int>(CursorDate.daysTo(QDate(year, 12, 31))) + 1;
    int month = CursorDate.month();
    int CursorWeekday = WeekdayColumn(CursorDate);
    int CursorWeek = 1;
    for (int i = 0; i < days; ++i) {
        if (CursorDate.month() > month) {
            month = CursorDate.month();
            CursorWeekday = WeekdayColumn(CursorDate);
            CursorWeek = 1;
        }
        holder.at(month - 1, CursorWeekday - 1, CursorWeek - 1) = HolderText(CursorDate);
        if (++CursorWeekday > 7) {
            CursorWeekday = 1;
            ++CursorWeek;
        }
        CursorDate = CursorDate.addDays(1);
    }
    return days;
}

}  // namespace

bool IsLeapYear(int year) {
    return QDate::isLeapYear(year);
}

std::optional<CellIndex> FindInHolder(const DateHolderGrid& holder, const QString& mmddyy) {
    for (int m = 0; m < kMonths; ++m)
        for (int w = 0; w < kWeekdays; ++w)
            for (int r = 0; r < kWeekRows; ++r)
                if (holder.at(m, w, r) == mmddyy)
                    return CellIndex{m, w, r};
    return std::nullopt;
}

DateModel::DateModel() : DateHolder(kBlankDay), NextDateHolder(kBlankDay) {}

void DateModel::SetYearBounds() {
    SelectedDay = static_cast<qint16>(SelectedDate.day());
    FirstOfMonth = SelectedDate.addDays(1 - SelectedDay);
    SelectedMonth = static_cast<qint16>(SelectedDate.month());
    ThisYear = static_cast<qint16>(SelectedDate.year());
    YearStart = QDate(ThisYear, 1, 1);
    YearEnd = QDate(ThisYear, 12, 31);
}

void DateModel::ClearDateHolders() {
    DateHolder.Fill(kBlankDay);
    NextDateHolder.Fill(kBlankDay);
}

void DateModel::AssignThisYearsDateHolders() {
    LeapYear = FillHolder(DateHolder, ThisYear) == 366;
}

void DateModel::AssignNextYearsDateholders() {
    FillHolder(NextDateHolder, ThisYear + 1);
}

bool DateModel::SelectDate(const QDate& date) {
    if (!date.isValid() || date == SelectedDate)
        return false;
    const bool newYear = date.year() != ThisYear;
    SelectedDate = date;
    SetYearBounds();
    if (newYear) {
        ClearDateHolders();
        AssignThisYearsDateHolders();
        AssignNextYearsDateholders();
        ReadYearStores();
        emit yearChanged(ThisYear);
    }
    emit selectedDateChanged(date);
    return newYear;
}

void DateModel::ReadYearStores() {
    for (PerYearStore* store : yearStores_)
        store->ReadBothYears();
}

const DateHolderGrid* DateModel::HolderFor(const QDate& date) const {
    if (date.year() == ThisYear)
        return &DateHolder;
    if (date.year() == ThisYear + 1)
        return &NextDateHolder;
    return nullptr;
}

std::optional<CellIndex> DateModel::FindDay(const QDate& date) const {
    const DateHolderGrid* holder = HolderFor(date);
    if (!holder || !date.isValid())
        return std::nullopt;
    const QString text = datefmt::MmDdYy(date);
    // The cell the fill puts the day in; searching the holder is only needed if it disagrees.
    const int firstColumn = WeekdayColumn(QDate(date.year(), date.month(), 1)) - 1;
    const CellIndex expected{date.month() - 1, WeekdayColumn(date) - 1,
                             (date.day() - 1 + firstColumn) / 7};
    if ((*holder)[expected] == text)
        return expected;
    return FindInHolder(*holder, text);
}

QDate DateModel::DateAt(const CellIndex& cell, bool nextYear) const {
    const QString& text = (nextYear ? NextDateHolder : DateHolder)[cell];
    return datefmt::ParseMmDdYy(text, ThisYear + (nextYear ? 1 : 0));
}
