#pragma once

#include <QDate>
#include <QHash>
#include <QObject>

class CalendarMenus;
class DateModel;
class Services;
class frmIcons;
class frmInsertIcons;
class frmMain;
class modIcons;
class modMonthIcons;
struct ChangeFlags;

struct DecorationContext {
    frmMain& frame;
    Services& services;
    DateModel& dates;
    ChangeFlags& changes;
    modIcons& icons;
    modMonthIcons& monthIcons;
    CalendarMenus& calendar;
};

// The icons' part of the main window: the icon manager and palette, icons dropped on days,
// the month's and the template's icons in the calendar views, their save and remove commands,
// and the template mode of the 1 month calendar.
class DecorationMenus : public QObject {
    Q_OBJECT
public:
    explicit DecorationMenus(const DecorationContext& context);

    // Load step: reads the icon captions and the placed icons, and takes note of the month on
    // show.
    void Load();
    // Places icon number on date (in the template while it is being modified).
    void PlaceIcon(const QDate& date, int number);

    frmIcons* iconsWindow() const;
    frmInsertIcons* paletteWindow() const;

    void mnuFileCreateTemplate_Click();
    void mnuFileSaveTemplate_Click();
    void mnuFileSaveCalendar_Click();
    void mnuOptDateShowIcons_Click();
    void mnuOptDateRemoveIcon_Click();
    void mnuOptDateRemoveAll_Click();
    void mnuManageIcons_Click();

private:
    void ConnectMenus();
    void RegisterEditors();
    // The picture of icon number, looked up once until the library changes.
    QString PictureOf(int number);
    // Asks whether to save unsaved icons ("Month Has Changed"); false when the user cancelled.
    bool AskAboutChanges();
    void SaveChangedIcons();
    void SelectionMoved(const QDate& date);
    void ShowTemplateState();

    frmMain& frame_;
    Services& services_;
    DateModel& dates_;
    ChangeFlags& changes_;
    modIcons& icons_;
    modMonthIcons& monthIcons_;
    CalendarMenus& calendar_;
    QHash<int, QString> pictures_;
    // The month on show and the date selected in it, to go back to when the user cancels
    // leaving a month with unsaved icons.
    QDate monthShown_;
    QDate selectedBefore_;
    bool movingBack_ = false;
};
