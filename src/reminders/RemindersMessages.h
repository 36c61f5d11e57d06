#pragma once

#include <QString>

#include "shell/Dialogs.h"

// The messages and captions of the alerts, the to-do list and the alarm clock, kept exactly as
// users know them.

// ---- alerts and the main window's indicator --------------------------------------------
inline const QString kAlertListUpdated = QStringLiteral("Alert List Updated.");
inline const QString kPendingAlertSuffix = QStringLiteral(" Pending Alert");
inline const QString kPendingAlertsSuffix = QStringLiteral(" Pending Alerts");
inline const QString kNoPendingAlerts = QStringLiteral("No Pending Alerts");
inline const QString kPendingAlertsTip =
    QStringLiteral("Left Click to View, Right Click to Ignore.");
inline const QString kAllAlertsTip = QStringLiteral("Left Click to view all Alerts.");
inline const QString kAlertsExistTip = QStringLiteral("Alerts Exist");
inline const QString kNoAlertsExistTip = QStringLiteral("No Alerts Exist");
inline const QString kAlertDatePrefix = QStringLiteral("Alert Date = ");

// ---- the alert manager -------------------------------------------------------------------
inline const QString kAlertManagementCaption = QStringLiteral("Alert Management");
inline const QString kAddingNewAlert = QStringLiteral("Adding New Alert");
inline const QString kEditingExistingAlert = QStringLiteral("Editing Existing Alert");
inline const QString kAlertListEmpty = QStringLiteral("Active Alert List (Empty)");
inline QString AlertListCaption(int count) {
    return QStringLiteral("Active Alert List: ") + QString::number(count) +
           QStringLiteral(" Alerts");
}
inline const QString kOverwriteAlertQuestion =
    QStringLiteral("You have edited an existing alert. Do you want to over-write this alert?") +
    kCrLf +
    QStringLiteral("Click Yes to save changes to the existing alert, No to save this as a") +
    kCrLf + QStringLiteral("new alert or Cancel to return to the alert.");
inline const QString kOverwriteAlertTitle = QStringLiteral("Existing Alert has been Changed");
inline const QString kEmptyPeriodMessage =
    QStringLiteral("Please edit the value of the Alert Period");
inline const QString kPeriodTooLongMessage =
    QStringLiteral("An alert cannot be set greater than 9999 days.");
// A date whose day number does not have five digits cannot be written in the alert file.
inline const QString kAlertDateOutOfRange =
    QStringLiteral("An alert date must lie between May 18, 1927 and October 13, 2173.");
inline const QString kNoAlertSelected = QStringLiteral("Please select an alert in the list first.");
inline const QString kFindAlertPrompt =
    QStringLiteral("Find the next alert whose message holds this text:");
inline const QString kFindAlertTitle = QStringLiteral("Find Alert");
inline QString AlertNotFoundMessage(const QString& text) {
    return QStringLiteral("No alert message holds \"%1\".").arg(text);
}

// ---- the to-do list ----------------------------------------------------------------------
inline const QString kToDoSaved = QStringLiteral("To Do List Saved.");
inline const QString kToDoCaption = QStringLiteral("To Do List");
inline const QString kToDoChangedQuestion =
    QStringLiteral("To Do List has been changed. Do you want to save the changes?");
inline const QString kToDoChangedTitle = QStringLiteral("To Do List Changed");
inline const QString kToDoPrintSuffix = QStringLiteral(" To Do List");
inline const QString kToDoFilter = QStringLiteral("To-do lists (*.dat);;All files (*)");

// ---- the alarm clock ---------------------------------------------------------------------
inline const QString kAlarmCaption = QStringLiteral("Pellix Alarm Clock");
inline const QString kAlarmIdleStatus =
    QStringLiteral("Click on the Hour, Minute and AM or PM to set the alarm.");
inline const QString kTimeSetPrefix = QStringLiteral("Time is Set for ");
inline const QString kClickStartSuffix = QStringLiteral(". Click Start to Begin.");
inline const QString kNoValidTimeStatus =
    QStringLiteral("A valid time has not been entered. Please select the Hour and Minutes.");
inline const QString kAmTimeError =
    QStringLiteral("Alarm Time Error. Please make sure that there is a") + kCrLf +
    QStringLiteral("valid time in the Time Box.");
inline const QString kPmTimeError =
    QStringLiteral("Alarm Time Error. Please make sure that there is a") + kCrLf +
    QStringLiteral("valid time in the Time Box before.");
inline const QString kEnterTimeFirst =
    QStringLiteral("You must enter a time in the Time Box and then click on either AM or PM.");
inline QString AlarmReachedStatus(const QString& time) {
    return QStringLiteral("The Alarm time of ") + time + QStringLiteral(" has been reached.");
}
inline const QString kAlarmHowTo =
    QStringLiteral("1. Select a Time by clicking on the desired Hour and Minute buttons.") + kCrLf +
    QStringLiteral("2. Click on either AM or PM.") + kCrLf +
    QStringLiteral("3. Click Start to Set the Alarm.") + kCrLf +
    QStringLiteral("Alternatively, you can type the time into the Time Box and then click") +
    kCrLf + QStringLiteral("on the AM or PM button.");
inline const QString kAlarmAbout = QStringLiteral("Pellix Alarm Clock") + kCrLf +
                                   QStringLiteral("Part of Orvanta - Planner and Date Management.");
