#pragma once

#include <memory>

#include "shell/gui/frmMain.h"

class CalendarMenus;
class DecorationMenus;
class HelpMenus;
class NotesPlannerMenus;
class TermMenus;
class Printer;
class RemindersMenus;
struct ProgramState;

// The main window as the program runs it: the frame, each subsystem's part of it connected to
// that subsystem's stores, and the load step in its order.
struct MainWindow {
    std::unique_ptr<frmMain> frame;
    CalendarMenus* calendar = nullptr;
    DecorationMenus* decorations = nullptr;
    HelpMenus* help = nullptr;
    NotesPlannerMenus* notesPlanner = nullptr;
    RemindersMenus* reminders = nullptr;
    TermMenus* terms = nullptr;
};

// printer: where the program's printouts go.
MainWindow CreateMainWindow(ProgramState& state, Printer& printer);
