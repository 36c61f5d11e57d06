#pragma once

#include <QAction>
#include <QColor>

#include "TestEnv.h"
#include "app/gui/MainWindow.h"
#include "calendar/gui/CalendarMenus.h"
#include "shell/gui/Printing.h"

// The main window of a fresh program on a temporary data folder: loaded, shown at a size that
// gives the calendar room, with scripted dialogs. Every box it expects must be shown by the
// end of the test.
struct MainWindowFixture {
    explicit MainWindowFixture(const QDateTime& now = QDateTime(QDate(2026, 9, 7), QTime(10, 30)));
    ~MainWindowFixture();

    // Loads and shows the window (the data files a test writes first are read then).
    void Start();
    // Closes this program and starts a new one on the same data folder.
    void Restart();

    frmMain& frame() const { return *window.frame; }
    CalendarMenus& calendar() const { return *window.calendar; }
    QAction* menu(const QString& name) const { return frame().MenuItem(name); }
    template <class T>
    T* control(const QString& name) const {
        return frame().Control<T>(name);
    }
    // The colour painted near a day cell's lower right corner, clear of its text.
    QColor Painted(const QDate& date) const;

    TestEnv env;
    // Printouts go to PDF files in the data folder's "printouts".
    PdfPrinter printer;
    MainWindow window;
};
