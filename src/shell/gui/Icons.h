#pragma once

#include <QIcon>
#include <QPixmap>

// The pictures of the main window, drawn in code so that they scale and need no files. Each is
// drawn once, on first use, and shared after that.
namespace icons {

// The program's own icon: a calendar sheet with one marked day.
QIcon Orvanta();
// A calendar page with a number (months shown) on it.
QIcon CalendarPage(const QString& label);
// A page with lines (notes), a page with a clock face (planner), an arrow onto a page (advance).
QIcon NotesPage();
QIcon PlannerPage();
QIcon AdvanceArrow();
// Small indicators: a bell (alerts), a cake (birthdays), a question mark (help).
QPixmap Bell(bool active);
QPixmap Cake(bool active);
QIcon Help();
// Check box pictures of the to-do panel.
QPixmap CheckBox(bool checked);

}  // namespace icons
