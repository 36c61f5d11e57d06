#pragma once

#include <QDate>
#include <QString>

#include "notes_planner/PlannerRecord.h"
#include "shell/gui/Printing.h"

// The printed planner page: under the heading "Orvanta: Daily Planner" and the date, the
// appointment lines with their times (bold lines in bold, long text wrapped beside the time),
// the to-do items with their done marks, the expenses with their total and the mileage lines
// with theirs, each section under the caption it has on screen.
Printer::Document PlannerDocument(const QDate& date, const PlannerPage& page);
// The printout's name: "Daily Planner " and the date.
QString PlannerPrintTitle(const QDate& date);
