#pragma once

#include <QString>
#include <array>
#include <optional>

// A day's place on a month sheet: month index (0 = January), weekday column (0 = Sunday) and
// week row (0 = the row holding the 1st). Every per-day table of a year is a grid of these.
struct CellIndex {
    int month = 0;
    int weekday = 0;
    int week = 0;

    bool operator==(const CellIndex&) const = default;

    // The six-character cell code written into the stores: "MMWWRR", two digits each.
    QString Code() const;
    // The cell of a six-character code; nullopt when the code is malformed or out of range.
    static std::optional<CellIndex> FromCode(QStringView code);
};

// Appends n (0-99) as two digits, the form of every cell index in the files.
inline void AppendTwoDigits(QString& text, int n) {
    text += QLatin1Char(static_cast<char>('0' + n / 10));
    text += QLatin1Char(static_cast<char>('0' + n % 10));
}

constexpr int kMonths = 12;
constexpr int kWeekdays = 7;
constexpr int kWeekRows = 6;
constexpr int kCells = kMonths * kWeekdays * kWeekRows;

// A 12 x 7 x 6 table holding one T per day cell of a year.
template <class T>
class DayGrid {
public:
    DayGrid() { cells_.fill(T()); }
    explicit DayGrid(const T& value) { cells_.fill(value); }

    T& at(int month, int weekday, int week) { return cells_[Offset(month, weekday, week)]; }
    const T& at(int month, int weekday, int week) const {
        return cells_[Offset(month, weekday, week)];
    }
    T& operator[](const CellIndex& c) { return at(c.month, c.weekday, c.week); }
    const T& operator[](const CellIndex& c) const { return at(c.month, c.weekday, c.week); }

    void Fill(const T& value) { cells_.fill(value); }

    // Visits every cell in file order: month outermost, then weekday column, then week row.
    template <class F>
    void ForEach(F&& visit) const {
        for (int m = 0; m < kMonths; ++m)
            for (int w = 0; w < kWeekdays; ++w)
                for (int r = 0; r < kWeekRows; ++r)
                    visit(CellIndex{m, w, r}, at(m, w, r));
    }

    bool operator==(const DayGrid&) const = default;

private:
    static constexpr int Offset(int month, int weekday, int week) {
        return (month * kWeekdays + weekday) * kWeekRows + week;
    }
    std::array<T, kCells> cells_;
};
