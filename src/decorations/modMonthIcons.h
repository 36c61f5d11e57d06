#pragma once

#include <QDate>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <array>

#include "shell/DataFile.h"
#include "shell/Records.h"

class Services;
struct ChangeFlags;

// An icon placed on a day of a month: the date and the icon's number in the library.
struct PlacedIcon {
    QDate date;
    int number = 0;

    bool operator==(const PlacedIcon&) const = default;
};

// An icon of the calendar template: the day of the month it shows on, in every month that has
// that day, and the icon's number.
struct TemplateIcon {
    int day = 0;
    int number = 0;

    bool operator==(const TemplateIcon&) const = default;
};

// A month's file (month abbreviation + "_Icons.dat") keeps the icons placed in that month of
// every year, one line per icon in the order they were placed: the date as "mm/dd/yyyy", ":"
// and the icon number. The year is written out because the file's name has none. A line of
// another month, an impossible date or a non-numeric field raises error 13 after the icons
// before it.
void ParseMonthIcons(int month, const QStringList& lines, QList<PlacedIcon>& icons);
void ParseMonthIconLine(int month, const QString& line, QList<PlacedIcon>& icons);
QString MonthIconsText(const QList<PlacedIcon>& icons);
// "Template.dat": one line per icon, the day of the month ("dd", 1 to 31), ":" and the number.
void ParseTemplateIcons(const QStringList& lines, QList<TemplateIcon>& icons);
void ParseTemplateIconLine(const QString& line, QList<TemplateIcon>& icons);
QString TemplateIconsText(const QList<TemplateIcon>& icons);
// The layout of both: an icon a line, in placing order; no icons, no file (a month or the
// template without icons leaves none behind).
const RecordLayout& IconPlacesLayout();

// The file of a month (1 to 12): "Jan_Icons.dat" ... "Dec_Icons.dat".
QString MonthIconsFileName(int month);

// The icons placed on the calendar: each month's file, read when the month is first shown, and
// the template, whose icons appear on the same day numbers of every month. Changes are kept in
// memory until saved; the change flags tell the unsaved-change questions about them.
class modMonthIcons : public QObject {
    Q_OBJECT
public:
    modMonthIcons(Services& services, ChangeFlags& flags);

    // Reads the template and every month's file now rather than when first shown, so that a
    // faulty file is reported at start-up and never while a calendar is being drawn.
    void ReadAllIcons();

    // What a day shows: the template's icons on its day number, then the icons placed on the
    // date itself. While the template is being modified, only the template's.
    QList<int> IconsOn(const QDate& date);
    // How many of IconsOn(date) come from the template.
    int TemplateIconsOn(const QDate& date);

    // Places icon number on date: in the template while it is being modified (on the date's
    // day number), otherwise in the date's month.
    void PlaceIcon(const QDate& date, int number);
    // Removes the index-th icon of IconsOn(date). Returns false when that icon belongs to the
    // template and the template is not being modified.
    bool RemoveIcon(const QDate& date, int index);
    // Removes every icon placed in the month of firstOfMonth (that year only), or every icon of
    // the template while it is being modified.
    void RemoveAllIcons(const QDate& firstOfMonth);

    // Saves the icons of month (1 to 12, all its years) and says so. False when nothing was
    // saved.
    bool SaveMonthIcons(int month);
    bool SaveTemplateIcons();
    // The month whose icons changed since they were last saved (0 when none changed).
    int ChangedMonth() const { return changedMonth_; }
    bool HasChanges() const { return changedMonth_ != 0 || templateChanged_; }
    // Forgets unsaved changes: the changed month and the template are read again from disk.
    void DiscardChanges();

    const QList<PlacedIcon>& MonthIcons(int month);
    const QList<TemplateIcon>& Template();

signals:
    // The icons on show changed (placed, removed, read again).
    void iconsChanged();

private:
    struct MonthTable {
        bool read = false;
        QList<PlacedIcon> icons;
        DataFile file;
    };
    MonthTable& Month(int month);
    void ReadMonth(int month);
    void ReadTemplate();
    void MonthChanged(int month);
    void TemplateChanged();

    Services& services_;
    ChangeFlags& flags_;
    std::array<MonthTable, 12> months_;
    bool templateRead_ = false;
    DataFile templateFile_;
    bool templateChanged_ = false;
    QList<TemplateIcon> template_;
    int changedMonth_ = 0;
};
