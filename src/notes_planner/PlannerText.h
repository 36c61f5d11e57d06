#pragma once

#include <QString>

#include "notes_planner/PlannerRecord.h"

// A planner page as plain text to paste into another program: four sections, each under its
// heading and followed by an empty line, with only the lines that hold something. Fields are
// separated by tabs and lines end with CR LF.
//
//     Appointments - Events - Meetings - Tasks
//     08:00 AM<tab>Staff meeting           (a continuance line has an empty time)
//     To Do List
//     Call the bank (x)                    (" (x)" marks a done item)
//     Expenses
//     Desc:<tab>Lunch<tab>Amt:<tab>12.50
//     Total:<tab>12.50
//     Mileage
//     Dest:<tab>Office<tab>Miles:<tab>25
//     Total:<tab>25
QString PlannerClipboardText(const PlannerPage& page);
