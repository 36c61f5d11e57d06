#pragma once

#include <QObject>

#include "calendar/DateModel.h"
#include "calendar/MarkerColors.h"
#include "calendar/modMarks.h"
#include "help/modHelp.h"
#include "shell/Prompts.h"
#include "shell/Services.h"
#include "shell/UserPreferences.h"

// The program-wide state: the data folder and seams, the working date fields with both years'
// date holders, and one instance of each store. main() makes one; each test makes its own on a
// temporary folder. Windows receive it by reference.
class ProgramState : public QObject {
    Q_OBJECT
public:
    ProgramState(const QString& dataFolder, Dialogs& dialogs, Clock& clock, Platform& platform);

    Services services;
    DateModel dates;
    HelpTopics help;
    ChangeFlags changes;
    UserPreferences prefs;
    MarkerColors markerColors;
    DateMarks marks;
    // Set once the main window has been asked to close.
    bool closing = false;

    // Moves the selected date. On a change of year both years' date holders are refilled, both
    // years' marks are read, and yearChanged is announced (the other per-year stores re-read
    // on it) before selectedDateChanged.
    void SelectDate(const QDate& date);

signals:
    void yearChanged(int year);
    void selectedDateChanged(const QDate& date);
};
