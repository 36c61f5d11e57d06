#pragma once

#include <QString>

#include "notes_planner/PlannerRecord.h"

// The figures of a planner page: expense amounts with two decimals ("#######.00"), odometer
// readings and miles as whole numbers ("##########").

// A typed amount or mileage figure as the box shows it once left: a number is put in its
// format ("12.5" becomes "12.50"), anything else (blank, or words) stays as typed.
QString FormatAmount(const QString& typed);
QString FormatMileage(const QString& typed);

// The total expenditures: the sum of the six amounts, empty while every amount is blank.
void AddTheAmounts(PlannerPage& page);
// Each mileage line with both odometer readings gets its miles (end minus begin); a line
// without them keeps the miles typed into it. Then the total miles, the sum of the five.
void AddTheMiles(PlannerPage& page);
