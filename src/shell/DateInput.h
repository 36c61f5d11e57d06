#pragma once

#include <QDate>
#include <QString>

// A date typed by the user: "9/7/2026", "09/07/26", "Sep 7, 2026", "September 7 2026" or
// "2026-09-07". A two-digit year takes the century nearest nearYear. Invalid when the text is
// not a date.
QDate ParseDateInput(const QString& text, int nearYear);
