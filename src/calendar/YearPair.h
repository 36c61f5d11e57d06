#pragma once

// The two years every per-year store keeps in memory: the year of the selected date ("this
// year") and the year after it ("next year"), each with its own tables and its own file.
enum class Year { This, Next };

template <class Table>
class YearPair {
public:
    Table& operator[](Year year) { return year == Year::Next ? next_ : this_; }
    const Table& operator[](Year year) const { return year == Year::Next ? next_ : this_; }

private:
    Table this_{};
    Table next_{};
};

// A store that keeps a table per year for this year and next year. The date model has every
// such store read both years again when the selected date moves into another year.
class PerYearStore {
public:
    virtual ~PerYearStore() = default;

    // Reads this year's file and then next year's into their tables.
    virtual void ReadBothYears() = 0;
};
