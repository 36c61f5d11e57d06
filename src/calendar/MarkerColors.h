#pragma once

#include "shell/DataFile.h"
#include "shell/Records.h"

#include <QString>
#include <array>
#include <optional>

class Services;

// One mark category: the caption of its menu item, the colour its days are painted in
// (0x00BBGGRR) and whether its marks are hidden.
struct MarkerColor {
    QString caption;
    quint32 color = 0;
    bool hidden = false;

    bool operator==(const MarkerColor&) const = default;
};

inline const QString kMarkerColorsFile = QStringLiteral("Marker Colors.dat");

// The fourteen mark categories of the Edit menu, in menu order. A day's mark is stored as its
// category's colour, so no two categories may share a colour.
class MarkerColors {
public:
    static constexpr int kCount = 14;
    // Entries 0-11 are the categories a user gives a day.
    static constexpr int kUserCategories = 12;
    static constexpr int kBirthday = 4;
    static constexpr int kHoliday = 8;
    // Quick Mark paints a day in the colour of this entry ("Travel" unless renamed), not in
    // that of the "Quick Marks" entry.
    static constexpr int kQuickMarkColor = 10;
    static constexpr int kQuickMarks = 12;
    static constexpr int kTodaysDate = 13;

    using Entries = std::array<MarkerColor, kCount>;

    MarkerColors();

    // The categories of a data folder without "Marker Colors.dat".
    static const Entries& Defaults();

    // Reads the file; a missing file gives the defaults. A short or malformed file keeps the
    // lines read before the fault, the defaults fill the rest, and the fault is reported; the
    // file is then not saved over until it has been read whole.
    void ReadMarkerColors(Services& services);
    // Writes every category, hidden ones marked with a trailing "*".
    void SaveMarkerColors(Services& services);

    const MarkerColor& Entry(int i) const { return entries_.at(i); }
    quint32 Color(int i) const { return entries_.at(i).color; }
    const QString& Caption(int i) const { return entries_.at(i).caption; }
    bool Hidden(int i) const { return entries_.at(i).hidden; }

    // The category painted in color, or -1.
    int IndexOfColor(quint32 color) const;
    // True when color is the colour of a hidden category: its days are painted as unmarked.
    bool IsHiddenColor(quint32 color) const;

    void SetHidden(int i, bool hidden) { entries_.at(i).hidden = hidden; }
    void ShowAll();
    void HideAll();

    // Gives category i a new caption and colour. Returns the reason when that is refused (the
    // colour belongs to another category, or the caption cannot be stored); nothing changes
    // then. Returns nullopt on success.
    std::optional<QString> SetCategory(int i, const QString& caption, quint32 color);
    // Replaces every category at once (so that colours can move between categories), with the
    // same refusals as SetCategory.
    std::optional<QString> SetCategories(const Entries& entries);
    const Entries& entries() const { return entries_; }

    // The layout of the file: a category a line, "caption:colour" with "*" when hidden.
    static const RecordLayout& Layout();

private:
    Entries entries_;
    DataFile file_;
};
