#include "MainWindowFixture.h"

#include <QDir>

#include "calendar/gui/CalendarView.h"

MainWindowFixture::MainWindowFixture(const QDateTime& now)
    : env(now), printer(env.dir.filePath(QStringLiteral("printouts"))) {
    QDir().mkpath(env.dir.filePath(QStringLiteral("printouts")));
}

MainWindowFixture::~MainWindowFixture() {
    if (window.frame)
        window.frame->editors() = {};
    window = {};
}

void MainWindowFixture::Start() {
    window = CreateMainWindow(*env.state, printer);
    frame().show();
    frame().Form_Load();
    frame().setWindowState(Qt::WindowNoState);
    frame().resize(1180, 800);
    if (!QTest::qWaitForWindowExposed(&frame()))
        qFatal("the main window was not shown");
}

void MainWindowFixture::Restart() {
    window = {};
    env.state =
        std::make_unique<ProgramState>(env.dir.path(), env.dialogs, env.clock, env.platform);
    Start();
}

QColor MainWindowFixture::Painted(const QDate& date) const {
    CalendarView* view = calendar().calendarView();
    const QRect cell = view->DayRect(date);
    return QColor(view->grab().toImage().pixel(cell.right() - 8, cell.bottom() - 8));
}
