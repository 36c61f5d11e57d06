// How long a report window takes to open: from the click on "Generate Report Now" for a
// whole year until the report window has been painted, for the year on show and for another
// year (each read afresh from its file), beside a bare window of 240 labels opened the same
// way. Median of the runs, in milliseconds.
//
//   bench_report_window DATA-FOLDER YEAR-ON-SHOW OTHER-YEAR [RUNS]   (under a display)
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QGridLayout>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <algorithm>
#include <cstdio>

#include "app/ProgramState.h"
#include "app/gui/MainWindow.h"
#include "shell/gui/ChildWindow.h"
#include "shell/gui/DesktopPlatform.h"
#include "shell/gui/Printing.h"
#include "shell/gui/QtDialogs.h"
#include "shell/gui/frmMain.h"

namespace {

class FixedClock final : public Clock {
public:
    explicit FixedClock(const QDate& today) : now_(today, QTime(9, 0)) {}
    QDateTime now() const override { return now_; }

private:
    QDateTime now_;
};

// Waits until widget has been painted.
void WaitForPaint(QWidget* widget) {
    struct Painted : QObject {
        bool seen = false;
        bool eventFilter(QObject*, QEvent* event) override {
            seen = seen || event->type() == QEvent::Paint;
            return false;
        }
    } painted;
    widget->installEventFilter(&painted);
    while (!painted.seen)
        QApplication::processEvents(QEventLoop::AllEvents, 5);
    widget->removeEventFilter(&painted);
}

double Median(QList<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

double OpenReport(frmMain& frame, int year) {
    frame.MenuItem(QStringLiteral("mnuFileOpenExpenses"))->trigger();
    auto* selector =
        qobject_cast<ChildWindow*>(frame.ChildWindow(QStringLiteral("frmSelectMonth")));
    selector->Control<QComboBox>(QStringLiteral("cmbMonth"))->setCurrentIndex(0);
    selector->Control<QComboBox>(QStringLiteral("cmbYear"))->setCurrentText(QString::number(year));
    QApplication::processEvents();
    QElapsedTimer timer;
    timer.start();
    selector->Control<QPushButton>(QStringLiteral("cmdReport"))->click();
    QWidget* report = frame.ChildWindow(QStringLiteral("frmExpenses"));
    WaitForPaint(report);
    const double ms = timer.nsecsElapsed() / 1e6;
    qobject_cast<ChildWindow*>(report)->CloseWindow();
    QApplication::processEvents();
    return ms;
}

double OpenBareLabels(frmMain& frame) {
    QElapsedTimer timer;
    timer.start();
    auto* window = new QWidget;
    auto* grid = new QGridLayout(window);
    for (int row = 0; row < 40; ++row)
        for (int column = 0; column < 6; ++column)
            grid->addWidget(new QLabel(QStringLiteral("label")), row, column);
    frame.mdiArea()->addSubWindow(window)->show();
    WaitForPaint(window);
    const double ms = timer.nsecsElapsed() / 1e6;
    frame.mdiArea()->closeAllSubWindows();
    delete window;
    QApplication::processEvents();
    return ms;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    if (argc < 4) {
        std::fputs("usage: bench_report_window DATA-FOLDER YEAR-ON-SHOW OTHER-YEAR [RUNS]\n",
                   stderr);
        return 2;
    }
    const int shown = atoi(argv[2]), other = atoi(argv[3]);
    const int runs = argc > 4 ? atoi(argv[4]) : 15;
    QtDialogs dialogs;
    FixedClock clock(QDate(shown, 6, 15));
    DesktopPlatform platform;
    ProgramState state(QString::fromLocal8Bit(argv[1]), dialogs, clock, platform);
    DesktopPrinter printer(dialogs, platform);
    MainWindow window = CreateMainWindow(state, printer);
    window.frame->resize(1366, 768);
    window.frame->show();
    window.frame->Form_Load();
    WaitForPaint(window.frame.get());

    QList<double> onShow, otherYear, bare;
    for (int run = 0; run < runs; ++run) {
        onShow.append(OpenReport(*window.frame, shown));
        otherYear.append(OpenReport(*window.frame, other));
        bare.append(OpenBareLabels(*window.frame));
    }
    std::printf("report window of a whole year, open and painted (median of %d):\n", runs);
    std::printf("  year on show:   %6.1f ms\n", Median(onShow));
    std::printf("  another year:   %6.1f ms\n", Median(otherYear));
    std::printf("  240 bare labels: %5.1f ms; ratios %.2f and %.2f\n", Median(bare),
                Median(onShow) / Median(bare), Median(otherYear) / Median(bare));
    return 0;
}
