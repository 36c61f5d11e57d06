#pragma once

#include <QDate>
#include <QString>
#include <QTime>

// A date typed by the user: "9/7/2026", "09/07/26", "Sep 7, 2026", "September 7 2026" or
// "2026-09-07". A two-digit year takes the century nearest nearYear. Invalid when the text is
// not a date.
QDate ParseDateInput(const QString& text, int nearYear);

// A time typed by the user: "8:45 PM", "8:45pm", "8 PM", "20:45" or "8:45:30 PM". Invalid
// when the text is not a time of day (such as "25:00").
QTime ParseTimeInput(const QString& text);
