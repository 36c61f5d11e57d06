#pragma once

#include <QString>

#include "notes_planner/PlannerRecord.h"

// The figures of a planner page: expense amounts with two decimals ("#######.00"), odometer
// readings and miles as whole numbers ("##########").

// A typed amount or mileage figure as the box shows it once left: a number, written as people
// write it ("$1,234.5"), is put in its format ("1234.50"); anything else (blank, or words)
// stays as typed.
QString FormatAmount(const QString& typed);
QString FormatMileage(const QString& typed);

// The total expenditures: the sum of the six amounts that are numbers, empty while every
// amount is blank. Words in an amount box count for nothing, never for a number read from them.
void AddTheAmounts(PlannerPage& page);
// Each mileage line whose two odometer readings are numbers gets its miles (end minus begin);
// any other line keeps the miles typed into it. Then the total miles, the sum of the five
// miles that are numbers.
void AddTheMiles(PlannerPage& page);
